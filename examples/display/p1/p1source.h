// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1SOURCE_H
#define P1SOURCE_H

#include "livemeter.h"
#include "p1splitter.h"

#include <QTimer>
#include <memory>

class P1Link;

/** Where a smart meter is, as a user writes it. */
struct P1Address
{
    enum class Kind { File, Pipe, Serial, Network };

    Kind kind = Kind::File;
    /** The path or the host; empty for standard input, which is a pipe. */
    QString name;
    quint16 port = 0;
};

/**
 * Reads an address: "-" is standard input; "HOST:PORT" a device in the network, with an IPv6
 * address in brackets; a path that leads to a character device, or into /dev, is a serial port; one
 * that leads to a named pipe is that; all else is a file. What exists as a file is never a
 * HOST:PORT.
 */
P1Address parseP1Address(const QString &text);

/** Times in milliseconds, and what a file needs. */
struct P1Settings
{
    /** Of a file only: 0 plays it at once, 1 by the times in it, 10 ten times as fast. */
    double speed = 0.0;
    /** Without a good telegram for so long, metering has failed. */
    int watchdog = 30000;
    /** Pause before a lost connection is tried again. */
    int retry = 5000;
    /** A serial line changes its settings after so long without a good telegram. */
    int serialPatience = 12000;
};

/**
 * Follows a smart meter, wherever it is, for as long as it lives.
 *
 * @code
 * auto *meter = new P1Source(QStringLiteral("/dev/ttyUSB0"), P1Settings(), page);
 * connect(meter, &P1Source::telegram, page, &Page::showTelegram);
 * meter->start();
 * @endcode
 *
 * A telegram that is damaged, or holds nothing that is known, is dropped: it is counted and named
 * by problem(), and telegram() never tells of it. A file or standard input has an end, told by
 * ended().
 */
class P1Source : public LiveMeter
{
    Q_OBJECT

public:
    /** So many telegrams dropped one after the other are named; then it is quiet until a good one.
     */
    static constexpr int mostNamed = 20;

    /** @p address as at parseP1Address(). Nothing happens before start(). */
    explicit P1Source(const QString &address, const P1Settings &settings = P1Settings(),
                      QObject *parent = nullptr);
    ~P1Source() override;
    Q_DISABLE_COPY(P1Source)

    /** Good telegrams so far. */
    int goodCount() const { return good; }
    /** Telegrams dropped so far. */
    int droppedCount() const { return dropped; }
    /** Whether metering has failed, as told last. */
    bool hasFailed() const { return failed; }
    bool isMetering() const override { return good > 0 && !failed; }

public Q_SLOTS:
    /** Opens the link, soon, and starts the watchdog. To be called once. */
    void start() override;

private:
    void take(const std::vector<P1Splitter::Piece> &pieces);
    void take(const P1Telegram &telegram);
    void drop(const QString &reason);
    void tell(const QString &what, const QString &kind = QString());
    void handleSilence();
    void handleEnd();

    const QString address;
    const std::unique_ptr<P1Link> link;
    P1Splitter splitter;
    QTimer watchdog;
    int good = 0;
    int dropped = 0;
    int droppedInARow = 0;
    bool failed = false;
    bool hasTold = false;
};

#endif
