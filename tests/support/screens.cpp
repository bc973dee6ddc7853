// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/screens.h"

#include <QApplication>
#include <QScreen>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace screens {

const QList<QSize> &laptops()
{
    static const QList<QSize> sizes{{910, 512}, {1093, 614}, {1366, 768}};
    return sizes;
}

QSize roomForWindow(const QScreen &screen)
{
    constexpr int title = 32;
    return screen.availableSize() - QSize(0, title);
}

namespace {

QByteArray description(const QSize &size)
{
    return u"{\"screens\": [{\"name\": \"screen\", \"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2, "
           "\"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}"_s.arg(size.width())
               .arg(size.height())
               .toUtf8();
}

} // namespace

int run(const QSize &size, int argc, char *argv[], const std::function<int()> &test)
{
    QTemporaryFile file;
    if (!file.open() || file.write(description(size)) < 0 || !file.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
    const QApplication application(argc, argv);
    return test();
}

} // namespace screens
