// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>

#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

void openBox()
{
    QMessageBox box;
    box.setWindowTitle(u"Title"_s);
    box.setText(u"Nobody reads this"_s);
    box.exec();
}

} // namespace

/// Tests that have to fail. Each is run by itself in a process of its own.
class FailingTests : public QObject
{
    Q_OBJECT

private slots:
    void nobodyListens() { openBox(); }
    void nothingIsExpected()
    {
        const ModalAnswers answers;
        openBox();
    }
    void anotherKindIsExpected()
    {
        ModalAnswers answers;
        answers.expect<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
        openBox();
    }
    void leftOpen()
    {
        ModalAnswers answers;
        answers.expect<QMessageBox>([](QMessageBox &) {});
        openBox();
    }
    void expectedInVain()
    {
        ModalAnswers answers;
        answers.expect<QMessageBox>([](QMessageBox &box) { box.reject(); });
    }
};

/// A test fails by a dialog that it does not expect, and never waits for it.
class TestModalAnswers : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void testFails_data();
    void testFails();
};

void TestModalAnswers::testFails_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("nobodyListens") << QByteArray("QMessageBox \"Title\" Nobody reads this");
    QTest::newRow("nothingIsExpected")
        << QByteArray("Unexpected dialog: QMessageBox \"Title\" Nobody reads this");
    QTest::newRow("anotherKindIsExpected") << QByteArray("Expected a QFileDialog, got QMessageBox");
    QTest::newRow("leftOpen") << QByteArray("Left open: QMessageBox");
    QTest::newRow("expectedInVain") << QByteArray("1 expected dialog(s) did not come up, next a QMessageBox");
}

void TestModalAnswers::testFails()
{
    QFETCH(const QByteArray, message);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QTEST_DISABLE_STACK_DUMP"_s, u"1"_s);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {u"--failing"_s, QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(process.waitForFinished());
    QVERIFY(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0);
    const QByteArray told = process.readAll();
    QVERIFY2(told.contains(message), told.constData());
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.removeOne(u"--failing"_s)) {
        FailingTests tests;
        return QTest::qExec(&tests, arguments);
    }
    TestModalAnswers test;
    return QTest::qExec(&test, arguments);
}

#include "tst_modalanswers.moc"
