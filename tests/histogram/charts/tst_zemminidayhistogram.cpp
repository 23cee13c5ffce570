// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "qwtcompat_p.h"
#include "zemtest.h"

#include <QTimeZone>
#include <QwtPlotMover>
#include <ZEMButton>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>

using ZemTest::render;

/** The chart with what it keeps for subclasses. */
class Chart : public ZEMMiniDayHistogram
{
public:
    using ZEMHistogram::dataChangedTimestamp;
    using ZEMHistogram::mover;
    using ZEMHistogram::plot;
    using ZEMHistogram::titleText;
    using ZEMMiniDayHistogram::ZEMMiniDayHistogram;

    QwtPlotCanvas *canvas() const { return qobject_cast<QwtPlotCanvas *>(plot->canvas()); }
    QwtInterval interval(int axis) const { return plot->axisInterval(axis); }
};

class tst_ZEMMiniDayHistogram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newChart();
    void xScaleDraw();
    void yScaleDraw();
    void xTicks();
    void yAxis();
    void borderAndMargins();
    void initAxisRefineChangesNothing();
    void palette();
    void transparency();
    void moverIsOff();
    void layout();
    void canvasMargins();
    void hasNoLegendAndNoFixedHeight();

    void titleStaysEmpty();
    void movesAreToldButNotTheTitle();
    void pressAndDragPassOn();
    void barsFillTheWidth();
    void groundShowsThrough();
    void ticksArePainted();
};

static ZEMHistogramData *addBars(Chart *chart, double value)
{
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24);
    data->setNrWindows(1);
    const QVector<double> values(24, value);
    data->setWindowValues(0, 0, 24, values.constData(), false);
    auto *series = new ZEMHistogramSeries(QStringLiteral("red"), QBrush(Qt::red), false);
    series->setData(data);
    chart->addSeries(series);
    chart->replot();
    return data;
}

void tst_ZEMMiniDayHistogram::newChart()
{
    Chart chart;
    QCOMPARE(chart.metaObject(), &ZEMHistogram::staticMetaObject);
    QCOMPARE(chart.objectName(), QStringLiteral("ZEMHistogram"));
    QVERIFY(!chart.mover); // no constructor calls init()
    QVERIFY(!chart.layout());

    QWidget host;
    QCOMPARE((new ZEMMiniDayHistogram(&host))->parentWidget(), &host);
}

void tst_ZEMMiniDayHistogram::xScaleDraw()
{
    Chart chart;
    chart.init();
    const QwtScaleDraw *draw = chart.plot->axisScaleDraw(QwtPlot::xBottom);
    QVERIFY(dynamic_cast<const ZEMMiniDayHistogram::xDayScaleDraw *>(draw));
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Backbone));
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Labels));
    QVERIFY(draw->hasComponent(QwtAbstractScaleDraw::Ticks));
    QCOMPARE(draw->tickLength(QwtScaleDiv::MajorTick), 4.0);
    QCOMPARE(draw->tickLength(QwtScaleDiv::MinorTick), 4.0);
    QCOMPARE(draw->tickLength(QwtScaleDiv::MediumTick), 0.0);
    QCOMPARE(QwtCompat::penWidth(*draw), 2.0);
    QCOMPARE(draw->spacing(), 0.0);
}

void tst_ZEMMiniDayHistogram::yScaleDraw()
{
    Chart chart;
    chart.init();
    const QwtScaleDraw *draw = chart.plot->axisScaleDraw(QwtPlot::yLeft);
    QVERIFY(dynamic_cast<const ZEMMiniDayHistogram::yDayScaleDraw *>(draw));
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Backbone));
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Labels));
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Ticks));
    QCOMPARE(draw->spacing(), 0.0);
}

void tst_ZEMMiniDayHistogram::xTicks()
{
    Chart chart;
    chart.init();
    QCOMPARE(chart.plot->axisMaxMajor(QwtPlot::xBottom), 2);
    QCOMPARE(chart.plot->axisMaxMinor(QwtPlot::xBottom), 1);
    QCOMPARE(chart.interval(QwtPlot::xBottom), QwtInterval(0.0, 24.0));
    QCOMPARE(chart.plot->axisStepSize(QwtPlot::xBottom), 12.0);
    const QwtScaleDiv &division = chart.plot->axisScaleDiv(QwtPlot::xBottom);
    QCOMPARE(division.ticks(QwtScaleDiv::MajorTick), (QList<double> {0.0, 12.0, 24.0}));
    QCOMPARE(division.ticks(QwtScaleDiv::MinorTick), QList<double>());
}

void tst_ZEMMiniDayHistogram::yAxis()
{
    Chart chart;
    chart.init();
    QVERIFY(!chart.plot->axisAutoScale(QwtPlot::yLeft));
    QCOMPARE(chart.interval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
    QCOMPARE(chart.plot->axisStepSize(QwtPlot::yLeft), 0.0);
    addBars(&chart, 70.0);
    QCOMPARE(chart.interval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
}

void tst_ZEMMiniDayHistogram::borderAndMargins()
{
    Chart chart;
    chart.init();
    int start = 0;
    int end = 0;
    chart.plot->axisWidget(QwtPlot::xBottom)->getMinBorderDist(start, end);
    QCOMPARE(start, 1);
    QCOMPARE(end, 1);
    QCOMPARE(chart.plot->axisWidget(QwtPlot::xBottom)->margin(), 2);
    QCOMPARE(chart.plot->axisWidget(QwtPlot::yLeft)->margin(), 0);
}

void tst_ZEMMiniDayHistogram::initAxisRefineChangesNothing()
{
    Chart chart;
    const QwtScaleDraw *x = chart.plot->axisScaleDraw(QwtPlot::xBottom);
    const QwtScaleDraw *y = chart.plot->axisScaleDraw(QwtPlot::yLeft);
    chart.initAxisRefine();
    QCOMPARE(chart.plot->axisScaleDraw(QwtPlot::xBottom), x);
    QCOMPARE(chart.plot->axisScaleDraw(QwtPlot::yLeft), y);
}

void tst_ZEMMiniDayHistogram::palette()
{
    Chart chart;
    chart.init();
    const QPalette palette = chart.plot->palette();
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        const auto colorGroup = QPalette::ColorGroup(group);
        const QBrush half(QColor(255, 255, 255, 128));
        QCOMPARE(palette.brush(colorGroup, QPalette::Text).style(), Qt::SolidPattern);
        QCOMPARE(palette.brush(colorGroup, QPalette::Text),
                 palette.brush(colorGroup, QPalette::WindowText));
        QVERIFY(qAbs(palette.color(colorGroup, QPalette::Text).alpha() - half.color().alpha())
                <= 1);
        QCOMPARE(palette.color(colorGroup, QPalette::Text).rgb() & 0xffffff, 0xffffffU);
        QCOMPARE(palette.brush(colorGroup, QPalette::Button), QBrush(QColor(0, 0, 0, 0)));
    }
}

void tst_ZEMMiniDayHistogram::transparency()
{
    Chart chart;
    chart.init();
    QVERIFY(chart.plot->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(chart.canvas()->frameStyle(), 0);
    QVERIFY(!chart.canvas()->testPaintAttribute(QwtPlotCanvas::BackingStore));
    QVERIFY(!chart.canvas()->testPaintAttribute(QwtPlotCanvas::Opaque));
    QVERIFY(!chart.canvas()->testAttribute(Qt::WA_OpaquePaintEvent));
    QVERIFY(chart.plot->canvasBackground().texture().isNull());
}

void tst_ZEMMiniDayHistogram::moverIsOff()
{
    Chart chart;
    chart.init();
    QVERIFY(chart.mover);
    QVERIFY(!chart.mover->isEnabled());
    QCOMPARE(chart.mover->canvas(), chart.canvas());
    QVERIFY(chart.mover->isAxisEnabled(QwtPlot::yLeft)); // left as it is made
}

void tst_ZEMMiniDayHistogram::layout()
{
    Chart chart;
    chart.init();
    auto *layout = qobject_cast<QVBoxLayout *>(chart.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget *>(chart.plot));
}

void tst_ZEMMiniDayHistogram::canvasMargins()
{
    Chart chart;
    chart.init();
    const QwtPlotLayout *layout = chart.plot->plotLayout();
    QCOMPARE(layout->canvasMargin(QwtPlot::yRight), 0);
    for (const int axis : {QwtPlot::yLeft, QwtPlot::xBottom, QwtPlot::xTop}) {
        QCOMPARE(layout->canvasMargin(axis), -1);
    }
}

void tst_ZEMMiniDayHistogram::hasNoLegendAndNoFixedHeight()
{
    Chart chart;
    chart.init();
    QVERIFY(!chart.findChild<QwtLegend *>());
    QCOMPARE(chart.plot->maximumHeight(), QWIDGETSIZE_MAX);
    QVERIFY(chart.plot->sizePolicy().verticalPolicy() != QSizePolicy::Fixed);
}

void tst_ZEMMiniDayHistogram::titleStaysEmpty()
{
    Chart chart;
    QCOMPARE(chart.title(), QString());
    chart.init();
    QSignalSpy changed(&chart, SIGNAL(changed(ZEMHistogram *)));
    const QDateTime midnight(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc());
    chart.setDataChangedTimestamp(midnight);
    QCOMPARE(chart.dataChangedTimestamp, midnight);
    chart.updateTitle(QwtInterval(0.0, 24.0));
    QCOMPARE(chart.title(), QString());
    QCOMPARE(changed.count(), 0);
}

void tst_ZEMMiniDayHistogram::movesAreToldButNotTheTitle()
{
    Chart chart;
    chart.init();
    chart.setScalePeriod(24.0);
    chart.setScaleInterval(QwtInterval(-48.0, 24.0));
    QSignalSpy changed(&chart, SIGNAL(changed(ZEMHistogram *)));
    QSignalSpy pages(&chart, SIGNAL(has_page(bool, bool)));
    chart.showPrevPeriod();
    QCOMPARE(chart.interval(QwtPlot::xBottom), QwtInterval(-24.0, 0.0));
    QCOMPARE(pages.count(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(chart.title(), QString());
}

void tst_ZEMMiniDayHistogram::pressAndDragPassOn()
{
    ZEMButton button;
    auto *layout = new QVBoxLayout(&button);
    auto *chart = new Chart;
    chart->init();
    chart->setScalePeriod(24.0);
    chart->setScaleInterval(QwtInterval(-48.0, 24.0));
    layout->addWidget(chart);
    button.resize(200, 100);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button, ZemTest::hangs));

    QSignalSpy clicked(&button, &ZEMButton::clicked);
    ZemTest::press(chart->canvas(), QPoint(20, 10));
    QVERIFY(button.isDown());
    ZemTest::moveTo(chart->canvas(), QPoint(90, 10));
    ZemTest::release(chart->canvas(), QPoint(90, 10));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(chart->interval(QwtPlot::xBottom), QwtInterval(0.0, 24.0));
    QCOMPARE(chart->interval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
}

void tst_ZEMMiniDayHistogram::barsFillTheWidth()
{
    Chart chart;
    chart.init();
    addBars(&chart, 10.0);
    chart.resize(136, 40);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart, ZemTest::hangs));
    const QImage image = render(chart.canvas());
    QVERIFY2(image.width() >= 134, qPrintable(QString::number(image.width())));
    for (int x = 1; x < image.width() - 1; ++x) {
        QCOMPARE(image.pixelColor(x, image.height() / 2), QColor(Qt::red));
    }
}

void tst_ZEMMiniDayHistogram::groundShowsThrough()
{
    QWidget ground;
    ground.setAutoFillBackground(true);
    QPalette palette = ground.palette();
    palette.setColor(QPalette::Window, Qt::green);
    ground.setPalette(palette);
    ground.resize(136, 40);
    auto *chart = new Chart(&ground);
    chart->init();
    addBars(chart, 5.0);
    chart->resize(136, 40);
    ground.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ground, ZemTest::hangs));
    const QImage image = ground.grab().toImage();
    QCOMPARE(image.pixelColor(68, 3), QColor(Qt::green));
    QCOMPARE(image.pixelColor(68, 28), QColor(Qt::red));
}

void tst_ZEMMiniDayHistogram::ticksArePainted()
{
    Chart chart;
    chart.init();
    chart.resize(136, 40);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart, ZemTest::hangs));
    auto *scale = chart.plot->axisWidget(QwtPlot::xBottom);
    const QImage image = render(scale);
    QVector<int> columns;
    int rows = 0;
    for (int x = 0; x < image.width(); ++x) {
        int ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            ink += image.pixelColor(x, y) != QColor(Qt::black) ? 1 : 0;
        }
        if (ink > 0) {
            columns << x;
            rows = qMax(rows, ink);
        }
    }
    QCOMPARE(columns.size(), 3 * 2); // three ticks, two pixels wide
    QVERIFY(rows >= 4 && rows <= 5);
    QVERIFY(columns.first() <= 1);
    QVERIFY(columns.last() >= image.width() - 2);
    QVERIFY(qAbs(columns[2] - image.width() / 2) <= 2);
}

QTEST_MAIN(tst_ZEMMiniDayHistogram)
#include "tst_zemminidayhistogram.moc"
