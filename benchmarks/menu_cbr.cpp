// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading and writing the file of a full Timer Bar menu, beside the bare copy of the same bytes.
//
// menu_cbr <task>        does the task once, in measured(): read, read-plain, write or write-plain
// menu_cbr time <task>   prints how many times as long as its plain counterpart the task takes

#include <cstdio>

#include <QFile>
#include <QTemporaryDir>

#include "benchmarks/fulltimerbarmenu.h"
#include "benchmarks/tasks.h"
#include "model/files.h"
#include "timerbar/cbrfile.h"

namespace {

constexpr QIODevice::OpenMode forRecords = QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;

bool readOurs(const QString &path, timerbar::Menu &menu)
{
    const std::optional<QByteArray> bytes = readFile(path);
    return bytes && timerbar::readMenu(*bytes, menu).isEmpty();
}

// As the editor does: record by record, each of them in the file at once.
bool writeOurs(const QString &path, const timerbar::Menu &menu)
{
    QFile file(path);
    return isWritableTarget(path) && file.open(forRecords) && timerbar::writeMenu(file, menu).isEmpty();
}

QByteArray readPlain(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writePlain(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(forRecords) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("menu.cbr"));
    const QString copyPath = folder.filePath(QStringLiteral("copy.cbr"));
    timerbar::Menu menu;
    if (!writeOurs(path, fullTimerBarMenu()) || !readOurs(path, menu) || !writeOurs(copyPath, menu) ||
        readPlain(path).isEmpty() || readPlain(path) != readPlain(copyPath)) {
        std::fprintf(stderr, "menu_cbr: what is read is not what was written\n");
        return EXIT_FAILURE;
    }
    const QByteArray bytes = readPlain(path);
    const Tasks tasks{
        {"read",
         [&] {
             timerbar::Menu copy;
             (void)readOurs(path, copy);
         }},
        {"read-plain", [&] { (void)readPlain(path); }},
        {"write", [&] { (void)writeOurs(copyPath, menu); }},
        {"write-plain", [&] { (void)writePlain(copyPath, bytes); }},
    };
    return runTask(argc, argv, tasks);
}
