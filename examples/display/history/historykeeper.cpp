// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historykeeper.h"

#include "thinning.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

using Readings::Household;
using Readings::Register;

using Trouble = HistoryFile::Trouble;

namespace {

constexpr qint64 day = 24 * 3600;

} // namespace

HistoryKeeper::HistoryKeeper(const QString &directoryPath, QObject *parent)
    : QObject(parent), directory(QDir(directoryPath).absolutePath())
{
}

HistoryKeeper::~HistoryKeeper() = default;

QString HistoryKeeper::defaultDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/zemkit");
}

QString HistoryKeeper::pathIn(const QString &directory)
{
    return QDir(directory).absoluteFilePath(QStringLiteral("history.sqlite"));
}

void HistoryKeeper::load(Household *household)
{
    if (!makeDirectory()) {
        return;
    }
    // A lock of SQLite's own would keep other programs from importing and exporting.
    const bool isSecond =
        lock.acquire(directory + QStringLiteral("/history.lock")) == WriterLock::Answer::Taken;
    if (isSecond) {
        tell(tr("another display keeps the history; this one shows it and adds nothing"));
    }
    openFile();
    if (state != State::Writing) {
        return;
    }
    if (isSecond) {
        state = State::Off;
    }
    Household known = *household;
    const Trouble trouble = file.read(&known);
    if (trouble == Trouble::None) {
        *household = std::move(known);
    } else {
        handle(trouble);
    }
}

void HistoryKeeper::add(const Register &meterRegister, qint64 instant, double value)
{
    if (state == State::Off) {
        return;
    }
    waiting.push_back({meterRegister, instant, value});
}

void HistoryKeeper::keep(qint64 now, Household *household)
{
    const bool newDay = now / day != thinnedDay;
    thinnedDay = now / day;
    const qint64 before = now - Readings::fineHistory;
    const qint64 step = Readings::keptStep(household->timeZone);
    if (newDay) {
        for (auto &[meterRegister, meter] : household->meters) {
            meter.thin(before, step);
        }
    }

    if (state == State::Blocked) {
        openFile();
    }
    if (state == State::Writing) {
        Trouble trouble = file.write(waiting, HistoryFile::Known::IsReplaced);
        if (trouble == Trouble::None) {
            waiting.clear();
            lastTold.clear();
            if (newDay) {
                trouble = file.thin(before, step);
            }
        }
        handle(trouble);
    }
    if (waiting.size() > mostWaiting) {
        waiting.erase(waiting.begin(), waiting.end() - std::ptrdiff_t(mostWaiting));
    }
}

bool HistoryKeeper::makeDirectory()
{
    if (QDir().mkpath(directory)) {
        return true;
    }
    tell(tr("the directory cannot be made; the history is not kept"));
    return false;
}

void HistoryKeeper::openFile()
{
    state = State::Blocked;
    const Trouble trouble = file.open(path());
    if (trouble == Trouble::None) {
        state = State::Writing;
    }
    handle(trouble);
}

void HistoryKeeper::handle(Trouble trouble)
{
    switch (trouble) {
    case Trouble::None:
        break;
    case Trouble::Newer:
        state = State::Off;
        tell(tr("the history was written by a newer version of this program (%1); it is left "
                "alone, and nothing is kept")
                 .arg(file.reason()));
        break;
    case Trouble::Damaged:
        setAside();
        break;
    case Trouble::Unusable:
        tell(tr("the history cannot be kept: %1").arg(file.reason()));
        break;
    }
}

void HistoryKeeper::setAside()
{
    const QString reason = file.reason();
    file.close();
    state = State::Off;
    if (!lock.isMine()) {
        tell(tr("the history is damaged (%1)").arg(reason));
        return;
    }
    const QString stamp =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    const QString name = QStringLiteral("history-damaged-%1.sqlite").arg(stamp);
    // The log belongs to the file: it may hold what a later repair needs.
    QFile::rename(path() + QStringLiteral("-wal"),
                  directory + QLatin1Char('/') + name + QStringLiteral("-wal"));
    QFile::remove(path() + QStringLiteral("-shm"));
    if (!QFile::rename(path(), directory + QLatin1Char('/') + name)) {
        tell(
            tr("the history is damaged (%1) and cannot be set aside; nothing is kept").arg(reason));
        return;
    }
    tell(tr("the history is damaged (%1); it is set aside as %2, and a new one is begun")
             .arg(reason, name));
    state = State::Blocked;
    if (file.open(path()) == Trouble::None) {
        state = State::Writing;
    } else {
        tell(tr("the history cannot be kept: %1").arg(file.reason()));
    }
}

void HistoryKeeper::tell(const QString &what)
{
    if (what != lastTold) {
        lastTold = what;
        Q_EMIT problem(QStringLiteral("%1: %2").arg(path(), what));
    }
}

QString HistoryKeeper::path() const
{
    return pathIn(directory);
}
