// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/daypartedit.h"

#include "model/names.h"
#include "ui_daypartedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"

DaypartEdit::DaypartEdit(const QStringList &names, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::DaypartEdit>())
    , m_names(names)
{
    m_ui->setupUi(this);
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
    setWindowTitle(tr("Edit Day Part"));
    m_ui->txtName->setText(shownName(names));
}

DaypartEdit::~DaypartEdit() = default;

void DaypartEdit::on_btnCancel_clicked()
{
    reject();
}

void DaypartEdit::on_btnSave_clicked()
{
    if (m_ui->txtName->text().isEmpty()) {
        messages::entryFault(this, tr("Product name is empty!"));
        reject();
        return;
    }
    m_names = sameNameInAllLanguages(m_ui->txtName->text());
    accept();
}
