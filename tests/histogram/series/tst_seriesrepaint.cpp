// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../chartlifetime.h"
#include "paintcounter.h"

#include <ZEMHistogramLegendItem>
#include <ZEMSmartDayHistogram>

#include <QTest>

#include <qwt_scale_map.h>

#include <memory>
#include <type_traits>

using namespace ChartLifetime;
using ZemTest::PaintCounter;

/** A series of a chart on the screen: what it is made from, and when its changes show. */
class tst_SeriesRepaint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void onlyABoolTellsOfIcons();
    void colourShowsInTheLegendAtOnce();
    void colourShowsInTheColumnsAtTheNextReplot();
    void iconShowsAtTheNextReplot();
    void limitsWithZeroShowTheSmallestBar();

private:
    QPixmap square() const { return chart->findChild<ZEMHistogramLegendItem *>()->identifier(); }
    /** Whether the canvas is painted when all that is due has been delivered. */
    static bool isPainted(const PaintCounter &canvas)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return canvas.count > 0;
    }

    std::unique_ptr<QWidget> page;
    ZEMHistogram *chart = nullptr;
    ZEMHistogramSeries *series = nullptr;
};

void tst_SeriesRepaint::init()
{
    page.reset(newPage());
    chart = new ZEMSmartDayHistogram;
    setUp(chart, page.get());
    series = static_cast<ZEMHistogramSeries *>(plotOf(chart)->itemList().value(0));
    for (int i = 0; i < 3; ++i) {
        showAll(page.get());
        chart->replot();
    }
    showAll(page.get());
}

void tst_SeriesRepaint::onlyABoolTellsOfIcons()
{
    using Series = ZEMHistogramSeries;
    QVERIFY((std::is_constructible_v<Series, QString, bool>));
    QVERIFY((std::is_constructible_v<Series, QString, const bool &>));
    QVERIFY((std::is_constructible_v<Series, QString, QColor, bool>));
    QVERIFY((std::is_constructible_v<Series, QString, Qt::GlobalColor, bool>));
    QVERIFY((!std::is_constructible_v<Series, QString, Qt::GlobalColor>));
    QVERIFY((!std::is_constructible_v<Series, QString, QColor>));
    QVERIFY((!std::is_constructible_v<Series, QString, QRgb>));
    QVERIFY((!std::is_constructible_v<Series, QString, const char *>));
}

void tst_SeriesRepaint::colourShowsInTheLegendAtOnce()
{
    series->setColor(QColor(10, 200, 30));
    const QImage image = square().toImage();
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(10, 200, 30));
}

void tst_SeriesRepaint::colourShowsInTheColumnsAtTheNextReplot()
{
    PaintCounter canvas(canvasOf(chart));
    series->setColor(Qt::green);
    QVERIFY(!isPainted(canvas));
    chart->replot();
    QTRY_VERIFY(canvas.count > 0);
    plotOf(chart)->setAutoReplot(true);
    canvas.count = 0;
    series->setColor(Qt::blue);
    QTRY_VERIFY(canvas.count > 0);
}

void tst_SeriesRepaint::iconShowsAtTheNextReplot()
{
    PaintCounter canvas(canvasOf(chart));
    series->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
    QVERIFY(!isPainted(canvas));
    chart->replot();
    QTRY_VERIFY(canvas.count > 0);
}

void tst_SeriesRepaint::limitsWithZeroShowTheSmallestBar()
{
    const double values[] = {2.0, 4.0, 6.0, 3.0};
    auto *data = new ZEMHistogramData;
    data->setWindowSize(4);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, 4, values, false);
    series->setData(data);
    const auto heightOfSmallest = [this](const QwtInterval &limits) {
        chart->setValueLimits(limits);
        chart->replot();
        const QwtScaleMap map = plotOf(chart)->canvasMap(QwtPlot::yLeft);
        return map.transform(map.s1()) - map.transform(2.0);
    };
    QCOMPARE(heightOfSmallest(data->valueLimits()), 0.0);
    QVERIFY(heightOfSmallest(data->valueLimits().extend(0.0)) > 10.0);
}

QTEST_MAIN(tst_SeriesRepaint)
#include "tst_seriesrepaint.moc"
