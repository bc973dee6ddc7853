// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>

#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/findfield.h"
#include "tests/gui/openeditor.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarproductedit.h"

using namespace Qt::StringLiterals;
using findfield::press;
using findfield::shownNames;

namespace {

/// A tab with a list: of products or groups of a holding menu, or of Timer Bar products.
class ListTab
{
public:
    enum Kind { Products, Groups, TimerBar };

    explicit ListTab(Kind kind)
        : m_kind(kind)
    {
        if (kind == TimerBar)
            m_timerBar = std::make_unique<OpenTimerBar>(timerBarMenu());
        else
            m_holding = std::make_unique<OpenEditor>(holdingMenu());
        if (kind == Groups)
            m_holding->showTab(1);
    }

    [[nodiscard]] QWidget &editor() const
    {
        return m_timerBar ? static_cast<QWidget &>(**m_timerBar) : **m_holding;
    }
    [[nodiscard]] QListWidget &list() const
    {
        return ui::get<QListWidget>(editor(), m_kind == Groups ? "listWidgetGroups" : "listWidgetProducts");
    }
    [[nodiscard]] QPushButton &button(const char *action) const
    {
        return ui::get<QPushButton>(
            editor(), QByteArray("btn").append(action).append(m_kind == Groups ? "Group" : "Product"));
    }
    [[nodiscard]] QLineEdit &field() const { return findfield::fieldIn(editor(), fieldName()); }
    /// The name in the details.
    [[nodiscard]] QString detail() const
    {
        const char *details = m_timerBar ? "details" : m_kind == Groups ? "detailsGroup" : "detailsProduct";
        return ui::get<QLabel>(ui::get<QWidget>(editor(), details), "txtName").text();
    }
    /// What is told of checked rows that are hidden; empty while it is hidden itself.
    [[nodiscard]] QString note() const
    {
        const auto *note = editor().findChild<QLabel *>(QLatin1StringView(fieldName()) + "Note"_L1);
        return note && note->isVisible() ? note->text() : QString();
    }
    void type(const QString &text) const { findfield::type(editor(), text, fieldName()); }
    /// Edit, Duplicate, Delete: "EDX" with a dot for each that is disabled.
    [[nodiscard]] QString enabled() const
    {
        QString letters;
        for (const auto &[action, letter] :
             {std::pair{"Edit", u'E'}, std::pair{"Duplicate", u'D'}, std::pair{"Delete", u'X'}})
            letters += button(action).isEnabled() ? QChar(letter) : QChar(u'.');
        return letters;
    }
    void remove(const QString &question) const
    {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
        ui::click(button("Delete"));
    }
    void removeChecked() const
    {
        remove(m_kind == Groups ? u"Delete all selected groups?"_s : u"Delete all selected products?"_s);
    }
    /// The entry dialog that the button opens gets this name and is saved.
    void enterName(const char *action, const QString &name) const
    {
        ModalAnswers answers;
        const char *field = m_timerBar ? "txtProductName" : "txtName";
        const auto act = [name, field](QDialog &dialog) {
            ui::type(dialog, field, name);
            if (auto *shortName = dialog.findChild<QLineEdit *>(u"txtShortName"_s))
                ui::type(*shortName, u"NAME"_s);
            ui::click(dialog, "btnSave");
        };
        const QMetaObject &type = m_timerBar         ? TimerBarProductEdit::staticMetaObject
                                  : m_kind == Groups ? GroupEdit::staticMetaObject
                                                     : ProductEdit::staticMetaObject;
        answers.expectAny(type, act);
        ui::click(button(action));
    }

private:
    [[nodiscard]] const char *fieldName() const
    {
        return m_kind == Groups ? "txtFindGroups" : "txtFindProducts";
    }
    [[nodiscard]] static QStringList names() { return {u"Bacon"_s, u"Beef"_s, u"Ham"_s, u"Hash"_s}; }
    [[nodiscard]] static samplefile::Menu holdingMenu()
    {
        samplefile::Menu menu;
        for (int i = 0; i < 4; ++i) {
            menu.products.append(samplefile::product(i + 1, names()[i]));
            menu.groups.append(samplefile::group(i + 11, names()[i], {1}));
        }
        menu.layout = {samplefile::daypart(u"Morning"_s, {})};
        return menu;
    }
    [[nodiscard]] static cbr::Menu timerBarMenu()
    {
        cbr::Menu menu{.model = u"KTR22"_s, .unit = 0, .products = {}};
        for (const QString &name : names())
            menu.products.append(cbr::Product{.name = name.toLatin1(), .shortName = "NAME"});
        return menu;
    }

    Kind m_kind;
    std::unique_ptr<OpenEditor> m_holding;
    std::unique_ptr<OpenTimerBar> m_timerBar;
};

} // namespace

/// The field "Find" above each list of the editors.
class TestFindEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup() { m_tab.reset(); }
    void hiddenRowIsLeft();
    void deleteTakesTheRowInSight();
    void deleteTakesCheckedRowsInSightOnly();
    void deleteNeedsACheckedRowInSight();
    void selectingAllLeavesHiddenRowsOut();
    void endsOfTheListAreThoseInSight();
    void hiddenChecksAreCounted();
    void editKeepsTheFilter();
    void renamedEntryComesIntoSight();
    void newEntryComesIntoSight_data();
    void newEntryComesIntoSight();
    void newEntryThatIsFoundKeepsTheFilter();
    void escapeEmptiesThenLeavesThenAsks();
    void enterGoesIntoTheListAndEdits();
    void typingInTheListPassesHiddenRows();

private:
    std::unique_ptr<ListTab> m_tab;
};

void TestFindEditors::initTestCase_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("products") << int(ListTab::Products);
    QTest::newRow("groups") << int(ListTab::Groups);
    QTest::newRow("Timer Bar products") << int(ListTab::TimerBar);
}

void TestFindEditors::init()
{
    failOnWarnings();
    QFETCH_GLOBAL(const int, kind);
    m_tab = std::make_unique<ListTab>(static_cast<ListTab::Kind>(kind));
}

void TestFindEditors::hiddenRowIsLeft()
{
    ui::clickRow(m_tab->list(), 2);
    m_tab->type(u"ha"_s);
    QCOMPARE(m_tab->detail(), u"Ham"_s);
    QCOMPARE(m_tab->enabled(), u"EDX"_s);
    m_tab->type(u"has"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Hash"_s);
    QCOMPARE(m_tab->detail(), QString());
    QCOMPARE(m_tab->enabled(), u"..."_s);
    m_tab->type({});
    QCOMPARE(m_tab->detail(), QString());
    QCOMPARE(m_tab->enabled(), u"..."_s);
}

void TestFindEditors::deleteTakesTheRowInSight()
{
    m_tab->type(u"hash"_s);
    ui::clickRow(m_tab->list(), 3);
    QFETCH_GLOBAL(const int, kind);
    m_tab->remove(kind == ListTab::Groups ? u"Delete selected group?"_s : u"Delete selected product?"_s);
    QCOMPARE(shownNames(m_tab->list()), QString());
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham"_s);
}

void TestFindEditors::deleteTakesCheckedRowsInSightOnly()
{
    ui::click(m_tab->button("SelectMulti"));
    for (const int row : {0, 1, 2})
        ui::clickRow(m_tab->list(), row);
    m_tab->type(u"be"_s);
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    m_tab->removeChecked();
    QCOMPARE(shownNames(m_tab->list()), QString());
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Ham Hash"_s);
}

void TestFindEditors::deleteNeedsACheckedRowInSight()
{
    ui::click(m_tab->button("SelectMulti"));
    ui::clickRow(m_tab->list(), 0);
    m_tab->type(u"ha"_s);
    QCOMPARE(m_tab->enabled(), u"..."_s);
    QCOMPARE(m_tab->detail(), QString());
    ui::clickRow(m_tab->list(), 3);
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    ui::clickRow(m_tab->list(), 3);
    QCOMPARE(m_tab->enabled(), u"..."_s);
    m_tab->type({});
    QCOMPARE(m_tab->enabled(), u"..X"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Bacon* Beef Ham Hash"_s);
}

void TestFindEditors::selectingAllLeavesHiddenRowsOut()
{
    ui::click(m_tab->button("SelectMulti"));
    ui::clickRow(m_tab->list(), 0);
    m_tab->type(u"ha"_s);
    m_tab->list().setFocus();
    QTest::keyClick(&m_tab->list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shownNames(m_tab->list()), u"Ham* Hash*"_s);
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon* Beef Ham* Hash*"_s);
}

// Space would else check a row that nobody sees.
void TestFindEditors::endsOfTheListAreThoseInSight()
{
    m_tab->type(u"e"_s); // Beef alone
    ui::click(m_tab->button("SelectMulti"));
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Down, Qt::Key_Up}) {
        m_tab->list().setFocus();
        press(m_tab->editor(), key);
        QCOMPARE(m_tab->list().currentRow(), 1);
        press(m_tab->editor(), Qt::Key_Space);
    }
    m_tab->type({});
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham Hash"_s); // checked and unchecked twice
}

void TestFindEditors::hiddenChecksAreCounted()
{
    ui::click(m_tab->button("SelectMulti"));
    for (const int row : {0, 1, 2})
        ui::clickRow(m_tab->list(), row);
    QCOMPARE(m_tab->note(), QString());
    m_tab->type(u"h"_s);
    QCOMPARE(m_tab->note(), u"2 checked rows are hidden and stay."_s);
    m_tab->type(u"b"_s);
    QCOMPARE(m_tab->note(), u"One checked row is hidden and stays."_s);
    ui::click(m_tab->button("SelectMulti"));
    QCOMPARE(m_tab->note(), QString());
}

void TestFindEditors::editKeepsTheFilter()
{
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 2);
    m_tab->enterName("Edit", u"Hare"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Hare* Hash"_s);
    QCOMPARE(m_tab->detail(), u"Hare"_s);
    QCOMPARE(m_tab->field().text(), u"ha"_s);
}

void TestFindEditors::renamedEntryComesIntoSight()
{
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 2);
    m_tab->enterName("Edit", u"Rib"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Rib* Hash"_s);
    QCOMPARE(m_tab->detail(), u"Rib"_s);
    QVERIFY(m_tab->field().text().isEmpty());
}

void TestFindEditors::newEntryComesIntoSight_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("duplicated") << QByteArray("Duplicate");
    QTest::newRow("added") << QByteArray("Add");
}

void TestFindEditors::newEntryComesIntoSight()
{
    QFETCH(const QByteArray, action);
    QFETCH_GLOBAL(const int, kind);
    if (kind == ListTab::Groups && action == "Add")
        return; // a new group would need members
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 2);
    m_tab->enterName(action.constData(), u"Rib"_s);
    QVERIFY(m_tab->field().text().isEmpty());
    QVERIFY(shownNames(m_tab->list()).startsWith(u"Bacon Beef Ham Hash Rib*"_s));
    QCOMPARE(m_tab->detail(), u"Rib"_s);
}

void TestFindEditors::newEntryThatIsFoundKeepsTheFilter()
{
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 2);
    m_tab->enterName("Duplicate", u"Hare"_s);
    QCOMPARE(shownNames(m_tab->list()), u"Ham Hash Hare*"_s);
    QCOMPARE(m_tab->field().text(), u"ha"_s);
}

void TestFindEditors::escapeEmptiesThenLeavesThenAsks()
{
    ui::click(m_tab->button("SelectMulti"));
    m_tab->type(u"ha"_s);
    ui::clickRow(m_tab->list(), 3);
    press(m_tab->editor(), Qt::Key_Escape);
    QVERIFY(m_tab->field().text().isEmpty());
    QCOMPARE(shownNames(m_tab->list()), u"Bacon Beef Ham Hash*"_s);
    QCOMPARE(m_tab->button("SelectMulti").text(), u"Cancel Selection"_s);
    press(m_tab->editor(), Qt::Key_Escape);
    QCOMPARE(m_tab->button("SelectMulti").text(), u"Multiple Selection"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    press(m_tab->editor(), Qt::Key_Escape);
    QVERIFY(answers.allAnswered());
}

void TestFindEditors::enterGoesIntoTheListAndEdits()
{
    m_tab->type(u"hash"_s);
    {
        const ModalAnswers nothingComesUp;
        press(m_tab->editor(), Qt::Key_Return);
    }
    QCOMPARE(m_tab->editor().focusWidget(), &m_tab->list());
    QCOMPARE(m_tab->detail(), u"Hash"_s);
    ModalAnswers answers;
    answers.expectAny(QDialog::staticMetaObject, [](QDialog &dialog) { ui::click(dialog, "btnCancel"); });
    press(m_tab->editor(), Qt::Key_Return);
    QVERIFY(answers.allAnswered());
}

void TestFindEditors::typingInTheListPassesHiddenRows()
{
    m_tab->type(u"sh"_s); // Hash alone
    m_tab->list().setFocus();
    const int interval = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(0); // each is typed anew
    for (const char key : {'h', '3', 'b'}) {
        QTest::keyClick(&m_tab->list(), key);
        QCOMPARE(m_tab->detail(), u"Hash"_s);
    }
    QApplication::setKeyboardInputInterval(interval);
}

QTEST_MAIN(TestFindEditors)
#include "tst_find_editors.moc"
