// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/holdtime.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

// Reading the file of an open editor again.
class TestTimerBarMenuFileReload : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void readingAgainReplacesTheMenu();
    void readingAgainShowsTheMenu();
    void readingAgainEndsTheModes();
    void readingAgainEndsAPress();
    void errorsKeepTheMenu_data();
    void errorsKeepTheMenu();
    void laterReadMakesTheMenuValid();
    void newMenuHasNothingToRead();
};

namespace {

QString shownCabinet(const TimerBarMenuFile &editor)
{
    return ui::get<QLabel>(editor, "lblCabinet").text();
}

// What the editor shows of a menu: cabinet, rows, details, bins.
QStringList shown(const TimerBarMenuFile &editor)
{
    QStringList texts{shownCabinet(editor), ui::get<QLabel>(editor, "txtName").text()};
    texts += ui::textsOf(ui::get<QListWidget>(editor, "listWidgetProducts"));
    for (const QPushButton *button : editor.findChildren<QPushButton *>()) {
        if (button->objectName().startsWith(u"btnDaypartSelect"_s) && !button->isHidden())
            texts.append(button->objectName() + u' ' + button->text());
    }
    return texts;
}

cbr::Menu chiliAndSoup()
{
    return {.model = u"KTR23"_s,
            .unit = 1,
            .products = {{.name = "Chili", .shortName = "CHIL"}, {.name = "Soup", .shortName = "SOUP"}},
            .dayparts = {{{100, 100, 1, 100, 0, 100}}}};
}

} // namespace

void TestTimerBarMenuFileReload::readingAgainReplacesTheMenu()
{
    const TestFolder folder;
    const QString path = folder.make(u"menu.cbr"_s, cbr::manyInBins(u"KTR34"_s, 12, 1).bytes());
    TimerBarMenuFile editor(path);
    QVERIFY(editor.readMenuFile());
    QVERIFY(editor.save());
    QCOMPARE(contentOf(path).toHex(' '), hex(cbr::manyInBins(u"KTR34"_s, 12, 1)));
    // A file need not name every day part; the missing one is empty then.
    cbr::Menu other = cbr::manyInBins(u"KTR24"_s, 3);
    QByteArray bytes = other.bytes();
    const qsizetype daypartSize = other.daypartRecord(0).size();
    bytes.replace(bytes.size() - daypartSize, daypartSize, other.daypartRecord(0));
    folder.make(u"menu.cbr"_s, cbr::withChecksum(bytes));
    QVERIFY(editor.readMenuFile());
    QVERIFY(editor.save());
    other.dayparts[5] = {};
    QCOMPARE(contentOf(path).toHex(' '), hex(other));
}

void TestTimerBarMenuFileReload::readingAgainShowsTheMenu()
{
    const TestFolder folder;
    TimerBarMenuFile editor(folder.make(u"menu.cbr"_s, baconHamChili().bytes()));
    ui::show(editor);
    auto &list = ui::get<QListWidget>(editor, "listWidgetProducts");
    ui::clickRow(list, 2);
    folder.make(u"menu.cbr"_s, chiliAndSoup().bytes());
    QVERIFY(editor.readMenuFile());
    QVERIFY(editor.isMenuValid());
    QCOMPARE(
        shown(editor),
        (QStringList{u"Cabinet: Timer Bar KTR23, °C"_s, QString(), u"  1 Chili"_s, u"  2 Soup"_s,
                     u"btnDaypartSelect0_0 "_s, u"btnDaypartSelect0_1 CHIL"_s, u"btnDaypartSelect1_0 "_s,
                     u"btnDaypartSelect1_1 "_s, u"btnDaypartSelectB0_0 "_s, u"btnDaypartSelectB1_0 SOUP"_s}));
    QCOMPARE(list.currentRow(), -1);
    QVERIFY(list.selectedItems().isEmpty());
    QVERIFY(!ui::get<QPushButton>(editor, "btnEditProduct").isEnabled());
    ui::clickRow(list, 1);
    QCOMPARE(ui::get<QLabel>(editor, "txtName").text(), u"Soup"_s);
}

void TestTimerBarMenuFileReload::readingAgainEndsTheModes()
{
    const TestFolder folder;
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0};
    TimerBarMenuFile editor(folder.make(u"menu.cbr"_s, menu.bytes()));
    ui::show(editor);
    ui::click(editor, "btnSelectMultiProduct");
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect1_0");
    QTest::mousePress(&bin, Qt::LeftButton);
    QTRY_VERIFY(bin.isChecked());
    QTest::mouseRelease(&bin, Qt::LeftButton);
    QVERIFY(editor.readMenuFile());
    QVERIFY(!bin.isCheckable());
    QCOMPARE(bin.text(), u"BACN"_s);
    QVERIFY(ui::get<QPushButton>(editor, "btnDaypartRemove").isHidden());
    QVERIFY(ui::get<QComboBox>(editor, "comboDaypartSelect").isEnabled());
    QCOMPARE(ui::get<QPushButton>(editor, "btnSelectMultiProduct").text(), u"Multiple Selection"_s);
}

// The bins that were there are others after the menu was read again.
void TestTimerBarMenuFileReload::readingAgainEndsAPress()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0};
    OpenTimerBar editor(menu);
    editor.showTab(1);
    QPushButton &bin = editor.button("btnDaypartSelect1_0");
    QTest::mousePress(&bin, Qt::LeftButton);
    QVERIFY(editor->readMenuFile());
    waitForAHold();
    QVERIFY(!bin.isCheckable());
    QVERIFY(editor.button("btnDaypartRemove").isHidden());
    QTest::mouseRelease(&bin, Qt::LeftButton, {}, {0, -50});
    QVERIFY(bin.isEnabled() && !bin.isCheckable());
}

void TestTimerBarMenuFileReload::errorsKeepTheMenu_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message"); // without the path
    const QByteArray other = chiliAndSoup().bytes();
    QTest::newRow("no file") << QByteArray() << u"Failed to open the file:"_s;
    QTest::newRow("wrong checksum") << other.chopped(1) << u"Invalid menu file CRC!"_s;
    QTest::newRow("model") << cbr::withByte(other, 6, 9) << u"Uknown cabinet model!"_s;
    QTest::newRow("missing product") << cbr::withChecksum(other.first(13 + 39))
                                     << u"Product read failed! Index =1"_s;
    QTest::newRow("missing day part") << cbr::withChecksum(other.chopped(1)) << u"Daypart read failed!"_s;
}

void TestTimerBarMenuFileReload::errorsKeepTheMenu()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    cbr::Menu menu = baconHamChili(u"KTR32"_s);
    menu.dayparts[0] = {0, 1, 2};
    const TestFolder folder;
    folder.make(u"menu.cbr"_s, menu.bytes());
    const QString path = folder.path(u"menu.cbr"_s);
    TimerBarMenuFile editor(path);
    ui::show(editor);
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 1);
    const QStringList before = shown(editor);
    QVERIFY(QFile::remove(path));
    if (bytes.isEmpty())
        message += path;
    else
        folder.make(u"menu.cbr"_s, bytes);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    QVERIFY(!editor.readMenuFile());
    QVERIFY(answers.allAnswered());
    QVERIFY(!editor.isMenuValid());
    QCOMPARE(shown(editor), before);
    QCOMPARE(editor.filePath(), path);
    QVERIFY(editor.save());
    QCOMPARE(folder.content(u"menu.cbr"_s).toHex(' '), hex(menu));
}

void TestTimerBarMenuFileReload::laterReadMakesTheMenuValid()
{
    const TestFolder folder;
    TimerBarMenuFile editor(folder.make(u"menu.cbr"_s, baconHamChili().bytes()));
    folder.make(u"menu.cbr"_s, "no menu");
    {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::fileFault(u"Invalid menu file CRC!"_s), QMessageBox::Ok);
        QVERIFY(!editor.readMenuFile());
    }
    QVERIFY(!editor.isMenuValid());
    folder.make(u"menu.cbr"_s, chiliAndSoup().bytes());
    QVERIFY(editor.readMenuFile());
    QVERIFY(editor.isMenuValid());
}

void TestTimerBarMenuFileReload::newMenuHasNothingToRead()
{
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) { ui::click(dialog, "btnAccept"); });
    TimerBarMenuFile editor({});
    const QStringList before = shown(editor);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s), QMessageBox::Ok);
    QVERIFY(!editor.readMenuFile());
    QCOMPARE(shown(editor), before);
    QCOMPARE(editor.products().size(), 33);
    QCOMPARE(editor.windowTitle(), u"TimerBar Menu File - "_s);
}

QTEST_MAIN(TestTimerBarMenuFileReload)
#include "tst_timerbarmenufile_reload.moc"
