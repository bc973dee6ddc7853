// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include "tests/gui/editgroup.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace groupedit;

namespace {

// Painting rounds.
bool areAlike(const QColor &painted, const QColor &named)
{
    return std::abs(painted.red() - named.red()) + std::abs(painted.green() - named.green()) +
               std::abs(painted.blue() - named.blue()) <
           6;
}

int darkestOf(const QImage &image)
{
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
    return darkest;
}

QWidget *shownToolTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->windowType() == Qt::ToolTip && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

/// How the group editor shows what a menu holds, whatever the palette.
class TestGroupEditLook : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void listsLookAsDefined();
    void selectedRowIsBlackOnDarkCyan();
    void toolTipsHaveTheirOwnColour();
    void zoneSplitsAreNoMarkup();
};

void TestGroupEditLook::listsLookAsDefined()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        for (const QListWidget *list : {&allProducts(dialog), &members(dialog)}) {
            QCOMPARE(list->dragDropMode(), QAbstractItemView::NoDragDrop);
            QVERIFY(list->styleSheet().contains(u"11pt \"Courier New\""_s));
            QVERIFY(list->styleSheet().contains(u"1px solid green"_s));
            QCOMPARE(list->item(0)->sizeHint(), QSize(100, 32));
            QCOMPARE(list->item(0)->background().color(), QColor(Qt::white));
            QCOMPARE(list->item(1)->background().color(), QColor(Qt::cyan));
            QCOMPARE(list->item(1)->foreground().color(), QColor(Qt::black));
        }
        cancel(dialog);
    });
}

void TestGroupEditLook::selectedRowIsBlackOnDarkCyan()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        for (QListWidget *list : {&allProducts(dialog), &members(dialog)}) {
            ui::clickRow(*list, 1); // cyan else
            const QRect row = list->visualItemRect(list->item(1));
            const QImage image = list->viewport()->grab(row).toImage();
            QVERIFY(areAlike(image.pixelColor(image.width() - 10, image.height() / 2), u"darkcyan"_s));
            QVERIFY(areAlike(image.pixelColor(image.width() / 2, 0), u"green"_s));
            QVERIFY(darkestOf(image) < 40);
        }
        cancel(dialog);
    });
}

void TestGroupEditLook::toolTipsHaveTheirOwnColour()
{
    QPalette dark;
    dark.setColor(QPalette::ToolTipBase, Qt::black);
    dark.setColor(QPalette::ToolTipText, Qt::white);
    QToolTip::setPalette(dark);
    OpenEditor editor(menuWith(meats({1})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        for (const char *name : {"btnAddProduct", "btnRemoveProduct"}) {
            auto &button = ui::get<QPushButton>(dialog, name);
            QToolTip::showText(button.mapToGlobal(QPoint()), button.toolTip(), &button);
            QWidget *tip = shownToolTip();
            QVERIFY(tip);
            QCOMPARE(tip->grab().toImage().pixelColor(2, tip->height() / 2), QColor(Qt::black));
        }
        cancel(dialog);
    });
}

void TestGroupEditLook::zoneSplitsAreNoMarkup()
{
    const QString markup = u"<b>1/2</b>"_s;
    OpenEditor editor(menuWith(meats({1}, {{u"zoneSplits"_s, markup}})));
    edit(editor, [&markup](GroupEdit &dialog, ModalAnswers &) {
        const auto &label = ui::get<QLabel>(dialog, "txtZoneSplits");
        QCOMPARE(label.text(), markup);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        cancel(dialog);
    });
}

QTEST_MAIN(TestGroupEditLook)
#include "tst_groupedit_look.moc"
