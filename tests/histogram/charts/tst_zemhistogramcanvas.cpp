// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../chartlifetime.h"

#include <ZEMMiniDayHistogram>
#include <ZEMSmartDayHistogram>

#include <QTest>

#include <memory>

using namespace ChartLifetime;

/** A chart whose plot is given another canvas. */
class tst_ZEMHistogramCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pagingGoesOnAtOnce();
    void draggingGoesOn();
    void moverKeepsItsSettings();
    void everyNewCanvasIsTaken();
    void otherCanvasStaysUntilThereIsOneAgain();
    void miniChartIsStillNotDragged();
    void chartGoesWithItsNewCanvas();

private:
    double view() const { return plotOf(chart)->axisInterval(QwtPlot::xBottom).minValue(); }
    void replaceCanvas(QWidget *canvas)
    {
        plotOf(chart)->setCanvas(canvas);
        showAll(page.get());
    }

    std::unique_ptr<QWidget> page;
    ZEMHistogram *chart = nullptr;
};

void tst_ZEMHistogramCanvas::init()
{
    page.reset(newPage());
    chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    showAll(page.get());
}

void tst_ZEMHistogramCanvas::cleanup()
{
    page.reset();
}

void tst_ZEMHistogramCanvas::pagingGoesOnAtOnce()
{
    chart->showPrevPeriod();
    plotOf(chart)->setCanvas(new QwtPlotCanvas);
    chart->showPrevPeriod();
    QCOMPARE(view(), -2 * period);
    chart->showNextPeriod();
    QCOMPARE(view(), -period);
    bool hasPrevious = false;
    chart->has_page(&hasPrevious, nullptr);
    QVERIFY(hasPrevious);
}

void tst_ZEMHistogramCanvas::draggingGoesOn()
{
    replaceCanvas(new QwtPlotCanvas);
    drag(canvasOf(chart));
    QVERIFY(view() < 0.0);
    QCOMPARE(plotOf(chart)->axisInterval(QwtPlot::xBottom).width(), period);
}

void tst_ZEMHistogramCanvas::moverKeepsItsSettings()
{
    QwtPlotMover *mover = moverOf(chart);
    mover->setDxSignalThreshold(33);
    replaceCanvas(new QwtPlotCanvas);
    QCOMPARE(moverOf(chart), mover);
    QCOMPARE(mover->dxSignalThreshold(), 33U);
    QCOMPARE(mover->canvas(), canvasOf(chart));
    QCOMPARE(mover->axisPeriodSize(QwtPlot::xBottom), period);
    QVERIFY(!mover->isVisible());
}

void tst_ZEMHistogramCanvas::everyNewCanvasIsTaken()
{
    for (int i = 1; i <= 3; ++i) {
        replaceCanvas(new QwtPlotCanvas);
        chart->showPrevPeriod();
        QCOMPARE(view(), -i * period);
        QCOMPARE(chart->findChildren<QwtPlotMover *>().count(), 1);
    }
    // One that the plot has as a child already.
    replaceCanvas(new QwtPlotCanvas(plotOf(chart)));
    chart->showNextPeriod();
    QCOMPARE(view(), -2 * period);
}

void tst_ZEMHistogramCanvas::otherCanvasStaysUntilThereIsOneAgain()
{
    replaceCanvas(new QWidget);
    for (const Act<ZEMHistogram> &act : moves().mid(0, 3)) {
        act.run(chart);
    }
    drag(plotOf(chart)->canvas());
    QCOMPARE(view(), 0.0);
    replaceCanvas(new QwtPlotCanvas);
    drag(canvasOf(chart));
    QVERIFY(view() < 0.0);
    chart->showFirstPeriod();
    QCOMPARE(view(), 0.0);
}

void tst_ZEMHistogramCanvas::miniChartIsStillNotDragged()
{
    delete chart;
    chart = new ZEMMiniDayHistogram;
    setUp(chart, page.get());
    showAll(page.get());
    replaceCanvas(new QwtPlotCanvas);
    drag(canvasOf(chart));
    QCOMPARE(view(), 0.0);
    chart->showPrevPeriod();
    QCOMPARE(view(), -period);
}

void tst_ZEMHistogramCanvas::chartGoesWithItsNewCanvas()
{
    const QPointer<QwtPlotMover> mover = moverOf(chart);
    plotOf(chart)->setCanvas(new QwtPlotCanvas);
    delete chart;
    QVERIFY(!mover);
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_ZEMHistogramCanvas)
#include "tst_zemhistogramcanvas.moc"
