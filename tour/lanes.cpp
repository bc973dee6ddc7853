// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/lanes.h"

#include <QSpinBox>

#include "lanes/svrxmenufile.h"
#include "tests/support/uidriver.h"

using namespace Qt::StringLiterals;

namespace {

const QString saveCaption = u"Save Savorix Menu"_s;
const QString filter = u"Savorix Menu Files (*.txt)"_s;

} // namespace

void LanesChapter::createConfiguration()
{
    Answers answers(*this);
    expectProductLine(answers, u"Savorix"_s);
    ui::clickMenu(window(), "menuFile", "actionNew");
    QVERIFY(activeEditor<SvrxMenuFile>());
    shot(u"lanes-new"_s);
}

void LanesChapter::changeLanes()
{
    auto &editor = *activeEditor<SvrxMenuFile>();
    ui::choose(editor, "comboModelSelect", u"Triple Lane"_s);
    ui::type(editor, "numTemperature3", u"350"_s);
    ui::type(editor, "numFanSpeed3", u"2400"_s);
    shot(u"lanes-three"_s);
    ui::click(editor, "rbTempUnitC");
    QCOMPARE(ui::get<QSpinBox>(editor, "numTemperature3").value(), 177);
    shot(u"lanes-celsius"_s);
}

void LanesChapter::saveAndReopen()
{
    const QString path = filePath(u"svrxconfig_tour.txt"_s);
    saveFileAs(saveCaption, filter, path);
    QCOMPARE(contents(filePath(u"svrxprod_tour.txt"_s)).size(), 46);
    closeEditor(QMessageBox::No);
    openFile(path);
    shot(u"lanes-reopened"_s);
    const QString copy = filePath(u"svrxconfig_copy.txt"_s);
    saveFileAs(saveCaption, filter, copy);
    QCOMPARE(contents(copy), contents(path));
    closeEditor(QMessageBox::No);
}
