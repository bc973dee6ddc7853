// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/mainwindow.h"

#include <algorithm>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileDialog>
#include <QMdiSubWindow>

#include "app/aboutapp.h"
#include "app/emptyarea.h"
#include "app/selectproductline.h"
#include "ui_mainwindow.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    setCentralWidget(m_ui->mdiArea);
    setWindowIcon(QIcon(u":/myapp.ico"_s));
    showHowToBegin(m_ui->mdiArea);
    connect(m_ui->menuFile, &QMenu::aboutToShow, this, &MainWindow::updateMenuItems);
}

MainWindow::~MainWindow() = default;

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

void MainWindow::openEditor(const ProductLine &line, const QString &path)
{
    std::unique_ptr<MenuEditor> editor = line.editor.create(path, this);
    if (!editor->isMenuValid())
        return;
    QMdiSubWindow *subWindow = m_ui->mdiArea->addSubWindow(editor.release());
    subWindow->setWindowFlags(Qt::CustomizeWindowHint | Qt::WindowMinimizeButtonHint |
                              Qt::MSWindowsFixedSizeDialogHint);
    // A sub-window of fixed size is given a system menu, with which styles draw a close button.
    subWindow->overrideWindowFlags(subWindow->windowFlags() & ~Qt::WindowSystemMenuHint);
    subWindow->show();
    subWindow->setObjectName(line.subWindowName);
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
