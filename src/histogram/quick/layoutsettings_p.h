// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LAYOUTSETTINGS_P_H
#define LAYOUTSETTINGS_P_H

#include <array>

class QwtPlot;

/** Margins, alignments and spacing of a plot's layout, which tells nobody when they are changed. */
using LayoutSettings = std::array<int, 9>;

LayoutSettings layoutSettingsOf(const QwtPlot *plot);

#endif
