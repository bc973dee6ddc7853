// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>

#include "app/aboutapp.h"
#include "holding/configuration.h"
#include "tests/gui/guide.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

namespace {

const LineFile &fileOf(Line line)
{
    return namesOf(line).files.constFirst();
}

// A name under which the line saves and opens.
QString nameOf(Line line, const QString &middle)
{
    return u"svrxconfig_"_s + middle + u'.' + fileOf(line).suffix;
}

void open(Guide &guide, Line line, const QString &middle)
{
    guide.open(nameOf(line, middle), fileOf(line).sample());
}

void start(Guide &guide, Line line)
{
    guide.expectChoice(line);
    if (line == Line::Holding)
        guide.expect<Configuration>([] { keyboard::pushButton(u"btnAccept"_s); });
    else if (line == Line::TimerBar)
        guide.expect<TimerBarConfig>([] { keyboard::pushButton(u"btnAccept"_s); });
    guide.newMenu();
}

QString statusOf(Guide &guide)
{
    return guide.get<QLabel>("lblSaved").text();
}

} // namespace

/// What the user guide tells of whole menus, whichever line they are of.
class TestGuideMenus : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void menuIsStartedAndSaved_data() { addLineRows(); }
    void menuIsStartedAndSaved();
    void menuIsOpenedAndSaved_data() { addLineRows(); }
    void menuIsOpenedAndSaved();
    void choicesAreCancelled();
    void menuIsClosed_data();
    void menuIsClosed();
    void closedMenuIsSaved_data() { addLineRows(); }
    void closedMenuIsSaved();
    void menusAreChosen();
    void damagedFileIsRefused();
    void programIsLeft();
    void programSaysItsVersion();
};

void TestGuideMenus::menuIsStartedAndSaved()
{
    QFETCH(const Line, line);
    Guide guide;
    start(guide, line);
    QCOMPARE(guide.menuCount(), 1);
    QCOMPARE(statusOf(guide), u"Not saved yet"_s);
    guide.expectFileName(nameOf(line, u"a"_s));
    guide.save();
    QCOMPARE(statusOf(guide), u"Saved"_s);
    const QByteArray first = contentOf(guide.path(nameOf(line, u"a"_s)));
    QVERIFY(!first.isEmpty());
    QCOMPARE(guide.saved(nameOf(line, u"b"_s)), first);
}

void TestGuideMenus::menuIsOpenedAndSaved()
{
    QFETCH(const Line, line);
    Guide guide;
    open(guide, line, u"a"_s);
    QCOMPARE(guide.menuCount(), 1);
    guide.save();
    const QByteArray saved = contentOf(guide.path(nameOf(line, u"a"_s)));
    QCOMPARE(guide.saved(nameOf(line, u"b"_s)), saved);
    guide.open(nameOf(line, u"b"_s));
    QCOMPARE(guide.menuCount(), 2);
}

void TestGuideMenus::choicesAreCancelled()
{
    Guide guide;
    guide.expect<SelectProductLine>([] { keyboard::press(Qt::Key_Escape); });
    guide.newMenu();
    guide.expect<SelectProductLine>([] { keyboard::pushButton(u"btnCancel"_s); });
    guide.newMenu();
    guide.expectChoice(Line::Holding);
    guide.expect<Configuration>([] { keyboard::pushButton(u"btnCancel"_s); });
    guide.newMenu();
    guide.expect<QFileDialog>([] { keyboard::press(Qt::Key_Escape); });
    keyboard::menu(Qt::Key_F, Qt::Key_O);
    QVERIFY(guide.allAnswered());
    QCOMPARE(guide.menuCount(), 0);
}

void TestGuideMenus::menuIsClosed_data()
{
    QTest::addColumn<Line>("line");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const Line line : allLines) {
        const auto add = [line](const char *way, Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::addRow("%s, %s", qPrintable(namesOf(line).chooser), way) << line << key << modifiers;
        };
        add("Escape", Qt::Key_Escape, {});
        add("Ctrl+W", Qt::Key_W, Qt::ControlModifier);
        add("Ctrl+F4", Qt::Key_F4, Qt::ControlModifier);
        add("Close", Qt::Key_Space, {});
    }
}

void TestGuideMenus::menuIsClosed()
{
    QFETCH(const Line, line);
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    Guide guide;
    open(guide, line, u"a"_s);
    for (const auto answer : {QMessageBox::Cancel, QMessageBox::No}) {
        QCOMPARE(guide.menuCount(), 1);
        if (key == Qt::Key_Space)
            keyboard::tabTo(u"btnClose"_s);
        guide.expectSaveQuestion(answer);
        keyboard::press(key, modifiers);
        QVERIFY(guide.allAnswered());
    }
    QCOMPARE(guide.menuCount(), 0);
}

void TestGuideMenus::closedMenuIsSaved()
{
    QFETCH(const Line, line);
    Guide guide;
    start(guide, line);
    guide.expectSaveQuestion(QMessageBox::Yes);
    guide.expectFileName(nameOf(line, u"a"_s));
    keyboard::pushButton(u"btnClose"_s);
    QCOMPARE(guide.menuCount(), 0);
    QVERIFY(!contentOf(guide.path(nameOf(line, u"a"_s))).isEmpty());
}

// Ctrl+Tab goes back to the menu before; while Ctrl is held it goes through all of them.
void TestGuideMenus::menusAreChosen()
{
    Guide guide;
    QList<QWidget *> opened;
    for (const Line line : allLines) {
        open(guide, line, u"a"_s);
        opened.append(&guide.editor());
    }
    const auto requireInFront = [&](int menu) {
        REQUIRE_EQUAL(&guide.editor(), opened[menu]);
        REQUIRE(guide.editor().isAncestorOf(&keyboard::focused()));
    };
    for (const int menu : {1, 2}) {
        keyboard::press(Qt::Key_Tab, Qt::ControlModifier);
        requireInFront(menu);
    }
    keyboard::pressWhileCtrlIsHeld(Qt::Key_Tab, 1);
    requireInFront(0);
    keyboard::pressWhileCtrlIsHeld(Qt::Key_Tab, 2);
    requireInFront(2);
    keyboard::pressWhileCtrlIsHeld(Qt::Key_Tab, 2);
    requireInFront(1);
}

void TestGuideMenus::damagedFileIsRefused()
{
    Guide guide;
    guide.folder().make(u"a.qhx"_s, "short");
    guide.expectFileName(u"a.qhx"_s);
    guide.expectBox(u"Error"_s, u"Invalid file header size!"_s, QMessageBox::Ok);
    keyboard::menu(Qt::Key_F, Qt::Key_O);
    QVERIFY(guide.allAnswered());
    QCOMPARE(guide.menuCount(), 0);
}

// It asks once for all menus, and for the name of the one that has none.
void TestGuideMenus::programIsLeft()
{
    Guide guide;
    open(guide, Line::Holding, u"a"_s);
    guide.expect<Configuration>([] {
        keyboard::choose(u"comboUnitModel"_s, u"KTR82"_s);
        keyboard::press(Qt::Key_Return);
    });
    keyboard::pushButton(u"btnConfig"_s);
    start(guide, Line::TimerBar);
    guide.expectSaveQuestion(QMessageBox::Yes);
    guide.expectFileName(nameOf(Line::TimerBar, u"b"_s));
    guide.leave();
    QVERIFY(guide.allAnswered());
    QVERIFY(contentOf(guide.path(nameOf(Line::Holding, u"a"_s))).contains("KTR82"));
    QVERIFY(!contentOf(guide.path(nameOf(Line::TimerBar, u"b"_s))).isEmpty());
}

void TestGuideMenus::programSaysItsVersion()
{
    Guide guide;
    guide.expect<AboutApp>([] { keyboard::press(Qt::Key_Return); });
    keyboard::menu(Qt::Key_H, Qt::Key_A);
    QVERIFY(guide.allAnswered());
}

int main(int argc, char *argv[])
{
    return screens::runOnLaptops<TestGuideMenus>(argc, argv);
}

#include "tst_guide_menus.moc"
