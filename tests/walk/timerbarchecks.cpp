// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/timerbarchecks.h"

#include <algorithm>

#include <QBuffer>
#include <QComboBox>
#include <QDebug>
#include <QLabel>
#include <QPushButton>

#include "tests/support/uidriver.h"
#include "tests/walk/editormemory.h"
#include "tests/walk/listchecks.h"
#include "tests/walk/menufiles.h"
#include "timerbar/cbrfile.h"
#include "timerbar/timerbarmenufile.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

QByteArray write(const timerbar::Menu &menu, const Journal &journal)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QString error = timerbar::writeMenu(buffer, menu);
    journal.check(error.isEmpty(), u"A menu cannot be written: "_s + error);
    return buffer.data();
}

timerbar::Menu read(const QByteArray &bytes, const Journal &journal)
{
    timerbar::Menu menu;
    const QString error = timerbar::readMenu(bytes, menu);
    journal.check(error.isEmpty(), u"A saved menu cannot be read: "_s + error);
    return menu;
}

QString withoutBlanksBehind(QString text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

// What a file keeps of a product.
QString describe(const ProductInfo &product)
{
    QString text;
    QDebug(&text) << withoutBlanksBehind(product.get_productName().value(0))
                  << withoutBlanksBehind(product.get_productShortName().toUpper()) << product.get_upperTemp()
                  << product.get_lowerTemp() << product.get_holdTime() / 60 << product.get_warningTime() / 60;
    return text;
}

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 128; });
}

// Ids are not written: a file counts its products, and cells of ids beyond their number come back empty.
// Short names of other letters change with their capitals, and blanks at the end of a name are not read.
bool keepsAll(const QList<ProductInfo *> &products)
{
    int id = 0;
    return std::all_of(products.begin(), products.end(), [&id](const ProductInfo *product) {
        const QString name = product->get_productName().value(0);
        return product->get_productId() == id++ && isPlain(product->get_productShortName()) &&
               name == withoutBlanksBehind(name);
    });
}

QString buttonOf(Bin bin)
{
    const bool right = bin.slot >= 2;
    return u"btnDaypartSelect%1%2_%3"_s.arg(right ? u"B"_s : QString())
        .arg(bin.row)
        .arg(right ? bin.slot - 2 : bin.slot);
}

// From the bytes, as the reader empties the cells of products that the file does not have.
void checkReferences(TimerBarMenuFile &editor, const QByteArray &bytes, const timerbar::Menu &menu,
                     const Journal &journal)
{
    constexpr qsizetype headerSize = 13;
    constexpr qsizetype productSize = 39;
    const QList<int> deleted = EditorMemory::of(editor).deleted();
    const qsizetype daypartSize = 1 + 2 * menu.shape().bins();
    qsizetype at = headerSize + productSize * static_cast<qsizetype>(menu.products.size());
    for (; at < bytes.size(); at += daypartSize) {
        for (qsizetype cell = at + 2; cell < at + daypartSize; cell += 2)
            journal.check(!deleted.contains(static_cast<uchar>(bytes.at(cell))),
                          u"A bin holds the deleted product %1"_s.arg(static_cast<uchar>(bytes.at(cell))));
    }
}

void checkBins(const TimerBarMenuFile &editor, const timerbar::Menu &menu, const Journal &journal)
{
    const int daypart = ui::get<QComboBox>(editor, "comboDaypartSelect").currentIndex();
    const timerbar::CabinetShape shape = menu.shape();
    for (int row = 0; row < shape.rows; ++row) {
        for (int column = 0; column < shape.columns(); ++column) {
            const Bin bin{row, column};
            const ProductInfo *product = menu.product(menu.dayparts[daypart][bin]);
            const QString expected = product ? product->get_productShortName() : QString();
            const QString shown = ui::get<QPushButton>(editor, qPrintable(buttonOf(bin))).text().toUpper();
            journal.check(shown == expected,
                          u"%1 shows \"%2\" for \"%3\""_s.arg(buttonOf(bin), shown, expected));
        }
    }
}

void checkProducts(const QList<ProductInfo *> &shown, const timerbar::Menu &menu, const Journal &journal)
{
    journal.check(shown.size() == static_cast<qsizetype>(menu.products.size()),
                  u"The file has another number of products"_s);
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const QString here = describe(*shown[i]);
        const QString there = describe(*menu.products[static_cast<std::size_t>(i)]);
        journal.check(here == there || !isPlain(shown[i]->get_productShortName()),
                      u"The file has another product:\n%1\n%2"_s.arg(here, there));
    }
}

} // namespace

EntryIds entryIdsOf(TimerBarMenuFile &editor)
{
    return {idsOf(editor.products()), {}};
}

void checkShown(TimerBarMenuFile &editor, const Journal &journal)
{
    const QString name = ui::get<QLabel>(ui::get<QWidget>(editor, "details"), "txtName").text();
    checkList({editor, "Product", editor.products(), name}, journal);
    journal.check(ui::get<QComboBox>(editor, "comboDaypartSelect").count() == timerbar::daypartCount,
                  u"There are not six day parts"_s);
}

void checkFile(TimerBarMenuFile &editor, const Journal &journal)
{
    const QByteArray bytes = bytesOf(editor.filePath());
    const timerbar::Menu menu = read(bytes, journal);
    const QByteArray again = write(menu, journal);
    const QByteArray third = write(read(again, journal), journal);
    journal.check(third == write(read(third, journal), journal), u"A menu never saves to the same bytes"_s);
    journal.check(menu.model == editor.model() && menu.temperatureUnit == editor.temperatureUnit(),
                  u"The file has another cabinet"_s);
    checkProducts(editor.products(), menu, journal);
    checkReferences(editor, bytes, menu, journal);
    if (!keepsAll(editor.products()))
        return;
    journal.check(again == bytes, u"A menu saves again to other bytes"_s);
    checkBins(editor, menu, journal);
}

} // namespace walk
