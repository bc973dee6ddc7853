// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>

#include "app/productlines.h"
#include "app/selectproductline.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/lanefile.h"
#include "tests/support/program.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/samplefile.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray laneText = lanefile::text("T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0");

// A menu of the line whose files have the suffix.
QByteArray bytesOf(const QString &suffix)
{
    if (suffix == "json"_L1)
        return samplefile::Menu{}.bytes();
    if (suffix == "qhx"_L1)
        return qhx::sample().bytes();
    return suffix == "txt"_L1 ? laneText : cbr::Menu{}.bytes();
}

void checkEditor(const QMdiSubWindow *subWindow, Line line)
{
    REQUIRE(subWindow);
    REQUIRE_EQUAL(subWindow->objectName(), namesOf(line).subWindow);
    const QWidget *editor = subWindow->widget();
    REQUIRE_EQUAL(QString::fromLatin1(editor->metaObject()->className()), namesOf(line).editorClass);
    REQUIRE(editor->isVisible());
}

} // namespace

/// What the main window does with menus of one line it does with those of every line.
class TestProductLines : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void chooserOffersThemInOrder();
    void openFilterNamesThemInOrder();
    void newOpensTheEditor_data() { addLineRows(); }
    void newOpensTheEditor();
    void openGoesByTheSuffix_data();
    void openGoesByTheSuffix();
    void saveAsksForAName_data() { addLineRows(); }
    void saveAsksForAName();
    void exitSavesThemAll();
    void exitStopsWhereANameIsCancelled();
};

void TestProductLines::chooserOffersThemInOrder()
{
    const SelectProductLine dialog;
    const auto &combo = ui::get<QComboBox>(dialog, "comboProductLineSelect");
    QCOMPARE(ui::textsOf(combo), (QStringList{u"QHX/ZPV"_s, u"Savorix"_s, u"Timer Bar Cabinet"_s}));
    QCOMPARE(combo.currentIndex(), 0);
}

void TestProductLines::openFilterNamesThemInOrder()
{
    QCOMPARE(openFilter(), u"Varno Menu Files (*.json *.qhx *.txt *.cbr);;QHX Json Menu Files (*.json);;"
                           "Savorix Menu Files (*.txt);;TimerBar Menu Files (*.cbr)"_s);
}

void TestProductLines::newOpensTheEditor()
{
    QFETCH(const Line, line);
    Program program;
    const QMdiSubWindow *subWindow = program.newMenu(line);
    checkEditor(subWindow, line);
    QCOMPARE(subWindow->windowTitle(), namesOf(line).newTitle);
}

void TestProductLines::openGoesByTheSuffix_data()
{
    QTest::addColumn<Line>("line");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char *name, Line line, const QString &kind) {
        QTest::newRow(name) << line << kind;
    };
    row("MENU.JSON", Line::Holding, u"json"_s);
    row("menu.json", Line::Holding, u"json"_s);
    row("menu.txt.json", Line::Holding, u"json"_s);
    row("menu.qhx", Line::Holding, u"qhx"_s);
    row("menu.QHX", Line::Holding, u"qhx"_s);
    row("svrxconfig_a.txt", Line::Lanes, u"txt"_s);
    row("conf.TXT", Line::Lanes, u"txt"_s);
    row("menu.json.txt", Line::Lanes, u"txt"_s);
    row("menu.cbr", Line::TimerBar, u"cbr"_s);
    row("Menu.Cbr", Line::TimerBar, u"cbr"_s);
}

void TestProductLines::openGoesByTheSuffix()
{
    QFETCH(const Line, line);
    QFETCH(const QString, kind);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    Program program;
    const QMdiSubWindow *subWindow = program.open(name, bytesOf(kind));
    checkEditor(subWindow, line);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s + name);
}

void TestProductLines::saveAsksForAName()
{
    QFETCH(const Line, line);
    Program program;
    program.newMenu(line);
    program.expectSaveDialog(line, Asking::Save, {});
    program.save();
    program.expectSaveDialog(line, Asking::SaveAs, {});
    program.saveAs();
    QCOMPARE(program.folder().names(), QStringList());
    program.expectSaveDialog(line, Asking::Save, program.path(u"svrxconfig_1"_s));
    program.save();
    QVERIFY(program.folder().names().contains(u"svrxconfig_1"_s));
    program.expectSaveDialog(line, Asking::SaveAs, {}, u"svrxconfig_1"_s);
    program.saveAs();
    program.save(); // asks no second time
}

namespace {

// One menu of each line without a name, after one of each line with one, whose files are then emptied.
void openAllLines(Program &program)
{
    for (const Line line : allLines) {
        const QString kind = QStringList{u"json"_s, u"txt"_s, u"cbr"_s}.at(static_cast<int>(line));
        const QString name = u"a."_s + kind;
        checkEditor(program.open(name, bytesOf(kind)), line);
        program.folder().make(name, {});
        checkEditor(program.newMenu(line), line);
    }
}

// For as many lines as there are paths.
void expectNames(Program &program, const QStringList &paths)
{
    program.expectSaveQuestion(QMessageBox::Yes);
    for (qsizetype i = 0; i < paths.size(); ++i)
        program.expectSaveDialog(allLines.at(static_cast<std::size_t>(i)), Asking::Save, paths[i]);
}

} // namespace

void TestProductLines::exitSavesThemAll()
{
    Program program;
    openAllLines(program);
    const TestFolder &folder = program.folder();
    expectNames(program, {folder.path(u"n.json"_s), folder.path(u"svrxconfig_n"_s), folder.path(u"n.cbr"_s)});
    QVERIFY(program.window().close());
    QCOMPARE(folder.names(), QStringList({u"a.cbr"_s, u"a.json"_s, u"a.txt"_s, u"n.cbr"_s, u"n.json"_s,
                                          u"svrxconfig_n"_s, u"svrxprod_n"_s}));
    QCOMPARE(folder.content(u"a.cbr"_s), cbr::Menu{}.bytes());
    QCOMPARE(folder.content(u"a.txt"_s), laneText);
    QVERIFY(folder.content(u"a.json"_s).contains("\"KTR22\""));
}

void TestProductLines::exitStopsWhereANameIsCancelled()
{
    Program program;
    openAllLines(program);
    const TestFolder &folder = program.folder();
    expectNames(program, {folder.path(u"n.json"_s), {}});
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(folder.names(), QStringList({u"a.cbr"_s, u"a.json"_s, u"a.txt"_s, u"n.json"_s}));
    QCOMPARE(folder.content(u"a.txt"_s), laneText);
    QCOMPARE(folder.content(u"a.cbr"_s), QByteArray());
    program.expectSaveQuestion(QMessageBox::No);
    QVERIFY(program.window().close());
}

QTEST_MAIN(TestProductLines)
#include "tst_productlines.moc"
