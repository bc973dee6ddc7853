// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/dialogdriver.h"

#include <algorithm>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "tests/walk/input.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

constexpr int longestVisit = 25;
// Boxes of wrong entries come up on the way out, too.
constexpr int stepsToClose = 12;

QAbstractButton *acceptingButton(const QWidget &dialog)
{
    for (const char *name : {"btnSave", "btnAccept", "btnSelect", "btnCopy", "btnGoTo"}) {
        if (auto *button = dialog.findChild<QAbstractButton *>(QString::fromLatin1(name)))
            return button;
    }
    return nullptr;
}

QString suffixOf(const QFileDialog &dialog)
{
    const QString filter = dialog.nameFilters().value(0);
    const qsizetype star = filter.indexOf(u'*');
    return filter.sliced(star + 1, filter.lastIndexOf(u')') - star - 1);
}

} // namespace

DialogDriver::Visit &DialogDriver::visitOf(QWidget &dialog)
{
    m_visits.removeIf([](const Visit &visit) { return !visit.dialog; });
    const auto found = std::find_if(m_visits.begin(), m_visits.end(),
                                    [&dialog](const Visit &visit) { return visit.dialog == &dialog; });
    if (found != m_visits.end())
        return *found;
    meet(dialog);
    m_visits.append({&dialog, m_chance.between(1, longestVisit)});
    return m_visits.last();
}

void DialogDriver::meet(QWidget &dialog)
{
    m_journal.count(QString::fromLatin1(dialog.metaObject()->className()));
    const auto *box = qobject_cast<QMessageBox *>(&dialog);
    m_journal.remark(u"- %1 \"%2\" %3"_s.arg(nameOf(dialog), dialog.windowTitle(),
                                             box ? box->text() + u' ' + box->informativeText() : QString()));
    if (box && box->text() == "Error"_L1)
        m_fileError = true;
}

void DialogDriver::step(QWidget &dialog)
{
    Visit &visit = visitOf(dialog);
    const int stepsLeft = m_journal.isOver() ? qMin(visit.stepsLeft, 0) : visit.stepsLeft;
    visit.stepsLeft = stepsLeft - 1;
    if (stepsLeft <= 0)
        close(dialog, -stepsLeft);
    else if (auto *box = qobject_cast<QMessageBox *>(&dialog))
        answer(*box);
    else if (auto *fileDialog = qobject_cast<QFileDialog *>(&dialog))
        answer(*fileDialog);
    else
        m_gestures.act(dialog);
}

void DialogDriver::answer(QMessageBox &box)
{
    if (m_chance.oneIn(6))
        m_gestures.pressAnyKey(box);
    else {
        QAbstractButton *button = m_chance.of(box.buttons());
        m_journal.step(u"answer "_s + button->text());
        input::click(*button, button->rect().center());
    }
}

// Files are chosen by name only: the lists of the dialog are filled by another thread, sooner or later.
void DialogDriver::answer(QFileDialog &dialog)
{
    const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
    const auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
    auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
    if (m_chance.oneIn(8)) {
        m_journal.step(u"cancel the file dialog"_s);
        input::click(*buttons->button(QDialogButtonBox::Cancel), QPoint(5, 5));
        return;
    }
    if (!m_chance.oneIn(5) || name->text().isEmpty())
        name->setText(saves ? m_files.toSave(suffixOf(dialog)) : m_files.toOpen());
    m_journal.step(u"take file "_s + name->text());
    input::click(*buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open), QPoint(5, 5));
}

void DialogDriver::close(QWidget &dialog, int stepsOver)
{
    m_journal.check(stepsOver < stepsToClose, u"This dialog cannot be closed: "_s + nameOf(dialog));
    QAbstractButton *accept = acceptingButton(dialog);
    if (stepsOver == 0 && accept && accept->isEnabled() && m_chance.oneIn(2)) {
        m_journal.step(u"close with "_s + accept->text());
        input::click(*accept, accept->rect().center());
    } else if (stepsOver < 4) {
        m_journal.step(u"close with Escape"_s);
        input::key(dialog, Qt::Key_Escape);
    } else {
        m_journal.step(u"close by program"_s);
        dialog.close();
    }
}

} // namespace walk
