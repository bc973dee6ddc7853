// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <csignal>

#include <QtGlobal>

#include <sys/resource.h>
#include <unistd.h>

/// No file of this process can grow beyond `bytes`, as on a full disk: a write is cut short, the next fails.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit lowered{bytes, m_old.rlim_max};
        m_active = setrlimit(RLIMIT_FSIZE, &lowered) == 0;
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

    [[nodiscard]] bool isActive() const { return m_active; }

private:
    void (*m_oldHandler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_old{};
    bool m_active = false;
};

/// Permissions do not bind root: while this lives, the process acts as nobody when it runs as root.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_user(geteuid())
        , m_active(m_user != 0 || seteuid(65534) == 0)
    {}
    ~OrdinaryUser()
    {
        if (m_user == 0 && seteuid(0) != 0)
            qFatal("Cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

    [[nodiscard]] bool isActive() const { return m_active; }

private:
    uid_t m_user;
    bool m_active;
};
