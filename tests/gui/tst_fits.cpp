// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "tests/support/everywindow.h"
#include "tests/support/require.h"
#include "tests/support/screens.h"
#include "tests/support/shownwidgets.h"
#include "tests/support/warnings.h"
#include "widgets/menueditor.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen as users have it, in logical pixels, and the sizes of fonts that have to do on it, in points.
struct Screen
{
    const char *name;
    QSize size;
    QList<qreal> fonts; ///< 0 is the default font
};

const QList<Screen> &testedScreens()
{
    static const QList<Screen> all{{"910 x 512", {910, 512}, {0}},
                                   {"1093 x 614", {1093, 614}, {0}},
                                   {"1366 x 768", {1366, 768}, {0, 9, 10, 11, 12, 13, 14}},
                                   {"1920 x 1080", {1920, 1080}, {0, 20}}};
    return all;
}

constexpr QSize largestDialog(900, 480);
constexpr int lowestControl = 460;          // below an editor's top
constexpr int highestEditor = 560;          // with eight rows of bins
constexpr QSize frame(8, 32);               // around a dialog
constexpr int aboveAnEditor = 32 + 28 + 28; // the main window's title, its menu bar and the editor's title

} // namespace

/// Every window on the screens that it has to fit.
class TestFits : public QObject
{
    Q_OBJECT

public:
    explicit TestFits(const Screen &screen)
        : m_screen(screen)
    {}

private slots:
    void init() { failOnWarnings(); }
    void cleanup() { QApplication::setFont(m_font); }
    void screenIsTheOneMeant();
    void dialogFits_data() { addRows(); }
    void dialogFits();
    void dialogIsAsDesigned_data() { addRows(); }
    void dialogIsAsDesigned();
    void editorsControlsAreInReach_data() { addRows(); }
    void editorsControlsAreInReach();
    void nothingActsBelowRows_data() { addRows(); }
    void nothingActsBelowRows();
    void middleScrolls_data() { addDialogRows(); }
    void middleScrolls();

private:
    void addRows() const;
    void setFontSize(qreal points) const;

    Screen m_screen;
    QFont m_font = QApplication::font();
};

void TestFits::addRows() const
{
    QTest::addColumn<std::size_t>("kind");
    QTest::addColumn<qreal>("points");
    for (const qreal points : m_screen.fonts) {
        for (std::size_t i = 0; i < everyWindow().size(); ++i)
            QTest::addRow("%s, %g pt, %s", m_screen.name, points, everyWindow()[i].name) << i << points;
    }
}

void TestFits::setFontSize(qreal points) const
{
    QFont font = m_font;
    if (points > 0)
        font.setPointSizeF(points);
    QApplication::setFont(font);
}

void TestFits::screenIsTheOneMeant()
{
    QCOMPARE(QGuiApplication::primaryScreen()->availableSize(), m_screen.size);
}

namespace {

QRect placeIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

bool isBin(const QWidget &widget)
{
    return widget.objectName().startsWith("btnDaypartSelect"_L1);
}

// What a person acts with, but for the rows and the bins themselves.
QList<QWidget *> controls(QWidget &window)
{
    QList<QWidget *> found;
    for (QWidget *widget : shown::widgets(window)) {
        const bool acts = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QComboBox *>(widget) ||
                          qobject_cast<QTabBar *>(widget);
        if (acts && !isBin(*widget))
            found.append(widget);
    }
    return found;
}

bool isEditor(const QWidget &window)
{
    return qobject_cast<const MenuEditor *>(&window);
}

bool scrolls(const QWidget &widget)
{
    for (const QWidget *parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(parent))
            return true;
    }
    return false;
}

} // namespace

void TestFits::dialogFits()
{
    QFETCH(const std::size_t, kind);
    QFETCH(const qreal, points);
    setFontSize(points);
    const OpenWindow open(everyWindow()[kind]);
    QWidget &window = open.window();
    if (!everyWindow()[kind].isDialog)
        return; // what is no dialog has rules of its own below
    const QSize room = points > 0 ? m_screen.size - frame : largestDialog;
    QVERIFY2(window.width() <= room.width() && window.height() <= room.height(),
             qPrintable(u"%1 x %2"_s.arg(window.width()).arg(window.height())));
    for (const QPushButton *button : window.findChildren<QPushButton *>()) {
        if (button->isVisible())
            QVERIFY2(window.rect().contains(placeIn(window, *button)), qPrintable(shown::describe(*button)));
    }
}

// At the default font no dialog is larger than its form says.
void TestFits::dialogIsAsDesigned()
{
    QFETCH(const std::size_t, kind);
    QFETCH(const qreal, points);
    setFontSize(points);
    const OpenWindow open(everyWindow()[kind]);
    if (!everyWindow()[kind].isDialog)
        return;
    QCOMPARE(open.window().minimumSize(), open.window().maximumSize());
    if (points <= 0)
        QVERIFY(!open.window().findChild<QScrollArea *>());
}

void TestFits::editorsControlsAreInReach()
{
    QFETCH(const std::size_t, kind);
    QFETCH(const qreal, points);
    setFontSize(points);
    const OpenWindow open(everyWindow()[kind]);
    QWidget &window = open.window();
    if (!isEditor(window))
        return;
    const int lowest = points > 0 ? m_screen.size.height() - aboveAnEditor : lowestControl;
    if (points <= 0)
        QVERIFY(window.height() < highestEditor);
    QVERIFY(window.width() <= m_screen.size.width());
    shown::forEachPage(window, [&] {
        REQUIRE(!controls(window).isEmpty());
        for (const QWidget *control : controls(window))
            REQUIRE(placeIn(window, *control).bottom() < lowest,
                    shown::describe(*control) + u" at "_s +
                        QString::number(placeIn(window, *control).bottom()));
    });
}

void TestFits::nothingActsBelowRows()
{
    QFETCH(const std::size_t, kind);
    QFETCH(const qreal, points);
    setFontSize(points);
    const OpenWindow open(everyWindow()[kind]);
    QWidget &window = open.window();
    if (!isEditor(window))
        return;
    shown::forEachPage(window, [&window] {
        for (const QWidget *rows : shown::widgets(window)) {
            if (!qobject_cast<const QListWidget *>(rows) && rows->objectName() != "frameGrid"_L1)
                continue;
            for (const QWidget *control : controls(window))
                REQUIRE(placeIn(window, *control).top() < placeIn(window, *rows).bottom(),
                        shown::describe(*control));
        }
    });
}

// However large the font: the buttons stay on the screen, and the Tab key brings every field into view.
void TestFits::middleScrolls()
{
    QFETCH(const std::size_t, kind);
    setFontSize(28);
    const OpenWindow open(everyWindow()[kind]);
    QWidget &window = open.window();
    QVERIFY(window.width() <= m_screen.size.width() && window.height() <= m_screen.size.height());
    const QList<QWidget *> order = shown::tabOrder(window);
    for (qsizetype i = 0; i < order.size(); ++i) {
        QWidget *focused = QApplication::focusWidget();
        if (focused && scrolls(*focused) && focused->height() < window.height() / 2)
            QVERIFY2(window.rect().intersects(placeIn(window, *focused)),
                     qPrintable(shown::describe(*focused)));
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    const char *accepting = everyWindow()[kind].acceptingButton;
    auto *button = accepting ? window.findChild<QPushButton *>(QString::fromLatin1(accepting)) : nullptr;
    if (button)
        QVERIFY(!scrolls(*button) && window.rect().contains(placeIn(window, *button)));
}

int main(int argc, char *argv[])
{
    int failures = 0;
    for (const Screen &screen : testedScreens()) {
        failures += screens::run(screen.size, argc, argv, [&] {
            TestFits test(screen);
            return QTest::qExec(&test, argc, argv);
        });
    }
    return failures;
}

#include "tst_fits.moc"
