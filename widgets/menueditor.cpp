// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/menueditor.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>

#include "model/binplan.h"
#include "model/files.h"
#include "widgets/announce.h"
#include "widgets/binplanfile.h"
#include "widgets/menuinspection.h"
#include "widgets/messages.h"
#include "widgets/plainfont.h"

using namespace Qt::StringLiterals;

QString askSaveName(QWidget *parent, const SaveNameRequest &request)
{
    return QFileDialog::getSaveFileName(parent, request.caption, request.start, request.filter);
}

MenuEditor::MenuEditor(const QString &filePath, QWidget *parent)
    : QDialog(parent)
    , m_filePath(filePath)
{
    // An editor has a hundred texts, which are measured when it opens and painted when the day part changes.
    setFont(plainFont({}));
    // Inside a sub-window a dialog has no name of its own. A title has "[*][*]" where a name has "[*]".
    connect(this, &QWidget::windowTitleChanged, this,
            [this](QString title) { setAccessibleName(title.replace("[*][*]"_L1, "[*]"_L1)); });
}

bool MenuEditor::save()
{
    return !m_filePath.isEmpty() && writeToFile(m_filePath);
}

void MenuEditor::reject()
{
    closeWindow();
}

void MenuEditor::closeWindow()
{
    if (auto *subWindow = qobject_cast<QMdiSubWindow *>(parentWidget()))
        subWindow->close();
    else
        close();
}

namespace {

// Who does not wait for a tool tip reads it in the status bar.
void repeatTipsInStatusBar(const QWidget *editor)
{
    const QList<QWidget *> widgets = editor->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->toolTip().isEmpty())
            widget->setStatusTip(widget->toolTip());
    }
}

} // namespace

void MenuEditor::takeFrame(QLabel *saved, QAbstractButton *close)
{
    m_savedLabel = saved;
    m_closeButton = close;
    showSaved(tr("Not saved yet"));
    connect(close, &QAbstractButton::clicked, this, &MenuEditor::closeWindow);
    repeatTipsInStatusBar(this);
}

void MenuEditor::showSaved(const QString &text)
{
    if (m_savedLabel->text() == text)
        return;
    const bool fitted = m_designedSize.isValid();
    if (fitted)
        layout()->activate(); // else the label may have no width yet
    const int before = m_savedLabel->heightForWidth(m_savedLabel->width());
    announce::news(m_savedLabel, text);
    // In a large font a longer text takes another line.
    if (fitted && m_savedLabel->heightForWidth(m_savedLabel->width()) > before)
        fitContent();
}

void MenuEditor::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous() && !m_importedFrom.isEmpty())
        announce::news(m_savedLabel, m_savedLabel->text()); // what was told before nobody could hear
}

void MenuEditor::noteRead(const QByteArray &bytes)
{
    m_saved = SaveMark(bytes);
    m_importedFrom.clear();
    showSaved(tr("Saved"));
}

void MenuEditor::noteSaved(const QByteArray &bytes, const QString &message)
{
    announce::news(m_savedLabel, tr("Saved"));
    noteRead(bytes);
    emit told(message);
}

void MenuEditor::noteBroken()
{
    if (m_saved)
        m_saved = SaveMark({});
    noteChange();
}

void MenuEditor::noteImported(const QString &fileName)
{
    m_importedFrom = fileName;
    noteChange();
}

void MenuEditor::noteChange()
{
    showSaved(savedText());
    showFindings();
    emit told({});
}

void MenuEditor::showFindings()
{
    const qsizetype count = findings().count();
    if (!m_findingsLine && count == 0)
        return;
    if (!m_findingsLine)
        makeFindingsLine();
    const bool wasHidden = m_findingsLine->isHidden();
    announce::line(m_findingsLine, findingsText(count));
    if (m_findingsLine->isHidden() != wasHidden && m_designedSize.isValid())
        fitContent();
}

QString MenuEditor::findingsText(qsizetype count)
{
    if (count == 0)
        return {};
    return count == 1 ? tr("1 thing to look at") : tr("%1 things to look at").arg(count);
}

// Most menus never need it.
void MenuEditor::makeFindingsLine()
{
    m_findingsLine = new QPushButton(this);
    m_findingsLine->hide();
    m_findingsLine->setObjectName(u"btnFindings"_s);
    m_findingsLine->setFlat(true);
    m_findingsLine->setAutoDefault(false);
    QFont font = m_findingsLine->font();
    font.setUnderline(true);
    m_findingsLine->setFont(font);
    m_findingsLine->setToolTip(tr("What does not fit together in this menu, and where it stands"));
    m_findingsLine->setStatusTip(m_findingsLine->toolTip());
    auto *rows = qobject_cast<QBoxLayout *>(layout());
    rows->insertWidget(1, m_findingsLine, 0, Qt::AlignLeft); // below the line of the cabinet
    setTabOrder(m_closeButton, m_findingsLine);
    connect(m_findingsLine, &QPushButton::clicked, this, &MenuEditor::inspect);
}

void MenuEditor::inspect()
{
    const Findings found = findings();
    MenuInspection dialog(textsOf(found.kept()), found.count() - found.kept().size(), this);
    if (dialog.exec() == Accepted)
        goTo(found.kept().at(dialog.chosenRow()).place);
}

QString MenuEditor::savedText() const
{
    if (m_saved)
        return SaveMark(contents()) == m_saved ? tr("Saved") : tr("Changed since the last save");
    if (m_importedFrom.isEmpty())
        return tr("Not saved yet");
    constexpr int widestName = 150; // in pixels
    // The title has the whole name; here it would widen the editor.
    const QString name = m_savedLabel->fontMetrics().elidedText(m_importedFrom, Qt::ElideMiddle, widestName);
    return tr("Imported from %1. Check Configuration before you save.").arg(name);
}

void MenuEditor::keyPressEvent(QKeyEvent *event)
{
    // A key that is held leaves the mode and does not go on to close.
    if (event->matches(QKeySequence::Cancel) && (event->isAutoRepeat() || leaveMode()))
        return;
    QDialog::keyPressEvent(event);
}

void MenuEditor::setFilePath(const QString &path)
{
    if (path != m_filePath)
        m_saved.reset();
    m_filePath = path;
    showTitle(lastPathPart(path));
}

void MenuEditor::showTitle(const QString &fileName)
{
    // A title has "[*]" as the place of the mark of a changed document; doubled it stands for itself.
    setWindowTitle(tr("Menu File - %1").arg(QString(fileName).replace("[*]"_L1, "[*][*]"_L1)));
}

namespace {

// The menu's own name, of another kind.
QString planNameOf(const QString &menuPath)
{
    const QFileInfo menu(menuPath);
    const QString name = menu.completeBaseName() + u".pdf"_s;
    const bool isFree = !menu.completeBaseName().isEmpty() && name != menu.fileName();
    return isFree ? name : MenuEditor::tr("Bin Plan") + u".pdf"_s;
}

bool isPlan(const QFileInfo &info)
{
    QFile file(info.filePath());
    return info.suffix().compare("pdf"_L1, Qt::CaseInsensitive) == 0 ||
           (info.isFile() && file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-");
}

// A file that is there and may be a menu, whatever was answered to whether it is replaced: the editor of an
// open one would go on to say that it is saved.
bool mayBeAMenu(const QString &path, const QList<MenuEditor *> &editors)
{
    const QFileInfo info(path);
    const auto isOpen = [&](const MenuEditor *editor) {
        return QFileInfo(editor->filePath()).canonicalFilePath() == info.canonicalFilePath();
    };
    return info.exists() && (!isPlan(info) || std::any_of(editors.begin(), editors.end(), isOpen));
}

} // namespace

void MenuEditor::writeBinPlan(const binplan::Cabinet &cabinet, const QString &whyNone)
{
    if (cabinet.dayparts.isEmpty()) {
        messages::refusal(this, whyNone);
        return;
    }
    const QString folder = m_filePath.isEmpty() ? QString() : QFileInfo(m_filePath).path();
    QFileDialog dialog(this, tr("Bin Plan"), folder, tr("PDF Files (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s); // by the dialog, so that it asks before it replaces such a file
    dialog.selectFile(planNameOf(m_filePath));
    if (dialog.exec() != Accepted)
        return;
    const QString path = dialog.selectedFiles().constFirst();
    if (mayBeAMenu(path, window()->findChildren<MenuEditor *>()))
        messages::refusal(this, tr("A bin plan cannot replace %1").arg(lastPathPart(path)));
    else if (writeFile(path,
                       pdfOf(layOut(cabinet, lastPathPart(m_filePath), binplan::usualPaper(QLocale())))))
        emit told(tr("Saved %1").arg(path));
    else
        messages::fileFault(tr("Failed to create/open the file:") + path);
}

namespace {

// Layouts learn of rows that came or went on a page that is not in front only when it is shown.
void activateLayouts(QWidget *editor)
{
    const QList<QWidget *> widgets = editor->findChildren<QWidget *>();
    std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget *widget) {
        if (QLayout *layout = widget->layout())
            layout->activate();
        widget->updateGeometry();
    });
    editor->layout()->activate();
}

} // namespace

void MenuEditor::fitContent()
{
    if (m_designedSize.isValid())
        activateLayouts(this);
    else
        m_designedSize = size();
    const QSize before = size();
    QSize needed = layout()->sizeHint();
    // The hint is for a width at which texts may take more lines.
    if (needed.height() > m_designedSize.height() && layout()->hasHeightForWidth())
        needed.setHeight(layout()->totalHeightForWidth(qMax(needed.width(), m_designedSize.width())));
    setFixedSize(m_designedSize.expandedTo(needed));
    if (auto *subWindow = qobject_cast<QMdiSubWindow *>(parentWidget()))
        subWindow->resize(subWindow->size() + size() - before);
}

namespace {

// Dialogs and boxes run on the stack, some of them as children of the editor. While one is open only a
// program can close an editor, and would take it away under them.
bool isUnderDialog(const QWidget *editor)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && modal != editor && !modal->isAncestorOf(editor);
}

} // namespace

void MenuEditor::closeEvent(QCloseEvent *event)
{
    if (isUnderDialog(this)) {
        event->ignore();
        return;
    }
    const QMessageBox::StandardButton answer = messages::askSaveChanges();
    if (answer == QMessageBox::Yes && !m_filePath.isEmpty()) {
        save(); // a failure has been shown; the user asked to close all the same
        event->accept();
        return;
    }
    const bool closes = answer == QMessageBox::No || (answer == QMessageBox::Yes && saveUnderNewName());
    event->setAccepted(closes);
    if (closes)
        deleteLater();
}

bool MenuEditor::writeOnClosing(const QString &path)
{
    return writeToFile(path);
}

bool MenuEditor::saveUnderNewName()
{
    const QString path = askSaveName(this, nameRequest(SaveKind::Closing));
    return !path.isEmpty() && writeOnClosing(path);
}
