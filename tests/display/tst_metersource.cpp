// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "metersource.h"
#include "p1samples.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr qint64 hour = 3600;
constexpr qint64 pace = 10; // seconds from telegram to telegram
constexpr int patience = 300000; // ms, for what hangs
const qint64 ten = utc("2024-06-01T10:00:00");

double counterAt(qint64 instant)
{
    return 1000.0 + double((instant - ten) / pace) / 1000.0;
}

/** A meter that tells what a test wants. */
class ToldMeter : public LiveMeter
{
public:
    bool isMetering() const override { return true; }
    HousePower housePower() const override { return house; }
    void start() override { }

    void tell(std::optional<int> watts, const HousePower &beside = {},
              std::optional<double> given = {})
    {
        P1Telegram told;
        told.instant = ten;
        told.power = watts;
        if (given) {
            told.readings = {{{Quantity::GridExport, Tariff::Normal}, *given, {}}};
        }
        house = beside;
        Q_EMIT telegram(told);
    }

    /** The counter at an instant, by a meter that is heard each hour. */
    void count(qint64 instant, double kWh)
    {
        P1Telegram told;
        told.instant = instant;
        told.readings = {{importLow, kWh, {}}};
        Q_EMIT telegram(told);
    }

private:
    HousePower house;
};

} // namespace

/** A smart meter's readings, and their history. */
class tst_MeterSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void historyIsThereAfterTheNextStart();
    void historyGoesOn();
    void filesAndMeterAreOneHousehold();
    void withoutADirectoryNothingIsKept();
    void troubleIsAProblemOfTheHousehold();
    void panelsWithAMeterMakeConsumptionExact();
    void panelsWithoutAMeterHideTheConsumption();
    void powerThatIsNotToldIsNotKnown();
    void replacedMeterIsToldOnce();
    void clockThatIsAheadIsTold();
    void clockThatWasAheadLeavesNothingInTheHistory();

private:
    /** Plays telegrams from @p from to @p to into a source that is then gone. */
    void play(qint64 from, qint64 to, const QString &history);
    QString historyDirectory() const { return directory->filePath(QStringLiteral("history")); }

    std::unique_ptr<QTemporaryDir> directory;
};

void tst_MeterSource::init()
{
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

void tst_MeterSource::play(qint64 from, qint64 to, const QString &history)
{
    QFile file(directory->filePath(QStringLiteral("telegrams")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (qint64 at = from; at <= to; at += pace) {
        file.write(telegramAt(at, counterAt(at), 400));
    }
    file.close();
    MeterSource source(file.fileName(), P1Settings(), history);
    QSignalSpy ended(&source, &MeterSource::ended);
    QSignalSpy problems(&source, &MeterSource::problem);
    source.prepare();
    source.start();
    QVERIFY(ended.wait(patience));
    QCOMPARE(problems.count(), 0);
}

void tst_MeterSource::historyIsThereAfterTheNextStart()
{
    play(ten, ten + 3 * hour + 200, historyDirectory());

    MeterSource source(QStringLiteral("/dev/null"), P1Settings(), historyDirectory());
    source.prepare();
    const Household &household = source.household();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(
            household.amount(Quantity::GridImport, {ten + i * hour, ten + (i + 1) * hour}),
            std::optional<double>(counterAt(ten + (i + 1) * hour) - counterAt(ten + i * hour)));
    }
    QVERIFY(household.problems.isEmpty());
    QCOMPARE(household.timeZone, QTimeZone("Europe/Amsterdam"));
}

void tst_MeterSource::historyGoesOn()
{
    play(ten, ten + hour, historyDirectory());
    play(ten + hour + pace, ten + 2 * hour, historyDirectory());
    MeterSource source(QStringLiteral("/dev/null"), P1Settings(), historyDirectory());
    source.prepare();
    QCOMPARE(source.household().amount(Quantity::GridImport, {ten, ten + 2 * hour}),
             std::optional<double>(counterAt(ten + 2 * hour) - counterAt(ten)));
    QVERIFY(source.household().meters.at(importLow).faults().empty());
}

void tst_MeterSource::filesAndMeterAreOneHousehold()
{
    play(ten, ten + hour, historyDirectory());
    Household files;
    for (qint64 at = ten - 2 * hour; at <= ten + hour / 2; at += hour / 2) {
        files.meter(importLow, Meter::Kind::Counter).addReading(at, counterAt(at));
    }
    {
        MeterSource source(QStringLiteral("/dev/null"), P1Settings(), historyDirectory());
        source.prepare();
        source.addOlder(files);
        for (qint64 at = ten - 2 * hour; at < ten + hour; at += hour) {
            QCOMPARE(source.household().amount(Quantity::GridImport, {at, at + hour}),
                     std::optional<double>(counterAt(at + hour) - counterAt(at)));
        }
    }
    MeterSource next(QStringLiteral("/dev/null"), P1Settings(), historyDirectory());
    next.prepare();
    QCOMPARE(next.household().firstInstant(), std::optional<qint64>(ten));
}

void tst_MeterSource::withoutADirectoryNothingIsKept()
{
    play(ten, ten + hour, QString());
    QCOMPARE(QDir(directory->path()).entryList(QDir::Files), QStringList("telegrams"));
    MeterSource source(QStringLiteral("/dev/null"), P1Settings(), QString());
    source.prepare();
    QVERIFY(source.household().meters.empty());
}

void tst_MeterSource::troubleIsAProblemOfTheHousehold()
{
    QFile file(directory->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    MeterSource source(QStringLiteral("/dev/null"), P1Settings(), file.fileName());
    source.prepare();
    QCOMPARE(source.household().problems.size(), 1);
    QVERIFY(source.household().problems.constFirst().contains("the history is not kept"));
}

void tst_MeterSource::panelsWithAMeterMakeConsumptionExact()
{
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    MeterSource source(std::move(told), QString());
    source.start();

    HousePower house;
    house.production = 2000.0;
    meter->tell(-1500, house);
    QCOMPARE(source.power()->consumption, 500.0);
    QCOMPARE(source.power()->production, 2000.0);
    QCOMPARE(source.mostProduction(), 2000.0);
    QVERIFY(source.power()->devices.isEmpty());

    house.battery = -1000.0;
    house.car = 300.0;
    meter->tell(-500, house);
    QCOMPARE(source.power()->consumption, 500.0);
    QCOMPARE(source.power()->grid, -500.0);
    QCOMPARE(source.power()->devices.size(), 1);
    QCOMPARE(source.power()->devices.constFirst().watts, 300.0);
}

void tst_MeterSource::panelsWithoutAMeterHideTheConsumption()
{
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    MeterSource source(std::move(told), QString());

    meter->tell(250);
    QVERIFY(!source.power()->production);
    QCOMPARE(source.power()->consumption, std::optional<double>(250.0));
    meter->tell(-1500);
    QCOMPARE(source.power()->grid, -1500.0);
    QVERIFY(!source.power()->production);
    QVERIFY(!source.power()->consumption);
    QCOMPARE(source.mostProduction(), 1500.0);

    // The counter tells of panels by night, too.
    meter->tell(250, {}, 1234.567);
    QVERIFY(!source.power()->consumption);
}

void tst_MeterSource::powerThatIsNotToldIsNotKnown()
{
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    MeterSource source(std::move(told), QString());
    meter->tell(250);
    QCOMPARE(source.power()->consumption, 250.0);
    meter->tell(std::nullopt);
    QVERIFY(!source.power());
}

void tst_MeterSource::replacedMeterIsToldOnce()
{
    const QString history = historyDirectory();
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    {
        MeterSource source(std::move(told), history);
        QSignalSpy problems(&source, &MeterSource::problem);
        source.prepare();
        source.start();
        meter->count(ten, 1000.0);
        meter->count(ten + hour, 1000.5);
        QCOMPARE(problems.count(), 0);
        meter->count(ten + 2 * hour, 3.0);
        meter->count(ten + 3 * hour, 3.25);
        QCOMPARE(problems.count(), 1);
        QCOMPARE(problems.constFirst().constFirst().toString(),
                 QStringLiteral("electricity import (low tariff): the meter goes on at 3.000 kWh, "
                                "which does not follow from before: it is another one, or was "
                                "reset"));
        meter->count(ten + 4 * hour, 3.5);
        QCOMPARE(problems.count(), 1);
    }

    auto next = std::make_unique<ToldMeter>();
    meter = next.get();
    MeterSource source(std::move(next), history);
    QSignalSpy problems(&source, &MeterSource::problem);
    source.prepare();
    source.start();
    meter->count(ten + 5 * hour, 3.75);
    QCOMPARE(problems.count(), 0);
}

void tst_MeterSource::clockThatIsAheadIsTold()
{
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    MeterSource source(std::move(told), QString());
    QSignalSpy problems(&source, &MeterSource::problem);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    meter->count(now - 30 * 24 * hour, 0.0);
    meter->count(now, 1.0);
    QCOMPARE(problems.count(), 0);
    meter->count(now + 2 * hour, 1.1);
    meter->count(now + 2 * hour + 10, 1.2);
    QCOMPARE(problems.count(), 1);
    QVERIFY(problems.constFirst().constFirst().toString().startsWith(
        QLatin1String("the clock of the meter is ")));
    // Right again, and wrong again.
    meter->count(now + 20, 1.3);
    meter->count(now + 2 * hour + 30, 1.4);
    QCOMPARE(problems.count(), 2);
}

void tst_MeterSource::clockThatWasAheadLeavesNothingInTheHistory()
{
    const auto isRight = [](const Household &household) {
        for (int i = 0; i < 6; ++i) {
            const Interval slot {ten + i * hour, ten + (i + 1) * hour};
            if (household.amount(Quantity::GridImport, slot) != std::optional<double>(0.25)) {
                return false;
            }
        }
        return true;
    };
    const auto counterAfter = [](int steps) { return 1000.0 + 0.25 * steps / 12; };
    auto told = std::make_unique<ToldMeter>();
    ToldMeter *meter = told.get();
    {
        MeterSource source(std::move(told), historyDirectory());
        QSignalSpy problems(&source, &MeterSource::problem);
        source.prepare();
        source.start();
        for (int step = 0; step <= 6 * 12; ++step) {
            const bool isAhead = step > 14 && step < 20;
            meter->count(ten + 300 * step + (isAhead ? 2 * hour : 0), counterAfter(step));
        }
        QCOMPARE(problems.count(), 0);
        QVERIFY(isRight(source.household()));
    }
    MeterSource source(QStringLiteral("/dev/null"), P1Settings(), historyDirectory());
    source.prepare();
    QVERIFY(isRight(source.household()));
}

QTEST_GUILESS_MAIN(tst_MeterSource)
#include "tst_metersource.moc"
