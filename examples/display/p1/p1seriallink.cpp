// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1seriallink.h"

namespace {

void setLine(QSerialPort &port, bool isOldLine)
{
    port.setBaudRate(isOldLine ? QSerialPort::Baud9600 : QSerialPort::Baud115200);
    port.setDataBits(isOldLine ? QSerialPort::Data7 : QSerialPort::Data8);
    port.setParity(isOldLine ? QSerialPort::EvenParity : QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
}

} // namespace

P1SerialLink::P1SerialLink(const QString &device, int milliseconds, QObject *parent)
    : P1Link(parent)
{
    port.setPortName(device);
    patience.setInterval(milliseconds);
    connect(&patience, &QTimer::timeout, this, &P1SerialLink::change);
    connect(&port, &QSerialPort::readyRead, this, &P1SerialLink::read);
    connect(&port, &QSerialPort::errorOccurred, this, &P1SerialLink::handleError);
}

P1SerialLink::~P1SerialLink()
{
    // Closing it tells of errors, which nobody is left to hear.
    port.disconnect(this);
}

void P1SerialLink::start()
{
    patience.start();
    QTimer::singleShot(0, this, &P1SerialLink::open);
}

void P1SerialLink::confirm()
{
    patience.start();
    isTold = false;
}

void P1SerialLink::open()
{
    setLine(port, isOldLine);
    if (!port.open(QIODevice::ReadOnly)) {
        tell(tr("cannot be opened: %1").arg(port.errorString()));
    }
}

void P1SerialLink::change()
{
    // A port that could not be opened says nothing about the line.
    if (port.isOpen()) {
        isOldLine = !isOldLine;
        port.close();
        Q_EMIT interrupted();
    }
    open();
}

void P1SerialLink::read()
{
    Q_EMIT received(port.readAll());
}

void P1SerialLink::handleError(QSerialPort::SerialPortError error)
{
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError) {
        return;
    }
    if (port.isOpen()) {
        tell(tr("cannot be read: %1").arg(port.errorString()));
        port.close();
        Q_EMIT interrupted();
    }
}

void P1SerialLink::tell(const QString &what)
{
    if (!isTold) {
        isTold = true;
        Q_EMIT problem(what);
    }
}
