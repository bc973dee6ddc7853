// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
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
    /// Writes the configuration to a name that a cabinet loads, and the production file beside it. For any
    /// other name an error is shown and nothing is written.
    bool writeToFile(const QString &path) override;
    /// The same for every kind; a new configuration proposes the beginning of a name that a cabinet loads.
    [[nodiscard]] SaveNameRequest nameRequest(SaveKind kind) const override;

public slots:
    // Inherited, and declared again because this class lists them among its own slots.
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
    [[nodiscard]] QByteArray contents() const override;
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
    using Rows = FixedList<Row, lanes::maxLanes>;

    [[nodiscard]] static Rows rowsOf(const Ui::SvrxMenuFile &form);
    void prepareBoxes();
    void takeWhatIsTyped(QSpinBox *box, const std::function<void(int value)> &store);
    [[nodiscard]] int temperatureUnit() const;
    void showConfiguration();
    void showFanSpeeds();
    void enableRows();
    void showNotes();
    /// Whether a box reports an entry of the user's; `stored` is in the box's unit.
    [[nodiscard]] bool isEntry(const QSpinBox *box, int value, int stored) const;
    void storeFanSpeed(int lane, int value);
    void storeTemperature(int lane, int value);
    [[nodiscard]] static QString savedAlone(const QString &path);
    bool writeOnlyConfiguration(const QString &path);
    /// Tells nothing yet: what to tell depends on the production file.
    bool writeConfigurationFile(const QString &path);
    [[nodiscard]] bool checkName(const QString &path);

    std::unique_ptr<Ui::SvrxMenuFile> m_ui;
    Rows m_rows;
    lanes::Configuration m_configuration;
    QSpinBox *m_typedIn = nullptr; ///< typed into since its last editing was finished
    bool m_loading = false;        ///< the boxes are being filled: what they report is no entry of the user's
};
