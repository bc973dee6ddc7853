// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/holdingchecks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>

#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/menunames.h"
#include "tests/support/uidriver.h"
#include "tests/walk/editormemory.h"
#include "tests/walk/listchecks.h"
#include "tests/walk/menufiles.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

QString shownName(const MenuFile &editor, const char *details)
{
    return ui::get<QLabel>(ui::get<QWidget>(editor, details), "txtName").text();
}

// The values as the document has to name and hold them.
QJsonObject describe(const ProductInfo &entry, const holding::CabinetConfiguration &configuration)
{
    const bool isGroup = entry.get_isGroup();
    QJsonObject json{
        {u"lowerTemp"_s, entry.get_lowerTemp()},
        {u"upperTemp"_s, entry.get_upperTemp()},
        {u"zoneSplits"_s, entry.get_zoneSplits()},
        {u"lidType"_s, entry.get_lidType()},
        {u"fanSpeed"_s, isGroup || configuration.fanSpeedEnabled ? entry.get_fanSpeed() : 0},
        {isGroup ? u"groupId"_s : u"productId"_s, entry.get_productId()},
        {isGroup ? u"groupName"_s : u"productName"_s, holding::namesToJson(entry.get_productName())}};
    if (isGroup) {
        QJsonArray members;
        const QList<int> ids = entry.get_productList();
        for (const int id : ids)
            members.append(id);
        json.insert(u"products"_s, members);
        json.insert(u"defaultProd"_s, entry.get_defaultIndex());
        return json;
    }
    json.insert(u"holdingTime"_s, entry.get_holdTime());
    json.insert(u"warningTime"_s, entry.get_warningTime());
    json.insert(u"resetTime"_s, configuration.resetTimeEnabled ? entry.get_resetTime() : 0);
    json.insert(u"timerColor"_s, entry.get_timerColor());
    json.insert(u"bottomType"_s, entry.get_bottomType());
    json.insert(u"productLocked"_s, entry.get_productLocked());
    return json;
}

QByteArray textOf(const QJsonObject &json)
{
    return QJsonDocument(json).toJson();
}

void checkEntries(const QList<ProductInfo *> &shown, const QJsonArray &saved,
                  const holding::CabinetConfiguration &configuration, const Journal &journal)
{
    journal.check(shown.size() == saved.size(), u"The file has another number of entries"_s);
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const QByteArray here = textOf(describe(*shown[i], configuration));
        const QByteArray there = textOf(saved[i].toObject());
        journal.check(here == there, u"The file has another entry:\n%1\n%2"_s.arg(QString::fromUtf8(here),
                                                                                  QString::fromUtf8(there)));
    }
}

void checkBins(const MenuFile &editor, const holding::Menu &menu, const holding::Daypart &daypart,
               const Journal &journal)
{
    const holding::CabinetShape shape = menu.shape();
    for (int row = 0; row < shape.rows; ++row) {
        for (int slot = 0; slot < shape.binsPerRow(); ++slot) {
            if (!shape.hasBin({row, slot}))
                continue;
            const bool second = slot >= shape.binsPerZone;
            const QString button = u"btnDaypartSelect%1%2_%3"_s.arg(second ? u"B"_s : QString())
                                       .arg(row)
                                       .arg(second ? slot - shape.binsPerZone : slot);
            const int id = daypart.bins[Bin{row, slot}];
            const ProductInfo *entry = id == holding::emptyBin ? nullptr : menu.entry(id);
            QString text = entry ? entry->get_productName().value(0) : QString();
            if (text.isEmpty() && id != holding::emptyBin)
                text = u"Id %1"_s.arg(id);
            const QString shown = stored(ui::get<QPushButton>(editor, qPrintable(button)).text());
            journal.check(beginning(shown) == beginning(stored(text)),
                          u"%1 shows \"%2\" for \"%3\""_s.arg(button, shown, text));
        }
    }
}

void checkDayparts(const MenuFile &editor, const holding::Menu &menu, const Journal &journal)
{
    const auto &selector = ui::get<QComboBox>(editor, "comboDaypartSelect");
    journal.check(selector.count() == menu.daypartCount, u"The file has another number of day parts"_s);
    for (int i = 0; i < menu.daypartCount; ++i) {
        const QString name = menu.dayparts[i].names.value(0);
        journal.check(beginning(stored(selector.itemText(i))) == beginning(stored(name)),
                      u"The file has another day part: "_s + name);
    }
    if (selector.currentIndex() < 0)
        return;
    const holding::Daypart &daypart = menu.dayparts[selector.currentIndex()];
    journal.check(ui::get<QCheckBox>(editor, "checkBoxDaypartInUse").isChecked() == daypart.inUse,
                  u"The file has the day part in another use"_s);
    checkBins(editor, menu, daypart, journal);
}

void checkReferences(MenuFile &editor, const holding::Menu &menu, const Journal &journal)
{
    const EditorMemory &memory = EditorMemory::of(editor);
    const QList<int> deleted = memory.deleted();
    for (const holding::Daypart &daypart : menu.dayparts) {
        for (const auto &row : daypart.bins) {
            for (const int id : row)
                journal.check(!deleted.contains(id), u"A bin holds the deleted entry %1"_s.arg(id));
        }
    }
    const QList<int> deletedProducts = memory.deletedProducts();
    for (const auto &group : menu.groups) {
        const QList<int> members = group->get_productList();
        for (const int id : members)
            journal.check(!deletedProducts.contains(id), u"A group has the deleted product %1"_s.arg(id));
    }
}

holding::Menu read(const QByteArray &bytes, const Journal &journal)
{
    holding::Menu menu;
    const QString error =
        holding::readMenu(bytes, menu, [](holding::CabinetConfiguration & /*unknown*/) { return false; });
    journal.check(error.isEmpty(), u"A saved menu cannot be read: "_s + error);
    return menu;
}

} // namespace

EntryIds entryIdsOf(MenuFile &editor)
{
    return {idsOf(editor.getMenuProducts()), idsOf(editor.getMenuGroups())};
}

void checkShown(MenuFile &editor, const Journal &journal)
{
    checkList({editor, "Product", editor.getMenuProducts(), shownName(editor, "detailsProduct")}, journal);
    checkList({editor, "Group", editor.getMenuGroups(), shownName(editor, "detailsGroup")}, journal);
    const int dayparts = ui::get<QComboBox>(editor, "comboDaypartSelect").count();
    journal.check(dayparts <= holding::maxDayparts, u"There are %1 day parts"_s.arg(dayparts));
    journal.check(ui::get<QPushButton>(editor, "btnDeleteDaypart").isEnabled() == (dayparts > 1),
                  u"Deleting day parts has the wrong state"_s);
    journal.check(ui::get<QPushButton>(editor, "btnDuplicateDaypart").isEnabled() == (dayparts > 0),
                  u"Duplicating day parts has the wrong state"_s);
    journal.check(ui::get<QPushButton>(editor, "btnEditDaypart").isEnabled() == (dayparts > 0),
                  u"Editing day parts has the wrong state"_s);
}

void checkFile(MenuFile &editor, const Journal &journal)
{
    const QByteArray bytes = bytesOf(editor.filePath());
    const holding::Menu menu = read(bytes, journal);
    const QByteArray again = holding::writeMenu(menu);
    // The bin that this cabinet lacks may hold an id from before, which only the first save writes.
    const bool forgets = menu.shape().singleBinSecondZone;
    journal.check(forgets || again == bytes, u"A menu saves again to other bytes"_s);
    journal.check(holding::writeMenu(read(again, journal)) == again,
                  u"A menu saves a third time otherwise"_s);
    journal.check(menu.configuration.model == editor.getCabinetModel() &&
                      menu.configuration.type == editor.getCabinetType(),
                  u"The file has another cabinet"_s);
    const QJsonObject saved = QJsonDocument::fromJson(bytes).object().value(u"menu"_s).toObject();
    checkEntries(editor.getMenuProducts(), saved.value(u"products"_s).toArray(), menu.configuration, journal);
    checkEntries(editor.getMenuGroups(), saved.value(u"productGroups"_s).toArray(), menu.configuration,
                 journal);
    checkDayparts(editor, menu, journal);
    checkReferences(editor, menu, journal);
}

} // namespace walk
