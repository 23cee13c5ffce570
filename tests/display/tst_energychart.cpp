// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"
#include "household.h"
#include "paintcounter.h"
#include "zemtest.h"

#include <QLocale>
#include <QTest>
#include <ZEMHistogram>
#include <ZEMStyle>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

using namespace Readings;
using namespace ZemTest;

/** A chart of one energy on the screen. */
class tst_EnergyChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void incompleteBarIsPalerAndMarkedInTheHeadline();
    void headlineTellsTheTotalOfTheView();
    void headlineNamesEachOfSeveralAmounts();
    void headlineTellsTheYearUnlessItIsThePresentOne();
    void tappedBarTellsItsSlotUntilTheNextTouch();
    void pickedBarIsPaintedOnTheScreen();
    void barOfAMeterThatFellSilentIsPaintedOnTheScreen();
    void valueAxisFitsThePeriodInView();
    void dayEndsAtTwentyFour();

private:
    QWidget *canvas() const { return widget->findChild<QwtPlot *>()->canvas(); }
    void show(const Energy &energy);
    void tapBar(double slot) const;

    Household household;
    std::unique_ptr<EnergyChart> chart;
    std::unique_ptr<QWidget> widget;
};

static const QDate firstDay(2024, 5, 1);

void tst_EnergyChart::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_EnergyChart::tapBar(double slot) const
{
    auto *plot = widget->findChild<QwtPlot *>();
    const QPoint place(int(plot->transform(QwtPlot::xBottom, slot + 0.5)), canvas()->height() - 4);
    press(canvas(), place);
    release(canvas(), place);
}

static QColor barColour(const ZEMHistogram *chart, double slot)
{
    auto *plot = chart->findChild<QwtPlot *>();
    const QImage picture = plot->canvas()->grab().toImage();
    const int x = int(plot->transform(QwtPlot::xBottom, slot + 0.5));
    return picture.pixelColor(x, picture.height() - 4);
}

/**
 * Gas from 11:43 on 1 May 2024 to 8:00 on the next day, 1 m³ in each hour, and water, of which 4 m³
 * are used in each hour of the first day and 1 m³ in those of the second.
 */
static Household householdOfADay()
{
    Household household;
    household.timeZone = QTimeZone("Europe/Amsterdam");
    const qint64 noon = Calendar(household.timeZone).hour(firstDay, 12).from;
    Meter &gas = household.meter({Quantity::Gas}, Meter::Kind::Counter);
    gas.addReading(noon - 1000, 9.0);
    for (int i = 0; i <= 20; ++i) {
        gas.addReading(noon + i * 3600, 10.0 + i);
    }
    Meter &water = household.meter({Quantity::Water}, Meter::Kind::Counter);
    for (int i = -12; i <= 20; ++i) {
        water.addReading(noon + i * 3600, 100.0 + (i <= 12 ? 4.0 * i : 48.0 + (i - 12)));
    }
    return household;
}

void tst_EnergyChart::init()
{
    household = householdOfADay();
    show(energiesOf(household).front()); // gas
}

void tst_EnergyChart::show(const Energy &energy)
{
    widget.reset();
    chart = std::make_unique<EnergyChart>(energy, Period::Day);
    widget.reset(chart->widget());
    widget->resize(600, 300);
    widget->show();
    chart->feed(Calendar(household.timeZone), {firstDay, firstDay.addDays(1)}, firstDay);
}

void tst_EnergyChart::cleanup()
{
    widget.reset();
    chart.reset();
}

void tst_EnergyChart::incompleteBarIsPalerAndMarkedInTheHeadline()
{
    const QColor whole = barColour(chart->widget(), 3.0);
    chart->widget()->showPrevPeriod();
    QTRY_COMPARE(chart->widget()->title().section(QLatin1Char('\n'), 1),
                 QStringLiteral("≥ 13,0 m³"));
    const QColor part = barColour(chart->widget(), -24.0 + 11.0);
    QCOMPARE(barColour(chart->widget(), -24.0 + 13.0), whole);
    QVERIFY2(part != whole && part != barColour(chart->widget(), -24.0 + 5.0),
             qPrintable(part.name()));
}

void tst_EnergyChart::headlineTellsTheTotalOfTheView()
{
    QTRY_VERIFY2(chart->widget()->title().endsWith(QStringLiteral("\n8,00 m³")),
                 qPrintable(chart->widget()->title()));
    // Half a day back, by dragging: twelve hours of each day.
    const QPoint middle = canvas()->rect().center();
    press(canvas(), middle);
    const QPoint end = middle + QPoint(int(0.49 * canvas()->width()), 0);
    moveTo(canvas(), end);
    QTRY_VERIFY2(chart->widget()->title().endsWith(QStringLiteral("\n20,0 m³")),
                 qPrintable(chart->widget()->title()));
    release(canvas(), end);
}

void tst_EnergyChart::headlineNamesEachOfSeveralAmounts()
{
    const qint64 noon = Calendar(household.timeZone).hour(firstDay, 12).from;
    for (const Register &channel : {Register {Quantity::GridImport, Tariff::Low},
                                    Register {Quantity::GridImport, Tariff::Normal}}) {
        Meter &import = household.meter(channel, Meter::Kind::Counter);
        for (int i = 0; i <= 20; ++i) {
            import.addReading(noon + i * 3600, 0.25 * i);
        }
    }
    show(energiesOf(household).front());
    QTRY_COMPARE(chart->widget()->title().section(QLatin1Char('\n'), 1),
                 QStringLiteral("van het net 4,00 kWh"));
    Meter &panels = household.meter({Quantity::SolarProduction}, Meter::Kind::Counter);
    for (int i = 0; i <= 20; ++i) {
        panels.addReading(noon + i * 3600, 0.125 * i);
    }
    show(energiesOf(household).front());
    QTRY_COMPARE(chart->widget()->title().section(QLatin1Char('\n'), 1),
                 QStringLiteral("van het net 4,00 kWh\nopwekking 1,00 kWh"));
    // The legend is a name enough for a single one.
    show(energiesOf(household).back());
    QTRY_COMPARE(chart->widget()->title().section(QLatin1Char('\n'), 1),
                 QStringLiteral("1,00 kWh"));
}

void tst_EnergyChart::headlineTellsTheYearUnlessItIsThePresentOne()
{
    QVERIFY(!chart->widget()->title().contains(QStringLiteral("2024")));
    chart->feed(Calendar(household.timeZone), {firstDay, firstDay.addDays(1)},
                firstDay.addYears(1));
    QVERIFY2(chart->widget()->title().contains(QStringLiteral(" 2024\n")),
             qPrintable(chart->widget()->title()));
}

void tst_EnergyChart::tappedBarTellsItsSlotUntilTheNextTouch()
{
    const QString plain = chart->widget()->title();
    const QColor before = barColour(chart->widget(), 3.0);
    tapBar(3.0);
    QCOMPARE(chart->widget()->title(), QStringLiteral("do 2 mei 2024, 3 – 4 uur\n1,00 m³"));
    QVERIFY(barColour(chart->widget(), 3.0) != before);
    QCOMPARE(barColour(chart->widget(), 4.0), before);
    // New readings leave it.
    chart->feed(Calendar(household.timeZone), {firstDay, firstDay.addDays(1)}, firstDay);
    QCOMPARE(chart->widget()->title(), QStringLiteral("do 2 mei 2024, 3 – 4 uur\n1,00 m³"));
    tapBar(20.0); // of the evening that has not come yet
    QCOMPARE(chart->widget()->title(), QStringLiteral("do 2 mei 2024, 20 – 21 uur\n–"));
    QCOMPARE(barColour(chart->widget(), 3.0), before);
    press(canvas(), canvas()->rect().center());
    QCOMPARE(chart->widget()->title(), plain);
    moveTo(canvas(), canvas()->rect().center() - QPoint(60, 0));
    release(canvas(), canvas()->rect().center() - QPoint(60, 0));
    QCOMPARE(chart->widget()->title(), plain);
}

void tst_EnergyChart::pickedBarIsPaintedOnTheScreen()
{
    PaintCounter paints;
    paints.watch(canvas());
    QVERIFY(QTest::qWaitForWindowExposed(widget.get(), ZemTest::hangs));
    QCoreApplication::processEvents();
    paints.count = 0;
    tapBar(3.0);
    ZEM_TRY_VERIFY(paints.count > 0);
}

void tst_EnergyChart::barOfAMeterThatFellSilentIsPaintedOnTheScreen()
{
    // A counter that is read in the middle of its last hour.
    const qint64 end = *household.lastInstant();
    household.meter({Quantity::Gas}, Meter::Kind::Counter).addReading(end + 1800, 30.5);
    DateRange range = datesOf(household);
    const auto feed = [&] {
        chart->feed(Calendar(household.timeZone), range, firstDay.addDays(1));
    };
    feed();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get(), ZemTest::hangs));
    QCoreApplication::processEvents();
    const QColor running = barColour(chart->widget(), 8.0);

    PaintCounter paints;
    paints.watch(canvas());
    range.readUntil = end + 7200; // by other meters
    feed();
    ZEM_TRY_VERIFY(paints.count > 0);
    QVERIFY(barColour(chart->widget(), 8.0) != running);
}

void tst_EnergyChart::valueAxisFitsThePeriodInView()
{
    show(energiesOf(household).back()); // water
    const auto limit = [&] {
        return widget->findChild<QwtPlot *>()->axisInterval(QwtPlot::yLeft).maxValue();
    };
    QCOMPARE(limit(), 1.0);
    PaintCounter paints;
    paints.watch(widget->findChild<QwtPlot *>()->axisWidget(QwtPlot::yLeft));
    chart->widget()->showPrevPeriod();
    ZEM_TRY_COMPARE(limit(), 5.0);
    ZEM_TRY_VERIFY(paints.count > 0);
    chart->widget()->showNextPeriod();
    ZEM_TRY_COMPARE(limit(), 1.0);

    // Under a finger it stays.
    const QPoint middle = canvas()->rect().center();
    const QPoint end = middle + QPoint(canvas()->width() / 2, 0);
    press(canvas(), middle);
    moveTo(canvas(), end);
    ZemTest::outlast(0);
    QCOMPARE(limit(), 1.0);
    release(canvas(), end);
    ZEM_TRY_COMPARE(limit(), 5.0);
}

/** As on the analysis page; a midnight amid two days is the start of the second. */
void tst_EnergyChart::dayEndsAtTwentyFour()
{
    const auto labels = [&] {
        const QwtPlot *plot = widget->findChild<QwtPlot *>();
        QStringList texts;
        const QwtScaleDiv &scale = plot->axisScaleDiv(QwtPlot::xBottom);
        for (const double tick : scale.ticks(QwtScaleDiv::MajorTick)) {
            texts << plot->axisScaleDraw(QwtPlot::xBottom)->label(tick).text();
        }
        return texts.join(QLatin1Char(' '));
    };
    const QString wholeDay = QStringLiteral("00:00 06:00 12:00 18:00 24:00");
    QCOMPARE(labels(), wholeDay);
    chart->widget()->showPrevPeriod();
    QTRY_COMPARE(labels(), wholeDay);

    const QPoint middle = canvas()->rect().center();
    press(canvas(), middle);
    moveTo(canvas(), middle - QPoint(canvas()->width() / 4, 0));
    QTRY_VERIFY2(labels().contains(QStringLiteral("18:00 00:00")), qPrintable(labels()));
    QVERIFY(!labels().contains(QStringLiteral("24:00")));
    release(canvas(), middle - QPoint(canvas()->width() / 4, 0));
}

QTEST_MAIN(tst_EnergyChart)
#include "tst_energychart.moc"
