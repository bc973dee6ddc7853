// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/gui/findfield.h"
#include "tests/support/warnings.h"
#include "widgets/entrypane.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList names{u"Bacon"_s, u"Chili"_s, u"Gravy"_s, u"Ham"_s};

template <typename Widget>
Widget *added(QWidget &window)
{
    auto *widget = new Widget;
    window.layout()->addWidget(widget);
    return widget;
}

/// A tab without an editor: a list, its buttons and the pane.
class Tab
{
public:
    Tab()
        : layout(&window)
        , parts{added<QListWidget>(window), added<QPushButton>(window), added<QPushButton>(window),
                added<QPushButton>(window), added<QPushButton>(window), u"txtFind"_s}
        , pane(parts)
    {
        ui::show(window);
        pane.showNames(names);
    }

    [[nodiscard]] QListWidget &list() { return *parts.list; }
    /// Edit, Duplicate, Delete after an update: "EDX" with a dot for each that is disabled.
    [[nodiscard]] QString enabled()
    {
        pane.updateButtons();
        QString letters;
        for (const auto &[button, letter] :
             {std::pair{parts.edit, u'E'}, std::pair{parts.duplicate, u'D'}, std::pair{parts.remove, u'X'}})
            letters += button->isEnabled() ? QChar(letter) : QChar(u'.');
        return letters;
    }
    void choose(int row)
    {
        ui::clickRow(list(), row);
        pane.followSelection();
    }
    [[nodiscard]] QList<int> selectedRows()
    {
        QList<int> rows;
        for (int row = 0; row < list().count(); ++row) {
            if (list().item(row)->isSelected())
                rows.append(row);
        }
        return rows;
    }

    QWidget window;
    QVBoxLayout layout;
    EntryPane::Parts parts;
    EntryPane pane;
};

} // namespace

class TestEntryPane : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void nothingIsCurrentAtFirst();
    void rowsAreNumbered();
    void namesKeepTheCurrentRow();
    void namesKeepTheFoundRowInSight();
    void namesTellNothingOfTheRefill();
    void namesKeepTheChecks();
    void selectionIsFollowed();
    void rowIsSetByItsItem();
    void buttonsFollowTheRow();
    void buttonsFollowTheChecks();
    void modesForgetTheRow();
    void deleteTakesTheCurrentRowOrTheChecked();
};

void TestEntryPane::nothingIsCurrentAtFirst()
{
    Tab tab;
    QCOMPARE(tab.pane.currentRow(), -1);
    QCOMPARE(tab.list().currentRow(), -1);
    QVERIFY(!tab.pane.isMultiSelecting());
    QCOMPARE(tab.pane.rowsToDelete(), QList<int>());
    QCOMPARE(tab.enabled(), u"..."_s);
}

void TestEntryPane::rowsAreNumbered()
{
    Tab tab;
    QCOMPARE(ui::textsOf(tab.list()),
             (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Gravy"_s, u"  4 Ham"_s}));
    tab.pane.showNames({});
    QCOMPARE(tab.list().count(), 0);
}

void TestEntryPane::namesKeepTheCurrentRow()
{
    Tab tab;
    tab.choose(2);
    tab.pane.showNames({u"Rice"_s, u"Beans"_s, u"Soup"_s});
    QCOMPARE(tab.pane.currentRow(), 2);
    QCOMPARE(tab.list().currentRow(), 2);
    QCOMPARE(tab.selectedRows(), QList<int>{2});
    tab.pane.setCurrentRow(0);
    tab.pane.showNames(names);
    QCOMPARE(tab.list().currentRow(), 0);
    QCOMPARE(tab.selectedRows(), QList<int>{0});
}

// The editor would else follow a selection that nobody made.
void TestEntryPane::namesKeepTheFoundRowInSight()
{
    Tab tab;
    QStringList many;
    for (int i = 0; i < 50; ++i)
        many += {u"Ham"_s, u"Beef"_s};
    tab.pane.showNames(many);
    findfield::type(tab.window, u"a"_s);
    tab.choose(48);
    many[48] = u"Hash"_s;
    tab.pane.showNames(many);
    QCOMPARE(tab.list().currentRow(), 48);
    QVERIFY(findfield::isCurrentInSight(tab.list()));
}

void TestEntryPane::namesTellNothingOfTheRefill()
{
    Tab tab;
    tab.choose(1);
    const QSignalSpy selected(&tab.list(), &QListWidget::itemSelectionChanged);
    const QSignalSpy current(&tab.list(), &QListWidget::currentRowChanged);
    tab.pane.showNames(names);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(current.count(), 0);
}

void TestEntryPane::namesKeepTheChecks()
{
    Tab tab;
    tab.pane.setMultiSelecting(true);
    tab.choose(3);
    tab.choose(0);
    tab.pane.showNames({u"Rice"_s, u"Beans"_s, u"Soup"_s, u"Peas"_s, u"Corn"_s});
    QCOMPARE(tab.pane.rowsToDelete(), (QList<int>{0, 3}));
    QCOMPARE(tab.selectedRows(), (QList<int>{0, 3}));
    QCOMPARE(tab.pane.currentRow(), 0);
    QCOMPARE(tab.list().currentRow(), 0);
    tab.choose(4); // the new row can be checked as well
    QCOMPARE(tab.pane.rowsToDelete(), (QList<int>{0, 3, 4}));
}

void TestEntryPane::selectionIsFollowed()
{
    Tab tab;
    tab.choose(1);
    QCOMPARE(tab.pane.currentRow(), 1);
    tab.list().clearSelection();
    QCOMPARE(tab.list().currentRow(), 1); // the list keeps it
    tab.pane.followSelection();
    QCOMPARE(tab.pane.currentRow(), -1);
    tab.pane.setMultiSelecting(true);
    tab.choose(2);
    tab.choose(2); // unchecked again, but current
    QCOMPARE(tab.pane.currentRow(), 2);
}

void TestEntryPane::rowIsSetByItsItem()
{
    Tab tab;
    tab.pane.setCurrentRow(tab.list().item(3));
    QCOMPARE(tab.pane.currentRow(), 3);
    tab.pane.setCurrentRow(nullptr);
    QCOMPARE(tab.pane.currentRow(), -1);
}

void TestEntryPane::buttonsFollowTheRow()
{
    Tab tab;
    tab.pane.setCurrentRow(0);
    QCOMPARE(tab.enabled(), u"EDX"_s);
    tab.pane.setCurrentRow(-1);
    QCOMPARE(tab.enabled(), u"..."_s);
}

void TestEntryPane::buttonsFollowTheChecks()
{
    Tab tab;
    tab.pane.setMultiSelecting(true);
    QCOMPARE(tab.enabled(), u"..."_s);
    tab.choose(1);
    QCOMPARE(tab.enabled(), u"..X"_s);
    tab.choose(2);
    QCOMPARE(tab.enabled(), u"..X"_s);
    tab.choose(1);
    tab.choose(2);
    QCOMPARE(tab.enabled(), u"..."_s); // although a row is current
}

void TestEntryPane::modesForgetTheRow()
{
    Tab tab;
    tab.choose(2);
    tab.pane.setMultiSelecting(true);
    QVERIFY(tab.pane.isMultiSelecting());
    QCOMPARE(tab.parts.multiSelection->text(), u"Cancel Selection"_s);
    QCOMPARE(tab.pane.currentRow(), -1);
    QCOMPARE(tab.pane.rowsToDelete(), QList<int>());
    tab.choose(1);
    tab.pane.setMultiSelecting(false);
    QVERIFY(!tab.pane.isMultiSelecting());
    QCOMPARE(tab.parts.multiSelection->text(), u"Multiple Selection"_s);
    QCOMPARE(tab.pane.currentRow(), -1);
    QCOMPARE(tab.pane.rowsToDelete(), QList<int>());
}

void TestEntryPane::deleteTakesTheCurrentRowOrTheChecked()
{
    Tab tab;
    tab.choose(2);
    QCOMPARE(tab.pane.rowsToDelete(), QList<int>{2});
    tab.pane.setMultiSelecting(true);
    for (const int row : {3, 0, 1, 0})
        tab.choose(row);
    QCOMPARE(tab.pane.rowsToDelete(), (QList<int>{1, 3}));
}

QTEST_MAIN(TestEntryPane)
#include "tst_entrypane.moc"
