// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/aboutapp.h"

#include "app/version.h"
#include "ui_aboutapp.h"
#include "widgets/fixedsize.h"

AboutApp::AboutApp(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutApp>())
{
    m_ui->setupUi(this);
    m_ui->lblVersion->setText(tr("Version %1").arg(QLatin1StringView(VARNO_VERSION)));
    fixSizeOnScreen(this);
}

AboutApp::~AboutApp() = default;

void AboutApp::on_btnAccept_clicked()
{
    done(0);
}
