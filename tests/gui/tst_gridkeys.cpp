// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/gridkeys.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 3;
constexpr int columns = 3;

/// A grid of buttons between two inputs.
struct Grid
{
    explicit Grid(GridKeys::TabStops stops = GridKeys::TabStops::One)
        : keys(stops)
    {
        auto *layout = new QGridLayout(&window);
        layout->addWidget(&before, 0, 0, 1, columns);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                auto *button = new QPushButton(QString::number(10 * row + column));
                layout->addWidget(button, row + 1, column);
                keys.add(button, row, column);
                buttons[row][column] = button;
            }
        }
        layout->addWidget(&after, rows + 1, 0, 1, columns);
        QWidget::setTabOrder(buttons[rows - 1][columns - 1], &after);
        ui::show(window);
    }
    void press(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }
    /// "12" for the third button of the second row, "before" or "after".
    [[nodiscard]] QString focus() const
    {
        const QWidget *widget = window.focusWidget();
        const auto *button = qobject_cast<const QPushButton *>(widget);
        return button ? button->text().rightJustified(2, u'0') : widget == &before ? u"before"_s : u"after"_s;
    }
    /// The names of the buttons that the keys lead to.
    [[nodiscard]] QStringList way(const QList<Qt::Key> &pressed)
    {
        QStringList passed;
        for (const Qt::Key key : pressed) {
            press(key);
            passed.append(focus());
        }
        return passed;
    }

    QWidget window;
    QLineEdit before{&window};
    QLineEdit after{&window};
    QPushButton *buttons[rows][columns]{};
    GridKeys keys;
};

} // namespace

Q_DECLARE_METATYPE(QList<Qt::Key>)

/// The keyboard in a grid, without bins or colours in it.
class TestGridKeys : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void arrowsMoveByRowAndColumn();
    void modifiersButTheKeypadsStopArrows();
    void arrowsEndAtTheEdges();
    void arrowsPassWhatIsHiddenOrDisabled();
    void coveringButtonKeepsTheColumn();
    void arrowsFollowTheReadingDirection();
    void tabEntersWhereTheFocusWas();
    void tabFindsAnotherStop();
    void hiddenPageKeepsTheStop();
    void everyButtonCanBeAStop();
    void clearedGridHasNoKeys();
};

void TestGridKeys::arrowsMoveByRowAndColumn()
{
    Grid grid;
    grid.buttons[0][0]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}),
             (QStringList{u"01"_s, u"11"_s, u"21"_s, u"20"_s, u"10"_s}));
}

// Left to itself a button takes Down as Tab.
void TestGridKeys::modifiersButTheKeypadsStopArrows()
{
    Grid grid;
    grid.buttons[0][0]->setFocus();
    QTest::keyClick(grid.buttons[0][0], Qt::Key_Down, Qt::KeypadModifier);
    QCOMPARE(grid.focus(), u"10"_s);
    QTest::keyClick(grid.buttons[1][0], Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(grid.focus() != u"20"_s);
}

void TestGridKeys::arrowsEndAtTheEdges()
{
    Grid grid;
    grid.buttons[0][0]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Up, Qt::Key_Left}), QStringList(2, u"00"_s));
    grid.buttons[2][2]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Down, Qt::Key_Right}), QStringList(2, u"22"_s));
}

void TestGridKeys::arrowsPassWhatIsHiddenOrDisabled()
{
    Grid grid;
    grid.buttons[0][1]->hide();
    grid.buttons[1][2]->setEnabled(false);
    for (QPushButton *button : grid.buttons[1])
        button->setEnabled(false);
    grid.buttons[0][0]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left}),
             (QStringList{u"02"_s, u"22"_s, u"02"_s, u"00"_s}));
}

// A wide button stands for the columns that it covers; further down the column is the old one again.
void TestGridKeys::coveringButtonKeepsTheColumn()
{
    Grid grid;
    grid.buttons[1][1]->hide();
    grid.buttons[1][2]->hide();
    grid.buttons[0][2]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}),
             (QStringList{u"10"_s, u"22"_s, u"10"_s, u"02"_s}));
    grid.buttons[1][0]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Down}), QStringList{u"20"_s});
}

void TestGridKeys::arrowsFollowTheReadingDirection()
{
    Grid grid;
    grid.window.setLayoutDirection(Qt::RightToLeft);
    grid.buttons[0][1]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Left, Qt::Key_Right, Qt::Key_Right}),
             (QStringList{u"02"_s, u"01"_s, u"00"_s}));
}

void TestGridKeys::tabEntersWhereTheFocusWas()
{
    Grid grid;
    grid.before.setFocus();
    QCOMPARE(grid.way({Qt::Key_Tab, Qt::Key_Down, Qt::Key_Right, Qt::Key_Tab, Qt::Key_Backtab}),
             (QStringList{u"00"_s, u"10"_s, u"11"_s, u"after"_s, u"11"_s}));
    QCOMPARE(grid.way({Qt::Key_Backtab, Qt::Key_Tab}), (QStringList{u"before"_s, u"11"_s}));
    ui::click(*grid.buttons[2][0]);
    grid.before.setFocus();
    QCOMPARE(grid.way({Qt::Key_Tab}), QStringList{u"20"_s});
}

void TestGridKeys::tabFindsAnotherStop()
{
    Grid grid;
    grid.buttons[1][2]->setFocus();
    grid.before.setFocus();
    grid.buttons[1][2]->hide();
    QCOMPARE(grid.keys.stop(), grid.buttons[1][1]);
    for (QPushButton *button : grid.buttons[1])
        button->setEnabled(false);
    QCOMPARE(grid.keys.stop(), grid.buttons[0][0]);
    for (QPushButton *button : grid.buttons[1])
        button->setEnabled(true);
    grid.buttons[1][2]->show();
    QCOMPARE(grid.way({Qt::Key_Tab}), QStringList{u"12"_s});
    grid.before.setFocus();
    for (const auto &row : grid.buttons) {
        for (QPushButton *button : row)
            button->hide();
    }
    QVERIFY(!grid.keys.stop());
    QCOMPARE(grid.way({Qt::Key_Tab}), QStringList{u"after"_s});
}

void TestGridKeys::hiddenPageKeepsTheStop()
{
    Grid grid;
    grid.buttons[2][1]->setFocus();
    grid.window.hide();
    QCOMPARE(grid.keys.stop(), grid.buttons[2][1]);
}

void TestGridKeys::everyButtonCanBeAStop()
{
    Grid grid(GridKeys::TabStops::Each);
    grid.before.setFocus();
    QCOMPARE(grid.way({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Down}), (QStringList{u"00"_s, u"01"_s, u"11"_s}));
}

void TestGridKeys::clearedGridHasNoKeys()
{
    Grid grid;
    grid.buttons[0][0]->setFocus();
    grid.keys.clear();
    QVERIFY(!grid.keys.stop());
    grid.keys.add(grid.buttons[2][2], 0, 0);
    QCOMPARE(grid.keys.stop(), grid.buttons[2][2]);
    grid.buttons[2][2]->setFocus();
    QCOMPARE(grid.way({Qt::Key_Up}), QStringList{u"22"_s});
}

QTEST_MAIN(TestGridKeys)
#include "tst_gridkeys.moc"
