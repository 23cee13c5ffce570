// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "household.h"
#include "p1recorder.h"
#include "p1samples.h"
#include "p1splitter.h"
#include "p1time.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register gasRegister {Quantity::Gas, Tariff::Single};
constexpr qint64 minute = 60;
constexpr qint64 hour = 3600;
constexpr qint64 never = 0;

const qint64 ten = utc("2024-06-01T10:00:00");

P1Telegram electricity(qint64 instant, double counter, int watts = 500)
{
    P1Telegram telegram;
    telegram.instant = instant;
    telegram.power = watts;
    telegram.readings.push_back({importLow, counter, std::nullopt});
    return telegram;
}

P1Telegram gas(qint64 sentAt, qint64 readAt, double counter)
{
    P1Telegram telegram;
    telegram.instant = sentAt;
    telegram.readings.push_back({gasRegister, counter, readAt});
    return telegram;
}

QString reading(const Household &household, const Register &meterRegister, qint64 instant)
{
    const auto meter = household.meters.find(meterRegister);
    if (meter == household.meters.end()) {
        return QStringLiteral("no meter");
    }
    const std::optional<double> value = meter->second.readingAt(instant);
    return value ? QString::number(*value, 'f', 3) : QStringLiteral("gap");
}

} // namespace

class tst_P1Recorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockIsThatOfTheMeter();
    void fullHourHasTheLastReadingBefore();
    void readingAtTheFullHourIsItsOwn();
    void fiveMinutesAreEnteredBetween();
    void firstReadingIsEntered();
    void silenceAroundTheHour_data();
    void silenceAroundTheHour();
    void counterGoesOnAcrossASilence();
    void newestIsEnteredOnDemand();
    void powerIsThatOfTheLatest();
    void powerIsLeftWhereATelegramHasNone();
    void telegramWithAProblemChangesNothing();
    void receivedTimeStandsInForAMissingOne();
    void clockThatIsPutBackBeginsAnew();
    void clockThatWasAheadLeavesNothingBehind();
    void hourlyGasIsEnteredAtItsHour();
    void gasOfFiveMinutes();
    void gasThatIsMissingLeavesAGap();
    void channelsMayBeSlow_data();
    void channelsMayBeSlow();
    void readingsFollowAmounts();
    void yearOfSecondsStaysSmall();
    void randomSecondsAgreeWithTheModel();
    void realStream();
};

void tst_P1Recorder::clockIsThatOfTheMeter()
{
    Household household;
    household.timeZone = QTimeZone("Asia/Tokyo");
    P1Recorder recorder(&household);
    QCOMPARE(household.timeZone, QTimeZone("Europe/Amsterdam"));
    QVERIFY(household.meters.empty());
}

void tst_P1Recorder::fullHourHasTheLastReadingBefore()
{
    Household household;
    P1Recorder recorder(&household);
    for (qint64 at = ten - hour - 7; at <= ten + 13; at += 10) {
        recorder.add(electricity(at, 100.0 + double(at - ten) / hour), never);
    }
    // Telegrams came 7 seconds before the full hours.
    QCOMPARE(reading(household, importLow, ten), QString::number(100.0 - 7.0 / hour, 'f', 3));
    const Calendar calendar(household.timeZone);
    const Interval slot = calendar.hour(QDate(2024, 6, 1), 11);
    QCOMPARE(slot.from, ten - hour);
    QVERIFY(household.amount(Quantity::GridImport, slot));
    QVERIFY(std::abs(*household.amount(Quantity::GridImport, slot) - 1.0) < 1e-9);
}

void tst_P1Recorder::readingAtTheFullHourIsItsOwn()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten - 10, 1.0), never);
    recorder.add(electricity(ten, 2.0), never);
    recorder.add(electricity(ten + 10, 3.0), never);
    QCOMPARE(reading(household, importLow, ten), QStringLiteral("2.000"));
}

void tst_P1Recorder::fiveMinutesAreEnteredBetween()
{
    Household household;
    P1Recorder recorder(&household);
    for (qint64 at = ten + 1; at <= ten + 11 * minute; at += 10) {
        recorder.add(electricity(at, double(at - ten) / 1000.0), never);
    }
    QCOMPARE(reading(household, importLow, ten + 5 * minute), QStringLiteral("0.291"));
    QCOMPARE(reading(household, importLow, ten + 10 * minute), QStringLiteral("0.591"));
    QCOMPARE(reading(household, importLow, ten + 6 * minute), QStringLiteral("gap"));
}

void tst_P1Recorder::firstReadingIsEntered()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten + 17, 5.0), never);
    QCOMPARE(reading(household, importLow, ten + 17), QStringLiteral("5.000"));
    QCOMPARE(reading(household, importLow, ten), QStringLiteral("gap"));
}

void tst_P1Recorder::silenceAroundTheHour_data()
{
    QTest::addColumn<qint64>("last");
    QTest::addColumn<qint64>("next");
    QTest::addColumn<QString>("atTen");
    const auto gap = QStringLiteral("gap");
    const auto known = QStringLiteral("7.000");
    QTest::newRow("no silence") << ten - 1 << ten + 1 << known;
    QTest::newRow("three minutes") << ten - 90 << ten + 90 << known;
    QTest::newRow("one second more") << ten - 90 << ten + 91 << gap;
    QTest::newRow("three minutes before") << ten - 179 << ten + 1 << known;
    QTest::newRow("long before") << ten - 181 << ten + 1 << gap;
    QTest::newRow("long after") << ten - 1 << ten + 10 * minute << gap;
    QTest::newRow("hours") << ten - 2 * hour - 5 << ten + 2 * hour + 5 << gap;
    QTest::newRow("until just then") << ten << ten + hour << known;
}

void tst_P1Recorder::silenceAroundTheHour()
{
    QFETCH(qint64, last);
    QFETCH(qint64, next);
    QFETCH(QString, atTen);
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(last - 10, 6.0), never);
    recorder.add(electricity(last, 7.0), never);
    recorder.add(electricity(next, 8.0), never);
    QCOMPARE(reading(household, importLow, ten), atTen);
}

void tst_P1Recorder::counterGoesOnAcrossASilence()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten + 30 * minute, 10.0), never);
    recorder.add(electricity(ten + 31 * minute, 10.5), never);
    recorder.add(electricity(ten + 150 * minute, 12.0), never);
    recorder.add(electricity(ten + 151 * minute, 12.5), never);
    // The readings on both sides of the silence are known, and nothing in it.
    QCOMPARE(reading(household, importLow, ten + 31 * minute), QStringLiteral("10.500"));
    QCOMPARE(reading(household, importLow, ten + 150 * minute), QStringLiteral("12.000"));
    for (qint64 at = ten + 32 * minute; at < ten + 150 * minute; at += minute) {
        QCOMPARE(reading(household, importLow, at), QStringLiteral("gap"));
    }
    QCOMPARE(household.total(Quantity::GridImport), 2.0);
}

void tst_P1Recorder::newestIsEnteredOnDemand()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.enterNewest();
    recorder.add(electricity(ten + 60, 1.0), never);
    recorder.add(electricity(ten + 90, 2.0), never);
    QCOMPARE(reading(household, importLow, ten + 90), QStringLiteral("gap"));
    recorder.enterNewest();
    recorder.enterNewest();
    QCOMPARE(reading(household, importLow, ten + 90), QStringLiteral("2.000"));
    recorder.add(electricity(ten + 120, 3.0), never);
    QCOMPARE(household.total(Quantity::GridImport), 1.0);
    QVERIFY(household.meters.at(importLow).faults().empty());
}

void tst_P1Recorder::powerIsThatOfTheLatest()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten + 1, 1.0, 500), never);
    recorder.add(electricity(ten + 2, 1.0, -250), never);
    QVERIFY(household.measuredPower);
    QCOMPARE(household.measuredPower->watts, -250.0);
    QCOMPARE(household.measuredPower->instant, ten + 2);
}

void tst_P1Recorder::powerIsLeftWhereATelegramHasNone()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten + 1, 1.0, 500), never);
    recorder.add(gas(ten + 2, ten, 1.0), never);
    QCOMPARE(household.measuredPower->watts, 500.0);
    QCOMPARE(household.measuredPower->instant, ten + 1);
}

void tst_P1Recorder::telegramWithAProblemChangesNothing()
{
    Household household;
    P1Recorder recorder(&household);
    P1Telegram telegram = electricity(ten, 1.0);
    telegram.problem = QStringLiteral("it is damaged");
    recorder.add(telegram, ten);
    recorder.enterNewest();
    QVERIFY(household.meters.empty());
    QVERIFY(!household.measuredPower);
}

void tst_P1Recorder::receivedTimeStandsInForAMissingOne()
{
    Household household;
    P1Recorder recorder(&household);
    P1Telegram telegram = electricity(ten, 1.0);
    telegram.instant.reset();
    recorder.add(telegram, ten + 5);
    QCOMPARE(reading(household, importLow, ten + 5), QStringLiteral("1.000"));
    QCOMPARE(household.measuredPower->instant, ten + 5);
    // A telegram with a time of its own does not care when it came.
    recorder.add(electricity(ten + 5 * minute, 2.0), ten + hour);
    QCOMPARE(reading(household, importLow, ten + 5 * minute), QStringLiteral("2.000"));
}

void tst_P1Recorder::clockThatIsPutBackBeginsAnew()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(electricity(ten + 20, 5.0), never);
    recorder.add(electricity(ten - 20, 5.1), never);
    recorder.add(electricity(ten - 10, 5.2), never);
    recorder.add(electricity(ten + 30, 5.3), never);
    QCOMPARE(reading(household, importLow, ten), QStringLiteral("5.200"));
}

void tst_P1Recorder::clockThatWasAheadLeavesNothingBehind()
{
    Household household;
    P1Recorder recorder(&household);
    const auto counterAt = [](qint64 instant) { return 100.0 + double(instant - ten) / hour; };
    for (qint64 at = ten; at <= ten + 5 * hour; at += 10) {
        const bool isAhead = at > ten + 65 * minute && at < ten + 95 * minute;
        recorder.add(electricity(at + (isAhead ? 2 * hour : 0), counterAt(at)), never);
    }
    const auto amount = [&](int from, int to) {
        return household.amount(Quantity::GridImport, {ten + from * hour, ten + to * hour});
    };
    for (int i = 0; i < 5; ++i) {
        const std::optional<double> known = amount(i, i + 1);
        QVERIFY2(known && std::abs(*known - 1.0) < 1e-6, qPrintable(QString::number(i)));
    }
    QVERIFY(std::abs(household.total(Quantity::GridImport, {ten, ten + 5 * hour}) - 5.0) < 1e-6);
}

void tst_P1Recorder::hourlyGasIsEnteredAtItsHour()
{
    Household household;
    P1Recorder recorder(&household);
    for (int step = 0; step < 4 * 360; ++step) {
        const qint64 at = ten + 10 * step + 3;
        recorder.add(gas(at, at - at % hour, 100.0 + step / 360), never);
    }
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(reading(household, gasRegister, ten + i * hour),
                 QString::number(100.0 + i, 'f', 3));
    }
    QCOMPARE(reading(household, gasRegister, ten + 30 * minute), QStringLiteral("gap"));
}

void tst_P1Recorder::gasOfFiveMinutes()
{
    Household household;
    P1Recorder recorder(&household);
    // Read one second after each five minutes, and told ten seconds later.
    for (int i = 0; i <= 24; ++i) {
        const qint64 readAt = ten + i * 5 * minute + 1;
        recorder.add(gas(readAt + 10, readAt, 100.0 + i), never);
        recorder.add(gas(readAt + 20, readAt, 100.0 + i), never);
    }
    QCOMPARE(reading(household, gasRegister, ten + hour), QStringLiteral("111.000"));
    QCOMPARE(reading(household, gasRegister, ten + 2 * hour), QStringLiteral("123.000"));
}

void tst_P1Recorder::gasThatIsMissingLeavesAGap()
{
    Household household;
    P1Recorder recorder(&household);
    recorder.add(gas(ten - 10 * minute, ten - 12 * minute, 100.0), never);
    // The telegrams go on, but the gas meter is not heard any more.
    for (qint64 at = ten - 9 * minute; at < ten + 20 * minute; at += 10) {
        recorder.add(gas(at, ten - 12 * minute, 100.0), never);
    }
    recorder.add(gas(ten + 20 * minute, ten + 19 * minute, 101.0), never);
    QCOMPARE(reading(household, gasRegister, ten), QStringLiteral("gap"));
    QCOMPARE(household.total(Quantity::Gas), 1.0);
}

void tst_P1Recorder::channelsMayBeSlow_data()
{
    QTest::addColumn<qint64>("pause");
    QTest::addColumn<QString>("atTen");
    QTest::newRow("a quarter of an hour") << 15 * minute << QStringLiteral("100.000");
    QTest::newRow("20 minutes") << 20 * minute << QStringLiteral("100.000");
    QTest::newRow("more") << 20 * minute + 1 << QStringLiteral("gap");
}

void tst_P1Recorder::channelsMayBeSlow()
{
    QFETCH(qint64, pause);
    QFETCH(QString, atTen);
    Household household;
    P1Recorder recorder(&household);
    recorder.add(gas(ten, ten - 5 * minute, 100.0), never);
    recorder.add(gas(ten + hour, ten - 5 * minute + pause, 101.0), never);
    QCOMPARE(reading(household, gasRegister, ten), atTen);
}

void tst_P1Recorder::readingsFollowAmounts()
{
    Household household;
    household.meter(importLow, Meter::Kind::Amounts).addAmount({ten - hour, ten}, 0.5);
    P1Recorder recorder(&household);
    recorder.add(electricity(ten, 1.0), never);
    recorder.add(electricity(ten + hour, 2.0), never);
    recorder.add(electricity(ten + hour + minute, 2.25), never);
    recorder.enterNewest();
    const Meter &meter = household.meters.at(importLow);
    QCOMPARE(meter.total(), 1.75);
    QCOMPARE(meter.amount(ten - hour, ten + hour + minute), std::optional<double>(1.75));
}

void tst_P1Recorder::yearOfSecondsStaysSmall()
{
    // A day of seconds stands for the year: what is entered does not grow with the telegrams.
    Household household;
    P1Recorder recorder(&household);
    for (qint64 at = ten; at <= ten + 24 * hour; ++at) {
        recorder.add(electricity(at, double(at - ten) / hour), never);
    }
    int entered = 0;
    for (qint64 at = ten; at <= ten + 24 * hour; ++at) {
        entered += household.meters.at(importLow).readingAt(at) ? 1 : 0;
    }
    QCOMPARE(entered, 24 * 12 + 1);
}

// The recorder never looks at more than two telegrams; the model looks at all of them.
void tst_P1Recorder::randomSecondsAgreeWithTheModel()
{
    QRandomGenerator random(4711);
    for (int round = 0; round < 200; ++round) {
        Household household;
        P1Recorder recorder(&household);
        std::vector<std::pair<qint64, double>> sent;
        qint64 at = ten + random.bounded(600);
        double counter = 1000.0;
        for (int i = 0; i < 300; ++i) {
            recorder.add(electricity(at, counter), never);
            sent.emplace_back(at, counter);
            at += random.bounded(20) == 0 ? 1 + random.bounded(1200) : 1 + random.bounded(60);
            counter += random.bounded(100) / 1000.0;
        }
        for (qint64 border = ten; border < at; border += P1Recorder::step) {
            QString expected = QStringLiteral("gap");
            for (std::size_t i = 0; i < sent.size(); ++i) {
                const bool isLastBefore =
                    sent[i].first <= border && (i + 1 == sent.size() || sent[i + 1].first > border);
                const bool isExact = sent[i].first == border;
                const bool goesOn = i + 1 < sent.size()
                    && sent[i + 1].first - sent[i].first <= P1Recorder::longestSilence;
                if (isLastBefore && (isExact || goesOn)) {
                    expected = QString::number(sent[i].second, 'f', 3);
                }
            }
            QCOMPARE(reading(household, importLow, border), expected);
        }
    }
}

void tst_P1Recorder::realStream()
{
    const QByteArray stream =
        realTelegram(QStringLiteral("stream_dsmr50_iskra_1s_566_telegrams.txt"));
    if (stream.isEmpty()) {
        QSKIP("the telegrams of real meters are not at hand", );
    }
    Household household;
    P1Recorder recorder(&household);
    P1Splitter splitter;
    for (const P1Splitter::Piece &piece : splitter.add(stream)) {
        recorder.add(parseP1Telegram(piece.bytes), never);
    }
    recorder.enterNewest();
    const qint64 first = utc("2019-03-24T14:05:19");
    const qint64 last = utc("2019-03-24T14:14:45");
    QCOMPARE(*household.firstInstant(), first);
    QCOMPARE(*household.lastInstant(), last);
    QCOMPARE(household.measuredPower->instant, last);
    QCOMPARE(reading(household, importLow, first), QStringLiteral("3432.827"));
    QVERIFY(household.meters.at(importLow).readingAt(utc("2019-03-24T14:10:00")));
    QCOMPARE(household.total(Quantity::GridExport), 0.0);
    QVERIFY(household.total(Quantity::GridImport) > 0.05);
}

QTEST_GUILESS_MAIN(tst_P1Recorder)
#include "tst_p1recorder.moc"
