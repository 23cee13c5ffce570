// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOLDTIMER_H
#define HOLDTIMER_H

#include "zemtest.h"

#include <QTest>
#include <QTimer>

/** Lets the time of a hold, which does not pass by itself, pass at once. False if none is timed. */
inline bool letHoldPass(QTimer *timer)
{
    if (!timer->isActive()) {
        return false;
    }
    const int interval = timer->interval();
    timer->setInterval(1);
    const bool ranOut = QTest::qWaitFor([timer] { return !timer->isActive(); }, ZemTest::hangs);
    timer->setInterval(interval);
    return ranOut;
}

#endif
