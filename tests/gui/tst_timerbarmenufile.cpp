// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QRadioButton>

#include "tests/gui/opentimerbar.h"
#include "tests/gui/timerbarbuttons.h"
#include "tests/support/slotlist.h"
#include "tests/support/testfolder.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"
#include "timerbar/binbuttons.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

class TestTimerBarMenuFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void firstButtonsStayInOrder();
    void slotsAreInOrder();
    void everyButtonIsABin();
    void newMenuAsksForTheCabinet();
    void newMenuHoldsTheDefaultProducts();
    void cancelledConfigurationMakesNoMenu_data();
    void cancelledConfigurationMakesNoMenu();
    void openedMenuIsShown();
    void saveWithoutAPathDoesNothing();
    void configurationChangesTheMenu();
    void oddUnitThroughTheConfiguration_data();
    void oddUnitThroughTheConfiguration();
    void cancelledConfigurationChangesNothing();
    void unknownModelHasNoBins();
    void productsAreFoundById();
    void exportDoesNothing();
};

namespace {

// A new menu; `act` runs in the configuration dialog and has to close it.
std::unique_ptr<TimerBarMenuFile> newMenu(const std::function<void(TimerBarConfig &)> &act)
{
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([&act](TimerBarConfig &dialog) { act(dialog); });
    return std::make_unique<TimerBarMenuFile>(QString());
}

std::unique_ptr<TimerBarMenuFile> newMenu()
{
    return newMenu([](TimerBarConfig &dialog) { ui::click(dialog, "btnAccept"); });
}

QString shownCabinet(const TimerBarMenuFile &editor)
{
    return ui::get<QLabel>(editor, "lblCabinet").text();
}

QByteArray written(TimerBarMenuFile &editor)
{
    const TestFolder folder;
    const bool success = editor.writeMenuFile(folder.path(u"menu.cbr"_s));
    return success ? folder.content(u"menu.cbr"_s).toHex(' ') : QByteArray();
}

QStringList binButtonSlots()
{
    QStringList names;
    for (const QString &button : timerbarbuttons::namesOf(timerbarbuttons::allBins())) {
        for (const QString &signal : {u"pressed"_s, u"released"_s, u"clicked"_s})
            names.append(u"on_%1_%2()"_s.arg(button, signal));
    }
    return names;
}

} // namespace

// The buttons in the order that callers by name know.
void TestTimerBarMenuFile::firstButtonsStayInOrder()
{
    QStringList names = binButtonSlots();
    names = names.filter(u"_pressed"_s);
    const QStringList known{u"0_0"_s, u"0_1"_s,  u"1_0"_s,  u"1_1"_s,  u"2_0"_s,  u"2_1"_s,  u"3_0"_s,
                            u"3_1"_s, u"B0_0"_s, u"B0_1"_s, u"B1_0"_s, u"B1_1"_s, u"B2_0"_s, u"B2_1"_s};
    QStringList found;
    for (const QString &name : std::as_const(names)) {
        const QString place = QString(name).remove(u"on_btnDaypartSelect"_s).remove(u"_pressed()"_s);
        if (known.contains(place))
            found.append(place);
    }
    QCOMPARE(found.join(u' '), known.join(u' '));
}

void TestTimerBarMenuFile::slotsAreInOrder()
{
    const QStringList before{u"closeEvent(QCloseEvent* event)"_s,
                             u"reject()"_s,
                             u"readMenuFile()"_s,
                             u"loadDefaultMenu()"_s,
                             u"loadMenuFile()"_s,
                             u"loadCabinetInfo()"_s,
                             u"loadProducts()"_s,
                             u"loadProductInfo()"_s,
                             u"loadDayparts()"_s,
                             u"loadCurrentDaypart()"_s,
                             u"getProductObject(int productId)"_s,
                             u"removeIdFromAllDayparts(int productId)"_s,
                             u"assignProductToBin(int rowIndex, int binIndex)"_s,
                             u"on_btnConfig_clicked()"_s,
                             u"on_btnAddProduct_clicked()"_s,
                             u"on_btnEditProduct_clicked()"_s,
                             u"on_btnDuplicateProduct_clicked()"_s,
                             u"on_btnDeleteProduct_clicked()"_s,
                             u"on_btnSelectMultiProduct_clicked()"_s,
                             u"on_btnExportFile_clicked()"_s,
                             u"dayPartPressHoldDetected()"_s};
    const QStringList after{u"on_btnCancelDaypartRemove_clicked()"_s,
                            u"on_btnDaypartRemove_clicked()"_s,
                            u"on_listWidgetProducts_itemSelectionChanged()"_s,
                            u"on_listWidgetProducts_currentRowChanged(int currentRow)"_s,
                            u"on_listWidgetProducts_itemDoubleClicked(QListWidgetItem* item)"_s,
                            u"on_comboDaypartSelect_currentIndexChanged(int index)"_s,
                            u"on_listWidgetProducts_itemChanged(QListWidgetItem* item)"_s};
    const QStringList expected = before + binButtonSlots() + after;
    QCOMPARE(differenceOf(ownSlots(TimerBarMenuFile::staticMetaObject), expected), QString());
}

// A model's bins, the form's buttons and the editor's list of them belong together.
void TestTimerBarMenuFile::everyButtonIsABin()
{
#define NAME_OF(button, row, column) QStringLiteral(#button),
    QStringList listed{FOR_EACH_TIMER_BAR_BIN_BUTTON(NAME_OF)};
#undef NAME_OF
    const QStringList expected = timerbarbuttons::namesOf(timerbarbuttons::allBins());
    QCOMPARE(differenceOf(listed, expected), QString());
    OpenTimerBar editor(baconHamChili());
    QStringList inTheForm;
    for (const QPushButton *button : editor->findChildren<QPushButton *>()) {
        if (button->objectName().startsWith(u"btnDaypartSelect"_s))
            inTheForm.append(button->objectName());
    }
    inTheForm.sort();
    listed.sort();
    QCOMPARE(differenceOf(inTheForm, listed), QString());
}

void TestTimerBarMenuFile::newMenuAsksForTheCabinet()
{
    const auto editor = newMenu([](TimerBarConfig &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QCOMPARE(ui::get<QComboBox>(dialog, "comboUnitModel").currentText(), u"KTR22"_s);
        ui::choose(dialog, "comboUnitModel", u"KTR34"_s);
        ui::click(dialog, "rbTempUnitC");
        ui::click(dialog, "btnAccept");
    });
    QVERIFY(editor->isMenuValid());
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(editor->windowTitle(), u"TimerBar Menu File - "_s);
    QCOMPARE(editor->model(), u"KTR34"_s);
    QCOMPARE(editor->temperatureUnit(), 1);
    QCOMPARE(shownCabinet(*editor), u"Cabinet: Timer Bar KTR34, °C"_s);
    ui::show(*editor);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 0);
    QVERIFY(ui::get<QListWidget>(*editor, "listWidgetProducts").isVisible());
    QCOMPARE(ui::get<QListWidget>(*editor, "listWidgetProducts").count(), 33);
    QCOMPARE(editor->minimumSize(), editor->maximumSize());
}

void TestTimerBarMenuFile::newMenuHoldsTheDefaultProducts()
{
    const auto editor = newMenu();
    const QList<ProductInfo *> products = editor->products();
    QCOMPARE(products.size(), 33);
    for (int i = 0; i < products.size(); ++i)
        QCOMPARE(products[i]->get_productId(), i);
    QCOMPARE(products[7]->get_productName(), QStringList{u"Eggs / Egg Patties"_s});
    const QByteArray bytes = QByteArray::fromHex(written(*editor));
    const cbr::Product poppers{.name = "Poppers",
                               .shortName = "POPP",
                               .holdMinutes = 15,
                               .alertMinutes = 10,
                               .upper = 126,
                               .lower = 126};
    QCOMPARE(bytes.size(), 67 + 33 * 39);
    QCOMPARE(bytes.sliced(13 + 24 * 39, 39).toHex(' '), poppers.record().toHex(' '));
    for (int daypart = 0; daypart < 6; ++daypart)
        QCOMPARE(bytes.sliced(13 + 33 * 39 + daypart * 9, 9).toHex(' '),
                 cbr::Menu().daypartRecord(daypart).toHex(' '));
}

void TestTimerBarMenuFile::cancelledConfigurationMakesNoMenu_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarMenuFile::cancelledConfigurationMakesNoMenu()
{
    QFETCH(bool, escape);
    const auto editor = newMenu([escape](TimerBarConfig &dialog) {
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            ui::click(dialog, "btnCancel");
    });
    QVERIFY(!editor->isMenuValid());
}

void TestTimerBarMenuFile::openedMenuIsShown()
{
    const TestFolder folder;
    const cbr::Menu menu = cbr::manyInBins(u"KTR23"_s, 12, 1);
    const QString path = folder.make(u"Lunch.v2.cbr"_s, menu.bytes());
    TimerBarMenuFile editor(path);
    QVERIFY(editor.isMenuValid());
    QCOMPARE(editor.filePath(), path);
    QCOMPARE(editor.windowTitle(), u"Menu File - Lunch.v2.cbr"_s);
    QCOMPARE(editor.model(), u"KTR23"_s);
    QCOMPARE(editor.temperatureUnit(), 1);
    QCOMPARE(shownCabinet(editor), u"Cabinet: Timer Bar KTR23, °C"_s);
    QCOMPARE(editor.products().size(), 12);
    QVERIFY(editor.save());
    QCOMPARE(contentOf(path).toHex(' '), hex(menu));
}

void TestTimerBarMenuFile::saveWithoutAPathDoesNothing()
{
    const auto editor = newMenu();
    QVERIFY(!editor->save());
    QVERIFY(editor->isMenuValid());
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(editor->windowTitle(), u"TimerBar Menu File - "_s);
}

void TestTimerBarMenuFile::configurationChangesTheMenu()
{
    OpenTimerBar editor(baconHamChili(u"KTR42"_s, 1));
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QCOMPARE(ui::get<QComboBox>(dialog, "comboUnitModel").currentText(), u"KTR42"_s);
        QVERIFY(ui::get<QWidget>(dialog, "rbTempUnitC").property("checked").toBool());
        ui::choose(dialog, "comboUnitModel", u"KTR24"_s);
        ui::click(dialog, "rbTempUnitF");
        ui::click(dialog, "btnAccept");
    });
    ui::click(*editor, "btnConfig");
    QCOMPARE(editor->model(), u"KTR24"_s);
    QCOMPARE(editor->temperatureUnit(), 0);
    QCOMPARE(shownCabinet(*editor), u"Cabinet: Timer Bar KTR24, °F"_s);
    QCOMPARE(editor.products().currentRow(), -1);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(editor.detail("Name"), QString());
    QVERIFY(!editor.button("btnEditProduct").isEnabled());
    QCOMPARE(editor.saved(), hex(baconHamChili(u"KTR24"_s, 0)));
}

// A file may hold any byte as its unit. All but 1 are shown as °F; Save in the dialog writes what is shown.
void TestTimerBarMenuFile::oddUnitThroughTheConfiguration_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("after");
    for (const int unit : {2, 128, 255}) {
        QTest::addRow("%d, cancelled", unit) << unit << QByteArray("btnCancel") << unit;
        QTest::addRow("%d, saved", unit) << unit << QByteArray("btnAccept") << 0;
    }
}

void TestTimerBarMenuFile::oddUnitThroughTheConfiguration()
{
    QFETCH(const int, unit);
    QFETCH(const QByteArray, button);
    QFETCH(const int, after);
    OpenTimerBar editor(baconHamChili(u"KTR32"_s, unit));
    QCOMPARE(editor->temperatureUnit(), unit);
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([&](TimerBarConfig &dialog) {
        QCOMPARE(int(dialog.getTempUnit()), unit);
        QVERIFY(ui::get<QRadioButton>(dialog, "rbTempUnitF").isChecked());
        ui::click(dialog, button.constData());
    });
    ui::click(*editor, "btnConfig");
    QCOMPARE(editor->temperatureUnit(), after);
    QCOMPARE(shownCabinet(*editor), u"Cabinet: Timer Bar KTR32, °F"_s);
    QCOMPARE(editor.saved(), hex(baconHamChili(u"KTR32"_s, after)));
}

void TestTimerBarMenuFile::cancelledConfigurationChangesNothing()
{
    OpenTimerBar editor(baconHamChili(u"KTR42"_s, 1));
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR24"_s);
        ui::click(dialog, "rbTempUnitF");
        ui::click(dialog, "btnCancel");
    });
    ui::click(*editor, "btnConfig");
    QCOMPARE(shownCabinet(*editor), u"Cabinet: Timer Bar KTR42, °C"_s);
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(editor.detail("TempUpper"), u"102°C"_s);
    QCOMPARE(editor.saved(), hex(baconHamChili(u"KTR42"_s, 1)));
}

void TestTimerBarMenuFile::unknownModelHasNoBins()
{
    OpenTimerBar editor(baconHamChili());
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) {
        ui::get<QComboBox>(dialog, "comboUnitModel").addItem(u"KTR99"_s);
        ui::choose(dialog, "comboUnitModel", u"KTR99"_s);
        ui::click(dialog, "btnAccept");
    });
    answers.expectBox(ModalAnswers::fileFault(u"Invalid number of rows!"_s), QMessageBox::Ok);
    ui::click(*editor, "btnConfig");
    ui::activate(*editor);
    editor.showDaypart(u"Lunch"_s);
    for (const QPushButton *button : editor->findChildren<QPushButton *>()) {
        if (button->objectName().startsWith(u"btnDaypartSelect"_s))
            QVERIFY(button->isHidden());
    }
    const QByteArray bytes = QByteArray::fromHex(editor.saved()); // no message
    QCOMPARE(bytes.size(), 13 + 3 * 39 + 6);
    QCOMPARE(bytes.sliced(6, 2), QByteArray("\0\0", 2));
}

void TestTimerBarMenuFile::productsAreFoundById()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[1] = {2, 0, 2, 1};
    OpenTimerBar editor(menu);
    QCOMPARE(editor->getProductObject(1), editor->products().at(1));
    QVERIFY(!editor->getProductObject(3));
    QVERIFY(!editor->getProductObject(100));
    QVERIFY(!editor->removeIdFromAllDayparts(3));
    QCOMPARE(editor.saved(), hex(menu));
    QVERIFY(editor->removeIdFromAllDayparts(2));
    menu.dayparts[1] = {100, 0, 100, 1};
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarMenuFile::exportDoesNothing()
{
    OpenTimerBar editor(baconHamChili());
    QVERIFY(editor.button("btnExportFile").isHidden());
    editor->on_btnExportFile_clicked();
    QCOMPARE(editor.saved(), hex(baconHamChili()));
}

QTEST_MAIN(TestTimerBarMenuFile)
#include "tst_timerbarmenufile.moc"
