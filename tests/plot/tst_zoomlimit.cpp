// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "plotfixture.h"

#include <QPen>
#include <QSignalSpy>
#include <QStack>

#include <qwt_scale_div.h>

using namespace PlotTest;

/** The way back from where zooming ends: at the least size of a view and at the depth. */
class tst_ZoomLimit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dragOfOnePixelZoomsToTheLeastSize();
    void resetLeadsBack_data();
    void resetLeadsBack();
    void otherDragsDoNothing_data();
    void otherDragsDoNothing();
    void bandAndCrossAreSeen();
    void nextDragZoomsAgain();
    void depthOfNoneTurnsZoomingOff();

private:
    /** Zooms with the mouse as far as it goes. */
    void zoomToTheLimit(const QString &limit);
    QRectF shown() const;
    ZEMPlotZoomerAdvanced *zoomer() const { return stage->plot->getZoomer(); }

    std::unique_ptr<Stage> stage;
};

namespace {

const QPoint start(200, 150);

void addLimits()
{
    QTest::addColumn<QString>("limit");
    QTest::newRow("least size") << QStringLiteral("size");
    QTest::newRow("depth") << QStringLiteral("depth");
}

} // namespace

void tst_ZoomLimit::init()
{
    stage = std::make_unique<Stage>();
    QVERIFY(stage->show());
}

void tst_ZoomLimit::cleanup()
{
    stage.reset();
}

void tst_ZoomLimit::zoomToTheLimit(const QString &limit)
{
    if (limit == QLatin1String("depth")) {
        zoomer()->setMaxStackDepth(3);
    }
    const int length = limit == QLatin1String("depth") ? 100 : 1;
    for (const QPoint &way : {QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        drag(stage->canvas(), start, start + length * way);
    }
    QCOMPARE(zoomer()->zoomRectIndex(), 3u);
}

QRectF tst_ZoomLimit::shown() const
{
    const QwtScaleDiv &x = stage->plot->axisScaleDiv(QwtPlot::xBottom);
    const QwtScaleDiv &y = stage->plot->axisScaleDiv(QwtPlot::yLeft);
    return {x.lowerBound(), y.lowerBound(), x.range(), y.range()};
}

void tst_ZoomLimit::dragOfOnePixelZoomsToTheLeastSize()
{
    const QSizeF base = shown().size();
    drag(stage->canvas(), start, start + QPoint(1, 0));
    QVERIFY(std::abs(base.width() / shown().width() - 100000.0) < 1.0);
    drag(stage->canvas(), start, start + QPoint(0, 1));
    QVERIFY(std::abs(base.height() / shown().height() - 100000.0) < 1.0);
}

void tst_ZoomLimit::resetLeadsBack_data()
{
    addLimits();
}

void tst_ZoomLimit::resetLeadsBack()
{
    QFETCH(QString, limit);
    const QRectF base = shown();
    zoomToTheLimit(limit);
    const QSignalSpy spy(zoomer(), &QwtPlotZoomer::zoomed);
    drag(stage->canvas(), start, start - QPoint(60, 40));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(zoomer()->zoomRectIndex(), 0u);
    QCOMPARE(shown(), base);
}

void tst_ZoomLimit::otherDragsDoNothing_data()
{
    addLimits();
}

void tst_ZoomLimit::otherDragsDoNothing()
{
    QFETCH(QString, limit);
    zoomToTheLimit(limit);
    const QRectF before = shown();
    const QSignalSpy zooms(zoomer(), &QwtPlotZoomer::zoomed);
    const QSignalSpy selections(zoomer(), QOverload<const QPolygon &>::of(&QwtPicker::selected));
    for (const QPoint &way : {QPoint(60, 60), QPoint(-60, 60), QPoint(60, -60), QPoint(80, 0)}) {
        drag(stage->canvas(), start, start + way);
        QVERIFY(!zoomer()->isActive());
        QCOMPARE(shown(), before);
    }
    QCOMPARE(zooms.count(), 0);
    QCOMPARE(selections.count(), 0);
    QCOMPARE(zoomer()->zoomStack().size(), 4);
}

void tst_ZoomLimit::bandAndCrossAreSeen()
{
    stage->plot->setCanvasBackground(Qt::black);
    zoomer()->setRubberBandPen(QPen(Qt::red));
    zoomToTheLimit(QStringLiteral("size"));
    QWidget *const canvas = stage->canvas();
    ZemTest::press(canvas, QPoint(200, 200));
    ZemTest::moveTo(canvas, QPoint(150, 150));
    ZemTest::moveTo(canvas, QPoint(100, 100));
    const QImage during = canvas->grab().toImage();
    QCOMPARE(during.pixelColor(150, 150), QColor(Qt::red));
    QCOMPARE(during.pixelColor(150, 201), QColor(Qt::red));
    ZemTest::release(canvas, QPoint(100, 100));
    QCOMPARE(zoomer()->zoomRectIndex(), 0u);
}

void tst_ZoomLimit::nextDragZoomsAgain()
{
    zoomToTheLimit(QStringLiteral("size"));
    drag(stage->canvas(), start, start + QPoint(60, 60));
    drag(stage->canvas(), start, start - QPoint(60, 40));
    drag(stage->canvas(), start, start + QPoint(100, 100));
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
    QCOMPARE(shown().size(), QSizeF(100.0, 100.0));
}

void tst_ZoomLimit::depthOfNoneTurnsZoomingOff()
{
    zoomer()->setMaxStackDepth(0);
    const QSignalSpy spy(zoomer(), &QwtPicker::activated);
    drag(stage->canvas(), start, start + QPoint(60, 60));
    drag(stage->canvas(), start, start - QPoint(60, 60));
    QCOMPARE(spy.count(), 0);
}

QTEST_MAIN(tst_ZoomLimit)
#include "tst_zoomlimit.moc"
