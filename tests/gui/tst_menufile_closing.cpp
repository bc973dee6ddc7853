// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>

#include "tests/gui/programwindow.h"
#include "tests/support/samplefile.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

enum class Way { Escape, CtrlW, CtrlF4, SubWindow };

const QString jsonFilter = u"JSON Menu Files (*.json)"_s;

samplefile::Menu twoProducts()
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2})};
    return menu;
}

void close(ProgramWindow &program, Way way)
{
    program.activate();
    MenuFile *editor = program.editor();
    switch (way) {
    case Way::Escape:
        QTest::keyClick(editor, Qt::Key_Escape);
        break;
    case Way::CtrlW:
        QTest::keyClick(editor, Qt::Key_W, Qt::ControlModifier);
        break;
    case Way::CtrlF4:
        QTest::keyClick(editor, Qt::Key_F4, Qt::ControlModifier);
        break;
    case Way::SubWindow:
        program.subWindow()->close();
        break;
    }
}

bool isInMode(const MenuFile &editor, bool removing)
{
    if (removing)
        return ui::get<QPushButton>(editor, "btnDaypartRemove").isVisible();
    return ui::get<QPushButton>(editor, "btnSelectMultiProduct").text() == "Cancel Selection"_L1;
}

// Marks the first bin to be cleared, or the first product to be deleted.
void enterMode(ProgramWindow &program, bool removing)
{
    program.activate();
    MenuFile &editor = *program.editor();
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(removing ? 2 : 0);
    QCoreApplication::processEvents(); // what still moves the focus would end a press
    if (removing) {
        auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect0_0");
        QTest::mousePress(&bin, Qt::LeftButton);
        QTRY_VERIFY(isInMode(editor, removing));
        QTest::mouseRelease(&bin, Qt::LeftButton);
    } else {
        ui::click(editor, "btnSelectMultiProduct");
        ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    }
    QVERIFY(isInMode(editor, removing));
}

// Something that only a save brings into the file.
void deleteFirstProduct(ProgramWindow &program, ModalAnswers &answers)
{
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::clickRow(ui::get<QListWidget>(*program.editor(), "listWidgetProducts"), 0);
    ui::click(*program.editor(), "btnDeleteProduct");
}

qsizetype savedProductCount(const QString &path)
{
    return samplefile::menuOf(path).value(u"products"_s).toArray().size();
}

void verifyGone(ProgramWindow &program, const QPointer<MenuFile> &editor)
{
    QTRY_COMPARE(program.menuCount(), 0);
    QTRY_VERIFY(!editor);
}

void verifyOpen(ProgramWindow &program, const QPointer<MenuFile> &editor)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(editor);
    QVERIFY(editor->isVisible());
    QCOMPARE(program.menuCount(), 1);
    QCOMPARE(program.editor(), editor.data());
}

} // namespace

Q_DECLARE_METATYPE(Way)

class TestMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyWayAsks_data();
    void everyWayAsks();
    void noDiscards();
    void yesSavesInPlace();
    void yesWithAFailedSaveClosesAllTheSame();
    void yesAsksForAName();
    void cancelledNameKeepsItOpen();
    void failedWriteUnderANameKeepsItOpen();
    void refusedClosingKeepsItOpen_data();
    void refusedClosingKeepsItOpen();
    void modesDoNotKeepItOpen_data();
    void modesDoNotKeepItOpen();
    void otherMenusStayOpen();
    void escapeInADialogClosesTheDialogOnly();
    void titlesNameTheFile();
    void editorWithoutSubWindowAsksToo();
    void onlyASaveInPlaceLeavesTheEditorToItsOwner_data();
    void onlyASaveInPlaceLeavesTheEditorToItsOwner();
};

void TestMenuFileClosing::everyWayAsks_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Escape") << Way::Escape;
    QTest::newRow("Ctrl+W") << Way::CtrlW;
    QTest::newRow("Ctrl+F4") << Way::CtrlF4;
    QTest::newRow("the sub-window itself") << Way::SubWindow;
}

void TestMenuFileClosing::everyWayAsks()
{
    QFETCH(Way, way);
    const samplefile::Folder folder;
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, folder.write(u"menu.json"_s, twoProducts().bytes()));
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(program, way);
    QVERIFY(answers.allAnswered());
    verifyOpen(program, editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(program, way);
    QVERIFY(answers.allAnswered());
    verifyGone(program, editor);
}

void TestMenuFileClosing::noDiscards()
{
    const samplefile::Folder folder;
    const QByteArray bytes = twoProducts().bytes();
    const QString path = folder.write(u"menu.json"_s, bytes);
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, path);
    deleteFirstProduct(program, answers);
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(program, Way::Escape);
    verifyGone(program, editor);
    QCOMPARE(samplefile::bytesOf(path), bytes);
}

void TestMenuFileClosing::yesSavesInPlace()
{
    const samplefile::Folder folder;
    const QString path = folder.write(u"menu.json"_s, twoProducts().bytes());
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, path);
    deleteFirstProduct(program, answers);
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(program, Way::Escape);
    verifyGone(program, editor);
    QCOMPARE(savedProductCount(path), 1);
}

void TestMenuFileClosing::yesWithAFailedSaveClosesAllTheSame()
{
    const samplefile::Folder folder;
    QVERIFY(QDir().mkdir(folder.path(u"gone"_s)));
    const QString path = folder.write(u"gone/menu.json"_s, twoProducts().bytes());
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, path);
    QVERIFY(QDir(folder.path(u"gone"_s)).removeRecursively());
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to create/open the file:"_s + path), QMessageBox::Ok);
    close(program, Way::Escape);
    QVERIFY(answers.allAnswered());
    verifyGone(program, editor);
}

void TestMenuFileClosing::yesAsksForAName()
{
    const samplefile::Folder folder;
    ProgramWindow program;
    ModalAnswers answers;
    program.newMenu(answers);
    const QPointer<MenuFile> editor = program.editor();
    QVERIFY(editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectFileDialog(u"Save JSON Menu"_s, jsonFilter, folder.path(u"typed"_s), u""_s);
    close(program, Way::Escape);
    verifyGone(program, editor);
    QCOMPARE(savedProductCount(folder.path(u"typed"_s)), 30); // the name is used as typed
}

void TestMenuFileClosing::cancelledNameKeepsItOpen()
{
    ProgramWindow program;
    ModalAnswers answers;
    program.newMenu(answers);
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectFileDialog(u"Save JSON Menu"_s, jsonFilter, {});
    close(program, Way::CtrlW);
    verifyOpen(program, editor);
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(editor->windowTitle(), u"Menu File - "_s);
}

void TestMenuFileClosing::failedWriteUnderANameKeepsItOpen()
{
    const samplefile::Folder folder;
    const QString path = folder.path(u"missing/menu.json"_s);
    ProgramWindow program;
    ModalAnswers answers;
    program.newMenu(answers);
    const QPointer<MenuFile> editor = program.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectFileDialog(u"Save JSON Menu"_s, jsonFilter, path);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to create/open the file:"_s + path), QMessageBox::Ok);
    close(program, Way::Escape);
    QVERIFY(answers.allAnswered());
    verifyOpen(program, editor);
}

void TestMenuFileClosing::refusedClosingKeepsItOpen_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape in the question") << true;
}

void TestMenuFileClosing::refusedClosingKeepsItOpen()
{
    QFETCH(bool, escape);
    ProgramWindow program;
    ModalAnswers answers;
    program.newMenu(answers);
    const QPointer<MenuFile> editor = program.editor();
    if (escape)
        answers.expectBoxEscaped(ModalAnswers::saveQuestion());
    else
        answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(program, Way::Escape);
    QVERIFY(answers.allAnswered());
    verifyOpen(program, editor);
}

void TestMenuFileClosing::modesDoNotKeepItOpen_data()
{
    QTest::addColumn<bool>("removing"); // else choosing products
    QTest::newRow("multiple selection") << false;
    QTest::newRow("removal mode") << true;
}

void TestMenuFileClosing::modesDoNotKeepItOpen()
{
    QFETCH(bool, removing);
    const samplefile::Folder folder;
    const QString path = folder.write(u"menu.json"_s, twoProducts().bytes());
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, path);
    program.save();
    const QByteArray saved = samplefile::bytesOf(path);
    const QPointer<MenuFile> editor = program.editor();
    enterMode(program, removing);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(program, Way::Escape);
    verifyOpen(program, editor);
    QVERIFY(isInMode(*editor, removing));
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(program, Way::Escape);
    verifyGone(program, editor);
    QCOMPARE(samplefile::bytesOf(path), saved); // what was only marked has not been deleted
}

void TestMenuFileClosing::otherMenusStayOpen()
{
    const samplefile::Folder folder;
    const QString path = folder.write(u"menu.json"_s, twoProducts().bytes());
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, path);
    const QPointer<MenuFile> first = program.editor();
    program.open(answers, path); // once more: a second editor
    const QPointer<MenuFile> second = program.editor();
    QCOMPARE(program.menuCount(), 2);
    QVERIFY(first != second);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(program, Way::Escape);
    QTRY_VERIFY(!second);
    verifyOpen(program, first);
}

void TestMenuFileClosing::escapeInADialogClosesTheDialogOnly()
{
    const samplefile::Folder folder;
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, folder.write(u"menu.json"_s, twoProducts().bytes()));
    const QPointer<MenuFile> editor = program.editor();
    for (const char *button : {"btnConfig", "btnAddProduct"}) {
        answers.expect<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        ui::click(*editor, button);
    }
    verifyOpen(program, editor);
}

void TestMenuFileClosing::titlesNameTheFile()
{
    const samplefile::Folder folder;
    ProgramWindow program;
    ModalAnswers answers;
    program.open(answers, folder.write(u"My menu.v2.json"_s, twoProducts().bytes()));
    QCOMPARE(program.editor()->windowTitle(), u"Menu File - My menu.v2.json"_s);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - My menu.v2.json"_s);
    program.newMenu(answers);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - "_s);
    answers.expectFileDialog(u"Save JSON Menu"_s, jsonFilter, folder.path(u"new.json"_s));
    program.save();
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - new.json"_s);
}

void TestMenuFileClosing::editorWithoutSubWindowAsksToo()
{
    const samplefile::Folder folder;
    MenuFile editor(folder.write(u"menu.json"_s, twoProducts().bytes()));
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
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, isLeft);
    const samplefile::Folder folder;
    const QPointer<MenuFile> editor(new MenuFile(folder.write(u"menu.json"_s, twoProducts().bytes())));
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
