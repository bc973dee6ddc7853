// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/temperaturebox.h"

TemperatureBox::TemperatureBox(QWidget *parent)
    : QSpinBox(parent)
{
    connect(this, &QSpinBox::valueChanged, this, [this](int value) {
        if (isBetween(value))
            setValue(m_lowest);
    });
}

void TemperatureBox::setTemperatures(const TemperatureRange &range, bool mayBeNone)
{
    m_lowest = range.lowest;
    setRange(mayBeNone ? 0 : range.lowest, range.highest);
}

void TemperatureBox::stepBy(int steps)
{
    const int target = value() + steps;
    if (isBetween(target))
        setValue(steps > 0 ? m_lowest : minimum());
    else
        QSpinBox::stepBy(steps);
}

// What lies between may be the beginning of a temperature, but is none itself: a box that is left with it
// takes its last value back.
QValidator::State TemperatureBox::validate(QString &text, int &position) const
{
    const QValidator::State state = QSpinBox::validate(text, position);
    return state == QValidator::Acceptable && isBetween(valueFromText(text)) ? QValidator::Intermediate
                                                                             : state;
}
