// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/program.h"

#include <QTest>

#include "app/productlines.h"
#include "app/selectproductline.h"
#include "app/startup.h"
#include "holding/configuration.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/lanefile.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/samplefile.h"
#include "tests/support/uidriver.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

namespace {

struct LineDialogs
{
    LineNames names;
    std::array<QString, 3> captions; ///< by Asking
    QString filter;
    QString start; ///< the name that a menu without a file is offered
    const QMetaObject *configuration;
};

const LineDialogs &dialogsOf(Line line)
{
    static const std::array<LineDialogs, allLines.size()> lines{
        {{{u"QHX/ZPV"_s,
           u"MenuFile"_s,
           u"QhxMenuFile"_s,
           u"Menu File - "_s,
           {{u"json"_s, [] { return samplefile::Menu{}.bytes(); }},
            {u"qhx"_s, [] { return qhx::sample().bytes(); }}}},
          {u"Save JSON Menu"_s, u"Save As JSON Menu"_s, u"Save JSON Menu"_s},
          u"JSON Menu Files (*.json)"_s,
          u""_s,
          &Configuration::staticMetaObject},
         {{u"Savorix"_s,
           u"SvrxMenuFile"_s,
           u"SvrxMenuFile"_s,
           u"Menu File - "_s,
           {{u"txt"_s, [] { return lanefile::text("T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0"); }}}},
          {u"Save Savorix Menu"_s, u"Save Savorix Menu"_s, u"Save Savorix Menu"_s},
          u"Savorix Menu Files (*.txt)"_s,
          u"svrxconfig_"_s,
          nullptr},
         {{u"Timer Bar Cabinet"_s,
           u"TimerBarMenuFile"_s,
           u"TimerBarMenuFile"_s,
           u"TimerBar Menu File - "_s,
           {{u"cbr"_s, [] { return cbr::Menu{}.bytes(); }}}},
          {u"Save TimerBar Menu"_s, u"Save TimerBar Menu"_s, u"TimerBar Menu"_s},
          u"TimerBar Menu Files (*.cbr)"_s,
          u""_s,
          &TimerBarConfig::staticMetaObject}}};
    return lines.at(static_cast<std::size_t>(line));
}

} // namespace

const LineNames &namesOf(Line line)
{
    return dialogsOf(line).names;
}

void addLineRows()
{
    QTest::addColumn<Line>("line");
    for (const Line line : allLines)
        QTest::newRow(qPrintable(namesOf(line).chooser)) << line;
}

Program::Program()
{
    prepareApplication();
    ui::show(m_window);
}

QMdiArea &Program::area()
{
    return ui::get<QMdiArea>(m_window, "mdiArea");
}

QMdiSubWindow *Program::subWindow()
{
    const QList<QMdiSubWindow *> subWindows = area().subWindowList();
    return subWindows.isEmpty() ? nullptr : subWindows.constLast();
}

void Program::choose(const char *action)
{
    ui::clickMenu(m_window, "menuFile", action);
    ui::activate(m_window);
}

QMdiSubWindow *Program::newMenu(Line line, const char *configure)
{
    m_answers.expect<SelectProductLine>([line](SelectProductLine &dialog) {
        ui::choose(dialog, "comboProductLineSelect", namesOf(line).chooser);
        ui::click(dialog, "btnAccept");
        REQUIRE_EQUAL(dialog.result(), static_cast<int>(line) + 1);
    });
    if (const QMetaObject *configuration = dialogsOf(line).configuration)
        m_answers.expectAny(*configuration, [configure](QDialog &dialog) { ui::click(dialog, configure); });
    const qsizetype before = menuCount();
    choose("actionNew");
    return menuCount() == before + 1 ? subWindow() : nullptr;
}

QMdiSubWindow *Program::open(const QString &name, const QByteArray &bytes)
{
    m_folder.make(name, bytes);
    return open(name);
}

QMdiSubWindow *Program::open(const QString &name)
{
    expectOpenDialog(name);
    return openNow();
}

void Program::expectOpenDialog(const QString &name)
{
    m_answers.expectFileDialog(u"Open JSON Menu"_s, openFilter(), name.isEmpty() ? QString() : path(name));
}

QMdiSubWindow *Program::openNow()
{
    const qsizetype before = menuCount();
    choose("actionOpen");
    return menuCount() == before + 1 ? subWindow() : nullptr;
}

void Program::expectSaveDialog(Line line, Asking asking, const QString &path, const QString &start)
{
    const LineDialogs &dialogs = dialogsOf(line);
    m_answers.expectFileDialog(dialogs.captions.at(static_cast<std::size_t>(asking)), dialogs.filter, path,
                               start.isNull() ? dialogs.start : start);
}

void Program::expectSaveQuestion(QMessageBox::StandardButton answer)
{
    m_answers.expectBox(ModalAnswers::saveQuestion(), answer);
}
