// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/timercolorpicker.h"

#include <QPainter>
#include <QPushButton>

#include "holding/timercolorsample.h"
#include "ui_timercolorpicker.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

using namespace Qt::StringLiterals;

namespace {

// Black and white, so that it is seen on any colour.
void drawRing(QPainter &painter, const QRect &around)
{
    painter.setPen(Qt::black);
    painter.drawRect(around.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::white);
    painter.drawRect(around.adjusted(1, 1, -2, -2));
}

} // namespace

/// Shows by a ring along its edge that it has the focus, and by one in its middle that it is the current one.
class ColorButton final : public QPushButton
{
public:
    using QPushButton::QPushButton;

    void setCurrent(bool current)
    {
        m_current = current;
        setAccessibleDescription(current ? TimerColorPicker::tr("Current") : QString());
        update();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPushButton::paintEvent(event);
        QPainter painter(this);
        if (hasFocus())
            drawRing(painter, rect());
        if (m_current)
            drawRing(painter, QRect(0, 0, 9, 9).translated(rect().center() - QPoint(4, 4)));
    }

private:
    bool m_current = false;
};

namespace {

constexpr QSize buttonSize(25, 25);

// A button that shows the colour of an entry and tells its name.
ColorButton *makeButton(const holding::TimerColor &entry, QWidget *parent)
{
    auto *button = new ColorButton(u" "_s, parent);
    button->setFixedSize(buttonSize);
    button->setAutoDefault(false);
    button->setAccessibleName(holding::colorWords(entry));
    if (entry.isNone()) {
        button->setIcon(QIcon(u":/images/noColor.png"_s));
        button->setIconSize(buttonSize);
    } else {
        button->setStyleSheet(holding::backgroundStyle(entry));
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
            ColorButton *button = makeButton(entryAt(row, column), m_ui->gridLayoutWidget);
            m_ui->gridLayout->addWidget(button, static_cast<int>(row), static_cast<int>(column));
            connect(button, &QPushButton::clicked, this, &TimerColorPicker::colorPick_clicked);
            m_buttons[row][column] = button;
            m_keys.add(button, static_cast<int>(row), static_cast<int>(column));
        }
    }
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

TimerColorPicker::~TimerColorPicker() = default;

void TimerColorPicker::setCurrent(const QString &colorName)
{
    const holding::TimerColor *current = &holding::timerColorByName(colorName);
    for (std::size_t row = 0; row < m_buttons.size(); ++row) {
        for (std::size_t column = 0; column < m_buttons[row].size(); ++column) {
            const bool isCurrent = &entryAt(row, column) == current;
            m_buttons[row][column]->setCurrent(isCurrent);
            if (isCurrent)
                m_buttons[row][column]->setFocus();
        }
    }
}

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
