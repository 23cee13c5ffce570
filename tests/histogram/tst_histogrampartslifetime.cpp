// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartlifetime.h"

#include <ZEMHistogramLegend>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>

#include <QTest>

#include <memory>

using namespace ChartLifetime;
using namespace Lifetime;

Q_DECLARE_METATYPE(ChartLifetime::Act<ZEMHistogram>)

/** What a chart consists of goes before the chart does. */
class tst_HistogramPartsLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void canvasIsReplacedInASlot_data();
    void canvasIsReplacedInASlot();
    void seriesGoesFirst_data();
    void seriesGoesFirst();
    void seriesOfTwoChartsGoesOnce();
    void dataIsReplacedInASlot();
    void legendGoesFirst();
    void moverGoesFirst();
    void moverOfASubclassStays();
    void childGoesFirst();
    void parentGoesFirst();
    void plotGoesFirst();
};

void tst_HistogramPartsLifetime::canvasIsReplacedInASlot_data()
{
    QTest::addColumn<bool>("chartIsHeard");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<Act<ZEMHistogram>>("act");
    constexpr const char *axisChanged = "axisChanged(int)";
    for (const Act<ZEMHistogram> &act : moves()) {
        for (const char *signal : {"changed(ZEMHistogram*)", "has_page(bool,bool)"}) {
            QTest::addRow("%s by %s", signal, act.name) << true << QByteArray(signal) << act;
        }
        QTest::addRow("%s by %s", axisChanged, act.name) << false << QByteArray(axisChanged) << act;
    }
    for (const char *signal : {"moved(int,int)", "panned(int,int)"}) {
        QTest::addRow("%s by drag", signal) << false << QByteArray(signal) << moves().last();
    }
}

void tst_HistogramPartsLifetime::canvasIsReplacedInASlot()
{
    QFETCH(bool, chartIsHeard);
    QFETCH(QByteArray, signal);
    QFETCH(Act<ZEMHistogram>, act);
    QPointer<ZEMHistogram> chart = new ZEMSmartDayHistogram;
    Stage stage = chartStage(chart, act);
    if (!chartIsHeard) {
        stage.object = moverOf(chart);
    }
    // A host's own object, which goes when the canvas is put in place of the old one.
    QPointer<QObject> note = new QObject;
    connect(note, &QObject::destroyed, chart,
            [chart] { plotOf(chart)->setCanvas(new QwtPlotCanvas); });
    stage.other = note;
    const QPointer<QwtPlotCanvas> old = canvasOf(chart);
    const auto run = stage.act;
    bool works = false;
    stage.act = [&] {
        run();
        QCoreApplication::processEvents();
        chart->showFirstPeriod();
        chart->showPrevPeriod();
        works = !old && plotOf(chart)->axisInterval(QwtPlot::xBottom).minValue() == -period;
    };
    QCOMPARE(endIn(stage, signal, End::Delete), QString());
    QVERIFY(works);
}

void tst_HistogramPartsLifetime::seriesGoesFirst_data()
{
    QTest::addColumn<bool>("isDetached");
    QTest::newRow("attached") << false;
    QTest::newRow("detached") << true;
}

void tst_HistogramPartsLifetime::seriesGoesFirst()
{
    QFETCH(bool, isDetached);
    const std::unique_ptr<QWidget> page(newPage());
    auto *chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    ZEMHistogramSeries *series = newSeries();
    chart->prependSeries(series);
    showAll(page.get());
    if (isDetached) {
        series->detach();
    }
    delete series;
    chart->delSeries(series);
    chart->replot();
    chart->showPrevPeriod();
    showAll(page.get());
    QCOMPARE(plotOf(chart)->itemList(QwtPlotItem::Rtti_PlotHistogram).count(), 1);
}

void tst_HistogramPartsLifetime::seriesOfTwoChartsGoesOnce()
{
    auto first = std::make_unique<ZEMSmartDayHistogram>();
    auto second = std::make_unique<ZEMSmartDayHistogram>();
    ZEMHistogramSeries *series = newSeries();
    first->addSeries(series);
    first->addSeries(series);
    second->addSeries(series);
    first.reset();
    QVERIFY(plotOf(second.get())->itemList().isEmpty());
    second.reset();
}

void tst_HistogramPartsLifetime::dataIsReplacedInASlot()
{
    const std::unique_ptr<QWidget> page(newPage());
    auto *chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    showAll(page.get());
    auto *series = static_cast<ZEMHistogramSeries *>(plotOf(chart)->itemList().value(0));
    QPointer<ZEMHistogramData> data;
    connect(chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), chart, [&] {
        data = new ZEMHistogramData;
        series->setData(data);
    });
    for (const Act<ZEMHistogram> &act : moves() + headlines()) {
        const QPointer<ZEMHistogramData> before = data;
        act.run(chart);
        showAll(page.get());
        QVERIFY(!before);
        QVERIFY(data);
    }
}

void tst_HistogramPartsLifetime::legendGoesFirst()
{
    const std::unique_ptr<QWidget> page(newPage());
    auto *chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    showAll(page.get());
    delete chart->findChild<ZEMHistogramLegend *>();
    ZEMHistogramSeries *series = newSeries();
    chart->addSeries(series);
    series->setColor(Qt::blue);
    series->setTitle(QStringLiteral("another"));
    showAll(page.get());
    chart->delSeries(series);
    QCOMPARE(plotOf(chart)->itemList().count(), 1);
}

void tst_HistogramPartsLifetime::moverGoesFirst()
{
    const std::unique_ptr<QWidget> page(newPage());
    auto *chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    showAll(page.get());
    delete moverOf(chart);
    chart->setScalePeriod(period);
    chart->setScaleInterval(QwtInterval(0.0, period));
    for (const Act<ZEMHistogram> &act : moves() + headlines()) {
        act.run(chart);
    }
    bool hasPrevious = true;
    bool hasNext = true;
    chart->has_page(&hasPrevious, &hasNext);
    QVERIFY(!hasPrevious && !hasNext);
    QCOMPARE(plotOf(chart)->axisInterval(QwtPlot::xBottom), QwtInterval(0.0, period));
}

void tst_HistogramPartsLifetime::moverOfASubclassStays()
{
    class OwnMoverHistogram : public ZEMSmartDayHistogram
    {
    public:
        void replaceMover()
        {
            const std::unique_ptr<QwtPlotMover> before(mover);
            mover = new QwtPlotMover(canvasOf(this));
        }
        bool hasMover() const { return mover; }
    };
    const std::unique_ptr<QWidget> page(newPage());
    auto *chart = new OwnMoverHistogram;
    layoutOf(page.get())->addWidget(chart);
    chart->init();
    chart->replaceMover();
    QVERIFY(chart->hasMover());
    chart->setScalePeriod(period);
    chart->setScaleInterval(QwtInterval(-period, period));
    chart->showPrevPeriod();
    QCOMPARE(plotOf(chart)->axisInterval(QwtPlot::xBottom), QwtInterval(-period, 0.0));
}

void tst_HistogramPartsLifetime::childGoesFirst()
{
    const Pair pair(new ZEMSmartMonthHistogram, new ZEMSmartMonthHistogram);
    const std::unique_ptr<QWidget> page(pair.page);
    delete pair.lower;
    for (const Act<ZEMHistogram> &act : moves() + headlines()) {
        act.run(pair.upper);
    }
    pair.upper->replot();
    showAll(pair.page);
    QVERIFY(!pair.upper->getChild());
}

void tst_HistogramPartsLifetime::parentGoesFirst()
{
    ZEMSmartDayHistogram lower;
    {
        ZEMSmartDayHistogram upper;
        lower.init();
        upper.setChild(&lower);
        upper.init();
        lower.setParent(nullptr);
    }
    QVERIFY(!lower.getParent());
    lower.setScalePeriod(period);
    lower.showPrevPeriod();
    lower.setDataChangedTimestamp(midnight());
}

void tst_HistogramPartsLifetime::plotGoesFirst()
{
    // With the plot go its series; what is left of the chart can only go as well.
    auto chart = std::make_unique<ZEMSmartDayHistogram>();
    chart->init();
    chart->addSeries(newSeries());
    delete plotOf(chart.get());
    chart->showPrevPeriod();
    chart.reset();

    // The legend of a plot of the host.
    ZEMHistogramLegend legend;
    auto plot = std::make_unique<QwtPlot>();
    ZEMHistogramLegend::connectToPlot(plot.get(), &legend);
    newSeries()->attach(plot.get());
    QVERIFY(!legend.isEmpty());
    plot.reset();
    QVERIFY(legend.isEmpty());
}

QTEST_MAIN(tst_HistogramPartsLifetime)
#include "tst_histogrampartslifetime.moc"
