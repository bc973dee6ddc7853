// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>
#include <QSpinBox>

#include "holding/configuration.h"
#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "holding/timercolorpicker.h"
#include "tests/gui/guidemenu.h"

using namespace Qt::StringLiterals;

namespace {

QStringList namesIn(const QJsonObject &menu, const QString &list, const QString &nameKey)
{
    QStringList names;
    const QJsonArray entries = menu.value(list).toArray();
    for (const QJsonValue &entry : entries)
        names.append(entry[nameKey][u"eng_USA"_s].toString());
    return names;
}

QStringList savedProducts(Guide &guide)
{
    return namesIn(guide::savedMenu(guide), u"products"_s, u"productName"_s);
}

QStringList savedGroups(Guide &guide)
{
    return namesIn(guide::savedMenu(guide), u"productGroups"_s, u"groupName"_s);
}

void expectDelete(Guide &guide, const QString &question)
{
    guide.expectBox(u"Delete"_s, question, QMessageBox::Yes);
}

const QJsonObject allSwitches{{u"fanSpeedEnabled"_s, true},
                              {u"resetTimeEnabled"_s, true},
                              {u"timerColorEnabled"_s, true},
                              {u"prodcutIdEnabled"_s, true}};

} // namespace

/// What the user guide tells of the cabinet, the products and the groups of a holding-cabinet menu.
class TestGuideHolding : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void menuIsStarted();
    void cabinetIsChanged();
    void productIsAdded();
    void productIsEdited();
    void productIsDuplicatedAndDeleted();
    void severalProductsAreDeleted();
    void selectionIsCancelled();
    void productIsFound();
    void wrongTimeIsCorrected();
    void groupIsAdded();
    void groupIsEdited();
    void groupsAreDuplicatedAndDeleted();
};

void TestGuideHolding::menuIsStarted()
{
    Guide guide;
    guide.expectChoice(Line::Holding);
    guide.expect<Configuration>([] {
        keyboard::choose(u"comboUnitType"_s, u"QHX"_s);
        keyboard::choose(u"comboUnitModel"_s, u"KTR82"_s);
        keyboard::pushButton(u"checkBoxFanSpeedEnabled"_s);
        keyboard::pushButton(u"checkBoxResetTimeEnabled"_s);
        keyboard::pushButton(u"checkBoxProductIdEditEnabled"_s);
        keyboard::pushButton(u"checkBoxTimerColorEnabled"_s);
        keyboard::tabTo(u"rbTempUnitF"_s);
        keyboard::press(Qt::Key_Right);
        keyboard::pushButton(u"btnAccept"_s);
    });
    guide.newMenu();
    const QByteArray saved = guide.saved(u"menu.json"_s);
    QJsonObject changes = allSwitches;
    changes.insert(u"temperatureUnit"_s, 1);
    QCOMPARE(guide::objectOf(saved, u"header"_s), bins::headerOf(u"KTR82"_s, changes));
    QCOMPARE(guide::objectOf(saved, u"menu"_s).value(u"products"_s).toArray().size(), 30);
}

void TestGuideHolding::cabinetIsChanged()
{
    Guide guide;
    guide::openMenu(guide);
    guide.expect<Configuration>([] {
        keyboard::choose(u"comboUnitModel"_s, u"KTR33"_s);
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Warning"_s,
                    u"Bins per zone configuration is changed. All daypart assignments are removed."_s,
                    QMessageBox::Ok);
    keyboard::pushButton(u"btnConfig"_s);
    const QByteArray saved = guide.saved(u"saved.json"_s);
    QCOMPARE(guide::objectOf(saved, u"header"_s), bins::headerOf(u"KTR33"_s));
    QVERIFY(!samplefile::binsOf(guide::objectOf(saved, u"menu"_s), 0).contains(2));
}

// A new product keeps the id that the menu gives it.
void TestGuideHolding::productIsAdded()
{
    Guide guide;
    guide::openMenu(guide, allSwitches);
    guide.expect<ProductEdit>([] {
        keyboard::enter(u"numProductId"_s, u"42"_s);
        keyboard::enter(u"txtName"_s, u"Hash Browns"_s);
        keyboard::enter(u"numTemp1"_s, u"215"_s);
        keyboard::enter(u"numTemp2"_s, u"195"_s);
        keyboard::enter(u"timeHoldTime"_s, u"0200"_s);
        keyboard::enter(u"timeWarningTime"_s, u"0015"_s);
        keyboard::enter(u"timeResetTime"_s, u"0005"_s);
        keyboard::enter(u"numFanSpeed"_s, u"80"_s);
        keyboard::choose(u"comboZoneSplits"_s, u"1/1"_s);
        keyboard::choose(u"comboLidType"_s, u"Solid"_s);
        keyboard::choose(u"comboBottomType"_s, u"False"_s);
        keyboard::pushButton(u"btnTimerColor"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    guide.expect<TimerColorPicker>([] {
        keyboard::pressOften(Qt::Key_Down, 2);
        keyboard::press(Qt::Key_Right);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnAddProduct"_s);
    const QJsonObject added = guide::savedMenu(guide).value(u"products"_s).toArray().last().toObject();
    QCOMPARE(added, samplefile::product(6, u"Hash Browns"_s,
                                        {{u"upperTemp"_s, 215},
                                         {u"lowerTemp"_s, 195},
                                         {u"holdingTime"_s, 7200},
                                         {u"warningTime"_s, 900},
                                         {u"resetTime"_s, 300},
                                         {u"fanSpeed"_s, 80},
                                         {u"zoneSplits"_s, u"1/1"_s},
                                         {u"lidType"_s, u"Solid"_s},
                                         {u"bottomType"_s, u"False"_s},
                                         {u"timerColor"_s, u"#707000"_s}}));
}

// The program tells what it has removed.
void TestGuideHolding::productIsEdited()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Half"_s);
    guide.expect<ProductEdit>([] {
        keyboard::enter(u"numTemp1"_s, u"215"_s);
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Warning"_s, u"Product has been removed from group(s) and daypart(s) assignemnts"_s,
                    QMessageBox::Ok);
    keyboard::press(Qt::Key_Return);
    const QJsonObject menu = guide::savedMenu(guide);
    QCOMPARE(menu.value(u"products"_s).toArray().at(1)[u"upperTemp"_s].toInt(), 215);
    QVERIFY(!samplefile::binsOf(menu, 0).contains(2));
}

void TestGuideHolding::productIsDuplicatedAndDeleted()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Most"_s);
    guide.expect<ProductEdit>([] {
        keyboard::enter(u"txtName"_s, u"More"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::pushButton(u"btnDuplicateProduct"_s);
    keyboard::find(u"listWidgetProducts"_s, u"Third"_s);
    expectDelete(guide, u"Delete selected product?"_s);
    keyboard::pushButton(u"btnDeleteProduct"_s);
    QCOMPARE(keyboard::focused().objectName(), u"listWidgetProducts"_s);
    QCOMPARE(savedProducts(guide), (QStringList{u"Half"_s, u"Most"_s, u"Whole"_s, u"More"_s}));
}

void TestGuideHolding::severalProductsAreDeleted()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::pushButton(u"btnSelectMultiProduct"_s);
    keyboard::tabTo(u"listWidgetProducts"_s);
    keyboard::press(Qt::Key_Home);
    keyboard::press(Qt::Key_Space);
    keyboard::pressOften(Qt::Key_Down, 2);
    keyboard::press(Qt::Key_Space);
    expectDelete(guide, u"Delete all selected products?"_s);
    keyboard::pushButton(u"btnDeleteProduct"_s);
    QCOMPARE(savedProducts(guide), (QStringList{u"Half"_s, u"Whole"_s}));
}

void TestGuideHolding::selectionIsCancelled()
{
    Guide guide;
    guide::openMenu(guide);
    const auto &button = guide.get<QAbstractButton>("btnSelectMultiProduct");
    for (const bool escaped : {false, true}) {
        keyboard::pushButton(u"btnSelectMultiProduct"_s);
        QCOMPARE(button.text(), u"Cancel Selection"_s);
        keyboard::tabTo(u"listWidgetProducts"_s);
        keyboard::press(Qt::Key_End);
        keyboard::press(Qt::Key_Space);
        if (escaped)
            keyboard::press(Qt::Key_Escape);
        else
            keyboard::pushButton(u"btnSelectMultiProduct"_s);
        QCOMPARE(button.text(), u"Multiple Selection"_s);
    }
    QCOMPARE(savedProducts(guide).size(), 4);
}

void TestGuideHolding::productIsFound()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::enter(u"txtFindProducts"_s, u"OST"_s);
    keyboard::press(Qt::Key_Down);
    expectDelete(guide, u"Delete selected product?"_s);
    keyboard::tabBackTo(u"btnDeleteProduct"_s);
    keyboard::press(Qt::Key_Space);
    keyboard::press(Qt::Key_Escape);
    QVERIFY(guide.get<QLineEdit>("txtFindProducts").text().isEmpty());
    QCOMPARE(savedProducts(guide), (QStringList{u"Third"_s, u"Half"_s, u"Whole"_s}));
}

void TestGuideHolding::wrongTimeIsCorrected()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Whole"_s);
    guide.expect<ProductEdit>([] {
        keyboard::enter(u"timeHoldTime"_s, u"0005"_s);
        keyboard::press(Qt::Key_Return);
        keyboard::type(u"0600"_s); // the wrong time is selected
        keyboard::press(Qt::Key_Return);
    });
    guide.expectBox(u"Error"_s, u"Invalid hold time. Minimum value is 6 minutes!"_s, QMessageBox::Close);
    keyboard::press(Qt::Key_Return);
    QVERIFY(guide.allAnswered());
    QCOMPARE(guide::savedMenu(guide).value(u"products"_s).toArray().at(3)[u"holdingTime"_s].toInt(), 21600);
}

// "Third" has another zone split and is taken by itself; the group is of "Half" and a copy of it.
void TestGuideHolding::groupIsAdded()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::find(u"listWidgetProducts"_s, u"Half"_s);
    guide.expect<ProductEdit>([] {
        keyboard::enter(u"txtName"_s, u"Other Half"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::pushButton(u"btnDuplicateProduct"_s);
    keyboard::showPage(u"Groups"_s);
    guide.expect<GroupEdit>([] {
        keyboard::enter(u"txtName"_s, u"Both"_s);
        keyboard::find(u"listWidgetProducts"_s, u"Half"_s);
        keyboard::pushButton(u"btnAddProduct"_s);
        keyboard::find(u"listWidgetProducts"_s, u"Other"_s);
        keyboard::press(Qt::Key_Return);
        keyboard::tabTo(u"listWidgetGroupProducts"_s);
        keyboard::press(Qt::Key_End);
        keyboard::press(Qt::Key_Space); // makes it the default
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::pushButton(u"btnAddGroup"_s);
    const QJsonObject group = guide::savedMenu(guide).value(u"productGroups"_s).toArray().last().toObject();
    QCOMPARE(group, samplefile::group(7, u"Both"_s, {2, 6}, {{u"defaultProd"_s, 1}, {u"fanSpeed"_s, 0}}));
}

void TestGuideHolding::groupIsEdited()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::showPage(u"Groups"_s);
    keyboard::find(u"listWidgetGroups"_s, u"Halves"_s);
    guide.expect<GroupEdit>([] {
        keyboard::enter(u"txtName"_s, u"Thirds"_s);
        keyboard::tabTo(u"listWidgetGroupProducts"_s);
        keyboard::press(Qt::Key_Home);
        keyboard::pushButton(u"btnRemoveProduct"_s);
        keyboard::find(u"listWidgetProducts"_s, u"Third"_s);
        keyboard::press(Qt::Key_Return);
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::press(Qt::Key_Return);
    const QJsonObject group = guide::savedMenu(guide).value(u"productGroups"_s).toArray().first().toObject();
    QCOMPARE(group,
             samplefile::group(5, u"Thirds"_s, {1}, {{u"zoneSplits"_s, u"1/3"_s}, {u"fanSpeed"_s, 0}}));
}

void TestGuideHolding::groupsAreDuplicatedAndDeleted()
{
    Guide guide;
    guide::openMenu(guide);
    keyboard::showPage(u"Groups"_s);
    for (const QString &name : {u"Second"_s, u"Last"_s}) {
        keyboard::find(u"listWidgetGroups"_s, u"Halves"_s);
        guide.expect<GroupEdit>([name] {
            keyboard::enter(u"txtName"_s, name);
            keyboard::pushButton(u"btnSave"_s);
        });
        keyboard::pushButton(u"btnDuplicateGroup"_s);
    }
    keyboard::find(u"listWidgetGroups"_s, u"Second"_s);
    expectDelete(guide, u"Delete selected group?"_s);
    keyboard::pushButton(u"btnDeleteGroup"_s);
    QCOMPARE(savedGroups(guide), (QStringList{u"Halves"_s, u"Last"_s}));
    keyboard::pushButton(u"btnSelectMultiGroup"_s);
    keyboard::tabTo(u"listWidgetGroups"_s);
    keyboard::press(Qt::Key_Home);
    keyboard::press(Qt::Key_Space);
    expectDelete(guide, u"Delete all selected groups?"_s);
    keyboard::pushButton(u"btnDeleteGroup"_s);
    QCOMPARE(savedGroups(guide), QStringList{u"Last"_s});
}

int main(int argc, char *argv[])
{
    return screens::runOnLaptops<TestGuideHolding>(argc, argv);
}

#include "tst_guide_holding.moc"
