// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarproductedit.h"

#include <algorithm>

#include <QSignalBlocker>

#include "model/names.h"
#include "model/temperature.h"
#include "model/times.h"
#include "timerbar/timerbarmenufile.h"
#include "ui_timerbarproductedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int minHoldSeconds = 6 * 60;
constexpr int maxHoldSeconds = 8 * 60 * 60;
// Cabinets with older software know no lower temperatures.
constexpr int leastCommonTemperature = 155;

// A box shows a time of day, whereas files can hold times of 24 h and more: 24:30 is shown as 00:30. While a
// box still shows what it was filled with, the product's own time counts, in the checks as in the record. So
// saving never turns such a time into a short one unseen; it is refused until another one is entered.
int enteredSeconds(const QTimeEdit *edit, int storedSeconds)
{
    return edit->time() == timeOfSeconds(storedSeconds) ? storedSeconds : secondsOf(edit->time());
}

bool isLetterOrDigit(QChar character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           (character >= u'0' && character <= u'9');
}

} // namespace

TimerBarProductEdit::TimerBarProductEdit(ProductInfo &product, TimerBarMenuFile *menuFile)
    : QDialog(menuFile)
    , m_ui(std::make_unique<Ui::TimerBarProductEdit>())
    , m_product(product)
    , m_temperatureUnit(menuFile->temperatureUnit())
{
    m_ui->setupUi(this);
    const QString suffix = u"(%1)"_s.arg(unitText(m_temperatureUnit));
    m_ui->lblTempUpper->setText(tr("Upper Temperature ") + suffix);
    m_ui->lblTempLower->setText(tr("Lower Temperature ") + suffix);
    fillFields();
    m_ui->txtProductName->setFocus();
    letEnterPressFocusedButton(this);
    fixDesignedSize(this);
}

TimerBarProductEdit::~TimerBarProductEdit() = default;

void TimerBarProductEdit::fillFields()
{
    // What a menu already holds is not checked: a name such as "Eggs / Egg Patties" may stay.
    const QSignalBlocker nameBlocker(m_ui->txtProductName);
    const QSignalBlocker shortNameBlocker(m_ui->txtShortName);
    m_ui->txtProductName->setText(shownName(m_product.get_productName()));
    m_ui->txtShortName->setText(m_product.get_productShortName());
    m_acceptedName = m_ui->txtProductName->text();
    m_acceptedShortName = m_ui->txtShortName->text();

    const bool celsius = m_temperatureUnit == unitCelsius;
    for (QSpinBox *box : {m_ui->numTempUpper, m_ui->numTempLower})
        box->setRange(celsius ? 38 : 100, celsius ? 107 : 225);
    m_ui->numTempUpper->setValue(shownTemperature(m_product.get_upperTemp(), m_temperatureUnit));
    m_ui->numTempLower->setValue(shownTemperature(m_product.get_lowerTemp(), m_temperatureUnit));
    m_ui->timeHoldTime->setTime(timeOfSeconds(m_product.get_holdTime()));
    m_ui->timeWarningTime->setTime(timeOfSeconds(m_product.get_warningTime()));
}

void TimerBarProductEdit::on_btnCancel_clicked()
{
    done(0);
}

void TimerBarProductEdit::on_btnSave_clicked()
{
    if (const QString fault = firstFault(); !fault.isEmpty()) {
        messages::entryFault(this, fault);
        return;
    }
    storeNamesAndTemperatures();
    noticeLowTemperatures();
    storeTimes();
    done(1);
}

int TimerBarProductEdit::holdSeconds() const
{
    return enteredSeconds(m_ui->timeHoldTime, m_product.get_holdTime()) / 60 * 60; // whole minutes
}

int TimerBarProductEdit::alertSeconds() const
{
    return enteredSeconds(m_ui->timeWarningTime, m_product.get_warningTime());
}

QString TimerBarProductEdit::firstFault() const
{
    if (m_ui->txtProductName->text().isEmpty())
        return tr("Product name is empty!");
    if (m_ui->txtShortName->text().isEmpty())
        return tr("Product short name is empty!");
    if (holdSeconds() < minHoldSeconds)
        return tr("Invalid hold time. Minimum value is 6 minutes!");
    if (holdSeconds() > maxHoldSeconds)
        return tr("Invalid hold time. Maximum value is 8 hours!");
    if (holdSeconds() <= alertSeconds())
        return tr("Invalid cook more alert time. Value must be less than hold time!");
    return {};
}

void TimerBarProductEdit::storeNamesAndTemperatures()
{
    const auto entered = [this](const QSpinBox *box, int stored) {
        return enteredTemperature(box->value(), stored, m_temperatureUnit);
    };
    m_product.set_productName({m_ui->txtProductName->text()});
    m_product.set_productShortName(m_ui->txtShortName->text());
    m_product.set_upperTemp(entered(m_ui->numTempUpper, m_product.get_upperTemp()));
    m_product.set_lowerTemp(entered(m_ui->numTempLower, m_product.get_lowerTemp()));
}

void TimerBarProductEdit::noticeLowTemperatures()
{
    if (std::min(m_product.get_lowerTemp(), m_product.get_upperTemp()) < leastCommonTemperature)
        messages::warning(this, tr("Temperature values less than 155°F are supported in cabinet IO software "
                                   "version 1.6.2 or newer"));
}

void TimerBarProductEdit::storeTimes()
{
    m_product.set_holdTime(holdSeconds());
    m_product.set_warningTime(alertSeconds());
}

void TimerBarProductEdit::on_txtShortName_textChanged(const QString &arg1)
{
    if (std::all_of(arg1.begin(), arg1.end(), isLetterOrDigit))
        m_acceptedShortName = arg1;
    else
        revert(m_ui->txtShortName, m_acceptedShortName,
               tr("Product short name should be English characters or numbers only"));
}

void TimerBarProductEdit::on_txtProductName_textChanged(const QString &arg1)
{
    const auto isAllowed = [](QChar character) { return character == u' ' || isLetterOrDigit(character); };
    if (std::all_of(arg1.begin(), arg1.end(), isAllowed))
        m_acceptedName = arg1;
    else
        revert(m_ui->txtProductName, m_acceptedName,
               tr("Product name should be English characters or numbers only"));
}

void TimerBarProductEdit::revert(QLineEdit *edit, const QString &acceptedText, const QString &message)
{
    const int cursor = std::max(0, edit->cursorPosition() - 1);
    {
        const QSignalBlocker blocker(edit);
        edit->setText(acceptedText);
        edit->setCursorPosition(cursor);
    }
    messages::entryFault(this, message);
}
