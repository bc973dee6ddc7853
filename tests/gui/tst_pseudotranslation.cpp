// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QTest>

#include "app/aboutapp.h"
#include "holding/menufile.h"
#include "lanes/svrxmenufile.h"
#include "tests/gui/pseudotranslation.h"
#include "tests/gui/work.h"
#include "tests/support/everywindow.h"
#include "tests/support/lanefile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/shownwidgets.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

/// With a catalogue that changes every text nothing is left as it was, and every file stays the same.
class TestPseudoTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { failOnWarnings(); }
    void cleanup() { QApplication::removeTranslator(&m_translator); }
    void windowsAreTranslated_data() { addWindowRows(); }
    void windowsAreTranslated();
    void untranslatedTextIsFound();
    void readerFaultsAreTranslated_data();
    void readerFaultsAreTranslated();
    void laneFaultsAreTranslated_data();
    void laneFaultsAreTranslated();
    void laneFilesStayTheSame();
    void importFaultsAreTranslated_data();
    void importFaultsAreTranslated();
    void workingIsTranslatedAndFilesStayTheSame();

private:
    void checkFault(const QString &name, const QByteArray &content);

    PseudoTranslator m_translator;
    QStringList m_names; ///< held in the menus
};

void TestPseudoTranslation::initTestCase()
{
    const holding::Menu menu = windowmenu::menu();
    for (const Entries *entries : {&menu.products, &menu.groups}) {
        for (const auto &entry : *entries)
            m_names.append(shownName(entry->get_productName()));
    }
    for (const holding::Daypart &daypart : menu.dayparts)
        m_names.append(shownName(daypart.names));
    m_names.append({u"Bacon"_s, u"Soup"_s, u"Soups"_s});       // of the default menu, and as entered
    m_names.append({QString(25, u'W'), u"WWWW"_s, u"BACN"_s}); // of the Timer Bar menu
}

void TestPseudoTranslation::windowsAreTranslated()
{
    QFETCH(const std::size_t, kind);
    QApplication::installTranslator(&m_translator);
    const OpenWindow open(everyWindow()[kind]);
    checkTranslated(open.window(), m_names);
}

void TestPseudoTranslation::untranslatedTextIsFound()
{
    AboutApp box;
    QCOMPARE(untranslatedTexts(box, {}).size(), shown::texts(box).size());
}

void TestPseudoTranslation::readerFaultsAreTranslated_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray header = R"("header":{"cabinetType":"QHX","cabinetModel":"KTR22"})";
    QTest::newRow("no document") << QByteArray("{");
    QTest::newRow("no header") << QByteArray("{}");
    QTest::newRow("no menu") << QByteArray('{' + header + '}');
    QTest::newRow("no products") << QByteArray('{' + header + R"(,"menu":{"layout":[]}})");
    QTest::newRow("no groups") << QByteArray('{' + header + R"(,"menu":{"products":[]}})");
    QTest::newRow("no layout") << QByteArray('{' + header + R"(,"menu":{"products":[],"productGroups":[]}})");
    QTest::newRow("no file") << QByteArray();
}

void TestPseudoTranslation::readerFaultsAreTranslated()
{
    QFETCH(const QByteArray, content);
    checkFault(u"menu.json"_s, content);
}

void TestPseudoTranslation::importFaultsAreTranslated_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto add = [](const char *what, auto change) {
        qhx::File file = qhx::sample();
        change(file);
        QTest::newRow(what) << file.bytes();
    };
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("no header") << QByteArray("short");
    add("header", [](qhx::File &file) { file.brokenChecksums = {0}; });
    add("revision", [](qhx::File &file) { file.revision = 4; });
    add("count", [](qhx::File &file) { file.count = 101; });
    add("no configuration", [](qhx::File &file) { file.configurationOffset = 9999; });
    add("configuration", [](qhx::File &file) { file.brokenChecksums = {1}; });
    add("no product", [](qhx::File &file) { file.entriesOffset = 9999; });
    add("product", [](qhx::File &file) { file.brokenChecksums = {2}; });
    add("no day part", [](qhx::File &file) { file.daypartsOffset = 9999; });
    add("day part", [](qhx::File &file) { file.brokenChecksums = {5}; });
}

void TestPseudoTranslation::importFaultsAreTranslated()
{
    QFETCH(const QByteArray, content);
    checkFault(u"menu.qhx"_s, content);
}

namespace {

void expectTranslatedBox(ModalAnswers &answers)
{
    answers.expect<QMessageBox>([](QMessageBox &box) {
        checkTranslated(box, {});
        ui::click(*box.button(QMessageBox::Ok));
    });
}

} // namespace

// Opens a menu of this content, or none for an empty one.
void TestPseudoTranslation::checkFault(const QString &name, const QByteArray &content)
{
    QApplication::installTranslator(&m_translator);
    const TestFolder folder;
    if (!content.isEmpty())
        folder.make(name, content);
    ModalAnswers answers;
    expectTranslatedBox(answers);
    const MenuFile editor(folder.path(name));
    REQUIRE(!editor.isMenuValid());
}

void TestPseudoTranslation::laneFaultsAreTranslated_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no line") << QByteArray("\n");
    QTest::newRow("wrong identifier") << lanefile::text("T1=350,F1=1500", "0000");
    QTest::newRow("no lane") << lanefile::text("T1=0,F1=0");
    QTest::newRow("no file") << QByteArray();
}

void TestPseudoTranslation::laneFaultsAreTranslated()
{
    QFETCH(const QByteArray, content);
    QApplication::installTranslator(&m_translator);
    const TestFolder folder;
    if (!content.isEmpty())
        folder.make(u"a.txt"_s, content);
    ModalAnswers answers;
    expectTranslatedBox(answers);
    const SvrxMenuFile editor(folder.path(u"a.txt"_s));
    QVERIFY(!editor.isMenuValid());
}

void TestPseudoTranslation::laneFilesStayTheSame()
{
    const TestFolder folder;
    SvrxMenuFile plain({});
    QVERIFY(plain.writeToFile(folder.path(u"svrxconfig_plain.txt"_s)));
    QApplication::installTranslator(&m_translator);
    SvrxMenuFile translated({});
    QVERIFY(translated.writeToFile(folder.path(u"svrxconfig_translated.txt"_s)));
    QCOMPARE(folder.content(u"svrxconfig_translated.txt"_s), folder.content(u"svrxconfig_plain.txt"_s));
    QCOMPARE(folder.content(u"svrxprod_translated.txt"_s), folder.content(u"svrxprod_plain.txt"_s));
    ModalAnswers answers;
    for (const QString &name : {u"wrong.txt"_s, u"missing/svrxconfig_a.txt"_s}) {
        expectTranslatedBox(answers);
        QVERIFY(!translated.writeToFile(folder.path(name)));
    }
}

void TestPseudoTranslation::workingIsTranslatedAndFilesStayTheSame()
{
    const QList<QByteArray> plain = Work(false, m_names).run();
    QApplication::installTranslator(&m_translator);
    const QList<QByteArray> translated = Work(true, m_names).run();
    QCOMPARE(translated, plain);
    QVERIFY(plain[0].contains("\"Soup\"") && plain[0].contains("\"Vented\""));
    const QJsonObject edited = QJsonDocument::fromJson(plain[1]).object();
    const QJsonObject last = QJsonDocument::fromJson(plain[2]).object();
    QCOMPARE(edited[u"menu"_s][u"productGroups"_s].toArray().size(), 1);
    QCOMPARE(last[u"menu"_s][u"productGroups"_s].toArray().size(), 0);
    QCOMPARE(last[u"menu"_s][u"products"_s].toArray().size(),
             edited[u"menu"_s][u"products"_s].toArray().size() - 1);
    QCOMPARE(last[u"header"_s][u"cabinetModel"_s].toString(), u"KTR33"_s);
}

QTEST_MAIN(TestPseudoTranslation)
#include "tst_pseudotranslation.moc"
