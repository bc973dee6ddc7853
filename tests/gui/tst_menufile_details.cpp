// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/configuration.h"
#include "tests/gui/detaillabels.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QList<const char *> rows{"ProductId", "Name",     "Temp1",   "Temp2",      "HoldTime",   "WarningTime",
                               "ResetTime", "FanSpeed", "LidType", "BottomType", "ZoneSplits", "TimerColor"};

samplefile::Menu oneProduct(const QJsonObject &header, const QJsonObject &changes = {})
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(12, u"Bacon"_s, changes)};
    menu.groups = {samplefile::group(13, u"Meats"_s, {12})};
    return menu;
}

QString shown(OpenEditor &editor, const QByteArray &row)
{
    return editor.productDetail(QByteArray("txt" + row).constData()).text();
}

QStringList visibleRows(QWidget &details)
{
    QStringList names;
    for (const char *row : rows) {
        const bool label =
            ui::get<QWidget>(details, QByteArray("lbl" + QByteArray(row)).constData()).isVisible();
        const bool value =
            ui::get<QWidget>(details, QByteArray("txt" + QByteArray(row)).constData()).isVisible();
        if (label != value)
            names.append(u"half of "_s);
        if (label || value)
            names.append(QLatin1StringView(row));
    }
    return names;
}

} // namespace

class TestMenuFileDetails : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyRowOfAProduct();
    void celsius();
    void wordsFallBack_data();
    void wordsFallBack();
    void timerColors_data();
    void timerColors();
    void rowsFollowTheConfiguration_data();
    void rowsFollowTheConfiguration();
    void labelsNameTheRows();
    void labelFollowsAnotherCabinet();
    void timerColorKeepsItsSize();
    void timerColorGrowsWithTheFont();
    void groupShowsWhatItStores();
    void deselectingEmptiesEveryRow();
    void oddNumbersAreShown();
};

void TestMenuFileDetails::everyRowOfAProduct()
{
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches(), {{u"upperTemp"_s, 210},
                                                                       {u"lowerTemp"_s, 190},
                                                                       {u"holdingTime"_s, 28799},
                                                                       {u"warningTime"_s, 61},
                                                                       {u"resetTime"_s, 3599},
                                                                       {u"fanSpeed"_s, 60},
                                                                       {u"lidType"_s, u"Solid"_s},
                                                                       {u"bottomType"_s, u"False"_s},
                                                                       {u"zoneSplits"_s, u"2/3"_s},
                                                                       {u"timerColor"_s, u"#402100"_s}}));
    ui::clickRow(editor.products(), 0);
    QStringList texts;
    for (const char *row : rows)
        texts.append(shown(editor, row));
    QCOMPARE(texts,
             (QStringList{u"12"_s, u"Bacon"_s, u"210°F"_s, u"190°F"_s, u"07:59:59"_s, u"00:01:01"_s,
                          u"00:59:59"_s, u"60 (RPM)"_s, u"Solid"_s, u"False"_s, u"2/3"_s, u"SampleText"_s}));
    QCOMPARE(editor.productDetail("lblTemp1").text(), u"Upper Temperature:"_s);
    QCOMPARE(editor.productDetail("txtTimerColor").styleSheet(),
             u"background-color: rgb(64,33,0); color: rgb(160, 160, 160);"_s);
}

void TestMenuFileDetails::celsius()
{
    OpenEditor editor(oneProduct(samplefile::header({{u"temperatureUnit"_s, 1}}),
                                 {{u"upperTemp"_s, 212}, {u"lowerTemp"_s, 0}}));
    ui::clickRow(editor.products(), 0);
    QCOMPARE(shown(editor, "Temp1"), u"100°C"_s);
    QCOMPARE(shown(editor, "Temp2"), u"0°C"_s);
}

void TestMenuFileDetails::wordsFallBack_data()
{
    QTest::addColumn<QString>("lid");
    QTest::addColumn<QString>("shownLid");
    QTest::addColumn<QString>("bottom");
    QTest::addColumn<QString>("shownBottom");
    QTest::newRow("vented") << u"Vented"_s << u"Vented"_s << u"Normal"_s << u"Normal"_s;
    QTest::newRow("none") << u"None"_s << u"None"_s << u"False"_s << u"False"_s;
    QTest::newRow("unknown") << u"vented"_s << u"None"_s << u"false"_s << u"Normal"_s;
    QTest::newRow("empty") << QString() << u"None"_s << QString() << u"Normal"_s;
}

void TestMenuFileDetails::wordsFallBack()
{
    QFETCH(QString, lid);
    QFETCH(QString, bottom);
    OpenEditor editor(oneProduct(samplefile::header(), {{u"lidType"_s, lid}, {u"bottomType"_s, bottom}}));
    ui::clickRow(editor.products(), 0);
    QTEST(shown(editor, "LidType"), "shownLid");
    QTEST(shown(editor, "BottomType"), "shownBottom");
}

void TestMenuFileDetails::timerColors_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("style");
    const QString none = u"border-image: url(:/images/noColor.png);"_s;
    QTest::newRow("none") << u"#fffffd"_s << QString() << none;
    QTest::newRow("unknown") << u"#123456"_s << QString() << none;
    QTest::newRow("upper case") << u"#FF0000"_s << QString() << none;
    QTest::newRow("white") << u"#ffffff"_s << u"SampleText"_s
                           << u"background-color: rgb(255,255,255); color: rgb(0, 0, 0);"_s;
}

void TestMenuFileDetails::timerColors()
{
    QFETCH(QString, stored);
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches(), {{u"timerColor"_s, stored}}));
    ui::clickRow(editor.products(), 0);
    QTEST(shown(editor, "TimerColor"), "text");
    QTEST(editor.productDetail("txtTimerColor").styleSheet(), "style");
}

void TestMenuFileDetails::rowsFollowTheConfiguration_data()
{
    QTest::addColumn<QJsonObject>("changes");
    QTest::addColumn<QStringList>("hidden");
    const QStringList switched{u"ProductId"_s, u"ResetTime"_s, u"FanSpeed"_s, u"TimerColor"_s};
    const QStringList zpv = switched + QStringList{u"Temp2"_s, u"LidType"_s};
    const auto without = [&](const QString &row) {
        QStringList others = switched;
        others.removeOne(row);
        return others;
    };
    QTest::newRow("all off") << QJsonObject{} << switched;
    QTest::newRow("id") << QJsonObject{{u"prodcutIdEnabled"_s, true}} << without(u"ProductId"_s);
    QTest::newRow("reset time") << QJsonObject{{u"resetTimeEnabled"_s, true}} << without(u"ResetTime"_s);
    QTest::newRow("fan speed") << QJsonObject{{u"fanSpeedEnabled"_s, true}} << without(u"FanSpeed"_s);
    QTest::newRow("color") << QJsonObject{{u"timerColorEnabled"_s, true}} << without(u"TimerColor"_s);
    QTest::newRow("ZPV") << QJsonObject{{u"cabinetType"_s, u"ZPV"_s}, {u"cabinetModel"_s, u"ZPV43"_s}} << zpv;
}

void TestMenuFileDetails::rowsFollowTheConfiguration()
{
    QFETCH(QJsonObject, changes);
    QFETCH(QStringList, hidden);
    QStringList expected;
    for (const char *row : rows) {
        if (!hidden.contains(QLatin1StringView(row)))
            expected.append(QLatin1StringView(row));
    }
    OpenEditor editor(oneProduct(samplefile::header(changes)));
    auto &product = ui::get<QWidget>(*editor, "detailsProduct");
    QCOMPARE(visibleRows(product), expected);
    ui::clickRow(editor.products(), 0);
    QCOMPARE(visibleRows(product), expected);
    const bool zpv = hidden.contains(u"Temp2"_s);
    const QString label = zpv ? u"Temperature:"_s : u"Upper Temperature:"_s;
    QCOMPARE(editor.productDetail("lblTemp1").text(), label);
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    QCOMPARE(visibleRows(ui::get<QWidget>(*editor, "detailsGroup")), expected);
    QCOMPARE(editor.groupDetail("lblTemp1").text(), label);
}

void TestMenuFileDetails::labelsNameTheRows()
{
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches()));
    QStringList ofProduct;
    QStringList ofGroup;
    for (const char *row : rows) {
        const QByteArray label = QByteArray("lbl") + row;
        ofProduct.append(editor.productDetail(label.constData()).text());
        ofGroup.append(editor.groupDetail(label.constData()).text());
    }
    QCOMPARE(ofProduct, detailLabels);
    QCOMPARE(ofGroup, detailLabels);
}

namespace {

void configure(OpenEditor &editor, const QString &type)
{
    ModalAnswers answers;
    answers.expect<Configuration>([&type](Configuration &dialog) {
        ui::choose(dialog, "comboUnitType", type);
        ui::click(dialog, "btnAccept");
    });
    answers.expect<QMessageBox>([](QMessageBox &box) { ui::click(*box.button(QMessageBox::Ok)); });
    ui::click(*editor, "btnConfig");
}

} // namespace

void TestMenuFileDetails::labelFollowsAnotherCabinet()
{
    OpenEditor editor(oneProduct(samplefile::header()));
    for (const auto &[type, label] :
         {std::pair{u"ZPV"_s, u"Temperature:"_s}, std::pair{u"QHX"_s, u"Upper Temperature:"_s}}) {
        configure(editor, type);
        QCOMPARE(editor->getCabinetType(), type);
        QCOMPARE(editor.productDetail("lblTemp1").text(), label);
        QCOMPARE(editor.groupDetail("lblTemp1").text(), label);
    }
}

// Whatever it shows, and with nothing to show.
void TestMenuFileDetails::timerColorKeepsItsSize()
{
    samplefile::Menu menu =
        oneProduct(samplefile::headerWithAllSwitches(), {{u"timerColor"_s, u"#ff0000"_s}});
    menu.products.append(samplefile::product(14, u"Bare"_s));
    OpenEditor editor(menu);
    const QLabel &sample = editor.productDetail("txtTimerColor");
    const QSize size = QLabel(u"SampleText"_s).sizeHint().expandedTo({100, 25}) + QSize(16, 4);
    QVERIFY(sample.text().isEmpty());
    QCOMPARE(sample.size(), size);
    for (int row = 0; row < 2; ++row) {
        ui::clickRow(editor.products(), row);
        QCoreApplication::sendPostedEvents(); // the layout follows
        QCOMPARE(sample.text().isEmpty(), row == 1);
        QCOMPARE(sample.size(), size);
    }
}

// The sample's text has room in any font.
void TestMenuFileDetails::timerColorGrowsWithTheFont()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(3 * before.pointSizeF());
    QApplication::setFont(large);
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches()));
    const QSize size = QLabel(u"SampleText"_s).sizeHint() + QSize(16, 4);
    QApplication::setFont(before);
    QVERIFY(size.width() > 100 && size.height() > 25);
    QCOMPARE(editor.productDetail("txtTimerColor").size(), size);
}

void TestMenuFileDetails::groupShowsWhatItStores()
{
    samplefile::Menu menu = oneProduct(samplefile::headerWithAllSwitches({{u"temperatureUnit"_s, 1}}));
    menu.groups = {
        samplefile::group(13, u"Meats"_s, {12}, {{u"upperTemp"_s, 212}, {u"lidType"_s, u"Vented"_s}})};
    OpenEditor editor(menu);
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    QStringList texts;
    for (const char *row : rows)
        texts.append(editor.groupDetail(QByteArray("txt" + QByteArray(row)).constData()).text());
    QCOMPARE(texts,
             (QStringList{u"13"_s, u"Meats"_s, u"100°C"_s, u"93°C"_s, u"00:00:00"_s, u"00:00:00"_s,
                          u"00:00:00"_s, u"60 (RPM)"_s, u"Vented"_s, u"Normal"_s, u"1/2"_s, QString()}));
}

void TestMenuFileDetails::deselectingEmptiesEveryRow()
{
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches(), {{u"timerColor"_s, u"#ff0000"_s}}));
    ui::clickRow(editor.products(), 0);
    QVERIFY(!shown(editor, "TimerColor").isEmpty());
    ui::clickRow(editor.products(), 0, Qt::ControlModifier);
    for (const char *row : rows)
        QCOMPARE(shown(editor, row), QString());
    QCOMPARE(editor.productDetail("txtTimerColor").styleSheet(), QString());
}

void TestMenuFileDetails::oddNumbersAreShown()
{
    OpenEditor editor(oneProduct(samplefile::headerWithAllSwitches({{u"temperatureUnit"_s, 1}}),
                                 {{u"upperTemp"_s, 2147483647},
                                  {u"lowerTemp"_s, -2147483647},
                                  {u"holdingTime"_s, 86400},
                                  {u"warningTime"_s, -1},
                                  {u"fanSpeed"_s, -5}}));
    ui::clickRow(editor.products(), 0);
    QCOMPARE(shown(editor, "HoldTime"), u"00:00:00"_s);
    QCOMPARE(shown(editor, "WarningTime"), u"23:59:59"_s);
    QCOMPARE(shown(editor, "FanSpeed"), u"-5 (RPM)"_s);
    QVERIFY(shown(editor, "Temp1").endsWith(u"°C"_s));
}

QTEST_MAIN(TestMenuFileDetails)
#include "tst_menufile_details.moc"
