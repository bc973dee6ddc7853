// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>

#include "app/aboutapp.h"
#include "app/selectproductline.h"
#include "tests/gui/changemenu.h"
#include "tests/support/program.h"
#include "tests/support/slotlist.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace changemenu;

/// The main window itself: form, menus, sub-windows and the about box.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void windowIsAsDesigned();
    void documentAreaIsAsDesigned();
    void menusAreInOrder();
    void thereAreNoShortcuts();
    void mnemonicsWork();
    void slotsAreInOrder();
    void savingNeedsAnActiveMenu();
    void minimisedMenuCanBeSaved();
    void nothingIsSavedWithoutAnActiveMenu();
    void subWindowIsOfFixedSize();
    void editorIsVisibleOrTheAreaScrolls();
    void editorIsVisibleInALargeWindow();
    void foreignSubWindowIsLeftAlone();
    void aboutBoxTellsNameAndVersion();
};

void TestMainWindow::windowIsAsDesigned()
{
    const MainWindow window;
    QCOMPARE(window.objectName(), u"MainWindow"_s);
    QCOMPARE(window.windowTitle(), u"Varno Plexora"_s);
    QCOMPARE(window.size(), QSize(800, 600));
    QCOMPARE(window.minimumSize(), QSize(800, 600));
    QCOMPARE(window.locale(), QLocale(QLocale::English, QLocale::UnitedStates));
    for (const char *name : {"mdiArea", "statusbar", "menubar", "menuFile", "menuHelp"})
        QVERIFY2(window.findChild<QWidget *>(QString::fromLatin1(name)), name);
    const QIcon icon = window.windowIcon();
    QVERIFY(icon.availableSizes().contains(QSize(16, 16)));
    QVERIFY(icon.availableSizes().contains(QSize(128, 128)));
}

void TestMainWindow::documentAreaIsAsDesigned()
{
    const MainWindow window;
    const auto &area = ui::get<QMdiArea>(window, "mdiArea");
    QCOMPARE(window.centralWidget(), &area);
    QVERIFY(!area.autoFillBackground());
    QCOMPARE(area.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(area.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(area.background(), QBrush(QColor(0xa0, 0xa0, 0xa0), Qt::SolidPattern));
    QCOMPARE(area.viewMode(), QMdiArea::SubWindowView);
    QVERIFY(!area.documentMode());
    QVERIFY(area.tabsClosable());
    QVERIFY(area.tabsMovable());
}

namespace {

QStringList entriesOf(const QMenu &menu)
{
    QStringList entries;
    for (const QAction *action : menu.actions())
        entries.append(action->isSeparator() ? u"-"_s : action->objectName() + u": "_s + action->text());
    return entries;
}

} // namespace

void TestMainWindow::menusAreInOrder()
{
    const MainWindow window;
    QStringList titles;
    for (const QAction *action : window.menuBar()->actions())
        titles.append(action->text());
    QCOMPARE(titles, QStringList({u"&File"_s, u"&Help"_s}));
    QCOMPARE(entriesOf(ui::get<QMenu>(window, "menuFile")),
             QStringList({u"actionNew: &New"_s, u"actionOpen: &Open"_s, u"action_Save: &Save"_s,
                          u"actionSaveAs: Save &As"_s, u"-"_s, u"actionExit: E&xit"_s}));
    QCOMPARE(entriesOf(ui::get<QMenu>(window, "menuHelp")), QStringList({u"actionAbout: &About"_s}));
}

void TestMainWindow::thereAreNoShortcuts()
{
    const MainWindow window;
    for (const QAction *action : window.findChildren<QAction *>())
        QVERIFY2(action->shortcut().isEmpty(), qPrintable(action->text()));
    QVERIFY(window.findChildren<QShortcut *>().isEmpty());
}

void TestMainWindow::mnemonicsWork()
{
    Program program;
    MainWindow &window = program.window();
    ModalAnswers &answers = program.answers();
    answers.expect<AboutApp>([](AboutApp &box) { ui::click(box, "btnAccept"); });
    QTest::keyClick(&window, Qt::Key_H, Qt::AltModifier);
    auto &help = ui::get<QMenu>(window, "menuHelp");
    QVERIFY(help.isVisible());
    QTest::keyClick(&help, Qt::Key_A);
    QVERIFY(answers.allAnswered());
}

void TestMainWindow::slotsAreInOrder()
{
    QCOMPARE(ownSlots(MainWindow::staticMetaObject),
             QStringList({u"updateMenuItems()"_s, u"closeEvent(QCloseEvent* event)"_s,
                          u"on_actionAbout_triggered()"_s, u"on_actionExit_triggered()"_s,
                          u"on_actionNew_triggered()"_s, u"on_actionOpen_triggered()"_s,
                          u"on_action_Save_triggered()"_s, u"on_actionSaveAs_triggered()"_s}));
    QCOMPARE(ownSlots(SelectProductLine::staticMetaObject),
             QStringList({u"on_btnCancel_clicked()"_s, u"on_btnAccept_clicked()"_s}));
    QCOMPARE(ownSlots(AboutApp::staticMetaObject), QStringList({u"on_btnAccept_clicked()"_s}));
}

namespace {

/// Opens the File menu and tells which of its entries can be chosen.
QStringList enabledEntries(MainWindow &window)
{
    auto &menu = ui::get<QMenu>(window, "menuFile");
    menu.popup(window.mapToGlobal(QPoint(0, 0)));
    QStringList names;
    for (const QAction *action : menu.actions()) {
        if (action->isEnabled() && !action->isSeparator())
            names.append(action->objectName());
    }
    menu.close();
    return names;
}

void closeUnsaved(Program &program, QMdiSubWindow &subWindow)
{
    program.expectSaveQuestion(QMessageBox::No);
    subWindow.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

const QStringList allEntries{u"actionNew"_s, u"actionOpen"_s, u"action_Save"_s, u"actionSaveAs"_s,
                             u"actionExit"_s};
const QStringList entriesWithoutSaving{u"actionNew"_s, u"actionOpen"_s, u"actionExit"_s};

} // namespace

void TestMainWindow::savingNeedsAnActiveMenu()
{
    Program program;
    auto &area = program.area();
    QCOMPARE(enabledEntries(program.window()), entriesWithoutSaving);
    QMdiSubWindow *first = openSample(program, u"first.json"_s);
    QCOMPARE(enabledEntries(program.window()), allEntries);
    QMdiSubWindow *second = openSample(program, u"second.json"_s);
    QCOMPARE(enabledEntries(program.window()), allEntries);
    area.setActiveSubWindow(nullptr);
    QCOMPARE(enabledEntries(program.window()), entriesWithoutSaving);
    area.setActiveSubWindow(first);
    QCOMPARE(enabledEntries(program.window()), allEntries);
    for (QMdiSubWindow *subWindow : {first, second})
        closeUnsaved(program, *subWindow);
    QVERIFY(area.subWindowList().isEmpty());
    QCOMPARE(enabledEntries(program.window()), entriesWithoutSaving);
}

void TestMainWindow::minimisedMenuCanBeSaved()
{
    Program program;
    QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    subWindow->showMinimized();
    QCOMPARE(enabledEntries(program.window()), allEntries);
    QVERIFY(QFile::remove(program.path(u"menu.json"_s)));
    program.save();
    QVERIFY(QFile::exists(program.path(u"menu.json"_s)));
}

void TestMainWindow::nothingIsSavedWithoutAnActiveMenu()
{
    Program program;
    openSample(program, u"menu.json"_s);
    program.area().setActiveSubWindow(nullptr);
    program.window().on_action_Save_triggered();
    program.window().on_actionSaveAs_triggered();
}

void TestMainWindow::subWindowIsOfFixedSize()
{
    Program program;
    QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    QCOMPARE(subWindow->objectName(), u"QhxMenuFile"_s);
    // A sub-window adds the title by itself. With a system menu it would have a close button.
    QCOMPARE(subWindow->windowFlags() & ~(Qt::WindowType_Mask | Qt::WindowTitleHint),
             Qt::CustomizeWindowHint | Qt::WindowMinimizeButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(subWindow->isVisible());
    QWidget *editor = subWindow->widget();
    QCOMPARE(editor->minimumSize(), editor->maximumSize());
    QVERIFY(subWindow->contentsRect().contains(editor->geometry()));
    const QRect before = subWindow->geometry();
    const QPoint corner = subWindow->rect().bottomRight() - QPoint(1, 1);
    QTest::mouseMove(subWindow, corner);
    QTest::mousePress(subWindow, Qt::LeftButton, {}, corner);
    QTest::mouseMove(subWindow, corner - QPoint(80, 80));
    QTest::mouseRelease(subWindow, Qt::LeftButton, {}, corner - QPoint(80, 80));
    QCOMPARE(subWindow->size(), before.size());
}

namespace {

// Whether a stretch of the area is in view or can be scrolled to.
bool isReachable(int first, int last, int extent, const QScrollBar *bar)
{
    const bool visible = first >= 0 && last < extent;
    return visible || (bar->isVisible() && first >= bar->minimum() - bar->value() &&
                       last < extent + bar->maximum() - bar->value());
}

bool isReachable(const QMdiArea &area, const QRect &place)
{
    const QSize extent = area.viewport()->size();
    return isReachable(place.left(), place.right(), extent.width(), area.horizontalScrollBar()) &&
           isReachable(place.top(), place.bottom(), extent.height(), area.verticalScrollBar());
}

} // namespace

void TestMainWindow::editorIsVisibleOrTheAreaScrolls()
{
    Program program;
    const QMdiSubWindow *first = openSample(program, u"first.json"_s);
    const QMdiSubWindow *second = openSample(program, u"second.json"_s);
    QCOMPARE(program.window().size(), QSize(800, 600));
    QTRY_VERIFY(isReachable(program.area(), first->geometry()));
    QTRY_VERIFY(isReachable(program.area(), second->geometry()));
}

void TestMainWindow::editorIsVisibleInALargeWindow()
{
    Program program;
    program.window().resize(1400, 1000);
    const QMdiSubWindow *first = openSample(program, u"first.json"_s);
    const QMdiSubWindow *second = openSample(program, u"second.json"_s);
    const QRect area = program.area().viewport()->rect();
    QVERIFY(area.contains(first->geometry()));
    QVERIFY(area.contains(second->geometry()));
    QVERIFY(!program.area().horizontalScrollBar()->isVisible());
    QVERIFY(!program.area().verticalScrollBar()->isVisible());
}

void TestMainWindow::foreignSubWindowIsLeftAlone()
{
    Program program;
    QMdiSubWindow *subWindow = program.area().addSubWindow(new QWidget);
    subWindow->setObjectName(u"QhxMenuFile"_s);
    subWindow->show();
    QCOMPARE(program.area().activeSubWindow(), subWindow);
    program.window().on_action_Save_triggered();
    program.window().on_actionSaveAs_triggered();
}

void TestMainWindow::aboutBoxTellsNameAndVersion()
{
    Program program;
    MainWindow &window = program.window();
    ModalAnswers &answers = program.answers();
    answers.expect<AboutApp>([&window](AboutApp &box) {
        QCOMPARE(box.windowTitle(), u"About..."_s);
        QCOMPARE(box.parentWidget(), &window);
        QCOMPARE(box.minimumSize(), box.maximumSize());
        const auto &name = ui::get<QLabel>(box, "lblAppName");
        QCOMPARE(name.text(), u"Varno Holding Plexora"_s);
        QCOMPARE(name.font().pointSize(), 16);
        QVERIFY(name.font().bold());
        QCOMPARE(name.alignment(), Qt::AlignCenter);
        QCOMPARE(ui::get<QLabel>(box, "lblVersion").text(), u"Version 0.7.1"_s);
        QCOMPARE(ui::get<QPushButton>(box, "btnAccept").text(), u"OK"_s);
        ui::click(box, "btnAccept");
        QCOMPARE(box.result(), 0);
    });
    ui::clickMenu(window, "menuHelp", "actionAbout");
    QVERIFY(!window.findChild<AboutApp *>());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
