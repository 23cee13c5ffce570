// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historyfile.h"

#include "profile.h"
#include "thinning.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
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

QString quoted(QString name)
{
    return QLatin1Char('"') + name.replace(QLatin1Char('"'), QLatin1String("\"\""))
        + QLatin1Char('"');
}

qint64 inThousandths(double value)
{
    return std::llround(value * thousandths);
}

double fromThousandths(const QVariant &value)
{
    return double(value.toLongLong()) / thousandths;
}

QStringList newTables()
{
    // Ordered by time, so that what belongs to one transaction comes to lie in one page.
    return {QStringLiteral("CREATE TABLE reading (instant INTEGER PRIMARY KEY)"),
            QStringLiteral("CREATE TABLE amount (instant INTEGER NOT NULL, seconds INTEGER NOT "
                           "NULL, PRIMARY KEY (instant, seconds)) WITHOUT ROWID")};
}

QStringList newColumn(const QString &name)
{
    const QString statement = QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 INTEGER");
    return {statement.arg(QStringLiteral("reading"), quoted(name)),
            statement.arg(QStringLiteral("amount"), quoted(name))};
}

/** What makes a file of version 2 one of version 3; @p registers are those of the file, by id. */
QStringList stepsToColumns(const std::map<int, QString> &registers)
{
    QStringList steps {QStringLiteral("ALTER TABLE reading RENAME TO old_reading"),
                       QStringLiteral("ALTER TABLE amount RENAME TO old_amount")};
    steps += newTables();
    QString values;
    for (const auto &[id, name] : registers) {
        steps += newColumn(name);
        values += QStringLiteral(", max(CASE register WHEN %1 THEN value END)").arg(id);
    }
    steps << QStringLiteral("INSERT INTO reading SELECT instant%1 FROM old_reading "
                            "GROUP BY instant")
                 .arg(values)
          << QStringLiteral("INSERT INTO amount SELECT instant, seconds%1 FROM old_amount "
                            "GROUP BY instant, seconds")
                 .arg(values)
          << QStringLiteral("DROP TABLE old_reading") << QStringLiteral("DROP TABLE old_amount")
          << QStringLiteral("DROP TABLE register");
    return steps;
}

// What is entered into a column; where the column has a value, it stays.
QString entering(const KeptReading & /*reading*/)
{
    return QStringLiteral("INSERT INTO reading (%1, instant) VALUES (?, ?) ON CONFLICT (instant) "
                          "DO UPDATE SET %1 = excluded.%1 WHERE %1 IS NULL");
}

QString entering(const KeptAmount & /*amount*/)
{
    return QStringLiteral("INSERT INTO amount (%1, instant, seconds) VALUES (?, ?, ?) ON CONFLICT "
                          "(instant, seconds) DO UPDATE SET %1 = excluded.%1 WHERE %1 IS NULL");
}

void bind(const KeptReading &reading, QSqlQuery *query)
{
    query->bindValue(0, inThousandths(reading.value));
    query->bindValue(1, reading.instant);
}

void bind(const KeptAmount &amount, QSqlQuery *query)
{
    query->bindValue(0, inThousandths(amount.amount));
    query->bindValue(1, amount.interval.to);
    query->bindValue(2, amount.interval.seconds());
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
        if (trouble == Trouble::None && found > 0) {
            // Gives back what the old tables took. Where it fails, what is kept later takes that.
            execute(QStringLiteral("VACUUM"));
        }
    }
    return trouble == Trouble::None ? learnColumns() : trouble;
}

void HistoryFile::close()
{
    if (!database.isValid()) {
        return;
    }
    database.close();
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection);
    columnNames.clear();
}

Trouble HistoryFile::read(Household *household)
{
    // Another program may have added some.
    const Trouble trouble = learnColumns();
    if (trouble != Trouble::None) {
        return trouble;
    }
    QString names;
    std::vector<Meter *> meters;
    for (const QString &name : columnNames) {
        if (const std::optional<Register> known = registerNamed(name)) {
            names += QStringLiteral(", ") + name;
            meters.push_back(&household->meter(*known, Meter::Kind::Counter));
        }
    }
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT instant%1 FROM reading").arg(names))) {
        return fail(query);
    }
    while (query.next()) {
        const qint64 instant = query.value(0).toLongLong();
        for (std::size_t i = 0; i < meters.size(); ++i) {
            const QVariant value = query.value(int(i) + 1);
            if (!value.isNull()) {
                meters[i]->addReading(instant, fromThousandths(value));
            }
        }
    }
    return query.lastError().isValid() ? fail(query) : readAmounts(names, meters);
}

Trouble HistoryFile::readAmounts(const QString &names, const std::vector<Meter *> &meters)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT instant, seconds%1 FROM amount").arg(names))) {
        return fail(query);
    }
    while (query.next()) {
        const qint64 end = query.value(0).toLongLong();
        const Readings::Interval interval {end - query.value(1).toLongLong(), end};
        for (std::size_t i = 0; i < meters.size(); ++i) {
            const QVariant value = query.value(int(i) + 2);
            if (!value.isNull()) {
                meters[i]->addAmount(interval, fromThousandths(value));
            }
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
        // Another program may have added some.
        const Trouble learnt = learnColumns();
        return learnt == Trouble::None ? thinColumns(from, to, step) : learnt;
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

Trouble HistoryFile::execute(const QStringList &statements)
{
    for (const QString &statement : statements) {
        const Trouble trouble = execute(statement);
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    return Trouble::None;
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
    const Trouble trouble = number(QStringLiteral("PRAGMA user_version"), &found);
    if (trouble != Trouble::None || found >= version) {
        return trouble;
    }
    QStringList steps;
    if (found == 0) { // that of an empty file
        steps = newTables();
        steps << QStringLiteral("CREATE TABLE state (thinned_until INTEGER NOT NULL)")
              << QStringLiteral("INSERT INTO state VALUES (0)");
    } else {
        if (found == 1) {
            steps << QStringLiteral("CREATE TABLE amount (instant INTEGER, seconds INTEGER, "
                                    "register INTEGER, value INTEGER)");
        }
        std::map<int, QString> registers;
        QSqlQuery query(database);
        if (!query.exec(QStringLiteral("SELECT id, name FROM register"))) {
            return fail(query);
        }
        while (query.next()) {
            registers[query.value(0).toInt()] = query.value(1).toString();
        }
        if (query.lastError().isValid()) {
            return fail(query);
        }
        steps += stepsToColumns(registers);
    }
    steps << QStringLiteral("PRAGMA user_version = %1").arg(version);
    return execute(steps);
}

Trouble HistoryFile::learnColumns()
{
    columnNames.clear();
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("SELECT * FROM reading WHERE false"))) {
        return fail(query);
    }
    const QSqlRecord fields = query.record();
    for (int i = 1; i < fields.count(); ++i) {
        columnNames << fields.fieldName(i);
    }
    return Trouble::None;
}

Trouble HistoryFile::findColumn(const QString &name)
{
    if (columnNames.contains(name)) {
        return Trouble::None;
    }
    // Another program may have been faster.
    Trouble trouble = learnColumns();
    if (trouble == Trouble::None && !columnNames.contains(name)) {
        trouble = execute(newColumn(name));
        columnNames << name;
    }
    return trouble;
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
        learnColumns();
        lastReason = why;
    }
    return trouble;
}

Trouble HistoryFile::insert(const std::vector<KeptReading> &readings, Known known)
{
    std::map<Register, QSqlQuery> statements;
    for (const KeptReading &reading : readings) {
        const int before = added;
        Trouble trouble = enter(reading, &statements);
        if (trouble == Trouble::None && added == before && known == Known::IsReplaced) {
            trouble = replace(reading);
        }
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    return Trouble::None;
}

Trouble HistoryFile::insert(const std::vector<KeptAmount> &amounts)
{
    std::map<Register, QSqlQuery> statements;
    for (const KeptAmount &amount : amounts) {
        const Trouble trouble = enter(amount, &statements);
        if (trouble != Trouble::None) {
            return trouble;
        }
    }
    return Trouble::None;
}

// One statement for each column, prepared when its register comes first.
template <typename Row>
Trouble HistoryFile::enter(const Row &row, std::map<Register, QSqlQuery> *statements)
{
    auto statement = statements->find(row.meterRegister);
    if (statement == statements->end()) {
        const QString name = nameOf(row.meterRegister);
        const Trouble trouble = findColumn(name);
        if (trouble != Trouble::None) {
            return trouble;
        }
        QSqlQuery query(database);
        if (!query.prepare(entering(row).arg(name))) {
            return fail(query);
        }
        statement = statements->emplace(row.meterRegister, std::move(query)).first;
    }
    bind(row, &statement->second);
    if (!statement->second.exec()) {
        return fail(statement->second);
    }
    added += statement->second.numRowsAffected();
    return Trouble::None;
}

Trouble HistoryFile::replace(const KeptReading &reading)
{
    QSqlQuery query(database);
    query.prepare(QStringLiteral("UPDATE reading SET %1 = ? WHERE instant = ?")
                      .arg(nameOf(reading.meterRegister)));
    bind(reading, &query);
    return query.exec() ? Trouble::None : fail(query);
}

Trouble HistoryFile::thinColumns(qint64 from, qint64 to, qint64 step)
{
    QStringList nothing;
    for (const QString &name : columnNames) {
        nothing << QStringLiteral("%1 IS NULL").arg(quoted(name));
        if (const std::optional<Register> known = registerNamed(name)) {
            const double most = Readings::quantityInfo(known->quantity).mostPerHour;
            const Trouble trouble = thinColumn(name, most, from, to, step);
            if (trouble != Trouble::None) {
                return trouble;
            }
        }
    }
    QStringList steps;
    if (!nothing.isEmpty()) {
        steps << QStringLiteral("DELETE FROM reading WHERE instant BETWEEN %1 AND %2 AND ")
                     .arg(from)
                     .arg(to)
                + nothing.join(QStringLiteral(" AND "));
    }
    steps << QStringLiteral("UPDATE state SET thinned_until = %1").arg(to);
    return execute(steps);
}

Trouble HistoryFile::thinColumn(const QString &name, double mostPerHour, qint64 from, qint64 to,
                                qint64 step)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT instant, %1 FROM reading WHERE instant BETWEEN ? AND ? "
                                 "AND %1 IS NOT NULL ORDER BY instant")
                      .arg(name));
    query.addBindValue(from);
    query.addBindValue(to);
    if (!query.exec()) {
        return fail(query);
    }
    std::vector<Reading> readings;
    while (query.next()) {
        readings.push_back({query.value(0).toLongLong(), fromThousandths(query.value(1))});
    }
    if (query.lastError().isValid()) {
        return fail(query);
    }

    const std::vector<bool> isDispensable = Readings::dispensable(readings, step, mostPerHour);
    query.prepare(QStringLiteral("UPDATE reading SET %1 = NULL WHERE instant = ?").arg(name));
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
