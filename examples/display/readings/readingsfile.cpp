// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingsfile.h"

#include "csvreader.h"
#include "problemlist.h"
#include "profile.h"
#include "wallclock.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace Readings {

namespace {

using Kind = ProblemList::Kind;

// No meter has so many digits; and sums of such numbers stay far from the end of what a double
// holds.
constexpr double mostOnAMeter = 1e12;
constexpr double empty = std::numeric_limits<double>::quiet_NaN();
constexpr int lineBits = 32;

qint64 tagOf(int file, int line)
{
    return (static_cast<qint64>(file) << lineBits) + line;
}

int fileOf(qint64 tag)
{
    return static_cast<int>(tag >> lineBits);
}

int lineOf(qint64 tag)
{
    return static_cast<int>(tag & ((qint64(1) << lineBits) - 1));
}

Meter::Kind kindOf(const Column &column)
{
    return column.role == Column::Role::Counter ? Meter::Kind::Counter : Meter::Kind::Amounts;
}

/** Reads one file into a household. */
class FileLoader
{
public:
    FileLoader(const QString &path, int number, Household &into, ProblemList &list)
        : reader(path), file(number), household(into), problems(list)
    {
    }

    /** Returns false if the file is none that can be read. */
    bool load();

    QTimeZone timeZone() const { return zone; }
    /** The file says by itself in which time zone the house stands. */
    bool knowsTimeZone() const { return zoneIsTold || !header.profile->timeZone.isEmpty(); }

private:
    struct Row
    {
        /** Wall-clock seconds at first, in profiles with such a clock; then UTC. */
        qint64 time;
        int line;
        qint64 length;
        bool leftOut = false;
    };

    bool readHeader();
    void readRows();
    void readRow(std::string_view line);
    bool readValues();
    std::optional<qint64> readLength();
    bool readZone();
    void fillOtherTariffs();
    void resolveWallClock();
    void resolveDoubledTimes(const std::vector<std::size_t> &doubled, const WallClock &clock);
    void feed();
    void feedColumn(std::size_t column);
    void feedPower();
    QString obstacleFor(const Column &column) const;
    Interval intervalOf(const Row &row) const;
    double value(std::size_t row, std::size_t column) const;
    void broken(const QString &what);

    CsvReader reader;
    int file;
    Household &household;
    ProblemList &problems;

    HeaderMatch header;
    QTimeZone zone;
    bool zoneIsTold = false;
    std::vector<std::string_view> fields;
    std::vector<double> rowValues;
    std::vector<Row> rows;
    /** The values of all rows, one after the other; not a number where a cell is empty. */
    std::vector<double> values;
};

bool FileLoader::load()
{
    const QString obstacle = reader.open();
    if (!obstacle.isEmpty()) {
        problems.add(file, 0, Kind::File, obstacle);
        return false;
    }
    if (!readHeader()) {
        return false;
    }
    readRows();
    const QString error = reader.readError();
    if (!error.isEmpty()) {
        problems.add(file, reader.lineNumber() + 1, Kind::File,
                     QCoreApplication::translate("Readings", "reading stopped: %1").arg(error));
    }
    if (rows.empty()) {
        problems.add(file, 0, Kind::File,
                     QCoreApplication::translate("Readings", "there are no readings in it"));
    }
    if (isWallClock(header.profile->timeFormat)) {
        resolveWallClock();
    }
    feed();
    return true;
}

bool FileLoader::readHeader()
{
    if (!reader.nextLine()) {
        const QString error = reader.readError();
        problems.add(
            file, 0, Kind::File,
            error.isEmpty()
                ? QCoreApplication::translate("Readings", "the file is empty")
                : QCoreApplication::translate("Readings", "cannot be read: %1").arg(error));
        return false;
    }
    header = matchHeader(reader.line());
    if (!header.profile) {
        problems.add(file, reader.lineNumber(), Kind::File, header.problem);
        return false;
    }
    const QByteArray &id = header.profile->timeZone;
    zone = id.isEmpty() ? QTimeZone::systemTimeZone() : QTimeZone(id);
    if (!zone.isValid()) {
        // The system's zone is none when its TZ names one that nobody knows.
        const QByteArray named = id.isEmpty() ? qgetenv("TZ") : id;
        if (!header.zoneField) {
            problems.add(file, 0, Kind::File,
                         QCoreApplication::translate(
                             "Readings", "this system does not know the time zone %1; UTC is used")
                             .arg(QString::fromUtf8(named)));
        }
        zone = QTimeZone::utc();
    }
    return true;
}

void FileLoader::readRows()
{
    while (reader.nextLine()) {
        if (reader.isTooLong()) {
            broken(QCoreApplication::translate("Readings", "the line is too long"));
        } else if (!trimmed(reader.line()).empty()) {
            readRow(reader.line());
        }
    }
}

void FileLoader::readRow(std::string_view line)
{
    const Profile &profile = *header.profile;
    if (!CsvReader::split(line, profile.separator, fields)) {
        broken(
            QCoreApplication::translate("Readings", "a quote is not closed where its field ends"));
        return;
    }
    if (fields.size() != header.fieldCount) {
        broken(QCoreApplication::translate("Readings", "the number of fields is %1, not %2")
                   .arg(fields.size())
                   .arg(header.fieldCount));
        return;
    }
    const std::string_view stamp = trimmed(fields[header.timeField]);
    const std::optional<qint64> time = parseStamp(stamp, profile.timeFormat);
    if (!time) {
        broken(QCoreApplication::translate("Readings", "bad time stamp %1").arg(quoted(stamp)));
        return;
    }
    const std::optional<qint64> length = readLength();
    if (!length || !readZone() || !readValues()) {
        return;
    }
    fillOtherTariffs();
    rows.push_back({*time, reader.lineNumber(), *length});
    values.insert(values.end(), rowValues.cbegin(), rowValues.cend());
}

std::optional<qint64> FileLoader::readLength()
{
    if (!header.lengthField || trimmed(fields[*header.lengthField]).empty()) {
        return header.profile->step;
    }
    constexpr double longest = 366.0 * 86400.0;
    const std::string_view text = trimmed(fields[*header.lengthField]);
    const std::optional<double> seconds = parseNumber(text, header.profile->decimalSign);
    if (!seconds || *seconds < 1.0 || *seconds > longest || std::floor(*seconds) != *seconds) {
        broken(QCoreApplication::translate("Readings", "bad length %1 of an interval")
                   .arg(quoted(text)));
        return std::nullopt;
    }
    return qint64(*seconds);
}

bool FileLoader::readZone()
{
    if (zoneIsTold || !header.zoneField || trimmed(fields[*header.zoneField]).empty()) {
        return true;
    }
    const std::string_view text = trimmed(fields[*header.zoneField]);
    const QTimeZone told(QByteArray(text.data(), int(text.size())));
    if (!told.isValid()) {
        broken(QCoreApplication::translate("Readings", "unknown time zone %1").arg(quoted(text)));
        return false;
    }
    zone = told;
    zoneIsTold = true;
    return true;
}

bool FileLoader::readValues()
{
    rowValues.clear();
    for (const HeaderMatch::UsedColumn &used : header.columns) {
        const std::string_view text = trimmed(fields[used.field]);
        if (text.empty()) {
            rowValues.push_back(empty);
            continue;
        }
        const std::optional<double> number = parseNumber(text, header.profile->decimalSign);
        if (!number || *number < 0.0 || *number > mostOnAMeter) {
            broken(QCoreApplication::translate("Readings", "bad number %1 in column \"%2\"")
                       .arg(quoted(text), QString::fromUtf8(used.column->name)));
            return false;
        }
        rowValues.push_back(*number * used.column->factor);
    }
    return true;
}

void FileLoader::fillOtherTariffs()
{
    const auto isTariff = [this](std::size_t column, Quantity quantity) {
        const Column &candidate = *header.columns[column].column;
        return candidate.emptyCell == Column::EmptyCell::OtherTariffApplies
            && candidate.meterRegister.quantity == quantity;
    };
    std::set<Quantity> known;
    for (std::size_t column = 0; column < rowValues.size(); ++column) {
        const Quantity quantity = header.columns[column].column->meterRegister.quantity;
        if (!std::isnan(rowValues[column]) && isTariff(column, quantity)) {
            known.insert(quantity);
        }
    }
    for (std::size_t column = 0; column < rowValues.size(); ++column) {
        const Quantity quantity = header.columns[column].column->meterRegister.quantity;
        if (std::isnan(rowValues[column]) && isTariff(column, quantity)
            && known.count(quantity) > 0) {
            rowValues[column] = 0.0;
        }
    }
}

void FileLoader::resolveWallClock()
{
    constexpr qint64 halfDay = 43200;
    const WallClock clock(zone);
    // One list for each night in which the clock is put back, so that a file may hold many years.
    std::map<qint64, std::vector<std::size_t>> doubledTimes;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        Row &row = rows[index];
        const WallClock::Moment moment = clock.moment(row.time);
        if (moment.occurrences == 2) {
            doubledTimes[(row.time + halfDay) / (2 * halfDay)].push_back(index);
            continue;
        }
        if (moment.occurrences == 0) {
            problems.add(file, row.line, Kind::SkippedTime,
                         QCoreApplication::translate(
                             "Readings", "a time that the clock in %1 skips; row left out")
                             .arg(QString::fromUtf8(zone.id())));
            row.leftOut = true;
        }
        row.time = moment.earlier;
    }
    for (const auto &night : doubledTimes) {
        resolveDoubledTimes(night.second, clock);
    }
}

void FileLoader::resolveDoubledTimes(const std::vector<std::size_t> &doubled,
                                     const WallClock &clock)
{
    std::map<qint64, int> occurrences;
    for (const std::size_t index : doubled) {
        ++occurrences[rows[index].time];
    }
    const bool bothThere = std::any_of(occurrences.cbegin(), occurrences.cend(),
                                       [](const auto &entry) { return entry.second > 1; });
    std::map<qint64, int> seen;
    bool putBack = !bothThere;
    qint64 previous = std::numeric_limits<qint64>::min();
    for (const std::size_t index : doubled) {
        Row &row = rows[index];
        putBack = putBack || row.time <= previous;
        previous = row.time;
        const bool isFirst = occurrences[row.time] > 1 ? seen[row.time]++ == 0 : !putBack;
        const WallClock::Moment moment = clock.moment(row.time);
        row.time = isFirst ? moment.earlier : moment.later;
    }
}

void FileLoader::feed()
{
    std::map<QString, QStringList> leftOut;
    for (std::size_t column = 0; column < header.columns.size(); ++column) {
        const Column &what = *header.columns[column].column;
        if (what.role == Column::Role::Power) {
            continue;
        }
        const QString obstacle = obstacleFor(what);
        if (obstacle.isEmpty()) {
            feedColumn(column);
        } else {
            leftOut[obstacle].append(QString::fromUtf8(what.name));
        }
    }
    for (const auto &entry : leftOut) {
        problems.add(file, 1, Kind::File,
                     QCoreApplication::translate("Readings", "left out: %1; %2")
                         .arg(entry.second.join(QStringLiteral(", ")), entry.first));
    }
    feedPower();
}

// The registers of two ways of counting the same must not be added up. Returns what is in the way.
QString FileLoader::obstacleFor(const Column &column) const
{
    const Register &wanted = column.meterRegister;
    for (const auto &entry : household.meters) {
        const Register &known = entry.first;
        const bool sameTariffs =
            (known.tariff == Tariff::Single) == (wanted.tariff == Tariff::Single);
        if (known.quantity != wanted.quantity || sameTariffs) {
            continue;
        }
        return QCoreApplication::translate("Readings", "%1 is known already %2")
            .arg(quantityName(wanted.quantity),
                 known.tariff == Tariff::Single
                     ? QCoreApplication::translate("Readings", "by one register")
                     : QCoreApplication::translate("Readings", "by tariff"));
    }
    return {};
}

void FileLoader::feedColumn(std::size_t column)
{
    const Column &what = *header.columns[column].column;
    const bool isCounter = kindOf(what) == Meter::Kind::Counter;
    Meter &meter = household.meter(what.meterRegister, kindOf(what));
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const Row &row = rows[index];
        const double number = value(index, column);
        if (row.leftOut || std::isnan(number)) {
            continue;
        }
        if (isCounter) {
            meter.addReading(intervalOf(row).to, number, tagOf(file, row.line));
        } else {
            meter.addAmount(intervalOf(row), number, tagOf(file, row.line));
        }
    }
}

void FileLoader::feedPower()
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        double watts = 0.0;
        bool hasPower = false;
        for (std::size_t column = 0; column < header.columns.size(); ++column) {
            const Column &what = *header.columns[column].column;
            if (what.role != Column::Role::Power) {
                continue;
            }
            hasPower = true;
            const bool isImport = what.meterRegister.quantity == Quantity::GridImport;
            watts += isImport ? value(index, column) : -value(index, column);
        }
        if (!hasPower) {
            return;
        }
        const qint64 end = intervalOf(rows[index]).to;
        const bool isNewest = !household.measuredPower || end > household.measuredPower->instant;
        if (!rows[index].leftOut && !std::isnan(watts) && isNewest) {
            household.measuredPower = GridPower {watts, end};
        }
    }
}

Interval FileLoader::intervalOf(const Row &row) const
{
    const Profile &profile = *header.profile;
    if (profile.stamp == Profile::Stamp::IntervalStart) {
        return {row.time, row.time + row.length};
    }
    return {row.time - row.length, row.time};
}

double FileLoader::value(std::size_t row, std::size_t column) const
{
    return values[row * header.columns.size() + column];
}

void FileLoader::broken(const QString &what)
{
    problems.add(file, reader.lineNumber(), Kind::BrokenRow,
                 what + QCoreApplication::translate("Readings", "; row left out"));
}

QString textOf(const Fault &fault, const Register &meterRegister)
{
    QString subject = registerName(meterRegister) + QLatin1Char(' ')
        + QString::number(fault.value, 'g', 12) + QLatin1Char(' ');
    switch (fault.kind) {
    case Fault::Kind::Contradiction:
        return subject
            + QCoreApplication::translate("Readings",
                                          "contradicts an earlier value for this time; left out");
    case Fault::Kind::Overlap:
        return subject
            + QCoreApplication::translate("Readings",
                                          "is for a part of an interval known already; left out");
    case Fault::Kind::StepBack:
        return subject
            + QCoreApplication::translate("Readings",
                                          "is less than before, and the next is not; left out");
    case Fault::Kind::Leap:
        return subject
            + QCoreApplication::translate("Readings", "is more than what follows; left out");
    case Fault::Kind::Break:
        return subject
            + QCoreApplication::translate("Readings",
                                          "does not follow from before: another meter or a reset");
    case Fault::Kind::Undecided:
        return subject
            + QCoreApplication::translate(
                   "Readings", "does not follow from before; left out until more is known");
    case Fault::Kind::TooMuch:
        return subject
            + QCoreApplication::translate("Readings", "is more than a household can use; left out");
    }
    return subject;
}

Kind kindOf(Fault::Kind kind)
{
    const bool isDouble = kind == Fault::Kind::Contradiction || kind == Fault::Kind::Overlap;
    return isDouble ? Kind::Contradiction : Kind::WrongReading;
}

void tellFaults(const Household &household, ProblemList &problems)
{
    struct Told
    {
        Fault fault;
        Register meterRegister;
    };
    std::vector<Told> all;
    for (const auto &entry : household.meters) {
        for (const Fault &fault : entry.second.faults()) {
            all.push_back({fault, entry.first});
        }
    }
    // The first few that are told are to be the first in the file.
    std::stable_sort(all.begin(), all.end(), [](const Told &left, const Told &right) {
        return left.fault.tag < right.fault.tag;
    });
    for (const Told &told : all) {
        problems.add(fileOf(told.fault.tag), lineOf(told.fault.tag), kindOf(told.fault.kind),
                     textOf(told.fault, told.meterRegister));
    }
}

} // namespace

Household loadReadings(const QStringList &files)
{
    Household household;
    ProblemList problems;
    bool zoneIsSet = false;
    for (const QString &path : files) {
        const int file = problems.addFile(path);
        FileLoader loader(path, file, household, problems);
        if (!loader.load()) {
            continue;
        }
        if (!zoneIsSet) {
            household.timeZone = loader.timeZone();
            zoneIsSet = true;
        } else if (loader.knowsTimeZone() && loader.timeZone().id() != household.timeZone.id()) {
            problems.add(file, 0, Kind::File,
                         QCoreApplication::translate(
                             "Readings",
                             "is of the time zone %1; its readings are shown by the clock "
                             "in %2")
                             .arg(QString::fromUtf8(loader.timeZone().id()),
                                  QString::fromUtf8(household.timeZone.id())));
        }
    }
    tellFaults(household, problems);
    household.problems = problems.lines();
    return household;
}

} // namespace Readings
