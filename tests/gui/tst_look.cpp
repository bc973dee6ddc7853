// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionTitleBar>
#include <QStyleOptionViewItem>
#include <QTest>

#include "tests/gui/changemenu.h"
#include "tests/support/everywindow.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace changemenu;

/// What only the painted picture tells.
class TestLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(u"Fusion"_s)); }
    void init() { failOnWarnings(); }
    void cleanup() { QApplication::setPalette(m_palette); }
    void timerColorIsPainted();
    void arrowButtonsAreLightGrey();
    void defaultMemberIsSeen_data();
    void defaultMemberIsSeen();
    void rowsStartAtTheEdge_data();
    void rowsStartAtTheEdge();
    void subWindowHasNoCloseButton();

private:
    const QPalette m_palette = QApplication::palette();
};

namespace {

const WindowKind &kind(const char *name)
{
    for (const WindowKind &candidate : everyWindow()) {
        if (qstrcmp(candidate.name, name) == 0)
            return candidate;
    }
    qFatal("There is no window kind %s", name);
}

QColor paintedAt(QWidget &window, const QWidget &widget, const QPoint &point)
{
    return window.grab().toImage().pixelColor(widget.mapTo(&window, point));
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x30, 0x30, 0x30));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

} // namespace

void TestLook::timerColorIsPainted()
{
    const OpenWindow open(kind("product, all fields"));
    const auto &button = ui::get<QPushButton>(open.window(), "btnTimerColor");
    QCOMPARE(paintedAt(open.window(), button, {4, 4}), QColor(0xa0, 0x50, 0x00));
}

void TestLook::arrowButtonsAreLightGrey()
{
    const OpenWindow open(kind("group, all fields"));
    for (const char *name : {"btnAddProduct", "btnRemoveProduct"})
        QCOMPARE(paintedAt(open.window(), ui::get<QPushButton>(open.window(), name), {2, 2}),
                 QColor(0xd3, 0xd3, 0xd3));
}

void TestLook::defaultMemberIsSeen_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light palette") << false;
    QTest::newRow("dark palette") << true;
}

namespace {

int contrast(const QImage &image)
{
    int lightest = 0;
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            lightest = std::max(lightest, qGray(image.pixel(x, y)));
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
        }
    }
    return lightest - darkest;
}

// The inside of a row's check box.
QImage checkBoxOf(QListWidget &list, int row)
{
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = list.visualItemRect(list.item(row));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = list.item(row)->text();
    const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
    return list.viewport()->grab(box.adjusted(3, 3, -3, -3)).toImage();
}

} // namespace

void TestLook::defaultMemberIsSeen()
{
    QFETCH(const bool, dark);
    if (dark)
        QApplication::setPalette(darkPalette());
    const OpenWindow open(kind("group, all fields"));
    auto &list = ui::get<QListWidget>(open.window(), "listWidgetGroupProducts");
    QVERIFY(contrast(checkBoxOf(list, 0)) > 100);
    QVERIFY(contrast(checkBoxOf(list, 1)) < 50);
}

void TestLook::rowsStartAtTheEdge_data()
{
    QTest::addColumn<QByteArray>("window");
    for (const char *window : {"group, all fields", "bin, all fields"})
        QTest::newRow(window) << QByteArray(window);
}

void TestLook::rowsStartAtTheEdge()
{
    QFETCH(const QByteArray, window);
    const OpenWindow open(kind(window.constData()));
    auto &list = ui::get<QListWidget>(open.window(), "listWidgetProducts");
    // Two blanks of the number "  1" and the style's margin; a picture's room would come before them.
    const QRect before(0, 0, 3 * list.fontMetrics().averageCharWidth() + 12,
                       list.visualItemRect(list.item(0)).height());
    QVERIFY(contrast(list.viewport()->grab(before).toImage()) > 60); // a greyed row's is low
}

void TestLook::subWindowHasNoCloseButton()
{
    Program program;
    QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    QStyleOptionTitleBar option;
    option.initFrom(subWindow);
    option.subControls = QStyle::SC_All;
    option.titleBarFlags = subWindow->windowFlags();
    option.rect = QRect(0, 0, subWindow->width(), 24);
    const auto place = [&](QStyle::SubControl control) {
        return subWindow->style()->subControlRect(QStyle::CC_TitleBar, &option, control, subWindow);
    };
    QVERIFY(!place(QStyle::SC_TitleBarMinButton).isEmpty());
    QVERIFY(place(QStyle::SC_TitleBarCloseButton).isEmpty());
    QVERIFY(place(QStyle::SC_TitleBarMaxButton).isEmpty());
}

QTEST_MAIN(TestLook)
#include "tst_look.moc"
