// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/edittimerbarproduct.h"
#include "tests/support/recordfields.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimerBarProductEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void everyFieldStaysWhatItWas();
    void formShowsItsTexts_data();
    void formShowsItsTexts();
    void fieldsShowTheProduct();
    void fieldsShowTheProductInCelsius();
    void faultsComeInOrder();
    void blankNameIsAName();
    void everythingIsSaved();
    void leavingChangesNothing_data();
    void leavingChangesNothing();
    void enterSaves();
};

namespace {

using Editing = TimerBarProductEditing;

} // namespace

void TestTimerBarProductEdit::slotsAreInOrder()
{
    QCOMPARE(ownSlots(TimerBarProductEdit::staticMetaObject),
             (QStringList{u"on_btnCancel_clicked()"_s, u"on_btnSave_clicked()"_s,
                          u"on_txtShortName_textChanged(QString arg1)"_s,
                          u"on_txtProductName_textChanged(QString arg1)"_s}));
}

// A value in each field, those of the dialog within its limits.
void TestTimerBarProductEdit::everyFieldStaysWhatItWas()
{
    const Editing editing(0, [](ProductInfo &product) {
        recordfields::fill(product);
        product.set_productName({u"Ham & Eggs"_s});
        product.set_productShortName(u"HAM"_s);
        product.set_upperTemp(217);
        product.set_lowerTemp(187);
        product.set_holdTime(72 * 60);
        product.set_warningTime(21 * 60);
    });
    const recordfields::Values before = recordfields::valuesOf(editing.product);
    editing.saveAccepted();
    const QStringList changed = recordfields::differences(before, recordfields::valuesOf(editing.product));
    QCOMPARE(changed.join(u", "_s), QString());
}

void TestTimerBarProductEdit::formShowsItsTexts_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("Fahrenheit") << 0 << u"(°F)"_s << 100 << 225;
    QTest::newRow("Celsius") << 1 << u"(°C)"_s << 38 << 107;
    QTest::newRow("any other unit") << 7 << u"(°F)"_s << 100 << 225;
}

void TestTimerBarProductEdit::formShowsItsTexts()
{
    QFETCH(int, unit);
    QFETCH(QString, suffix);
    QFETCH(int, least);
    QFETCH(int, most);
    const Editing editing(unit);
    QCOMPARE(editing.dialog->windowTitle(), u"Product Edit"_s);
    QCOMPARE(editing.get<QLabel>("lblTempUpper").text(), QString(u"Upper Temperature "_s + suffix));
    QCOMPARE(editing.get<QLabel>("lblTempLower").text(), QString(u"Lower Temperature "_s + suffix));
    for (const char *name : {"numTempUpper", "numTempLower"}) {
        QCOMPARE(editing.get<QSpinBox>(name).minimum(), least);
        QCOMPARE(editing.get<QSpinBox>(name).maximum(), most);
    }
    for (const char *name : {"timeHoldTime", "timeWarningTime"})
        QCOMPARE(editing.get<QTimeEdit>(name).displayFormat(), u"HH:mm"_s);
    QCOMPARE(editing.get<QLineEdit>("txtProductName").maxLength(), 25);
    QCOMPARE(editing.get<QLineEdit>("txtShortName").maxLength(), 4);
    QCOMPARE(editing.dialog->minimumSize(), editing.dialog->maximumSize());
    QVERIFY(editing.get<QLineEdit>("txtProductName").hasFocus());
}

void TestTimerBarProductEdit::fieldsShowTheProduct()
{
    const Editing editing;
    QCOMPARE(editing.get<QLineEdit>("txtProductName").text(), u"Bacon"_s);
    QCOMPARE(editing.get<QLineEdit>("txtShortName").text(), u"BACN"_s);
    QCOMPARE(editing.get<QSpinBox>("numTempUpper").value(), 215);
    QCOMPARE(editing.get<QSpinBox>("numTempLower").value(), 200);
    QCOMPARE(editing.get<QTimeEdit>("timeHoldTime").time(), QTime(1, 0));
    QCOMPARE(editing.get<QTimeEdit>("timeWarningTime").time(), QTime(0, 10));
}

void TestTimerBarProductEdit::fieldsShowTheProductInCelsius()
{
    const Editing editing(1);
    QCOMPARE(editing.get<QSpinBox>("numTempUpper").value(), 102);
    QCOMPARE(editing.get<QSpinBox>("numTempLower").value(), 93);
}

void TestTimerBarProductEdit::faultsComeInOrder()
{
    Editing editing;
    ui::type(*editing.dialog, "txtProductName", {});
    ui::type(*editing.dialog, "txtShortName", {});
    editing.enterTime("timeHoldTime", 0, 5);
    editing.enterTime("timeWarningTime", 9, 0);
    editing.saveRefused(u"Product name is empty!"_s);
    ui::type(*editing.dialog, "txtProductName", u"Ham"_s);
    editing.saveRefused(u"Product short name is empty!"_s);
    ui::type(*editing.dialog, "txtShortName", u"ham"_s);
    editing.saveRefused(u"Invalid hold time. Minimum value is 6 minutes!"_s);
    editing.enterTime("timeHoldTime", 8, 1);
    editing.saveRefused(u"Invalid hold time. Maximum value is 8 hours!"_s);
    editing.enterTime("timeHoldTime", 8, 0);
    editing.saveRefused(u"Invalid cook more alert time. Value must be less than hold time!"_s);
    editing.enterTime("timeWarningTime", 7, 59);
    editing.saveAccepted();
    QCOMPARE(editing.record(), (QStringList{u"Ham"_s, u"ham"_s, u"215"_s, u"200"_s, u"28800"_s, u"28740"_s}));
}

// Only an empty one is refused, although files lose a name's blanks at its end.
void TestTimerBarProductEdit::blankNameIsAName()
{
    Editing editing;
    ui::type(*editing.dialog, "txtProductName", u"  "_s);
    editing.saveAccepted();
    QCOMPARE(editing.product.get_productName(), QStringList{u"  "_s});
}

void TestTimerBarProductEdit::everythingIsSaved()
{
    Editing editing(0, [](ProductInfo &product) {
        product.set_productName({u"Bacon"_s, u"Speck"_s});
        product.set_productId(9);
        product.set_fanSpeed(60);
    });
    ui::type(*editing.dialog, "txtProductName", u"Turkey Leg 2"_s);
    ui::type(*editing.dialog, "txtShortName", u"tUr2"_s);
    ui::type(*editing.dialog, "numTempUpper", u"225"_s);
    ui::type(*editing.dialog, "numTempLower", u"155"_s);
    editing.enterTime("timeHoldTime", 2, 30);
    editing.enterTime("timeWarningTime", 1, 15);
    editing.saveAccepted();
    QCOMPARE(editing.record(),
             (QStringList{u"Turkey Leg 2"_s, u"tUr2"_s, u"225"_s, u"155"_s, u"9000"_s, u"4500"_s}));
    QCOMPARE(editing.product.get_productId(), 9);
    QCOMPARE(editing.product.get_fanSpeed(), 60);
}

void TestTimerBarProductEdit::leavingChangesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarProductEdit::leavingChangesNothing()
{
    QFETCH(bool, escape);
    Editing editing(1);
    const QStringList before = editing.record();
    ui::type(*editing.dialog, "txtProductName", u"Ham"_s);
    ui::type(*editing.dialog, "txtShortName", u"HAM"_s);
    ui::type(*editing.dialog, "numTempUpper", u"40"_s);
    ui::type(*editing.dialog, "numTempLower", u"40"_s);
    editing.enterTime("timeHoldTime", 2, 30);
    editing.enterTime("timeWarningTime", 1, 15);
    editing.dialog->setResult(1);
    if (escape)
        QTest::keyClick(editing.dialog.get(), Qt::Key_Escape);
    else
        ui::click(*editing.dialog, "btnCancel");
    QVERIFY(editing.dialog->isHidden());
    QCOMPARE(editing.dialog->result(), 0);
    QCOMPARE(editing.record(), before);
}

void TestTimerBarProductEdit::enterSaves()
{
    Editing editing;
    QTest::keyClicks(editing.dialog->focusWidget(), u"Ham"_s);
    QTest::keyClick(editing.dialog->focusWidget(), Qt::Key_Return);
    QCOMPARE(editing.dialog->result(), 1);
    QVERIFY(editing.product.get_productName().constFirst().contains(u"Ham"_s));
}

QTEST_MAIN(TestTimerBarProductEdit)
#include "tst_timerbarproductedit.moc"
