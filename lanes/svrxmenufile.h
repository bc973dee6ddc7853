// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>

#include "lanes/laneconfiguration.h"
#include "widgets/menueditor.h"

class QLabel;
class QSpinBox;

namespace Ui {
class SvrxMenuFile;
}

/// The editor of one lane cabinet's configuration.
class SvrxMenuFile final : public MenuEditor
{
    Q_OBJECT

public:
    /// An empty path makes a new configuration with the default values.
    explicit SvrxMenuFile(const QString &filePath, QWidget *parent = nullptr);
    ~SvrxMenuFile() override;

    /// Writes the configuration to the current path; the production file stays as it is.
    bool save() override;
    /// Writes the configuration to a name that a cabinet loads, and the production file beside it. Any other
    /// name is refused and nothing is written.
    bool writeToFile(const QString &path) override;
    [[nodiscard]] SaveNameRequest nameRequest(SaveKind kind) const override;

public slots:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;
    bool readMenuFile();
    bool writeEolProdMenuFile(const QString &prodMenuFileName);
    void updateTemperatureLimits();
    void on_comboModelSelect_currentIndexChanged(int index);
    void on_rbTempUnitF_clicked();
    void on_rbTempUnitC_clicked();
    void on_numFanSpeed1_valueChanged(int arg1);
    void on_numFanSpeed2_valueChanged(int arg1);
    void on_numFanSpeed3_valueChanged(int arg1);
    void on_numFanSpeed4_valueChanged(int arg1);
    void on_numTemperature1_valueChanged(int arg1);
    void on_numTemperature2_valueChanged(int arg1);
    void on_numTemperature3_valueChanged(int arg1);
    void on_numTemperature4_valueChanged(int arg1);

protected:
    bool writeOnClosing(const QString &path) override;

private:
    /// The widgets of a lane; the form owns them.
    struct Row
    {
        QLabel *lane;
        QSpinBox *temperature;
        QLabel *temperatureUnit;
        QLabel *temperatureNote;
        QSpinBox *fanSpeed;
        QLabel *fanSpeedUnit;
        QLabel *fanSpeedNote;
    };

    /// In the form the widgets of a lane have its number, from 1, at the end of their names.
    [[nodiscard]] Row rowOf(int number) const;

    void takeWhatIsTyped(QSpinBox *box);
    void createMenu();
    [[nodiscard]] int temperatureUnit() const;
    void showConfiguration();
    void showFanSpeeds();
    void enableRows();
    void showNotes();
    /// Whether a box reports an entry of the user's; `stored` is in the box's unit.
    [[nodiscard]] bool isEntry(const QSpinBox *box, int value, int stored) const;
    void storeFanSpeed(std::size_t lane, int value);
    void storeTemperature(std::size_t lane, int value);
    bool writeConfigurationFile(const QString &path);
    [[nodiscard]] bool checkName(const QString &path);

    std::unique_ptr<Ui::SvrxMenuFile> m_ui;
    std::array<Row, lanes::maxLanes> m_rows{};
    lanes::Configuration m_configuration;
    QSpinBox *m_typedIn = nullptr; ///< typed into since its last editing was finished
    bool m_loading = false;        ///< the boxes are being filled: what they report is no entry of the user's
};
