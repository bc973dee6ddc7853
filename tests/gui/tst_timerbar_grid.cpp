// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/opentimerbar.h"
#include "tests/gui/timerbarbuttons.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

class TestTimerBarGrid : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void daypartsAreNamed();
    void modelsShowTheirBins_data() { cbr::addModelRows(); }
    void modelsShowTheirBins();
    void everyBinShowsItsProduct_data() { cbr::addModelRows(); }
    void everyBinShowsItsProduct();
    void everyBinIsAssignedByItsButton_data() { cbr::addModelRows(); }
    void everyBinIsAssignedByItsButton();
    void toolTipsTellTheProduct_data();
    void toolTipsTellTheProduct();
    void toolTipsFollowTheConfiguredUnit();
    void neighbourDecidesWhatFits_data();
    void neighbourDecidesWhatFits();
    void hiddenNeighbourCountsToo();
    void configurationShowsTheFirstDaypart();
    void otherDaypartsStayAsTheyAre();
    void cancelledAssignmentChangesNothing();
    void withoutProductsNothingOpens();
    void smallerModelKeepsTheHiddenBins();
    void gridNeverMoves();
};

namespace {

QPushButton &binButton(OpenTimerBar &editor, const QByteArray &bin)
{
    return editor.button(timerbarbuttons::nameOf(bin).toLatin1().constData());
}

QStringList shownButtons(OpenTimerBar &editor)
{
    QStringList names;
    for (const QPushButton *button : editor->findChildren<QPushButton *>()) {
        if (button->objectName().startsWith(u"btnDaypartSelect"_s) && button->isVisible())
            names.append(button->objectName());
    }
    names.sort();
    return names;
}

// Clicks a bin and picks the row; the dialog has to come up.
void assign(OpenTimerBar &editor, const QByteArray &bin, int row)
{
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([row](TimerBarDaypartAssignItem &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), row);
        ui::click(dialog, "btnSelect");
    });
    ui::click(binButton(editor, bin));
}

QList<bool> fittingRows(OpenTimerBar &editor, const QByteArray &bin)
{
    QList<bool> fitting;
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([&fitting](TimerBarDaypartAssignItem &dialog) {
        const auto &list = ui::get<QListWidget>(dialog, "listWidgetProducts");
        for (int row = 0; row < list.count(); ++row)
            fitting.append(list.item(row)->flags().testFlag(Qt::ItemIsSelectable));
        ui::click(dialog, "btnCancel");
    });
    ui::click(binButton(editor, bin));
    return fitting;
}

void configure(OpenTimerBar &editor, const QString &model, const char *unit = "rbTempUnitF")
{
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([&model, unit](TimerBarConfig &dialog) {
        ui::choose(dialog, "comboUnitModel", model);
        ui::click(dialog, unit);
        ui::click(dialog, "btnAccept");
    });
    ui::click(*editor, "btnConfig");
    ui::activate(*editor);
}

} // namespace

void TestTimerBarGrid::daypartsAreNamed()
{
    OpenTimerBar editor(baconHamChili());
    const auto &dayparts = ui::get<QComboBox>(*editor, "comboDaypartSelect");
    QCOMPARE(ui::textsOf(dayparts), (QStringList{u"Breakfast"_s, u"ChangeOver 1"_s, u"Lunch"_s,
                                                 u"ChangeOver 2"_s, u"Dinner"_s, u"ChangeOver 3"_s}));
    QCOMPARE(dayparts.currentIndex(), 0);
    QVERIFY(editor.button("btnDaypartRemove").isHidden());
    QVERIFY(editor.button("btnCancelDaypartRemove").isHidden());
}

// When it opens, and when another model is changed to it.
void TestTimerBarGrid::modelsShowTheirBins()
{
    QFETCH(QString, model);
    QStringList buttons = timerbarbuttons::namesOf(cbr::model(model).bins);
    buttons.sort();
    const int rightWidth = std::array{0, 0, 0, 177, 340}.at(std::size_t(cbr::model(model).columns));
    for (const QString &before : {model, u"KTR22"_s, u"KTR23"_s, u"KTR34"_s, u"KTR42"_s}) {
        OpenTimerBar editor(baconHamChili(before));
        if (before != model)
            configure(editor, model);
        editor.showTab(1);
        QCOMPARE(shownButtons(editor), buttons);
        const auto &frame = ui::get<QFrame>(*editor, "frameRightPair");
        QCOMPARE(frame.isVisible(), rightWidth > 0);
        if (rightWidth > 0) {
            QCOMPARE(frame.maximumWidth(), rightWidth);
            QVERIFY(frame.width() <= rightWidth);
        }
    }
}

void TestTimerBarGrid::everyBinShowsItsProduct()
{
    QFETCH(QString, model);
    const cbr::Menu menu = cbr::manyInBins(model, 50);
    OpenTimerBar editor(menu);
    const auto &selector = ui::get<QComboBox>(*editor, "comboDaypartSelect");
    for (int index = 0; index < 6; ++index) {
        editor.showDaypart(selector.itemText(index));
        for (qsizetype bin = 0; bin < cbr::model(model).bins.size(); ++bin) {
            const int number = menu.dayparts[std::size_t(index)][bin];
            const QString expected = number == cbr::noProduct ? QString() : u"P%1"_s.arg(number);
            QCOMPARE(binButton(editor, cbr::model(model).bins[bin]).text(), expected);
        }
    }
}

void TestTimerBarGrid::everyBinIsAssignedByItsButton()
{
    QFETCH(QString, model);
    cbr::Menu menu = baconHamChili(model);
    OpenTimerBar editor(menu);
    editor.showDaypart(u"Dinner"_s);
    for (qsizetype bin = 0; bin < cbr::model(model).bins.size(); ++bin) {
        const int row = static_cast<int>(bin) % 2; // the two that suit each other
        assign(editor, cbr::model(model).bins[bin], row);
        QCOMPARE(binButton(editor, cbr::model(model).bins[bin]).text(), row == 0 ? u"BACN"_s : u"HAM"_s);
        menu.dayparts[4].append(row);
    }
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarGrid::toolTipsTellTheProduct_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("Fahrenheit") << 0 << u"Chili\nTemperature: 190°F / 180°F"_s;
    QTest::newRow("Celsius") << 1 << u"Chili\nTemperature: 88°C / 82°C"_s;
}

void TestTimerBarGrid::toolTipsTellTheProduct()
{
    QFETCH(int, unit);
    QFETCH(QString, toolTip);
    cbr::Menu menu = baconHamChili(u"KTR22"_s, unit);
    menu.dayparts[0] = {2};
    OpenTimerBar editor(menu);
    QCOMPARE(binButton(editor, "10").toolTip(), toolTip);
    QCOMPARE(binButton(editor, "11").toolTip(), QString());
    editor.showDaypart(u"Lunch"_s);
    QCOMPARE(binButton(editor, "10").toolTip(), QString());
}

void TestTimerBarGrid::toolTipsFollowTheConfiguredUnit()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {2};
    OpenTimerBar editor(menu);
    configure(editor, u"KTR22"_s, "rbTempUnitC");
    QCOMPARE(binButton(editor, "10").toolTip(), u"Chili\nTemperature: 88°C / 82°C"_s);
    configure(editor, u"KTR22"_s, "rbTempUnitF");
    QCOMPARE(binButton(editor, "10").toolTip(), u"Chili\nTemperature: 190°F / 180°F"_s);
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarGrid::neighbourDecidesWhatFits_data()
{
    using Bools = QList<bool>;
    QTest::addColumn<QList<int>>("bins"); // of a KTR24: the lower row, then the upper one
    QTest::addColumn<QByteArray>("bin");
    QTest::addColumn<QList<bool>>("fits"); // bacon, ham, chili
    const Bools all{true, true, true};
    const Bools ofBacon{true, true, false};
    QTest::newRow("empty row") << QList<int>{} << QByteArray("10") << all;
    QTest::newRow("bacon beside it") << QList<int>{100, 0} << QByteArray("10") << ofBacon;
    QTest::newRow("bacon before it") << QList<int>{0} << QByteArray("11") << ofBacon;
    QTest::newRow("chili, whose temperatures differ")
        << QList<int>{2} << QByteArray("11") << Bools{false, false, false};
    QTest::newRow("its own product") << QList<int>{0} << QByteArray("10") << all;
    QTest::newRow("another pair's") << QList<int>{0, 1} << QByteArray("12") << all;
    QTest::newRow("the right pair's") << QList<int>{2, 2, 100, 1} << QByteArray("12") << ofBacon;
    QTest::newRow("the row above") << QList<int>{100, 100, 100, 100, 0} << QByteArray("11") << all;
}

void TestTimerBarGrid::neighbourDecidesWhatFits()
{
    QFETCH(QList<int>, bins);
    QFETCH(QByteArray, bin);
    QFETCH(QList<bool>, fits);
    cbr::Menu menu = baconHamChili(u"KTR24"_s);
    menu.dayparts[0] = bins;
    OpenTimerBar editor(menu);
    editor.showTab(1);
    QCOMPARE(fittingRows(editor, bin), fits);
}

// A KTR23 shows three columns; a fourth one of another model stays where it was.
void TestTimerBarGrid::hiddenNeighbourCountsToo()
{
    cbr::Menu menu = baconHamChili(u"KTR24"_s);
    menu.dayparts[0] = {100, 100, 100, 0};
    OpenTimerBar editor(menu);
    editor.showTab(1);
    QCOMPARE(binButton(editor, "13").text(), u"BACN"_s);
    configure(editor, u"KTR23"_s);
    QVERIFY(!binButton(editor, "13").isVisible());
    QCOMPARE(fittingRows(editor, "12"), (QList<bool>{true, true, false}));
    QCOMPARE(fittingRows(editor, "11"), (QList<bool>{true, true, true}));
}

void TestTimerBarGrid::configurationShowsTheFirstDaypart()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0};
    menu.dayparts[2] = {2};
    OpenTimerBar editor(menu);
    editor.showDaypart(u"Lunch"_s);
    QCOMPARE(binButton(editor, "10").text(), u"CHIL"_s);
    configure(editor, u"KTR22"_s);
    const auto &dayparts = ui::get<QComboBox>(*editor, "comboDaypartSelect");
    QCOMPARE(dayparts.count(), 6);
    QCOMPARE(dayparts.currentText(), u"Breakfast"_s);
    QCOMPARE(binButton(editor, "10").text(), u"BACN"_s);
}

void TestTimerBarGrid::otherDaypartsStayAsTheyAre()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {2, 100, 2, 100};
    OpenTimerBar editor(menu);
    editor.showDaypart(u"ChangeOver 1"_s);
    assign(editor, "11", 0); // chili beside it in another day part does not count
    editor.showDaypart(u"Breakfast"_s);
    QCOMPARE(binButton(editor, "11").text(), QString());
    QCOMPARE(binButton(editor, "10").text(), u"CHIL"_s);
    menu.dayparts[1] = {100, 0};
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarGrid::cancelledAssignmentChangesNothing()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0};
    OpenTimerBar editor(menu);
    editor.showTab(1);
    for (const bool escape : {false, true}) {
        ModalAnswers answers;
        answers.expect<TimerBarDaypartAssignItem>([escape](TimerBarDaypartAssignItem &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 1);
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                ui::click(dialog, "btnCancel");
        });
        ui::click(binButton(editor, "10"));
        QCOMPARE(binButton(editor, "10").text(), u"BACN"_s);
    }
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarGrid::withoutProductsNothingOpens()
{
    OpenTimerBar editor(cbr::Menu{});
    editor.showTab(1);
    ui::click(binButton(editor, "00")); // an unexpected dialog would fail
    QCOMPARE(editor.saved(), hex(cbr::Menu{}));
}

void TestTimerBarGrid::smallerModelKeepsTheHiddenBins()
{
    cbr::Menu menu = cbr::manyInBins(u"KTR34"_s, 20);
    OpenTimerBar editor(menu);
    for (const QString &model : {u"KTR23"_s, u"KTR22"_s, u"KTR42"_s})
        configure(editor, model);
    cbr::Menu smaller = menu;
    smaller.model = u"KTR42"_s;
    for (std::size_t index = 0; index < 6; ++index) {
        const QList<int> &all = menu.dayparts[index];
        smaller.dayparts[index] = {100, 100, all[0], all[1], all[4], all[5], all[8], all[9]};
    }
    QCOMPARE(editor.saved(), hex(smaller));
    configure(editor, u"KTR34"_s);
    QCOMPARE(editor.saved(), hex(menu));
    editor.showTab(1);
    QCOMPARE(binButton(editor, "21").text(), u"P3"_s);
}

// Whatever stands in the bins.
void TestTimerBarGrid::gridNeverMoves()
{
    cbr::Menu menu = baconHamChili(u"KTR34"_s);
    menu.products[0].shortName = "WWWW";
    menu.dayparts[1] = QList<int>(12, 0);
    OpenTimerBar editor(menu);
    editor.showTab(1);
    QList<QRect> places;
    for (const QByteArray &bin : cbr::model(u"KTR34"_s).bins)
        places.append(binButton(editor, bin).geometry());
    editor.showDaypart(u"ChangeOver 1"_s);
    for (const QByteArray &bin : cbr::model(u"KTR34"_s).bins)
        QCOMPARE(binButton(editor, bin).geometry(), places.takeFirst());
}

QTEST_MAIN(TestTimerBarGrid)
#include "tst_timerbar_grid.moc"
