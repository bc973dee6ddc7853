// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOptionTitleBar>
#include <QTimer>

#include "app/startup.h"
#include "tests/support/lanefile.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"
#include "widgets/menueditor.h"

using namespace Qt::StringLiterals;

namespace {

/// Notes the title that a sub-window draws last.
class TitleNotingStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        if (control == CC_TitleBar)
            m_title = qstyleoption_cast<const QStyleOptionTitleBar *>(option)->text;
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    [[nodiscard]] QString titleOf(QMdiSubWindow &subWindow)
    {
        m_title.clear();
        subWindow.grab();
        return m_title;
    }

private:
    mutable QString m_title;
};

} // namespace

/// The titles of open menus, as they are drawn.
class TestTitles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { failOnWarnings(); }
    void fileNamesStandAsTheyAre_data();
    void fileNamesStandAsTheyAre();
    void programLaysThemOutPlainly();

private:
    TitleNotingStyle *m_style = new TitleNotingStyle; ///< the application's from initTestCase() on
};

void TestTitles::initTestCase()
{
    QApplication::setStyle(m_style);
    prepareApplication();
}

void TestTitles::fileNamesStandAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a.txt", "a b & c.txt", "[*].txt", "a[*].txt", "[*][*].txt", "[*][*][*].txt",
                             "[[*]].txt", "%1.txt", "<b>.txt"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestTitles::fileNamesStandAsTheyAre()
{
    QFETCH(const QString, name);
    Program program;
    program.open(name, lanefile::text("T1=350,F1=1500"));
    QVERIFY(program.subWindow());
    QCOMPARE(m_style->titleOf(*program.subWindow()), u"Menu File - "_s + name);
    const QString other = u"svrxconfig_"_s + name;
    QVERIFY(program.editor<MenuEditor>()->writeToFile(program.path(other)));
    QCOMPARE(m_style->titleOf(*program.subWindow()), u"Menu File - "_s + other);
}

void TestTitles::programLaysThemOutPlainly()
{
    constexpr auto titleBar = "QMdiSubWindowTitleBar";
    QApplication::setFont(QApplication::font(), titleBar);
    QVERIFY(QApplication::font(titleBar).kerning());
    QTimer::singleShot(0, this, [] { QCoreApplication::exit(); });
    QCOMPARE(runProgram({}), 0);
    QVERIFY(!QApplication::font(titleBar).kerning());
    QCOMPARE(QApplication::font(titleBar).styleStrategy(), QFont::PreferNoShaping);
}

QTEST_MAIN(TestTitles)
#include "tst_titles.moc"
