// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMColumnSymbol>
#include <ZEMHistogramData>
#include <ZEMHistogramLegendItem>
#include <ZEMHistogramSeries>

#include "countingplot.h"
#include "zemtest.h"

#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QPixmapCache>
#include <QTest>

#include <memory>
#include <vector>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_map.h>

namespace {

constexpr int canvasWidth = 480;
constexpr int canvasHeight = 200;
constexpr int canvasMargin = 4; // of a new plot, between the edge of the canvas and its scales
const QColor columnColor(0, 90, 200);
const QColor iconColor(250, 220, 0);
const QColor ground(Qt::black);
const QString iconPath = QStringLiteral("test/icon");

class Series : public ZEMHistogramSeries
{
public:
    using ZEMHistogramSeries::columnRect;
    using ZEMHistogramSeries::ZEMHistogramSeries;
};

using Plot = ZemTest::CountingPlot<QwtPlot>;

QwtScaleMap scaleMap(double s1, double s2, double p1, double p2)
{
    QwtScaleMap map;
    map.setScaleInterval(s1, s2);
    map.setPaintInterval(p1, p2);
    return map;
}

/** A plot of which only the canvas shows: 24 slots of 20 pixels, 10 units of 20 pixels. */
class CanvasFixture
{
public:
    CanvasFixture()
    {
        plot.enableAxis(QwtPlot::xBottom, false);
        plot.enableAxis(QwtPlot::yLeft, false);
        plot.setCanvasBackground(ground);
        static_cast<QwtPlotCanvas *>(plot.canvas())->setFrameStyle(QFrame::NoFrame);
        plot.setAxisScale(QwtPlot::yLeft, 0.0, 10.0);
        plot.resize(canvasWidth + 2 * canvasMargin, canvasHeight + 2 * canvasMargin);
    }

    QImage image(double left, double right)
    {
        plot.setAxisScale(QwtPlot::xBottom, left, right);
        plot.replot();
        QImage image(plot.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        plot.render(&image);
        return image;
    }

    Plot plot;
};

int pixel(const CanvasFixture &fixture, QwtPlot::Axis axis, double value)
{
    return qRound(fixture.plot.canvasMap(axis).transform(value));
}

} // namespace

class tst_ZEMHistogramSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newSeriesHasFramelessColumns_data();
    void newSeriesHasFramelessColumns();
    void coloredSeries();
    void initPutsANewSymbol();
    void colorReachesBrushPenAndSymbol();
    void colorAlwaysSetsABlackPen();
    void colorAndIconAskForAReplot();
    void foreignSymbolIsLeftAlone();
    void legendItemIsNewAtEachRequest();
    void legendItemLooks();
    void invalidSampleHasNoColumn_data();
    void invalidSampleHasNoColumn();
    void columnIsCutAtTheLeftOfTheCanvas_data();
    void columnIsCutAtTheLeftOfTheCanvas();
    void columnKeepsFlagsAndHeight();
    void plotShowsTwentyFourColumns();
    void plotCutsTheMergedBarThatReachesIn();
    void plotShowsIconsInIconColumnsOnly_data();
    void plotShowsIconsInIconColumnsOnly();
    void blackPenIsNotSeen();
    void panningReadsAnotherStretch();
};

void tst_ZEMHistogramSeries::init()
{
    QPixmapCache::clear();
    QPixmapCache::insert(iconPath, ZemTest::flatPixmap(QSize(12, 16), iconColor));
}

void tst_ZEMHistogramSeries::newSeriesHasFramelessColumns_data()
{
    QTest::addColumn<bool>("iconColumns");
    QTest::addColumn<int>("style");

    QTest::newRow("icon columns") << true << 1000;
    QTest::newRow("plain columns") << false << 0;
}

void tst_ZEMHistogramSeries::newSeriesHasFramelessColumns()
{
    QFETCH(bool, iconColumns);
    QFETCH(int, style);

    const ZEMHistogramSeries series(QStringLiteral("Gas"), iconColumns);
    QCOMPARE(series.title().text(), QStringLiteral("Gas"));
    QCOMPARE(series.style(), QwtPlotHistogram::Columns);
    QVERIFY(dynamic_cast<const ZEMColumnSymbol *>(series.symbol()));
    QCOMPARE(int(series.symbol()->style()), style);
    QCOMPARE(series.symbol()->frameStyle(), QwtColumnSymbol::NoFrame);
    QCOMPARE(series.symbol()->lineWidth(), 1);
    QCOMPARE(series.brush(), QBrush());
}

void tst_ZEMHistogramSeries::coloredSeries()
{
    const ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, true);
    QCOMPARE(series.title().text(), QStringLiteral("Gas"));
    QCOMPARE(series.style(), QwtPlotHistogram::Columns);
    QCOMPARE(series.symbol()->style(), QwtColumnSymbol::UserStyle);
    QCOMPARE(series.brush(), QBrush(columnColor));
    QCOMPARE(series.symbol()->palette().brush(QPalette::Window), QBrush(columnColor));
}

void tst_ZEMHistogramSeries::initPutsANewSymbol()
{
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, true);
    series.init(QwtColumnSymbol::Box);
    QVERIFY(dynamic_cast<const ZEMColumnSymbol *>(series.symbol()));
    QCOMPARE(series.symbol()->style(), QwtColumnSymbol::Box);
    QCOMPARE(series.symbol()->frameStyle(), QwtColumnSymbol::NoFrame);
    QVERIFY(series.symbol()->palette().brush(QPalette::Window) != QBrush(columnColor));
    series.setColor(columnColor);
    QCOMPARE(series.symbol()->palette().brush(QPalette::Window), QBrush(columnColor));
}

void tst_ZEMHistogramSeries::colorReachesBrushPenAndSymbol()
{
    const QBrush brush(columnColor, Qt::Dense4Pattern);
    ZEMHistogramSeries series(QStringLiteral("Gas"), false);
    series.setColor(brush);
    QCOMPARE(series.brush(), brush);
    const QPalette &palette = series.symbol()->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(palette.brush(group, QPalette::Window), brush);
        QCOMPARE(palette.brush(group, QPalette::Button), brush);
        QCOMPARE(palette.brush(group, QPalette::WindowText), brush);
        QCOMPARE(palette.brush(group, QPalette::ButtonText), brush);
        QCOMPARE(palette.brush(group, QPalette::Base), QPalette().brush(group, QPalette::Base));
        QCOMPARE(palette.brush(group, QPalette::Text), QPalette().brush(group, QPalette::Text));
    }
}

void tst_ZEMHistogramSeries::colorAlwaysSetsABlackPen()
{
    ZEMHistogramSeries series(QStringLiteral("Gas"), false);
    series.setPen(QPen(Qt::red, 3.0));
    series.setColor(columnColor);
    QCOMPARE(series.pen(), QPen(QColor(Qt::black)));
}

void tst_ZEMHistogramSeries::colorAndIconAskForAReplot()
{
    Plot plot;
    plot.setAutoReplot(true);
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, true);
    series.attach(&plot);

    // Brush and pen are what they were, so that only the symbol's change is left to tell.
    plot.replots = 0;
    series.setColor(columnColor);
    QCOMPARE(plot.replots, 1);
    series.setIcon(iconPath);
    QCOMPARE(plot.replots, 2);
    series.detach();
}

void tst_ZEMHistogramSeries::foreignSymbolIsLeftAlone()
{
    ZEMHistogramSeries series(QStringLiteral("Gas"), true);
    auto *symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
    const QPalette palette = symbol->palette();
    series.setSymbol(symbol);
    series.setColor(columnColor);
    series.setIcon(iconPath);
    QCOMPARE(series.brush(), QBrush(columnColor));
    QCOMPARE(symbol->palette(), palette);

    series.setSymbol(nullptr);
    series.setColor(Qt::red);
    series.setIcon(iconPath);
    QCOMPARE(series.brush(), QBrush(Qt::red));
}

void tst_ZEMHistogramSeries::legendItemIsNewAtEachRequest()
{
    const ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    const std::unique_ptr<QWidget> first(series.legendItem());
    const std::unique_ptr<QWidget> second(series.legendItem());
    QVERIFY(first && second);
    QVERIFY(first != second);
    QCOMPARE(first->parent(), nullptr);
}

void tst_ZEMHistogramSeries::legendItemLooks()
{
    const ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    const std::unique_ptr<QWidget> widget(series.legendItem());
    auto *item = qobject_cast<ZEMHistogramLegendItem *>(widget.get());
    QVERIFY(item);
    QCOMPARE(item->palette().color(QPalette::Active, QPalette::Text), QColor(Qt::white));
    QCOMPARE(item->identifierSize(), QSize(9, 9));
    // 10 before the identifier, margin 2, identifier 9, spacing 2 on both sides
    QCOMPARE(item->indent(), 25);
    const QPixmap background(QStringLiteral(":/zem/graphics/main/text_bg_medium.png"));
    QVERIFY(!background.isNull());
    QCOMPARE(item->getBackground().toImage(), background.toImage());
    QCOMPARE(item->size(), background.size());
    QVERIFY(item->identifier().isNull());
    QVERIFY(item->text().isEmpty());
}

void tst_ZEMHistogramSeries::invalidSampleHasNoColumn_data()
{
    QTest::addColumn<QwtInterval>("interval");

    QTest::newRow("empty") << QwtInterval();
    QTest::newRow("reversed") << QwtInterval(3.0, 2.0);
    QTest::newRow("no width, end excluded") << QwtInterval(3.0, 3.0, QwtInterval::ExcludeMaximum);
    QTest::newRow("no width, start excluded") << QwtInterval(3.0, 3.0, QwtInterval::ExcludeMinimum);
}

void tst_ZEMHistogramSeries::invalidSampleHasNoColumn()
{
    QFETCH(QwtInterval, interval);

    const Series series(QStringLiteral("Gas"), false);
    const QwtColumnRect rect = series.columnRect(QwtIntervalSample(5.0, interval),
                                                 scaleMap(0, 10, 5, 105), scaleMap(0, 10, 200, 0));
    QCOMPARE(rect.hInterval, QwtInterval(0.0, -1.0));
    QCOMPARE(rect.vInterval, QwtInterval(0.0, -1.0));
    QCOMPARE(rect.direction, QwtColumnRect::BottomToTop);
}

void tst_ZEMHistogramSeries::columnIsCutAtTheLeftOfTheCanvas_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");

    // 20 to 30 on pixels 5 to 105
    QTest::newRow("inside") << 22.0 << 23.0 << 25.0 << 35.0;
    QTest::newRow("at the edge") << 20.0 << 21.0 << 5.0 << 15.0;
    QTest::newRow("from the left") << 3.0 << 21.0 << 5.0 << 15.0;
    QTest::newRow("over all") << 3.0 << 80.0 << 5.0 << 605.0;
    QTest::newRow("out to the right") << 29.0 << 32.0 << 95.0 << 125.0;
}

void tst_ZEMHistogramSeries::columnIsCutAtTheLeftOfTheCanvas()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, left);
    QFETCH(double, right);

    const Series series(QStringLiteral("Gas"), false);
    const QwtColumnRect rect = series.columnRect(QwtIntervalSample(5.0, start, end),
                                                 scaleMap(20, 30, 5, 105), scaleMap(0, 10, 200, 0));
    QCOMPARE(rect.hInterval.minValue(), left);
    QCOMPARE(rect.hInterval.maxValue(), right);
}

void tst_ZEMHistogramSeries::columnKeepsFlagsAndHeight()
{
    const Series series(QStringLiteral("Gas"), false);
    const QwtIntervalSample sample(5.0, QwtInterval(-4.0, 3.0, QwtInterval::ExcludeMaximum));
    const QwtColumnRect rect =
        series.columnRect(sample, scaleMap(0, 10, 0, 100), scaleMap(0, 10, 200, 0));
    QCOMPARE(rect.hInterval, QwtInterval(0.0, 30.0, QwtInterval::ExcludeMaximum));
    QCOMPARE(rect.vInterval.normalized().minValue(), 100.0);
    QCOMPARE(rect.vInterval.normalized().maxValue(), 200.0);
    QCOMPARE(rect.direction, QwtColumnRect::BottomToTop);

    // A bar that ends before the canvas begins is left with a reversed interval.
    const QwtColumnRect before = series.columnRect(
        QwtIntervalSample(5.0, -4.0, -3.0), scaleMap(0, 10, 0, 100), scaleMap(0, 10, 200, 0));
    QVERIFY(!before.hInterval.isValid());
}

void tst_ZEMHistogramSeries::plotShowsTwentyFourColumns()
{
    CanvasFixture fixture;
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24);
    data->setCenterValue(0.25);
    data->setNrWindows(1);
    std::vector<double> values(24);
    for (size_t i = 0; i < values.size(); ++i) {
        values[i] = 1.0 + double(i % 8);
    }
    data->setWindowValues(0, 0, 24, values.data(), false);
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    series.setData(data);
    series.attach(&fixture.plot);

    const QImage image = fixture.image(0.0, 24.0);
    for (int i = 0; i < 24; ++i) {
        const int middle = pixel(fixture, QwtPlot::xBottom, i + 0.5);
        const int gap = pixel(fixture, QwtPlot::xBottom, i);
        const int top = pixel(fixture, QwtPlot::yLeft, values[size_t(i)]);
        QCOMPARE(image.pixelColor(middle, top + 2), columnColor);
        QCOMPARE(image.pixelColor(middle, top - 2), ground);
        QCOMPARE(image.pixelColor(gap, pixel(fixture, QwtPlot::yLeft, 0.5)), ground);
    }
    series.detach();
}

void tst_ZEMHistogramSeries::plotCutsTheMergedBarThatReachesIn()
{
    CanvasFixture fixture;
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24);
    data->setNrWindows(2);
    std::vector<double> values(24, 5.0);
    data->setWindowValues(0, 0, 24, values.data(), true);
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    series.setData(data);
    series.attach(&fixture.plot);

    const QImage image = fixture.image(-12.0, 12.0);
    const int row = pixel(fixture, QwtPlot::yLeft, 2.5);
    const int left = int(fixture.plot.canvasMap(QwtPlot::xBottom).p1());
    const int end = pixel(fixture, QwtPlot::xBottom, 0.0);
    QVERIFY(left >= canvasMargin - 1);
    QCOMPARE(image.pixelColor(left - 1, row), ground);
    QCOMPARE(image.pixelColor(left, row), columnColor);
    QCOMPARE(image.pixelColor(end - 2, row), columnColor);
    QCOMPARE(image.pixelColor(end, row), ground);
    series.detach();
}

void tst_ZEMHistogramSeries::plotShowsIconsInIconColumnsOnly_data()
{
    QTest::addColumn<bool>("iconColumns");

    QTest::newRow("icon columns") << true;
    QTest::newRow("plain columns") << false;
}

void tst_ZEMHistogramSeries::plotShowsIconsInIconColumnsOnly()
{
    QFETCH(bool, iconColumns);

    CanvasFixture fixture;
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24);
    data->setNrWindows(1);
    std::vector<double> values(24, 5.0);
    data->setWindowValues(0, 0, 24, values.data(), false);
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, iconColumns);
    series.setIcon(iconPath);
    series.setData(data);
    series.attach(&fixture.plot);

    const QImage image = fixture.image(0.0, 24.0);
    const QPoint middle(pixel(fixture, QwtPlot::xBottom, 7.5), pixel(fixture, QwtPlot::yLeft, 2.5));
    QCOMPARE(image.pixelColor(middle), iconColumns ? iconColor : columnColor);
    QCOMPARE(image.pixelColor(middle.x(), pixel(fixture, QwtPlot::yLeft, 4.5)), columnColor);

    const QImage narrow = fixture.image(0.0, 60.0);
    QCOMPARE(narrow.pixelColor(pixel(fixture, QwtPlot::xBottom, 7.5), middle.y()), columnColor);
    series.detach();
}

void tst_ZEMHistogramSeries::blackPenIsNotSeen()
{
    for (const bool iconColumns : {true, false}) {
        CanvasFixture fixture;
        fixture.plot.setCanvasBackground(QColor(Qt::white));
        auto *data = new ZEMHistogramData;
        data->setWindowSize(24);
        data->setCenterValue(0.25);
        data->setNrWindows(1);
        std::vector<double> values(24, 5.0);
        data->setWindowValues(0, 0, 24, values.data(), false);
        ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, iconColumns);
        series.setData(data);
        series.attach(&fixture.plot);
        const QImage image = fixture.image(0.0, 24.0);
        for (int x = canvasMargin; x < canvasMargin + canvasWidth; ++x) {
            for (int y = canvasMargin; y < canvasMargin + canvasHeight; ++y) {
                QVERIFY(image.pixelColor(x, y) != QColor(Qt::black));
            }
        }
        series.detach();
    }
}

void tst_ZEMHistogramSeries::panningReadsAnotherStretch()
{
    CanvasFixture fixture;
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24);
    data->setNrWindows(3);
    for (uint window = 0; window < 3; ++window) {
        const std::vector<double> values(24, 2.0 + 3.0 * window);
        data->setWindowValues(window, 0, 24, values.data(), false);
    }
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    series.setData(data);
    series.attach(&fixture.plot);
    for (int window = 0; window < 3; ++window) {
        const double left = 24.0 * (window - 2);
        const QImage image = fixture.image(left, left + 24.0);
        const int x = pixel(fixture, QwtPlot::xBottom, left + 12.5);
        const int top = pixel(fixture, QwtPlot::yLeft, 2.0 + 3.0 * window);
        QCOMPARE(image.pixelColor(x, top + 2), columnColor);
        QCOMPARE(image.pixelColor(x, top - 2), ground);
    }
    series.detach();
}

QTEST_MAIN(tst_ZEMHistogramSeries)
#include "tst_zemhistogramseries.moc"
