// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_PROFILE_H
#define READINGS_PROFILE_H

#include "quantity.h"
#include "timestamp.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>
#include <vector>

namespace Readings {

/** What a column of a file tells. Columns that no profile names are not looked at. */
struct Column
{
    enum class Role {
        /** The reading of a meter that counts up. */
        Counter,
        /** What was used in the interval of the row. */
        Amount,
        /** The mean power over the interval; of GridImport and GridExport only. The factor is to W.
         */
        Power,
    };
    enum class EmptyCell {
        /** Nothing is known. */
        Missing,
        /** Nothing was used, if another such column of the same quantity has a value in this row.
         */
        OtherTariffApplies,
    };

    QByteArray name;
    Role role;
    Register meterRegister;
    /** A value times this is in the unit of the quantity. */
    double factor = 1.0;
    EmptyCell emptyCell = EmptyCell::Missing;
};

/** A kind of file: how it is recognised, and what its rows mean. */
struct Profile
{
    enum class Recognition {
        /** The first line is @p header to the letter. */
        WholeHeader,
        /**
         * The first column is @p timeColumn, and all others are named in @p columns, in any order
         * and
         * any choice.
         */
        TimeColumn,
    };
    /**
     * The instant that a row's time stamp is: its interval's first, or its last. A counter is
     * always read at the end of the interval; one that is read at the stamp has IntervalEnd.
     */
    enum class Stamp { IntervalStart, IntervalEnd };

    QString name;
    Recognition recognition;
    QByteArray header;
    char separator;
    char decimalSign;
    QByteArray timeColumn;
    TimeFormat timeFormat;
    /** The IANA id of the household's time zone; empty for that of the system. */
    QByteArray timeZone;
    Stamp stamp;
    /** The length of a row's interval in seconds; 0 where nothing depends on it. */
    qint64 step;
    std::vector<Column> columns;
    /** The column that tells the length of a row's interval in seconds, if it is not @p step. */
    QByteArray lengthColumn = {};
    /** The column whose first cell that is not empty tells the IANA id of the time zone. */
    QByteArray zoneColumn = {};
};

/** All profiles: one row for each kind of file that can be read. */
const std::vector<Profile> &profiles();

/** How the columns of a file with a certain first line are to be read. */
struct HeaderMatch
{
    struct UsedColumn
    {
        std::size_t field;
        const Column *column;
    };

    /** Null if the file cannot be read; then @p problem says why in English. */
    const Profile *profile = nullptr;
    QString problem;
    std::size_t fieldCount = 0;
    std::size_t timeField = 0;
    std::optional<std::size_t> lengthField;
    std::optional<std::size_t> zoneField;
    std::vector<UsedColumn> columns;
};

/** Finds the profile for a file's first line. */
HeaderMatch matchHeader(std::string_view header);

} // namespace Readings

#endif
