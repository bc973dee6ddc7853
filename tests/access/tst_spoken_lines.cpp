// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"
#include "tests/access/heard.h"
#include "tests/gui/openlaneeditor.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

/// What the other editors and the main window tell screen readers.
class TestSpokenLines : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void editorsHaveTheirTitles();
    void importIsTold();
    void timerBarProductsAreTold();
    void timerBarPickerTellsWhatItHolds();
    void timerBarRemovalIsTold();
    void emptyLaneNotesAreHidden();
    void thingsToLookAtAreTold();
};

void TestSpokenLines::editorsHaveTheirTitles()
{
    OpenTimerBar timerBar(baconHamChili());
    QCOMPARE(timerBar->accessibleName(), u"Menu File - menu.cbr"_s);
    OpenLaneEditor lanes;
    QCOMPARE((*lanes).accessibleName(), (*lanes).windowTitle());
    QVERIFY(!(*lanes).accessibleName().isEmpty());
}

// While the old menu is read there is no window yet.
void TestSpokenLines::importIsTold()
{
    TestFolder folder;
    MenuFile editor(folder.make(u"old.qhx"_s, qhx::File().bytes()));
    Heard heard;
    ui::show(editor);
    const QString told = u"lblSaved: Imported from old.qhx. Check Configuration before you save."_s;
    const QStringList all = heard.take();
    QCOMPARE(Heard::countOf(all, u"name "_s + told), 1);
    QCOMPARE(Heard::countOf(all, u"alert "_s + told), 1);
}

void TestSpokenLines::timerBarProductsAreTold()
{
    OpenTimerBar editor(baconHamChili());
    QCOMPARE(spokenDescription(editor.products(), 2).section(u',', 0, 0), u"190°F / 180°F"_s);
    ui::clickRow(editor.products(), 0);
    const QHash<const char *, QString> labels{{"txtName", u"Product Name: Bacon"_s},
                                              {"txtShortName", u"Short Name: BACN"_s}};
    for (auto each = labels.begin(); each != labels.end(); ++each)
        QCOMPARE(spokenName(ui::get<QLabel>(*editor, each.key())), each.value());
    const QString time = editor.detail("HoldTime");
    QCOMPARE(spokenName(ui::get<QLabel>(*editor, "txtHoldTime")), u"Holding Time: "_s + time);
    QVERIFY(spokenDescription(editor.products(), 0).endsWith(u", Holding Time: "_s + time));
}

void TestSpokenLines::timerBarPickerTellsWhatItHolds()
{
    OpenTimerBar editor(baconHamChili());
    editor.showTab(1);
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([&editor](TimerBarDaypartAssignItem &dialog) {
        auto &list = ui::get<QListWidget>(dialog, "listWidgetProducts");
        for (int row = 0; row < 3; ++row)
            REQUIRE_EQUAL(spokenDescription(list, row), spokenDescription(editor.products(), row));
        REQUIRE(!spokenDescription(list, 0).isEmpty());
        ui::click(dialog, "btnCancel");
    });
    ui::click(editor.button("btnDaypartSelect0_0"));
}

void TestSpokenLines::timerBarRemovalIsTold()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0};
    OpenTimerBar editor(menu);
    editor.showTab(1);
    Heard heard;
    enterRemovalMode(*editor);
    const QStringList told = heard.take();
    QVERIFY(told.contains(u"alert lblDaypartHint: Choose the bins to clear, then press Remove."_s));
    QVERIFY(told.contains(u"check btnDaypartSelect1_0: on"_s));
}

void TestSpokenLines::emptyLaneNotesAreHidden()
{
    OpenLaneEditor editor("T1=1,T2=375,T3=375,T4=375,F1=1800,F2=1,F3=1800,F4=1800");
    for (int lane = 1; lane <= 4; ++lane) {
        const QByteArray number = QByteArray::number(lane);
        const auto &temperature =
            ui::get<QLabel>(*editor, QByteArray("lblTemperatureNote" + number).constData());
        const auto &fanSpeed = ui::get<QLabel>(*editor, QByteArray("lblFanSpeedNote" + number).constData());
        QCOMPARE(temperature.isVisible(), lane == 1);
        QCOMPARE(fanSpeed.isVisible(), lane == 2);
        QCOMPARE(editor.temperature(lane).accessibleDescription(), temperature.text());
        QCOMPARE(editor.fanSpeed(lane).accessibleDescription(), fanSpeed.text());
    }
    QCOMPARE(editor.temperature(1).accessibleDescription(), u"file holds 1"_s);
}

// A group that loses its only product is a thing to look at.
void TestSpokenLines::thingsToLookAtAreTold()
{
    samplefile::Menu menu;
    for (const int id : {1, 2, 3}) {
        menu.products.append(samplefile::product(id, u"Ham"_s));
        menu.groups.append(samplefile::group(10 + id, u"Meats"_s, {id}));
    }
    TestFolder folder;
    MenuFile editor(folder.make(u"menu.json"_s, menu.bytes()));
    Heard heard;
    ui::show(editor);
    const auto removeFirst = [&editor](const char *list, const char *button, const QString &question) {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
        ui::clickRow(ui::get<QListWidget>(editor, list), 0);
        ui::click(editor, button);
    };
    const auto told = [&heard] { return heard.take().filter(u"alert btnFindings"_s); };
    for (const auto &news : {u"1 thing to look at"_s, u"2 things to look at"_s}) {
        removeFirst("listWidgetProducts", "btnDeleteProduct", u"Delete selected product?"_s);
        QCOMPARE(told(), QStringList{u"alert btnFindings: "_s + news});
    }
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    removeFirst("listWidgetGroups", "btnDeleteGroup", u"Delete selected group?"_s);
    QCOMPARE(told(), QStringList{u"alert btnFindings: 1 thing to look at"_s});
    removeFirst("listWidgetGroups", "btnDeleteGroup", u"Delete selected group?"_s);
    QCOMPARE(told(), QStringList());
}

QTEST_MAIN(TestSpokenLines)
#include "tst_spoken_lines.moc"
