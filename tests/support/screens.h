// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QList>
#include <QSize>
#include <QTest>

class QScreen;

/// Screens as users have them, in logical pixels.
namespace screens {

/// What the window manager leaves to a maximized window, which it gives a title.
[[nodiscard]] QSize roomForWindow(const QScreen &screen);

/// Laptops: 1366 x 768 at 150, 125 and 100 %.
[[nodiscard]] const QList<QSize> &laptops();

/// Runs a test in an application of its own on a screen of this size; for main(). The size of a screen is
/// settled with the application.
int run(const QSize &size, int argc, char *argv[], const std::function<int()> &test);

/// The same with a test class, on every laptop.
template <typename Test>
int runOnLaptops(int argc, char *argv[])
{
    int failures = 0;
    for (const QSize &size : laptops()) {
        failures += run(size, argc, argv, [&] {
            Test test;
            return QTest::qExec(&test, argc, argv);
        });
    }
    return failures;
}

} // namespace screens
