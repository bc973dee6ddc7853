// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading and writing the document of a large menu, beside the least that has to be done for it.
//
// menu_json <task>        does the task once, in measured(): read, read-plain, write or write-plain
// menu_json time <task>   prints how many times as long as its plain counterpart the task takes

#include <cstdio>

#include "benchmarks/bigmenu.h"
#include "benchmarks/plainmenu.h"
#include "benchmarks/tasks.h"
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

    const Tasks tasks{
        {"read",
         [&] {
             holding::Menu copy;
             (void)readOurs(json, copy);
         }},
        {"read-plain", [&] { (void)plain::read(json); }},
        {"write", [&] { (void)holding::writeMenu(menu); }},
        {"write-plain", [&] { (void)plain::write(plainMenu); }},
    };
    return runTask(argc, argv, tasks);
}
