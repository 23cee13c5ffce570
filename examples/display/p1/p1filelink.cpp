// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1filelink.h"

#include "p1splitter.h"
#include "p1time.h"

#include <algorithm>

namespace {

constexpr qint64 chunk = 65536;
constexpr qint64 longestPause = 60;
constexpr qint64 pauseWithoutTime = 10;
constexpr int millisecondsPerSecond = 1000;

std::optional<qint64> timeIn(const QByteArray &line)
{
    static const QByteArray start = QByteArrayLiteral("0-0:1.0.0(");
    const int end = line.indexOf(')');
    if (!line.startsWith(start) || end < 0) {
        return std::nullopt;
    }
    return parseP1Time(
        std::string_view(line.constData() + start.size(), std::size_t(end - start.size())));
}

} // namespace

P1FileLink::P1FileLink(const QString &path, double factor, QObject *parent)
    : P1Link(parent), file(path), speed(factor)
{
    next.setSingleShot(true);
    connect(&next, &QTimer::timeout, this, &P1FileLink::readOn);
}

P1FileLink::~P1FileLink() = default;

void P1FileLink::start()
{
    next.start(0);
}

void P1FileLink::readOn()
{
    if (!file.isOpen() && !file.open(QIODevice::ReadOnly)) {
        Q_EMIT problem(tr("cannot be opened: %1").arg(file.errorString()));
        Q_EMIT ended();
        return;
    }
    if (speed > 0.0) {
        readUntilNextTime();
    } else {
        readAll();
    }
}

void P1FileLink::readAll()
{
    const QByteArray bytes = file.read(chunk);
    if (bytes.isEmpty()) {
        end();
        return;
    }
    next.start(0);
    Q_EMIT received(bytes);
}

void P1FileLink::readUntilNextTime()
{
    QByteArray bytes = waiting;
    waiting.clear();
    while (bytes.size() < chunk) {
        const QByteArray line = file.readLine(P1Splitter::longestTelegram);
        if (line.isEmpty()) {
            if (!bytes.isEmpty()) {
                Q_EMIT received(bytes);
            }
            end();
            return;
        }
        if (const int milliseconds = pause(line); milliseconds > 0) {
            waiting = line;
            next.start(milliseconds);
            break;
        }
        bytes += line;
    }
    if (!next.isActive()) {
        next.start(0);
    }
    Q_EMIT received(bytes);
}

/** How long the telegram of which @p line is a part has to wait at this line, in milliseconds. */
int P1FileLink::pause(const QByteArray &line)
{
    const auto scaled = [this](qint64 seconds) {
        const qint64 bounded = qBound(qint64(0), seconds, longestPause);
        return int(double(bounded) * millisecondsPerSecond / speed);
    };
    if (const std::optional<qint64> time = timeIn(line)) {
        const qint64 seconds = lastTime ? *time - *lastTime : 0;
        lastTime = time;
        hasTime = true;
        return scaled(seconds);
    }
    if (!line.startsWith('/')) {
        return 0;
    }
    // Only a telegram that was without a time makes the next one wait here.
    const bool isFirst = file.pos() == line.size();
    const bool waits = !hasTime && !isFirst;
    hasTime = false;
    return waits ? scaled(pauseWithoutTime) : 0;
}

void P1FileLink::end()
{
    if (file.error() != QFileDevice::NoError) {
        Q_EMIT problem(tr("cannot be read: %1").arg(file.errorString()));
    }
    file.close();
    Q_EMIT ended();
}
