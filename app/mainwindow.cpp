// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/mainwindow.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QScreen>

#include "app/aboutapp.h"
#include "app/emptyarea.h"
#include "app/focusinsight.h"
#include "app/selectproductline.h"
#include "ui_mainwindow.h"
#include "widgets/announce.h"
#include "widgets/fixedsize.h"
#include "widgets/longtext.h"
#include "widgets/messages.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace {

// The paths of what Open would open.
QStringList menuFilesIn(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (productLineOfFile(path) && !QFileInfo(path).isDir())
            paths.append(path);
    }
    return paths;
}

// Never as a move, with which the other program takes its file away. Whether it was taken.
bool takeCopies(QDropEvent &event)
{
    const bool taken = !QApplication::activeModalWidget() && (event.possibleActions() & Qt::CopyAction);
    if (taken)
        event.setDropAction(Qt::CopyAction);
    event.setAccepted(taken);
    return taken;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    setAcceptDrops(true);
    // On a screen that is too low for its least size the status bar would lie below the edge.
    setMinimumSize(minimumSize().boundedTo(screen()->availableSize() - QSize(0, frameRoom.height())));
    setCentralWidget(m_ui->mdiArea);
    setWindowIcon(QIcon(u":/myapp.ico"_s));
    showHowToBegin(m_ui->mdiArea);
    keepFocusInSight(m_ui->mdiArea);
    connect(m_ui->menuFile, &QMenu::aboutToShow, this, &MainWindow::updateMenuItems);
    prepareStatusBar();
}

// The area tells of its sub-windows until it is gone, which is after the members of this window.
MainWindow::~MainWindow()
{
    m_ui->mdiArea->disconnect(this);
}

// Tips of what the pointer is on cover the line of the last act and give it back; the note stays in sight.
void MainWindow::prepareStatusBar()
{
    m_told = new QLabel(this);
    m_told->setObjectName(u"lblTold"_s);
    m_told->setTextFormat(Qt::PlainText);
    m_told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a path never widens the window
    m_told->hide();
    m_ui->statusbar->addWidget(m_told, 1);
    m_suffixNote = new QLabel(this);
    m_suffixNote->setObjectName(u"lblSuffixNote"_s);
    m_suffixNote->hide();
    m_ui->statusbar->addPermanentWidget(m_suffixNote);
    connect(m_ui->mdiArea, &QMdiArea::subWindowActivated, this, [this] { showSuffixNote(); });
}

void MainWindow::tell(const QString &message)
{
    const QString shown = beginningOf(message);
    m_ui->statusbar->clearMessage(); // the line would come to stand beside a tip
    m_told->setHidden(shown.isEmpty());
    if (shown.isEmpty())
        m_told->clear();
    else
        announce::news(m_told, shown);
    m_told->setToolTip(asPlainText(shown)); // the whole path, where the bar is too short for it
    showSuffixNote();
}

void MainWindow::showSuffixNote()
{
    const QMdiSubWindow *subWindow = m_ui->mdiArea->activeSubWindow();
    const ProductLine *line = subWindow ? productLineOf(*subWindow) : nullptr;
    const MenuEditor *editor = line ? menuEditorIn(*subWindow) : nullptr;
    const QString path = editor ? editor->filePath() : QString();
    // An old menu's ending would be found, but it is not what a save writes.
    const bool opens = path.isEmpty() || path.endsWith(line->suffixes.first(), Qt::CaseInsensitive);
    const QString note =
        opens ? QString() : tr("Without %1 this program will not open it.").arg(line->suffixes.first());
    announce::line(m_suffixNote, note);
}

void MainWindow::updateMenuItems()
{
    const bool anyActive = m_ui->mdiArea->activeSubWindow() != nullptr;
    m_ui->action_Save->setEnabled(anyActive);
    m_ui->actionSaveAs->setEnabled(anyActive);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_ui->mdiArea->subWindowList().isEmpty()) {
        event->accept();
        return;
    }
    switch (messages::askSaveChanges()) {
    case QMessageBox::Yes:
        event->setAccepted(saveAll());
        break;
    case QMessageBox::No:
        event->accept();
        break;
    default:
        event->ignore();
        break;
    }
}

void MainWindow::on_actionAbout_triggered()
{
    AboutApp(this).exec();
}

void MainWindow::on_actionExit_triggered()
{
    QCoreApplication::quit();
}

void MainWindow::on_actionNew_triggered()
{
    SelectProductLine dialog(this);
    dialog.setWindowTitle(tr("Select Product Line"));
    if (const ProductLine *line = productLineByResult(dialog.exec()))
        openEditor(*line, {});
}

void MainWindow::on_actionOpen_triggered()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open JSON Menu"), {}, openFilter());
    if (const ProductLine *line = productLineOfFile(path))
        openEditor(*line, path);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!menuFilesIn(*event->mimeData()).isEmpty())
        takeCopies(*event);
}

void MainWindow::dropEvent(QDropEvent *event)
{
    if (!takeCopies(*event))
        return;
    // Later, as the other program waits until the drop has been taken, and a file may bring up a message.
    QMetaObject::invokeMethod(
        this,
        [this, paths = menuFilesIn(*event->mimeData())] {
            for (const QString &path : paths)
                openEditor(*productLineOfFile(path), path);
        },
        Qt::QueuedConnection);
}

void MainWindow::openEditor(const ProductLine &line, const QString &path)
{
    std::unique_ptr<MenuEditor> editor = line.editor.create(path, this);
    if (!editor->isMenuValid())
        return;
    connect(editor.get(), &MenuEditor::told, this, [this](const QString &message) { tell(message); });
    QMdiSubWindow *subWindow = m_ui->mdiArea->addSubWindow(editor.release());
    subWindow->setWindowFlags(Qt::CustomizeWindowHint | Qt::WindowMinimizeButtonHint |
                              Qt::MSWindowsFixedSizeDialogHint);
    // A sub-window of fixed size is given a system menu, with which styles draw a close button.
    subWindow->overrideWindowFlags(subWindow->windowFlags() & ~Qt::WindowSystemMenuHint);
    subWindow->show();
    subWindow->setObjectName(line.subWindowName);
    tell(path.isEmpty() ? QString() : tr("Opened %1").arg(path));
}

MenuEditor *MainWindow::activeEditor() const
{
    const QMdiSubWindow *subWindow = m_ui->mdiArea->activeSubWindow();
    return subWindow ? menuEditorIn(*subWindow) : nullptr;
}

void MainWindow::on_action_Save_triggered()
{
    MenuEditor *editor = activeEditor();
    if (!editor)
        return;
    if (editor->filePath().isEmpty())
        saveUnderChosenName(*editor, SaveKind::Save);
    else
        editor->save();
}

void MainWindow::on_actionSaveAs_triggered()
{
    if (MenuEditor *editor = activeEditor())
        saveUnderChosenName(*editor, SaveKind::SaveAs);
}

void MainWindow::saveUnderChosenName(MenuEditor &editor, SaveKind kind)
{
    const QString path = askSaveName(this, editor.nameRequest(kind));
    if (!path.isEmpty())
        editor.writeToFile(path);
}

bool MainWindow::saveAll()
{
    const QList<QMdiSubWindow *> subWindows = m_ui->mdiArea->subWindowList();
    return std::all_of(subWindows.begin(), subWindows.end(), [this](QMdiSubWindow *subWindow) {
        MenuEditor *editor = menuEditorIn(*subWindow);
        return !editor || saveBeforeExit(*subWindow, *editor);
    });
}

bool MainWindow::saveBeforeExit(QMdiSubWindow &subWindow, MenuEditor &editor)
{
    if (!editor.filePath().isEmpty())
        return editor.save();
    // So that the user sees which menu is meant.
    if (subWindow.isMinimized())
        subWindow.showNormal();
    m_ui->mdiArea->setActiveSubWindow(&subWindow);
    const QString path = askSaveName(this, editor.nameRequest(SaveKind::Save));
    if (path.isEmpty())
        return false;
    editor.writeToFile(path); // a failure has been shown and does not keep the program open
    return true;
}
