// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTimer>

#include "tests/gui/holdtime.h"
#include "tests/gui/timerbarlist.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

// Removal mode, entered by holding a filled bin with the mouse.
class TestTimerBarRemoval : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_editor.reset(); }
    void holdEntersTheMode();
    void holdIsDetectedInTime();
    void shortPressAssigns();
    void holdOnAnEmptyBinDoesNothing();
    void pressThatLeavesTheButtonDoesNothing();
    void trembleAtTheRelease_data();
    void trembleAtTheRelease();
    void clicksToggleMarks();
    void keysToggleMarks();
    void removeEmptiesTheCheckedBins();
    void removeWithoutMarks();
    void cancelKeepsTheBins();
    void gridStaysInPlace();
    void acceptedConfigurationLeavesTheMode();
    void deletedProductLeavesTheMode();
    void acceptedEditLeavesTheMode();
    void otherProductWorkKeepsTheMode_data();
    void otherProductWorkKeepsTheMode();
    void modeCanBeEnteredAgain();

private:
    [[nodiscard]] QPushButton &bin(const char *name) { return m_editor->button(name); }
    [[nodiscard]] QString marks();
    [[nodiscard]] QString states();
    void checkNormal();
    void press(QPushButton &button);
    void release(QPushButton &button, QPoint offset = {});
    void hold(const char *name);
    [[nodiscard]] QByteArray savedWith(const QList<int> &breakfast);

    cbr::Menu m_menu;
    std::unique_ptr<OpenTimerBar> m_editor;
};

namespace {

// In the order of the bins in m_menu, the fourth is empty.
constexpr std::array bins{"btnDaypartSelect1_0", "btnDaypartSelect1_1", "btnDaypartSelectB1_0",
                          "btnDaypartSelect0_0", "btnDaypartSelect0_1", "btnDaypartSelectB0_0"};

void sendMouse(QPushButton &button, QEvent::Type type, QPoint place)
{
    const bool down = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, button.mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &event);
}

} // namespace

void TestTimerBarRemoval::init()
{
    failOnWarnings();
    m_menu = baconHamChili(u"KTR23"_s);
    m_menu.dayparts[0] = {0, 1, 2, 100, 2, 0};
    m_menu.dayparts[2] = {0, 1, 2, 0, 1, 2};
    m_editor = std::make_unique<OpenTimerBar>(m_menu);
    m_editor->showTab(1);
}

// Which bins are checked.
QString TestTimerBarRemoval::marks()
{
    QString marks;
    for (const char *name : bins)
        marks += bin(name).isChecked() ? u'x' : u'.';
    return marks;
}

// c: checkable, d: disabled, n: neither.
QString TestTimerBarRemoval::states()
{
    QString states;
    for (const char *name : bins) {
        const QPushButton &button = bin(name);
        states +=
            button.isCheckable() ? (button.isEnabled() ? u'c' : u'?') : (button.isEnabled() ? u'n' : u'd');
    }
    return states;
}

void TestTimerBarRemoval::checkNormal()
{
    REQUIRE_EQUAL(states(), u"nnnnnn"_s);
    REQUIRE_EQUAL(marks(), u"......"_s);
    REQUIRE(!bin("btnDaypartRemove").isVisible());
    REQUIRE(!bin("btnCancelDaypartRemove").isVisible());
    REQUIRE(ui::get<QComboBox>(**m_editor, "comboDaypartSelect").isEnabled());
}

void TestTimerBarRemoval::press(QPushButton &button)
{
    REQUIRE(button.isVisible() && button.isEnabled());
    sendMouse(button, QEvent::MouseButtonPress, button.rect().center());
}

void TestTimerBarRemoval::release(QPushButton &button, QPoint offset)
{
    sendMouse(button, QEvent::MouseButtonRelease, button.rect().center() + offset);
}

// Holds until the mode is entered, then lets go.
void TestTimerBarRemoval::hold(const char *name)
{
    QPushButton &button = bin(name);
    press(button);
    REQUIRE_SOON(bin("btnDaypartRemove").isVisible());
    release(button);
}

QByteArray TestTimerBarRemoval::savedWith(const QList<int> &breakfast)
{
    cbr::Menu menu = m_menu;
    menu.dayparts[0] = breakfast;
    return hex(menu);
}

void TestTimerBarRemoval::holdEntersTheMode()
{
    QElapsedTimer time;
    time.start();
    QPushButton &held = bin(bins[1]);
    press(held);
    QVERIFY(held.isDown());
    QTRY_VERIFY(held.isCheckable());
    QVERIFY2(time.elapsed() >= 800, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(states(), u"cccdcc"_s);
    QCOMPARE(marks(), u".x...."_s);
    QVERIFY(!held.isDown());
    QVERIFY(bin("btnDaypartRemove").isVisible());
    QVERIFY(bin("btnCancelDaypartRemove").isVisible());
    QVERIFY(!ui::get<QComboBox>(**m_editor, "comboDaypartSelect").isEnabled());
    QVERIFY(bin("btnDaypartSelectB0_1").isHidden()); // the missing fourth
    QVERIFY(!bin("btnDaypartSelectB0_1").isCheckable());
    release(held);
    QCOMPARE(marks(), u".x...."_s);
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

// Without a clock: a timer that starts later and runs a little longer must not come first.
void TestTimerBarRemoval::holdIsDetectedInTime()
{
    QPushButton &held = bin(bins[0]);
    QTimer late;
    late.setSingleShot(true);
    late.setTimerType(Qt::PreciseTimer);
    bool wasInTime = false;
    connect(&late, &QTimer::timeout, this, [&held, &wasInTime] { wasInTime = held.isCheckable(); });
    QSignalSpy over(&late, &QTimer::timeout);
    press(held);
    late.start(900);
    QVERIFY(over.wait());
    QVERIFY(wasInTime);
    release(held);
}

void TestTimerBarRemoval::shortPressAssigns()
{
    QPushButton &button = bin(bins[3]);
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([](TimerBarDaypartAssignItem &dialog) {
        waitForAHold(); // the press is over: it cannot become a hold meanwhile
        ui::click(dialog, "btnCancel");
    });
    press(button);
    release(button);
    QVERIFY(answers.allAnswered());
    checkNormal();
}

void TestTimerBarRemoval::holdOnAnEmptyBinDoesNothing()
{
    QPushButton &button = bin(bins[3]);
    press(button);
    QTRY_VERIFY(!button.isDown());
    checkNormal();
    release(button); // an unexpected dialog would fail
    checkNormal();
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::pressThatLeavesTheButtonDoesNothing()
{
    QPushButton &button = bin(bins[0]);
    press(button);
    sendMouse(button, QEvent::MouseMove, {-20, -20});
    sendMouse(button, QEvent::MouseButtonRelease, {-20, -20});
    checkNormal();
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::trembleAtTheRelease_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("expected");
    QTest::newRow("filled bin") << 0 << u"x....."_s;
    QTest::newRow("empty bin") << 3 << u"......"_s;
}

// A hand that holds moves a little: neither may that assign, nor take the mark away again.
void TestTimerBarRemoval::trembleAtTheRelease()
{
    QFETCH(int, place);
    QFETCH(QString, expected);
    QPushButton &button = bin(bins[std::size_t(place)]);
    press(button);
    QTRY_VERIFY(!button.isDown());
    for (const QPoint offset : {QPoint(1, 0), QPoint(0, 1), QPoint(-1, -1)})
        sendMouse(button, QEvent::MouseMove, button.rect().center() + offset);
    release(button, {1, 1});
    QCOMPARE(marks(), expected);
    QCOMPARE(bin("btnDaypartRemove").isVisible(), place == 0);
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::clicksToggleMarks()
{
    hold(bins[0]);
    ui::click(bin(bins[1]));
    ui::click(bin(bins[5]));
    QCOMPARE(marks(), u"xx...x"_s);
    ui::click(bin(bins[0]));
    ui::click(bin(bins[5]));
    QCOMPARE(marks(), u".x...."_s);
    press(bin(bins[1])); // holding means nothing here
    waitForAHold();
    release(bin(bins[1]));
    QCOMPARE(marks(), u"......"_s);
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::keysToggleMarks()
{
    hold(bins[0]);
    bin(bins[4]).setFocus();
    QTest::keyClick(&bin(bins[4]), Qt::Key_Space);
    QCOMPARE(marks(), u"x...x."_s);
}

void TestTimerBarRemoval::removeEmptiesTheCheckedBins()
{
    hold(bins[2]);
    ui::click(bin(bins[0]));
    ui::click(bin(bins[4]));
    ui::click(bin("btnDaypartRemove"));
    checkNormal();
    QCOMPARE(bin(bins[0]).text(), QString());
    QCOMPARE(bin(bins[1]).text(), u"HAM"_s);
    QCOMPARE(bin(bins[2]).text(), QString());
    QCOMPARE(m_editor->saved(), savedWith({100, 1, 100, 100, 100, 0}));
}

void TestTimerBarRemoval::removeWithoutMarks()
{
    hold(bins[2]);
    ui::click(bin(bins[2]));
    ui::click(bin("btnDaypartRemove"));
    checkNormal();
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::cancelKeepsTheBins()
{
    hold(bins[2]);
    ui::click(bin(bins[0]));
    ui::click(bin("btnCancelDaypartRemove"));
    checkNormal();
    QCOMPARE(bin(bins[0]).text(), u"BACN"_s);
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::gridStaysInPlace()
{
    QList<QRect> places;
    for (const char *name : bins)
        places.append(QRect(bin(name).mapTo(&**m_editor, QPoint()), bin(name).size()));
    hold(bins[0]);
    QCoreApplication::processEvents();
    for (const char *name : bins)
        QCOMPARE(QRect(bin(name).mapTo(&**m_editor, QPoint()), bin(name).size()), places.takeFirst());
}

void TestTimerBarRemoval::acceptedConfigurationLeavesTheMode()
{
    hold(bins[0]);
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) { ui::click(dialog, "btnCancel"); });
    ui::click(**m_editor, "btnConfig");
    QCOMPARE(marks(), u"x....."_s);
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) { ui::click(dialog, "btnAccept"); });
    ui::click(**m_editor, "btnConfig");
    checkNormal();
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

// The marks could else stand on bins that it left.
void TestTimerBarRemoval::deletedProductLeavesTheMode()
{
    hold(bins[0]);
    m_editor->showTab(0);
    ui::clickRow(m_editor->products(), 0);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::click(**m_editor, "btnDeleteProduct");
    m_editor->showTab(1);
    checkNormal();
    QCOMPARE(bin(bins[0]).text(), QString());
}

// The bins show the product anew.
void TestTimerBarRemoval::acceptedEditLeavesTheMode()
{
    hold(bins[0]);
    m_editor->showTab(0);
    ui::clickRow(m_editor->products(), 0);
    timerbarlist::open(*m_editor, "btnEditProduct",
                       [](TimerBarProductEdit &dialog) { ui::click(dialog, "btnSave"); });
    m_editor->showTab(1);
    checkNormal();
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarRemoval::otherProductWorkKeepsTheMode_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Add") << QByteArray("btnAddProduct") << true;
    QTest::newRow("Duplicate") << QByteArray("btnDuplicateProduct") << true;
    QTest::newRow("Edit, cancelled") << QByteArray("btnEditProduct") << false;
    QTest::newRow("Add, cancelled") << QByteArray("btnAddProduct") << false;
}

// What it does touches no bin, so the marks stand where they were.
void TestTimerBarRemoval::otherProductWorkKeepsTheMode()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, accepted);
    hold(bins[0]);
    m_editor->showTab(0);
    ui::clickRow(m_editor->products(), 0);
    timerbarlist::open(*m_editor, button.constData(),
                       accepted ? timerbarlist::saveAsSoup : timerbarlist::cancel);
    m_editor->showTab(1);
    QCOMPARE(states(), u"cccdcc"_s);
    QCOMPARE(marks(), u"x....."_s);
    ui::click(bin("btnDaypartRemove"));
    checkNormal();
    cbr::Menu expected = m_menu;
    if (accepted)
        expected.products.append(timerbarlist::soup);
    if (button == "btnDuplicateProduct") // with the temperatures and times of bacon
        expected.products.last().upper = expected.products.last().lower = 116;
    expected.dayparts[0][0] = 100;
    QCOMPARE(m_editor->saved(), hex(expected));
}

void TestTimerBarRemoval::modeCanBeEnteredAgain()
{
    hold(bins[0]);
    ui::click(bin("btnDaypartRemove"));
    ui::choose(**m_editor, "comboDaypartSelect", u"Lunch"_s);
    hold(bins[3]);
    QCOMPARE(states(), u"cccccc"_s);
    QCOMPARE(marks(), u"...x.."_s);
    ui::click(bin("btnDaypartRemove"));
    cbr::Menu expected = m_menu;
    expected.dayparts[0][0] = 100;
    expected.dayparts[2][3] = 100;
    QCOMPARE(m_editor->saved(), hex(expected));
}

QTEST_MAIN(TestTimerBarRemoval)
#include "tst_timerbar_removal.moc"
