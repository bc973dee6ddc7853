// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QWheelEvent>

#include "tests/gui/openlaneeditor.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray contents = "T1=300,T2=0,T3=0,T4=0,F1=2000,F2=0,F3=0,F4=0";

// Turns the mouse wheel up or down over the middle of a widget; whether that ends there.
bool turnWheel(QWidget &widget, int steps)
{
    const QPoint middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, steps * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
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
    void halfTypedNumberIsNotSaved();
    void typedLimitIsSaved();
    void unitIsChosenByKeys();
    void deletedWhileTypedIn();
};

void TestSvrxMenuFileEntry::wheelPassesOverBoxes()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(contents));
    SvrxMenuFile &editor = *program.editor<SvrxMenuFile>();
    auto &lanes = ui::get<QComboBox>(editor, "comboModelSelect");
    const QList<QWidget *> boxes{&lanes, &temperatureBox(editor, 1), &fanSpeedBox(editor, 1)};
    ui::get<QRadioButton>(editor, "rbTempUnitF").setFocus();
    for (int steps : {1, -1}) {
        for (QWidget *box : boxes) {
            QVERIFY(!turnWheel(*box, steps));              // what scrolls is to have it
            QCOMPARE(box->focusPolicy(), Qt::StrongFocus); // the wheel gives no focus either
        }
        QCOMPARE(lanes.currentIndex(), 0);
        QCOMPARE(temperatureBox(editor, 1).value(), 300);
        QCOMPARE(fanSpeedBox(editor, 1).value(), 2000);
    }
}

void TestSvrxMenuFileEntry::wheelTurnsTheFocusedBox()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(contents));
    QSpinBox &box = temperatureBox(*program.editor<SvrxMenuFile>(), 1);
    ui::click(box);
    QVERIFY(turnWheel(box, 1));
    QVERIFY(box.hasFocus());
    QCOMPARE(box.value(), 301);
}

namespace {

// Types into the first temperature, leaves the cursor there and saves.
QByteArray savedAfterTyping(Program &program, const QString &text)
{
    ui::type(temperatureBox(*program.editor<SvrxMenuFile>(), 1), text);
    program.save();
    return program.content(u"a.txt"_s);
}

} // namespace

void TestSvrxMenuFileEntry::halfTypedNumberIsNotSaved()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(contents));
    const QSpinBox &box = temperatureBox(*program.editor<SvrxMenuFile>(), 1);
    for (const QString &text : {u"20"_s, u""_s}) {
        QCOMPARE(savedAfterTyping(program, text), lanefile::text(contents));
        QCOMPARE(box.text(), u"300"_s); // what is seen is what was saved
    }
    QCOMPARE(savedAfterTyping(program, u"201"_s), lanefile::text(QByteArray(contents).replace("300", "201")));
}

void TestSvrxMenuFileEntry::typedLimitIsSaved()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(QByteArray(contents).replace("300", "1")));
    QCOMPARE(savedAfterTyping(program, u"150"_s), lanefile::text(QByteArray(contents).replace("300", "150")));
}

void TestSvrxMenuFileEntry::unitIsChosenByKeys()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(contents));
    SvrxMenuFile &editor = *program.editor<SvrxMenuFile>();
    auto &fahrenheit = ui::get<QRadioButton>(editor, "rbTempUnitF");
    auto &celsius = ui::get<QRadioButton>(editor, "rbTempUnitC");
    fahrenheit.setFocus();
    QTest::keyClick(&fahrenheit, Qt::Key_Right);
    QVERIFY(celsius.isChecked());
    QCOMPARE(temperatureBox(editor, 1).value(), 149);
    QCOMPARE(temperatureBox(editor, 1).maximum(), 204);
    QTest::keyClick(&celsius, Qt::Key_Left);
    QVERIFY(fahrenheit.isChecked());
    QCOMPARE(temperatureBox(editor, 1).value(), 300);
    program.save();
    QCOMPARE(program.content(u"a.txt"_s), lanefile::text(contents));
}

// The box that has the focus loses it in the middle of the destruction and reports what was typed. By then
// nothing may be stored or shown any more.
void TestSvrxMenuFileEntry::deletedWhileTypedIn()
{
    const TestFolder folder;
    const QString path =
        folder.make(u"a.txt"_s, lanefile::text("T1=9999,T2=0,T3=0,T4=0,F1=99999,F2=0,F3=0,F4=0"));
    for (const auto &[box, note] :
         {std::pair{&temperatureBox, "lblTemperatureNote1"}, std::pair{&fanSpeedBox, "lblFanSpeedNote1"}}) {
        auto editor = std::make_unique<SvrxMenuFile>(path);
        ui::show(*editor);
        QSpinBox &typedIn = box(*editor, 1);
        ui::type(typedIn, u"1"_s); // too low, so that it counts only when the box is left
        QVERIFY(typedIn.hasFocus());
        const auto &label = ui::get<QLabel>(*editor, note);
        const QString before = label.text();
        QVERIFY(before.startsWith(u"file holds"_s));
        QStringList shown;
        connect(&typedIn, &QSpinBox::editingFinished, this, [&] { shown.append(label.text()); });
        editor.reset();
        QCOMPARE(shown, QStringList{before});
    }
}

QTEST_MAIN(TestSvrxMenuFileEntry)
#include "tst_svrxmenufile_entry.moc"
