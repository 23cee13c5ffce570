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
    void registersAreNamedAsInTheFormat();
    void everyRegisterHasAName();
    void firstReadingOfAnInstantHolds();
    void laterReadingOfAnInstantHoldsOnDemand();
    void newFileIsEmpty();
    void emptyFileIsANewOne();
    void amountsComeBack();
    void fileOfTheFirstVersionIsBroughtUpToDate();
    void newerVersionIsLeftAlone();
    void damageIsTold_data();
    void damageIsTold();
    void directoryThatIsMissing();
    void transactionIsWholeOrNothing();
    void twoProgramsWriteOneFile();
    void oldReadingsAreThinned();

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
    QCOMPARE(ask(path(), QStringLiteral("SELECT instant, value, typeof(value) FROM reading")),
             QStringList({QStringLiteral("%1 0 integer").arg(noon),
                          QStringLiteral("%1 999999999 integer").arg(noon + 1)}));
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("2"));
}

void tst_HistoryFile::registersAreNamedAsInTheFormat()
{
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::None);
    QCOMPARE(file.write({{importLow, noon, 1.0}, {gas, noon, 1.0}}), Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT name FROM register ORDER BY id")),
             QStringList({"electricity_import_low_kwh", "gas_m3"}));
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
    ask(path(), QStringLiteral("PRAGMA user_version = 3"));
    HistoryFile file;
    QCOMPARE(file.open(path()), Trouble::Newer);
    QCOMPARE(file.reason(), QStringLiteral("it has version 3, and 2 is the newest known here"));
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
        QStringLiteral("CREATE TRIGGER full BEFORE INSERT ON reading WHEN new.value = 13000 "
                       "BEGIN SELECT raise(ABORT, 'no more'); END"));
    QVERIFY(file.write({{gas, noon, 1.0}, {importLow, noon, 13.0}}) != Trouble::None);
    QCOMPARE(ask(path(), QStringLiteral("SELECT count(*) FROM reading")), QStringList("0"));
    // Registers that went with the transaction are learnt anew.
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
    const QString count = QStringLiteral("SELECT count(*) FROM reading WHERE register = %1");
    QCOMPARE(ask(path(), count.arg(1)), QStringList("27")); // 49 less 2 times 11
    QCOMPARE(ask(path(), count.arg(2)), QStringList("27"));
    // The next time goes on from there, border to border.
    QCOMPARE(file.thin(noon + 4 * hour, hour), Trouble::None);
    QCOMPARE(ask(path(),
                 QStringLiteral("SELECT (instant - %1) / 3600 FROM reading "
                                "WHERE register = 1")
                     .arg(noon)),
             QStringList({"0", "1", "2", "3", "4"}));
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
    QCOMPARE(ask(path(), QStringLiteral("PRAGMA user_version")), QStringList("2"));
    HistoryFile second;
    QCOMPARE(second.open(path()), Trouble::None);
}

QTEST_GUILESS_MAIN(tst_HistoryFile)
#include "tst_historyfile.moc"
