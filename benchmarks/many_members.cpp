// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a group costs whose members the menu lacks, as only a file can bring it. The argument is their number.
// Prints the milliseconds of selecting the group, and of opening its dialog and leaving it again.

#include <cstdio>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QTabWidget>
#include <QTemporaryDir>

#include "benchmarks/slowest.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace {

holding::Menu menuOf(int members)
{
    holding::Menu menu;
    menu.configuration.type = u"QHX"_s;
    menu.configuration.model = u"KTR54"_s;
    menu.groups.push_back(holding::newGroup(1));
    menu.groups.back()->set_productName(sameNameInAllLanguages(u"Group"_s));
    QList<int> ids;
    for (int id = 2; id < members + 2; ++id)
        ids.append(id);
    menu.groups.back()->set_productList(ids);
    return menu;
}

void openAndLeave(QAbstractButton &edit)
{
    QMetaObject::invokeMethod(
        &edit, [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject(); },
        Qt::QueuedConnection);
    edit.click();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"menu.json"_s);
    const int members = QCoreApplication::arguments().value(1).toInt();
    if (members < 1 || !writeFile(path, holding::writeMenu(menuOf(members)))) {
        std::fprintf(stderr, "usage: %s NUMBER OF MEMBERS\n", argv[0]);
        return EXIT_FAILURE;
    }
    MenuFile editor(path);
    editor.findChild<QTabWidget *>(u"tabWidget"_s)->setCurrentIndex(1);
    editor.show();
    QCoreApplication::processEvents();
    auto *list = editor.findChild<QListWidget *>(u"listWidgetGroups"_s);
    auto *edit = editor.findChild<QAbstractButton *>(u"btnEditGroup"_s);
    const double chosen = slowestAct({[&] {
        list->setCurrentRow(0);
        QCoreApplication::processEvents();
    }});
    const double edited = slowestAct({[&] { openAndLeave(*edit); }});
    std::printf("%.1f %.1f\n", chosen, edited);
    return EXIT_SUCCESS;
}
