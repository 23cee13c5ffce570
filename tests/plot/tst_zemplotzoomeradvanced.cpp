// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPickerDraw>

#include "plotfixture.h"
#include "recordingdevice.h"
#include "zemtest.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStack>

#include <qwt_scale_div.h>

using namespace PlotTest;

namespace {

/** Opens what is protected. */
class Zoomer : public ZEMPlotZoomerAdvanced
{
public:
    using ZEMPlotZoomerAdvanced::ZEMPlotZoomerAdvanced;
    ~Zoomer() override = default;

    using ZEMPlotZoomerAdvanced::adjustedPoints;
    using ZEMPlotZoomerAdvanced::append;
    using ZEMPlotZoomerAdvanced::begin;
    using ZEMPlotZoomerAdvanced::end;
    using ZEMPlotZoomerAdvanced::move;

    /** What the rubber band consists of while the drag stands at @p finish. */
    QVector<QPolygonF> bandLines(const QPoint &start, const QPoint &finish)
    {
        end(false);
        begin();
        append(start);
        append(finish);
        RecordingDevice device;
        QPainter painter(&device);
        drawRubberBand(&painter);
        return device.points(Drawn::Line);
    }
};

} // namespace

class tst_ZEMPlotZoomerAdvanced : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasNoMetaObjectOfItsOwn();
    void adjustedPoints_data();
    void adjustedPoints();
    void onlyTwoPointsAreAdjusted();
    void ticksFollowTheSnap_data();
    void ticksFollowTheSnap();
    void marginOfTheConstructor();
    void setMarginReachesTheTicks();
    void canvasSizeIsThatOfTheMoment();
    void dragToTheUpperLeftHasTheCross();
    void subclassDecidesWhatSnaps();
    void anotherPickerDrawCanBeSet();

    void realDrags_data();
    void realDrags();
    void realDragOnThePlotsOwnZoomer();
    void zoomStackAfterDrags();
    void bandAndTicksAreSeen();
    void dragOfNoLengthIsRefused();

private:
    QRectF shown() const;
    bool show();

    std::unique_ptr<QwtPlot> plot;
    Zoomer *zoomer = nullptr;
};

void tst_ZEMPlotZoomerAdvanced::init()
{
    plot = std::make_unique<QwtPlot>();
    arrange(plot.get());
    plot->setCanvasBackground(Qt::black);
    zoomer = new Zoomer(qobject_cast<QwtPlotCanvas *>(plot->canvas()), true);
    zoomer->setRubberBandPen(QPen(Qt::red));
}

void tst_ZEMPlotZoomerAdvanced::cleanup()
{
    plot.reset();
}

QRectF tst_ZEMPlotZoomerAdvanced::shown() const
{
    const QwtScaleDiv &x = plot->axisScaleDiv(QwtPlot::xBottom);
    const QwtScaleDiv &y = plot->axisScaleDiv(QwtPlot::yLeft);
    return {x.lowerBound(), y.lowerBound(), x.range(), y.range()};
}

bool tst_ZEMPlotZoomerAdvanced::show()
{
    plot->show();
    return QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs);
}

void tst_ZEMPlotZoomerAdvanced::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(zoomer->metaObject()->className(), "ZEMPlotZoomer");
    QCOMPARE(zoomer->rubberBand(), QwtPicker::UserRubberBand);
    QCOMPARE(zoomer->trackerMode(), QwtPicker::AlwaysOff);
    QCOMPARE(zoomer->zoomBase(), shown());
}

void tst_ZEMPlotZoomerAdvanced::adjustedPoints_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("last");

    // All rows start at (100, 100) on 400 by 300, with a corridor of 50.
    QTest::newRow("along x") << QPoint(300, 120) << QPoint(100, 0) << QPoint(299, 299);
    QTest::newRow("along y") << QPoint(120, 250) << QPoint(0, 100) << QPoint(399, 249);
    QTest::newRow("free") << QPoint(300, 250) << QPoint(100, 100) << QPoint(300, 250);
    QTest::newRow("nowhere") << QPoint(100, 100) << QPoint(100, 100) << QPoint(100, 100);
    QTest::newRow("left and down") << QPoint(40, 120) << QPoint(100, 0) << QPoint(39, 299);
    QTest::newRow("up and right") << QPoint(120, 30) << QPoint(0, 100) << QPoint(399, 29);
    QTest::newRow("upper left") << QPoint(40, 95) << QPoint(100, 100) << QPoint(40, 95);
    QTest::newRow("straight left") << QPoint(40, 100) << QPoint(100, 0) << QPoint(39, 299);
    QTest::newRow("straight up") << QPoint(100, 40) << QPoint(0, 100) << QPoint(399, 39);
}

void tst_ZEMPlotZoomerAdvanced::adjustedPoints()
{
    QFETCH(QPoint, end);
    const QPolygon adjusted = zoomer->adjustedPoints(QVector<QPoint> {QPoint(100, 100), end});
    QCOMPARE(adjusted.size(), 2);
    QTEST(adjusted.first(), "first");
    QTEST(adjusted.last(), "last");
}

void tst_ZEMPlotZoomerAdvanced::onlyTwoPointsAreAdjusted()
{
    const QVector<QPoint> points = {QPoint(100, 100), QPoint(300, 120), QPoint(310, 120)};
    for (const int count : {0, 1, 3}) {
        const QPolygon some = points.mid(0, count);
        QCOMPARE(zoomer->adjustedPoints(some), some);
    }
}

void tst_ZEMPlotZoomerAdvanced::ticksFollowTheSnap_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<QVector<QLineF>>("expected");

    QTest::newRow("along x") << QPoint(
        300, 120) << QVector<QLineF> {QLineF(289, 50, 309, 50), QLineF(289, 150, 309, 150)};
    QTest::newRow("along x to the left")
        << QPoint(40, 120) << QVector<QLineF> {QLineF(29, 50, 49, 50), QLineF(29, 150, 49, 150)};
    QTest::newRow("along y") << QPoint(
        120, 250) << QVector<QLineF> {QLineF(50, 239, 50, 259), QLineF(150, 239, 150, 259)};
    QTest::newRow("along y, up") << QPoint(
        120, 30) << QVector<QLineF> {QLineF(50, 19, 50, 39), QLineF(150, 19, 150, 39)};
    QTest::newRow("free") << QPoint(300, 250) << QVector<QLineF> {};
}

void tst_ZEMPlotZoomerAdvanced::ticksFollowTheSnap()
{
    QFETCH(QPoint, end);
    QFETCH(QVector<QLineF>, expected);
    // Another snap before, to be overwritten.
    zoomer->bandLines(QPoint(10, 10), QPoint(20, 100));
    zoomer->bandLines(QPoint(10, 10), QPoint(100, 20));
    QCOMPARE(zoomer->bandLines(QPoint(100, 100), end), lines(expected));
}

void tst_ZEMPlotZoomerAdvanced::marginOfTheConstructor()
{
    Zoomer narrow(20, qobject_cast<QwtPlotCanvas *>(plot->canvas()), false);
    QCOMPARE(narrow.bandLines(QPoint(100, 100), QPoint(300, 119)),
             lines({QLineF(289, 80, 309, 80), QLineF(289, 120, 309, 120)}));
    QVERIFY(narrow.bandLines(QPoint(100, 100), QPoint(300, 120)).isEmpty());
}

void tst_ZEMPlotZoomerAdvanced::setMarginReachesTheTicks()
{
    zoomer->setMargin(70);
    QCOMPARE(zoomer->bandLines(QPoint(100, 100), QPoint(300, 169)),
             lines({QLineF(289, 30, 309, 30), QLineF(289, 170, 309, 170)}));
    QVERIFY(zoomer->bandLines(QPoint(100, 100), QPoint(300, 170)).isEmpty());
}

void tst_ZEMPlotZoomerAdvanced::canvasSizeIsThatOfTheMoment()
{
    plot->resize(plot->size() - QSize(30, 40));
    plot->updateLayout();
    const QVector<QPoint> along = {QPoint(100, 100), QPoint(200, 110)};
    QCOMPARE(zoomer->adjustedPoints(along).last(), QPoint(199, 259));
    const QVector<QPoint> down = {QPoint(100, 100), QPoint(110, 200)};
    QCOMPARE(zoomer->adjustedPoints(down).last(), QPoint(369, 199));
}

void tst_ZEMPlotZoomerAdvanced::dragToTheUpperLeftHasTheCross()
{
    zoomer->bandLines(QPoint(100, 100), QPoint(300, 120));
    QCOMPARE(zoomer->bandLines(QPoint(100, 100), QPoint(20, 90)),
             lines({QLineF(20, 90, 100, 100), QLineF(100, 90, 20, 100)}));
}

void tst_ZEMPlotZoomerAdvanced::subclassDecidesWhatSnaps()
{
    class Contrary : public Zoomer
    {
    public:
        using Zoomer::Zoomer;
        bool isZoomQuadrant(QPoint start, QPoint end) const override
        {
            return !Zoomer::isZoomQuadrant(start, end);
        }
    };
    const Contrary contrary(qobject_cast<QwtPlotCanvas *>(plot->canvas()), false);
    const QVector<QPoint> right = {QPoint(100, 100), QPoint(300, 120)};
    QCOMPARE(contrary.adjustedPoints(right), QPolygon(right));
    const QVector<QPoint> upperLeft = {QPoint(300, 120), QPoint(100, 100)};
    QCOMPARE(contrary.adjustedPoints(upperLeft).last(), QPoint(99, 299));
}

void tst_ZEMPlotZoomerAdvanced::anotherPickerDrawCanBeSet()
{
    ZEMQwtPickerDraw plain(zoomer);
    zoomer->setPickerDraw(&plain);
    QVERIFY(zoomer->bandLines(QPoint(100, 100), QPoint(300, 120)).isEmpty());
    QCOMPARE(zoomer->selection().last(), QPoint(299, 299));
    zoomer->setMargin(10);
    QCOMPARE(zoomer->selection().last(), QPoint(300, 120));
}

void tst_ZEMPlotZoomerAdvanced::realDrags_data()
{
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<QRectF>("view");

    // In canvas pixels; a pixel (x, y) is the position (x, 295 - y), the canvas (0, -4) to (399,
    // 295).
    QTest::newRow("right") << QPoint(100, 100) << QPoint(300, 120) << QRectF(100, -4, 199, 299);
    QTest::newRow("left, downward")
        << QPoint(100, 100) << QPoint(40, 120) << QRectF(39, -4, 61, 299);
    QTest::newRow("straight left")
        << QPoint(100, 100) << QPoint(40, 100) << QRectF(39, -4, 61, 299);
    QTest::newRow("right, upward")
        << QPoint(100, 100) << QPoint(300, 80) << QRectF(100, -4, 199, 299);
    QTest::newRow("down") << QPoint(100, 100) << QPoint(120, 250) << QRectF(0, 46, 399, 149);
    QTest::newRow("down, leftward")
        << QPoint(100, 100) << QPoint(80, 250) << QRectF(0, 46, 399, 149);
    QTest::newRow("up, rightward")
        << QPoint(100, 200) << QPoint(120, 50) << QRectF(0, 95, 399, 151);
    QTest::newRow("straight right")
        << QPoint(100, 100) << QPoint(300, 100) << QRectF(100, -4, 199, 299);
    QTest::newRow("straight down")
        << QPoint(100, 100) << QPoint(100, 250) << QRectF(0, 46, 399, 149);
    QTest::newRow("straight up") << QPoint(100, 200) << QPoint(100, 50) << QRectF(0, 95, 399, 151);
    QTest::newRow("diagonal inside the corridor is free")
        << QPoint(100, 100) << QPoint(130, 130) << QRectF(100, 165, 30, 30);
    QTest::newRow("diagonal to the upper right is free")
        << QPoint(100, 130) << QPoint(130, 100) << QRectF(100, 165, 30, 30);
    QTest::newRow("upper left inside the corridor goes back")
        << QPoint(300, 250) << QPoint(299, 100) << QRectF(4, 0, 391, 291);
    QTest::newRow("free, lower right")
        << QPoint(100, 100) << QPoint(300, 250) << QRectF(100, 45, 200, 150);
    QTest::newRow("free, lower left")
        << QPoint(300, 100) << QPoint(100, 250) << QRectF(100, 45, 200, 150);
    QTest::newRow("free, upper right")
        << QPoint(100, 250) << QPoint(300, 100) << QRectF(100, 45, 200, 150);
    QTest::newRow("upper left goes back")
        << QPoint(300, 250) << QPoint(100, 240) << QRectF(4, 0, 391, 291);
}

void tst_ZEMPlotZoomerAdvanced::realDrags()
{
    QFETCH(QPoint, start);
    QFETCH(QPoint, end);
    QVERIFY(show());
    QSignalSpy spy(zoomer, &QwtPlotZoomer::zoomed);
    drag(plot->canvas(), start, end);
    QCOMPARE(spy.count(), 1);
    QTEST(spy.first().first().toRectF(), "view");
    QTEST(shown(), "view");
}

void tst_ZEMPlotZoomerAdvanced::realDragOnThePlotsOwnZoomer()
{
    Stage stage;
    QVERIFY(stage.show());
    drag(stage.canvas(), QPoint(100, 100), QPoint(300, 149));
    QCOMPARE(stage.plot->getZoomer()->zoomRect(), QRectF(100, -4, 199, 299));
    drag(stage.canvas(), QPoint(200, 200), QPoint(150, 199));
    QCOMPARE(stage.plot->getZoomer()->zoomRectIndex(), 0u);
}

void tst_ZEMPlotZoomerAdvanced::zoomStackAfterDrags()
{
    QVERIFY(show());
    drag(plot->canvas(), QPoint(100, 100), QPoint(300, 120));
    drag(plot->canvas(), QPoint(100, 100), QPoint(120, 250));
    QCOMPARE(zoomer->zoomRectIndex(), 2u);
    QCOMPARE(zoomer->zoomStack().at(1), QRectF(100, -4, 199, 299));
    drag(plot->canvas(), QPoint(100, 100), QPoint(90, 90));
    QCOMPARE(zoomer->zoomRectIndex(), 0u);
    QCOMPARE(zoomer->zoomStack().size(), 3);
    drag(plot->canvas(), QPoint(100, 100), QPoint(300, 250));
    QCOMPARE(zoomer->zoomStack().size(), 2);
}

void tst_ZEMPlotZoomerAdvanced::bandAndTicksAreSeen()
{
    QVERIFY(show());
    QWidget *const canvas = plot->canvas();
    const QColor ink = Qt::red;
    const QColor ground = Qt::black;
    ZemTest::press(canvas, QPoint(100, 100));
    ZemTest::moveTo(canvas, QPoint(200, 110));
    ZemTest::moveTo(canvas, QPoint(300, 120));
    const QImage alongX = canvas->grab().toImage();
    QCOMPARE(alongX.pixelColor(100, 200), ink);
    QCOMPARE(alongX.pixelColor(300, 200), ink);
    QCOMPARE(alongX.pixelColor(200, 0), ink);
    QCOMPARE(alongX.pixelColor(289, 50), ink);
    QCOMPARE(alongX.pixelColor(309, 150), ink);
    QCOMPARE(alongX.pixelColor(310, 150), ground);
    QCOMPARE(alongX.pixelColor(200, 120), ground);

    // Out of the corridor: the free rectangle.
    ZemTest::moveTo(canvas, QPoint(300, 250));
    const QImage free = canvas->grab().toImage();
    QCOMPARE(ZemTest::inkRect(free), QRect(QPoint(100, 100), QPoint(301, 251)));
    QCOMPARE(free.pixelColor(289, 150), ground);

    ZemTest::moveTo(canvas, QPoint(120, 250));
    const QImage alongY = canvas->grab().toImage();
    QCOMPARE(alongY.pixelColor(200, 100), ink);
    QCOMPARE(alongY.pixelColor(200, 250), ink);
    QCOMPARE(alongY.pixelColor(50, 259), ink);
    QCOMPARE(alongY.pixelColor(150, 239), ink);
    QCOMPARE(alongY.pixelColor(150, 238), ground);
    ZemTest::release(canvas, QPoint(120, 250));
}

void tst_ZEMPlotZoomerAdvanced::dragOfNoLengthIsRefused()
{
    QVERIFY(show());
    QSignalSpy spy(zoomer, &QwtPlotZoomer::zoomed);
    ZemTest::press(plot->canvas(), QPoint(100, 100));
    ZemTest::moveTo(plot->canvas(), QPoint(150, 100));
    ZemTest::moveTo(plot->canvas(), QPoint(100, 100));
    ZemTest::release(plot->canvas(), QPoint(100, 100));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(zoomer->zoomRectIndex(), 0u);
}

QTEST_MAIN(tst_ZEMPlotZoomerAdvanced)
#include "tst_zemplotzoomeradvanced.moc"
