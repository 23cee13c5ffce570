// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTFIXTURE_H
#define CHARTFIXTURE_H

#include <QwtPlotMover>
#include <ZEMHistogram>
#include <ZEMScaleDraw>

#include <QStringList>
#include <qwt_interval.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

/** A chart of ten slots that notes what is called, in order. */
class Chart : public ZEMHistogram
{
public:
    using ZEMHistogram::changed;
    using ZEMHistogram::dataChangedTimestamp;
    using ZEMHistogram::mover;
    using ZEMHistogram::plot;
    using ZEMHistogram::titleText;
    using ZEMHistogram::yAxisText;
    using ZEMHistogram::ZEMHistogram;

    void setAxisScale(int axisId, double min, double max, double step) override
    {
        calls << QStringLiteral("setAxisScale %1").arg(step);
        ZEMHistogram::setAxisScale(axisId, min, max, step);
    }
    void setScaleDigits(int axisId, int digits) override
    {
        calls << QStringLiteral("setScaleDigits %1 %2").arg(axisId).arg(digits);
        ZEMHistogram::setScaleDigits(axisId, digits);
    }
    void replot() override
    {
        calls << QStringLiteral("replot");
        ZEMHistogram::replot();
    }
    void updateTitle(QwtInterval interval) override
    {
        titleText = QStringLiteral("%1 to %2").arg(interval.minValue()).arg(interval.maxValue());
        calls << QStringLiteral("updateTitle ") + titleText;
        Q_EMIT changed(this);
    }
    void initAxis() override
    {
        calls << QStringLiteral("initAxis");
        ZEMHistogram::initAxis();
    }
    void initAxisRefine() override
    {
        calls << QStringLiteral("initAxisRefine");
        plot->setAxisScaleDraw(QwtPlot::yLeft, new ZEMKWhScaleDraw(999.0));
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 10.0, 0.0);
        plot->setAxisScale(QwtPlot::xBottom, 0.0, 10.0, 2.0);
    }
    void setLookAndFeel() override
    {
        calls << QStringLiteral("setLookAndFeel");
        ZEMHistogram::setLookAndFeel();
    }
    void changed(QwtPlot *source) override
    {
        calls << QStringLiteral("changed");
        changedBy = source;
    }

    QStringList calls;
    QwtPlot *changedBy = nullptr;
};

inline QwtPlotCanvas *canvasOf(const Chart &chart)
{
    return qobject_cast<QwtPlotCanvas *>(chart.plot->canvas());
}

inline QwtInterval viewOf(const Chart &chart)
{
    return chart.plot->axisInterval(QwtPlot::xBottom);
}

/** Ready for paging: periods of ten slots from -30 to 10. */
inline void initForPaging(Chart *chart)
{
    chart->init();
    chart->setScalePeriod(10.0);
    chart->setScaleInterval(QwtInterval(-30.0, 10.0));
    chart->calls.clear();
}

#endif
