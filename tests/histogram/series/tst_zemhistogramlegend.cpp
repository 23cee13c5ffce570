// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMHistogramLegend>
#include <ZEMHistogramLegendItem>
#include <ZEMHistogramSeries>

#include <QLabel>
#include <QPointer>
#include <QTest>

#include <memory>

#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

namespace {

const QColor columnColor(0, 90, 200);

/** Counts what the plot tells it. */
class Legend : public ZEMHistogramLegend
{
public:
    using ZEMHistogramLegend::ZEMHistogramLegend;

    void updateLegend(const QVariant &itemInfo, const QList<QwtLegendData> &entries) override
    {
        ++updates;
        ZEMHistogramLegend::updateLegend(itemInfo, entries);
    }

    int updates = 0;
};

class LabelSeries : public ZEMHistogramSeries
{
public:
    using ZEMHistogramSeries::ZEMHistogramSeries;
    QWidget *legendItem() const override { return new QLabel(QStringLiteral("own")); }
};

class NoItemSeries : public ZEMHistogramSeries
{
public:
    using ZEMHistogramSeries::ZEMHistogramSeries;
    QWidget *legendItem() const override { return nullptr; }
};

QWidget *entry(const QwtLegend &legend, QwtPlot &plot, QwtPlotItem *item)
{
    return legend.legendWidget(plot.itemToInfo(item));
}

ZEMHistogramLegendItem *seriesEntry(const QwtLegend &legend, QwtPlot &plot, QwtPlotItem *item)
{
    return qobject_cast<ZEMHistogramLegendItem *>(entry(legend, plot, item));
}

} // namespace

class tst_ZEMHistogramLegend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLegendIsEmpty();
    void entryIsMadeByTheSeries();
    void entryShowsTitleAndColor();
    void entryFollowsTheSeries();
    void laterSeriesGetsAnEntry();
    void detachedSeriesLosesItsEntry();
    void deletedSeriesLosesItsEntry();
    void otherItemsHaveQwtsEntries();
    void subclassMayMakeAnyWidget();
    void seriesWithoutAnItemGetsQwtsEntry();
    void externalLegendStaysWhereItIs();
    void connectingTwiceUpdatesOnce();
    void connectingNothingIsHarmless();
    void plainLegendCanBeConnected();
    void plotMayPlaceTheLegend();
    void plotAndLegendMayGoInAnyOrder();
};

void tst_ZEMHistogramLegend::newLegendIsEmpty()
{
    const ZEMHistogramLegend legend;
    QVERIFY(legend.isEmpty());
    QCOMPARE(legend.objectName(), QStringLiteral("ZEMHistogramLegend"));
}

void tst_ZEMHistogramLegend::entryIsMadeByTheSeries()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);

    ZEMHistogramLegendItem *item = seriesEntry(legend, plot, series);
    QVERIFY(item);
    QCOMPARE(item->parentWidget(), legend.contentsWidget());
    QCOMPARE(item->identifierSize(), QSize(9, 9));
    QCOMPARE(item->indent(), 25);
    QCOMPARE(item->size(), item->getBackground().size());
    QCOMPARE(legend.legendWidgets(plot.itemToInfo(series)).size(), 1);
}

void tst_ZEMHistogramLegend::entryShowsTitleAndColor()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);

    const ZEMHistogramLegendItem *item = seriesEntry(legend, plot, series);
    QCOMPARE(item->text().text(), QStringLiteral("Gas"));
    QCOMPARE(item->text().renderFlags(),
             int(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextExpandTabs | Qt::TextWordWrap));
    const QImage identifier = item->identifier().toImage();
    QCOMPARE(identifier.size(), QSize(9, 9));
    for (const QPoint corner : {QPoint(0, 0), QPoint(8, 0), QPoint(0, 8), QPoint(8, 8)}) {
        QCOMPARE(identifier.pixelColor(corner), columnColor);
    }
}

void tst_ZEMHistogramLegend::entryFollowsTheSeries()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    const ZEMHistogramLegendItem *item = seriesEntry(legend, plot, series);

    series->setTitle(QStringLiteral("Water"));
    QCOMPARE(item->text().text(), QStringLiteral("Water"));
    series->setColor(QColor(Qt::red));
    QCOMPARE(item->identifier().toImage().pixelColor(4, 4), QColor(Qt::red));
    QCOMPARE(seriesEntry(legend, plot, series), item);
    QCOMPARE(item->indent(), 25);
}

void tst_ZEMHistogramLegend::laterSeriesGetsAnEntry()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    QVERIFY(legend.isEmpty());
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    QVERIFY(seriesEntry(legend, plot, series));
    QCOMPARE(seriesEntry(legend, plot, series)->text().text(), QStringLiteral("Gas"));
}

void tst_ZEMHistogramLegend::detachedSeriesLosesItsEntry()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    ZEMHistogramSeries series(QStringLiteral("Gas"), columnColor, false);
    series.attach(&plot);
    const QPointer<QWidget> item = entry(legend, plot, &series);
    QVERIFY(item);
    series.detach();
    QVERIFY(!entry(legend, plot, &series));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(item.isNull());
}

void tst_ZEMHistogramLegend::deletedSeriesLosesItsEntry()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    const QVariant info = plot.itemToInfo(series);
    QVERIFY(legend.legendWidget(info));
    delete series;
    QVERIFY(!legend.legendWidget(info));
}

void tst_ZEMHistogramLegend::otherItemsHaveQwtsEntries()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    auto *curve = new QwtPlotCurve(QStringLiteral("Curve"));
    curve->attach(&plot);
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    const auto *label = qobject_cast<QwtLegendLabel *>(entry(legend, plot, curve));
    QVERIFY(label);
    QCOMPARE(label->text().text(), QStringLiteral("Curve"));
    QVERIFY(seriesEntry(legend, plot, series));
}

void tst_ZEMHistogramLegend::subclassMayMakeAnyWidget()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    auto *series = new LabelSeries(QStringLiteral("Gas"), false);
    series->attach(&plot);
    const auto *label = qobject_cast<QLabel *>(entry(legend, plot, series));
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("own"));
}

void tst_ZEMHistogramLegend::seriesWithoutAnItemGetsQwtsEntry()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    auto *series = new NoItemSeries(QStringLiteral("Gas"), false);
    series->attach(&plot);
    const auto *label = qobject_cast<QwtLegendLabel *>(entry(legend, plot, series));
    QVERIFY(label);
    QCOMPARE(label->text().text(), QStringLiteral("Gas"));
}

void tst_ZEMHistogramLegend::externalLegendStaysWhereItIs()
{
    QWidget page;
    QwtPlot plot;
    auto *legend = new ZEMHistogramLegend(&page);
    ZEMHistogramLegend::connectToPlot(&plot, legend);
    QCOMPARE(legend->parentWidget(), &page);
    QVERIFY(!plot.legend());
}

void tst_ZEMHistogramLegend::connectingTwiceUpdatesOnce()
{
    QwtPlot plot;
    Legend legend;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    QCOMPARE(legend.updates, 1);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    QCOMPARE(legend.updates, 2);
    series->setTitle(QStringLiteral("Water"));
    QCOMPARE(legend.updates, 3);
    QCOMPARE(legend.legendWidgets(plot.itemToInfo(series)).size(), 1);
}

void tst_ZEMHistogramLegend::connectingNothingIsHarmless()
{
    QwtPlot plot;
    ZEMHistogramLegend legend;
    ZEMHistogramLegend::connectToPlot(nullptr, &legend);
    ZEMHistogramLegend::connectToPlot(&plot, nullptr);
    QVERIFY(legend.isEmpty());
}

void tst_ZEMHistogramLegend::plainLegendCanBeConnected()
{
    QwtPlot plot;
    QwtLegend legend;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    ZEMHistogramLegend::connectToPlot(&plot, &legend);
    const auto *label = qobject_cast<QwtLegendLabel *>(entry(legend, plot, series));
    QVERIFY(label);
    QCOMPARE(label->text().text(), QStringLiteral("Gas"));
}

void tst_ZEMHistogramLegend::plotMayPlaceTheLegend()
{
    QwtPlot plot;
    auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
    series->attach(&plot);
    auto *legend = new ZEMHistogramLegend;
    plot.insertLegend(legend, QwtPlot::BottomLegend);
    QCOMPARE(plot.legend(), legend);
    QVERIFY(seriesEntry(*legend, plot, series));
    QCOMPARE(seriesEntry(*legend, plot, series)->text().text(), QStringLiteral("Gas"));
}

void tst_ZEMHistogramLegend::plotAndLegendMayGoInAnyOrder()
{
    for (const bool plotFirst : {true, false}) {
        auto plot = std::make_unique<QwtPlot>();
        auto legend = std::make_unique<ZEMHistogramLegend>();
        ZEMHistogramLegend::connectToPlot(plot.get(), legend.get());
        auto *series = new ZEMHistogramSeries(QStringLiteral("Gas"), columnColor, false);
        series->attach(plot.get());
        if (plotFirst) {
            plot.reset();
            QVERIFY(legend->isEmpty()
                    || legend->legendWidgets(QVariant::fromValue<QwtPlotItem *>(series)).isEmpty());
        } else {
            legend.reset();
            series->setTitle(QStringLiteral("Water"));
            QCOMPARE(series->title().text(), QStringLiteral("Water"));
        }
    }
}

QTEST_MAIN(tst_ZEMHistogramLegend)
#include "tst_zemhistogramlegend.moc"
