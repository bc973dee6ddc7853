// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's start, as its main() does it, up to the first painted frame.

#include <QApplication>
#include <QLocale>
#include <QTranslator>

#include "app/mainwindow.h"
#include "app/startup.h"
#include "app/translation.h"
#include "benchmarks/firstframe.h"

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    prepareApplication();
    QTranslator translator;
    if (loadTranslator(translator, QLocale::system().uiLanguages()))
        QApplication::installTranslator(&translator);
    MainWindow window;
    const FirstFrame firstFrame;
    window.showMaximized();
    return QApplication::exec();
}
