// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "powerday.h"

#include "calendar.h"
#include "household.h"
#include "simulatedhouse.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>
#include <optional>

using Readings::Calendar;
using Readings::Household;
using Readings::Interval;
using Readings::Meter;
using Readings::Quantity;

namespace {

/** Translates the names of curves. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PowerDay)
};

constexpr qint64 secondsPerMinute = 60;
constexpr qint64 secondsPerHour = 3600;
constexpr std::size_t minutesPerHour = 60;
constexpr double wattsPerKilowatt = 1000.0;
constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

using Meters = std::vector<const Meter *>;

std::size_t minutesOf(const Interval &day)
{
    return std::size_t(day.seconds() / secondsPerMinute);
}

PowerDay emptyDay(const QTimeZone &timeZone, const QDate &date)
{
    PowerDay day;
    day.date = date;
    day.timeZone = timeZone;
    day.interval = Calendar(timeZone).day(date);
    return day;
}

/** Meters whose amounts count for or against a power. */
struct Term
{
    Meters meters;
    double sign;
};

/** Steps that reach over midnight belong to both days; none that counts is longer than this. */
constexpr qint64 longestStep = 2 * secondsPerHour;

/** The instants around a day at which a meter is read, in the order of time. */
std::vector<qint64> bordersOf(const Meter &meter, const Interval &day)
{
    std::vector<qint64> borders;
    std::optional<Interval> step = meter.lastStepUntil(day.to + longestStep);
    while (step && step->to > day.from - longestStep) {
        if (borders.empty() || borders.back() != step->to) {
            borders.push_back(step->to);
        }
        borders.push_back(step->from);
        step = meter.lastStepUntil(step->from);
    }
    std::reverse(borders.begin(), borders.end());
    return borders;
}

/** Only what lies between readings that all meters have in common can be summed up. */
std::vector<qint64> commonBorders(const std::vector<Term> &terms, const Interval &day)
{
    std::optional<std::vector<qint64>> common;
    for (const Term &term : terms) {
        for (const Meter *meter : term.meters) {
            const std::vector<qint64> borders = bordersOf(*meter, day);
            if (!common) {
                common = borders;
                continue;
            }
            std::vector<qint64> both;
            std::set_intersection(common->begin(), common->end(), borders.begin(), borders.end(),
                                  std::back_inserter(both));
            common = std::move(both);
        }
    }
    return common.value_or(std::vector<qint64>());
}

/** The sum in kWh; empty as soon as a meter has no answer. */
std::optional<double> sumOf(const std::vector<Term> &terms, const Interval &step)
{
    double sum = 0.0;
    for (const Term &term : terms) {
        const std::optional<double> amount = Readings::sumOfAmounts(term.meters, step);
        if (!amount) {
            return std::nullopt;
        }
        sum += term.sign * *amount;
    }
    return sum;
}

/** Puts the mean power of stretches of time together into minutes. */
class MinuteMeans
{
public:
    explicit MinuteMeans(const Interval &itsDay) : day(itsDay), minutes(minutesOf(itsDay)) { }

    void add(const Interval &step, double watts)
    {
        const qint64 end = std::min(step.to, day.to) - day.from;
        qint64 position = std::max(step.from, day.from) - day.from;
        while (position < end) {
            Minute &minute = minutes[std::size_t(position / secondsPerMinute)];
            const qint64 next = std::min((position / secondsPerMinute + 1) * secondsPerMinute, end);
            minute.wattSeconds += watts * double(next - position);
            minute.seconds += next - position;
            position = next;
        }
    }

    /** A minute of which a part is not known is not known. */
    std::vector<double> watts() const
    {
        std::vector<double> means;
        means.reserve(minutes.size());
        for (const Minute &minute : minutes) {
            means.push_back(minute.seconds == secondsPerMinute
                                ? minute.wattSeconds / double(secondsPerMinute)
                                : unknown);
        }
        return means;
    }

private:
    struct Minute
    {
        double wattSeconds = 0.0;
        qint64 seconds = 0;
    };

    const Interval day;
    std::vector<Minute> minutes;
};

std::vector<double> meanPower(const std::vector<Term> &terms, const PowerDay &day)
{
    const Calendar calendar(day.timeZone);
    const auto isShort = [&](const Interval &step) {
        return step.seconds() <= secondsPerHour
            || step == calendar.hour(day.date, calendar.hourAt(step.from));
    };

    MinuteMeans means(day.interval);
    const std::vector<qint64> borders = commonBorders(terms, day.interval);
    for (std::size_t i = 1; i < borders.size(); ++i) {
        const Interval step {borders[i - 1], borders[i]};
        const std::optional<double> amount =
            isShort(step) ? sumOf(terms, step) : std::optional<double>();
        if (amount) {
            means.add(step, *amount * wattsPerKilowatt * secondsPerHour / double(step.seconds()));
        }
    }
    return means.watts();
}

/** Means of whole hours; an hour of which a minute is not known is not known. */
std::vector<double> hourlyMeans(const std::vector<double> &minutes)
{
    std::vector<double> hours;
    for (std::size_t first = 0; first + minutesPerHour <= minutes.size(); first += minutesPerHour) {
        const auto begin = minutes.begin() + std::ptrdiff_t(first);
        hours.push_back(std::accumulate(begin, begin + std::ptrdiff_t(minutesPerHour), 0.0)
                        / double(minutesPerHour));
    }
    return hours;
}

} // namespace

QString nameOf(PowerKind kind)
{
    switch (kind) {
    case PowerKind::Consumption:
        return Texts::tr("verbruik");
    case PowerKind::Production:
        return Texts::tr("opwekking");
    case PowerKind::GridImport:
        return Texts::tr("van het net");
    case PowerKind::GridExport:
        break;
    }
    return Texts::tr("naar het net");
}

bool PowerDay::isEmpty() const
{
    return std::all_of(curves.begin(), curves.end(), [](const PowerCurve &curve) {
        return std::none_of(curve.watts.begin(), curve.watts.end(),
                            [](double watts) { return std::isfinite(watts); });
    });
}

PowerDay powerDay(const Household &household, const QDate &date)
{
    const Meters imports = household.metersOf(Quantity::GridImport);
    const Meters exports = household.metersOf(Quantity::GridExport);
    const Meters panels = household.metersOf(Quantity::SolarProduction);
    const bool gives = household.delivers();

    PowerDay day = emptyDay(household.timeZone, date);
    const auto addCurve = [&](PowerKind kind, const std::vector<Term> &terms) {
        day.curves.push_back({kind, meanPower(terms, day)});
    };
    if (!imports.empty() && (!panels.empty() || !gives)) {
        std::vector<Term> terms {{imports, 1.0}};
        if (gives) {
            terms.push_back({exports, -1.0});
        }
        if (!panels.empty()) {
            terms.push_back({panels, 1.0});
        }
        addCurve(PowerKind::Consumption, terms);
    }
    if (!panels.empty()) {
        addCurve(PowerKind::Production, {{panels, 1.0}});
    } else if (gives) {
        if (!imports.empty()) {
            addCurve(PowerKind::GridImport, {{imports, 1.0}});
        }
        addCurve(PowerKind::GridExport, {{exports, 1.0}});
    }
    if (!imports.empty()) {
        day.gridByHour = hourlyMeans(meanPower({{imports, 1.0}}, day));
    }
    return day;
}

PowerDay powerDay(const SimulatedHouse &house, const QDate &date, qint64 until)
{
    PowerDay day = emptyDay(house.timeZone(), date);
    PowerCurve consumption {PowerKind::Consumption, {}};
    PowerCurve production {PowerKind::Production, {}};
    std::vector<double> imported;
    for (qint64 t = day.interval.from; t < day.interval.to; t += secondsPerMinute) {
        const bool isKnown = t >= house.start() && t + secondsPerMinute <= until;
        const PowerNow now = isKnown ? house.powerAt(t) : PowerNow();
        consumption.watts.push_back(isKnown ? now.consumption() : unknown);
        production.watts.push_back(isKnown ? now.production : unknown);
        imported.push_back(isKnown ? now.imported() : unknown);
    }
    day.curves = {consumption, production};
    day.gridByHour = hourlyMeans(imported);
    return day;
}
