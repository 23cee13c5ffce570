// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "layoutsettings_p.h"

#include <qwt_plot.h>
#include <qwt_plot_layout.h>

LayoutSettings layoutSettingsOf(const QwtPlot *plot)
{
    const QwtPlotLayout *layout = plot->plotLayout();
    LayoutSettings settings;
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        settings[axis] = layout->canvasMargin(axis);
        settings[QwtPlot::axisCnt + axis] = layout->alignCanvasToScale(axis);
    }
    settings.back() = layout->spacing();
    return settings;
}
