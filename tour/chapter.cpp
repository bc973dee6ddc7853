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

#include "app/selectproductline.h"
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
    QCOMPARE(tabs.currentIndex(), index);
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
    answers.expectFileDialog(u"Open JSON Menu"_s,
                             u"Varno Menu Files (*.json *.qhx *.txt *.cbr);;QHX Json Menu Files (*.json);;"
                             "Savorix Menu Files (*.txt);;TimerBar Menu Files (*.cbr)"_s,
                             path);
    ui::clickMenu(window(), "menuFile", "actionOpen");
    QVERIFY(activeWidget());
}

void Chapter::saveFileAs(const QString &caption, const QString &filter, const QString &path)
{
    Answers answers(*this);
    answers.expectFileDialog(caption, filter, path);
    ui::clickMenu(window(), "menuFile", "actionSaveAs");
    QCOMPARE(activeEditor<MenuEditor>()->filePath(), path);
}

void Chapter::closeEditor(QMessageBox::StandardButton answer)
{
    Answers answers(*this);
    answers.expectBox(ModalAnswers::saveQuestion(), answer);
    QTest::keyClick(activeWidget(), Qt::Key_Escape);
    QVERIFY(QTest::qWaitFor([this] { return !activeSubWindow(); }));
}

void Chapter::holdBin(const char *button)
{
    auto &bin = ui::get<QPushButton>(*activeWidget(), button);
    QTest::mousePress(&bin, Qt::LeftButton);
    QVERIFY(QTest::qWaitFor([&bin] { return bin.isCheckable(); }));
    QTest::mouseRelease(&bin, Qt::LeftButton);
    QVERIFY(bin.isChecked());
}

QByteArray Chapter::contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(u"Cannot read "_s + path), __FILE__, __LINE__);
    return file.readAll();
}
