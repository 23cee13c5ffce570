// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1tcplink.h"

P1TcpLink::P1TcpLink(const QString &device, quint16 devicePort, int pause, QObject *parent)
    : P1Link(parent), host(device), port(devicePort)
{
    retry.setSingleShot(true);
    retry.setInterval(pause);
    connect(&retry, &QTimer::timeout, this, &P1TcpLink::connectToDevice);
    connect(&socket, &QTcpSocket::connected, this, [this] { wasConnected = true; });
    connect(&socket, &QTcpSocket::readyRead, this, &P1TcpLink::read);
    connect(&socket, &QTcpSocket::errorOccurred, this, &P1TcpLink::handleLoss);
}

P1TcpLink::~P1TcpLink()
{
    // Closing it tells of a loss, which nobody is left to hear.
    socket.disconnect(this);
}

void P1TcpLink::start()
{
    QTimer::singleShot(0, this, &P1TcpLink::connectToDevice);
}

void P1TcpLink::confirm()
{
    isTold = false;
}

void P1TcpLink::renew()
{
    if (socket.state() == QAbstractSocket::ConnectedState) {
        tell(tr("nothing comes through the connection; it is made anew"));
    }
    socket.abort();
    if (wasConnected) {
        wasConnected = false;
        Q_EMIT interrupted();
    }
    connectToDevice();
}

void P1TcpLink::connectToDevice()
{
    retry.stop();
    socket.connectToHost(host, port, QIODevice::ReadOnly);
}

void P1TcpLink::read()
{
    Q_EMIT received(socket.readAll());
}

void P1TcpLink::handleLoss()
{
    if (socket.bytesAvailable() > 0) {
        read();
    }
    tell(wasConnected ? tr("the connection was lost: %1").arg(socket.errorString())
                      : tr("cannot be connected to: %1").arg(socket.errorString()));
    socket.abort();
    if (wasConnected) {
        wasConnected = false;
        Q_EMIT interrupted();
    }
    retry.start();
}

void P1TcpLink::tell(const QString &what)
{
    if (!isTold) {
        isTold = true;
        Q_EMIT problem(what);
    }
}
