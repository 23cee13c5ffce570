// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTOGRAMLAYOUT_P_H
#define HISTOGRAMLAYOUT_P_H

class QwtLegend;
class QwtPlot;

/** What the layouts of the charts share. */
namespace HistogramLayout {

/** Room for two rows of legend items, in pixels. */
constexpr int legendHeight = 71;

/**
 * Lets the canvas of @p plot reach to its axes on all sides but the right one, where a margin of
 * @p right pixels stays free of bars.
 */
void setCanvasMargins(QwtPlot *plot, int right);

/** Lets the items of @p legend start at its upper left, 12 pixels apart. */
void arrangeLegend(QwtLegend *legend);

} // namespace HistogramLayout

#endif
