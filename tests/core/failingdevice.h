// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QIODevice>

/// A device that takes so many bytes, as a disk that is full then, and keeps what it took.
class FailingDevice final : public QIODevice
{
public:
    enum class Kind {
        CutsShort,  ///< the write that does not fit is cut short
        Refuses,    ///< it is refused whole
        Sequential, ///< cut short, on a device that cannot seek
    };

    FailingDevice(Kind kind, qsizetype room)
        : m_kind(kind)
        , m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override { return m_kind == Kind::Sequential; }
    [[nodiscard]] QByteArray content() const { return m_content; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 taken = qMin(size, static_cast<qint64>(m_room));
        if (taken < size && (m_kind == Kind::Refuses || taken == 0))
            return -1;
        const qsizetype start = isSequential() ? m_content.size() : static_cast<qsizetype>(pos());
        m_content.resize(qMax(m_content.size(), start + static_cast<qsizetype>(taken)), '\0');
        std::copy(data, data + taken, m_content.begin() + start);
        m_room -= static_cast<qsizetype>(taken);
        return taken;
    }

private:
    Kind m_kind;
    qsizetype m_room;
    QByteArray m_content;
};
