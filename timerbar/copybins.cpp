// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/copybins.h"

#include "timerbar/bins.h"
#include "ui_copybins.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

CopyBins::CopyBins(int daypart, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CopyBins>())
{
    m_ui->setupUi(this);
    const QStringList names = timerbar::daypartNames();
    for (int other = 0; other < names.size(); ++other) {
        if (other != daypart)
            m_ui->comboDaypart->addItem(names[other], other);
    }
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

CopyBins::~CopyBins() = default;

int CopyBins::source() const
{
    return m_ui->comboDaypart->currentData().toInt();
}

void CopyBins::on_btnCancel_clicked()
{
    reject();
}

void CopyBins::on_btnCopy_clicked()
{
    accept();
}
