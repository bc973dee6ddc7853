// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup.h"

#include <csignal>

#include <QApplication>
#include <QTranslator>

#include "app/mainwindow.h"
#include "app/translation.h"
#include "widgets/plainfont.h"

using namespace Qt::StringLiterals;

namespace {

// Whenever a menu becomes active, Qt measures the titles of all open menus. Without kerning that takes a
// sixth of the time.
void layOutTitlesPlainly()
{
    constexpr auto titleBar = "QMdiSubWindowTitleBar";
    QApplication::setFont(plainFont(QApplication::font(titleBar)), titleBar);
}

// A limit on the size of files would end the program, and with it every open menu, instead of failing the
// write.
void surviveFileSizeLimit()
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

} // namespace

void prepareApplication()
{
    // Under this name desktops find the icon and the name of a window that brings none.
    QGuiApplication::setDesktopFileName(u"varnoplexora"_s);
    layOutTitlesPlainly();
    surviveFileSizeLimit();
}

int runProgram(const QStringList &uiLanguages)
{
    prepareApplication();
    QTranslator translator;
    if (loadTranslator(translator, uiLanguages))
        QApplication::installTranslator(&translator);
    MainWindow window;
    window.showMaximized();
    return QApplication::exec();
}
