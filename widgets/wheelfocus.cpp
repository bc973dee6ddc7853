// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/wheelfocus.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace {

class WheelNeedsFocus final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *box = qobject_cast<QWidget *>(watched);
        if (!box || event->type() != QEvent::Wheel || box->hasFocus())
            return false;
        event->ignore(); // so that it reaches what scrolls
        return true;
    }
};

} // namespace

void needFocusForWheel(QWidget *editor)
{
    auto *filter = new WheelNeedsFocus(editor);
    const auto prepare = [filter](QWidget *box) {
        box->setFocusPolicy(Qt::StrongFocus); // by default the wheel gives the focus
        box->installEventFilter(filter);
    };
    for (QWidget *box : editor->findChildren<QAbstractSpinBox *>())
        prepare(box);
    for (QWidget *box : editor->findChildren<QComboBox *>())
        prepare(box);
}
