// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarproductedit.h"

#include <algorithm>

#include <QSignalBlocker>

#include "model/names.h"
#include "model/productinfo.h"
#include "model/temperature.h"
#include "model/timelimits.h"
#include "timerbar/productrules.h"
#include "timerbar/timerbarmenufile.h"
#include "ui_timerbarproductedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Ui::TimerBarProductEdit> makeForm(TimerBarProductEdit *dialog)
{
    auto form = std::make_unique<Ui::TimerBarProductEdit>();
    form->setupUi(dialog);
    return form;
}

} // namespace

TimerBarProductEdit::TimerBarProductEdit(ProductInfo &product, TimerBarMenuFile *menuFile)
    : QDialog(menuFile)
    , m_ui(makeForm(this))
    , m_product(product)
    , m_temperatureUnit(menuFile->temperatureUnit())
    , m_holdTime(m_ui->timeHoldTime)
    , m_alertTime(m_ui->timeWarningTime)
{
    const QString suffix = u"(%1)"_s.arg(unitText(m_temperatureUnit));
    m_ui->lblTempUpper->setText(tr("Upper Temperature ") + suffix);
    m_ui->lblTempLower->setText(tr("Lower Temperature ") + suffix);
    fillNames();
    fillTemperatures();
    m_holdTime.show(m_product.get_holdTime());
    m_alertTime.show(m_product.get_warningTime());
    m_ui->txtProductName->setFocus();
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

TimerBarProductEdit::~TimerBarProductEdit() = default;

void TimerBarProductEdit::fillNames()
{
    // What a menu already holds is not checked: a name such as "Eggs / Egg Patties" may stay.
    const QSignalBlocker nameBlocker(m_ui->txtProductName);
    const QSignalBlocker shortNameBlocker(m_ui->txtShortName);
    m_ui->txtProductName->setText(shownName(m_product.get_productName()));
    m_ui->txtShortName->setText(m_product.get_productShortName());
    m_acceptedName = m_ui->txtProductName->text();
    m_acceptedShortName = m_ui->txtShortName->text();
}

void TimerBarProductEdit::fillTemperatures()
{
    const TemperatureRange range = timerbar::productTemperatureRange(m_temperatureUnit);
    for (QSpinBox *box : {m_ui->numTempUpper, m_ui->numTempLower})
        box->setRange(range.lowest, range.highest);
    m_ui->numTempUpper->setValue(shownTemperature(m_product.get_upperTemp(), m_temperatureUnit));
    m_ui->numTempLower->setValue(shownTemperature(m_product.get_lowerTemp(), m_temperatureUnit));
}

void TimerBarProductEdit::on_btnCancel_clicked()
{
    done(0);
}

void TimerBarProductEdit::on_btnSave_clicked()
{
    if (const messages::WrongEntry wrong = firstWrongEntry(); wrong.input) {
        messages::entryFault(this, wrong);
        return;
    }
    storeNamesAndTemperatures();
    noticeLowTemperatures();
    storeTimes();
    done(1);
}

int TimerBarProductEdit::holdSeconds() const
{
    return m_holdTime.seconds() / 60 * 60;
}

messages::WrongEntry TimerBarProductEdit::firstWrongEntry() const
{
    if (m_ui->txtProductName->text().isEmpty())
        return {tr("Product name is empty!"), m_ui->txtProductName};
    if (m_ui->txtShortName->text().isEmpty())
        return {tr("Product short name is empty!"), m_ui->txtShortName};
    if (const QString fault = holdTimeFault(holdSeconds()); !fault.isEmpty())
        return {fault, m_ui->timeHoldTime};
    const QString fault = alertTimeFault(holdSeconds(), m_alertTime.seconds());
    return fault.isEmpty() ? messages::WrongEntry() : messages::WrongEntry{fault, m_ui->timeWarningTime};
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
    const QString notice = timerbar::temperatureNotice(m_product.get_upperTemp(), m_product.get_lowerTemp());
    if (!notice.isEmpty())
        messages::warning(this, notice);
}

void TimerBarProductEdit::storeTimes()
{
    m_product.set_holdTime(holdSeconds());
    m_product.set_warningTime(m_alertTime.seconds());
}

void TimerBarProductEdit::on_txtShortName_textChanged(const QString &arg1)
{
    if (const QString fault = timerbar::shortNameFault(arg1); fault.isEmpty())
        m_acceptedShortName = arg1;
    else
        revert(m_ui->txtShortName, m_acceptedShortName, fault);
}

void TimerBarProductEdit::on_txtProductName_textChanged(const QString &arg1)
{
    if (const QString fault = timerbar::nameFault(arg1); fault.isEmpty())
        m_acceptedName = arg1;
    else
        revert(m_ui->txtProductName, m_acceptedName, fault);
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
