// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "meter.h"

#include <QTest>
#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

using namespace Readings;

namespace {

constexpr qint64 oneHour = 3600;
constexpr double most = 25.0;

Meter counter()
{
    return Meter(Meter::Kind::Counter, most);
}

Meter amounts()
{
    return Meter(Meter::Kind::Amounts, most);
}

/** A history told by its rules, one reading after the other in a plain list. */
struct Model
{
    struct Item
    {
        qint64 instant;
        double value;
        int segment;
    };
    std::vector<Item> items;

    std::optional<double> amount(qint64 from, qint64 to) const
    {
        const Item *start = nullptr;
        const Item *end = nullptr;
        for (const Item &item : items) {
            if (item.instant == from) {
                start = &item;
            }
            if (item.instant == to) {
                end = &item;
            }
        }
        if (from >= to || !start || !end || start->segment != end->segment) {
            return std::nullopt;
        }
        return end->value - start->value;
    }

    double total(qint64 from, qint64 to) const
    {
        double sum = 0.0;
        const Item *previous = nullptr;
        for (const Item &item : items) {
            if (item.instant < from || item.instant > to) {
                continue;
            }
            if (previous && previous->segment == item.segment) {
                sum += item.value - previous->value;
            }
            previous = &item;
        }
        return sum;
    }
};

bool follows(const Model::Item &earlier, const Model::Item &later)
{
    const double hours = std::max(1.0, double(later.instant - earlier.instant) / double(oneHour));
    return later.value >= earlier.value && later.value <= earlier.value + most * hours;
}

// Strikes wrong readings off a list until none is left.
Model judged(std::vector<Model::Item> list)
{
    std::size_t i = 1;
    while (i < list.size()) {
        const Model::Item &before = list[i - 1];
        const Model::Item &suspect = list[i];
        if (follows(before, suspect)) {
            ++i;
            continue;
        }
        if (i + 1 == list.size()) {
            list.pop_back();
            break;
        }
        const Model::Item &next = list[i + 1];
        const bool down = suspect.value < before.value;
        const bool suspectIsWrong = down
            ? follows(before, next)
            : next.value < suspect.value && (follows(before, next) || next.value < before.value);
        const bool beforeIsWrong = down && i >= 2 && list[i - 2].segment == before.segment
            && follows(list[i - 2], suspect);
        if (suspectIsWrong) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
        } else if (beforeIsWrong) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(i - 1));
        } else {
            for (std::size_t k = i; k < list.size(); ++k) {
                ++list[k].segment;
            }
            ++i;
        }
    }
    return {list};
}

/** Makes up a household meter with everything that goes wrong, and remembers the truth. */
class FaultyMeter
{
public:
    FaultyMeter(quint32 seed, int count) : random(seed)
    {
        qint64 instant = 1000 * oneHour;
        for (int i = 0; i < count; ++i) {
            instant += below(10) == 0 ? oneHour * (2 + below(60)) : oneHour;
            const bool mayFail = quiet >= 4 && i + 4 < count;
            if (mayFail && below(12) == 0) {
                fail(instant);
            } else {
                goOn(instant);
            }
        }
    }

    std::vector<Reading> fed;
    Model truth;
    std::vector<qint64> instants;
    int wrongOnes = 0;

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    double within(double limit) { return std::uniform_real_distribution<double>(0, limit)(random); }

    void feed(qint64 instant, double reading)
    {
        fed.push_back({instant, reading, 0});
        instants.push_back(instant);
    }

    void goOn(qint64 instant)
    {
        // Small steps after a fault, so that a household would take either side of it for its own.
        value += quiet < 3 ? within(0.1) : within(5.0);
        feed(instant, value);
        truth.items.push_back({instant, value, segment});
        ++quiet;
    }

    void fail(qint64 instant)
    {
        quiet = 0;
        ++wrongOnes;
        switch (below(4)) {
        case 0:
            feed(instant, within(0.999) * value);
            break;
        case 1:
            feed(instant, value + 1.0e5);
            break;
        case 2:
            feed(instant, value + 20.0);
            break;
        default:
            value = value > 5.0e4 ? within(1000.0) : value + 1.0e5;
            ++segment;
            feed(instant, value);
            truth.items.push_back({instant, value, segment});
        }
    }

    std::mt19937 random;
    double value = 20000.0;
    int segment = 0;
    int quiet = 0;
};

} // namespace

/** Meters with all kinds of histories, beside a plain model of what they are to answer. */
class tst_MeterHistories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShortHistoryIsJudgedByTheRules();
    void randomCountersMatchTheTruth();
    void randomAmountsMatchAPlainSum();
    void readingsAndAmountsTogetherKnowWhatAPathTells();
};

void tst_MeterHistories::everyShortHistoryIsJudgedByTheRules()
{
    const std::vector<double> steps {0.0, 1.0, 20.0, 40.0, 60.0, 120.0};
    constexpr int length = 6;
    int count = 1;
    for (int i = 0; i < length; ++i) {
        count *= static_cast<int>(steps.size());
    }
    for (int code = 0; code < count; ++code) {
        Meter meter = counter();
        std::vector<Model::Item> items;
        int digits = code;
        for (int i = 0; i < length; ++i, digits /= static_cast<int>(steps.size())) {
            const double value = steps[static_cast<std::size_t>(digits) % steps.size()];
            meter.addReading(i * oneHour, value);
            items.push_back({i * oneHour, value, 0});
        }
        const Model model = judged(items);
        for (int from = 0; from < length; ++from) {
            for (int to = from + 1; to < length; ++to) {
                const std::optional<double> expected = model.amount(from * oneHour, to * oneHour);
                const double total = model.total(from * oneHour, to * oneHour);
                if (meter.amount(from * oneHour, to * oneHour) != expected
                    || std::abs(meter.total(from * oneHour, to * oneHour) - total) > 1e-9) {
                    QFAIL(qPrintable(
                        QStringLiteral("history %1, %2 to %3").arg(code).arg(from).arg(to)));
                }
            }
        }
    }
}

void tst_MeterHistories::randomCountersMatchTheTruth()
{
    std::mt19937 random(20160327);
    int wrongOnes = 0;
    for (quint32 seed = 1; seed <= 300; ++seed) {
        const FaultyMeter faulty(seed, 120);
        wrongOnes += faulty.wrongOnes;
        std::vector<Reading> fed = faulty.fed;
        if (seed % 3 == 0) {
            std::shuffle(fed.begin(), fed.end(), random);
        }
        if (seed % 3 == 1) {
            std::rotate(fed.begin(), fed.begin() + 40, fed.end());
        }
        Meter meter = counter();
        for (const Reading &reading : fed) {
            meter.addReading(reading.instant, reading.value);
            // A question in between must not spoil what comes later.
            if (reading.instant % 5 == 0) {
                meter.amount(0, oneHour);
            }
        }
        // What comes later for the same instants does not count, wherever it comes.
        std::shuffle(fed.begin(), fed.end(), random);
        for (const Reading &reading : fed) {
            meter.addReading(reading.instant, reading.value + 1.0);
        }
        std::uniform_int_distribution<std::size_t> pick(0, faulty.instants.size() - 1);
        for (int question = 0; question < 300; ++question) {
            const qint64 from = faulty.instants[pick(random)] + (question % 10 == 0 ? 1 : 0);
            const qint64 to = faulty.instants[pick(random)] - (question % 11 == 0 ? 1 : 0);
            QCOMPARE(meter.amount(from, to), faulty.truth.amount(from, to));
            if (from <= to) {
                QVERIFY(std::abs(meter.total(from, to) - faulty.truth.total(from, to)) < 1e-6);
            }
        }
    }
    QVERIFY(wrongOnes > 1000);
}

void tst_MeterHistories::randomAmountsMatchAPlainSum()
{
    std::mt19937 random(1061);
    std::uniform_int_distribution<int> slot(0, 199);
    for (int round = 0; round < 200; ++round) {
        Meter meter = amounts();
        std::vector<double> truth(200, -1.0);
        for (int row = 0; row < 260; ++row) {
            const int index = round % 2 == 0 ? std::min(row, 199) : slot(random);
            if (round % 2 == 0 && slot(random) < 10) {
                continue;
            }
            const double amount = slot(random) / 16.0;
            meter.addAmount({index * oneHour, (index + 1) * oneHour}, amount);
            double &known = truth[static_cast<std::size_t>(index)];
            if (known < 0.0) {
                known = amount;
            }
        }
        for (int question = 0; question < 300; ++question) {
            const int from = slot(random);
            const int to = std::min(from + slot(random) % 12, 199);
            bool covered = from < to;
            double sum = 0.0;
            for (int index = from; index < to; ++index) {
                const double amount = truth[static_cast<std::size_t>(index)];
                covered = covered && amount >= 0.0;
                sum += std::max(amount, 0.0);
            }
            const std::optional<double> answer = meter.amount(from * oneHour, to * oneHour);
            QCOMPARE(answer.has_value(), covered);
            if (covered) {
                QCOMPARE(*answer, sum);
            }
            QCOMPARE(meter.total(from * oneHour, to * oneHour), sum);
        }
    }
}

/** What is known in steps of an hour, as ways from instant to instant. */
struct Ways
{
    std::vector<std::vector<int>> from; ///< the ends of what begins at an instant

    explicit Ways(int count) : from(std::size_t(count)) { }
    void add(int start, int end) { from[std::size_t(start)].push_back(end); }
    bool lead(int start, int end) const
    {
        std::vector<bool> reached(from.size(), false);
        reached[std::size_t(start)] = true;
        for (int at = start; at < end; ++at) {
            for (const int next :
                 reached[std::size_t(at)] ? from[std::size_t(at)] : std::vector<int>()) {
                reached[std::size_t(next)] = true;
            }
        }
        return reached[std::size_t(end)];
    }
};

/**
 * A meter that was read at some hours and told amounts of others, and the ways that lead through
 * it.
 */
class MixedMeter
{
public:
    static constexpr int count = 60;

    MixedMeter(std::mt19937 &theRandom, int readOfHundred)
        : meter(counter()), all(count), readings(count), random(theRandom)
    {
        truth[0] = 0.0;
        for (int hour = 1; hour < count; ++hour) {
            truth[hour] = truth[hour - 1] + below(64) / 16.0;
        }
        read(readOfHundred);
        tell();
    }

    Meter meter;
    Ways all;
    Ways readings;
    double truth[count];

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    void read(int readOfHundred)
    {
        double offset = 100.0;
        int last = -1;
        int isNew = 0; // readings to come of another meter, of which two in a row are needed
        for (int hour = 0; hour < count; ++hour) {
            if (hour > 0 && hour + 4 < count && isNew == 0 && below(25) == 0) {
                offset += 100000.0;
                last = -1;
                isNew = 2;
            }
            if (isNew == 0 && below(100) >= readOfHundred) {
                continue;
            }
            isNew = std::max(isNew - 1, 0);
            meter.addReading(hour * oneHour, offset + truth[hour]);
            if (last >= 0) {
                all.add(last, hour);
                readings.add(last, hour);
            }
            last = hour;
        }
    }

    void tell()
    {
        for (int hour = 0; hour < count;) {
            const int length = 1 + below(3);
            if (hour + length < count && below(10) < 8) {
                meter.addAmount({hour * oneHour, (hour + length) * oneHour},
                                truth[hour + length] - truth[hour]);
                all.add(hour, hour + length);
            }
            hour += length;
        }
    }

    std::mt19937 &random;
};

void tst_MeterHistories::readingsAndAmountsTogetherKnowWhatAPathTells()
{
    std::mt19937 random(20240);
    int known = 0;
    int seams = 0;
    for (int round = 0; round < 60; ++round) {
        const MixedMeter mixed(random, 40 + 50 * (round % 2));
        for (int from = 0; from < MixedMeter::count; ++from) {
            for (int to = from + 1; to < MixedMeter::count; ++to) {
                const std::optional<double> answer =
                    mixed.meter.amount(from * oneHour, to * oneHour);
                QCOMPARE(answer.has_value(), mixed.all.lead(from, to));
                if (answer) {
                    QCOMPARE(*answer, mixed.truth[to] - mixed.truth[from]);
                    QCOMPARE(mixed.meter.total(from * oneHour, to * oneHour), *answer);
                    ++known;
                    seams += mixed.readings.lead(from, to) ? 0 : 1;
                }
            }
        }
    }
    QVERIFY(known > 30000);
    QVERIFY(seams > 5000);
}

QTEST_APPLESS_MAIN(tst_MeterHistories)
#include "tst_meterhistories.moc"
