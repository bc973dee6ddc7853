// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/binplan.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace binplan;

Q_DECLARE_METATYPE(Content)
Q_DECLARE_METATYPE(Paper)

/// Where the plan's texts and bins stand on paper.
class TestPlanLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void paperOfALocale_data();
    void paperOfALocale();
    void zonesShareTheWidth_data();
    void zonesShareTheWidth();
    void pageIsTurnedForTheCabinet_data();
    void pageIsTurnedForTheCabinet();
    void headingNamesMenuCabinetAndDaypart();
    void headingOfAMenuWithoutFile();
    void everyDaypartHasItsPage();
    void binsFillThePage_data();
    void binsFillThePage();
    void binsKeepTheirProportions();
    void binsSayWhatTheyHold_data();
    void binsSayWhatTheyHold();
    void textsStandBelowEachOther_data();
    void textsStandBelowEachOther();
    void swatchStandsBesideTheTexts();
    void emptyBinSaysNothing();
    void namesAreReadAcrossARoom_data();
    void namesAreReadAcrossARoom();
    void nothingBecomesTooSmall_data();
    void nothingBecomesTooSmall();
    void membersHaveTheRoomThatIsLeft();
};

namespace {

const QString fileName = u"menu.json"_s;
const Content bacon{u"Bacon"_s, u"215°F  01:00:00"_s, u"full red"_s, 0xff0000, {}};

Cabinet cabinetOf(int rows, int columns, const Content &content = bacon)
{
    Cabinet cabinet{u"QHX KTR"_s, rows, columns, {{u"Morning"_s, {}}}};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            cabinet.dayparts[0].bins.append(
                {row, qreal(column) / columns, qreal(column + 1) / columns, content});
    }
    return cabinet;
}

// The smallest page: one bin that fills it.
Box onlyBox(const Content &content)
{
    return layOut(cabinetOf(1, 1, content), fileName, Paper::A4).pages.constFirst().boxes.constFirst();
}

QStringList wordsOf(const QList<Text> &texts)
{
    QStringList words;
    for (const Text &text : texts)
        words.append(text.text);
    return words;
}

QRectF paperOf(const Plan &plan)
{
    return {QPointF(), plan.pageSize};
}

void addCabinetRows()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<Paper>("paper");
    const QList<std::pair<int, int>> cabinets{{2, 2}, {2, 4}, {3, 3}, {5, 4}, {6, 3}, {8, 2}};
    for (const auto &[rows, columns] : cabinets) {
        QTest::addRow("%d x %d, A4", rows, columns) << rows << columns << Paper::A4;
        QTest::addRow("%d x %d, Letter", rows, columns) << rows << columns << Paper::Letter;
    }
}

} // namespace

void TestPlanLayout::paperOfALocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Paper>("paper");
    QTest::newRow("United States") << u"en_US"_s << Paper::Letter;
    QTest::newRow("Spanish in the United States") << u"es_US"_s << Paper::Letter;
    QTest::newRow("French in Canada") << u"fr_CA"_s << Paper::Letter;
    QTest::newRow("Mexico") << u"es_MX"_s << Paper::Letter;
    QTest::newRow("Philippines") << u"fil_PH"_s << Paper::Letter;
    QTest::newRow("Spain") << u"es_ES"_s << Paper::A4;
    QTest::newRow("United Kingdom") << u"en_GB"_s << Paper::A4;
    QTest::newRow("Germany") << u"de_DE"_s << Paper::A4;
    QTest::newRow("Japan") << u"ja_JP"_s << Paper::A4;
    QTest::newRow("no country") << u"C"_s << Paper::A4;
}

void TestPlanLayout::paperOfALocale()
{
    QFETCH(const QString, locale);
    QTEST(usualPaper(QLocale(locale)), "paper");
}

void TestPlanLayout::zonesShareTheWidth_data()
{
    QTest::addColumn<int>("leftWidth");
    QTest::addColumn<int>("rightWidth");
    QTest::addColumn<QList<qreal>>("places"); // from and to, in pixels, of each zone
    QTest::newRow("two alike") << 340 << 340 << QList<qreal>{0, 340, 356, 696};
    QTest::newRow("a narrow one on the right") << 340 << 177 << QList<qreal>{0, 340, 356, 533};
    QTest::newRow("one alone") << 394 << 0 << QList<qreal>{0, 394};
}

// With the gap between them that they have in the editor's grid.
void TestPlanLayout::zonesShareTheWidth()
{
    QFETCH(const int, leftWidth);
    QFETCH(const int, rightWidth);
    QFETCH(const QList<qreal>, places);
    for (qsizetype zone = 0; zone < places.size() / 2; ++zone) {
        const Span span = zoneSpan(leftWidth, rightWidth, zone == 1);
        QCOMPARE(span.left * places.constLast(), places[2 * zone]);
        QCOMPARE((span.left + span.width) * places.constLast(), places[2 * zone + 1]);
    }
}

void TestPlanLayout::pageIsTurnedForTheCabinet_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<Paper>("paper");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("KTR22") << 2 << 2 << Paper::A4 << QSizeF(842, 595);
    QTest::newRow("KTR24") << 2 << 4 << Paper::A4 << QSizeF(842, 595);
    QTest::newRow("KTR33") << 3 << 3 << Paper::Letter << QSizeF(792, 612);
    QTest::newRow("KTR54") << 5 << 4 << Paper::Letter << QSizeF(792, 612);
    QTest::newRow("KTR42") << 4 << 2 << Paper::A4 << QSizeF(595, 842);
    QTest::newRow("KTR63") << 6 << 3 << Paper::Letter << QSizeF(612, 792);
    QTest::newRow("KTR82") << 8 << 2 << Paper::A4 << QSizeF(595, 842);
}

void TestPlanLayout::pageIsTurnedForTheCabinet()
{
    QFETCH(const int, rows);
    QFETCH(const int, columns);
    QFETCH(const Paper, paper);
    QTEST(layOut(cabinetOf(rows, columns), fileName, paper).pageSize, "size");
}

void TestPlanLayout::headingNamesMenuCabinetAndDaypart()
{
    const Plan plan = layOut(cabinetOf(2, 2), fileName, Paper::A4);
    QCOMPARE(plan.title, u"Bin Plan - menu.json"_s);
    const QList<Text> &heading = plan.pages.constFirst().heading;
    QCOMPARE(wordsOf(heading), (QStringList{u"Morning"_s, u"menu.json"_s, u"QHX KTR"_s}));
    for (qsizetype i = 0; i < heading.size(); ++i) {
        QVERIFY(paperOf(plan).adjusted(28, 28, -28, -28).contains(heading[i].place));
        for (qsizetype other = 0; other < i; ++other)
            QVERIFY(!heading[i].place.intersects(heading[other].place));
    }
    QVERIFY(heading[0].isBold && heading[0].size >= 30);
    QVERIFY(heading[0].size > heading[1].size);
}

void TestPlanLayout::headingOfAMenuWithoutFile()
{
    const Plan plan = layOut(cabinetOf(2, 2), {}, Paper::A4);
    QCOMPARE(plan.title, u"Bin Plan"_s);
    QCOMPARE(wordsOf(plan.pages.constFirst().heading), (QStringList{u"Morning"_s, u"QHX KTR"_s}));
}

void TestPlanLayout::everyDaypartHasItsPage()
{
    Cabinet cabinet = cabinetOf(2, 2);
    cabinet.dayparts.append({u"Evening"_s, {{1, 0, 0.5, bacon}}});
    const Plan plan = layOut(cabinet, fileName, Paper::A4);
    QCOMPARE(plan.pages.size(), 2);
    QCOMPARE(plan.pages[0].boxes.size(), 4);
    QCOMPARE(plan.pages[1].boxes.size(), 1);
    QCOMPARE(plan.pages[1].heading.constFirst().text, u"Evening"_s);
    cabinet.dayparts.clear();
    QVERIFY(layOut(cabinet, fileName, Paper::A4).pages.isEmpty());
}

void TestPlanLayout::binsFillThePage_data()
{
    addCabinetRows();
}

// Between the margins and below the heading, none on another.
void TestPlanLayout::binsFillThePage()
{
    QFETCH(const int, rows);
    QFETCH(const int, columns);
    QFETCH(const Paper, paper);
    const Plan plan = layOut(cabinetOf(rows, columns), fileName, paper);
    const Page &page = plan.pages.constFirst();
    QRectF all;
    for (qsizetype i = 0; i < page.boxes.size(); ++i) {
        const QRectF place = page.boxes[i].place;
        QCOMPARE(place.size(), page.boxes.constFirst().place.size());
        for (qsizetype other = 0; other < i; ++other)
            QVERIFY(!place.intersects(page.boxes[other].place));
        for (const Text &text : page.heading)
            QVERIFY(!place.intersects(text.place));
        all |= place;
    }
    const QRectF paperRect = paperOf(plan);
    QCOMPARE(all.left(), 30.0);
    QCOMPARE(all.right(), paperRect.right() - 30);
    QCOMPARE(all.bottom(), paperRect.bottom() - 30);
    QCOMPARE(all.top(), 28.0 + 44 + 8 + 2);
}

void TestPlanLayout::binsKeepTheirProportions()
{
    Cabinet cabinet = cabinetOf(2, 2);
    cabinet.dayparts[0].bins = {{0, 0, 0.25, bacon}, {0, 0.25, 1, bacon}, {1, 0, 1, bacon}};
    const Page page = layOut(cabinet, fileName, Paper::A4).pages.constFirst();
    const qreal width = 842 - 2 * 28;
    constexpr qreal gap = 4;
    QCOMPARE(page.boxes[0].place.width(), width / 4 - gap);
    QCOMPARE(page.boxes[1].place.width(), width * 3 / 4 - gap);
    QCOMPARE(page.boxes[1].place.left(), page.boxes[0].place.right() + gap);
    QCOMPARE(page.boxes[1].place.top(), page.boxes[0].place.top());
    QCOMPARE(page.boxes[2].place.width(), width - gap);
    QCOMPARE(page.boxes[2].place.top(), page.boxes[0].place.bottom() + gap);
}

void TestPlanLayout::binsSayWhatTheyHold_data()
{
    QTest::addColumn<Content>("content");
    QTest::addColumn<QStringList>("texts");
    const QString name = u"Bacon"_s;
    const QString settings = u"215°F"_s;
    const QString color = u"red"_s;
    const QString members = u"Bacon · Ham"_s;
    QTest::newRow("name") << Content{name, {}, {}, 0, {}} << QStringList{name};
    QTest::newRow("settings") << Content{name, settings, {}, 0, {}} << QStringList{name, settings};
    QTest::newRow("color") << Content{name, settings, color, 1, {}} << QStringList{name, settings, color};
    QTest::newRow("members") << Content{name, settings, {}, 0, members}
                             << QStringList{name, settings, members};
    QTest::newRow("everything") << Content{name, settings, color, 1, members}
                                << QStringList{name, settings, color, members};
}

void TestPlanLayout::binsSayWhatTheyHold()
{
    QFETCH(const Content, content);
    QTEST(wordsOf(onlyBox(content).texts), "texts");
    QCOMPARE(onlyBox(content).swatch.isNull(), content.colorName.isEmpty());
}

void TestPlanLayout::textsStandBelowEachOther_data()
{
    addCabinetRows();
}

void TestPlanLayout::textsStandBelowEachOther()
{
    QFETCH(const int, rows);
    QFETCH(const int, columns);
    QFETCH(const Paper, paper);
    Content group = bacon;
    group.members = u"Bacon · Ham"_s;
    for (const Content &content : {bacon, group}) {
        const Plan plan = layOut(cabinetOf(rows, columns, content), fileName, paper);
        for (const Box &box : plan.pages.constFirst().boxes) {
            qreal top = box.place.top();
            for (const Text &text : box.texts) {
                QVERIFY(box.place.adjusted(5, 5, -5, -5).contains(text.place));
                QVERIFY(text.place.top() >= top);
                QVERIFY(text.place.height() >= 0.9 * lineStep(text.size));
                QVERIFY(text.size <= box.texts.constFirst().size);
                QCOMPARE(text.wraps, text.text == content.name || text.text == content.members);
                QCOMPARE(text.isBold, text.text == content.name);
                top = text.place.bottom();
            }
        }
    }
}

void TestPlanLayout::swatchStandsBesideTheTexts()
{
    const Box box = onlyBox(bacon);
    QCOMPARE(box.color, 0xff0000);
    QCOMPARE(box.swatch.topLeft(), box.place.topLeft());
    QCOMPARE(box.swatch.size(), QSizeF(14, box.place.height()));
    for (const Text &text : box.texts)
        QVERIFY(text.place.left() > box.swatch.right());
}

void TestPlanLayout::emptyBinSaysNothing()
{
    const Box box = onlyBox({});
    QVERIFY(box.isEmpty() && box.swatch.isNull());
    QCOMPARE(box.place, onlyBox(bacon).place);
    QVERIFY(!onlyBox(bacon).isEmpty());
}

void TestPlanLayout::namesAreReadAcrossARoom_data()
{
    addCabinetRows();
}

// From two metres a person of good sight reads capitals of 3 mm: type of 12 points. A name is a quarter
// larger, and what it is held at no smaller.
void TestPlanLayout::namesAreReadAcrossARoom()
{
    QFETCH(const int, rows);
    QFETCH(const int, columns);
    QFETCH(const Paper, paper);
    const Plan plan = layOut(cabinetOf(rows, columns), fileName, paper);
    const QList<Text> &texts = plan.pages.constFirst().boxes.constFirst().texts;
    QVERIFY2(texts[0].size > 15 && texts[0].size <= 36, qPrintable(QString::number(texts[0].size)));
    QVERIFY(texts[1].size > 12);
    QVERIFY(texts[0].place.height() > 1.9 * lineStep(texts[0].size));
}

void TestPlanLayout::nothingBecomesTooSmall_data()
{
    addCabinetRows();
}

// However long it is: names and settings are read from two metres, the rest from near by.
void TestPlanLayout::nothingBecomesTooSmall()
{
    QFETCH(const int, rows);
    QFETCH(const int, columns);
    QFETCH(const Paper, paper);
    Content group = bacon;
    group.members = u"Bacon · Ham"_s;
    const Page page = layOut(cabinetOf(rows, columns, group), fileName, paper).pages.constFirst();
    QList<qreal> least{12, 12, 7, 7};
    for (const Text &text : page.boxes.constFirst().texts) {
        QVERIFY(text.smallestSize >= least.takeFirst());
        QVERIFY(text.smallestSize <= text.size && text.smallestSize >= text.size / 2);
    }
    QVERIFY(least.isEmpty());
    QVERIFY(page.heading[0].smallestSize >= 12 && page.heading[1].smallestSize >= 7);
}

// In low bins the name gives a line to them.
void TestPlanLayout::membersHaveTheRoomThatIsLeft()
{
    const Content group{u"Meats"_s, u"215°F"_s, {}, 0, u"Bacon · Ham"_s};
    for (const int rows : {2, 5, 8}) {
        const Plan plan = layOut(cabinetOf(rows, 2, group), fileName, Paper::A4);
        const Box &box = plan.pages.constFirst().boxes.constFirst();
        const Text &name = box.texts.constFirst();
        const Text &members = box.texts.constLast();
        QCOMPARE(members.place.bottom(), box.place.bottom() - 6);
        QVERIFY(members.place.height() > 1.9 * lineStep(members.size));
        QCOMPARE(qRound(name.place.height() / lineStep(name.size)), rows == 2 ? 2 : 1);
    }
}

QTEST_APPLESS_MAIN(TestPlanLayout)
#include "tst_planlayout.moc"
