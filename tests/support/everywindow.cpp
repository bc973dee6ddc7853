// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/everywindow.h"

#include <QCheckBox>
#include <QFile>
#include <QListWidget>
#include <QSpinBox>
#include <QTest>

#include "app/aboutapp.h"
#include "app/mainwindow.h"
#include "app/selectproductline.h"
#include "holding/assigndaypartitem.h"
#include "holding/configuration.h"
#include "holding/daypartedit.h"
#include "holding/groupedit.h"
#include "holding/inconsistencies.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/productedit.h"
#include "holding/timercolorpicker.h"
#include "lanes/svrxmenufile.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/lanefile.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/windowmenu.h"
#include "timerbar/copybins.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "timerbar/timerbarmenufile.h"
#include "timerbar/timerbarproductedit.h"
#include "widgets/menuinspection.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
std::unique_ptr<QWidget> makeWindow(MenuFile &editor)
{
    return std::make_unique<Window>(&editor);
}

std::unique_ptr<QWidget> makeMainWindow(MenuFile &)
{
    return std::make_unique<MainWindow>();
}

std::unique_ptr<QWidget> makeProductEdit(MenuFile &editor)
{
    return std::make_unique<ProductEdit>(*editor.getMenuProducts().constFirst(), 0, &editor);
}

std::unique_ptr<QWidget> makeGroupEdit(MenuFile &editor)
{
    return std::make_unique<GroupEdit>(*editor.getMenuGroups().constFirst(), &editor);
}

std::unique_ptr<QWidget> makeDaypartEdit(MenuFile &editor)
{
    return std::make_unique<DaypartEdit>(sameNameInAllLanguages(u"Breakfast"_s), &editor);
}

// With the first entry that fits shown in the details.
std::unique_ptr<QWidget> makeAssignDaypartItem(MenuFile &editor)
{
    const QStringList splits{editor.getMenuProducts().constFirst()->get_zoneSplits()};
    auto window = std::make_unique<AssignDaypartItem>(splits, 0, 0, 0, false, &editor);
    window->setPlace(u"Breakfast"_s, {0, 1}, windowmenu::longName);
    ui::get<QListWidget>(*window, "listWidgetProducts").setCurrentRow(0);
    return window;
}

std::unique_ptr<QWidget> makeEditor(MenuFile &editor)
{
    auto window = std::make_unique<MenuFile>(editor.filePath());
    ui::get<QListWidget>(*window, "listWidgetProducts").setCurrentRow(0);
    ui::get<QListWidget>(*window, "listWidgetGroups").setCurrentRow(0);
    return window;
}

// With the longest word on whether it is saved, but for the next.
std::unique_ptr<QWidget> makeChangedEditor(MenuFile &editor)
{
    auto window = makeEditor(editor);
    ui::get<QCheckBox>(*window, "checkBoxDaypartInUse").toggle();
    return window;
}

QString writeBeside(const MenuFile &editor, const QString &suffix, const QByteArray &content)
{
    QFile file(editor.filePath() + suffix);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < content.size())
        qFatal("Cannot write a file beside the menu");
    return file.fileName();
}

// It has to be saved under another name, and says so.
std::unique_ptr<QWidget> makeOldMenuEditor(MenuFile &editor)
{
    qhx::File file;
    file.entries = {qhx::Entry{}};
    return std::make_unique<MenuFile>(writeBeside(editor, u" of last summer.qhx"_s, file.bytes()));
}

// A bin without its product, and a product and a group that their dialogs would not take.
holding::Menu menuToLookAt(const MenuFile &editor)
{
    holding::Menu menu = windowmenu::menu(editor.configuration());
    menu.products[0]->set_holdTime(60);
    menu.groups[0]->set_productList({});
    menu.dayparts[0].bins[0][2] = 99;
    return menu;
}

std::unique_ptr<QWidget> makeMenuInspection(MenuFile &editor)
{
    const holding::Menu menu = menuToLookAt(editor);
    const QList<Finding> findings = holding::inconsistencies(menu).kept();
    auto window = std::make_unique<MenuInspection>(holding::findingTexts(findings, menu), 2, &editor);
    ui::get<QListWidget>(*window, "listWidgetFindings").setCurrentRow(0);
    return window;
}

std::unique_ptr<QWidget> makeEditorToLookAt(MenuFile &editor)
{
    const QByteArray bytes = holding::writeMenu(menuToLookAt(editor));
    return std::make_unique<MenuFile>(writeBeside(editor, u".json"_s, bytes));
}

// Two products of which the first fills a bin.
cbr::Menu timerBarMenu()
{
    return {.model = u"KTR34"_s,
            .unit = 1,
            .products = {{.name = QByteArray(25, 'W'), .shortName = "WWWW"},
                         {.name = "Bacon", .shortName = "BACN"}},
            .dayparts = {QList<int>{0}}};
}

QString writeTimerBarMenu(const MenuFile &editor)
{
    return writeBeside(editor, u".cbr"_s, timerBarMenu().bytes());
}

// The editor that a Timer Bar dialog belongs to, never shown; it goes with the other.
TimerBarMenuFile &timerBarOwner(MenuFile &editor)
{
    return *new TimerBarMenuFile(writeTimerBarMenu(editor), &editor);
}

std::unique_ptr<QWidget> makeTimerBarConfig(MenuFile &)
{
    return std::make_unique<TimerBarConfig>();
}

std::unique_ptr<QWidget> makeTimerBarProductEdit(MenuFile &editor)
{
    TimerBarMenuFile &owner = timerBarOwner(editor);
    return std::make_unique<TimerBarProductEdit>(*owner.products().constFirst(), &owner);
}

std::unique_ptr<QWidget> makeTimerBarAssignItem(MenuFile &editor)
{
    auto window = std::make_unique<TimerBarDaypartAssignItem>(0, 0, &timerBarOwner(editor));
    window->setPlace(u"Breakfast"_s, {0, 1}, QString(25, u'W'));
    ui::get<QListWidget>(*window, "listWidgetProducts").setCurrentRow(0);
    return window;
}

std::unique_ptr<QWidget> makeTimerBarEditor(MenuFile &editor)
{
    auto window = std::make_unique<TimerBarMenuFile>(writeTimerBarMenu(editor));
    ui::get<QListWidget>(*window, "listWidgetProducts").setCurrentRow(0);
    return window;
}

std::unique_ptr<QWidget> makeCopyBins(MenuFile &editor)
{
    return std::make_unique<CopyBins>(0, &timerBarOwner(editor));
}

std::unique_ptr<QWidget> makeTimerBarEditorToLookAt(MenuFile &editor)
{
    cbr::Menu menu = timerBarMenu();
    menu.products[1].holdMinutes = 1;
    return std::make_unique<TimerBarMenuFile>(writeBeside(editor, u".cbr"_s, menu.bytes()));
}

std::unique_ptr<QWidget> makeLaneEditor(MenuFile &)
{
    return std::make_unique<SvrxMenuFile>(QString());
}

std::unique_ptr<QWidget> makeChangedLaneEditor(MenuFile &editor)
{
    const QByteArray contents = lanefile::text("T1=350,T2=350,T3=350,T4=350,F1=1800,F2=1800,F3=1800,F4=1800");
    auto window = std::make_unique<SvrxMenuFile>(writeBeside(editor, u".txt"_s, contents));
    ui::get<QSpinBox>(*window, "numTemperature1").stepUp();
    return window;
}

// Beside every box stands that the file holds another number.
std::unique_ptr<QWidget> makeLaneEditorWithNotes(MenuFile &editor)
{
    const QByteArray contents = "T1=9999,T2=9999,T3=9999,T4=9999,F1=99999,F2=99999,F3=99999,F4=99999";
    return std::make_unique<SvrxMenuFile>(writeBeside(editor, u".txt"_s, lanefile::text(contents)));
}

} // namespace

const std::vector<WindowKind> &everyWindow()
{
    static const std::vector<WindowKind> kinds{
        {"main window", nullptr, windowmenu::fullCabinet(), makeMainWindow, false},
        {"product line", "btnAccept", windowmenu::fullCabinet(), makeWindow<SelectProductLine>},
        {"about", "btnAccept", windowmenu::fullCabinet(), makeWindow<AboutApp>},
        {"configuration", "btnAccept", windowmenu::fullCabinet(), makeWindow<Configuration>},
        {"product, all fields", "btnSave", windowmenu::fullCabinet(), makeProductEdit},
        {"product, fewest fields", "btnSave", windowmenu::plainCabinet(), makeProductEdit},
        {"timer color", nullptr, windowmenu::fullCabinet(), makeWindow<TimerColorPicker>},
        {"group, all fields", "btnSave", windowmenu::fullCabinet(), makeGroupEdit},
        {"group, fewest fields", "btnSave", windowmenu::plainCabinet(), makeGroupEdit},
        {"day part", "btnSave", windowmenu::fullCabinet(), makeDaypartEdit},
        {"bin, all fields", "btnSelect", windowmenu::fullCabinet(), makeAssignDaypartItem},
        {"bin, fewest fields", "btnSelect", windowmenu::plainCabinet(), makeAssignDaypartItem},
        {"things to look at", "btnGoTo", windowmenu::fullCabinet(), makeMenuInspection},
        {"holding editor, all fields", nullptr, windowmenu::fullCabinet(), makeEditor, false},
        {"holding editor, fewest fields", nullptr, windowmenu::plainCabinet(), makeEditor, false},
        {"holding editor, changed", nullptr, windowmenu::fullCabinet(), makeChangedEditor, false},
        {"holding editor, old menu", nullptr, windowmenu::fullCabinet(), makeOldMenuEditor, false},
        {"holding editor, things to look at", nullptr, windowmenu::fullCabinet(), makeEditorToLookAt, false},
        {"lane editor, new", nullptr, windowmenu::plainCabinet(), makeLaneEditor, false},
        {"lane editor, values beyond the limits", nullptr, windowmenu::plainCabinet(),
         makeLaneEditorWithNotes, false},
        {"lane editor, changed", nullptr, windowmenu::plainCabinet(), makeChangedLaneEditor, false},
        {"Timer Bar configuration", "btnAccept", windowmenu::plainCabinet(), makeTimerBarConfig},
        {"Timer Bar product", "btnSave", windowmenu::plainCabinet(), makeTimerBarProductEdit},
        {"Timer Bar bin", "btnSelect", windowmenu::plainCabinet(), makeTimerBarAssignItem},
        {"Timer Bar bins to copy", "btnCopy", windowmenu::plainCabinet(), makeCopyBins},
        {"Timer Bar editor", nullptr, windowmenu::plainCabinet(), makeTimerBarEditor, false},
        {"Timer Bar editor, things to look at", nullptr, windowmenu::plainCabinet(),
         makeTimerBarEditorToLookAt, false},
    };
    return kinds;
}

void addWindowRows()
{
    QTest::addColumn<std::size_t>("kind");
    for (std::size_t i = 0; i < everyWindow().size(); ++i)
        QTest::newRow(everyWindow()[i].name) << i;
}

void addDialogRows()
{
    QTest::addColumn<std::size_t>("kind");
    for (std::size_t i = 0; i < everyWindow().size(); ++i) {
        if (everyWindow()[i].isDialog)
            QTest::newRow(everyWindow()[i].name) << i;
    }
}

OpenWindow::OpenWindow(const WindowKind &kind)
    : m_editor(std::make_unique<MenuFile>(m_folder.make(u"sample.json"_s, windowmenu::bytes(kind.cabinet))))
    , m_window(kind.make(*m_editor))
{
    ui::show(*m_window);
}

OpenWindow::~OpenWindow() = default;

QByteArray OpenWindow::menuBytes() const
{
    const QString path = m_folder.path(u"now.json"_s);
    QByteArray bytes = m_editor->writeToFile(path) ? contentOf(path) : QByteArray();
    for (auto *timerBar : m_editor->findChildren<TimerBarMenuFile *>())
        bytes += timerBar->writeToFile(path) ? contentOf(path) : QByteArray();
    return bytes;
}
