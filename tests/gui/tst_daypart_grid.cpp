// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QPainter>

#include "tests/gui/openbins.h"
#include "tests/support/cabinets.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"
#include "widgets/binbutton.h"

using namespace Qt::StringLiterals;

/// The grid of bins as each cabinet shows it.
class TestDaypartGrid : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void models_data() { cabinets::addModelRows(); }
    void models();
    void fullRows_data();
    void fullRows();
    void everyModelInEverySplit_data() { cabinets::addModelRows(); }
    void everyModelInEverySplit();
    void buttonsFillTheirZone();
    void nothingMovesTheBins_data();
    void nothingMovesTheBins();
    void assignedBinsNeverLookEmpty();
    void redrawRestoresEveryButton();
    void buttonsTellTheirBin();
    void namesAreElidedOnlyInPainting();
    void namesAreShownAsTheyAre();
    void toolTips_data();
    void toolTips();
    void widthsThatEditorsTell();
};

namespace {

QPushButton &buttonNamed(OpenBins &editor, const QString &name)
{
    return ui::get<QPushButton>(*editor, name.toLatin1().constData());
}

QStringList visibleButtons(OpenBins &editor)
{
    QStringList names;
    for (const QString &name : cabinets::binButtons()) {
        if (buttonNamed(editor, name).isVisible())
            names.append(name);
    }
    return names;
}

// The least widths of a row's buttons, 0 where one is hidden.
QList<int> widthsInRow(OpenBins &editor, int row, int slots_)
{
    QList<int> widths;
    for (int slot = 0; slot < slots_; ++slot) {
        QPushButton &button = editor.button(row, slot);
        widths.append(button.isVisible() ? button.minimumWidth() : 0);
    }
    return widths;
}

} // namespace

void TestDaypartGrid::models()
{
    QFETCH(QString, model);
    const cabinets::Model &cabinet = cabinets::model(model);
    const int secondZone = cabinet.secondZone();
    OpenBins editor(bins::menuOf(model, {}));
    QStringList expected;
    for (const QString &name : cabinets::binButtons()) {
        const QString place = name.sliced(16);
        const bool second = place.startsWith(u'B');
        const int row = place[second ? 1 : 0].digitValue();
        if (row < cabinet.rows && place.back().digitValue() < (second ? secondZone : cabinet.firstZone()))
            expected.append(name);
    }
    QCOMPARE(differenceOf(visibleButtons(editor), expected), QString());
    for (const QString &name : expected) {
        QPushButton &button = buttonNamed(editor, name);
        QCOMPARE(button.minimumWidth(), 112);
        QVERIFY(button.isEnabled() && !button.isCheckable() && button.text().isEmpty());
        QVERIFY(button.width() >= button.minimumWidth());
    }
    QWidget &frame = editor.widget("frameSecondZone");
    QCOMPARE(frame.isVisible(), secondZone > 0);
    if (secondZone > 0) {
        QCOMPARE(frame.maximumWidth(), secondZone == 1 ? 177 : 340);
        QVERIFY(frame.width() <= frame.maximumWidth());
    }
}

void TestDaypartGrid::fullRows_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<QList<int>>("widths");
    QTest::newRow("KTR82, whole") << u"KTR82"_s << QList<int>{4, 0} << QList<int>{394, 0};
    QTest::newRow("KTR82, halves") << u"KTR82"_s << QList<int>{2, 5} << QList<int>{194, 194};
    QTest::newRow("KTR33, whole") << u"KTR33"_s << QList<int>{4, 0, 0} << QList<int>{394, 0, 0};
    QTest::newRow("KTR33, whole hides filled ones")
        << u"KTR33"_s << QList<int>{4, 1, 2} << QList<int>{394, 0, 0};
    QTest::newRow("KTR33, halves") << u"KTR33"_s << QList<int>{2, 5, 0} << QList<int>{194, 194, 0};
    QTest::newRow("KTR33, one half") << u"KTR33"_s << QList<int>{0, 2, 0} << QList<int>{194, 194, 0};
    QTest::newRow("KTR33, thirds") << u"KTR33"_s << QList<int>{1, 1, 1} << QList<int>{127, 127, 127};
    QTest::newRow("KTR33, two thirds and one")
        << u"KTR33"_s << QList<int>{3, 0, 1} << QList<int>{265, 0, 127};
    QTest::newRow("KTR33, one and two thirds")
        << u"KTR33"_s << QList<int>{1, 3, 0} << QList<int>{127, 265, 0};
    QTest::newRow("ZPV23, an unknown id") << u"ZPV23"_s << QList<int>{99, 1, 0} << QList<int>{112, 127, 112};
    QTest::newRow("KTR23, wholes") << u"KTR23"_s << QList<int>{4, 0, 2} << QList<int>{230, 0, 112};
    QTest::newRow("KTR54, halves") << u"KTR54"_s << QList<int>{2, 2, 5, 5} << QList<int>{112, 112, 112, 112};
    QTest::newRow("KTR54, wholes") << u"KTR54"_s << QList<int>{4, 0, 4, 0} << QList<int>{230, 0, 230, 0};
    QTest::newRow("KTR54, mixed") << u"KTR54"_s << QList<int>{2, 5, 4, 2} << QList<int>{112, 112, 230, 0};
}

void TestDaypartGrid::fullRows()
{
    QFETCH(QString, model);
    QFETCH(QList<int>, ids);
    QFETCH(QList<int>, widths);
    OpenBins editor(bins::menuOf(model, ids));
    QCOMPARE(widthsInRow(editor, 0, int(ids.size())), widths);
    const QStringList names{QString(), u"Third"_s, u"Half"_s, u"Most"_s, u"Whole"_s, u"Halves"_s};
    for (int slot = 0; slot < ids.size(); ++slot)
        QVERIFY(ids[slot] == 99 || editor.button(0, slot).text() == names[ids[slot]]);
    QVERIFY(editor.button(1, 0).text().isEmpty());
    // Nothing that is out of sight is gone.
    QCOMPARE(editor.savedBins(0).first(ids.size()), ids);
}

// Each row of each cabinet in each split: the buttons stand side by side inside the zone, rows below one
// another, the second zone beside the first with a gap that is wider than the one between bins.
void TestDaypartGrid::everyModelInEverySplit()
{
    QFETCH(QString, model);
    const cabinets::Model &cabinet = cabinets::model(model);
    const auto [rows, firstZone] = std::pair(cabinet.rows, cabinet.firstZone());
    const int perRow = cabinet.places();
    for (const int id : {0, 1, 2, 3, 4}) {
        QList<int> ids(rows * perRow, 0);
        for (int row = 0; row < rows; ++row) {
            ids[row * perRow] = id;
            if (cabinet.secondZone() > 0)
                ids[row * perRow + firstZone] = id; // in the one-bin zone too, as another cabinet left it
        }
        OpenBins editor(bins::menuOf(model, ids));
        int bottom = -1;
        for (int row = 0; row < rows; ++row) {
            int right = -1;
            for (int slot = 0; slot < cabinet.row.size(); ++slot) {
                QPushButton &button = editor.button(row, slot);
                if (button.isHidden())
                    continue;
                const QRect place(button.mapTo(&*editor, QPoint()), button.size());
                QVERIFY(place.left() > right + (slot == firstZone ? 8 : 0));
                QVERIFY(place.top() > bottom);
                QVERIFY(button.width() >= button.minimumWidth());
                QVERIFY(button.parentWidget()->rect().contains(button.geometry()));
                QVERIFY(editor->rect().contains(place));
                right = place.right();
            }
            bottom = editor.button(row, 0).mapTo(&*editor, editor.button(row, 0).rect().bottomLeft()).y();
        }
    }
}

// Whatever stands in a zone, its row is filled from edge to edge and the zone stays as wide as it was.
void TestDaypartGrid::buttonsFillTheirZone()
{
    OpenBins editor(bins::menuOf(u"KTR54"_s, {2, 2, 2, 2, 4, 0, 4, 0, 2, 0, 0, 2}));
    OpenBins empty(bins::menuOf(u"KTR54"_s, {}));
    for (const char *name : {"frameFirstZone", "frameSecondZone"}) {
        const int width = editor.widget(name).width();
        QCOMPARE(empty.widget(name).width(), width);
        const int first = qstrcmp(name, "frameFirstZone") == 0 ? 0 : 2;
        for (int row = 0; row < 5; ++row) {
            const QPushButton &left = editor.button(row, first);
            const QPushButton &right = editor.button(row, first + 1);
            QCOMPARE(left.geometry().left(), 0);
            QCOMPARE((right.isVisible() ? right : left).geometry().right(), width - 1);
        }
    }
    QCOMPARE(editor.widget("frameFirstZone").width(), editor.widget("frameSecondZone").width());
}

void TestDaypartGrid::nothingMovesTheBins_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("row");
    QTest::newRow("two thirds and one") << u"KTR33"_s << QList<int>{3, 0, 1};
    QTest::newRow("one third and two") << u"KTR33"_s << QList<int>{1, 3, 0};
    QTest::newRow("halves") << u"KTR33"_s << QList<int>{2, 2, 0};
    QTest::newRow("a whole") << u"KTR33"_s << QList<int>{4, 0, 0};
    QTest::newRow("a whole of two") << u"KTR22"_s << QList<int>{4, 0};
    // What a file may hold, although no editor assigns it.
    QTest::newRow("a whole in the last of three") << u"KTR33"_s << QList<int>{3, 3, 4};
    QTest::newRow("a whole in the last of two") << u"KTR22"_s << QList<int>{0, 4};
    QTest::newRow("wholes in the last of two zones") << u"KTR24"_s << QList<int>{2, 4, 2, 4};
}

// The rows above and below stay where they are.
void TestDaypartGrid::nothingMovesTheBins()
{
    QFETCH(QString, model);
    QFETCH(QList<int>, row);
    // A bin of a product that is missing, so that both have the line about things to look at.
    const QList<int> evening{99};
    OpenBins empty(bins::menuOf(model, {}, evening));
    OpenBins filled(bins::menuOf(model, row, evening));
    for (const char *name : {"frameFirstZone", "frameSecondZone"})
        QCOMPARE(filled.widget(name).geometry(), empty.widget(name).geometry());
    for (int slot = 0; slot < row.size(); ++slot) {
        QCOMPARE(filled.button(1, slot).geometry(), empty.button(1, slot).geometry());
        QVERIFY(filled.button(0, slot).parentWidget()->rect().contains(filled.button(0, slot).geometry()));
    }
}

void TestDaypartGrid::assignedBinsNeverLookEmpty()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {2, 99, 6, 0});
    menu.products.append(samplefile::product(6, QString(), {{u"holdingTime"_s, 3601}}));
    OpenBins editor(menu);
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
    QCOMPARE(editor.button(0, 1).text(), u"Id 99"_s);
    QCOMPARE(editor.button(1, 0).text(), u"Id 6"_s);
    QCOMPARE(editor.button(1, 1).text(), QString());
    QCOMPARE(editor.button(0, 0).accessibleName(), u"Row 1, Bin 1: Half"_s);
    QCOMPARE(editor.button(0, 1).accessibleName(), u"Row 1, Bin 2: Id 99, not in this menu"_s);
    QCOMPARE(editor.button(1, 0).accessibleName(), u"Row 2, Bin 1: Id 6, no name"_s);
    QCOMPARE(editor.button(1, 1).accessibleName(), u"Row 2, Bin 2: Empty"_s);
    QCOMPARE(editor.button(0, 1).toolTip(), u"Id 99: not in this menu"_s);
    QCOMPARE(editor.button(1, 0).toolTip(),
             u"Id 6: no name\nTemperature: 200°F / 200°F\nHolding Time: 01:00:01"_s);
    QCOMPARE(editor.button(1, 1).toolTip(), QString());
}

void TestDaypartGrid::redrawRestoresEveryButton()
{
    OpenBins editor(bins::menuOf(u"KTR33"_s, {4, 0, 0, 2, 0, 0, 3, 0, 1}, {1, 1, 1}));
    QCOMPARE(widthsInRow(editor, 0, 3), (QList<int>{394, 0, 0}));
    QCOMPARE(widthsInRow(editor, 1, 3), (QList<int>{194, 194, 0}));
    QCOMPARE(widthsInRow(editor, 2, 3), (QList<int>{265, 0, 127}));
    ui::choose(*editor, "comboDaypartSelect", u"Evening"_s);
    QCOMPARE(widthsInRow(editor, 0, 3), (QList<int>{127, 127, 127}));
    QCOMPARE(widthsInRow(editor, 1, 3), (QList<int>{112, 112, 112}));
    QCOMPARE(widthsInRow(editor, 2, 3), (QList<int>{112, 112, 112}));
    for (int slot = 0; slot < 3; ++slot) {
        QCOMPARE(editor.button(0, slot).text(), u"Third"_s);
        QVERIFY(editor.button(1, slot).text().isEmpty() && editor.button(1, slot).toolTip().isEmpty());
    }
    ui::choose(*editor, "comboDaypartSelect", u"Morning"_s);
    QCOMPARE(widthsInRow(editor, 1, 3), (QList<int>{194, 194, 0}));
}

// For who cannot see where a button stands.
void TestDaypartGrid::buttonsTellTheirBin()
{
    OpenBins editor(bins::menuOf(u"KTR54"_s, {2}));
    QSet<QString> names;
    for (int row = 0; row < 5; ++row) {
        for (int slot = 0; slot < 4; ++slot) {
            const QString name = editor.button(row, slot).accessibleName();
            QVERIFY(!name.isEmpty());
            names.insert(name);
        }
    }
    QCOMPARE(names.size(), 20);
    QVERIFY(editor.button(0, 0).accessibleName().contains(u"Half"_s));
}

void TestDaypartGrid::namesAreElidedOnlyInPainting()
{
    const QString name = u"Grilled Chicken Breast Fillet with Mushrooms and Fried Onions, Extra Large"_s;
    samplefile::Menu menu = bins::menuOf(u"KTR54"_s, {8, 8, 2});
    menu.products.append(samplefile::product(8, name));
    OpenBins editor(menu);
    QPushButton &button = editor.button(0, 0);
    QCOMPARE(button.text(), name);
    QVERIFY(button.fontMetrics().horizontalAdvance(name) > 2 * button.width());
    const QImage painted = button.grab().toImage();
    button.setText(name + u" and Small"_s); // beyond the end of the second line
    QCOMPARE(button.grab().toImage(), painted);
    button.setText(u"Baked"_s + name.sliced(7));
    QVERIFY(button.grab().toImage() != painted);
}

namespace {

// A bin without a letter of a name, in which the name is written at some height.
bool showsAsItStands(const QPushButton &bin, const QString &name)
{
    BinButton reference(bin.parentWidget());
    reference.setAutoDefault(false);
    reference.setText(u" "_s);
    reference.setDetails(static_cast<const BinButton &>(bin).details());
    reference.setGeometry(bin.geometry());
    QFont font = bin.font();
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferNoShaping);
    const QImage shown = const_cast<QPushButton &>(bin).grab().toImage();
    for (int y = 0; y < bin.height(); ++y) {
        QPixmap picture = reference.grab();
        QPainter painter(&picture);
        painter.setFont(font);
        const QRect line(0, y, bin.width(), QFontMetrics(font).height());
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, name);
        painter.end();
        if (picture.toImage() == shown)
            return true;
    }
    return false;
}

} // namespace

// An ampersand is a part of the name and makes no shortcut.
void TestDaypartGrid::namesAreShownAsTheyAre()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {8, 9, 10});
    menu.products.append(samplefile::product(8, u"Fish&Fries"_s));
    menu.products.append(samplefile::product(9, u"FishFries"_s));
    menu.products.append(samplefile::product(10, u"A &&& B <i>"_s));
    OpenBins editor(menu);
    QPushButton &button = editor.button(0, 0);
    QCOMPARE(button.text(), u"Fish&Fries"_s);
    QVERIFY(button.shortcut().isEmpty());
    QVERIFY(showsAsItStands(button, u"Fish&Fries"_s));
    QVERIFY(!showsAsItStands(button, u"FishFries"_s));
    QCOMPARE(editor.button(1, 0).text(), u"A &&& B <i>"_s);
    QVERIFY(showsAsItStands(editor.button(1, 0), u"A &&& B <i>"_s));
    QVERIFY(editor.button(1, 0).shortcut().isEmpty());
    QVERIFY(editor.button(0, 0).accessibleName().contains(u"Fish&Fries"_s));
}

void TestDaypartGrid::toolTips_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("QHX in °F") << u"KTR22"_s << 0
                               << u"Ham & Eggs\nTemperature: 210°F / 190°F\nHolding Time: 01:00:01"_s;
    QTest::newRow("QHX in °C") << u"KTR22"_s << 1
                               << u"Ham & Eggs\nTemperature: 99°C / 88°C\nHolding Time: 01:00:01"_s;
    QTest::newRow("ZPV has one temperature")
        << u"ZPV23"_s << 0 << u"Ham & Eggs\nTemperature: 210°F\nHolding Time: 01:00:01"_s;
}

void TestDaypartGrid::toolTips()
{
    QFETCH(QString, model);
    QFETCH(int, unit);
    QFETCH(QString, toolTip);
    samplefile::Menu menu = bins::menuOf(model, {8, 99});
    menu.header.insert(u"temperatureUnit"_s, unit);
    menu.products.append(samplefile::product(
        8, u"Ham & Eggs"_s, {{u"upperTemp"_s, 210}, {u"lowerTemp"_s, 190}, {u"holdingTime"_s, 3601}}));
    OpenBins editor(menu);
    QCOMPARE(editor.button(0, 0).toolTip(), toolTip);
    QVERIFY(editor.button(1, 0).toolTip().isEmpty());
}

void TestDaypartGrid::widthsThatEditorsTell()
{
    OpenBins editor(bins::menuOf(u"KTR33"_s, {}));
    QCOMPARE(editor->getDaypartButtonWidth(u"2/3"_s), 265);
    QCOMPARE(editor->getDaypartButtonWidth(u"1/1"_s), 394);
    QCOMPARE(editor->getDaypartButtonWidth({}), 112);
    for (const int size : {-1, 0, 1, 2, 3, 1000})
        QCOMPARE(editor->calculateButtonWidth(size), 55);
}

QTEST_MAIN(TestDaypartGrid)
#include "tst_daypart_grid.moc"
