// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QStyleFactory>

#include "tests/gui/openbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "widgets/binbutton.h"

using namespace Qt::StringLiterals;

/// What a look at the grid tells, as painted.
class TestBinLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(u"Fusion"_s)); }
    void init() { failOnWarnings(); }
    void nameTakesUpToTwoLines();
    void detailsStandBelow();
    void oneTemperatureIsToldOnce();
    void emptyBinsAreOutlined();
    void binsThatCannotBeClearedAreHatched();
    void focusRingIsInside();
    void panelIsACabinetsFront();
    void binsUseTheRoom_data() { cabinets::addModelRows(); }
    void binsUseTheRoom();
    void timerBarBinsTellTheirSettings();
};

namespace {

const QColor lightGrey(0xd3, 0xd3, 0xd3);

int darkPixels(const QImage &image, int y)
{
    int count = 0;
    for (int x = 12; x < image.width() - 12; ++x)
        count += qGray(image.pixel(x, y)) < 0x60;
    return count;
}

// Lines of text, told apart by the empty pixels between them.
int linesIn(QPushButton &button)
{
    const QImage image = button.grab().toImage();
    int lines = 0;
    bool inLine = false;
    for (int y = 12; y < image.height() - 12; ++y) {
        const bool dark = darkPixels(image, y) > 0;
        lines += dark && !inLine;
        inLine = dark;
    }
    return lines;
}

samplefile::Menu menuWith(const QString &name, const QJsonObject &changes = {})
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {8, 0, 2});
    menu.products.append(samplefile::product(8, name, changes));
    return menu;
}

int pixelsUnlike(const QImage &image, const QColor &color, int x)
{
    int count = 0;
    for (int y = 10; y < image.height() - 10; ++y)
        count += image.pixelColor(x, y) != color;
    return count;
}

} // namespace

// Without letters that hang down into the next line.
void TestBinLook::nameTakesUpToTwoLines()
{
    OpenBins editor(menuWith(u"MMM"_s));
    auto &bin = ui::get<BinButton>(*editor, "btnDaypartSelect0_0");
    bin.setDetails({});
    QCOMPARE(linesIn(bin), 1);
    bin.setText(u"MMMMMMMMMMMM MMMMMMMMMMMM"_s);
    QCOMPARE(linesIn(bin), 2);
    bin.setText(u"MMMMMMMMMMMM MMMMMMMMMMMM MMMMMMMMMMMM"_s);
    QCOMPARE(linesIn(bin), 2);
    bin.setText(QString(40, u'M')); // no blank to break at
    QCOMPARE(linesIn(bin), 2);
}

void TestBinLook::detailsStandBelow()
{
    OpenBins editor(menuWith(u"MMM"_s, {{u"temp1"_s, 225}, {u"upperTemp"_s, 225}}));
    auto &bin = ui::get<BinButton>(*editor, "btnDaypartSelect0_0");
    QVERIFY(bin.details().endsWith(u"00:30:00"_s) && bin.details().contains(u"°F"_s));
    QCOMPARE(bin.text(), u"MMM"_s);
    QCOMPARE(linesIn(bin), 2);
    QVERIFY(ui::get<BinButton>(*editor, "btnDaypartSelect0_1").details().isEmpty());
}

void TestBinLook::oneTemperatureIsToldOnce()
{
    OpenBins editor(menuWith(u"MMM"_s));
    QCOMPARE(ui::get<BinButton>(*editor, "btnDaypartSelect0_0").details(), u"200°F  00:30:00"_s);
}

void TestBinLook::emptyBinsAreOutlined()
{
    OpenBins editor(menuWith(u"M"_s));
    constexpr int outline = 8;
    QVERIFY(pixelsUnlike(editor.button(0, 1).grab().toImage(), lightGrey, outline) > 10);
    QCOMPARE(pixelsUnlike(editor.button(0, 0).grab().toImage(), lightGrey, outline), 0);
}

void TestBinLook::binsThatCannotBeClearedAreHatched()
{
    OpenBins editor(menuWith(u"M"_s));
    QPushButton &empty = editor.button(0, 1);
    constexpr int column = 14; // inside the outline
    QCOMPARE(pixelsUnlike(empty.grab().toImage(), lightGrey, column), 0);
    QTest::mousePress(&editor.button(0, 0), Qt::LeftButton);
    QTRY_VERIFY(!empty.isEnabled());
    QTest::mouseRelease(&editor.button(0, 0), Qt::LeftButton);
    QVERIFY(pixelsUnlike(empty.grab().toImage(), lightGrey, column) > 5);
    QCOMPARE(pixelsUnlike(editor.button(1, 0).grab().toImage(), lightGrey, column), 0);
}

void TestBinLook::focusRingIsInside()
{
    OpenBins editor(menuWith(u"M"_s));
    QPushButton &bin = editor.button(0, 0);
    bin.setFocus();
    const QImage image = bin.grab().toImage();
    const int middle = bin.height() / 2;
    for (const int x : {5, 6})
        QCOMPARE(image.pixelColor(x, middle), QColor(Qt::black));
    for (const int x : {3, 4, 7, 8})
        QCOMPARE(image.pixelColor(x, middle), lightGrey);
}

void TestBinLook::panelIsACabinetsFront()
{
    OpenBins editor(bins::menuOf(u"KTR54"_s, {2}));
    QWidget &panel = editor.widget("frameGrid");
    QVERIFY(qGray(panel.grab().toImage().pixel(panel.width() / 2, panel.height() - 6)) < 0x60);
    for (const char *name : {"lblFirstZone", "lblSecondZone"}) {
        auto &caption = ui::get<QLabel>(*editor, name);
        QVERIFY(caption.isVisible() && !caption.text().isEmpty());
        QVERIFY(caption.palette().color(QPalette::WindowText) == Qt::white);
    }
}

// Every row is equally high, and no third of the page stays empty.
void TestBinLook::binsUseTheRoom()
{
    QFETCH(const QString, model);
    OpenBins editor(bins::menuOf(model, {}));
    const QWidget &page = editor.widget("tabDayparts");
    const int rows = cabinets::model(model).rows;
    const int height = editor.button(0, 0).height();
    for (int row = 1; row < rows; ++row)
        QVERIFY(qAbs(editor.button(row, 0).height() - height) <= 1);
    QVERIFY2(3 * rows * height > 2 * (page.height() - 100), qPrintable(QString::number(height)));
    const auto *line = editor->findChild<QWidget *>(u"btnFindings"_s);
    const int highest = 560 + (line ? line->height() + editor->layout()->spacing() : 0);
    QVERIFY(editor->height() <= highest);
    QVERIFY(rows == 8 || editor->height() < highest);
}

void TestBinLook::timerBarBinsTellTheirSettings()
{
    const cbr::Menu menu{.products = {{.name = "Bacon", .shortName = "BACN"}}, .dayparts = {QList<int>{0}}};
    OpenTimerBar editor(menu);
    editor.showTab(1);
    int filled = 0;
    for (const BinButton *bin : editor->findChildren<BinButton *>()) {
        QCOMPARE(bin->details().isEmpty(), bin->text().isEmpty());
        filled += bin->details().contains(u"°F"_s);
    }
    QCOMPARE(filled, 1);
}

QTEST_MAIN(TestBinLook)
#include "tst_binlook.moc"
