// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QObject>
#include <QTimer>

#include "model/bin.h"
#include "widgets/gridkeys.h"

class QLabel;
class QPushButton;
class QWidget;

/// Which button is which bin, and the two modes of the buttons: a click assigns, until a bin is held for
/// 800 ms; in removal mode clicks choose the bins to clear.
///
/// Arrow keys go from bin to bin, and Tab stops at one of them. Typing on a bin clicks it and is kept for the
/// one who assigns.
///
/// The editor forwards what happens to its buttons and answers holdDetected(). The grid knows nothing of
/// products; it owns no buttons.
class BinGrid final : public QObject
{
    Q_OBJECT

public:
    explicit BinGrid(QObject *parent = nullptr);

    /// Leaves removal mode, ends a press and forgets all buttons.
    void clear();
    /// A button that the cabinet has. While it is hidden it takes no part in removal mode.
    void add(QPushButton *button, Bin bin);
    [[nodiscard]] QPushButton *button(Bin bin) const; ///< null for a bin that the cabinet lacks
    [[nodiscard]] QList<Bin> bins() const;
    /// Shows what a bin of the cabinet holds: a name as it stands, or nothing. A remark is not shown, but
    /// told with the name.
    void showContent(Bin bin, const QString &text, const QString &remark = {}) const;

    /// Gives the focus to the bin that had it last.
    void setFocus() const;
    /// Gives the focus to a bin, or to the one whose entry covers it.
    void setFocus(Bin bin) const;

    void press(QPushButton *button);
    void release();
    /// What was typed on the bin whose assignment is under way; empty where it was clicked.
    [[nodiscard]] QString typed() const { return m_typed; }
    /// The bin that a click on the button assigns; nothing in removal mode, where it changes the check mark.
    [[nodiscard]] std::optional<Bin> clickedBin(const QPushButton *button) const;

    /// Answers holdDetected(): ends the press, so that letting the button go is no click, and enters removal
    /// mode where the held bin is filled. Filled bins become checkable, the held one checked, the others
    /// disabled.
    void settleHold(const std::function<bool(Bin)> &isFilled);
    void leaveRemovalMode();
    [[nodiscard]] bool isRemoving() const;
    [[nodiscard]] QList<Bin> checkedBins() const;

    /// Tells the user what to do in either mode; in removal mode in bold, as a click then does something
    /// else.
    static void showHint(QLabel *label, bool removing);

signals:
    void holdDetected();
    void removalModeChanged(bool removing);

private:
    struct Place
    {
        QPushButton *button = nullptr;
        Bin bin;
    };
    [[nodiscard]] std::optional<Bin> binOf(const QPushButton *button) const;
    void enterRemovalMode(const QPushButton *held, const std::function<bool(Bin)> &isFilled);
    void assignByTyping(QWidget *widget, const QString &text);

    QList<Place> m_places;
    QPushButton *m_pressed = nullptr; ///< while it may become held
    QTimer m_holdTimer;
    GridKeys m_keys{GridKeys::TabStops::One};
    QString m_typed;
};

/// A hidden widget keeps its room, so that entering removal mode moves no bin from under the pointer.
void keepRoomWhenHidden(QWidget *widget);
