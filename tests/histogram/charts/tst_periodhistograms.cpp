// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMMonthScaleDraw>
#include <ZEMScaleEngine>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMWeekHistogram>

#include <QLocale>
#include <QSignalSpy>
#include <QSpacerItem>
#include <QTest>
#include <QTimeZone>
#include <QVBoxLayout>
#include <qwt_dyngrid_layout.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <functional>

/** The five charts by name, and the plot inside. */
using Make = std::function<ZEMHistogram *()>;
Q_DECLARE_METATYPE(Make)

class tst_PeriodHistograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void constructorsKeepTheNameOfTheBase();
    void xScale_data();
    void xScale();
    void xScaleDraw_data();
    void xScaleDraw();
    void valueAxis_data();
    void valueAxis();
    void yAxisTitle_data();
    void yAxisTitle();
    void smartScaleDrawsAreNested();

    void smartLayoutWithoutChild();
    void smartLayoutWithChild();
    void plainWeekLayout();

    void xAxisStandsAtTheCanvasWhenFirstShown_data();
    void xAxisStandsAtTheCanvasWhenFirstShown();
    void xAxisStandsAtTheCanvasAfterAChangeWhileHidden();

    void titleIsEmptyAtFirst();
    void headline_data();
    void headline();
    void nullTimestampGivesTheLiteralPartsOnly();
    void updateTitleEmitsChangedAfterStoring_data();
    void updateTitleEmitsChangedAfterStoring();
    void monthChartUpdatesItsChild();
    void otherChartsDoNotUpdateTheirChild();
    void timestampMovesTheMonthLabels();
    void monthChartGetsAlongWithLabelsOfTheHost();
};

static QDateTime midnight(int year, int month, int day)
{
    return {QDate(year, month, day), QTime(0, 0), QTimeZone::utc()};
}

static QLocale dutch()
{
    return {QLocale::Dutch, QLocale::Netherlands};
}

static QwtPlot *plotOf(const QWidget *histogram)
{
    return histogram->findChild<QwtPlot *>(QString(), Qt::FindDirectChildrenOnly);
}

static void addCharts(bool plainToo = true)
{
    QTest::addColumn<Make>("make");
    if (plainToo) {
        QTest::newRow("week") << Make([] { return new ZEMWeekHistogram; });
    }
    QTest::newRow("smart day") << Make([] { return new ZEMSmartDayHistogram; });
    QTest::newRow("smart week") << Make([] { return new ZEMSmartWeekHistogram; });
    QTest::newRow("smart month") << Make([] { return new ZEMSmartMonthHistogram; });
}

void tst_PeriodHistograms::initTestCase()
{
    qRegisterMetaType<ZEMHistogram *>();
}

void tst_PeriodHistograms::init()
{
    QLocale::setDefault(dutch());
}

void tst_PeriodHistograms::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_PeriodHistograms::constructorsKeepTheNameOfTheBase()
{
    const ZEMWeekHistogram week;
    const ZEMSmartDayHistogram day;
    QCOMPARE(week.objectName(), QStringLiteral("ZEMHistogram"));
    QCOMPARE(day.objectName(), QStringLiteral("ZEMHistogram"));
    QCOMPARE(day.metaObject()->superClass()->className(), "ZEMSmartHistogram");
    QCOMPARE(day.metaObject()->superClass()->superClass()->className(), "ZEMHistogram");
}

void tst_PeriodHistograms::xScale_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("maxMajor");
    QTest::addColumn<int>("maxMinor");
    QTest::addColumn<bool>("ticksInTheMiddle");
    QTest::addColumn<QStringList>("labels");

    const QStringList days {
        dutch().dayName(1, QLocale::ShortFormat), dutch().dayName(2, QLocale::ShortFormat),
        dutch().dayName(3, QLocale::ShortFormat), dutch().dayName(4, QLocale::ShortFormat),
        dutch().dayName(5, QLocale::ShortFormat), dutch().dayName(6, QLocale::ShortFormat),
        dutch().dayName(7, QLocale::ShortFormat)};
    QTest::newRow("week") << Make([] { return new ZEMWeekHistogram; }) << 7.0 << 1.0 << 7 << 2
                          << true << days;
    QTest::newRow("smart day") << Make([] { return new ZEMSmartDayHistogram; }) << 24.0 << 6.0 << 4
                               << 6 << false
                               << QStringList {"00:00", "06:00", "12:00", "18:00", "00:00"};
    QTest::newRow("smart week") << Make([] { return new ZEMSmartWeekHistogram; }) << 7.0 << 1.0 << 7
                                << 2 << true << days;
    QTest::newRow("smart month") << Make([] { return new ZEMSmartMonthHistogram; }) << 5.0 << 1.0
                                 << 5 << 2 << true
                                 << QStringList {"7 mrt.", "14 mrt.", "21 mrt.", "28 mrt.",
                                                 "4 apr."};
}

void tst_PeriodHistograms::xScale()
{
    QFETCH(Make, make);
    QFETCH(double, max);
    QFETCH(double, step);
    QFETCH(int, maxMajor);
    QFETCH(int, maxMinor);
    QFETCH(bool, ticksInTheMiddle);
    QFETCH(QStringList, labels);

    const QScopedPointer<ZEMHistogram> chart(make());
    chart->init();
    chart->setDataChangedTimestamp(midnight(2016, 3, 7));
    const QwtPlot *plot = plotOf(chart.data());

    QCOMPARE(plot->axisInterval(QwtPlot::xBottom), QwtInterval(0.0, max));
    QCOMPARE(plot->axisStepSize(QwtPlot::xBottom), step);
    QCOMPARE(plot->axisMaxMajor(QwtPlot::xBottom), maxMajor);
    QCOMPARE(plot->axisMaxMinor(QwtPlot::xBottom), maxMinor);
    QCOMPARE(dynamic_cast<const ZEMScaleEngine *>(plot->axisScaleEngine(QwtPlot::xBottom))
                 != nullptr,
             ticksInTheMiddle);

    const QList<double> ticks = plot->axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
    QCOMPARE(ticks.size(), labels.size());
    for (int i = 0; i < ticks.size(); ++i) {
        QCOMPARE(ticks[i], (i + (ticksInTheMiddle ? 0.5 : 0.0)) * step);
        QString expected = labels[i];
        if (max == 5.0) {
            expected = dutch().toString(QDate(2016, 3, 7).addDays(7 * i), "d MMM");
        }
        QCOMPARE(plot->axisScaleDraw(QwtPlot::xBottom)->label(ticks[i]).text(), expected);
    }
}

void tst_PeriodHistograms::xScaleDraw_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<double>("major");
    QTest::addColumn<double>("medium");
    QTest::addColumn<double>("minor");
    QTest::addColumn<double>("spacing");

    QTest::newRow("week") << Make([] { return new ZEMWeekHistogram; }) << 0.0 << 40.0 << 0.0
                          << 15.0;
    QTest::newRow("smart day") << Make([] { return new ZEMSmartDayHistogram; }) << 5.0 << 5.0 << 5.0
                               << 10.0;
    QTest::newRow("smart week") << Make([] { return new ZEMSmartWeekHistogram; }) << 0.0 << 5.0
                                << 0.0 << 15.0;
    QTest::newRow("smart month") << Make([] { return new ZEMSmartMonthHistogram; }) << 0.0 << 5.0
                                 << 0.0 << 15.0;
}

void tst_PeriodHistograms::xScaleDraw()
{
    QFETCH(Make, make);
    QFETCH(double, major);
    QFETCH(double, medium);
    QFETCH(double, minor);
    QFETCH(double, spacing);

    const QScopedPointer<ZEMHistogram> chart(make());
    chart->init();
    const QwtScaleDraw *draw = plotOf(chart.data())->axisScaleDraw(QwtPlot::xBottom);
    QVERIFY(!draw->hasComponent(QwtAbstractScaleDraw::Backbone));
    QVERIFY(draw->hasComponent(QwtAbstractScaleDraw::Ticks));
    QVERIFY(draw->hasComponent(QwtAbstractScaleDraw::Labels));
    QCOMPARE(draw->tickLength(QwtScaleDiv::MajorTick), major);
    QCOMPARE(draw->tickLength(QwtScaleDiv::MediumTick), medium);
    QCOMPARE(draw->tickLength(QwtScaleDiv::MinorTick), minor);
    QCOMPARE(draw->spacing(), spacing);
    QCOMPARE(draw->labelAlignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_PeriodHistograms::valueAxis_data()
{
    addCharts();
}

void tst_PeriodHistograms::valueAxis()
{
    QFETCH(Make, make);
    const QScopedPointer<ZEMHistogram> chart(make());
    chart->init();
    const QwtPlot *plot = plotOf(chart.data());

    QVERIFY(!plot->axisAutoScale(QwtPlot::yLeft));
    QCOMPARE(plot->axisInterval(QwtPlot::yLeft), QwtInterval(0.0, 10.0));
    QCOMPARE(plot->axisStepSize(QwtPlot::yLeft), 0.0);

    const QwtScaleDraw *draw = plot->axisScaleDraw(QwtPlot::yLeft);
    const bool month = qobject_cast<ZEMSmartMonthHistogram *>(chart.data());
    QVERIFY(dynamic_cast<const ZEMKWhScaleDraw *>(draw));
    QCOMPARE(dynamic_cast<const ZEMMonthKWhScaleDraw *>(draw) != nullptr, month);
    QCOMPARE(draw->tickLength(QwtScaleDiv::MinorTick), month ? 0.0 : 4.0);
}

void tst_PeriodHistograms::yAxisTitle_data()
{
    addCharts();
}

void tst_PeriodHistograms::yAxisTitle()
{
    QFETCH(Make, make);
    const QScopedPointer<ZEMHistogram> chart(make());
    chart->setYAxisText(QStringLiteral("m³"));
    chart->init();
    const QwtText title = plotOf(chart.data())->axisWidget(QwtPlot::yLeft)->title();
    QCOMPARE(title.text(), QStringLiteral("m³"));
    QCOMPARE(title.renderFlags(), int(Qt::AlignRight));
    QVERIFY(title.testPaintAttribute(QwtText::PaintUsingTextFont));

    chart->setYAxisText(QStringLiteral("late"));
    QCOMPARE(plotOf(chart.data())->axisWidget(QwtPlot::yLeft)->title().text(),
             QStringLiteral("m³"));

    const QScopedPointer<ZEMHistogram> untouched(make());
    untouched->init();
    QCOMPARE(plotOf(untouched.data())->axisWidget(QwtPlot::yLeft)->title().text(),
             QStringLiteral("kWh"));
}

void tst_PeriodHistograms::smartScaleDrawsAreNested()
{
    ZEMSmartMonthHistogram month;
    month.init();
    QVERIFY(dynamic_cast<const ZEMSmartMonthHistogram::xMonthScaleDraw *>(
        plotOf(&month)->axisScaleDraw(QwtPlot::xBottom)));
    ZEMSmartWeekHistogram week;
    week.init();
    QVERIFY(dynamic_cast<const ZEMSmartWeekHistogram::xWeekScaleDraw *>(
        plotOf(&week)->axisScaleDraw(QwtPlot::xBottom)));
    ZEMSmartDayHistogram day;
    day.init();
    QVERIFY(dynamic_cast<const ZEMSmartDayHistogram::xDayScaleDraw *>(
        plotOf(&day)->axisScaleDraw(QwtPlot::xBottom)));
}

static void compareSmartTail(const QLayout *layout, int spacerIndex)
{
    QSpacerItem *spacer = layout->itemAt(spacerIndex)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(40, 5));
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);

    auto *legend = qobject_cast<QwtLegend *>(layout->itemAt(spacerIndex + 1)->widget());
    QVERIFY(legend);
    QCOMPARE(legend->minimumHeight(), 71);
    auto *grid = qobject_cast<QwtDynGridLayout *>(legend->contentsWidget()->layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 12);
    QCOMPARE(grid->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(layout->count(), spacerIndex + 2);
}

void tst_PeriodHistograms::smartLayoutWithoutChild()
{
    ZEMSmartDayHistogram chart;
    chart.init();
    auto *layout = qobject_cast<QVBoxLayout *>(chart.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget *>(plotOf(&chart)));
    compareSmartTail(layout, 1);
}

void tst_PeriodHistograms::smartLayoutWithChild()
{
    ZEMSmartDayHistogram chart;
    auto *child = new ZEMSmartDayHistogram;
    child->init();
    chart.setChild(child);
    chart.init();
    QCOMPARE(chart.layout()->itemAt(0)->widget(), static_cast<QWidget *>(plotOf(&chart)));
    QCOMPARE(chart.layout()->itemAt(1)->widget(), static_cast<QWidget *>(child));
    compareSmartTail(chart.layout(), 2);
}

void tst_PeriodHistograms::plainWeekLayout()
{
    ZEMWeekHistogram chart;
    chart.init();
    QCOMPARE(chart.layout()->count(), 3);
    QCOMPARE(chart.layout()->itemAt(1)->spacerItem()->sizePolicy().verticalPolicy(),
             QSizePolicy::Expanding);
}

static void compareCanvasWithAxis(const QwtPlot *plot)
{
    // A margin of -1 at the left, where the value axis is, and of 10 at the right, unless the last
    // label needs more.
    const QwtScaleMap map = plot->canvasMap(QwtPlot::xBottom);
    QCOMPARE(map.p1(), -1.0);
    QVERIFY2(map.p2() <= plot->canvas()->width() - 10, qPrintable(QString::number(map.p2())));
    QVERIFY2(map.p2() >= plot->canvas()->width() - 25, qPrintable(QString::number(map.p2())));
}

void tst_PeriodHistograms::xAxisStandsAtTheCanvasWhenFirstShown_data()
{
    addCharts();
}

void tst_PeriodHistograms::xAxisStandsAtTheCanvasWhenFirstShown()
{
    QFETCH(Make, make);
    QWidget page;
    auto *chart = make();
    chart->init();
    chart->setDataChangedTimestamp(midnight(2016, 10, 24));
    chart->replot();
    auto *layout = new QVBoxLayout(&page);
    layout->addWidget(chart);
    page.resize(640, 480);
    page.show();
    compareCanvasWithAxis(plotOf(chart));
}

void tst_PeriodHistograms::xAxisStandsAtTheCanvasAfterAChangeWhileHidden()
{
    QWidget page;
    auto *chart = new ZEMSmartMonthHistogram;
    chart->init();
    chart->setDataChangedTimestamp(midnight(2016, 10, 24));
    auto *layout = new QVBoxLayout(&page);
    layout->addWidget(chart);
    page.resize(220, 480);
    page.show();
    page.hide();
    page.resize(640, 480);
    chart->replot();
    page.show();
    compareCanvasWithAxis(plotOf(chart));
}

void tst_PeriodHistograms::titleIsEmptyAtFirst()
{
    ZEMSmartWeekHistogram chart;
    chart.init();
    QCOMPARE(chart.title(), QString());
}

void tst_PeriodHistograms::headline_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QDateTime>("timestamp");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("expected");

    for (const QLocale &locale : {dutch(), QLocale(QLocale::English, QLocale::UnitedKingdom)}) {
        const QByteArray prefix = locale.name().toLatin1() + ": ";
        const auto row = [&](const char *name, const Make &make, const QDateTime &t, double min,
                             double max, const QString &expected) {
            QTest::newRow(prefix + name) << make << locale << t << min << max << expected;
        };
        const auto date = [&](int year, int month, int day, const char *format) {
            return locale.toString(QDate(year, month, day), QLatin1String(format));
        };
        const Make plainWeek = [] { return new ZEMWeekHistogram; };
        const Make day = [] { return new ZEMSmartDayHistogram; };
        const Make week = [] { return new ZEMSmartWeekHistogram; };
        const Make month = [] { return new ZEMSmartMonthHistogram; };
        const QString to = QStringLiteral(" t/m ");

        row("plain week in one month", plainWeek, midnight(2016, 3, 7), 0, 7,
            "weekoverzicht - 7" + to + date(2016, 3, 13, "d MMMM"));
        row("plain week across a month end", plainWeek, midnight(2016, 3, 7), -7, 0,
            "weekoverzicht - " + date(2016, 2, 29, "d MMM") + to + date(2016, 3, 6, "d MMMM"));
        row("plain week across a year end", plainWeek, midnight(2016, 1, 4), -7, 0,
            "weekoverzicht - " + date(2015, 12, 28, "d MMM") + to + date(2016, 1, 3, "d MMMM"));

        row("week in one month", week, midnight(2016, 3, 7), 0, 7,
            "7" + to + date(2016, 3, 13, "d MMMM"));
        row("week across a month end", week, midnight(2016, 3, 7), -7, 0,
            date(2016, 2, 29, "d MMM") + to + date(2016, 3, 6, "d MMMM"));
        row("week across a year end", week, midnight(2016, 1, 4), -7, 0,
            date(2015, 12, 28, "d MMM") + to + date(2016, 1, 3, "d MMMM"));
        row("week dragged by half a day", week, midnight(2016, 3, 7), -0.5, 6.5,
            "7" + to + date(2016, 3, 12, "d MMMM"));

        row("day", day, midnight(2016, 3, 7), 0, 24, date(2016, 3, 7, "ddd d MMMM"));
        row("day before", day, midnight(2016, 3, 7), -24, 0, date(2016, 3, 6, "ddd d MMMM"));
        row("day dragged half way", day, midnight(2016, 3, 7), -12, 12,
            date(2016, 3, 6, "ddd d") + to + date(2016, 3, 7, "ddd d MMMM"));
        row("day dragged across a month end", day, midnight(2016, 3, 1), -12, 12,
            date(2016, 2, 29, "ddd d MMM") + to + date(2016, 3, 1, "ddd d MMMM"));
        row("day dragged across a year end", day, midnight(2016, 1, 1), -1, 23,
            date(2015, 12, 31, "ddd d MMM") + to + date(2016, 1, 1, "ddd d MMMM"));

        row("month in March", month, midnight(2021, 3, 1), 0, 4, date(2021, 3, 1, "MMMM"));
        row("month, five weeks", month, midnight(2016, 3, 14), 0, 5,
            date(2016, 3, 1, "MMMM") + " / " + date(2016, 4, 1, "MMMM"));
        row("month, 28 February to 3 April", month, midnight(2017, 2, 28), 0, 5,
            date(2017, 2, 1, "MMMM") + to + date(2017, 4, 1, "MMMM"));
        row("month across a year end", month, midnight(2016, 12, 5), 0, 5,
            date(2016, 12, 1, "MMMM") + " / " + date(2017, 1, 1, "MMMM"));
        row("month dragged back", month, midnight(2016, 12, 5), -5, 0,
            date(2016, 10, 1, "MMMM") + to + date(2016, 12, 1, "MMMM"));
    }
}

void tst_PeriodHistograms::headline()
{
    QFETCH(Make, make);
    QFETCH(QLocale, locale);
    QFETCH(QDateTime, timestamp);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, expected);

    QLocale::setDefault(locale);
    const QScopedPointer<ZEMHistogram> chart(make());
    chart->init();
    chart->setDataChangedTimestamp(timestamp);
    chart->updateTitle(QwtInterval(min, max));
    QCOMPARE(chart->title(), expected);
}

void tst_PeriodHistograms::nullTimestampGivesTheLiteralPartsOnly()
{
    ZEMWeekHistogram plainWeek;
    plainWeek.init();
    plainWeek.setDataChangedTimestamp(QDateTime());
    QCOMPARE(plainWeek.title(), QStringLiteral("weekoverzicht -  t/m "));

    ZEMSmartWeekHistogram week;
    week.init();
    week.setDataChangedTimestamp(QDateTime());
    QCOMPARE(week.title(), QStringLiteral(" t/m "));

    ZEMSmartDayHistogram day;
    day.init();
    day.setDataChangedTimestamp(QDateTime());
    QCOMPARE(day.title(), QString());

    ZEMSmartMonthHistogram month;
    month.init();
    month.setDataChangedTimestamp(QDateTime());
    QCOMPARE(month.title(), QString());
    QCOMPARE(plotOf(&month)->axisScaleDraw(QwtPlot::xBottom)->label(0.5).text(), QString());
}

void tst_PeriodHistograms::updateTitleEmitsChangedAfterStoring_data()
{
    addCharts();
}

void tst_PeriodHistograms::updateTitleEmitsChangedAfterStoring()
{
    QFETCH(Make, make);
    const QScopedPointer<ZEMHistogram> chart(make());
    chart->init();
    QStringList titles;
    connect(chart.data(), QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), this,
            [&](ZEMHistogram *histogram) {
                QCOMPARE(histogram, chart.data());
                titles << histogram->title();
            });
    chart->setDataChangedTimestamp(midnight(2016, 3, 7));
    QVERIFY(!chart->title().isEmpty());
    QCOMPARE(titles, QStringList {chart->title()});
}

void tst_PeriodHistograms::monthChartUpdatesItsChild()
{
    ZEMSmartMonthHistogram chart;
    auto *child = new ZEMSmartMonthHistogram;
    child->init();
    chart.setChild(child);
    chart.init();
    chart.setDataChangedTimestamp(midnight(2016, 3, 7));
    chart.updateTitle(QwtInterval(10.0, 15.0));
    QCOMPARE(child->title(), chart.title());
    QCOMPARE(child->title(), QStringLiteral("mei / juni"));
}

void tst_PeriodHistograms::otherChartsDoNotUpdateTheirChild()
{
    ZEMSmartWeekHistogram chart;
    auto *child = new ZEMSmartWeekHistogram;
    child->init();
    chart.setChild(child);
    chart.init();
    chart.setDataChangedTimestamp(midnight(2016, 3, 7));
    const QString before = child->title();
    QCOMPARE(before, QStringLiteral("7 t/m 13 maart"));
    chart.updateTitle(QwtInterval(-14.0, -7.0));
    QVERIFY(chart.title() != before);
    QCOMPARE(child->title(), before);
}

void tst_PeriodHistograms::timestampMovesTheMonthLabels()
{
    ZEMSmartMonthHistogram chart;
    chart.init();
    const QwtScaleDraw *draw = plotOf(&chart)->axisScaleDraw(QwtPlot::xBottom);
    chart.setDataChangedTimestamp(midnight(2016, 3, 7));
    QCOMPARE(draw->label(0.5).text(), dutch().toString(QDate(2016, 3, 7), "d MMM"));
    chart.setDataChangedTimestamp(midnight(2016, 3, 14));
    QCOMPARE(draw->label(0.5).text(), dutch().toString(QDate(2016, 3, 14), "d MMM"));
    QCOMPARE(draw->label(-0.5).text(), dutch().toString(QDate(2016, 3, 7), "d MMM"));
}

void tst_PeriodHistograms::monthChartGetsAlongWithLabelsOfTheHost()
{
    ZEMSmartMonthHistogram chart;
    chart.init();
    plotOf(&chart)->setAxisScaleDraw(QwtPlot::xBottom, new QwtScaleDraw);
    chart.setDataChangedTimestamp(midnight(2016, 3, 7));
    QCOMPARE(chart.title(), QStringLiteral("maart / april"));
    QCOMPARE(plotOf(&chart)->axisScaleDraw(QwtPlot::xBottom)->label(2.0).text(),
             QStringLiteral("2"));
}

QTEST_MAIN(tst_PeriodHistograms)
#include "tst_periodhistograms.moc"
