// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMMINIDAYHISTOGRAM_H
#define ZEMMINIDAYHISTOGRAM_H

#include "zemhistogram.h"

#include <qwt_scale_draw.h>

/**
 * The small chart of a day on a button: 24 slots, ticks at 0, 12 and 24 hours, and nothing else. It
 * has no ground of its own, no labels, no legend and no headline, and takes no touch: a press on it
 * reaches the widget beneath.
 *
 * A ZEMTotalsTodayWidget comes with two. On its own:
 * @code
 * #include <ZEMHistogramData>
 * #include <ZEMHistogramSeries>
 * #include <ZEMMiniDayHistogram>
 *
 * const double hours[] = {0.3, 0.2, 0.2, 0.4};
 * auto *data = new ZEMHistogramData;
 * data->setWindowSize(24);
 * data->setNrWindows(1);
 * data->setWindowValues(0, 0, 4, hours, false);
 * auto *series = new ZEMHistogramSeries(QStringLiteral("used"), QBrush(Qt::cyan), false);
 * series->setData(data);
 *
 * ZEMMiniDayHistogram chart;
 * chart.init();
 * chart.addSeries(series);
 * chart.setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
 * chart.replot();
 * @endcode
 * The value axis reaches from 0 to 10 until setValueLimits(). changed(ZEMHistogram *) is never
 * emitted. Its meta-object is that of ZEMHistogram: ask findChild() for that class, since the one
 * of Qt 6 compiles for no other.
 */
class ZEM_EXPORT ZEMMiniDayHistogram : public ZEMHistogram
{
public:
    /** The axis of the hours: ticks without labels. */
    class ZEM_EXPORT xDayScaleDraw : public QwtScaleDraw
    {
    public:
        xDayScaleDraw();
        ~xDayScaleDraw() override;
    };

    /** The axis of the values, which is not drawn. */
    class ZEM_EXPORT yDayScaleDraw : public QwtScaleDraw
    {
    public:
        yDayScaleDraw();
        ~yDayScaleDraw() override;
    };

    explicit ZEMMiniDayHistogram(QWidget *parent = nullptr);
    ~ZEMMiniDayHistogram() override;

    /** Does nothing: there is no headline. */
    void updateTitle(QwtInterval interval) override;
    void initAxis() override;
    /** Does nothing: initAxis() does it all. */
    void initAxisRefine() override;
    void setLookAndFeel() override;

private:
    Q_DISABLE_COPY(ZEMMiniDayHistogram)
};

#endif
