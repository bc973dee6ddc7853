// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QWindow>

#include "holding/menufile.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Message boxes that have no parent. The window manager knows of native windows only: by these it keeps a
/// box above what it is about.
class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void fileFaultIsAboveTheMainWindow();
    void writeFaultIsAboveTheMainWindow();
    void saveQuestionIsAboveTheMainWindow_data();
    void saveQuestionIsAboveTheMainWindow();
    void boxIsAboveTheDialogThatIsOpen();
};

namespace {

void expectAbove(ModalAnswers &answers, const QWidget &window, QMessageBox::StandardButton button)
{
    answers.expect<QMessageBox>([&window, button](QMessageBox &box) {
        REQUIRE(!box.parent());
        REQUIRE_EQUAL(box.windowHandle()->transientParent(), window.windowHandle());
        // Left alone a box comes up in the middle of the screen.
        const QPoint away = box.geometry().center() - window.frameGeometry().center();
        REQUIRE(qAbs(away.x()) < 5 && qAbs(away.y()) < 5, u"%1, %2"_s.arg(away.x()).arg(away.y()));
        ui::click(*box.button(button));
    });
}

} // namespace

void TestMessages::fileFaultIsAboveTheMainWindow()
{
    Program program;
    program.folder().make(u"damaged.json"_s, "{");
    program.expectOpenDialog(u"damaged.json"_s);
    expectAbove(program.answers(), program.window(), QMessageBox::Ok);
    program.openNow();
    QVERIFY(program.answers().allAnswered());
}

void TestMessages::writeFaultIsAboveTheMainWindow()
{
    Program program;
    program.open(u"menu.json"_s, namesOf(Line::Holding).files.constFirst().sample());
    program.folder().remove();
    expectAbove(program.answers(), program.window(), QMessageBox::Ok);
    program.save();
    QVERIFY(program.answers().allAnswered());
}

void TestMessages::saveQuestionIsAboveTheMainWindow_data()
{
    QTest::addColumn<bool>("exit");
    QTest::newRow("menu") << false;
    QTest::newRow("program") << true;
}

void TestMessages::saveQuestionIsAboveTheMainWindow()
{
    QFETCH(const bool, exit);
    Program program;
    program.open(u"menu.json"_s, namesOf(Line::Holding).files.constFirst().sample());
    expectAbove(program.answers(), program.window(), QMessageBox::No);
    QVERIFY(exit ? program.window().close() : program.subWindow()->close());
    QVERIFY(program.answers().allAnswered());
}

// Its answer closes it first.
void TestMessages::boxIsAboveTheDialogThatIsOpen()
{
    Program program;
    program.answers().expect<QDialog>([&program](QDialog &dialog) {
        expectAbove(program.answers(), dialog, QMessageBox::Ok);
        const MenuFile missing(program.path(u"missing.json"_s));
        REQUIRE(!missing.isMenuValid());
        dialog.reject();
    });
    program.choose("actionNew");
    QVERIFY(program.answers().allAnswered());
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
