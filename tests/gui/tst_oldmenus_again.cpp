// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QListWidget>

#include "holding/menufile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QStringList namesIn(const MenuFile &editor)
{
    return ui::textsOf(ui::get<QListWidget>(editor, "listWidgetProducts"));
}

QByteArray openMenu()
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1})};
    return menu.bytes();
}

} // namespace

/// An old menu that is read into an editor which already shows one.
class TestOldMenusAgain : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void entriesAreAddedAndShown();
    void errorChangesNothing_data();
    void errorChangesNothing();
};

void TestOldMenusAgain::entriesAreAddedAndShown()
{
    const TestFolder folder;
    folder.make(u"menu.json"_s, openMenu());
    qhx::File old = qhx::sample();
    old.entries = {{.id = 7, .name = "Ham"}};
    folder.make(u"old.qhx"_s, old.bytes());
    MenuFile editor(folder.path(u"menu.json"_s));
    ui::show(editor);
    QVERIFY(editor.importQhxMenuFile(folder.path(u"old.qhx"_s)));
    QCOMPARE(namesIn(editor), (QStringList{u"  1 Bacon"_s, u"  2 Ham"_s}));
    QCOMPARE(editor.getCabinetType(), u"QHX"_s);
    QCOMPARE(ui::textsOf(ui::get<QComboBox>(editor, "comboDaypartSelect")),
             (QStringList{u"Morning"_s, u"LUNCH/DINNER"_s}));
    QVERIFY(editor.writeToFile(folder.path(u"saved.json"_s)));
    const QJsonObject saved = samplefile::menuOf(folder.path(u"saved.json"_s));
    MenuFile alone(folder.path(u"old.qhx"_s));
    QVERIFY(alone.writeToFile(folder.path(u"alone.json"_s)));
    const QJsonObject imported = samplefile::menuOf(folder.path(u"alone.json"_s));
    for (int daypart = 0; daypart < 2; ++daypart) {
        QVERIFY(saved.value(u"layout"_s).toArray().at(daypart).toObject().value(u"inUse"_s).toBool());
        QCOMPARE(samplefile::binsOf(saved, daypart), samplefile::binsOf(imported, daypart));
    }
}

void TestOldMenusAgain::errorChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const auto broken = [](int record) {
        qhx::File file = qhx::sample();
        file.brokenChecksums = {record};
        return file.bytes();
    };
    const qsizetype entries = qhx::sample().entries.size();
    QTest::newRow("header") << broken(0) << u"Invalid file header CRC!"_s;
    QTest::newRow("configuration") << broken(1) << u"Invalid configuration CRC!"_s;
    QTest::newRow("last entry") << broken(int(entries) + 1) << u"Invalid product CRC!"_s;
    QTest::newRow("second day part") << broken(int(entries) + 3) << u"Invalid daypart CRC!"_s;
}

void TestOldMenusAgain::errorChangesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    const TestFolder folder;
    folder.make(u"menu.json"_s, openMenu());
    folder.make(u"old.qhx"_s, bytes);
    MenuFile editor(folder.path(u"menu.json"_s));
    ui::show(editor);
    QVERIFY(editor.writeToFile(folder.path(u"before.json"_s)));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    QVERIFY(!editor.importQhxMenuFile(folder.path(u"old.qhx"_s)));
    QVERIFY(answers.allAnswered());
    QVERIFY(editor.isMenuValid());
    QCOMPARE(namesIn(editor), QStringList{u"  1 Bacon"_s});
    QVERIFY(editor.writeToFile(folder.path(u"after.json"_s)));
    QCOMPARE(folder.content(u"after.json"_s), folder.content(u"before.json"_s));
}

QTEST_MAIN(TestOldMenusAgain)
#include "tst_oldmenus_again.moc"
