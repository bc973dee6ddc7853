// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/findpane.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using findfield::foods;
using findfield::Pane;
using findfield::shownNames;

/// Which row is current, and in sight, while rows are found.
class TestFindRowsCurrent : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void hiddenRowIsNotCurrentUntilItIsShown();
    void otherChoiceStaysWhenAllAreShown();
    void hiddenRowStaysLeftWhileWordsAreTyped();
    void hiddenRowComesBackAfterWordsThatHideNothing();
    void refillForgetsTheHiddenRow();
    void hiddenPickIsSelectedAgain();
    void currentRowStaysInSight();
    void firstThatFitsStaysInSight();
    void choiceInSightStays();
    void firstThatFitsIsSelected_data();
    void firstThatFitsIsSelected();
    void typingAloneSelectsNothingElsewhere();
    void newRowComesIntoSight();
};

void TestFindRowsCurrent::hiddenRowIsNotCurrentUntilItIsShown()
{
    Pane pane(false);
    ui::clickRow(pane.list, 3);
    pane.type(u"bacon"_s);
    QCOMPARE(pane.list.currentRow(), -1);
    QVERIFY(pane.list.selectedItems().isEmpty());
    pane.type({});
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham* Hash"_s);
    QCOMPARE(pane.list.currentRow(), 3);
}

void TestFindRowsCurrent::otherChoiceStaysWhenAllAreShown()
{
    Pane pane(false);
    ui::clickRow(pane.list, 3);
    pane.type(u"bacon"_s);
    ui::clickRow(pane.list, 0);
    pane.type({});
    QCOMPARE(shownNames(pane.list), u"Bacon* Beef Crêpe Ham Hash"_s);
}

void TestFindRowsCurrent::hiddenRowStaysLeftWhileWordsAreTyped()
{
    Pane pane(false);
    ui::clickRow(pane.list, 3);
    pane.type(u"has"_s);
    pane.press(Qt::Key_Backspace);
    QCOMPARE(shownNames(pane.list), u"Ham Hash"_s);
    pane.press(Qt::Key_Escape);
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham* Hash"_s);
}

void TestFindRowsCurrent::hiddenRowComesBackAfterWordsThatHideNothing()
{
    Pane pane(false);
    pane.fill({u"Food 1"_s, u"Food 2"_s, u"Food 3"_s});
    ui::clickRow(pane.list, 2);
    pane.type(u"food 1"_s);
    QCOMPARE(pane.list.currentRow(), -1);
    pane.press(Qt::Key_Backspace);
    QCOMPARE(shownNames(pane.list), u"Food 1 Food 2 Food 3"_s);
    pane.type({});
    QCOMPARE(pane.list.currentRow(), 2);
}

// The row may be another one's.
void TestFindRowsCurrent::refillForgetsTheHiddenRow()
{
    Pane pane(false);
    ui::clickRow(pane.list, 3);
    pane.type(u"bacon"_s);
    pane.fill(foods);
    pane.type({});
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham Hash"_s);
    QCOMPARE(pane.list.currentRow(), -1);
}

void TestFindRowsCurrent::hiddenPickIsSelectedAgain()
{
    Pane pane(true);
    ui::clickRow(pane.list, 4);
    pane.type(u"x"_s);
    QVERIFY(!pane.pick.isEnabled());
    pane.press(Qt::Key_Escape);
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham Hash*"_s);
    QVERIFY(pane.pick.isEnabled());
    ui::clickRow(pane.list, 4, Qt::ControlModifier);
    QVERIFY(!pane.pick.isEnabled());
    pane.type(u"x"_s);
    pane.press(Qt::Key_Escape);
    QVERIFY(!pane.pick.isEnabled()); // as it was before
}

// Every second row is hidden and shown again.
void TestFindRowsCurrent::currentRowStaysInSight()
{
    Pane pane(true);
    QStringList names;
    for (int i = 0; i < 50; ++i)
        names += {u"Beef"_s, u"Ham"_s};
    pane.fill(names);
    ui::clickRow(pane.list, 51);
    for (const bool fittingOnly : {true, false}) {
        findfield::onlyFits(pane.dialog).click();
        QCOMPARE(pane.list.isRowHidden(50), fittingOnly);
        QCOMPARE(pane.list.currentRow(), 51);
        QVERIFY(findfield::isCurrentInSight(pane.list));
    }
}

// The second letter hides what does not fit above it.
void TestFindRowsCurrent::firstThatFitsStaysInSight()
{
    Pane pane(true);
    pane.fill(QStringList(50, u"Beef with Ham"_s) + QStringList(50, u"Hash"_s));
    for (const char letter : {'h', 'a', 's'}) {
        QTest::keyClick(&pane.field(), letter);
        QCOMPARE(pane.list.currentRow(), 50);
        QVERIFY(findfield::isCurrentInSight(pane.list));
    }
    QVERIFY(pane.list.isRowHidden(49));
}

void TestFindRowsCurrent::choiceInSightStays()
{
    Pane pane(false);
    ui::clickRow(pane.list, 4);
    pane.type(u"ha"_s);
    QCOMPARE(shownNames(pane.list), u"Ham Hash*"_s);
    QCOMPARE(pane.list.currentRow(), 4);
}

void TestFindRowsCurrent::firstThatFitsIsSelected_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("the first") << u"ha"_s << u"Ham* Hash"_s;
    QTest::newRow("behind one that does not fit") << u"e"_s << u"Beef Crêpe*"_s;
    QTest::newRow("none fits") << u"beef"_s << u"Beef"_s;
    QTest::newRow("none is found") << u"x"_s << QString();
    QTest::newRow("blanks") << u" "_s << u"Bacon Beef Crêpe Ham Hash"_s;
}

void TestFindRowsCurrent::firstThatFitsIsSelected()
{
    QFETCH(const QString, typed);
    Pane pane(true);
    pane.type(typed);
    QTEST(shownNames(pane.list), "shown");
    QCOMPARE(pane.pick.isEnabled(), shownNames(pane.list).contains(u'*'));
}

void TestFindRowsCurrent::typingAloneSelectsNothingElsewhere()
{
    Pane pane(false);
    pane.type(u"ha"_s);
    QCOMPARE(shownNames(pane.list), u"Ham Hash"_s);
}

void TestFindRowsCurrent::newRowComesIntoSight()
{
    Pane pane(false);
    pane.type(u"ha"_s);
    pane.find->refresh(3);
    QCOMPARE(pane.field().text(), u"ha"_s);
    pane.find->refresh(0);
    QVERIFY(pane.field().text().isEmpty());
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham Hash"_s);
}

QTEST_MAIN(TestFindRowsCurrent)
#include "tst_findrows_current.moc"
