// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PLOTSIZEHINTS_P_H
#define PLOTSIZEHINTS_P_H

#include <QSize>

#include <optional>

class QwtPlot;

/**
 * The size hints of a plot as Qwt gives them, from the remembered sizes of its labels. A layout
 * asks for them several times in a row, and each time Qwt measures all labels of all scales.
 *
 * Nothing is answered for other plots than one with a scale of the library's own at its left and
 * at its bottom, without titles and without a legend.
 */
namespace PlotSizeHints {

std::optional<QSize> minimum(const QwtPlot &plot);
std::optional<QSize> preferred(const QwtPlot &plot);

} // namespace PlotSizeHints

#endif
