// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/opentimerbar.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

class TestTimerBarDaypartAssignItem : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void formShowsItsTexts();
    void rowsAreNumberedAndKnowTheirIds();
    void rowsAreColoured();
    void fittingIsDecidedByTheLowerReference_data();
    void fittingIsDecidedByTheLowerReference();
    void nothingIsSelectedAtFirst();
    void selectionShowsTheProduct_data();
    void selectionShowsTheProduct();
    void deselectingEmptiesTheDetails();
    void keysSelectToo();
    void unfittingRowIsNeverChosen_data();
    void unfittingRowIsNeverChosen();
    void selectTakesTheId();
    void doubleClickSelects();
    void selectWithoutAProductDoesNothing();
    void leavingChoosesNothing_data();
    void leavingChoosesNothing();
};

namespace {

/// The dialog beside an editor that holds a menu; the references are °F.
struct Picking
{
    explicit Picking(const cbr::Menu &menu, int upper = 0, int lower = 0)
        : editor(menu)
        , dialog(std::make_unique<TimerBarDaypartAssignItem>(upper, lower, &*editor))
    {
        ui::show(*dialog);
    }

    [[nodiscard]] QListWidget &list() const { return ui::get<QListWidget>(*dialog, "listWidgetProducts"); }
    [[nodiscard]] QString text(const char *label) const { return ui::get<QLabel>(*dialog, label).text(); }
    [[nodiscard]] QStringList details() const
    {
        return {text("txtName"),      text("txtShortName"), text("txtTempUpper"),
                text("txtTempLower"), text("txtHoldTime"),  text("txtWarningTime")};
    }
    [[nodiscard]] QPushButton &select() const { return ui::get<QPushButton>(*dialog, "btnSelect"); }
    [[nodiscard]] bool fits(int row) const { return list().item(row)->flags() & Qt::ItemIsSelectable; }

    OpenTimerBar editor;
    std::unique_ptr<TimerBarDaypartAssignItem> dialog;
};

const QStringList noDetails{{}, {}, {}, {}, {}, {}};

} // namespace

void TestTimerBarDaypartAssignItem::slotsAreInOrder()
{
    QCOMPARE(ownSlots(TimerBarDaypartAssignItem::staticMetaObject),
             (QStringList{u"loadProducts()"_s, u"loadProductInfo()"_s, u"on_btnCancel_clicked()"_s,
                          u"on_btnSelect_clicked()"_s, u"on_listWidgetProducts_itemSelectionChanged()"_s,
                          u"on_listWidgetProducts_currentRowChanged(int currentRow)"_s}));
}

void TestTimerBarDaypartAssignItem::formShowsItsTexts()
{
    const Picking picking(baconHamChili());
    QCOMPARE(picking.dialog->windowTitle(), u"Assign Product"_s);
    QStringList labels;
    for (const char *label :
         {"lblName", "lblShortName", "lblTempUpper", "lblTempLower", "lblHoldTime", "lblWarningTime"})
        labels.append(picking.text(label));
    QCOMPARE(labels, (QStringList{u"Product Name:"_s, u"Shor Name:"_s, u"Upper Temperature:"_s,
                                  u"Lower Temperature:"_s, u"Holding Time:"_s, u"Cook More Alert Time:"_s}));
    QCOMPARE(ui::get<QPushButton>(*picking.dialog, "btnCancel").text(), u"Cancel"_s);
    QCOMPARE(picking.select().text(), u"Select"_s);
    QCOMPARE(picking.dialog->minimumSize(), picking.dialog->maximumSize());
    QCOMPARE(picking.list().dragDropMode(), QAbstractItemView::NoDragDrop);
    QVERIFY(!picking.list().dragEnabled());
}

void TestTimerBarDaypartAssignItem::rowsAreNumberedAndKnowTheirIds()
{
    const Picking picking({.products = cbr::manyProducts(100)});
    QListWidget &list = picking.list();
    QCOMPARE(list.count(), 100);
    QCOMPARE(list.item(0)->text(), u"  1 P0"_s);
    QCOMPARE(list.item(8)->text(), u"  9 P8"_s);
    QCOMPARE(list.item(9)->text(), u" 10 P9"_s);
    QCOMPARE(list.item(98)->text(), u" 99 P98"_s);
    QCOMPARE(list.item(99)->text(), u"100 P99"_s);
    for (int row = 0; row < 100; ++row) {
        QCOMPARE(list.item(row)->data(Qt::UserRole).toInt(), row);
        QCOMPARE(list.item(row)->sizeHint(), QSize(100, 32));
        QCOMPARE(list.item(row)->toolTip(),
                 u"Product number %1"_s.arg(row)); // the row has the short name only
    }
}

void TestTimerBarDaypartAssignItem::rowsAreColoured()
{
    cbr::Menu menu = baconHamChili();
    menu.products.append(menu.products[2]);
    const Picking picking(menu, 215, 215);
    QListWidget &list = picking.list();
    QCOMPARE(list.item(0)->background().color(), QColor(Qt::white));
    QCOMPARE(list.item(1)->background().color(), QColor(Qt::cyan));
    QCOMPARE(list.item(2)->background().color(), QColor(Qt::white));
    QCOMPARE(list.item(3)->background().color(), QColor(u"lightgrey"_s));
    for (const int row : {0, 1})
        QCOMPARE(list.item(row)->foreground().color(), QColor(Qt::black));
    for (const int row : {2, 3}) {
        const QColor text = list.item(row)->foreground().color();
        QVERIFY(text.red() == text.green() && text.green() == text.blue());
        QVERIFY(text.red() > 0x40 && text.red() < 0xC0);
    }
}

void TestTimerBarDaypartAssignItem::fittingIsDecidedByTheLowerReference_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<QList<bool>>("fits"); // 215/215, 215/215, 190/180, 180/180
    QTest::newRow("empty neighbour") << 0 << 0 << QList<bool>{true, true, true, true};
    QTest::newRow("upper 0 switches the test off") << 0 << 215 << QList<bool>{true, true, true, true};
    QTest::newRow("215/215") << 215 << 215 << QList<bool>{true, true, false, false};
    QTest::newRow("190/180: the upper one is not compared")
        << 190 << 180 << QList<bool>{false, false, false, true};
    QTest::newRow("one degree off") << 214 << 214 << QList<bool>{false, false, false, false};
    QTest::newRow("180/215") << 180 << 215 << QList<bool>{true, true, false, false};
}

void TestTimerBarDaypartAssignItem::fittingIsDecidedByTheLowerReference()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(QList<bool>, fits);
    cbr::Menu menu = baconHamChili();
    menu.products.append({.name = "Gravy", .shortName = "GRVY", .upper = 81, .lower = 81});
    const Picking picking(menu, upper, lower);
    for (int row = 0; row < 4; ++row)
        QCOMPARE(picking.fits(row), fits[row]);
}

void TestTimerBarDaypartAssignItem::nothingIsSelectedAtFirst()
{
    const Picking picking(baconHamChili());
    QVERIFY(picking.list().selectedItems().isEmpty());
    QCOMPARE(picking.details(), noDetails);
    QVERIFY(!picking.select().isEnabled());
    QCOMPARE(picking.dialog->chosenId(), 100);
}

void TestTimerBarDaypartAssignItem::selectionShowsTheProduct_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::newRow("Fahrenheit") << 0 << u"190°F"_s << u"180°F"_s;
    QTest::newRow("Celsius") << 1 << u"88°C"_s << u"82°C"_s;
    QTest::newRow("any other unit") << 2 << u"190°F"_s << u"180°F"_s;
}

void TestTimerBarDaypartAssignItem::selectionShowsTheProduct()
{
    QFETCH(int, unit);
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    cbr::Menu menu = baconHamChili(u"KTR22"_s, unit);
    menu.products[2].holdMinutes = 90;
    menu.products[2].alertMinutes = 25;
    const Picking picking(menu);
    ui::clickRow(picking.list(), 2);
    QCOMPARE(picking.details(), (QStringList{u"Chili"_s, u"CHIL"_s, upper, lower, u"01:30"_s, u"00:25"_s}));
    QVERIFY(picking.select().isEnabled());
}

void TestTimerBarDaypartAssignItem::deselectingEmptiesTheDetails()
{
    const Picking picking(baconHamChili());
    ui::clickRow(picking.list(), 1);
    ui::clickRow(picking.list(), 1, Qt::ControlModifier);
    QVERIFY(picking.list().selectedItems().isEmpty());
    QCOMPARE(picking.details(), noDetails);
    QVERIFY(!picking.select().isEnabled());
}

void TestTimerBarDaypartAssignItem::keysSelectToo()
{
    const Picking picking(baconHamChili());
    QTest::keyClick(picking.dialog->focusWidget(), Qt::Key_Down);
    QVERIFY(picking.list().hasFocus());
    QTest::keyClick(&picking.list(), Qt::Key_Home);
    QTest::keyClick(&picking.list(), Qt::Key_Down);
    QCOMPARE(picking.text("txtName"), u"Ham Steak"_s);
    QTest::keyClick(&picking.list(), Qt::Key_Return);
    QCOMPARE(picking.dialog->result(), 1);
    QCOMPARE(picking.dialog->chosenId(), 1);
}

void TestTimerBarDaypartAssignItem::unfittingRowIsNeverChosen_data()
{
    QTest::addColumn<bool>("keyboard");
    QTest::newRow("mouse") << false;
    QTest::newRow("keyboard") << true;
}

// Not even right after a fitting one was selected.
void TestTimerBarDaypartAssignItem::unfittingRowIsNeverChosen()
{
    QFETCH(bool, keyboard);
    const Picking picking(baconHamChili(), 215, 215);
    ui::clickRow(picking.list(), 1);
    QVERIFY(picking.select().isEnabled());
    if (keyboard) {
        QTest::keyClick(&picking.list(), Qt::Key_End);
        QTest::keyClick(&picking.list(), Qt::Key_Return);
    } else {
        ui::doubleClickRow(picking.list(), 2);
    }
    QVERIFY(picking.dialog->isVisible());
    QCOMPARE(picking.dialog->chosenId(), 100);
    QVERIFY(!picking.select().isEnabled());
    QCOMPARE(picking.details(), noDetails);
}

void TestTimerBarDaypartAssignItem::selectTakesTheId()
{
    const Picking picking(baconHamChili());
    ui::clickRow(picking.list(), 0);
    ui::clickRow(picking.list(), 2);
    ui::click(picking.select());
    QVERIFY(picking.dialog->isHidden());
    QCOMPARE(picking.dialog->result(), 1);
    QCOMPARE(picking.dialog->chosenId(), 2);
}

void TestTimerBarDaypartAssignItem::doubleClickSelects()
{
    const Picking picking(baconHamChili(), 215, 215);
    ui::doubleClickRow(picking.list(), 1);
    QVERIFY(picking.dialog->isHidden());
    QCOMPARE(picking.dialog->result(), 1);
    QCOMPARE(picking.dialog->chosenId(), 1);
}

void TestTimerBarDaypartAssignItem::selectWithoutAProductDoesNothing()
{
    const Picking picking(baconHamChili());
    QTest::keyClick(picking.dialog.get(), Qt::Key_Return);
    QTest::mouseClick(&picking.select(), Qt::LeftButton);
    picking.dialog->on_btnSelect_clicked();
    QVERIFY(picking.dialog->isVisible());
    QCOMPARE(picking.dialog->chosenId(), 100);
}

void TestTimerBarDaypartAssignItem::leavingChoosesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarDaypartAssignItem::leavingChoosesNothing()
{
    QFETCH(bool, escape);
    const Picking picking(baconHamChili());
    ui::clickRow(picking.list(), 1);
    picking.dialog->setResult(1);
    if (escape)
        QTest::keyClick(picking.dialog.get(), Qt::Key_Escape);
    else
        ui::click(*picking.dialog, "btnCancel");
    QVERIFY(picking.dialog->isHidden());
    QCOMPARE(picking.dialog->result(), 0);
    QCOMPARE(picking.dialog->chosenId(), 100);
}

QTEST_MAIN(TestTimerBarDaypartAssignItem)
#include "tst_timerbardaypartassignitem.moc"
