// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QListWidget>

#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/support/program.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

samplefile::Menu menuOf(int products)
{
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches();
    for (int id = 1; id <= products; ++id)
        menu.products.append(samplefile::product(id, u"Product %1"_s.arg(id)));
    menu.groups = {samplefile::group(90, u"Meats"_s, {1})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 90, 0, 0})};
    return menu;
}

} // namespace

class TestMenuFileOpening : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void configurationComesUpOverTheWindow_data();
    void configurationComesUpOverTheWindow();
    void opensOnTheFirstTab_data() { addLineRows(); }
    void opensOnTheFirstTab();
    void readAgainShowsTheNewMenu();
    void readAgainWithAFaultKeepsTheMenu();
};

void TestMenuFileOpening::configurationComesUpOverTheWindow_data()
{
    QTest::addColumn<bool>("unknownCabinet");
    QTest::newRow("new menu") << false;
    QTest::newRow("file of an unknown cabinet") << true;
}

void TestMenuFileOpening::configurationComesUpOverTheWindow()
{
    QFETCH(bool, unknownCabinet);
    samplefile::Menu menu = menuOf(1);
    menu.header.remove(u"cabinetModel"_s);
    Program program;
    program.folder().make(u"menu.json"_s, menu.bytes());
    MainWindow &window = program.window();
    window.setGeometry(300, 350, 480, 400); // far from where an editor that is not shown has its middle
    ModalAnswers &answers = program.answers();
    if (unknownCabinet)
        program.expectOpenDialog(u"menu.json"_s);
    else
        answers.expect<SelectProductLine>([](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
    answers.expect<Configuration>([&window](Configuration &dialog) {
        const QPoint away = dialog.frameGeometry().center() - window.frameGeometry().center();
        QVERIFY2(away.manhattanLength() < 20, qPrintable(u"%1, %2"_s.arg(away.x()).arg(away.y())));
        QVERIFY(qobject_cast<MenuFile *>(dialog.parentWidget()));
        ui::click(dialog, "btnCancel");
    });
    if (unknownCabinet)
        answers.expectBox(ModalAnswers::fileFault(u"File read canceled. Unkown configuration!"_s),
                          QMessageBox::Ok);
    program.choose(unknownCabinet ? "actionOpen" : "actionNew");
    QVERIFY(answers.allAnswered());
}

void TestMenuFileOpening::opensOnTheFirstTab()
{
    QFETCH(const Line, line);
    Program program;
    for (const LineFile &file : namesOf(line).files) {
        const QMdiSubWindow *opened = program.open(u"menu."_s + file.suffix, file.sample());
        for (const QMdiSubWindow *subWindow :
             {opened, static_cast<const QMdiSubWindow *>(program.newMenu(line))}) {
            QVERIFY(subWindow);
            const auto *tabs = subWindow->findChild<QTabWidget *>();
            QCOMPARE(tabs == nullptr, line == Line::Lanes);
            if (!tabs)
                continue;
            QCOMPARE(tabs->currentIndex(), 0);
            QVERIFY(ui::get<QListWidget>(*subWindow, "listWidgetProducts").isVisible());
        }
    }
}

void TestMenuFileOpening::readAgainShowsTheNewMenu()
{
    const TestFolder folder;
    const QString path = folder.make(u"menu.json"_s, menuOf(5).bytes());
    MenuFile editor(path);
    ui::show(editor);
    auto &list = ui::get<QListWidget>(editor, "listWidgetProducts");
    ui::clickRow(list, 4);
    folder.make(u"menu.json"_s, menuOf(2).bytes());
    QVERIFY(editor.readMenuFile());
    QCOMPARE(editor.getMenuProducts().size(), 2);
    QCOMPARE(editor.getMenuGroups().size(), 1);
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.currentRow(), -1);
    ui::clickRow(list, 1);
    QVERIFY(editor.writeToFile(path));
    QCOMPARE(samplefile::menuOf(path), menuOf(2).root().value(u"menu"_s).toObject());
}

void TestMenuFileOpening::readAgainWithAFaultKeepsTheMenu()
{
    const TestFolder folder;
    const QString path = folder.make(u"menu.json"_s, menuOf(5).bytes());
    MenuFile editor(path);
    QVERIFY(QFile::remove(path));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    QVERIFY(!editor.readMenuFile());
    QVERIFY(answers.allAnswered());
    QVERIFY(!editor.isMenuValid());
    QCOMPARE(editor.getMenuProducts().size(), 5);
}

QTEST_MAIN(TestMenuFileOpening)
#include "tst_menufile_opening.moc"
