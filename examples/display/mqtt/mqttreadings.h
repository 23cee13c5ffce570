// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTREADINGS_H
#define MQTTREADINGS_H

#include "livemeter.h"
#include "mqttmapping.h"
#include "mqttmessage.h"
#include "powercounter.h"

#include <functional>
#include <map>

/**
 * Makes of the messages of a publisher what a smart meter would tell: readings of one moment, with
 * the power that flows then.
 *
 * A publisher whose mapping tells a time sends all its topics for each telegram of a meter. What
 * comes between two times belongs together, whether the time comes first or last, and counts at
 * that time: late as it may be, it is not taken as now. Live values that come before the first
 * live time belong to a telegram whose beginning was missed, and are left out.
 *
 * Any other publisher tells a value when it changes, so values hold until they are told anew, for
 * as long as the publisher is heard at all, and count when they come. What a broker has retained
 * is of no known age: powers of that kind count when the publisher says that it is online, and
 * registers also when anything else of it was heard.
 */
class MqttReadings
{
public:
    /** Late telegrams are left out; one that is older than this, in seconds, is a clock put back.
     */
    static constexpr qint64 latest = 3600;
    /** A time so far ahead of the clock of the computer is none, in seconds. */
    static constexpr qint64 farthestAhead = 86400;
    /** A power that is older is not that of now, in seconds. */
    static constexpr qint64 oldestPower = 60;

    /** Hears of all that belongs together. */
    using Listener = std::function<void(const P1Telegram &, const HousePower &)>;

    explicit MqttReadings(const MqttMapping &mapping, Listener listener);

    /** Told once, before take(): what counters of power go on from. */
    void goOnFrom(const Readings::Household &household);

    /** Takes a message that came at @p now, in seconds since 1970-01-01 UTC. */
    void take(const MqttMessage &message, qint64 now);
    /** What came so far is all for the moment. */
    void complete(qint64 now);
    /** As complete(), when nothing more has come: whatever comes next begins anew. */
    void pause(qint64 now);
    /** The times that the mapping tells do not come: values count when they come. */
    void goWithoutTimes();
    /** The connection was lost; all that is retained will come again. */
    void forget();

    /** Whether the publisher has not told that it is offline. */
    bool isOnline() const { return online.value_or(true); }
    /** Whether anything that is mapped was heard, since the last forget(). */
    bool isHeard() const { return heard; }
    /** Messages that could not be read so far, and the last of them in words. */
    int unreadableCount() const { return unreadables; }
    QString lastUnreadable() const { return unreadable; }

private:
    /** What a source told. */
    struct Told
    {
        std::optional<double> value; ///< as it was sent
        std::optional<double> factor;
        std::optional<qint64> time; ///< of its own
        bool live = false;
        bool fresh = false; ///< since readings were made of it
        bool freshTime = false;
    };
    /** What is known of a power. */
    struct Flow
    {
        bool told = false; ///< be it that it is unknown
        std::optional<double> watts;
    };

    void takeStatus(const MqttMessage &message, qint64 now);
    void takeTime(const MqttPlace &place, const MqttMessage &message, qint64 now);
    void takeValue(const MqttSource &source, Told &told, const MqttMessage &message,
                   bool isRegister);
    void takeOwnTime(const MqttSource &source, Told &told, const MqttMessage &message, qint64 now);
    void takeUnit(const MqttSource &source, MqttUnit unit, Told &told, const MqttMessage &message);
    void note(const MqttMessage &message, const QString &what);
    std::optional<qint64> timeIn(const MqttPlace &place, const MqttMessage &message, qint64 now);
    bool isTimed() const { return !mapping.times.empty() && !withoutTimes; }
    bool isCurrent(const Told &told, bool isPower) const;
    std::size_t chosen(std::size_t value) const;
    void addReading(P1Telegram &telegram, std::size_t value);
    void addCounters(P1Telegram &telegram, qint64 instant);
    Flow flowOf(MqttPower power) const;
    Flow gridFlow() const;
    bool hasRegister(Readings::Quantity quantity) const;

    const MqttMapping mapping;
    const Listener listener;
    std::vector<std::vector<Told>> tellings; ///< of the values and their sources
    std::map<Readings::Quantity, PowerCounter> counters;
    std::optional<bool> online;
    std::optional<qint64> time;
    std::optional<qint64> lastInstant;
    bool hasTime = false; ///< the time is that of what comes now
    bool heardLive = false;
    bool heardLiveTime = false;
    bool heard = false;
    bool pending = false;
    bool withoutTimes = false;
    bool isNoted = false; ///< that the message cannot be read
    int unreadables = 0;
    QString unreadable;
};

#endif
