// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QFile>
#include <QJsonDocument>
#include <QRadioButton>

#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/support/hardship.h"
#include "tests/support/languages.h"
#include "tests/support/program.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QString jsonFilter = u"JSON Menu Files (*.json)"_s;

samplefile::Menu fullMenu()
{
    samplefile::Menu menu;
    menu.header =
        samplefile::headerWithAllSwitches({{u"cabinetModel"_s, u"KTR23"_s}, {u"temperatureUnit"_s, 1}});
    QJsonObject names = samplefile::names(u"Bacon"_s);
    names.insert(u"deu"_s, u"Speck – geräuchert"_s);
    menu.products = {
        samplefile::product(1, u"Bacon"_s, {{u"productName"_s, names}, {u"productLocked"_s, true}}),
        samplefile::product(2, u"Chili"_s, {{u"timerColor"_s, u"#123456"_s}})};
    menu.groups = {samplefile::group(3, u"Meats"_s, {2, 99, 1}, {{u"defaultProd"_s, 7}})};
    QJsonObject unused = samplefile::daypart(u"Evening"_s, {3, 2, 1, 0, 99, 0, 0, 0});
    unused.insert(u"inUse"_s, false);
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2, 3, 0, 0, 0, 1, 0}), unused};
    return menu;
}

samplefile::Menu menuOfUnknownCabinet()
{
    samplefile::Menu menu = fullMenu();
    menu.header.remove(u"cabinetModel"_s);
    menu.header.remove(u"cabinetType"_s);
    return menu;
}

QByteArray without(const QString &part, const QString &key)
{
    QJsonObject root = fullMenu().root();
    if (part.isEmpty()) {
        root.remove(key);
    } else {
        QJsonObject object = root.value(part).toObject();
        object.remove(key);
        root.insert(part, object);
    }
    return QJsonDocument(root).toJson();
}

QByteArray with(const QString &key, const QJsonValue &value)
{
    QJsonObject root = fullMenu().root();
    QJsonObject menu = root.value(u"menu"_s).toObject();
    menu.insert(key, value);
    root.insert(u"menu"_s, menu);
    return QJsonDocument(root).toJson();
}

QByteArray withDayparts(int count)
{
    QJsonArray layout;
    for (int i = 0; i < count; ++i)
        layout.append(samplefile::daypart(u"Part %1"_s.arg(i), {1}));
    return with(u"layout"_s, layout);
}

QJsonObject rootOf(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(path)).object();
}

} // namespace

class TestMenuFileFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void brokenFileIsRefused_data();
    void brokenFileIsRefused();
    void unreadableFileIsRefused_data();
    void unreadableFileIsRefused();
    void unknownCabinetIsAskedFor();
    void unknownCabinetCanBeGivenUp();
    void laterFaultAfterAChosenCabinet();
    void savedMenuReadsTheSame();
    void emptyMenusSurvive_data();
    void emptyMenusSurvive();
    void saveWithoutAPathSaysSo();
    void saveAsAsksFromTheCurrentPath();
    void cancelledSaveAsChangesNothing();
    void failedSaveKeepsTheGoodFile();
    void menuThatWouldNotOpenAgainIsNotWritten();
    void pathAndTitleComeBeforeTheWrite_data();
    void pathAndTitleComeBeforeTheWrite();
    void namesGoThroughTheSlots();
};

void TestMenuFileFiles::brokenFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QString corrupted = u"File format is corrupted!"_s;
    const QString header = u"File header read failed"_s;
    const QString menu = u"Menu is empty!"_s;
    const QString products = u"Products list read failed!"_s;
    const QString groups = u"Groups list read failed!"_s;
    const QString dayparts = u"Dayparts read failed!"_s;
    QTest::newRow("empty") << QByteArray() << corrupted;
    QTest::newRow("text") << QByteArray("menu") << corrupted;
    QTest::newRow("array") << QByteArray("[1, 2]") << corrupted;
    QTest::newRow("truncated") << fullMenu().bytes().chopped(3) << corrupted;
    QTest::newRow("empty object") << QByteArray("{}") << header;
    QTest::newRow("no header") << without({}, u"header"_s) << header;
    QTest::newRow("no menu") << without({}, u"menu"_s) << menu;
    QTest::newRow("no products") << without(u"menu"_s, u"products"_s) << products;
    QTest::newRow("products no array") << with(u"products"_s, QJsonObject()) << products;
    QTest::newRow("no groups") << without(u"menu"_s, u"productGroups"_s) << groups;
    QTest::newRow("groups no array") << with(u"productGroups"_s, 5) << groups;
    QTest::newRow("no layout") << without(u"menu"_s, u"layout"_s) << dayparts;
    QTest::newRow("layout no array") << with(u"layout"_s, u"x"_s) << dayparts;
    QTest::newRow("11 day parts") << withDayparts(11) << dayparts;
}

void TestMenuFileFiles::brokenFileIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Program program;
    const QString path = program.folder().make(u"broken.json"_s, bytes);
    program.expectOpenDialog(u"broken.json"_s);
    program.answers().expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    program.openNow();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
    QCOMPARE(contentOf(path), bytes);
}

void TestMenuFileFiles::unreadableFileIsRefused_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("missing") << u"missing.json"_s;
    QTest::newRow("folder") << u"."_s;
    QTest::newRow("too large") << u"large.json"_s;
}

void TestMenuFileFiles::unreadableFileIsRefused()
{
    QFETCH(QString, fileName);
    const TestFolder folder;
    QFile large(folder.path(u"large.json"_s));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(64LL * 1024 * 1024 + 1));
    large.close();
    const QString path = folder.path(fileName);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    const MenuFile editor(path);
    QVERIFY(answers.allAnswered());
    QVERIFY(!editor.isMenuValid());
}

void TestMenuFileFiles::unknownCabinetIsAskedFor()
{
    Program program;
    const QString path = program.folder().make(u"menu.json"_s, menuOfUnknownCabinet().bytes());
    program.expectOpenDialog(u"menu.json"_s);
    program.answers().expect<Configuration>([](Configuration &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QVERIFY(qobject_cast<MenuFile *>(dialog.parentWidget()));
        QCOMPARE(ui::get<QComboBox>(dialog, "comboUnitModel").currentText(), u"ZPV43"_s);
        QVERIFY(ui::get<QRadioButton>(dialog, "rbTempUnitF").isChecked());
        ui::choose(dialog, "comboUnitType", u"QHX"_s);
        ui::choose(dialog, "comboUnitModel", u"KTR24"_s);
        ui::click(dialog, "checkBoxFanSpeedEnabled");
        ui::click(dialog, "btnAccept");
    });
    program.openNow();
    auto *editor = program.editor<MenuFile>();
    QVERIFY(editor);
    QCOMPARE(editor->windowTitle(), u"Menu File - menu.json"_s);
    QCOMPARE(editor->getCabinetModel(), u"KTR24"_s);
    QCOMPARE(editor->getTemperatureUnit(), 0);
    QVERIFY(editor->getFanSpeedEnabled() && !editor->getProductIdEnabled());
    program.save();
    QCOMPARE(samplefile::binsOf(samplefile::menuOf(path), 0), (QList<int>{1, 2, 3, 0, 0, 0, 1, 0}));
}

void TestMenuFileFiles::unknownCabinetCanBeGivenUp()
{
    Program program;
    const QString path = program.folder().make(u"menu.json"_s, menuOfUnknownCabinet().bytes());
    program.expectOpenDialog(u"menu.json"_s);
    program.answers().expect<Configuration>(
        [](Configuration &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    program.answers().expectBox(ModalAnswers::fileFault(u"File read canceled. Unkown configuration!"_s),
                                QMessageBox::Ok);
    program.openNow();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
}

void TestMenuFileFiles::laterFaultAfterAChosenCabinet()
{
    const TestFolder folder;
    samplefile::Menu menu = menuOfUnknownCabinet();
    QJsonObject root = menu.root();
    root.remove(u"menu"_s);
    const QString path = folder.make(u"menu.json"_s, QJsonDocument(root).toJson());
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    answers.expectBox(ModalAnswers::fileFault(u"Menu is empty!"_s), QMessageBox::Ok);
    const MenuFile editor(path);
    QVERIFY(answers.allAnswered());
    QVERIFY(!editor.isMenuValid());
    QCOMPARE(editor.windowTitle(), u"Menu File - "_s); // since the cabinet is known
}

void TestMenuFileFiles::savedMenuReadsTheSame()
{
    Program program;
    program.open(u"menu.json"_s, fullMenu().bytes());
    const QString path = program.path(u"menu.json"_s);
    QVERIFY(QFile::remove(path));
    program.save();
    QCOMPARE(rootOf(path), fullMenu().root());
    const QByteArray first = contentOf(path);
    program.open(u"menu.json"_s);
    QVERIFY(QFile::remove(path));
    program.save();
    QCOMPARE(contentOf(path), first);
}

void TestMenuFileFiles::emptyMenusSurvive_data()
{
    QTest::addColumn<int>("dayparts");
    QTest::newRow("no day part") << 0;
    QTest::newRow("10 day parts") << 10;
}

void TestMenuFileFiles::emptyMenusSurvive()
{
    QFETCH(int, dayparts);
    samplefile::Menu menu;
    for (int i = 0; i < dayparts; ++i)
        menu.layout.append(samplefile::daypart(u"Part %1"_s.arg(i), {0, 0, 0, 0}));
    Program program;
    program.open(u"menu.json"_s, menu.bytes());
    const QString path = program.path(u"menu.json"_s);
    program.save();
    QCOMPARE(rootOf(path), menu.root());
    program.answers().expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    ui::click(*program.editor<MenuFile>(), "btnConfig");
    program.save();
    QCOMPARE(rootOf(path), menu.root());
}

void TestMenuFileFiles::saveWithoutAPathSaysSo()
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    MenuFile editor({});
    QVERIFY(!editor.save());
    QCOMPARE(editor.filePath(), QString());
}

void TestMenuFileFiles::saveAsAsksFromTheCurrentPath()
{
    const TestFolder folder;
    const QString path = folder.make(u"menu.json"_s, fullMenu().bytes());
    MenuFile editor(path);
    ui::show(editor);
    ModalAnswers answers;
    answers.expectFileDialog(u"Save As JSON Menu"_s, jsonFilter, folder.path(u"other.json"_s),
                             u"menu.json"_s);
    editor.saveAs();
    QCOMPARE(editor.filePath(), folder.path(u"other.json"_s));
    QCOMPARE(editor.windowTitle(), u"Menu File - other.json"_s);
    QCOMPARE(rootOf(folder.path(u"other.json"_s)), fullMenu().root());
}

void TestMenuFileFiles::cancelledSaveAsChangesNothing()
{
    const TestFolder folder;
    const QString path = folder.make(u"menu.json"_s, fullMenu().bytes());
    MenuFile editor(path);
    ui::show(editor);
    ModalAnswers answers;
    answers.expectFileDialog(u"Save As JSON Menu"_s, jsonFilter, {});
    editor.saveAs();
    QCOMPARE(editor.filePath(), path);
    QCOMPARE(editor.windowTitle(), u"Menu File - menu.json"_s);
}

void TestMenuFileFiles::failedSaveKeepsTheGoodFile()
{
    const QByteArray good = fullMenu().bytes();
    Program program;
    program.open(u"menu.json"_s, good);
    const QString path = program.path(u"menu.json"_s);
    program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    {
        const FileSizeLimit limit(1000);
        QVERIFY(limit.isActive());
        program.save();
    }
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(contentOf(path), good);
    QCOMPARE(program.menuCount(), 1);
    program.save(); // and it can be saved later on
    QCOMPARE(rootOf(path), fullMenu().root());
}

void TestMenuFileFiles::pathAndTitleComeBeforeTheWrite_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing folder") << u"/missing folder/menu.json"_s;
    QTest::newRow("folder") << u"/tmp"_s;
    QTest::newRow("full device") << u"/dev/full"_s;
}

// A member takes two bytes of this file and a whole line of what is written.
void TestMenuFileFiles::menuThatWouldNotOpenAgainIsNotWritten()
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s)};
    menu.groups = {samplefile::group(2, u"Many"_s, {1})};
    QByteArray bytes = QJsonDocument(menu.root()).toJson(QJsonDocument::Compact);
    QCOMPARE(bytes.count("\"products\":[1]"), 1);
    const QByteArray members = QByteArray(",2").repeated(3'200'000);
    bytes.replace("\"products\":[1]", QByteArray("\"products\":[1" + members + ']'));
    const TestFolder folder;
    const QString path = folder.make(u"menu.json"_s, bytes);
    MenuFile editor(path);
    QVERIFY(editor.isMenuValid());
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(!editor.save());
    QVERIFY(answers.allAnswered());
    QVERIFY(contentOf(path) == bytes);
    QCOMPARE(folder.names(), QStringList{u"menu.json"_s});
}

void TestMenuFileFiles::pathAndTitleComeBeforeTheWrite()
{
    QFETCH(QString, path);
    const TestFolder folder;
    MenuFile editor(folder.make(u"menu.json"_s, fullMenu().bytes()));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(!editor.writeToFile(path));
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.filePath(), path);
    QCOMPARE(editor.windowTitle(), u"Menu File - "_s + path.section(u'/', -1));
}

void TestMenuFileFiles::namesGoThroughTheSlots()
{
    const TestFolder folder;
    MenuFile editor(folder.make(u"menu.json"_s, fullMenu().bytes()));
    QCOMPARE(editor.setNameListToJson(inEveryLanguage(u"Ham"_s)), samplefile::names(u"Ham"_s));
    QCOMPARE(editor.readNameTranslationsFromJson(samplefile::names(u"Ham"_s)), inEveryLanguage(u"Ham"_s));
    QStringList onlyFirst = inEveryLanguage({});
    onlyFirst[0] = u"Ham"_s;
    QCOMPARE(editor.readNameTranslationsFromJson({{u"eng_USA"_s, u"Ham"_s}}), onlyFirst);
}

QTEST_MAIN(TestMenuFileFiles)
#include "tst_menufile_files.moc"
