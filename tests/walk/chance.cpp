// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/chance.h"

using namespace Qt::StringLiterals;

namespace walk {

int Chance::below(qsizetype count)
{
    return static_cast<int>((quint64{m_engine()} * static_cast<quint64>(count)) >> 32U);
}

QString anyText(Chance &chance)
{
    static const QStringList words{u"Bacon"_s, u"Ham"_s, u"Pie 7"_s, u"A"_s, u"Fish Fillets"_s, u"ZZ9"_s};
    return chance.oneIn(4) ? oddText(chance) : chance.of(words);
}

QString oddText(Chance &chance)
{
    static const QStringList texts{
        QString(),
        u" "_s,
        u"Fish & Chips && &More"_s,
        u"<b>bold</b><img src=\"file:///etc/hostname\">"_s,
        u"[*] %1 %2 %n"_s,
        u"Käse-Spätzle ÿµß"_s,
        u"Борщ 寿司 فول"_s,
        u"寿司🍣🍣"_s,
        u"a\u0301\u0301\u200d\u202eabc"_s,
        u"tab\there\r\nline\u2028end"_s,
        u"1e9"_s,
        u"-99999999999"_s,
        u"../../x"_s,
        QString(u"nul\0nul"_s.data(), 7),
        QString(QChar(0xD800)) + u"lone"_s,
        u"W"_s.repeated(300),
        u"word "_s.repeated(2000),
    };
    return chance.of(texts);
}

} // namespace walk
