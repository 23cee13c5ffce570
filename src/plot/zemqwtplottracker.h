// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPLOTTRACKER_H
#define ZEMQWTPLOTTRACKER_H

#include "zemkit_export.h"
#include "zemqwtplotcurvepointgetter.h"

#include <qwt_plot_picker.h>

#include <memory>

class ZEMPlot;

/**
 * Follows the mouse over a ZEMPlot, with or without a button held, and tells a subclass which curve
 * point lies under it. Which point that is says ZEMQwtPlotCurvePointGetter::getCurvePoint().
 *
 * @code
 * #include <QLabel>
 * #include <ZEMPlot>
 * #include <ZEMQwtPlotTracker>
 *
 * class ValueTracker : public ZEMQwtPlotTracker
 * {
 * public:
 *     ValueTracker(ZEMPlot *plot, QLabel *label) : ZEMQwtPlotTracker(plot), bubble(label) { }
 *
 * protected:
 *     void curvePointValidChanged(bool valid) override { bubble->setVisible(valid); }
 *     void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point) override
 *     {
 *         bubble->setText(tr("%L1 W").arg(point.point.y()));
 *     }
 *
 * private:
 *     QLabel *bubble;
 * };
 * @endcode
 *
 * The tracker paints nothing itself, emits no moved(), and takes no keys. The canvas keeps mouse
 * tracking on.
 *
 * The two operations may delete the tracker, its plot and any curve. The slots of appended(QPointF)
 * may delete the tracker, but its plot only with deleteLater(): Qt goes on with a widget that the
 * mouse has come onto. Those of the other signals, as always with Qwt, delete both only so.
 */
class ZEM_EXPORT ZEMQwtPlotTracker : public QwtPlotPicker
{
    Q_OBJECT

public:
    /** @param plot not null; its canvas owns the tracker */
    explicit ZEMQwtPlotTracker(ZEMPlot *plot);
    ~ZEMQwtPlotTracker() override;

    /** As in QwtPicker. An event in which the canvas was deleted goes no further. */
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /**
     * The mouse has come onto a curve point, or has left all of them. Called when that changes, at
     * first when a point is found; not when the mouse leaves the canvas.
     */
    virtual void curvePointValidChanged(bool valid) = 0;

    /**
     * The point under the mouse, which is valid. Called at every move that finds one, also the same
     * again, and after curvePointValidChanged(), unless that has taken the curve off the plot.
     */
    virtual void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point) = 0;

    void move(const QPoint &pos) override;
    void widgetKeyPressEvent(QKeyEvent *event) override;
    void widgetKeyReleaseEvent(QKeyEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMQwtPlotTracker)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
