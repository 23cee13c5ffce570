// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartfixture.h"
#include "paintcounter.h"
#include "zemtest.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartMonthHistogram>

#include <QImage>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>
#include <qwt_scale_div.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

using namespace ZemTest;

namespace {

/** A shown chart of weeks, and the axis with their dates. */
class MonthStage
{
public:
    explicit MonthStage(const QDateTime &firstWeek)
    {
        chart.init();
        chart.resize(500, 340);
        chart.setDataChangedTimestamp(firstWeek);
        chart.show();
        isReady = QTest::qWaitForWindowExposed(&chart, ZemTest::hangs);
        axis = chart.findChild<QwtPlot *>()->axisWidget(QwtPlot::xBottom);
    }

    ZEMSmartMonthHistogram chart;
    QWidget *axis = nullptr;
    bool isReady = false;
};

} // namespace

/** How a chart moves its view, and what it shares with its child. */
class tst_ZEMHistogramViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void periodAndIntervalReachAllChildren();
    void timestampReachesChildrenFirst();
    void timestampShowsOnAnAxisOfDates();
    void dateOfATimestampCountsNotItsInstant();
    void hasPageWithNullPointers();
    void pagingSlots();
    void hasPageSignalFollowsTheTitle();
    void otherAxesDoNotChangeTheTitle();

    void dragByMouseMovesTheView();
    void shortDragDoesNothing();
    void dragStopsAtTheNewestPeriod();
    void dragPaintsTheMovedBars();

    void secondChildIsIgnored();
    void nullChildIsIgnored();
    void childIsAWidgetOfItsParent();
    void deletedChildIsForgotten();
    void moveSyncsTheChildOnly();
    void moveOfAChildSyncsTheParent();
    void syncAxisWithAnotherInterval();
    void syncAxisWithTheSameIntervalDividesAnew();
    void replotReachesTheChildAndItsHook();
    void showReachesTheHookOfTheChild();
    void sizeHintAddsTheChild();
};

void tst_ZEMHistogramViews::initTestCase()
{
    qRegisterMetaType<ZEMHistogram *>();
}

void tst_ZEMHistogramViews::periodAndIntervalReachAllChildren()
{
    Chart top;
    auto *middle = new Chart;
    auto *bottom = new Chart;
    bottom->init();
    middle->setChild(bottom);
    middle->init();
    top.setChild(middle);
    top.init();
    top.setScalePeriod(7.0);
    top.setScaleInterval(QwtInterval(-14.0, 7.0));
    for (const Chart *chart : {static_cast<const Chart *>(&top), static_cast<const Chart *>(middle),
                               static_cast<const Chart *>(bottom)}) {
        QCOMPARE(chart->mover->axisPeriodSize(QwtPlot::xBottom), 7.0);
        QCOMPARE(chart->mover->axisValidInterval(QwtPlot::xBottom), QwtInterval(-14.0, 7.0));
    }
}

void tst_ZEMHistogramViews::timestampReachesChildrenFirst()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    chart.init();
    QList<ZEMHistogram *> order;
    for (Chart *each : {&chart, child}) {
        connect(each, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), this,
                [&](ZEMHistogram *histogram) { order << histogram; });
    }
    const QDateTime t(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc());
    chart.setDataChangedTimestamp(t);
    QCOMPARE(chart.dataChangedTimestamp, t);
    QCOMPARE(child->dataChangedTimestamp, t);
    QCOMPARE(chart.title(), QStringLiteral("0 to 10"));
    QCOMPARE(order, (QList<ZEMHistogram *> {child, &chart}));
}

void tst_ZEMHistogramViews::timestampShowsOnAnAxisOfDates()
{
    MonthStage stage(QDateTime(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc()));
    QVERIFY(stage.isReady);
    const QImage before = render(stage.axis);
    QCoreApplication::processEvents();
    const PaintCounter paints(stage.axis);
    stage.chart.setDataChangedTimestamp(
        QDateTime(QDate(2016, 6, 6), QTime(0, 0), QTimeZone::utc()));
    stage.chart.replot();
    QCoreApplication::processEvents();
    QVERIFY(paints.count > 0);
    QVERIFY(render(stage.axis) != before);
}

void tst_ZEMHistogramViews::dateOfATimestampCountsNotItsInstant()
{
    const QByteArray former = qgetenv("TZ");
    qputenv("TZ", "Europe/Amsterdam");
    const auto restore =
        qScopeGuard([&] { former.isNull() ? qunsetenv("TZ") : qputenv("TZ", former); });
    const QDateTime evening(QDate(2018, 3, 4), QTime(23, 0), QTimeZone::utc());
    const QDateTime midnight(QDate(2018, 3, 5), QTime(0, 0));
    QCOMPARE(evening, midnight);
    MonthStage stage(evening);
    QVERIFY(stage.isReady);
    const QImage before = render(stage.axis);
    stage.chart.setDataChangedTimestamp(midnight);
    stage.chart.replot();
    QVERIFY(render(stage.axis) != before);
}

void tst_ZEMHistogramViews::hasPageWithNullPointers()
{
    Chart chart;
    initForPaging(&chart);
    QSignalSpy spy(&chart, SIGNAL(has_page(bool, bool)));
    chart.has_page(nullptr, nullptr);
    bool prev = false;
    bool next = true;
    chart.has_page(&prev, nullptr);
    chart.has_page(nullptr, &next);
    QVERIFY(prev);
    QVERIFY(!next);
    QCOMPARE(spy.count(), 0);
}

void tst_ZEMHistogramViews::pagingSlots()
{
    Chart chart;
    initForPaging(&chart);
    QMetaObject::invokeMethod(&chart, "showPrevPeriod");
    QCOMPARE(viewOf(chart), QwtInterval(-10.0, 0.0));
    QMetaObject::invokeMethod(&chart, "showPrevPeriod");
    QCOMPARE(viewOf(chart), QwtInterval(-20.0, -10.0));
    QMetaObject::invokeMethod(&chart, "showNextPeriod");
    QCOMPARE(viewOf(chart), QwtInterval(-10.0, 0.0));
    chart.showPrevPeriod();
    chart.showPrevPeriod();
    chart.showPrevPeriod();
    QCOMPARE(viewOf(chart), QwtInterval(-30.0, -20.0));
    QMetaObject::invokeMethod(&chart, "showFirstPeriod");
    QCOMPARE(viewOf(chart), QwtInterval(0.0, 10.0));
    QCOMPARE(chart.title(), QStringLiteral("0 to 10"));
}

void tst_ZEMHistogramViews::hasPageSignalFollowsTheTitle()
{
    Chart chart;
    initForPaging(&chart);
    QStringList events;
    connect(&chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), this,
            [&] { events << QStringLiteral("changed ") + chart.title(); });
    connect(&chart, QOverload<bool, bool>::of(&ZEMHistogram::has_page), this,
            [&](bool prev, bool next) {
                events << QStringLiteral("has_page %1 %2").arg(prev).arg(next);
            });
    chart.showPrevPeriod();
    chart.showPrevPeriod();
    chart.showPrevPeriod();
    QCOMPARE(events,
             (QStringList {"changed -10 to 0", "has_page 1 1", "changed -20 to -10", "has_page 1 1",
                           "changed -30 to -20", "has_page 0 1"}));
}

void tst_ZEMHistogramViews::otherAxesDoNotChangeTheTitle()
{
    Chart chart;
    initForPaging(&chart);
    QSignalSpy spy(&chart, SIGNAL(has_page(bool, bool)));
    chart.mover->setAxisPeriod(QwtPlot::yLeft, 10.0);
    chart.mover->moveAxisNextPeriod(QwtPlot::yLeft);
    QCOMPARE(spy.count(), 0);
    QVERIFY(chart.calls.isEmpty());
}

static void showForDragging(Chart *chart)
{
    initForPaging(chart);
    chart->resize(493, 400);
    chart->show();
    QVERIFY(QTest::qWaitForWindowExposed(chart, ZemTest::hangs));
}

void tst_ZEMHistogramViews::dragByMouseMovesTheView()
{
    Chart chart;
    showForDragging(&chart);
    QWidget *canvas = chart.plot->canvas();
    const double slotsPerPixel = chart.plot->invTransform(QwtPlot::xBottom, 1)
        - chart.plot->invTransform(QwtPlot::xBottom, 0);

    const QPoint start(100, 100);
    press(canvas, start);
    moveTo(canvas, start + QPoint(60, 0));
    release(canvas, start + QPoint(60, 0));
    QVERIFY(qAbs(viewOf(chart).minValue() + 60 * slotsPerPixel) < 1e-9);
    QVERIFY(qAbs(viewOf(chart).width() - 10.0) < 1e-9);
    QCOMPARE(chart.calls.size(), 1);
    QVERIFY(chart.calls[0].startsWith(QLatin1String("updateTitle ")));
}

void tst_ZEMHistogramViews::shortDragDoesNothing()
{
    Chart chart;
    showForDragging(&chart);
    QWidget *canvas = chart.plot->canvas();
    const QPoint start(100, 100);
    press(canvas, start);
    moveTo(canvas, start + QPoint(5, 0));
    QCOMPARE(viewOf(chart), QwtInterval(0.0, 10.0));
    moveTo(canvas, start + QPoint(6, 0));
    QVERIFY(viewOf(chart).minValue() < 0.0);
    release(canvas, start + QPoint(6, 0));
}

void tst_ZEMHistogramViews::dragStopsAtTheNewestPeriod()
{
    Chart chart;
    showForDragging(&chart);
    QWidget *canvas = chart.plot->canvas();
    press(canvas, QPoint(200, 100));
    moveTo(canvas, QPoint(20, 100));
    QCOMPARE(viewOf(chart), QwtInterval(0.0, 10.0));
    release(canvas, QPoint(20, 100));
}

void tst_ZEMHistogramViews::dragPaintsTheMovedBars()
{
    Chart chart;
    showForDragging(&chart);
    auto *data = new ZEMHistogramData(nullptr);
    data->setWindowSize(10);
    data->setNrWindows(4);
    const QVector<double> full(10, 10.0);
    data->setWindowValues(2, 0, 10, full.constData(), false); // just before the view
    auto *series = new ZEMHistogramSeries(QStringLiteral("red"), QBrush(Qt::red), false);
    series->setData(data);
    chart.addSeries(series);
    chart.replot();

    const auto redAt = [&](int x) {
        const QImage image = render(chart.plot->canvas());
        return image.pixelColor(x, image.height() - 10) == QColor(Qt::red);
    };
    QWidget *canvas = chart.plot->canvas();
    QVERIFY(!redAt(20));
    press(canvas, QPoint(50, 100));
    moveTo(canvas, QPoint(150, 100));
    release(canvas, QPoint(150, 100));
    QVERIFY(redAt(20));
    QVERIFY(redAt(80));
    QVERIFY(!redAt(150));
}

void tst_ZEMHistogramViews::secondChildIsIgnored()
{
    Chart chart;
    Chart second;
    auto *first = new Chart;
    chart.setChild(first);
    chart.setChild(&second);
    QCOMPARE(chart.getChild(), static_cast<ZEMHistogram *>(first));
    QCOMPARE(first->getParent(), static_cast<ZEMHistogram *>(&chart));
    QVERIFY(!second.parentWidget());
    QVERIFY(!second.getParent());
}

void tst_ZEMHistogramViews::nullChildIsIgnored()
{
    Chart chart;
    chart.setChild(nullptr);
    QVERIFY(!chart.getChild());
    chart.init();
    chart.replot();
}

void tst_ZEMHistogramViews::childIsAWidgetOfItsParent()
{
    Chart chart;
    auto *child = new Chart;
    chart.setChild(child);
    QCOMPARE(child->parentWidget(), static_cast<QWidget *>(&chart));
    Chart other;
    child->setParentHistogram(&other);
    QCOMPARE(child->getParent(), static_cast<ZEMHistogram *>(&other));
}

void tst_ZEMHistogramViews::deletedChildIsForgotten()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    initForPaging(&chart);
    delete child;
    chart.showPrevPeriod();
    chart.replot();
    QVERIFY(!chart.getChild());
}

void tst_ZEMHistogramViews::moveSyncsTheChildOnly()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    initForPaging(&chart);
    child->calls.clear();
    QSignalSpy childPages(child, SIGNAL(has_page(bool, bool)));

    chart.showPrevPeriod();
    QCOMPARE(viewOf(*child), QwtInterval(-10.0, 0.0));
    QVERIFY(child->calls.isEmpty());
    QCOMPARE(childPages.count(), 0);

    // The child's mover did not follow: its own next period starts where it was.
    child->mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QCOMPARE(viewOf(*child), QwtInterval(0.0, 10.0));
}

void tst_ZEMHistogramViews::moveOfAChildSyncsTheParent()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    initForPaging(&chart);
    child->showPrevPeriod();
    QCOMPARE(viewOf(*child), QwtInterval(-10.0, 0.0));
    QCOMPARE(viewOf(chart), QwtInterval(-10.0, 0.0));
    QVERIFY(chart.calls.isEmpty());
}

void tst_ZEMHistogramViews::syncAxisWithAnotherInterval()
{
    Chart source;
    source.init();
    source.plot->setAxisScale(QwtPlot::xBottom, -4.0, 6.0, 5.0);
    source.plot->replot();
    Chart chart;
    chart.init();
    chart.syncAxis(QwtPlot::xBottom, source.plot);
    QCOMPARE(viewOf(chart), QwtInterval(-4.0, 6.0));
    QCOMPARE(chart.plot->axisStepSize(QwtPlot::xBottom), 5.0);
}

/** Counts how often the scale is divided. */
class CountingEngine : public QwtLinearScaleEngine
{
public:
    QwtScaleDiv divideScale(double x1, double x2, int maxMajor, int maxMinor,
                            double step) const override
    {
        intervals << QwtInterval(x1, x2);
        return QwtLinearScaleEngine::divideScale(x1, x2, maxMajor, maxMinor, step);
    }
    mutable QList<QwtInterval> intervals;
};

void tst_ZEMHistogramViews::syncAxisWithTheSameIntervalDividesAnew()
{
    Chart source;
    source.init();
    Chart chart;
    chart.init();
    auto *engine = new CountingEngine;
    chart.plot->setAxisScaleEngine(QwtPlot::xBottom, engine);
    chart.plot->replot();
    engine->intervals.clear();

    chart.syncAxis(QwtPlot::xBottom, source.plot);
    QCOMPARE(viewOf(chart), QwtInterval(0.0, 10.0));
    QVERIFY(engine->intervals.contains(QwtInterval(0.0, 10.1)));
    QCOMPARE(engine->intervals.last(), QwtInterval(0.0, 10.0));
    const QList<double> ticks =
        chart.plot->axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
    QCOMPARE(ticks, (QList<double> {0.0, 2.0, 4.0, 6.0, 8.0, 10.0}));
}

void tst_ZEMHistogramViews::replotReachesTheChildAndItsHook()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    chart.init();
    chart.calls.clear();
    child->calls.clear();
    chart.replot();
    QCOMPARE(child->calls, (QStringList {"replot", "changed"}));
    QCOMPARE(child->changedBy, chart.plot);
    QCOMPARE(chart.calls, QStringList {"replot"});
}

void tst_ZEMHistogramViews::showReachesTheHookOfTheChild()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.setChild(child);
    chart.init();
    child->calls.clear();
    chart.show();
    QCOMPARE(child->calls, QStringList {"changed"});
    QCOMPARE(child->changedBy, chart.plot);
}

void tst_ZEMHistogramViews::sizeHintAddsTheChild()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.init();
    QCOMPARE(chart.sizeHint(), chart.plot->sizeHint());
    chart.setChild(child);
    QCOMPARE(chart.sizeHint(), chart.plot->sizeHint() + child->sizeHint());
}

QTEST_MAIN(tst_ZEMHistogramViews)
#include "tst_zemhistogramviews.moc"
