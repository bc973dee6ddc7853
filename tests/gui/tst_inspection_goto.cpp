// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>

#include "holding/assigndaypartitem.h"
#include "tests/gui/holdbins.h"
#include "tests/gui/inspect.h"
#include "tests/support/keyboard.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using ui::hasFocus;

/// Where the list of things to look at leads to.
class TestInspectionGoTo : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void productRow();
    void rowThatIsHidden();
    void groupRow();
    void binOfAnotherDaypart();
    void coveredBin();
    void binBehindHalves();
    void byKeyboard();
    void byDoubleClick();
    void markedRowsStayMarked();
    void removalModeIsLeftForAnotherDaypart();
    void nothingIsChanged();
    void pickerSaysTheSame_data();
    void pickerSaysTheSame();
};

namespace {

// In the order of the list: the last product, the second group, a bin in the evening and the bin behind the
// whole zone of its row.
samplefile::Menu menuToLookAt()
{
    samplefile::Menu menu = bins::menuOf(u"KTR24"_s, {2, 2}, {0, 0, 2, 77, 4, 78});
    menu.products = {samplefile::product(2, u"Half"_s),
                     samplefile::product(4, u"Whole"_s, {{u"zoneSplits"_s, u"1/1"_s}}),
                     samplefile::product(6, u"Hot"_s, {{u"upperTemp"_s, 500}})};
    menu.groups = {samplefile::group(8, u"Halves"_s, {2}), samplefile::group(9, u"None"_s, {})};
    return menu;
}

enum Row { Product, Group, MissingBin, WholeBin, CoveredBin };

} // namespace

void TestInspectionGoTo::productRow()
{
    OpenBins editor(menuToLookAt());
    inspect::goTo(*editor, Product);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 0);
    QVERIFY(hasFocus(editor.products()));
    QVERIFY(editor.products().item(2)->isSelected());
    QCOMPARE(editor.productDetail("txtName").text(), u"Hot"_s);
    QVERIFY(ui::get<QPushButton>(*editor, "btnEditProduct").isEnabled());
}

void TestInspectionGoTo::rowThatIsHidden()
{
    OpenBins editor(menuToLookAt());
    editor.showTab(0);
    ui::type(*editor, "txtFindProducts", u"half"_s);
    QVERIFY(editor.products().isRowHidden(2));
    inspect::goTo(*editor, Product);
    QVERIFY(!editor.products().isRowHidden(2));
    QVERIFY(editor.products().item(2)->isSelected());
    QCOMPARE(editor.productDetail("txtName").text(), u"Hot"_s);
    QCOMPARE(ui::get<QLineEdit>(*editor, "txtFindProducts").text(), QString());
}

void TestInspectionGoTo::groupRow()
{
    OpenBins editor(menuToLookAt());
    inspect::goTo(*editor, Group);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 1);
    QVERIFY(hasFocus(editor.groups()));
    QVERIFY(editor.groups().item(1)->isSelected());
    QCOMPARE(editor.groupDetail("txtName").text(), u"None"_s);
}

void TestInspectionGoTo::binOfAnotherDaypart()
{
    OpenBins editor(menuToLookAt());
    editor.showTab(0);
    inspect::goTo(*editor, MissingBin);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 2);
    QCOMPARE(editor.dayparts(), u"Morning Evening*"_s);
    QCOMPARE(editor.button(0, 3).text(), u"Id 77"_s);
    QVERIFY(hasFocus(editor.button(0, 3)));
}

// It is behind the entry that takes its whole zone.
void TestInspectionGoTo::coveredBin()
{
    OpenBins editor(menuToLookAt());
    inspect::goTo(*editor, CoveredBin);
    QVERIFY(editor.button(1, 1).isHidden());
    QVERIFY(hasFocus(editor.button(1, 0)));
}

// The bin beside it is the nearest one that can have the focus.
void TestInspectionGoTo::binBehindHalves()
{
    OpenBins editor(bins::menuOf(u"KTR33"_s, {2, 0, 2}));
    QCOMPARE(inspect::sentences(*editor),
             QStringList{u"Morning, Row 1, Bin 3: Half. This zone has two halves and no third bin"_s});
    editor.showTab(0);
    inspect::goTo(*editor, 0);
    QVERIFY(editor.button(0, 2).isHidden());
    QTRY_VERIFY(editor.button(0, 1).hasFocus());
}

void TestInspectionGoTo::byKeyboard()
{
    OpenBins editor(menuToLookAt());
    ModalAnswers answers;
    answers.expect<MenuInspection>([](MenuInspection &) {
        keyboard::tabTo(u"listWidgetFindings"_s);
        keyboard::type(u"evening, row 1"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnFindings"_s);
    ui::activate(*editor);
    QVERIFY(hasFocus(editor.button(0, 3)));
}

void TestInspectionGoTo::byDoubleClick()
{
    OpenBins editor(menuToLookAt());
    inspect::open(*editor, [](MenuInspection &dialog) { ui::doubleClickRow(inspect::list(dialog), Group); });
    QVERIFY(editor.groups().item(1)->isSelected());
}

// Going to a row is not choosing it for deletion.
void TestInspectionGoTo::markedRowsStayMarked()
{
    OpenBins editor(menuToLookAt());
    editor.showTab(0);
    ui::click(*editor, "btnSelectMultiProduct");
    ui::clickRow(editor.products(), 0);
    inspect::goTo(*editor, Product);
    QVERIFY(hasFocus(editor.products()));
    QCOMPARE(editor.products().currentRow(), 2);
    QCOMPARE(editor.products().item(0)->checkState(), Qt::Checked);
    QCOMPARE(editor.products().item(2)->checkState(), Qt::Unchecked);
}

void TestInspectionGoTo::removalModeIsLeftForAnotherDaypart()
{
    HoldBins editor(menuToLookAt());
    editor.button(0, 0).setFocus();
    editor.holdSpace();
    QTRY_VERIFY(editor.isRemoving());
    editor.releaseSpace();
    inspect::goTo(*editor, MissingBin);
    QVERIFY(!editor.isRemoving());
    QVERIFY(hasFocus(editor.button(0, 3)));
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0, 0, 0, 0, 0}));
}

void TestInspectionGoTo::nothingIsChanged()
{
    OpenBins editor(menuToLookAt());
    const QJsonObject before = editor.saved();
    for (const Row row : {Product, Group, MissingBin, WholeBin, CoveredBin}) {
        inspect::goTo(*editor, row);
        QCOMPARE(ui::get<QLabel>(*editor, "lblSaved").text(), u"Saved"_s);
        QCOMPARE(inspect::line(*editor), u"5 things to look at"_s);
    }
    QCOMPARE(editor.saved(), before);
}

void TestInspectionGoTo::pickerSaysTheSame_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("bins"); ///< of the first row
    QTest::newRow("room for a half") << u"KTR24"_s << QList<int>{2, 2};
    QTest::newRow("no room for all") << u"KTR24"_s << QList<int>{4, 2};
    QTest::newRow("all in the last bin") << u"KTR24"_s << QList<int>{0, 4, 4};
    QTest::newRow("thirds and halves") << u"KTR33"_s << QList<int>{1, 2, 1};
    QTest::newRow("two thirds") << u"KTR33"_s << QList<int>{1, 3};
    QTest::newRow("two thirds and one behind") << u"KTR33"_s << QList<int>{3, 0, 1};
    QTest::newRow("two thirds with a third in them") << u"KTR33"_s << QList<int>{3, 1};
    QTest::newRow("a half alone in the middle") << u"KTR33"_s << QList<int>{0, 2};
    QTest::newRow("three halves") << u"KTR33"_s << QList<int>{2, 2, 2};
    QTest::newRow("a half in the third bin") << u"KTR33"_s << QList<int>{0, 0, 2};
    QTest::newRow("one-bin zone") << u"KTR23"_s << QList<int>{2, 0, 4};
    QTest::newRow("a group") << u"KTR22"_s << QList<int>{5, 5};
}

// Of the entry in each bin that is shown.
void TestInspectionGoTo::pickerSaysTheSame()
{
    QFETCH(const QString, model);
    QFETCH(const QList<int>, bins);
    OpenBins editor(bins::menuOf(model, bins));
    const QStringList told = inspect::line(*editor).isEmpty() ? QStringList() : inspect::sentences(*editor);
    const QList<int> ids{1, 2, 3, 4, 5}; // in the order of the picker
    for (int slot = 0; slot < bins.size(); ++slot) {
        if (bins[slot] == 0 || editor.button(0, slot).isHidden())
            continue;
        bool fits = false;
        ModalAnswers answers;
        answers.expect<AssignDaypartItem>([&](AssignDaypartItem &picker) {
            const auto &list = ui::get<QListWidget>(picker, "listWidgetProducts");
            fits = list.item(int(ids.indexOf(bins[slot])))->flags().testFlag(Qt::ItemIsSelectable);
            ui::click(picker, "btnCancel");
        });
        ui::click(editor.button(0, slot));
        const QString place = u"Morning, Row 1, Bin %1: "_s.arg(slot + 1);
        QCOMPARE(told.filter(place).isEmpty(), fits);
    }
}

QTEST_MAIN(TestInspectionGoTo)
#include "tst_inspection_goto.moc"
