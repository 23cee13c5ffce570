// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BUSYNOTICE_H
#define BUSYNOTICE_H

#include "pagelook.h"

#include <QString>
#include <functional>

/**
 * Does @p job in a thread of its own and returns when it is done. Until then the display shows
 * @p text and a spinner, in a window of its own of that size. The job must not touch widgets.
 */
void doWithNotice(const QString &text, const std::function<void()> &job,
                  const QSize &size = PageLook::pageSize);

#endif
