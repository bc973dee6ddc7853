// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>

#include "tests/gui/listtab.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using findfield::ListTab;
using findfield::press;
using findfield::shownNames;

/// The field "Find" above each list of the editors.
class TestFindEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup() { m_tab.reset(); }
    void hiddenRowIsLeftAndComesBack();
    void deleteTakesTheRowInSight();
    void deleteTakesCheckedRowsInSightOnly();
    void deleteNeedsACheckedRowInSight();
    void selectingAllLeavesHiddenRowsOut();
    void endsOfTheListAreThoseInSight();
    void hiddenChecksAreCounted();
    void entryStaysInSight_data();
    void entryStaysInSight();
    void escapeEmptiesThenLeavesThenAsks();
    void enterGoesIntoTheListAndEdits();
    void typingInTheListPassesHiddenRows();

private:
    std::unique_ptr<ListTab> m_tab;
};

void TestFindEditors::initTestCase_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("products") << int(ListTab::Products);
    QTest::newRow("groups") << int(ListTab::Groups);
    QTest::newRow("Timer Bar products") << int(ListTab::TimerBar);
}

void TestFindEditors::init()
{
    failOnWarnings();
    QFETCH_GLOBAL(const int, kind);
    m_tab = std::make_unique<ListTab>(static_cast<ListTab::Kind>(kind));
}

void TestFindEditors::hiddenRowIsLeftAndComesBack()
{
    ui::clickRow(m_tab->list(), 2);
    m_tab->type(u"ha"_s);
    QCOMPARE(m_tab->detail(), u"Ham"_s);
    QCOMPARE(m_tab->enabled(), u"EDX"_s);
    m_tab->type(u"has"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Hash"_s);
    QCOMPARE(m_tab->detail(), QString());
    QCOMPARE(m_tab->enabled(), u"..."_s);
    press(m_tab->editor(), Qt::Key_Escape);
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham* Hash"_s);
    QCOMPARE(m_tab->detail(), u"Ham"_s);
    QCOMPARE(m_tab->enabled(), u"EDX"_s);
}

void TestFindEditors::deleteTakesTheRowInSight()
{
    m_tab->type(u"hash"_s);
    ui::clickRow(m_tab->list(), 3);
    QFETCH_GLOBAL(const int, kind);
    m_tab->remove(kind == ListTab::Groups ? u"Delete selected group?"_s : u"Delete selected product?"_s);
    QCOMPARE(shownNames(m_tab->list()), QString());
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham"_s);
}

void TestFindEditors::deleteTakesCheckedRowsInSightOnly()
{
    ui::click(m_tab->button("SelectMulti"));
    for (const int row : {0, 1, 2})
        ui::clickRow(m_tab->list(), row);
    m_tab->type(u"be"_s);
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    m_tab->removeChecked();
    QCOMPARE(shownNames(m_tab->list()), QString());
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Ham Hash"_s);
}

void TestFindEditors::deleteNeedsACheckedRowInSight()
{
    ui::click(m_tab->button("SelectMulti"));
    ui::clickRow(m_tab->list(), 0);
    m_tab->type(u"ha"_s);
    QCOMPARE(m_tab->enabled(), u"..."_s);
    QCOMPARE(m_tab->detail(), QString());
    ui::clickRow(m_tab->list(), 3);
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    ui::clickRow(m_tab->list(), 3);
    QCOMPARE(m_tab->enabled(), u"..."_s);
    m_tab->type({});
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Bacon* Beef Ham Hash"_s);
}

void TestFindEditors::selectingAllLeavesHiddenRowsOut()
{
    ui::click(m_tab->button("SelectMulti"));
    ui::clickRow(m_tab->list(), 0);
    m_tab->type(u"ha"_s);
    m_tab->list().setFocus();
    QTest::keyClick(&m_tab->list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shownNames(m_tab->list()), u"Ham* Hash*"_s);
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon* Beef Ham* Hash*"_s);
}

// Space would else check a row that nobody sees.
void TestFindEditors::endsOfTheListAreThoseInSight()
{
    m_tab->type(u"e"_s); // Beef alone
    ui::click(m_tab->button("SelectMulti"));
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Down, Qt::Key_Up}) {
        m_tab->list().setFocus();
        press(m_tab->editor(), key);
        QCOMPARE(m_tab->list().currentRow(), 1);
        press(m_tab->editor(), Qt::Key_Space);
    }
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham Hash"_s); // checked and unchecked twice
}

void TestFindEditors::hiddenChecksAreCounted()
{
    ui::click(m_tab->button("SelectMulti"));
    for (const int row : {0, 1, 2})
        ui::clickRow(m_tab->list(), row);
    QVERIFY(!m_tab->note());
    m_tab->type(u"h"_s);
    QLabel *note = m_tab->note();
    QVERIFY(note && note->isVisible());
    QCOMPARE(note->text(), u"2 checked rows are hidden and stay."_s);
    m_tab->type(u"b"_s);
    QCOMPARE(note->text(), u"One checked row is hidden and stays."_s);
    // Screen readers come to it behind the list.
    const QObjectList siblings = note->parent()->children();
    QCOMPARE(siblings.indexOf(note), siblings.indexOf(&m_tab->list()) + 1);
    ui::click(m_tab->button("SelectMulti"));
    QVERIFY(note->isHidden());
}

void TestFindEditors::entryStaysInSight_data()
{
    QTest::addColumn<QByteArray>("action"); // while Ham is chosen and "ha" is typed
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("typed");
    const auto add = [](const char *row, const QByteArray &action, const QString &name, const QString &shown,
                        const QString &typed) { QTest::newRow(row) << action << name << shown << typed; };
    add("edited, found", "Edit", u"Hare"_s, u"Hare* Hash"_s, u"ha"_s);
    add("edited, not found", "Edit", u"Rib"_s, u"Bacon Beef Rib* Hash"_s, {});
    add("duplicated, found", "Duplicate", u"Hare"_s, u"Ham Hash Hare*"_s, u"ha"_s);
    add("duplicated, not found", "Duplicate", u"Rib"_s, u"Bacon Beef Ham Hash Rib*"_s, {});
    add("added, not found", "Add", u"Rib"_s, u"Bacon Beef Ham Hash Rib*"_s, {});
}

void TestFindEditors::entryStaysInSight()
{
    QFETCH(const QByteArray, action);
    QFETCH(const QString, name);
    QFETCH_GLOBAL(const int, kind);
    if (kind == ListTab::Groups && action == "Add")
        return; // a new group would need members
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 2);
    m_tab->enterName(action.constData(), name);
    QTEST(shownNames(m_tab->list()), "shown");
    QTEST(m_tab->field().text(), "typed");
    QCOMPARE(m_tab->detail(), name);
}

void TestFindEditors::escapeEmptiesThenLeavesThenAsks()
{
    ui::click(m_tab->button("SelectMulti"));
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 3);
    press(m_tab->editor(), Qt::Key_Escape);
    QVERIFY(m_tab->field().text().isEmpty());
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham Hash*"_s);
    QCOMPARE(m_tab->button("SelectMulti").text(), u"Cancel Selection"_s);
    press(m_tab->editor(), Qt::Key_Escape);
    QCOMPARE(m_tab->button("SelectMulti").text(), u"Multiple Selection"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    press(m_tab->editor(), Qt::Key_Escape);
    QVERIFY(answers.allAnswered());
}

void TestFindEditors::enterGoesIntoTheListAndEdits()
{
    m_tab->type(u"hash"_s);
    {
        const ModalAnswers nothingComesUp;
        press(m_tab->editor(), Qt::Key_Return);
    }
    QCOMPARE(m_tab->editor().focusWidget(), &m_tab->list());
    QCOMPARE(m_tab->detail(), u"Hash"_s);
    ModalAnswers answers;
    answers.expectAny(QDialog::staticMetaObject, [](QDialog &dialog) { ui::click(dialog, "btnCancel"); });
    press(m_tab->editor(), Qt::Key_Return);
    QVERIFY(answers.allAnswered());
}

void TestFindEditors::typingInTheListPassesHiddenRows()
{
    m_tab->type(u"sh"_s); // Hash alone
    m_tab->list().setFocus();
    const int interval = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(0); // each is typed anew
    for (const char key : {'h', '3', 'b'}) {
        QTest::keyClick(&m_tab->list(), key);
        QCOMPARE(m_tab->detail(), u"Hash"_s);
    }
    QApplication::setKeyboardInputInterval(interval);
}

QTEST_MAIN(TestFindEditors)
#include "tst_find_editors.moc"
