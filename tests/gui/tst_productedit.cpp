// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

#include "holding/configuration.h"
#include "tests/gui/editproduct.h"
#include "tests/support/slotlist.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace productedit;

namespace {

bool isShown(const ProductEdit &dialog, const char *frame)
{
    return ui::get<QFrame>(dialog, frame).isVisible();
}

QString shownIn(const ProductEdit &dialog, const char *comboBox)
{
    return ui::get<QComboBox>(dialog, comboBox).currentText();
}

QString choices(const ProductEdit &dialog, const char *comboBox)
{
    return ui::textsOf(ui::get<QComboBox>(dialog, comboBox)).join(u' ');
}

QString labelText(const ProductEdit &dialog, const char *label)
{
    return ui::get<QLabel>(dialog, label).text();
}

} // namespace

class TestProductEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void formShowsItsTexts();
    void recordIsShown();
    void rowsFollowTheSwitches_data();
    void rowsFollowTheSwitches();
    void rowsFollowTheCabinetType();
    void zoneSplitsFollowTheBinsPerZone_data();
    void zoneSplitsFollowTheBinsPerZone();
    void temperatures_data();
    void temperatures();
    void unknownWordsFallBack();
    void oddStoredTimesAreShownWithinADay();
    void unknownCabinetIsRefused_data();
    void unknownCabinetIsRefused();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void enterSaves_data();
    void enterSaves();
    void enterPressesTheFocusedButton();
};

void TestProductEdit::slotsAreInOrder()
{
    QCOMPARE(ownSlots(ProductEdit::staticMetaObject),
             (QStringList{u"on_btnTimerColor_clicked()"_s, u"on_btnCancel_clicked()"_s,
                          u"on_btnSave_clicked()"_s}));
}

void TestProductEdit::formShowsItsTexts()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(dialog.windowTitle(), u"Product Edit"_s);
        QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
        const QList<std::pair<const char *, QString>> labels{
            {"lblProductId", u"Id"_s},
            {"lblName", u"Name"_s},
            {"lblTemp1", u"Upper Temperature (°F)"_s},
            {"lblTemp2", u"Lower Temperature (°F)"_s},
            {"lblHoldTime", u"Hold Time"_s},
            {"lblWarningTime", u"Cook More Alert Time"_s},
            {"lblResetTime", u"Reset Time"_s},
            {"lblFanSpeed", u"Fan Speed (RPM)"_s},
            {"lblZoneSplits", u"Zone Splits"_s},
            {"lblLidType", u"Lid Type"_s},
            {"lblBottomType", u"Bottom Type"_s},
            {"lblTimerColor", u"Timer Color"_s},
        };
        for (const auto &[name, text] : labels) {
            QCOMPARE(labelText(dialog, name), text);
            QCOMPARE(ui::get<QLabel>(dialog, name).width(), 180);
        }
        for (const char *time : {"timeHoldTime", "timeWarningTime", "timeResetTime"}) {
            const auto &timeEdit = ui::get<QTimeEdit>(dialog, time);
            QCOMPARE(timeEdit.displayFormat(), u"HH:mm:ss"_s);
            QCOMPARE(timeEdit.minimumTime(), QTime(0, 0));
            QCOMPARE(timeEdit.maximumTime().toString(u"HH:mm:ss"_s), u"23:59:59"_s);
        }
        QCOMPARE(spinBox(dialog, "numProductId").minimum(), 1);
        QCOMPARE(spinBox(dialog, "numProductId").maximum(), 99);
        QCOMPARE(spinBox(dialog, "numFanSpeed").minimum(), 0);
        QCOMPARE(spinBox(dialog, "numFanSpeed").maximum(), 10000);
        QCOMPARE(choices(dialog, "comboLidType"), u"None Solid Vented"_s);
        QCOMPARE(choices(dialog, "comboBottomType"), u"False Normal"_s);
        QCOMPARE(ui::get<QPushButton>(dialog, "btnCancel").text(), u"Cancel"_s);
        QCOMPARE(ui::get<QPushButton>(dialog, "btnSave").text(), u"Save"_s);
        QVERIFY(ui::get<QPushButton>(dialog, "btnSave").isDefault());
        QVERIFY(ui::get<QLineEdit>(dialog, "txtName").hasFocus());
        cancel(dialog);
    });
}

void TestProductEdit::recordIsShown()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches(), {{u"upperTemp"_s, 210},
                                                                     {u"lowerTemp"_s, 190},
                                                                     {u"holdingTime"_s, 3723},
                                                                     {u"warningTime"_s, 61},
                                                                     {u"resetTime"_s, 59},
                                                                     {u"fanSpeed"_s, 1200},
                                                                     {u"zoneSplits"_s, u"1/1"_s},
                                                                     {u"lidType"_s, u"Vented"_s},
                                                                     {u"bottomType"_s, u"False"_s},
                                                                     {u"timerColor"_s, u"#0000cf"_s}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(spinBox(dialog, "numProductId").value(), 1);
        QCOMPARE(ui::get<QLineEdit>(dialog, "txtName").text(), u"Bacon"_s);
        QCOMPARE(spinBox(dialog, "numTemp1").value(), 210);
        QCOMPARE(spinBox(dialog, "numTemp2").value(), 190);
        QCOMPARE(timeIn(dialog, "timeHoldTime"), QTime(1, 2, 3));
        QCOMPARE(timeIn(dialog, "timeWarningTime"), QTime(0, 1, 1));
        QCOMPARE(timeIn(dialog, "timeResetTime"), QTime(0, 0, 59));
        QCOMPARE(spinBox(dialog, "numFanSpeed").value(), 1200);
        QCOMPARE(shownIn(dialog, "comboZoneSplits"), u"1/1"_s);
        QCOMPARE(shownIn(dialog, "comboLidType"), u"Vented"_s);
        QCOMPARE(shownIn(dialog, "comboBottomType"), u"False"_s);
        const auto &color = ui::get<QPushButton>(dialog, "btnTimerColor");
        QCOMPARE(color.text(), u"SampleText"_s);
        QCOMPARE(color.accessibleName(), u"Timer Color"_s);
        QCOMPARE(color.styleSheet(), u"background-color: rgb(0,0,207); color: rgb(160, 160, 160);"_s);
        cancel(dialog);
    });
}

void TestProductEdit::rowsFollowTheSwitches_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("frame");
    QTest::newRow("id") << u"prodcutIdEnabled"_s << u"frameProductId"_s;
    QTest::newRow("fan speed") << u"fanSpeedEnabled"_s << u"frameFanSpeed"_s;
    QTest::newRow("reset time") << u"resetTimeEnabled"_s << u"frameResetTime"_s;
    QTest::newRow("timer color") << u"timerColorEnabled"_s << u"frameTimerColor"_s;
}

void TestProductEdit::rowsFollowTheSwitches()
{
    QFETCH(QString, key);
    QFETCH(QString, frame);
    OpenEditor editor(menuWith(samplefile::header({{key, true}})));
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
        for (const char *row : {"frameProductId", "frameFanSpeed", "frameResetTime", "frameTimerColor"})
            QCOMPARE(isShown(dialog, row), frame == QLatin1StringView(row));
        for (const char *row : {"frameName", "frameTemp1", "frameTemp2", "frameHoldTime", "frameWarningTime",
                                "frameZoneSplits", "frameLidType", "frameBottomType"})
            QVERIFY2(isShown(dialog, row), row);
        cancel(dialog);
    });
}

void TestProductEdit::rowsFollowTheCabinetType()
{
    OpenEditor editor(menuWith(samplefile::header(zpv(celsius()))));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(labelText(dialog, "lblTemp1"), u"Temperature (°C)"_s);
        QVERIFY(isShown(dialog, "frameTemp1"));
        QVERIFY(!isShown(dialog, "frameTemp2"));
        QVERIFY(!isShown(dialog, "frameLidType"));
        QVERIFY(isShown(dialog, "frameBottomType"));
        cancel(dialog);
    });
    OpenEditor other(menuWith(samplefile::header(celsius())));
    edit(other, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(labelText(dialog, "lblTemp1"), u"Upper Temperature (°C)"_s);
        QCOMPARE(labelText(dialog, "lblTemp2"), u"Lower Temperature (°C)"_s);
        cancel(dialog);
    });
}

void TestProductEdit::zoneSplitsFollowTheBinsPerZone_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QStringList>("choices");
    QTest::newRow("2 bins") << u"KTR34"_s << QStringList{u"1/2"_s, u"1/1"_s};
    QTest::newRow("3 bins") << u"KTR63"_s << QStringList{u"1/3"_s, u"1/2"_s, u"2/3"_s, u"1/1"_s};
}

void TestProductEdit::zoneSplitsFollowTheBinsPerZone()
{
    QFETCH(QString, model);
    QFETCH(QStringList, choices);
    OpenEditor editor(
        menuWith(samplefile::header({{u"cabinetModel"_s, model}}), {{u"zoneSplits"_s, u"9/9"_s}}));
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
        const auto &combo = ui::get<QComboBox>(dialog, "comboZoneSplits");
        QCOMPARE(ui::textsOf(combo), choices);
        QCOMPARE(combo.currentIndex(), 0);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"zoneSplits"_s).toString(), choices.constFirst());
}

void TestProductEdit::temperatures_data()
{
    QTest::addColumn<bool>("inCelsius");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("saved");
    QTest::newRow("90 °F") << false << 90 << 90 << 90;
    QTest::newRow("225 °F") << false << 225 << 225 << 225;
    QTest::newRow("89 °F is raised") << false << 89 << 90 << 90;
    QTest::newRow("226 °F is lowered") << false << 226 << 225 << 225;
    QTest::newRow("none in °F is raised") << false << 0 << 90 << 90;
    QTest::newRow("none in °C stays") << true << 0 << 0 << 0;
    QTest::newRow("212 °F in °C") << true << 212 << 100 << 212;
    QTest::newRow("160 °F in °C") << true << 160 << 71 << 160;
    QTest::newRow("33 °F in °C is raised") << true << 33 << 32 << 90;
    QTest::newRow("90 °F in °C") << true << 90 << 32 << 90;
    QTest::newRow("225 °F in °C") << true << 225 << 107 << 225;
    QTest::newRow("300 °F in °C is lowered") << true << 300 << 107 << 225;
    QTest::newRow("201 °F in °C") << true << 201 << 94 << 201;
    QTest::newRow("200 °F in °C stays") << true << 200 << 93 << 200;
    QTest::newRow("215 °F in °C stays") << true << 215 << 102 << 215;
    QTest::newRow("226 °F in °C is lowered") << true << 226 << 107 << 225;
    QTest::newRow("a negative one in °C") << true << -40 << 32 << 90;
}

void TestProductEdit::temperatures()
{
    QFETCH(bool, inCelsius);
    QFETCH(int, stored);
    QFETCH(int, shown);
    QFETCH(int, saved);
    const QJsonObject header = samplefile::header(inCelsius ? celsius() : QJsonObject());
    for (const QString &key : {u"upperTemp"_s, u"lowerTemp"_s}) {
        OpenEditor editor(menuWith(header, {{key, stored}}));
        const bool isUpper = key == "upperTemp"_L1;
        edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
            const QSpinBox &box = spinBox(dialog, isUpper ? "numTemp1" : "numTemp2");
            const QSpinBox &other = spinBox(dialog, isUpper ? "numTemp2" : "numTemp1");
            QCOMPARE(box.value(), shown);
            QCOMPARE(box.minimum(), inCelsius ? (stored == 0 ? 0 : 32) : 90);
            QCOMPARE(other.minimum(), inCelsius ? 32 : 90);
            QCOMPARE(box.maximum(), inCelsius ? 107 : 225);
            QCOMPARE(other.maximum(), inCelsius ? 107 : 225);
            save(dialog);
        });
        QCOMPARE(savedProduct(editor).value(key).toInt(), saved);
    }
}

void TestProductEdit::unknownWordsFallBack()
{
    OpenEditor editor(menuWith(
        samplefile::headerWithAllSwitches(),
        {{u"lidType"_s, u"solid"_s}, {u"bottomType"_s, u"Wire"_s}, {u"timerColor"_s, u"#FF0000"_s}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownIn(dialog, "comboLidType"), u"None"_s);
        QCOMPARE(shownIn(dialog, "comboBottomType"), u"Normal"_s);
        const auto &color = ui::get<QPushButton>(dialog, "btnTimerColor");
        QCOMPARE(color.text(), QString());
        QCOMPARE(color.styleSheet(), u"border-image: url(:/images/noColor.png);"_s);
        save(dialog);
    });
    const QJsonObject product = savedProduct(editor);
    QCOMPARE(product.value(u"lidType"_s).toString(), u"None"_s);
    QCOMPARE(product.value(u"bottomType"_s).toString(), u"Normal"_s);
    QCOMPARE(product.value(u"timerColor"_s).toString(), u"#fffffd"_s);
}

void TestProductEdit::oddStoredTimesAreShownWithinADay()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches(), {{u"holdingTime"_s, 2147483647},
                                                                     {u"warningTime"_s, -1},
                                                                     {u"resetTime"_s, -2147483647},
                                                                     {u"fanSpeed"_s, -5}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(timeIn(dialog, "timeHoldTime"), QTime(3, 14, 7));
        QCOMPARE(timeIn(dialog, "timeWarningTime"), QTime(23, 59, 59));
        QCOMPARE(spinBox(dialog, "numFanSpeed").value(), 0);
        cancel(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"holdingTime"_s).toInt(), 2147483647);
}

void TestProductEdit::unknownCabinetIsRefused_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("model") << u"QHX"_s << QStringList{u"Invalid bins per zone value!"_s};
    QTest::newRow("type") << u"XYZ"_s
                          << QStringList{u"Invalid bins per zone value!"_s, u"Unkown cabinet type!"_s};
}

void TestProductEdit::unknownCabinetIsRefused()
{
    QFETCH(QString, type);
    QFETCH(QStringList, messages);
    const TestFolder folder;
    const samplefile::Menu menu =
        menuWith(samplefile::header({{u"cabinetType"_s, type}, {u"cabinetModel"_s, u"KTR99"_s}}));
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    answers.expectBox(ModalAnswers::fileFault(u"File read canceled. Unkown configuration!"_s),
                      QMessageBox::Ok);
    MenuFile editor(folder.make(u"menu.json"_s, menu.bytes()));
    for (const QString &message : messages)
        answers.expectBox(ModalAnswers::refusal(message), QMessageBox::Close);
    ProductInfo product;
    ProductEdit dialog(product, 0, &editor);
    QVERIFY(answers.allAnswered());
    QCOMPARE(dialog.exec(), int(QDialog::Rejected)); // shown, it would be an unexpected dialog
}

void TestProductEdit::cancelChangesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestProductEdit::cancelChangesNothing()
{
    QFETCH(bool, escape);
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    const QJsonObject before = editor.saved();
    edit(editor, [escape](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Ham"_s);
        ui::type(dialog, "numTemp1", u"100"_s);
        ui::enterTime(dialog, "timeHoldTime", {1, 2, 3});
        ui::choose(dialog, "comboLidType", u"Vented"_s);
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            cancel(dialog);
    });
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.products().item(0)->text(), u"  1 Bacon"_s);
}

void TestProductEdit::enterSaves_data()
{
    QTest::addColumn<QByteArray>("input");
    for (const char *input : {"txtName", "numTemp1", "timeHoldTime", "comboLidType", "numProductId"})
        QTest::newRow(input) << QByteArray(input);
}

void TestProductEdit::enterSaves()
{
    QFETCH(QByteArray, input);
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Ham"_s);
        auto &widget = ui::get<QWidget>(dialog, input.constData());
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    QCOMPARE(savedProduct(editor).value(u"productName"_s).toObject(), samplefile::names(u"Ham"_s));
}

void TestProductEdit::enterPressesTheFocusedButton()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    const QJsonObject before = editor.saved();
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Ham"_s);
        auto &button = ui::get<QPushButton>(dialog, "btnCancel");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
    });
    QCOMPARE(editor.saved(), before);
}

QTEST_MAIN(TestProductEdit)
#include "tst_productedit.moc"
