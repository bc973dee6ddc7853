// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What open menus cost: opens a large menu many times in the main window, as Open does once the file is
// chosen, and closes all of them again as a person does.
//
// With the argument "open-only" it ends with the menus open, which spares callgrind the closing.
//
// The openings that are asked for run in measured(). Prints a line for each: its number, its milliseconds and
// the KiB that each opening since the line before took. The last line is "closed" and the KiB that stay,
// above the start, when all menus are closed and the heap is trimmed.

#include <algorithm>
#include <array>
#include <cstdio>

#include <malloc.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>

#include "app/mainwindow.h"
#include "app/productlines.h"
#include "app/startup.h"
#include "benchmarks/bigmenu.h"
#include "benchmarks/measured.h"
#include "benchmarks/memory.h"
#include "benchmarks/painted.h"
#include "holding/inconsistencies.h"
#include "holding/menujson.h"
#include "model/files.h"

namespace {

constexpr std::array askedFor{1, 2, 10, 100, 200};

/// Answers every message box with No.
class Answerer final : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
        if (box)
            QMetaObject::invokeMethod(
                box, [box] { box->done(QMessageBox::No); }, Qt::QueuedConnection);
        return false;
    }
};

void open(const QString &path, MainWindow &window, PaintWatch &watch)
{
    window.openEditor(*productLineOfFile(path), path);
    const auto &area = *window.findChild<QMdiArea *>();
    watch.waitUntilPainted(area.subWindowList().constLast()->widget());
}

void closeAll(const QMdiArea &area)
{
    const QList<QMdiSubWindow *> subWindows = area.subWindowList();
    for (QMdiSubWindow *subWindow : subWindows)
        subWindow->close();
    while (!area.subWindowList().isEmpty())
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void openAsked(const QString &path, MainWindow &window, PaintWatch &watch)
{
    long memory = residentKib();
    int lineBefore = 0;
    for (int number = 1; number <= askedFor.back(); ++number) {
        if (std::find(askedFor.begin(), askedFor.end(), number) == askedFor.end()) {
            open(path, window, watch);
            continue;
        }
        QElapsedTimer timer;
        timer.start();
        measured([&] { open(path, window, watch); });
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        const long memoryNow = residentKib();
        std::printf("%d %.2f %ld\n", number, milliseconds, (memoryNow - memory) / (number - lineBefore));
        memory = memoryNow;
        lineBefore = number;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("menu.json"));
    const holding::Menu menu = bigMenu();
    if (holding::inconsistencies(menu).count() != 0) {
        std::fprintf(stderr, "open_menus: the line for things to look at would be measured too\n");
        return EXIT_FAILURE;
    }
    if (!writeFile(path, holding::writeMenu(menu))) {
        std::fprintf(stderr, "open_menus: the large menu cannot be written\n");
        return EXIT_FAILURE;
    }
    prepareApplication();
    MainWindow window;
    PaintWatch watch;
    Answerer answerer;
    qApp->installEventFilter(&answerer);
    window.showMaximized();
    watch.waitUntilPainted(window.menuBar());

    const long memoryAtStart = residentKib();
    openAsked(path, window, watch);
    if (QCoreApplication::arguments().contains(QStringLiteral("open-only")))
        return EXIT_SUCCESS;
    closeAll(*window.findChild<QMdiArea *>());
    malloc_trim(0);
    std::printf("closed %ld\n", residentKib() - memoryAtStart);
    return EXIT_SUCCESS;
}
