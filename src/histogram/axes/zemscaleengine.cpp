// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemscaleengine.h"

#include "saturatedint_p.h"

#include <algorithm>
#include <cmath>

namespace {

/** Steps that are never passed, so that a wrong step size does not fill the memory. */
constexpr int maxSteps = 9999;

/** Ticks between the major ones that are about never passed, for the same reason. */
constexpr int maxMinorTicks = 500000;

/** Part of a step below which a tick counts as the zero that rounding missed. */
constexpr double zeroTolerance = 1.0e-6;

} // namespace

class ZEMScaleEngine::Private
{
public:
    double tickOffset;
};

ZEMScaleEngine::ZEMScaleEngine(double offset) : d(new Private {offset}) { }

ZEMScaleEngine::~ZEMScaleEngine() = default;

QwtScaleDiv ZEMScaleEngine::divideScale(double x1, double x2, int maxMajSteps, int maxMinSteps,
                                        double stepSize) const
{
    const QwtInterval interval = QwtInterval(x1, x2).normalized();
    if (!(interval.width() > 0.0) || !std::isfinite(interval.width())) {
        return QwtScaleDiv();
    }
    stepSize = std::isfinite(stepSize) ? std::abs(stepSize) : 0.0;
    if (stepSize == 0.0) {
        stepSize = divideInterval(interval.width(), std::max(maxMajSteps, 1));
    }
    QwtScaleDiv division;
    if (stepSize != 0.0) {
        QList<double> ticks[QwtScaleDiv::NTickTypes];
        buildTicks(interval, stepSize, maxMinSteps, ticks);
        division = QwtScaleDiv(interval, ticks);
    }
    if (x1 > x2) {
        division.invert();
    }
    return division;
}

void ZEMScaleEngine::buildTicks(const QwtInterval &interval, double stepSize, int maxMinSteps,
                                QList<double> *ticks) const
{
    if (!std::isfinite(interval.width()) || !std::isfinite(stepSize)) {
        return;
    }
    const QwtInterval bounding = align(interval, stepSize);
    ticks[QwtScaleDiv::MajorTick] = buildMajorTicks(bounding, stepSize);
    if (maxMinSteps > 0) {
        // Qwt makes about as many as it is told for each of the major ones.
        const int mostSteps =
            std::max(maxMinorTicks / int(ticks[QwtScaleDiv::MajorTick].count()), 1);
        buildMinorTicks(ticks[QwtScaleDiv::MajorTick], std::min(maxMinSteps, mostSteps), stepSize,
                        ticks[QwtScaleDiv::MinorTick], ticks[QwtScaleDiv::MediumTick]);
    }
    for (int type = 0; type < QwtScaleDiv::NTickTypes; ++type) {
        ticks[type] = strip(ticks[type], interval);
        for (double &tick : ticks[type]) {
            if (std::abs(tick) <= std::abs(zeroTolerance * stepSize)) {
                tick = 0.0;
            }
        }
    }
}

QList<double> ZEMScaleEngine::buildMajorTicks(const QwtInterval &interval, double stepSize) const
{
    const int steps = std::min(roundedInt(interval.width() / stepSize), maxSteps);
    const double first = interval.minValue() + d->tickOffset;
    QList<double> ticks {first};
    for (int i = 1; i < steps; ++i) {
        ticks.append(first + i * stepSize);
    }
    return ticks;
}
