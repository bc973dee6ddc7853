// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QElapsedTimer>
#include <QTimer>
#include <QWindow>

#include "holding/assigndaypartitem.h"
#include "tests/gui/holdbins.h"
#include "tests/gui/holdtime.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Pressing a bin and holding it, with a mouse that is never quite still. Each picker that nobody expects
/// fails the test.
class TestDaypartHold : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void heldForItsTime();
    void heldForNoLonger();
    void onlyAPressCanBeHeld();
    void heldFilledBinIsChecked_data() { addReleases(); }
    void heldFilledBinIsChecked();
    void heldEmptyBinDoesNothing_data() { addReleases(); }
    void heldEmptyBinDoesNothing();
    void unknownIdIsHeldAsFilled();
    void pressThatIsLetGoAssigns();
    void pressThatIsLetGoNeverCountsAsHeld();
    void pressThatLeavesTheBinNeverCountsAsHeld();
    void spaceHeldOnAFilledBin();
    void spaceHeldOnAnEmptyBin();
    void nothingMovesUnderThePointer_data();
    void nothingMovesUnderThePointer();
    void afterAnEmptyHoldTheBinWorksAsEver();
    void holdWithoutADaypart();
    void reloadEndsAPress();

private:
    static void addReleases();
};

void TestDaypartHold::addReleases()
{
    QTest::addColumn<QList<QPoint>>("moves"); // from the middle of the bin, the last one is the release
    QTest::newRow("still") << QList<QPoint>{{0, 0}};
    QTest::newRow("trembling") << QList<QPoint>{{1, 0}, {0, 1}, {-1, 0}};
    QTest::newRow("outside") << QList<QPoint>{{1, 0}, {0, 200}};
    QTest::newRow("out and back") << QList<QPoint>{{0, 200}, {0, 1}};
}

void TestDaypartHold::heldForItsTime()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    const ModalAnswers answers;
    QElapsedTimer timer;
    timer.start();
    editor.press(0, 0);
    QVERIFY(!editor.isRemoving());
    QTRY_VERIFY(editor.isRemoving());
    QVERIFY2(timer.elapsed() >= 800, qPrintable(QString::number(timer.elapsed())));
    editor.release();
}

void TestDaypartHold::heldForNoLonger()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    const ModalAnswers answers;
    QTimer late;
    late.setSingleShot(true);
    late.setTimerType(Qt::PreciseTimer);
    bool inTime = false;
    connect(&late, &QTimer::timeout, &late, [&] { inTime = editor.isRemoving(); });
    editor.press(0, 0);
    late.start(900);
    QTRY_VERIFY(!late.isActive());
    QVERIFY(inTime);
    editor.release();
}

void TestDaypartHold::onlyAPressCanBeHeld()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) { ui::click(picker, "btnCancel"); });
    editor.press(0, 0);
    editor.release();
    editor->dayPartPressHoldDetected();
    QVERIFY(!editor.isRemoving());
}

void TestDaypartHold::heldFilledBinIsChecked()
{
    QFETCH(QList<QPoint>, moves);
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 5, 2}));
    const ModalAnswers answers;
    editor.press(0, 1);
    QTRY_VERIFY(editor.isRemoving());
    QVERIFY(editor.button(0, 1).isChecked());
    editor.moveAndRelease(moves);
    QVERIFY(editor.isRemoving());
    QVERIFY(editor.button(0, 1).isChecked() && !editor.button(0, 1).isDown());
    QVERIFY(!editor.button(0, 0).isChecked() && !editor.button(1, 0).isChecked());
    // From now on clicks change the mark.
    editor.press(0, 1);
    editor.release();
    QVERIFY(!editor.button(0, 1).isChecked());
}

void TestDaypartHold::heldEmptyBinDoesNothing()
{
    QFETCH(QList<QPoint>, moves);
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    const ModalAnswers answers;
    editor.press(0, 1);
    QVERIFY(editor.button(0, 1).isDown());
    QTRY_VERIFY(!editor.button(0, 1).isDown()); // the hold is over
    editor.moveAndRelease(moves);
    QVERIFY(!editor.isRemoving());
    QVERIFY(editor.button(0, 1).isEnabled() && !editor.button(0, 1).isDown());
    QVERIFY(!editor.button(0, 0).isCheckable());
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
}

void TestDaypartHold::unknownIdIsHeldAsFilled()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {99}));
    editor.press(0, 0);
    QTRY_VERIFY(editor.isRemoving());
    editor.release();
    QVERIFY(editor.button(0, 0).isChecked());
}

void TestDaypartHold::pressThatIsLetGoAssigns()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) {
        ui::clickRow(ui::get<QListWidget>(picker, "listWidgetProducts"), 4);
        ui::click(picker, "btnSelect");
    });
    editor.press(0, 0);
    editor.release();
    QVERIFY(!editor.isRemoving());
    QCOMPARE(editor.savedBins(0), (QList<int>{5, 0, 0, 0}));
}

void TestDaypartHold::pressThatIsLetGoNeverCountsAsHeld()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) { ui::click(picker, "btnCancel"); });
    editor.press(0, 0);
    editor.release();
    waitForAHold();
    QVERIFY(!editor.isRemoving());
}

void TestDaypartHold::pressThatLeavesTheBinNeverCountsAsHeld()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    const ModalAnswers answers;
    editor.press(0, 0);
    editor.move({0, 200});
    QVERIFY(!editor.button(0, 0).isDown());
    waitForAHold();
    QVERIFY(!editor.isRemoving());
    editor.release();
}

void TestDaypartHold::spaceHeldOnAFilledBin()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    const ModalAnswers answers;
    QPushButton &button = editor.button(0, 0);
    button.setFocus();
    editor.holdSpace();
    QTRY_VERIFY(editor.isRemoving());
    editor.repeatSpace();
    editor.releaseSpace();
    QVERIFY(editor.isRemoving());
    QVERIFY(button.isChecked() && !button.isDown());
    QVERIFY(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Space);
    QVERIFY(!button.isChecked());
}

void TestDaypartHold::spaceHeldOnAnEmptyBin()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    const ModalAnswers answers;
    QPushButton &button = editor.button(0, 1);
    button.setFocus();
    editor.holdSpace();
    QVERIFY(button.isDown());
    QTRY_VERIFY(!button.isDown());
    editor.repeatSpace();
    editor.releaseSpace();
    QVERIFY(!editor.isRemoving());
    QVERIFY(button.hasFocus() && !button.isDown());
}

void TestDaypartHold::nothingMovesUnderThePointer_data()
{
    QTest::addColumn<QString>("model");
    for (const char *model : {"KTR22", "KTR33", "KTR54", "KTR82"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestDaypartHold::nothingMovesUnderThePointer()
{
    QFETCH(QString, model);
    HoldBins editor(bins::menuOf(model, {2, 2}));
    QCoreApplication::sendPostedEvents();
    const QList<QRect> before = editor.places();
    editor.press(0, 0);
    QTRY_VERIFY(editor.isRemoving());
    QCoreApplication::sendPostedEvents(); // a layout that had to change would do so now
    QCOMPARE(editor.places(), before);
    editor.release();
    ui::click(*editor, "btnCancelDaypartRemove");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(editor.places(), before);
}

void TestDaypartHold::afterAnEmptyHoldTheBinWorksAsEver()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    editor.press(0, 1);
    QTRY_VERIFY(!editor.button(0, 1).isDown());
    editor.release();
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) {
        ui::clickRow(ui::get<QListWidget>(picker, "listWidgetProducts"), 1);
        ui::click(picker, "btnSelect");
    });
    editor.press(0, 1);
    editor.release();
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    editor.press(0, 1);
    QTRY_VERIFY(editor.isRemoving());
    editor.release();
    QVERIFY(editor.button(0, 1).isChecked());
}

void TestDaypartHold::holdWithoutADaypart()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {});
    menu.layout = {};
    HoldBins editor(menu);
    const ModalAnswers answers;
    editor.press(0, 0);
    QTRY_VERIFY(!editor.button(0, 0).isDown());
    editor.release();
    QVERIFY(!editor.isRemoving());
}

// The bins that were there are others after the menu was read again.
void TestDaypartHold::reloadEndsAPress()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2}));
    editor.press(0, 0);
    QVERIFY(editor->readMenuFile());
    waitForAHold();
    QVERIFY(!editor.isRemoving());
    editor->dayPartPressHoldDetected(); // nor by a detection that was under way
    QVERIFY(!editor.isRemoving());
    editor.moveAndRelease({{0, 200}});
    QVERIFY(!editor.isRemoving());
    QVERIFY(editor.button(0, 0).isEnabled() && !editor.button(0, 0).isDown());
}

QTEST_MAIN(TestDaypartHold)
#include "tst_daypart_hold.moc"
