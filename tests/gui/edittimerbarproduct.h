// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>

#include "tests/gui/opentimerbar.h"
#include "tests/support/require.h"
#include "timerbar/timerbarproductedit.h"

/// The product dialog on a product of its own, shown. The product is bacon, 215 and 200 °F, 1 h, alert after
/// 10 min, before `prepare` changes it.
class TimerBarProductEditing
{
    OpenTimerBar m_editor; // the dialog's parent, so it has to outlive it

public:
    explicit TimerBarProductEditing(int unit = 0, const std::function<void(ProductInfo &)> &prepare = {})
        : m_editor(cbr::Menu{.unit = unit})
    {
        product.set_productName({QStringLiteral("Bacon")});
        product.set_productShortName(QStringLiteral("BACN"));
        product.set_upperTemp(215);
        product.set_lowerTemp(200);
        product.set_holdTime(3600);
        product.set_warningTime(600);
        if (prepare)
            prepare(product);
        dialog = std::make_unique<TimerBarProductEdit>(product, &*m_editor);
        ui::show(*dialog);
    }

    template <typename Widget>
    [[nodiscard]] Widget &get(const char *name) const
    {
        return ui::get<Widget>(*dialog, name);
    }
    /// Name, short name, upper and lower temperature, holding and alert time.
    [[nodiscard]] QStringList record() const
    {
        return {product.get_productName().join(u'|'),     product.get_productShortName(),
                QString::number(product.get_upperTemp()), QString::number(product.get_lowerTemp()),
                QString::number(product.get_holdTime()),  QString::number(product.get_warningTime())};
    }

    /// Types hours and minutes; what the field holds of seconds stays.
    void enterTime(const char *name, int hours, int minutes) const
    {
        auto &edit = get<QTimeEdit>(name);
        edit.setFocus();
        edit.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(&edit, QTime(hours, minutes).toString(QStringLiteral("HHmm")));
        REQUIRE_EQUAL(edit.time().hour(), hours);
        REQUIRE_EQUAL(edit.time().minute(), minutes);
    }

    void saveAccepted() const
    {
        ui::click(*dialog, "btnSave");
        REQUIRE(dialog->isHidden());
        REQUIRE_EQUAL(dialog->result(), 1);
    }
    /// Presses Save, which has to be refused with this message.
    void saveRefused(const QString &message) const
    {
        const QStringList before = record();
        {
            ModalAnswers answers;
            answers.expectBox(ModalAnswers::entryFault(message), QMessageBox::Close);
            ui::click(*dialog, "btnSave");
        }
        REQUIRE(dialog->isVisible());
        REQUIRE_EQUAL(record(), before);
        ui::activate(*dialog);
    }

    ProductInfo product;
    std::unique_ptr<TimerBarProductEdit> dialog;
};
