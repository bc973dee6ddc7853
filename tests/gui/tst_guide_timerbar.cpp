// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QPushButton>

#include "tests/gui/guide.h"
#include "tests/gui/opentimerbar.h"
#include "timerbar/copybins.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "timerbar/timerbarproductedit.h"

using namespace Qt::StringLiterals;

namespace {

// The model with the most rows; its first bin is the left one of the bottom row.
cbr::Menu menuWith(const QList<int> &bins = {})
{
    cbr::Menu menu = baconHamChili(u"KTR42"_s);
    menu.dayparts[0] = bins;
    return menu;
}

void open(Guide &guide, const cbr::Menu &menu = menuWith())
{
    guide.open(u"menu.cbr"_s, menu.bytes());
}

QByteArray savedBytes(Guide &guide)
{
    return guide.saved(u"saved.cbr"_s).toHex(' ');
}

void expectPick(Guide &guide, const QString &shortName)
{
    guide.expect<TimerBarDaypartAssignItem>([shortName] {
        keyboard::find(u"listWidgetProducts"_s, shortName);
        keyboard::press(Qt::Key_Return);
    });
}

} // namespace

/// What the user guide tells of Timer Bar menus.
class TestGuideTimerBar : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void menuIsStarted();
    void cabinetIsChanged();
    void productIsAdded();
    void productIsEdited();
    void productsAreDuplicatedAndDeleted();
    void severalProductsAreDeleted();
    void wrongNameIsCorrected();
    void binsAreFilled();
    void binsAreEmptied();
    void emptyingIsCancelled();
    void binsAreCopied();
    void binPlanIsMade();
};

void TestGuideTimerBar::menuIsStarted()
{
    Guide guide;
    guide.expectChoice(Line::TimerBar);
    guide.expect<TimerBarConfig>([] {
        keyboard::choose(u"comboUnitModel"_s, u"KTR34"_s);
        keyboard::tabTo(u"rbTempUnitF"_s);
        keyboard::press(Qt::Key_Right);
        keyboard::pushButton(u"btnAccept"_s);
    });
    guide.newMenu();
    const QByteArray saved = guide.saved(u"menu.cbr"_s);
    QCOMPARE(saved.mid(6, 4).toHex(' '), QByteArray("03 04 01 21")); // rows, columns, °C, products
}

void TestGuideTimerBar::cabinetIsChanged()
{
    Guide guide;
    open(guide);
    guide.expect<TimerBarConfig>([] {
        keyboard::choose(u"comboUnitModel"_s, u"KTR22"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnConfig"_s);
    QCOMPARE(savedBytes(guide), hex(baconHamChili(u"KTR22"_s)));
}

// Below 155 °F the program gives notice.
void TestGuideTimerBar::productIsAdded()
{
    Guide guide;
    open(guide);
    guide.expect<TimerBarProductEdit>([] {
        keyboard::enter(u"txtProductName"_s, u"Cold Ham 2"_s);
        keyboard::enter(u"txtShortName"_s, u"HAM2"_s);
        keyboard::enter(u"numTempUpper"_s, u"150"_s);
        keyboard::enter(u"numTempLower"_s, u"145"_s);
        keyboard::enter(u"timeHoldTime"_s, u"0200"_s);
        keyboard::enter(u"timeWarningTime"_s, u"0010"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    guide.expectBox(
        u"Warning"_s,
        u"Temperature values less than 155°F are supported in cabinet IO software version 1.6.2 or "
        "newer"_s,
        QMessageBox::Ok);
    keyboard::pushButton(u"btnAddProduct"_s);
    cbr::Menu expected = menuWith();
    expected.products.append({.name = "Cold Ham 2",
                              .shortName = "HAM2",
                              .holdMinutes = 120,
                              .alertMinutes = 10,
                              .upper = 51,
                              .lower = 46});
    QCOMPARE(savedBytes(guide), hex(expected));
}

// It leaves the bins, and the program says so.
void TestGuideTimerBar::productIsEdited()
{
    Guide guide;
    open(guide, menuWith({0, 1}));
    keyboard::find(u"listWidgetProducts"_s, u"Ham"_s);
    guide.expect<TimerBarProductEdit>([] {
        keyboard::enter(u"numTempUpper"_s, u"200"_s);
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Warning"_s, u"Product has been removed from daypart(s) assignemnts"_s,
                    QMessageBox::Close);
    keyboard::press(Qt::Key_Return);
    cbr::Menu expected = menuWith({0});
    expected.products[1].upper = 101;
    QCOMPARE(savedBytes(guide), hex(expected));
}

void TestGuideTimerBar::productsAreDuplicatedAndDeleted()
{
    Guide guide;
    open(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Chili"_s);
    guide.expect<TimerBarProductEdit>([] {
        keyboard::enter(u"txtProductName"_s, u"More"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::pushButton(u"btnDuplicateProduct"_s);
    keyboard::find(u"listWidgetProducts"_s, u"Ham"_s);
    guide.expectBox(u"Delete"_s, u"Delete selected product?"_s, QMessageBox::Yes);
    keyboard::pushButton(u"btnDeleteProduct"_s);
    cbr::Menu expected = menuWith();
    expected.products[1] = expected.products[2];
    expected.products[2].name = "More";
    QCOMPARE(savedBytes(guide), hex(expected));
}

void TestGuideTimerBar::severalProductsAreDeleted()
{
    Guide guide;
    open(guide);
    const auto &button = guide.get<QPushButton>("btnSelectMultiProduct");
    for (const bool escaped : {true, false}) {
        keyboard::pushButton(u"btnSelectMultiProduct"_s);
        QCOMPARE(button.text(), u"Cancel Selection"_s);
        keyboard::tabTo(u"listWidgetProducts"_s);
        keyboard::press(Qt::Key_Home);
        keyboard::press(Qt::Key_Space);
        keyboard::press(Qt::Key_End);
        keyboard::press(Qt::Key_Space);
        if (escaped)
            keyboard::press(Qt::Key_Escape);
    }
    guide.expectBox(u"Delete"_s, u"Delete all selected products?"_s, QMessageBox::Yes);
    keyboard::pushButton(u"btnDeleteProduct"_s);
    cbr::Menu expected = menuWith();
    expected.products = {expected.products[1]};
    QCOMPARE(savedBytes(guide), hex(expected));
}

void TestGuideTimerBar::wrongNameIsCorrected()
{
    Guide guide;
    open(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Chili"_s);
    guide.expect<TimerBarProductEdit>([] {
        keyboard::enter(u"txtShortName"_s, u"C-I"_s);
        keyboard::enter(u"txtProductName"_s, u""_s);
        keyboard::press(Qt::Key_Return);
        keyboard::type(u"Chili"_s); // the empty name has the focus
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Error"_s, u"Product short name should be English characters or numbers only"_s,
                    QMessageBox::Close);
    guide.expectBox(u"Error"_s, u"Product name is empty!"_s, QMessageBox::Close);
    keyboard::press(Qt::Key_Return);
    cbr::Menu expected = menuWith();
    expected.products[2].shortName = "CI";
    QCOMPARE(savedBytes(guide), hex(expected));
}

// The neighbour of a bin is to hold at the same temperature.
void TestGuideTimerBar::binsAreFilled()
{
    Guide guide;
    open(guide);
    keyboard::showPage(u"Day Parts"_s);
    keyboard::tabTo(u"comboDaypartSelect"_s);
    keyboard::press(Qt::Key_End);
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    expectPick(guide, u"CHIL"_s);
    keyboard::press(Qt::Key_Space);
    keyboard::pressOften(Qt::Key_Down, 3);
    expectPick(guide, u"HAM"_s);
    keyboard::press(Qt::Key_Space);
    keyboard::press(Qt::Key_Right);
    expectPick(guide, u"BACN"_s);
    keyboard::press(Qt::Key_Space);
    cbr::Menu expected = menuWith();
    expected.dayparts[5] = {1, 0, 100, 100, 100, 100, 2};
    QCOMPARE(savedBytes(guide), hex(expected));
}

void TestGuideTimerBar::binsAreEmptied()
{
    Guide guide;
    open(guide, menuWith({0, 1, 2, 2}));
    keyboard::showPage(u"Day Parts"_s);
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    keyboard::pressOften(Qt::Key_Down, 2);
    const auto &remove = guide.get<QWidget>("btnDaypartRemove");
    keyboard::holdSpace([&remove] { return remove.isVisible(); });
    keyboard::press(Qt::Key_Right);
    keyboard::press(Qt::Key_Space);
    keyboard::pushButton(u"btnDaypartRemove"_s);
    QCOMPARE(savedBytes(guide), hex(menuWith({0, 1})));
}

void TestGuideTimerBar::emptyingIsCancelled()
{
    Guide guide;
    open(guide, menuWith({0, 1}));
    keyboard::showPage(u"Day Parts"_s);
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    keyboard::pressOften(Qt::Key_Down, 3);
    const auto &remove = guide.get<QWidget>("btnDaypartRemove");
    keyboard::holdSpace([&remove] { return remove.isVisible(); });
    keyboard::pushButton(u"btnCancelDaypartRemove"_s);
    QVERIFY(!remove.isVisible());
    keyboard::holdSpace([&remove] { return remove.isVisible(); });
    keyboard::press(Qt::Key_Escape);
    QVERIFY(!remove.isVisible());
    QCOMPARE(savedBytes(guide), hex(menuWith({0, 1})));
}

// The day part that takes them over has bins of its own, so the program asks.
void TestGuideTimerBar::binsAreCopied()
{
    Guide guide;
    cbr::Menu menu = menuWith({0, 1});
    menu.dayparts[2] = {2};
    open(guide, menu);
    keyboard::showPage(u"Day Parts"_s);
    keyboard::tabTo(u"comboDaypartSelect"_s);
    keyboard::pressOften(Qt::Key_Down, 2);
    guide.expect<CopyBins>([] {
        keyboard::choose(u"comboDaypart"_s, u"Breakfast"_s);
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Copy Bins"_s, u"Replace the bins of Lunch with those of Breakfast?"_s,
                    QMessageBox::Yes);
    keyboard::pushButton(u"btnCopyDaypart"_s);
    menu.dayparts[2] = menu.dayparts[0];
    QCOMPARE(savedBytes(guide), hex(menu));
}

void TestGuideTimerBar::binPlanIsMade()
{
    Guide guide;
    open(guide, menuWith({0, 1}));
    keyboard::showPage(u"Day Parts"_s);
    guide.expectFileName(u"plan.pdf"_s);
    keyboard::pushButton(u"btnBinPlan"_s);
    QVERIFY(contentOf(guide.path(u"plan.pdf"_s)).startsWith("%PDF-"));
}

int main(int argc, char *argv[])
{
    return screens::runOnLaptops<TestGuideTimerBar>(argc, argv);
}

#include "tst_guide_timerbar.moc"
