// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QPointer>

#include "app/aboutapp.h"
#include "holding/configuration.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

namespace {

/// Every way in which a program can ask an open menu to close.
void tryToClose(QMdiSubWindow &subWindow)
{
    auto *editor = qobject_cast<QDialog *>(subWindow.widget());
    subWindow.close();
    editor->close();
    editor->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

/// An editor stays while one of its dialogs or boxes is open, as these live on the stack.
class TestUnderDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void configurationKeepsItsEditor_data();
    void configurationKeepsItsEditor();
    void boxKeepsItsEditor_data() { addLineRows(); }
    void boxKeepsItsEditor();
    void closesAgainAfterwards_data() { addLineRows(); }
    void closesAgainAfterwards();
};

void TestUnderDialog::configurationKeepsItsEditor_data()
{
    QTest::addColumn<Line>("line");
    QTest::newRow("holding cabinets") << Line::Holding;
    QTest::newRow("Timer Bar cabinets") << Line::TimerBar;
}

void TestUnderDialog::configurationKeepsItsEditor()
{
    QFETCH(Line, line);
    Program program;
    const QPointer<QMdiSubWindow> subWindow = program.newMenu(line);
    QVERIFY(subWindow);
    const auto act = [&](QDialog &dialog) {
        tryToClose(*subWindow);
        QVERIFY(subWindow && subWindow->isVisible());
        ui::click(dialog, "btnCancel");
    };
    if (line == Line::Holding)
        program.answers().expect<Configuration>([&](Configuration &dialog) { act(dialog); });
    else
        program.answers().expect<TimerBarConfig>([&](TimerBarConfig &dialog) { act(dialog); });
    ui::click(*subWindow, "btnConfig");
    QCOMPARE(program.menuCount(), 1);
    QVERIFY(subWindow->widget()->isVisible());
}

// The question of a closing is itself such a box: it is asked once.
void TestUnderDialog::boxKeepsItsEditor()
{
    QFETCH(Line, line);
    Program program;
    const QPointer<QMdiSubWindow> subWindow = program.newMenu(line);
    QVERIFY(subWindow);
    program.answers().expect<QMessageBox>([&](QMessageBox &box) {
        tryToClose(*subWindow);
        ui::click(*box.button(QMessageBox::Cancel));
    });
    subWindow->close();
    QVERIFY(subWindow);
    QCOMPARE(program.menuCount(), 1);
}

void TestUnderDialog::closesAgainAfterwards()
{
    QFETCH(Line, line);
    Program program;
    const QPointer<QMdiSubWindow> subWindow = program.newMenu(line);
    QVERIFY(subWindow);
    program.answers().expect<AboutApp>([&](AboutApp &dialog) {
        tryToClose(*subWindow);
        ui::click(dialog, "btnAccept");
    });
    ui::clickMenu(program.window(), "menuHelp", "actionAbout");
    QCOMPARE(program.menuCount(), 1);
    program.expectSaveQuestion(QMessageBox::No);
    subWindow->close();
    QTRY_VERIFY(!subWindow);
}

QTEST_MAIN(TestUnderDialog)
#include "tst_underdialog.moc"
