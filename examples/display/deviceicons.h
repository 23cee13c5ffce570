// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DEVICEICONS_H
#define DEVICEICONS_H

#include "energysource.h"

#include <QPixmap>

/** Pictures of what takes and gives power, 26 by 26 pixels. */
namespace DeviceIcons {

QPixmap picture(Device device);
QPixmap solar();

} // namespace DeviceIcons

#endif
