// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historyfile.h"
#include "p1samples.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr qint64 pace = 10; // seconds from telegram to telegram
constexpr qint64 mostLost = 300; // seconds of the meter's clock
constexpr int mostTelegrams = 400; // between start and kill
constexpr int usualKills = 15;
constexpr int patience = 300000; // ms, for what hangs
constexpr int glance = 100; // microseconds
const qint64 begin = utc("2024-06-01T10:00:00");

double counterAt(qint64 instant)
{
    return 1000.0 + double((instant - begin) / pace) / 1000.0;
}

/** A meter that speaks as fast as it is heard. */
class FastMeter
{
public:
    explicit FastMeter(const QString &path)
    {
        ::mkfifo(QFile::encodeName(path).constData(), 0600);
        pipe = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK);
    }
    ~FastMeter() { ::close(pipe); }
    Q_DISABLE_COPY(FastMeter)

    /** Sends the next telegram and waits until it was taken out of the pipe; false if it hangs. */
    bool speak()
    {
        now += pace;
        const QByteArray bytes = telegramAt(now, counterAt(now), 400);
        if (::write(pipe, bytes.constData(), std::size_t(bytes.size())) != bytes.size()) {
            return false;
        }
        int unread = 1;
        for (qint64 waited = 0; unread > 0; waited += glance) {
            if (::ioctl(pipe, FIONREAD, &unread) != 0 || waited > qint64(patience) * 1000) {
                return false;
            }
            if (unread > 0) {
                ::usleep(glance);
            }
        }
        return true;
    }

    /** The time of the last telegram but one: when the last was taken, that one had been heard. */
    qint64 heardUntil() const { return now - pace; }

    /** What a killed listener has left in the pipe is gone. */
    void drain() const
    {
        char bytes[4096];
        while (::read(pipe, bytes, sizeof bytes) > 0) { }
    }

private:
    int pipe = -1;
    qint64 now = begin;
};

QString integrityOf(const QString &path)
{
    QString answer;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "checking");
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(QStringLiteral("PRAGMA integrity_check"), database);
        answer = query.next() ? query.value(0).toString() : query.lastError().text();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("checking"));
    return answer;
}

} // namespace

/**
 * Kills zemkit-display at random moments while a meter speaks, and looks at what is left. ZEM_KILLS
 * tells how often, ZEM_SEED with which random numbers.
 */
class tst_KilledDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void historySurvives();
};

void tst_KilledDisplay::historySurvives()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("ZEM_KILLS", &isNumber);
    const int kills = isNumber ? wanted : usualKills;
    const auto seed = quint32(qEnvironmentVariableIntValue("ZEM_SEED"));
    QRandomGenerator random(seed);
    const QTemporaryDir directory;
    const QString pipe = directory.filePath(QStringLiteral("meter"));
    const QString file = directory.filePath(QStringLiteral("history.sqlite"));
    FastMeter meter(pipe);

    for (int kill = 0; kill < kills; ++kill) {
        QProcess display;
        display.start(QStringLiteral(DISPLAY_PROGRAM),
                      {QStringLiteral("--p1"), pipe, QStringLiteral("--data"), directory.path()});
        const int telegrams = 2 + int(random.bounded(mostTelegrams));
        for (int i = 0; i < telegrams; ++i) {
            QVERIFY(meter.speak());
        }
        ::usleep(random.bounded(3000U));
        display.kill();
        QVERIFY(display.waitForFinished(patience));
        QCOMPARE(display.exitStatus(), QProcess::CrashExit);
        meter.drain();

        const QByteArray place = QByteArrayLiteral("seed ") + QByteArray::number(seed) + ", kill "
            + QByteArray::number(kill);
        QVERIFY2(integrityOf(file) == QLatin1String("ok"), place.constData());
        Household household;
        HistoryFile history;
        QVERIFY2(history.open(file) == HistoryFile::Trouble::None, place.constData());
        QVERIFY2(history.read(&household) == HistoryFile::Trouble::None, place.constData());
        const auto kept = household.meters.find(importLow);
        QVERIFY2(kept != household.meters.end(), place.constData());
        const qint64 last = *kept->second.lastInstant();
        QVERIFY2(last >= meter.heardUntil() - mostLost, place.constData());
        // A reading at a full step is the last one heard until then.
        QVERIFY2(qAbs(*kept->second.readingAt(last) - counterAt(last)) < 1e-9, place.constData());
    }
}

QTEST_GUILESS_MAIN(tst_KilledDisplay)
#include "tst_killeddisplay.moc"
