// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSCALEENGINE_H
#define ZEMSCALEENGINE_H

#include "zemkit_export.h"

#include <QList>

#include <qwt_interval.h>
#include <qwt_scale_div.h>
#include <qwt_scale_engine.h>

#include <memory>

/**
 * A linear scale whose major ticks, and so its labels, stand beside the steps: with an offset of
 * half a step in the middle of each slot.
 *
 * @code
 * #include <qwt_plot.h>
 * #include <ZEMScaleEngine>
 *
 * QwtPlot plot;
 * plot.setAxisScaleEngine(QwtPlot::xBottom, new ZEMScaleEngine(0.5)); // owned by the plot
 * plot.setAxisScale(QwtPlot::xBottom, 0.0, 7.0, 1.0);                 // ticks 0.5, 1.5 to 6.5
 * @endcode
 */
class ZEM_EXPORT ZEMScaleEngine : public QwtLinearScaleEngine
{
public:
    /** @p offset is added to the place of every major tick, in units of the axis. */
    explicit ZEMScaleEngine(double offset);
    ~ZEMScaleEngine() override;

    /**
     * The division of the axis from @p x1 to @p x2, which may stand in either order; an empty one
     * if they are equal or their distance is no finite number. The sign of @p stepSize does not
     * matter; with 0, or what is not finite, the engine chooses a step that gives at most
     * @p maxMajSteps steps, or one. @p maxMinSteps of 0 or less: no ticks but the major ones; of
     * too many, at most a million in all.
     */
    QwtScaleDiv divideScale(double x1, double x2, int maxMajSteps, int maxMinSteps,
                            double stepSize = 0.0) const override;

    /**
     * Fills @p ticks, an array of QwtScaleDiv::NTickTypes lists, with the ticks that lie in
     * @p interval. Leaves them alone if its width or @p stepSize is not finite.
     */
    void buildTicks(const QwtInterval &interval, double stepSize, int maxMinSteps,
                    QList<double> *ticks) const;

    /**
     * One tick for each step of @p interval, the first at its minimum plus the offset; at least
     * one, at most 9999.
     */
    QList<double> buildMajorTicks(const QwtInterval &interval, double stepSize) const;

private:
    Q_DISABLE_COPY(ZEMScaleEngine)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
