// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabBar>
#include <QWhatsThis>

#include "holding/productrules.h"
#include "lanes/laneconfiguration.h"
#include "model/timelimits.h"
#include "tests/support/everywindow.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/shownwidgets.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "timerbar/productrules.h"

using namespace Qt::StringLiterals;

/// Tool tips, "What's This?" and status tips.
class TestTips : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void controlsTellWhatTheyAreFor_data() { addWindowRows(); }
    void controlsTellWhatTheyAreFor();
    void tips_data();
    void tips();
    void whatsThisIsReadByKeyboard_data();
    void whatsThisIsReadByKeyboard();
    void limits_data();
    void limits();
    void limitsOfInputs_data();
    void limitsOfInputs();
    void everyMenuEntryHasAStatusTip();
    void tipsAreRepeatedInTheStatusBar_data() { addLineRows(); }
    void tipsAreRepeatedInTheStatusBar();
};

namespace {

// What the label of these says is all there is to say; Export is never shown.
const QStringList &plainControls()
{
    static const QStringList names{
        u"btnAccept"_s,        u"btnAddDaypart"_s,     u"btnAddGroup"_s,        u"btnAddProduct"_s,
        u"btnCancel"_s,        u"btnCopy"_s,           u"btnDeleteDaypart"_s,   u"btnDeleteGroup"_s,
        u"btnDeleteProduct"_s, u"btnEditDaypart"_s,    u"btnEditGroup"_s,       u"btnEditProduct"_s,
        u"btnExportFile"_s,    u"btnSave"_s,           u"btnSelect"_s,          u"comboProductLineSelect"_s,
        u"listWidgetGroups"_s, u"listWidgetMembers"_s, u"listWidgetProducts"_s,
    };
    return names;
}

bool acts(const QWidget &widget)
{
    return qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QListWidget *>(&widget);
}

// Bins and colours are told of by their content, parts of a control by the control.
bool needsNoTip(const QWidget &widget)
{
    const QString name = widget.objectName();
    return qobject_cast<const QTabBar *>(widget.parentWidget()) || name.isEmpty() ||
           name.startsWith("qt_"_L1) || name.startsWith("btnDaypartSelect"_L1) ||
           plainControls().contains(name);
}

const WindowKind &kindNamed(const char *name)
{
    const auto isMeant = [name](const WindowKind &kind) { return qstrcmp(kind.name, name) == 0; };
    const auto found = std::find_if(everyWindow().begin(), everyWindow().end(), isMeant);
    REQUIRE(found != everyWindow().end(), QString::fromLatin1(name));
    return *found;
}

} // namespace

void TestTips::controlsTellWhatTheyAreFor()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    QStringList silent;
    for (const QWidget *widget : open.window().findChildren<QWidget *>()) {
        if (acts(*widget) && !needsNoTip(*widget) && widget->toolTip().isEmpty() &&
            widget->whatsThis().isEmpty())
            silent.append(shown::describe(*widget));
    }
    QCOMPARE(silent.join(u'\n'), QString());
}

void TestTips::tips_data()
{
    QTest::addColumn<QByteArray>("window");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("words"); ///< in the tool tip or in "What's This?"
    const auto add = [](const char *window, const char *control, const QString &words) {
        QTest::addRow("%s, %s", window, control) << QByteArray(window) << QByteArray(control) << words;
    };
    add("product line", "btnAccept", u"Goes on to a new menu"_s);
    add("configuration", "comboUnitType", u"one temperature and no lid"_s);
    add("configuration", "comboUnitModel", u"empties the bins of all day parts"_s);
    add("configuration", "checkBoxFanSpeedEnabled", u"fan speed"_s);
    add("configuration", "checkBoxResetTimeEnabled", u"reset time"_s);
    add("configuration", "checkBoxProductIdEditEnabled", u"ids that the menu gave them"_s);
    add("configuration", "checkBoxTimerColorEnabled", u"color"_s);
    add("configuration", "rbTempUnitC", u"none is changed"_s);
    add("product, all fields", "numProductId", u"keeps the id"_s);
    add("product, all fields", "txtName", u"every language"_s);
    add("product, all fields", "numTemp1", u"only products of the same temperatures"_s);
    add("product, all fields", "timeWarningTime", u"asks for more to be cooked"_s);
    add("product, all fields", "numFanSpeed", u"only products of the same fan speed"_s);
    add("product, all fields", "comboZoneSplits", u"with 1/1 one does"_s);
    add("product, all fields", "comboLidType", u"same lid"_s);
    add("product, all fields", "comboBottomType", u"false bottom"_s);
    add("product, all fields", "btnTimerColor", u"crossed field stands for none"_s);
    add("group, all fields", "listWidgetGroupProducts", u"checked member is the group's default"_s);
    add("group, all fields", "listWidgetProducts", u"first member of a group fixes"_s);
    add("bin, all fields", "listWidgetProducts", u"cannot stand in this bin are greyed"_s);
    add("day part", "txtName", u"every language"_s);
    add("holding editor, all fields", "btnConfig", u"cabinet"_s);
    add("holding editor, all fields", "btnSelectMultiProduct", u"delete them together"_s);
    add("holding editor, all fields", "listWidgetMembers", u"checked member is the default of the group"_s);
    add("holding editor, all fields", "checkBoxDaypartInUse", u"whether this day part counts"_s);
    add("holding editor, all fields", "btnDaypartRemove", u"bins that are marked"_s);
    add("holding editor, all fields", "btnBinPlan", u"each day part that is in use"_s);
    add("Timer Bar editor", "btnBinPlan", u"each day part with a filled bin"_s);
    add("holding editor, things to look at", "btnFindings", u"does not fit together"_s);
    add("things to look at", "listWidgetFindings", u"Nothing is changed by looking"_s);
    add("things to look at", "btnGoTo", u"product, group or bin"_s);
    add("lane editor, new", "comboModelSelect", u"comes back"_s);
    add("Timer Bar configuration", "comboUnitModel", u"not written to the file"_s);
    add("Timer Bar product", "txtShortName", u"the bins of the cabinet show"_s);
    add("Timer Bar product", "timeHoldTime", u"whole minutes"_s);
    add("Timer Bar bin", "listWidgetProducts", u"temperature of the neighbour"_s);
}

void TestTips::tips()
{
    QFETCH(const QByteArray, window);
    QFETCH(const QByteArray, control);
    QFETCH(const QString, words);
    const OpenWindow open(kindNamed(window.constData()));
    const auto &widget = ui::get<QWidget>(open.window(), control.constData());
    const QString told = widget.toolTip() + u'\n' + widget.whatsThis();
    QVERIFY2(told.contains(words), qPrintable(told));
}

void TestTips::whatsThisIsReadByKeyboard_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const char *control : {"numTemp1", "timeWarningTime", "comboZoneSplits", "btnTimerColor"})
        QTest::newRow(control) << QByteArray(control);
}

void TestTips::whatsThisIsReadByKeyboard()
{
    QFETCH(const QByteArray, control);
    const OpenWindow open(kindNamed("product, all fields"));
    ui::get<QWidget>(open.window(), control.constData()).setFocus();
    const auto isShown = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->isVisible() && window->inherits("QWhatsThat");
        });
    };
    QVERIFY(!isShown());
    QTest::keyClick(open.window().windowHandle(), Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(isShown());
    QWhatsThis::hideText();
}

namespace {

using RangeOfUnit = TemperatureRange (*)(int unit);

QString temperatures(RangeOfUnit rangeOf)
{
    const TemperatureRange fahrenheit = rangeOf(unitFahrenheit);
    const TemperatureRange celsius = rangeOf(unitCelsius);
    return u"%1 to %2 °F, or %3 to %4 °C"_s.arg(fahrenheit.lowest)
        .arg(fahrenheit.highest)
        .arg(celsius.lowest)
        .arg(celsius.highest);
}

// The first and the last of a day's seconds that a rule accepts.
std::pair<int, int> acceptedTimes(QString (*faultOf)(int seconds))
{
    constexpr int day = 24 * 60 * 60;
    int first = 0;
    while (first < day && !faultOf(first).isEmpty())
        ++first;
    int last = day;
    while (last > first && !faultOf(last).isEmpty())
        --last;
    return {first, last};
}

QString holdTimes()
{
    const auto [first, last] = acceptedTimes(&holdTimeFault);
    REQUIRE(first % 60 == 0 && last % 3600 == 0);
    return u"%1 minutes to %2 hours"_s.arg(first / 60).arg(last / 3600);
}

QString resetTimes()
{
    const bool isAnHour = acceptedTimes(&resetTimeFault) == std::pair(0, 3599);
    return isAnHour ? u"Less than an hour"_s : u"(another limit)"_s;
}

QString alertTimes()
{
    const bool less = alertTimeFault(1000, 999).isEmpty() && !alertTimeFault(1000, 1000).isEmpty();
    return less ? u"Less than the hold time"_s : u"(another limit)"_s;
}

} // namespace

void TestTips::limits_data()
{
    QTest::addColumn<QByteArray>("window");
    QTest::addColumn<QStringList>("controls");
    QTest::addColumn<QString>("limits"); ///< as the rules have them
    const auto add = [](const char *window, const QStringList &controls, const QString &limits) {
        QTest::addRow("%s, %s", window, qPrintable(controls.constFirst()))
            << QByteArray(window) << controls << limits;
    };
    add("product, all fields", {u"numTemp1"_s, u"numTemp2"_s},
        temperatures(&holding::productTemperatureRange));
    add("product, fewest fields", {u"numTemp1"_s}, temperatures(&holding::productTemperatureRange));
    add("product, all fields", {u"timeHoldTime"_s}, holdTimes());
    add("product, all fields", {u"timeWarningTime"_s}, alertTimes());
    add("product, all fields", {u"timeResetTime"_s}, resetTimes());
    add("Timer Bar product", {u"numTempUpper"_s, u"numTempLower"_s},
        temperatures(&timerbar::productTemperatureRange));
    add("Timer Bar product", {u"timeHoldTime"_s}, holdTimes());
    add("Timer Bar product", {u"timeWarningTime"_s}, alertTimes());
    QStringList temperatureBoxes;
    QStringList fanSpeedBoxes;
    for (int lane = 1; lane <= lanes::maxLanes; ++lane) {
        temperatureBoxes.append(u"numTemperature%1"_s.arg(lane));
        fanSpeedBoxes.append(u"numFanSpeed%1"_s.arg(lane));
    }
    add("lane editor, new", temperatureBoxes, temperatures(&lanes::temperatureRange));
    add("lane editor, new", fanSpeedBoxes, u"%1 to %2 RPM"_s.arg(lanes::minFanSpeed).arg(lanes::maxFanSpeed));
}

void TestTips::limits()
{
    QFETCH(const QByteArray, window);
    QFETCH(const QStringList, controls);
    QFETCH(const QString, limits);
    const OpenWindow open(kindNamed(window.constData()));
    for (const QString &control : controls)
        QCOMPARE(ui::get<QWidget>(open.window(), qPrintable(control)).toolTip(), limits);
}

void TestTips::limitsOfInputs_data()
{
    QTest::addColumn<QByteArray>("window");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>(
        "limits"); ///< what the tool tip begins with; the input's own in place of numbers
    QTest::newRow("id") << QByteArray("product, all fields") << QByteArray("numProductId") << u"%1 to %2;"_s;
    QTest::newRow("fan speed") << QByteArray("product, all fields") << QByteArray("numFanSpeed")
                               << u"%1 to %2 RPM"_s;
    QTest::newRow("name") << QByteArray("Timer Bar product") << QByteArray("txtProductName")
                          << u"At most %1 English letters, digits and blanks"_s;
    QTest::newRow("short name") << QByteArray("Timer Bar product") << QByteArray("txtShortName")
                                << u"At most %1 English letters and digits"_s;
}

void TestTips::limitsOfInputs()
{
    QFETCH(const QByteArray, window);
    QFETCH(const QByteArray, control);
    QFETCH(QString, limits);
    const OpenWindow open(kindNamed(window.constData()));
    const auto &input = ui::get<QWidget>(open.window(), control.constData());
    if (const auto *box = qobject_cast<const QSpinBox *>(&input))
        limits = limits.arg(box->minimum()).arg(box->maximum());
    else
        limits = limits.arg(static_cast<const QLineEdit &>(input).maxLength());
    QVERIFY2(input.toolTip().startsWith(limits), qPrintable(input.toolTip()));
}

void TestTips::everyMenuEntryHasAStatusTip()
{
    Program program;
    int entries = 0;
    for (const QAction *menu : program.window().menuBar()->actions()) {
        for (const QAction *entry : menu->menu()->actions()) {
            entries += entry->isSeparator() ? 0 : 1;
            QVERIFY2(entry->isSeparator() || !entry->statusTip().isEmpty(), qPrintable(entry->text()));
        }
    }
    QCOMPARE(entries, 6);
}

// While the pointer is on a control.
void TestTips::tipsAreRepeatedInTheStatusBar()
{
    QFETCH(const Line, line);
    Program program;
    const LineFile &file = namesOf(line).files.constFirst();
    program.open(u"svrxconfig_a."_s + file.suffix, file.sample());
    const auto &close = ui::get<QWidget>(*program.subWindow(), "btnClose");
    auto &status = ui::get<QStatusBar>(program.window(), "statusbar");
    QWindow *window = program.window().windowHandle();
    const auto &bar = *program.window().menuBar();
    QTest::mouseMove(window, bar.geometry().bottomRight() - QPoint(2, 2));
    QCOMPARE(status.currentMessage(), QString());
    QTest::mouseMove(window, close.mapTo(&program.window(), close.rect().center()));
    QVERIFY(!close.toolTip().isEmpty());
    QCOMPARE(status.currentMessage(), close.toolTip());
    QTest::mouseMove(window, bar.geometry().bottomRight() - QPoint(2, 2));
    QCOMPARE(status.currentMessage(), QString());
}

QTEST_MAIN(TestTips)
#include "tst_tips.moc"
