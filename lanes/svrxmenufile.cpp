// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lanes/svrxmenufile.h"

#include <QLineEdit>
#include <QScopedValueRollback>

#include "model/files.h"
#include "model/temperature.h"
#include "ui_svrxmenufile.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"
#include "widgets/wheelfocus.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int minFahrenheit = 150;
constexpr int maxFahrenheit = 400;
constexpr int minCelsius = 66;
constexpr int maxCelsius = 204;

} // namespace

SvrxMenuFile::SvrxMenuFile(const QString &filePath, QWidget *parent)
    : MenuEditor(filePath, parent)
    , m_ui(std::make_unique<Ui::SvrxMenuFile>())
{
    m_ui->setupUi(this);
    int number = 0;
    for (Row &row : m_rows) {
        row = rowOf(++number);
        takeWhatIsTyped(row.temperature);
        takeWhatIsTyped(row.fanSpeed);
    }
    needFocusForWheel(this);
    const bool isNew = filePath.isEmpty();
    if (isNew)
        createMenu();
    setMenuValid(isNew || readMenuFile());
    fixDesignedSize(this);
}

// While it goes the editor is hidden, which takes the focus from a box: what that box then reports would come
// to an editor that is half gone.
SvrxMenuFile::~SvrxMenuFile()
{
    for (const Row &row : m_rows) {
        row.temperature->disconnect(this);
        row.fanSpeed->disconnect(this);
    }
}

SvrxMenuFile::Row SvrxMenuFile::rowOf(int number) const
{
    const auto label = [&](QLatin1StringView name) {
        return findChild<QLabel *>(name + QString::number(number));
    };
    const auto box = [&](QLatin1StringView name) {
        return findChild<QSpinBox *>(name + QString::number(number));
    };
    return {.lane = label("lblLane"_L1),
            .temperature = box("numTemperature"_L1),
            .temperatureUnit = label("lblTemperatureUnit"_L1),
            .temperatureNote = label("lblTemperatureNote"_L1),
            .fanSpeed = box("numFanSpeed"_L1),
            .fanSpeedUnit = label("lblFanSpeedUnit"_L1),
            .fanSpeedNote = label("lblFanSpeedNote"_L1)};
}

// A box that is left tells of no change when what it shows was typed over itself, or when it took back what
// was typed.
void SvrxMenuFile::takeWhatIsTyped(QSpinBox *box)
{
    connect(box->findChild<QLineEdit *>(), &QLineEdit::textEdited, this, [this, box] { m_typedIn = box; });
    connect(box, &QSpinBox::editingFinished, this, [this, box] {
        if (m_typedIn != box)
            return;
        emit box->valueChanged(box->value());
        m_typedIn = nullptr;
    });
}

void SvrxMenuFile::closeEvent(QCloseEvent *event)
{
    MenuEditor::closeEvent(event);
}

void SvrxMenuFile::reject()
{
    MenuEditor::reject();
}

// Whatever it is asked for.
SaveNameRequest SvrxMenuFile::nameRequest(SaveKind /*kind*/) const
{
    const QString start = filePath().isEmpty() ? QString(lanes::configurationPrefix) : filePath();
    return {tr("Save Savorix Menu"), start, tr("Savorix Menu Files (*.txt)")};
}

void SvrxMenuFile::createMenu()
{
    showTitle({});
    showConfiguration();
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
        const QList<QWidget *> widgets{
            row.lane,     row.temperature,  row.temperatureUnit, row.temperatureNote,
            row.fanSpeed, row.fanSpeedUnit, row.fanSpeedNote};
        for (QWidget *widget : widgets)
            widget->setEnabled(used);
    }
}

// Where a box cannot show what is stored, the row says what the file holds; not of lanes that are not saved.
void SvrxMenuFile::showNotes()
{
    int number = 0;
    for (const Row &row : m_rows) {
        const bool used = number < m_configuration.laneCount;
        const lanes::Lane &stored = m_configuration.lanes[static_cast<std::size_t>(number++)];
        const auto note = [used](const QSpinBox *box, int value) {
            return used && box->value() != value ? tr("file holds %1").arg(value) : QString();
        };
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
    showNotes();
}

void SvrxMenuFile::on_rbTempUnitF_clicked()
{
    updateTemperatureLimits();
}

void SvrxMenuFile::on_rbTempUnitC_clicked()
{
    updateTemperatureLimits();
}

// Enter makes a box report what it shows already, which is no entry: the stored value may be another one with
// the same look, or lie beyond the limits. The latter is replaced by the limit once that was typed.
bool SvrxMenuFile::isEntry(const QSpinBox *box, int value, int stored) const
{
    if (m_loading)
        return false;
    const bool isNew = value != qBound(box->minimum(), stored, box->maximum());
    return isNew || (value != stored && m_typedIn == box);
}

void SvrxMenuFile::storeFanSpeed(std::size_t lane, int value)
{
    int &stored = m_configuration.lanes[lane].fanSpeed;
    if (!isEntry(m_rows[lane].fanSpeed, value, stored))
        return;
    stored = value;
    showNotes();
}

void SvrxMenuFile::storeTemperature(std::size_t lane, int value)
{
    int &stored = m_configuration.lanes[lane].temperature;
    const int unit = temperatureUnit();
    if (!isEntry(m_rows[lane].temperature, value, shownTemperature(stored, unit)))
        return;
    stored = storedTemperature(value, unit);
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
