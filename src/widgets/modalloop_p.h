// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MODALLOOP_P_H
#define MODALLOOP_P_H

#include <QEventLoop>
#include <QObject>
#include <QPointer>

/** The local event loop in which a dialog waits for its answer, while the display lives on. */
class ModalLoop
{
public:
    /**
     * Returns when exit() is called, or the application quits. False if @p dialog has been
     * destroyed meanwhile, and with it, as it is a part of the dialog, this object.
     */
    bool run(QObject *dialog)
    {
        QEventLoop loop;
        // Nobody could end the loop of a dialog that is destroyed by one of the host's slots.
        QObject::connect(dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
        const QPointer<QObject> alive(dialog);
        eventLoop = &loop;
        loop.exec();
        if (!alive) {
            return false;
        }
        eventLoop.clear();
        return true;
    }

    /** Ends the loop, if there is one. */
    void exit() const
    {
        if (eventLoop) {
            eventLoop->exit(0);
        }
    }

private:
    QPointer<QEventLoop> eventLoop;
};

#endif
