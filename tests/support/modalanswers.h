// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <deque>
#include <functional>

#include <QDialog>
#include <QMessageBox>
#include <QObject>

class QFileDialog;

/// Answers the modal dialogs that come up while a test runs, as told in advance.
///
/// Each dialog that is shown takes the next answer from the queue, inside its own event loop. A dialog that
/// nobody expected, one of another kind, one that its answer left open, and an answer whose dialog never came
/// each end the test program; one whose answer was left at a failed check is closed, so that no test hangs.
/// Answers may open dialogs of their own: those take the following answers. One object at a time, as each
/// answers every dialog. In a test of windows, a dialog that comes up without any ends the test program too.
class ModalAnswers : public QObject
{
    Q_OBJECT

public:
    ModalAnswers();
    /// Ends the test program when answers are left.
    ~ModalAnswers() override;

    /// Calls `look` with every dialog before it is answered.
    void onShown(std::function<void(const QDialog &)> look) { m_look = std::move(look); }

    /// Expects any dialog of the type; `answer` has to close it.
    template <typename Dialog>
    void expect(std::function<void(Dialog &)> answer)
    {
        expectAny(Dialog::staticMetaObject,
                  [answer = std::move(answer)](QDialog &dialog) { answer(static_cast<Dialog &>(dialog)); });
    }

    /// The same for a type that is known only when the test runs.
    void expectAny(const QMetaObject &type, std::function<void(QDialog &)> answer);

    /// Expects a message box with exactly these texts and presses the button.
    struct Box
    {
        QString title;
        QString text;
        QString informativeText = {};
        QMessageBox::StandardButtons buttons = QMessageBox::NoButton;      ///< not looked at when NoButton
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton; ///< likewise
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QString styleSheet = {};
        bool hasParent = true;
    };
    void expectBox(const Box &expected, QMessageBox::StandardButton press);
    /// The same, answered with the Escape key.
    void expectBoxEscaped(const Box &expected);

    /// Boxes that come up in many tests.
    [[nodiscard]] static Box fileFault(const QString &message);
    [[nodiscard]] static Box writeFault(const QString &path);
    [[nodiscard]] static Box entryFault(const QString &message);
    [[nodiscard]] static Box refusal(const QString &message);
    [[nodiscard]] static Box removalWarning(const QString &message);
    [[nodiscard]] static Box deleteQuestion(const QString &question);
    [[nodiscard]] static Box saveQuestion();

    /// Expects a file dialog with this caption and filter; enters the path, or cancels for an empty one.
    /// `start` is looked at unless it is null: the proposed file name, without folder.
    void expectFileDialog(const QString &caption, const QString &filter, const QString &path,
                          const QString &start = {});

    [[nodiscard]] bool allAnswered() const { return m_answers.empty(); }

    /// Whether there is an object to answer a dialog now.
    [[nodiscard]] static bool areListening();
    /// Class, title and texts.
    [[nodiscard]] static QString describe(const QDialog &dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Answer
    {
        const QMetaObject *type;
        std::function<void(QDialog &)> give;
    };

    void answer(QDialog *dialog);

    std::deque<Answer> m_answers;
    std::function<void(const QDialog &)> m_look;
};
