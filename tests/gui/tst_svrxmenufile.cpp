// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/openlaneeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray fourLanes = "T1=150,T2=400,T3=375,T4=211,F1=1500,F2=3200,F3=1800,F4=2000";

} // namespace

/// The editor of a lane configuration: what it shows and what it keeps.
class TestSvrxMenuFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void newConfigurationShowsTheDefaults();
    void laneCounts_data();
    void laneCounts();
    void enteredValuesAreSaved();
    void laneCountKeepsTheValues();
    void rowsInUseAreEnabled_data();
    void rowsInUseAreEnabled();
    void fileIsShown();
    void readingAgainShowsTheFile();
    void faultWhileReadingAgainChangesNothing();
};

void TestSvrxMenuFile::slotsAreInOrder()
{
    QStringList expected{u"closeEvent(QCloseEvent* event)"_s,
                         u"reject()"_s,
                         u"readMenuFile()"_s,
                         u"writeEolProdMenuFile(QString prodMenuFileName)"_s,
                         u"updateTemperatureLimits()"_s,
                         u"on_comboModelSelect_currentIndexChanged(int index)"_s,
                         u"on_rbTempUnitF_clicked()"_s,
                         u"on_rbTempUnitC_clicked()"_s};
    for (const QString &box : {u"FanSpeed"_s, u"Temperature"_s}) {
        for (int lane = 1; lane <= 4; ++lane)
            expected.append(u"on_num%1%2_valueChanged(int arg1)"_s.arg(box).arg(lane));
    }
    QCOMPARE(ownSlots(SvrxMenuFile::staticMetaObject), expected);
}

void TestSvrxMenuFile::newConfigurationShowsTheDefaults()
{
    OpenLaneEditor editor;
    QVERIFY((*editor).isMenuValid());
    QCOMPARE((*editor).filePath(), QString());
    QCOMPARE((*editor).windowTitle(), u"Menu File - "_s);
    QCOMPARE(ui::get<QComboBox>(*editor, "comboModelSelect").currentText(), u"Double Lane"_s);
    QVERIFY(ui::get<QRadioButton>(*editor, "rbTempUnitF").isChecked());
    for (int lane = 1; lane <= 4; ++lane) {
        QCOMPARE(editor.temperature(lane).value(), 375);
        QCOMPARE(editor.fanSpeed(lane).value(), 1800);
        QCOMPARE(textOf(*editor, "lblTemperatureUnit", lane), u"°F"_s);
        QCOMPARE(textOf(*editor, "lblFanSpeedUnit", lane), u"RPM"_s);
        QCOMPARE(editor.temperatureNote(lane) + editor.fanSpeedNote(lane), QString());
    }
    QCOMPARE(editor.saved(), QByteArray("T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0"));
}

void TestSvrxMenuFile::laneCounts_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("Single Lane") << QByteArray("T1=375,T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0");
    QTest::newRow("Double Lane") << QByteArray("T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0");
    QTest::newRow("Triple Lane") << QByteArray("T1=375,T2=375,T3=375,T4=0,F1=1800,F2=1800,F3=1800,F4=0");
    QTest::newRow("Quad Lane") << QByteArray("T1=375,T2=375,T3=375,T4=375,F1=1800,F2=1800,F3=1800,F4=1800");
}

void TestSvrxMenuFile::laneCounts()
{
    QFETCH(const QByteArray, contents);
    OpenLaneEditor editor;
    editor.chooseLanes(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(editor.saved(), contents);
}

void TestSvrxMenuFile::enteredValuesAreSaved()
{
    OpenLaneEditor editor;
    editor.chooseLanes(u"Quad Lane"_s);
    for (int lane = 1; lane <= 4; ++lane) {
        ui::type(editor.temperature(lane), QString::number(200 + lane));
        ui::type(editor.fanSpeed(lane), QString::number(2000 + lane));
    }
    QCOMPARE(editor.saved(), QByteArray("T1=201,T2=202,T3=203,T4=204,F1=2001,F2=2002,F3=2003,F4=2004"));
}

void TestSvrxMenuFile::laneCountKeepsTheValues()
{
    OpenLaneEditor editor(fourLanes);
    editor.chooseLanes(u"Single Lane"_s);
    QCOMPARE(editor.saved(), QByteArray("T1=150,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0"));
    editor.chooseUnit("rbTempUnitC");
    for (int lane = 2; lane <= 4; ++lane)
        QVERIFY(editor.temperature(lane).isVisible());
    editor.chooseLanes(u"Quad Lane"_s);
    QCOMPARE(editor.saved(), fourLanes);
}

void TestSvrxMenuFile::rowsInUseAreEnabled_data()
{
    QTest::addColumn<int>("inUse");
    QTest::newRow("Single Lane") << 1;
    QTest::newRow("Double Lane") << 2;
    QTest::newRow("Triple Lane") << 3;
    QTest::newRow("Quad Lane") << 4;
}

void TestSvrxMenuFile::rowsInUseAreEnabled()
{
    QFETCH(const int, inUse);
    OpenLaneEditor editor(fourLanes);
    editor.chooseLanes(u"Single Lane"_s);
    editor.chooseLanes(QString::fromLatin1(QTest::currentDataTag()));
    for (int lane = 1; lane <= 4; ++lane) {
        QCOMPARE(editor.temperature(lane).isEnabled(), lane <= inUse);
        QCOMPARE(editor.fanSpeed(lane).isEnabled(), lane <= inUse);
        for (const char *label : {"lblLane", "lblTemperatureUnit", "lblFanSpeedUnit"}) {
            const QByteArray name = label + QByteArray::number(lane);
            QCOMPARE(ui::get<QLabel>(*editor, name.constData()).isEnabled(), lane <= inUse);
        }
        QCOMPARE(editor.temperature(lane).value(), QList({150, 400, 375, 211})[lane - 1]);
    }
}

void TestSvrxMenuFile::fileIsShown()
{
    OpenLaneEditor editor("T1=151,T2=152,T3=153,T4=0,F1=1501,F2=1502,F3=1503,F4=0");
    QVERIFY((*editor).isMenuValid());
    QCOMPARE((*editor).windowTitle(), u"Menu File - a.txt"_s);
    QCOMPARE(ui::get<QComboBox>(*editor, "comboModelSelect").currentText(), u"Triple Lane"_s);
    QVERIFY(ui::get<QRadioButton>(*editor, "rbTempUnitF").isChecked());
    for (int lane = 1; lane <= 3; ++lane) {
        QCOMPARE(editor.temperature(lane).value(), 150 + lane);
        QCOMPARE(editor.fanSpeed(lane).value(), 1500 + lane);
    }
    QCOMPARE(editor.temperature(4).value(), 375);
    QCOMPARE(editor.fanSpeed(4).value(), 1800);
    QVERIFY(!editor.temperature(4).isEnabled());
}

void TestSvrxMenuFile::readingAgainShowsTheFile()
{
    const TestFolder folder;
    folder.make(u"a.txt"_s, lanefile::text(fourLanes));
    SvrxMenuFile editor(folder.path(u"a.txt"_s));
    temperatureBox(editor, 1).setValue(160);
    folder.make(u"a.txt"_s, lanefile::text("T1=250,T2=0,T3=0,T4=0,F1=2500,F2=0,F3=0,F4=0"));
    QVERIFY(editor.readMenuFile());
    QCOMPARE(temperatureBox(editor, 1).value(), 250);
    QCOMPARE(fanSpeedBox(editor, 1).value(), 2500);
    QCOMPARE(ui::get<QComboBox>(editor, "comboModelSelect").currentText(), u"Single Lane"_s);
    QVERIFY(!temperatureBox(editor, 2).isEnabled());
}

void TestSvrxMenuFile::faultWhileReadingAgainChangesNothing()
{
    const TestFolder folder;
    folder.make(u"a.txt"_s, lanefile::text(fourLanes));
    SvrxMenuFile editor(folder.path(u"a.txt"_s));
    temperatureBox(editor, 1).setValue(160);
    folder.make(u"a.txt"_s, lanefile::text(fourLanes, "0000"));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Invalid file identifier value"_s), QMessageBox::Ok);
    QVERIFY(!editor.readMenuFile());
    QCOMPARE(temperatureBox(editor, 1).value(), 160);
    QCOMPARE(temperatureBox(editor, 2).value(), 400);
    QCOMPARE(ui::get<QComboBox>(editor, "comboModelSelect").currentText(), u"Quad Lane"_s);
}

QTEST_MAIN(TestSvrxMenuFile)
#include "tst_svrxmenufile.moc"
