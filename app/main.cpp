// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLocale>
#include <QTranslator>

#include "app/mainwindow.h"
#include "app/translation.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTranslator translator;
    if (loadTranslator(translator, QLocale::system().uiLanguages()))
        QApplication::installTranslator(&translator);
    MainWindow window;
    window.showMaximized();
    return QApplication::exec();
}
