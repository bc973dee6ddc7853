// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the bin plan of the largest menu costs, from the menu to the bytes of the file: ten day parts of a
// full cabinet, with groups and timer colours. Prints the milliseconds of the median plan.

#include <algorithm>
#include <cstdio>
#include <vector>

#include <QElapsedTimer>
#include <QGuiApplication>

#include "benchmarks/bigmenu.h"
#include "benchmarks/measured.h"
#include "holding/binplan.h"
#include "widgets/binplanfile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int plans = 11;

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const holding::Menu menu = bigMenu();
    std::vector<double> times;
    for (int i = 0; i < plans; ++i) {
        QElapsedTimer timer;
        timer.start();
        measured([&menu] {
            const binplan::Cabinet cabinet = holding::plannedCabinet(menu);
            if (pdfOf(layOut(cabinet, u"menu.json"_s, binplan::Paper::A4)).isEmpty())
                std::fprintf(stderr, "bin_plan: nothing was written\n");
        });
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + plans / 2, times.end());
    std::printf("%.1f\n", times[plans / 2]);
    return EXIT_SUCCESS;
}
