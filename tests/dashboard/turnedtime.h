// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TURNEDTIME_H
#define TURNEDTIME_H

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QTest>
#include <QTimeLine>

namespace DashboardTest {

/** Takes the ticks of time lines away: the one that runs moves only when a test turns it. */
class TurnedTime : public QObject
{
public:
    TurnedTime() { qApp->installEventFilter(this); }
    Q_DISABLE_COPY(TurnedTime)

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *ticking =
            event->type() == QEvent::Timer ? qobject_cast<QTimeLine *>(watched) : nullptr;
        if (ticking) {
            runningLine = ticking;
        }
        return ticking;
    }

    /** The time line that runs, which shows itself with its first tick; null if none does. */
    QTimeLine *line()
    {
        constexpr int patience = 120000; // ms, for a machine that hangs
        const bool found = QTest::qWaitFor([this] { return !runningLine.isNull(); }, patience);
        return found ? runningLine.data() : nullptr;
    }

    /** Goes to @p time, in ms; the end of a pass, and 0 of a falling one, begins the next pass. */
    void turnTo(int time)
    {
        QVERIFY(line());
        line()->setCurrentTime(time);
    }

private:
    QPointer<QTimeLine> runningLine;
};

} // namespace DashboardTest

#endif
