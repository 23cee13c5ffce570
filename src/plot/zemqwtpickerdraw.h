// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPICKERDRAW_H
#define ZEMQWTPICKERDRAW_H

#include "zemkit_export.h"

#include <QPoint>

#include <memory>

class QPainter;
class QwtPicker;

/**
 * Paints the rubber band of a ZEMPlotZoomer: the dragged rectangle, struck out while letting go
 * would take all zooming back. Derive from it to paint another one, and hand it to
 * ZEMPlotZoomer::setPickerDraw().
 *
 * The painter comes with the pen of the picker; see QwtPicker::setRubberBandPen().
 */
class ZEM_EXPORT ZEMQwtPickerDraw
{
public:
    /** Paints the selection of @p picker, which is not owned. Paints nothing once it is deleted. */
    explicit ZEMQwtPickerDraw(QwtPicker *picker);
    virtual ~ZEMQwtPickerDraw();

    /**
     * Has the picker paint its tracker text, if that is enabled. Only for a picker that does not
     * ask this object in turn: a ZEMPlotZoomer with a user rubber band does.
     */
    virtual void drawTracker(QPainter *painter) const;

    /** Paints the selection of the picker in pixels of the canvas; only if it has two points. */
    virtual void drawRubberBand(QPainter *painter) const;

    /** Whether drawTracker() paints. Default: false; a subclass sets trackerText. */
    bool trackerTextEnabled() const;

protected:
    /** Whether a drag is one that zooms: any but to the upper left, both strictly. In pixels. */
    virtual bool isZoomQuadrant(QPoint start, QPoint end) const;

    /** The picker that was given; null once it is deleted. */
    QwtPicker *picker() const;

    bool trackerText = false;

private:
    Q_DISABLE_COPY(ZEMQwtPickerDraw)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
