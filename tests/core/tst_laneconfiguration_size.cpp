// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "lanes/laneconfiguration.h"
#include "tests/support/lanefile.h"
#include "tests/support/warnings.h"

#include <sys/resource.h>

using namespace lanes;

namespace {

constexpr qsizetype quarter = 4 * 1024 * 1024;

// The most memory that this process has ever had, in bytes.
qint64 peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

QByteArray repeated(const QByteArray &part)
{
    return part.repeated(quarter / part.size());
}

// Fields of names that all differ.
QByteArray numberedFields()
{
    QByteArray fields;
    for (int number = 10; fields.size() < quarter; ++number)
        fields += ",T" + QByteArray::number(number) + "=1";
    return fields;
}

} // namespace

/// A large file whose lines and fields are tiny: a copy of each would take many times the file's size.
class TestLaneConfigurationSize : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void readInLittleMemory();
};

void TestLaneConfigurationSize::readInLittleMemory()
{
    const QByteArray fields = repeated(",T1=1") + numberedFields();
    const QByteArray text =
        repeated("x\n") + repeated("Identifier=1=\r\n") + lanefile::text("T1=1" + fields + ",T1=350,F1=1500");
    Configuration expected{1, {}};
    expected.lanes[0] = {350, 1500};
    Configuration read;
    const qint64 before = peakMemory();
    QCOMPARE(readConfiguration(text, read), QString());
    QVERIFY(read == expected);
    QCOMPARE_LT(peakMemory() - before, 6 * text.size());
}

QTEST_GUILESS_MAIN(TestLaneConfigurationSize)
#include "tst_laneconfiguration_size.moc"
