// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/producttypes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProductTypes)
};

int indexIn(const QStringList &words, const QString &word, int fallback)
{
    const auto index = words.indexOf(word);
    return index < 0 ? fallback : static_cast<int>(index);
}

} // namespace

const QStringList &lidTypes()
{
    static const QStringList words{u"None"_s, u"Solid"_s, u"Vented"_s};
    return words;
}

QStringList lidTexts()
{
    return {Text::tr("None"), Text::tr("Solid"), Text::tr("Vented")};
}

int lidIndex(const QString &lidType)
{
    return indexIn(lidTypes(), lidType, 0);
}

QString lidText(const QString &lidType)
{
    return lidTexts().at(lidIndex(lidType));
}

const QStringList &bottomTypes()
{
    static const QStringList words{u"False"_s, u"Normal"_s};
    return words;
}

QStringList bottomTexts()
{
    return {Text::tr("False"), Text::tr("Normal")};
}

int bottomIndex(const QString &bottomType)
{
    return indexIn(bottomTypes(), bottomType, 1);
}

QString bottomText(const QString &bottomType)
{
    return bottomTexts().at(bottomIndex(bottomType));
}

} // namespace holding
