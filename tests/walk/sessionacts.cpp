// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a session does in the main window.

#include <QComboBox>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>

#include "holding/menufile.h"
#include "tests/support/uidriver.h"
#include "tests/walk/editorchecks.h"
#include "tests/walk/editormemory.h"
#include "tests/walk/input.h"
#include "tests/walk/invariants.h"
#include "tests/walk/session.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

QString lineOf(const MenuEditor &editor)
{
    return QString::fromLatin1(editor.metaObject()->className());
}

// Whether a save there must not fail.
bool isWritable(const QString &path)
{
    const QFileInfo file(path);
    return !path.isEmpty() && file.absoluteDir().exists() && !file.isDir();
}

QList<QPushButton *> binsIn(const MenuEditor &editor)
{
    QList<QPushButton *> bins = editor.findChildren<QPushButton *>();
    bins.removeIf([](const QPushButton *button) {
        return !button->objectName().startsWith("btnDaypartSelect"_L1) || !button->isVisible() ||
               !button->isEnabled();
    });
    return bins;
}

} // namespace

void Session::checkEverything()
{
    checkProgram(*m_window, m_journal);
}

void Session::clickMenu(const char *menu, const char *action)
{
    m_journal.step(u"menu "_s + QString::fromLatin1(action));
    input::clickMenu(*m_window, menu, action);
}

void Session::openOrNew()
{
    clickMenu("menuFile", m_chance.oneIn(3) ? "actionNew" : "actionOpen");
}

void Session::saveInMenu(const char *action)
{
    const QPointer<MenuEditor> editor = activeEditor();
    const QString before = editor->filePath();
    (void)m_dialogs.takeFileError();
    clickMenu("menuFile", action);
    const bool asked = before.isEmpty() || qstrcmp(action, "actionSaveAs") == 0;
    const bool failed = m_dialogs.takeFileError();
    // Who was asked may have cancelled: nothing tells it from the same name chosen again.
    if (editor && !failed && (!asked || editor->filePath() != before)) {
        m_journal.count(u"saved "_s + lineOf(*editor));
        checkSaved(*editor, m_journal);
    }
}

void Session::save(MenuEditor &editor)
{
    m_journal.step(u"save"_s);
    const bool saved = editor.save();
    m_journal.check(saved || !isWritable(editor.filePath()), u"A menu cannot be saved"_s);
    if (!saved)
        return;
    m_journal.count(u"saved "_s + lineOf(editor));
    checkSaved(editor, m_journal);
}

void Session::workEditor()
{
    m_gestures.act(*activeEditor());
}

void Session::holdBin()
{
    MenuEditor &editor = *activeEditor();
    if (auto *tabs = editor.findChild<QTabWidget *>(u"tabWidget"_s))
        tabs->setCurrentIndex(tabs->count() - 1);
    const QList<QPushButton *> bins = binsIn(editor);
    if (bins.isEmpty() || area().activeSubWindow()->isMinimized())
        return;
    QPushButton &bin = *m_chance.of(bins);
    const QPoint at = bin.rect().center();
    m_journal.step(u"hold "_s + nameOf(bin));
    m_journal.count(u"hold"_s);
    input::press(bin, at);
    QMetaObject::invokeMethod(&editor, "dayPartPressHoldDetected"); // the time is up
    input::release(bin, at + QPoint(1, 1));
}

void Session::readAgain()
{
    MenuEditor &editor = *activeEditor();
    if (editor.filePath().isEmpty())
        return;
    if (m_chance.oneIn(4) && QFileInfo(editor.filePath()).isFile())
        m_files.damage(editor.filePath());
    m_journal.step(u"read again"_s);
    m_journal.count(u"read again"_s);
    QMetaObject::invokeMethod(&editor, "readMenuFile");
    EditorMemory::of(editor).startAnew();
}

void Session::importOld()
{
    auto *editor = qobject_cast<MenuFile *>(activeEditor());
    if (!editor)
        return;
    m_journal.step(u"import"_s);
    m_journal.count(u"import"_s);
    editor->importQhxMenuFile(m_files.toImport());
    EditorMemory::of(*editor).startAnew();
}

void Session::activateAnother()
{
    QMdiSubWindow *subWindow = m_chance.of(subWindows());
    m_journal.step(u"activate "_s + subWindow->windowTitle());
    if (subWindow->isMinimized())
        subWindow->showNormal();
    area().setActiveSubWindow(subWindow);
}

void Session::minimize()
{
    m_journal.step(u"minimize"_s);
    area().activeSubWindow()->showMinimized();
}

void Session::closeSubWindow()
{
    m_journal.step(u"close the menu"_s);
    area().activeSubWindow()->close();
}

void Session::closeWindow()
{
    m_journal.step(u"leave the program"_s);
    if (m_chance.oneIn(2))
        m_window->close();
    else
        input::clickMenu(*m_window, "menuFile", "actionExit");
}

} // namespace walk
