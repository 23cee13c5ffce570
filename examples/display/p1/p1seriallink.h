// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1SERIALLINK_H
#define P1SERIALLINK_H

#include "p1link.h"

#include <QSerialPort>
#include <QTimer>

/**
 * Telegrams from a serial port. It begins with 115200 baud 8N1, the line of all meters since
 * version 4; while no good telegram comes it changes to 9600 baud 7E1, that of the older ones, and
 * back. A port that is not there, or that is pulled out, is tried again at each change.
 */
class P1SerialLink : public P1Link
{
    Q_OBJECT

public:
    /** It changes after @p patience milliseconds without a good telegram. */
    P1SerialLink(const QString &device, int patience, QObject *parent = nullptr);
    ~P1SerialLink() override;

    void start() override;
    void confirm() override;

private:
    void open();
    void change();
    void read();
    void handleError(QSerialPort::SerialPortError error);
    void tell(const QString &what);

    QSerialPort port;
    QTimer patience;
    bool isOldLine = false;
    bool isTold = false;
};

#endif
