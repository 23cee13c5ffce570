// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPICKERDRAWADVANCED_H
#define ZEMQWTPICKERDRAWADVANCED_H

#include "zemkit_export.h"
#include "zemqwtpickerdraw.h"

#include <QPoint>

#include <memory>

/**
 * Paints the rubber band of a ZEMPlotZoomerAdvanced, with two ticks at the moving edge of a band
 * that runs along one axis. They mark the corridor around the start of the drag: when the finger
 * leaves it, the band becomes a free rectangle.
 *
 * The zoomer makes one for itself and tells it direction and origin during a drag.
 */
class ZEM_EXPORT ZEMQwtPickerDrawAdvanced : public ZEMQwtPickerDraw
{
public:
    /** As setMargin() and ZEMQwtPickerDraw. The direction is 0 and the origin (0, 0). */
    explicit ZEMQwtPickerDrawAdvanced(int margin, QwtPicker *picker);
    ~ZEMQwtPickerDrawAdvanced() override;

    /** Half the distance between the two ticks in pixels. Does not repaint. */
    void setMargin(int margin);

    /** Where the drag began, in pixels of the canvas. Does not repaint. */
    void setOrigin(const QPoint &origin);

    /**
     * 0 for a band over the whole width of the canvas, which zooms y only, 1 for one over the whole
     * height, which zooms x only, any other number for a free rectangle, which has no ticks. Does
     * not repaint.
     */
    void setDirection(int direction);

    void drawRubberBand(QPainter *painter) const override;

private:
    Q_DISABLE_COPY(ZEMQwtPickerDrawAdvanced)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
