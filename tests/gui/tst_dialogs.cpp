// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>

#include "tests/support/everywindow.h"
#include "tests/support/require.h"
#include "tests/support/shownwidgets.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// The rules that every window keeps.
class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cleanup() { QApplication::setFont(m_font); }
    void tabOrderFollowsReading_data();
    void tabOrderFollowsReading();
    void inputsAreNamed_data() { addWindowRows(); }
    void inputsAreNamed();
    void namesAreDistinct_data() { addWindowRows(); }
    void namesAreDistinct();
    void labelsBelongToWhatIsBesideThem_data() { addWindowRows(); }
    void labelsBelongToWhatIsBesideThem();
    void enterPressesTheAcceptingButton_data() { addWindowRows(); }
    void enterPressesTheAcceptingButton();
    void nothingIsClipped_data() { addWindowRows(); }
    void nothingIsClipped();
    void nothingIsClippedInALargeFont_data() { addWindowRows(); }
    void nothingIsClippedInALargeFont();
    void escapeChangesNothing_data() { addDialogRows(); }
    void escapeChangesNothing();
    void enterOnCancelChangesNothing_data();
    void enterOnCancelChangesNothing();

private:
    const QFont m_font = QApplication::font();
};

// Every window but the main window: with no menu open, the Tab key has nowhere to go in it.
void TestDialogs::tabOrderFollowsReading_data()
{
    QTest::addColumn<std::size_t>("kind");
    for (std::size_t i = 0; i < everyWindow().size(); ++i) {
        if (qstrcmp(everyWindow()[i].name, "main window") != 0)
            QTest::newRow(everyWindow()[i].name) << i;
    }
}

namespace {

QRect placeIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

bool sharesLine(const QRect &first, const QRect &second)
{
    return first.top() <= second.bottom() && second.top() <= first.bottom();
}

bool readsBefore(const QRect &first, const QRect &second)
{
    return sharesLine(first, second) ? first.left() < second.left() : first.top() < second.top();
}

void checkTabOrder(QWidget &window)
{
    const QList<QWidget *> order = shown::tabOrder(window);
    REQUIRE(!order.isEmpty());
    for (qsizetype i = 1; i < order.size(); ++i)
        REQUIRE(readsBefore(placeIn(window, *order[i - 1]), placeIn(window, *order[i])),
                shown::describe(*order[i - 1]) + u" comes before "_s + shown::describe(*order[i]));
}

} // namespace

void TestDialogs::tabOrderFollowsReading()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] { checkTabOrder(open.window()); });
}

namespace {

// Its tabs have names, the bar itself needs none.
bool needsName(const QWidget *widget)
{
    return !qobject_cast<const QTabBar *>(widget);
}

void checkNames(QWidget &window)
{
    for (QWidget *widget : shown::tabOrder(window)) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        REQUIRE(accessible);
        if (needsName(widget))
            REQUIRE(!accessible->text(QAccessible::Name).trimmed().isEmpty(), shown::describe(*widget));
    }
}

} // namespace

void TestDialogs::inputsAreNamed()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] { checkNames(open.window()); });
}

// So that who hears them knows which is which.
void TestDialogs::namesAreDistinct()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] {
        QMap<QString, QString> owners;
        for (QWidget *widget : shown::tabOrder(open.window())) {
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            if (!needsName(widget))
                continue;
            REQUIRE(!owners.contains(name),
                    name + u": "_s + owners.value(name) + u", "_s + shown::describe(*widget));
            owners.insert(name, shown::describe(*widget));
        }
    });
}

namespace {

bool sharesColumn(const QRect &first, const QRect &second)
{
    return first.left() <= second.right() && second.left() <= first.right();
}

// Also one that only shows what is entered elsewhere.
bool isInput(const QWidget *widget)
{
    const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
    return (takesKeys && !widget->isWindow()) || qobject_cast<const QListWidget *>(widget);
}

// The input that is seen to belong to a label: the next one on its line, or else the first one below it. What
// finds rows of a list stands above it and is part of it.
const QWidget *inputBeside(QWidget &window, const QWidget &label)
{
    const QRect place = placeIn(window, label);
    const QWidget *beside = nullptr;
    const QWidget *below = nullptr;
    for (const QWidget *input : shown::widgets(window)) {
        if (!isInput(input) || input->objectName().startsWith("txtFind"_L1) ||
            input->objectName() == "checkBoxOnlyFits"_L1)
            continue;
        const QRect other = placeIn(window, *input);
        if (sharesLine(place, other) && other.left() >= place.right() &&
            (!beside || other.left() < placeIn(window, *beside).left()))
            beside = input;
        if (sharesColumn(place, other) && other.top() >= place.bottom() &&
            (!below || other.top() < placeIn(window, *below).top()))
            below = input;
    }
    return beside ? beside : below;
}

} // namespace

void TestDialogs::labelsBelongToWhatIsBesideThem()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] {
        for (const QWidget *widget : shown::widgets(open.window())) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            if (label && label->buddy())
                REQUIRE(label->buddy() == inputBeside(open.window(), *label), shown::describe(*label));
        }
    });
}

void TestDialogs::enterPressesTheAcceptingButton()
{
    QFETCH(const std::size_t, kind);
    const QString accepting = QString::fromLatin1(everyWindow()[kind].acceptingButton);
    const OpenWindow open(everyWindow()[kind]);
    for (const QPushButton *button : open.window().findChildren<QPushButton *>()) {
        const bool isAccepting = !accepting.isEmpty() && button->objectName() == accepting;
        QVERIFY2(button->isDefault() == isAccepting, qPrintable(shown::describe(*button)));
        QVERIFY2(button->autoDefault() == isAccepting, qPrintable(shown::describe(*button)));
    }
    QVERIFY(accepting.isEmpty() || open.window().findChild<QPushButton *>(accepting));
}

namespace {

// What a widget needs to show all of its text, or an empty size where it has none to show.
QSize neededSize(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->text().isEmpty())
            return {};
        return label->wordWrap()
                   ? QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()))
                   : label->sizeHint();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text().trimmed().isEmpty() ? button->iconSize() : button->sizeHint();
    if (qobject_cast<const QTabBar *>(widget) || qobject_cast<const QComboBox *>(widget) ||
        qobject_cast<const QAbstractSpinBox *>(widget))
        return widget->sizeHint();
    if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QGroupBox *>(widget))
        return widget->minimumSizeHint();
    return {};
}

// Parts of a composite are that widget's own business.
bool isPart(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QTabBar *>(parent) || qobject_cast<const QAbstractScrollArea *>(parent) ||
           widget->isWindow();
}

// What scrolls may be larger than the place that it is seen in.
bool isScrolled(const QWidget *widget)
{
    return qobject_cast<const QScrollArea *>(widget->parentWidget()->parentWidget());
}

void checkSizes(QWidget &window)
{
    for (const QWidget *widget : shown::widgets(window)) {
        if (isPart(widget))
            continue;
        const QSize needed = neededSize(widget);
        REQUIRE(widget->width() >= needed.width() && widget->height() >= needed.height(),
                u"%1 is %2 x %3, needs %4 x %5"_s.arg(shown::describe(*widget))
                    .arg(widget->width())
                    .arg(widget->height())
                    .arg(needed.width())
                    .arg(needed.height()));
        REQUIRE(isScrolled(widget) || widget->parentWidget()->rect().contains(widget->geometry()),
                shown::describe(*widget));
    }
}

} // namespace

void TestDialogs::nothingIsClipped()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] { checkSizes(open.window()); });
}

void TestDialogs::nothingIsClippedInALargeFont()
{
    QFETCH(const std::size_t, kind);
    QFont large = m_font;
    large.setPointSizeF(2 * m_font.pointSizeF());
    QApplication::setFont(large);
    const OpenWindow open(everyWindow()[kind]);
    shown::forEachPage(open.window(), [&open] { checkSizes(open.window()); });
}

namespace {

void change(QWidget *input)
{
    if (auto *edit = qobject_cast<QLineEdit *>(input))
        ui::type(*edit, u"Changed"_s);
    else if (qobject_cast<QComboBox *>(input) || qobject_cast<QAbstractSpinBox *>(input))
        QTest::keyClick(input, Qt::Key_Up);
    else if (qobject_cast<QCheckBox *>(input) || qobject_cast<QRadioButton *>(input))
        ui::click(*input);
    else if (auto *list = qobject_cast<QListWidget *>(input))
        ui::clickRowBox(*list, list->count() - 1);
}

} // namespace

void TestDialogs::escapeChangesNothing()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    const QByteArray before = open.menuBytes();
    QVERIFY(!before.isEmpty());
    auto *dialog = qobject_cast<QDialog *>(&open.window());
    QVERIFY(dialog);
    dialog->setResult(QDialog::Accepted);
    for (QWidget *input : shown::tabOrder(*dialog))
        change(input);
    // A field that finds rows is emptied first.
    const auto *find = dialog->findChild<QLineEdit *>(u"txtFind"_s);
    if (find && !find->text().isEmpty()) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(find->text().isEmpty() && dialog->isVisible());
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(dialog->isHidden());
    QCOMPARE(dialog->result(), static_cast<int>(QDialog::Rejected));
    QCOMPARE(open.menuBytes(), before);
}

// Every dialog that has something to accept, which the about box has not, and the colours accept by
// themselves.
void TestDialogs::enterOnCancelChangesNothing_data()
{
    QTest::addColumn<std::size_t>("kind");
    for (std::size_t i = 0; i < everyWindow().size(); ++i) {
        const WindowKind &kind = everyWindow()[i];
        if (kind.acceptingButton && qstrcmp(kind.name, "about") != 0)
            QTest::newRow(kind.name) << i;
    }
}

void TestDialogs::enterOnCancelChangesNothing()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    const QByteArray before = open.menuBytes();
    auto *dialog = qobject_cast<QDialog *>(&open.window());
    QVERIFY(dialog && !before.isEmpty());
    for (QWidget *input : shown::tabOrder(*dialog))
        change(input);
    const bool onlyShows = qstrcmp(everyWindow()[kind].name, "things to look at") == 0;
    auto &cancel = ui::get<QPushButton>(*dialog, onlyShows ? "btnClose" : "btnCancel");
    QCOMPARE(cancel.text(), onlyShows ? u"Close"_s : u"Cancel"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        dialog->setResult(QDialog::Accepted);
        dialog->show();
        cancel.setFocus();
        QTest::keyClick(&cancel, key);
        QVERIFY(dialog->isHidden());
        QCOMPARE(dialog->result(), static_cast<int>(QDialog::Rejected));
        QCOMPARE(open.menuBytes(), before);
    }
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
