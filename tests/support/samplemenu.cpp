// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/samplemenu.h"

#include <QDebug>

#include "tests/support/languages.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace sample {

namespace {

struct Settings
{
    int holdTime;
    int warningTime;
    int lowerTemp;
    int upperTemp;
    int fanSpeed;
    int resetTime;
    QString zoneSplits;
    QString lidType;
    QString bottomType;
};

QStringList padded(QStringList names)
{
    names.resize(languageCount);
    return names;
}

ProductInfo &addProduct(Menu &menu, int id, const QStringList &names, const Settings &settings)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_productName(names);
    product->set_holdTime(settings.holdTime);
    product->set_warningTime(settings.warningTime);
    product->set_lowerTemp(settings.lowerTemp);
    product->set_upperTemp(settings.upperTemp);
    product->set_fanSpeed(settings.fanSpeed);
    product->set_resetTime(settings.resetTime);
    product->set_zoneSplits(settings.zoneSplits);
    product->set_lidType(settings.lidType);
    product->set_bottomType(settings.bottomType);
    menu.products.push_back(std::move(product));
    return *menu.products.back();
}

ProductInfo &addGroup(Menu &menu, int id, const QStringList &names, const QList<int> &members)
{
    auto group = std::make_unique<ProductInfo>();
    group->set_isGroup(true);
    group->set_productId(id);
    group->set_productName(names);
    group->set_productList(members);
    menu.groups.push_back(std::move(group));
    return *menu.groups.back();
}

void addRichProducts(Menu &menu)
{
    ProductInfo &locked =
        addProduct(menu, 12,
                   padded({u"Käse-Spätzle"_s, u"Tocino \"extra\""_s, u"Crème brûlée"_s, u"Chile\\Lima"_s,
                           u"Poutine/Frites"_s, u"Würstchen & Brötchen"_s, u"Caffè <corto>"_s, u"IJs"_s,
                           u"Żurek"_s, u"Pão"_s, u"Борщ"_s, u"فول"_s, u"김치"_s, u"炒饭"_s, u"寿司🍣"_s}),
                   {3600, 600, 200, 215, 60, 300, u"1/2"_s, u"Solid"_s, u"False"_s});
    locked.set_productLocked(true);
    locked.set_timerColor(u"#402100"_s);

    addProduct(
        menu, 3,
        padded({u"Chicken "_s.repeated(25), u"tab\there"_s, u"line\nbreak\r\f\b"_s, u"\x01\x1f\x7f"_s}),
        {2147483647, 0, -40, -2147483647 - 1, 10000, 86399, u"1/1"_s, {}, {}})
        .set_timerColor(u"no colour"_s);
    addProduct(menu, -5, inEveryLanguage(u"Negative"_s),
               {900, 300, 0, 0, 0, 0, u"7/9"_s, u"None"_s, u"Normal"_s});
    addProduct(menu, 12, inEveryLanguage(u"Same id"_s),
               {360, 359, 190, 190, 3500, 3599, u"1/2"_s, u"Vented"_s, u"Normal"_s})
        .set_timerColor(u"#ffffff"_s);
}

void addRichGroups(Menu &menu)
{
    ProductInfo &group = addGroup(menu, 13, inEveryLanguage(u"Größe <M>"_s), {12, 3, 99});
    group.set_zoneSplits(u"1/2"_s);
    group.set_lowerTemp(200);
    group.set_upperTemp(215);
    group.set_fanSpeed(60);
    group.set_lidType(u"Solid"_s);
    group.set_defaultIndex(2);
    addGroup(menu, 14, padded({}), {});
}

void fillRichDayparts(Menu &menu)
{
    constexpr std::array<int, 6> ids{0, 12, 3, 13, -5, 99};
    menu.daypartCount = maxDayparts;
    for (std::size_t i = 0; i < maxDayparts; ++i) {
        Daypart &daypart = menu.dayparts[i];
        daypart.names = inEveryLanguage(u"Part %1"_s.arg(i + 1));
        daypart.inUse = i % 3 != 1;
        for (std::size_t row = 0; row < 2; ++row) {
            for (std::size_t slot = 0; slot < 3; ++slot)
                daypart.bins[row][slot] = ids[(i + 2 * row + slot) % ids.size()];
        }
    }
    menu.dayparts[0].names = padded({u"BREAKFAST"_s, u"DESAYUNO"_s, u"PETIT-DÉJEUNER"_s});
}

void describeEntries(const char *kind, const Entries &entries, QStringList &lines)
{
    for (const auto &entry : entries) {
        const auto add = [&](const char *field, const auto &value) {
            QString text;
            QDebug(&text) << kind << lines.size() << field << value;
            lines.append(text);
        };
        add("id", entry->get_productId());
        add("isGroup", entry->get_isGroup());
        add("locked", entry->get_productLocked());
        add("name", entry->get_productName());
        add("shortName", entry->get_productShortName());
        add("upperTemp", entry->get_upperTemp());
        add("lowerTemp", entry->get_lowerTemp());
        add("holdTime", entry->get_holdTime());
        add("warningTime", entry->get_warningTime());
        add("zoneSplits", entry->get_zoneSplits());
        add("lidType", entry->get_lidType());
        add("bottomType", entry->get_bottomType());
        add("fanSpeed", entry->get_fanSpeed());
        add("resetTime", entry->get_resetTime());
        add("timerColor", entry->get_timerColor());
        add("members", entry->get_productList());
        add("defaultIndex", entry->get_defaultIndex());
    }
}

void describeDaypart(const Daypart &daypart, QStringList &lines)
{
    QString text;
    QDebug debug(&text);
    debug << "day part" << daypart.names << daypart.inUse;
    for (const auto &row : daypart.bins) {
        for (const int id : row)
            debug << id;
        debug << ";";
    }
    lines.append(text);
}

} // namespace

Menu rich()
{
    Menu menu;
    menu.configuration = {.type = u"QHX"_s,
                          .model = u"KTR23"_s,
                          .temperatureUnit = unitCelsius,
                          .fanSpeedEnabled = true,
                          .resetTimeEnabled = true,
                          .productIdEnabled = true,
                          .timerColorEnabled = true};
    addRichProducts(menu);
    addRichGroups(menu);
    fillRichDayparts(menu);
    return menu;
}

Menu plain()
{
    Menu menu;
    menu.configuration.type = u"ZPV"_s;
    menu.configuration.model = u"ZPV23"_s;
    addProduct(menu, 1, inEveryLanguage(u"Chili"_s),
               {5400, 1500, 190, 190, 60, 300, u"1/3"_s, u"None"_s, u"Normal"_s});
    ProductInfo &group = addGroup(menu, 2, inEveryLanguage(u"Stews"_s), {1});
    group.set_zoneSplits(u"1/3"_s);
    group.set_lowerTemp(190);
    group.set_upperTemp(190);
    group.set_fanSpeed(60);
    menu.dayparts[0].bins[0][0] = 1;
    menu.dayparts[0].bins[1][2] = 2;
    return menu;
}

Menu empty()
{
    return {};
}

QStringList describe(const Menu &menu)
{
    QStringList lines;
    QString text;
    const CabinetConfiguration &configuration = menu.configuration;
    QDebug(&text) << configuration.type << configuration.model << "unit" << configuration.temperatureUnit
                  << "fan" << configuration.fanSpeedEnabled << "reset" << configuration.resetTimeEnabled
                  << "id" << configuration.productIdEnabled << "color" << configuration.timerColorEnabled
                  << "day parts" << menu.daypartCount;
    lines.append(text);
    describeEntries("product", menu.products, lines);
    describeEntries("group", menu.groups, lines);
    for (const Daypart &daypart : menu.dayparts)
        describeDaypart(daypart, lines);
    return lines;
}

} // namespace sample
