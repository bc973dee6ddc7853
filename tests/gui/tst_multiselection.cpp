// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/multiselection.h"

using namespace Qt::StringLiterals;

/// The mode of a list without an editor around it.
class TestMultiSelection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void modesAreSwitched();
    void switchingClearsEverything();
    void rowsAreChecked_data();
    void rowsAreChecked();
    void boxClickMakesItsRowCurrent();
    void spaceNeedsACurrentRow();
    void lettersCheckNothing_data();
    void lettersCheckNothing();
    void lettersSearchOutsideTheMode();
    void commandsPass();
    void checksAreRestored();
    void checksAreNotRestoredOutsideTheMode();
    void appendedRowsCanBeChecked();

private:
    [[nodiscard]] bool hasBoxes() const;
    [[nodiscard]] QList<int> checkedRows() const;

    std::unique_ptr<QWidget> m_window;
    QListWidget *m_list = nullptr;
    QPushButton *m_button = nullptr;
    MultiSelection *m_selection = nullptr;
};

void TestMultiSelection::init()
{
    failOnWarnings();
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_list = new QListWidget;
    m_list->addItems({u"Bacon"_s, u"Chili"_s, u"Gravy"_s, u"Ham"_s});
    m_button = new QPushButton;
    layout->addWidget(m_list);
    layout->addWidget(m_button);
    m_selection = new MultiSelection(m_list, m_button);
    ui::show(*m_window);
}

// Whether every row has a check box; all of them have one or none has.
bool TestMultiSelection::hasBoxes() const
{
    const bool first = m_list->item(0)->data(Qt::CheckStateRole).isValid();
    for (int row = 1; row < m_list->count(); ++row)
        REQUIRE_EQUAL(m_list->item(row)->data(Qt::CheckStateRole).isValid(), first);
    return first;
}

// The rows with a check mark, which have to be the selected ones and those that the object tells.
QList<int> TestMultiSelection::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; row < m_list->count(); ++row) {
        const bool checked = m_list->item(row)->checkState() == Qt::Checked;
        REQUIRE_EQUAL(m_list->item(row)->isSelected(), checked);
        if (checked)
            rows.append(row);
    }
    REQUIRE(m_selection->checkedRows() == rows);
    return rows;
}

void TestMultiSelection::modesAreSwitched()
{
    QVERIFY(!m_selection->isActive());
    QVERIFY(!hasBoxes());
    m_selection->setActive(true);
    QVERIFY(m_selection->isActive());
    QCOMPARE(m_button->text(), u"Cancel Selection"_s);
    QCOMPARE(m_list->selectionMode(), QAbstractItemView::MultiSelection);
    QVERIFY(hasBoxes());
    QCOMPARE(checkedRows(), QList<int>());
    m_selection->setActive(false);
    QVERIFY(!m_selection->isActive());
    QCOMPARE(m_button->text(), u"Multiple Selection"_s);
    QCOMPARE(m_list->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!hasBoxes());
}

void TestMultiSelection::switchingClearsEverything()
{
    ui::clickRow(*m_list, 2);
    m_selection->setActive(true);
    QVERIFY(m_list->selectedItems().isEmpty());
    QCOMPARE(m_list->currentRow(), -1);
    ui::clickRow(*m_list, 1);
    QCOMPARE(checkedRows(), QList<int>{1});
    m_selection->setActive(false);
    QVERIFY(m_list->selectedItems().isEmpty());
    QCOMPARE(m_list->currentRow(), -1);
    QCOMPARE(m_selection->checkedRows(), QList<int>());
    m_selection->setActive(true);
    QCOMPARE(checkedRows(), QList<int>());
}

namespace {

using Toggle = void (*)(QListWidget &list, int row);

void toggleWithSpace(QListWidget &list, int row)
{
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < row; ++i)
        QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
}

void toggleMark(QListWidget &list, int row)
{
    QListWidgetItem *item = list.item(row);
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void toggleSelection(QListWidget &list, int row)
{
    list.item(row)->setSelected(!list.item(row)->isSelected());
}

} // namespace

void TestMultiSelection::rowsAreChecked_data()
{
    QTest::addColumn<Toggle>("toggle");
    QTest::newRow("click on the row") << Toggle([](QListWidget &list, int row) { ui::clickRow(list, row); });
    QTest::newRow("click on its box") << Toggle(ui::clickRowBox);
    QTest::newRow("Space") << Toggle(toggleWithSpace);
    QTest::newRow("the program checks") << Toggle(toggleMark);
    QTest::newRow("the program selects") << Toggle(toggleSelection);
}

void TestMultiSelection::rowsAreChecked()
{
    QFETCH(const Toggle, toggle);
    m_selection->setActive(true);
    toggle(*m_list, 3);
    QCOMPARE(checkedRows(), QList<int>{3});
    toggle(*m_list, 0);
    QCOMPARE(checkedRows(), (QList<int>{0, 3}));
    toggle(*m_list, 3);
    QCOMPARE(checkedRows(), QList<int>{0});
    toggle(*m_list, 0);
    QCOMPARE(checkedRows(), QList<int>());
}

// As any click on the row does: Space acts on it from then on.
void TestMultiSelection::boxClickMakesItsRowCurrent()
{
    m_selection->setActive(true);
    ui::clickRowBox(*m_list, 2);
    QCOMPARE(m_list->currentRow(), 2);
    QTest::keyClick(m_list, Qt::Key_Space);
    QCOMPARE(checkedRows(), QList<int>());
}

void TestMultiSelection::spaceNeedsACurrentRow()
{
    m_selection->setActive(true);
    m_list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
    QTest::keyClick(m_list, Qt::Key_Space);
    QCOMPARE(checkedRows(), QList<int>());
}

void TestMultiSelection::lettersCheckNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("a row's first letter") << u"g"_s;
    QTest::newRow("a row's first letters") << u"ham"_s;
    QTest::newRow("with Shift") << u"H"_s;
}

void TestMultiSelection::lettersCheckNothing()
{
    QFETCH(const QString, typed);
    m_selection->setActive(true);
    ui::clickRow(*m_list, 1);
    QTest::keyClicks(m_list, typed);
    QCOMPARE(checkedRows(), QList<int>{1});
    QCOMPARE(m_list->currentRow(), 1);
}

void TestMultiSelection::lettersSearchOutsideTheMode()
{
    ui::clickRow(*m_list, 1);
    QTest::keyClicks(m_list, u"h"_s);
    QCOMPARE(m_list->currentRow(), 3);
}

void TestMultiSelection::commandsPass()
{
    m_selection->setActive(true);
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_Home);
    QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(checkedRows(), (QList<int>{0, 1, 2, 3}));
    QTest::keyClick(m_list, Qt::Key_End);
    QCOMPARE(m_list->currentRow(), 3);
}

void TestMultiSelection::checksAreRestored()
{
    m_selection->setActive(true);
    m_list->clear();
    m_list->addItems({u"Soup"_s, u"Beans"_s, u"Rice"_s});
    m_selection->restoreChecks({0, 2});
    QVERIFY(hasBoxes());
    QCOMPARE(checkedRows(), (QList<int>{0, 2}));
    ui::clickRowBox(*m_list, 2); // a click on the box counts once
    QCOMPARE(checkedRows(), QList<int>{0});
    m_selection->restoreChecks({1, 7});
    QCOMPARE(checkedRows(), QList<int>{1});
}

void TestMultiSelection::checksAreNotRestoredOutsideTheMode()
{
    ui::clickRow(*m_list, 1);
    m_selection->restoreChecks({0, 2});
    QVERIFY(!hasBoxes());
    QCOMPARE(m_list->currentRow(), 1);
    QVERIFY(m_list->item(1)->isSelected() && !m_list->item(0)->isSelected());
}

void TestMultiSelection::appendedRowsCanBeChecked()
{
    m_selection->setActive(true);
    ui::clickRow(*m_list, 1);
    m_list->addItem(u"Rice"_s);
    m_selection->restoreChecks({1});
    ui::clickRow(*m_list, 4);
    QCOMPARE(checkedRows(), (QList<int>{1, 4}));
}

QTEST_MAIN(TestMultiSelection)
#include "tst_multiselection.moc"
