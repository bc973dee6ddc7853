// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/menuinspection.h"

#include <QListWidget>
#include <QStyledItemDelegate>

#include "ui_menuinspection.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/listkeys.h"
#include "widgets/numberedrows.h"

namespace {

constexpr int rowMargin = 8; // above and below a sentence together, in pixels

/// Paints sentences in as many lines as the list's width asks for.
class SentencePainter final : public QStyledItemDelegate
{
public:
    explicit SentencePainter(QListWidget *list)
        : QStyledItemDelegate(list)
        , m_list(list)
    {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem wrapped = option;
        wrapped.rect = QRect(0, 0, m_list->viewport()->width(), 1); // an empty one would not wrap
        return QStyledItemDelegate::sizeHint(wrapped, index) + QSize(0, rowMargin);
    }

private:
    QListWidget *m_list;
};

} // namespace

MenuInspection::MenuInspection(const QStringList &sentences, qsizetype unlisted, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::MenuInspection>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Things to Look At"));
    m_ui->listWidgetFindings->setItemDelegate(new SentencePainter(m_ui->listWidgetFindings));
    new ListKeys(m_ui->listWidgetFindings, m_ui->btnGoTo);
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
    listSentences(sentences, unlisted);
    on_listWidgetFindings_itemSelectionChanged();
}

MenuInspection::~MenuInspection() = default;

void MenuInspection::listSentences(const QStringList &sentences, qsizetype unlisted)
{
    QListWidget *list = m_ui->listWidgetFindings;
    list->addItems(sentences);
    if (unlisted <= 0)
        return;
    auto *note = new QListWidgetItem(tr("and %1 more").arg(unlisted), list);
    note->setFlags(Qt::ItemIsEnabled);
}

int MenuInspection::chosenRow() const
{
    return numberedrows::selectedRow(m_ui->listWidgetFindings);
}

void MenuInspection::on_listWidgetFindings_itemSelectionChanged()
{
    m_ui->btnGoTo->setEnabled(chosenRow() >= 0);
}

void MenuInspection::on_listWidgetFindings_itemDoubleClicked()
{
    on_btnGoTo_clicked();
}

void MenuInspection::on_btnClose_clicked()
{
    reject();
}

void MenuInspection::on_btnGoTo_clicked()
{
    if (chosenRow() >= 0)
        accept();
}
