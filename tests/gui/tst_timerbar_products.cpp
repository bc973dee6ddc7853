// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>

#include "tests/gui/timerbarlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace timerbarlist;

class TestTimerBarProducts : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void rowsAreNumberedAndKnowTheirIds();
    void openedMenuHasNoCurrentProduct();
    void detailsShowTheProduct_data();
    void detailsShowTheProduct();
    void labelsNameTheDetails();
    void deselectingEmptiesTheDetails();
    void namesAreShownAsTheyAre();
    void newProductStartsWithDefaults();
    void addedProductIsCurrent();
    void smallestFreeIdIsTaken();
    void cancelledAddChangesNothing();
    void duplicateCopiesTheProduct();
    void cancelledDuplicateChangesNothing();
    void hundredProductsAreTheLimit();
    void ninetyNineLeaveRoomForOne();
};

namespace {

ModalAnswers::Box limit()
{
    return ModalAnswers::refusal(u"Cannot add products. Maximum products and groups reached!"_s);
}

} // namespace

void TestTimerBarProducts::rowsAreNumberedAndKnowTheirIds()
{
    OpenTimerBar editor({.products = cbr::manyProducts(100)});
    const QStringList rows = ui::textsOf(editor.products());
    QCOMPARE(rows.size(), 100);
    QCOMPARE(rows[0], u"  1 Product number 0"_s);
    QCOMPARE(rows[8], u"  9 Product number 8"_s);
    QCOMPARE(rows[9], u" 10 Product number 9"_s);
    QCOMPARE(rows[99], u"100 Product number 99"_s);
    QList<int> expected;
    for (int id = 0; id < 100; ++id)
        expected.append(id);
    QCOMPARE(ids(editor), expected);
    QVERIFY(editor.products().alternatingRowColors());
    QCOMPARE(editor.products().dragDropMode(), QAbstractItemView::NoDragDrop);
    QVERIFY(!editor.products().dragEnabled());
}

void TestTimerBarProducts::openedMenuHasNoCurrentProduct()
{
    OpenTimerBar editor(baconHamChili());
    QCOMPARE(editor.products().currentRow(), -1);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(details(editor), QStringList(6, QString()));
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QVERIFY(editor.button("btnSelectMultiProduct").isEnabled());
}

void TestTimerBarProducts::detailsShowTheProduct_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::newRow("Fahrenheit") << 0 << u"215°F"_s << u"99°F"_s;
    QTest::newRow("Celsius") << 1 << u"102°C"_s << u"37°C"_s;
    QTest::newRow("any other unit") << 255 << u"215°F"_s << u"99°F"_s;
}

void TestTimerBarProducts::detailsShowTheProduct()
{
    QFETCH(int, unit);
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    cbr::Menu menu = baconHamChili(u"KTR22"_s, unit);
    menu.products[1].lower = 0;
    menu.products[1].holdMinutes = 61;
    menu.products[1].alertMinutes = 59;
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 1);
    QCOMPARE(details(editor), (QStringList{u"Ham Steak"_s, u"HAM"_s, upper, lower, u"01:01"_s, u"00:59"_s}));
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
    QTest::keyClick(&editor.products(), Qt::Key_Down);
    QCOMPARE(editor.detail("Name"), u"Chili"_s);
}

void TestTimerBarProducts::labelsNameTheDetails()
{
    OpenTimerBar editor(baconHamChili());
    QStringList labels;
    for (const char *name :
         {"lblName", "lblShortName", "lblTempUpper", "lblTempLower", "lblHoldTime", "lblWarningTime"})
        labels.append(ui::get<QLabel>(*editor, name).text());
    QCOMPARE(labels, (QStringList{u"Product Name:"_s, u"Short Name:"_s, u"Upper Temperature:"_s,
                                  u"Lower Temperature:"_s, u"Holding Time:"_s, u"Cook More Alert Time:"_s}));
}

void TestTimerBarProducts::deselectingEmptiesTheDetails()
{
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 1);
    ui::clickRow(editor.products(), 1, Qt::ControlModifier);
    QCOMPARE(details(editor), QStringList(6, QString()));
    QCOMPARE(enabledButtons(editor), u"A..."_s);
}

// No name is taken for markup.
void TestTimerBarProducts::namesAreShownAsTheyAre()
{
    OpenTimerBar editor({.products = {{.name = "<b>Mac</b> & Cheese", .shortName = "<p>&"}}});
    ui::clickRow(editor.products(), 0);
    QCOMPARE(editor.detail("Name"), u"<b>Mac</b> & Cheese"_s);
    for (const char *label : {"txtName", "txtShortName"})
        QCOMPARE(ui::get<QLabel>(*editor, label).textFormat(), Qt::PlainText);
}

void TestTimerBarProducts::newProductStartsWithDefaults()
{
    OpenTimerBar editor(baconHamChili());
    open(editor, "btnAddProduct", [](TimerBarProductEdit &dialog) {
        QCOMPARE(ui::get<QLineEdit>(dialog, "txtProductName").text(), QString());
        QCOMPARE(ui::get<QLineEdit>(dialog, "txtShortName").text(), QString());
        QCOMPARE(ui::get<QSpinBox>(dialog, "numTempUpper").value(), 200);
        QCOMPARE(ui::get<QSpinBox>(dialog, "numTempLower").value(), 200);
        QCOMPARE(ui::get<QTimeEdit>(dialog, "timeHoldTime").time(), QTime(0, 30));
        QCOMPARE(ui::get<QTimeEdit>(dialog, "timeWarningTime").time(), QTime(0, 5));
        saveAsSoup(dialog);
    });
    QCOMPARE(editor->products().constLast()->get_zoneSplits(), u"1/2"_s);
    QCOMPARE(editor->products().constLast()->get_productName(), QStringList{u"Soup"_s});
}

void TestTimerBarProducts::addedProductIsCurrent()
{
    cbr::Menu menu = baconHamChili();
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    open(editor, "btnAddProduct", saveAsSoup);
    QCOMPARE(ui::textsOf(editor.products()).constLast(), u"  4 Soup"_s);
    QCOMPARE(editor.products().currentRow(), 3);
    QVERIFY(editor.products().item(3)->isSelected());
    QCOMPARE(editor.detail("Name"), u"Soup"_s);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
    menu.products.append(soup);
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarProducts::smallestFreeIdIsTaken()
{
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    answers.expect<TimerBarProductEdit>(saveAsSoup);
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(ids(editor), (QList<int>{0, 2, 1}));
    answers.expect<TimerBarProductEdit>(saveAsSoup);
    ui::click(*editor, "btnDuplicateProduct");
    QCOMPARE(ids(editor), (QList<int>{0, 2, 1, 3}));
}

void TestTimerBarProducts::cancelledAddChangesNothing()
{
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 1);
    open(editor, "btnAddProduct", cancel);
    QCOMPARE(editor.saved(), hex(baconHamChili()));
    QCOMPARE(editor.products().count(), 3);
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
}

void TestTimerBarProducts::duplicateCopiesTheProduct()
{
    cbr::Menu menu = baconHamChili();
    menu.products[1] = {.name = "Ham",
                        .shortName = "HAM",
                        .holdMinutes = 480,
                        .alertMinutes = 479,
                        .upper = 126,
                        .lower = 56};
    menu.dayparts[0] = {1, 1, 1, 1};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 1);
    open(editor, "btnDuplicateProduct", [](TimerBarProductEdit &dialog) {
        QCOMPARE(ui::get<QLineEdit>(dialog, "txtProductName").text(), u"Ham"_s);
        ui::click(dialog, "btnSave");
    });
    menu.products.append(menu.products[1]);
    QCOMPARE(editor.saved(), hex(menu));
    QCOMPARE(editor.products().currentRow(), 3);
    QCOMPARE(ids(editor), (QList<int>{0, 1, 2, 3}));
}

void TestTimerBarProducts::cancelledDuplicateChangesNothing()
{
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 2);
    open(editor, "btnDuplicateProduct", cancel);
    QCOMPARE(editor.saved(), hex(baconHamChili()));
    QCOMPARE(editor.products().currentRow(), 2);
}

void TestTimerBarProducts::hundredProductsAreTheLimit()
{
    const cbr::Menu menu{.products = cbr::manyProducts(100)};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 4);
    for (const char *button : {"btnAddProduct", "btnDuplicateProduct"}) {
        ModalAnswers answers;
        answers.expectBox(limit(), QMessageBox::Close);
        ui::click(*editor, button);
    }
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarProducts::ninetyNineLeaveRoomForOne()
{
    OpenTimerBar editor({.products = cbr::manyProducts(99)});
    open(editor, "btnAddProduct", saveAsSoup);
    QCOMPARE(editor.products().count(), 100);
    QCOMPARE(ids(editor).constLast(), 99);
    ModalAnswers answers;
    answers.expectBox(limit(), QMessageBox::Close);
    ui::click(*editor, "btnAddProduct");
}

QTEST_MAIN(TestTimerBarProducts)
#include "tst_timerbar_products.moc"
