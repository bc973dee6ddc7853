// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// Moves the focus in a grid of widgets with the arrow keys, by row and column over those that are shown and
/// enabled; what covers several columns counts for all of them.
///
/// With one stop, Tab enters the grid at the widget that last had the focus, and leaves it from any.
class GridKeys final : public QObject
{
    Q_OBJECT

public:
    enum class TabStops { One, Each };

    explicit GridKeys(TabStops stops, QObject *parent = nullptr);

    /// Forgets all widgets; where there was one stop they are none.
    void clear();
    /// Columns of a row have to be added in ascending order. `widget` has to outlive this or be forgotten.
    void add(QWidget *widget, int row, int column);
    /// Where Tab enters; null while nothing is shown. Without a single stop: what last had the focus.
    [[nodiscard]] QWidget *stop() const;

signals:
    /// A character that no widget of the grid has a use for.
    void typed(QWidget *widget, const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Place
    {
        QWidget *widget = nullptr;
        int row = 0;
        int column = 0;
    };
    [[nodiscard]] const Place *placeOf(const QObject *widget) const;
    /// The widget in the row that stands in the column or covers it.
    [[nodiscard]] const Place *usableAt(int row, int column) const;
    [[nodiscard]] const Place *beside(const Place &from, int step) const;
    [[nodiscard]] const Place *inNextRow(const Place &from, int step) const;
    [[nodiscard]] bool takeKey(const Place &from, int key);
    void noteFocus(const Place &place);
    void settleStop();

    TabStops m_stops;
    QList<Place> m_places;
    int m_rows = 0;
    QWidget *m_last = nullptr; ///< had the focus
    int m_column = 0;          ///< that moving up and down keeps to
    bool m_movingByRow = false;
    QPointer<QWidget> m_stop;
};
