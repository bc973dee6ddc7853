// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

#include "lanes/svrxmenufile.h"
#include "tests/support/lanefile.h"
#include "tests/support/require.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"

/// The number boxes of a lane, counted from 1.
inline QSpinBox &temperatureBox(const QWidget &editor, int lane)
{
    return ui::get<QSpinBox>(editor, qPrintable(QStringLiteral("numTemperature%1").arg(lane)));
}
inline QSpinBox &fanSpeedBox(const QWidget &editor, int lane)
{
    return ui::get<QSpinBox>(editor, qPrintable(QStringLiteral("numFanSpeed%1").arg(lane)));
}

/// The text of a label of a lane.
inline QString textOf(const QWidget &editor, const char *label, int lane)
{
    return ui::get<QLabel>(editor, qPrintable(QLatin1StringView(label) + QString::number(lane))).text();
}

/// An editor by itself, of a new configuration or of a file.
class OpenLaneEditor
{
public:
    OpenLaneEditor() { ui::show(m_editor); }
    explicit OpenLaneEditor(const QByteArray &contents)
        : m_editor((m_folder.make(QStringLiteral("a.txt"), lanefile::text(contents)),
                    m_folder.path(QStringLiteral("a.txt"))))
    {
        ui::show(m_editor);
    }

    [[nodiscard]] SvrxMenuFile &operator*() { return m_editor; }
    /// Lets another program write the file, and reads it again.
    void readAgain(const QByteArray &contents)
    {
        m_folder.make(QStringLiteral("a.txt"), lanefile::text(contents));
        REQUIRE(m_editor.readMenuFile());
    }
    [[nodiscard]] QSpinBox &temperature(int lane) { return temperatureBox(m_editor, lane); }
    [[nodiscard]] QSpinBox &fanSpeed(int lane) { return fanSpeedBox(m_editor, lane); }
    void chooseUnit(const char *button) { ui::click(m_editor, button); }
    void chooseLanes(const QString &text) { ui::choose(m_editor, "comboModelSelect", text); }
    [[nodiscard]] QString temperatureNote(int lane) { return textOf(m_editor, "lblTemperatureNote", lane); }
    [[nodiscard]] QString fanSpeedNote(int lane) { return textOf(m_editor, "lblFanSpeedNote", lane); }

    /// The contents line that a save writes now.
    [[nodiscard]] QByteArray saved()
    {
        const QString name = QStringLiteral("svrxconfig_saved.txt");
        if (!m_editor.writeToFile(m_folder.path(name)))
            return "not written";
        return m_folder.content(name).split('\n').value(2);
    }

private:
    TestFolder m_folder;
    SvrxMenuFile m_editor{QString()};
};
