// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>
#include <QPushButton>

#include "holding/configuration.h"
#include "tests/gui/editgroup.h"
#include "tests/support/slotlist.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace groupedit;

namespace {

bool isShown(const GroupEdit &dialog, const char *widget)
{
    return ui::get<QWidget>(dialog, widget).isVisible();
}

QString labelText(const GroupEdit &dialog, const char *label)
{
    return ui::get<QLabel>(dialog, label).text();
}

QStringList summary(const GroupEdit &dialog)
{
    QStringList texts;
    for (const char *label : {"txtTemp1", "txtTemp2", "txtZoneSplits", "txtFanSpeed", "txtLidType"})
        texts.append(labelText(dialog, label));
    return texts;
}

} // namespace

class TestGroupEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void formShowsItsTexts();
    void arrowsTellWhatTheyDo();
    void rowsAreNumberedAndKnowTheirIds();
    void rowsFollowTheCabinet();
    void fanSpeedFollowsItsSwitch();
    void summaryOfEveryUnit_data();
    void summaryOfEveryUnit();
    void summaryOfEveryLid();
    void unknownCabinetIsRefused();
    void faultsComeInOrder();
    void everythingIsSaved();
    void celsiusIsOnlyShown();
    void zpvSavesNoLid();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void enterSaves();
};

void TestGroupEdit::slotsAreInOrder()
{
    QCOMPARE(ownSlots(GroupEdit::staticMetaObject),
             (QStringList{u"loadProducts()"_s, u"loadGroupProducts()"_s, u"on_btnCancel_clicked()"_s,
                          u"on_btnSave_clicked()"_s, u"on_btnAddProduct_clicked()"_s,
                          u"on_btnRemoveProduct_clicked()"_s,
                          u"on_listWidgetGroupProducts_itemChanged(QListWidgetItem* item)"_s,
                          u"on_listWidgetGroupProducts_itemClicked(QListWidgetItem* item)"_s,
                          u"on_listWidgetProducts_itemSelectionChanged()"_s,
                          u"on_listWidgetGroupProducts_itemSelectionChanged()"_s}));
}

void TestGroupEdit::formShowsItsTexts()
{
    OpenEditor editor(menuWith(meats({1}), samplefile::headerWithAllSwitches()));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(dialog.windowTitle(), u"Group Edit"_s);
        QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
        const QList<std::pair<const char *, QString>> labels{
            {"lblName", u"Name"_s},
            {"lblTemp1", u"Upper Temperature:"_s},
            {"lblTemp2", u"Lower Temperature:"_s},
            {"lblZoneSplits", u"Zone Splits:"_s},
            {"lblFanSpeed", u"Fan Speed:"_s},
            {"lblLidType", u"Lid Type:"_s},
        };
        for (const auto &[name, text] : labels)
            QCOMPARE(labelText(dialog, name), text);
        QStringList headings;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            headings.append(label->text());
        QVERIFY(headings.contains(u"All Products"_s));
        QVERIFY(headings.contains(u"Group Products (Check default product)"_s));
        QCOMPARE(ui::get<QPushButton>(dialog, "btnCancel").text(), u"Cancel"_s);
        QCOMPARE(ui::get<QPushButton>(dialog, "btnSave").text(), u"Save"_s);
        for (const char *name : {"btnAddProduct", "btnRemoveProduct"}) {
            QVERIFY(ui::get<QPushButton>(dialog, name).isFlat());
            QVERIFY(!ui::get<QPushButton>(dialog, name).isEnabled());
        }
        QVERIFY(ui::get<QPushButton>(dialog, "btnSave").isDefault());
        QCOMPARE(ui::get<QLineEdit>(dialog, "txtName").text(), u"Meats"_s);
        QVERIFY(ui::get<QLineEdit>(dialog, "txtName").hasFocus());
        cancel(dialog);
    });
}

void TestGroupEdit::arrowsTellWhatTheyDo()
{
    const auto pictureFor = [](const QString &path, const QPushButton &button) {
        return QIcon(path).pixmap(button.iconSize()).toImage();
    };
    const auto shown = [](const QPushButton &button) {
        return button.icon().pixmap(button.iconSize()).toImage();
    };
    OpenEditor editor(menuWith(meats({1})));
    edit(editor, [&](GroupEdit &dialog, ModalAnswers &) {
        const auto &adding = ui::get<QPushButton>(dialog, "btnAddProduct");
        const auto &removing = ui::get<QPushButton>(dialog, "btnRemoveProduct");
        QVERIFY(!shown(adding).isNull() && !shown(removing).isNull());
        QCOMPARE(shown(adding), pictureFor(u":/images/BtnDownGreenArrowU.gif"_s, adding));
        QCOMPARE(shown(removing), pictureFor(u":/images/BtnUpRedArrowU.gif"_s, removing));
        QCOMPARE(adding.toolTip(), u"Add to the group"_s);
        QCOMPARE(removing.toolTip(), u"Remove from the group"_s);
        cancel(dialog);
    });
}

void TestGroupEdit::rowsAreNumberedAndKnowTheirIds()
{
    samplefile::Menu menu = menuWith(meats({200, 101}));
    menu.products = {};
    for (int id = 101; id <= 210; ++id)
        menu.products.append(samplefile::product(id, u"P%1"_s.arg(id)));
    OpenEditor editor(menu);
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        const QListWidget &list = allProducts(dialog);
        QCOMPARE(list.count(), 110);
        QCOMPARE(list.item(0)->text(), u"  1 P101"_s);
        QCOMPARE(list.item(9)->text(), u" 10 P110"_s);
        QCOMPARE(list.item(99)->text(), u"100 P200"_s);
        QCOMPARE(list.item(99)->data(1).toInt(), 200);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 P200*"_s, u"  2 P101"_s}));
        QCOMPARE(members(dialog).item(1)->data(1).toInt(), 101);
        cancel(dialog);
    });
}

void TestGroupEdit::rowsFollowTheCabinet()
{
    const QJsonObject zpv{{u"cabinetType"_s, u"ZPV"_s}, {u"cabinetModel"_s, u"ZPV43"_s}};
    OpenEditor editor(menuWith(meats({1}), samplefile::header(zpv)));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(labelText(dialog, "lblTemp1"), u"Temperature:"_s);
        for (const char *hidden : {"lblTemp2", "txtTemp2", "lblLidType", "txtLidType"})
            QVERIFY2(!isShown(dialog, hidden), hidden);
        for (const char *shown : {"lblTemp1", "txtTemp1", "lblZoneSplits", "txtZoneSplits"})
            QVERIFY2(isShown(dialog, shown), shown);
        cancel(dialog);
    });
}

void TestGroupEdit::fanSpeedFollowsItsSwitch()
{
    for (const bool enabled : {false, true}) {
        OpenEditor editor(menuWith(meats({1}), samplefile::header({{u"fanSpeedEnabled"_s, enabled}})));
        edit(editor, [enabled](GroupEdit &dialog, ModalAnswers &) {
            QCOMPARE(isShown(dialog, "lblFanSpeed"), enabled);
            QCOMPARE(isShown(dialog, "txtFanSpeed"), enabled);
            QCOMPARE(isShown(dialog, "widgetSpacer"), !enabled);
            QVERIFY(isShown(dialog, "txtLidType") && isShown(dialog, "txtTemp2"));
            QCOMPARE(labelText(dialog, "txtFanSpeed"), enabled ? u"60 RPM"_s : u"0 RPM"_s);
            cancel(dialog);
        });
    }
}

void TestGroupEdit::summaryOfEveryUnit_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("upper");
    QTest::addColumn<QString>("shown");
    QTest::newRow("°F") << 0 << 212 << u"212°F"_s;
    QTest::newRow("°C") << 1 << 212 << u"100°C"_s;
    QTest::newRow("none in °F") << 0 << 0 << u"0°F"_s;
    QTest::newRow("none in °C") << 1 << 0 << u"0°C"_s;
    QTest::newRow("an unknown unit") << 2 << 212 << u"212°F"_s;
}

void TestGroupEdit::summaryOfEveryUnit()
{
    QFETCH(int, unit);
    QFETCH(int, upper);
    QFETCH(QString, shown);
    QJsonObject header = samplefile::headerWithAllSwitches({{u"temperatureUnit"_s, unit}});
    OpenEditor editor(menuWith(meats({1}, {{u"upperTemp"_s, upper}, {u"lowerTemp"_s, 0}}), header));
    edit(editor, [&](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(summary(dialog),
                 (QStringList{shown, unit == 1 ? u"0°C"_s : u"0°F"_s, u"1/2"_s, u"60 RPM"_s, u"None"_s}));
        cancel(dialog);
    });
}

void TestGroupEdit::summaryOfEveryLid()
{
    const QList<std::pair<QString, QString>> lids{
        {u"Vented"_s, u"Vented"_s}, {u"Solid"_s, u"Solid"_s}, {u"None"_s, u"None"_s}, {u"?"_s, u"None"_s}};
    for (const auto &[stored, shown] : lids) {
        OpenEditor editor(menuWith(meats({1}, {{u"lidType"_s, stored}})));
        edit(editor, [&text = shown](GroupEdit &dialog, ModalAnswers &) {
            QCOMPARE(labelText(dialog, "txtLidType"), text);
            cancel(dialog);
        });
    }
}

void TestGroupEdit::unknownCabinetIsRefused()
{
    const TestFolder folder;
    const samplefile::Menu menu = menuWith(meats({1}), samplefile::header({{u"cabinetType"_s, u"XYZ"_s}}));
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    answers.expectBox(ModalAnswers::fileFault(u"File read canceled. Unkown configuration!"_s),
                      QMessageBox::Ok);
    MenuFile editor(folder.make(u"menu.json"_s, menu.bytes()));
    answers.expectBox(ModalAnswers::refusal(u"Unkown cabinet value!"_s), QMessageBox::Close);
    ProductInfo group;
    GroupEdit dialog(group, &editor);
    QVERIFY(answers.allAnswered());
    QCOMPARE(dialog.exec(), int(QDialog::Rejected)); // shown, it would be an unexpected dialog
}

void TestGroupEdit::faultsComeInOrder()
{
    OpenEditor editor(menuWith(emptyGroup()));
    const QJsonObject before = savedGroup(editor);
    edit(editor, [&](GroupEdit &dialog, ModalAnswers &answers) {
        ui::type(dialog, "txtName", {});
        answers.expectBox(ModalAnswers::entryFault(u"Group name is empty!"_s), QMessageBox::Close);
        save(dialog);
        QVERIFY(dialog.isVisible());
        ui::type(dialog, "txtName", u" "_s);
        answers.expectBox(ModalAnswers::entryFault(u"Product list is empty!"_s), QMessageBox::Close);
        save(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(savedGroup(editor), before);
        add(dialog, 0);
        save(dialog);
    });
    QCOMPARE(savedGroup(editor), samplefile::group(9, u" "_s, {1}, {{u"fanSpeed"_s, 0}}));
}

void TestGroupEdit::everythingIsSaved()
{
    samplefile::Menu menu = menuWith(emptyGroup(), samplefile::headerWithAllSwitches());
    const QJsonObject settings{{u"upperTemp"_s, 180},
                               {u"lowerTemp"_s, 170},
                               {u"fanSpeed"_s, 900},
                               {u"zoneSplits"_s, u"1/1"_s},
                               {u"lidType"_s, u"Vented"_s}};
    menu.products = {samplefile::product(1, u"Bacon"_s, settings),
                     samplefile::product(2, u"Chili"_s, settings)};
    OpenEditor editor(menu);
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Sides"_s);
        add(dialog, 1);
        QCOMPARE(summary(dialog), (QStringList{u"180°F"_s, u"170°F"_s, u"1/1"_s, u"900 RPM"_s, u"Vented"_s}));
        add(dialog, 0);
        ui::clickRow(members(dialog), 1);
        ui::clickRowBox(members(dialog), 1);
        save(dialog);
    });
    QJsonObject expected = samplefile::group(9, u"Sides"_s, {2, 1}, settings);
    expected.insert(u"defaultProd"_s, 1);
    QCOMPARE(savedGroup(editor), expected);
}

void TestGroupEdit::celsiusIsOnlyShown()
{
    OpenEditor editor(menuWith(emptyGroup(), samplefile::header({{u"temperatureUnit"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        add(dialog, 2);
        QCOMPARE(labelText(dialog, "txtTemp1"), u"99°C"_s);
        QCOMPARE(labelText(dialog, "txtTemp2"), u"93°C"_s);
        save(dialog);
    });
    QCOMPARE(savedGroup(editor).value(u"upperTemp"_s).toInt(), 210);
    QCOMPARE(savedGroup(editor).value(u"lowerTemp"_s).toInt(), 200);
}

void TestGroupEdit::zpvSavesNoLid()
{
    const QJsonObject zpv{{u"cabinetType"_s, u"ZPV"_s}, {u"cabinetModel"_s, u"ZPV23"_s}};
    OpenEditor editor(menuWith(meats({1}, {{u"lidType"_s, u"Solid"_s}}), samplefile::header(zpv)));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) { save(dialog); });
    QCOMPARE(savedGroup(editor).value(u"lidType"_s).toString(), QString());
}

void TestGroupEdit::cancelChangesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestGroupEdit::cancelChangesNothing()
{
    QFETCH(bool, escape);
    OpenEditor editor(menuWith(meats({1, 2})));
    const QJsonObject before = editor.saved();
    edit(editor, [escape](GroupEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Other"_s);
        remove(dialog, 0);
        add(dialog, 3);
        ui::clickRow(members(dialog), 1);
        ui::clickRowBox(members(dialog), 1);
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            cancel(dialog);
    });
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.groups().item(0)->text(), u"  1 Meats"_s);
}

void TestGroupEdit::enterSaves()
{
    OpenEditor editor(menuWith(meats({1})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        ui::type(dialog, "txtName", u"Other"_s);
        QTest::keyClick(&ui::get<QLineEdit>(dialog, "txtName"), Qt::Key_Return);
    });
    QCOMPARE(savedGroup(editor).value(u"groupName"_s).toObject(), samplefile::names(u"Other"_s));
}

QTEST_MAIN(TestGroupEdit)
#include "tst_groupedit.moc"
