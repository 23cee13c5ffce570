// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "peerpage.h"

#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLegend>
#include <QtCharts/QValueAxis>

#include <algorithm>

namespace Charts {

namespace {

/** Bars that it would make an item of; with the whole history it would take seconds for a step. */
constexpr std::size_t mostBars = 31 * 24;

class QtChartsPage : public PeerPage
{
public:
    explicit QtChartsPage(const Readings &shown)
        : PeerPage(shown), chart(new QtCharts::QChart), view(new QtCharts::QChartView(chart, this)),
          slotAxis(new QtCharts::QValueAxis)
    {
        view->setGeometry(chartRect.x(), chartRect.y(), chartRect.width(), 240);
        view->setBackgroundBrush(ground.copy(view->geometry()));
        chart->setBackgroundVisible(false);
        chart->legend()->hide();
        chart->setPlotAreaBackgroundVisible(true);
        chart->setPlotAreaBackgroundBrush(
            QPixmap(QStringLiteral(":/zem/graphics/main/tab_overview_bg.png")));

        const std::size_t size = readings.consumption.size();
        first = size - std::min(size, mostBars);
        auto *series = new QtCharts::QBarSeries;
        series->append(newSet(readings.consumption, QColor(245, 180, 0)));
        series->append(newSet(readings.production, QColor(90, 190, 60)));
        chart->addSeries(series);
        slotAxis->setLabelFormat(QStringLiteral("%d"));
        slotAxis->setLabelsFont(QFont(QStringLiteral("Cabin"), 11));
        slotAxis->setGridLineVisible(false);
        chart->addAxis(slotAxis, Qt::AlignBottom);
        series->attachAxis(slotAxis);
        auto *valueAxis = new QtCharts::QValueAxis;
        valueAxis->setRange(0.0, valueLimit);
        valueAxis->setLabelsFont(QFont(QStringLiteral("Cabin"), 9));
        valueAxis->setGridLineVisible(false);
        chart->addAxis(valueAxis, Qt::AlignLeft);
        series->attachAxis(valueAxis);
        follow(view->viewport(), chartRect.width() - 40);
    }

protected:
    void showView(double from) override
    {
        // The bar of an index stands around it.
        const double left = from - slotOf(first) - 0.5;
        slotAxis->setRange(left, left + slotCount);
    }

private:
    QtCharts::QBarSet *newSet(const std::vector<double> &values, const QColor &color) const
    {
        auto *set = new QtCharts::QBarSet(QString());
        set->setColor(color);
        for (std::size_t i = first; i < values.size(); ++i) {
            set->append(values[i]);
        }
        return set;
    }

    QtCharts::QChart *chart;
    QtCharts::QChartView *view;
    QtCharts::QValueAxis *slotAxis;
    std::size_t first = 0;
};

} // namespace

std::unique_ptr<Page> qtChartsPage(const Readings &readings)
{
    return std::make_unique<QtChartsPage>(readings);
}

} // namespace Charts
