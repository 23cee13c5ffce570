// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1pipelink.h"

#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::size_t chunk = 65536;

} // namespace

P1PipeLink::P1PipeLink(const QString &pipe, QObject *parent) : P1Link(parent), path(pipe) { }

P1PipeLink::~P1PipeLink()
{
    close();
}

void P1PipeLink::start()
{
    QTimer::singleShot(0, this, &P1PipeLink::open);
}

void P1PipeLink::open()
{
    // A pipe without a writer would block the display, were it not opened to be written to as well;
    // nor does it end then when one writer goes and the next has not come.
    descriptor = path.isEmpty()
        ? STDIN_FILENO
        : ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        Q_EMIT problem(tr("cannot be opened: %1").arg(qt_error_string(errno)));
        Q_EMIT ended();
        return;
    }
    notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &P1PipeLink::read);
}

void P1PipeLink::read()
{
    std::array<char, chunk> buffer;
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        Q_EMIT received(QByteArray(buffer.data(), int(count)));
        return;
    }
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    if (count < 0) {
        Q_EMIT problem(tr("cannot be read: %1").arg(qt_error_string(errno)));
    }
    notifier->setEnabled(false);
    Q_EMIT ended();
}

void P1PipeLink::close()
{
    notifier.reset();
    if (descriptor > STDIN_FILENO) {
        ::close(descriptor);
    }
}
