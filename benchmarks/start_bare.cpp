// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What any program of the same kind pays: a main window with an empty document area, up to the first painted
// frame. With the argument "menus" it has the two titles of a menu bar, and so pays for fonts: an empty
// window shows no text and loads none.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>

#include "benchmarks/firstframe.h"

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea);
    if (QCoreApplication::arguments().contains(QStringLiteral("menus"))) {
        window.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Exit"));
        window.menuBar()->addMenu(QStringLiteral("Help"))->addAction(QStringLiteral("About"));
    }
    const FirstFrame firstFrame;
    window.showMaximized();
    return QApplication::exec();
}
