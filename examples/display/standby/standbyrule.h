// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STANDBYRULE_H
#define STANDBYRULE_H

#include <QTime>

/** When the screen goes dark by itself. */
struct StandbyRule
{
    int after = 0; ///< minutes without a touch; 0 for never
    /** Between these two it is dark unless it was just touched; never if they are the same. */
    QTime nightFrom;
    QTime nightTo;

    bool isNight(const QTime &now) const;
};

/** What a display without a touch does. */
enum class Rest { Nothing, StartPage, Standby };

/** Minutes without a touch after which the start page comes back. */
constexpr int startPageAfter = 2;
/** Minutes for which a touch keeps the display awake at night. */
constexpr int awakeAtNight = 1;

/** What to do after @p idle whole minutes without a touch. */
Rest restAfter(int idle, const StandbyRule &rule, const QTime &now);

#endif
