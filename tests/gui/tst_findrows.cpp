// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QClipboard>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QSignalSpy>

#include "tests/gui/findpane.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using findfield::Pane;
using findfield::shownNames;

/// The field without an editor around it.
class TestFindRows : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void fieldStandsAboveTheList_data();
    void fieldStandsAboveTheList();
    void rowsAreFound_data();
    void rowsAreFound();
    void onlyWhatFits();
    void arrowsGoIntoTheList_data();
    void arrowsGoIntoTheList();
    void enterPicks();
    void enterGoesIntoTheList();
    void escapeEmptiesFirst_data();
    void escapeEmptiesFirst();
    void heldEscapeClosesNothing();
    void hiddenListTakesNoEscape();
    void nothingFoundIsSaid();
    void resultIsTold();
    void refillStaysFiltered();
    void hugeTextsAreHarmless();
    void unchangedRowsAreNoNews();
};

void TestFindRows::fieldStandsAboveTheList_data()
{
    QTest::addColumn<bool>("picks");
    QTest::newRow("to pick from") << true;
    QTest::newRow("others") << false;
}

void TestFindRows::fieldStandsAboveTheList()
{
    QFETCH(const bool, picks);
    Pane pane(picks);
    QVERIFY(pane.before.geometry().bottom() < pane.field().y());
    QVERIFY(pane.field().geometry().bottom() < pane.list.y());
    QCOMPARE(pane.dialog.findChild<QCheckBox *>() != nullptr, picks);
    QList<QWidget *> order{pane.field().previousInFocusChain(), &pane.field()};
    if (picks)
        order.append(&findfield::onlyFits(pane.dialog));
    order.append(&pane.list);
    for (qsizetype i = 1; i < order.size(); ++i) {
        order[i - 1]->setFocus();
        QTest::keyClick(order[i - 1], Qt::Key_Tab);
        QCOMPARE(pane.dialog.focusWidget(), order[i]);
    }
}

void TestFindRows::rowsAreFound_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("nothing") << QString() << u"Bacon Beef Crêpe Ham Hash"_s;
    QTest::newRow("blanks") << u"  "_s << u"Bacon Beef Crêpe Ham Hash"_s;
    QTest::newRow("part of names") << u"HA"_s << u"Ham Hash"_s;
    QTest::newRow("accent") << u"crep"_s << u"Crêpe"_s;
    QTest::newRow("number") << u"4"_s << u"Ham"_s;
    QTest::newRow("number and name") << u"ha 5"_s << u"Hash"_s;
    QTest::newRow("title") << u"ham food"_s << u"Ham"_s;
    QTest::newRow("nothing like it") << u"x"_s << QString();
}

void TestFindRows::rowsAreFound()
{
    QFETCH(const QString, typed);
    Pane pane(false);
    const QStringList texts = ui::textsOf(pane.list);
    pane.type(typed);
    QTEST(shownNames(pane.list), "shown");
    QCOMPARE(ui::textsOf(pane.list), texts);
    pane.type({});
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham Hash"_s);
}

void TestFindRows::onlyWhatFits()
{
    Pane pane(true);
    QCheckBox &box = findfield::onlyFits(pane.dialog);
    QVERIFY(!box.isChecked());
    box.click();
    QCOMPARE(shownNames(pane.list), u"Bacon Crêpe Ham Hash"_s);
    pane.type(u"be"_s);
    QCOMPARE(shownNames(pane.list), QString());
    box.click();
    QCOMPARE(shownNames(pane.list), u"Beef"_s);
    pane.type({});
    box.click();
    pane.fill({u"Beef"_s, u"Bun"_s});
    QCOMPARE(shownNames(pane.list), u"Bun"_s);
}

void TestFindRows::arrowsGoIntoTheList_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp})
        QTest::newRow(QMetaEnum::fromType<Qt::Key>().valueToKey(key)) << key;
}

void TestFindRows::arrowsGoIntoTheList()
{
    QFETCH(const Qt::Key, key);
    Pane pane(false);
    pane.type(u"h"_s);
    pane.press(key);
    QCOMPARE(pane.dialog.focusWidget(), &pane.list);
    QVERIFY(pane.list.currentRow() >= 3);
    pane.press(Qt::Key_Home);
    QCOMPARE(shownNames(pane.list), u"Ham* Hash"_s);
    pane.type(u"x"_s);
    pane.press(key);
    QCOMPARE(pane.dialog.focusWidget(), &pane.field()); // there is no row to go to
    pane.type({});
    pane.fill({});
    QCOMPARE(pane.find->firstRow(), -1);
    pane.press(key);
    QCOMPARE(pane.dialog.focusWidget(), &pane.field());
}

void TestFindRows::enterPicks()
{
    Pane pane(true);
    const QSignalSpy picked(&pane.pick, &QPushButton::clicked);
    const QSignalSpy saved(&pane.save, &QPushButton::clicked);
    pane.press(Qt::Key_Return); // nothing is selected
    QCOMPARE(picked.count(), 0);
    pane.type(u"ham"_s);
    pane.press(Qt::Key_Return);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(pane.dialog.focusWidget(), &pane.field());
    QTest::keyClicks(&pane.field(), u"hash"_s); // in place of what was typed before
    pane.press(Qt::Key_Enter);
    QCOMPARE(picked.count(), 2);
    QCOMPARE(shownNames(pane.list), u"Hash*"_s);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QCoreApplication::sendEvent(&pane.field(), &held);
    QCOMPARE(picked.count(), 2);
    QCOMPARE(saved.count(), 0);
}

void TestFindRows::enterGoesIntoTheList()
{
    Pane pane(false);
    const QSignalSpy picked(&pane.pick, &QPushButton::clicked);
    const QSignalSpy saved(&pane.save, &QPushButton::clicked);
    pane.type(u"h"_s);
    pane.press(Qt::Key_Return);
    QCOMPARE(pane.dialog.focusWidget(), &pane.list);
    QCOMPARE(shownNames(pane.list), u"Ham* Hash"_s);
    QCOMPARE(picked.count() + saved.count(), 0);
}

void TestFindRows::escapeEmptiesFirst_data()
{
    QTest::addColumn<bool>("inField");
    QTest::newRow("in the field") << true;
    QTest::newRow("elsewhere") << false;
}

void TestFindRows::escapeEmptiesFirst()
{
    QFETCH(const bool, inField);
    Pane pane(true);
    pane.type(u"ham"_s);
    if (!inField)
        pane.before.setFocus();
    pane.press(Qt::Key_Escape);
    QVERIFY(pane.dialog.isVisible());
    QVERIFY(pane.field().text().isEmpty());
    QCOMPARE(shownNames(pane.list), u"Bacon Beef Crêpe Ham* Hash"_s);
    pane.press(Qt::Key_Escape);
    QVERIFY(pane.dialog.isHidden());
}

void TestFindRows::heldEscapeClosesNothing()
{
    Pane pane(true);
    pane.type(u"ham"_s);
    pane.press(Qt::Key_Escape);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);
    QCoreApplication::sendEvent(&pane.field(), &held);
    QVERIFY(pane.dialog.isVisible());
}

void TestFindRows::hiddenListTakesNoEscape()
{
    Pane pane(true);
    pane.type(u"ham"_s);
    pane.list.hide();
    pane.press(Qt::Key_Escape);
    QVERIFY(pane.dialog.isHidden());
    QCOMPARE(pane.field().text(), u"ham"_s);
}

void TestFindRows::nothingFoundIsSaid()
{
    Pane pane(true);
    const auto painted = [&pane] { return pane.list.viewport()->grab().toImage(); };
    pane.type(u"<b>x</b> %1"_s);
    QCOMPARE(pane.field().accessibleDescription(), u"No row contains “<b>x</b> %1”"_s);
    const QImage quoted = painted();
    pane.type(u"y"_s);
    QVERIFY(painted() != quoted);
    findfield::onlyFits(pane.dialog).click();
    QCOMPARE(pane.field().accessibleDescription(), u"No row that fits contains “y”"_s);
    pane.type({});
    pane.fill({u"Beef"_s});
    QCOMPARE(pane.field().accessibleDescription(), u"Nothing fits"_s);
}

void TestFindRows::resultIsTold()
{
    Pane pane(true);
    pane.type(u"ha"_s);
    QCOMPARE(pane.field().accessibleDescription(), u"4 Ham. 2 of 5 rows"_s);
    pane.press(Qt::Key_Down);
    pane.field().setFocus();
    QCOMPARE(pane.field().accessibleDescription(), u"5 Hash. 2 of 5 rows"_s);
    pane.type(u"beef"_s);
    QCOMPARE(pane.field().accessibleDescription(), u"1 of 5 rows"_s);
    pane.type({});
    QCOMPARE(pane.field().accessibleDescription(), QString());
}

void TestFindRows::refillStaysFiltered()
{
    Pane pane(false);
    pane.type(u"ha"_s);
    pane.fill({u"Shark"_s, u"Bun"_s, u"Hare"_s});
    QCOMPARE(shownNames(pane.list), u"Shark Hare"_s);
    QCOMPARE(pane.find->firstRow(), 0);
    pane.fill({});
    QCOMPARE(pane.find->firstRow(), -1);
    pane.fill({u"Bun"_s, u"Hare"_s});
    QCOMPARE(pane.find->firstRow(), 1);
}

void TestFindRows::hugeTextsAreHarmless()
{
    Pane pane(true);
    QGuiApplication::clipboard()->setText(QString(10'000'000, u'h') + u"\nham"_s);
    QTest::keyClick(&pane.field(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(pane.field().text(), QString(100, u'h'));
    QCOMPARE(shownNames(pane.list), QString());
    pane.type({});
    pane.fill({QString(10'000'000, u'x'), u"Ham"_s});
    pane.type(u"ham"_s);
    QCOMPARE(shownNames(pane.list), u"Ham*"_s);
}

void TestFindRows::unchangedRowsAreNoNews()
{
    Pane pane(false);
    const QSignalSpy changed(pane.find, &FindRows::changed);
    pane.fill({u"Bun"_s});
    QCOMPARE(changed.count(), 0);
    pane.type(u"x"_s);
    QVERIFY(changed.count() > 0);
}

QTEST_MAIN(TestFindRows)
#include "tst_findrows.moc"
