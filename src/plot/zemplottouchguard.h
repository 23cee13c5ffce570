// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPLOTTOUCHGUARD_H
#define ZEMPLOTTOUCHGUARD_H

#include "zemkit_export.h"

#include <QObject>
#include <QSizeF>

#include <memory>

class ZEMPlot;

/**
 * Makes a ZEMPlot fit for a finger: a tap that trembles stays a tap, and zooming stays inside the
 * zoom base and ends at a view that can still be read. A plot has none unless the program makes
 * one.
 *
 * @code
 * #include <ZEMPlot>
 * #include <ZEMPlotTouchGuard>
 *
 * class PowerPlot : public ZEMPlot
 * {
 * public:
 *     explicit PowerPlot(ZEMPlotStyler *styler) : ZEMPlot(styler)
 *     {
 *         init();
 *         new ZEMPlotTouchGuard(this, QSizeF(10.0, 20.0)); // at least 10 minutes by 20 W
 *     }
 * };
 * @endcode
 *
 * While the left button is held, moves reach no picker, zoomer or tracker of the plot until the
 * finger has gone further than QApplication::startDragDistance() from where it was pressed. From
 * then on until the next press all of them do.
 *
 * A view that is too small, or that is partly outside of the zoom base, is replaced on the zoom
 * stack while QwtPlotZoomer::zoomed() is delivered, which is then emitted once more. Connect to it
 * after the guard is made, and ask QwtPlotZoomer::zoomRect() for the view. A zoom that leads to no
 * other view than that before it leaves the stack as it was. What is panned is not guarded.
 */
class ZEM_EXPORT ZEMPlotTouchGuard : public QObject
{
    Q_OBJECT

public:
    /**
     * Guards the canvas and the zoomer that @p plot has now. The canvas owns the guard; delete the
     * guard to be without it.
     *
     * @param plot not null
     * @param leastView as in setLeastView()
     */
    explicit ZEMPlotTouchGuard(ZEMPlot *plot, const QSizeF &leastView = QSizeF(0.0, 0.0));
    ~ZEMPlotTouchGuard() override;

    /**
     * How wide and high a view has to be at least, in units of the bottom and the left axis. With 0
     * or less there is no limit but that of the zoomer; more than the zoom base has counts as the
     * whole base. Default: 0 both. Holds from the next zoom on.
     */
    QSizeF leastView() const;
    void setLeastView(const QSizeF &size);

    /** Takes the moves of a finger that only trembles. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMPlotTouchGuard)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
