// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Walks through the program by chance: "walk SEED STEPS [--trace]" is one session, without arguments a few
// short ones, each in a process of its own.

#include <cstdio>

#include <QApplication>
#include <QProcess>
#include <QSet>

#include "app/startup.h"
#include "tests/walk/session.h"

using namespace Qt::StringLiterals;

namespace {

// Together they take about 20 seconds.
constexpr int testSeeds = 8;
constexpr int testSteps = 1000;

// What the sessions of the test have to come by, else they test little.
const QStringList mustBeReached{
    u"AboutApp"_s,
    u"AssignDaypartItem"_s,
    u"Configuration"_s,
    u"DaypartEdit"_s,
    u"GroupEdit"_s,
    u"ProductEdit"_s,
    u"QFileDialog"_s,
    u"QMessageBox"_s,
    u"TimerBarConfig"_s,
    u"SelectProductLine"_s,
    u"TimerBarProductEdit"_s,
    u"TimerBarDaypartAssignItem"_s,
    u"hold"_s,
    u"TimerColorPicker"_s,
    u"read again"_s,
    u"import"_s,
    u"saved MenuFile"_s,
    u"saved SvrxMenuFile"_s,
    u"saved TimerBarMenuFile"_s,
};

int walkOnce(quint32 seed, int steps, bool loud)
{
    // So that a crash, which tells nothing more, can be repeated too.
    std::printf("scripts/walk %u %d\n", seed, steps);
    std::fflush(stdout);
    walk::Journal journal(seed, steps, loud);
    walk::Session(seed, journal).run();
    const QMap<QString, int> &counts = journal.counts();
    for (auto count = counts.begin(); count != counts.end(); ++count)
        std::printf("%6d %s\n", count.value(), qPrintable(count.key()));
    return 0;
}

// Returns the session's output, which it also passes on; nothing when the session failed.
QStringList runSession(int seed)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::number(seed), QString::number(testSteps)});
    process.waitForFinished(-1);
    const QString output = QString::fromLocal8Bit(process.readAll());
    std::printf("%s", qPrintable(output));
    std::fflush(stdout);
    const bool good = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return good ? output.split(u'\n') : QStringList();
}

int walkAll()
{
    bool good = true;
    QSet<QString> reached;
    for (int seed = 1; seed <= testSeeds; ++seed) {
        const QStringList lines = runSession(seed);
        good = good && !lines.isEmpty();
        for (const QString &line : lines)
            reached.insert(line.sliced(qMin(7, line.size())));
    }
    for (const QString &what : mustBeReached) {
        if (good && !reached.contains(what)) {
            std::printf("No session came by: %s\n", qPrintable(what));
            good = false;
        }
    }
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QHashSeed::setDeterministicGlobalSeed();
    const QApplication application(argc, argv);
    prepareApplication();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return walkAll();
    return walkOnce(arguments[1].toUInt(), arguments[2].toInt(), arguments.contains(u"--trace"_s));
}
