// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historyfile.h"
#include "profile.h"
#include "thinning.h"

#include <QDateTime>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace Readings;

using Trouble = HistoryFile::Trouble;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register gas {Quantity::Gas, Tariff::Single};
constexpr qint64 hour = 3600;
constexpr qint64 step = 300;
const qint64 noon = QDateTime(QDate(2024, 6, 1), QTime(12, 0), QTimeZone::utc()).toSecsSinceEpoch();

/** Answers @p statement of a database with its rows, fields separated by blanks. */
QStringList ask(const QString &path, const QString &statement)
{
    QStringList rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "asking");
        database.setDatabaseName(path);
        if (!database.open()) {
            return {QStringLiteral("not open")};
        }
        QSqlQuery query(statement, database);
        while (query.next()) {
            QStringList fields;
            for (int i = 0; !query.value(i).isNull(); ++i) {
                fields << query.value(i).toString();
            }
            rows << fields.join(QLatin1Char(' '));
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("asking"));
    return rows;
}

/** Makes a file of version 2 with @p statements besides, in one transaction. */
void makeSecondVersion(const QString &path, const QStringList &statements)
{
    const QStringList tables {
        QStringLiteral("CREATE TABLE register (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)"),
        QStringLiteral("CREATE TABLE reading (instant INTEGER NOT NULL, register INTEGER NOT NULL, "
                       "value INTEGER NOT NULL, PRIMARY KEY (instant, register)) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE state (thinned_until INTEGER NOT NULL)"),
        QStringLiteral("CREATE TABLE amount (instant INTEGER NOT NULL, seconds INTEGER NOT NULL, "
                       "register INTEGER NOT NULL, value INTEGER NOT NULL, "
                       "PRIMARY KEY (instant, register, seconds)) WITHOUT ROWID"),
        QStringLiteral("PRAGMA user_version = 2")};
    for (const QString &statement : tables + statements) {
        ask(path, statement);
    }
}

/** Many readings of register 1 of a file of version 2. */
QString manyReadings()
{
    return QStringLiteral("WITH RECURSIVE row(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM row "
                          "WHERE i < 9999) INSERT INTO reading SELECT %1 + i * %2, 1, i FROM row")
        .arg(noon)
        .arg(step);
}

void writeBytes(const QString &path, qint64 offset, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(offset));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

class tst_HistoryFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readingsComeBack();
    void valuesAreThousandths();
    void columnsAreNamedAsInTheFormat();
    void registersOfAnInstantShareARow();
    void everyRegisterHasAName();
    void firstReadingOfAnInstantHolds();
    void laterReadingOfAnInstantHoldsOnDemand();
    void whatWasThereIsNotCounted();
    void newFileIsEmpty();
    void emptyFileIsANewOne();
    void amountsComeBack();
    void fileOfTheFirstVersionIsBroughtUpToDate();
    void fileOfTheSecondVersionIsBroughtUpToDate();
    void registersThatAreUnknownHereAreKept();
    void fileThatCannotBeBroughtUpToDateStaysAsItWas();
    void damageOfAnOlderVersionIsTold();
    void fileThatWasBroughtUpToDateIsSmall();
    void newerVersionIsLeftAlone();
    void damageIsTold_data();
    void damageIsTold();
    void directoryThatIsMissing();
    void transactionIsWholeOrNothing();
    void twoProgramsWriteOneFile();
    void columnsOfAnotherProgramAreFound();
    void oldReadingsAreThinned();
    void thinningLeavesWhatOtherRegistersNeed();
    void thinningKnowsColumnsOfAnotherProgram();

private:
    QString path() const { return directory->filePath(QStringLiteral("history.sqlite")); }

    std::unique_ptr<QTemporaryDir> directory;
};

void tst_HistoryFile::init()
{
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

void tst_HistoryFile::readingsComeBack()
{
    {
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
        QCOMPARE(file.write({{importLow, noon, 1234.567}, {gas, noon - 60, 12.003}}),
                 Trouble::None);
        QCOMPARE(file.write({{importLow, noon + step, 1234.568}}), Trouble::None);
    }
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.size(), std::size_t(2));
    const Meter &meter = household.meters.at(importLow);
    QCOMPARE(meter.kind(), Meter::Kind::Counter);
    QCOMPARE(meter.readingAt(noon), std::optional<double>(1234.567));
    QCOMPARE(meter.readingAt(noon + step), std::optional<double>(1234.568));
    QCOMPARE(household.meters.at(gas).readingAt(noon - 60), std::optional<double>(12.003));
}

void tst_HistoryFile::valuesAreThousandths()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{importLow, noon, 0.0}, {importLow, noon + 1, 999999.999}}),
             Trouble::None);
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT instant, electricity_import_low_kwh, "
                                "typeof(electricity_import_low_kwh) FROM reading")),
             QStringList({QStringLiteral("%1 0 integer").arg(noon),
                          QStringLiteral("%1 999999999 integer").arg(noon + 1)}));
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("3"));
}

void tst_HistoryFile::columnsAreNamedAsInTheFormat()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{importLow, noon, 1.0}, {gas, noon, 1.0}}), Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT name FROM pragma_table_info('reading')")),
             QStringList({"instant", "electricity_import_low_kwh", "gas_m3"}));
    QCOMPARE(ask(path(), QStringLiteral("SELECT name FROM pragma_table_info('amount')")),
             QStringList({"instant", "seconds", "electricity_import_low_kwh", "gas_m3"}));
}

void tst_HistoryFile::registersOfAnInstantShareARow()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{importLow, noon, 1.0}, {importLow, noon + 1, 2.0}}), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 3.0}, {gas, noon - 1, 4.0}}), Trouble::None);
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT instant - %1, coalesce(electricity_import_low_kwh, '-'), "
                                "coalesce(gas_m3, '-') FROM reading")
                     .arg(noon)),
             QStringList({"-1 - 4000", "0 1000 3000", "1 2000 -"}));
}

void tst_HistoryFile::everyRegisterHasAName()
{
    std::vector<KeptReading> readings;
    for (const Column &column : profiles().front().columns) {
        if (column.role == Column::Role::Counter) {
            readings.push_back({column.meterRegister, noon, 1.0});
        }
    }
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write(readings), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.size(), readings.size());
}

void tst_HistoryFile::firstReadingOfAnInstantHolds()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 1.0}}), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 2.0}, {importLow, noon, 3.0}}), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon), std::optional<double>(1.0));
    QCOMPARE(household.meters.at(importLow).readingAt(noon), std::optional<double>(3.0));
}

void tst_HistoryFile::laterReadingOfAnInstantHoldsOnDemand()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 1.0}}), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 2.0}, {gas, noon, 3.0}}, HistoryFile::Known::IsReplaced),
             Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon), std::optional<double>(3.0));
}

void tst_HistoryFile::whatWasThereIsNotCounted()
{
    for (const HistoryFile::Known known :
         {HistoryFile::Known::Holds, HistoryFile::Known::IsReplaced}) {
        init();
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
        QCOMPARE(file.write({{gas, noon, 1.0}, {gas, noon + step, 2.0}}, known), Trouble::None);
        QCOMPARE(file.addedRows(), 2);
        // One is there, one is new in a row that is there, and one in a row of its own.
        QCOMPARE(
            file.write({{gas, noon, 9.0}, {importLow, noon, 3.0}, {gas, noon + hour, 4.0}}, known),
            Trouble::None);
        QCOMPARE(file.addedRows(), 2);
        Household household;
        QCOMPARE(file.read(&household), Trouble::None);
        QCOMPARE(household.meters.at(gas).readingAt(noon),
                 std::optional<double>(known == HistoryFile::Known::Holds ? 1.0 : 9.0));
        QCOMPARE(household.meters.at(gas).readingAt(noon + step), std::optional<double>(2.0));
        QCOMPARE(household.meters.at(importLow).readingAt(noon), std::optional<double>(3.0));
    }
}

void tst_HistoryFile::newFileIsEmpty()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QVERIFY(household.meters.empty());
    QCOMPARE(file.thin(noon, hour), Trouble::None);
}

/** What a power cut at the very beginning leaves. */
void tst_HistoryFile::emptyFileIsANewOne()
{
    QFile empty(path());
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{gas, noon, 1.0}}), Trouble::None);
}

void tst_HistoryFile::newerVersionIsLeftAlone()
{
    {
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
    }
    ask(path(), QStringLiteral("PRAGMA user_version = 4"));
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::Newer);
    QCOMPARE(file.reason(), QStringLiteral("it has version 4, and 3 is the newest known here"));
}

void tst_HistoryFile::damageIsTold_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no database") << 0 << QByteArray(4096, 'x');
    QTest::newRow("a page of the readings") << 3 * 4096 << QByteArray(8 * 4096, '\xff');
}

void tst_HistoryFile::damageIsTold()
{
    QFETCH(int, offset);
    QFETCH(QByteArray, bytes);
    {
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
        std::vector<KeptReading> readings;
        for (int i = 0; i < 10000; ++i) {
            readings.push_back({gas, noon + i * step, double(i)});
        }
        QCOMPARE(file.write(readings), Trouble::None);
    }
    writeBytes(path(), offset, bytes);
    HistoryFile file;
    Trouble trouble = file.open(path());
    if (trouble == Trouble::None) {
        Household household;
        trouble = file.read(&household);
    }
    QCOMPARE(trouble, Trouble::Damaged);
    QVERIFY(!file.reason().isEmpty());
}

void tst_HistoryFile::directoryThatIsMissing()
{
    HistoryFile file;
    QCOMPARE(file.open(directory->filePath(QStringLiteral("no/history.sqlite"))),
             Trouble::Unusable);
    QVERIFY(!file.reason().isEmpty());
}

void tst_HistoryFile::transactionIsWholeOrNothing()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    ask(path(),
        QStringLiteral("CREATE TRIGGER full BEFORE INSERT ON reading WHEN new.instant % 13 = 0 "
                       "BEGIN SELECT raise(ABORT, 'no more'); END"));
    const qint64 unlucky = noon - noon % 13;
    QVERIFY(file.write({{gas, noon, 1.0}, {importLow, unlucky, 13.0}}) != Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT count(*) FROM reading")), QStringList("0"));
    // Columns that went with the transaction are made anew.
    QCOMPARE(file.write({{importLow, noon, 1.0}, {gas, noon, 2.0}}), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon), std::optional<double>(2.0));
}

void tst_HistoryFile::twoProgramsWriteOneFile()
{
    HistoryFile one;
    HistoryFile other;
    QCOMPARE(one.open(path()), Trouble::None);
    QCOMPARE(other.open(path()), Trouble::None);
    QCOMPARE(one.write({{gas, noon, 1.0}}), Trouble::None);
    QCOMPARE(other.write({{importLow, noon, 2.0}, {gas, noon + step, 3.0}}), Trouble::None);
    QCOMPARE(one.write({{importLow, noon + step, 4.0}}), Trouble::None);
    Household household;
    QCOMPARE(other.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon + step), std::optional<double>(3.0));
    QCOMPARE(household.meters.at(importLow).readingAt(noon + step), std::optional<double>(4.0));
}

void tst_HistoryFile::columnsOfAnotherProgramAreFound()
{
    HistoryFile one;
    HistoryFile other;
    QCOMPARE(one.open(path()), Trouble::None);
    QCOMPARE(other.open(path()), Trouble::None);
    QCOMPARE(one.write({{gas, noon, 1.0}}), Trouble::None);
    // Both do not know the column until they write to it, or read.
    QCOMPARE(other.write({{gas, noon + step, 2.0}}), Trouble::None);
    QCOMPARE(one.write({{importLow, noon, 3.0}, {gas, noon + hour, 4.0}}), Trouble::None);
    QCOMPARE(other.writeAmounts({{importLow, {noon, noon + hour}, 0.5}}), Trouble::None);
    HistoryFile reader;
    QCOMPARE(reader.open(path()), Trouble::None);
    const Register water {Quantity::Water, Tariff::Single};
    QCOMPARE(one.write({{water, noon, 5.0}}), Trouble::None);
    Household household;
    QCOMPARE(reader.read(&household), Trouble::None);
    QCOMPARE(household.meters.size(), std::size_t(3));
    QCOMPARE(household.meters.at(water).readingAt(noon), std::optional<double>(5.0));
    QCOMPARE(household.meters.at(gas).readingAt(noon + step), std::optional<double>(2.0));
    QCOMPARE(household.meters.at(gas).readingAt(noon + hour), std::optional<double>(4.0));
    QCOMPARE(household.meters.at(importLow).amount(noon, noon + hour), std::optional<double>(0.5));
}

void tst_HistoryFile::oldReadingsAreThinned()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    std::vector<KeptReading> readings;
    for (int i = 0; i <= 48; ++i) {
        readings.push_back({importLow, noon + i * step, 100.0 + i});
        readings.push_back({gas, noon + i * step, 10.0});
    }
    QCOMPARE(file.write(readings), Trouble::None);
    QCOMPARE(file.thin(noon + 2 * hour + step, hour), Trouble::None);
    const QString counts =
        QStringLiteral("SELECT count(*), count(electricity_import_low_kwh), count(gas_m3) FROM "
                       "reading");
    QCOMPARE(ask(path(), counts), QStringList("27 27 27")); // 49 less 2 times 11
    // The next time goes on from there, border to border.
    QCOMPARE(file.thin(noon + 4 * hour, hour), Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT (instant - %1) / 3600.0 FROM reading").arg(noon)),
             QStringList({"0", "1", "2", "3", "4"}));
}

void tst_HistoryFile::thinningLeavesWhatOtherRegistersNeed()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    std::vector<KeptReading> readings;
    for (int i = 0; i <= 12; ++i) {
        readings.push_back({importLow, noon + i * step, 100.0 + i});
    }
    // The only one of its register, between the borders.
    readings.push_back({gas, noon + 3 * step, 10.0});
    QCOMPARE(file.write(readings), Trouble::None);
    QCOMPARE(file.thin(noon + hour, hour), Trouble::None);
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT (instant - %1) / 300, "
                                "coalesce(electricity_import_low_kwh, '-'), "
                                "coalesce(gas_m3, '-') FROM reading")
                     .arg(noon)),
             QStringList({"0 100000 -", "3 - 10000", "12 112000 -"}));
}

void tst_HistoryFile::thinningKnowsColumnsOfAnotherProgram()
{
    HistoryFile one;
    HistoryFile other;
    QCOMPARE(one.open(path()), Trouble::None);
    QCOMPARE(other.open(path()), Trouble::None);
    QCOMPARE(other.write({{gas, noon, 1.0}, {gas, noon + step, 1.0}, {gas, noon + hour, 1.0}}),
             Trouble::None);
    QCOMPARE(one.thin(noon + hour, hour), Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT count(*) FROM reading")), QStringList("2"));
}

void tst_HistoryFile::amountsComeBack()
{
    {
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
        const std::vector<KeptAmount> amounts {{gas, {noon - hour, noon}, 0.125},
                                               {gas, {noon, noon + 900}, 0.5}};
        QCOMPARE(file.writeAmounts(amounts), Trouble::None);
        QCOMPARE(file.addedRows(), 2);
        QCOMPARE(file.writeAmounts(
                     {{gas, {noon, noon + 900}, 9.0}, {gas, {noon + 900, noon + hour}, 1.0}}),
                 Trouble::None);
        QCOMPARE(file.addedRows(), 1);
    }
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).amount(noon - hour, noon + hour),
             std::optional<double>(1.625));
}

void tst_HistoryFile::fileOfTheFirstVersionIsBroughtUpToDate()
{
    for (const char *statement :
         {"CREATE TABLE register (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)",
          "CREATE TABLE reading (instant INTEGER NOT NULL, register INTEGER NOT NULL, "
          "value INTEGER NOT NULL, PRIMARY KEY (instant, register)) WITHOUT ROWID",
          "CREATE TABLE state (thinned_until INTEGER NOT NULL)", "INSERT INTO state VALUES (0)",
          "INSERT INTO register VALUES (7, 'gas_m3')",
          "INSERT INTO reading VALUES (1717243200, 7, 4711)", "PRAGMA user_version = 1"}) {
        ask(path(), QLatin1String(statement));
    }
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.writeAmounts({{gas, {noon - hour, noon}, 0.5}}), Trouble::None);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon), std::optional<double>(4.711));
    QCOMPARE(household.meters.at(gas).amount(noon - hour, noon), std::optional<double>(0.5));
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("3"));
    HistoryFile second;
    QCOMPARE(second.open(path()), Trouble::None);
}

void tst_HistoryFile::fileOfTheSecondVersionIsBroughtUpToDate()
{
    makeSecondVersion(
        path(),
        {QStringLiteral("INSERT INTO state VALUES (1717200000)"),
         QStringLiteral("INSERT INTO register VALUES (7, 'gas_m3'), "
                        "(3, 'electricity_import_low_kwh')"),
         QStringLiteral("INSERT INTO reading VALUES (1717243200, 7, 4711), (1717243200, 3, 0), "
                        "(1717243500, 7, 4712), (1717243800, 3, 999999999)"),
         QStringLiteral("INSERT INTO amount VALUES (1717239600, 3600, 7, 125), "
                        "(1717239600, 3600, 3, 500), (1717239600, 900, 7, 50)")});
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("3"));
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT instant, coalesce(electricity_import_low_kwh, '-'), "
                                "coalesce(gas_m3, '-') FROM reading")),
             QStringList({"1717243200 0 4711", "1717243500 - 4712", "1717243800 999999999 -"}));
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT instant, seconds, "
                                "coalesce(electricity_import_low_kwh, '-'), "
                                "coalesce(gas_m3, '-') FROM amount")),
             QStringList({"1717239600 900 - 50", "1717239600 3600 500 125"}));
    QCOMPARE(ask(path(), QStringLiteral("SELECT thinned_until FROM state")),
             QStringList("1717200000"));
    QCOMPARE(ask(path(), QStringLiteral("SELECT name FROM sqlite_master ORDER BY name")),
             QStringList({"amount", "reading", "state"}));
    QCOMPARE(file.write({{gas, noon, 1.0}, {gas, noon + 600, 4.713}}), Trouble::None);
    QCOMPARE(file.addedRows(), 1);
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.at(gas).readingAt(noon), std::optional<double>(4.711));
    QCOMPARE(household.meters.at(gas).readingAt(noon + 600), std::optional<double>(4.713));
    QCOMPARE(household.meters.at(importLow).amount(noon - 2 * hour, noon - hour),
             std::optional<double>(0.5));
}

void tst_HistoryFile::registersThatAreUnknownHereAreKept()
{
    makeSecondVersion(path(),
                      {QStringLiteral("INSERT INTO state VALUES (0)"),
                       QStringLiteral("INSERT INTO register VALUES (1, 'a b'), (2, 'gas_m3')"),
                       QStringLiteral("INSERT INTO reading VALUES (%1, 2, 1), (%1 + 300, 1, 2), "
                                      "(%1 + 300, 2, 3), (%1 + 600, 2, 4), (%1 + 3600, 2, 5)")
                           .arg(noon)});
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.thin(noon + hour, hour), Trouble::None);
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT instant - %1, coalesce(\"a b\", '-'), "
                                "coalesce(gas_m3, '-') FROM reading")
                     .arg(noon)),
             QStringList({"0 - 1", "300 2 -", "3600 - 5"}));
    Household household;
    QCOMPARE(file.read(&household), Trouble::None);
    QCOMPARE(household.meters.size(), std::size_t(1));
}

void tst_HistoryFile::fileThatCannotBeBroughtUpToDateStaysAsItWas()
{
    // Two columns of one name cannot be.
    makeSecondVersion(path(),
                      {QStringLiteral("INSERT INTO register VALUES (1, 'gas_m3'), (2, 'instant')"),
                       QStringLiteral("INSERT INTO reading VALUES (1, 1, 4711)")});
    const QString tables = QStringLiteral("SELECT sql FROM sqlite_master ORDER BY name");
    const QStringList before = ask(path(), tables);
    HistoryFile file;
    QVERIFY(file.open(path()) != Trouble::None);
    QVERIFY(!file.reason().isEmpty());
    QCOMPARE(ask(path(), tables), before);
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("2"));
    QCOMPARE(ask(path(), QStringLiteral("SELECT * FROM reading")), QStringList("1 1 4711"));
}

void tst_HistoryFile::damageOfAnOlderVersionIsTold()
{
    makeSecondVersion(
        path(), {QStringLiteral("INSERT INTO register VALUES (1, 'gas_m3')"), manyReadings()});
    writeBytes(path(), qint64(12) * 4096, QByteArray(8 * 4096, '\xff'));
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::Damaged);
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("2"));
}

void tst_HistoryFile::fileThatWasBroughtUpToDateIsSmall()
{
    makeSecondVersion(
        path(), {QStringLiteral("INSERT INTO register VALUES (1, 'gas_m3')"), manyReadings()});
    {
        HistoryFile file;
        QCOMPARE(file.open(path()), Trouble::None);
    }
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA freelist_count")), QStringList("0"));
    QCOMPARE(ask(path(), QStringLiteral("SELECT count(gas_m3), sum(gas_m3) FROM reading")),
             QStringList("10000 49995000"));
}

QTEST_GUILESS_MAIN(tst_HistoryFile)
#include "tst_historyfile.moc"
