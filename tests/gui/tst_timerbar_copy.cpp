// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/bins.h"
#include "timerbar/copybins.h"

using namespace Qt::StringLiterals;

/// Taking over the bins of another day part.
class TestTimerBarCopy : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_editor.reset(); }
    void dialogNamesTheOthers();
    void chosenDaypartIsCopied_data();
    void chosenDaypartIsCopied();
    void filledBinsAreReplacedWhenConfirmed_data();
    void filledBinsAreReplacedWhenConfirmed();
    void leavingTheDialogChangesNothing_data();
    void leavingTheDialogChangesNothing();
    void notWhileRemoving();

private:
    void clickCopy() { ui::click(**m_editor, "btnCopyDaypart"); }

    cbr::Menu m_menu;
    std::unique_ptr<OpenTimerBar> m_editor;
};

namespace {

const ModalAnswers::Box question{.title = u"Copy Bins"_s,
                                 .text = u"Replace the bins of Lunch with those of Breakfast?"_s,
                                 .buttons = QMessageBox::Yes | QMessageBox::No,
                                 .defaultButton = QMessageBox::No,
                                 .icon = QMessageBox::Question};

void expectChoice(ModalAnswers &answers, const QString &name)
{
    answers.expect<CopyBins>([name](CopyBins &dialog) {
        ui::choose(dialog, "comboDaypart", name);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
}

} // namespace

void TestTimerBarCopy::init()
{
    failOnWarnings();
    m_menu = baconHamChili(u"KTR22"_s);
    m_menu.dayparts[0] = {0, 1, 100, 2};
    m_menu.dayparts[1] = {1, 100, 100, 100};
    m_menu.dayparts[2] = {100, 100, 2, 100};
    m_menu.dayparts[5] = {2, 100, 100, 2};
    m_editor = std::make_unique<OpenTimerBar>(m_menu);
}

void TestTimerBarCopy::dialogNamesTheOthers()
{
    m_editor->showDaypart(u"Lunch"_s);
    ModalAnswers answers;
    answers.expect<CopyBins>([](CopyBins &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Copy Bins"_s);
        QStringList others = timerbar::daypartNames();
        others.removeOne(u"Lunch"_s);
        QCOMPARE(ui::textsOf(ui::get<QComboBox>(dialog, "comboDaypart")), others);
        dialog.reject();
    });
    clickCopy();
}

// Those after the one that takes them over stand a place further up in the dialog.
void TestTimerBarCopy::chosenDaypartIsCopied_data()
{
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("from");
    QTest::newRow("the first") << 4 << 0;
    QTest::newRow("one before") << 4 << 1;
    QTest::newRow("one behind") << 3 << 5;
}

void TestTimerBarCopy::chosenDaypartIsCopied()
{
    QFETCH(const int, to);
    QFETCH(const int, from);
    m_editor->showDaypart(timerbar::daypartNames()[to]);
    ModalAnswers answers;
    expectChoice(answers, timerbar::daypartNames()[from]);
    clickCopy();
    const QString names[]{u"BACN"_s, u"HAM"_s, u"CHIL"_s};
    QCOMPARE(m_editor->button("btnDaypartSelect1_0").text(), names[m_menu.dayparts[from].first()]);
    m_menu.dayparts[to] = m_menu.dayparts[from];
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarCopy::filledBinsAreReplacedWhenConfirmed_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Yes") << QMessageBox::Yes;
    QTest::newRow("No") << QMessageBox::No;
}

void TestTimerBarCopy::filledBinsAreReplacedWhenConfirmed()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    m_editor->showDaypart(u"Lunch"_s);
    ModalAnswers answers;
    expectChoice(answers, u"Breakfast"_s);
    answers.expectBox(question, answer);
    clickCopy();
    if (answer == QMessageBox::Yes)
        m_menu.dayparts[2] = m_menu.dayparts[0];
    QCOMPARE(m_editor->saved(), hex(m_menu));
}

void TestTimerBarCopy::leavingTheDialogChangesNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Space on Cancel") << Qt::Key_Space;
    QTest::newRow("Enter on Cancel") << Qt::Key_Return;
}

void TestTimerBarCopy::leavingTheDialogChangesNothing()
{
    QFETCH(const Qt::Key, key);
    m_editor->showDaypart(u"Dinner"_s);
    ModalAnswers answers;
    answers.expect<CopyBins>([key](CopyBins &dialog) {
        auto &cancel = ui::get<QPushButton>(dialog, "btnCancel");
        cancel.setFocus();
        QTest::keyClick(&cancel, key);
    });
    clickCopy();
    QCOMPARE(m_editor->saved(), hex(m_menu));
    QCOMPARE(ui::get<QLabel>(**m_editor, "lblSaved").text(), u"Saved"_s);
}

void TestTimerBarCopy::notWhileRemoving()
{
    enterRemovalMode(**m_editor);
    QVERIFY(!m_editor->button("btnCopyDaypart").isEnabled());
    ui::click(**m_editor, "btnCancelDaypartRemove");
    QVERIFY(m_editor->button("btnCopyDaypart").isEnabled());
}

QTEST_MAIN(TestTimerBarCopy)
#include "tst_timerbar_copy.moc"
