// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "zemtest.h"

#include <QwtPlotMover>
#include <ZEMButton>
#include <ZEMHistogram>
#include <ZEMHistogramData>
#include <ZEMHistogramLegend>
#include <ZEMHistogramSeries>
#include <ZEMScaleDraw>

#include <QSignalSpy>
#include <QSpacerItem>
#include <QTest>
#include <QVBoxLayout>
#include <qwt_dyngrid_layout.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_div.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

using namespace ZemTest;

/** A chart of ten slots that notes what is called, in order. */
class Chart : public ZEMHistogram
{
    Q_OBJECT

public:
    using ZEMHistogram::changed;
    using ZEMHistogram::dataChangedTimestamp;
    using ZEMHistogram::mover;
    using ZEMHistogram::plot;
    using ZEMHistogram::titleText;
    using ZEMHistogram::yAxisText;
    using ZEMHistogram::ZEMHistogram;

    void setAxisScale(int axisId, double min, double max, double step) override
    {
        calls << QStringLiteral("setAxisScale %1").arg(step);
        ZEMHistogram::setAxisScale(axisId, min, max, step);
    }
    void setScaleDigits(int axisId, int digits) override
    {
        calls << QStringLiteral("setScaleDigits %1 %2").arg(axisId).arg(digits);
        ZEMHistogram::setScaleDigits(axisId, digits);
    }
    void replot() override
    {
        calls << QStringLiteral("replot");
        ZEMHistogram::replot();
    }
    void updateTitle(QwtInterval interval) override
    {
        titleText = QStringLiteral("%1 to %2").arg(interval.minValue()).arg(interval.maxValue());
        calls << QStringLiteral("updateTitle ") + titleText;
        Q_EMIT changed(this);
    }
    void initAxis() override
    {
        calls << QStringLiteral("initAxis");
        ZEMHistogram::initAxis();
    }
    void initAxisRefine() override
    {
        calls << QStringLiteral("initAxisRefine");
        plot->setAxisScaleDraw(QwtPlot::yLeft, new ZEMKWhScaleDraw(999.0));
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 10.0, 0.0);
        plot->setAxisScale(QwtPlot::xBottom, 0.0, 10.0, 2.0);
    }
    void setLookAndFeel() override
    {
        calls << QStringLiteral("setLookAndFeel");
        ZEMHistogram::setLookAndFeel();
    }
    void changed(QwtPlot *source) override
    {
        calls << QStringLiteral("changed");
        changedBy = source;
    }

    QStringList calls;
    QwtPlot *changedBy = nullptr;
};

/** A series that counts its destructions. */
class CountedSeries : public ZEMHistogramSeries
{
public:
    explicit CountedSeries(int *counter)
        : ZEMHistogramSeries(QStringLiteral("counted"), false), destructions(counter)
    {
    }
    ~CountedSeries() override { ++*destructions; }

private:
    int *destructions;
};

class tst_ZEMHistogram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void form();
    void namedChartOfSubclassKeepsTheBaseName();
    void defaultsOfTheFields();
    void initRunsAxesBeforeLooks();
    void yAxisTextIsStored();

    void axisFontsAndMargins();
    void decimalsFollowTheStep_data();
    void decimalsFollowTheStep();
    void setAxisScaleLeavesThePlotAlone();
    void digitsOfAForeignScaleDrawAreLeftAlone();
    void valueLimits_data();
    void valueLimits();

    void lookOfThePlot();
    void canvasPictureShowsOnAButtonToo();
    void moverSettings();
    void heightOfThePlot();
    void baseLayout();

    void seriesOrderAndZ();
    void delSeriesDeletesOnlyItsOwn();
    void destructorDeletesSeries();

    void periodAndIntervalReachAllChildren();
    void timestampReachesChildrenFirst();
    void hasPageWithNullPointers();
    void pagingSlots();
    void hasPageSignalFollowsTheTitle();
    void otherAxesDoNotChangeTheTitle();

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
    void resizeReachesThePlot();
    void legendShowsTheSeries();
    void legendOfAHostIsConnected();
    void dragByMouseMovesTheView();
    void shortDragDoesNothing();
    void dragStopsAtTheNewestPeriod();
    void dragPaintsTheMovedBars();
};

void tst_ZEMHistogram::initTestCase()
{
    qRegisterMetaType<ZEMHistogram *>();
}

static QwtPlotCanvas *canvasOf(const Chart &chart)
{
    return qobject_cast<QwtPlotCanvas *>(chart.plot->canvas());
}

static QwtInterval viewOf(const Chart &chart)
{
    return chart.plot->axisInterval(QwtPlot::xBottom);
}

/** Ready for paging: periods of ten slots from -30 to 10. */
static void initForPaging(Chart *chart)
{
    chart->init();
    chart->setScalePeriod(10.0);
    chart->setScaleInterval(QwtInterval(-30.0, 10.0));
    chart->calls.clear();
}

void tst_ZEMHistogram::form()
{
    const Chart chart;
    QCOMPARE(chart.objectName(), QStringLiteral("ZEMHistogram"));
    QCOMPARE(chart.size(), QSize(200, 200));
    QCOMPARE(chart.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(chart.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(!chart.sizePolicy().hasHeightForWidth());
    QCOMPARE(chart.windowTitle(), QStringLiteral("Form"));
    QVERIFY(!chart.layout());
    QCOMPARE(chart.plot->parentWidget(), static_cast<const QWidget *>(&chart));
    QCOMPARE(chart.plot->metaObject()->className(), "QwtPlot");
}

void tst_ZEMHistogram::namedChartOfSubclassKeepsTheBaseName()
{
    Chart chart;
    QCOMPARE(chart.metaObject()->className(), "Chart");
    chart.setObjectName(QStringLiteral("mine"));
    chart.init();
    QCOMPARE(chart.objectName(), QStringLiteral("mine"));
}

void tst_ZEMHistogram::defaultsOfTheFields()
{
    Chart chart;
    QCOMPARE(chart.title(), QString());
    QVERIFY(chart.dataChangedTimestamp.isNull());
    QVERIFY(!chart.mover);
    QVERIFY(!chart.getChild());
    QVERIFY(!chart.getParent());
    QCOMPARE(chart.yAxisText, QStringLiteral("kWh"));
}

void tst_ZEMHistogram::initRunsAxesBeforeLooks()
{
    Chart chart;
    QVERIFY(chart.calls.isEmpty());
    chart.init();
    QCOMPARE(chart.calls, (QStringList {"initAxis", "initAxisRefine", "setLookAndFeel"}));
}

void tst_ZEMHistogram::yAxisTextIsStored()
{
    Chart chart;
    chart.setYAxisText(QStringLiteral("m³"));
    QCOMPARE(chart.yAxisText, QStringLiteral("m³"));
}

void tst_ZEMHistogram::axisFontsAndMargins()
{
    Chart chart;
    chart.init();
    const QwtScaleWidget *x = chart.plot->axisWidget(QwtPlot::xBottom);
    QCOMPARE(x->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(x->font().pointSize(), 11);
    QCOMPARE(x->margin(), 0);
    int start = -1;
    int end = -1;
    x->getMinBorderDist(start, end);
    QCOMPARE(start, 0);
    QCOMPARE(end, (x->scaleDraw()->maxLabelWidth(x->font()) + 1) / 2);
    QVERIFY(end > 0);

    const QwtScaleWidget *y = chart.plot->axisWidget(QwtPlot::yLeft);
    QCOMPARE(y->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(y->font().pointSize(), 9);
    QCOMPARE(y->margin(), 0);
}

void tst_ZEMHistogram::decimalsFollowTheStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("digits");
    QTest::newRow("0.25") << 0.25 << 1;
    QTest::newRow("0.1") << 0.1 << 1;
    QTest::newRow("0.05") << 0.05 << 2;
    QTest::newRow("0.01") << 0.01 << 2;
    QTest::newRow("0.002") << 0.002 << 3;
    QTest::newRow("1") << 1.0 << 0;
    QTest::newRow("2.5") << 2.5 << 0;
    QTest::newRow("20") << 20.0 << 0;
    QTest::newRow("500") << 500.0 << 0;
}

void tst_ZEMHistogram::decimalsFollowTheStep()
{
    QFETCH(double, step);
    QFETCH(int, digits);

    Chart chart;
    chart.init();
    chart.setAxisScale(QwtPlot::yLeft, 0.0, 100.0, step);
    QCOMPARE(chart.calls.last(), QStringLiteral("setScaleDigits 0 %1").arg(digits));
    const auto *draw =
        dynamic_cast<const ZEMScaleDraw *>(chart.plot->axisScaleDraw(QwtPlot::yLeft));
    QCOMPARE(draw->getDigits(), digits);
}

void tst_ZEMHistogram::setAxisScaleLeavesThePlotAlone()
{
    Chart chart;
    chart.init();
    chart.setAxisScale(QwtPlot::yLeft, 0.0, 100.0, 20.0);
    chart.plot->updateAxes();
    QCOMPARE(chart.plot->axisInterval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
}

void tst_ZEMHistogram::digitsOfAForeignScaleDrawAreLeftAlone()
{
    Chart chart;
    chart.init();
    chart.setScaleDigits(QwtPlot::xBottom, 3);
    QCOMPARE(chart.plot->axisScaleDraw(QwtPlot::xBottom)->label(2.0).text(), QStringLiteral("2"));
}

void tst_ZEMHistogram::valueLimits_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("expectedLow");
    QTest::addColumn<double>("expectedHigh");
    QTest::addColumn<int>("digits");
    QTest::newRow("small") << 0.0 << 0.93 << 0.0 << 1.0 << 1;
    QTest::newRow("large") << 0.0 << 93.0 << 0.0 << 100.0 << 0;
    QTest::newRow("negative") << -3.0 << 9.0 << -4.0 << 10.0 << 0;
    QTest::newRow("tiny") << 0.0 << 0.009 << 0.0 << 0.01 << 3;
}

void tst_ZEMHistogram::valueLimits()
{
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(double, expectedLow);
    QFETCH(double, expectedHigh);
    QFETCH(int, digits);

    Chart chart;
    Chart child;
    child.init();
    chart.setChild(&child);
    chart.init();
    chart.calls.clear();
    chart.setValueLimits(QwtInterval(low, high));
    chart.plot->updateAxes();
    QCOMPARE(chart.plot->axisInterval(QwtPlot::yLeft), QwtInterval(expectedLow, expectedHigh));
    QCOMPARE(chart.calls.size(), 2);
    QVERIFY(chart.calls[0].startsWith(QLatin1String("setAxisScale ")));
    QCOMPARE(chart.calls[1], QStringLiteral("setScaleDigits 0 %1").arg(digits));
    child.plot->updateAxes();
    QCOMPARE(child.plot->axisInterval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
    child.setParent(nullptr);
}

void tst_ZEMHistogram::lookOfThePlot()
{
    Chart chart;
    chart.init();
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        const auto colorGroup = QPalette::ColorGroup(group);
        QCOMPARE(chart.plot->palette().color(colorGroup, QPalette::Text), QColor(Qt::white));
        QCOMPARE(chart.plot->palette().color(colorGroup, QPalette::WindowText),
                 QColor(255, 255, 255, 128));
    }
    const QwtPlotCanvas *canvas = canvasOf(chart);
    QCOMPARE(canvas->frameStyle(), 0);
    QVERIFY(!canvas->testPaintAttribute(QwtPlotCanvas::BackingStore));
    QVERIFY(!canvas->testPaintAttribute(QwtPlotCanvas::Opaque));
    QVERIFY(!canvas->testAttribute(Qt::WA_OpaquePaintEvent));
    QVERIFY(chart.plot->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(chart.plot->canvasBackground().texture().size(), QSize(493, 216));

    const QwtPlotLayout *layout = chart.plot->plotLayout();
    QCOMPARE(layout->canvasMargin(QwtPlot::yLeft), -1);
    QCOMPARE(layout->canvasMargin(QwtPlot::xBottom), -1);
    QCOMPARE(layout->canvasMargin(QwtPlot::xTop), -1);
    QCOMPARE(layout->canvasMargin(QwtPlot::yRight), 10);
}

void tst_ZEMHistogram::canvasPictureShowsOnAButtonToo()
{
    ZEMButton button;
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, Qt::white);
    button.setPalette(palette);
    auto *layout = new QVBoxLayout(&button);
    auto *chart = new Chart;
    chart->init();
    chart->plot->setCanvasBackground(QBrush(Qt::blue));
    layout->addWidget(chart);
    button.resize(493, 400);
    const QImage image = render(chart->plot->canvas());
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::blue));
}

void tst_ZEMHistogram::moverSettings()
{
    Chart chart;
    chart.init();
    QVERIFY(chart.mover);
    QCOMPARE(chart.mover->parentWidget(), static_cast<QWidget *>(canvasOf(chart)));
    int button = 0;
    int state = -1;
    chart.mover->getMouseButton(button, state);
    QCOMPARE(button, int(Qt::LeftButton));
    QCOMPARE(state, int(Qt::NoModifier));
    QCOMPARE(chart.mover->dxSignalThreshold(), 5u);
    QCOMPARE(chart.mover->dySignalThreshold(), 0u);
    QVERIFY(chart.mover->isAxisEnabled(QwtPlot::xBottom));
    QVERIFY(!chart.mover->isAxisEnabled(QwtPlot::yLeft));
    QVERIFY(!chart.mover->isAxisEnabled(QwtPlot::yRight));
    QVERIFY(!chart.mover->isAxisEnabled(QwtPlot::xTop));
    QCOMPARE(chart.mover->orientations(), Qt::Orientations(Qt::Horizontal));
}

void tst_ZEMHistogram::heightOfThePlot()
{
    Chart chart;
    chart.init();
    const int height =
        216 + chart.plot->axisWidget(QwtPlot::xBottom)->minimumSizeHint().height() - 4;
    QCOMPARE(chart.plot->minimumHeight(), height);
    QCOMPARE(chart.plot->maximumHeight(), height);
    QCOMPARE(chart.plot->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(chart.plot->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

    chart.resize(493, 400);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    QVERIFY2(qAbs(chart.plot->canvas()->height() - 216) <= 6,
             qPrintable(QString::number(chart.plot->canvas()->height())));
}

void tst_ZEMHistogram::baseLayout()
{
    Chart chart;
    Chart child;
    child.init();
    chart.setChild(&child);
    chart.init();
    const auto *layout = qobject_cast<QVBoxLayout *>(chart.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget *>(chart.plot));

    QSpacerItem *spacer = layout->itemAt(1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

    QWidget *space = layout->itemAt(2)->widget();
    QVERIFY(space);
    QCOMPARE(space->metaObject()->className(), "QWidget");
    QCOMPARE(space->minimumHeight(), 71);
    auto *legend = space->findChild<QwtLegend *>();
    QVERIFY(legend);
    QCOMPARE(legend->parentWidget(), space);
    auto *grid = qobject_cast<QwtDynGridLayout *>(legend->contentsWidget()->layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 12);
    QCOMPARE(grid->alignment(), Qt::AlignLeft | Qt::AlignTop);

    chart.resize(493, 400);
    chart.show();
    QCOMPARE(legend->geometry(), QRect(QPoint(), space->size()));
    child.setParent(nullptr);
}

void tst_ZEMHistogram::seriesOrderAndZ()
{
    Chart chart;
    chart.init();
    auto *front = new ZEMHistogramSeries(QStringLiteral("front"), false);
    auto *back = new ZEMHistogramSeries(QStringLiteral("back"), false);
    chart.addSeries(front);
    chart.prependSeries(back);
    QCOMPARE(front->z(), 1.0);
    QCOMPARE(back->z(), 0.0);
    QCOMPARE(front->plot(), chart.plot);
    QCOMPARE(back->plot(), chart.plot);
    const QwtPlotItemList items = chart.plot->itemList(QwtPlotItem::Rtti_PlotHistogram);
    QCOMPARE(items, (QwtPlotItemList {back, front}));
}

void tst_ZEMHistogram::delSeriesDeletesOnlyItsOwn()
{
    int ownDestroyed = 0;
    int foreignDestroyed = 0;
    CountedSeries foreign(&foreignDestroyed);
    Chart chart;
    chart.init();
    auto *own = new CountedSeries(&ownDestroyed);
    chart.addSeries(own);
    chart.delSeries(&foreign);
    QCOMPARE(foreignDestroyed, 0);
    QCOMPARE(ownDestroyed, 0);
    chart.delSeries(own);
    QCOMPARE(ownDestroyed, 1);
    QVERIFY(chart.plot->itemList().isEmpty());
}

void tst_ZEMHistogram::destructorDeletesSeries()
{
    int destroyed = 0;
    {
        Chart chart;
        chart.init();
        chart.addSeries(new CountedSeries(&destroyed));
        chart.prependSeries(new CountedSeries(&destroyed));
    }
    QCOMPARE(destroyed, 2);
}

void tst_ZEMHistogram::periodAndIntervalReachAllChildren()
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

void tst_ZEMHistogram::timestampReachesChildrenFirst()
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
    const QDateTime t(QDate(2016, 3, 7), QTime(0, 0), Qt::UTC);
    chart.setDataChangedTimestamp(t);
    QCOMPARE(chart.dataChangedTimestamp, t);
    QCOMPARE(child->dataChangedTimestamp, t);
    QCOMPARE(chart.title(), QStringLiteral("0 to 10"));
    QCOMPARE(order, (QList<ZEMHistogram *> {child, &chart}));
}

void tst_ZEMHistogram::hasPageWithNullPointers()
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

void tst_ZEMHistogram::pagingSlots()
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

void tst_ZEMHistogram::hasPageSignalFollowsTheTitle()
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

void tst_ZEMHistogram::otherAxesDoNotChangeTheTitle()
{
    Chart chart;
    initForPaging(&chart);
    QSignalSpy spy(&chart, SIGNAL(has_page(bool, bool)));
    chart.mover->setAxisPeriod(QwtPlot::yLeft, 10.0);
    chart.mover->moveAxisNextPeriod(QwtPlot::yLeft);
    QCOMPARE(spy.count(), 0);
    QVERIFY(chart.calls.isEmpty());
}

void tst_ZEMHistogram::secondChildIsIgnored()
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

void tst_ZEMHistogram::nullChildIsIgnored()
{
    Chart chart;
    chart.setChild(nullptr);
    QVERIFY(!chart.getChild());
    chart.init();
    chart.replot();
}

void tst_ZEMHistogram::childIsAWidgetOfItsParent()
{
    Chart chart;
    auto *child = new Chart;
    chart.setChild(child);
    QCOMPARE(child->parentWidget(), static_cast<QWidget *>(&chart));
    Chart other;
    child->setParentHistogram(&other);
    QCOMPARE(child->getParent(), static_cast<ZEMHistogram *>(&other));
}

void tst_ZEMHistogram::deletedChildIsForgotten()
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

void tst_ZEMHistogram::moveSyncsTheChildOnly()
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

void tst_ZEMHistogram::moveOfAChildSyncsTheParent()
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

void tst_ZEMHistogram::syncAxisWithAnotherInterval()
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

void tst_ZEMHistogram::syncAxisWithTheSameIntervalDividesAnew()
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

void tst_ZEMHistogram::replotReachesTheChildAndItsHook()
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

void tst_ZEMHistogram::showReachesTheHookOfTheChild()
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

void tst_ZEMHistogram::sizeHintAddsTheChild()
{
    Chart chart;
    auto *child = new Chart;
    child->init();
    chart.init();
    QCOMPARE(chart.sizeHint(), chart.plot->sizeHint());
    chart.setChild(child);
    QCOMPARE(chart.sizeHint(), chart.plot->sizeHint() + child->sizeHint());
}

void tst_ZEMHistogram::resizeReachesThePlot()
{
    Chart chart;
    chart.resize(321, 123);
    QCOMPARE(chart.plot->size(), QSize(200, 200));
    chart.show();
    QCOMPARE(chart.plot->size(), QSize(321, 123));
}

void tst_ZEMHistogram::legendShowsTheSeries()
{
    Chart chart;
    chart.init();
    auto *series = new ZEMHistogramSeries(QStringLiteral("verbruik"), QBrush(Qt::red), false);
    chart.addSeries(series);
    auto *legend = chart.findChild<QwtLegend *>();
    QWidget *item = legend->legendWidget(chart.plot->itemToInfo(series));
    QVERIFY(item);
    QCOMPARE(item->metaObject()->className(), "ZEMHistogramLegendItem");
    QCOMPARE(item->size(), QSize(127, 27));
    chart.delSeries(series);
    QCOMPARE(legend->contentsWidget()->layout()->count(), 0);
}

void tst_ZEMHistogram::legendOfAHostIsConnected()
{
    Chart chart;
    chart.init();
    chart.addSeries(new ZEMHistogramSeries(QStringLiteral("verbruik"), false));
    QWidget page;
    auto *legend = new ZEMHistogramLegend(&page);
    chart.insertLegendExternal(chart.plot, legend);
    QCOMPARE(legend->parentWidget(), &page);
    QCOMPARE(legend->contentsWidget()->layout()->count(), 1);
    QVERIFY(!chart.plot->legend());
}

static void showForDragging(Chart *chart)
{
    initForPaging(chart);
    chart->resize(493, 400);
    chart->show();
    QVERIFY(QTest::qWaitForWindowExposed(chart));
}

void tst_ZEMHistogram::dragByMouseMovesTheView()
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

void tst_ZEMHistogram::shortDragDoesNothing()
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

void tst_ZEMHistogram::dragStopsAtTheNewestPeriod()
{
    Chart chart;
    showForDragging(&chart);
    QWidget *canvas = chart.plot->canvas();
    press(canvas, QPoint(200, 100));
    moveTo(canvas, QPoint(20, 100));
    QCOMPARE(viewOf(chart), QwtInterval(0.0, 10.0));
    release(canvas, QPoint(20, 100));
}

void tst_ZEMHistogram::dragPaintsTheMovedBars()
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

QTEST_MAIN(tst_ZEMHistogram)
#include "tst_zemhistogram.moc"
