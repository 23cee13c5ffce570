// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dayplan.h"

#include "dice.h"
#include "weather.h"

#include <QDateTime>
#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr int minutesPerHour = 60;
constexpr int minutesPerDay = 1440;
constexpr int persons = 4;
constexpr double cubicCentimetresPerCubicMetre = 1e6;
constexpr qint32 cubicCentimetresPerLitre = 1000;

constexpr int at(int hour, int minute = 0)
{
    return hour * minutesPerHour + minute;
}

/** A stretch of steady power within the run of an appliance. */
struct Phase
{
    int minutes;
    qint32 watts;
};

bool isHoliday(quint64 seed, const QDate &date)
{
    constexpr int length = 14;
    constexpr int latest = 25;
    Dice dice(seed, Dice::Purpose::Holiday, date.year());
    const QDate first = QDate(date.year(), 7, 15).addDays(dice.between(0, latest));
    return date >= first && date < first.addDays(length);
}

bool isWeekendDay(const QDate &date)
{
    return date.dayOfWeek() >= Qt::Saturday;
}

/** The night that begins on a date. */
bool isChargingNight(quint64 seed, const QDate &date)
{
    return !isHoliday(seed, date)
        && Dice(seed, Dice::Purpose::Car, date.toJulianDay()).chance(0.42);
}

double kilometresDriven(quint64 seed, const QDate &date)
{
    Dice dice(seed, Dice::Purpose::Driving, date.toJulianDay());
    if (isHoliday(seed, date)) {
        return 0.0;
    }
    return isWeekendDay(date) ? dice.between(0.0, 110.0) : dice.between(5.0, 42.0);
}

/** How the car is charged in the night that begins on a date. */
struct Charging
{
    static constexpr qint32 watts = 7360;

    int minutesBeforeMidnight = 0;
    int minutes = 0;

    /** The power in a minute, counted from the start: less and less as the battery fills. */
    qint32 power(int minute) const
    {
        constexpr int filling = 20;
        const int left = minutes - minute;
        return left >= filling ? watts : watts * (left + 5) / (filling + 5);
    }
};

Charging chargingOf(quint64 seed, const QDate &date)
{
    constexpr double wattHoursPerKilometre = 178.0;
    constexpr int mostDays = 9;
    constexpr int longest = at(6, 30);
    constexpr int fillingUp = 7; // minutes lost to the slow end

    Charging charging;
    if (!isChargingNight(seed, date)) {
        return charging;
    }
    double kilometres = kilometresDriven(seed, date);
    for (int back = 1; back <= mostDays && !isChargingNight(seed, date.addDays(-back)); ++back) {
        kilometres += kilometresDriven(seed, date.addDays(-back));
    }
    const double minutes =
        kilometres * wattHoursPerKilometre * minutesPerHour / double(Charging::watts);
    charging.minutes = std::min(int(minutes) + fillingUp, longest);
    charging.minutesBeforeMidnight =
        Dice(seed, Dice::Purpose::Car, -date.toJulianDay()).between(5, 55);
    return charging;
}

/** Fills a day, one thing after the other. */
class DayBuilder
{
public:
    DayBuilder(const HouseFacts &house, const QDate &date);

    void addSun();
    void addHeating();
    void addHotWater();
    void addCar();
    void addKitchen();
    void addWashing();
    void addRest();
    void addWater();

    DayPlan takePlan() { return std::move(plan); }

private:
    using Device = qint32 MinuteUse::*;

    void setWallMinutes();
    void planPresence();

    int count() const { return int(plan.minutes.size()); }
    MinuteUse &minute(int index) { return plan.minutes[std::size_t(index)]; }
    qint64 instantOf(int index) const { return plan.from + index * secondsPerMinute; }
    Dice dice(Dice::Purpose purpose) const { return Dice(house.seed, purpose, date.toJulianDay()); }
    int indexAt(int wallMinute) const;
    bool isAwakeAtHome(int wallMinute) const;
    void run(Device device, int wallMinute, std::initializer_list<Phase> phases);
    void draw(int wallMinute, int minutes, qint32 litres);
    qint32 burn(int index, double hourlyRate) const;
    int anyMinuteAtHome(Dice &throws) const;

    const HouseFacts &house;
    const QDate date;
    const Weather weather;
    const bool isAway;
    DayPlan plan;
    /** The light on the panels in W/m², for each minute. */
    std::vector<float> light;
    // All in minutes of the wall clock.
    int wake = 0;
    int leave = 0;
    int comeHome = 0;
    int bed = 0;
};

DayBuilder::DayBuilder(const HouseFacts &facts, const QDate &day)
    : house(facts), date(day), weather(facts.seed, facts.place.latitude),
      isAway(isHoliday(facts.seed, day))
{
    const auto midnight = [this](const QDate &which) {
        const qint64 instant = which.startOfDay(house.timeZone).toSecsSinceEpoch();
        return instant - instant % secondsPerMinute;
    };
    plan.from = midnight(date);
    plan.to = midnight(date.addDays(1));
    plan.isWeekend = isWeekendDay(date);
    plan.minutes.resize(std::size_t((plan.to - plan.from) / secondsPerMinute));
    light.resize(plan.minutes.size());
    setWallMinutes();
    planPresence();
}

void DayBuilder::setWallMinutes()
{
    const bool clockIsChanged = count() != minutesPerDay;
    for (int i = 0; i < count(); ++i) {
        int wallMinute = i;
        if (clockIsChanged) {
            const QTime time = QDateTime::fromSecsSinceEpoch(instantOf(i), house.timeZone).time();
            wallMinute = at(time.hour(), time.minute());
        }
        minute(i).wallMinute = wallMinute;
    }
}

void DayBuilder::planPresence()
{
    Dice throws = dice(Dice::Purpose::Household);
    if (plan.isWeekend) {
        wake = throws.between(at(7, 35), at(9, 5));
        const bool goesOut = throws.chance(0.5);
        leave = goesOut ? throws.between(at(12), at(13, 30)) : minutesPerDay;
        comeHome = goesOut ? throws.between(at(15), at(17)) : minutesPerDay;
        bed = throws.between(at(23, 15), at(23, 55));
    } else {
        wake = throws.between(at(6, 15), at(6, 55));
        leave = throws.between(at(8, 0), at(8, 30));
        comeHome = throws.between(at(15, 30), at(17));
        bed = throws.between(at(22, 30), at(23, 25));
    }
}

/** The first minute of the day at which the clock shows at least @p wallMinute. */
int DayBuilder::indexAt(int wallMinute) const
{
    const auto found = std::find_if(
        plan.minutes.cbegin(), plan.minutes.cend(),
        [wallMinute](const MinuteUse &candidate) { return candidate.wallMinute >= wallMinute; });
    return int(found - plan.minutes.cbegin());
}

bool DayBuilder::isAwakeAtHome(int wallMinute) const
{
    const bool isOut = wallMinute >= leave && wallMinute < comeHome;
    return !isAway && wallMinute >= wake && wallMinute < bed && !isOut;
}

/** What runs beyond midnight is left out; nothing but the car does. */
void DayBuilder::run(Device device, int wallMinute, std::initializer_list<Phase> phases)
{
    int index = indexAt(wallMinute);
    for (const Phase &phase : phases) {
        const int end = std::min(index + phase.minutes, count());
        for (; index < end; ++index) {
            minute(index).*device += phase.watts;
        }
    }
}

void DayBuilder::draw(int wallMinute, int minutes, qint32 litres)
{
    const int start = indexAt(wallMinute);
    for (int i = start; i < std::min(start + minutes, count()); ++i) {
        minute(i).water += litres * cubicCentimetresPerLitre / minutes;
    }
}

void DayBuilder::addSun()
{
    constexpr double panelWatts = 4000.0;
    constexpr double lightOfPanelWatts = 1000.0;
    constexpr double losses = 0.89;
    constexpr double tilt = 35.0;
    constexpr qint32 least = 8; // below which the inverter sleeps
    // The sun moves slowly, the clouds do not.
    constexpr int grid = 10;

    const auto lightAt = [this](int index, double cloudiness) {
        const SunDirection sun = sunDirection(house.place, instantOf(index));
        return sunlight(house.place, sun, tilt, cloudiness);
    };
    double clearAfter = lightAt(0, 0.0);
    double coveredAfter = lightAt(0, 1.0);
    for (int start = 0; start < count(); start += grid) {
        const double clearBefore = std::exchange(clearAfter, lightAt(start + grid, 0.0));
        const double coveredBefore = std::exchange(coveredAfter, lightAt(start + grid, 1.0));
        if (clearBefore <= 0.0 && clearAfter <= 0.0) {
            continue;
        }
        for (int i = start; i < std::min(start + grid, count()); ++i) {
            const double part = double(i - start) / grid;
            const double clear = clearBefore + (clearAfter - clearBefore) * part;
            const double covered = coveredBefore + (coveredAfter - coveredBefore) * part;
            const double clouds = weather.cloudiness(instantOf(i));
            const double seen = clear + (covered - clear) * clouds;
            light[std::size_t(i)] = float(seen);
            const auto watts = qint32(seen * panelWatts / lightOfPanelWatts * losses);
            minute(i).solar = watts < least ? 0 : std::min(watts, mostSolarPower);
        }
    }
}

/** The burner goes on and off, for just so long that the rate in m³/h comes out. */
qint32 DayBuilder::burn(int index, double hourlyRate) const
{
    constexpr int cycle = 24; // minutes
    constexpr double burnerRate = 1.1;
    const double minutesOn = std::clamp(hourlyRate / burnerRate, 0.0, 1.0) * cycle;
    const double partOn = std::clamp(minutesOn - index % cycle, 0.0, 1.0);
    return qint32(partOn * burnerRate * cubicCentimetresPerCubicMetre / minutesPerHour);
}

void DayBuilder::addHeating()
{
    constexpr double ratePerKelvin = 0.0176; // m³/h
    constexpr double dayIndoors = 20.2;
    constexpr double nightIndoors = 16.5;
    constexpr double holidayIndoors = 15.0;
    constexpr double warmthOfHouse = 3.4; // K, from people and devices
    constexpr double warmthOfSun = 0.006; // K for each W/m²
    constexpr double warmestHeatedDay = 15.5;
    constexpr int warmingUp = 60;
    constexpr double warmingUpFactor = 1.9;
    constexpr int grid = 24;
    constexpr qint32 heatOfGas = 33; // J/cm³, of a condensing boiler

    if (weather.meanTemperature(instantOf(count() / 2)) > warmestHeatedDay) {
        return;
    }
    double outdoors = 0.0;
    const int warmFrom = wake - warmingUp / 2;
    for (int i = 0; i < count(); ++i) {
        const int wallMinute = minute(i).wallMinute;
        if (i % grid == 0) {
            outdoors = weather.temperature(instantOf(i), wallMinute * int(secondsPerMinute));
        }
        const bool isDay = wallMinute >= warmFrom && wallMinute < bed;
        const double indoors = isAway ? holidayIndoors : isDay ? dayIndoors : nightIndoors;
        const double missing =
            indoors - warmthOfHouse - warmthOfSun * double(light[std::size_t(i)]) - outdoors;
        const bool isWarmingUp = isDay && !isAway && wallMinute < warmFrom + warmingUp;
        const double factor = isWarmingUp ? warmingUpFactor : 1.0;
        minute(i).gas = burn(i, ratePerKelvin * missing * factor);
        minute(i).heat = minute(i).gas * heatOfGas;
    }
}

/** A heat pump keeps the hot water warm: by day while the sun may give the power, and at night. */
void DayBuilder::addHotWater()
{
    constexpr double usualMinutes = 205.0;
    constexpr double minutesPerKelvin = 4.0; // the colder the air, the longer
    constexpr double usualTemperature = 10.0;
    constexpr int minutesWhenAway = 25;
    constexpr double partByDay = 0.75;

    Dice throws = dice(Dice::Purpose::HeatPump);
    const double colder = usualTemperature - weather.meanTemperature(instantOf(count() / 2));
    const int minutes = isAway
        ? minutesWhenAway
        : int(usualMinutes + minutesPerKelvin * colder + throws.between(-25.0, 25.0));
    const int byDay = int(minutes * partByDay);
    const int atNight = minutes - byDay;
    const auto heat = [this](int wallMinute, int length) {
        run(&MinuteUse::heatPump, wallMinute,
            {{length / 3, 510}, {length / 3, 560}, {length - 2 * (length / 3), 620}});
    };
    heat(throws.between(at(11, 15), at(12, 15)), byDay);
    heat(throws.between(at(3), at(4)), atNight);
}

void DayBuilder::addCar()
{
    const Charging before = chargingOf(house.seed, date.addDays(-1));
    for (int i = 0; i < before.minutes - before.minutesBeforeMidnight; ++i) {
        minute(i).car = before.power(before.minutesBeforeMidnight + i);
    }
    const Charging next = chargingOf(house.seed, date);
    const int start = count() - next.minutesBeforeMidnight;
    for (int i = 0; i < std::min(next.minutes, next.minutesBeforeMidnight); ++i) {
        minute(start + i).car = next.power(i);
    }
}

void DayBuilder::addKitchen()
{
    if (isAway) {
        return;
    }
    constexpr Phase kettle = {4, 2000};
    constexpr Phase coffee = {5, 1300};
    constexpr Phase toaster = {5, 900};
    Dice throws = dice(Dice::Purpose::Kitchen);
    const auto use = [this](int wallMinute, std::initializer_list<Phase> phases) {
        run(&MinuteUse::kitchen, wallMinute, phases);
    };

    use(wake + throws.between(10, 20), {coffee, kettle});
    if (throws.chance(0.7)) {
        use(wake + throws.between(18, 28), {toaster});
    }
    if (plan.isWeekend) {
        use(at(10, 30) + throws.between(-15, 15), {coffee});
        use(at(12) + throws.between(-20, 20), {{4, 2200}, {12, 900}});
    }
    const int dinner = at(17, 50) + throws.between(-30, 30);
    use(dinner, {{throws.between(7, 11), 2900}, {throws.between(18, 34), 1100}});
    use(dinner, {{40, 90}}); // the hood
    if (throws.chance(0.35)) {
        use(dinner - 12, {{10, 2400}, {6, 300}, {6, 2100}, {6, 300}, {6, 2100}, {6, 300}});
    }
    use(at(20, 10) + throws.between(-20, 20), {kettle});
}

void DayBuilder::addWashing()
{
    if (isAway) {
        return;
    }
    Dice throws = dice(Dice::Purpose::Washing);
    const auto wash = [this](int wallMinute, std::initializer_list<Phase> phases) {
        run(&MinuteUse::washing, wallMinute, phases);
    };
    if (throws.chance(0.8)) {
        const int dishes = throws.between(at(20, 30), at(21, 50));
        wash(dishes, {{5, 60}, {15, 2000}, {45, 110}, {11, 2000}, {20, 50}});
        draw(dishes, 3, 6);
        draw(dishes + 65, 2, 6);
    }
    if (throws.chance(plan.isWeekend ? 0.85 : 0.5)) {
        const int start =
            plan.isWeekend ? throws.between(at(9, 30), at(11)) : throws.between(at(17), at(18, 30));
        wash(start, {{6, 70}, {18, 2000}, {60, 170}, {8, 450}});
        draw(start, 5, 20);
        draw(start + 60, 4, 15);
        draw(start + 75, 4, 12);
        if (throws.chance(0.5)) {
            wash(start + 100, {{100, 720}});
        }
    }
}

void DayBuilder::addRest()
{
    constexpr qint32 alwaysOn = 80; // standby, router, ventilation
    constexpr qint32 whenAtHome = 48;
    constexpr qint32 evening = 105;
    constexpr qint32 lamps = 95;
    constexpr float dusk = 40.0F; // W/m²
    constexpr int changeEvery = 7; // minutes

    Dice throws = dice(Dice::Purpose::Devices);
    const int fridge = throws.between(0, 44);
    const int freezer = throws.between(0, 69);
    double change = 1.0;
    for (int i = 0; i < count(); ++i) {
        MinuteUse &now = minute(i);
        now.rest =
            alwaysOn + ((i + fridge) % 45 < 15 ? 88 : 0) + ((i + freezer) % 70 < 20 ? 70 : 0);
        if (i % changeEvery == 0) {
            change = throws.between(0.75, 1.25);
        }
        if (!isAwakeAtHome(now.wallMinute)) {
            continue;
        }
        const qint32 shining = light[std::size_t(i)] < dusk ? lamps : 0;
        const qint32 screens = now.wallMinute >= at(19) ? evening : 0;
        now.rest += qint32((whenAtHome + shining + screens) * change);
    }
}

int DayBuilder::anyMinuteAtHome(Dice &throws) const
{
    int wallMinute = throws.between(wake, bed);
    while (!isAwakeAtHome(wallMinute) && wallMinute < bed) {
        wallMinute = throws.between(wallMinute + 1, bed);
    }
    return std::min(wallMinute, bed - 1);
}

void DayBuilder::addWater()
{
    if (isAway) {
        return;
    }
    constexpr qint32 litresPerMinute = 8; // of a shower
    constexpr double warmEnoughForTheGarden = 16.5;
    constexpr int taps = 32;
    Dice throws = dice(Dice::Purpose::Water);

    for (int person = 0; person < persons; ++person) {
        if (throws.chance(0.78)) {
            const int turn = 12 * person;
            const int start = throws.chance(0.6) ? wake + 5 + turn : at(20, 30) + turn;
            const int minutes = throws.between(6, 8);
            draw(start, minutes, minutes * litresPerMinute);
        }
    }
    const int flushes = plan.isWeekend ? throws.between(15, 22) : throws.between(12, 18);
    for (int i = 0; i < flushes; ++i) {
        draw(anyMinuteAtHome(throws), 1, 6);
    }
    for (int i = 0; i < taps; ++i) {
        draw(anyMinuteAtHome(throws), 1, 1);
    }
    if (throws.chance(0.35)) {
        draw(throws.between(at(0, 30), at(5, 30)), 1, 6);
    }
    draw(at(18), 4, 8); // for the dinner
    const bool isDry = weather.cloudiness(instantOf(count() / 2)) < 0.4;
    if (isDry && weather.meanTemperature(instantOf(count() / 2)) > warmEnoughForTheGarden
        && throws.chance(0.5)) {
        draw(at(20, 15), 30, 330);
    }
}

} // namespace

DayPlan planDay(const HouseFacts &house, const QDate &date)
{
    DayBuilder builder(house, date);
    builder.addSun();
    builder.addHeating();
    builder.addHotWater();
    builder.addCar();
    builder.addKitchen();
    builder.addWashing();
    builder.addRest();
    builder.addWater();
    return builder.takePlan();
}
