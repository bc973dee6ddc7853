// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include "tests/gui/detaillabels.h"
#include "tests/support/everywindow.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"
#include "widgets/binbutton.h"

using namespace Qt::StringLiterals;

namespace {

QString className(const QWidget &window)
{
    return QString::fromLatin1(window.metaObject()->className());
}

const QStringList valueLabels{u"lblVersion"_s, u"lblSaved"_s, u"lblPlace"_s, u"lblDemand"_s};

// What names the parts of a window: neither the values that it shows nor what bins hold.
QStringList namingTexts(const QWidget &part)
{
    QStringList texts;
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&part)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    } else if (const auto *box = qobject_cast<const QGroupBox *>(&part)) {
        texts.append(box->title());
    } else if (qobject_cast<const QAbstractButton *>(&part) && !qobject_cast<const BinButton *>(&part)) {
        texts.append(static_cast<const QAbstractButton &>(part).text());
    } else if (const auto *label = qobject_cast<const QLabel *>(&part)) {
        if (part.objectName().startsWith("lbl"_L1) && !valueLabels.contains(part.objectName()))
            texts.append(label->text());
    }
    return texts;
}

// In the order in which the parts were made, which is that of the form.
QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    const QList<QWidget *> parts = window.findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (!part->objectName().isEmpty() && !part->objectName().startsWith("qt_"_L1))
            texts.append(namingTexts(*part));
    }
    texts.removeAll(QString());
    return texts;
}

const QStringList listButtons{u"Add"_s, u"Edit"_s, u"Duplicate"_s, u"Delete"_s, u"Multiple Selection"_s};

QStringList timerBarDetails(const QString &shortName)
{
    return {u"Product Name:"_s,      u"%1 Name:"_s.arg(shortName), u"Upper Temperature:"_s,
            u"Lower Temperature:"_s, u"Holding Time:"_s,           u"Cook More Alert Time:"_s};
}

const QString daypartHint = u"Click a bin to assign it. Hold a filled bin to clear bins."_s;

const QString binPlan = u"Bin Plan…"_s;

QStringList laneTexts()
{
    QStringList texts{u"Lanes"_s, u"Close"_s, u"Temperature Unit"_s, u"°F"_s,
                      u"°C"_s,    u"Lanes"_s, u"Temperature"_s,      u"Fan Speed"_s};
    for (int lane = 1; lane <= 4; ++lane)
        texts.append({u"Lane %1"_s.arg(lane), u"°F"_s, u"RPM"_s});
    return texts;
}

// Later pages of the tabs were made first.
QStringList editorTexts(const QString &cabinet)
{
    const QStringList dayparts{u"Day Part"_s,  u"In Use"_s, u"Add"_s,    u"Edit"_s,
                               u"Duplicate"_s, u"Delete"_s, u"Remove"_s, u"Cancel"_s,
                               daypartHint,    binPlan,     u"Zone 1"_s, u"Zone 2"_s};
    const QStringList groups = listButtons + QStringList{u"Products:"_s, u"Group"_s} + detailLabels;
    return QStringList{cabinet, u"Configuration"_s, u"Close"_s, u"Products"_s, u"Groups"_s, u"Day Parts"_s} +
           dayparts + groups + listButtons + QStringList{u"Product"_s} + detailLabels;
}

QStringList timerBarEditorTexts(const QString &cabinet)
{
    return QStringList{cabinet,       u"Configuration"_s, u"Close"_s,  u"Products"_s, u"Day Parts"_s,
                       u"Day Part"_s, u"Copy From…"_s,    u"Remove"_s, u"Cancel"_s,   daypartHint,
                       binPlan,       u"Pair 1"_s,        u"Pair 2"_s} +
           listButtons + QStringList{u"Export"_s, u"Product"_s} + timerBarDetails(u"Short"_s);
}

const QStringList configurationTexts{u"Unit Type"_s,
                                     u"Unit Model"_s,
                                     u"Fan Speed Enabled"_s,
                                     u"Reset Time Enabled"_s,
                                     u"Product Id Eabled"_s,
                                     u"Timer Color Enabled"_s,
                                     u"Temperature Unit"_s,
                                     u"°F"_s,
                                     u"°C"_s,
                                     u"Cancel"_s,
                                     u"Save"_s};
const QStringList productTexts{u"Id"_s,
                               u"Name"_s,
                               u"Upper Temperature (°F)"_s,
                               u"Lower Temperature (°F)"_s,
                               u"Hold Time"_s,
                               u"Cook More Alert Time"_s,
                               u"Reset Time"_s,
                               u"Fan Speed (RPM)"_s,
                               u"Zone Splits"_s,
                               u"Lid Type"_s,
                               u"Bottom Type"_s,
                               u"Timer Color"_s,
                               u"SampleText"_s,
                               u"Cancel"_s,
                               u"Save"_s};
const QString onlyFits = u"Only what fits"_s;

const QStringList groupTexts{u"Name"_s,
                             u"All Products"_s,
                             onlyFits,
                             u"Group Products (Check default product)"_s,
                             u"Upper Temperature:"_s,
                             u"Lower Temperature:"_s,
                             u"Zone Splits:"_s,
                             u"Fan Speed:"_s,
                             u"Lid Type:"_s,
                             u"Cancel"_s,
                             u"Save"_s};

/// By class; of a window that comes in two ways those of the first one.
QMap<QString, QStringList> expectedTexts()
{
    const QStringList select{u"Cancel"_s, u"Select"_s};
    return {
        {u"MainWindow"_s, {}},
        {u"SelectProductLine"_s, {u"Select Product Line"_s, u"Cancel"_s, u"Save"_s}},
        {u"AboutApp"_s, {u"Varno Holding Plexora"_s, u"OK"_s}},
        {u"Configuration"_s, configurationTexts},
        {u"ProductEdit"_s, productTexts},
        {u"TimerColorPicker"_s, {}},
        {u"GroupEdit"_s, groupTexts},
        {u"DaypartEdit"_s, {u"Name"_s, u"Cancel"_s, u"Save"_s}},
        {u"AssignDaypartItem"_s, QStringList{onlyFits} + detailLabels + select},
        {u"CopyBins"_s, {u"Take over the bins of"_s, u"Cancel"_s, u"Copy"_s}},
        {u"MenuInspection"_s, {u"Close"_s, u"Go To"_s}},
        {u"MenuFile"_s, editorTexts(u"Cabinet: QHX KTR34, °F"_s)},
        {u"SvrxMenuFile"_s, laneTexts()},
        {u"TimerBarConfig"_s,
         {u"Unit Model"_s, u"Temperature Unit"_s, u"°F"_s, u"°C"_s, u"Cancel"_s, u"Save"_s}},
        {u"TimerBarProductEdit"_s,
         {u"Product Name"_s, u"Short Name"_s, u"Upper Temperature (°C)"_s, u"Lower Temperature (°C)"_s,
          u"Hold Time"_s, u"Cook More Alert Time"_s, u"Cancel"_s, u"Save"_s}},
        {u"TimerBarDaypartAssignItem"_s, QStringList{onlyFits} + timerBarDetails(u"Shor"_s) + select},
        {u"TimerBarMenuFile"_s, timerBarEditorTexts(u"Cabinet: Timer Bar KTR34, °C"_s)},
    };
}

} // namespace

/// The words that name the parts of the windows, some of them misspelt for good.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void partsHaveTheirNames();
};

void TestTexts::partsHaveTheirNames()
{
    const QMap<QString, QStringList> expected = expectedTexts();
    QStringList seen;
    QStringList differences;
    for (const WindowKind &kind : everyWindow()) {
        const OpenWindow open(kind);
        const QString name = className(open.window());
        if (seen.contains(name))
            continue;
        seen.append(name);
        QVERIFY2(expected.contains(name), qPrintable(name));
        const QString difference = differenceOf(textsOf(open.window()), expected.value(name));
        if (!difference.isEmpty())
            differences.append(name + u": "_s + difference);
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));
    QCOMPARE(seen.size(), expected.size());
}

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
