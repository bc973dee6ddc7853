// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>
#include <QTest>

#include "holding/temperaturebox.h"
#include "tests/gui/editproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// A temperature may be missing, but not lie between none and the lowest one.
class TestTemperatureBox : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void typed_data();
    void typed();
    void stepped_data();
    void stepped();
    void setByAProgram();
    void withoutNone();
    void savedFromTheDialog_data();
    void savedFromTheDialog();
};

void TestTemperatureBox::typed_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    QTest::newRow("a temperature") << 0 << u"45"_s << 45;
    QTest::newRow("the lowest") << 0 << u"32"_s << 32;
    QTest::newRow("the highest") << 0 << u"107"_s << 107;
    QTest::newRow("too low") << 0 << u"5"_s << 0;
    QTest::newRow("just too low") << 0 << u"31"_s << 0;
    QTest::newRow("too low after a temperature") << 60 << u"1"_s << 60;
    QTest::newRow("none again") << 60 << u"0"_s << 0;
}

void TestTemperatureBox::typed()
{
    QFETCH(int, before);
    QFETCH(QString, typed);
    TemperatureBox box;
    box.setTemperatures({32, 107}, true);
    box.setValue(before);
    ui::show(box);
    ui::type(box, typed);
    QTest::keyClick(&box, Qt::Key_Return);
    QTEST(box.value(), "value");
    QCOMPARE(box.text(), QString::number(box.value()));
}

void TestTemperatureBox::stepped_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("value");
    QTest::newRow("up from none") << 0 << 1 << 32;
    QTest::newRow("far up from none") << 0 << 10 << 32;
    QTest::newRow("down to none") << 32 << -1 << 0;
    QTest::newRow("far down to none") << 40 << -10 << 0;
    QTest::newRow("up") << 40 << 1 << 41;
    QTest::newRow("down") << 40 << -1 << 39;
    QTest::newRow("no further down") << 0 << -1 << 0;
    QTest::newRow("no further up") << 107 << 1 << 107;
}

void TestTemperatureBox::stepped()
{
    QFETCH(int, before);
    QFETCH(int, steps);
    TemperatureBox box;
    box.setTemperatures({32, 107}, true);
    box.setValue(before);
    box.stepBy(steps);
    QTEST(box.value(), "value");
}

void TestTemperatureBox::setByAProgram()
{
    TemperatureBox box;
    box.setTemperatures({32, 107}, true);
    for (int value = 1; value < 32; ++value) {
        box.setValue(0);
        box.setValue(value);
        QCOMPARE(box.value(), 32);
    }
}

void TestTemperatureBox::withoutNone()
{
    TemperatureBox box;
    box.setTemperatures({32, 107}, false);
    QCOMPARE(box.minimum(), 32);
    box.setValue(33);
    box.stepBy(-5);
    QCOMPARE(box.value(), 32);
}

void TestTemperatureBox::savedFromTheDialog_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("stored");
    QTest::newRow("too low: stays without one") << u"5"_s << 0;
    QTest::newRow("lowest") << u"32"_s << 90;
    QTest::newRow("a temperature") << u"45"_s << 113;
}

void TestTemperatureBox::savedFromTheDialog()
{
    QFETCH(QString, typed);
    OpenEditor editor(
        productedit::menuWith(samplefile::header(productedit::celsius()), {{u"upperTemp"_s, 0}}));
    productedit::edit(editor, [&](ProductEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "numTemp1", typed);
        productedit::save(dialog);
    });
    QTEST(productedit::savedProduct(editor).value(u"upperTemp"_s).toInt(), "stored");
}

QTEST_MAIN(TestTemperatureBox)
#include "tst_temperaturebox.moc"
