// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

/// Shows the name of a product or group as it stands, markup included, on as many lines as it takes: a long
/// word is broken rather than clipped. It asks for the width of an ordinary name whatever it shows, as the
/// windows that it stands in have a fixed size; of a name that no editor takes it shows the beginning.
class NameLabel final : public QLabel
{
    Q_OBJECT

public:
    static constexpr int ordinaryLength = 25; ///< of a name, in characters

    explicit NameLabel(QWidget *parent = nullptr);
    /// Asks for the width of so many characters, for a place where others decide on the width.
    void setAskedLength(int characters);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_askedLength = ordinaryLength;
};
