// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "app/mainwindow.h"
#include "app/startup.h"
#include "tour/grid.h"
#include "tour/guide.h"
#include "tour/holding.h"
#include "tour/lanes.h"
#include "tour/shell.h"
#include "tour/timerbar.h"

using namespace Qt::StringLiterals;

namespace {

int fault(const char *message)
{
    std::fprintf(stderr, "tour: %s\n", message);
    return EXIT_FAILURE;
}

bool runChapters(MainWindow &window, Album &album)
{
    ShellChapter shell(window, album);
    HoldingChapter holding(window, album);
    GridChapter grid(window, album);
    TimerBarChapter timerBar(window, album);
    LanesChapter lanes(window, album);
    GuideChapter guide(window, album);
    for (Chapter *chapter :
         std::initializer_list<Chapter *>{&shell, &holding, &grid, &timerBar, &lanes, &guide}) {
        if (QTest::qExec(chapter, {u"tour"_s, u"-nocrashhandler"_s}) != 0)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2)
        return fault("usage: tour <output folder>");
    if (QGuiApplication::platformName() != "xcb"_L1)
        return fault("the pictures need an X display with a window manager");

    // File dialogs remember folders: the user's own stay out of the pictures and as they are.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QApplication::setCursorFlashTime(0); // a blinking cursor would keep the screen from coming to rest

    Album album(arguments[1]);
    if (!album.exists())
        return fault("the output folder cannot be created");
    prepareApplication();
    MainWindow window;
    window.showMaximized();
    return runChapters(window, album) ? EXIT_SUCCESS : EXIT_FAILURE;
}
