// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "powerplot.h"

#include "cachedcurve.h"
#include "gappedcurve.h"
#include "levelcurve.h"
#include "nightstyler.h"
#include "pagelook.h"
#include "powermarks.h"

#include <QLocale>
#include <ZEMPlotTouchGuard>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPlotHistogram>
#include <ZEMUtils>
#include <algorithm>
#include <cmath>
#include <limits>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>
#include <qwt_text.h>
#include <utility>

namespace {

constexpr int mostTimeSteps = 8;
constexpr int mostPowerSteps = 6;
constexpr double leastPower = 100.0; // W at the top of the axis
constexpr double headroom = 1.04; // above the highest curve
constexpr double leastMinutes = 10.0; // in view, however much is zoomed
constexpr double leastWatts = 20.0;
constexpr double minutesPerHour = 60.0;
constexpr double labelExtent = 34.0; // pixels for the labels of power, so that canvases line up
constexpr int labelFoot = 8; // pixels below the canvas for half a label and the tail of a comma
constexpr int markSize = 11; // pixels
constexpr int unitSize = 10; // points
constexpr double barLayer = 15.0; // bars are above the grid, which is at 10, and under the curves
constexpr double markLayer = 40.0;

} // namespace

QString powerText(double watts)
{
    // A mean of 999.9999 W is meant to be a kilowatt.
    const double whole = std::round(watts);
    const QString text = ZEMUtils::wattToStringAutoScale(std::fabs(whole));
    return whole < 0.0 ? QLocale().negativeSign() + text : text;
}

PowerPlot::PowerPlot(NightStyler *styler, QWidget *parent) : ZEMPlot(styler, parent), look(styler)
{
    makeAxes();
    init();

    bars = new CachedCurve<GappedCurve<ZEMQwtPlotHistogram>>;
    bars->setStyle(QwtPlotCurve::UserCurve);
    bars->setZ(barLayer);
    NightStyler::styleBars(bars);
    // Beside the plot's list of curves: to step from a minute to the hour of the same number, as
    // the list has it, would make no sense.
    bars->attach(this);

    makeMarkers();
    picker = new PowerPicker(this);
    new ZEMPlotTouchGuard(this, QSizeF(leastMinutes, leastWatts));
    connect(picker, &PowerPicker::selectedPlotPoint, this, &PowerPlot::takePoint);
    connect(getZoomer(), &QwtPlotZoomer::zoomed, this, &PowerPlot::handleZoom);
    connect(axisWidget(QwtPlot::yLeft), &QwtScaleWidget::scaleDivChanged, this,
            &PowerPlot::showUnit);
    showDay(PowerDay());
}

PowerPlot::~PowerPlot()
{
    // These ask the getter, which has to go by hand.
    delete picker;
    delete tracker;
    delete getCurvePointGetter();
}

void PowerPlot::makeAxes()
{
    setAxisScaleEngine(QwtPlot::xBottom, new DayScaleEngine(&clock));
    setAxisScaleDraw(QwtPlot::xBottom, new DayScaleDraw(&clock));
    setAxisScaleDraw(QwtPlot::yLeft, new PowerScaleDraw);
    setAxisMaxMajor(QwtPlot::xBottom, mostTimeSteps);
    setAxisMaxMajor(QwtPlot::yLeft, mostPowerSteps);
    setAxisMaxMinor(QwtPlot::yLeft, 0);
    axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(labelExtent);
    axisWidget(QwtPlot::yLeft)->setMinBorderDist(0, labelFoot);
}

void PowerPlot::makeMarkers()
{
    pickMark = new QwtPlotMarker;
    pickMark->setLineStyle(QwtPlotMarker::VLine);
    auto *trackMark = new PowerMarker(&clock);
    trackMark->setLineStyle(QwtPlotMarker::Cross);
    for (QwtPlotMarker *mark : {pickMark, static_cast<QwtPlotMarker *>(trackMark)}) {
        mark->setZ(markLayer);
        mark->setVisible(false);
        addMarker(mark);
    }
    tracker = new PowerTracker(this, trackMark);
}

void PowerPlot::showDay(const PowerDay &day)
{
    const bool isSame = day.date == date && day.date.isValid();
    const Point current = picker->getPickedPlotPoint();
    const int pickedCurve = isSame && current.valid ? getIndexOfCurve(current.curve) : -1;
    const unsigned int pickedSample = current.index;
    const QRectF view = isSame && isZoomed() ? getZoomer()->zoomRect() : QRectF();

    picker->clearPickedPlotPoint();
    date = day.date;
    clock = DayClock(day);
    takeCurves(day);
    takeBars(day);
    takeAxes();
    updateAxes();
    getZoomer()->setZoomBase(false);
    if (pickedCurve >= 0 && pickedCurve < getNumCurves()) {
        picker->pick(getCurvePointGetter()->getCurvePoint(unsigned(pickedCurve), pickedSample));
    }
    if (view.isValid()) {
        getZoomer()->zoom(view);
    }
    tracker->hide();
    showPoint();
    Q_EMIT zoomChanged();
}

std::optional<PickedPower> PowerPlot::picked() const
{
    const Point current = picker->getPickedPlotPoint();
    if (!hasKnownPoint()) {
        return std::nullopt;
    }
    return PickedPower {kinds.at(std::size_t(getIndexOfCurve(current.curve))),
                        clock.textAt(current.point.x()), current.point.y()};
}

bool PowerPlot::isZoomed() const
{
    return const_cast<PowerPlot *>(this)->getZoomer()->zoomRectIndex() > 0;
}

void PowerPlot::takeCurves(const PowerDay &day)
{
    std::vector<PowerKind> newKinds;
    for (const PowerCurve &curve : day.curves) {
        newKinds.push_back(curve.kind);
    }
    if (newKinds != kinds) {
        while (getNumCurves() > 0) {
            QwtPlotCurve *old = getCurves().last();
            removeCurve(old);
            delete old;
        }
        kinds = newKinds;
        look->setKinds(kinds);
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            addCurve(new CachedCurve<GappedCurve<LevelCurve>>, false);
        }
    }
    for (int i = 0; i < getNumCurves(); ++i) {
        const std::vector<double> &watts = day.curves[std::size_t(i)].watts;
        const double step = watts.empty() ? 1.0 : clock.minutes() / double(watts.size());
        getCurves().at(i)->setSamples(new EvenSeries(0.0, step, watts));
    }
}

void PowerPlot::takeBars(const PowerDay &day)
{
    // The first two bars of a row that ends with them have no width: these are never seen.
    constexpr int unseen = 2;
    std::vector<double> watts(unseen, std::numeric_limits<double>::quiet_NaN());
    watts.insert(watts.end(), day.gridByHour.begin(), day.gridByHour.end());
    const double middleOfFirst = (0.5 - unseen) * minutesPerHour;
    bars->setSamples(new EvenSeries(middleOfFirst, minutesPerHour, watts));
}

void PowerPlot::takeAxes()
{
    double low = 0.0;
    double high = leastPower;
    QList<QwtPlotCurve *> all = getCurves();
    all.append(bars);
    for (const QwtPlotCurve *curve : std::as_const(all)) {
        const QRectF rect = curve->data()->boundingRect();
        if (rect.isValid() || rect.width() > 0.0) {
            low = std::min(low, rect.top());
            high = std::max(high, rect.bottom());
        }
    }
    double step = 0.0;
    high *= headroom;
    axisScaleEngine(QwtPlot::yLeft)->autoScale(mostPowerSteps, low, high, step);
    setAxisScale(QwtPlot::yLeft, low, high);
    setAxisScale(QwtPlot::xBottom, 0.0, clock.minutes());
}

void PowerPlot::handleZoom()
{
    tracker->hide();
    Q_EMIT zoomChanged();
}

void PowerPlot::pickNext()
{
    step(&PowerPicker::pickNextPlotPoint);
}

void PowerPlot::pickPrevious()
{
    step(&PowerPicker::pickPrevPlotPoint);
}

void PowerPlot::step(void (ZEMQwtPlotPointPicker::*stepOnce)())
{
    const Point before = picker->getPickedPlotPoint();
    unsigned int index = 0;
    do {
        index = picker->getPickedPlotPoint().index;
        (picker->*stepOnce)();
    } while (picker->getPickedPlotPoint().index != index && !hasKnownPoint());
    if (!hasKnownPoint()) {
        picker->pick(before);
    }
}

void PowerPlot::pickOtherCurve()
{
    const Point before = picker->getPickedPlotPoint();
    picker->pickNextCurve();
    if (picker->getPickedPlotPoint().curve == before.curve) {
        for (int i = 1; i < getNumCurves(); ++i) {
            picker->pickPrevCurve();
        }
    }
    if (!hasKnownPoint()) {
        picker->pick(before);
    }
}

void PowerPlot::takePoint(const Point &point)
{
    if (hasKnownPoint()) {
        tracker->hide();
        bringIntoView(point.point);
        showPoint();
    }
}

bool PowerPlot::hasKnownPoint() const
{
    const Point current = picker->getPickedPlotPoint();
    return current.valid && std::isfinite(current.point.y());
}

void PowerPlot::showPoint()
{
    const std::optional<PickedPower> power = picked();
    pickMark->setVisible(power.has_value());
    if (power) {
        pickMark->setValue(picker->getPickedPlotPoint().point);
        pickMark->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, NightStyler::colorOf(power->kind),
                                          QPen(NightStyler::highlight(), 2.0),
                                          QSize(markSize, markSize)));
    }
    replot();
    Q_EMIT pickedChanged();
}

void PowerPlot::bringIntoView(const QPointF &point)
{
    QRectF view = getZoomer()->zoomRect();
    if (!isZoomed() || view.contains(point)) {
        return;
    }
    if (point.x() < view.left() || point.x() > view.right()) {
        view.moveLeft(point.x() - view.width() / 2.0);
    }
    if (point.y() < view.top() || point.y() > view.bottom()) {
        view.moveTop(point.y() - view.height() / 2.0);
    }
    getZoomer()->moveTo(view.topLeft());
}

void PowerPlot::showUnit()
{
    const auto *draw = static_cast<const PowerScaleDraw *>(axisScaleDraw(QwtPlot::yLeft));
    QwtText text(draw->isInKilowatts() ? QStringLiteral("kW") : QStringLiteral("W"));
    text.setFont(PageLook::textFont(unitSize));
    text.setColor(NightStyler::highlight());
    // At the upper end, as in the charts.
    text.setRenderFlags(Qt::AlignRight);
    setAxisTitle(QwtPlot::yLeft, text);
}
