// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Leaves the first inputs of the binary formats: fuzz_seeds <folder>

#include <cstdlib>

#include <QDir>
#include <QFile>

#include "tests/support/cbrbuilder.h"
#include "tests/support/qhxbuilder.h"

using namespace Qt::StringLiterals;

namespace {

void write(const QDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    if (!folder.mkpath(u"."_s) || !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Cannot write %s", qPrintable(file.fileName()));
}

void writeTimerBarMenus(const QDir &folder)
{
    for (const cbr::Model &model : cbr::models()) {
        for (const int products : {0, 3, 100})
            write(folder, u"%1_%2.cbr"_s.arg(model.name).arg(products),
                  cbr::manyInBins(model.name, products, products % 2).bytes());
    }
}

void writeOldMenus(const QDir &folder)
{
    for (int code = 5; code <= 12; ++code) {
        qhx::File file = qhx::sample();
        file.model = static_cast<quint8>(code);
        write(folder, u"%1.qhx"_s.arg(code), file.bytes());
        file.entries.clear();
        write(folder, u"%1_empty.qhx"_s.arg(code), file.bytes());
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2)
        return EXIT_FAILURE;
    const QDir folder(QFile::decodeName(argv[1]));
    writeTimerBarMenus(folder.filePath(u"fuzz_timerbar"_s));
    writeOldMenus(folder.filePath(u"fuzz_qhx"_s));
    return EXIT_SUCCESS;
}
