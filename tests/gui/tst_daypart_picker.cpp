// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/assigndaypartitem.h"
#include "tests/gui/openbins.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// The dialog that picks what goes into a bin.
class TestDaypartPicker : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void startsWithoutASelection();
    void listsProductsThenGroups();
    void numbersAHundredEntries();
    void coloursTellWhatFits();
    void selectingShowsDetails();
    void detailsOfAGroup();
    void detailsInCelsius();
    void detailsFollowTheConfiguration_data();
    void detailsFollowTheConfiguration();
    void unfittingRowsCannotBeSelected();
    void arrowsPassUnfittingRows();
    void doubleClickSelects();
    void selectNeedsASelection();
    void flagChangesNothing();
    void rejecting_data();
    void rejecting();
};

namespace {

constexpr QColor grey(0x60, 0x60, 0x60);
constexpr QColor lightGrey(0xd3, 0xd3, 0xd3);

// Products 1 and 3 are "1/2", 2 is "1/1", 4 hotter, then the groups 5 of "1/2" and 6 without any split.
samplefile::Menu sampleMenu(const QJsonObject &header = samplefile::headerWithAllSwitches())
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(1, u"Ham"_s,
                                         {{u"lidType"_s, u"Vented"_s},
                                          {u"bottomType"_s, u"False"_s},
                                          {u"holdingTime"_s, 7261},
                                          {u"warningTime"_s, 62},
                                          {u"resetTime"_s, 3}}),
                     samplefile::product(2, u"Rib"_s, {{u"zoneSplits"_s, u"1/1"_s}}),
                     samplefile::product(3, u"Chili"_s, {{u"upperTemp"_s, 200}}),
                     samplefile::product(4, u"Gravy"_s, {{u"upperTemp"_s, 210}, {u"lidType"_s, u"Solid"_s}})};
    menu.groups = {samplefile::group(50, u"Meats"_s, {1, 3}, {{u"lowerTemp"_s, 190}}),
                   samplefile::group(60, u"Nothing"_s, {}, {{u"zoneSplits"_s, QString()}})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {})};
    return menu;
}

// The picker of a bin for halves of 200 °F, or of other requirements.
class OpenPicker
{
public:
    explicit OpenPicker(const samplefile::Menu &menu = sampleMenu(), const QStringList &splits = {u"1/2"_s},
                        int upperTemp = 200, int lowerTemp = 0, int fanSpeed = 0, bool flag = false)
        : m_editor(menu)
        , m_picker(splits, upperTemp, lowerTemp, fanSpeed, flag, &*m_editor)
    {
        ui::show(m_picker);
    }

    [[nodiscard]] AssignDaypartItem &operator*() { return m_picker; }
    [[nodiscard]] AssignDaypartItem *operator->() { return &m_picker; }
    [[nodiscard]] QListWidget &list() { return ui::get<QListWidget>(m_picker, "listWidgetProducts"); }
    [[nodiscard]] QString detail(const char *label) { return ui::get<QLabel>(m_picker, label).text(); }
    [[nodiscard]] bool isShown(const char *label) { return ui::get<QLabel>(m_picker, label).isVisible(); }
    [[nodiscard]] bool canSelect() { return ui::get<QWidget>(m_picker, "btnSelect").isEnabled(); }

private:
    OpenEditor m_editor;
    AssignDaypartItem m_picker;
};

} // namespace

void TestDaypartPicker::slotsAreInOrder()
{
    QCOMPARE(ownSlots(AssignDaypartItem::staticMetaObject),
             (QStringList{u"loadProducts()"_s, u"loadProductInfo()"_s, u"on_btnCancel_clicked()"_s,
                          u"on_btnSelect_clicked()"_s, u"on_listWidgetProducts_itemSelectionChanged()"_s,
                          u"on_listWidgetProducts_currentRowChanged(int currentRow)"_s}));
}

void TestDaypartPicker::startsWithoutASelection()
{
    OpenPicker picker;
    QCOMPARE(picker->windowTitle(), u"Assign Product/Group"_s);
    QCOMPARE(picker->minimumSize(), picker->maximumSize());
    QCOMPARE(picker.list().dragDropMode(), QAbstractItemView::NoDragDrop);
    QCOMPARE(picker.list().font().family(), u"Courier New"_s);
    QCOMPARE(picker.list().font().pointSize(), 11);
    QVERIFY(picker.list().selectedItems().isEmpty());
    QVERIFY(!picker.canSelect());
    QCOMPARE(picker->resultId(), 0);
    for (const char *label :
         {"txtProductId", "txtName", "txtTemp1", "txtTemp2", "txtHoldTime", "txtWarningTime", "txtResetTime",
          "txtFanSpeed", "txtLidType", "txtBottomType", "txtZoneSplits"})
        QVERIFY2(picker.detail(label).isEmpty(), label);
}

void TestDaypartPicker::listsProductsThenGroups()
{
    OpenPicker picker;
    QCOMPARE(ui::textsOf(picker.list()), (QStringList{u"  1 Ham"_s, u"  2 Rib"_s, u"  3 Chili"_s,
                                                      u"  4 Gravy"_s, u"  5 Meats"_s, u"  6 Nothing"_s}));
}

void TestDaypartPicker::numbersAHundredEntries()
{
    samplefile::Menu menu = sampleMenu();
    menu.products = {};
    for (int id = 1; id <= 98; ++id)
        menu.products.append(samplefile::product(id, u"P%1"_s.arg(id)));
    menu.groups = {samplefile::group(200, u"A"_s, {1}), samplefile::group(201, u"B"_s, {1})};
    OpenPicker picker(menu);
    QCOMPARE(picker.list().count(), 100);
    QCOMPARE(picker.list().item(8)->text(), u"  9 P9"_s);
    QCOMPARE(picker.list().item(9)->text(), u" 10 P10"_s);
    QCOMPARE(picker.list().item(98)->text(), u" 99 A"_s);
    QCOMPARE(picker.list().item(99)->text(), u"100 B"_s);
    for (const auto &[row, id] : {std::pair{0, 1}, {97, 98}, {98, 200}, {99, 201}})
        QCOMPARE(picker.list().item(row)->data(Qt::DecorationRole).toInt(), id);
    ui::clickRow(picker.list(), 99);
    ui::click(*picker, "btnSelect");
    QCOMPARE(picker->resultId(), 201);
}

void TestDaypartPicker::coloursTellWhatFits()
{
    OpenPicker picker(sampleMenu(), {u"1/2"_s, QString()});
    const QList<bool> fits{true, false, true, false, true, true};
    for (int row = 0; row < fits.size(); ++row) {
        const QListWidgetItem &item = *picker.list().item(row);
        const bool odd = row % 2 != 0;
        QCOMPARE(bool(item.flags() & Qt::ItemIsSelectable), fits[row]);
        QCOMPARE(item.foreground().color(), fits[row] ? QColor(Qt::black) : grey);
        const QColor stripe = fits[row] ? QColor(Qt::cyan) : lightGrey;
        QCOMPARE(item.background().color(), odd ? stripe : QColor(Qt::white));
    }
}

void TestDaypartPicker::selectingShowsDetails()
{
    OpenPicker picker;
    ui::clickRow(picker.list(), 0);
    QVERIFY(picker.canSelect());
    QCOMPARE(picker.detail("txtProductId"), u"1"_s);
    QCOMPARE(picker.detail("txtName"), u"Ham"_s);
    QCOMPARE(picker.detail("lblTemp1"), u"Upper Temperature:"_s);
    QCOMPARE(picker.detail("txtTemp1"), u"200°F"_s);
    QCOMPARE(picker.detail("txtTemp2"), u"200°F"_s);
    QCOMPARE(picker.detail("txtHoldTime"), u"02:01:01"_s);
    QCOMPARE(picker.detail("txtWarningTime"), u"00:01:02"_s);
    QCOMPARE(picker.detail("txtResetTime"), u"00:00:03"_s);
    QCOMPARE(picker.detail("txtFanSpeed"), u"60 (RPM)"_s);
    QCOMPARE(picker.detail("txtLidType"), u"Vented"_s);
    QCOMPARE(picker.detail("txtBottomType"), u"False"_s);
    QCOMPARE(picker.detail("txtZoneSplits"), u"1/2"_s);
    ui::clickRow(picker.list(), 2);
    QCOMPARE(picker.detail("txtName"), u"Chili"_s);
    QCOMPARE(picker.detail("txtLidType"), u"None"_s);
    QCOMPARE(picker.detail("txtBottomType"), u"Normal"_s);
    ui::clickRow(picker.list(), 2, Qt::ControlModifier);
    QVERIFY(picker.list().selectedItems().isEmpty());
    QVERIFY(!picker.canSelect());
    QVERIFY(picker.detail("txtName").isEmpty());
}

void TestDaypartPicker::detailsOfAGroup()
{
    OpenPicker picker;
    ui::clickRow(picker.list(), 4);
    QCOMPARE(picker.detail("txtProductId"), u"50"_s);
    QCOMPARE(picker.detail("txtName"), u"Meats"_s);
    QCOMPARE(picker.detail("txtTemp1"), u"200°F"_s);
    QCOMPARE(picker.detail("txtTemp2"), u"190°F"_s);
    QCOMPARE(picker.detail("txtFanSpeed"), u"60 (RPM)"_s);
    QCOMPARE(picker.detail("txtHoldTime"), u"00:00:00"_s);
    ui::click(*picker, "btnSelect");
    QCOMPARE(picker->result(), int(QDialog::Accepted));
    QCOMPARE(picker->resultId(), 50);
}

void TestDaypartPicker::detailsInCelsius()
{
    samplefile::Menu menu = sampleMenu(samplefile::headerWithAllSwitches({{u"temperatureUnit"_s, 1}}));
    menu.products[0] = samplefile::product(1, u"Ham"_s, {{u"upperTemp"_s, 210}, {u"lowerTemp"_s, 0}});
    OpenPicker picker(menu, {u"1/2"_s}, 210);
    ui::clickRow(picker.list(), 0);
    QCOMPARE(picker.detail("txtTemp1"), u"99°C"_s);
    QCOMPARE(picker.detail("txtTemp2"), u"0°C"_s);
}

void TestDaypartPicker::detailsFollowTheConfiguration_data()
{
    QTest::addColumn<QString>("shown"); // the switch, or the type
    for (const char *shown :
         {"prodcutIdEnabled", "fanSpeedEnabled", "resetTimeEnabled", "timerColorEnabled", "QHX", "ZPV"})
        QTest::newRow(shown) << QString::fromLatin1(shown);
}

void TestDaypartPicker::detailsFollowTheConfiguration()
{
    QFETCH(QString, shown);
    const bool zpv = shown == u"ZPV"_s;
    QJsonObject header = bins::headerOf(zpv ? u"ZPV23"_s : u"KTR22"_s);
    header.insert(shown, true);
    OpenPicker picker(sampleMenu(header));
    ui::clickRow(picker.list(), 0);
    QCOMPARE(picker.isShown("txtProductId"), shown == u"prodcutIdEnabled"_s);
    QCOMPARE(picker.isShown("txtFanSpeed"), shown == u"fanSpeedEnabled"_s);
    QCOMPARE(picker.isShown("txtResetTime"), shown == u"resetTimeEnabled"_s);
    QCOMPARE(picker.isShown("txtTimerColor"), shown == u"timerColorEnabled"_s);
    QCOMPARE(picker.isShown("txtTemp2"), !zpv);
    QCOMPARE(picker.isShown("txtLidType"), !zpv);
    QVERIFY(picker.isShown("txtTemp1") && picker.isShown("txtHoldTime") && picker.isShown("txtBottomType"));
    QCOMPARE(picker.detail("lblTemp1"), zpv ? u"Temperature:"_s : u"Upper Temperature:"_s);
}

void TestDaypartPicker::unfittingRowsCannotBeSelected()
{
    OpenPicker picker;
    for (const int row : {1, 3, 5}) {
        ui::clickRow(picker.list(), 0);
        QVERIFY(picker.canSelect());
        ui::clickRow(picker.list(), row);
        QVERIFY(picker.list().selectedItems().isEmpty());
        QVERIFY(!picker.canSelect());
        QVERIFY(picker.detail("txtName").isEmpty());
        ui::doubleClickRow(picker.list(), row);
        QVERIFY(picker->isVisible());
        picker->on_btnSelect_clicked();
        QVERIFY(picker->isVisible());
    }
}

void TestDaypartPicker::arrowsPassUnfittingRows()
{
    OpenPicker picker;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); // the first row was not selected
    QCOMPARE(QApplication::focusWidget(), &picker.list());
    QTest::keyClick(&picker.list(), Qt::Key_Up);
    const QStringList names{u"Ham"_s, QString(), u"Chili"_s, QString(), u"Meats"_s, QString()};
    for (int row = 0; row < names.size(); ++row) {
        QCOMPARE(picker.list().currentRow(), row);
        QCOMPARE(picker.detail("txtName"), names[row]);
        QCOMPARE(picker.canSelect(), !names[row].isEmpty());
        QTest::keyClick(&picker.list(), Qt::Key_Down);
    }
    QTest::keyClick(&*picker, Qt::Key_Return);
    QVERIFY(picker->isVisible());
    QTest::keyClick(&picker.list(), Qt::Key_Up);
    QTest::keyClick(&*picker, Qt::Key_Return);
    QVERIFY(picker->isHidden());
    QCOMPARE(picker->resultId(), 50);
}

void TestDaypartPicker::doubleClickSelects()
{
    OpenPicker picker;
    ui::doubleClickRow(picker.list(), 2);
    QVERIFY(picker->isHidden());
    QCOMPARE(picker->result(), int(QDialog::Accepted));
    QCOMPARE(picker->resultId(), 3);
}

void TestDaypartPicker::selectNeedsASelection()
{
    OpenPicker picker;
    picker->on_btnSelect_clicked();
    QVERIFY(picker->isVisible());
    QCOMPARE(picker->resultId(), 0);
}

void TestDaypartPicker::flagChangesNothing()
{
    OpenPicker without(sampleMenu(), {u"1/2"_s}, 200, 200, 60, false);
    OpenPicker with(sampleMenu(), {u"1/2"_s}, 200, 200, 60, true);
    for (int row = 0; row < without.list().count(); ++row)
        QCOMPARE(with.list().item(row)->flags(), without.list().item(row)->flags());
}

void TestDaypartPicker::rejecting_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestDaypartPicker::rejecting()
{
    QFETCH(bool, escape);
    OpenPicker picker;
    picker->setResult(QDialog::Accepted);
    ui::clickRow(picker.list(), 0);
    if (escape)
        QTest::keyClick(&*picker, Qt::Key_Escape);
    else
        ui::click(*picker, "btnCancel");
    QVERIFY(picker->isHidden());
    QCOMPARE(picker->result(), int(QDialog::Rejected));
    QCOMPARE(picker->resultId(), 0);
}

QTEST_MAIN(TestDaypartPicker)
#include "tst_daypart_picker.moc"
