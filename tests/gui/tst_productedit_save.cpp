// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/editproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace productedit;

class TestProductEditSave : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void savedValuesAreWritten();
    void idIsNeverWritten();
    void checksComeInOrder();
    void bounds_data();
    void bounds();
    void idMayNotBeAnotherProducts();
    void idIsCheckedOnlyWhileItIsShown();
    void groupsMayShareAnId();
    void newProductMayNotTakeAnId();
    void idOutsideTheBoxIsItsOwn_data();
    void idOutsideTheBoxIsItsOwn();
    void hundredthProductCanBeSaved();
    void resetTimeIsCheckedOnlyWhileItIsShown();
    void blankIsAName();
    void longNameIsKept();
    void switchedOffValuesAreSavedAsNothing();
    void lidAndBottomAreSavedAsWords_data();
    void lidAndBottomAreSavedAsWords();
    void zpvSavesOneTemperature();
    void enteredCelsiusIsStored();
};

void TestProductEditSave::savedValuesAreWritten()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches(), {{u"productLocked"_s, true}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Ham"_s);
        ui::type(dialog, "numTemp1", u"220"_s);
        ui::type(dialog, "numTemp2", u"91"_s);
        ui::enterTime(dialog, "timeHoldTime", {2, 3, 4});
        ui::enterTime(dialog, "timeWarningTime", {1, 0, 1});
        ui::enterTime(dialog, "timeResetTime", {0, 0, 7});
        ui::type(dialog, "numFanSpeed", u"10000"_s);
        ui::choose(dialog, "comboZoneSplits", u"1/1"_s);
        ui::choose(dialog, "comboLidType", u"Solid"_s);
        ui::choose(dialog, "comboBottomType", u"False"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor), samplefile::product(1, u"Ham"_s,
                                                       {{u"upperTemp"_s, 220},
                                                        {u"lowerTemp"_s, 91},
                                                        {u"holdingTime"_s, 7384},
                                                        {u"warningTime"_s, 3601},
                                                        {u"resetTime"_s, 7},
                                                        {u"fanSpeed"_s, 10000},
                                                        {u"zoneSplits"_s, u"1/1"_s},
                                                        {u"lidType"_s, u"Solid"_s},
                                                        {u"bottomType"_s, u"False"_s},
                                                        {u"productLocked"_s, true}}));
}

void TestProductEditSave::idIsNeverWritten()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "numProductId", u"77"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"productId"_s).toInt(), 1);
}

void TestProductEditSave::checksComeInOrder()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    const QJsonObject before = savedProduct(editor);
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &answers) {
        ui::type(dialog, "numProductId", u"3"_s);
        ui::type(dialog, "txtName", {});
        ui::enterTime(dialog, "timeHoldTime", {0, 0});
        ui::enterTime(dialog, "timeWarningTime", {10, 0});
        ui::enterTime(dialog, "timeResetTime", {2, 0});
        saveRefused(dialog, answers, u"Product Id is duplicated!"_s);
        ui::type(dialog, "numProductId", u"1"_s);
        saveRefused(dialog, answers, u"Product name is empty!"_s);
        ui::type(dialog, "txtName", u"Ham"_s);
        saveRefused(dialog, answers, u"Invalid hold time. Minimum value is 6 minutes!"_s);
        ui::enterTime(dialog, "timeHoldTime", {8, 0, 1});
        saveRefused(dialog, answers, u"Invalid hold time. Maximum value is 8 hours!"_s);
        ui::enterTime(dialog, "timeHoldTime", {8, 0});
        saveRefused(dialog, answers, u"Invalid cook more alert time. Value must be less than hold time!"_s);
        ui::enterTime(dialog, "timeWarningTime", {7, 59, 59});
        saveRefused(dialog, answers, u"Invalid reset time!"_s);
        QCOMPARE(savedProduct(editor), before);
        ui::enterTime(dialog, "timeResetTime", {0, 59, 59});
        save(dialog);
    });
    QCOMPARE(
        savedProduct(editor),
        samplefile::product(1, u"Ham"_s,
                            {{u"holdingTime"_s, 28800}, {u"warningTime"_s, 28799}, {u"resetTime"_s, 3599}}));
}

void TestProductEditSave::bounds_data()
{
    QTest::addColumn<QTime>("hold");
    QTest::addColumn<QTime>("warning");
    QTest::addColumn<QTime>("reset");
    QTest::addColumn<QString>("message");
    const QTime alert(0, 5);
    const QTime reset(0, 5);
    const QString tooShort = u"Invalid hold time. Minimum value is 6 minutes!"_s;
    const QString tooLong = u"Invalid hold time. Maximum value is 8 hours!"_s;
    const QString tooLate = u"Invalid cook more alert time. Value must be less than hold time!"_s;
    QTest::newRow("hold 05:59") << QTime(0, 5, 59) << alert << reset << tooShort;
    QTest::newRow("hold 06:00") << QTime(0, 6) << alert << reset << QString();
    QTest::newRow("hold 8 h") << QTime(8, 0) << alert << reset << QString();
    QTest::newRow("hold 8 h and a second") << QTime(8, 0, 1) << alert << reset << tooLong;
    QTest::newRow("hold 23:59:59") << QTime(23, 59, 59) << alert << reset << tooLong;
    QTest::newRow("alert at hold") << QTime(1, 0) << QTime(1, 0) << reset << tooLate;
    QTest::newRow("alert after hold") << QTime(1, 0) << QTime(1, 0, 1) << reset << tooLate;
    QTest::newRow("alert before hold") << QTime(1, 0) << QTime(0, 59, 59) << reset << QString();
    QTest::newRow("no alert") << QTime(1, 0) << QTime(0, 0) << reset << QString();
    QTest::newRow("reset 59:59") << QTime(1, 0) << alert << QTime(0, 59, 59) << QString();
    QTest::newRow("reset 1 h") << QTime(1, 0) << alert << QTime(1, 0) << u"Invalid reset time!"_s;
    QTest::newRow("no reset") << QTime(1, 0) << alert << QTime(0, 0) << QString();
}

void TestProductEditSave::bounds()
{
    QFETCH(QTime, hold);
    QFETCH(QTime, warning);
    QFETCH(QTime, reset);
    QFETCH(QString, message);
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    QJsonObject expected = savedProduct(editor);
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &answers) {
        ui::enterTime(dialog, "timeHoldTime", hold);
        ui::enterTime(dialog, "timeWarningTime", warning);
        ui::enterTime(dialog, "timeResetTime", reset);
        if (message.isEmpty()) {
            save(dialog);
        } else {
            saveRefused(dialog, answers, message);
            cancel(dialog);
        }
    });
    if (message.isEmpty()) {
        expected.insert(u"holdingTime"_s, QTime(0, 0).secsTo(hold));
        expected.insert(u"warningTime"_s, QTime(0, 0).secsTo(warning));
        expected.insert(u"resetTime"_s, QTime(0, 0).secsTo(reset));
    }
    QCOMPARE(savedProduct(editor), expected);
}

void TestProductEditSave::idMayNotBeAnotherProducts()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    edit(editor, 1, [](ProductEdit &dialog, ModalAnswers &answers) {
        ui::type(dialog, "numProductId", u"1"_s);
        saveRefused(dialog, answers, u"Product Id is duplicated!"_s);
        ui::type(dialog, "numProductId", u"3"_s);
        saveRefused(dialog, answers, u"Product Id is duplicated!"_s);
        ui::type(dialog, "numProductId", u"2"_s);
        save(dialog);
    });
}

void TestProductEditSave::idIsCheckedOnlyWhileItIsShown()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.products[1] = samplefile::product(1, u"Twin"_s);
    OpenEditor editor(menu);
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Ham"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"productName"_s).toObject(), samplefile::names(u"Ham"_s));
}

void TestProductEditSave::groupsMayShareAnId()
{
    samplefile::Menu menu = menuWith(samplefile::headerWithAllSwitches());
    menu.groups = {samplefile::group(9, u"Meats"_s, {2})};
    OpenEditor editor(menu);
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "numProductId", u"9"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"productId"_s).toInt(), 1);
}

void TestProductEditSave::newProductMayNotTakeAnId()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    ModalAnswers answers;
    answers.expect<ProductEdit>([&](ProductEdit &dialog) {
        QCOMPARE(spinBox(dialog, "numProductId").value(), 4);
        ui::type(dialog, "txtName", u"Ham"_s);
        ui::type(dialog, "numProductId", u"3"_s);
        saveRefused(dialog, answers, u"Product Id is duplicated!"_s);
        ui::type(dialog, "numProductId", u"4"_s);
        save(dialog);
    });
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(editor->getMenuProducts().size(), 4);
}

void TestProductEditSave::idOutsideTheBoxIsItsOwn_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("otherId"); // what the box shows for the id
    QTest::newRow("one too many") << 100 << 99;
    QTest::newRow("far above") << 150 << 99;
    QTest::newRow("negative") << -5 << 1;
}

void TestProductEditSave::idOutsideTheBoxIsItsOwn()
{
    QFETCH(int, id);
    QFETCH(int, otherId);
    samplefile::Menu menu = menuWith(samplefile::headerWithAllSwitches());
    menu.products = {samplefile::product(id, u"Bacon"_s), samplefile::product(otherId, u"Chili"_s)};
    OpenEditor editor(menu);
    edit(editor, [otherId](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(spinBox(dialog, "numProductId").value(), otherId);
        ui::type(dialog, "txtName", u"Ham"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor), samplefile::product(id, u"Ham"_s));
}

void TestProductEditSave::hundredthProductCanBeSaved()
{
    samplefile::Menu menu = menuWith(samplefile::headerWithAllSwitches());
    menu.products = {};
    for (int id = 1; id <= 99; ++id)
        menu.products.append(samplefile::product(id, u"Bacon"_s));
    OpenEditor editor(menu);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Ham"_s);
        save(dialog);
    });
    ui::click(*editor, "btnAddProduct");
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor->getMenuProducts().size(), 100);
    QCOMPARE(editor->getMenuProducts().constLast()->get_productId(), 100);
}

void TestProductEditSave::resetTimeIsCheckedOnlyWhileItIsShown()
{
    OpenEditor editor(menuWith(samplefile::header(), {{u"resetTime"_s, 7200}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(timeIn(dialog, "timeResetTime"), QTime(2, 0));
        save(dialog);
    });
    QCOMPARE(editor->getMenuProducts().constFirst()->get_resetTime(), 0);
}

void TestProductEditSave::blankIsAName()
{
    OpenEditor editor(menuWith(samplefile::header()));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u" "_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"productName"_s).toObject(), samplefile::names(u" "_s));
}

void TestProductEditSave::longNameIsKept()
{
    const QString name(20000, u'W');
    OpenEditor editor(menuWith(samplefile::header(), {{u"productName"_s, samplefile::names(name)}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        QCOMPARE(dialog.size(), dialog.minimumSize());
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"productName"_s).toObject(), samplefile::names(name));
}

void TestProductEditSave::switchedOffValuesAreSavedAsNothing()
{
    OpenEditor editor(menuWith(samplefile::header(), {{u"timerColor"_s, u"#ff0000"_s}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) { save(dialog); });
    const ProductInfo *product = editor->getMenuProducts().constFirst();
    QCOMPARE(product->get_fanSpeed(), 0);
    QCOMPARE(product->get_resetTime(), 0);
    QCOMPARE(product->get_timerColor(), u"#fffffd"_s);
}

void TestProductEditSave::lidAndBottomAreSavedAsWords_data()
{
    QTest::addColumn<QString>("lid");
    QTest::addColumn<QString>("bottom");
    QTest::newRow("None, False") << u"None"_s << u"False"_s;
    QTest::newRow("Solid, Normal") << u"Solid"_s << u"Normal"_s;
    QTest::newRow("Vented, False") << u"Vented"_s << u"False"_s;
}

void TestProductEditSave::lidAndBottomAreSavedAsWords()
{
    QFETCH(QString, lid);
    QFETCH(QString, bottom);
    OpenEditor editor(menuWith(samplefile::header()));
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
        ui::choose(dialog, "comboLidType", lid);
        ui::choose(dialog, "comboBottomType", bottom);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"lidType"_s).toString(), lid);
    QCOMPARE(savedProduct(editor).value(u"bottomType"_s).toString(), bottom);
}

void TestProductEditSave::zpvSavesOneTemperature()
{
    OpenEditor editor(menuWith(samplefile::header(zpv()), {{u"upperTemp"_s, 210}, {u"lowerTemp"_s, 190}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) { save(dialog); });
    QCOMPARE(savedProduct(editor).value(u"upperTemp"_s).toInt(), 210);
    QCOMPARE(savedProduct(editor).value(u"lowerTemp"_s).toInt(), 210);
}

void TestProductEditSave::enteredCelsiusIsStored()
{
    OpenEditor editor(
        menuWith(samplefile::header(celsius()), {{u"upperTemp"_s, 200}, {u"lowerTemp"_s, 200}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "numTemp1", u"94"_s);
        ui::type(dialog, "numTemp2", u"92"_s);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"upperTemp"_s).toInt(), 201);
    QCOMPARE(savedProduct(editor).value(u"lowerTemp"_s).toInt(), 198);
}

QTEST_MAIN(TestProductEditSave)
#include "tst_productedit_save.moc"
