// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/files.h"

#include <filesystem>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

fs::file_type fileType(const QString &path)
{
    std::error_code ignored; // the type then says none or not_found
    return fs::status(QFileInfo(path).filesystemFilePath(), ignored).type();
}

// A short write shows up only in one of these: the count, the flush, or the error that it left behind.
bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush() && file.error() == QFileDevice::NoError;
}

enum class Replaced { Yes, Failed, NotPossible };

Replaced replaceWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Replaced::NotPossible;
    // commit() returns true after a short write and would put the truncated file in the good one's place.
    if (!writeAll(file, bytes) || file.size() != bytes.size())
        return Replaced::Failed;
    // Only now a nameless temporary file gets a name and the old file's place. Either may be refused: the
    // name is too long, or the folder is sticky and the file someone else's.
    return file.commit() ? Replaced::Yes : Replaced::NotPossible;
}

// A file that is replaced belongs to whoever replaces it and loses its other names. Where that would lock
// others out of a shared file, or split it, its content alone is exchanged. A new file beside it tells whose
// it would be.
bool canBeReplaced(const QString &path)
{
    const QFileInfo old(QFileInfo(path).canonicalFilePath());
    std::error_code error;
    if (fs::hard_link_count(old.filesystemFilePath(), error) != 1 || error)
        return false;
    QTemporaryFile probe(old.path() + u"/XXXXXX"_s);
    if (!probe.open())
        return false;
    const QFileInfo replacement(probe.fileName());
    return replacement.ownerId() == old.ownerId() && replacement.groupId() == old.groupId();
}

bool writeDevice(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered) &&
           writeAll(file, bytes);
}

bool overwrite(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Truncate |
                     QIODevice::Unbuffered) &&
           writeAll(file, bytes) && file.size() == bytes.size();
}

bool overwriteOrRestore(const QString &path, const QByteArray &bytes)
{
    const std::optional<QByteArray> old = readFile(path);
    if (overwrite(path, bytes))
        return true;
    if (old)
        overwrite(path, *old);
    return false;
}

} // namespace

QString lastPathPart(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

std::optional<QByteArray> readFile(const QString &path)
{
    if (fileType(path) != fs::file_type::regular)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    // One byte more than allowed, as some regular files (under /proc) give no size in advance.
    QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > largestFile)
        return std::nullopt;
    return bytes;
}

bool isWritableTarget(const QString &path)
{
    switch (fileType(path)) {
    case fs::file_type::not_found:
    case fs::file_type::regular:
    case fs::file_type::character:
    case fs::file_type::block:
        return true;
    default:
        return false;
    }
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    if (bytes.size() > largestFile)
        return false;
    switch (fileType(path)) {
    case fs::file_type::not_found:
        return replaceWhole(path, bytes) == Replaced::Yes;
    case fs::file_type::regular: {
        const Replaced replaced = canBeReplaced(path) ? replaceWhole(path, bytes) : Replaced::NotPossible;
        return replaced == Replaced::Yes ||
               (replaced == Replaced::NotPossible && overwriteOrRestore(path, bytes));
    }
    case fs::file_type::character:
    case fs::file_type::block:
        return writeDevice(path, bytes);
    default:
        return false;
    }
}
