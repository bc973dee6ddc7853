// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarmenufile.h"

#include <utility>

#include <QBuffer>
#include <QFile>

#include "model/files.h"
#include "timerbar/cbrfile.h"
#include "timerbar/defaultproducts.h"
#include "timerbar/inconsistencies.h"
#include "timerbar/rowdescription.h"
#include "timerbar/timerbarconfig.h"
#include "ui_timerbarmenufile.h"
#include "widgets/emptyhint.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Ui::TimerBarMenuFile> makeForm(TimerBarMenuFile *editor)
{
    auto form = std::make_unique<Ui::TimerBarMenuFile>();
    form->setupUi(editor);
    return form;
}

QString writeFaultOf(const QString &fileName, const timerbar::Menu &menu)
{
    QFile file(fileName);
    // Unbuffered, so that each record's write tells whether the record is in the file.
    if (!isWritableTarget(fileName) ||
        !file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return TimerBarMenuFile::tr("Failed to open the file:") + fileName;
    return timerbar::writeMenu(file, menu);
}

} // namespace

TimerBarMenuFile::TimerBarMenuFile(const QString &filePath, QWidget *parent)
    : MenuEditor(filePath, parent)
    , m_ui(makeForm(this))
    , m_products({m_ui->listWidgetProducts, m_ui->btnEditProduct, m_ui->btnDuplicateProduct,
                  m_ui->btnDeleteProduct, m_ui->btnSelectMultiProduct, u"txtFindProducts"_s})
{
    showWhenEmpty(m_ui->listWidgetProducts, tr("No products yet. Add makes one."));
    takeFrame(m_ui->lblSaved, m_ui->btnClose);
    numberedrows::describe(m_ui->listWidgetProducts, [this](int row) {
        return timerbar::rowDescription(entryAt(m_menu.products, row), m_menu.temperatureUnit);
    });
    m_ui->btnExportFile->hide(); // there is nothing to export to yet
    setMenuValid(filePath.isEmpty() ? createMenu() : readInto(m_menu));
    if (!isMenuValid())
        return;
    loadCabinetInfo();
    m_ui->tabWidget->setCurrentIndex(0);
    prepareGrid();
    loadMenuFile();
    m_products.focusList();
}

TimerBarMenuFile::~TimerBarMenuFile() = default;

bool TimerBarMenuFile::leaveMode()
{
    if (m_ui->frameGrid->isVisible() && m_grid.isRemoving())
        on_btnCancelDaypartRemove_clicked();
    else if (m_ui->listWidgetProducts->isVisible() && m_products.isMultiSelecting())
        on_btnSelectMultiProduct_clicked();
    else
        return false;
    return true;
}

bool TimerBarMenuFile::createMenu()
{
    TimerBarConfig dialog(parentWidget()); // this editor is not shown yet, nothing can be centred on it
    if (dialog.exec() != Accepted)
        return false;
    m_menu.temperatureUnit = dialog.getTempUnit();
    m_menu.model = dialog.getCabinetModel();
    loadDefaultMenu();
    return true;
}

void TimerBarMenuFile::closeEvent(QCloseEvent *event)
{
    MenuEditor::closeEvent(event);
}

void TimerBarMenuFile::reject()
{
    MenuEditor::reject();
}

SaveNameRequest TimerBarMenuFile::nameRequest(SaveKind kind) const
{
    const QString caption = kind == SaveKind::Closing ? tr("TimerBar Menu") : tr("Save TimerBar Menu");
    return {caption, filePath(), tr("TimerBar Menu Files (*.cbr)")};
}

bool TimerBarMenuFile::readMenuFile()
{
    timerbar::Menu menu;
    if (!readInto(menu))
        return false;
    m_menu = std::move(menu);
    loadCabinetInfo();
    loadMenuFile();
    return true;
}

bool TimerBarMenuFile::readInto(timerbar::Menu &menu)
{
    const QString path = filePath();
    const std::optional<QByteArray> bytes = readFile(path);
    const QString fault = bytes ? timerbar::readMenu(*bytes, menu) : tr("Failed to open the file:") + path;
    setMenuValid(fault.isEmpty());
    if (!fault.isEmpty()) {
        messages::fileFault(fault);
        return false;
    }
    setFilePath(path);
    noteRead(*bytes);
    return true;
}

bool TimerBarMenuFile::writeMenuFile(const QString &fileName)
{
    if (fileName != filePath())
        setFilePath(fileName);
    const QString fault = writeFaultOf(fileName, m_menu);
    setMenuValid(fault.isEmpty());
    if (fault.isEmpty()) {
        noteSaved(contents(), tr("Saved %1").arg(fileName));
        return true;
    }
    noteBroken();
    messages::fileFault(fault);
    return false;
}

QByteArray TimerBarMenuFile::contents() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    // What cannot be stored stops the writing at the same place each time.
    static_cast<void>(timerbar::writeMenu(buffer, m_menu));
    return buffer.data();
}

Findings TimerBarMenuFile::findings() const
{
    return timerbar::inconsistencies(m_menu);
}

QStringList TimerBarMenuFile::textsOf(const QList<Finding> &findings) const
{
    return timerbar::findingTexts(findings, m_menu);
}

void TimerBarMenuFile::goTo(const MenuPlace &place)
{
    if (place.part == MenuPlace::Part::Products) {
        m_ui->tabWidget->setCurrentWidget(m_ui->tabProducts);
        m_products.goTo(place.index);
        return;
    }
    m_ui->tabWidget->setCurrentWidget(m_ui->tabDayparts);
    m_ui->comboDaypartSelect->setCurrentIndex(place.index);
    m_grid.setFocus(place.bin);
}

void TimerBarMenuFile::loadDefaultMenu()
{
    m_menu.products = timerbar::defaultProducts();
}

void TimerBarMenuFile::loadMenuFile()
{
    m_products.setMultiSelecting(false);
    loadProducts();
    loadProductInfo();
    loadDayparts();
    showFindings();
    fitContent();
}

void TimerBarMenuFile::loadCabinetInfo()
{
    m_ui->lblCabinet->setText(tr("Cabinet: Timer Bar %1, %2").arg(model(), unitText(temperatureUnit())));
}

void TimerBarMenuFile::on_btnConfig_clicked()
{
    TimerBarConfig dialog(this);
    dialog.setCabinetModel(m_menu.model);
    dialog.setTempUnit(static_cast<quint8>(m_menu.temperatureUnit));
    if (dialog.exec() != Accepted)
        return;
    m_menu.temperatureUnit = dialog.getTempUnit();
    m_menu.model = dialog.getCabinetModel();
    loadCabinetInfo();
    loadMenuFile();
    noteChange();
}

void TimerBarMenuFile::on_btnExportFile_clicked() {}
