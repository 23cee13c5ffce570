// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historyfile.h"

#include "profile.h"
#include "thinning.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>
#include <algorithm>
#include <cmath>

using Readings::Column;
using Readings::Household;
using Readings::Meter;
using Readings::Reading;
using Readings::Register;

using Trouble = HistoryFile::Trouble;

namespace {

constexpr double thousandths = 1000.0;
constexpr int busyTimeout = 5000; // ms, while another program writes

/** The codes of SQLite that mean that the file is not what it should be. */
bool isDamage(const QSqlError &error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    constexpr int corrupt = 11;
    constexpr int notADatabase = 26;
    // A table or a column that is missing.
    constexpr int plainError = 1;
    return code == corrupt || code == notADatabase || code == plainError;
}

/** What makes a file of @p version one of the next; 0 is that of an empty file. */
std::vector<const char *> stepsFrom(int version)
{
    // Ordered by time, so that what belongs to one transaction comes to lie in one page.
    if (version == 0) {
        return {"CREATE TABLE register (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)",
                "CREATE TABLE reading (instant INTEGER NOT NULL, register INTEGER NOT NULL, "
                "value INTEGER NOT NULL, PRIMARY KEY (instant, register)) WITHOUT ROWID",
                "CREATE TABLE state (thinned_until INTEGER NOT NULL)",
                "INSERT INTO state VALUES (0)"};
    }
    return {"CREATE TABLE amount (instant INTEGER NOT NULL, seconds INTEGER NOT NULL, "
            "register INTEGER NOT NULL, value INTEGER NOT NULL, "
            "PRIMARY KEY (instant, register, seconds)) WITHOUT ROWID"};
}

const std::vector<Column> &columns()
{
    return Readings::profiles().front().columns;
}

QString nameOf(const Register &meterRegister)
{
    const auto found =
        std::find_if(columns().cbegin(), columns().cend(),
                     [&](const Column &column) { return column.meterRegister == meterRegister; });
    return found == columns().cend() ? QString() : QString::fromLatin1(found->name);
}

std::optional<Register> registerNamed(const QString &name)
{
    const auto found =
        std::find_if(columns().cbegin(), columns().cend(),
                     [&](const Column &column) { return name == QLatin1String(column.name); });
    return found == columns().cend() ? std::nullopt : std::optional<Register>(found->meterRegister);
}

} // namespace

HistoryFile::HistoryFile() : connection(QUuid::createUuid().toString(QUuid::Id128)) { }

HistoryFile::~HistoryFile()
{
    close();
}

Trouble HistoryFile::open(const QString &path)
{
    close();
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    database.setDatabaseName(path);
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeout));
    if (!database.open()) {
        return fail(Trouble::Unusable, database.lastError().text());
    }
    qint64 found = 0;
    Trouble trouble = number(QStringLiteral("PRAGMA user_version"), &found);
    if (trouble != Trouble::None) {
        return trouble;
    }
    if (found > version) {
        return fail(Trouble::Newer,
                    QCoreApplication::translate(
                        "HistoryFile", "it has version %1, and %2 is the newest known here")
                        .arg(found)
                        .arg(version));
    }
    // With a write-ahead log a transaction writes the one page that it adds to, and small pages
    // wear a card less. FULL: what was committed outlives a power cut. What is read is read once.
    for (const char *setting : {"PRAGMA page_size = 1024", "PRAGMA journal_mode = WAL",
                                "PRAGMA synchronous = FULL", "PRAGMA cache_size = -256"}) {
        trouble = execute(QLatin1String(setting));
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    if (found < version) {
        trouble = inTransaction([this] { return bringUpToDate(); });
    }
    return trouble == Trouble::None ? learnRegisters() : trouble;
}

void HistoryFile::close()
{
    if (!database.isValid()) {
        return;
    }
    database.close();
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection);
    idOf.clear();
}

Trouble HistoryFile::read(Household *household)
{
    std::map<int, Meter *> meters;
    for (const auto &[meterRegister, id] : idOf) {
        meters[id] = &household->meter(meterRegister, Meter::Kind::Counter);
    }
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT instant, register, value FROM reading"))) {
        return fail(query);
    }
    while (query.next()) {
        const auto meter = meters.find(query.value(1).toInt());
        if (meter != meters.end()) {
            meter->second->addReading(query.value(0).toLongLong(),
                                      double(query.value(2).toLongLong()) / thousandths);
        }
    }
    return query.lastError().isValid() ? fail(query) : readAmounts(meters);
}

Trouble HistoryFile::readAmounts(const std::map<int, Meter *> &meters)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT instant, seconds, register, value FROM amount"))) {
        return fail(query);
    }
    while (query.next()) {
        const auto meter = meters.find(query.value(2).toInt());
        if (meter != meters.end()) {
            const qint64 end = query.value(0).toLongLong();
            meter->second->addAmount({end - query.value(1).toLongLong(), end},
                                     double(query.value(3).toLongLong()) / thousandths);
        }
    }
    return query.lastError().isValid() ? fail(query) : Trouble::None;
}

Trouble HistoryFile::write(const std::vector<KeptReading> &readings, Known known)
{
    added = 0;
    return readings.empty() ? Trouble::None
                            : inTransaction([&] { return insert(readings, known); });
}

Trouble HistoryFile::writeAmounts(const std::vector<KeptAmount> &amounts)
{
    added = 0;
    return amounts.empty() ? Trouble::None : inTransaction([&] { return insert(amounts); });
}

Trouble HistoryFile::thin(qint64 before, qint64 step)
{
    qint64 from = 0;
    const Trouble trouble =
        number(QStringLiteral("SELECT coalesce((SELECT thinned_until FROM state), 0)"), &from);
    const qint64 to = before - before % step;
    if (trouble != Trouble::None || to <= from) {
        return trouble;
    }
    return inTransaction([&] {
        for (const auto &[meterRegister, id] : idOf) {
            const double most = Readings::quantityInfo(meterRegister.quantity).mostPerHour;
            const Trouble found = thinRegister(id, most, from, to, step);
            if (found != Trouble::None) {
                return found;
            }
        }
        return execute(QStringLiteral("UPDATE state SET thinned_until = %1").arg(to));
    });
}

Trouble HistoryFile::fail(Trouble trouble, const QString &why)
{
    lastReason = why;
    return trouble;
}

Trouble HistoryFile::fail(const QSqlQuery &query)
{
    const QSqlError error = query.lastError();
    return fail(isDamage(error) ? Trouble::Damaged : Trouble::Unusable, error.text());
}

Trouble HistoryFile::execute(const QString &statement)
{
    QSqlQuery query(database);
    return query.exec(statement) ? Trouble::None : fail(query);
}

Trouble HistoryFile::number(const QString &statement, qint64 *answer)
{
    QSqlQuery query(database);
    if (!query.exec(statement) || !query.next()) {
        return fail(query);
    }
    *answer = query.value(0).toLongLong();
    return Trouble::None;
}

Trouble HistoryFile::bringUpToDate()
{
    // Another program may have been faster; now it cannot be.
    qint64 found = 0;
    Trouble trouble = number(QStringLiteral("PRAGMA user_version"), &found);
    for (; trouble == Trouble::None && found < version; ++found) {
        for (const char *statement : stepsFrom(int(found))) {
            if (trouble == Trouble::None) {
                trouble = execute(QLatin1String(statement));
            }
        }
    }
    return trouble == Trouble::None
        ? execute(QStringLiteral("PRAGMA user_version = %1").arg(version))
        : trouble;
}

Trouble HistoryFile::learnRegisters()
{
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("SELECT id, name FROM register"))) {
        return fail(query);
    }
    while (query.next()) {
        if (const std::optional<Register> known = registerNamed(query.value(1).toString())) {
            idOf[*known] = query.value(0).toInt();
        }
    }
    return query.lastError().isValid() ? fail(query) : Trouble::None;
}

Trouble HistoryFile::addRegister(const Register &meterRegister)
{
    QSqlQuery query(database);
    query.prepare(QStringLiteral("INSERT OR IGNORE INTO register (name) VALUES (?)"));
    query.addBindValue(nameOf(meterRegister));
    if (!query.exec()) {
        return fail(query);
    }
    // Another program may have been faster.
    return learnRegisters();
}

Trouble HistoryFile::findRegister(const Register &meterRegister, int *id)
{
    if (idOf.find(meterRegister) == idOf.end()) {
        const Trouble trouble = addRegister(meterRegister);
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    *id = idOf[meterRegister];
    return Trouble::None;
}

template <typename Work>
Trouble HistoryFile::inTransaction(Work work)
{
    // IMMEDIATE: a second writer waits at the beginning, where waiting is possible.
    Trouble trouble = execute(QStringLiteral("BEGIN IMMEDIATE"));
    if (trouble != Trouble::None) {
        return trouble;
    }
    trouble = work();
    if (trouble == Trouble::None) {
        trouble = execute(QStringLiteral("COMMIT"));
    }
    if (trouble != Trouble::None) {
        const QString why = lastReason;
        execute(QStringLiteral("ROLLBACK"));
        idOf.clear();
        learnRegisters();
        lastReason = why;
    }
    return trouble;
}

Trouble HistoryFile::insert(const std::vector<KeptReading> &readings, Known known)
{
    QSqlQuery query(database);
    if (!query.prepare(QStringLiteral("INSERT OR %1 INTO reading VALUES (?, ?, ?)")
                           .arg(known == Known::Holds ? QStringLiteral("IGNORE")
                                                      : QStringLiteral("REPLACE")))) {
        return fail(query);
    }
    for (const KeptReading &reading : readings) {
        int id = 0;
        Trouble trouble = findRegister(reading.meterRegister, &id);
        if (trouble == Trouble::None) {
            query.bindValue(0, reading.instant);
            query.bindValue(1, id);
            query.bindValue(2, qint64(std::llround(reading.value * thousandths)));
            trouble = insert(&query);
        }
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    return Trouble::None;
}

Trouble HistoryFile::insert(const std::vector<KeptAmount> &amounts)
{
    QSqlQuery query(database);
    if (!query.prepare(QStringLiteral("INSERT OR IGNORE INTO amount VALUES (?, ?, ?, ?)"))) {
        return fail(query);
    }
    for (const KeptAmount &amount : amounts) {
        int id = 0;
        Trouble trouble = findRegister(amount.meterRegister, &id);
        if (trouble == Trouble::None) {
            query.bindValue(0, amount.interval.to);
            query.bindValue(1, amount.interval.seconds());
            query.bindValue(2, id);
            query.bindValue(3, qint64(std::llround(amount.amount * thousandths)));
            trouble = insert(&query);
        }
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    return Trouble::None;
}

Trouble HistoryFile::insert(QSqlQuery *query)
{
    if (!query->exec()) {
        return fail(*query);
    }
    added += query->numRowsAffected();
    return Trouble::None;
}

Trouble HistoryFile::thinRegister(int id, double mostPerHour, qint64 from, qint64 to, qint64 step)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT instant, value FROM reading WHERE instant BETWEEN ? AND ? "
                                 "AND register = ? ORDER BY instant"));
    query.addBindValue(from);
    query.addBindValue(to);
    query.addBindValue(id);
    if (!query.exec()) {
        return fail(query);
    }
    std::vector<Reading> readings;
    while (query.next()) {
        readings.push_back(
            {query.value(0).toLongLong(), double(query.value(1).toLongLong()) / thousandths});
    }
    if (query.lastError().isValid()) {
        return fail(query);
    }

    const std::vector<bool> isDispensable = Readings::dispensable(readings, step, mostPerHour);
    query.prepare(QStringLiteral("DELETE FROM reading WHERE instant = ? AND register = ?"));
    query.bindValue(1, id);
    for (std::size_t i = 0; i < readings.size(); ++i) {
        if (!isDispensable[i]) {
            continue;
        }
        query.bindValue(0, readings[i].instant);
        if (!query.exec()) {
            return fail(query);
        }
    }
    return Trouble::None;
}
