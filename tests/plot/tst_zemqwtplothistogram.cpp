// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotHistogram>

#include "countingplot.h"
#include "qwtcompat_p.h"
#include "recordingdevice.h"
#include "zemtest.h"

#include <QPainter>
#include <QTest>

#include <qwt_plot.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

#include <limits>

using namespace PlotTest;

namespace {

const QVector<QPointF> threeSamples = {{0, 10}, {2, 20}, {4, 30}};
const QVector<QPointF> threeBars = {{-1, 5}, {-1, 10}, {1, 10}, {1, 5},  {1, 15}, {1, 20},
                                    {3, 20}, {3, 15},  {3, 25}, {3, 30}, {5, 30}, {5, 25}};
const QRectF wideCanvas(-100, -100, 300, 300);

/** Opens what is protected, and notes what is passed on. */
class Bars : public ZEMQwtPlotHistogram
{
public:
    void record(RecordingDevice &device, int style, int from, int to,
                const QRectF &canvas = wideCanvas, const QPen &linePen = QPen(Qt::red)) const
    {
        QPainter painter(&device);
        painter.setPen(linePen);
        drawCurve(&painter, style, QwtScaleMap(), QwtScaleMap(), canvas, from, to);
    }

    mutable QVector<int> barCalls;
    mutable QPolygonF filled;
    mutable int fills = 0;

protected:
    void drawBarCurve(QPainter *painter, int style, const QwtScaleMap &xMap,
                      const QwtScaleMap &yMap, const QRectF &canvasRect, int from,
                      int to) const override
    {
        barCalls << style << from << to;
        ZEMQwtPlotHistogram::drawBarCurve(painter, style, xMap, yMap, canvasRect, from, to);
    }
    void fillCurve(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvasRect, QPolygonF &polygon) const override
    {
        ++fills;
        filled = polygon;
        ZEMQwtPlotHistogram::fillCurve(painter, xMap, yMap, canvasRect, polygon);
    }
};

} // namespace

class tst_ZEMQwtPlotHistogram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void userStylesDrawBars_data();
    void userStylesDrawBars();
    void otherStylesAreThoseOfACurve_data();
    void otherStylesAreThoseOfACurve();
    void barsAreOneOpenPolyline();
    void tailLengthIsInAxisUnits();
    void emptyRangeDrawsNothing();
    void withoutDataNothingIsDrawn();
    void rangeOutsideTheSeriesReadsNothing();
    void clippingFollowsThePaintAttribute();
    void clipIsWidenedByThePen_data();
    void clipIsWidenedByThePen();
    void brushFillsOverTheLine();
    void fillTakesTheUnclippedPolygon();
    void withoutBrushNothingIsFilled();
    void tailLengthDoesNotReplot();
    void barsOnAPlot();
    void nonFiniteSamplesArePainted();
};

void tst_ZEMQwtPlotHistogram::defaults()
{
    const ZEMQwtPlotHistogram bars;
    QCOMPARE(ZEMQwtPlotHistogram::kDefaultTailLength, 5.0);
    QVERIFY(bars.title().isEmpty());
    QCOMPARE(bars.style(), QwtPlotCurve().style());
    QCOMPARE(bars.rtti(), int(QwtPlotItem::Rtti_PlotCurve));
}

void tst_ZEMQwtPlotHistogram::userStylesDrawBars_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("isBars");

    QTest::newRow("none") << int(QwtPlotCurve::NoCurve) << false;
    QTest::newRow("lines") << int(QwtPlotCurve::Lines) << false;
    QTest::newRow("just below") << 99 << false;
    QTest::newRow("user") << int(QwtPlotCurve::UserCurve) << true;
    QTest::newRow("beyond user") << 250 << true;
}

void tst_ZEMQwtPlotHistogram::userStylesDrawBars()
{
    QFETCH(int, style);
    QFETCH(bool, isBars);
    Bars bars;
    bars.setSamples(threeSamples);
    RecordingDevice device;
    bars.record(device, style, 0, 2);
    QCOMPARE(bars.barCalls, isBars ? QVector<int>({style, 0, 2}) : QVector<int>());
}

void tst_ZEMQwtPlotHistogram::otherStylesAreThoseOfACurve_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("lines") << int(QwtPlotCurve::Lines);
    QTest::newRow("sticks") << int(QwtPlotCurve::Sticks);
    QTest::newRow("steps") << int(QwtPlotCurve::Steps);
}

void tst_ZEMQwtPlotHistogram::otherStylesAreThoseOfACurve()
{
    QFETCH(int, style);
    const auto picture = [style](QwtPlotCurve &curve) {
        QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        curve.setSamples(QVector<QPointF> {{5, 10}, {20, 40}, {35, 20}});
        curve.setStyle(QwtPlotCurve::CurveStyle(style));
        curve.drawSeries(&painter, QwtScaleMap(), QwtScaleMap(), QRectF(0, 0, 60, 60), 0, -1);
        return image;
    };
    ZEMQwtPlotHistogram bars;
    bars.setTailLength(17.0);
    QwtPlotCurve curve;
    const QImage expected = picture(curve);
    QVERIFY(!ZemTest::inkRect(expected, Qt::white).isNull());
    QCOMPARE(picture(bars), expected);
}

void tst_ZEMQwtPlotHistogram::barsAreOneOpenPolyline()
{
    Bars bars;
    bars.setSamples(threeSamples);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 2);
    QCOMPARE(device.drawn().size(), 1);
    QCOMPARE(device.drawn().first().kind, Drawn::Polyline);
    QCOMPARE(device.drawn().first().points, QPolygonF(threeBars));
    QCOMPARE(device.drawn().first().pen.color(), QColor(Qt::red));
}

void tst_ZEMQwtPlotHistogram::tailLengthIsInAxisUnits()
{
    Bars bars;
    bars.setSamples(QVector<QPointF> {{0, 10}, {4, 10}});
    bars.setTailLength(2.5);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 0);
    QCOMPARE(device.points(Drawn::Polyline).first(),
             QPolygonF(QVector<QPointF> {{0, 7.5}, {0, 10}, {0, 10}, {0, 7.5}}));

    bars.setTailLength(-3.0);
    RecordingDevice upward;
    bars.record(upward, QwtPlotCurve::UserCurve, 1, 1);
    QCOMPARE(upward.points(Drawn::Polyline).first().first(), QPointF(4, 13));
}

void tst_ZEMQwtPlotHistogram::emptyRangeDrawsNothing()
{
    Bars bars;
    bars.setSamples(threeSamples);
    bars.setBrush(Qt::blue);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 2, 1);
    QVERIFY(device.drawn().isEmpty());
    QCOMPARE(bars.fills, 0);
}

void tst_ZEMQwtPlotHistogram::withoutDataNothingIsDrawn()
{
    Bars bars;
    bars.setData(nullptr);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 5);
    QVERIFY(device.drawn().isEmpty());
}

void tst_ZEMQwtPlotHistogram::rangeOutsideTheSeriesReadsNothing()
{
    Bars bars;
    bars.setSamples(threeSamples);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, -2, 70);
    QCOMPARE(device.points(Drawn::Polyline).first(), QPolygonF(threeBars));
}

void tst_ZEMQwtPlotHistogram::clippingFollowsThePaintAttribute()
{
    const QRectF canvas(0, 0, 4, 40);
    for (const bool clips : {true, false}) {
        Bars bars;
        bars.setSamples(threeSamples);
        bars.setTailLength(30.0);
        bars.setPaintAttribute(QwtPlotCurve::ClipPolygons, clips);
        RecordingDevice device;
        bars.record(device, QwtPlotCurve::UserCurve, 0, 2, canvas);
        const QRectF bounds = device.points(Drawn::Polyline).first().boundingRect();
        // One pixel beyond the canvas, or all of it.
        QCOMPARE(bounds, clips ? QRectF(-1, -1, 6, 31) : QRectF(-1, -20, 6, 50));
    }
}

void tst_ZEMQwtPlotHistogram::clipIsWidenedByThePen_data()
{
    QTest::addColumn<double>("penWidth");
    QTest::addColumn<double>("widening");

    QTest::newRow("cosmetic pen counts as one pixel") << 0.0 << 1.0;
    QTest::newRow("thin pen too") << 0.5 << 1.0;
    QTest::newRow("wide pen") << 2.5 << 2.5;
}

void tst_ZEMQwtPlotHistogram::clipIsWidenedByThePen()
{
    QFETCH(double, penWidth);
    QFETCH(double, widening);
    Bars bars;
    bars.setSamples(QVector<QPointF> {{0, 10}, {100, 10}, {200, 10}});
    bars.setTailLength(100.0);
    RecordingDevice device;
    const QRectF canvas(20, -20, 100, 50);
    bars.record(device, QwtPlotCurve::UserCurve, 0, 2, canvas, QPen(Qt::red, penWidth));
    QPolygonF unclipped;
    for (const double x : {0.0, 100.0, 200.0}) {
        unclipped << QPointF(x - 50, -90) << QPointF(x - 50, 10) << QPointF(x + 50, 10)
                  << QPointF(x + 50, -90);
    }
    const QRectF clip = canvas.adjusted(-widening, -widening, widening, widening);
    QCOMPARE(device.points(Drawn::Polyline).first(), QwtCompat::clipped(clip, unclipped));
    QCOMPARE(device.points(Drawn::Polyline).first().boundingRect().top(), -20 - widening);
}

void tst_ZEMQwtPlotHistogram::brushFillsOverTheLine()
{
    Bars bars;
    bars.setSamples(threeSamples);
    bars.setBrush(Qt::blue);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 2);
    QCOMPARE(device.drawn().size(), 2);
    QCOMPARE(device.drawn().at(0).kind, Drawn::Polyline);
    QCOMPARE(device.drawn().at(1).kind, Drawn::Polygon);
    // Down to the baseline at both ends.
    QPolygonF closed(threeBars);
    closed << QPointF(5, 0) << QPointF(-1, 0);
    QCOMPARE(device.drawn().at(1).points, closed);
}

void tst_ZEMQwtPlotHistogram::fillTakesTheUnclippedPolygon()
{
    Bars bars;
    bars.setSamples(threeSamples);
    bars.setBrush(Qt::blue);
    bars.setPaintAttribute(QwtPlotCurve::ClipPolygons, true);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 2, QRectF(0, 0, 2, 2));
    QCOMPARE(bars.filled, QPolygonF(threeBars));
}

void tst_ZEMQwtPlotHistogram::withoutBrushNothingIsFilled()
{
    Bars bars;
    bars.setSamples(threeSamples);
    bars.setBrush(Qt::NoBrush);
    RecordingDevice device;
    bars.record(device, QwtPlotCurve::UserCurve, 0, 2);
    QCOMPARE(bars.fills, 0);
}

void tst_ZEMQwtPlotHistogram::tailLengthDoesNotReplot()
{
    ZemTest::CountingPlot<QwtPlot> plot;
    plot.setAutoReplot(true);
    auto *bars = new ZEMQwtPlotHistogram;
    bars->attach(&plot);
    plot.replots = 0;
    bars->setTailLength(9.0);
    QCOMPARE(plot.replots, 0);
}

void tst_ZEMQwtPlotHistogram::barsOnAPlot()
{
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    ZEMQwtPlotHistogram bars;
    bars.setStyle(QwtPlotCurve::UserCurve);
    bars.setPen(Qt::red);
    bars.setTailLength(10.0);
    bars.setSamples(QVector<QPointF> {{20, 60}, {50, 80}, {80, 40}});
    QwtScaleMap yMap;
    yMap.setScaleInterval(0.0, 100.0);
    yMap.setPaintInterval(100.0, 0.0);
    bars.drawSeries(&painter, QwtScaleMap(), yMap, QRectF(0, 0, 100, 100), 0, -1);
    painter.end();

    const QColor ink = Qt::red;
    const QColor ground = Qt::black;
    QCOMPARE(image.pixelColor(20, 40), ink); // tops
    QCOMPARE(image.pixelColor(50, 20), ink);
    QCOMPARE(image.pixelColor(80, 60), ink);
    QCOMPARE(image.pixelColor(5, 45), ink); // tail of the first
    QCOMPARE(image.pixelColor(5, 53), ground);
    QCOMPARE(image.pixelColor(35, 45), ink); // line from tail end to tail end
    QCOMPARE(image.pixelColor(20, 45), ground);
    QCOMPARE(ZemTest::inkRect(image), QRect(QPoint(5, 20), QPoint(95, 70)));
}

void tst_ZEMQwtPlotHistogram::nonFiniteSamplesArePainted()
{
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    ZEMQwtPlotHistogram bars;
    bars.setStyle(QwtPlotCurve::UserCurve);
    bars.setPen(Qt::red);
    bars.setPaintAttribute(QwtPlotCurve::ClipPolygons, true);
    const double infinite = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    bars.setSamples(
        QVector<QPointF> {{20, 60}, {40, notANumber}, {60, infinite}, {70, 30}, {80, 40}});
    bars.drawSeries(&painter, QwtScaleMap(), QwtScaleMap(), QRectF(0, 0, 100, 100), 0, -1);
    painter.end();
    QCOMPARE(image.pixelColor(20, 60), QColor(Qt::red));
}

QTEST_MAIN(tst_ZEMQwtPlotHistogram)
#include "tst_zemqwtplothistogram.moc"
