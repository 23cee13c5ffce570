// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1FILELINK_H
#define P1FILELINK_H

#include "p1link.h"

#include <QFile>
#include <QTimer>
#include <optional>

/**
 * Plays a file of telegrams, as fast as it can be read or by the times in the telegrams.
 */
class P1FileLink : public P1Link
{
    Q_OBJECT

public:
    /**
     * With a @p speed of 1 the telegrams come as far apart as their times are, with one of 10 ten
     * times as fast; a stretch without telegrams is shortened to a minute, and telegrams that do
     * not tell their time come every 10 seconds. With 0 all comes at once.
     */
    P1FileLink(const QString &path, double speed, QObject *parent = nullptr);
    ~P1FileLink() override;

    void start() override;

private:
    void readAll();
    void readUntilNextTime();
    void readOn();
    int pause(const QByteArray &line);
    void end();

    QFile file;
    const double speed;
    QTimer next;
    QByteArray waiting;
    bool hasTime = false;
    std::optional<qint64> lastTime;
};

#endif
