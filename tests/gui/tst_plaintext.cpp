// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QTextDocument>

#include "holding/menufile.h"
#include "holding/menujson.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/modalanswers.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"
#include "widgets/messages.h"
#include "widgets/namelabel.h"

using namespace Qt::StringLiterals;

/// Names and paths are shown as they stand, also where they look like markup, which could even name a device
/// to read for ever.
class TestPlainText : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void namesOfHoldingMenus_data() { addNames(); }
    void namesOfHoldingMenus();
    void namesOfTimerBarMenus_data() { addNames(); }
    void namesOfTimerBarMenus();
    void pathsInBoxes();
    void boxesHaveRoomForLongPaths();
    void namesTakeTheRoomTheyNeed_data();
    void namesTakeTheRoomTheyNeed();

private:
    static void addNames();
};

namespace {

// Within the 25 bytes of a name in a Timer Bar file.
constexpr auto markup = "<b>Ham</b>";
constexpr auto device = "<img src=/dev/zero>";

QString shownBy(const QString &toolTip)
{
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

QString rowToolTip(const QWidget &window)
{
    return shownBy(ui::get<QListWidget>(window, "listWidgetProducts").item(0)->toolTip());
}

} // namespace

void TestPlainText::addNames()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {markup, device, "Ham & <Eggs>", "Ham"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestPlainText::namesOfHoldingMenus()
{
    QFETCH(const QString, name);
    holding::Menu menu = windowmenu::menu();
    ProductInfo &product = *menu.products.front();
    product.set_productName(sameNameInAllLanguages(name));
    product.set_zoneSplits(name);
    menu.dayparts[0].bins[0][0] = product.get_productId();
    const TestFolder folder;
    folder.make(u"menu.json"_s, holding::writeMenu(menu));
    MenuFile editor(folder.path(u"menu.json"_s));
    QVERIFY(editor.isMenuValid());
    ui::show(editor);
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    for (const char *label : {"txtName", "txtZoneSplits"}) {
        const auto &detail = ui::get<QLabel>(ui::get<QWidget>(editor, "detailsProduct"), label);
        QCOMPARE(detail.text(), name);
        QCOMPARE(detail.textFormat(), Qt::PlainText);
    }
    QCOMPARE(rowToolTip(editor), name);
    QVERIFY(shownBy(ui::get<QPushButton>(editor, "btnDaypartSelect0_0").toolTip()).startsWith(name + u'\n'));
}

void TestPlainText::namesOfTimerBarMenus()
{
    QFETCH(const QString, name);
    OpenTimerBar editor(
        {.products = {{.name = name.toLatin1(), .shortName = "HAM"}}, .dayparts = {QList<int>{0, 0, 0, 0}}});
    QCOMPARE(rowToolTip(*editor), name);
    QVERIFY(shownBy(editor.button("btnDaypartSelect0_0").toolTip()).startsWith(name + u'\n'));
    ui::clickRow(editor.products(), 0);
    QCOMPARE(editor.detail("Name"), name);
}

void TestPlainText::pathsInBoxes()
{
    const QString path = u"/tmp/"_s + QLatin1StringView(markup) + u".json"_s;
    ModalAnswers answers;
    answers.expect<QMessageBox>([&path](QMessageBox &box) {
        QCOMPARE(shownBy(box.informativeText()), path);
        ui::click(*box.button(QMessageBox::Ok));
    });
    messages::fileFault(path);
}

void TestPlainText::boxesHaveRoomForLongPaths()
{
    const QString path = u"svrxconfig_quite_long_name_of_a_file_for_the_left_lane_cabinet.txt"_s;
    ModalAnswers answers;
    answers.expect<QMessageBox>([&path](QMessageBox &box) {
        const QList<QLabel *> labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels)
            QVERIFY(label->width() >= label->minimumSizeHint().width());
        ui::click(*box.button(QMessageBox::Ok));
    });
    messages::fileFault(path);
}

void TestPlainText::namesTakeTheRoomTheyNeed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("lines");
    QTest::newRow("none") << QString() << 1;
    QTest::newRow("short") << u"Ham"_s << 1;
    QTest::newRow("two words that fit no line") << u"WWWWWWWWWWW WWWWWWWWWW"_s << 2;
    QTest::newRow("one word that fits no line") << QString(22, u'W') << 2;
    QTest::newRow("line feeds") << u"a\nb\nc"_s << 1;
}

void TestPlainText::namesTakeTheRoomTheyNeed()
{
    QFETCH(const QString, name);
    QFETCH(const int, lines);
    NameLabel label;
    const QSize size = label.minimumSizeHint();
    const int width = QFontMetrics(label.font()).horizontalAdvance(QString(15, u'W'));
    const int lineHeight = label.heightForWidth(width);
    label.setText(name);
    QCOMPARE(label.heightForWidth(width), lines * lineHeight);
    QCOMPARE(label.minimumSizeHint(), size);
    label.setText(QString(100, u'W') + name);
    const int most = label.heightForWidth(width);
    label.setText(QString(10'000, u'W'));
    QVERIFY(label.heightForWidth(width) <= most + lineHeight);
}

QTEST_MAIN(TestPlainText)
#include "tst_plaintext.moc"
