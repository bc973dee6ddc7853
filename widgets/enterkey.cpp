// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/enterkey.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include "widgets/keypress.h"

namespace {

class EnterPressesButton final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *button = qobject_cast<QPushButton *>(watched);
        if (!button || event->type() != QEvent::KeyPress)
            return false;
        if (!keypress::isEnter(*static_cast<QKeyEvent *>(event)))
            return false;
        button->click();
        return true;
    }
};

} // namespace

void letEnterPressFocusedButton(QDialog *dialog)
{
    auto *filter = new EnterPressesButton(dialog);
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->installEventFilter(filter);
}
