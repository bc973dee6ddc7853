// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

#include <QList>
#include <QPointer>
#include <QWidget>

#include "tests/walk/gestures.h"
#include "tests/walk/menufiles.h"

class QFileDialog;
class QMessageBox;

namespace walk {

/// Works the modal dialogs that come up, each for a number of steps, after which it is closed: first as a
/// person does, in the end by the program. A session never hangs in one.
class DialogDriver
{
public:
    DialogDriver(Chance &chance, Journal &journal, Gestures &gestures, MenuFiles &files)
        : m_chance(chance)
        , m_journal(journal)
        , m_gestures(gestures)
        , m_files(files)
    {}

    /// One step in the dialog that is on top.
    void step(QWidget &dialog);
    /// Whether a box told of an error with a file since the last call.
    [[nodiscard]] bool takeFileError() { return std::exchange(m_fileError, false); }

private:
    struct Visit
    {
        QPointer<QWidget> dialog;
        int stepsLeft;
    };
    [[nodiscard]] Visit &visitOf(QWidget &dialog);
    void meet(QWidget &dialog);
    void answer(QMessageBox &box);
    void answer(QFileDialog &dialog);
    void close(QWidget &dialog, int stepsOver);

    Chance &m_chance;
    Journal &m_journal;
    Gestures &m_gestures;
    MenuFiles &m_files;
    QList<Visit> m_visits;
    bool m_fileError = false;
};

} // namespace walk
