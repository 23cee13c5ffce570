// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPLOT_H
#define ZEMPLOT_H

#include "zemkit_export.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QPixmap>
#include <QString>

#include <qwt_plot.h>

#include <memory>

class QwtPlotCurve;
class QwtPlotMarker;
class QwtPlotPanner;
class ZEMPlotStyler;
class ZEMPlotZoomerAdvanced;
class ZEMQwtPlotCurvePointGetter;

/**
 * A plot of curves that can be zoomed with the left mouse button or a finger, panned with the right
 * button, and asked for the point at a position. All of its looks come from a ZEMPlotStyler.
 *
 * @code
 * #include <ZEMPlot>
 * #include <ZEMQwtPlotPointPicker>
 * #include <qwt_plot_curve.h>
 *
 * class PowerPlot : public ZEMPlot
 * {
 * public:
 *     explicit PowerPlot(ZEMPlotStyler *styler) : ZEMPlot(styler)
 *     {
 *         init();
 *         addCurve(new QwtPlotCurve(QStringLiteral("power")), true);
 *         new ZEMQwtPlotPointPicker(QStringLiteral("power"), this,
 *                                   QwtEventPattern::MouseSelect1);
 *     }
 * };
 * @endcode
 *
 * A plot has no legend, title or axis range of its own. Curves, markers and the grid are items of
 * QwtPlot: those that are attached when the plot dies are deleted with it, as autoDelete() says. A
 * program may also delete them at any time, one by one or with QwtPlotDict::detachItems().
 *
 * Slots of QwtPlot's own signals may delete the plot only with deleteLater().
 *
 * For zooming see ZEMPlotZoomerAdvanced, for picking ZEMQwtPlotPointPicker, for following the mouse
 * ZEMQwtPlotTracker, for fingers ZEMPlotTouchGuard.
 */
class ZEM_EXPORT ZEMPlot : public QwtPlot
{
    Q_OBJECT

public:
    /**
     * Before init() nothing is styled, there is no grid, and the left button pans too.
     *
     * @param styler not null; the plot does not own it
     */
    explicit ZEMPlot(ZEMPlotStyler *styler, QWidget *parent = nullptr);

    /** Leaves the styler, the point getter and all curves and markers that are not attached. */
    ~ZEMPlot() override;

    /**
     * Shows the grid, styles everything, replots, and puts panning on the right mouse button for
     * the left and the bottom axis alone, which a drag to the upper left brings back. To be called
     * once, when the styler is ready.
     */
    void init();

    /**
     * Has the styler style the plot, the grid and the curves of the list, in this order, and
     * replots. A grid that was deleted is left out.
     */
    void restyle();

    /** The styler, which is not owned. Setting one, which must not be null, restyles at once. */
    ZEMPlotStyler *getStyler();
    void setStyler(ZEMPlotStyler *styler);

    /** Zooms the bottom and the left axis. Dies with the plot or its canvas; null then. */
    ZEMPlotZoomerAdvanced *getZoomer();

    /**
     * Pans the plot. Dies with the plot or its canvas; null then. A program that has it move other
     * axes too brings these back itself.
     */
    QwtPlotPanner *getPanner();

    /**
     * Finds points of the curves. The plot makes it and does not delete it, since pickers may
     * still hold it: a program that makes and drops plots deletes it after the plot.
     */
    ZEMQwtPlotCurvePointGetter *getCurvePointGetter();

    /**
     * The curves in the order in which they were added, whatever their z. A curve leaves the list
     * when it is removed, and also when it is deleted, detached or attached to another plot.
     */
    const QList<QwtPlotCurve *> &getCurves() const;
    int getNumCurves() const;
    /** The first place of @p curve in the list, -1 if it is not there. */
    int getIndexOfCurve(QwtPlotCurve *curve) const;

    /**
     * Fills the canvas with @p color, the rest of the plot with the ground of its palette and, from
     * now on, replots after every change.
     */
    void setBackgroundColor(QColor color);

    /** Makes all colours of the plot's palette from @p color, the colour of buttons. */
    void setFrontColor(QColor color);

    /**
     * Tiles the canvas with a picture and lets what is behind the plot shine through around it and
     * through its transparent parts. The canvas loses its frame and its backing store. A tile is as
     * large as the picture divided by its ratio. One of the library is that for the ratio of the
     * screen from each paint of the plot on, and so is the texture of canvasBackground().
     *
     * Without a picture, Qwt keeps the canvas in a backing store: when a window goes to a screen of
     * another ratio, the curves are sharp there after the next replot().
     */
    void setBackgroundGraphic(const QPixmap &pixmap);
    /** The same with the picture at @p path, a file or a resource; none if there is no such. */
    void setBackgroundGraphic(const QString &path);

    /**
     * Sets the font of the numbers at an axis and moves the scale close to the canvas. The bottom
     * axis leaves room at its end for half of its widest number, and none at its start.
     *
     * @param axis a QwtPlot::Axis; another number does nothing
     */
    void setFontForScale(int axis, const QFont &font);
    /** The same with the default font in another family and with @p pointSize points, above 0. */
    void setFontForScale(int axis, const QString &family, int pointSize);

    /**
     * Styles @p curve, attaches it and puts it at the end of the list. It is seen at the next
     * replot().
     *
     * @param curve not null; one that is added twice is listed twice
     * @param updateZoomBase replots, forgets all zooming and takes what is then shown as the view
     *                       to which the zoomer returns
     */
    virtual void addCurve(QwtPlotCurve *curve, bool updateZoomBase);

    /**
     * Detaches @p curve, takes its first place from the list and replots. The caller has to delete
     * it, one that was added twice not before it is removed twice. The zoom base stays. A curve
     * that is not in the list is detached all the same.
     */
    virtual void removeCurve(QwtPlotCurve *curve);

    /** Styles @p marker, which is not null, and attaches it. It is seen at the next replot(). */
    virtual void addMarker(QwtPlotMarker *marker);

    /** Detaches @p marker and replots. The caller has to delete it. */
    virtual void removeMarker(QwtPlotMarker *marker);

Q_SIGNALS:
    /** For programs and subclasses that change an axis; the plot itself never emits it. */
    void axisChanged(int axis);

private:
    Q_DISABLE_COPY(ZEMPlot)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
