// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productdetails.h"

#include <utility>

#include <QPainter>

#include "holding/fields.h"
#include "holding/timercolorsample.h"
#include "ui_productdetails.h"
#include "widgets/announce.h"
#include "widgets/emptyhint.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize samplePadding(16, 4);

} // namespace

ProductDetails::ProductDetails(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ProductDetails>())
    , m_emptyHint(tr("Select a product"))
{
    m_ui->setupUi(this);
    for (const holding::ProductField &field : holding::productFields()) {
        if (!field.detail.name.isEmpty())
            m_rows.append({&field.detail, &label("lbl"_L1, field.detail), &label("txt"_L1, field.detail)});
    }
    reserveRoom();
}

ProductDetails::~ProductDetails() = default;

QLabel &ProductDetails::label(QLatin1StringView prefix, const holding::FieldDetail &detail)
{
    auto *found = findChild<QLabel *>(prefix + detail.name);
    if (!found)
        qFatal("The form of the details lacks %s%s", prefix.data(), detail.name.data());
    return *found;
}

// The editor's size is fixed, whatever it shows later: room for the sample's text, in any font.
void ProductDetails::reserveRoom()
{
    QLabel *sample = m_ui->txtTimerColor;
    QFont font = sample->font();
    font.setBold(false); // it is still that of the heading above
    sample->setFont(font);
    sample->setText(holding::timerColorSample(holding::timerPalette().back()).text);
    sample->setFixedSize(sample->minimumSize().expandedTo(sample->sizeHint() + samplePadding));
}

void ProductDetails::showEntry(const ProductInfo *entry, const holding::CabinetConfiguration &configuration)
{
    m_ui->lblTemp1->setText(holding::isZpv(configuration.type) ? tr("Temperature:")
                                                               : tr("Upper Temperature:"));
    for (const Row &row : std::as_const(m_rows)) {
        const bool shown = row.detail->isShown(configuration);
        row.label->setVisible(shown);
        row.value->setVisible(shown);
        if (!row.detail->text)
            continue; // the timer color, which is more than a text
        row.value->setText(entry ? row.detail->text(*entry, configuration) : QString());
        announce::pair(row.label, row.value);
    }
    showTimerColor(entry);
    if (m_empty == static_cast<bool>(entry))
        update();
    m_empty = !entry;
    announce::description(this, m_empty ? m_emptyHint : QString());
}

void ProductDetails::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    if (!m_empty)
        return;
    QPainter painter(this);
    paintEmptyHint(painter, *this, rect().adjusted(m_ui->txtName->x(), 0, 0, 0), m_emptyHint);
}

void ProductDetails::showTimerColor(const ProductInfo *entry)
{
    const auto *color = entry ? &holding::timerColorByName(entry->get_timerColor()) : nullptr;
    const auto sample = color ? holding::timerColorSample(*color) : holding::TimerColorSample{};
    m_ui->txtTimerColor->setStyleSheet(sample.styleSheet);
    m_ui->txtTimerColor->setText(sample.text);
    announce::pair(m_ui->lblTimerColor, m_ui->txtTimerColor, color ? holding::colorWords(*color) : QString());
}
