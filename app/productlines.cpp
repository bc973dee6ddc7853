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
MenuEditor *create(const QString &path, QWidget *parent)
{
    return new Editor(path, parent);
}

template <typename Editor>
MenuEditor *cast(QWidget *widget)
{
    return qobject_cast<Editor *>(widget);
}

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

SaveNameRequest ProductLine::saveRequest(const MenuEditor &editor) const
{
    const QString path = editor.filePath();
    return {saveCaption(), path.isEmpty() ? startName : path, fileFilter()};
}

SaveNameRequest ProductLine::saveAsRequest(const MenuEditor &editor) const
{
    SaveNameRequest request = saveRequest(editor);
    request.caption = saveAsCaption();
    return request;
}

const QList<ProductLine> &productLines()
{
    static const QList<ProductLine> lines{
        {.resultCode = 1,
         .name = u"QHX/ZPV"_s,
         .subWindowName = "QhxMenuFile"_L1,
         .endings = {".json"_L1, ".qhx"_L1},
         .startName = {},
         .saveCaption = [] { return Text::tr("Save JSON Menu"); },
         .saveAsCaption = [] { return Text::tr("Save As JSON Menu"); },
         .fileFilter = [] { return Text::tr("JSON Menu Files (*.json)"); },
         .create = create<MenuFile>,
         .cast = cast<MenuFile>},
        {.resultCode = 2,
         .name = u"Savorix"_s,
         .subWindowName = "SvrxMenuFile"_L1,
         .endings = {".txt"_L1},
         .startName = lanes::configurationPrefix,
         .saveCaption = SvrxMenuFile::saveCaption,
         .saveAsCaption = SvrxMenuFile::saveCaption,
         .fileFilter = SvrxMenuFile::fileFilter,
         .create = create<SvrxMenuFile>,
         .cast = cast<SvrxMenuFile>},
        {.resultCode = 3,
         .name = u"Timer Bar Cabinet"_s,
         .subWindowName = "TimerBarMenuFile"_L1,
         .endings = {".cbr"_L1},
         .startName = {},
         .saveCaption = [] { return Text::tr("Save TimerBar Menu"); },
         .saveAsCaption = [] { return Text::tr("Save TimerBar Menu"); },
         .fileFilter = [] { return Text::tr("TimerBar Menu Files (*.cbr)"); },
         .create = create<TimerBarMenuFile>,
         .cast = cast<TimerBarMenuFile>},
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
        return std::any_of(line.endings.begin(), line.endings.end(), [&path](QLatin1StringView ending) {
            return path.endsWith(ending, Qt::CaseInsensitive);
        });
    });
}

OpenMenu openMenuIn(const QMdiSubWindow &subWindow)
{
    const ProductLine *line = find([&subWindow](const ProductLine &candidate) {
        return subWindow.objectName() == candidate.subWindowName;
    });
    MenuEditor *editor = line ? line->cast(subWindow.widget()) : nullptr;
    return editor ? OpenMenu{line, editor} : OpenMenu{};
}
