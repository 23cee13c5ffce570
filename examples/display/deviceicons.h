// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DEVICEICONS_H
#define DEVICEICONS_H

#include "energysource.h"

#include <QPixmap>

/** The host's own pictures, white lines of 26 by 26 pixels that go with those of the library. */
namespace DeviceIcons {

QPixmap picture(Device device);
QPixmap solar();

} // namespace DeviceIcons

#endif
