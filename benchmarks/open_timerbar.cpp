// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What opening a full Timer Bar menu costs, until it is painted in the main window.
//
// The openings run in measured(): the first, which pays for what all menus share, and the second. Prints the
// milliseconds of each.

#include <cstdio>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTemporaryDir>

#include "app/mainwindow.h"
#include "app/productlines.h"
#include "app/startup.h"
#include "benchmarks/fulltimerbarmenu.h"
#include "benchmarks/measured.h"
#include "benchmarks/painted.h"
#include "timerbar/cbrfile.h"

namespace {

bool write(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && timerbar::writeMenu(file, fullTimerBarMenu()).isEmpty() &&
           file.flush();
}

void open(const QString &path, MainWindow &window, PaintWatch &watch)
{
    window.openEditor(*productLineOfFile(path), path);
    const auto &area = *window.findChild<QMdiArea *>();
    watch.waitUntilPainted(area.subWindowList().constLast()->widget());
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("menu.cbr"));
    if (!write(path)) {
        std::fprintf(stderr, "open_timerbar: the full menu cannot be written\n");
        return EXIT_FAILURE;
    }
    prepareApplication();
    MainWindow window;
    PaintWatch watch;
    window.showMaximized();
    watch.waitUntilPainted(window.menuBar());
    for (int number = 1; number <= 2; ++number) {
        QElapsedTimer timer;
        timer.start();
        measured([&] { open(path, window, watch); });
        std::printf("%.2f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return EXIT_SUCCESS;
}
