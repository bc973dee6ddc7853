// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QDialog>
#include <QString>

#include "model/findings.h"
#include "widgets/savemark.h"

class QAbstractButton;
class QLabel;
class QPushButton;

namespace binplan {
struct Cabinet;
} // namespace binplan

/// What a name to save under is asked for.
enum class SaveKind { Save, SaveAs, Closing };

/// What a save-file dialog is asked with.
struct SaveNameRequest
{
    QString caption;
    QString start; ///< folder, path or proposed name
    QString filter;
};

/// Asks for a file to save to; empty when the user cancels. The name is used as typed.
[[nodiscard]] QString askSaveName(QWidget *parent, const SaveNameRequest &request);

/// The contract that every editor keeps towards the main window, and how an editor closes.
///
/// An editor is constructed with a file path, or with an empty one for a new menu. One whose isMenuValid()
/// is false after construction has told the user why and is to be deleted at once. An editor lives in a
/// QMdiSubWindow that owns it; closing goes through that sub-window, as the area would otherwise keep an
/// empty frame.
class MenuEditor : public QDialog
{
    Q_OBJECT

public:
    MenuEditor(const QString &filePath, QWidget *parent);

    [[nodiscard]] bool isMenuValid() const { return m_menuValid; }
    /// Empty while the menu has never been saved.
    [[nodiscard]] QString filePath() const { return m_filePath; }

    /// Writes to the current path; false, with nothing written, where there is none. A failure has been
    /// shown.
    virtual bool save();
    /// Writes to a path that the user chose and makes it the current one. A failure has been shown.
    virtual bool writeToFile(const QString &path) = 0;
    /// How to ask where to save; starts from the current path if there is one.
    [[nodiscard]] virtual SaveNameRequest nameRequest(SaveKind kind) const = 0;

    /// Escape closes the sub-window, which asks as any closing does: a dialog's own way would hide the
    /// editor and leave its frame behind.
    void reject() override;

signals:
    /// What an act came to, for a line of status; empty where it only ends what was told before.
    void told(const QString &message);

protected:
    void setMenuValid(bool valid) { m_menuValid = valid; }

    /// The form's label that says whether the menu is saved, and its button that closes the editor.
    void takeFrame(QLabel *saved, QAbstractButton *close);
    /// What a save would write now.
    [[nodiscard]] virtual QByteArray contents() const = 0;
    /// To be called when the menu has been read from its current path, or written to it.
    void noteRead(const QByteArray &bytes);
    void noteSaved(const QByteArray &bytes, const QString &message);
    /// What was last read or written may not be in the file any more, as after a write in place that failed.
    void noteBroken();
    /// The menu comes from an old one. It stays unsaved until it is saved under a name of its own.
    void noteImported(const QString &fileName);
    /// To be called after each accepted edit. It may have changed nothing, or something back.
    void noteChange();

    /// What somebody should look at in the menu, as it is now.
    [[nodiscard]] virtual Findings findings() const { return {}; }
    /// A sentence for each.
    [[nodiscard]] virtual QStringList textsOf([[maybe_unused]] const QList<Finding> &findings) const
    {
        return {};
    }
    /// Shows a place of the menu and gives it the focus.
    virtual void goTo([[maybe_unused]] const MenuPlace &place) {}
    /// Shows how many findings there are, in a line of its own that is there only while there are some. To be
    /// called when a menu has been opened; noteChange() does it too.
    void showFindings();

    /// Makes the path current and shows its file name in the title. What is known of the file at another path
    /// no longer counts.
    void setFilePath(const QString &path);
    /// Shows a name in the title; empty for a new menu.
    void showTitle(const QString &fileName);

    /// Asks for a name and writes the bin plan there; without a day part to draw it says why.
    void writeBinPlan(const binplan::Cabinet &cabinet, const QString &whyNone);

    /// Fixes the editor's size to its designed geometry, grown to what its content needs, and its
    /// sub-window's with it. To be called again where the content has changed. An area that is smaller
    /// scrolls.
    void fitContent();

    /// Leaves a mode that is in sight, as its Cancel does; false where there is none. Escape tries this
    /// first.
    virtual bool leaveMode() { return false; }
    void keyPressEvent(QKeyEvent *event) override;

    void showEvent(QShowEvent *event) override;
    /// Asks whether to save first; ignored while a modal dialog is open. The editor schedules its own
    /// deletion, except after a save in place.
    void closeEvent(QCloseEvent *event) override;
    /// What closing writes under the name that it asked for.
    virtual bool writeOnClosing(const QString &path);

private:
    [[nodiscard]] bool saveUnderNewName();

    /// Through the sub-window, where there is one: the area would otherwise keep its empty frame.
    void closeWindow();
    [[nodiscard]] QString savedText() const;
    void showSaved(const QString &text);
    void makeFindingsLine();
    [[nodiscard]] static QString findingsText(qsizetype count);
    void inspect();

    QString m_filePath;
    QSize m_designedSize; ///< invalid before the first fitContent()
    bool m_menuValid = false;
    std::optional<SaveMark> m_saved; ///< of what was last read or written; none while there is no such file
    QString m_importedFrom;          ///< the name of the old menu's file
    QLabel *m_savedLabel = nullptr;
    QAbstractButton *m_closeButton = nullptr;
    QPushButton *m_findingsLine = nullptr; ///< null until there is something to look at
};
