// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading and writing the document of a large menu, beside the least that has to be done for it.
//
// menu_json <task>        does the task once, in measured(): read, read-plain, write or write-plain
// menu_json time <task>   prints how many times as long as its plain counterpart the task takes

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <QElapsedTimer>

#include "benchmarks/bigmenu.h"
#include "benchmarks/measured.h"
#include "benchmarks/plainmenu.h"
#include "holding/menujson.h"

namespace {

int fault(const char *message)
{
    std::fprintf(stderr, "menu_json: %s\n", message);
    return EXIT_FAILURE;
}

QString readOurs(const QByteArray &json, holding::Menu &menu)
{
    return holding::readMenu(json, menu, [](holding::CabinetConfiguration &) { return false; });
}

qint64 nanoseconds(const std::function<void()> &task)
{
    QElapsedTimer timer;
    timer.start();
    task();
    return timer.nsecsElapsed();
}

qint64 median(std::vector<qint64> &times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

// In turn, so that whatever else the machine does hits both.
double timeRatio(const std::function<void()> &task, const std::function<void()> &plainTask)
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

} // namespace

int main(int argc, char *argv[])
{
    const QByteArray json = holding::writeMenu(bigMenu());
    holding::Menu menu;
    if (!readOurs(json, menu).isEmpty())
        return fault("the large menu cannot be read");
    const plain::Menu plainMenu = plain::read(json);
    if (holding::writeMenu(menu) != json || plain::write(plainMenu) != json)
        return fault("what is read is not what was written");

    const std::map<std::string, std::function<void()>> tasks{
        {"read",
         [&] {
             holding::Menu copy;
             (void)readOurs(json, copy);
         }},
        {"read-plain", [&] { (void)plain::read(json); }},
        {"write", [&] { (void)holding::writeMenu(menu); }},
        {"write-plain", [&] { (void)plain::write(plainMenu); }},
    };
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
    return fault("usage: menu_json [time] read|read-plain|write|write-plain");
}
