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

using namespace Qt::StringLiterals;

namespace {

void fail(const QString &message)
{
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

void checkBox(const QMessageBox &box, const ModalAnswers::Box &expected)
{
    QCOMPARE(box.windowTitle(), expected.title);
    QCOMPARE(box.text(), expected.text);
    QCOMPARE(box.informativeText(), expected.informativeText);
    QCOMPARE(box.icon(), expected.icon);
    QCOMPARE(box.styleSheet(), expected.styleSheet);
    QCOMPARE(box.parent() != nullptr, expected.hasParent);
    if (expected.buttons != QMessageBox::NoButton)
        QCOMPARE(box.standardButtons(), expected.buttons);
    if (expected.defaultButton != QMessageBox::NoButton)
        QCOMPARE(box.defaultButton(), box.button(expected.defaultButton));
}

} // namespace

ModalAnswers::ModalAnswers()
{
    qApp->installEventFilter(this);
}

ModalAnswers::~ModalAnswers()
{
    if (!m_answers.empty())
        fail(u"%1 expected dialog(s) did not come up, next a %2"_s.arg(m_answers.size())
                 .arg(QLatin1StringView(m_answers.front().type->className())));
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
    if (!QTest::qWaitFor([&guard] { return !guard || guard->isActiveWindow(); }))
        fail(u"A dialog did not become active"_s);
    const QString what =
        u"%1 \"%2\""_s.arg(QLatin1StringView(dialog->metaObject()->className()), dialog->windowTitle());
    if (m_look)
        m_look(*dialog);
    if (m_answers.empty()) {
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        fail(u"Unexpected dialog: "_s + what +
             (box ? u" "_s + box->text() + u' ' + box->informativeText() : QString()));
    } else {
        const Answer next = std::move(m_answers.front());
        m_answers.pop_front();
        if (!dialog->metaObject()->inherits(next.type))
            fail(u"Expected a %1, got "_s.arg(QLatin1StringView(next.type->className())) + what);
        else
            next.give(*dialog);
    }
    if (guard && guard->isVisible()) {
        if (!QTest::currentTestFailed())
            fail(u"Left open: "_s + what);
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
        QVERIFY(box.button(press));
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
        QCOMPARE(dialog.windowTitle(), caption);
        QCOMPARE(dialog.nameFilters().join(u";;"_s), filter);
        auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
        auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
        QVERIFY(name && buttons);
        if (!start.isNull())
            QCOMPARE(name->text(), start);
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

void ModalAnswers::expectOpenDialog(const QString &path)
{
    expectFileDialog(u"Open JSON Menu"_s,
                     u"Varno Menu Files (*.json *.qhx *.txt *.cbr);;QHX Json Menu Files (*.json);;"
                     "Savorix Menu Files (*.txt);;TimerBar Menu Files (*.cbr)"_s,
                     path);
}
