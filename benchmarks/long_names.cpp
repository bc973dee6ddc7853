// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What painting bins with very long names costs, as only a file can bring them. The argument is their length.
// Paints a whole editor with twelve of them in measured().

#include <cstdio>

#include <QApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTemporaryDir>

#include "benchmarks/measured.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int bins = 12;
constexpr int dayPartsTab = 2;

holding::Menu menuOf(int length)
{
    holding::Menu menu;
    menu.configuration.type = u"QHX"_s;
    menu.configuration.model = u"KTR54"_s;
    menu.daypartCount = 1;
    menu.dayparts[0].names = sameNameInAllLanguages(u"Breakfast"_s);
    for (int id = 1; id <= bins; ++id) {
        menu.products.push_back(holding::newProduct(id, 2));
        // Only the first of the languages is shown: the others would fill the file.
        QStringList names = sameNameInAllLanguages(u"Product"_s);
        names[0] = QString(length, QChar(u'a' + id));
        menu.products.back()->set_productName(names);
        menu.dayparts[0].bins[Bin{(id - 1) / 4, (id - 1) % 4}] = id;
    }
    return menu;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"menu.json"_s);
    const int length = QCoreApplication::arguments().value(1).toInt();
    if (length < 1 || !writeFile(path, holding::writeMenu(menuOf(length)))) {
        std::fprintf(stderr, "usage: %s LENGTH OF THE NAMES\n", argv[0]);
        return EXIT_FAILURE;
    }
    MenuFile editor(path);
    editor.findChild<QTabWidget *>(u"tabWidget"_s)->setCurrentIndex(dayPartsTab);
    editor.show();
    QCoreApplication::processEvents();
    measured([&editor] { editor.grab(); });
    return EXIT_SUCCESS;
}
