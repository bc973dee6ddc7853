// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QListWidget>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>

#include "holding/menufile.h"
#include "tests/gui/closing.h"
#include "tests/gui/holdtime.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

namespace {

using Records = QList<QPointer<ProductInfo>>;

Records recordsOf(const QList<ProductInfo *> &entries)
{
    return {entries.begin(), entries.end()};
}

// The records of the editor that was opened last.
Records recordsOf(Program &program, Line line)
{
    if (line == Line::TimerBar)
        return recordsOf(program.editor<TimerBarMenuFile>()->products());
    auto *editor = program.editor<MenuFile>();
    return recordsOf(editor->getMenuProducts() + editor->getMenuGroups());
}

qsizetype alive(const Records &records)
{
    return std::count_if(records.begin(), records.end(), [](const auto &record) { return !record.isNull(); });
}

void openSample(Program &program, Line line)
{
    if (line == Line::TimerBar)
        program.open(u"menu.cbr"_s, cbr::manyInBins(u"KTR34"_s, 12).bytes());
    else
        program.open(u"menu.json"_s, windowmenu::bytes());
}

void addLinesWithRecords()
{
    QTest::addColumn<Line>("line");
    for (const Line line : {Line::Holding, Line::TimerBar})
        QTest::newRow(qPrintable(namesOf(line).chooser)) << line;
}

/// The timers of the program's own that run out, each told as "800 ms, once".
class TimerLog : public QObject
{
    Q_OBJECT

public:
    TimerLog() { qApp->installEventFilter(this); }

    [[nodiscard]] QStringList told() const { return m_told; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Timer)
            note(*watched);
        return false;
    }

private:
    void note(const QObject &object)
    {
        // Widgets of Qt have timers of their own, for blinking cursors and the like.
        const auto *timer = qobject_cast<const QTimer *>(&object);
        if (!timer && QLatin1StringView(object.metaObject()->className()).startsWith(u'Q'))
            return;
        if (!timer)
            m_told.append(QString::fromLatin1(object.metaObject()->className()));
        else if (!timer->parent() && !isQueuedCall(*timer))
            m_told.append(u"%1 ms"_s.arg(timer->interval()) +
                          (timer->isSingleShot() ? u", once"_s : QString()));
    }

    static bool isQueuedCall(const QTimer &timer) { return timer.isSingleShot() && timer.interval() == 0; }

    QStringList m_told;
};

void holdABin(Program &program, const char *button)
{
    ui::get<QTabWidget>(*program.subWindow(), "tabWidget")
        .setCurrentWidget(ui::get<QWidget>(*program.subWindow(), "frameGrid").parentWidget());
    auto &bin = ui::get<QPushButton>(*program.subWindow(), button);
    QTest::mousePress(&bin, Qt::LeftButton);
    REQUIRE_SOON(bin.isChecked());
    QTest::mouseRelease(&bin, Qt::LeftButton);
}

} // namespace

/// What lives as long as its editor, and what runs in the meantime.
class TestLifetimes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void recordsGoWithTheirEditor_data() { addLinesWithRecords(); }
    void recordsGoWithTheirEditor();
    void deletedRecordGoesAtOnce_data() { addLinesWithRecords(); }
    void deletedRecordGoesAtOnce();
    void readAgainReplacesEveryRecord_data() { addLinesWithRecords(); }
    void readAgainReplacesEveryRecord();
    void onlyBinsThatAreHeldAreTimed();
};

void TestLifetimes::recordsGoWithTheirEditor()
{
    QFETCH(const Line, line);
    Program program;
    openSample(program, line);
    const Records records = recordsOf(program, line);
    QVERIFY(records.size() > 10);
    QCOMPARE(alive(records), records.size());
    const QPointer<QWidget> editor = closing::editor(program);
    closing::close(program, QMessageBox::No);
    closing::requireGone(program, editor);
    QCOMPARE(alive(records), 0);
}

void TestLifetimes::deletedRecordGoesAtOnce()
{
    QFETCH(const Line, line);
    Program program;
    openSample(program, line);
    const Records records = recordsOf(program, line);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 1);
    program.answers().expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s),
                                QMessageBox::Yes);
    ui::click(*program.subWindow(), "btnDeleteProduct");
    QVERIFY(!records[1]);
    QCOMPARE(alive(records), records.size() - 1);
}

void TestLifetimes::readAgainReplacesEveryRecord()
{
    QFETCH(const Line, line);
    Program program;
    openSample(program, line);
    const Records before = recordsOf(program, line);
    if (line == Line::TimerBar)
        QVERIFY(program.editor<TimerBarMenuFile>()->readMenuFile());
    else
        QVERIFY(program.editor<MenuFile>()->readMenuFile());
    QCOMPARE(alive(before), 0);
    const Records after = recordsOf(program, line);
    QCOMPARE(after.size(), before.size());
    QCOMPARE(alive(after), after.size());
}

void TestLifetimes::onlyBinsThatAreHeldAreTimed()
{
    const TimerLog log;
    Program program;
    for (const Line line : allLines)
        program.newMenu(line);
    openSample(program, Line::Holding);
    holdABin(program, "btnDaypartSelect0_0");
    QCOMPARE(log.told().join(u"; "_s), u"800 ms, once"_s);
    openSample(program, Line::TimerBar);
    holdABin(program, "btnDaypartSelect0_0");
    QCOMPARE(log.told().join(u"; "_s), QStringList(2, u"800 ms, once"_s).join(u"; "_s));
    for (QMdiSubWindow *subWindow : program.area().subWindowList()) {
        program.area().setActiveSubWindow(subWindow);
        for (const QObject *object : subWindow->widget()->findChildren<QObject *>())
            QVERIFY2(!qobject_cast<const QTimer *>(object), qPrintable(object->objectName()));
    }
    waitForAHold(); // by a grid of this test's
    QCOMPARE(log.told().join(u"; "_s), QStringList(3, u"800 ms, once"_s).join(u"; "_s));
}

QTEST_MAIN(TestLifetimes)
#include "tst_lifetimes.moc"
