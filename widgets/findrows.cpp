// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/findrows.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

#include "model/find.h"
#include "widgets/announce.h"
#include "widgets/emptyhint.h"
#include "widgets/layouts.h"
#include "widgets/longtext.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTyped = 100; // in characters
constexpr int gap = 12;           // between the field and the box, in pixels

bool selectsSeveral(const QListWidget &list)
{
    return list.selectionMode() == QAbstractItemView::MultiSelection;
}

bool isPlain(const QKeyEvent &press)
{
    return !(press.modifiers() & ~Qt::KeypadModifier);
}

} // namespace

FindRows::FindRows(QListWidget *list, const QString &name, QAbstractButton *pick)
    : QObject(list)
    , m_list(list)
    , m_viewport(list->viewport())
    , m_pick(pick)
    , m_field(makeField(name))
{
    auto *column = qobject_cast<QBoxLayout *>(layoutOf(list));
    Q_ASSERT(column);
    const int place = column->indexOf(list);
    if (m_pick) {
        auto *beside = new QHBoxLayout;
        column->insertLayout(place, beside);
        beside->addWidget(m_field, 1);
        addOnlyFits(beside);
    } else {
        column->insertWidget(place, m_field);
    }
    // Screen readers go through a window in the order in which its widgets lie on each other.
    m_field->stackUnder(list);
    if (m_onlyFits)
        m_onlyFits->stackUnder(list);
    // Tab comes to the field where it came to the list, and then to the list.
    QWidget::setTabOrder(list, m_field);
    if (m_onlyFits)
        QWidget::setTabOrder(m_field, m_onlyFits);
    QWidget::setTabOrder(m_onlyFits ? static_cast<QWidget *>(m_onlyFits) : m_field, list);
    for (QObject *watched : {static_cast<QObject *>(m_field), static_cast<QObject *>(list->viewport()),
                             static_cast<QObject *>(list->window())})
        watched->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &FindRows::follow);
}

QLineEdit *FindRows::makeField(const QString &name)
{
    auto *field = new QLineEdit(m_list->parentWidget());
    field->setObjectName(name);
    field->setMaxLength(longestTyped);
    field->setAcceptDrops(false); // what is dropped on a menu are files to open
    field->setPlaceholderText(tr("Find"));
    field->setAccessibleName(tr("Find"));
    field->setToolTip(tr("Parts of a name, or a number; rows that do not contain all of them are hidden"));
    return field;
}

void FindRows::addOnlyFits(QBoxLayout *beside)
{
    beside->setSpacing(gap);
    m_onlyFits = new QCheckBox(tr("Only what fits"), m_list->parentWidget());
    m_onlyFits->setObjectName(u"checkBoxOnlyFits"_s);
    m_onlyFits->setToolTip(tr("Hides the greyed rows"));
    beside->addWidget(m_onlyFits);
    connect(m_onlyFits, &QCheckBox::toggled, this, &FindRows::update);
}

void FindRows::setFocus() const
{
    m_field->setFocus();
}

void FindRows::find(const QString &text)
{
    m_field->setText(text);
    m_goesOn = !text.isEmpty();
}

bool FindRows::isHiding() const
{
    return !m_words.isEmpty() || (m_onlyFits && m_onlyFits->isChecked());
}

void FindRows::refresh(int rowToShow)
{
    if (rowToShow >= 0 && rowToShow < m_list->count() && !isFound(rowToShow))
        m_field->clear(); // follow() looks at the rows
    else
        update();
}

bool FindRows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto &press = *static_cast<QKeyEvent *>(event);
        m_goesOn = false;
        const bool taken = watched == m_field ? takeFieldKey(press) : takeEscape(press);
        return taken || QObject::eventFilter(watched, event);
    }
    // While the list is destroyed events still come, and it is no list any more.
    if (event->type() == QEvent::Paint && watched == m_viewport && m_firstRow < 0 && m_list->count() > 0) {
        QPainter painter(m_viewport);
        paintEmptyHint(painter, *m_viewport, m_viewport->rect(), nothingFoundText());
    } else if (event->type() == QEvent::FocusIn && watched == m_field) {
        tellFound(); // another row may be selected now
        if (m_goesOn && static_cast<QFocusEvent *>(event)->reason() == Qt::TabFocusReason)
            return takeFocus();
    }
    return QObject::eventFilter(watched, event);
}

// A dialog that comes up gives the focus as Tab does, which selects the text for the next letter to replace.
bool FindRows::takeFocus()
{
    QFocusEvent other(QEvent::FocusIn, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(m_field, &other);
    return true;
}

bool FindRows::takeFieldKey(const QKeyEvent &press)
{
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!press.isAutoRepeat())
            takeEnter();
        return true; // else the dialog's default button would have it
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        break;
    default:
        return false;
    }
    if (!isPlain(press) || m_firstRow < 0)
        return false;
    m_list->setFocus();
    QKeyEvent passedOn(press.type(), press.key(), press.modifiers(), press.text(), press.isAutoRepeat());
    QCoreApplication::sendEvent(m_list, &passedOn);
    return true;
}

// A key that is held empties the field and does not go on to close.
bool FindRows::takeEscape(const QKeyEvent &press)
{
    if (!press.matches(QKeySequence::Cancel) || !m_list->isVisible())
        return false;
    if (m_field->text().isEmpty())
        return press.isAutoRepeat();
    m_field->clear();
    return true;
}

void FindRows::takeEnter()
{
    if (!m_pick) {
        goToList();
        return;
    }
    m_pick->click();
    if (!m_field->isVisible())
        return;
    // Where the window stays, the next one can be typed at once.
    m_field->setFocus();
    m_field->selectAll();
}

void FindRows::goToList()
{
    if (m_firstRow < 0)
        return;
    m_list->setFocus();
    if (!selectsSeveral(*m_list) && numberedrows::selectedRow(m_list) < 0)
        m_list->setCurrentRow(m_firstRow, QItemSelectionModel::ClearAndSelect);
}

void FindRows::follow(const QString &typed)
{
    m_words = findWords(typed);
    hideRows();
    if (m_pick && !m_words.isEmpty())
        selectFirstThatFits();
    else if (m_list->currentItem())
        m_list->scrollToItem(m_list->currentItem());
    tellFound();
}

void FindRows::update()
{
    hideRows();
    tellFound();
}

void FindRows::hideRows()
{
    if (!isHiding() && !m_hasHidden) {
        m_firstRow = 0;
        return;
    }
    int hiddenChecks = 0;
    m_found = 0;
    m_firstRow = -1;
    for (int row = 0; row < m_list->count(); ++row) {
        const bool hides = !isFound(row);
        if (hides != m_list->isRowHidden(row))
            m_list->setRowHidden(row, hides);
        if (!hides && m_found++ == 0)
            m_firstRow = row;
        if (hides && m_list->item(row)->checkState() == Qt::Checked)
            ++hiddenChecks;
    }
    m_hasHidden = m_found < m_list->count();
    leaveHiddenRow();
    tellHiddenChecks(hiddenChecks);
    emit changed();
}

bool FindRows::isFound(int row) const
{
    if (m_onlyFits && m_onlyFits->isChecked() && !numberedrows::isSelectable(m_list, row))
        return false;
    if (m_words.isEmpty())
        return true;
    const QListWidgetItem *item = m_list->item(row);
    const QString shown = item->text();
    if (matchesFind(m_words, numberedrows::RowText(shown).name, row + 1))
        return true;
    const QString title = item->data(numberedrows::titleRole).toString();
    return !title.isEmpty() && matchesFind(m_words, title, row + 1);
}

void FindRows::leaveHiddenRow()
{
    const int current = m_list->currentRow();
    if (current < 0 || !m_list->isRowHidden(current))
        return;
    if (!selectsSeveral(*m_list))
        m_list->clearSelection();
    m_list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
}

// Always the first one, so that what Enter takes depends on nothing but what is typed.
void FindRows::selectFirstThatFits()
{
    for (int row = qMax(m_firstRow, 0); row < m_list->count(); ++row) {
        if (!m_list->isRowHidden(row) && numberedrows::isSelectable(m_list, row)) {
            m_list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
            return;
        }
    }
    m_list->clearSelection();
}

void FindRows::tellFound() const
{
    if (m_firstRow < 0)
        m_list->viewport()->update(); // what is painted there quotes the field
    announce::description(m_field, isHiding() ? foundText() : QString());
}

QString FindRows::foundText() const
{
    if (m_firstRow < 0)
        return nothingFoundText();
    const QString rows = tr("%1 of %2 rows").arg(m_found).arg(m_list->count());
    const int picked = m_pick ? numberedrows::selectedRow(m_list) : -1;
    return picked < 0 ? rows : tr("%1. %2").arg(beginningOf(m_list->item(picked)->text().trimmed()), rows);
}

void FindRows::tellHiddenChecks(int checked)
{
    if (!m_note && checked == 0)
        return;
    if (!m_note)
        m_note = makeNote();
    QString text;
    if (checked > 0)
        text = checked == 1 ? tr("One checked row is hidden and stays.")
                            : tr("%1 checked rows are hidden and stay.").arg(checked);
    m_note->setHidden(text.isEmpty());
    if (text != m_note->text())
        announce::news(m_note, text);
}

// Few ever need it, and each label makes opening a menu longer.
QLabel *FindRows::makeNote() const
{
    auto *note = new QLabel(m_list->parentWidget());
    note->setObjectName(m_field->objectName() + "Note"_L1);
    note->setWordWrap(true);
    auto *column = qobject_cast<QBoxLayout *>(layoutOf(m_list));
    column->insertWidget(column->indexOf(m_list) + 1, note);
    return note;
}

QString FindRows::nothingFoundText() const
{
    const QString typed = m_field->text().trimmed();
    if (m_words.isEmpty())
        return tr("Nothing fits");
    const bool fittingOnly = m_onlyFits && m_onlyFits->isChecked();
    return (fittingOnly ? tr("No row that fits contains “%1”") : tr("No row contains “%1”")).arg(typed);
}
