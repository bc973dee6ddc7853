// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/timercolorpicker.h"

#include <QPushButton>

#include "holding/timercolorsample.h"
#include "ui_timercolorpicker.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize buttonSize(25, 25);

// A button that shows the colour of an entry and tells its name.
QPushButton *makeButton(const holding::TimerColor &entry, QWidget *parent)
{
    auto *button = new QPushButton(u" "_s, parent);
    button->setFixedSize(buttonSize);
    button->setAutoDefault(false);
    if (entry.isNone()) {
        button->setIcon(QIcon(u":/images/noColor.png"_s));
        button->setIconSize(buttonSize);
        button->setAccessibleName(TimerColorPicker::tr("No color"));
    } else {
        button->setStyleSheet(holding::backgroundStyle(entry));
        button->setAccessibleName(entry.colorName);
    }
    return button;
}

const holding::TimerColor &entryAt(std::size_t row, std::size_t column)
{
    return holding::timerPalette()[row * holding::paletteColumns + column];
}

} // namespace

TimerColorPicker::TimerColorPicker(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TimerColorPicker>())
{
    m_ui->setupUi(this);
    for (std::size_t row = 0; row < m_buttons.size(); ++row) {
        for (std::size_t column = 0; column < m_buttons[row].size(); ++column) {
            QPushButton *button = makeButton(entryAt(row, column), m_ui->gridLayoutWidget);
            m_ui->gridLayout->addWidget(button, static_cast<int>(row), static_cast<int>(column));
            connect(button, &QPushButton::clicked, this, &TimerColorPicker::colorPick_clicked);
            m_buttons[row][column] = button;
        }
    }
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

TimerColorPicker::~TimerColorPicker() = default;

void TimerColorPicker::colorPick_clicked()
{
    m_chosen = nullptr;
    for (std::size_t row = 0; row < m_buttons.size() && !m_chosen; ++row) {
        for (std::size_t column = 0; column < m_buttons[row].size() && !m_chosen; ++column) {
            if (m_buttons[row][column] == sender())
                m_chosen = &entryAt(row, column);
        }
    }
    if (m_chosen)
        accept();
}
