// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include "tests/support/modalanswers.h"
#include "tests/support/require.h"

using namespace Qt::StringLiterals;

namespace {

/// Ends a test program in which a modal dialog comes up while no ModalAnswers listen: it would wait for a
/// person for ever.
class DialogWatch final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
        if (dialog && dialog->isWindow() && dialog->isModal())
            REQUIRE(ModalAnswers::areListening(), ModalAnswers::describe(*dialog));
        return false;
    }
};

void watchDialogs()
{
    QCoreApplication *application = QCoreApplication::instance();
    application->installEventFilter(new DialogWatch(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchDialogs)
