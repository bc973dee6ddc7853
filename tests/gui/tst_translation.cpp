// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include "app/mainwindow.h"
#include "app/startup.h"
#include "app/translation.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// How the catalogue is chosen, with catalogues for German (Germany) and French beside the shipped one.
class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void firstLanguageWithACatalogueWins_data();
    void firstLanguageWithACatalogueWins();
    void shippedCatalogueChangesNothing();
    void programStartsTranslatedAndMaximised_data();
    void programStartsTranslatedAndMaximised();
    void programEndsWithTheExitCode();
};

void TestTranslation::firstLanguageWithACatalogueWins_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<QString>("exitText");
    QTest::newRow("none") << QStringList() << false << QString();
    QTest::newRow("no catalogue") << QStringList{u"fi-FI"_s, u"sv"_s} << false << QString();
    QTest::newRow("exact") << QStringList{u"de-DE"_s} << true << u"B&eenden"_s;
    QTest::newRow("with script") << QStringList{u"de-Latn-DE"_s} << true << u"B&eenden"_s;
    QTest::newRow("language alone") << QStringList{u"de"_s} << true << u"B&eenden"_s;
    QTest::newRow("any country") << QStringList{u"fr-CA"_s} << true << u"&Quitter"_s;
    QTest::newRow("other country") << QStringList{u"de-AT"_s} << false << QString();
    QTest::newRow("first wins") << QStringList{u"fr-FR"_s, u"de-DE"_s} << true << u"&Quitter"_s;
    QTest::newRow("second after a miss") << QStringList{u"fi-FI"_s, u"de-DE"_s} << true << u"B&eenden"_s;
}

void TestTranslation::firstLanguageWithACatalogueWins()
{
    QFETCH(const QStringList, languages);
    QFETCH(const bool, loaded);
    QFETCH(const QString, exitText);
    QTranslator translator;
    QCOMPARE(loadTranslator(translator, languages), loaded);
    QCOMPARE(translator.translate("MainWindow", "E&xit"), exitText);
}

void TestTranslation::shippedCatalogueChangesNothing()
{
    QTranslator translator;
    QVERIFY(loadTranslator(translator, {u"en-US"_s}));
    QCOMPARE(translator.filePath(), u":/i18n/VarnoPlexora_en_US.qm"_s);
    QVERIFY(translator.translate("MainWindow", "E&xit").isEmpty());
}

namespace {

/// The main window of the program that runs, or null.
MainWindow *mainWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<MainWindow *>(widget))
            return window;
    }
    return nullptr;
}

} // namespace

void TestTranslation::programStartsTranslatedAndMaximised_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("exitText");
    QTest::newRow("translated") << QStringList{u"fi-FI"_s, u"de-DE"_s} << u"B&eenden"_s;
    QTest::newRow("not translated") << QStringList{u"fi-FI"_s} << u"E&xit"_s;
}

// The texts of a window are set once: the catalogue has to be there before.
void TestTranslation::programStartsTranslatedAndMaximised()
{
    QFETCH(const QStringList, languages);
    QFETCH(const QString, exitText);
    bool maximised = false;
    QString shownText;
    QTimer::singleShot(0, this, [&maximised, &shownText] {
        MainWindow *window = mainWindow();
        if (!window) {
            QCoreApplication::exit(1);
            return;
        }
        maximised = window->isVisible() && window->isMaximized();
        shownText = window->findChild<QAction *>(u"actionExit"_s)->text();
        window->close();
    });
    QCOMPARE(runProgram(languages), 0);
    QVERIFY(maximised);
    QCOMPARE(shownText, exitText);
    QVERIFY(!mainWindow());
}

void TestTranslation::programEndsWithTheExitCode()
{
    QTimer::singleShot(0, this, [] { QCoreApplication::exit(3); });
    QCOMPARE(runProgram({}), 3);
}

QTEST_MAIN(TestTranslation)
#include "tst_translation.moc"
