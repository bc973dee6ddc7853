// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QSpinBox>

#include "tests/gui/guide.h"
#include "tests/support/lanefile.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray contents = "T1=151,T2=399,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0";
const QByteArray production = "a5a5081101070800970708018fffffffffffffffff3e2b";

void newLanes(Guide &guide)
{
    guide.expectChoice(Line::Lanes);
    guide.newMenu();
}

} // namespace

/// What the user guide tells of lane cabinets.
class TestGuideLanes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void configurationIsMadeAndSaved();
    void configurationIsChangedAndSaved();
    void unitIsChosen();
    void lanesComeBackWithWhatTheyHold();
    void otherNamesAreRefused();
};

// Saving under a name writes both files.
void TestGuideLanes::configurationIsMadeAndSaved()
{
    Guide guide;
    newLanes(guide);
    keyboard::enter(u"numTemperature1"_s, u"151"_s);
    keyboard::enter(u"numFanSpeed1"_s, u"1800"_s);
    keyboard::enter(u"numTemperature2"_s, u"399"_s);
    keyboard::enter(u"numFanSpeed2"_s, u"1800"_s);
    QCOMPARE(guide.saved(u"svrxconfig_a.txt"_s), lanefile::text(contents));
    QCOMPARE(contentOf(guide.path(u"svrxprod_a.txt"_s)), production);
}

// A later save writes the configuration only.
void TestGuideLanes::configurationIsChangedAndSaved()
{
    Guide guide;
    guide.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    keyboard::choose(u"comboModelSelect"_s, u"Quad Lane"_s);
    keyboard::tabTo(u"numFanSpeed2"_s);
    keyboard::pressOften(Qt::Key_Up, 3);
    keyboard::enter(u"numTemperature4"_s, u"200"_s);
    keyboard::enter(u"numFanSpeed4"_s, u"3200"_s);
    guide.save();
    QCOMPARE(contentOf(guide.path(u"svrxconfig_a.txt"_s)),
             lanefile::text("T1=151,T2=399,T3=375,T4=200,F1=1800,F2=1803,F3=1800,F4=3200"));
    QCOMPARE(guide.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
}

void TestGuideLanes::unitIsChosen()
{
    Guide guide;
    newLanes(guide);
    keyboard::tabTo(u"rbTempUnitF"_s);
    keyboard::press(Qt::Key_Right);
    QVERIFY(guide.get<QAbstractButton>("rbTempUnitC").isChecked());
    keyboard::enter(u"numTemperature1"_s, u"66"_s);
    keyboard::enter(u"numTemperature2"_s, u"204"_s);
    keyboard::tabBackTo(u"rbTempUnitC"_s);
    keyboard::press(Qt::Key_Left);
    QCOMPARE(guide.get<QSpinBox>("numTemperature1").value(), 151);
    QCOMPARE(guide.saved(u"svrxconfig_a.txt"_s), lanefile::text(contents));
}

void TestGuideLanes::lanesComeBackWithWhatTheyHold()
{
    Guide guide;
    guide.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    keyboard::choose(u"comboModelSelect"_s, u"Single Lane"_s);
    QVERIFY(!guide.get<QWidget>("numTemperature2").isEnabled());
    QCOMPARE(guide.saved(u"svrxconfig_one.txt"_s),
             lanefile::text("T1=151,T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0"));
    keyboard::choose(u"comboModelSelect"_s, u"Double Lane"_s);
    QCOMPARE(guide.saved(u"svrxconfig_two.txt"_s), lanefile::text(contents));
}

void TestGuideLanes::otherNamesAreRefused()
{
    Guide guide;
    newLanes(guide);
    guide.expectFileName(u"a.txt"_s);
    guide.expectBox(u"Error"_s, u"File name must start with \"svrxconfig_\" to load in a Savorix unit!"_s,
                    QMessageBox::Ok);
    keyboard::menu(Qt::Key_F, Qt::Key_A);
    QVERIFY(guide.allAnswered());
    QVERIFY(guide.folder().names().isEmpty());
}

int main(int argc, char *argv[])
{
    return screens::runOnLaptops<TestGuideLanes>(argc, argv);
}

#include "tst_guide_lanes.moc"
