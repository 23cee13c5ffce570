// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../chartlifetime.h"
#include "paintcounter.h"

#include <ZEMScaleDraw>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>

#include <QLocale>
#include <QScopeGuard>
#include <QTest>

#include <memory>
#include <qwt_scale_widget.h>

using namespace ChartLifetime;
using ZemTest::PaintCounter;

/** New labels on an axis whose scale stays as it is. Nothing is painted on demand here. */
class tst_AxisRepaint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newDigitsShowWithTheNextReplot();
    void newDigitsMakeRoom();
    void newDigitsShowOnAPlotOfTheHost();
    void newDateShowsOnAPlotOfTheHost();
    void newLocaleShowsWithTheNextReplot();
    void childShowsANewLocaleAsWell();
    void sameDigitsPaintNoAxis();

private:
    template <typename Chart>
    Chart *newChart()
    {
        auto *chart = new Chart;
        setUp(chart, page.get());
        settle(chart);
        return chart;
    }
    QwtPlot *newPlot(QwtPlot::Axis axis, QwtScaleDraw *draw)
    {
        auto *plot = new QwtPlot;
        plot->setAxisScaleDraw(axis, draw);
        plot->setAxisScale(axis, 0.0, 10.0, 2.0);
        layoutOf(page.get())->addWidget(plot);
        showAll(page.get());
        plot->replot();
        showAll(page.get());
        return plot;
    }

    /** Until another replot would change nothing. */
    void settle(ZEMHistogram *chart)
    {
        for (int i = 0; i < 3; ++i) {
            showAll(page.get());
            chart->replot();
        }
        showAll(page.get());
    }

    std::unique_ptr<QWidget> page;
};

void tst_AxisRepaint::init()
{
    page.reset(newPage());
}

void tst_AxisRepaint::newDigitsShowWithTheNextReplot()
{
    auto *chart = newChart<ZEMSmartDayHistogram>();
    PaintCounter painted(plotOf(chart)->axisWidget(QwtPlot::yLeft));
    chart->setScaleDigits(QwtPlot::yLeft, 3);
    chart->replot();
    QTRY_COMPARE(painted.count, 1);
    chart->replot();
    showAll(page.get());
    QCOMPARE(painted.count, 1);
}

void tst_AxisRepaint::newDigitsMakeRoom()
{
    auto *chart = newChart<ZEMSmartDayHistogram>();
    const QwtScaleWidget *axis = plotOf(chart)->axisWidget(QwtPlot::yLeft);
    const int before = axis->width();
    chart->setScaleDigits(QwtPlot::yLeft, 6);
    chart->replot();
    showAll(page.get());
    QVERIFY(axis->width() > before);
    QCOMPARE(canvasOf(chart)->x(), axis->geometry().right() + 1);
}

void tst_AxisRepaint::newDigitsShowOnAPlotOfTheHost()
{
    auto *draw = new ZEMKWhScaleDraw(999.0);
    QwtPlot *plot = newPlot(QwtPlot::yLeft, draw);
    const int before = plot->axisWidget(QwtPlot::yLeft)->width();
    PaintCounter painted(plot->axisWidget(QwtPlot::yLeft));
    draw->setDigits(4);
    draw->setDigits(5);
    plot->replot();
    QTRY_COMPARE(painted.count, 1);
    QVERIFY(plot->axisWidget(QwtPlot::yLeft)->width() > before);
    QVERIFY(draw->scaleDiv() == plot->axisScaleDiv(QwtPlot::yLeft));
}

void tst_AxisRepaint::newDateShowsOnAPlotOfTheHost()
{
    auto *draw = new ZEMMonthScaleDraw(0.0);
    QwtPlot *plot = newPlot(QwtPlot::xBottom, draw);
    PaintCounter painted(plot->axisWidget(QwtPlot::xBottom));
    draw->setStartTimestamp(midnight());
    plot->replot();
    QTRY_COMPARE(painted.count, 1);
}

void tst_AxisRepaint::newLocaleShowsWithTheNextReplot()
{
    const QLocale before;
    const auto restore = qScopeGuard([before] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::English));
    auto *chart = newChart<ZEMSmartMonthHistogram>();
    PaintCounter values(plotOf(chart)->axisWidget(QwtPlot::yLeft));
    PaintCounter dates(plotOf(chart)->axisWidget(QwtPlot::xBottom));
    QLocale::setDefault(QLocale(QLocale::Dutch));
    chart->replot();
    QTRY_COMPARE(values.count, 1);
    QTRY_COMPARE(dates.count, 1);
    chart->replot();
    showAll(page.get());
    QCOMPARE(values.count, 1);
    QCOMPARE(dates.count, 1);
}

void tst_AxisRepaint::childShowsANewLocaleAsWell()
{
    const QLocale before;
    const auto restore = qScopeGuard([before] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::English));
    page.reset();
    const Pair pair(new ZEMSmartDayHistogram, new ZEMSmartDayHistogram);
    page.reset(pair.page);
    settle(pair.upper);
    PaintCounter painted(plotOf(pair.lower)->axisWidget(QwtPlot::yLeft));
    QLocale::setDefault(QLocale(QLocale::Dutch));
    pair.upper->replot();
    QTRY_COMPARE(painted.count, 1);
}

void tst_AxisRepaint::sameDigitsPaintNoAxis()
{
    auto *chart = newChart<ZEMSmartDayHistogram>();
    PaintCounter painted(plotOf(chart)->axisWidget(QwtPlot::yLeft));
    PaintCounter canvas(canvasOf(chart));
    auto *draw = dynamic_cast<ZEMScaleDraw *>(plotOf(chart)->axisScaleDraw(QwtPlot::yLeft));
    chart->setScaleDigits(QwtPlot::yLeft, draw->getDigits());
    chart->replot();
    QTRY_VERIFY(canvas.count > 0);
    QCOMPARE(painted.count, 0);
}

QTEST_MAIN(tst_AxisRepaint)
#include "tst_axisrepaint.moc"
