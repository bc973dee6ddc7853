// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/closing.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace closing;

namespace {

// Opens a menu in removal mode.
QPointer<QWidget> openRemoving(Program &program)
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    program.open(u"menu.cbr"_s, menu.bytes());
    enterRemovalMode(*program.editor<TimerBarMenuFile>());
    return editor(program);
}

} // namespace

/// Closing a Timer Bar menu, beyond what is so in every line.
class TestTimerBarMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void removalModeStaysWhenRefused();
    void closingInRemovalModeRemovesNothing_data();
    void closingInRemovalModeRemovesNothing();
};

void TestTimerBarMenuFileClosing::removalModeStaysWhenRefused()
{
    Program program;
    const QPointer<QWidget> closed = openRemoving(program);
    close(program, QMessageBox::Cancel, Way::CtrlW); // Escape would leave the mode first
    requireOpen(program, closed);
    ui::click(*closed, "btnDaypartRemove");
    QCOMPARE(ui::get<QPushButton>(*closed, "btnDaypartSelect1_0").text(), QString());
}

void TestTimerBarMenuFileClosing::closingInRemovalModeRemovesNothing_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Yes") << QMessageBox::Yes;
    QTest::newRow("No") << QMessageBox::No;
}

void TestTimerBarMenuFileClosing::closingInRemovalModeRemovesNothing()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    Program program;
    const QPointer<QWidget> closed = openRemoving(program);
    const QByteArray before = program.content(u"menu.cbr"_s);
    close(program, answer, Way::CtrlW);
    requireGone(program, closed);
    QCOMPARE(program.content(u"menu.cbr"_s).toHex(' '), before.toHex(' '));
}

QTEST_MAIN(TestTimerBarMenuFileClosing)
#include "tst_timerbarmenufile_closing.moc"
