// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1SOURCETEST_H
#define P1SOURCETEST_H

#include "p1samples.h"
#include "zemtest.h"

#include <QSignalSpy>
#include <QStringList>

/** What the tests of the source of telegrams share. */
namespace P1SourceTest {

const qint64 noon = utc("2024-06-01T10:00:00");

/** Telegrams of one second after the other from noon on, of 500 W and one more each. */
inline QByteArray someTelegrams(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        bytes += telegramAt(noon + i, 100.0 + i, 500 + i);
    }
    return bytes;
}

/** The texts that the first argument of a signal told. */
inline QStringList linesOf(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy) {
        lines.append(arguments.constFirst().toString());
    }
    return lines;
}

/** The telegram that a signal told. */
inline P1Telegram telegramOf(const QSignalSpy &spy, int index)
{
    return spy.at(index).constFirst().value<P1Telegram>();
}

} // namespace P1SourceTest

#endif
