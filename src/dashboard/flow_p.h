// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FLOW_P_H
#define FLOW_P_H

#include "zemanimatedarrows.h"

/** What the status panels share. */
namespace Flow {

/** The text of a power that is not known. */
inline QString unknownPower()
{
    return QStringLiteral("?");
}

/** Gives @p arrows the ZEMAnimatedArrows::Speed @p speed, and sets them going unless that is 0. */
inline void run(ZEMAnimatedArrows *arrows, int speed)
{
    arrows->setSpeed(ZEMAnimatedArrows::Speed(speed));
    if (speed != ZEMAnimatedArrows::Stopped && !arrows->getRunning()) {
        arrows->start();
    }
}

} // namespace Flow

#endif
