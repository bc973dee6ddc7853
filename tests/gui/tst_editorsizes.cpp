// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLayout>
#include <QListWidget>
#include <QMdiSubWindow>

#include "tests/gui/openbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// How the editors' sizes follow the cabinet and the font.
class TestEditorSizes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cleanup() { QApplication::setFont(m_font); }
    void editorIsAsHighAsItsRows();
    void lineOfThingsToLookAtTakesItsRoom();
    void editorWithThingsToLookAtFillsItsSubWindow();
    void subWindowFollowsTheCabinet();
    void timerBarIsNeverNarrowerThanItsHint();
    void listsFollowALargeFont_data();
    void listsFollowALargeFont();

private:
    const QFont m_font = QApplication::font();
};

namespace {

void setFontSize(qreal points)
{
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

void chooseModel(ModalAnswers &answers, QWidget &editor, const QString &model)
{
    answers.expect<QDialog>([model](QDialog &dialog) {
        ui::choose(dialog, "comboUnitModel", model);
        ui::click(dialog, "btnAccept");
    });
    ui::click(editor, "btnConfig");
}

} // namespace

void TestEditorSizes::editorIsAsHighAsItsRows()
{
    OpenBins two(bins::menuOf(u"KTR22"_s, {}));
    OpenBins eight(bins::menuOf(u"KTR82"_s, {}));
    QVERIFY(two->height() < eight->height());
    ModalAnswers answers;
    const QSize before = two->size();
    chooseModel(answers, *two, u"KTR82"_s);
    QCOMPARE(two->size(), eight->size());
    chooseModel(answers, *two, u"KTR22"_s);
    QCOMPARE(two->size(), before);
}

// It comes where a group loses its only product; this cabinet leaves no room to spare.
void TestEditorSizes::lineOfThingsToLookAtTakesItsRoom()
{
    samplefile::Menu menu = bins::menuOf(u"KTR82"_s, {});
    menu.products = {samplefile::product(2, u"Half"_s)};
    OpenBins editor(menu);
    const QSize before = editor->size();
    const auto remove = [&editor](int tab, QListWidget &list, const char *button, const QString &question) {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
        editor.showTab(tab);
        ui::clickRow(list, 0);
        ui::click(*editor, button);
    };
    remove(0, editor.products(), "btnDeleteProduct", u"Delete selected product?"_s);
    QVERIFY(ui::get<QWidget>(*editor, "btnFindings").isVisible());
    QVERIFY(editor->height() > before.height());
    QVERIFY(editor->height() >= editor->layout()->totalSizeHint().height());
    remove(1, editor.groups(), "btnDeleteGroup", u"Delete selected group?"_s);
    QVERIFY(ui::get<QWidget>(*editor, "btnFindings").isHidden());
    QCOMPARE(editor->size(), before);
}

// From the file on: it is as high as it needs to be, and no room is left below.
void TestEditorSizes::editorWithThingsToLookAtFillsItsSubWindow()
{
    for (const QString &model : {u"KTR22"_s, u"KTR54"_s, u"KTR82"_s}) {
        samplefile::Menu menu = bins::menuOf(model, {});
        menu.products = {samplefile::product(2, u"Half"_s)};
        Program program;
        const QMdiSubWindow *well = program.open(u"well.json"_s, menu.bytes());
        QVERIFY(!well->findChild<QWidget *>(u"btnFindings"_s));
        menu.groups = {samplefile::group(5, u"None"_s, {})};
        const QMdiSubWindow *subWindow = program.open(u"menu.json"_s, menu.bytes());
        QVERIFY(ui::get<QWidget>(*subWindow, "btnFindings").isVisible());
        QCOMPARE(subWindow->size() - subWindow->widget()->size(), well->size() - well->widget()->size());
        const auto roomBelow = [](const QMdiSubWindow &of) {
            return of.widget()->height() - ui::get<QTabWidget>(of, "tabWidget").geometry().bottom();
        };
        QCOMPARE(roomBelow(*subWindow), roomBelow(*well));
    }
}

void TestEditorSizes::subWindowFollowsTheCabinet()
{
    Program program;
    QMdiSubWindow *subWindow = program.open(u"menu.json"_s, bins::menuOf(u"KTR22"_s, {}).bytes());
    QVERIFY(subWindow);
    QWidget &editor = *subWindow->widget();
    const QSize around = subWindow->size() - editor.size();
    const int before = editor.height();
    chooseModel(program.answers(), editor, u"KTR82"_s);
    QVERIFY(editor.height() > before);
    QCOMPARE(subWindow->size() - editor.size(), around);
    QVERIFY(subWindow->rect().contains(editor.geometry()));
}

void TestEditorSizes::timerBarIsNeverNarrowerThanItsHint()
{
    setFontSize(20);
    OpenTimerBar editor(cbr::Menu{.model = u"KTR22"_s});
    ModalAnswers answers;
    for (const QString &model : {u"KTR34"_s, u"KTR42"_s, u"KTR23"_s, u"KTR24"_s}) {
        chooseModel(answers, *editor, model);
        QVERIFY(editor->width() >= editor->layout()->totalSizeHint().width());
        QVERIFY(editor->height() >= editor->layout()->totalSizeHint().height());
    }
}

void TestEditorSizes::listsFollowALargeFont_data()
{
    QTest::addColumn<qreal>("application");
    QTest::addColumn<qreal>("list");
    QTest::newRow("9 pt") << 9.0 << 11.0;
    QTest::newRow("11 pt") << 11.0 << 11.0;
    QTest::newRow("14 pt") << 14.0 << 14.0;
    QTest::newRow("28 pt") << 28.0 << 28.0;
}

// The rows grow with it where they have to.
void TestEditorSizes::listsFollowALargeFont()
{
    QFETCH(const qreal, application);
    QFETCH(const qreal, list);
    setFontSize(application);
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    for (const char *name : {"listWidgetProducts", "listWidgetGroups"}) {
        auto &rows = ui::get<QListWidget>(*editor, name);
        QCOMPARE(rows.font().pointSizeF(), list);
        const int height = rows.visualItemRect(rows.item(0)).height();
        QVERIFY(height >= 32 && height >= rows.fontMetrics().height());
        QCOMPARE(rows.item(0)->sizeHint(), QSize(100, 32));
    }
}

QTEST_MAIN(TestEditorSizes)
#include "tst_editorsizes.moc"
