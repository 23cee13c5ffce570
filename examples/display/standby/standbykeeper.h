// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STANDBYKEEPER_H
#define STANDBYKEEPER_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class DisplaySettings;
class EnergySource;

/**
 * Looks once a minute for how long nobody has touched the display, and tells what it is to do then.
 */
class StandbyKeeper : public QObject
{
    Q_OBJECT

public:
    /**
     * By the clock of @p source and the rule of @p settings, which both must outlive it. A minute
     * without a touch has @p minute milliseconds.
     */
    StandbyKeeper(const EnergySource &source, const DisplaySettings &settings,
                  QObject *parent = nullptr, int minute = 60000);

    /** Looks on from now; does not look while the display is dark, when only a touch counts. */
    void start();
    void stop();
    bool isLooking() const { return timer.isActive(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void startPageWanted();
    void standbyWanted();

private:
    void look();

    const EnergySource &source;
    const DisplaySettings &settings;
    const int minute;
    QElapsedTimer sinceTouch;
    QTimer timer;
};

#endif
