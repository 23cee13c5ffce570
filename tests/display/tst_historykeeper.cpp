// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historykeeper.h"
#include "thinning.h"
#include "writerlock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Readings;

namespace {

constexpr Register gas {Quantity::Gas, Tariff::Single};
constexpr qint64 hour = 3600;
constexpr qint64 step = 300;
const qint64 noon = QDateTime(QDate(2024, 6, 1), QTime(12, 0), QTimeZone::utc()).toSecsSinceEpoch();

/** A keeper with what it fills and what it says. */
struct DisplayRun
{
    explicit DisplayRun(const QString &directory) : keeper(directory)
    {
        QObject::connect(&keeper, &HistoryKeeper::problem,
                         [this](const QString &line) { problems << line; });
        keeper.load(&household);
    }

    void hear(qint64 instant, double value)
    {
        household.meter(gas, Meter::Kind::Counter).addReading(instant, value);
        keeper.add(gas, instant, value);
        keeper.keep(instant, &household);
    }

    std::optional<double> gasAt(qint64 instant) const
    {
        const auto meter = household.meters.find(gas);
        return meter == household.meters.end() ? std::nullopt : meter->second.readingAt(instant);
    }

    Household household;
    HistoryKeeper keeper;
    QStringList problems;
};

/** Files cannot grow above so many bytes while it lives, as on a disk that is full. */
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const struct rlimit limit = {bytes, before.rlim_max};
        previous = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, previous);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    struct rlimit before
    {
    };
    void (*previous)(int) = nullptr;
};

} // namespace

class tst_HistoryKeeper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void historyOutlivesTheDisplay();
    void directoryIsMade();
    void directoryThatCannotBeMade();
    void damagedFileIsSetAside_data();
    void damagedFileIsSetAside();
    void newerFileIsLeftAlone();
    void secondDisplayShowsAndWritesNothing();
    void lockOfAKilledDisplayIsFree();
    void fullDiskIsToldOnceAndWaits();
    void fileThatCouldNotBeMadeIsTriedAgain();
    void oldReadingsAreThinnedOnceADay();
    void whatWasLoadedIsNotDoubled();

private:
    QString place() const { return directory->path(); }
    QString path() const { return directory->filePath(QStringLiteral("history.sqlite")); }

    std::unique_ptr<QTemporaryDir> directory;
};

void tst_HistoryKeeper::init()
{
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

void tst_HistoryKeeper::historyOutlivesTheDisplay()
{
    {
        DisplayRun display(place());
        display.hear(noon, 1.5);
        display.hear(noon + step, 1.75);
        QCOMPARE(display.problems, QStringList());
    }
    const DisplayRun display(place());
    QCOMPARE(display.gasAt(noon), std::optional<double>(1.5));
    QCOMPARE(display.gasAt(noon + step), std::optional<double>(1.75));
    QCOMPARE(display.problems, QStringList());
}

void tst_HistoryKeeper::directoryIsMade()
{
    const QString deep = directory->filePath(QStringLiteral("a/b"));
    DisplayRun display(deep);
    display.hear(noon, 1.0);
    QVERIFY(QFile::exists(deep + QStringLiteral("/history.sqlite")));
    QCOMPARE(display.problems, QStringList());
}

void tst_HistoryKeeper::directoryThatCannotBeMade()
{
    QFile file(directory->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString below = file.fileName() + QStringLiteral("/below");
    DisplayRun display(below);
    QCOMPARE(display.problems,
             QStringList(
                 below + "/history.sqlite: the directory cannot be made; the history is not kept"));
    display.hear(noon, 1.0);
    QCOMPARE(display.gasAt(noon), std::optional<double>(1.0));
    QCOMPARE(display.problems.size(), 1);
}

void tst_HistoryKeeper::damagedFileIsSetAside_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("from its beginning") << 0;
    QTest::newRow("in its midst") << 5 * 4096;
}

void tst_HistoryKeeper::damagedFileIsSetAside()
{
    QFETCH(int, offset);
    {
        DisplayRun display(place());
        for (int i = 0; i < 5000; ++i) {
            display.keeper.add(gas, noon + i * step, double(i));
        }
        display.hear(noon + 5000 * step, 5000.0);
    }
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(offset));
    file.write(QByteArray(2 * 4096, '\xff'));
    file.close();
    const qint64 size = file.size();

    DisplayRun display(place());
    QCOMPARE(display.problems.size(), 1);
    QVERIFY2(display.problems.constFirst().contains("it is set aside as history-damaged-"),
             qPrintable(display.problems.constFirst()));
    QVERIFY(display.household.meters.empty());
    const QStringList aside = QDir(place()).entryList({QStringLiteral("history-damaged-*.sqlite")});
    QCOMPARE(aside.size(), 1);
    QCOMPARE(QFileInfo(QDir(place()).filePath(aside.constFirst())).size(), size);

    display.hear(noon, 3.0);
    QCOMPARE(display.problems.size(), 1);
}

void tst_HistoryKeeper::newerFileIsLeftAlone()
{
    {
        DisplayRun display(place());
        display.hear(noon, 1.0);
    }
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "later");
        database.setDatabaseName(path());
        QVERIFY(database.open());
        QSqlQuery(QStringLiteral("PRAGMA user_version = 7"), database);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("later"));

    DisplayRun display(place());
    QCOMPARE(display.problems.size(), 1);
    QVERIFY(display.problems.constFirst().contains("written by a newer version of this program"));
    display.hear(noon + step, 2.0);
    QCOMPARE(display.problems.size(), 1);
    QCOMPARE(QDir(place()).entryList({QStringLiteral("history-damaged-*")}), QStringList());
}

void tst_HistoryKeeper::secondDisplayShowsAndWritesNothing()
{
    {
        DisplayRun first(place());
        first.hear(noon, 1.0);
        DisplayRun second(place());
        QCOMPARE(second.problems.size(), 1);
        QVERIFY(second.problems.constFirst().contains("another display keeps the history"));
        QCOMPARE(second.gasAt(noon), std::optional<double>(1.0));
        second.hear(noon + step, 9.0);
        first.hear(noon + step, 2.0);
        QCOMPARE(second.problems.size(), 1);
        QCOMPARE(first.problems, QStringList());
    }
    QCOMPARE(DisplayRun(place()).gasAt(noon + step), std::optional<double>(2.0));
}

void tst_HistoryKeeper::lockOfAKilledDisplayIsFree()
{
    int tellParent[2];
    QCOMPARE(pipe(tellParent), 0);
    const pid_t child = fork();
    if (child == 0) {
        WriterLock lock;
        const char answer = lock.acquire(directory->filePath(QStringLiteral("history.lock")))
                == WriterLock::Answer::Mine
            ? 'y'
            : 'n';
        const ssize_t written = write(tellParent[1], &answer, 1);
        pause();
        _exit(int(written));
    }
    char answer = 0;
    QCOMPARE(read(tellParent[0], &answer, 1), ssize_t(1));
    QCOMPARE(answer, 'y');
    close(tellParent[0]);
    close(tellParent[1]);
    QCOMPARE(DisplayRun(place()).problems.size(), 1);

    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    DisplayRun display(place());
    display.hear(noon, 1.0);
    QCOMPARE(display.problems, QStringList());
}

void tst_HistoryKeeper::fullDiskIsToldOnceAndWaits()
{
    {
        DisplayRun display(place());
        display.hear(noon, 1.0);
        {
            const FullDisk full(1);
            display.hear(noon + step, 2.0);
            display.hear(noon + 2 * step, 3.0);
        }
        QCOMPARE(display.problems.size(), 1);
        QVERIFY2(display.problems.constFirst().contains("the history cannot be kept: "),
                 qPrintable(display.problems.constFirst()));
        QCOMPARE(display.gasAt(noon + step), std::optional<double>(2.0));
        display.hear(noon + 3 * step, 4.0);
        QCOMPARE(display.problems.size(), 1);
    }
    const DisplayRun later(place());
    for (int i = 0; i <= 3; ++i) {
        QCOMPARE(later.gasAt(noon + i * step), std::optional<double>(1.0 + i));
    }
}

void tst_HistoryKeeper::fileThatCouldNotBeMadeIsTriedAgain()
{
    QVERIFY(QDir(place()).mkdir(QStringLiteral("history.sqlite"))); // in the file's place
    {
        DisplayRun display(place());
        QCOMPARE(display.problems.size(), 1);
        display.hear(noon, 1.0);
        display.hear(noon + step, 2.0);
        QCOMPARE(display.problems.size(), 1);
        QVERIFY(QDir(place()).rmdir(QStringLiteral("history.sqlite")));
        display.hear(noon + 2 * step, 3.0);
    }
    QCOMPARE(DisplayRun(place()).gasAt(noon), std::optional<double>(1.0));
}

void tst_HistoryKeeper::oldReadingsAreThinnedOnceADay()
{
    DisplayRun display(place());
    for (qint64 at = noon; at <= noon + 2 * hour; at += step) {
        display.household.meter(gas, Meter::Kind::Counter).addReading(at, 1.0);
        display.keeper.add(gas, at, 1.0);
    }
    display.hear(noon + 3 * hour, 2.0);
    QVERIFY(display.gasAt(noon + step));
    display.hear(noon + fineHistory + 2 * hour, 3.0);
    QVERIFY(!display.gasAt(noon + step));
    QVERIFY(display.gasAt(noon + hour));

    const DisplayRun later(directory->path());
    QVERIFY(!later.gasAt(noon + step));
    QVERIFY(later.gasAt(noon + hour));
    QVERIFY(later.gasAt(noon + 2 * hour));
}

void tst_HistoryKeeper::whatWasLoadedIsNotDoubled()
{
    {
        DisplayRun display(place());
        display.hear(noon, 1.0);
    }
    {
        DisplayRun display(place());
        display.hear(noon, 1.0);
        display.hear(noon + hour, 2.0);
        QVERIFY(display.household.meters.at(gas).faults().empty());
    }
    const DisplayRun display(place());
    QCOMPARE(display.household.meters.at(gas).total(), 1.0);
}

QTEST_GUILESS_MAIN(tst_HistoryKeeper)
#include "tst_historykeeper.moc"
