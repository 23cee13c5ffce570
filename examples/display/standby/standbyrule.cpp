// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "standbyrule.h"

bool StandbyRule::isNight(const QTime &now) const
{
    if (nightFrom <= nightTo) {
        return nightFrom <= now && now < nightTo;
    }
    return now >= nightFrom || now < nightTo;
}

Rest restAfter(int idle, const StandbyRule &rule, const QTime &now)
{
    if ((rule.after > 0 && idle >= rule.after) || (idle >= awakeAtNight && rule.isNight(now))) {
        return Rest::Standby;
    }
    return idle >= startPageAfter ? Rest::StartPage : Rest::Nothing;
}
