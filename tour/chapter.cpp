// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/chapter.h"

#include <QFile>
#include <QMdiArea>
#include <QRegularExpression>

#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QString fileNameFor(const QString &title)
{
    static const QRegularExpression others(u"[^a-z0-9]+"_s);
    return title.toLower().replace(others, u" "_s).trimmed().replace(u' ', u'-');
}

} // namespace

Chapter::Chapter(MainWindow &window, Album &album)
    : m_window(window)
    , m_album(album)
{}

Chapter::Answers::Answers(Chapter &chapter)
{
    onShown([&chapter](const QDialog &dialog) { chapter.shot(fileNameFor(dialog.windowTitle())); });
}

void Chapter::init()
{
    QVERIFY2(!m_failed, "not done, as a step before it failed");
    failOnWarnings();
}

void Chapter::cleanup()
{
    if (!QTest::currentTestFailed() || m_failed)
        return;
    m_failed = true;
    shot(u"failure"_s);
}

QMdiSubWindow *Chapter::activeSubWindow() const
{
    return ui::get<QMdiArea>(m_window, "mdiArea").activeSubWindow();
}

QByteArray Chapter::contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(u"Cannot read "_s + path), __FILE__, __LINE__);
    return file.readAll();
}
