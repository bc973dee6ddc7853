// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/chapter.h"

#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>

#include "app/productlines.h"
#include "app/selectproductline.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QString fileNameFor(const QString &title)
{
    static const QRegularExpression others(u"[^a-z0-9]+"_s);
    return title.toLower().replace(others, u" "_s).trimmed().replace(u' ', u'-');
}

} // namespace

Chapter::Chapter(MainWindow &window, Album &album)
    : m_window(window)
    , m_album(album)
{}

Chapter::Answers::Answers(Chapter &chapter)
{
    onShown([&chapter](const QDialog &dialog) { chapter.shot(fileNameFor(dialog.windowTitle())); });
}

void Chapter::init()
{
    QVERIFY2(!m_failed, "not done, as a step before it failed");
    failOnWarnings();
    require::atTheEnd([this] { shot(u"failure"_s); });
}

void Chapter::cleanup()
{
    if (!QTest::currentTestFailed() || m_failed)
        return;
    m_failed = true;
    shot(u"failure"_s);
}

QMdiSubWindow *Chapter::activeSubWindow() const
{
    return ui::get<QMdiArea>(m_window, "mdiArea").activeSubWindow();
}

QWidget *Chapter::activeWidget() const
{
    const QMdiSubWindow *subWindow = activeSubWindow();
    return subWindow ? subWindow->widget() : nullptr;
}

void Chapter::clickTab(int index)
{
    auto &tabs = ui::get<QTabWidget>(*activeWidget(), "tabWidget");
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(index).center());
    REQUIRE_EQUAL(tabs.currentIndex(), index);
}

void Chapter::expectProductLine(Answers &answers, const QString &name)
{
    answers.expect<SelectProductLine>([name](SelectProductLine &dialog) {
        ui::choose(dialog, "comboProductLineSelect", name);
        ui::click(dialog, "btnAccept");
    });
}

void Chapter::openFile(const QString &path)
{
    Answers answers(*this);
    answers.expectFileDialog(u"Open JSON Menu"_s, openFilter(), path);
    ui::clickMenu(window(), "menuFile", "actionOpen");
    REQUIRE(activeWidget());
}

void Chapter::saveFileAs(const QString &caption, const QString &filter, const QString &path)
{
    Answers answers(*this);
    answers.expectFileDialog(caption, filter, path);
    ui::clickMenu(window(), "menuFile", "actionSaveAs");
    REQUIRE_EQUAL(activeEditor<MenuEditor>()->filePath(), path);
}

void Chapter::closeEditor(QMessageBox::StandardButton answer)
{
    Answers answers(*this);
    answers.expectBox(ModalAnswers::saveQuestion(), answer);
    QTest::keyClick(activeWidget(), Qt::Key_Escape);
    REQUIRE_SOON(!activeSubWindow());
}

void Chapter::holdBin(const char *button)
{
    auto &bin = ui::get<QPushButton>(*activeWidget(), button);
    QTest::mousePress(&bin, Qt::LeftButton);
    REQUIRE_SOON(bin.isCheckable());
    QTest::mouseRelease(&bin, Qt::LeftButton);
    REQUIRE(bin.isChecked());
}

QByteArray Chapter::contents(const QString &path)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly), path);
    return file.readAll();
}
