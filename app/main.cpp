// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLocale>

#include "app/startup.h"

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    return runProgram(QLocale::system().uiLanguages());
}
