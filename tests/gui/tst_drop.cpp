// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QMimeData>

#include "app/aboutapp.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Files that are dropped on the main window.
class TestDrop : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void fileOfALineIsOpened_data() { addLineRows(); }
    void fileOfALineIsOpened();
    void allFilesAreOpened();
    void otherThingsAreNotTaken_data();
    void otherThingsAreNotTaken();
    void othersArePassedOver();
    void brokenFileIsTold();
    void nothingIsTakenUnderADialog();
};

namespace {

/// As a drag over an open menu or the empty area comes: what is below the pointer is asked first. Nothing
/// where nobody takes it.
Qt::DropAction drop(Program &program, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    QWidget *below = program.area().viewport();
    const QPoint place(10, 10);
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, possible, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(below, &enter);
    if (!enter.isAccepted())
        return Qt::IgnoreAction;
    QDropEvent dropped(place, possible, &data, Qt::LeftButton, Qt::NoModifier);
    dropped.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(below, &dropped);
    REQUIRE(dropped.isAccepted());
    REQUIRE_EQUAL(dropped.dropAction(), enter.dropAction());
    QCoreApplication::processEvents();
    return dropped.dropAction();
}

QList<QUrl> urlsOf(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

QString make(Program &program, const LineFile &file, const QString &name)
{
    const QString fileName = name + u'.' + file.suffix;
    program.folder().make(fileName, file.sample());
    return program.path(fileName);
}

} // namespace

void TestDrop::fileOfALineIsOpened()
{
    QFETCH(const Line, line);
    for (const LineFile &file : namesOf(line).files) {
        Program program;
        QCOMPARE(drop(program, urlsOf({make(program, file, u"menu"_s)})), Qt::CopyAction);
        QCOMPARE(program.menuCount(), 1);
        QCOMPARE(program.subWindow()->widget()->metaObject()->className(),
                 namesOf(line).editorClass.toLatin1());
        QCOMPARE(program.subWindow()->objectName(), namesOf(line).subWindow);
    }
}

void TestDrop::allFilesAreOpened()
{
    Program program;
    QStringList paths;
    for (const Line line : allLines)
        paths.append(make(program, namesOf(line).files.first(), u"a%1"_s.arg(paths.size())));
    drop(program, urlsOf(paths));
    QCOMPARE(program.menuCount(), 3);
}

void TestDrop::otherThingsAreNotTaken_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::newRow("nothing") << QList<QUrl>();
    QTest::newRow("other ending") << urlsOf({u"/menu.xml"_s});
    QTest::newRow("folder") << urlsOf({QDir::tempPath()});
    QTest::newRow("address") << QList<QUrl>{QUrl(u"https://example.org/menu.json"_s)};
}

void TestDrop::otherThingsAreNotTaken()
{
    QFETCH(const QList<QUrl>, urls);
    Program program;
    QCOMPARE(drop(program, urls), Qt::IgnoreAction);
    QCOMPARE(program.menuCount(), 0);
}

void TestDrop::othersArePassedOver()
{
    Program program;
    QVERIFY(QDir(program.folder().path({})).mkdir(u"folder.json"_s));
    const QString menu = make(program, namesOf(Line::Holding).files.first(), u"menu"_s);
    drop(program, urlsOf({program.path(u"a.xml"_s), program.path(u"folder.json"_s), menu}));
    QCOMPARE(program.menuCount(), 1);
}

void TestDrop::brokenFileIsTold()
{
    Program program;
    program.folder().make(u"menu.json"_s, "{");
    program.answers().expect<QMessageBox>([](QMessageBox &box) { box.close(); });
    drop(program, urlsOf({program.path(u"menu.json"_s)}));
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
}

void TestDrop::nothingIsTakenUnderADialog()
{
    Program program;
    const QString menu = make(program, namesOf(Line::Holding).files.first(), u"menu"_s);
    program.answers().expect<AboutApp>([&](AboutApp &dialog) {
        QCOMPARE(drop(program, urlsOf({menu})), Qt::IgnoreAction);
        ui::click(dialog, "btnAccept");
    });
    ui::clickMenu(program.window(), "menuHelp", "actionAbout");
    QCOMPARE(program.menuCount(), 0);
}

QTEST_MAIN(TestDrop)
#include "tst_drop.moc"
