// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "chartfixture.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMHistogramData>
#include <ZEMHistogramLegend>
#include <ZEMHistogramSeries>

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

#include <limits>

using namespace ZemTest;

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

/** A chart with a meta object of its own. */
class NamedChart : public Chart
{
    Q_OBJECT
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

    void resizeReachesThePlot();
    void legendShowsTheSeries();
    void legendOfAHostIsConnected();
};

void tst_ZEMHistogram::initTestCase()
{
    qRegisterMetaType<ZEMHistogram *>();
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
    NamedChart chart;
    QCOMPARE(chart.metaObject()->className(), "NamedChart");
    QCOMPARE(chart.objectName(), QStringLiteral("ZEMHistogram"));
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
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("negative") << -0.25 << 0;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity() << 0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
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
    QVERIFY(QTest::qWaitForWindowExposed(&chart, ZemTest::hangs));
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

QTEST_MAIN(tst_ZEMHistogram)
#include "tst_zemhistogram.moc"
