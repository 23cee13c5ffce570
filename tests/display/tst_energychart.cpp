// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"
#include "household.h"

#include <QTest>
#include <ZEMHistogram>
#include <ZEMStyle>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

using namespace Readings;

/** A chart of one energy on the screen. */
class tst_EnergyChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void incompleteBarIsPalerAndNamedInTheHeadline();
};

static QColor barColour(const ZEMHistogram *chart, double slot)
{
    auto *plot = chart->findChild<QwtPlot *>();
    const QImage picture = plot->canvas()->grab().toImage();
    const int x = int(plot->transform(QwtPlot::xBottom, slot + 0.5));
    return picture.pixelColor(x, picture.height() - 4);
}

void tst_EnergyChart::incompleteBarIsPalerAndNamedInTheHeadline()
{
    const QTimeZone zone("Europe/Amsterdam");
    const Calendar calendar(zone);
    Household household;
    household.timeZone = zone;
    const QDate date(2024, 5, 1);
    Meter &meter = household.meter({Quantity::Gas}, Meter::Kind::Counter);
    const qint64 noon = calendar.hour(date, 12).from;
    meter.addReading(noon - 1000, 9.0);
    for (int i = 0; i <= 20; ++i) {
        meter.addReading(noon + i * 3600, 10.0 + i);
    }
    const std::vector<Energy> energies = energiesOf(household);
    EnergyChart chart(energies.front(), Period::Day, {222, 156, 94});
    const std::unique_ptr<QWidget> widget(chart.widget());
    widget->resize(600, 300);
    widget->show();
    chart.feed(calendar, {date, date.addDays(1)});
    // The newest day has no incomplete hour; the one before begins with one.
    QVERIFY2(!chart.widget()->title().contains(QStringLiteral("(onvolledig)")),
             qPrintable(chart.widget()->title()));
    const QColor whole = barColour(chart.widget(), 3.0);
    chart.widget()->showPrevPeriod();
    QTRY_VERIFY(chart.widget()->title().endsWith(QStringLiteral("(onvolledig)")));
    QTRY_VERIFY(!chart.widget()->title().contains(QStringLiteral("t/m")));
    const QColor part = barColour(chart.widget(), -24.0 + 11.0);
    QCOMPARE(barColour(chart.widget(), -24.0 + 13.0), whole);
    QVERIFY2(part != whole && part != barColour(chart.widget(), -24.0 + 5.0),
             qPrintable(part.name()));
}

QTEST_MAIN(tst_EnergyChart)
#include "tst_energychart.moc"
