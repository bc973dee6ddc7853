// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/productlines.h"

#include <algorithm>

#include <QCoreApplication>
#include <QMdiSubWindow>

#include "holding/menufile.h"
#include "lanes/svrxmenufile.h"
#include "timerbar/timerbarmenufile.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Editor>
constexpr EditorClass editorClass{
    .create = [](const QString &path, QWidget *parent) -> std::unique_ptr<MenuEditor> {
        return std::make_unique<Editor>(path, parent);
    },
    .cast = [](QWidget *widget) -> MenuEditor * { return qobject_cast<Editor *>(widget); }};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

template <typename Predicate>
const ProductLine *find(Predicate matches)
{
    const QList<ProductLine> &lines = productLines();
    const auto found = std::find_if(lines.begin(), lines.end(), matches);
    return found == lines.end() ? nullptr : &*found;
}

} // namespace

const QList<ProductLine> &productLines()
{
    static const QList<ProductLine> lines{
        {.resultCode = 1,
         .name = u"QHX/ZPV"_s,
         .subWindowName = "QhxMenuFile"_L1,
         .suffixes = {".json"_L1, ".qhx"_L1},
         .openFilter = [] { return Text::tr("QHX Json Menu Files (*.json)"); },
         .editor = editorClass<MenuFile>},
        {.resultCode = 2,
         .name = u"Savorix"_s,
         .subWindowName = "SvrxMenuFile"_L1,
         .suffixes = {".txt"_L1},
         .openFilter = [] { return Text::tr("Savorix Menu Files (*.txt)"); },
         .editor = editorClass<SvrxMenuFile>},
        {.resultCode = 3,
         .name = u"Timer Bar Cabinet"_s,
         .subWindowName = "TimerBarMenuFile"_L1,
         .suffixes = {".cbr"_L1},
         .openFilter = [] { return Text::tr("TimerBar Menu Files (*.cbr)"); },
         .editor = editorClass<TimerBarMenuFile>},
    };
    return lines;
}

const ProductLine *productLineByResult(int resultCode)
{
    return find([resultCode](const ProductLine &line) { return line.resultCode == resultCode; });
}

const ProductLine *productLineOfFile(const QString &path)
{
    return find([&path](const ProductLine &line) {
        return std::any_of(line.suffixes.begin(), line.suffixes.end(), [&path](QLatin1StringView suffix) {
            return path.endsWith(suffix, Qt::CaseInsensitive);
        });
    });
}

QString openFilter()
{
    QStringList patterns;
    QStringList filters;
    for (const ProductLine &line : productLines()) {
        for (const QLatin1StringView suffix : line.suffixes)
            patterns.append(u'*' + suffix);
        filters.append(line.openFilter());
    }
    filters.prepend(Text::tr("Varno Menu Files (%1)").arg(patterns.join(u' ')));
    return filters.join(";;"_L1);
}

const ProductLine *productLineOf(const QMdiSubWindow &subWindow)
{
    return find(
        [&subWindow](const ProductLine &line) { return subWindow.objectName() == line.subWindowName; });
}

MenuEditor *menuEditorIn(const QMdiSubWindow &subWindow)
{
    const ProductLine *line = productLineOf(subWindow);
    return line ? line->editor.cast(subWindow.widget()) : nullptr;
}
