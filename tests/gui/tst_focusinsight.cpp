// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>

#include "tests/gui/guidemenu.h"

using namespace Qt::StringLiterals;

namespace {

QScrollBar &across(Program &program)
{
    return *program.area().horizontalScrollBar();
}

QScrollBar &down(Program &program)
{
    return *program.area().verticalScrollBar();
}

// A menu whose editor is larger than the area of the main window.
QWidget &openLargeEditor(Program &program)
{
    samplefile::Menu menu = bins::menuOf(u"KTR82"_s, {});
    for (int id = 6; id <= 40; ++id)
        menu.products.append(samplefile::product(id, u"Product %1"_s.arg(id)));
    program.open(u"menu.json"_s, menu.bytes());
    program.window().resize(600, 400);
    REQUIRE_SOON(across(program).maximum() > 0 && down(program).maximum() > 0);
    return *program.subWindow()->widget();
}

} // namespace

/// The area of the main window follows the keyboard, and the keyboard only.
class TestFocusInSight : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyStopOfTheTabKey_data();
    void everyStopOfTheTabKey();
    void everyRow();
    void scrollsNoFurtherThanNeeded();
    void clickIsNotCarriedAway();
};

void TestFocusInSight::everyStopOfTheTabKey_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : {u"Products"_s, u"Groups"_s, u"Day Parts"_s})
        QTest::newRow(qPrintable(page)) << page;
}

// What has the focus is looked at by each key press.
void TestFocusInSight::everyStopOfTheTabKey()
{
    QFETCH(const QString, page);
    Program program;
    program.window().setMinimumSize(300, 200);
    openLargeEditor(program);
    keyboard::showPage(page);
    keyboard::pressOften(Qt::Key_Tab, 20);
    keyboard::pressOften(Qt::Key_Backtab, 20);
    if (page != u"Day Parts"_s)
        return;
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up})
        keyboard::pressOften(key, 7);
}

void TestFocusInSight::everyRow()
{
    Program program;
    program.window().setMinimumSize(300, 200);
    openLargeEditor(program);
    keyboard::tabTo(u"listWidgetProducts"_s);
    keyboard::press(Qt::Key_Home);
    keyboard::pressOften(Qt::Key_Down, 38);
    QVERIFY(down(program).value() > 0);
    keyboard::press(Qt::Key_Home);
    keyboard::press(Qt::Key_End);
}

void TestFocusInSight::scrollsNoFurtherThanNeeded()
{
    Program program;
    program.window().setMinimumSize(300, 200);
    openLargeEditor(program);
    keyboard::showPage(u"Day Parts"_s);
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    const int before = down(program).value();
    for (int row = 1; row < 8 && down(program).value() == before; ++row)
        keyboard::press(Qt::Key_Down);
    QVERIFY(down(program).value() > before);
    QVERIFY(down(program).value() < down(program).maximum());
    const QWidget &bin = *QApplication::focusWidget();
    const QWidget &area = *program.area().viewport();
    QCOMPARE(bin.mapTo(&area, QPoint(0, bin.height())).y(), area.height());
}

// A bin of which half is seen.
void TestFocusInSight::clickIsNotCarriedAway()
{
    Program program;
    program.window().setMinimumSize(300, 200);
    QWidget &editor = openLargeEditor(program);
    keyboard::showPage(u"Day Parts"_s);
    auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect5_0");
    const QWidget &area = *program.area().viewport();
    down(program).setValue(down(program).value() + bin.mapTo(&area, bin.rect().center()).y() - area.height());
    const int before = down(program).value();
    const QPoint point = bin.mapTo(&program.window(), QPoint(bin.width() / 2, 2));
    QTest::mousePress(program.window().windowHandle(), Qt::LeftButton, {}, point);
    QVERIFY(bin.hasFocus());
    QCoreApplication::processEvents();
    QCOMPARE(down(program).value(), before);
    program.answers().expect<QDialog>([](QDialog &dialog) { dialog.reject(); });
    QTest::mouseRelease(program.window().windowHandle(), Qt::LeftButton, {}, point);
    QVERIFY(program.answers().allAnswered());
}

QTEST_MAIN(TestFocusInSight)
#include "tst_focusinsight.moc"
