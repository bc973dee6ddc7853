// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/modalanswers.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "tests/support/require.h"

using namespace Qt::StringLiterals;

namespace {

int listening = 0;

void checkBox(const QMessageBox &box, const ModalAnswers::Box &expected)
{
    REQUIRE_EQUAL(box.windowTitle(), expected.title);
    REQUIRE_EQUAL(box.text(), expected.text);
    REQUIRE_EQUAL(box.informativeText(), expected.informativeText);
    REQUIRE_EQUAL(box.icon(), expected.icon);
    REQUIRE_EQUAL(box.styleSheet(), expected.styleSheet);
    REQUIRE_EQUAL(box.parent() != nullptr, expected.hasParent);
    if (expected.buttons != QMessageBox::NoButton)
        REQUIRE_EQUAL(box.standardButtons(), expected.buttons);
    if (expected.defaultButton != QMessageBox::NoButton)
        REQUIRE_EQUAL(box.defaultButton(), box.button(expected.defaultButton));
}

} // namespace

ModalAnswers::ModalAnswers()
{
    ++listening;
    qApp->installEventFilter(this);
}

ModalAnswers::~ModalAnswers()
{
    --listening;
    // A test that has failed may well have left before its dialogs came.
    if (!m_answers.empty() && !QTest::currentTestFailed())
        require::fail(u"%1 expected dialog(s) did not come up, next a %2"_s.arg(m_answers.size())
                          .arg(QLatin1StringView(m_answers.front().type->className())),
                      {__FILE__, __LINE__});
}

bool ModalAnswers::areListening()
{
    return listening > 0;
}

QString ModalAnswers::describe(const QDialog &dialog)
{
    QString text =
        u"%1 \"%2\""_s.arg(QLatin1StringView(dialog.metaObject()->className()), dialog.windowTitle());
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        text += u' ' + box->text() + u' ' + box->informativeText();
    return text;
}

bool ModalAnswers::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog && dialog->isWindow() && dialog->isModal())
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { answer(dialog); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void ModalAnswers::answer(QDialog *dialog)
{
    const QPointer<QDialog> guard(dialog);
    // Before that, keys and the focus still belong to the window below.
    REQUIRE_SOON(!guard || guard->isActiveWindow());
    if (m_look)
        m_look(*dialog);
    const QString what = describe(*dialog);
    REQUIRE(!m_answers.empty(), u"Unexpected dialog: "_s + what);
    const Answer next = std::move(m_answers.front());
    m_answers.pop_front();
    REQUIRE(dialog->metaObject()->inherits(next.type),
            u"Expected a %1, got "_s.arg(QLatin1StringView(next.type->className())) + what);
    next.give(*dialog);
    if (guard && guard->isVisible()) {
        // A failed check of the test's own leaves the answer early.
        REQUIRE(QTest::currentTestFailed(), u"Left open: "_s + what);
        guard->done(QDialog::Rejected);
    }
}

void ModalAnswers::expectAny(const QMetaObject &type, std::function<void(QDialog &)> answer)
{
    m_answers.push_back({&type, std::move(answer)});
}

void ModalAnswers::expectBox(const Box &expected, QMessageBox::StandardButton press)
{
    expect<QMessageBox>([expected, press](QMessageBox &box) {
        checkBox(box, expected);
        REQUIRE(box.button(press));
        QTest::mouseClick(box.button(press), Qt::LeftButton);
    });
}

void ModalAnswers::expectBoxEscaped(const Box &expected)
{
    expect<QMessageBox>([expected](QMessageBox &box) {
        checkBox(box, expected);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
}

ModalAnswers::Box ModalAnswers::fileFault(const QString &message)
{
    return {.title = u"Error"_s,
            .text = u"Error"_s,
            .informativeText = message,
            .buttons = QMessageBox::Ok,
            .styleSheet = u"QLabel{min-width: 220px;}"_s,
            .hasParent = false};
}

ModalAnswers::Box ModalAnswers::writeFault(const QString &path)
{
    return fileFault(u"Failed to create/open the file:"_s + path);
}

ModalAnswers::Box ModalAnswers::entryFault(const QString &message)
{
    return {.title = u"Error"_s, .text = message, .buttons = QMessageBox::Close};
}

ModalAnswers::Box ModalAnswers::refusal(const QString &message)
{
    return {
        .title = u"Error"_s, .text = message, .buttons = QMessageBox::Close, .icon = QMessageBox::Warning};
}

ModalAnswers::Box ModalAnswers::removalWarning(const QString &message)
{
    return {.title = u"Warning"_s, .text = message, .buttons = QMessageBox::Ok, .icon = QMessageBox::Warning};
}

ModalAnswers::Box ModalAnswers::deleteQuestion(const QString &question)
{
    return {.title = u"Delete"_s,
            .text = question,
            .buttons = QMessageBox::Yes | QMessageBox::No,
            .defaultButton = QMessageBox::No,
            .icon = QMessageBox::Question};
}

ModalAnswers::Box ModalAnswers::saveQuestion()
{
    return {.title = u"Save..."_s,
            .text = u"Save changes before exit?"_s,
            .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            .icon = QMessageBox::Warning,
            .hasParent = false};
}

void ModalAnswers::expectFileDialog(const QString &caption, const QString &filter, const QString &path,
                                    const QString &start)
{
    expect<QFileDialog>([=](QFileDialog &dialog) {
        REQUIRE_EQUAL(dialog.windowTitle(), caption);
        REQUIRE_EQUAL(dialog.nameFilters().join(u";;"_s), filter);
        auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
        auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
        REQUIRE(name && buttons);
        if (!start.isNull())
            REQUIRE_EQUAL(name->text(), start);
        if (path.isEmpty()) {
            QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
            return;
        }
        name->setText(path);
        const auto accepting =
            dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open;
        QTest::mouseClick(buttons->button(accepting), Qt::LeftButton);
    });
}
