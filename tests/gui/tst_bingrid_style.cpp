// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>

#include "tests/gui/openbins.h"
#include "tests/support/warnings.h"
#include "widgets/binbutton.h"

using namespace Qt::StringLiterals;

/// The colours of the bin buttons, as painted.
class TestBinGridStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(u"Fusion"_s)); }
    void init() { failOnWarnings(); }
    void idle();
    void pressed();
    void hovered();
    void checked();
    void focusIsSeenOnACheckedBin();
    void sheetComesWithTheFirstLook();
    void sheetIsOnTheGridAlone();
};

namespace {

constexpr QColor lightGrey(0xd3, 0xd3, 0xd3);
constexpr QColor darkGrey(0xa9, 0xa9, 0xa9);
constexpr QColor silver(0xc0, 0xc0, 0xc0);

// Left of the text and inside any border.
QColor background(QPushButton &button)
{
    return button.grab().toImage().pixelColor(6, button.height() / 2);
}

QColor edge(QPushButton &button)
{
    return button.grab().toImage().pixelColor(2, button.height() / 2);
}

} // namespace

void TestBinGridStyle::idle()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    for (const int slot : {0, 1}) {
        QCOMPARE(background(editor.button(0, slot)), lightGrey);
        QCOMPARE(edge(editor.button(0, slot)), lightGrey);
    }
}

void TestBinGridStyle::pressed()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    editor.button(0, 1).setDown(true);
    QCOMPARE(background(editor.button(0, 1)), darkGrey);
    QCOMPARE(edge(editor.button(0, 1)), darkGrey);
}

void TestBinGridStyle::hovered()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    QPushButton &button = editor.button(0, 1);
    const QPoint middle = button.mapTo(&*editor, button.rect().center());
    QTest::mouseMove(editor->windowHandle(), middle + QPoint(0, 200));
    QTest::mouseMove(editor->windowHandle(), middle);
    QVERIFY(button.underMouse());
    QTRY_COMPARE(background(button), silver);
    button.setDown(true);
    QCOMPARE(background(button), darkGrey);
    button.setDown(false);
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(background(button), darkGrey);
}

void TestBinGridStyle::checked()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    QPushButton &button = editor.button(0, 0);
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(background(button), darkGrey);
    const QImage image = button.grab().toImage();
    // Two pixels of a black frame, inside the margin, that looks raised.
    const int middle = button.height() / 2;
    for (const int x : {2, 3})
        QCOMPARE(image.pixelColor(x, middle), QColor(Qt::black));
    QCOMPARE(image.pixelColor(4, middle), darkGrey);
    QVERIFY(qGray(image.pixel(button.width() - 3, middle)) < 0x40);
}

// Which of the checked bins Space acts on.
void TestBinGridStyle::focusIsSeenOnACheckedBin()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    QPushButton &button = editor.button(0, 0);
    button.setCheckable(true);
    button.setChecked(true);
    BinButton reference(button.parentWidget());
    reference.setText(button.text());
    reference.setDetails(static_cast<BinButton &>(button).details());
    reference.setAutoDefault(false);
    reference.setGeometry(button.geometry());
    reference.setCheckable(true);
    reference.setChecked(true);
    editor.selector().setFocus();
    QCOMPARE(button.grab().toImage(), reference.grab().toImage());
    QPixmap ringed = reference.grab();
    QPainter painter(&ringed);
    for (const int margin : {5, 6})
        painter.drawRect(button.rect().adjusted(margin, margin, -margin - 1, -margin - 1));
    painter.end();
    button.setFocus();
    QCOMPARE(button.grab().toImage(), ringed.toImage());
}

// The grid is the costliest part of an editor to style.
void TestBinGridStyle::sheetComesWithTheFirstLook()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    MenuFile other(editor->filePath());
    const auto &grid = ui::get<QWidget>(other, "frameGrid");
    ui::show(other);
    QVERIFY(grid.styleSheet().isEmpty());
    ui::get<QTabWidget>(other, "tabWidget").setCurrentIndex(1);
    QVERIFY(grid.styleSheet().isEmpty());
    ui::get<QTabWidget>(other, "tabWidget").setCurrentIndex(2);
    QCOMPARE(grid.styleSheet(), editor.widget("frameGrid").styleSheet());
}

// A sheet on the editor would double the cost of opening it.
void TestBinGridStyle::sheetIsOnTheGridAlone()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    QVERIFY(editor->styleSheet().isEmpty());
    QVERIFY(!editor.widget("frameGrid").styleSheet().isEmpty());
    const QWidget &grid = editor.widget("frameGrid");
    for (const QWidget *widget : editor->findChildren<QWidget *>()) {
        if (widget != &grid && (widget->isAncestorOf(&grid) || grid.isAncestorOf(widget)))
            QVERIFY2(widget->styleSheet().isEmpty(), qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(TestBinGridStyle)
#include "tst_bingrid_style.moc"
