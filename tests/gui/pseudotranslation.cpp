// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/pseudotranslation.h"

#include <QRegularExpression>
#include <QTest>

#include "app/productlines.h"
#include "tests/support/require.h"
#include "tests/support/shownwidgets.h"

using namespace Qt::StringLiterals;

QString PseudoTranslator::translate([[maybe_unused]] const char *context, const char *sourceText,
                                    [[maybe_unused]] const char *disambiguation, [[maybe_unused]] int n) const
{
    return mark + QString::fromUtf8(sourceText);
}

namespace {

bool isData(const QString &text, const QStringList &names)
{
    static const QRegularExpression data(u"^(QHX|ZPV|KTR\\d\\d|ZPV\\d\\d"                         // cabinets
                                         u"|-?\\d+(°[FC])?|°[FC]|\\d/\\d|\\d\\d:\\d\\d(:\\d\\d)?" // numbers
                                         u"|#[0-9a-f]{6})$"_s);                                   // colours
    static const QRegularExpression rowNumber(u"^ *\\d+ "_s);
    const QList<ProductLine> &lines = productLines();
    const bool isLine =
        std::any_of(lines.begin(), lines.end(), [&](const ProductLine &line) { return line.name == text; });
    QString name = text;
    return isLine || names.contains(text) || names.contains(name.remove(rowNumber)) ||
           data.match(text).hasMatch();
}

} // namespace

QStringList untranslatedTexts(QWidget &window, const QStringList &names)
{
    QStringList untranslated;
    for (const shown::Text &text : shown::texts(window)) {
        if (!text.text.startsWith(PseudoTranslator::mark) && !isData(text.text, names))
            untranslated.append(u"\"%1\" (%2)"_s.arg(text.text, text.where));
    }
    return untranslated;
}

void checkTranslated(QWidget &window, const QStringList &names)
{
    shown::forEachPage(window, [&] {
        const QStringList texts = untranslatedTexts(window, names);
        REQUIRE(texts.isEmpty(), texts.join(u'\n'));
    });
}
