// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/editgroup.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace groupedit;

namespace {

void checkDefault(const GroupEdit &dialog, int row)
{
    ui::clickRow(members(dialog), row);
    ui::clickRowBox(members(dialog), row);
}

} // namespace

class TestGroupEditDefault : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void boxOfTheCurrentMemberMakesItTheDefault();
    void boxOfAnotherMemberOnlyMakesItCurrent();
    void programCannotCheckAnotherMember();
    void spaceChecksTheCurrentMember();
    void removingKeepsTheDefaultProduct_data();
    void removingKeepsTheDefaultProduct();
    void defaultOutOfRangeIsClamped_data();
    void defaultOutOfRangeIsClamped();
    void missingMembersKeepTheirPlace();
    void missingDefaultGivesWay();
    void groupOfMissingMembersCanBeSaved();
    void repeatedMembersAreAllShown();
};

void TestGroupEditDefault::boxOfTheCurrentMemberMakesItTheDefault()
{
    OpenEditor editor(menuWith(meats({1, 2, 4})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        checkDefault(dialog, 2);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Ham*"_s}));
        ui::clickRowBox(members(dialog), 2); // it cannot be unchecked
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Ham*"_s}));
        checkDefault(dialog, 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s, u"  3 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditDefault::boxOfAnotherMemberOnlyMakesItCurrent()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        ui::clickRow(members(dialog), 0);
        ui::clickRowBox(members(dialog), 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        QCOMPARE(members(dialog).currentRow(), 1);
        ui::clickRowBox(members(dialog), 0); // not the current one any more, but the default
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 0);
}

void TestGroupEditDefault::programCannotCheckAnotherMember()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        members(dialog).item(1)->setCheckState(Qt::Checked);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        members(dialog).item(0)->setCheckState(Qt::Unchecked);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        cancel(dialog);
    });
}

void TestGroupEditDefault::spaceChecksTheCurrentMember()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        members(dialog).setFocus();
        QTest::keyClick(&members(dialog), Qt::Key_End);
        QTest::keyClick(&members(dialog), Qt::Key_Space);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        QTest::keyClick(&members(dialog), Qt::Key_Space);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditDefault::removingKeepsTheDefaultProduct_data()
{
    QTest::addColumn<int>("defaultRow");
    QTest::addColumn<int>("removedRow");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<int>("saved");
    QTest::newRow("before the default") << 1 << 0 << QStringList{u"  1 Chili*"_s, u"  2 Ham"_s} << 0;
    QTest::newRow("after the default") << 1 << 2 << QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s} << 1;
    QTest::newRow("the default") << 1 << 1 << QStringList{u"  1 Bacon"_s, u"  2 Ham*"_s} << 1;
    QTest::newRow("the default at the end") << 2 << 2 << QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s} << 1;
    QTest::newRow("the default at the start") << 0 << 0 << QStringList{u"  1 Chili*"_s, u"  2 Ham"_s} << 0;
}

void TestGroupEditDefault::removingKeepsTheDefaultProduct()
{
    QFETCH(int, defaultRow);
    QFETCH(int, removedRow);
    QFETCH(QStringList, shown);
    QFETCH(int, saved);
    OpenEditor editor(menuWith(meats({1, 2, 4}, {{u"defaultProd"_s, defaultRow}})));
    edit(editor, [&](GroupEdit &dialog, ModalAnswers &) {
        remove(dialog, removedRow);
        QCOMPARE(shownMembers(dialog), shown);
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), saved);
}

void TestGroupEditDefault::defaultOutOfRangeIsClamped_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("saved");
    QTest::newRow("just outside") << 2 << 1;
    QTest::newRow("far outside") << 2147483647 << 1;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("most negative") << -2147483647 << 0;
}

void TestGroupEditDefault::defaultOutOfRangeIsClamped()
{
    QFETCH(int, stored);
    QFETCH(int, saved);
    OpenEditor editor(menuWith(meats({1, 2}, {{u"defaultProd"_s, stored}})));
    edit(editor, [saved](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog).indexOf(saved == 0 ? u"  1 Bacon*"_s : u"  2 Chili*"_s), saved);
        cancel(dialog);
    });
    QCOMPARE(savedDefault(editor), stored); // kept until somebody saves the dialog
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) { save(dialog); });
    QCOMPARE(savedDefault(editor), saved);
}

void TestGroupEditDefault::missingMembersKeepTheirPlace()
{
    OpenEditor editor(menuWith(meats({77, 1, 78, 2, 79}, {{u"defaultProd"_s, 3}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon"_s, u"  4 Chili*"_s}));
        checkDefault(dialog, 0);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  4 Chili"_s}));
        add(dialog, 3);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  4 Chili"_s, u"  6 Ham"_s}));
        remove(dialog, 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  5 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{77, 1, 78, 79, 4}));
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditDefault::missingDefaultGivesWay()
{
    OpenEditor editor(menuWith(meats({1, 77, 2, 78}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  3 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 2);
    OpenEditor other(menuWith(meats({1, 2, 78}, {{u"defaultProd"_s, 2}})));
    edit(other, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(other), 1);
}

void TestGroupEditDefault::groupOfMissingMembersCanBeSaved()
{
    OpenEditor editor(menuWith(meats({77, 78}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), QStringList());
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{77, 78}));
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditDefault::repeatedMembersAreAllShown()
{
    OpenEditor editor(menuWith(meats({1, 1, 2}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Bacon*"_s, u"  3 Chili"_s}));
        remove(dialog, 0);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{1, 2}));
}

QTEST_MAIN(TestGroupEditDefault)
#include "tst_groupedit_default.moc"
