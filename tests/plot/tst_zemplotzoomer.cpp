// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPlotZoomer>
#include <ZEMQwtPickerDraw>

#include "countingplot.h"
#include "plotfixture.h"
#include "zemtest.h"

#include <QPainter>
#include <QPen>
#include <QPointer>
#include <QSignalSpy>
#include <QStack>

#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

using namespace PlotTest;

namespace {

/** Opens what is protected, and keeps a log of the zooming. */
class Zoomer : public ZEMPlotZoomer
{
public:
    explicit Zoomer(QwtPlotCanvas *canvas) : ZEMPlotZoomer(canvas, true) { }
    ~Zoomer() override = default;

    using QwtPlotZoomer::append;
    using ZEMPlotZoomer::accept;
    using ZEMPlotZoomer::begin;
    using ZEMPlotZoomer::end;
    using ZEMPlotZoomer::zoom;

    void zoom(const QRectF &rect) override
    {
        log << QStringLiteral("rect");
        lastRect = rect;
        ZEMPlotZoomer::zoom(rect);
    }
    void zoom(int up) override
    {
        log << QString::number(up);
        ZEMPlotZoomer::zoom(up);
    }
    /** A drag by calls. Returns what end() returns. */
    bool dragged(const QPoint &start, const QPoint &finish)
    {
        begin();
        append(start);
        append(finish);
        return end(true);
    }

    QStringList log;
    QRectF lastRect;
    QSizeF least = QSizeF(-1.0, -1.0); ///< if valid, the least size of a view
    int points = -1; ///< if not negative, how many points a selection has
    bool isContrary = false; ///< turns the quadrants round

    bool isZoomQuadrant(QPoint start, QPoint end) const override
    {
        return ZEMPlotZoomer::isZoomQuadrant(start, end) != isContrary;
    }

protected:
    QSizeF minZoomSize() const override
    {
        return least.isValid() || least.width() >= 0.0 || least.height() >= 0.0
            ? least
            : ZEMPlotZoomer::minZoomSize();
    }
    QPolygon adjustedPoints(const QPolygon &picked) const override
    {
        return points < 0 ? picked : QPolygon(picked.mid(0, points));
    }
};

/** Counts what it is asked and destroyed. */
class Draw : public ZEMQwtPickerDraw
{
public:
    explicit Draw(QwtPicker *observed, int *deaths = nullptr)
        : ZEMQwtPickerDraw(observed), deathCount(deaths)
    {
    }
    ~Draw() override
    {
        if (deathCount) {
            ++*deathCount;
        }
    }
    void drawTracker(QPainter *) const override { ++trackers; }
    void drawRubberBand(QPainter *) const override { ++bands; }

    mutable int trackers = 0;
    mutable int bands = 0;

private:
    int *deathCount;
};

} // namespace

class tst_ZEMPlotZoomer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void defaults();
    void replotsFirstIfTold();
    void redeclaresTheZoomSlots();
    void quadrants();
    void accepts_data();
    void accepts();
    void acceptLeavesThePoints();

    void dragInAnyDirectionZooms_data();
    void dragInAnyDirectionZooms();
    void dragToTheUpperLeftGoesBackToTheBase();
    void subclassDecidesWhatZooms();
    void zoomStackGrowsAndIsCut();
    void zoomedIsEmittedOnce();
    void tapDoesNothing();
    void rightAndMiddleButtonDoNotZoom();
    void keysDoNotZoom();
    void narrowSelectionIsWidened_data();
    void narrowSelectionIsWidened();
    void refusedSelectionDoesNotZoom();
    void selectionOfOnePointDoesNotZoom();
    void lostPlotDoesNotZoom();
    void depthLimitHolds();

    void rubberBandOfTheUserIsDrawnByThePickerDraw();
    void otherRubberBandIsQwts();
    void rubberBandIsSeenDuringTheDrag();
    void crossIsSeenOnTheWayBack();
    void nullPickerDrawIsRefused();
    void givenDrawsAreNotDeleted();

private:
    QRectF shown() const;

    std::unique_ptr<QwtPlot> plot;
    Zoomer *zoomer = nullptr;
};

void tst_ZEMPlotZoomer::init()
{
    plot = std::make_unique<QwtPlot>();
    arrange(plot.get());
    plot->setCanvasBackground(Qt::black);
    zoomer = new Zoomer(qobject_cast<QwtPlotCanvas *>(plot->canvas()));
    zoomer->setRubberBandPen(QPen(Qt::red));
}

void tst_ZEMPlotZoomer::cleanup()
{
    plot.reset();
}

QRectF tst_ZEMPlotZoomer::shown() const
{
    const QwtScaleDiv &x = plot->axisScaleDiv(QwtPlot::xBottom);
    const QwtScaleDiv &y = plot->axisScaleDiv(QwtPlot::yLeft);
    return {x.lowerBound(), y.lowerBound(), x.range(), y.range()};
}

void tst_ZEMPlotZoomer::defaults()
{
    QCOMPARE(zoomer->canvas(), plot->canvas());
    QCOMPARE(zoomer->parent(), plot->canvas());
    QCOMPARE(zoomer->xAxis(), int(QwtPlot::xBottom));
    QCOMPARE(zoomer->yAxis(), int(QwtPlot::yLeft));
    QCOMPARE(zoomer->trackerMode(), QwtPicker::AlwaysOff);
    QCOMPARE(zoomer->rubberBand(), QwtPicker::UserRubberBand);
    QCOMPARE(zoomer->zoomBase(), shown());
    QCOMPARE(zoomer->maxStackDepth(), -1);
}

void tst_ZEMPlotZoomer::replotsFirstIfTold()
{
    ZemTest::CountingPlot<QwtPlot> counting;
    auto *const canvas = qobject_cast<QwtPlotCanvas *>(counting.canvas());
    const ZEMPlotZoomer quiet(canvas, false);
    QCOMPARE(counting.replots, 0);
    const ZEMPlotZoomer eager(canvas, true);
    QCOMPARE(counting.replots, 1);
}

void tst_ZEMPlotZoomer::redeclaresTheZoomSlots()
{
    const QMetaObject &meta = ZEMPlotZoomer::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QVERIFY(meta.indexOfSlot("zoom(QRectF)") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("zoom(int)") >= meta.methodOffset());
}

void tst_ZEMPlotZoomer::quadrants()
{
    const QPoint start(100, 100);
    QVERIFY(!zoomer->isZoomQuadrant(start, QPoint(90, 90)));
    QVERIFY(zoomer->isZoomQuadrant(start, QPoint(90, 100)));
    QVERIFY(zoomer->isZoomQuadrant(start, QPoint(100, 90)));
    QVERIFY(zoomer->isZoomQuadrant(start, start));
    QVERIFY(zoomer->isZoomQuadrant(start, QPoint(110, 90)));
}

void tst_ZEMPlotZoomer::accepts_data()
{
    QTest::addColumn<QVector<QPoint>>("points");
    QTest::addColumn<bool>("expected");

    QTest::newRow("none") << QVector<QPoint> {} << false;
    QTest::newRow("one") << QVector<QPoint> {QPoint(5, 5)} << false;
    QTest::newRow("no extent") << QVector<QPoint> {QPoint(5, 5), QPoint(5, 5)} << false;
    QTest::newRow("one pixel wide, long") << QVector<QPoint> {QPoint(5, 5), QPoint(5, 50)} << true;
    QTest::newRow("one pixel high, long") << QVector<QPoint> {QPoint(5, 5), QPoint(50, 5)} << true;
    QTest::newRow("backward") << QVector<QPoint> {QPoint(50, 50), QPoint(5, 5)} << true;
    QTest::newRow("first and last count")
        << QVector<QPoint> {QPoint(5, 5), QPoint(50, 50), QPoint(5, 5)} << false;
    QTest::newRow("three") << QVector<QPoint> {QPoint(5, 5), QPoint(5, 5), QPoint(9, 9)} << true;
}

void tst_ZEMPlotZoomer::accepts()
{
    QFETCH(QVector<QPoint>, points);
    QPolygon polygon(points);
    QTEST(zoomer->accept(polygon), "expected");
}

void tst_ZEMPlotZoomer::acceptLeavesThePoints()
{
    const QVector<QPoint> points = {QPoint(5, 5), QPoint(90, 5), QPoint(6, 5)};
    QPolygon polygon(points);
    QVERIFY(zoomer->accept(polygon));
    QCOMPARE(polygon, QPolygon(points));
}

void tst_ZEMPlotZoomer::dragInAnyDirectionZooms_data()
{
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<QRectF>("view");

    // In plot coordinates, in which y grows upward.
    QTest::newRow("lower right") << QPoint(100, 200) << QPoint(250, 80)
                                 << QRectF(100, 80, 150, 120);
    QTest::newRow("lower left") << QPoint(250, 200) << QPoint(100, 80) << QRectF(100, 80, 150, 120);
    QTest::newRow("upper right") << QPoint(100, 80) << QPoint(250, 200)
                                 << QRectF(100, 80, 150, 120);
}

void tst_ZEMPlotZoomer::dragInAnyDirectionZooms()
{
    QFETCH(QPoint, start);
    QFETCH(QPoint, end);
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    drag(plot->canvas(), pixelOf(start.x(), start.y()), pixelOf(end.x(), end.y()));
    QCOMPARE(zoomer->log, QStringList({QStringLiteral("rect")}));
    QTEST(zoomer->lastRect, "view");
    QTEST(shown(), "view");
    QCOMPARE(zoomer->zoomRectIndex(), 1u);
}

void tst_ZEMPlotZoomer::dragToTheUpperLeftGoesBackToTheBase()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    const QRectF base = shown();
    drag(plot->canvas(), QPoint(50, 50), QPoint(300, 250));
    drag(plot->canvas(), QPoint(50, 50), QPoint(300, 250));
    QCOMPARE(zoomer->zoomRectIndex(), 2u);
    drag(plot->canvas(), QPoint(300, 250), QPoint(290, 240));
    QCOMPARE(zoomer->log.last(), QStringLiteral("0"));
    QCOMPARE(zoomer->zoomRectIndex(), 0u);
    QCOMPARE(zoomer->zoomStack().size(), 3);
    QCOMPARE(shown(), base);
}

void tst_ZEMPlotZoomer::subclassDecidesWhatZooms()
{
    zoomer->isContrary = true;
    QVERIFY(zoomer->dragged(pixelOf(250, 80), pixelOf(100, 200)));
    QCOMPARE(zoomer->lastRect, QRectF(100, 80, 150, 120));
    QVERIFY(zoomer->dragged(QPoint(50, 50), QPoint(300, 250)));
    QCOMPARE(zoomer->log, QStringList({QStringLiteral("rect"), QStringLiteral("0")}));
}

void tst_ZEMPlotZoomer::zoomStackGrowsAndIsCut()
{
    QVERIFY(zoomer->dragged(QPoint(50, 50), QPoint(300, 250)));
    QVERIFY(zoomer->dragged(QPoint(50, 50), QPoint(300, 250)));
    QCOMPARE(zoomer->zoomStack().size(), 3);
    QVERIFY(zoomer->dragged(QPoint(300, 250), QPoint(50, 50)));
    QCOMPARE(zoomer->zoomRectIndex(), 0u);
    // Zooming anew drops what was above.
    QVERIFY(zoomer->dragged(QPoint(60, 60), QPoint(200, 200)));
    QCOMPARE(zoomer->zoomStack().size(), 2);
    QCOMPARE(zoomer->zoomRectIndex(), 1u);
}

void tst_ZEMPlotZoomer::zoomedIsEmittedOnce()
{
    QSignalSpy spy(zoomer, &QwtPlotZoomer::zoomed);
    zoomer->dragged(QPoint(50, 50), QPoint(300, 250));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toRectF(), zoomer->zoomRect());
    zoomer->dragged(QPoint(300, 250), QPoint(50, 50));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.last().first().toRectF(), zoomer->zoomBase());
}

void tst_ZEMPlotZoomer::tapDoesNothing()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    ZemTest::press(plot->canvas(), QPoint(100, 100));
    ZemTest::release(plot->canvas(), QPoint(100, 100));
    QVERIFY(zoomer->log.isEmpty());
    QVERIFY(!zoomer->isActive());
}

void tst_ZEMPlotZoomer::rightAndMiddleButtonDoNotZoom()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    drag(plot->canvas(), QPoint(50, 50), QPoint(300, 250));
    zoomer->log.clear();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        ZemTest::press(plot->canvas(), QPoint(100, 100), button);
        ZemTest::release(plot->canvas(), QPoint(100, 100), button);
    }
    ZemTest::press(plot->canvas(), QPoint(100, 100), Qt::MiddleButton, Qt::ShiftModifier);
    ZemTest::release(plot->canvas(), QPoint(100, 100), Qt::MiddleButton, Qt::ShiftModifier);
    QVERIFY(zoomer->log.isEmpty());
    QCOMPARE(zoomer->zoomRectIndex(), 1u);
}

void tst_ZEMPlotZoomer::keysDoNotZoom()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    drag(plot->canvas(), QPoint(50, 50), QPoint(300, 250));
    zoomer->log.clear();
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(plot->canvas(), key);
    }
    QVERIFY(zoomer->log.isEmpty());

    // Nor does a key end a drag, or move it.
    ZemTest::press(plot->canvas(), QPoint(100, 100));
    ZemTest::moveTo(plot->canvas(), QPoint(150, 160));
    QTest::keyClick(plot->canvas(), Qt::Key_Escape);
    QTest::keyClick(plot->canvas(), Qt::Key_Left);
    QVERIFY(zoomer->isActive());
    QCOMPARE(zoomer->selection().last(), QPoint(150, 160));
    ZemTest::release(plot->canvas(), QPoint(150, 160));
    QCOMPARE(zoomer->log, QStringList({QStringLiteral("rect")}));
}

void tst_ZEMPlotZoomer::narrowSelectionIsWidened_data()
{
    QTest::addColumn<QSizeF>("least");
    QTest::addColumn<QRectF>("expected");

    // The drag selects (100, 80) to (110, 100).
    QTest::newRow("large enough") << QSizeF(10, 20) << QRectF(100, 80, 10, 20);
    QTest::newRow("too narrow") << QSizeF(30, 20) << QRectF(90, 80, 30, 20);
    QTest::newRow("too low") << QSizeF(0, 40) << QRectF(100, 70, 10, 40);
    QTest::newRow("both") << QSizeF(11, 21) << QRectF(99.5, 79.5, 11, 21);
    QTest::newRow("width below 0: none") << QSizeF(-1, 40) << QRectF(100, 80, 10, 20);
    QTest::newRow("height below 0: none") << QSizeF(30, -1) << QRectF(100, 80, 10, 20);
}

void tst_ZEMPlotZoomer::narrowSelectionIsWidened()
{
    QFETCH(QSizeF, least);
    zoomer->least = least;
    QVERIFY(zoomer->dragged(pixelOf(100, 100), pixelOf(110, 80)));
    QTEST(zoomer->lastRect, "expected");
}

void tst_ZEMPlotZoomer::refusedSelectionDoesNotZoom()
{
    QVERIFY(!zoomer->dragged(QPoint(100, 100), QPoint(100, 100)));
    zoomer->begin();
    zoomer->append(QPoint(100, 100));
    zoomer->append(QPoint(200, 200));
    QVERIFY(!zoomer->end(false));
    // None has begun.
    QVERIFY(!zoomer->end(true));
    QVERIFY(zoomer->log.isEmpty());
}

void tst_ZEMPlotZoomer::selectionOfOnePointDoesNotZoom()
{
    zoomer->points = 1;
    QVERIFY(!zoomer->dragged(QPoint(100, 100), QPoint(200, 200)));
    QVERIFY(zoomer->log.isEmpty());
    zoomer->points = 2;
    QVERIFY(zoomer->dragged(QPoint(100, 100), QPoint(200, 200)));
}

void tst_ZEMPlotZoomer::lostPlotDoesNotZoom()
{
    QPointer<QWidget> canvas = plot->canvas();
    connect(zoomer, QOverload<const QRectF &>::of(&QwtPlotPicker::selected), zoomer,
            [canvas] { canvas->setParent(nullptr); });
    QVERIFY(!zoomer->dragged(QPoint(100, 100), QPoint(200, 200)));
    QVERIFY(zoomer->log.isEmpty());
    canvas->setParent(plot.get());
}

void tst_ZEMPlotZoomer::depthLimitHolds()
{
    zoomer->setMaxStackDepth(1);
    zoomer->dragged(QPoint(50, 50), QPoint(300, 250));
    zoomer->log.clear();
    QVERIFY(!zoomer->dragged(QPoint(50, 50), QPoint(300, 250)));
    QVERIFY(zoomer->log.isEmpty());
    QCOMPARE(zoomer->zoomStack().size(), 2);
    QVERIFY(zoomer->dragged(QPoint(300, 250), QPoint(50, 50)));
    QCOMPARE(zoomer->zoomRectIndex(), 0u);
}

void tst_ZEMPlotZoomer::rubberBandOfTheUserIsDrawnByThePickerDraw()
{
    Draw draw(zoomer);
    zoomer->setPickerDraw(&draw);
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    zoomer->drawRubberBand(&painter);
    QCOMPARE(draw.bands, 1);
    QCOMPARE(draw.trackers, 0);
    zoomer->drawTracker(&painter);
    QCOMPARE(draw.trackers, 1);
    zoomer->setRubberBand(QwtPicker::RubberBand(QwtPicker::UserRubberBand + 1));
    zoomer->drawRubberBand(&painter);
    QCOMPARE(draw.bands, 2);
}

void tst_ZEMPlotZoomer::otherRubberBandIsQwts()
{
    Draw draw(zoomer);
    zoomer->setPickerDraw(&draw);
    zoomer->setRubberBand(QwtPicker::RectRubberBand);
    zoomer->begin();
    zoomer->append(QPoint(10, 10));
    zoomer->append(QPoint(40, 30));
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    {
        QPainter painter(&image);
        painter.setPen(Qt::red);
        zoomer->drawRubberBand(&painter);
        zoomer->drawTracker(&painter);
    }
    QCOMPARE(draw.bands, 0);
    QCOMPARE(draw.trackers, 0);
    QCOMPARE(image.pixelColor(10, 20), QColor(Qt::red));
}

void tst_ZEMPlotZoomer::rubberBandIsSeenDuringTheDrag()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    QWidget *const canvas = plot->canvas();
    ZemTest::press(canvas, QPoint(100, 100));
    ZemTest::moveTo(canvas, QPoint(150, 120));
    ZemTest::moveTo(canvas, QPoint(200, 160));
    const QImage during = canvas->grab().toImage();
    QCOMPARE(ZemTest::inkRect(during), QRect(QPoint(100, 100), QPoint(201, 161)));
    QCOMPARE(during.pixelColor(100, 130), QColor(Qt::red));
    QCOMPARE(during.pixelColor(150, 100), QColor(Qt::red));
    QCOMPARE(during.pixelColor(150, 130), QColor(Qt::black));
    ZemTest::release(canvas, QPoint(200, 160));
    QVERIFY(ZemTest::inkRect(canvas->grab().toImage()).isNull());
}

void tst_ZEMPlotZoomer::crossIsSeenOnTheWayBack()
{
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    QWidget *const canvas = plot->canvas();
    ZemTest::press(canvas, QPoint(200, 200));
    ZemTest::moveTo(canvas, QPoint(120, 120));
    ZemTest::moveTo(canvas, QPoint(100, 100));
    const QImage during = canvas->grab().toImage();
    QCOMPARE(during.pixelColor(150, 150), QColor(Qt::red));
    QCOMPARE(during.pixelColor(170, 130), QColor(Qt::red));
    QCOMPARE(during.pixelColor(150, 130), QColor(Qt::black));
    ZemTest::release(canvas, QPoint(100, 100));
}

void tst_ZEMPlotZoomer::nullPickerDrawIsRefused()
{
    Draw draw(zoomer);
    zoomer->setPickerDraw(&draw);
    QTest::ignoreMessage(QtDebugMsg, "Error: NULL pickerDraw provided");
    zoomer->setPickerDraw(nullptr);
    zoomer->drawTracker(nullptr);
    QCOMPARE(draw.trackers, 1);
}

void tst_ZEMPlotZoomer::givenDrawsAreNotDeleted()
{
    int deaths = 0;
    {
        Draw first(zoomer, &deaths);
        Draw second(zoomer, &deaths);
        zoomer->setPickerDraw(&first);
        zoomer->setPickerDraw(&second);
        QCOMPARE(deaths, 0);
        delete zoomer;
        QCOMPARE(deaths, 0);
    }
    QCOMPARE(deaths, 2);
}

QTEST_MAIN(tst_ZEMPlotZoomer)
#include "tst_zemplotzoomer.moc"
