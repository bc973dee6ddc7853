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
#include "widgets/keypress.h"
#include "widgets/layouts.h"
#include "widgets/longtext.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTyped = 100;               // in characters
constexpr int gap = 12;                         // between the field and the box, in pixels
constexpr QLatin1StringView fieldPrefix("txt"); // of the object names of fields

bool selectsSeveral(const QListWidget &list)
{
    return list.selectionMode() == QAbstractItemView::MultiSelection;
}

bool goesThroughRows(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

FindRows::FindRows(QListWidget *list, const QString &name, QAbstractButton *pick)
    : QObject(list)
    , m_list(list)
    , m_viewport(list->viewport())
    , m_pick(pick)
    , m_field(makeField(name))
{
    placeField();
    const QWidgetList added = m_onlyFits ? QWidgetList{m_field, m_onlyFits} : QWidgetList{m_field};
    // Tab comes to the field where it came to the list, and then to the list.
    QWidget *before = list;
    for (QWidget *widget : added) {
        readBefore(widget, list);
        QWidget::setTabOrder(before, widget);
        before = widget;
    }
    QWidget::setTabOrder(before, list);
    for (QObject *watched : QObjectList{m_field, m_viewport, list->window()})
        watched->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &FindRows::follow);
}

void FindRows::placeField()
{
    auto *column = qobject_cast<QBoxLayout *>(layoutOf(m_list));
    Q_ASSERT(column);
    const int place = column->indexOf(m_list);
    if (!m_pick) {
        column->insertWidget(place, m_field);
        return;
    }
    auto *beside = new QHBoxLayout;
    column->insertLayout(place, beside);
    beside->addWidget(m_field, 1);
    addOnlyFits(beside);
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
    m_keepsTyping = !text.isEmpty();
}

bool FindRows::isHiding() const
{
    return !m_words.isEmpty() || (m_onlyFits && m_onlyFits->isChecked());
}

void FindRows::refresh(int rowToShow)
{
    m_leftRow = -1; // it may be another entry's by now
    if (rowToShow >= 0 && rowToShow < m_list->count() && !isFound(rowToShow))
        m_field->clear(); // follow() looks at the rows
    else
        update();
}

bool FindRows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto &press = *static_cast<QKeyEvent *>(event);
        m_keepsTyping = false;
        const bool taken = watched == m_field ? takeFieldKey(press) : takeEscape(press);
        return taken || QObject::eventFilter(watched, event);
    }
    // While the list is destroyed events still come, and it is no list any more.
    if (event->type() == QEvent::Paint && watched == m_viewport && m_firstRow < 0 && m_list->count() > 0) {
        QPainter painter(m_viewport);
        paintEmptyHint(painter, *m_viewport, m_viewport->rect(), nothingFoundText());
    } else if (event->type() == QEvent::FocusIn && watched == m_field) {
        tellFound(); // another row may be selected now
        if (m_keepsTyping && static_cast<QFocusEvent *>(event)->reason() == Qt::TabFocusReason) {
            keepTyped();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// A dialog that comes up gives the focus as Tab does, which selects the text for the next letter to replace.
void FindRows::keepTyped()
{
    QFocusEvent other(QEvent::FocusIn, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(m_field, &other);
}

bool FindRows::takeFieldKey(const QKeyEvent &press)
{
    if (keypress::isEnter(press)) {
        if (!press.isAutoRepeat())
            takeEnter();
        return true; // else the dialog's default button would have it
    }
    if (!goesThroughRows(press.key()) || !keypress::isUnmodified(press) || m_firstRow < 0)
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
    tellFound();
}

void FindRows::update()
{
    hideRows();
    tellFound();
}

void FindRows::hideRows()
{
    if (!isHiding() && !m_hasHidden && m_leftRow < 0) {
        m_firstRow = m_list->count() > 0 ? 0 : -1;
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
    returnToLeftRow();
    showCurrent();
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
    const bool several = selectsSeveral(*m_list);
    m_leftRow = several || m_list->item(current)->isSelected() ? current : -1;
    if (!several)
        m_list->clearSelection();
    m_list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
}

// Only when nothing is typed any more: on the way there rows come and go with each letter.
void FindRows::returnToLeftRow()
{
    if (m_leftRow < 0 || !m_words.isEmpty() || m_list->isRowHidden(m_leftRow))
        return;
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(m_leftRow, selectsSeveral(*m_list) ? QItemSelectionModel::NoUpdate
                                                                 : QItemSelectionModel::ClearAndSelect);
    m_leftRow = -1;
}

// Rows that come or go move the others, while the list stays scrolled by as much as before.
void FindRows::showCurrent() const
{
    if (const QListWidgetItem *item = m_list->currentItem())
        m_list->scrollToItem(item);
}

// Always the first one, even where another is chosen: what Enter takes depends on what is typed alone.
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
    announce::line(m_note, text);
}

// Few ever need it, and each label makes opening a menu longer.
QLabel *FindRows::makeNote() const
{
    auto *note = new QLabel(m_list->parentWidget());
    note->setObjectName("lbl"_L1 + m_field->objectName().sliced(fieldPrefix.size()) + "Note"_L1);
    note->setWordWrap(true);
    readBehind(note, m_list);
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
