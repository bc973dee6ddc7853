// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What multiple selection costs in a menu of very many products, as only a file can bring them. The argument
// is their number. Enters the mode, selects one row and then all of them, shows the list anew, and leaves the
// mode, in measured(); prints the milliseconds of the slowest of these acts.

#include <cstdio>

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QTemporaryDir>

#include "benchmarks/measured.h"
#include "benchmarks/slowest.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace {

holding::Menu menuOf(int products)
{
    holding::Menu menu;
    menu.configuration.type = u"QHX"_s;
    menu.configuration.model = u"KTR54"_s;
    for (int id = 1; id <= products; ++id) {
        menu.products.push_back(holding::newProduct(id, 2));
        menu.products.back()->set_productName(sameNameInAllLanguages(u"Product %1"_s.arg(id)));
    }
    return menu;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"menu.json"_s);
    const int products = QCoreApplication::arguments().value(1).toInt();
    if (products < 1 || !writeFile(path, holding::writeMenu(menuOf(products)))) {
        std::fprintf(stderr, "usage: %s NUMBER OF PRODUCTS\n", argv[0]);
        return EXIT_FAILURE;
    }
    MenuFile editor(path);
    editor.show();
    QCoreApplication::processEvents();
    auto *list = editor.findChild<QListWidget *>(u"listWidgetProducts"_s);
    auto *button = editor.findChild<QAbstractButton *>(u"btnSelectMultiProduct"_s);
    double slowest = 0;
    measured([&] {
        slowest = slowestAct({[&] { button->click(); }, [&] { list->item(products / 2)->setSelected(true); },
                              [&] { list->selectAll(); }, [&] { editor.loadProducts(); },
                              [&] { button->click(); }});
    });
    std::printf("%.1f\n", slowest);
    return EXIT_SUCCESS;
}
