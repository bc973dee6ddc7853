// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What switching the day part of a full cabinet costs, from the selector's change to the painted grid. With
// the argument "plain" the same of a selector and as many plain buttons, whose texts change with it. Runs the
// switches in measured() and prints their number and the milliseconds of the median one.

#include <algorithm>
#include <cstdio>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

#include "benchmarks/bigmenu.h"
#include "benchmarks/measured.h"
#include "benchmarks/painted.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 5; // of a KTR54
constexpr int binsPerRow = 4;
constexpr int switches = 101;
constexpr auto lastBin = "btnDaypartSelect4_3"_L1;

QString nameInBin(const holding::Menu &menu, int daypart, int row, int slot)
{
    const auto &bins = menu.dayparts[static_cast<std::size_t>(daypart)].bins;
    const int id = bins[static_cast<std::size_t>(row)][static_cast<std::size_t>(slot)];
    return shownName(menu.entry(id)->get_productName());
}

std::unique_ptr<QWidget> makePlainWindow(const holding::Menu &menu)
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(window.get());
    auto *selector = new QComboBox;
    selector->setObjectName(u"comboDaypartSelect"_s);
    layout->addWidget(selector, 0, 0, 1, binsPerRow);
    for (int daypart = 0; daypart < menu.daypartCount; ++daypart)
        selector->addItem(shownName(menu.dayparts[static_cast<std::size_t>(daypart)].names));
    QList<QPushButton *> buttons;
    for (int place = 0; place < rows * binsPerRow; ++place) {
        buttons.append(new QPushButton(nameInBin(menu, 0, place / binsPerRow, place % binsPerRow)));
        layout->addWidget(buttons.constLast(), 1 + place / binsPerRow, place % binsPerRow);
    }
    buttons.constLast()->setObjectName(lastBin);
    QObject::connect(selector, &QComboBox::currentIndexChanged, window.get(), [&menu, buttons](int index) {
        for (int place = 0; place < rows * binsPerRow; ++place)
            buttons[place]->setText(nameInBin(menu, index, place / binsPerRow, place % binsPerRow));
    });
    return window;
}

std::unique_ptr<QWidget> openEditor(const QString &path)
{
    auto editor = std::make_unique<MenuFile>(path);
    editor->findChild<QTabWidget *>(u"tabWidget"_s)->setCurrentIndex(2);
    return editor;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"menu.json"_s);
    const holding::Menu menu = bigMenu();
    if (!writeFile(path, holding::writeMenu(menu))) {
        std::fprintf(stderr, "switch_daypart: the large menu cannot be written\n");
        return EXIT_FAILURE;
    }
    const bool plain = QCoreApplication::arguments().contains(u"plain"_s);
    const std::unique_ptr<QWidget> window = plain ? makePlainWindow(menu) : openEditor(path);
    PaintWatch watch;
    window->show();
    watch.waitUntilPainted(window.get());
    const auto *last = window->findChild<QPushButton *>(lastBin);
    auto *selector = window->findChild<QComboBox *>(u"comboDaypartSelect"_s);
    std::vector<double> times;
    for (int i = 0; i < switches; ++i) {
        QElapsedTimer timer;
        timer.start();
        measured([&] {
            selector->setCurrentIndex(1 + i % 2);
            watch.waitUntilPainted(last);
        });
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + switches / 2, times.end());
    std::printf("%d %.2f\n", switches, times[switches / 2]);
    return EXIT_SUCCESS;
}
