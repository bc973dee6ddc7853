// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>

#include "holding/assigndaypartitem.h"
#include "holding/configuration.h"
#include "holding/daypartedit.h"
#include "tests/gui/guidemenu.h"
#include "tests/support/qhxbuilder.h"

using namespace Qt::StringLiterals;

namespace {

// Rows of two bins, the first one on top; the file counts from there too.
QList<int> savedBins(Guide &guide)
{
    return samplefile::binsOf(guide::savedMenu(guide), 0);
}

QList<int> sixteenBins(const QMap<int, int> &filled)
{
    QList<int> ids(16, 0);
    for (auto bin = filled.begin(); bin != filled.end(); ++bin)
        ids[bin.key()] = bin.value();
    return ids;
}

void openBins(Guide &guide, const QList<int> &ids)
{
    guide::openMenu(guide, {}, ids);
    keyboard::showPage(u"Day Parts"_s);
}

// To the bin that the Tab key leads to, and on from there.
void goToBins(int down)
{
    keyboard::tabTo(u"btnDaypartSelect0_0"_s);
    keyboard::pressOften(Qt::Key_Down, down);
}

void expectPick(Guide &guide, const QString &name)
{
    guide.expect<AssignDaypartItem>([name] {
        keyboard::find(u"listWidgetProducts"_s, name);
        keyboard::press(Qt::Key_Return);
    });
}

void holdToRemove(Guide &guide)
{
    const auto &remove = guide.get<QWidget>("btnDaypartRemove");
    keyboard::holdSpace([&remove] { return remove.isVisible(); });
}

} // namespace

/// What the user guide tells of the day parts and bins of a holding-cabinet menu, and of old menus.
class TestGuideBins : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void daypartsAreMadeAndDeleted();
    void daypartIsDuplicated();
    void daypartIsPutOutOfUse();
    void binsOfADaypartAreFilled();
    void binsAreFilledByFinding();
    void lastBinIsFilled();
    void binsAreEmptied();
    void emptyingIsCancelled_data();
    void emptyingIsCancelled();
    void binPlanIsMade();
    void oldMenuIsTakenOver();
};

void TestGuideBins::daypartsAreMadeAndDeleted()
{
    Guide guide;
    openBins(guide, {});
    guide.expect<DaypartEdit>([] {
        keyboard::enter(u"txtName"_s, u"Night"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnAddDaypart"_s);
    keyboard::choose(u"comboDaypartSelect"_s, u"Evening"_s);
    guide.expect<DaypartEdit>([] {
        keyboard::enter(u"txtName"_s, u"Noon"_s);
        keyboard::pushButton(u"btnSave"_s);
    });
    keyboard::pushButton(u"btnEditDaypart"_s);
    keyboard::choose(u"comboDaypartSelect"_s, u"Morning"_s);
    guide.expectBox(u"Delete"_s, u"Delete selected daypart?"_s, QMessageBox::Yes);
    keyboard::pushButton(u"btnDeleteDaypart"_s);
    const QJsonArray layout = guide::savedMenu(guide).value(u"layout"_s).toArray();
    QCOMPARE(layout.size(), 2);
    QCOMPARE(layout[0][u"daypartName"_s].toObject(), samplefile::names(u"Noon"_s));
    QCOMPARE(layout[1][u"daypartName"_s].toObject(), samplefile::names(u"Night"_s));
}

void TestGuideBins::daypartIsDuplicated()
{
    Guide guide;
    openBins(guide, {});
    keyboard::choose(u"comboDaypartSelect"_s, u"Morning"_s);
    guide.expect<DaypartEdit>([] {
        keyboard::enter(u"txtName"_s, u"Sunday"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnDuplicateDaypart"_s);
    const QJsonArray layout = guide::savedMenu(guide).value(u"layout"_s).toArray();
    QCOMPARE(layout.size(), 3);
    QCOMPARE(layout[2][u"daypartName"_s].toObject(), samplefile::names(u"Sunday"_s));
    QCOMPARE(layout[2][u"productLocations"_s], layout[0][u"productLocations"_s]);
}

void TestGuideBins::daypartIsPutOutOfUse()
{
    Guide guide;
    openBins(guide, {});
    keyboard::choose(u"comboDaypartSelect"_s, u"Evening"_s);
    keyboard::pushButton(u"checkBoxDaypartInUse"_s);
    const QJsonArray layout = guide::savedMenu(guide).value(u"layout"_s).toArray();
    QVERIFY(layout[0][u"inUse"_s].toBool());
    QVERIFY(!layout[1][u"inUse"_s].toBool());
}

// With a product and a group; what stands there can be chosen anew.
void TestGuideBins::binsOfADaypartAreFilled()
{
    Guide guide;
    openBins(guide, {});
    keyboard::choose(u"comboDaypartSelect"_s, u"Evening"_s);
    goToBins(1);
    for (const QString &name : {u"Half"_s, u"Halves"_s}) {
        expectPick(guide, name);
        keyboard::press(Qt::Key_Space);
    }
    keyboard::press(Qt::Key_Right);
    guide.expect<AssignDaypartItem>([] {
        keyboard::find(u"listWidgetProducts"_s, u"Half"_s);
        keyboard::pushButton(u"btnSelect"_s);
    });
    keyboard::press(Qt::Key_Space);
    const QJsonObject menu = guide::savedMenu(guide);
    QCOMPARE(samplefile::binsOf(menu, 0), sixteenBins({}));
    QCOMPARE(samplefile::binsOf(menu, 1), sixteenBins({{2, 5}, {3, 2}}));
}

void TestGuideBins::binsAreFilledByFinding()
{
    Guide guide;
    openBins(guide, {});
    goToBins(0);
    guide.expect<AssignDaypartItem>([] {
        keyboard::type(u"lves"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::type(u"a"_s); // on the bin
    keyboard::press(Qt::Key_Down);
    guide.expect<AssignDaypartItem>([] {
        keyboard::pushButton(u"checkBoxOnlyFits"_s);
        keyboard::enter(u"txtFind"_s, u"half"_s);
        keyboard::press(Qt::Key_Escape);
        keyboard::press(Qt::Key_Return); // is still selected
    });
    keyboard::press(Qt::Key_Space);
    QCOMPARE(savedBins(guide), sixteenBins({{0, 5}, {2, 2}}));
}

void TestGuideBins::lastBinIsFilled()
{
    Guide guide;
    openBins(guide, {});
    goToBins(7);
    keyboard::press(Qt::Key_Right);
    expectPick(guide, u"Half"_s);
    keyboard::press(Qt::Key_Space);
    QCOMPARE(keyboard::focused().objectName(), u"btnDaypartSelect7_1"_s);
    QCOMPARE(savedBins(guide), sixteenBins({{15, 2}}));
}

void TestGuideBins::binsAreEmptied()
{
    Guide guide;
    openBins(guide, sixteenBins({{0, 2}, {1, 2}, {6, 2}, {14, 2}, {15, 2}}));
    goToBins(3);
    holdToRemove(guide);
    keyboard::pressOften(Qt::Key_Down, 1); // to the next one that is filled
    keyboard::press(Qt::Key_Space);
    keyboard::press(Qt::Key_Right);
    keyboard::press(Qt::Key_Space);
    keyboard::press(Qt::Key_Space); // on second thoughts
    keyboard::pushButton(u"btnDaypartRemove"_s);
    QCOMPARE(savedBins(guide), sixteenBins({{0, 2}, {1, 2}, {15, 2}}));
}

void TestGuideBins::emptyingIsCancelled_data()
{
    QTest::addColumn<bool>("escaped");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestGuideBins::emptyingIsCancelled()
{
    QFETCH(const bool, escaped);
    Guide guide;
    openBins(guide, {2, 2});
    goToBins(0);
    holdToRemove(guide);
    if (escaped)
        keyboard::press(Qt::Key_Escape);
    else
        keyboard::pushButton(u"btnCancelDaypartRemove"_s);
    QVERIFY(!guide.get<QWidget>("btnDaypartRemove").isVisible());
    QCOMPARE(savedBins(guide), sixteenBins({{0, 2}, {1, 2}}));
}

// The old form does not tell of fan speeds: they are switched on before the menu is saved.
void TestGuideBins::binPlanIsMade()
{
    Guide guide;
    openBins(guide, {});
    guide.expectFileName(u"plan"_s);
    keyboard::pushButton(u"btnBinPlan"_s);
    QVERIFY(contentOf(guide.path(u"plan.pdf"_s)).startsWith("%PDF-"));
}

void TestGuideBins::oldMenuIsTakenOver()
{
    Guide guide;
    guide.open(u"old.qhx"_s, qhx::sample().bytes());
    guide.expect<Configuration>([] {
        keyboard::pushButton(u"checkBoxFanSpeedEnabled"_s);
        keyboard::pushButton(u"btnAccept"_s);
    });
    keyboard::pushButton(u"btnConfig"_s);
    guide.expectFileName(u"new.json"_s);
    guide.save();
    const QByteArray saved = contentOf(guide.path(u"new.json"_s));
    QVERIFY(guide::objectOf(saved, u"header"_s).value(u"fanSpeedEnabled"_s).toBool());
    const QJsonObject menu = guide::objectOf(saved, u"menu"_s);
    QCOMPARE(menu.value(u"products"_s).toArray().at(0)[u"fanSpeed"_s].toInt(), 60);
    QVERIFY(samplefile::binsOf(menu, 0).contains(12));
    QCOMPARE(contentOf(guide.path(u"old.qhx"_s)), qhx::sample().bytes());
}

int main(int argc, char *argv[])
{
    return screens::runOnLaptops<TestGuideBins>(argc, argv);
}

#include "tst_guide_bins.moc"
