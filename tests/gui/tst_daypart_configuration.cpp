// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>

#include "holding/configuration.h"
#include "holding/menujson.h"
#include "tests/gui/openbins.h"
#include "tests/support/cabinets.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// What becomes of the grid with another cabinet, and of full grids in files.
class TestDaypartConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void sameBinsPerZoneKeepTheAssignments();
    void otherBinsPerZoneClearEveryDaypart();
    void backToTheSelectorsFirst();
    void everyModelAfterEveryOther();
    void unknownCabinetHasNoGrid();
    void newMenuHasTheTwoDayparts();
    void fullMenusStayTheSame_data();
    void fullMenusStayTheSame();
};

namespace {

void choose(OpenBins &editor, const QString &model, bool otherBinsPerZone)
{
    ModalAnswers answers;
    answers.expect<Configuration>([model](Configuration &dialog) {
        ui::choose(dialog, "comboUnitType", cabinets::model(model).type);
        ui::choose(dialog, "comboUnitModel", model);
        ui::click(dialog, "btnAccept");
    });
    if (otherBinsPerZone)
        answers.expectBox({.title = u"Warning"_s,
                           .text = u"Warning"_s,
                           .informativeText = u"Bins per zone configuration is changed. "
                                              "All daypart assignments are removed."_s,
                           .buttons = QMessageBox::Ok,
                           .icon = QMessageBox::Warning},
                          QMessageBox::Ok);
    ui::click(*editor, "btnConfig");
    REQUIRE(answers.allAnswered());
}

// The rows of the grid, a text each: the names of the visible bins.
QStringList shownRows(OpenBins &editor)
{
    QStringList rows;
    const cabinets::Model &cabinet = cabinets::model(editor->getCabinetModel());
    for (int row = 0; row < cabinet.rows; ++row) {
        QStringList names;
        for (int slot = 0; slot < cabinet.row.size(); ++slot) {
            if (editor.button(row, slot).isVisible())
                names.append(editor.button(row, slot).text());
        }
        rows.append(names.join(u'|'));
    }
    return rows;
}

} // namespace

void TestDaypartConfiguration::sameBinsPerZoneKeepTheAssignments()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2, 5, 4, 0}, {5, 0, 0, 2}));
    choose(editor, u"KTR24"_s, false);
    QCOMPARE(shownRows(editor), (QStringList{u"Half|Halves||"_s, u"Whole||"_s}));
    choose(editor, u"KTR82"_s, false);
    QCOMPARE(shownRows(editor).first(2), (QStringList{u"Half|Halves"_s, u"Whole"_s}));
    QCOMPARE(shownRows(editor).size(), 8);
    choose(editor, u"KTR23"_s, false);
    QCOMPARE(shownRows(editor), (QStringList{u"Half|Halves|"_s, u"Whole|"_s}));
    QCOMPARE(editor.widget("frameSecondZone").width(), 177);
    choose(editor, u"KTR22"_s, false);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 5, 4, 0}));
    QCOMPARE(editor.savedBins(1), (QList<int>{5, 0, 0, 2}));
}

void TestDaypartConfiguration::otherBinsPerZoneClearEveryDaypart()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {2, 2, 2, 2}, {5, 5, 5, 5});
    for (int i = 3; i <= 10; ++i)
        menu.layout.append(samplefile::daypart(u"P%1"_s.arg(i), {2, 2, 2, 2}));
    OpenBins editor(menu);
    choose(editor, u"ZPV43"_s, true);
    QCOMPARE(shownRows(editor), QStringList(4, u"||"_s));
    const QJsonArray layout = editor.saved().value(u"layout"_s).toArray();
    QCOMPARE(layout.size(), 10);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(editor.savedBins(i), QList<int>(12, 0));
        QCOMPARE(layout.at(i).toObject().value(u"daypartName"_s),
                 menu.layout.at(i).toObject().value(u"daypartName"_s));
        QVERIFY(layout.at(i).toObject().value(u"inUse"_s).toBool());
    }
    choose(editor, u"KTR22"_s, true);
    QCOMPARE(shownRows(editor), QStringList(2, u"|"_s));
}

void TestDaypartConfiguration::backToTheSelectorsFirst()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}, {5}));
    ui::choose(*editor, "comboDaypartSelect", u"Evening"_s);
    choose(editor, u"KTR22"_s, false);
    QCOMPARE(editor.dayparts(), u"Morning* Evening"_s);
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
}

// The grid of a model does not depend on the one that was shown before.
void TestDaypartConfiguration::everyModelAfterEveryOther()
{
    const QStringList models = cabinets::modelNames();
    OpenBins editor(bins::menuOf(models.constFirst(), {}));
    for (const QString &model : models + QStringList(models.rbegin(), models.rend())) {
        const int before = editor->getBinsPerZone();
        const int after = cabinets::model(model).firstZone();
        choose(editor, model, before != after);
        OpenBins fresh(bins::menuOf(model, {}));
        for (const QPushButton *button : fresh.widget("frameGrid").findChildren<QPushButton *>()) {
            const auto &same = ui::get<QPushButton>(*editor, button->objectName().toLatin1().constData());
            QCOMPARE(same.isVisible(), button->isVisible());
            QCOMPARE(same.minimumWidth(), button->minimumWidth());
        }
        QCOMPARE(editor.widget("frameSecondZone").isVisible(), fresh.widget("frameSecondZone").isVisible());
    }
}

// Only an editor whose menu could not be read has such a cabinet.
void TestDaypartConfiguration::unknownCabinetHasNoGrid()
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    MenuFile editor({});
    QVERIFY(!editor.isMenuValid());
    answers.expectBox(ModalAnswers::refusal(u"Invalid number of rows!"_s), QMessageBox::Close);
    editor.loadDayparts();
    for (const QPushButton *button : ui::get<QWidget>(editor, "frameGrid").findChildren<QPushButton *>())
        QVERIFY(button->isHidden());
    QCOMPARE(ui::get<QComboBox>(editor, "comboDaypartSelect").count(), 2);
}

void TestDaypartConfiguration::newMenuHasTheTwoDayparts()
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    MenuFile editor({});
    const auto &selector = ui::get<QComboBox>(editor, "comboDaypartSelect");
    QCOMPARE(selector.count(), 2);
    QCOMPARE(selector.itemText(0), u"BREAKFAST"_s);
    QCOMPARE(selector.itemText(1), u"LUNCH/DINNER"_s);
    QCOMPARE(selector.currentIndex(), 0);
    QVERIFY(ui::get<QAbstractButton>(editor, "checkBoxDaypartInUse").isChecked());
}

void TestDaypartConfiguration::fullMenusStayTheSame_data()
{
    cabinets::addModelRows();
}

// Ten day parts, every bin of both zones filled, every split.
void TestDaypartConfiguration::fullMenusStayTheSame()
{
    QFETCH(QString, model);
    samplefile::Menu sample = bins::menuOf(model, {});
    sample.layout = {};
    for (int i = 0; i < 10; ++i) {
        QList<int> ids;
        for (int bin = 0; bin < holding::maxRows * holding::maxSlots; ++bin)
            ids.append(1 + (i + bin * 7 + bin / 4) % 5);
        QJsonObject daypart = samplefile::daypart(u"Part %1"_s.arg(i), ids);
        daypart.insert(u"inUse"_s, i % 3 == 0);
        sample.layout.append(daypart);
    }
    const TestFolder folder;
    const QString given = folder.make(u"given.json"_s, sample.bytes());
    MenuFile first(given);
    ui::show(first);
    QVERIFY(first.writeToFile(folder.path(u"first.json"_s)));
    const QByteArray bytes = contentOf(folder.path(u"first.json"_s));
    QCOMPARE(samplefile::menuOf(first.filePath()).value(u"layout"_s).toArray().size(), 10);
    MenuFile second(folder.path(u"first.json"_s));
    ui::show(second);
    auto &selector = ui::get<QComboBox>(second, "comboDaypartSelect");
    for (int i = 0; i < selector.count(); ++i)
        selector.setCurrentIndex(i); // looking changes nothing
    QVERIFY(second.writeToFile(folder.path(u"second.json"_s)));
    QCOMPARE(contentOf(folder.path(u"second.json"_s)), bytes);
    const cabinets::Model &cabinet = cabinets::model(model);
    for (int i = 0; i < 10; ++i) {
        QList<int> ids = samplefile::binsOf(samplefile::menuOf(first.filePath()), i);
        QCOMPARE(ids.size(), cabinet.rows * cabinet.places());
        for (int bin = 0; bin < ids.size(); ++bin) {
            const bool missing = bin % cabinet.places() >= cabinet.row.size();
            QCOMPARE(ids[bin], missing ? 0 : 1 + (i + bin * 7 + bin / 4) % 5);
        }
    }
}

QTEST_MAIN(TestDaypartConfiguration)
#include "tst_daypart_configuration.moc"
