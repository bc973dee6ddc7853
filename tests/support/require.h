// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

#include <QString>
#include <QTest>

/// What helpers check with. QVERIFY and QCOMPARE only leave the function that they stand in, so that after a
/// failed check in a helper its caller would go on with whatever was left behind. These end the test program,
/// with a failure of the running test, also from within the event loop of a modal dialog.
///
/// REQUIRE(condition) and REQUIRE(condition, text): the text is told with a failure.
#define REQUIRE(condition, ...)                                                                              \
    (static_cast<bool>(condition)                                                                            \
         ? static_cast<void>(0)                                                                              \
         : require::fail(require::unmet(#condition __VA_OPT__(, ) __VA_ARGS__), {__FILE__, __LINE__}))
#define REQUIRE_EQUAL(actual, expected)                                                                      \
    require::equal((actual), (expected), #actual, #expected, {__FILE__, __LINE__})
/// Waits for the condition, with the event loop running, for five seconds at the most.
#define REQUIRE_SOON(condition)                                                                              \
    REQUIRE(QTest::qWaitFor([&] { return static_cast<bool>(condition); }), QStringLiteral(#condition))

namespace require {

struct Place
{
    const char *file;
    int line;
};

/// Ends the test program with this message.
[[noreturn]] void fail(const QString &message, const Place &place);
/// Called before the program ends, for a last picture.
void atTheEnd(std::function<void()> act);

[[nodiscard]] inline QString unmet(const char *condition, const QString &text = {})
{
    return QLatin1StringView(condition) + (text.isEmpty() ? QString() : QStringLiteral(": ") + text);
}

/// A value as QCOMPARE shows it.
template <typename Value>
[[nodiscard]] QString shown(const Value &value)
{
    const std::unique_ptr<char[]> text(QTest::toString(value));
    return text ? QString::fromUtf8(text.get()) : QStringLiteral("(no text for it)");
}
[[nodiscard]] inline QString shown(const QStringList &value)
{
    return QStringLiteral("[%1]").arg(value.join(QStringLiteral("; ")));
}

template <typename Actual, typename Expected>
void equal(const Actual &actual, const Expected &expected, const char *what, const char *which,
           const Place &place)
{
    if (!(actual == expected))
        fail(QStringLiteral("%1 is %2, not %3: %4")
                 .arg(QLatin1StringView(what), shown(actual), QLatin1StringView(which), shown(expected)),
             place);
}

} // namespace require
