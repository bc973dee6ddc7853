// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <QElapsedTimer>

#include "benchmarks/measured.h"

/// Pieces of work by name; "<name>-plain" is what "<name>" is set beside.
using Tasks = std::map<std::string, std::function<void()>>;

inline qint64 nanoseconds(const std::function<void()> &task)
{
    QElapsedTimer timer;
    timer.start();
    task();
    return timer.nsecsElapsed();
}

inline qint64 median(std::vector<qint64> &times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// In turn, so that whatever else the machine does hits both.
inline double timeRatio(const std::function<void()> &task, const std::function<void()> &plainTask)
{
    constexpr int rounds = 200;
    std::vector<qint64> times;
    std::vector<qint64> plainTimes;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(nanoseconds(task));
        plainTimes.push_back(nanoseconds(plainTask));
    }
    return static_cast<double>(median(times)) / static_cast<double>(median(plainTimes));
}

/// "<task>" does the task once, in measured(); "time <task>" prints how many times as long as its plain
/// counterpart it takes. Returns what main() does.
inline int runTask(int argc, char *argv[], const Tasks &tasks)
{
    const std::string name = argc > 1 ? argv[argc - 1] : "";
    if (argc == 2 && tasks.contains(name)) {
        measured(tasks.at(name));
        return EXIT_SUCCESS;
    }
    if (argc == 3 && argv[1] == std::string("time") && tasks.contains(name) &&
        tasks.contains(name + "-plain")) {
        std::printf("%.2f\n", timeRatio(tasks.at(name), tasks.at(name + "-plain")));
        return EXIT_SUCCESS;
    }
    std::fprintf(stderr, "usage: %s [time] read|read-plain|write|write-plain\n", argv[0]);
    return EXIT_FAILURE;
}
