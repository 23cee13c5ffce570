// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPLOTZOOMERADVANCED_H
#define ZEMPLOTZOOMERADVANCED_H

#include "zemkit_export.h"
#include "zemplotzoomer.h"

#include <memory>

/**
 * A ZEMPlotZoomer in which a drag that stays close to one axis zooms that axis alone: the rubber
 * band then covers the whole height or width of the canvas. ZEMPlot has one.
 *
 * A drag is along an axis if it strays from it by less than the margin, and by less than it runs.
 * A drag to the upper left, which takes all zooming back, never is.
 */
class ZEM_EXPORT ZEMPlotZoomerAdvanced : public ZEMPlotZoomer
{
public:
    /** As ZEMPlotZoomer, with a margin as in setMargin(). */
    explicit ZEMPlotZoomerAdvanced(int margin, QwtPlotCanvas *canvas, bool doReplot);
    /** With a margin of 50 pixels. */
    explicit ZEMPlotZoomerAdvanced(QwtPlotCanvas *canvas, bool doReplot);
    ~ZEMPlotZoomerAdvanced() override;

    /**
     * How many pixels a drag may stray from an axis; it must stray by less. With 0 or less every
     * drag is free. Holds from the next move on; does not repaint.
     */
    void setMargin(int margin);

protected:
    /** The two points of the drag, or the corners of the band along an axis. */
    QPolygon adjustedPoints(const QPolygon &points) const override;

private:
    Q_DISABLE_COPY(ZEMPlotZoomerAdvanced)

    void init();

    class Private;
    std::unique_ptr<Private> d;
};

#endif
