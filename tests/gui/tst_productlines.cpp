// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/mainwindow.h"
#include "app/productlines.h"
#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/lanefile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

namespace {

enum Line { Holding, Lanes, TimerBar };

struct Saving
{
    QString saveCaption;
    QString saveAsCaption;
    QString filter;
    QString start;
};

const QStringList lineNames{u"QHX/ZPV"_s, u"Savorix"_s, u"Timer Bar Cabinet"_s};
const QStringList editors{u"MenuFile"_s, u"SvrxMenuFile"_s, u"TimerBarMenuFile"_s};
const QStringList subWindowNames{u"QhxMenuFile"_s, u"SvrxMenuFile"_s, u"TimerBarMenuFile"_s};
const QList<Saving> savings{
    {u"Save JSON Menu"_s, u"Save As JSON Menu"_s, u"JSON Menu Files (*.json)"_s, u""_s},
    {u"Save Savorix Menu"_s, u"Save Savorix Menu"_s, u"Savorix Menu Files (*.txt)"_s, u"svrxconfig_"_s},
    {u"Save TimerBar Menu"_s, u"Save TimerBar Menu"_s, u"TimerBar Menu Files (*.cbr)"_s, u""_s}};

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

/// The main window with menus of all lines.
class Program
{
public:
    Program() { ui::show(m_window); }

    [[nodiscard]] MainWindow &window() { return m_window; }
    [[nodiscard]] const TestFolder &folder() const { return m_folder; }
    [[nodiscard]] QMdiSubWindow *newest()
    {
        const auto subWindows = ui::get<QMdiArea>(m_window, "mdiArea").subWindowList();
        return subWindows.isEmpty() ? nullptr : subWindows.constLast();
    }
    QMdiSubWindow *newMenu(ModalAnswers &answers, int line)
    {
        answers.expect<SelectProductLine>([line](SelectProductLine &dialog) {
            ui::choose(dialog, "comboProductLineSelect", lineNames[line]);
            ui::click(dialog, "btnAccept");
            QCOMPARE(dialog.result(), line + 1);
        });
        const auto accept = [](QDialog &dialog) { ui::click(dialog, "btnAccept"); };
        if (line == Holding)
            answers.expect<Configuration>(accept);
        else if (line == TimerBar)
            answers.expect<TimerBarConfig>(accept);
        choose("actionNew");
        return newest();
    }
    QMdiSubWindow *open(ModalAnswers &answers, const QString &name)
    {
        answers.expectOpenDialog(m_folder.path(name));
        choose("actionOpen");
        return newest();
    }
    void choose(const char *action)
    {
        ui::clickMenu(m_window, "menuFile", action);
        ui::activate(m_window);
    }

private:
    TestFolder m_folder;
    MainWindow m_window;
};

void addLineRows()
{
    QTest::addColumn<int>("line");
    for (int line = 0; line < lineNames.size(); ++line)
        QTest::newRow(qPrintable(lineNames[line])) << line;
}

void checkEditor(const QMdiSubWindow *subWindow, int line)
{
    QVERIFY(subWindow);
    QCOMPARE(subWindow->objectName(), subWindowNames[line]);
    QCOMPARE(QString::fromLatin1(subWindow->widget()->metaObject()->className()), editors[line]);
    QVERIFY(subWindow->widget()->isVisible());
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
    QStringList rows;
    for (int row = 0; row < combo.count(); ++row)
        rows.append(combo.itemText(row));
    QCOMPARE(rows, lineNames);
    QCOMPARE(combo.currentIndex(), 0);
}

void TestProductLines::openFilterNamesThemInOrder()
{
    QCOMPARE(openFilter(), u"Varno Menu Files (*.json *.qhx *.txt *.cbr);;QHX Json Menu Files (*.json);;"
                           "Savorix Menu Files (*.txt);;TimerBar Menu Files (*.cbr)"_s);
}

void TestProductLines::newOpensTheEditor()
{
    QFETCH(const int, line);
    Program program;
    ModalAnswers answers;
    const QMdiSubWindow *subWindow = program.newMenu(answers, line);
    checkEditor(subWindow, line);
    QCOMPARE(subWindow->windowTitle(), line == TimerBar ? u"TimerBar Menu File - "_s : u"Menu File - "_s);
}

void TestProductLines::openGoesByTheSuffix_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char *name, Line line, const QString &kind) {
        QTest::newRow(name) << static_cast<int>(line) << kind;
    };
    row("MENU.JSON", Holding, u"json"_s);
    row("menu.json", Holding, u"json"_s);
    row("menu.txt.json", Holding, u"json"_s);
    row("menu.qhx", Holding, u"qhx"_s);
    row("menu.QHX", Holding, u"qhx"_s);
    row("svrxconfig_a.txt", Lanes, u"txt"_s);
    row("conf.TXT", Lanes, u"txt"_s);
    row("menu.json.txt", Lanes, u"txt"_s);
    row("menu.cbr", TimerBar, u"cbr"_s);
    row("Menu.Cbr", TimerBar, u"cbr"_s);
}

void TestProductLines::openGoesByTheSuffix()
{
    QFETCH(const int, line);
    QFETCH(const QString, kind);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    Program program;
    program.folder().make(name, bytesOf(kind));
    ModalAnswers answers;
    const QMdiSubWindow *subWindow = program.open(answers, name);
    checkEditor(subWindow, line);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s + name);
}

void TestProductLines::saveAsksForAName()
{
    QFETCH(const int, line);
    const Saving &saving = savings[line];
    Program program;
    ModalAnswers answers;
    program.newMenu(answers, line);
    answers.expectFileDialog(saving.saveCaption, saving.filter, {}, saving.start);
    program.choose("action_Save");
    answers.expectFileDialog(saving.saveAsCaption, saving.filter, {}, saving.start);
    program.choose("actionSaveAs");
    QCOMPARE(program.folder().names(), QStringList());
    const QString path = program.folder().path(u"svrxconfig_1"_s);
    answers.expectFileDialog(saving.saveCaption, saving.filter, path, saving.start);
    program.choose("action_Save");
    QVERIFY(program.folder().names().contains(u"svrxconfig_1"_s));
    answers.expectFileDialog(saving.saveAsCaption, saving.filter, {}, u"svrxconfig_1"_s);
    program.choose("actionSaveAs");
    program.choose("action_Save"); // asks no second time
}

namespace {

// One menu of each line without a name, after one of each line with one, whose files are then emptied.
void openAllLines(Program &program, ModalAnswers &answers)
{
    const QStringList names{u"a.json"_s, u"a.txt"_s, u"a.cbr"_s};
    for (int line = 0; line < names.size(); ++line) {
        program.folder().make(names[line], bytesOf(names[line].section(u'.', 1)));
        checkEditor(program.open(answers, names[line]), line);
        program.folder().make(names[line], {});
        checkEditor(program.newMenu(answers, line), line);
    }
}

void expectNames(ModalAnswers &answers, const QStringList &paths)
{
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    for (int line = 0; line < paths.size(); ++line)
        answers.expectFileDialog(savings[line].saveCaption, savings[line].filter, paths[line],
                                 savings[line].start);
}

} // namespace

void TestProductLines::exitSavesThemAll()
{
    Program program;
    ModalAnswers answers;
    openAllLines(program, answers);
    const TestFolder &folder = program.folder();
    expectNames(answers, {folder.path(u"n.json"_s), folder.path(u"svrxconfig_n"_s), folder.path(u"n.cbr"_s)});
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
    ModalAnswers answers;
    openAllLines(program, answers);
    const TestFolder &folder = program.folder();
    expectNames(answers, {folder.path(u"n.json"_s), {}});
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(folder.names(), QStringList({u"a.cbr"_s, u"a.json"_s, u"a.txt"_s, u"n.json"_s}));
    QCOMPARE(folder.content(u"a.txt"_s), laneText);
    QCOMPARE(folder.content(u"a.cbr"_s), QByteArray());
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    QVERIFY(program.window().close());
}

QTEST_MAIN(TestProductLines)
#include "tst_productlines.moc"
