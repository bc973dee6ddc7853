// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>

#include <QApplication>
#include <QTest>

#include "app/startup.h"
#include "tests/support/warnings.h"

/// What is set for the whole program.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void fileSizeLimitDoesNotEndTheProgram();
    void desktopFindsTheProgram();
};

void TestStartup::fileSizeLimitDoesNotEndTheProgram()
{
    std::signal(SIGXFSZ, SIG_DFL);
    prepareApplication();
    QVERIFY(std::signal(SIGXFSZ, SIG_DFL) == SIG_IGN);
}

void TestStartup::desktopFindsTheProgram()
{
    QGuiApplication::setDesktopFileName({});
    prepareApplication();
    QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("varnoplexora"));
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
