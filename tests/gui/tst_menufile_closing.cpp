// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>

#include "holding/menufile.h"
#include "tests/gui/closing.h"
#include "tests/support/samplefile.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace closing;

namespace {

QByteArray twoProducts()
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2})};
    return menu.bytes();
}

bool isInMode(const QWidget &editor, bool removing)
{
    if (removing)
        return ui::get<QPushButton>(editor, "btnDaypartRemove").isVisible();
    return ui::get<QPushButton>(editor, "btnSelectMultiProduct").text() == "Cancel Selection"_L1;
}

// Marks the first bin to be cleared, or the first product to be deleted.
void enterMode(Program &program, bool removing)
{
    ui::activate(program.window());
    const QWidget &editor = *program.subWindow()->widget();
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(removing ? 2 : 0);
    QCoreApplication::processEvents(); // what still moves the focus would end a press
    if (removing) {
        auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect0_0");
        QTest::mousePress(&bin, Qt::LeftButton);
        REQUIRE_SOON(isInMode(editor, removing));
        QTest::mouseRelease(&bin, Qt::LeftButton);
    } else {
        ui::click(editor, "btnSelectMultiProduct");
        ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    }
    REQUIRE(isInMode(editor, removing));
}

} // namespace

/// Closing a holding-cabinet menu, beyond what is so in every line.
class TestMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void modesDoNotKeepItOpen_data();
    void modesDoNotKeepItOpen();
    void titlesNameTheFile();
    void editorWithoutSubWindowAsksToo();
    void onlyASaveInPlaceLeavesTheEditorToItsOwner_data();
    void onlyASaveInPlaceLeavesTheEditorToItsOwner();
};

void TestMenuFileClosing::modesDoNotKeepItOpen_data()
{
    QTest::addColumn<bool>("removing"); // else choosing products
    QTest::newRow("multiple selection") << false;
    QTest::newRow("removal mode") << true;
}

void TestMenuFileClosing::modesDoNotKeepItOpen()
{
    QFETCH(const bool, removing);
    Program program;
    program.open(u"menu.json"_s, twoProducts());
    program.save();
    const QByteArray saved = program.content(u"menu.json"_s);
    const QPointer<QWidget> closed = editor(program);
    enterMode(program, removing);
    close(program, QMessageBox::Cancel, Way::CtrlW); // Escape would leave the mode first
    requireOpen(program, closed);
    QVERIFY(isInMode(*closed, removing));
    close(program, QMessageBox::Yes, Way::CtrlW);
    requireGone(program, closed);
    QCOMPARE(program.content(u"menu.json"_s), saved); // what was only marked has not been deleted
}

void TestMenuFileClosing::titlesNameTheFile()
{
    Program program;
    program.open(u"My menu.v2.json"_s, twoProducts());
    QCOMPARE(program.editor<MenuFile>()->windowTitle(), u"Menu File - My menu.v2.json"_s);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - My menu.v2.json"_s);
    program.newMenu(Line::Holding);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - "_s);
    program.expectSaveDialog(Line::Holding, Asking::Save, program.path(u"new.json"_s));
    program.save();
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - new.json"_s);
}

void TestMenuFileClosing::editorWithoutSubWindowAsksToo()
{
    const TestFolder folder;
    MenuFile editor(folder.make(u"menu.json"_s, twoProducts()));
    ui::show(editor);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    QTest::keyClick(&editor, Qt::Key_Escape);
    QVERIFY(answers.allAnswered());
    QVERIFY(editor.isVisible());
}

void TestMenuFileClosing::onlyASaveInPlaceLeavesTheEditorToItsOwner_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("isLeft");
    QTest::newRow("Yes") << QMessageBox::Yes << true;
    QTest::newRow("No") << QMessageBox::No << false;
}

void TestMenuFileClosing::onlyASaveInPlaceLeavesTheEditorToItsOwner()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const bool, isLeft);
    const TestFolder folder;
    const QPointer<MenuFile> editor(new MenuFile(folder.make(u"menu.json"_s, twoProducts())));
    ui::show(*editor);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), answer);
    QTest::keyClick(editor.data(), Qt::Key_Escape);
    QVERIFY(!editor->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(!editor.isNull(), isLeft);
    delete editor;
}

QTEST_MAIN(TestMenuFileClosing)
#include "tst_menufile_closing.moc"
