// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1TCPLINK_H
#define P1TCPLINK_H

#include "p1link.h"

#include <QTcpSocket>
#include <QTimer>

/**
 * Telegrams over a network, from a device beside the meter that hands on what the meter sends. When
 * the connection ends, or cannot be made, it is tried again and again.
 */
class P1TcpLink : public P1Link
{
    Q_OBJECT

public:
    /** The pause between two tries is @p pause milliseconds. */
    P1TcpLink(const QString &host, quint16 port, int pause, QObject *parent = nullptr);
    ~P1TcpLink() override;

    void start() override;
    void confirm() override;
    /** A device that was switched off leaves a connection behind that never ends by itself. */
    void renew() override;

private:
    void connectToDevice();
    void read();
    void handleLoss();
    void tell(const QString &what);

    const QString host;
    const quint16 port;
    QTcpSocket socket;
    QTimer retry;
    bool wasConnected = false;
    bool isTold = false;
};

#endif
