// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lanes/svrxmenufile.h"

#include <QLineEdit>
#include <QScopedValueRollback>

#include "model/files.h"
#include "model/temperature.h"
#include "ui_svrxmenufile.h"
#include "widgets/bingrid.h"
#include "widgets/messages.h"
#include "widgets/wheelfocus.h"

SvrxMenuFile::SvrxMenuFile(const QString &filePath, QWidget *parent)
    : MenuEditor(filePath, parent)
    , m_ui(std::make_unique<Ui::SvrxMenuFile>())
{
    m_ui->setupUi(this);
    takeFrame(m_ui->lblSaved, m_ui->btnClose);
    m_rows = rowsOf(*m_ui);
    prepareBoxes();
    needFocusForWheel(this);
    showConfiguration();
    const bool isNew = filePath.isEmpty();
    if (isNew)
        showTitle({});
    setMenuValid(isNew || readMenuFile());
    fitContent();
}

// Qt hides the editor while it is destroyed, which takes the focus from a box. What that box then reports
// must not reach an editor whose members are gone.
SvrxMenuFile::~SvrxMenuFile()
{
    for (const Row &row : m_rows) {
        row.temperature->disconnect(this);
        row.fanSpeed->disconnect(this);
    }
}

SvrxMenuFile::Rows SvrxMenuFile::rowsOf(const Ui::SvrxMenuFile &form)
{
    return {{{{form.lblLane1, form.numTemperature1, form.lblTemperatureUnit1, form.lblTemperatureNote1,
               form.numFanSpeed1, form.lblFanSpeedUnit1, form.lblFanSpeedNote1},
              {form.lblLane2, form.numTemperature2, form.lblTemperatureUnit2, form.lblTemperatureNote2,
               form.numFanSpeed2, form.lblFanSpeedUnit2, form.lblFanSpeedNote2},
              {form.lblLane3, form.numTemperature3, form.lblTemperatureUnit3, form.lblTemperatureNote3,
               form.numFanSpeed3, form.lblFanSpeedUnit3, form.lblFanSpeedNote3},
              {form.lblLane4, form.numTemperature4, form.lblTemperatureUnit4, form.lblTemperatureNote4,
               form.numFanSpeed4, form.lblFanSpeedUnit4, form.lblFanSpeedNote4}}}};
}

void SvrxMenuFile::prepareBoxes()
{
    const QScopedValueRollback loading(m_loading, true);
    for (int lane = 0; lane < lanes::maxLanes; ++lane) {
        const Row &row = m_rows[lane];
        row.fanSpeed->setRange(lanes::minFanSpeed, lanes::maxFanSpeed);
        for (QLabel *note : {row.temperatureNote, row.fanSpeedNote})
            keepRoomWhenHidden(note);
        takeWhatIsTyped(row.temperature, [this, lane](int value) { storeTemperature(lane, value); });
        takeWhatIsTyped(row.fanSpeed, [this, lane](int value) { storeFanSpeed(lane, value); });
    }
}

// A box that is left reports no change when what it shows was typed over itself, or when it took back what
// was typed.
void SvrxMenuFile::takeWhatIsTyped(QSpinBox *box, const std::function<void(int value)> &store)
{
    connect(box->findChild<QLineEdit *>(), &QLineEdit::textEdited, this, [this, box] { m_typedIn = box; });
    connect(box, &QSpinBox::editingFinished, this, [this, box, store] {
        if (m_typedIn != box)
            return;
        store(box->value());
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

SaveNameRequest SvrxMenuFile::nameRequest(SaveKind /*kind*/) const
{
    const QString start = filePath().isEmpty() ? QString(lanes::configurationPrefix) : filePath();
    return {tr("Save Savorix Menu"), start, tr("Savorix Menu Files (*.txt)")};
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
    noteRead(*text);
    showConfiguration();
    return true;
}

bool SvrxMenuFile::save()
{
    return !filePath().isEmpty() && writeOnlyConfiguration(filePath());
}

bool SvrxMenuFile::writeToFile(const QString &path)
{
    if (!checkName(path))
        return false;
    if (!writeConfigurationFile(path))
        return false;
    const QString production = lanes::productionPath(path);
    const bool saved = writeEolProdMenuFile(production);
    emit told(saved ? tr("Saved %1 and %2").arg(path, production) : savedAlone(path));
    return saved;
}

// Closing leaves the production file as it is: only a name that is chosen in the main window writes both.
bool SvrxMenuFile::writeOnClosing(const QString &path)
{
    return checkName(path) && writeOnlyConfiguration(path);
}

bool SvrxMenuFile::checkName(const QString &path)
{
    const bool loadable = lanes::isConfigurationName(path);
    if (!loadable)
        messages::fileFault(tr("File name must start with \"svrxconfig_\" to load in a Savorix unit!"));
    return loadable;
}

QByteArray SvrxMenuFile::contents() const
{
    return lanes::writeConfiguration(m_configuration);
}

QString SvrxMenuFile::savedAlone(const QString &path)
{
    return tr("Saved %1. The production file was not written.").arg(path);
}

bool SvrxMenuFile::writeOnlyConfiguration(const QString &path)
{
    const bool saved = writeConfigurationFile(path);
    if (saved)
        emit told(savedAlone(path));
    return saved;
}

bool SvrxMenuFile::writeConfigurationFile(const QString &path)
{
    if (path != filePath())
        setFilePath(path);
    const QByteArray text = contents();
    if (writeFile(path, text)) {
        noteSaved(text, {});
        return true;
    }
    noteChange();
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
    for (int lane = 0; lane < lanes::maxLanes; ++lane)
        m_rows[lane].fanSpeed->setValue(m_configuration.lanes[lane].fanSpeed);
}

// The boxes clamp to their limits; the stored values stay what they are until the user changes a box.
void SvrxMenuFile::updateTemperatureLimits()
{
    const QScopedValueRollback loading(m_loading, true);
    const int unit = temperatureUnit();
    const TemperatureRange range = lanes::temperatureRange(unit);
    for (int lane = 0; lane < lanes::maxLanes; ++lane) {
        QSpinBox *box = m_rows[lane].temperature;
        box->setRange(range.lowest, range.highest);
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

namespace {

// A screen reader reads the note with the box, and does not stop at one that says nothing.
void tellNote(QSpinBox *box, QLabel *note)
{
    note->setHidden(note->text().isEmpty());
    if (note->text() != box->accessibleDescription())
        box->setAccessibleDescription(note->text());
}

} // namespace

// Where a box cannot show the stored value, the row says what the file holds. Lanes that are not saved say
// nothing.
void SvrxMenuFile::showNotes()
{
    int number = 0;
    for (const Row &row : m_rows) {
        const bool used = number < m_configuration.laneCount;
        const lanes::Lane &stored = m_configuration.lanes[number++];
        const auto note = [used](const QSpinBox *box, int value) {
            return used && box->value() != value ? tr("file holds %1").arg(value) : QString();
        };
        row.temperatureNote->setText(
            note(row.temperature, shownTemperature(stored.temperature, temperatureUnit())));
        row.fanSpeedNote->setText(note(row.fanSpeed, stored.fanSpeed));
        tellNote(row.temperature, row.temperatureNote);
        tellNote(row.fanSpeed, row.fanSpeedNote);
    }
}

void SvrxMenuFile::on_comboModelSelect_currentIndexChanged(int index)
{
    if (m_loading)
        return;
    m_configuration.laneCount = index + 1;
    enableRows();
    showNotes();
    noteChange();
}

void SvrxMenuFile::on_rbTempUnitF_clicked()
{
    updateTemperatureLimits();
}

void SvrxMenuFile::on_rbTempUnitC_clicked()
{
    updateTemperatureLimits();
}

// A box also reports what it showed before, after Enter for example. That is no entry: the stored value may
// be another one that is shown alike, or lie beyond the limits. Only a limit that was typed replaces the
// latter.
bool SvrxMenuFile::isEntry(const QSpinBox *box, int value, int stored) const
{
    if (m_loading)
        return false;
    const bool isNew = value != qBound(box->minimum(), stored, box->maximum());
    return isNew || (value != stored && m_typedIn == box);
}

void SvrxMenuFile::storeFanSpeed(int lane, int value)
{
    int &stored = m_configuration.lanes[lane].fanSpeed;
    if (!isEntry(m_rows[lane].fanSpeed, value, stored))
        return;
    stored = value;
    showNotes();
    noteChange();
}

void SvrxMenuFile::storeTemperature(int lane, int value)
{
    int &stored = m_configuration.lanes[lane].temperature;
    const int unit = temperatureUnit();
    if (!isEntry(m_rows[lane].temperature, value, shownTemperature(stored, unit)))
        return;
    stored = storedTemperature(value, unit);
    showNotes();
    noteChange();
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
