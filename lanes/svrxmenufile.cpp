// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lanes/svrxmenufile.h"

#include <QScopedValueRollback>

#include "model/files.h"
#include "model/temperature.h"
#include "ui_svrxmenufile.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"

namespace {

constexpr int minFahrenheit = 150;
constexpr int maxFahrenheit = 400;
constexpr int minCelsius = 66;
constexpr int maxCelsius = 204;

std::unique_ptr<Ui::SvrxMenuFile> makeForm(SvrxMenuFile *editor)
{
    auto form = std::make_unique<Ui::SvrxMenuFile>();
    form->setupUi(editor);
    return form;
}

} // namespace

SvrxMenuFile::SvrxMenuFile(const QString &filePath, QWidget *parent)
    : MenuEditor(filePath, parent)
    , m_ui(makeForm(this))
    , m_rows{{
          {m_ui->numTemperature1,
           m_ui->lblTemperatureUnit1,
           m_ui->lblTemperatureNote1,
           m_ui->numFanSpeed1,
           m_ui->lblFanSpeedNote1,
           {m_ui->lblLane1, m_ui->lblFanSpeedUnit1}},
          {m_ui->numTemperature2,
           m_ui->lblTemperatureUnit2,
           m_ui->lblTemperatureNote2,
           m_ui->numFanSpeed2,
           m_ui->lblFanSpeedNote2,
           {m_ui->lblLane2, m_ui->lblFanSpeedUnit2}},
          {m_ui->numTemperature3,
           m_ui->lblTemperatureUnit3,
           m_ui->lblTemperatureNote3,
           m_ui->numFanSpeed3,
           m_ui->lblFanSpeedNote3,
           {m_ui->lblLane3, m_ui->lblFanSpeedUnit3}},
          {m_ui->numTemperature4,
           m_ui->lblTemperatureUnit4,
           m_ui->lblTemperatureNote4,
           m_ui->numFanSpeed4,
           m_ui->lblFanSpeedNote4,
           {m_ui->lblLane4, m_ui->lblFanSpeedUnit4}},
      }}
{
    setMenuValid(filePath.isEmpty() ? createMenu() : readMenuFile());
    fixDesignedSize(this);
}

SvrxMenuFile::~SvrxMenuFile() = default;

void SvrxMenuFile::closeEvent(QCloseEvent *event)
{
    MenuEditor::closeEvent(event);
}

void SvrxMenuFile::reject()
{
    MenuEditor::reject();
}

SaveNameRequest SvrxMenuFile::closingNameRequest() const
{
    return {tr("Save Savorix Menu"), QStringLiteral("svrxconfig_"), tr("Savorix Menu Files (*.txt)")};
}

bool SvrxMenuFile::createMenu()
{
    showTitle({});
    showConfiguration();
    return true;
}

bool SvrxMenuFile::readMenuFile()
{
    const QString path = filePath();
    const std::optional<QByteArray> text = readFile(path);
    const QString fault =
        text ? lanes::readConfiguration(*text, m_configuration) : tr("Failed to open the file:") + path;
    if (!fault.isEmpty()) {
        messages::fileFault(fault);
        return false;
    }
    setFilePath(path);
    showConfiguration();
    return true;
}

bool SvrxMenuFile::save()
{
    return !filePath().isEmpty() && writeConfigurationFile(filePath());
}

bool SvrxMenuFile::writeToFile(const QString &path)
{
    return checkName(path) && writeConfigurationFile(path) &&
           writeEolProdMenuFile(lanes::productionPath(path));
}

// A closing editor leaves the production file as it is: only a name chosen in the main window writes both.
bool SvrxMenuFile::writeOnClosing(const QString &path)
{
    return checkName(path) && writeConfigurationFile(path);
}

bool SvrxMenuFile::checkName(const QString &path)
{
    const bool loadable = lanes::isConfigurationName(path);
    if (!loadable)
        messages::fileFault(tr("File name must start with \"svrxconfig_\" to load in a Savorix unit!"));
    return loadable;
}

bool SvrxMenuFile::writeConfigurationFile(const QString &path)
{
    if (path != filePath())
        setFilePath(path);
    if (writeFile(path, lanes::writeConfiguration(m_configuration)))
        return true;
    messages::fileFault(tr("Failed to create/open the file:") + path);
    return false;
}

bool SvrxMenuFile::writeEolProdMenuFile(const QString &prodMenuFileName)
{
    if (writeFile(prodMenuFileName, lanes::writeProductionRecord(m_configuration)))
        return true;
    messages::fileFault(tr("Failed to create/open the file:") + prodMenuFileName);
    return false;
}

int SvrxMenuFile::temperatureUnit() const
{
    return m_ui->rbTempUnitC->isChecked() ? unitCelsius : unitFahrenheit;
}

void SvrxMenuFile::showConfiguration()
{
    {
        const QScopedValueRollback loading(m_loading, true);
        m_ui->comboModelSelect->setCurrentIndex(m_configuration.laneCount - 1);
        showFanSpeeds();
    }
    updateTemperatureLimits();
    enableRows();
}

void SvrxMenuFile::showFanSpeeds()
{
    for (std::size_t lane = 0; lane < m_rows.size(); ++lane)
        m_rows[lane].fanSpeed->setValue(m_configuration.lanes[lane].fanSpeed);
}

// The boxes clamp to their limits; the stored values stay what they are until the user changes a box.
void SvrxMenuFile::updateTemperatureLimits()
{
    const QScopedValueRollback loading(m_loading, true);
    const int unit = temperatureUnit();
    for (std::size_t lane = 0; lane < m_rows.size(); ++lane) {
        QSpinBox *box = m_rows[lane].temperature;
        if (unit == unitCelsius)
            box->setRange(minCelsius, maxCelsius);
        else
            box->setRange(minFahrenheit, maxFahrenheit);
        box->setValue(shownTemperature(m_configuration.lanes[lane].temperature, unit));
        m_rows[lane].temperatureUnit->setText(unitText(unit));
    }
    showNotes();
}

void SvrxMenuFile::enableRows()
{
    int number = 0;
    for (const Row &row : m_rows) {
        const bool used = number++ < m_configuration.laneCount;
        for (QWidget *widget :
             {static_cast<QWidget *>(row.temperature), static_cast<QWidget *>(row.temperatureUnit),
              static_cast<QWidget *>(row.temperatureNote), static_cast<QWidget *>(row.fanSpeed),
              static_cast<QWidget *>(row.fanSpeedNote), row.labels[0], row.labels[1]})
            widget->setEnabled(used);
    }
}

// Where a box cannot show what is stored, the row says what the file holds.
void SvrxMenuFile::showNotes()
{
    const auto note = [](const QSpinBox *box, int stored) {
        return box->value() == stored ? QString() : tr("file holds %1").arg(stored);
    };
    for (std::size_t lane = 0; lane < m_rows.size(); ++lane) {
        const lanes::Lane &stored = m_configuration.lanes[lane];
        const Row &row = m_rows[lane];
        row.temperatureNote->setText(
            note(row.temperature, shownTemperature(stored.temperature, temperatureUnit())));
        row.fanSpeedNote->setText(note(row.fanSpeed, stored.fanSpeed));
    }
}

void SvrxMenuFile::on_comboModelSelect_currentIndexChanged(int index)
{
    if (m_loading)
        return;
    m_configuration.laneCount = index + 1;
    enableRows();
}

void SvrxMenuFile::on_rbTempUnitF_clicked()
{
    updateTemperatureLimits();
}

void SvrxMenuFile::on_rbTempUnitC_clicked()
{
    updateTemperatureLimits();
}

void SvrxMenuFile::storeFanSpeed(std::size_t lane, int value)
{
    if (m_loading)
        return;
    m_configuration.lanes[lane].fanSpeed = value;
    showNotes();
}

void SvrxMenuFile::storeTemperature(std::size_t lane, int value)
{
    if (m_loading)
        return;
    m_configuration.lanes[lane].temperature = storedTemperature(value, temperatureUnit());
    showNotes();
}

void SvrxMenuFile::on_numFanSpeed1_valueChanged(int arg1)
{
    storeFanSpeed(0, arg1);
}

void SvrxMenuFile::on_numFanSpeed2_valueChanged(int arg1)
{
    storeFanSpeed(1, arg1);
}

void SvrxMenuFile::on_numFanSpeed3_valueChanged(int arg1)
{
    storeFanSpeed(2, arg1);
}

void SvrxMenuFile::on_numFanSpeed4_valueChanged(int arg1)
{
    storeFanSpeed(3, arg1);
}

void SvrxMenuFile::on_numTemperature1_valueChanged(int arg1)
{
    storeTemperature(0, arg1);
}

void SvrxMenuFile::on_numTemperature2_valueChanged(int arg1)
{
    storeTemperature(1, arg1);
}

void SvrxMenuFile::on_numTemperature3_valueChanged(int arg1)
{
    storeTemperature(2, arg1);
}

void SvrxMenuFile::on_numTemperature4_valueChanged(int arg1)
{
    storeTemperature(3, arg1);
}
