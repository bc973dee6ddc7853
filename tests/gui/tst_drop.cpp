// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QLineEdit>
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
    void nothingIsTakenThatWouldBeMoved();
    void nothingIsTakenUnderADialog();
    void nothingIsTakenUnderALaterDialog();
    void fileOnAFieldIsOpened();
};

namespace {

/// Files that are dragged over a widget of the main window, which is asked before those that it lies on.
class Drag
{
public:
    Drag(QWidget &below, const QList<QUrl> &urls)
        : m_below(below)
    {
        m_data.setUrls(urls);
    }

    void addText(const QString &text) { m_data.setText(text); }
    void allow(Qt::DropActions possible) { m_possible = possible; }
    /// What a drop would do; nothing where nobody takes it.
    [[nodiscard]] Qt::DropAction enter() { return send<QDragEnterEvent>(); }
    [[nodiscard]] Qt::DropAction drop() { return send<QDropEvent>(); }

private:
    template <typename Event>
    [[nodiscard]] Qt::DropAction send()
    {
        Event event(QPoint(10, 10), m_possible, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&m_below, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    QWidget &m_below;
    QMimeData m_data;
    Qt::DropActions m_possible = Qt::CopyAction | Qt::MoveAction;
};

/// As a drag over an open menu or the empty area comes; nothing where nobody takes it.
Qt::DropAction drop(Program &program, const QList<QUrl> &urls)
{
    Drag drag(*program.area().viewport(), urls);
    const Qt::DropAction shown = drag.enter();
    if (shown == Qt::IgnoreAction)
        return shown;
    REQUIRE_EQUAL(drag.drop(), shown);
    QCoreApplication::processEvents();
    return shown;
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
    Drag drag(*program.area().viewport(), urlsOf({program.path(u"menu.json"_s)}));
    QCOMPARE(drag.enter(), Qt::CopyAction);
    QCOMPARE(drag.drop(), Qt::CopyAction);
    QVERIFY(!program.answers().allAnswered()); // the other program does not wait for the message
    QCoreApplication::processEvents();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
}

// The program that it comes from would delete the file. Keys that are pressed on the way change what it
// allows.
void TestDrop::nothingIsTakenThatWouldBeMoved()
{
    Program program;
    const QString menu = make(program, namesOf(Line::Holding).files.first(), u"menu"_s);
    Drag drag(*program.area().viewport(), urlsOf({menu}));
    QCOMPARE(drag.enter(), Qt::CopyAction);
    drag.allow(Qt::MoveAction);
    QCOMPARE(drag.drop(), Qt::IgnoreAction);
    QCOMPARE(drag.enter(), Qt::IgnoreAction);
    QCoreApplication::processEvents();
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

// The dialog comes up while the pointer is over the window.
void TestDrop::nothingIsTakenUnderALaterDialog()
{
    Program program;
    Drag drag(*program.area().viewport(),
              urlsOf({make(program, namesOf(Line::Holding).files.first(), u"menu"_s)}));
    QCOMPARE(drag.enter(), Qt::CopyAction);
    program.answers().expect<AboutApp>([&drag](AboutApp &dialog) {
        QCOMPARE(drag.drop(), Qt::IgnoreAction);
        ui::click(dialog, "btnAccept");
    });
    ui::clickMenu(program.window(), "menuHelp", "actionAbout");
    QCoreApplication::processEvents();
    QCOMPARE(program.menuCount(), 0);
}

// File managers name a file in a text, too.
void TestDrop::fileOnAFieldIsOpened()
{
    Program program;
    const QString menu = make(program, namesOf(Line::Holding).files.first(), u"menu"_s);
    QVERIFY(program.open(u"menu.json"_s));
    auto &field = ui::get<QLineEdit>(*program.subWindow(), "txtFindProducts");
    Drag drag(field, urlsOf({menu}));
    drag.addText(menu);
    QCOMPARE(drag.enter(), Qt::CopyAction);
    QCOMPARE(drag.drop(), Qt::CopyAction);
    QTRY_COMPARE(program.menuCount(), 2);
    QCOMPARE(field.text(), QString());
}

QTEST_MAIN(TestDrop)
#include "tst_drop.moc"
