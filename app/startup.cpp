// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup.h"

#include <QApplication>
#include <QTranslator>

#include "app/mainwindow.h"
#include "app/translation.h"

int runProgram(const QStringList &uiLanguages)
{
    QTranslator translator;
    if (loadTranslator(translator, uiLanguages))
        QApplication::installTranslator(&translator);
    MainWindow window;
    window.showMaximized();
    return QApplication::exec();
}
