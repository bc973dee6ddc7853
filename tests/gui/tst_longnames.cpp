// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QStyledItemDelegate>

#include "tests/gui/openbins.h"
#include "tests/support/warnings.h"
#include "widgets/longtext.h"

using namespace Qt::StringLiterals;

namespace {

const QString longName = u"Name "_s.repeated(200'000);

samplefile::Menu menuOfLongNames()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {1, 0, 0, 0});
    menu.products = {samplefile::product(1, longName), samplefile::product(2, u"Bacon"_s)};
    menu.layout[0] = samplefile::daypart(longName, {1, 0, 0, 0});
    return menu;
}

QStringList rowsOf(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

} // namespace

/// Names of megabytes, as only a file can bring them: they are kept whole, but only their beginning is
/// painted.
class TestLongNames : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void beginning_data();
    void beginning();
    void rowsPaintTheBeginning();
    void binPaintsTheBeginning();
    void selectorShowsTheBeginning();
    void namesAreSavedWhole();
    void firstThousandMembersAreListed_data();
    void firstThousandMembersAreListed();
};

void TestLongNames::beginning_data()
{
    QTest::addColumn<qsizetype>("length");
    QTest::addColumn<qsizetype>("shown");
    QTest::newRow("empty") << qsizetype(0) << qsizetype(0);
    QTest::newRow("ordinary") << qsizetype(25) << qsizetype(25);
    QTest::newRow("longest") << qsizetype(500) << qsizetype(500);
    QTest::newRow("too long") << qsizetype(501) << qsizetype(501); // the last one is the ellipsis
    QTest::newRow("megabytes") << qsizetype(2'000'000) << qsizetype(501);
}

void TestLongNames::beginning()
{
    QFETCH(qsizetype, length);
    const QString shown = beginningOf(QString(length, u'n'));
    QTEST(shown.size(), "shown");
    QCOMPARE(shown.endsWith(u'\u2026'), length > 500);
}

void TestLongNames::rowsPaintTheBeginning()
{
    OpenEditor editor(menuOfLongNames());
    const QListWidgetItem *item = editor.products().item(0);
    QCOMPARE(item->text(), u"  1 "_s + longName);
    const auto *delegate = qobject_cast<QStyledItemDelegate *>(editor.products().itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->displayText(item->text(), {}), beginningOf(item->text()));
    QVERIFY(item->toolTip().size() < 600);
}

void TestLongNames::binPaintsTheBeginning()
{
    OpenBins editor(menuOfLongNames());
    QPushButton &bin = editor.button(0, 0);
    QCOMPARE(bin.text(), longName);
    const QImage whole = bin.grab().toImage();
    bin.setText(longName.first(300));
    QCOMPARE(bin.grab().toImage(), whole);
    QVERIFY(bin.toolTip().size() < 600);
    QVERIFY(bin.accessibleName().size() < 600);
}

void TestLongNames::selectorShowsTheBeginning()
{
    OpenBins editor(menuOfLongNames());
    QCOMPARE(editor.selector().itemText(0), beginningOf(longName));
}

void TestLongNames::namesAreSavedWhole()
{
    OpenBins editor(menuOfLongNames());
    const QJsonObject menu = editor.saved();
    const auto nameIn = [](const QJsonValue &entry, const QString &key) {
        return entry.toObject().value(key).toObject().value(u"eng_USA"_s).toString();
    };
    QVERIFY(nameIn(menu.value(u"products"_s).toArray().at(0), u"productName"_s) == longName);
    QVERIFY(nameIn(menu.value(u"layout"_s).toArray().at(0), u"daypartName"_s) == longName);
}

void TestLongNames::firstThousandMembersAreListed_data()
{
    QTest::addColumn<int>("members");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("last");
    QTest::newRow("a thousand") << 1000 << 1000 << u"1000 Bacon"_s;
    QTest::newRow("one more") << 1001 << 1001 << u"and 1 more"_s;
    QTest::newRow("many more") << 2500 << 1001 << u"and 1500 more"_s;
}

void TestLongNames::firstThousandMembersAreListed()
{
    QFETCH(int, members);
    QFETCH(int, rows);
    samplefile::Menu menu = menuOfLongNames();
    menu.groups = {samplefile::group(9, u"Meats"_s, QList<int>(members, 2))};
    OpenEditor editor(menu);
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    const QStringList shown = rowsOf(ui::get<QListWidget>(*editor, "listWidgetMembers"));
    QCOMPARE(shown.size(), rows);
    QTEST(shown.constLast(), "last");
}

QTEST_MAIN(TestLongNames)
#include "tst_longnames.moc"
