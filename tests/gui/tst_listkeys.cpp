// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/listkeys.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

/// A dialog with a list, the button that Enter presses there, and a default button that would save.
struct Pane
{
    explicit Pane(const QStringList &names, QAbstractButton *(*enterButton)(Pane &) = nullptr)
    {
        auto *layout = new QVBoxLayout(&dialog);
        for (QWidget *widget : QWidgetList{&list, &enter, &save})
            layout->addWidget(widget);
        save.setDefault(true);
        for (const QString &name : names)
            numberedrows::append(&list, name);
        new ListKeys(&list, enterButton ? enterButton(*this) : &enter);
        ui::show(dialog);
        list.setFocus();
    }
    void press(Qt::Key key) { QTest::keyClick(&list, key); }
    void type(const QString &text) { QTest::keyClicks(&list, text); }
    [[nodiscard]] int selected() const { return numberedrows::selectedRow(&list); }
    void makeUnfit(int row) { list.item(row)->setFlags(Qt::ItemIsEnabled); }

    QDialog dialog;
    QListWidget list{&dialog};
    QPushButton enter{&dialog};
    QPushButton save{&dialog};
};

const QStringList names{u"Bacon"_s, u"Biscuits"_s, u"Ham Steak"_s, u"7-Up"_s, u"Hash Browns"_s};

} // namespace

/// The keyboard in a list, without an editor around it.
class TestListKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void arrowSelectsTheFirstRow_data();
    void arrowSelectsTheFirstRow();
    void arrowSelectsTheRowWithTheFocus();
    void arrowsPassUnfittingRows();
    void spaceWithControlStays();
    void spaceNeverMoves();
    void spaceChangesACheckMark();
    void typingFindsARow_data();
    void typingFindsARow();
    void typingAnewStartsFromTheRow();
    void typingFindsUnfittingRows();
    void enterPressesTheButton();
    void heldEnterPressesNothing();
    void enterWithoutAButtonSavesNothing();
    void severalRowsAreChosenAsBefore();
    void emptyListTakesEverything();

private:
    const int m_interval = QApplication::keyboardInputInterval();
};

void TestListKeys::init()
{
    failOnWarnings();
    QApplication::setKeyboardInputInterval(60'000); // what is typed in a test is typed at once
}

void TestListKeys::arrowSelectsTheFirstRow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("row");
    QTest::newRow("Down") << Qt::Key_Down << 0;
    QTest::newRow("Up") << Qt::Key_Up << 0;
    QTest::newRow("Home") << Qt::Key_Home << 0;
    QTest::newRow("End") << Qt::Key_End << 4;
}

void TestListKeys::arrowSelectsTheFirstRow()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const int, row);
    Pane pane(names);
    QCOMPARE(pane.selected(), -1);
    pane.press(key);
    QCOMPARE(pane.selected(), row);
}

void TestListKeys::arrowSelectsTheRowWithTheFocus()
{
    Pane pane(names);
    ui::clickRow(pane.list, 2);
    ui::clickRow(pane.list, 2, Qt::ControlModifier);
    QCOMPARE(pane.selected(), -1);
    pane.press(Qt::Key_Up);
    QCOMPARE(pane.selected(), 2);
    pane.press(Qt::Key_Up);
    QCOMPARE(pane.selected(), 1);
    pane.press(Qt::Key_Down);
    QCOMPARE(pane.selected(), 2);
}

void TestListKeys::arrowsPassUnfittingRows()
{
    Pane pane(names);
    for (const int row : {0, 2})
        pane.makeUnfit(row);
    for (const int row : {1, -1, 3}) { // the first row has the focus to begin with
        pane.press(Qt::Key_Down);
        QCOMPARE(pane.selected(), row);
    }
    QCOMPARE(pane.list.currentRow(), 3);
}

void TestListKeys::spaceNeverMoves()
{
    Pane pane(names);
    ui::clickRow(pane.list, 2);
    pane.press(Qt::Key_Space);
    pane.press(Qt::Key_Space);
    QCOMPARE(pane.selected(), 2);
    ui::clickRow(pane.list, 2, Qt::ControlModifier);
    pane.press(Qt::Key_Space);
    QCOMPARE(pane.selected(), 2);
    pane.makeUnfit(3);
    ui::clickRow(pane.list, 3);
    pane.press(Qt::Key_Space);
    QCOMPARE(pane.selected(), -1);
    QCOMPARE(pane.list.currentRow(), 3);
}

void TestListKeys::spaceChangesACheckMark()
{
    Pane pane(names);
    pane.list.item(2)->setCheckState(Qt::Unchecked);
    ui::clickRow(pane.list, 2);
    pane.press(Qt::Key_Space);
    QCOMPARE(pane.list.item(2)->checkState(), Qt::Checked);
    QCOMPARE(pane.selected(), 2);
}

void TestListKeys::typingFindsARow_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("row");
    QTest::newRow("letter") << u"h"_s << 2;
    QTest::newRow("letters") << u"has"_s << 4;
    QTest::newRow("other case") << u"BIS"_s << 1;
    QTest::newRow("with a blank") << u"ham s"_s << 2;
    QTest::newRow("with a wrong blank") << u"ha s"_s << 2; // stays where it came to
    QTest::newRow("one letter again and again") << u"hhh"_s << 2;
    QTest::newRow("number") << u"2"_s << 1;
    QTest::newRow("number of two digits") << u"12"_s << 11;
    QTest::newRow("name that begins with a digit") << u"7-"_s << 3;
    QTest::newRow("number before a name") << u"7"_s << 6;
    QTest::newRow("nothing like it") << u"q"_s << -1;
}

void TestListKeys::typingFindsARow()
{
    QFETCH(const QString, typed);
    Pane pane(names + QStringList(10, u"Product"_s));
    pane.type(typed);
    QTEST(pane.selected(), "row");
}

void TestListKeys::typingAnewStartsFromTheRow()
{
    QApplication::setKeyboardInputInterval(0);
    Pane pane(names);
    for (const int row : {2, 4, 2}) {
        pane.type(u"h"_s);
        QCOMPARE(pane.selected(), row);
    }
    pane.type(u"b"_s);
    QCOMPARE(pane.selected(), 0);
}

// Who looks for one wants to know why it does not fit.
void TestListKeys::typingFindsUnfittingRows()
{
    Pane pane(names);
    pane.makeUnfit(2);
    ui::clickRow(pane.list, 0);
    pane.type(u"ham"_s);
    QCOMPARE(pane.list.currentRow(), 2);
    QCOMPARE(pane.selected(), -1);
}

void TestListKeys::enterPressesTheButton()
{
    Pane pane(names);
    const QSignalSpy pressed(&pane.enter, &QPushButton::clicked);
    const QSignalSpy saved(&pane.save, &QPushButton::clicked);
    pane.press(Qt::Key_Return);
    pane.press(Qt::Key_Enter);
    QCOMPARE(pressed.count(), 2);
    pane.enter.setEnabled(false);
    pane.press(Qt::Key_Return);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(saved.count(), 0);
    QTest::keyClick(&pane.dialog, Qt::Key_Return);
    QCOMPARE(saved.count(), 1);
}

void TestListKeys::heldEnterPressesNothing()
{
    Pane pane(names);
    const QSignalSpy pressed(&pane.enter, &QPushButton::clicked);
    const QSignalSpy saved(&pane.save, &QPushButton::clicked);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QCoreApplication::sendEvent(&pane.list, &held);
    QCOMPARE(pressed.count() + saved.count(), 0);
}

void TestListKeys::enterWithoutAButtonSavesNothing()
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    QListWidget list;
    QPushButton save;
    layout.addWidget(&list);
    layout.addWidget(&save);
    save.setDefault(true);
    new ListKeys(&list, nullptr);
    ui::show(dialog);
    const QSignalSpy saved(&save, &QPushButton::clicked);
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(saved.count(), 0);
}

void TestListKeys::severalRowsAreChosenAsBefore()
{
    Pane pane(names);
    pane.list.setSelectionMode(QAbstractItemView::MultiSelection);
    pane.list.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    pane.press(Qt::Key_Down);
    QCOMPARE(pane.list.currentRow(), 1);
    QVERIFY(pane.list.selectedItems().isEmpty());
}

void TestListKeys::emptyListTakesEverything()
{
    Pane pane({});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Space, Qt::Key_A})
        pane.press(key);
    QCOMPARE(pane.selected(), -1);
}

// It takes the selection off and gives it back, and goes nowhere.
void TestListKeys::spaceWithControlStays()
{
    Pane pane(names);
    pane.list.setRowHidden(3, true);
    pane.list.setCurrentRow(2);
    for (const int selected : {-1, 2}) {
        QTest::keyClick(&pane.list, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(pane.selected(), selected);
        QCOMPARE(pane.list.currentRow(), 2);
    }
}

QTEST_MAIN(TestListKeys)
#include "tst_listkeys.moc"
