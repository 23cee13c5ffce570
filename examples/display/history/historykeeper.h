// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYKEEPER_H
#define HISTORYKEEPER_H

#include "historyfile.h"
#include "writerlock.h"

#include <QObject>

/**
 * Keeps what a live source enters into a household, so that it is there again after the next start.
 *
 * Readings wait until keep() writes them; a source calls it once for each of its steps of five
 * minutes, which is all that a sudden end can take. Whatever goes wrong with the file is told by
 * problem(), once, and the household lives on without it: readings that could not be written are
 * tried again at the next call.
 *
 * - A damaged file is set aside as "history-damaged-TIME.sqlite", and a new one is begun.
 * - A file of a later version of the program is left alone.
 * - The second of two displays on one file shows what is in it and writes nothing.
 */
class HistoryKeeper : public QObject
{
    Q_OBJECT

public:
    /** Readings that wait for a file that cannot be written; the oldest are given up above it. */
    static constexpr std::size_t mostWaiting = 100000;

    /** The file is "history.sqlite" in @p directory, which is made if need be. */
    explicit HistoryKeeper(const QString &directory, QObject *parent = nullptr);
    ~HistoryKeeper() override;

    /** The directory of a user's history: "zemkit" where the desktop keeps the data of programs. */
    static QString defaultDirectory();
    /** The file of the history in a directory. */
    static QString pathIn(const QString &directory);

    /**
     * Opens the file and enters into @p household what is in it. To be called once, before add(),
     * and when somebody listens to problem().
     */
    void load(Readings::Household *household);

    /** A reading that is to be kept. */
    void add(const Readings::Register &meterRegister, qint64 instant, double value);

    /**
     * Writes what waits. Once a day of @p now (seconds since 1970-01-01 UTC) what is older than
     * Readings::fineHistory is thinned, in the file and in @p household.
     */
    void keep(qint64 now, Readings::Household *household);

Q_SIGNALS:
    /** One line in English: "PATH: what is wrong". */
    void problem(const QString &line);

private:
    enum class State {
        Off, ///< nothing is kept
        Blocked, ///< the file cannot be used yet; it is tried again
        Writing,
    };

    bool makeDirectory();
    void openFile();
    void setAside();
    void handle(HistoryFile::Trouble trouble);
    void tell(const QString &what);
    QString path() const;

    const QString directory;
    HistoryFile file;
    WriterLock lock;
    State state = State::Off;
    std::vector<KeptReading> waiting;
    qint64 thinnedDay = 0;
    QString lastTold;
};

#endif
