// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/openmenus.h"

#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/productedit.h"
#include "tests/support/modalanswers.h"
#include "tests/support/uidriver.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

const QString OpenMenus::saveFilter = u"JSON Menu Files (*.json)"_s;

OpenMenus::OpenMenus()
{
    ui::show(m_window);
}

QMdiArea &OpenMenus::area() const
{
    return ui::get<QMdiArea>(m_window, "mdiArea");
}

void OpenMenus::removeFolder()
{
    QVERIFY(m_folder.remove());
}

QMdiSubWindow *OpenMenus::newestSince(qsizetype count) const
{
    const QList<QMdiSubWindow *> subWindows = area().subWindowList();
    return subWindows.size() == count + 1 ? subWindows.constLast() : nullptr;
}

QMdiSubWindow *OpenMenus::open(const QString &path)
{
    const qsizetype count = area().subWindowList().size();
    ModalAnswers answers;
    answers.expectOpenDialog(path);
    ui::clickMenu(m_window, "menuFile", "actionOpen");
    return newestSince(count);
}

QMdiSubWindow *OpenMenus::openSample(const QString &name)
{
    return open(windowmenu::file(m_folder, name));
}

QMdiSubWindow *OpenMenus::openNew()
{
    const qsizetype count = area().subWindowList().size();
    ModalAnswers answers;
    answers.expect<SelectProductLine>([](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    ui::clickMenu(m_window, "menuFile", "actionNew");
    return newestSince(count);
}

void OpenMenus::closeUnsaved(QMdiSubWindow &subWindow)
{
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    subWindow.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void OpenMenus::change(QMdiSubWindow &subWindow)
{
    area().setActiveSubWindow(&subWindow);
    auto &list = ui::get<QListWidget>(subWindow, "listWidgetProducts");
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Changed"_s);
        ui::click(dialog, "btnSave");
    });
    ui::doubleClickRow(list, 0);
}
