// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QWindow>

#include "tests/gui/holdtime.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/bingrid.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 2;
constexpr int columns = 3;

/// Two rows of three plain buttons, wired to the grid as an editor wires them. The bins that `filled` names
/// can be held; those that the grid assigns are noted.
class Form
{
public:
    Form()
        : layout(&window)
    {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                auto *button = new QPushButton;
                layout.addWidget(button, row, column);
                wire(button);
                grid.add(button, {row, column});
            }
        }
        QObject::connect(&grid, &BinGrid::holdDetected,
                         [this] { grid.settleHold([this](Bin bin) { return filled.contains(bin); }); });
        window.resize(400, 500); // with room around the buttons
        ui::show(window);
    }

    [[nodiscard]] QPushButton &button(Bin bin) { return *grid.button(bin); }
    /// A letter a bin: c checkable, x checkable and checked, d disabled, n neither, - hidden.
    [[nodiscard]] QString states() const
    {
        QString letters;
        for (const Bin bin : grid.bins()) {
            const QPushButton &button = *grid.button(bin);
            const QChar active = button.isCheckable() ? (button.isChecked() ? u'x' : u'c') : u'n';
            letters += button.isHidden() ? QChar(u'-') : button.isEnabled() ? active : QChar(u'd');
        }
        return letters;
    }

    // With one mouse, through the window as the platform would.
    void press(Bin bin)
    {
        at = button(bin).mapTo(&window, button(bin).rect().center());
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at);
    }
    void move(QPoint by) { QTest::mouseMove(window.windowHandle(), at += by); }
    void release() { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at); }
    void hold(Bin bin)
    {
        press(bin);
        REQUIRE_SOON(!button(bin).isDown());
        release();
    }

    QWidget window;
    QGridLayout layout;
    BinGrid grid;
    QList<Bin> filled;
    QList<Bin> assigned;
    QPoint at;

private:
    void wire(QPushButton *button)
    {
        QObject::connect(button, &QPushButton::pressed, &grid, [this, button] { grid.press(button); });
        QObject::connect(button, &QPushButton::released, &grid, [this] { grid.release(); });
        QObject::connect(button, &QPushButton::clicked, &grid, [this, button] {
            if (const std::optional<Bin> bin = grid.clickedBin(button))
                assigned.append(*bin);
        });
    }
};

} // namespace

/// The grid of bins without an editor around it.
class TestBinGrid : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void buttonsAreBins();
    void contentIsShown_data();
    void contentIsShown();
    void emptyBinIsNamed();
    void clickAssignsItsBin();
    void unknownButtonIsNoBin();
    void heldForItsTime();
    void shortPressIsNotHeld();
    void filledBinEntersRemovalMode();
    void emptyBinDoesNot();
    void pressIsOverWhenHeld_data();
    void pressIsOverWhenHeld();
    void focusStaysOnTheHeldBin();
    void removalModeIsNotHeld();
    void clicksChooseBins();
    void hiddenButtonsTakeNoPart();
    void leavingRestoresEveryButton();
    void nothingIsSettledWithoutAHold();
    void clearedGridIsEmpty();
    void clearedGridEndsAPress();
    void hintsTellWhatToDo();
    void hiddenWidgetKeepsItsRoom();
};

void TestBinGrid::buttonsAreBins()
{
    Form form;
    QCOMPARE(form.grid.bins(), (QList<Bin>{{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2}}));
    QCOMPARE(form.grid.button({1, 2}), form.layout.itemAtPosition(1, 2)->widget());
    QVERIFY(!form.grid.button({2, 0}));
    QVERIFY(!form.grid.button({0, 3}));
    QVERIFY(!form.grid.button({-1, 0}));
}

void TestBinGrid::contentIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("told");
    QTest::newRow("nothing") << QString() << u"Row 2, Bin 3: Empty"_s;
    QTest::newRow("name") << u"Ham"_s << u"Row 2, Bin 3: Ham"_s;
    QTest::newRow("ampersand") << u"Fish&Fries"_s << u"Row 2, Bin 3: Fish&Fries"_s;
    QTest::newRow("place marker") << u"%1"_s << u"Row 2, Bin 3: %1"_s;
}

void TestBinGrid::contentIsShown()
{
    QFETCH(const QString, name);
    QFETCH(const QString, told);
    Form form;
    form.grid.showContent({1, 2}, u"Before"_s);
    form.grid.showContent({1, 2}, name);
    QCOMPARE(form.button({1, 2}).text(), name);
    QVERIFY(form.button({1, 2}).shortcut().isEmpty());
    QCOMPARE(form.button({1, 2}).accessibleName(), told);
    QCOMPARE(form.button({1, 1}).text(), QString());
}

void TestBinGrid::emptyBinIsNamed()
{
    Form form;
    form.grid.showContent({0, 1}, {});
    QCOMPARE(form.button({0, 1}).accessibleName(), u"Row 1, Bin 2: Empty"_s);
    form.grid.showContent({0, 1}, u"Id 7"_s, u"no name"_s);
    QCOMPARE(form.button({0, 1}).accessibleName(), u"Row 1, Bin 2: Id 7, no name"_s);
}

void TestBinGrid::clickAssignsItsBin()
{
    Form form;
    for (const Bin bin : form.grid.bins())
        ui::click(form.button(bin));
    QCOMPARE(form.assigned, form.grid.bins());
}

void TestBinGrid::unknownButtonIsNoBin()
{
    const Form form;
    const QPushButton other;
    QVERIFY(!form.grid.clickedBin(&other));
}

void TestBinGrid::heldForItsTime()
{
    Form form;
    const QSignalSpy held(&form.grid, &BinGrid::holdDetected);
    QElapsedTimer timer;
    timer.start();
    form.press({0, 0});
    QCOMPARE(held.count(), 0);
    QTRY_COMPARE(held.count(), 1);
    QVERIFY2(timer.elapsed() >= 800, qPrintable(QString::number(timer.elapsed())));
    waitForAHold();
    QCOMPARE(held.count(), 1); // a press is held once
    form.release();
}

void TestBinGrid::shortPressIsNotHeld()
{
    Form form;
    const QSignalSpy held(&form.grid, &BinGrid::holdDetected);
    form.press({0, 1});
    form.release();
    waitForAHold();
    QCOMPARE(held.count(), 0);
    QCOMPARE(form.assigned, (QList<Bin>{{0, 1}}));
}

void TestBinGrid::filledBinEntersRemovalMode()
{
    Form form;
    form.filled = {{0, 0}, {1, 1}, {1, 2}};
    const QSignalSpy changed(&form.grid, &BinGrid::removalModeChanged);
    form.hold({1, 1});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst(), QVariantList{true});
    QVERIFY(form.grid.isRemoving());
    QCOMPARE(form.states(), u"cdddxc"_s);
    QCOMPARE(form.grid.checkedBins(), (QList<Bin>{{1, 1}}));
    QVERIFY(form.assigned.isEmpty());
}

void TestBinGrid::emptyBinDoesNot()
{
    Form form;
    form.filled = {{0, 0}};
    const QSignalSpy changed(&form.grid, &BinGrid::removalModeChanged);
    form.hold({0, 1});
    QCOMPARE(changed.count(), 0);
    QVERIFY(!form.grid.isRemoving());
    QCOMPARE(form.states(), u"nnnnnn"_s);
    ui::click(form.button({0, 1}));
    QCOMPARE(form.assigned, (QList<Bin>{{0, 1}}));
}

void TestBinGrid::pressIsOverWhenHeld_data()
{
    QTest::addColumn<bool>("isFilled");
    QTest::addColumn<QPoint>("tremble");
    for (const bool isFilled : {false, true}) {
        const char *bin = isFilled ? "filled" : "empty";
        QTest::addRow("%s, still", bin) << isFilled << QPoint(0, 0);
        QTest::addRow("%s, a pixel aside", bin) << isFilled << QPoint(1, 0);
        QTest::addRow("%s, far outside", bin) << isFilled << QPoint(0, 200);
    }
}

// Letting the button go is no click: it assigns nothing and takes no mark off.
void TestBinGrid::pressIsOverWhenHeld()
{
    QFETCH(const bool, isFilled);
    QFETCH(const QPoint, tremble);
    Form form;
    if (isFilled)
        form.filled = {{0, 0}};
    form.press({0, 0});
    QVERIFY(form.button({0, 0}).isDown());
    QTRY_VERIFY(!form.button({0, 0}).isDown());
    form.move(tremble);
    form.release();
    QVERIFY(form.assigned.isEmpty());
    QCOMPARE(form.button({0, 0}).isChecked(), isFilled);
    QVERIFY(form.button({0, 0}).isEnabled());
}

void TestBinGrid::focusStaysOnTheHeldBin()
{
    Form form;
    form.filled = form.grid.bins(); // each could take the focus over
    form.button({0, 1}).setFocus();
    form.hold({0, 1});
    QVERIFY(form.button({0, 1}).hasFocus());
}

void TestBinGrid::removalModeIsNotHeld()
{
    Form form;
    form.filled = {{0, 0}, {0, 1}};
    form.hold({0, 0});
    const QSignalSpy held(&form.grid, &BinGrid::holdDetected);
    form.press({0, 1});
    waitForAHold();
    QCOMPARE(held.count(), 0);
    form.release();
    QCOMPARE(form.grid.checkedBins(), (QList<Bin>{{0, 0}, {0, 1}}));
}

void TestBinGrid::clicksChooseBins()
{
    Form form;
    form.filled = {{0, 0}, {0, 2}, {1, 1}};
    form.hold({0, 2});
    ui::click(form.button({1, 1}));
    ui::click(form.button({0, 0}));
    QCOMPARE(form.grid.checkedBins(), (QList<Bin>{{0, 0}, {0, 2}, {1, 1}}));
    ui::click(form.button({0, 2}));
    QCOMPARE(form.grid.checkedBins(), (QList<Bin>{{0, 0}, {1, 1}}));
    QVERIFY(form.assigned.isEmpty());
}

void TestBinGrid::hiddenButtonsTakeNoPart()
{
    Form form;
    form.filled = form.grid.bins();
    form.button({0, 1}).hide();
    form.hold({0, 0});
    QCOMPARE(form.states(), u"x-cccc"_s);
    QVERIFY(!form.button({0, 1}).isCheckable());
    ui::click(form.button({1, 2}));
    form.button({1, 2}).hide();
    QCOMPARE(form.grid.checkedBins(), (QList<Bin>{{0, 0}}));
}

void TestBinGrid::leavingRestoresEveryButton()
{
    Form form;
    form.filled = {{0, 0}, {1, 1}};
    form.hold({0, 0});
    const QSignalSpy changed(&form.grid, &BinGrid::removalModeChanged);
    form.grid.leaveRemovalMode();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst(), QVariantList{false});
    QVERIFY(!form.grid.isRemoving());
    QCOMPARE(form.states(), u"nnnnnn"_s);
    QCOMPARE(form.grid.checkedBins(), QList<Bin>());
    form.grid.leaveRemovalMode();
    QCOMPARE(changed.count(), 1); // nothing was left to leave
}

void TestBinGrid::nothingIsSettledWithoutAHold()
{
    Form form;
    form.grid.settleHold([](Bin) { return true; });
    QVERIFY(!form.grid.isRemoving());
    form.press({0, 0});
    form.release();
    form.grid.settleHold([](Bin) { return true; });
    QVERIFY(!form.grid.isRemoving());
}

void TestBinGrid::clearedGridIsEmpty()
{
    Form form;
    form.filled = {{0, 0}};
    form.hold({0, 0});
    QPushButton &held = form.button({0, 0});
    const QSignalSpy changed(&form.grid, &BinGrid::removalModeChanged);
    form.grid.clear();
    QCOMPARE(changed.count(), 1);
    QVERIFY(!held.isCheckable());
    QVERIFY(form.grid.bins().isEmpty());
    QVERIFY(!form.grid.button({0, 0}));
    form.grid.add(&held, {4, 1});
    QCOMPARE(form.grid.button({4, 1}), &held);
}

void TestBinGrid::clearedGridEndsAPress()
{
    Form form;
    const QSignalSpy held(&form.grid, &BinGrid::holdDetected);
    form.press({0, 0});
    form.grid.clear();
    waitForAHold();
    QCOMPARE(held.count(), 0);
    form.release();
}

void TestBinGrid::hintsTellWhatToDo()
{
    QLabel label;
    BinGrid::showHint(&label, true);
    QCOMPARE(label.text(), u"Choose the bins to clear, then press Remove."_s);
    QVERIFY(label.font().bold());
    BinGrid::showHint(&label, false);
    QCOMPARE(label.text(), u"Click a bin to assign it. Hold a filled bin to clear bins."_s);
    QVERIFY(!label.font().bold());
}

void TestBinGrid::hiddenWidgetKeepsItsRoom()
{
    Form form;
    keepRoomWhenHidden(&form.button({0, 0}));
    const QRect before = form.button({0, 1}).geometry();
    for (int row = 0; row < rows; ++row)
        form.button({row, 0}).hide();
    QCoreApplication::sendPostedEvents(); // a layout that had to change would do so now
    QCOMPARE(form.button({0, 1}).geometry(), before);
}

QTEST_MAIN(TestBinGrid)
#include "tst_bingrid.moc"
