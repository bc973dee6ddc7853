// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "holding/menufile.h"
#include "tests/gui/inspect.h"
#include "tests/support/program.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Old binary menus, opened and saved through the main window.
class TestOldMenus : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void opens_data();
    void opens();
    void showsWhatWasImported();
    void tellsWhatToLookAt();
    void saveAsksForANameAndKeepsTheOldFile();
    void cancelledSaveWritesNothing();
    void closingAsksForAName();
    void savedMenuOpensAgain();
    void faults_data();
    void faults();
    void fileThatIsNotThere();
    void groupOfAnOldMenuCanBeEdited();
};

namespace {

QString write(const TestFolder &folder)
{
    return folder.make(u"old.qhx"_s, qhx::sample().bytes());
}

} // namespace

void TestOldMenus::opens_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"old.qhx", "OLD.QHX", "Old.Qhx", "old.json.qhx"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestOldMenus::opens()
{
    QFETCH(QString, name);
    Program program;
    program.open(name, qhx::sample().bytes());
    const auto *editor = program.editor<MenuFile>();
    QVERIFY(editor);
    QVERIFY(editor->isMenuValid());
    QCOMPARE(editor->windowTitle(), u"Menu File - "_s + name);
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(program.subWindow()->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(program.menuCount(), 1);
}

void TestOldMenus::showsWhatWasImported()
{
    const TestFolder folder;
    MenuFile editor(write(folder));
    ui::show(editor);
    QCOMPARE(editor.getCabinetType(), u"QHX"_s);
    QCOMPARE(editor.getCabinetModel(), u"KTR54"_s);
    QCOMPARE(editor.getTemperatureUnit(), 1);
    QVERIFY(!editor.getFanSpeedEnabled() && !editor.getProductIdEnabled());
    QCOMPARE(editor.getMenuProducts().size(), 2);
    QCOMPARE(editor.getMenuGroups().size(), 1);
    QCOMPARE(ui::get<QListWidget>(editor, "listWidgetProducts").item(1)->text(), u"  2 Käse"_s);
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(2);
    const auto &selector = ui::get<QComboBox>(editor, "comboDaypartSelect");
    QCOMPARE(selector.count(), 2);
    QCOMPARE(selector.itemText(0), u"BREAKFAST"_s);
    QCOMPARE(selector.itemText(1), u"LUNCH/DINNER"_s);
    QVERIFY(ui::get<QAbstractButton>(editor, "checkBoxDaypartInUse").isChecked());
    // The first bin of the file is the left one of the bottom row.
    QCOMPARE(ui::get<QPushButton>(editor, "btnDaypartSelect4_0").text(), u"Bacon"_s);
    QCOMPARE(ui::get<QPushButton>(editor, "btnDaypartSelectB4_1").text(), u"Bacon"_s);
    QCOMPARE(ui::get<QPushButton>(editor, "btnDaypartSelect3_0").text(), QString());
    ui::choose(editor, "comboDaypartSelect", u"LUNCH/DINNER"_s);
    QVERIFY(ui::get<QAbstractButton>(editor, "checkBoxDaypartInUse").isChecked());
    QCOMPARE(ui::get<QPushButton>(editor, "btnDaypartSelect0_0").text(), u"Meats"_s);
}

// An old group always has eight members; those that are none are missing.
void TestOldMenus::tellsWhatToLookAt()
{
    const TestFolder folder;
    qhx::File file = qhx::sample();
    file.entries[0].holdTime = 60;
    file.dayparts[0] = {};
    file.dayparts[1] = {300, 77};
    MenuFile editor(folder.make(u"old.qhx"_s, file.bytes()));
    ui::show(editor);
    QCOMPARE(inspect::line(editor), u"5 things to look at"_s);
    QCOMPARE(
        inspect::sentences(editor),
        (QStringList{u"Product 1, Bacon: Invalid hold time. Minimum value is 6 minutes!"_s,
                     u"Group 1, Meats: 6 of its 8 products are not in this menu"_s,
                     u"Group 1, Meats: Käse and 1 more do not suit it. Zone split 1/1, this group has 1/2"_s,
                     u"LUNCH/DINNER, Row 5, Bin 1: Käse. Zone split 1/1 has no room here"_s,
                     u"LUNCH/DINNER, Row 5, Bin 2: The id 77 is not in this menu"_s}));
}

void TestOldMenus::saveAsksForANameAndKeepsTheOldFile()
{
    Program program;
    program.open(u"old.qhx"_s, qhx::sample().bytes());
    program.expectSaveDialog(Line::Holding, Asking::Save, program.path(u"new.json"_s));
    program.save();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.editor<MenuFile>()->filePath(), program.path(u"new.json"_s));
    QCOMPARE(program.editor<MenuFile>()->windowTitle(), u"Menu File - new.json"_s);
    program.save(); // to the same name, without asking
    QCOMPARE(program.content(u"old.qhx"_s), qhx::sample().bytes());
    QCOMPARE(samplefile::menuOf(program.path(u"new.json"_s)).value(u"products"_s).toArray().size(), 2);
}

void TestOldMenus::cancelledSaveWritesNothing()
{
    Program program;
    program.open(u"old.qhx"_s, qhx::sample().bytes());
    program.expectSaveDialog(Line::Holding, Asking::Save, {});
    program.save();
    QCOMPARE(program.editor<MenuFile>()->filePath(), QString());
    QCOMPARE(program.content(u"old.qhx"_s), qhx::sample().bytes());
    QCOMPARE(program.folder().names(), QStringList{u"old.qhx"_s});
}

void TestOldMenus::closingAsksForAName()
{
    Program program;
    program.open(u"old.qhx"_s, qhx::sample().bytes());
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Holding, Asking::Closing, program.path(u"new.json"_s));
    program.subWindow()->close();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.content(u"old.qhx"_s), qhx::sample().bytes());
    QVERIFY(!samplefile::menuOf(program.path(u"new.json"_s)).isEmpty());
}

void TestOldMenus::savedMenuOpensAgain()
{
    const TestFolder folder;
    MenuFile imported(write(folder));
    QVERIFY(imported.writeToFile(folder.path(u"new.json"_s)));
    MenuFile opened(folder.path(u"new.json"_s));
    QVERIFY(opened.isMenuValid());
    QVERIFY(opened.writeToFile(folder.path(u"again.json"_s)));
    QCOMPARE(contentOf(folder.path(u"again.json"_s)), contentOf(folder.path(u"new.json"_s)));
    const QJsonObject menu = samplefile::menuOf(folder.path(u"new.json"_s));
    QCOMPARE(samplefile::binsOf(menu, 0),
             (QList<int>{0, 0, 12, 0, 12, 0, 0, 12, 0, 12, 0, 0, 0, 0, 12, 0, 12, 0, 0, 12}));
}

void TestOldMenus::faults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const auto add = [](const QString &message, const QByteArray &bytes) {
        QTest::newRow(qPrintable(message)) << bytes << message;
    };
    const auto with = [](auto change) {
        qhx::File file = qhx::sample();
        change(file);
        return file.bytes();
    };
    add(u"Invalid file header size!"_s, {});
    add(u"Invalid file header CRC!"_s, with([](qhx::File &file) { file.brokenChecksums = {0}; }));
    add(u"Unsupported file revision!"_s, with([](qhx::File &file) { file.revision = 6; }));
    add(u"Invalid products count!"_s, with([](qhx::File &file) { file.count = 101; }));
    add(u"Invalid configuration size!"_s, with([](qhx::File &file) { file.configurationOffset = 5000; }));
    add(u"Invalid configuration CRC!"_s, with([](qhx::File &file) { file.brokenChecksums = {1}; }));
    add(u"Invalid product size!"_s, with([](qhx::File &file) { file.entriesOffset = 0xFFFFFFFF; }));
    add(u"Invalid product CRC!"_s, with([](qhx::File &file) { file.brokenChecksums = {4}; }));
    add(u"Invalid daypart size!"_s, qhx::sample().bytes().chopped(1));
    add(u"Invalid daypart CRC!"_s, with([](qhx::File &file) { file.brokenChecksums = {6}; }));
}

void TestOldMenus::faults()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Program program;
    program.folder().make(u"old.qhx"_s, bytes);
    program.expectOpenDialog(u"old.qhx"_s);
    program.answers().expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    program.openNow();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(!program.area().findChild<MenuFile *>());
    QCOMPARE(program.content(u"old.qhx"_s), bytes);
}

void TestOldMenus::fileThatIsNotThere()
{
    const TestFolder folder;
    const QString path = folder.path(u"missing.qhx"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    const MenuFile editor(path);
    QVERIFY(!editor.isMenuValid());
}

// Its members are eight ids, the unused ones 0, and its default member may be none of them.
void TestOldMenus::groupOfAnOldMenuCanBeEdited()
{
    qhx::File file = qhx::sample();
    file.entries[2].defaultIndex = 255;
    const TestFolder folder;
    MenuFile editor(folder.make(u"old.qhx"_s, file.bytes()));
    ui::show(editor);
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    ModalAnswers answers;
    answers.expect<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    ui::doubleClickRow(ui::get<QListWidget>(editor, "listWidgetGroups"), 0);
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.getMenuGroups().constFirst()->get_productList(), (QList<int>{300, 12, 0, 0, 0, 0, 0, 0}));
}

QTEST_MAIN(TestOldMenus)
#include "tst_oldmenus.moc"
