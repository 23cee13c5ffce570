// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "analysispage.h"
#include "gappedcurve.h"
#include "powerplayers.h"
#include "powerplot.h"

#include "zemtest.h"

#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <ZEMButton>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPlotMarker>
#include <cmath>
#include <memory>
#include <qwt_plot_curve.h>
#include <utility>

using namespace ZemTest;
using Readings::Meter;
using Readings::Quantity;

class tst_AnalysisPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everythingFitsAFinger();
    void newestDayComesFirst();
    void buttonsGoThroughTheDays();
    void minutePowerIsPreferred();
    void tapPicksAPoint();
    void tremblingTapPicksToo();
    void tapBesideTheCurvesKeepsThePoint();
    void stepsSkipGaps();
    void otherCurveKeepsTheTime();
    void dragAlongXZoomsTime();
    void dragAlongYZoomsPower();
    void freeDragZoomsBoth();
    void dragToTheUpperLeftResets();
    void zoomStaysInsideTheDay();
    void stepOutOfViewMovesTheView();
    void trackerFollowsTheCurve();
    void otherDayForgetsThePoint();
    void newReadingsKeepPointAndZoom();
    void hiddenPageAsksNothing();
    void newDayIsFollowed();
    void gapsAreNotDrawn();
    void barsAreDrawnFromTheFirstHour();
    void houseWithoutMeters();
    void markerDoesNotDrawLongSeriesAnew();
    void longSeriesIsPickedAndZoomed();

private:
    void show(const EnergySource &source);
    void showMinutes();
    QWidget *canvas() const { return page->plot()->canvas(); }
    ZEMButton *button(const char *name) const;
    QString text(const char *name) const;
    QPoint placeOf(double minutes, double watts) const;
    QRectF view() const { return page->plot()->getZoomer()->zoomRect(); }
    void tap(QWidget *widget, const QPoint &place) const;
    void tap(QWidget *widget) const { tap(widget, widget->rect().center()); }
    void drag(const QPoint &from, const QPoint &to) const;
    QwtPlotMarker *trackMark() const;

    std::unique_ptr<MeterPlayer> meters;
    std::unique_ptr<AnalysisPage> page;
};

void tst_AnalysisPage::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_AnalysisPage::cleanup()
{
    page.reset();
    meters.reset();
}

void tst_AnalysisPage::show(const EnergySource &source)
{
    page = std::make_unique<AnalysisPage>(source);
    page->resize(640, 480);
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page.get(), ZemTest::hangs));
}

/** Two days: consumption of 400 W or, from noon on, 1000 W, and production of 2000 W. */
void tst_AnalysisPage::showMinutes()
{
    meters = std::make_unique<MeterPlayer>();
    std::vector<double> taken(1440, 400.0);
    std::fill(taken.begin() + 720, taken.end(), 1000.0);
    for (const QDate &date : {lastDate.addDays(-1), lastDate}) {
        meters->count(Quantity::GridImport, date, taken);
        meters->count(Quantity::GridExport, date, std::vector<double>(1440, 2000.0));
        meters->count(Quantity::SolarProduction, date, std::vector<double>(1440, 2000.0));
    }
    show(*meters);
}

ZEMButton *tst_AnalysisPage::button(const char *name) const
{
    return page->findChild<ZEMButton *>(QLatin1String(name));
}

QString tst_AnalysisPage::text(const char *name) const
{
    return page->findChild<QLabel *>(QLatin1String(name))->text();
}

QPoint tst_AnalysisPage::placeOf(double minutes, double watts) const
{
    return {int(std::lround(page->plot()->transform(QwtPlot::xBottom, minutes))),
            int(std::lround(page->plot()->transform(QwtPlot::yLeft, watts)))};
}

void tst_AnalysisPage::tap(QWidget *widget, const QPoint &place) const
{
    press(widget, place);
    release(widget, place);
    QCoreApplication::processEvents();
}

void tst_AnalysisPage::drag(const QPoint &from, const QPoint &to) const
{
    press(canvas(), from);
    moveTo(canvas(), from + (to - from) / 2);
    moveTo(canvas(), to);
    release(canvas(), to);
    QCoreApplication::processEvents();
}

QwtPlotMarker *tst_AnalysisPage::trackMark() const
{
    for (QwtPlotItem *item : page->plot()->itemList(QwtPlotItem::Rtti_PlotMarker)) {
        if (auto *mark = dynamic_cast<ZEMQwtPlotMarker *>(item)) {
            return mark;
        }
    }
    return nullptr;
}

void tst_AnalysisPage::everythingFitsAFinger()
{
    showMinutes();
    QCOMPARE(page->size(), QSize(640, 480));
    for (const char *name :
         {"previousDay", "nextDay", "previousPoint", "nextPoint", "otherCurve"}) {
        const ZEMButton *each = button(name);
        QVERIFY(each->width() >= 40 && each->height() >= 40);
        QVERIFY(page->rect().contains(QRect(each->mapTo(page.get(), QPoint()), each->size())));
    }
    QVERIFY(canvas()->height() >= 220);
    QVERIFY(page->rect().contains(QRect(canvas()->mapTo(page.get(), QPoint()), canvas()->size())));
    for (const QLabel *label : page->findChildren<QLabel *>(QStringLiteral("legend"))) {
        QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
        QVERIFY(label->mapTo(page.get(), label->rect().bottomRight()).x() < 640);
    }
}

void tst_AnalysisPage::newestDayComesFirst()
{
    showMinutes();
    QCOMPARE(text("date"), QStringLiteral("vr 21 juni 2024"));
    QVERIFY(!button("nextDay")->isEnabled());
    QVERIFY(button("previousDay")->isEnabled());
    QVERIFY(!button("nextPoint")->isEnabled());
    QCOMPARE(page->plot()->getNumCurves(), 2);
    QCOMPARE(view().left(), 0.0);
    QCOMPARE(view().width(), 1440.0);
}

void tst_AnalysisPage::buttonsGoThroughTheDays()
{
    showMinutes();
    tap(button("previousDay"));
    QCOMPARE(text("date"), QStringLiteral("do 20 juni 2024"));
    QVERIFY(button("nextDay")->isEnabled());
    QVERIFY(!button("previousDay")->isEnabled());
    tap(button("previousDay"));
    QCOMPARE(text("date"), QStringLiteral("do 20 juni 2024"));
    tap(button("nextDay"));
    QCOMPARE(text("date"), QStringLiteral("vr 21 juni 2024"));
}

void tst_AnalysisPage::minutePowerIsPreferred()
{
    const HousePlayer house(lastDate);
    show(house);
    const QwtPlotCurve *consumption = page->plot()->getCurves().first();
    const PowerDay day = house.powerDay(lastDate);
    QCOMPARE(consumption->dataSize(), day.curves.front().watts.size());
    for (int i = 0; i < 1440; ++i) {
        QCOMPARE(consumption->sample(i), QPointF(i, day.curves.front().watts[std::size_t(i)]));
    }
    page.reset();
}

void tst_AnalysisPage::tapPicksAPoint()
{
    showMinutes();
    const QSignalSpy picks(page->plot(), &PowerPlot::pickedChanged);
    tap(canvas(), placeOf(900.0, 1000.0));
    QCOMPARE(picks.count(), 1);
    QVERIFY(page->plot()->picked().has_value());
    QVERIFY(page->plot()->picked()->kind == PowerKind::Consumption);
    QCOMPARE(text("point"), page->plot()->picked()->time + QStringLiteral("   1,0 kW   verbruik"));
    const QTime time = QTime::fromString(page->plot()->picked()->time, QStringLiteral("HH:mm"));
    QVERIFY(std::abs(time.msecsSinceStartOfDay() / 60000 - 900) <= 2);
    QVERIFY(!page->plot()->isZoomed());

    tap(canvas(), placeOf(300.0, 400.0));
    QVERIFY(text("point").endsWith(QStringLiteral("   400 W   verbruik")));
    tap(canvas(), placeOf(300.0, 2000.0));
    QVERIFY(text("point").endsWith(QStringLiteral("   2,0 kW   opwekking")));
}

void tst_AnalysisPage::tremblingTapPicksToo()
{
    showMinutes();
    const QPoint place = placeOf(300.0, 400.0);
    press(canvas(), place);
    moveTo(canvas(), place + QPoint(2, 1));
    moveTo(canvas(), place + QPoint(-2, -3));
    release(canvas(), place + QPoint(-2, -3));
    QVERIFY(page->plot()->picked().has_value());
    QVERIFY(!page->plot()->isZoomed());
}

void tst_AnalysisPage::tapBesideTheCurvesKeepsThePoint()
{
    showMinutes();
    tap(canvas(), placeOf(300.0, 1400.0));
    QVERIFY(!page->plot()->picked().has_value());
    tap(canvas(), placeOf(300.0, 400.0));
    const QString before = text("point");
    tap(canvas(), placeOf(800.0, 1500.0));
    QCOMPARE(text("point"), before);
}

void tst_AnalysisPage::stepsSkipGaps()
{
    showMinutes();
    PowerDay day = dayOfSamples(1440);
    std::vector<double> &watts = day.curves[1].watts;
    std::fill(watts.begin(), watts.end(), 2000.0);
    std::fill(watts.begin() + 601, watts.begin() + 700, unknown);
    std::fill(watts.begin() + 702, watts.end(), unknown);
    day.date = lastDate.addDays(-5);
    page->plot()->showDay(day);
    tap(canvas(), placeOf(599.0, 2000.0));
    while (page->plot()->picked()->time < QLatin1String("10:00")) {
        tap(button("nextPoint"));
    }
    QCOMPARE(text("point"), QStringLiteral("10:00   2,0 kW   opwekking"));
    tap(button("nextPoint"));
    QCOMPARE(text("point"), QStringLiteral("11:40   2,0 kW   opwekking"));
    tap(button("nextPoint"));
    tap(button("nextPoint")); // nothing is known behind it
    QCOMPARE(text("point"), QStringLiteral("11:41   2,0 kW   opwekking"));
    tap(button("previousPoint"));
    tap(button("previousPoint"));
    QCOMPARE(text("point"), QStringLiteral("10:00   2,0 kW   opwekking"));
}

void tst_AnalysisPage::otherCurveKeepsTheTime()
{
    showMinutes();
    tap(canvas(), placeOf(900.0, 1000.0));
    const QString time = page->plot()->picked()->time;
    tap(button("otherCurve"));
    QCOMPARE(text("point"), time + QStringLiteral("   2,0 kW   opwekking"));
    tap(button("otherCurve"));
    QCOMPARE(text("point"), time + QStringLiteral("   1,0 kW   verbruik"));

    PowerDay day = dayOfSamples(1440);
    day.curves[1].watts.assign(1440, unknown);
    page->plot()->showDay(day);
    tap(button("otherCurve"));
    QVERIFY(page->plot()->picked()->kind == PowerKind::Consumption);
}

void tst_AnalysisPage::dragAlongXZoomsTime()
{
    showMinutes();
    const QRectF whole = view();
    drag(placeOf(360.0, 1500.0), placeOf(720.0, 1400.0));
    QVERIFY(page->plot()->isZoomed());
    QVERIFY(std::abs(view().left() - 360.0) < 5.0);
    QVERIFY(std::abs(view().right() - 720.0) < 10.0);
    QVERIFY(std::abs(view().height() - whole.height()) < whole.height() / 100.0);
    QVERIFY(!page->plot()->picked().has_value());
    QCOMPARE(text("point"), QStringLiteral("Sleep naar linksboven voor de hele dag"));
}

void tst_AnalysisPage::dragAlongYZoomsPower()
{
    showMinutes();
    drag(placeOf(360.0, 1500.0), placeOf(400.0, 500.0));
    QVERIFY(std::abs(view().width() - 1440.0) < 10.0);
    QVERIFY(std::abs(view().top() - 500.0) < 20.0);
    QVERIFY(std::abs(view().bottom() - 1500.0) < 20.0);
}

void tst_AnalysisPage::freeDragZoomsBoth()
{
    showMinutes();
    drag(placeOf(360.0, 2000.0), placeOf(900.0, 500.0));
    QVERIFY(std::abs(view().left() - 360.0) < 5.0);
    QVERIFY(std::abs(view().right() - 900.0) < 5.0);
    QVERIFY(std::abs(view().top() - 500.0) < 20.0);
    QVERIFY(std::abs(view().bottom() - 2000.0) < 20.0);
}

void tst_AnalysisPage::dragToTheUpperLeftResets()
{
    showMinutes();
    const QRectF whole = view();
    drag(placeOf(360.0, 1500.0), placeOf(720.0, 1400.0));
    drag(canvas()->rect().center(), canvas()->rect().center() + QPoint(150, 120));
    QCOMPARE(page->plot()->getZoomer()->zoomRectIndex(), 2u);
    drag(canvas()->rect().center(), canvas()->rect().center() - QPoint(60, 40));
    QVERIFY(!page->plot()->isZoomed());
    QCOMPARE(view(), whole);
    QCOMPARE(text("point"), QStringLiteral("Tik op een lijn, of sleep om in te zoomen"));
}

void tst_AnalysisPage::zoomStaysInsideTheDay()
{
    showMinutes();
    const QRectF whole = view();
    const QPoint beyond(canvas()->width() + 6, placeOf(0.0, 1000.0).y() + 5);
    drag(placeOf(1200.0, 1000.0), beyond);
    QVERIFY(page->plot()->isZoomed());
    QVERIFY(whole.contains(view()));
    QCOMPARE(view().right(), 1440.0);
    for (int i = 0; i < 4; ++i) {
        drag(canvas()->rect().center(), canvas()->rect().center() + QPoint(12, 3));
    }
    QVERIFY(view().width() > 9.999); // minutes: less could not be read
    QVERIFY(whole.contains(view()));
}

void tst_AnalysisPage::stepOutOfViewMovesTheView()
{
    showMinutes();
    drag(placeOf(360.0, 1500.0), placeOf(420.0, 1490.0));
    const QRectF before = view();
    tap(canvas(), placeOf(before.right() - 2.0, 400.0));
    QVERIFY(page->plot()->picked().has_value());
    for (int i = 0; i < 5; ++i) {
        tap(button("nextPoint"));
    }
    QVERIFY(view().left() > before.left());
    QVERIFY(std::abs(view().width() - before.width()) < 1e-6);
}

void tst_AnalysisPage::trackerFollowsTheCurve()
{
    showMinutes();
    QVERIFY(!trackMark()->isVisible());
    moveTo(canvas(), placeOf(200.0, 420.0));
    const QPoint place = placeOf(300.0, 400.0);
    moveTo(canvas(), place);
    QVERIFY(trackMark()->isVisible());
    // A pixel has some minutes: the point is in this one or in that beside it.
    const double tracked = page->plot()->transform(QwtPlot::xBottom, trackMark()->xValue());
    QVERIFY(std::abs(tracked - place.x()) < 1.5);
    QVERIFY(std::abs(trackMark()->yValue() - 400.0) < 1e-6);
    moveTo(canvas(), placeOf(900.0, 1950.0));
    QVERIFY(std::abs(trackMark()->yValue() - 2000.0) < 1e-6);
    QVERIFY(!page->plot()->picked().has_value());
    moveTo(canvas(), placeOf(900.0, 1500.0));
    QVERIFY(!trackMark()->isVisible());
    moveTo(canvas(), placeOf(900.0, 1000.0));
    QVERIFY(trackMark()->isVisible());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(canvas(), &leave);
    QVERIFY(!trackMark()->isVisible());
}

void tst_AnalysisPage::otherDayForgetsThePoint()
{
    showMinutes();
    tap(canvas(), placeOf(900.0, 1000.0));
    drag(placeOf(360.0, 1500.0), placeOf(1300.0, 1490.0));
    tap(button("previousDay"));
    QVERIFY(!page->plot()->picked().has_value());
    QVERIFY(!page->plot()->isZoomed());
    QVERIFY(!button("nextPoint")->isEnabled());
    const QSignalSpy picks(page->plot(), &PowerPlot::pickedChanged);
    page->plot()->pickNext();
    page->plot()->pickOtherCurve();
    QCOMPARE(picks.count(), 0);
}

void tst_AnalysisPage::newReadingsKeepPointAndZoom()
{
    meters = std::make_unique<MeterPlayer>();
    meters->count(Quantity::GridImport, lastDate, std::vector<double>(600, 400.0));
    show(*meters);
    drag(placeOf(120.0, 200.0), placeOf(700.0, 210.0));
    const QRectF before = view();
    tap(canvas(), placeOf(300.0, 400.0));
    const QString point = text("point");
    QVERIFY(page->plot()->picked().has_value());

    Meter &meter = meters->readings.meter({Quantity::GridImport, Readings::Tariff::Single},
                                          Meter::Kind::Counter);
    const qint64 last = *meter.lastInstant();
    meter.addReading(last + 300, *meter.readingAt(last) + 0.1); // 1200 W
    Q_EMIT meters->historyChanged();
    QCOMPARE(text("point"), point);
    QCOMPARE(view().left(), before.left());
    QCOMPARE(view().right(), before.right());
    QVERIFY(std::abs(page->plot()->getCurves().first()->sample(602).y() - 1200.0) < 1e-6);
    const QwtScaleDiv &power = page->plot()->axisScaleDiv(QwtPlot::yLeft);
    QVERIFY(page->plot()->getZoomer()->zoomBase().bottom() > 1200.0);
    QCOMPARE(power.upperBound(), before.bottom());
}

void tst_AnalysisPage::hiddenPageAsksNothing()
{
    showMinutes();
    page->hide();
    meters->questions = 0;
    Q_EMIT meters->historyChanged();
    Q_EMIT meters->historyChanged();
    QCOMPARE(meters->questions, 0);
    page->show();
    QVERIFY(meters->questions > 0);
    page->hide();
    meters->questions = 0;
    page->show(); // nothing is new
    QCOMPARE(meters->questions, 0);
}

void tst_AnalysisPage::newDayIsFollowed()
{
    showMinutes();
    meters->count(Quantity::GridImport, lastDate.addDays(1), {500.0, 500.0});
    Q_EMIT meters->historyChanged();
    QCOMPARE(text("date"), QStringLiteral("za 22 juni 2024"));
    tap(button("previousDay"));
    meters->count(Quantity::GridImport, lastDate.addDays(2), {500.0});
    Q_EMIT meters->historyChanged();
    QCOMPARE(text("date"), QStringLiteral("vr 21 juni 2024"));
    QVERIFY(button("nextDay")->isEnabled());
}

/** Whether there is anything of a colour in a column of the canvas. */
static bool hasColor(const QImage &canvas, int column, const QColor &color)
{
    for (int y = 0; y < canvas.height(); ++y) {
        const QColor pixel = canvas.pixelColor(column, y);
        if (std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green())
                + std::abs(pixel.blue() - color.blue())
            < 60) {
            return true;
        }
    }
    return false;
}

void tst_AnalysisPage::gapsAreNotDrawn()
{
    showMinutes();
    PowerDay day = dayOfSamples(1440);
    day.curves.pop_back();
    day.gridByHour.clear();
    std::vector<double> &watts = day.curves[0].watts;
    std::fill(watts.begin(), watts.end(), 900.0);
    std::fill(watts.begin() + 400, watts.begin() + 600, unknown);
    std::fill(watts.begin() + 1000, watts.end(), unknown);
    page->plot()->showDay(day);
    const QImage picture = canvas()->grab().toImage();
    const QColor line = NightStyler::colorOf(PowerKind::Consumption);
    QVERIFY(hasColor(picture, placeOf(390.0, 0.0).x(), line));
    QVERIFY(!hasColor(picture, placeOf(410.0, 0.0).x(), line));
    QVERIFY(!hasColor(picture, placeOf(590.0, 0.0).x(), line));
    QVERIFY(hasColor(picture, placeOf(610.0, 0.0).x(), line));
    QVERIFY(!hasColor(picture, placeOf(1300.0, 0.0).x(), line));

    // What has become known is drawn, though nothing but the data has changed.
    std::fill(watts.begin() + 400, watts.begin() + 600, 900.0);
    page->plot()->showDay(day);
    QVERIFY(hasColor(canvas()->grab().toImage(), placeOf(500.0, 0.0).x(), line));
}

void tst_AnalysisPage::barsAreDrawnFromTheFirstHour()
{
    showMinutes();
    PowerDay day = dayOfSamples(1440);
    day.curves.clear();
    day.gridByHour.assign(24, unknown);
    day.gridByHour[0] = 800.0;
    day.gridByHour[5] = 400.0;
    page->plot()->showDay(day);
    const QImage picture = canvas()->grab().toImage();
    const auto colorAt = [&](double minutes, double watts) {
        return picture.pixelColor(placeOf(minutes, watts));
    };
    const QColor ground = colorAt(150.0, 130.0);
    QVERIFY(colorAt(10.0, 730.0) != ground);
    QVERIFY(colorAt(50.0, 730.0) != ground);
    QCOMPARE(colorAt(70.0, 730.0), ground);
    QVERIFY(colorAt(305.0, 330.0) != ground);
    QVERIFY(colorAt(355.0, 330.0) != ground);
    QCOMPARE(colorAt(305.0, 530.0), ground);
    QCOMPARE(colorAt(370.0, 330.0), ground);
}

void tst_AnalysisPage::houseWithoutMeters()
{
    meters = std::make_unique<MeterPlayer>();
    meters->count(Quantity::Gas, lastDate, {0.0, 0.0});
    show(*meters);
    QCOMPARE(page->plot()->getNumCurves(), 0);
    QCOMPARE(text("point"), QStringLiteral("Van deze dag is niets bekend"));
    tap(canvas(), canvas()->rect().center());
    QVERIFY(!page->plot()->picked().has_value());

    meters->count(Quantity::GridImport, lastDate, std::vector<double>(60, 200.0));
    Q_EMIT meters->historyChanged();
    QCOMPARE(page->plot()->getNumCurves(), 1);
}

/** Values whose reader is counted. */
class CountedSeries : public EvenSeries
{
public:
    CountedSeries(double distance, std::vector<double> watts, int &counter)
        : EvenSeries(0.0, distance, std::move(watts)), reads(counter)
    {
    }

    QPointF sample(std::size_t i) const override
    {
        ++reads;
        return EvenSeries::sample(i);
    }

private:
    int &reads;
};

void tst_AnalysisPage::markerDoesNotDrawLongSeriesAnew()
{
    constexpr int samples = 86400;
    showMinutes();
    const PowerDay day = dayOfSamples(samples);
    page->plot()->showDay(day);
    int reads = 0;
    for (std::size_t i = 0; i < day.curves.size(); ++i) {
        page->plot()->getCurves().at(int(i))->setSamples(
            new CountedSeries(1440.0 / samples, day.curves[i].watts, reads));
    }
    page->plot()->replot();
    moveTo(canvas(), QPoint(10, placeOf(0.0, 600.0).y())); // the pointer comes in
    QTRY_VERIFY(reads >= samples); // drawn once
    for (int x = 20; x < canvas()->width() - 20; x += 5) {
        reads = 0;
        moveTo(canvas(), QPoint(x, placeOf(0.0, 600.0).y()));
        canvas()->repaint();
        QVERIFY(trackMark()->isVisible());
        // The minutes around the pointer are searched, in each of both curves.
        QVERIFY2(reads < samples / 20, qPrintable(QString::number(reads)));
    }
    page.reset();
}

void tst_AnalysisPage::longSeriesIsPickedAndZoomed()
{
    constexpr int samples = 86400;
    showMinutes();
    page->plot()->showDay(dayOfSamples(samples));
    QCOMPARE(page->plot()->getCurves().first()->dataSize(), std::size_t(samples));
    tap(canvas(), placeOf(800.0, 600.0));
    QVERIFY(page->plot()->picked().has_value());
    tap(button("otherCurve"));
    QVERIFY(page->plot()->picked()->kind == PowerKind::Production);
    const QPoint start = placeOf(300.0, 2000.0);
    drag(start, start + QPoint(200, 10));
    QVERIFY(page->plot()->isZoomed());
    tap(button("nextPoint"));
    drag(canvas()->rect().center(), canvas()->rect().center() - QPoint(60, 40));
    QVERIFY(!page->plot()->isZoomed());
}

QTEST_MAIN(tst_AnalysisPage)
#include "tst_analysispage.moc"
