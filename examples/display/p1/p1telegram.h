// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1TELEGRAM_H
#define P1TELEGRAM_H

#include "quantity.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <optional>
#include <vector>

/** One reading of a counter in a telegram. */
struct P1Reading
{
    Readings::Register meterRegister;
    /** The counter, in the unit of the quantity: kWh, m³ or GJ. */
    double value = 0.0;
    /**
     * When a meter on the M-Bus (gas, water, heat) was read, in seconds since 1970-01-01 UTC; that
     * is minutes to an hour before the telegram. Empty for electricity, which is read as the
     * telegram is sent.
     */
    std::optional<qint64> instant;
};

/**
 * What a smart meter tells about once in one to ten seconds.
 *
 * Either @p problem says why the telegram cannot be used, and then nothing else is in it but its
 * identification and checksum, or everything in it is to be trusted.
 */
struct P1Telegram
{
    enum class Version {
        Dsmr22,
        Dsmr30,
        Dsmr4,
        Dsmr5,
        Belgian,
        Other, ///< not told, or newer than the ones known here
    };
    enum class Checksum {
        None, ///< as in every telegram of the versions 2.2 and 3.0
        Right,
        Wrong,
    };

    /** In English; empty for a good telegram. */
    QString problem;
    /** Of the meter, as it stands behind the '/'. */
    QByteArray identification;
    Checksum checksum = Checksum::None;

    /**
     * The versions 2.2 and 3.0 do not tell which they are; they are told apart by the digits of the
     * power, four before the point in 2.2.
     */
    Version version = Version::Other;
    /** As the meter writes it, "42" or "50217"; empty in versions 2.2 and 3.0. */
    QByteArray versionCode;
    /**
     * When it was sent, in seconds since 1970-01-01 UTC. Empty in versions 2.2 and 3.0, and while
     * the meter's clock is not set.
     */
    std::optional<qint64> instant;
    /** What the house takes from the grid now, in W; less than 0 while it gives. */
    std::optional<int> power;
    /** At most one for each register. */
    std::vector<P1Reading> readings;

    bool isGood() const { return problem.isEmpty(); }
    /** The reading of a register, or null; it lives as long as the telegram is not changed. */
    const P1Reading *reading(const Readings::Register &meterRegister) const;
};

Q_DECLARE_METATYPE(P1Telegram)

/** The version in words for people: "2.2", "4.2", "5.0", "Belgian 50217", "unknown". */
QString p1VersionName(const P1Telegram &telegram);

/**
 * Reads a telegram, from the '/' to the '!' and the checksum behind it.
 *
 * It is damaged if the checksum is wrong, and also if there is none where it should be: only
 * versions 2.2 and 3.0, which have neither a version nor a time of their own, come without. In
 * these a line that cannot be read is taken for damage too. It is foreign if there is nothing in it
 * that is known here.
 *
 * The tariffs are 1 = low and 2 = normal in the Netherlands, 1 = normal (day) and 2 = low (night)
 * in Belgium; the total of a direction counts where no tariff of it is told. Gas, water and heat
 * are found by the kind of the device, on whatever channel it is; a channel without a device, or
 * whose device was never read, gives no reading. Where two channels have devices of one kind, the
 * lowest one counts that was read within a day before the latest: the other is a meter that has
 * been replaced.
 */
P1Telegram parseP1Telegram(const QByteArray &bytes);

#endif
