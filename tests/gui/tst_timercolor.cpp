// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QGridLayout>
#include <QPushButton>

#include "holding/productedit.h"
#include "holding/timercolorpicker.h"
#include "holding/timercolors.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 9;

samplefile::Menu menuWithColor(const QString &colorName)
{
    samplefile::Menu menu;
    menu.header = samplefile::header({{u"timerColorEnabled"_s, true}});
    menu.products = {samplefile::product(1, u"Bacon"_s, {{u"timerColor"_s, colorName}})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {})};
    return menu;
}

// The button of the palette's entry with this index.
QPushButton *colorButton(const TimerColorPicker &picker, int index)
{
    const auto &grid = ui::get<QGridLayout>(picker, "gridLayout");
    const QLayoutItem *item = grid.itemAtPosition(index / columns, index % columns);
    return item ? qobject_cast<QPushButton *>(item->widget()) : nullptr;
}

void expectPick(ModalAnswers &answers, int index)
{
    answers.expect<TimerColorPicker>([index](TimerColorPicker &picker) {
        QPushButton *button = colorButton(picker, index);
        REQUIRE(button);
        ui::click(*button);
    });
}

// Opens the product editor and then, by its colour button, the picker.
void edit(OpenEditor &editor, const std::function<void(ProductEdit &, ModalAnswers &)> &act)
{
    ModalAnswers answers;
    answers.expect<ProductEdit>([&](ProductEdit &dialog) { act(dialog, answers); });
    ui::clickRow(editor.products(), 0);
    ui::click(*editor, "btnEditProduct");
}

QString savedColor(OpenEditor &editor)
{
    const QJsonArray products = editor.saved().value(u"products"_s).toArray();
    return products.at(0).toObject().value(u"timerColor"_s).toString();
}

QPushButton &sampleOf(const ProductEdit &dialog)
{
    return ui::get<QPushButton>(dialog, "btnTimerColor");
}

QString colorName(int index)
{
    return holding::timerPalette()[static_cast<std::size_t>(index)].colorName;
}

} // namespace

class TestTimerColor : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void pickerShowsThePalette();
    void everyColorCanBePicked();
    void pickedColorIsShownAndSaved();
    void pickedNoColorIsShownAndSaved();
    void cancelledPickerChangesNothing();
    void cancelledEditorKeepsTheColor();
    void colorIsPickedByKeyboard_data();
    void colorIsPickedByKeyboard();
    void pickerStartsOnTheColor_data();
    void pickerStartsOnTheColor();
    void arrowsMoveInTheGrid();
};

void TestTimerColor::slotsAreInOrder()
{
    QCOMPARE(ownSlots(TimerColorPicker::staticMetaObject), QStringList{u"colorPick_clicked()"_s});
}

void TestTimerColor::pickerShowsThePalette()
{
    TimerColorPicker picker;
    ui::show(picker);
    QCOMPARE(picker.minimumSize(), picker.maximumSize());
    QCOMPARE(picker.findChildren<QPushButton *>().size(), 81);
    QCOMPARE(ui::get<QWidget>(picker, "frame").styleSheet(), u"background-color: rgb(255, 255, 255);"_s);
    for (int index = 0; index < 81; ++index) {
        const QPushButton *button = colorButton(picker, index);
        QVERIFY(button && button->isVisible());
        QCOMPARE(button->text(), u" "_s);
        QCOMPARE(button->size(), QSize(25, 25));
        QCOMPARE(button->icon().isNull(), index != 0);
        if (index == 0)
            QCOMPARE(button->accessibleName(), u"No color"_s);
        else
            QVERIFY(button->accessibleName().endsWith(u", "_s + colorName(index)));
        QCOMPARE(button->toolTip(), QString()); // it would be drawn on the button's colour
    }
    QCOMPARE(colorButton(picker, 0)->iconSize(), QSize(25, 25));
    QCOMPARE(colorButton(picker, 0)->styleSheet(), QString());
    QCOMPARE(colorButton(picker, 1)->styleSheet(), u"background-color: rgb(112,0,0);"_s);
    QCOMPARE(colorButton(picker, 9)->styleSheet(), u"background-color: rgb(64,33,0);"_s);
    QCOMPARE(colorButton(picker, 62)->styleSheet(), u"background-color: rgb(244,192,255);"_s);
    QCOMPARE(colorButton(picker, 80)->styleSheet(), u"background-color: rgb(255,255,255);"_s);
}

void TestTimerColor::everyColorCanBePicked()
{
    for (int index = 0; index < 81; ++index) {
        TimerColorPicker picker;
        ui::show(picker);
        QVERIFY(!picker.chosen());
        ui::click(*colorButton(picker, index));
        QCOMPARE(picker.result(), int(QDialog::Accepted));
        QCOMPARE(picker.chosen(), &holding::timerPalette()[static_cast<std::size_t>(index)]);
    }
}

void TestTimerColor::pickedColorIsShownAndSaved()
{
    OpenEditor editor(menuWithColor(u"#fffffd"_s));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        answers.expect<TimerColorPicker>([](TimerColorPicker &picker) {
            QCOMPARE(picker.windowTitle(), u"Colors"_s);
            ui::click(*colorButton(picker, 9));
        });
        ui::click(dialog, "btnTimerColor");
        QCOMPARE(sampleOf(dialog).text(), u"SampleText"_s);
        QCOMPARE(sampleOf(dialog).styleSheet(),
                 u"background-color: rgb(64,33,0); color: rgb(160, 160, 160);"_s);
        expectPick(answers, 71); // the last colour of its row
        ui::click(dialog, "btnTimerColor");
        QCOMPARE(sampleOf(dialog).styleSheet(),
                 u"background-color: rgb(255,192,255); color: rgb(0, 0, 0);"_s);
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(savedColor(editor), u"#ffc0ff"_s);
}

void TestTimerColor::pickedNoColorIsShownAndSaved()
{
    OpenEditor editor(menuWithColor(u"#ff0000"_s));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        expectPick(answers, 0);
        ui::click(dialog, "btnTimerColor");
        QCOMPARE(sampleOf(dialog).text(), QString());
        QCOMPARE(sampleOf(dialog).styleSheet(),
                 u"background-color: rgb(250, 255, 189); border-image: url(:/images/noColor.png);"_s);
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(savedColor(editor), u"#fffffd"_s);
}

void TestTimerColor::cancelledPickerChangesNothing()
{
    OpenEditor editor(menuWithColor(u"#ff0000"_s));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        answers.expect<TimerColorPicker>(
            [](TimerColorPicker &picker) { QTest::keyClick(&picker, Qt::Key_Escape); });
        ui::click(dialog, "btnTimerColor");
        QCOMPARE(sampleOf(dialog).styleSheet(), u"background-color: rgb(255,0,0); color: rgb(0, 0, 0);"_s);
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(savedColor(editor), u"#ff0000"_s);
}

void TestTimerColor::cancelledEditorKeepsTheColor()
{
    OpenEditor editor(menuWithColor(u"#123456"_s)); // none of the palette's
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        expectPick(answers, 40);
        ui::click(dialog, "btnTimerColor");
        ui::click(dialog, "btnCancel");
    });
    QCOMPARE(savedColor(editor), u"#123456"_s);
}

void TestTimerColor::colorIsPickedByKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter of the number pad") << Qt::Key_Enter;
}

void TestTimerColor::colorIsPickedByKeyboard()
{
    QFETCH(const Qt::Key, key);
    OpenEditor editor(menuWithColor(u"#fffffd"_s));
    edit(editor, [key](ProductEdit &dialog, ModalAnswers &answers) {
        answers.expect<TimerColorPicker>([key](TimerColorPicker &picker) {
            QTest::keyClick(&picker, Qt::Key_Tab);
            QTest::keyClick(picker.focusWidget(), key);
        });
        sampleOf(dialog).setFocus();
        QTest::keyClick(&sampleOf(dialog), Qt::Key_Space);
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(savedColor(editor), u"#700000"_s);
}

void TestTimerColor::pickerStartsOnTheColor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::newRow("none") << u"#fffffd"_s << 0;
    QTest::newRow("in the middle") << u"#00cfcf"_s << 39;
    QTest::newRow("black") << u"#000000"_s << 72;
    QTest::newRow("white") << u"#ffffff"_s << 80;
    QTest::newRow("not in the palette") << u"#123456"_s << 0;
}

void TestTimerColor::pickerStartsOnTheColor()
{
    QFETCH(const QString, name);
    QFETCH(const int, index);
    OpenEditor editor(menuWithColor(name));
    edit(editor, [index](ProductEdit &dialog, ModalAnswers &answers) {
        answers.expect<TimerColorPicker>([index](TimerColorPicker &picker) {
            REQUIRE_EQUAL(picker.focusWidget(), colorButton(picker, index));
            for (int each = 0; each < 81; ++each)
                REQUIRE_EQUAL(colorButton(picker, each)->accessibleDescription(),
                              each == index ? u"Current"_s : QString());
            // The mark is black and white in the middle, on any colour.
            const QImage image = colorButton(picker, index)->grab().toImage();
            QCOMPARE(image.pixelColor(8, 8), QColor(Qt::black));
            QCOMPARE(image.pixelColor(9, 9), QColor(Qt::white));
            QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black)); // so is the ring of the focus
            QCOMPARE(image.pixelColor(1, 1), QColor(Qt::white));
            QTest::keyClick(&picker, Qt::Key_Escape);
        });
        ui::click(dialog, "btnTimerColor");
        ui::click(dialog, "btnCancel");
    });
}

void TestTimerColor::arrowsMoveInTheGrid()
{
    OpenEditor editor(menuWithColor(u"#00cfcf"_s));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        answers.expect<TimerColorPicker>([](TimerColorPicker &picker) {
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
                QTest::keyClick(picker.focusWidget(), key);
            QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
        });
        ui::click(dialog, "btnTimerColor");
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(savedColor(editor), colorName(39 + 9 + 1));
}

QTEST_MAIN(TestTimerColor)
#include "tst_timercolor.moc"
