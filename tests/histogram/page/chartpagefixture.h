// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTPAGEFIXTURE_H
#define CHARTPAGEFIXTURE_H

#include "../../dashboard/dashboardtest.h"

#include <ZEMButton>
#include <ZEMHistogramWidget>
#include <ZEMSmartDayHistogram>
#include <ZEMTextLabel>

#include <QStackedWidget>
#include <QTimeZone>

#include <qwt_plot.h>

/** What the tests of the chart page share. */
namespace ChartPageTest {

using DashboardTest::part;
using Page = ZEMHistogramWidget;

/** A chart of five days that words its headline by the day in view. */
class Chart : public ZEMSmartDayHistogram
{
public:
    explicit Chart(const QString &chartName) : name(chartName)
    {
        init();
        setScalePeriod(24.0);
        setScaleInterval(QwtInterval(-96.0, 24.0));
        setDataChangedTimestamp(QDateTime(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc()));
    }

    void updateTitle(QwtInterval interval) override
    {
        titleText = QStringLiteral("%1 %2").arg(name).arg(interval.minValue() / 24.0);
        Q_EMIT changed(this);
    }

    double day() const { return plot->axisInterval(QwtPlot::xBottom).minValue() / 24.0; }

private:
    QString name;
};

inline QStackedWidget *stack(const Page &page)
{
    return part<QStackedWidget>(page, "stackedWidget");
}

inline QString title(const Page &page)
{
    return part<ZEMTextLabel>(page, "lblTitle")->text();
}

inline ZEMButton *button(const Page &page, const char *name)
{
    return part<ZEMButton>(page, name);
}

inline QStringList checkedButtons(const Page &page)
{
    QStringList names;
    for (const auto *each : page.findChildren<ZEMButton *>()) {
        if (each->isChecked()) {
            names << each->objectName();
        }
    }
    names.sort();
    return names;
}

} // namespace ChartPageTest

#endif
