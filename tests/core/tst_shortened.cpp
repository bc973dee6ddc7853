// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/shortened.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// How much is shown of texts of any length.
class TestShortened : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void textIsShortened_data();
    void textIsShortened();
};

void TestShortened::textIsShortened_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown"); // in four characters
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("shorter") << u"Ham"_s << u"Ham"_s;
    QTest::newRow("as long") << u"Beef"_s << u"Beef"_s;
    QTest::newRow("longer") << u"Bacon"_s << u"Baco\u2026"_s;
    // Fries, a character of two places.
    QTest::newRow("pair at the end") << u"Ha\U0001F35F"_s << u"Ha\U0001F35F"_s;
    QTest::newRow("pair before the end") << u"Ha\U0001F35Fm"_s << u"Ha\U0001F35F\u2026"_s;
    QTest::newRow("pair across the end") << u"Ham\U0001F35Fs"_s << u"Ham\u2026"_s;
    QTest::newRow("pair behind the end") << u"Beef\U0001F35F"_s << u"Beef\u2026"_s;
    QTest::newRow("half a pair") << u"Ham\xd83cs"_s << u"Ham\xd83c\u2026"_s;
}

void TestShortened::textIsShortened()
{
    QFETCH(const QString, text);
    QTEST(shortened(text, 4), "shown");
    QCOMPARE(shortened(text, 0), text.isEmpty() ? QString() : u"\u2026"_s);
}

QTEST_APPLESS_MAIN(TestShortened)
#include "tst_shortened.moc"
