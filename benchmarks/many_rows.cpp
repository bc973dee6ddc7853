// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What selecting and finding rows costs in a menu of very many products, as only a file can bring them. The
// first argument is their number. Enters multiple selection, selects one row and then all of them, shows the
// list anew, and leaves the mode, in measured(); with a second argument "find" it types what part of the rows
// contain, then more, checks what is in sight, and empties the field. Prints the milliseconds of the slowest
// of these acts.

#include <cstdio>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
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

template <typename Widget>
Widget *widgetOf(const MenuFile &editor, const QString &name)
{
    return editor.findChild<Widget *>(name);
}

double select(MenuFile &editor, int products)
{
    auto *list = widgetOf<QListWidget>(editor, u"listWidgetProducts"_s);
    auto *button = widgetOf<QAbstractButton>(editor, u"btnSelectMultiProduct"_s);
    return slowestAct({[=] { button->click(); }, [=] { list->item(products / 2)->setSelected(true); },
                       [=] { list->selectAll(); }, [&editor] { editor.loadProducts(); },
                       [=] { button->click(); }});
}

double find(const MenuFile &editor)
{
    auto *list = widgetOf<QListWidget>(editor, u"listWidgetProducts"_s);
    auto *field = widgetOf<QLineEdit>(editor, u"txtFindProducts"_s);
    widgetOf<QAbstractButton>(editor, u"btnSelectMultiProduct"_s)->click();
    const auto type = [=](const QString &text) {
        field->setText(text);
        list->grab(); // the rows are laid out anew
    };
    const auto checkAll = [=] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
        QCoreApplication::sendEvent(list, &press);
    };
    return slowestAct({[&] { type(u"7"_s); }, [&] { type(u"p 79"_s); }, checkAll, [&] { type(u"7"_s); },
                       [&] { type({}); }});
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"menu.json"_s);
    const int products = QCoreApplication::arguments().value(1).toInt();
    if (products < 1 || !writeFile(path, holding::writeMenu(menuOf(products)))) {
        std::fprintf(stderr, "usage: %s NUMBER OF PRODUCTS [find]\n", argv[0]);
        return EXIT_FAILURE;
    }
    MenuFile editor(path);
    editor.show();
    QCoreApplication::processEvents();
    const bool finds = QCoreApplication::arguments().value(2) == "find"_L1;
    double slowest = 0;
    measured([&] { slowest = finds ? find(editor) : select(editor, products); });
    std::printf("%.1f\n", slowest);
    return EXIT_SUCCESS;
}
