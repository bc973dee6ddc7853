// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QListWidget>
#include <QScreen>

#include "app/selectproductline.h"
#include "tests/support/keyboard.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/screens.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

/// The program as the user guide tells to work with it, on the screen of the test, by the keyboard alone. Its
/// main window has all the room that the window manager leaves it; every dialog has to fit the screen.
class Guide
{
public:
    Guide()
    {
        MainWindow &window = m_program.window();
        const QSize room = screens::roomForWindow(*window.screen());
        window.resize(room);
        REQUIRE_EQUAL(window.size(), room);
        m_program.answers().onShown(
            [room](const QDialog &dialog) { REQUIRE_EQUAL(dialog.size().boundedTo(room), dialog.size()); });
    }

    [[nodiscard]] TestFolder &folder() { return m_program.folder(); }
    [[nodiscard]] QString path(const QString &name) const { return m_program.path(name); }
    [[nodiscard]] qsizetype menuCount() { return m_program.menuCount(); }
    /// The editor that is in front.
    [[nodiscard]] QWidget &editor()
    {
        const QMdiSubWindow *subWindow = m_program.area().activeSubWindow();
        REQUIRE(subWindow && subWindow->widget());
        return *subWindow->widget();
    }
    template <typename Widget>
    [[nodiscard]] Widget &get(const char *name)
    {
        return ui::get<Widget>(editor(), name);
    }

    /// What is to be done in the next dialog of the type.
    template <typename Dialog>
    void expect(const std::function<void()> &act)
    {
        m_program.answers().template expect<Dialog>([act](Dialog &) { act(); });
    }
    void expectBox(const QString &title, const QString &text, QMessageBox::StandardButton button)
    {
        m_program.answers().expect<QMessageBox>([=](QMessageBox &box) {
            REQUIRE_EQUAL(box.windowTitle(), title);
            REQUIRE(box.text() == text || box.informativeText() == text, ModalAnswers::describe(box));
            keyboard::answer(box, button);
        });
    }
    void expectSaveQuestion(QMessageBox::StandardButton button)
    {
        expectBox(QStringLiteral("Save..."), QStringLiteral("Save changes before exit?"), button);
    }
    void expectFileName(const QString &name)
    {
        const QString path = m_program.path(name);
        m_program.answers().expect<QFileDialog>(
            [path](QFileDialog &dialog) { keyboard::answerFileName(dialog, path); });
    }
    [[nodiscard]] bool allAnswered() { return m_program.answers().allAnswered(); }

    /// The choice of the line; what comes up after it is to be expected after this.
    void expectChoice(Line line)
    {
        expect<SelectProductLine>([line] {
            keyboard::choose(QStringLiteral("comboProductLineSelect"), namesOf(line).chooser);
            keyboard::pushButton(QStringLiteral("btnAccept"));
        });
    }
    void newMenu() { keyboard::menu(Qt::Key_F, Qt::Key_N); }
    void open(const QString &name)
    {
        expectFileName(name);
        keyboard::menu(Qt::Key_F, Qt::Key_O);
    }
    void open(const QString &name, const QByteArray &bytes)
    {
        folder().make(name, bytes);
        open(name);
    }
    void save() { keyboard::menu(Qt::Key_F, Qt::Key_S); }
    void saveUnder(const QString &name)
    {
        expectFileName(name);
        keyboard::menu(Qt::Key_F, Qt::Key_A);
    }
    [[nodiscard]] QByteArray saved(const QString &name)
    {
        saveUnder(name);
        return m_program.content(name);
    }

    /// File > Exit, which ends the program's event loop.
    void leave()
    {
        QMetaObject::invokeMethod(
            qApp, [] { keyboard::menu(Qt::Key_F, Qt::Key_X); }, Qt::QueuedConnection);
        QApplication::exec();
        REQUIRE(m_program.window().isHidden());
    }

private:
    Program m_program;
};
