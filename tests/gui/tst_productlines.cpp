// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>

#include "app/productlines.h"
#include "app/selectproductline.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/textlists.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

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
    void everyLineIsKnownToTheTests_data();
    void everyLineIsKnownToTheTests();
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
    QStringList names;
    for (const Line line : allLines)
        names.append(namesOf(line).chooser);
    const SelectProductLine dialog;
    const auto &combo = ui::get<QComboBox>(dialog, "comboProductLineSelect");
    QCOMPARE(differenceOf(ui::textsOf(combo), names), QString());
    QCOMPARE(combo.currentIndex(), 0);
}

void TestProductLines::everyLineIsKnownToTheTests_data()
{
    QTest::addColumn<QStringList>("suffixes");
    for (const ProductLine &line : productLines()) {
        QStringList suffixes;
        for (const QLatin1StringView suffix : line.suffixes)
            suffixes.append(suffix);
        QTest::newRow(qPrintable(line.name)) << suffixes;
    }
}

void TestProductLines::everyLineIsKnownToTheTests()
{
    QFETCH(const QStringList, suffixes);
    QStringList known;
    for (const Line line : allLines) {
        if (namesOf(line).chooser != QString::fromUtf8(QTest::currentDataTag()))
            continue;
        for (const LineFile &file : namesOf(line).files)
            known.append(u'.' + file.suffix);
    }
    QVERIFY2(!known.isEmpty(), "tests/support/program.cpp lacks this line");
    QCOMPARE(differenceOf(suffixes, known), QString());
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

namespace {

QString otherSuffix(Line line)
{
    return namesOf(line == Line::Holding ? Line::Lanes : Line::Holding).files.constFirst().suffix;
}

} // namespace

void TestProductLines::openGoesByTheSuffix_data()
{
    QTest::addColumn<Line>("line");
    QTest::addColumn<QByteArray>("bytes");
    for (const Line line : allLines) {
        for (const LineFile &file : namesOf(line).files) {
            const QStringList names{u"menu."_s + file.suffix, u"MENU."_s + file.suffix.toUpper(),
                                    u"menu."_s + otherSuffix(line) + u'.' + file.suffix};
            for (const QString &name : names)
                QTest::newRow(qPrintable(name)) << line << file.sample();
        }
    }
    QTest::newRow("svrxconfig_a.txt") << Line::Lanes << namesOf(Line::Lanes).files.constFirst().sample();
    QTest::newRow("Menu.Cbr") << Line::TimerBar << namesOf(Line::TimerBar).files.constFirst().sample();
}

void TestProductLines::openGoesByTheSuffix()
{
    QFETCH(const Line, line);
    QFETCH(const QByteArray, bytes);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    Program program;
    const QMdiSubWindow *subWindow = program.open(name, bytes);
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

// The names of the files of a menu with a name and of one that gets its name later.
QString namedFile(Line line)
{
    return u"a."_s + namesOf(line).files.constFirst().suffix;
}

QString newFile(Line line)
{
    return u"svrxconfig_"_s + namesOf(line).files.constFirst().suffix;
}

// One menu of each line without a name, after one of each line with one, whose files are then emptied.
void openAllLines(Program &program)
{
    for (const Line line : allLines) {
        checkEditor(program.open(namedFile(line), namesOf(line).files.constFirst().sample()), line);
        program.folder().make(namedFile(line), {});
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
    QStringList paths;
    QStringList expected{u"svrxprod_txt"_s};
    for (const Line line : allLines) {
        paths.append(folder.path(newFile(line)));
        expected += {namedFile(line), newFile(line)};
    }
    expected.sort();
    expectNames(program, paths);
    QVERIFY(program.window().close());
    QCOMPARE(differenceOf(folder.names(), expected), QString());
    for (const Line line : {Line::Lanes, Line::TimerBar})
        QCOMPARE(folder.content(namedFile(line)), namesOf(line).files.constFirst().sample());
    QVERIFY(folder.content(u"a.json"_s).contains("\"KTR22\""));
}

void TestProductLines::exitStopsWhereANameIsCancelled()
{
    Program program;
    openAllLines(program);
    const TestFolder &folder = program.folder();
    expectNames(program, {folder.path(newFile(Line::Holding)), {}});
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QStringList expected{newFile(Line::Holding)};
    for (const Line line : allLines)
        expected.append(namedFile(line));
    expected.sort();
    QCOMPARE(differenceOf(folder.names(), expected), QString());
    QCOMPARE(folder.content(u"a.txt"_s), namesOf(Line::Lanes).files.constFirst().sample());
    QCOMPARE(folder.content(u"a.cbr"_s), QByteArray());
    program.expectSaveQuestion(QMessageBox::No);
    QVERIFY(program.window().close());
}

QTEST_MAIN(TestProductLines)
#include "tst_productlines.moc"
