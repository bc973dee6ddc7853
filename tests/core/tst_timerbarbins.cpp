// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/bins.h"

using namespace Qt::StringLiterals;

class TestTimerBarBins : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void daypartsAreNamed();
    void neighbours_data();
    void neighbours();
    void neighbourOfTheSelectedDaypart();
    void fitting_data();
    void fitting();
    void reasonExactlyWhenUnfit_data();
    void reasonExactlyWhenUnfit();
    void reasons();
    void demands();
};

void TestTimerBarBins::daypartsAreNamed()
{
    QCOMPARE(timerbar::daypartNames(), (QStringList{u"Breakfast"_s, u"ChangeOver 1"_s, u"Lunch"_s,
                                                    u"ChangeOver 2"_s, u"Dinner"_s, u"ChangeOver 3"_s}));
    QCOMPARE(timerbar::daypartNames().size(), timerbar::daypartCount);
}

void TestTimerBarBins::neighbours_data()
{
    using Row = QList<int>;
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("upper"); // the products' temperatures are 100 + id and 200 + id
    QTest::addColumn<int>("lower");
    QTest::newRow("left of a product") << u"KTR22"_s << Row{100, 1, 100, 100} << 0 << 101 << 201;
    QTest::newRow("right of a product") << u"KTR22"_s << Row{2, 100, 100, 100} << 1 << 102 << 202;
    QTest::newRow("empty neighbour") << u"KTR22"_s << Row{1, 100, 100, 100} << 0 << 0 << 0;
    QTest::newRow("the bin's own product does not count")
        << u"KTR22"_s << Row{1, 2, 100, 100} << 1 << 101 << 201;
    QTest::newRow("unknown product") << u"KTR22"_s << Row{77, 100, 100, 100} << 1 << 0 << 0;
    QTest::newRow("second pair, left") << u"KTR24"_s << Row{1, 1, 100, 2} << 2 << 102 << 202;
    QTest::newRow("second pair, right") << u"KTR24"_s << Row{1, 1, 3, 2} << 3 << 103 << 203;
    QTest::newRow("pairs are apart") << u"KTR34"_s << Row{1, 1, 100, 100} << 2 << 0 << 0;
    QTest::newRow("first pair is apart too") << u"KTR34"_s << Row{100, 100, 2, 3} << 1 << 0 << 0;
    QTest::newRow("beside a bin that the model does not show")
        << u"KTR23"_s << Row{100, 100, 100, 3} << 2 << 103 << 203;
    QTest::newRow("single bin of a pair") << u"KTR23"_s << Row{1, 1, 100, 100} << 2 << 0 << 0;
}

void TestTimerBarBins::neighbours()
{
    QFETCH(QString, model);
    QFETCH(QList<int>, row);
    QFETCH(int, column);
    QFETCH(int, upper);
    QFETCH(int, lower);
    timerbar::Menu menu = sample::menuWithIds({1, 2, 3});
    menu.model = model;
    for (const auto &product : menu.products) {
        product->set_upperTemp(100 + product->get_productId());
        product->set_lowerTemp(200 + product->get_productId());
    }
    std::copy(row.begin(), row.end(), menu.dayparts[4][1].begin());
    const timerbar::ReferenceTemperatures expected{upper, lower};
    QCOMPARE(timerbar::neighbourTemperatures(menu, 4, {1, column}), expected);
}

void TestTimerBarBins::neighbourOfTheSelectedDaypart()
{
    timerbar::Menu menu = sample::menuWithIds({1});
    menu.dayparts[0][0][1] = 1;
    QCOMPARE(timerbar::neighbourTemperatures(menu, 0, {0, 0}), (timerbar::ReferenceTemperatures{200, 200}));
    QCOMPARE(timerbar::neighbourTemperatures(menu, 1, {0, 0}), timerbar::ReferenceTemperatures());
    QCOMPARE(timerbar::neighbourTemperatures(menu, 0, {1, 0}), timerbar::ReferenceTemperatures());
}

void TestTimerBarBins::fitting_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("referenceUpper");
    QTest::addColumn<int>("referenceLower");
    QTest::addColumn<bool>("fits");
    QTest::newRow("no neighbour") << 215 << 200 << 0 << 0 << true;
    QTest::newRow("no neighbour by its upper temperature alone") << 215 << 200 << 0 << 180 << true;
    QTest::newRow("same") << 215 << 215 << 215 << 215 << true;
    QTest::newRow("upper differs") << 216 << 215 << 215 << 215 << false;
    QTest::newRow("lower differs") << 215 << 214 << 215 << 215 << false;
    QTest::newRow("the reference's upper one is not compared") << 200 << 200 << 215 << 200 << true;
    QTest::newRow("not even by the same product") << 215 << 200 << 215 << 200 << false;
}

void TestTimerBarBins::fitting()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(int, referenceUpper);
    QFETCH(int, referenceLower);
    QFETCH(bool, fits);
    ProductInfo product;
    product.set_upperTemp(upper);
    product.set_lowerTemp(lower);
    QCOMPARE(timerbar::fitsNeighbour(product, {referenceUpper, referenceLower}), fits);
}

void TestTimerBarBins::reasonExactlyWhenUnfit_data()
{
    QTest::addColumn<int>("unit");
    QTest::newRow("Fahrenheit") << unitFahrenheit;
    QTest::newRow("Celsius") << unitCelsius;
}

void TestTimerBarBins::reasonExactlyWhenUnfit()
{
    QFETCH(const int, unit);
    constexpr std::array temperatures{0, 199, 200, 215};
    ProductInfo product;
    for (const int upper : temperatures) {
        for (const int lower : temperatures) {
            product.set_upperTemp(upper);
            product.set_lowerTemp(lower);
            for (const int otherUpper : temperatures) {
                for (const int otherLower : temperatures) {
                    const timerbar::ReferenceTemperatures reference{otherUpper, otherLower};
                    QCOMPARE(timerbar::misfitText(product, reference, unit).isEmpty(),
                             timerbar::fitsNeighbour(product, reference));
                }
            }
        }
    }
}

void TestTimerBarBins::reasons()
{
    ProductInfo product;
    product.set_upperTemp(216);
    product.set_lowerTemp(215);
    QCOMPARE(timerbar::misfitText(product, {225, 200}, unitFahrenheit),
             u"Does not fit: 216 °F / 215 °F, this pair holds 200 °F"_s);
    QCOMPARE(timerbar::misfitText(product, {225, 200}, unitCelsius),
             u"Does not fit: 102 °C / 102 °C, this pair holds 93 °C"_s);
    QCOMPARE(timerbar::misfitText(product, {225, 215}, unitCelsius), // the same in whole °C
             u"Does not fit: 216 °F / 215 °F, this pair holds 215 °F"_s);
}

void TestTimerBarBins::demands()
{
    QCOMPARE(timerbar::demandText({}, unitFahrenheit), u"Any product may stand here"_s);
    QCOMPARE(timerbar::demandText({225, 200}, unitFahrenheit), u"Needs 200 °F"_s);
    QCOMPARE(timerbar::demandText({225, 200}, unitCelsius), u"Needs 93 °C"_s);
}

QTEST_APPLESS_MAIN(TestTimerBarBins)
#include "tst_timerbarbins.moc"
