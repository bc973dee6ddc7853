// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/lanechecks.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

#include "lanes/laneconfiguration.h"
#include "lanes/svrxmenufile.h"
#include "tests/support/uidriver.h"
#include "tests/walk/menufiles.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

QSpinBox &box(const SvrxMenuFile &editor, const char *name, int lane)
{
    return ui::get<QSpinBox>(editor, QByteArray(name).append(QByteArray::number(lane + 1)).constData());
}

int laneCount(const SvrxMenuFile &editor)
{
    return ui::get<QComboBox>(editor, "comboModelSelect").currentIndex() + 1;
}

// A box that is being typed into shows what is not yet entered.
bool shows(const QSpinBox &box, int value)
{
    return box.hasFocus() || box.value() == qBound(box.minimum(), value, box.maximum());
}

void checkLanes(const SvrxMenuFile &editor, const lanes::Configuration &read, const Journal &journal)
{
    const int unit = ui::get<QRadioButton>(editor, "rbTempUnitC").isChecked() ? unitCelsius : unitFahrenheit;
    for (int lane = 0; lane < read.laneCount; ++lane) {
        const lanes::Lane &stored = read.lanes[lane];
        journal.check(shows(box(editor, "numTemperature", lane), shownTemperature(stored.temperature, unit)),
                      u"The file has another temperature in lane %1"_s.arg(lane + 1));
        journal.check(shows(box(editor, "numFanSpeed", lane), stored.fanSpeed),
                      u"The file has another fan speed in lane %1"_s.arg(lane + 1));
    }
}

} // namespace

EntryIds entryIdsOf(SvrxMenuFile & /*editor*/)
{
    return {};
}

void checkShown(SvrxMenuFile &editor, const Journal &journal)
{
    const int lanes = laneCount(editor);
    journal.check(lanes >= 1 && lanes <= lanes::maxLanes, u"There are %1 lanes"_s.arg(lanes));
    for (int lane = 0; lane < lanes::maxLanes; ++lane) {
        for (const char *name : {"numTemperature", "numFanSpeed"})
            journal.check(box(editor, name, lane).isEnabled() == (lane < lanes),
                          u"Lane %1 has the wrong state"_s.arg(lane + 1));
    }
}

void checkFile(SvrxMenuFile &editor, const Journal &journal)
{
    const QByteArray bytes = bytesOf(editor.filePath());
    lanes::Configuration read;
    const QString error = lanes::readConfiguration(bytes, read);
    journal.check(error.isEmpty(), u"A saved configuration cannot be read: "_s + error);
    journal.check(lanes::writeConfiguration(read) == bytes, u"A configuration saves again to other bytes"_s);
    journal.check(read.laneCount == laneCount(editor), u"The file has another number of lanes"_s);
    checkLanes(editor, read, journal);
}

} // namespace walk
