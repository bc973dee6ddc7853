// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include "holding/assigndaypartitem.h"
#include "tests/gui/openbins.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Assigning products and groups to bins by clicking them.
class TestDaypartAssign : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void offersWhatFits_data();
    void offersWhatFits();
    void offersWhatSharesTheSettings_data();
    void offersWhatSharesTheSettings();
    void assignsToTheClickedBin_data();
    void assignsToTheClickedBin();
    void fillsARowByAndBy();
    void assignsAGroup();
    void replacesWhatIsThere();
    void rejectedPickerLeavesTheBin_data();
    void rejectedPickerLeavesTheBin();
    void assignsFromTheKeyboard();
    void assignsToTheShownDaypartOnly();
    void nothingWithoutADaypart();
    void nothingForABinThatIsNotThere();
};

namespace {

QListWidget &list(const AssignDaypartItem &picker)
{
    return ui::get<QListWidget>(picker, "listWidgetProducts");
}

// The numbers of the rows that can be chosen, from 1 on.
QString offered(const AssignDaypartItem &picker)
{
    QStringList rows;
    for (int row = 0; row < list(picker).count(); ++row) {
        if (list(picker).item(row)->flags() & Qt::ItemIsSelectable)
            rows.append(QString::number(row + 1));
    }
    return rows.join(u' ');
}

// Clicks the bin; `act` runs in the picker and has to close it.
void click(OpenBins &editor, int row, int slot, const std::function<void(AssignDaypartItem &)> &act)
{
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>(act);
    ui::click(editor.button(row, slot));
}

void assign(OpenBins &editor, int row, int slot, int number)
{
    click(editor, row, slot, [number](AssignDaypartItem &picker) {
        ui::clickRow(list(picker), number - 1);
        ui::click(picker, "btnSelect");
    });
}

QString offeredFor(OpenBins &editor, int row, int slot)
{
    QString numbers;
    click(editor, row, slot, [&numbers](AssignDaypartItem &picker) {
        numbers = offered(picker);
        ui::click(picker, "btnCancel");
    });
    return numbers;
}

} // namespace

// Entry 1 is "1/3", 2 "1/2", 3 "2/3", 4 "1/1", 5 a group of "1/2".
void TestDaypartAssign::offersWhatFits_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("bins");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("offer");
    const auto add = [](const char *name, const QString &model, const QList<int> &bins, int slot,
                        const QString &offer) { QTest::newRow(name) << model << bins << slot << offer; };
    add("two bins, first of two empty", u"KTR22"_s, {}, 0, u"2 4 5"_s);
    add("two bins, last of two empty", u"KTR22"_s, {}, 1, u"2 5"_s);
    add("two bins, beside a filled one", u"KTR82"_s, {0, 2}, 0, u"2 5"_s);
    add("two bins, beside an unknown id", u"KTR82"_s, {0, 99}, 0, u"2 5"_s);
    add("two bins, a lone half again", u"KTR82"_s, {2}, 0, u"2 4 5"_s);
    add("three bins, all empty", u"KTR33"_s, {}, 0, u"1 2 3 4 5"_s);
    add("three bins, the second", u"KTR33"_s, {}, 1, u"1 3"_s);
    add("three bins, the third", u"ZPV43"_s, {}, 2, u"1"_s);
    add("three bins, two free", u"ZPV23"_s, {0, 0, 1}, 0, u"1 3"_s);
    add("three bins, one free", u"KTR63"_s, {0, 1}, 0, u"1"_s);
    add("three bins, halves stay halves", u"KTR63"_s, {2, 0}, 1, u"2 5"_s);
    add("three bins, halves stay halves, first", u"KTR63"_s, {0, 5}, 0, u"2 5"_s);
    add("three bins, a lone half again", u"KTR63"_s, {5}, 0, u"2 5"_s);
    add("three bins, a whole again", u"KTR33"_s, {4}, 0, u"1 2 3 4 5"_s);
    add("one-bin second zone", u"KTR23"_s, {}, 2, u"2 5"_s);
    add("one-bin second zone, filled", u"KTR23"_s, {0, 0, 4}, 2, u"2 5"_s);
    add("beside a one-bin second zone", u"KTR23"_s, {0, 0, 2}, 0, u"2 4 5"_s);
    add("second of the first zone", u"KTR24"_s, {}, 1, u"2 5"_s);
    add("first of the second zone", u"KTR24"_s, {4, 0, 0, 0}, 2, u"2 4 5"_s);
    add("last of the second zone", u"KTR24"_s, {}, 3, u"2 5"_s);
    add("second zone beside a filled bin", u"KTR54"_s, {0, 0, 0, 2}, 2, u"2 5"_s);
}

void TestDaypartAssign::offersWhatFits()
{
    QFETCH(QString, model);
    QFETCH(QList<int>, bins);
    QFETCH(int, slot);
    QFETCH(QString, offer);
    OpenBins editor(bins::menuOf(model, bins));
    QCOMPARE(offeredFor(editor, 0, slot), offer);
    QCOMPARE(offeredFor(editor, 0, slot), offer); // asking changes nothing
    QCOMPARE(editor.savedBins(0).first(bins.size()), bins);
}

// Entries 1 and 2 hold at 200 / 200 °F with fan speed 60; each later one differs in one of them, and the last
// one has no upper temperature.
void TestDaypartAssign::offersWhatSharesTheSettings_data()
{
    QTest::addColumn<QList<int>>("bins");
    QTest::addColumn<int>("slot");
    QTest::addColumn<bool>("fanSpeed");
    QTest::addColumn<QString>("offer");
    const QString all = u"1 2 3 4 5 6"_s;
    QTest::newRow("empty zone") << QList<int>{0, 0, 3, 3} << 1 << true << all;
    QTest::newRow("same") << QList<int>{1} << 1 << true << u"1 2"_s;
    QTest::newRow("same, fan speed not in use") << QList<int>{1} << 1 << false << u"1 2 5"_s;
    QTest::newRow("hotter above") << QList<int>{3} << 1 << true << u"3"_s;
    QTest::newRow("cooler below") << QList<int>{4} << 1 << true << u"4"_s;
    QTest::newRow("other fan speed") << QList<int>{5} << 1 << true << u"5"_s;
    QTest::newRow("no upper temperature") << QList<int>{6} << 1 << true << u"1 2 3 6"_s;
    QTest::newRow("the slot itself does not count") << QList<int>{3, 1} << 0 << true << u"1 2"_s;
    QTest::newRow("second zone") << QList<int>{1, 1, 3, 0} << 3 << true << u"3"_s;
    QTest::newRow("unknown id says nothing") << QList<int>{99} << 1 << true << all;
    QTest::newRow("another row says nothing") << QList<int>{0, 0, 0, 0, 3, 3} << 1 << true << all;
}

void TestDaypartAssign::offersWhatSharesTheSettings()
{
    QFETCH(QList<int>, bins);
    QFETCH(int, slot);
    QFETCH(bool, fanSpeed);
    QFETCH(QString, offer);
    samplefile::Menu menu;
    menu.header = bins::headerOf(u"KTR24"_s, {{u"fanSpeedEnabled"_s, fanSpeed}});
    menu.products = {samplefile::product(1, u"Ham"_s),
                     samplefile::product(2, u"Also Ham"_s),
                     samplefile::product(3, u"Hot"_s, {{u"upperTemp"_s, 210}}),
                     samplefile::product(4, u"Cool"_s, {{u"lowerTemp"_s, 190}}),
                     samplefile::product(5, u"Windy"_s, {{u"fanSpeed"_s, 61}}),
                     samplefile::product(6, u"Unset"_s, {{u"upperTemp"_s, 0}})};
    menu.layout = {samplefile::daypart(u"Morning"_s, bins)};
    OpenBins editor(menu);
    QCOMPARE(offeredFor(editor, 0, slot), offer);
}

void TestDaypartAssign::assignsToTheClickedBin_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("place"); // in the file
    QTest::addColumn<int>("width");
    QTest::newRow("KTR22 half") << u"KTR22"_s << 1 << 1 << 2 << 3 << 194;
    QTest::newRow("KTR22 whole") << u"KTR22"_s << 0 << 0 << 4 << 0 << 394;
    QTest::newRow("KTR23 second zone") << u"KTR23"_s << 1 << 2 << 2 << 6 << 112;
    QTest::newRow("KTR24 second zone whole") << u"KTR24"_s << 1 << 2 << 4 << 6 << 230;
    QTest::newRow("KTR33 third") << u"KTR33"_s << 2 << 2 << 1 << 8 << 127;
    QTest::newRow("KTR33 two thirds") << u"KTR33"_s << 0 << 1 << 3 << 1 << 265;
    QTest::newRow("KTR33 half") << u"KTR33"_s << 1 << 0 << 2 << 3 << 194;
    QTest::newRow("KTR33 whole") << u"KTR33"_s << 1 << 0 << 4 << 3 << 394;
    QTest::newRow("KTR34 last") << u"KTR34"_s << 2 << 3 << 2 << 11 << 112;
    QTest::newRow("KTR54 last") << u"KTR54"_s << 4 << 3 << 5 << 19 << 112;
    QTest::newRow("KTR63 last") << u"KTR63"_s << 5 << 2 << 1 << 17 << 127;
    QTest::newRow("KTR82 last") << u"KTR82"_s << 7 << 1 << 2 << 15 << 194;
    QTest::newRow("ZPV43 last") << u"ZPV43"_s << 3 << 2 << 1 << 11 << 127;
}

void TestDaypartAssign::assignsToTheClickedBin()
{
    QFETCH(QString, model);
    QFETCH(int, row);
    QFETCH(int, slot);
    QFETCH(int, number);
    QFETCH(int, place);
    QFETCH(int, width);
    OpenBins editor(bins::menuOf(model, {}));
    QList<int> expected = editor.savedBins(0);
    assign(editor, row, slot, number);
    expected[place] = number; // ids and numbers are the same here
    QCOMPARE(editor.savedBins(0), expected);
    const QStringList names{u"Third"_s, u"Half"_s, u"Most"_s, u"Whole"_s, u"Halves"_s};
    QCOMPARE(editor.button(row, slot).text(), names[number - 1]);
    QCOMPARE(editor.button(row, slot).minimumWidth(), width);
}

void TestDaypartAssign::fillsARowByAndBy()
{
    OpenBins editor(bins::menuOf(u"KTR33"_s, {}));
    assign(editor, 0, 0, 1);
    QCOMPARE(offeredFor(editor, 0, 1), u"1 3"_s);
    assign(editor, 0, 1, 3);
    QVERIFY(editor.button(0, 2).isHidden());
    assign(editor, 0, 1, 1);
    QVERIFY(editor.button(0, 2).isVisible());
    assign(editor, 0, 2, 1);
    QCOMPARE(editor.savedBins(0).first(3), (QList<int>{1, 1, 1}));
    assign(editor, 1, 0, 5);
    QVERIFY(editor.button(1, 2).isHidden());
    assign(editor, 1, 1, 2);
    QCOMPARE(editor.savedBins(0).sliced(3, 3), (QList<int>{5, 2, 0}));
}

void TestDaypartAssign::assignsAGroup()
{
    OpenBins editor(bins::menuOf(u"KTR24"_s, {2}));
    assign(editor, 0, 3, 5);
    QCOMPARE(editor.savedBins(0).first(4), (QList<int>{2, 0, 0, 5}));
    QCOMPARE(editor.button(0, 3).text(), u"Halves"_s);
}

void TestDaypartAssign::replacesWhatIsThere()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {4}));
    QVERIFY(editor.button(0, 1).isHidden());
    assign(editor, 0, 0, 2);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
    QVERIFY(editor.button(0, 1).isVisible());
    QCOMPARE(editor.button(0, 0).minimumWidth(), 194);
}

void TestDaypartAssign::rejectedPickerLeavesTheBin_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestDaypartAssign::rejectedPickerLeavesTheBin()
{
    QFETCH(bool, escape);
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    for (const int slot : {0, 1}) {
        click(editor, 0, slot, [escape](AssignDaypartItem &picker) {
            ui::clickRow(list(picker), 4);
            if (escape)
                QTest::keyClick(&picker, Qt::Key_Escape);
            else
                ui::click(picker, "btnCancel");
        });
    }
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
    QVERIFY(editor.button(0, 1).text().isEmpty());
}

void TestDaypartAssign::assignsFromTheKeyboard()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) {
        QTest::keyClick(picker.focusWidget(), Qt::Key_Down);
        QVERIFY(list(picker).hasFocus());
        QTest::keyClick(&list(picker), Qt::Key_End);
        QTest::keyClick(&picker, Qt::Key_Return);
    });
    editor.button(1, 0).setFocus();
    QTest::keyClick(&editor.button(1, 0), Qt::Key_Space);
    QCOMPARE(editor.savedBins(0), (QList<int>{0, 0, 5, 0}));
}

void TestDaypartAssign::assignsToTheShownDaypartOnly()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}, {0, 5}));
    ui::choose(*editor, "comboDaypartSelect", u"Evening"_s);
    QVERIFY(editor.button(0, 0).text().isEmpty());
    assign(editor, 1, 1, 2);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
    QCOMPARE(editor.savedBins(1), (QList<int>{0, 5, 0, 2}));
    ui::choose(*editor, "comboDaypartSelect", u"Morning"_s);
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
    QVERIFY(editor.button(1, 1).text().isEmpty());
}

// Any dialog would be an unexpected one.
void TestDaypartAssign::nothingWithoutADaypart()
{
    samplefile::Menu menu = bins::menuOf(u"KTR24"_s, {});
    menu.layout = {};
    OpenBins editor(menu);
    const ModalAnswers answers;
    ui::click(editor.button(0, 0));
    ui::click(editor.button(1, 3));
    editor->assignProductToBin(0, 0);
    QVERIFY(editor.saved().value(u"layout"_s).toArray().isEmpty());
}

void TestDaypartAssign::nothingForABinThatIsNotThere()
{
    OpenBins editor(bins::menuOf(u"KTR23"_s, {}));
    const ModalAnswers answers;
    for (const auto &[row, slot] : {std::pair(0, 3), {2, 0}, {-1, 0}, {0, -1}, {8, 0}, {0, 4}})
        editor->assignProductToBin(row, slot);
    QCOMPARE(editor.savedBins(0), QList<int>(8, 0));

    OpenBins oneZone(bins::menuOf(u"KTR22"_s, {}));
    for (const int slot : {2, 3})
        oneZone->assignProductToBin(0, slot);
    QCOMPARE(oneZone.savedBins(0), QList<int>(4, 0));
}

QTEST_MAIN(TestDaypartAssign)
#include "tst_daypart_assign.moc"
