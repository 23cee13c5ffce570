// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPLOTMARKER_H
#define ZEMQWTPLOTMARKER_H

#include "zemkit_export.h"

#include <qwt_plot_marker.h>

#include <memory>

/**
 * A marker that writes its own coordinates at the edges of the canvas: the y value at the left
 * edge, just below the marker's level, the x value at the bottom edge, just right of the marker.
 *
 * @code
 * #include <ZEMQwtPlotMarker>
 * #include <qwt_plot.h>
 *
 * QwtPlot plot;
 * auto *marker = new ZEMQwtPlotMarker;
 * marker->setLineStyle(QwtPlotMarker::Cross);
 * marker->setLinePen(Qt::red);
 * marker->setValue(12.0, 850.0);
 * marker->attach(&plot); // or ZEMPlot::addMarker()
 * @endcode
 *
 * With a line style the texts have the pen of the lines. Without one they have that of the canvas,
 * and in any case its font: black and the font of the application while the canvas has its backing
 * store, as by default; else its QPalette::WindowText and its own font. QwtPlotMarker::label() is
 * not shown.
 */
class ZEM_EXPORT ZEMQwtPlotMarker : public QwtPlotMarker
{
public:
    ZEMQwtPlotMarker();
    ~ZEMQwtPlotMarker() override;

    /**
     * Digits behind the point of the x text, 0 or more. Default: 0, with which the value is not
     * rounded but cut towards 0. Does not repaint.
     */
    void setDecimalPlacesForX(int places);

    /** Digits behind the point of the y text, 0 or more. Default: 2. Does not repaint. */
    void setDecimalPlacesForY(int places);

protected:
    /** Leaves the painter translated. @p pos is the marker's place in pixels of the canvas. */
    void drawLabel(QPainter *painter, const QRectF &canvasRect, const QPointF &pos) const override;

private:
    Q_DISABLE_COPY(ZEMQwtPlotMarker)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
