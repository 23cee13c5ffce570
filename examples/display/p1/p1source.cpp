// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1source.h"

#include "p1filelink.h"
#include "p1pipelink.h"
#include "p1seriallink.h"
#include "p1tcplink.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

std::unique_ptr<P1Link> makeLink(const P1Address &address, const P1Settings &settings)
{
    switch (address.kind) {
    case P1Address::Kind::File:
        return std::make_unique<P1FileLink>(address.name, settings.speed);
    case P1Address::Kind::Pipe:
        return std::make_unique<P1PipeLink>(address.name);
    case P1Address::Kind::Serial:
        return std::make_unique<P1SerialLink>(address.name, settings.serialPatience);
    case P1Address::Kind::Network:
        break;
    }
    return std::make_unique<P1TcpLink>(address.name, address.port, settings.retry);
}

/** "HOST:PORT"; a port of 0 if it is not that. */
P1Address parseNetworkAddress(const QString &text)
{
    P1Address address;
    address.kind = P1Address::Kind::Network;
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    QString host = text.left(colon);
    const bool hasBrackets = host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']'));
    if (hasBrackets) {
        host = host.mid(1, host.size() - 2);
    }
    const bool isHost = !host.isEmpty() && !host.contains(QLatin1Char('/'))
        && (hasBrackets || !host.contains(QLatin1Char(':')));
    if (colon > 0 && isHost) {
        address.name = host;
        address.port = text.mid(colon + 1).toUShort();
    }
    return address;
}

QString reasonOf(const P1Splitter::Piece &piece)
{
    switch (piece.kind) {
    case P1Splitter::Piece::Kind::Telegram:
        break;
    case P1Splitter::Piece::Kind::Cut:
        return P1Source::tr("it is cut short");
    case P1Splitter::Piece::Kind::TooLong:
        return P1Source::tr("it does not end within %1 bytes").arg(P1Splitter::longestTelegram);
    case P1Splitter::Piece::Kind::Stray:
        return P1Source::tr("its beginning is missing");
    }
    return QString();
}

} // namespace

P1Address parseP1Address(const QString &text)
{
    if (text == QLatin1String("-")) {
        return {P1Address::Kind::Pipe, QString(), 0};
    }
    struct stat status
    {
    };
    if (::stat(QFile::encodeName(text).constData(), &status) == 0) {
        if (S_ISFIFO(status.st_mode)) {
            return {P1Address::Kind::Pipe, text, 0};
        }
        return {S_ISCHR(status.st_mode) ? P1Address::Kind::Serial : P1Address::Kind::File, text, 0};
    }
    if (text.startsWith(QLatin1String("/dev/"))) {
        return {P1Address::Kind::Serial, text, 0};
    }
    const QString scheme = QStringLiteral("tcp://");
    const P1Address network =
        parseNetworkAddress(text.startsWith(scheme) ? text.mid(scheme.size()) : text);
    return network.port > 0 ? network : P1Address {P1Address::Kind::File, text, 0};
}

P1Source::P1Source(const QString &meterAddress, const P1Settings &settings, QObject *parent)
    : LiveMeter(parent), address(meterAddress),
      link(makeLink(parseP1Address(meterAddress), settings))
{
    watchdog.setInterval(settings.watchdog);
    connect(&watchdog, &QTimer::timeout, this, &P1Source::handleSilence);
    connect(link.get(), &P1Link::received, this,
            [this](const QByteArray &bytes) { take(splitter.add(bytes)); });
    connect(link.get(), &P1Link::interrupted, this, [this] { take(splitter.finish()); });
    connect(link.get(), &P1Link::problem, this,
            [this](const QString &what) { tell(what, QStringLiteral("connection")); });
    connect(link.get(), &P1Link::ended, this, &P1Source::handleEnd);
}

P1Source::~P1Source() = default;

void P1Source::start()
{
    watchdog.start();
    link->start();
}

void P1Source::take(const std::vector<P1Splitter::Piece> &pieces)
{
    for (const P1Splitter::Piece &piece : pieces) {
        if (piece.kind == P1Splitter::Piece::Kind::Telegram) {
            take(parseP1Telegram(piece.bytes));
        } else {
            drop(reasonOf(piece));
        }
    }
}

void P1Source::take(const P1Telegram &received)
{
    if (!received.isGood()) {
        drop(received.problem);
        return;
    }
    ++good;
    droppedInARow = 0;
    watchdog.start();
    link->confirm();
    if (failed) {
        failed = false;
        Q_EMIT meteringFailed(false);
    }
    Q_EMIT telegram(received);
}

void P1Source::drop(const QString &reason)
{
    ++dropped;
    ++droppedInARow;
    if (droppedInARow <= mostNamed) {
        tell(tr("telegram %1 is dropped: %2").arg(good + dropped).arg(reason),
             QStringLiteral("telegram"));
    }
    if (droppedInARow == mostNamed) {
        tell(tr("no more are named until a good one comes"));
    }
}

void P1Source::tell(const QString &what, const QString &kind)
{
    hasTold = true;
    Q_EMIT problem(QStringLiteral("%1: %2").arg(address, what), kind);
}

void P1Source::handleSilence()
{
    if (!failed) {
        failed = true;
        Q_EMIT meteringFailed(true);
    }
    link->renew();
}

void P1Source::handleEnd()
{
    take(splitter.finish());
    if (good + dropped == 0 && !hasTold) {
        tell(tr("there is no telegram in it"));
    }
    Q_EMIT ended();
}
