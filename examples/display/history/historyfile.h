// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYFILE_H
#define HISTORYFILE_H

#include "household.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <map>
#include <vector>

class QSqlQuery;

/** What a register showed at an instant. */
struct KeptReading
{
    Readings::Register meterRegister;
    /** Seconds since 1970-01-01 UTC. */
    qint64 instant = 0;
    /** In the unit of the quantity; kept to a thousandth of it. */
    double value = 0.0;
};

/** What a register counted in an interval of which its readings are not known. */
struct KeptAmount
{
    Readings::Register meterRegister;
    Readings::Interval interval;
    /** In the unit of the quantity; kept to a thousandth of it. */
    double amount = 0.0;
};

/**
 * The SQLite file in which a household's readings are kept.
 *
 * A reading is there once for a register and an instant, and an amount once for a register and an
 * interval: the one that was written first holds, unless write() is told otherwise.
 *
 * The table "reading" has a row for each instant, and a column for each register that was ever
 * kept, named as the columns of the program's own CSV format are; it is NULL where the register was
 * not read. The table "amount" has a row for each interval, and the same columns. Values are whole
 * numbers of Wh, dm³ or MJ. A file of an older version, which had a row for each register and a
 * table of their names, is brought up to date when it is opened, which takes seconds once.
 *
 * Writing is safe against power cuts: when write() returns, a transaction is on the disk, or not
 * there at all.
 *
 * Several programs may use one file at the same time.
 */
class HistoryFile
{
public:
    /** What callers tell apart. */
    enum class Trouble {
        None,
        Newer, ///< a later version of the program made the file
        Damaged, ///< it is not, or no longer, what the program wrote
        Unusable, ///< it can be neither made, read nor written: rights, space, a device that fails
    };

    /** The version of the tables that this program writes, "user_version" of the file. */
    static constexpr int version = 3;

    HistoryFile();
    ~HistoryFile();
    Q_DISABLE_COPY(HistoryFile)

    /** Opens @p path, and makes it if it is not there; its directory must be there. */
    Trouble open(const QString &path);
    void close();

    /** Enters all readings into @p household. With trouble, some of them may have been entered. */
    Trouble read(Readings::Household *household);
    /** What becomes of a reading whose register and instant are there. */
    enum class Known { Holds, IsReplaced };
    /** Writes @p readings in one transaction. */
    Trouble write(const std::vector<KeptReading> &readings, Known known = Known::Holds);
    /** Writes @p amounts in one transaction. */
    Trouble writeAmounts(const std::vector<KeptAmount> &amounts);
    /** How many readings or amounts the last write added: those that were not there before. */
    int addedRows() const { return added; }
    /**
     * Drops, in one transaction, the readings before @p before that slots of @p step seconds do not
     * need, see Readings::dispensable(). What was thinned once is not looked at again.
     */
    Trouble thin(qint64 before, qint64 step);

    /** Why the last call failed, in the words of the database. */
    QString reason() const { return lastReason; }

private:
    Trouble fail(Trouble trouble, const QString &why);
    Trouble fail(const QSqlQuery &query);
    Trouble execute(const QString &statement);
    Trouble execute(const QStringList &statements);
    Trouble number(const QString &statement, qint64 *answer);
    Trouble bringUpToDate();
    Trouble readAmounts(const QString &names, const std::vector<Readings::Meter *> &meters);
    Trouble learnColumns();
    Trouble findColumn(const QString &name);
    template <typename Work>
    Trouble inTransaction(Work work);
    Trouble insert(const std::vector<KeptReading> &readings, Known known);
    Trouble insert(const std::vector<KeptAmount> &amounts);
    template <typename Row>
    Trouble enter(const Row &row, std::map<Readings::Register, QSqlQuery> *statements);
    Trouble replace(const KeptReading &reading);
    Trouble thinColumns(qint64 from, qint64 to, qint64 step);
    Trouble thinColumn(const QString &name, double mostPerHour, qint64 from, qint64 to,
                       qint64 step);

    const QString connection;
    QSqlDatabase database;
    QStringList columnNames;
    QString lastReason;
    int added = 0;
};

#endif
