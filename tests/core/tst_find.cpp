// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/find.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Which entries are found by what is typed.
class TestFind : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void words_data();
    void words();
    void matches_data();
    void matches();
    void longNamesAreSearchedAsFarAsTheyAreShown();
};

void TestFind::words_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("nothing") << QString() << QStringList();
    QTest::newRow("blanks") << u" \t\u3000\u00a0"_s << QStringList();
    QTest::newRow("two words") << u"  Ham  Steak "_s << QStringList{u"ham"_s, u"steak"_s};
    QTest::newRow("an accent alone") << u"\u0301"_s << QStringList();
}

void TestFind::words()
{
    QFETCH(const QString, typed);
    QTEST(findWords(typed), "words");
}

void TestFind::matches_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("found"); // with the number 12
    const auto add = [](const char *row, const QString &typed, const QString &name, bool found) {
        QTest::newRow(row) << typed << name << found;
    };
    add("nothing typed", {}, u"Bacon"_s, true);
    add("no name", u"b"_s, {}, false);
    add("beginning", u"bac"_s, u"Bacon"_s, true);
    add("middle", u"con"_s, u"Bacon"_s, true);
    add("more than the name", u"bacons"_s, u"Bacon"_s, false);
    add("other case", u"HASH"_s, u"hash Browns"_s, true);
    add("every word", u"brown ha"_s, u"Hash Browns"_s, true);
    add("one word of two", u"hash x"_s, u"Hash Browns"_s, false);
    add("words apart only", u"hashb"_s, u"Hash Browns"_s, false);
    add("number", u"12"_s, u"Bacon"_s, true);
    add("part of the number", u"2"_s, u"Bacon"_s, true);
    add("other number", u"21"_s, u"Bacon"_s, false);
    add("number and name", u"12 bac"_s, u"Bacon"_s, true);
    add("number in the name", u"7"_s, u"7-Up"_s, true);
    add("number and another name", u"12 ham"_s, u"Bacon"_s, false);
    add("accent in the name", u"creme brulee"_s, u"Crème brûlée"_s, true);
    add("accent typed", u"crémé"_s, u"Creme"_s, true);
    add("accent as a mark of its own", u"cre\u0301"_s, u"Créme"_s, true);
    add("umlaut", u"kurbis"_s, u"Kürbis"_s, true);
    add("sharp s by ss", u"strasse"_s, u"Straße"_s, true);
    add("ss by sharp s", u"STRAẞE"_s, u"strasse"_s, true);
    add("French ligature", u"boeuf"_s, u"Bœuf"_s, true);
    add("ligature typed", u"bœ"_s, u"BOEUF"_s, true);
    add("Polish stroke", u"losos"_s, u"Łosoś"_s, true);
    add("Portuguese", u"pao"_s, u"Pão"_s, true);
    add("ligature of print", u"fish"_s, u"\uFB01sh"_s, true);
    add("wide letters", u"ham"_s, u"\uFF28\uFF41\uFF4D"_s, true);
    add("Russian case", u"ХЛЕБ"_s, u"хлебец"_s, true);
    add("Russian accent", u"еж"_s, u"Ёж"_s, true);
    add("Greek final sigma", u"ΣΟΣ"_s, u"σος"_s, true);
    add("Arabic", u"خبز"_s, u"خبز أبيض"_s, true);
    add("Arabic with vowels", u"خبز"_s, u"خُبْز"_s, true);
    add("Arabic without hamza", u"ابيض"_s, u"خبز أبيض"_s, true);
    add("Arabic, another word", u"لحم"_s, u"خبز أبيض"_s, false);
    add("Korean", u"김치"_s, u"배추김치"_s, true);
    add("Korean, half a syllable", u"배추기"_s, u"배추김치"_s, true);
    add("Korean, another word", u"불고기"_s, u"배추김치"_s, false);
    add("Chinese", u"鸡"_s, u"炸鸡块"_s, true);
    add("Chinese, another word", u"鱼"_s, u"炸鸡块"_s, false);
    add("Japanese, half-width", u"ハム"_s, u"\uFF8A\uFF91"_s, true);
    add("Japanese, voiced is another letter", u"バ"_s, u"ハム"_s, false);
    add("soft hyphen", u"bacon"_s, u"Ba\u00ADcon"_s, true);
    add("space of no width", u"bacon"_s, u"Ba\u200Bcon"_s, true);
    add("direction mark", u"bacon"_s, u"Ba\u200Econ"_s, true);
    add("byte order mark typed", u"\uFEFFbacon"_s, u"Bacon"_s, true);
    add("emoji", u"🍔"_s, u"Burger 🍔"_s, true);
    add("another emoji", u"🍟"_s, u"Burger 🍔"_s, false);
    add("like a pattern", u".*"_s, u"Bacon"_s, false);
    add("like a pattern in the name", u"(1/2)"_s, u"Ham (1/2)"_s, true);
}

void TestFind::matches()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, name);
    QTEST(matchesFind(findWords(typed), name, 12), "found");
}

// Nobody sees more of it, and a hundred names of a megabyte must not be felt while typing.
void TestFind::longNamesAreSearchedAsFarAsTheyAreShown()
{
    const QString name = QString(400, u'é') + u"ham"_s + QString(1'000'000, u'é') + u"end"_s;
    QVERIFY(matchesFind(findWords(u"ham"_s), name, 1));
    QVERIFY(!matchesFind(findWords(u"end"_s), name, 1));
    QVERIFY(findWords(QString(1'000'000, u'x')).constFirst().size() < 1000);
}

QTEST_APPLESS_MAIN(TestFind)
#include "tst_find.moc"
