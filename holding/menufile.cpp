// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include "holding/configuration.h"
#include "holding/menujson.h"
#include "holding/menunames.h"
#include "holding/qhximport.h"
#include "holding/rowdescription.h"
#include "model/files.h"
#include "ui_menufile.h"
#include "widgets/emptyhint.h"
#include "widgets/listkeys.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Ui::MenuFile> makeForm(MenuFile *editor)
{
    auto form = std::make_unique<Ui::MenuFile>();
    form->setupUi(editor);
    return form;
}

bool isOldMenu(const QString &path)
{
    return path.endsWith(".qhx"_L1, Qt::CaseInsensitive);
}

} // namespace

MenuFile::MenuFile(const QString &filePath, QWidget *parent)
    : MenuEditor(isOldMenu(filePath) ? QString() : filePath, parent)
    , m_ui(makeForm(this))
    , m_products({m_ui->listWidgetProducts, m_ui->btnEditProduct, m_ui->btnDuplicateProduct,
                  m_ui->btnDeleteProduct, m_ui->btnSelectMultiProduct, u"txtFindProducts"_s})
    , m_groups({m_ui->listWidgetGroups, m_ui->btnEditGroup, m_ui->btnDuplicateGroup, m_ui->btnDeleteGroup,
                m_ui->btnSelectMultiGroup, u"txtFindGroups"_s})
{
    takeFrame(m_ui->lblSaved, m_ui->btnClose);
    numberedrows::preparePlainList(m_ui->listWidgetMembers);
    showWhenEmpty(m_ui->listWidgetProducts, tr("No products yet. Add makes one."));
    showWhenEmpty(m_ui->listWidgetGroups,
                  tr("No groups yet. Add makes one of products that hold at the same settings."));
    m_ui->detailsGroup->setEmptyHint(tr("Select a group"));
    new ListKeys(m_ui->listWidgetMembers, nullptr);
    describeRows();
    setMenuValid(load(filePath));
    if (!isMenuValid())
        return;
    m_ui->tabWidget->setCurrentIndex(0);
    prepareGrid();
    // Room for a name of three lines among the details, in any font.
    for (QSpacerItem *spacer : {m_ui->spacerDetailsProducts, m_ui->spacerDetailsGroups})
        spacer->changeSize(0, 2 * fontMetrics().lineSpacing(), QSizePolicy::Minimum, QSizePolicy::Expanding);
    loadMenuFile();
    m_products.focusList();
}

MenuFile::~MenuFile() = default;

void MenuFile::describeRows()
{
    numberedrows::describe(m_ui->listWidgetProducts, [this](int row) {
        return holding::rowDescription(entryAt(m_menu.products, row), m_menu.configuration);
    });
    numberedrows::describe(m_ui->listWidgetGroups, [this](int row) {
        return holding::rowDescription(entryAt(m_menu.groups, row), m_menu.configuration);
    });
    numberedrows::describe(m_ui->listWidgetMembers, [this](int row) {
        const int id = m_ui->listWidgetMembers->item(row)->data(numberedrows::idRole).toInt();
        return holding::rowDescription(findEntry(indexById(getMenuProducts()), id), m_menu.configuration);
    });
}

bool MenuFile::leaveMode()
{
    if (m_ui->frameGrid->isVisible() && m_grid.isRemoving())
        on_btnCancelDaypartRemove_clicked();
    else if (m_ui->listWidgetProducts->isVisible() && m_products.isMultiSelecting())
        on_btnSelectMultiProduct_clicked();
    else if (m_ui->listWidgetGroups->isVisible() && m_groups.isMultiSelecting())
        on_btnSelectMultiGroup_clicked();
    else
        return false;
    return true;
}

bool MenuFile::load(const QString &path)
{
    if (path.isEmpty())
        return createMenu();
    return isOldMenu(path) ? importIntoMenu(path) : readIntoMenu();
}

bool MenuFile::createMenu()
{
    if (!askConfiguration(m_menu.configuration))
        return false;
    showTitle({});
    loadCabinetInfo();
    loadDefaultMenu();
    return true;
}

bool MenuFile::readMenuFile()
{
    const bool read = readIntoMenu();
    loadMenuFile(); // else the lists would go on showing entries that are gone
    if (!read)
        noteChange();
    return read;
}

bool MenuFile::readIntoMenu()
{
    const QString path = filePath();
    const std::optional<QByteArray> bytes = readFile(path);
    bool asked = false;
    const auto ask = [&](holding::CabinetConfiguration &configuration) {
        const bool accepted = askConfiguration(configuration);
        asked = true;
        setMenuValid(accepted);
        if (accepted)
            showTitle({});
        return accepted;
    };
    const QString fault =
        bytes ? holding::readMenu(*bytes, m_menu, ask) : tr("Failed to open the file:") + path;
    loadCabinetInfo();
    if (!fault.isEmpty()) {
        messages::fileFault(fault);
        setMenuValid(false);
        return false;
    }
    setFilePath(path);
    noteRead(*bytes);
    if (asked)
        noteChange();
    return true;
}

bool MenuFile::importQhxMenuFile(const QString &fileName)
{
    const bool imported = importIntoMenu(fileName);
    if (imported)
        loadMenuFile();
    return imported;
}

bool MenuFile::importIntoMenu(const QString &fileName)
{
    const std::optional<QByteArray> bytes = readFile(fileName);
    holding::Menu imported;
    const QString fault =
        bytes ? holding::importQhxMenu(*bytes, imported) : tr("Failed to open the file:") + fileName;
    if (!fault.isEmpty()) {
        messages::fileFault(fault);
        return false;
    }
    holding::addImportedMenu(std::move(imported), m_menu);
    loadCabinetInfo();
    showTitle(lastPathPart(fileName));
    noteImported(lastPathPart(fileName));
    return true;
}

void MenuFile::loadDefaultMenu()
{
    if (const QString fault = holding::readDefaultMenu(m_shape.binsPerZone, m_menu); !fault.isEmpty())
        messages::fileFault(fault);
}

QJsonObject MenuFile::setNameListToJson(const QStringList &nameList)
{
    return holding::namesToJson(nameList);
}

QStringList MenuFile::readNameTranslationsFromJson(const QJsonObject &nameObj)
{
    return holding::namesFromJson(nameObj);
}

bool MenuFile::writeToFile(const QString &path)
{
    setFilePath(path);
    const QByteArray bytes = contents();
    if (writeFile(path, bytes)) {
        noteSaved(bytes, tr("Saved %1").arg(path));
        return true;
    }
    noteChange();
    messages::fileFault(tr("Failed to create/open the file:") + path);
    return false;
}

QByteArray MenuFile::contents() const
{
    return holding::writeMenu(m_menu);
}

void MenuFile::saveAs()
{
    const QString path = askSaveName(this, nameRequest(SaveKind::SaveAs));
    if (!path.isEmpty())
        writeToFile(path);
}

SaveNameRequest MenuFile::nameRequest(SaveKind kind) const
{
    const QString caption = kind == SaveKind::SaveAs ? tr("Save As JSON Menu") : tr("Save JSON Menu");
    return {caption, filePath(), tr("JSON Menu Files (*.json)")};
}

void MenuFile::loadMenuFile()
{
    for (EntryPane *pane : {&m_products, &m_groups})
        pane->setMultiSelecting(false);
    m_ui->lblCabinet->setText(
        tr("Cabinet: %1 %2, %3").arg(getCabinetType(), getCabinetModel(), unitText(getTemperatureUnit())));
    loadProducts();
    loadProductInfo();
    loadGroups();
    loadGroupInfo();
    loadDayparts();
    showFindings();
    fitContent();
}

int MenuFile::getBinsPerZone()
{
    return m_shape.binsPerZone;
}

QString MenuFile::getCabinetType()
{
    return m_menu.configuration.type;
}

QString MenuFile::getCabinetModel()
{
    return m_menu.configuration.model;
}

int MenuFile::getTemperatureUnit()
{
    return m_menu.configuration.temperatureUnit;
}

bool MenuFile::getProductIdEnabled()
{
    return m_menu.configuration.productIdEnabled;
}

bool MenuFile::getFanSpeedEnabled()
{
    return m_menu.configuration.fanSpeedEnabled;
}

bool MenuFile::getResetTimeEnabled()
{
    return m_menu.configuration.resetTimeEnabled;
}

bool MenuFile::getTimerColorEnabled()
{
    return m_menu.configuration.timerColorEnabled;
}

void MenuFile::loadCabinetInfo()
{
    m_shape = m_menu.shape();
}

bool MenuFile::askConfiguration(holding::CabinetConfiguration &configuration)
{
    Configuration dialog(this);
    if (!run(dialog))
        return false;
    configuration = dialog.values();
    return true;
}

// While a menu is opened its editor is not shown yet: left alone, the dialog would centre on a place where
// nothing is.
bool MenuFile::run(Configuration &dialog)
{
    dialog.setWindowTitle(tr("Configuration"));
    if (const QWidget *opener = parentWidget(); opener && !isVisible())
        dialog.move(opener->window()->frameGeometry().center() - dialog.rect().center());
    return dialog.exec() == Accepted;
}

void MenuFile::on_btnConfig_clicked()
{
    Configuration dialog(this);
    dialog.setValues(m_menu.configuration);
    if (!run(dialog))
        return;
    m_menu.configuration = dialog.values();
    const int oldBinsPerZone = m_shape.binsPerZone;
    loadCabinetInfo();
    if (m_shape.binsPerZone != oldBinsPerZone) {
        m_menu.clearBins();
        messages::reconfigured(
            this, tr("Bins per zone configuration is changed. All daypart assignments are removed."));
    }
    loadMenuFile();
    noteChange();
}
