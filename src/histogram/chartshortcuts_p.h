// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTSHORTCUTS_P_H
#define CHARTSHORTCUTS_P_H

#include "zemkit_export.h"

/**
 * Whether the charts may take the quick ways of measuring, laying out and painting. They show the
 * same pixels without them; tests compare the two.
 */
namespace ChartShortcuts {

ZEM_EXPORT bool areEnabled();
/** Default: true. For all charts, from their next replot or paint on. */
ZEM_EXPORT void setEnabled(bool enabled);

} // namespace ChartShortcuts

#endif
