// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/album.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include "tests/support/require.h"

using namespace Qt::StringLiterals;

namespace {

QWidget *foremostWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    return QApplication::activeWindow();
}

QImage grabScreen()
{
    return QGuiApplication::primaryScreen()->grabWindow().toImage();
}

// The window manager draws frames when it likes and says nothing of it: the screen is at rest when one look
// after another is the same.
QImage grabScreenAtRest()
{
    constexpr int looksAlike = 5;
    QImage image;
    int alike = 0;
    const bool atRest = QTest::qWaitFor([&] {
        const QImage now = grabScreen();
        alike = now == image ? alike + 1 : 0;
        image = now;
        return alike >= looksAlike;
    });
    return atRest ? image : QImage();
}

// Of the whole screen, when the foremost window is ready.
QImage grabReadyScreen()
{
    REQUIRE(QTest::qWaitFor([] { return foremostWindow() != nullptr; }),
            u"No window became active: is there a window manager?"_s);
    QWidget *front = foremostWindow();
    REQUIRE(QTest::qWaitForWindowExposed(front));
    REQUIRE(front->windowType() == Qt::Popup || QTest::qWaitForWindowActive(front));
    const QImage image = grabScreenAtRest();
    REQUIRE(!image.isNull(), u"The screen does not come to rest"_s);
    return image;
}

} // namespace

Album::Album(const QString &folder)
    : m_folder(folder)
{
    m_folder.mkpath(u"."_s);
    const QStringList earlier =
        m_folder.entryList({u"[0-9]*-*.png"_s, u"menu*.json"_s, u"*.pdf"_s}, QDir::Files);
    for (const QString &name : earlier)
        m_folder.remove(name);
}

void Album::shot(const QString &name)
{
    const QImage image = grabReadyScreen();
    const QString path = filePath(u"%1-%2.png"_s.arg(++m_count, 2, 10, '0'_L1).arg(name));
    REQUIRE(image.save(path), path);
}

void Album::document(const QString &name, const QWidget &window)
{
    const QImage screen = grabReadyScreen();
    // The window manager tells of a frame some time after it has drawn it; one that draws none
    // tells nothing.
    (void)QTest::qWaitFor([&] { return !window.isWindow() || window.frameGeometry() != window.geometry(); },
                          1000);
    QRect frame = window.frameGeometry();
    if (!window.isWindow())
        frame.moveTopLeft(window.mapToGlobal(QPoint()));
    m_folder.mkpath(u"guide"_s);
    const QString path = filePath(u"guide/%1.png"_s.arg(name));
    REQUIRE(screen.copy(frame).save(path), path);
}

void Album::page(const QString &name, const QString &pdf)
{
    constexpr int dotsPerInch = 96;
    m_folder.mkpath(u"guide"_s);
    const QStringList arguments{u"-r"_s, QString::number(dotsPerInch), u"-singlefile"_s, u"-png"_s,
                                pdf,     filePath(u"guide/"_s + name)};
    REQUIRE_EQUAL(QProcess::execute(u"pdftoppm"_s, arguments), 0);
}
