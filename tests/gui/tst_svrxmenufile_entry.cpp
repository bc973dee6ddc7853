// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QWheelEvent>

#include "tests/gui/lanemenus.h"
#include "tests/gui/openlaneeditor.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray contents = "T1=300,T2=0,T3=0,T4=0,F1=2000,F2=0,F3=0,F4=0";

// Turns the mouse wheel up or down over the middle of a widget.
void turnWheel(QWidget &widget, int steps)
{
    const QPoint middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, steps * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

/// Entering values with wheel and keys in the main window.
class TestSvrxMenuFileEntry : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void wheelPassesOverBoxes();
    void wheelTurnsTheFocusedBox();
};

void TestSvrxMenuFileEntry::wheelPassesOverBoxes()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"a.txt"_s, lanefile::text(contents));
    SvrxMenuFile &editor = *menus.editor();
    auto &lanes = ui::get<QComboBox>(editor, "comboModelSelect");
    const QList<QWidget *> boxes{&lanes, &temperatureBox(editor, 1), &fanSpeedBox(editor, 1)};
    ui::get<QRadioButton>(editor, "rbTempUnitF").setFocus();
    for (int steps : {1, -1}) {
        for (QWidget *box : boxes) {
            turnWheel(*box, steps);
            QCOMPARE(box->focusPolicy(), Qt::StrongFocus); // the wheel gives no focus either
        }
        QCOMPARE(lanes.currentIndex(), 0);
        QCOMPARE(temperatureBox(editor, 1).value(), 300);
        QCOMPARE(fanSpeedBox(editor, 1).value(), 2000);
    }
}

void TestSvrxMenuFileEntry::wheelTurnsTheFocusedBox()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"a.txt"_s, lanefile::text(contents));
    QSpinBox &box = temperatureBox(*menus.editor(), 1);
    ui::click(box);
    turnWheel(box, 1);
    QVERIFY(box.hasFocus());
    QCOMPARE(box.value(), 301);
}

QTEST_MAIN(TestSvrxMenuFileEntry)
#include "tst_svrxmenufile_entry.moc"
