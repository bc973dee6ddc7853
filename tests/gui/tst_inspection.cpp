// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLayout>

#include "holding/configuration.h"
#include "tests/gui/editproduct.h"
#include "tests/gui/inspect.h"
#include "tests/gui/openbins.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// The line above the tabs and the list behind it.
class TestInspection : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void noLineWhereThereIsNothing();
    void lineCounts_data();
    void lineCounts();
    void lineStandsAboveTheTabs();
    void listTellsEverything();
    void nothingIsChosenAtFirst();
    void longSentencesTakeSeveralLines();
    void leavingTheListChangesNothing_data();
    void leavingTheListChangesNothing();
    void lineFollowsEdits();
    void lineComesAndGoesWithTheConfiguration();
    void lineComesAgainWithTheFile();
    void listOfThousandsStaysShort();
};

namespace {

samplefile::Menu goodMenu(const QString &model = u"KTR22"_s)
{
    samplefile::Menu menu;
    menu.header = bins::headerOf(model);
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Ham"_s)};
    menu.groups = {samplefile::group(9, u"Meats"_s, {1, 2})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 9}), samplefile::daypart(u"Evening"_s, {2})};
    return menu;
}

// Ham is held for a minute, a member of the group and the last bin of the evening are missing.
samplefile::Menu menuToLookAt()
{
    samplefile::Menu menu = goodMenu();
    menu.products[1] = samplefile::product(2, u"Ham"_s, {{u"holdingTime"_s, 60}, {u"warningTime"_s, 0}});
    menu.groups = {samplefile::group(9, u"Meats"_s, {1, 77})};
    menu.layout[1] = samplefile::daypart(u"Evening"_s, {2, 0, 0, 88});
    return menu;
}

const QStringList everything{u"Product 2, Ham: Invalid hold time. Minimum value is 6 minutes!"_s,
                             u"Group 1, Meats: Its product with the id 77 is not in this menu"_s,
                             u"Evening, Row 2, Bin 2: The id 88 is not in this menu"_s};

} // namespace

void TestInspection::noLineWhereThereIsNothing()
{
    OpenEditor editor(goodMenu());
    QVERIFY(!editor->findChild<QPushButton *>(u"btnFindings"_s));
}

void TestInspection::lineCounts_data()
{
    QTest::addColumn<QList<int>>("bins");
    QTest::addColumn<QString>("line");
    QTest::newRow("one") << QList<int>{1, 77} << u"1 thing to look at"_s;
    QTest::newRow("two") << QList<int>{77, 78} << u"2 things to look at"_s;
    QTest::newRow("none") << QList<int>{1, 2} << QString();
}

void TestInspection::lineCounts()
{
    QFETCH(const QList<int>, bins);
    samplefile::Menu menu = goodMenu();
    menu.layout = {samplefile::daypart(u"Morning"_s, bins)};
    OpenEditor editor(menu);
    QTEST(inspect::line(*editor), "line");
}

void TestInspection::lineStandsAboveTheTabs()
{
    OpenEditor editor(menuToLookAt());
    const auto &button = ui::get<QPushButton>(*editor, "btnFindings");
    const auto &tabs = ui::get<QTabWidget>(*editor, "tabWidget");
    QVERIFY(button.geometry().bottom() < tabs.geometry().top());
    QVERIFY(button.geometry().top() > ui::get<QWidget>(*editor, "lblCabinet").geometry().bottom());
    for (int tab = 0; tab < tabs.count(); ++tab) {
        editor.showTab(tab);
        QCOMPARE(inspect::line(*editor), u"3 things to look at"_s);
    }
    QVERIFY(button.isFlat() && !button.toolTip().isEmpty());
    QCOMPARE(button.statusTip(), button.toolTip());
}

void TestInspection::listTellsEverything()
{
    OpenEditor editor(menuToLookAt());
    inspect::open(*editor, [](MenuInspection &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Things to Look At"_s);
        QCOMPARE(ui::textsOf(inspect::list(dialog)), everything);
        ui::click(dialog, "btnClose");
    });
}

void TestInspection::nothingIsChosenAtFirst()
{
    OpenEditor editor(menuToLookAt());
    inspect::open(*editor, [](MenuInspection &dialog) {
        QListWidget &list = inspect::list(dialog);
        auto &goTo = ui::get<QPushButton>(dialog, "btnGoTo");
        QVERIFY(!goTo.isEnabled() && goTo.isDefault());
        QCOMPARE(dialog.focusWidget(), &list);
        QTest::keyClick(&list, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.currentRow(), 0);
        QVERIFY(goTo.isEnabled());
        QTest::keyClicks(&list, u"gro"_s);
        QCOMPARE(list.currentRow(), 1);
        ui::click(dialog, "btnClose");
    });
}

// All of a sentence is seen, whatever the names in it.
void TestInspection::longSentencesTakeSeveralLines()
{
    samplefile::Menu menu = goodMenu();
    const QString name = u"Grilled Chicken Breast Fillet, Large"_s;
    menu.products = {samplefile::product(1, name), samplefile::product(2, name, {{u"upperTemp"_s, 215}})};
    menu.groups = {};
    menu.layout = {samplefile::daypart(name, {1, 2})};
    OpenEditor editor(menu);
    QCOMPARE(inspect::line(*editor), u"2 things to look at"_s);
    inspect::open(*editor, [](MenuInspection &dialog) {
        const QListWidget &list = inspect::list(dialog);
        const QRect place = list.visualItemRect(list.item(0));
        const QFontMetrics metrics = list.fontMetrics();
        const QString text = list.item(0)->text();
        QVERIFY(metrics.horizontalAdvance(text) > place.width());
        QVERIFY(place.width() <= list.viewport()->width());
        const QRect needed =
            metrics.boundingRect(QRect(0, 0, place.width() - 8, 1000), Qt::TextWordWrap, text);
        QVERIFY(place.height() >= needed.height());
        ui::click(dialog, "btnClose");
    });
}

void TestInspection::leavingTheListChangesNothing_data()
{
    QTest::addColumn<bool>("byClick");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("click") << true << Qt::Key_unknown;
    QTest::newRow("Escape") << false << Qt::Key_Escape;
    QTest::newRow("Enter") << false << Qt::Key_Return;
    QTest::newRow("Space") << false << Qt::Key_Space;
}

void TestInspection::leavingTheListChangesNothing()
{
    QFETCH(const bool, byClick);
    QFETCH(const Qt::Key, key);
    OpenEditor editor(menuToLookAt());
    const QJsonObject before = editor.saved();
    inspect::open(*editor, [byClick, key](MenuInspection &dialog) {
        ui::clickRow(inspect::list(dialog), 2);
        auto &close = ui::get<QPushButton>(dialog, "btnClose");
        close.setFocus();
        if (byClick)
            ui::click(close);
        else
            QTest::keyClick(&close, key);
    });
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 0);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(inspect::line(*editor), u"3 things to look at"_s);
    QCOMPARE(ui::get<QLabel>(*editor, "lblSaved").text(), u"Saved"_s);
    QCOMPARE(editor.saved(), before);
}

void TestInspection::lineFollowsEdits()
{
    samplefile::Menu menu = menuToLookAt();
    menu.groups = {};
    menu.layout = {};
    OpenEditor editor(menu);
    QCOMPARE(inspect::line(*editor), u"1 thing to look at"_s);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::enterTime(dialog, "timeHoldTime", QTime(0, 30));
        ui::click(dialog, "btnSave");
    });
    ui::doubleClickRow(editor.products(), 1);
    QCOMPARE(inspect::line(*editor), QString());
    QCOMPARE(ui::get<QLabel>(*editor, "lblSaved").text(), u"Changed since the last save"_s);
}

namespace {

void switchFanSpeeds(MenuFile &editor)
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        ui::click(dialog, "checkBoxFanSpeedEnabled");
        ui::click(dialog, "btnAccept");
    });
    ui::click(editor, "btnConfig");
}

} // namespace

// The editor is higher only while the line is there, with a cabinet that leaves it no room to spare.
void TestInspection::lineComesAndGoesWithTheConfiguration()
{
    samplefile::Menu menu = goodMenu(u"KTR82"_s);
    menu.products[1] = samplefile::product(2, u"Ham"_s, {{u"fanSpeed"_s, 80}});
    menu.groups = {};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2})};
    OpenBins editor(menu);
    const QSize before = editor->size();
    switchFanSpeeds(*editor);
    QCOMPARE(inspect::line(*editor), u"2 things to look at"_s);
    QVERIFY(editor->height() > before.height());
    QVERIFY(editor->height() >= editor->layout()->totalSizeHint().height());
    QCOMPARE(inspect::sentences(*editor).constFirst(),
             u"Morning, Row 1, Bin 1: Bacon. Fan speed 60, this zone has 80"_s);
    switchFanSpeeds(*editor);
    QCOMPARE(inspect::line(*editor), QString());
    QCOMPARE(editor->size(), before);
}

void TestInspection::lineComesAgainWithTheFile()
{
    OpenEditor editor(menuToLookAt());
    ModalAnswers answers;
    for (const int left : {2, 1}) {
        answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
        ui::clickRow(editor.products(), left - 1);
        ui::click(*editor, "btnDeleteProduct");
    }
    QVERIFY(inspect::line(*editor) != u"3 things to look at"_s);
    QVERIFY(editor->readMenuFile());
    QCOMPARE(inspect::line(*editor), u"3 things to look at"_s);
}

void TestInspection::listOfThousandsStaysShort()
{
    samplefile::Menu menu;
    for (int id = 1; id <= 1500; ++id)
        menu.products.append(samplefile::product(id, u"Bacon"_s, {{u"holdingTime"_s, 60}}));
    OpenEditor editor(menu);
    QCOMPARE(inspect::line(*editor), u"1501 things to look at"_s);
    inspect::open(*editor, [](MenuInspection &dialog) {
        QListWidget &list = inspect::list(dialog);
        QCOMPARE(list.count(), 1001);
        QCOMPARE(list.item(999)->text(),
                 u"Product 999, Bacon: Invalid hold time. Minimum value is 6 minutes!"_s);
        QCOMPARE(list.item(1000)->text(), u"and 501 more"_s);
        QTest::keyClick(&list, Qt::Key_End);
        QTest::keyClick(&list, Qt::Key_Down);
        QVERIFY(!list.item(1000)->isSelected());
        ui::clickRow(list, 1000);
        QVERIFY(!ui::get<QPushButton>(dialog, "btnGoTo").isEnabled());
        ui::click(dialog, "btnClose");
    });
}

QTEST_MAIN(TestInspection)
#include "tst_inspection.moc"
