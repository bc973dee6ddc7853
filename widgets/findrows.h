// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QStringList>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;

/// The field "Find" above a list of numbered rows, which hides the rows whose name or number does not contain
/// what is typed. Rows keep their numbers and their check marks.
///
/// A row that becomes hidden is no longer the current one, and where one row can be selected no longer
/// selected either: what the details show and what Edit and Delete act on is always in sight. It becomes
/// current again when the field is emptied, unless another row has become so. Check marks of hidden rows
/// stay, and a line below the list says how many there are; who acts on them leaves hidden ones out.
///
/// The current row stays in sight whatever rows come and go.
///
/// Arrow keys and page keys go from the field into the list. Escape anywhere in the window of a list that is
/// in sight empties the field before it does anything else.
class FindRows final : public QObject
{
    Q_OBJECT

public:
    /// Puts the field into the box layout that has the list. Its object name is this one, which begins with
    /// "txt". The list owns this.
    ///
    /// A list to pick from has a button that takes the selected row. Enter in the field presses it, typing
    /// selects the first row that fits, and a box "Only what fits" hides the rows that cannot be selected.
    explicit FindRows(QListWidget *list, const QString &name, QAbstractButton *pick = nullptr);

    void setFocus() const;
    /// As if somebody had typed it into the empty field.
    void find(const QString &text);
    /// Whether rows may be hidden.
    [[nodiscard]] bool isHiding() const;
    /// The first row that is not hidden, -1 for none; without looking at all of them.
    [[nodiscard]] int firstRow() const { return m_firstRow; }

    /// To be called when rows, their names or their check marks have changed by the program. Where the row
    /// given would be hidden the field is emptied, so that somebody who made or renamed an entry sees it.
    void refresh(int rowToShow = -1);

signals:
    /// Other rows are hidden than before.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QLineEdit *makeField(const QString &name);
    void placeField();
    void addOnlyFits(QBoxLayout *beside);
    void keepTyped();
    [[nodiscard]] bool takeFieldKey(const QKeyEvent &press);
    [[nodiscard]] bool takeEscape(const QKeyEvent &press);
    void takeEnter();
    void goToList();
    void follow(const QString &typed);
    void update();
    void hideRows();
    [[nodiscard]] bool isFound(int row) const;
    void leaveHiddenRow();
    void returnToLeftRow();
    void showCurrent() const;
    void selectFirstThatFits();
    void tellFound() const;
    void tellHiddenChecks(int checked);
    [[nodiscard]] QLabel *makeNote() const;
    [[nodiscard]] QString foundText() const;
    [[nodiscard]] QString nothingFoundText() const;

    QListWidget *m_list;
    QWidget *m_viewport; ///< of the list
    QAbstractButton *m_pick;
    QLineEdit *m_field;
    QCheckBox *m_onlyFits = nullptr; ///< null where nothing is picked
    QLabel *m_note = nullptr;        ///< null before it was first needed
    QStringList m_words;
    int m_found = 0;     ///< how many rows are not hidden; not kept up while all are shown
    int m_firstRow = -1; ///< the first that is not hidden, when the rows were last looked at; -1 for none
    int m_leftRow = -1;  ///< was current until it was hidden; -1 for none
    bool m_hasHidden = false;   ///< rows were hidden when they were last looked at
    bool m_keepsTyping = false; ///< what was typed elsewhere is to be typed on
};
