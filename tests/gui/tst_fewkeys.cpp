// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/assigndaypartitem.h"
#include "holding/daypartedit.h"
#include "tests/gui/openbins.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 5;
constexpr int slotsOfARow = 4;

// Every name is found by its last three letters alone.
QString nameOf(int id)
{
    const char16_t first = static_cast<char16_t>(u'a' + id / 10);
    const char16_t second = static_cast<char16_t>(u'k' + id % 10);
    return u"Dish "_s + QChar(first) + QChar(second) + u'z';
}

QString lettersFor(int id)
{
    return nameOf(id).last(3);
}

samplefile::Menu hundredProducts(const QList<int> &breakfast)
{
    samplefile::Menu menu;
    menu.header = bins::headerOf(u"KTR54"_s);
    for (int id = 1; id <= 100; ++id)
        menu.products.append(samplefile::product(id, nameOf(id)));
    menu.layout = {samplefile::daypart(u"Breakfast"_s, breakfast)};
    return menu;
}

/// Somebody at the keyboard, whose keys go to what has the focus and are counted.
class Keys
{
public:
    void press(Qt::Key key)
    {
        ++m_pressed;
        QWidget *focus = QApplication::focusWidget();
        REQUIRE(focus);
        QTest::keyClick(focus, key);
    }
    void type(const QString &text)
    {
        for (const QChar letter : text) {
            ++m_typed;
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        }
    }
    [[nodiscard]] int pressed() const { return m_pressed; }
    [[nodiscard]] int typed() const { return m_typed; }

private:
    int m_pressed = 0; ///< besides what was typed
    int m_typed = 0;
};

// The way through a row and back through the next one, so that one arrow key leads to each bin.
Qt::Key keyToTheNextBin(int row, int step)
{
    if (step == slotsOfARow - 1)
        return Qt::Key_Down;
    return row % 2 == 0 ? Qt::Key_Right : Qt::Key_Left;
}

int slotAt(int row, int step)
{
    return row % 2 == 0 ? step : slotsOfARow - 1 - step;
}

// Another two for each day part, of the rows that a picker shows at first.
int rowFor(int daypart, int slot)
{
    return slot == 2 ? daypart % 3 : 3 + daypart / 3;
}

/// Does something with the mouse in one window, and counts it.
class Acts
{
public:
    void click(QWidget &widget)
    {
        ++m_count;
        ui::click(widget);
    }
    /// In sight already: to scroll would be another act.
    void doubleClickRow(QListWidget &list, int row)
    {
        ++m_count;
        REQUIRE(list.viewport()->rect().contains(list.visualItemRect(list.item(row))));
        ui::doubleClickRow(list, row);
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
};

} // namespace

/// How much there is to do for a long day's work.
class TestFewKeys : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void breakfastIsFilledBySpace();
    void breakfastIsFilledByTypingOnBins();
    void tenDayparts();

private:
    void fillBreakfast(bool bySpace, int mostKeysABin);
};

// Each of the twenty bins gets another product: its number is the bin's.
void TestFewKeys::fillBreakfast(bool bySpace, int mostKeysABin)
{
    OpenBins editor(hundredProducts({}));
    editor.button(0, 0).setFocus();
    Keys keys;
    ModalAnswers answers;
    QList<int> expected(rows * slotsOfARow, 0);
    for (int row = 0; row < rows; ++row) {
        for (int step = 0; step < slotsOfARow; ++step) {
            const int bin = row * slotsOfARow + slotAt(row, step);
            expected[bin] = 5 * bin + 1;
            const QString letters = lettersFor(expected[bin]);
            answers.expect<AssignDaypartItem>([&keys, letters, bySpace](AssignDaypartItem &) {
                keys.type(bySpace ? letters : letters.sliced(1));
                keys.press(Qt::Key_Return);
            });
            ui::activate(*editor);
            if (bySpace)
                keys.press(Qt::Key_Space);
            else
                keys.type(letters.first(1));
            ui::activate(*editor);
            keys.press(keyToTheNextBin(row, step));
        }
    }
    QCOMPARE(editor.savedBins(0).first(rows * slotsOfARow), expected);
    QCOMPARE(keys.typed(), 3 * rows * slotsOfARow);
    QVERIFY(keys.pressed() <= mostKeysABin * rows * slotsOfARow);
}

void TestFewKeys::breakfastIsFilledBySpace()
{
    fillBreakfast(true, 3); // Space, Enter, and the arrow key to the next bin
}

void TestFewKeys::breakfastIsFilledByTypingOnBins()
{
    fillBreakfast(false, 2); // Enter, and the arrow key to the next bin
}

// The others differ in the last two bins.
void TestFewKeys::tenDayparts()
{
    QList<int> breakfast;
    for (int id = 1; id <= rows * slotsOfARow; ++id)
        breakfast.append(id);
    OpenBins editor(hundredProducts(breakfast));
    Acts acts;
    ModalAnswers answers;
    for (int daypart = 1; daypart < 10; ++daypart) {
        answers.expect<DaypartEdit>([&acts](DaypartEdit &dialog) {
            acts.click(ui::get<QWidget>(dialog, "btnSave")); // names may be the same
        });
        acts.click(ui::get<QWidget>(*editor, "btnDuplicateDaypart"));
        for (const int slot : {2, 3}) {
            answers.expect<AssignDaypartItem>([&acts, daypart, slot](AssignDaypartItem &picker) {
                auto &list = ui::get<QListWidget>(picker, "listWidgetProducts");
                acts.doubleClickRow(list, rowFor(daypart, slot));
            });
            acts.click(editor.button(rows - 1, slot));
        }
        QList<int> expected = breakfast;
        expected[18] = rowFor(daypart, 2) + 1;
        expected[19] = rowFor(daypart, 3) + 1;
        QCOMPARE(editor.savedBins(daypart).first(rows * slotsOfARow), expected);
    }
    QVERIFY2(acts.count() < 60, qPrintable(QString::number(acts.count())));
}

QTEST_MAIN(TestFewKeys)
#include "tst_fewkeys.moc"
