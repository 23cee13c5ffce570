// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartvalues.h"
#include "historyfile.h"
#include "historykeeper.h"
#include "historytransfer.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <random>

using namespace Readings;

using Trouble = HistoryFile::Trouble;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register importNormal {Quantity::GridImport, Tariff::Normal};
constexpr Register gas {Quantity::Gas, Tariff::Single};
constexpr qint64 hour = 3600;
constexpr qint64 quarter = 900;
constexpr qint64 step = 300;
const QTimeZone amsterdam("Europe/Amsterdam");

qint64 localMidnight(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), amsterdam).toSecsSinceEpoch();
}

Household householdOf(const QString &directory)
{
    Household household;
    HistoryFile file;
    if (file.open(HistoryKeeper::pathIn(directory)) == Trouble::None) {
        file.read(&household);
    }
    household.timeZone = amsterdam;
    return household;
}

/** All that any chart asks for, a line for each window. */
QStringList chartsOf(const Household &household)
{
    QStringList lines;
    const Calendar calendar(household.timeZone);
    for (const auto &[meterRegister, meter] : household.meters) {
        const DateRange range {calendar.dateAt(*household.firstInstant()),
                               calendar.dateAt(*household.lastInstant()), household.readUntil()};
        std::vector<Calendar::Meters> allMeters {{&meter},
                                                 household.metersOf(meterRegister.quantity)};
        for (const Calendar::Meters &meters : allMeters) {
            for (const Period period : allPeriods) {
                const ChartValues chart = chartValues(calendar, meters, period, range);
                for (std::size_t i = 0; i < chart.values.size(); ++i) {
                    lines << QStringLiteral("%1 %2 %3: %4")
                                 .arg(registerName(meterRegister),
                                      QLatin1String(infoOf(period).key))
                                 .arg(i)
                                 .arg(chart.values[i] ? QString::number(*chart.values[i], 'f', 3)
                                                      : QStringLiteral("gap"));
                    if (chart.incomplete.count(chart.slotOf(i)) > 0) {
                        lines.last() += QStringLiteral(" of a part");
                    }
                }
            }
        }
    }
    return lines;
}

} // namespace

/** Readings on their way into a history and out of it. */
class tst_HistoryTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exportedAndImportedTheChartsAreTheSame_data();
    void exportedAndImportedTheChartsAreTheSame();
    void twiceIsAsOnce();
    void amountsThatReadingsTellAreNotKept();
    void oldMinutesAreKeptByTheHour();
    void otherTariffsAreRefused();
    void displayThatIsRunningGoesOn();
    void exportIsCompleteOrNotThere();
    void newerHistoryIsRefused();

private:
    QString place(const char *name) const { return directory->filePath(QLatin1String(name)); }
    QString write(const char *name, const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> directory;
};

void tst_HistoryTransfer::init()
{
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

QString tst_HistoryTransfer::write(const char *name, const QByteArray &text) const
{
    QFile file(place(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("cannot write readings");
    }
    return file.fileName();
}

void tst_HistoryTransfer::exportedAndImportedTheChartsAreTheSame_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < 6; ++seed) {
        QTest::addRow("spring %d", seed) << QDate(2024, 3, 31) << seed;
        QTest::addRow("autumn %d", seed) << QDate(2024, 10, 27) << seed;
    }
}

/** What a house used: a number of thousandths for any instant, ever rising. */
static double usedUntil(const Register &meterRegister, qint64 instant)
{
    const qint64 of = qint64(meterRegister.quantity) + 3 * qint64(meterRegister.tariff) + 1;
    const qint64 since = instant - 1600000000;
    return double(since * of / 20 + since / 977 * 29) / 1000.0;
}

/** Writes the history of a meter that is followed by its telegrams, with silences and faults. */
static void fillCounters(HistoryFile *file, qint64 from, qint64 to, std::mt19937 *random)
{
    const auto below = [random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(*random);
    };
    for (const Register &meterRegister : {importLow, importNormal, gas}) {
        std::vector<KeptReading> readings;
        double offset = 0.0;
        for (qint64 at = from + below(3000); at < to;) {
            readings.push_back({meterRegister, at, offset + usedUntil(meterRegister, at)});
            const bool isSilent = below(500) == 0;
            at = isSilent ? at + below(20) * hour + below(5000) + 1 : (at / step + 1) * step;
            if (below(1500) == 0) {
                offset += 100.0 + below(5000); // another meter
            } else if (below(1000) == 0) {
                readings.push_back({meterRegister, at - 1, 0.5}); // a wrong reading
            }
        }
        QCOMPARE(file->write(readings), Trouble::None);
    }
}

static void fillAmounts(HistoryFile *file, qint64 from, qint64 to, std::mt19937 *random)
{
    const auto below = [random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(*random);
    };
    for (const Register &meterRegister : {importLow, importNormal, gas}) {
        std::vector<KeptAmount> amounts;
        for (qint64 at = from; at < to;) {
            constexpr qint64 lengths[] = {quarter, quarter, quarter, hour, 2 * hour, 1800};
            const qint64 end = at + lengths[below(6)];
            if (below(30) != 0) {
                amounts.push_back({meterRegister,
                                   {at, end},
                                   usedUntil(meterRegister, end) - usedUntil(meterRegister, at)});
            }
            at = end;
        }
        QCOMPARE(file->writeAmounts(amounts), Trouble::None);
    }
}

void tst_HistoryTransfer::exportedAndImportedTheChartsAreTheSame()
{
    QFETCH(QDate, date);
    QFETCH(int, seed);
    std::mt19937 random(quint32(2024 + seed));
    const qint64 middle = localMidnight(date.addDays(seed % 2 == 0 ? -2 : 1));
    QVERIFY(QDir().mkpath(place("old")));
    {
        HistoryFile file;
        QCOMPARE(file.open(HistoryKeeper::pathIn(place("old"))), Trouble::None);
        fillAmounts(&file, middle - 8 * 24 * hour, middle + 30 * hour + quarter, &random);
        fillCounters(&file, middle, middle + 9 * 24 * hour, &random);
    }
    const Transfer out = exportReadings(place("a.csv"), place("old"), amsterdam);
    QVERIFY2(out.succeeded, qPrintable(out.text));
    const Transfer in = importReadings({place("a.csv")}, place("new"), amsterdam);
    QVERIFY2(in.succeeded, qPrintable(in.text));
    const QStringList expected = chartsOf(householdOf(place("old")));
    const QStringList found = chartsOf(householdOf(place("new")));
    QVERIFY(expected.size() - expected.filter(QStringLiteral("gap")).size() > 300);
    QCOMPARE(found.size(), expected.size());
    for (int i = 0; i < found.size(); ++i) {
        QCOMPARE(found[i], expected[i]);
    }
}

void tst_HistoryTransfer::twiceIsAsOnce()
{
    const QString first = write("first.csv",
                                "time,gas_m3,gas_m3_counted\n"
                                "2024-05-01T00:00Z,,0.5\n"
                                "2024-05-01T01:00Z,10,\n"
                                "2024-05-01T02:00Z,11,\n");
    const QString overlapping = write("more.csv",
                                      "time,gas_m3,gas_m3_counted\n"
                                      "2024-05-01T00:00Z,,0.5\n"
                                      "2024-05-01T02:00Z,11,\n"
                                      "2024-05-01T03:00Z,12.5,\n");
    QCOMPARE(importReadings({first}, place("h"), amsterdam).text.section(' ', 0, 2),
             QStringLiteral("3 of 3"));
    QCOMPARE(importReadings({first}, place("h"), amsterdam).text.section(' ', 0, 2),
             QStringLiteral("0 of 3"));
    QCOMPARE(importReadings({overlapping}, place("h"), amsterdam).text.section(' ', 0, 2),
             QStringLiteral("1 of 3"));
    QCOMPARE(householdOf(place("h")).total(Quantity::Gas), 3.0);
}

void tst_HistoryTransfer::amountsThatReadingsTellAreNotKept()
{
    const QString file = write("a.csv",
                               "time,gas_m3,gas_m3_counted\n"
                               "2024-05-01T01:00Z,10,\n"
                               "2024-05-01T02:00Z,11,1\n"
                               "2024-05-01T03:00Z,,0.25\n");
    QCOMPARE(importReadings({file}, place("h"), amsterdam).text.section(' ', 0, 2),
             QStringLiteral("3 of 4"));
    QCOMPARE(householdOf(place("h")).meters.at(gas).amountRows().size(), std::size_t(1));
}

void tst_HistoryTransfer::oldMinutesAreKeptByTheHour()
{
    QByteArray text = "time,gas_m3\n";
    for (int minute = 0; minute <= 120; ++minute) {
        text += QStringLiteral("2020-05-01T%1:%2Z,%3\n")
                    .arg(minute / 60, 2, 10, QLatin1Char('0'))
                    .arg(minute % 60, 2, 10, QLatin1Char('0'))
                    .arg(10.0 + minute / 1000.0)
                    .toLatin1();
    }
    QCOMPARE(importReadings({write("a.csv", text)}, place("h"), amsterdam).text.section(' ', 0, 2),
             QStringLiteral("3 of 121"));
}

void tst_HistoryTransfer::otherTariffsAreRefused()
{
    const QString tariffs = write("a.csv",
                                  "time,electricity_import_low_kwh\n"
                                  "2024-05-01T01:00Z,10\n2024-05-01T02:00Z,11\n");
    const QString single = write("b.csv",
                                 "time,electricity_import_kwh\n"
                                 "2024-05-01T03:00Z,10\n2024-05-01T04:00Z,11\n");
    QVERIFY(importReadings({tariffs}, place("h"), amsterdam).succeeded);
    const Transfer refused = importReadings({single}, place("h"), amsterdam);
    QVERIFY(!refused.succeeded);
    QVERIFY2(refused.text.startsWith(QStringLiteral("nothing is kept, as electricity import")),
             qPrintable(refused.text));
    QCOMPARE(householdOf(place("h")).meters.size(), std::size_t(1));
}

void tst_HistoryTransfer::displayThatIsRunningGoesOn()
{
    const qint64 now = localMidnight(QDate(2024, 5, 2));
    HistoryKeeper display(place("h"));
    QStringList problems;
    connect(&display, &HistoryKeeper::problem, this,
            [&](const QString &line) { problems << line; });
    Household shown;
    display.load(&shown);
    display.add(gas, now, 20.0);
    display.keep(now, &shown);
    const QString file = write("a.csv",
                               "time,gas_m3\n2024-05-01T01:00Z,10\n"
                               "2024-05-01T02:00Z,11\n");
    QVERIFY(importReadings({file}, place("h"), amsterdam).succeeded);
    display.add(gas, now + step, 20.5);
    display.keep(now + step, &shown);
    QVERIFY(exportReadings(place("b.csv"), place("h"), amsterdam).succeeded);
    QCOMPARE(problems, QStringList());
    QCOMPARE(householdOf(place("h")).total(Quantity::Gas), 10.5);
    QVERIFY(importReadings({place("b.csv")}, place("copy"), amsterdam).succeeded);
    QCOMPARE(householdOf(place("copy")).total(Quantity::Gas), 10.5);
}

void tst_HistoryTransfer::exportIsCompleteOrNotThere()
{
    const QString file = write("a.csv",
                               "time,gas_m3\n2024-05-01T01:00Z,10\n"
                               "2024-05-01T02:00Z,11\n");
    QVERIFY(importReadings({file}, place("h"), amsterdam).succeeded);
    const Transfer nowhere = exportReadings(place("none/b.csv"), place("h"), amsterdam);
    QVERIFY(!nowhere.succeeded);
    QVERIFY2(nowhere.text.startsWith(place("none/b.csv")), qPrintable(nowhere.text));

    // A device is not to be replaced by a file.
    const Transfer device = exportReadings(QStringLiteral("/dev/null"), place("h"), amsterdam);
    QVERIFY(!device.succeeded);
    QCOMPARE(device.text, QStringLiteral("/dev/null: is not a file"));
    const QByteArray before = "keep me";
    write("h/history.sqlite", "this is no database, but long enough to look like a damaged one");
    const QString old = write("old.csv", before);
    QVERIFY(!exportReadings(old, place("h"), amsterdam).succeeded);
    QFile kept(old);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), before);
}

void tst_HistoryTransfer::newerHistoryIsRefused()
{
    QVERIFY(QDir().mkpath(place("h")));
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "newer");
        database.setDatabaseName(HistoryKeeper::pathIn(place("h")));
        QVERIFY(database.open());
        QVERIFY(QSqlQuery(database).exec(QStringLiteral("PRAGMA user_version = 99")));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("newer"));
    const QString file = write("a.csv", "time,gas_m3\n2024-05-01T01:00Z,10\n");
    for (const Transfer &transfer : {importReadings({file}, place("h"), amsterdam),
                                     exportReadings(place("b.csv"), place("h"), amsterdam)}) {
        QVERIFY(!transfer.succeeded);
        QVERIFY2(transfer.text.contains(QStringLiteral("version 99")), qPrintable(transfer.text));
    }
}

QTEST_GUILESS_MAIN(tst_HistoryTransfer)
#include "tst_historytransfer.moc"
