// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/numberedrows.h"

#include <algorithm>

#include <QBrush>
#include <QCoreApplication>
#include <QFont>
#include <QFontInfo>
#include <QListWidget>
#include <QStyledItemDelegate>

#include "widgets/longtext.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace numberedrows {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(NumberedRows)
};

constexpr QSize rowSize(100, 32);
constexpr int rowMargin = 4;         // above and below the text together, in pixels
constexpr qreal leastPointSize = 11; // of the lists that follow the application's font
// Dark enough to be read on the light grey stripe, light enough to tell it from black.
constexpr QColor unfittingText(0x60, 0x60, 0x60);
constexpr QColor unfittingStripe(0xd3, 0xd3, 0xd3);

/// Paints rows whose names may be of any length.
class RowPainter final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return QStyledItemDelegate::displayText(beginningOf(value.toString()), locale);
    }

    // Rows of a font that needs more than their height grow with it.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QSize hint = QStyledItemDelegate::sizeHint(option, index);
        return hint.expandedTo({0, option.fontMetrics.height() + rowMargin});
    }

    std::function<QString(int row)> description; ///< none where rows have none
};

qreal pointSizeOf(const QFont &font)
{
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

/// A row whose name, which its tool tip tells, may be of any length. It is described when somebody asks.
class Row : public QListWidgetItem
{
public:
    Row(int number, const QString &name)
        : QListWidgetItem(numberedrows::text(number, name))
        , m_name(name)
    {}

    // What all rows have alike, and what is rarely asked for, is not stored: menus have many rows.
    [[nodiscard]] QVariant data(int role) const override
    {
        switch (role) {
        case Qt::SizeHintRole:
            return rowSize;
        case Qt::ToolTipRole:
            return toolTipText();
        case Qt::AccessibleDescriptionRole:
            return description();
        default:
            return QListWidgetItem::data(role);
        }
    }

protected:
    [[nodiscard]] virtual QString toolTipText() const { return asPlainText(beginningOf(m_name)); }

    [[nodiscard]] virtual QString description() const
    {
        const QListWidget *list = listWidget();
        const auto *painter = list ? dynamic_cast<const RowPainter *>(list->itemDelegate()) : nullptr;
        return painter && painter->description ? painter->description(list->row(this)) : QString();
    }

private:
    QString m_name;
};

class PickRow final : public Row
{
public:
    PickRow(int number, const Pick &pick)
        : Row(number, pick.name)
        , m_title(pick.title)
        , m_misfit(pick.fits ? nullptr : pick.misfit)
    {}

    [[nodiscard]] QVariant data(int role) const override
    {
        return role == titleRole ? m_title : Row::data(role);
    }

protected:
    [[nodiscard]] QString toolTipText() const override
    {
        const QString title = beginningOf(m_title);
        return asPlainText(m_misfit ? Text::tr("%1\n%2").arg(title, m_misfit()) : title);
    }

    [[nodiscard]] QString description() const override
    {
        QString settings = Row::description();
        if (!m_misfit)
            return settings;
        return settings.isEmpty() ? m_misfit() : Text::tr("%1. %2").arg(settings, m_misfit());
    }

private:
    QString m_title;
    std::function<QString()> m_misfit; ///< none where it fits
};

void prepare(QListWidget *list)
{
    list->setItemDelegate(new RowPainter(list));
    list->setIconSize({0, 0}); // an id under the decoration role takes no room
    list->setDragDropMode(QAbstractItemView::NoDragDrop);
    list->setDragEnabled(false);
    list->setUniformItemSizes(true);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}

// Both colours are set, so that a dark palette's own text never lands on a light stripe.
void colour(QListWidgetItem *item, const QColor &text, const QColor &background)
{
    item->setForeground(text);
    item->setBackground(background);
}

bool isOdd(int row)
{
    return row % 2 != 0;
}

void colourUnfitting(QListWidgetItem *item, int row)
{
    item->setFlags(item->flags() & ~Qt::ItemIsSelectable);
    colour(item, unfittingText, isOdd(row) ? unfittingStripe : QColor(Qt::white));
}

} // namespace

void prepareColouredList(QListWidget *list)
{
    prepare(list);
    // The rows are light, so the check boxes on them have to be, whatever the palette.
    QPalette palette = list->palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    list->setPalette(palette);
    list->setStyleSheet(u"QListWidget { font: 11pt \"Courier New\"; }"
                        "QListWidget::item:selected { color: black; background-color: darkcyan;"
                        " border: 1px solid green; }"_s);
}

void preparePlainList(QListWidget *list)
{
    prepare(list);
    QFont font(u"Courier New"_s);
    font.setPointSizeF(qMax(leastPointSize, pointSizeOf(list->font())));
    font.setKerning(false); // a fixed pitch has none, and shaping rows in vain is most of painting them
    font.setStyleStrategy(QFont::PreferNoShaping);
    list->setFont(font);
    list->setAlternatingRowColors(true);
}

void describe(QListWidget *list, const std::function<QString(int row)> &description)
{
    if (auto *painter = dynamic_cast<RowPainter *>(list->itemDelegate()))
        painter->description = description;
}

QString text(int number, const QString &name)
{
    return QString::number(number).rightJustified(3) + u' ' + name;
}

RowText::RowText(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' '; };
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const auto number = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto end = std::find_if_not(number, text.end(), isDigit);
    digits = QStringView(number, end);
    const auto separated = digits.isEmpty() || end == text.end() ? end : end + 1;
    name = QStringView(separated, text.end());
}

QListWidgetItem *append(QListWidget *list, const QString &name)
{
    return append(list, list->count() + 1, name);
}

QListWidgetItem *append(QListWidget *list, int number, const QString &name)
{
    auto *item = new Row(number, name);
    list->addItem(item);
    return item;
}

QListWidgetItem *appendToPick(QListWidget *list, const Pick &pick)
{
    const int row = list->count();
    auto *item = new PickRow(row + 1, pick);
    list->addItem(item);
    if (pick.fits)
        colourFitting(item, row);
    else
        colourUnfitting(item, row);
    return item;
}

void colourFitting(QListWidgetItem *item, int row)
{
    colour(item, Qt::black, isOdd(row) ? Qt::cyan : Qt::white);
}

int firstRowInSight(const QListWidget *list)
{
    int row = 0;
    while (row < list->count() && list->isRowHidden(row))
        ++row;
    return row < list->count() ? row : -1;
}

int lastRowInSight(const QListWidget *list)
{
    int row = list->count() - 1;
    while (row >= 0 && list->isRowHidden(row))
        --row;
    return row;
}

bool isSelectable(const QListWidget *list, int row)
{
    return list->item(row)->flags().testFlag(Qt::ItemIsSelectable);
}

int selectedRow(const QListWidget *list)
{
    return list->selectedItems().isEmpty() ? -1 : list->currentRow();
}

} // namespace numberedrows
