// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QUICKPATHSFIXTURE_H
#define QUICKPATHSFIXTURE_H

#include "quickpaths_p.h"
#include "zemtest.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMWeekHistogram>

#include <QCoreApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QWidget>
#include <qwt_plot.h>

#include <functional>
#include <random>
#include <utility>
#include <vector>

/** What the tests share that compare the quick paths of the charts with Qwt's own ways. */
namespace QuickPathsTest {

/** Closed, they leave everything to Qwt. For all charts, from their next replot or paint on. */
inline void setOpen(bool open)
{
    qApp->setProperty(QuickPaths::qwtVersionProperty, open ? QVariant() : QVariant(0));
}

constexpr unsigned int windows = 40;

/** A ground of many colours, on which text and thin lines blend with something. */
class Ground : public QWidget
{
protected:
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        // A gradient that is painted in parts has other colours than one painted at once.
        picture = QImage(size(), QImage::Format_RGB32);
        QLinearGradient gradient(rect().topLeft(), rect().bottomRight());
        gradient.setColorAt(0.0, QColor(200, 30, 60));
        gradient.setColorAt(0.5, QColor(20, 140, 90));
        gradient.setColorAt(1.0, QColor(10, 20, 200));
        QPainter(&picture).fillRect(rect(), gradient);
    }

    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).drawImage(0, 0, picture); }

private:
    QImage picture;
};

struct Kind
{
    std::function<ZEMHistogram *()> make;
    unsigned int slotCount;
};

inline const std::vector<std::pair<const char *, Kind>> &kinds()
{
    static const std::vector<std::pair<const char *, Kind>> all {
        {"day", {[] { return new ZEMSmartDayHistogram; }, 24}},
        {"week", {[] { return new ZEMSmartWeekHistogram; }, 7}},
        {"month", {[] { return new ZEMSmartMonthHistogram; }, 5}},
        {"plain week", {[] { return new ZEMWeekHistogram; }, 7}},
        {"mini", {[] { return new ZEMMiniDayHistogram; }, 24}},
    };
    return all;
}

/** A series with gaps, merged runs, zeros and negative values. */
inline ZEMHistogramSeries *newSeries(unsigned int slotCount, bool iconColumns, int seed)
{
    auto *data = new ZEMHistogramData;
    data->setWindowSize(slotCount);
    data->setCenterValue(iconColumns ? 0.05 : 0.1);
    data->setNrWindows(windows);
    std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
    for (unsigned int window = 0; window < windows; ++window) {
        std::vector<double> values;
        for (unsigned int i = 0; i < slotCount; ++i) {
            values.push_back(double(random() % 40) / 4.0 - 1.0);
        }
        data->setWindowValues(window, 0, slotCount, values.data(), window % 5 == 3);
        data->invalidateValues(window, 0, slotCount, 2.5);
    }
    auto *series = new ZEMHistogramSeries(
        QStringLiteral("Verbruik"), QBrush(iconColumns ? Qt::green : Qt::yellow), iconColumns);
    if (iconColumns) {
        series->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
    }
    series->setData(data);
    return series;
}

/** The plot of a chart, and not that of its child. */
inline QwtPlot *plotOf(const ZEMHistogram *chart)
{
    return chart->findChild<QwtPlot *>(QString(), Qt::FindDirectChildrenOnly);
}

/** A drag of @p plot by @p dx pixels with all that follows from it. */
inline void dragPlot(QwtPlot *plot, int dx)
{
    QWidget *canvas = plot->canvas();
    const QPoint from(canvas->width() / 2, canvas->height() / 2);
    ZemTest::press(canvas, from);
    ZemTest::moveTo(canvas, from + QPoint(dx, 0));
    ZemTest::release(canvas, from + QPoint(dx, 0));
    QCoreApplication::processEvents();
}

} // namespace QuickPathsTest

#endif
