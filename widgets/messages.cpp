// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/messages.h"

#include <algorithm>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace messages {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(messages)
};

// With a least width of their own the labels no longer ask for the room of their longest word, which may be
// the name of a file.
void makeRoomForWords(QMessageBox &box)
{
    int width = 0;
    const QList<QLabel *> labels = box.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        width = qMax(width, label->minimumSizeHint().width());
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    grid->setColumnMinimumWidth(grid->columnCount() - 1,
                                qMin(width, box.screen()->availableSize().width() / 2));
}

// Right after a file dialog was closed no window is active yet.
const QWidget *windowBelow()
{
    if (const QWidget *active = QApplication::activeWindow())
        return active->window();
    if (const QWidget *modal = QApplication::activeModalWidget())
        return modal;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto isMain = [](QWidget *window) {
        return window->isVisible() && qobject_cast<QMainWindow *>(window);
    };
    const auto main = std::find_if(windows.begin(), windows.end(), isMain);
    return main == windows.end() ? nullptr : *main;
}

// Boxes of files have no parent. The window manager, which knows only native windows, is told what they are
// about, so that they come up over it and stay there.
int execOverWindow(QMessageBox &box)
{
    if (const QWidget *below = windowBelow()) {
        box.winId(); // makes the native window
        box.windowHandle()->setTransientParent(below->windowHandle());
        box.adjustSize();
        box.move(below->frameGeometry().center() - box.rect().center());
    }
    return box.exec();
}

} // namespace

void fileFault(const QString &message)
{
    QMessageBox box;
    box.setWindowTitle(Text::tr("Error"));
    box.setText(Text::tr("Error"));
    box.setInformativeText(asPlainText(message));
    box.setStandardButtons(QMessageBox::Ok);
    box.setStyleSheet(u"QLabel{min-width: 220px;}"_s);
    makeRoomForWords(box);
    execOverWindow(box);
}

void entryFault(QWidget *parent, const QString &message)
{
    QMessageBox(QMessageBox::NoIcon, Text::tr("Error"), message, QMessageBox::Close, parent).exec();
}

void entryFault(QWidget *parent, const WrongEntry &wrong)
{
    entryFault(parent, wrong.message);
    wrong.input->setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(wrong.input))
        line->selectAll();
    else if (auto *box = qobject_cast<QAbstractSpinBox *>(wrong.input))
        box->selectAll();
}

void refusal(QWidget *parent, const QString &message)
{
    QMessageBox(QMessageBox::Warning, Text::tr("Error"), message, QMessageBox::Close, parent).exec();
}

void warning(QWidget *parent, const QString &message, QMessageBox::StandardButton button)
{
    QMessageBox(QMessageBox::Warning, Text::tr("Warning"), message, button, parent).exec();
}

void reconfigured(QWidget *parent, const QString &message)
{
    QMessageBox box(QMessageBox::Warning, Text::tr("Warning"), Text::tr("Warning"), QMessageBox::Ok, parent);
    box.setInformativeText(message);
    box.exec();
}

bool confirm(QWidget *parent, const QString &title, const QString &question)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool confirmDelete(QWidget *parent, const QString &question)
{
    return confirm(parent, Text::tr("Delete"), question);
}

// With a qualified type of result lupdate would take the function for a member of QMessageBox.
using Answer = QMessageBox::StandardButton;

Answer askSaveChanges()
{
    QMessageBox box(QMessageBox::Warning, Text::tr("Save..."), Text::tr("Save changes before exit?"),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    return static_cast<Answer>(execOverWindow(box));
}

} // namespace messages
