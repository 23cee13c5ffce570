// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STILLNESS_H
#define STILLNESS_H

class QWidget;

/**
 * Stops what moves in @p sample at one and the same moment, so that a picture is like the one
 * before it.
 */
void holdStill(const QWidget *sample);

#endif
