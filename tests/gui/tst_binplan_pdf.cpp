// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLocale>
#include <QTest>

#include "holding/binplan.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "tests/gui/plannedmenu.h"
#include "tests/gui/planpages.h"
#include "tests/support/warnings.h"
#include "timerbar/binplan.h"
#include "timerbar/cbrfile.h"
#include "timerbar/timerbarmenufile.h"
#include "widgets/binplanfile.h"

using namespace Qt::StringLiterals;

/// The written plan, as other programs see it.
class TestBinPlanPdf : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void planIsDrawn_data();
    void planIsDrawn();
    void timerBarMenuIsDrawn();
    void paperIsTheLocales_data();
    void paperIsTheLocales();
    void fileTellsWhatItIs();
    void scriptsAreEmbedded_data();
    void scriptsAreEmbedded();
    void namesStayInTheirBins_data();
    void namesStayInTheirBins();
    void longTextsStayReadable_data();
    void longTextsStayReadable();
};

namespace {

// Bacon and so on in turn, one of them coloured, and a group in the last bin of each second row.
holding::Menu menuOf(const QString &type, const QString &model)
{
    holding::Menu menu;
    menu.configuration = {.type = type, .model = model, .timerColorEnabled = true};
    const QString fault = holding::readDefaultMenu(menu.shape().binsPerZone, menu);
    REQUIRE(fault.isEmpty(), fault);
    menu.product(12)->set_timerColor(u"#ff0000"_s);
    auto group = holding::newGroup(90);
    group->set_productName(sameNameInAllLanguages(u"Sausages"_s));
    group->set_productList({18, 19, 12});
    group->set_defaultIndex(1);
    menu.groups.push_back(std::move(group));
    int next = 0;
    for (auto &row : menu.dayparts[0].bins) {
        for (int &bin : row)
            bin = next++ % 7 == 3 ? 0 : menu.products[std::size_t(next % 30)]->get_productId();
    }
    menu.dayparts[0].bins[0][1] = 90;
    menu.dayparts[1].bins[1][0] = 777;
    return menu;
}

binplan::Plan planOf(const holding::Menu &menu)
{
    return layOut(holding::plannedCabinet(menu), u"menu.json"_s, binplan::usualPaper(QLocale()));
}

// As the program writes it.
QString writePlan(Program &program, const QString &name, const QByteArray &menu)
{
    REQUIRE(program.open(name, menu));
    const QString path = program.path(u"plan.pdf"_s);
    planned::expectPlan(program, path);
    planned::clickPlan(program);
    return path;
}

void checkTexts(const QString &pdf, const binplan::Plan &plan)
{
    const QList<planpages::Word> words = planpages::wordsIn(pdf);
    for (int page = 0; page < plan.pages.size(); ++page) {
        QList<binplan::Text> texts = plan.pages[page].heading;
        for (const binplan::Box &box : plan.pages[page].boxes)
            texts += box.texts;
        qsizetype wordCount = 0;
        for (const binplan::Text &text : texts) {
            const auto found = planpages::wordsAt(words, page, text.place);
            const QString told = planpages::sortedTexts(found);
            if (text.text.isRightToLeft())
                REQUIRE_EQUAL(planpages::sortedLetters(told), planpages::sortedLetters(text.text));
            else
                REQUIRE_EQUAL(told, planpages::sortedWords(text.text.split(u' ')));
            wordCount += found.size();
        }
        REQUIRE_EQUAL(planpages::wordsAt(words, page, {QPointF(), plan.pageSize}).size(), wordCount);
    }
}

// The size of its type in points: the box around a word is so much higher in all Latin type of a page, and
// the title is set in the size that was asked for.
qreal sizeOf(const planpages::Word &word, const QList<planpages::Word> &words, const binplan::Plan &plan)
{
    const binplan::Text &title = plan.pages[0].heading[0];
    const auto titleWords = planpages::wordsAt(words, 0, title.place);
    REQUIRE_EQUAL(titleWords.size(), 1);
    return word.place.height() / titleWords[0].place.height() * title.size;
}

void checkBox(const QImage &picture, const binplan::Box &box)
{
    constexpr qreal half = 1; // of what a line may take
    const QRectF place = box.place;
    const int darkest = box.isEmpty() ? 0xa0 : 0x40;
    for (const qreal x : {place.left(), place.right()})
        REQUIRE(planpages::darkestIn(picture, {x - half, place.top(), 2 * half, place.height()}) < darkest);
    for (const qreal y : {place.top(), place.bottom()})
        REQUIRE(planpages::darkestIn(picture, {place.left(), y - half, place.width(), 2 * half}) < darkest);
    const QRectF around = place.adjusted(-2, -2, 2, 2);
    for (const qreal x : {around.left(), around.right()})
        REQUIRE(planpages::darkestIn(picture, {x, place.top() + 4, 0, place.height() - 8}) > 0xf0);
    const qreal edge = box.swatch.isNull() ? place.left() : box.swatch.right();
    REQUIRE(planpages::darkestIn(picture, {edge + 2, place.top() + 2, place.right() - edge - 4, 2}) > 0xf0);
    if (!box.swatch.isNull())
        REQUIRE_EQUAL(planpages::colorAt(picture, box.swatch.center()).rgb() & 0xffffffU,
                      static_cast<QRgb>(box.color));
    else if (box.isEmpty())
        REQUIRE_EQUAL(planpages::darkestIn(picture, place.adjusted(2, 2, -2, -2)), 255);
}

} // namespace

void TestBinPlanPdf::planIsDrawn_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("model");
    QTest::newRow("two zones") << u"QHX"_s << u"KTR54"_s;
    QTest::newRow("second zone of one bin") << u"QHX"_s << u"KTR23"_s;
    QTest::newRow("three bins") << u"ZPV"_s << u"ZPV43"_s;
    QTest::newRow("upright") << u"QHX"_s << u"KTR82"_s;
}

// Texts and bins stand in their places.
void TestBinPlanPdf::planIsDrawn()
{
    QFETCH(const QString, type);
    QFETCH(const QString, model);
    const holding::Menu menu = menuOf(type, model);
    Program program;
    const QString pdf = writePlan(program, u"menu.json"_s, holding::writeMenu(menu));
    const binplan::Plan plan = planOf(menu);
    QCOMPARE(plan.pages.size(), 2);
    checkTexts(pdf, plan);
    for (int page = 0; page < plan.pages.size(); ++page) {
        const QImage picture = planpages::pictureOf(pdf, page);
        QCOMPARE(picture.size(), plan.pageSize.toSize() * planpages::pictureScale);
        for (const binplan::Box &box : plan.pages[page].boxes)
            checkBox(picture, box);
    }
}

void TestBinPlanPdf::timerBarMenuIsDrawn()
{
    const QByteArray bytes = cbr::manyInBins(u"KTR23"_s, 9).bytes();
    Program program;
    const QString pdf = writePlan(program, u"menu.cbr"_s, bytes);
    timerbar::Menu menu;
    QCOMPARE(timerbar::readMenu(bytes, menu), QString());
    const binplan::Plan plan =
        layOut(timerbar::plannedCabinet(menu), u"menu.cbr"_s, binplan::usualPaper(QLocale()));
    QVERIFY(!plan.pages.isEmpty());
    checkTexts(pdf, plan);
    for (const binplan::Box &box : plan.pages.constFirst().boxes)
        checkBox(planpages::pictureOf(pdf, 0), box);
}

void TestBinPlanPdf::paperIsTheLocales_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("size");
    QTest::newRow("United States") << u"en_US"_s << u"792 x 612 pts (letter)"_s;
    QTest::newRow("Germany") << u"de_DE"_s << u"842 x 595 pts (A4)"_s;
}

void TestBinPlanPdf::paperIsTheLocales()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, size);
    QLocale::setDefault(QLocale(locale));
    Program program;
    const holding::Menu menu = menuOf(u"QHX"_s, u"KTR33"_s);
    const QString pdf = writePlan(program, u"menu.json"_s, holding::writeMenu(menu));
    const QByteArray told = planpages::outputOf(u"pdfinfo"_s, {pdf});
    QVERIFY2(told.contains(size.toUtf8()), told.constData());
}

void TestBinPlanPdf::fileTellsWhatItIs()
{
    Program program;
    const holding::Menu menu = menuOf(u"QHX"_s, u"KTR33"_s);
    const QString pdf = writePlan(program, u"menu.json"_s, holding::writeMenu(menu));
    const QString told = QString::fromUtf8(planpages::outputOf(u"pdfinfo"_s, {pdf})).simplified();
    QVERIFY2(told.contains(u"Title: Bin Plan - menu.json Creator: Varno Plexora"_s), qPrintable(told));
    QVERIFY2(told.contains(u"Pages: 2"_s), qPrintable(told));
}

void TestBinPlanPdf::scriptsAreEmbedded_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spa") << u"Jamón con piña"_s;
    QTest::newRow("fra") << u"Œufs brouillés à la crème"_s;
    QTest::newRow("deu") << u"Würstchen – geräuchert, süß"_s;
    QTest::newRow("ita") << u"Perché più caffè"_s;
    QTest::newRow("nld") << u"Geïmporteerde kroketten"_s;
    QTest::newRow("pol") << u"Żółta gęś, źdźbło"_s;
    QTest::newRow("por") << u"Pão com linguiça"_s;
    QTest::newRow("rus") << u"Жареная курица"_s;
    QTest::newRow("ara") << u"دجاج مشوي"_s;
    QTest::newRow("kor") << u"구운 닭고기"_s;
    QTest::newRow("zh_cn") << u"烤鸡肉"_s;
    QTest::newRow("jpn") << u"焼き鳥"_s;
}

void TestBinPlanPdf::scriptsAreEmbedded()
{
    QFETCH(const QString, name);
    holding::Menu menu = menuOf(u"QHX"_s, u"KTR54"_s);
    for (const auto &product : menu.products)
        product->set_productName({name});
    menu.dayparts[0].names = {name};
    Program program;
    const QString pdf = writePlan(program, u"menu.json"_s, holding::writeMenu(menu));
    checkTexts(pdf, planOf(menu));
    const QString told = QString::fromUtf8(planpages::outputOf(u"pdftotext"_s, {pdf, u"-"_s})).simplified();
    QVERIFY2(planpages::plainLetters(told).contains(planpages::plainLetters(name)), qPrintable(told));
    const QString fonts = QString::fromUtf8(planpages::outputOf(u"pdffonts"_s, {pdf}));
    const QStringList rows = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
    QVERIFY(rows.size() >= 2); // bold and regular
    static const QRegularExpression embedded(u" yes (yes|no ) yes +\\d+ +\\d+$"_s);
    for (const QString &row : rows)
        QVERIFY2(row.contains(embedded), qPrintable(row));
}

void TestBinPlanPdf::namesStayInTheirBins_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("elided");
    QTest::newRow("four words") << u"Breaded Chicken Fillets, spicy"_s << false;
    QTest::newRow("one long word") << u"Donaudampfschifffahrtsgesellschaft"_s << false;
    QTest::newRow("too many words") << u"Word "_s.repeated(60) << true;
    QTest::newRow("a word without an end") << QString(300, u'W') << true;
    QTest::newRow("megabytes") << u"Name "_s.repeated(400'000) << true;
    QTest::newRow("lines and tabs") << u"Ham\nand\tEggs\r\n"_s << false;
    QTest::newRow("markup and mnemonics") << u"<b>Ham</b> & Eggs"_s << false;
}

// And are large enough to be read from two metres.
void TestBinPlanPdf::namesStayInTheirBins()
{
    QFETCH(const QString, name);
    QFETCH(const bool, elided);
    holding::Menu menu = menuOf(u"QHX"_s, u"KTR54"_s);
    menu.products[0]->set_productName({name});
    menu.dayparts[0].bins[0][0] = menu.products[0]->get_productId();
    const binplan::Plan plan = planOf(menu);
    const TestFolder folder;
    const QByteArray bytes = pdfOf(plan);
    QVERIFY2(bytes.size() < 200'000, qPrintable(QString::number(bytes.size())));
    const auto words = planpages::wordsIn(folder.make(u"plan.pdf"_s, bytes));
    const binplan::Text &text = plan.pages[0].boxes[0].texts[0];
    const auto inPlace = planpages::wordsAt(words, 0, text.place);
    QVERIFY(!inPlace.isEmpty());
    QString told;
    for (const planpages::Word &word : inPlace) {
        QVERIFY(word.place.left() >= text.place.left() - 1 && word.place.right() <= text.place.right() + 1);
        QVERIFY(sizeOf(word, words, plan) > 11.9);
        told += planpages::plainLetters(word.text);
    }
    QCOMPARE(told.endsWith(u"..."_s), elided); // an ellipsis in plain letters
    if (!elided)
        QCOMPARE(told, name.simplified().remove(u' '));
}

void TestBinPlanPdf::longTextsStayReadable_data()
{
    QTest::addColumn<QString>("model");
    QTest::newRow("two zones") << u"KTR54"_s;
    QTest::newRow("three bins, upright") << u"KTR63"_s;
    QTest::newRow("eight rows") << u"KTR82"_s;
}

// Where nothing has the room that it would need.
void TestBinPlanPdf::longTextsStayReadable()
{
    QFETCH(const QString, model);
    holding::Menu menu = menuOf(u"QHX"_s, model);
    for (const auto &product : menu.products) {
        product->set_productName({u"Breaded Chicken Fillets, spicy, with Donaudampfschifffahrt sauce"_s});
        product->set_timerColor(u"#ff0000"_s);
    }
    menu.groups[0]->set_productName({u"All that is breaded, with sauces"_s});
    menu.groups[0]->set_productList(QList<int>(30, menu.products[0]->get_productId()));
    const binplan::Plan plan = planOf(menu);
    const TestFolder folder;
    const auto words = planpages::wordsIn(folder.make(u"plan.pdf"_s, pdfOf(plan)));
    for (const binplan::Box &box : plan.pages[0].boxes) {
        QList<qreal> least{12, 12, 7, 7};
        for (const binplan::Text &text : box.texts) {
            const auto inPlace = planpages::wordsAt(words, 0, text.place);
            QVERIFY(!inPlace.isEmpty());
            for (const planpages::Word &word : inPlace)
                QVERIFY2(sizeOf(word, words, plan) > least.constFirst() - 0.1, qPrintable(word.text));
            least.removeFirst();
        }
    }
}

QTEST_MAIN(TestBinPlanPdf)
#include "tst_binplan_pdf.moc"
