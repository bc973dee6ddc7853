// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTimeEdit>
#include <QVBoxLayout>

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
    void timeIsEnteredAsOneValue_data();
    void timeIsEnteredAsOneValue();
    void clickedSectionIsTypedAnew();
    void wholeStaysSelectedWithItsWindow();
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

namespace {

/// A box of hours, minutes and seconds below another input; it shows 01:23:45.
struct Form
{
    Form()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&name);
        layout->addWidget(&edit);
        edit.setDisplayFormat(u"HH:mm:ss"_s);
        entry.show(QTime(1, 23, 45).msecsSinceStartOfDay() / 1000);
        ui::show(window);
        name.setFocus();
    }
    [[nodiscard]] QLineEdit &line() { return *edit.findChild<QLineEdit *>(); }
    void clickText(int character)
    {
        const int x = line().fontMetrics().horizontalAdvance(line().text().first(character)) + 4;
        QTest::mouseClick(&line(), Qt::LeftButton, {}, {x, line().height() / 2});
    }

    QWidget window;
    QLineEdit name;
    QTimeEdit edit;
    TimeEntry entry{&edit};
};

using Enter = void (*)(Form &);

void tabInto(Form &form)
{
    QTest::keyClick(&form.name, Qt::Key_Tab);
}

void selectAll(Form &form)
{
    form.edit.setFocus();
    form.edit.setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClick(&form.edit, Qt::Key_A, Qt::ControlModifier);
}

void erase(Form &form)
{
    selectAll(form);
    QTest::keyClick(&form.edit, Qt::Key_Delete);
    QCOMPARE(form.edit.time(), QTime(0, 0));
}

void clickBesideTheText(Form &form)
{
    QTest::mouseClick(&form.line(), Qt::LeftButton, {}, form.line().rect().center() + QPoint(60, 0));
    QCOMPARE(form.line().cursorPosition(), 8);
}

} // namespace

Q_DECLARE_METATYPE(Enter)

void TestTimeEntry::timeIsEnteredAsOneValue_data()
{
    QTest::addColumn<Enter>("enter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QTime>("entered");
    QTest::newRow("Tab") << Enter(tabInto) << u"0200"_s << QTime(2, 0);
    QTest::newRow("Ctrl+A") << Enter(selectAll) << u"0200"_s << QTime(2, 0);
    QTest::newRow("Ctrl+A, hours alone") << Enter(selectAll) << u"07"_s << QTime(7, 0);
    QTest::newRow("Ctrl+A, all of it") << Enter(selectAll) << u"071809"_s << QTime(7, 18, 9);
    QTest::newRow("Ctrl+A and Delete") << Enter(erase) << u"0200"_s << QTime(2, 0);
    QTest::newRow("Ctrl+A, more than all of it") << Enter(selectAll) << u"0718099"_s << QTime(7, 18, 9);
    QTest::newRow("with colons") << Enter(erase) << u"02:05"_s << QTime(2, 5);
    QTest::newRow("click beside the text") << Enter(clickBesideTheText) << u"0200"_s << QTime(2, 0);
}

void TestTimeEntry::timeIsEnteredAsOneValue()
{
    QFETCH(const Enter, enter);
    QFETCH(const QString, typed);
    QFETCH(const QTime, entered);
    Form form;
    form.window.resize(400, 100);
    QCoreApplication::sendPostedEvents(); // the layout follows
    enter(form);
    QTest::keyClicks(&form.edit, typed);
    QCOMPARE(form.edit.time(), entered);
    QCOMPARE(form.entry.seconds(), entered.msecsSinceStartOfDay() / 1000);
}

void TestTimeEntry::clickedSectionIsTypedAnew()
{
    Form form;
    form.clickText(4);
    QTest::keyClicks(&form.edit, u"07"_s);
    QCOMPARE(form.edit.time(), QTime(1, 7, 45));
}

// As after a message that was shown over it.
void TestTimeEntry::wholeStaysSelectedWithItsWindow()
{
    Form form;
    QWidget message;
    ui::show(message);
    form.edit.setFocus();
    form.edit.selectAll();
    ui::activate(form.window);
    QCOMPARE(form.line().selectedText(), u"01:23:45"_s);
}

QTEST_MAIN(TestTimeEntry)
#include "tst_timeentry.moc"
