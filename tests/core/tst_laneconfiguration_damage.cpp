// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "lanes/laneconfiguration.h"
#include "tests/support/corruption.h"
#include "tests/support/lanefile.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace lanes;

namespace {

const Configuration sample{3, {{{{150, 1500}, {400, 3200}, {276, 2047}, {375, 1800}}}}};

bool isKnownMessage(const QString &message)
{
    return QStringList{u"Invalid file format"_s, u"Invalid file identifier value"_s,
                       u"Invalid file contents"_s}
        .contains(message);
}

// Whatever became of the file: a message, or exactly what had been written.
void checkMessageOrSample(const QByteArray &damaged)
{
    if (QTest::currentTestFailed())
        return;
    Configuration read;
    const QString message = readConfiguration(damaged, read);
    if (message.isEmpty())
        REQUIRE(read == sample, QString::fromLatin1(damaged));
    else
        REQUIRE(isKnownMessage(message), message);
}

// The checksum does not help where the damaged line is sealed anew.
void checkMessageOrSaneConfiguration(const QByteArray &contents)
{
    if (QTest::currentTestFailed())
        return;
    const QByteArray summed = QString::fromUtf8(contents).toLatin1();
    Configuration read;
    const QString message = readConfiguration(lanefile::text(contents, lanefile::identifierOf(summed)), read);
    if (!message.isEmpty()) {
        REQUIRE(isKnownMessage(message), message);
        return;
    }
    REQUIRE(read.laneCount >= 1 && read.laneCount <= maxLanes);
    const Lane &last = read.lanes[std::size_t(read.laneCount - 1)];
    REQUIRE(last.temperature != 0 && last.fanSpeed != 0);
    Configuration again;
    REQUIRE_EQUAL(readConfiguration(writeConfiguration(read), again), QString());
    REQUIRE(again == read);
    REQUIRE_EQUAL(writeProductionRecord(read).size(), 46);
}

QByteArray contentsOf(const QByteArray &text)
{
    return text.sliced(text.lastIndexOf('\n') + 1);
}

} // namespace

/// Files that were damaged on the way.
class TestLaneConfigurationDamage : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void truncationsAreRefused();
    void everyOtherByteAtEveryPlace();
    void missingAndDoubledBytes();
    void sealedAnew();
};

void TestLaneConfigurationDamage::truncationsAreRefused()
{
    forEachTruncation(writeConfiguration(sample), [](const QByteArray &damaged) {
        Configuration read;
        REQUIRE(isKnownMessage(readConfiguration(damaged, read)), QString::fromLatin1(damaged));
    });
}

void TestLaneConfigurationDamage::everyOtherByteAtEveryPlace()
{
    const QByteArray good = writeConfiguration(sample);
    for (qsizetype i = 0; i < good.size(); ++i) {
        QByteArray damaged = good;
        for (int byte = 0; byte < 256; ++byte) {
            damaged[i] = static_cast<char>(byte);
            checkMessageOrSample(damaged);
        }
    }
}

void TestLaneConfigurationDamage::missingAndDoubledBytes()
{
    const QByteArray good = writeConfiguration(sample);
    for (qsizetype i = 0; i < good.size(); ++i) {
        checkMessageOrSample(QByteArray(good).remove(i, 1));
        checkMessageOrSample(QByteArray(good).insert(i, good[i]));
    }
}

void TestLaneConfigurationDamage::sealedAnew()
{
    const QByteArray contents = contentsOf(writeConfiguration(sample));
    forEachTruncation(contents, checkMessageOrSaneConfiguration);
    forEachBitFlip(contents, checkMessageOrSaneConfiguration);
}

QTEST_GUILESS_MAIN(TestLaneConfigurationDamage)
#include "tst_laneconfiguration_damage.moc"
