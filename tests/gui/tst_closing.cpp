// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QJsonDocument>
#include <QListWidget>

#include "tests/gui/closing.h"
#include "tests/gui/openlaneeditor.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/samplefile.h"
#include "tests/support/warnings.h"
#include "widgets/menueditor.h"

using namespace Qt::StringLiterals;
using namespace closing;

namespace {

/// A menu of a line, and what tells the lines apart when it is closed.
struct Sample
{
    QString file;
    QByteArray bytes;
    void (*change)(Program &program); ///< what only a save brings into the file
    bool (*isChanged)(const QWidget &editor);
    QByteArray changedBytes; ///< what a save then writes, as readable() shows it
    QByteArray (*readable)(const QByteArray &bytes);
    bool (*isNewMenu)(const QByteArray &bytes); ///< whether a file holds what a new menu begins with
    QString writeFault;                         ///< before the path
};

void deleteFirstProduct(Program &program)
{
    const QWidget &editor = *program.subWindow()->widget();
    program.answers().expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s),
                                QMessageBox::Yes);
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    ui::click(editor, "btnDeleteProduct");
}

Sample holdingSample()
{
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches();
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2, 0, 0})};
    samplefile::Menu withoutBacon = menu;
    withoutBacon.products.removeFirst();
    withoutBacon.layout = {samplefile::daypart(u"Morning"_s, {0, 2, 0, 0})};
    return {.file = u"menu.json"_s,
            .bytes = menu.bytes(),
            .change = deleteFirstProduct,
            .isChanged =
                [](const QWidget &editor) {
                    return ui::get<QListWidget>(editor, "listWidgetProducts").count() == 1;
                },
            .changedBytes = withoutBacon.bytes(),
            .readable = [](const QByteArray &bytes) { return QJsonDocument::fromJson(bytes).toJson(); },
            .isNewMenu =
                [](const QByteArray &bytes) {
                    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
                    return root[u"menu"_s][u"products"_s].toArray().size() == 30;
                },
            .writeFault = u"Failed to create/open the file:"_s};
}

Sample laneSample()
{
    return {.file = u"svrxconfig_a.txt"_s,
            .bytes = lanefile::text("T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0"),
            .change =
                [](Program &program) {
                    QTest::keyClick(&temperatureBox(*program.subWindow()->widget(), 1), Qt::Key_Up);
                },
            .isChanged = [](const QWidget &editor) { return temperatureBox(editor, 1).value() == 351; },
            .changedBytes = lanefile::text("T1=351,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0"),
            .readable = [](const QByteArray &bytes) { return bytes; },
            .isNewMenu =
                [](const QByteArray &bytes) {
                    return bytes == lanefile::text("T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0");
                },
            .writeFault = u"Failed to create/open the file:"_s};
}

Sample timerBarSample()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    cbr::Menu withoutBacon = menu;
    withoutBacon.products.removeFirst();
    withoutBacon.dayparts[0] = {100, 1, 2, 100};
    return {.file = u"menu.cbr"_s,
            .bytes = menu.bytes(),
            .change = deleteFirstProduct,
            .isChanged =
                [](const QWidget &editor) {
                    return ui::get<QListWidget>(editor, "listWidgetProducts").count() == 2;
                },
            .changedBytes = hex(withoutBacon),
            .readable = [](const QByteArray &bytes) { return bytes.toHex(' '); },
            .isNewMenu = [](const QByteArray &bytes) { return bytes.size() == 67 + 33 * 39; },
            .writeFault = u"Failed to open the file:"_s};
}

const Sample &sampleOf(Line line)
{
    static const std::array<Sample, allLines.size()> samples{holdingSample(), laneSample(), timerBarSample()};
    return samples.at(static_cast<std::size_t>(line));
}

QPointer<QWidget> openChanged(Program &program, const Sample &sample)
{
    program.open(sample.file, sample.bytes);
    sample.change(program);
    return editor(program);
}

QPointer<QWidget> openNew(Program &program, Line line)
{
    program.newMenu(line);
    return editor(program);
}

QString pathOf(const QPointer<QWidget> &editor)
{
    return qobject_cast<MenuEditor *>(editor)->filePath();
}

// The dialogs of closing a menu without a file: saved under this path, or under none.
void expectSaveUnder(Program &program, Line line, const QString &path)
{
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(line, Asking::Closing, path);
}

} // namespace

/// Closing an editor of any line by itself.
class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addLineRows(); }
    void init() { failOnWarnings(); }
    void everyWayAsks_data();
    void everyWayAsks();
    void refusedClosingKeepsItOpen_data();
    void refusedClosingKeepsItOpen();
    void noDiscards();
    void yesSavesInPlace();
    void yesWithAFailedSaveClosesAllTheSame();
    void yesAsksForAName();
    void cancelledNameKeepsItOpen();
    void failedWriteUnderANameKeepsItOpen();
    void otherMenusStayOpen();
    void escapeInADialogClosesTheDialogOnly();
};

void TestClosing::everyWayAsks_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Escape") << Way::Escape;
    QTest::newRow("Ctrl+W") << Way::CtrlW;
    QTest::newRow("Ctrl+F4") << Way::CtrlF4;
    QTest::newRow("the sub-window itself") << Way::SubWindow;
}

void TestClosing::everyWayAsks()
{
    QFETCH_GLOBAL(const Line, line);
    QFETCH(const Way, way);
    Program program;
    program.open(sampleOf(line).file, sampleOf(line).bytes);
    const QPointer<QWidget> closed = editor(program);
    close(program, QMessageBox::Cancel, way);
    requireOpen(program, closed);
    close(program, QMessageBox::No, way);
    requireGone(program, closed);
}

void TestClosing::refusedClosingKeepsItOpen_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape in the question") << true;
}

void TestClosing::refusedClosingKeepsItOpen()
{
    QFETCH_GLOBAL(const Line, line);
    QFETCH(const bool, escape);
    const Sample &sample = sampleOf(line);
    Program program;
    const QPointer<QWidget> closed = openChanged(program, sample);
    if (escape)
        program.answers().expectBoxEscaped(ModalAnswers::saveQuestion());
    else
        program.expectSaveQuestion(QMessageBox::Cancel);
    close(program);
    QVERIFY(program.answers().allAnswered());
    requireOpen(program, closed);
    QVERIFY(sample.isChanged(*closed));
    QCOMPARE(program.content(sample.file), sample.bytes);
}

void TestClosing::noDiscards()
{
    QFETCH_GLOBAL(const Line, line);
    const Sample &sample = sampleOf(line);
    Program program;
    const QPointer<QWidget> closed = openChanged(program, sample);
    close(program, QMessageBox::No);
    requireGone(program, closed);
    QCOMPARE(program.content(sample.file), sample.bytes);
}

// No other file comes of it, such as a production file.
void TestClosing::yesSavesInPlace()
{
    QFETCH_GLOBAL(const Line, line);
    const Sample &sample = sampleOf(line);
    Program program;
    const QPointer<QWidget> closed = openChanged(program, sample);
    close(program, QMessageBox::Yes);
    requireGone(program, closed);
    QCOMPARE(program.folder().names(), QStringList{sample.file});
    QCOMPARE(sample.readable(program.content(sample.file)), sample.changedBytes);
}

void TestClosing::yesWithAFailedSaveClosesAllTheSame()
{
    QFETCH_GLOBAL(const Line, line);
    const Sample &sample = sampleOf(line);
    Program program;
    const QPointer<QWidget> closed = openChanged(program, sample);
    const QString path = program.path(sample.file);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    program.expectSaveQuestion(QMessageBox::Yes);
    program.answers().expectBox(ModalAnswers::fileFault(sample.writeFault + path), QMessageBox::Ok);
    close(program);
    QVERIFY(program.answers().allAnswered());
    requireGone(program, closed);
}

// The name is used as typed, and names the only file.
void TestClosing::yesAsksForAName()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    const QPointer<QWidget> closed = openNew(program, line);
    expectSaveUnder(program, line, program.path(u"svrxconfig_typed"_s));
    close(program);
    requireGone(program, closed);
    QCOMPARE(program.folder().names(), QStringList{u"svrxconfig_typed"_s});
    QVERIFY(sampleOf(line).isNewMenu(program.content(u"svrxconfig_typed"_s)));
}

void TestClosing::cancelledNameKeepsItOpen()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    const QPointer<QWidget> closed = openNew(program, line);
    expectSaveUnder(program, line, {});
    close(program, Way::CtrlW);
    QVERIFY(program.answers().allAnswered());
    requireOpen(program, closed);
    QCOMPARE(pathOf(closed), QString());
    QCOMPARE(closed->windowTitle(), namesOf(line).newTitle);
    QCOMPARE(program.folder().names(), QStringList());
}

// The name counts as the menu's from then on: closing again asks for none.
void TestClosing::failedWriteUnderANameKeepsItOpen()
{
    QFETCH_GLOBAL(const Line, line);
    const Sample &sample = sampleOf(line);
    Program program;
    const QPointer<QWidget> closed = openNew(program, line);
    const QString path = program.path(u"later/svrxconfig_typed"_s);
    expectSaveUnder(program, line, path);
    program.answers().expectBox(ModalAnswers::fileFault(sample.writeFault + path), QMessageBox::Ok);
    close(program);
    QVERIFY(program.answers().allAnswered());
    requireOpen(program, closed);
    QCOMPARE(pathOf(closed), path);
    QCOMPARE(closed->windowTitle(), u"Menu File - svrxconfig_typed"_s);
    QVERIFY(QDir().mkdir(program.path(u"later"_s)));
    close(program, QMessageBox::Yes);
    requireGone(program, closed);
    QVERIFY(sample.isNewMenu(contentOf(path)));
}

void TestClosing::otherMenusStayOpen()
{
    QFETCH_GLOBAL(const Line, line);
    const Sample &sample = sampleOf(line);
    Program program;
    program.open(sample.file, sample.bytes);
    const QPointer<QWidget> first = editor(program);
    program.open(sample.file); // once more: a second editor
    const QPointer<QWidget> second = editor(program);
    QCOMPARE(program.menuCount(), 2);
    QVERIFY(first != second);
    close(program, QMessageBox::Yes);
    QTRY_VERIFY(!second);
    requireOpen(program, first);
}

void TestClosing::escapeInADialogClosesTheDialogOnly()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    program.open(sampleOf(line).file, sampleOf(line).bytes);
    const QPointer<QWidget> kept = editor(program);
    for (const char *name : {"btnConfig", "btnAddProduct"}) {
        auto *button = kept->findChild<QAbstractButton *>(QString::fromLatin1(name));
        QCOMPARE(button != nullptr, line != Line::Lanes); // it has no dialogs
        if (!button)
            continue;
        program.answers().expect<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        ui::click(*button);
    }
    requireOpen(program, kept);
}

QTEST_MAIN(TestClosing)
#include "tst_closing.moc"
