// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/crc16.h"

class TestCrc16 : public QObject
{
    Q_OBJECT

private slots:
    void checkValue_data();
    void checkValue();
    void resumes_data() { checkValue_data(); }
    void resumes();
};

void TestCrc16::checkValue_data()
{
    QTest::addColumn<quint16>("seed");
    QTest::addColumn<quint16>("expected");
    QTest::newRow("menu files, CRC-16/MODBUS") << crc16MenuSeed << quint16(0x4B37);
    QTest::newRow("lane identifier, CRC-16/ARC") << crc16IdentifierSeed << quint16(0xBB3D);
}

void TestCrc16::checkValue()
{
    QFETCH(quint16, seed);
    QFETCH(quint16, expected);
    QCOMPARE(crc16("123456789", 9, seed), expected);
    QCOMPARE(crc16(nullptr, 0, seed), seed);
}

void TestCrc16::resumes()
{
    QFETCH(quint16, seed);
    QFETCH(quint16, expected);
    const QByteArray digits("123456789");
    for (qsizetype split = 0; split <= digits.size(); ++split) {
        const quint16 first = crc16(digits.constData(), split, seed);
        QCOMPARE(crc16(digits.constData() + split, digits.size() - split, first), expected);
    }
}

QTEST_APPLESS_MAIN(TestCrc16)
#include "tst_crc16.moc"
