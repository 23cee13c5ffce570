// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "plotfixture.h"

#include <qwt_interval.h>
#include <qwt_plot_panner.h>

#include <array>

using namespace PlotTest;

/** Which axes the right mouse button moves, and the way back. */
class tst_PlotPanning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void onlyLeftAndBottomAxisMove();
    void resetBringsBackWhatWasPanned_data();
    void resetBringsBackWhatWasPanned();
    void programMayPanOtherAxes();

private:
    using Intervals = std::array<QwtInterval, QwtPlot::axisCnt>;

    Intervals shown() const;
    void pan() const;

    std::unique_ptr<Stage> stage;
};

void tst_PlotPanning::init()
{
    stage = std::make_unique<Stage>();
    stage->plot->setAxisScale(QwtPlot::yRight, 0.0, 10.0);
    stage->plot->setAxisScale(QwtPlot::xTop, 0.0, 24.0);
    stage->plot->replot();
    QVERIFY(stage->show());
}

void tst_PlotPanning::cleanup()
{
    stage.reset();
}

tst_PlotPanning::Intervals tst_PlotPanning::shown() const
{
    stage->plot->updateAxes();
    Intervals intervals;
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        intervals[std::size_t(axis)] = stage->plot->axisInterval(axis);
    }
    return intervals;
}

void tst_PlotPanning::pan() const
{
    drag(stage->canvas(), QPoint(200, 150), QPoint(250, 170), Qt::RightButton);
}

void tst_PlotPanning::onlyLeftAndBottomAxisMove()
{
    const Intervals before = shown();
    pan();
    const Intervals after = shown();
    QCOMPARE(after[QwtPlot::xBottom].minValue(), before[QwtPlot::xBottom].minValue() - 50.0);
    QCOMPARE(after[QwtPlot::yLeft].minValue(), before[QwtPlot::yLeft].minValue() + 20.0);
    QCOMPARE(after[QwtPlot::yRight], before[QwtPlot::yRight]);
    QCOMPARE(after[QwtPlot::xTop], before[QwtPlot::xTop]);
}

void tst_PlotPanning::resetBringsBackWhatWasPanned_data()
{
    QTest::addColumn<int>("zooms");

    QTest::newRow("panned only") << 0;
    QTest::newRow("zoomed and panned") << 1;
    QTest::newRow("zoomed twice and panned") << 2;
}

void tst_PlotPanning::resetBringsBackWhatWasPanned()
{
    QFETCH(int, zooms);
    const Intervals before = shown();
    pan();
    for (int i = 0; i < zooms; ++i) {
        drag(stage->canvas(), QPoint(50, 50), QPoint(300, 250));
        pan();
    }
    QVERIFY(shown() != before);
    drag(stage->canvas(), QPoint(200, 150), QPoint(150, 100));
    QCOMPARE(shown(), before);
}

void tst_PlotPanning::programMayPanOtherAxes()
{
    const Intervals before = shown();
    stage->plot->getPanner()->setAxisEnabled(QwtPlot::yRight, true);
    pan();
    QVERIFY(shown()[QwtPlot::yRight] != before[QwtPlot::yRight]);
    stage->plot->init();
    QVERIFY(!stage->plot->getPanner()->isAxisEnabled(QwtPlot::yRight));
}

QTEST_MAIN(tst_PlotPanning)
#include "tst_plotpanning.moc"
