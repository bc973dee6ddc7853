// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QClipboard>
#include <QGuiApplication>
#include <QTimeEdit>

#include "model/times.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/timeentry.h"

using namespace Qt::StringLiterals;

class TestTimeEntry : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void storedSecondsStand_data();
    void storedSecondsStand();
    void lookingIsNoEdit();
    void editedBoxCounts_data();
    void editedBoxCounts();
    void unseenSecondsStayWithTheBox();
    void showingAnotherTimeForgetsTheEdit();
};

namespace {

using Act = std::function<void(QTimeEdit &)>;

constexpr int dayAndHalfHour = 88200; // shown as 00:30

// A box of hours and minutes on the screen, with its entry.
struct Box
{
    explicit Box(int storedSeconds)
    {
        edit.setDisplayFormat(u"HH:mm"_s);
        entry.show(storedSeconds);
        ui::show(edit);
        edit.setFocus();
    }

    QTimeEdit edit;
    TimeEntry entry{&edit};
};

Act keys(const QList<Qt::Key> &pressed)
{
    return [pressed](QTimeEdit &edit) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(&edit, key);
    };
}

Act digits(const QString &typed)
{
    return [typed](QTimeEdit &edit) {
        edit.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(&edit, typed);
    };
}

void paste(QTimeEdit &edit)
{
    QGuiApplication::clipboard()->setText(u"01:15"_s);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

Q_DECLARE_METATYPE(Act)

void TestTimeEntry::storedSecondsStand_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QTime>("shown");
    QTest::newRow("none") << 0 << QTime(0, 0);
    QTest::newRow("half an hour") << 1800 << QTime(0, 30);
    QTest::newRow("with seconds") << 1859 << QTime(0, 30, 59);
    QTest::newRow("last second of a day") << 86399 << QTime(23, 59, 59);
    QTest::newRow("a day") << 86400 << QTime(0, 0);
    QTest::newRow("a day and half an hour") << dayAndHalfHour << QTime(0, 30);
    QTest::newRow("many days") << 65535 * 60 << QTime(12, 15);
}

void TestTimeEntry::storedSecondsStand()
{
    QFETCH(int, seconds);
    QFETCH(QTime, shown);
    const Box box(seconds);
    QCOMPARE(box.edit.time(), shown);
    QCOMPARE(box.entry.seconds(), seconds);
}

void TestTimeEntry::lookingIsNoEdit()
{
    Box box(dayAndHalfHour);
    keys({Qt::Key_Right, Qt::Key_Left, Qt::Key_Home, Qt::Key_End})(box.edit);
    box.edit.selectAll();
    box.edit.clearFocus();
    QCOMPARE(box.entry.seconds(), dayAndHalfHour);
}

void TestTimeEntry::editedBoxCounts_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("seconds");
    QTest::newRow("other digits") << digits(u"0145"_s) << 6300;
    QTest::newRow("the same digits") << digits(u"0030"_s) << 1800;
    QTest::newRow("the same hours alone") << digits(u"00"_s) << 1800;
    QTest::newRow("a step up") << keys({Qt::Key_Up}) << 5400;
    QTest::newRow("a step up and back") << keys({Qt::Key_Up, Qt::Key_Down}) << 1800;
    QTest::newRow("pasted") << Act(paste) << 4500;
}

void TestTimeEntry::editedBoxCounts()
{
    QFETCH(Act, act);
    QFETCH(int, seconds);
    Box box(dayAndHalfHour);
    act(box.edit);
    QCOMPARE(box.entry.seconds(), seconds);
    QCOMPARE(secondsOf(box.edit.time()), seconds);
}

void TestTimeEntry::unseenSecondsStayWithTheBox()
{
    Box box(1859);
    digits(u"0140"_s)(box.edit);
    QCOMPARE(box.entry.seconds(), 6059);
}

void TestTimeEntry::showingAnotherTimeForgetsTheEdit()
{
    Box box(1800);
    digits(u"0145"_s)(box.edit);
    box.entry.show(dayAndHalfHour);
    QCOMPARE(box.entry.seconds(), dayAndHalfHour);
    QCOMPARE(box.edit.time(), QTime(0, 30));
    digits(u"0200"_s)(box.edit);
    QCOMPARE(box.entry.seconds(), 7200);
}

QTEST_MAIN(TestTimeEntry)
#include "tst_timeentry.moc"
