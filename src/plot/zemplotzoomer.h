// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPLOTZOOMER_H
#define ZEMPLOTZOOMER_H

#include "zemkit_export.h"

#include <qwt_plot_zoomer.h>

#include <memory>

class QwtPlotCanvas;
class ZEMQwtPickerDraw;

/**
 * A zoomer for one finger: a drag to the upper left takes all zooming back, a drag in any other
 * direction zooms to the dragged rectangle. Neither other mouse buttons nor keys zoom.
 *
 * The zoom stack, zoomed(), the least size of a view and the depth are those of QwtPlotZoomer. At
 * that size or depth a drag begins all the same, and only one to the upper left does something.
 * With a depth of 0, which turns zooming off, none begins.
 *
 * A selection may be one pixel wide as long as it is longer in the other direction; one without any
 * extent does nothing. So a finger that trembles zooms far: in a ZEMPlotZoomerAdvanced a drag of
 * one pixel to the right or downward goes to the least size at once, by default a 100,000th of the
 * base; see ZEMPlotTouchGuard. The rubber band is painted by a ZEMQwtPickerDraw.
 *
 * The slots of zoomed(), selected(QRectF) and moved(QPointF) may delete the zoomer and its plot;
 * those of the other signals, as always with Qwt, only with deleteLater().
 */
class ZEM_EXPORT ZEMPlotZoomer : public QwtPlotZoomer
{
    Q_OBJECT

public:
    /**
     * Zooms the bottom and the left axis of the plot of @p canvas, which owns the zoomer. What the
     * plot shows now becomes the zoom base.
     *
     * @param doReplot replots first, so that autoscaled axes are up to date
     */
    explicit ZEMPlotZoomer(QwtPlotCanvas *canvas, bool doReplot);
    ~ZEMPlotZoomer() override;

    /** As in QwtPicker. An event in which the canvas was deleted goes no further. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /**
     * Sets who paints the rubber band. The zoomer never deletes what it is given, neither now nor
     * later: @p draw must live until another one is set or the zoomer is gone. Null is refused with
     * a debug message. Does not repaint.
     */
    void setPickerDraw(ZEMQwtPickerDraw *draw);

    /** Asks the picker draw if rubberBand() is a user one, as it is by default. */
    void drawRubberBand(QPainter *painter) const override;
    void drawTracker(QPainter *painter) const override;

public Q_SLOTS:
    /** As in QwtPlotZoomer; every zoom by a drag comes through one of them. */
    void zoom(const QRectF &rect) override;
    void zoom(int up) override;

protected:
    /** Begins a drag also where zooming has come to its limit. */
    void begin() override;

    /**
     * Zooms to the selection, or back to the base; from the limit at which the drag began, only
     * back. Returns whether it did.
     */
    bool end(bool ok = true) override;

    /** Whether the selection has an extent; leaves the points as they are. */
    bool accept(QPolygon &points) const override;

    void widgetMouseReleaseEvent(QMouseEvent *event) override;
    void widgetKeyPressEvent(QKeyEvent *event) override;
    void widgetKeyReleaseEvent(QKeyEvent *event) override;

    /** Whether a drag is one that zooms: any but to the upper left, both strictly. In pixels. */
    virtual bool isZoomQuadrant(QPoint start, QPoint end) const;

private:
    Q_DISABLE_COPY(ZEMPlotZoomer)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
