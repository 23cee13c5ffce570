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
 * auto *marker = new ZEMQwtPlotMarker;
 * marker->setLineStyle(QwtPlotMarker::Cross);
 * marker->setValue(found.point);
 * plot->addMarker(marker);
 * @endcode
 *
 * The texts have the pen of the lines and the font of the plot; QwtPlotMarker::label() is not
 * shown.
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
