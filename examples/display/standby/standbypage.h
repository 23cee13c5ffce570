// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STANDBYPAGE_H
#define STANDBYPAGE_H

#include <QColor>
#include <ZEMPageBackground>

/** A dark screen until it is touched. */
class StandbyPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit StandbyPage(QWidget *parent = nullptr) : ZEMPageBackground(parent)
    {
        setObjectName(QStringLiteral("standby"));
        setBackgroundColor(QColor(Qt::black));
        setMinimumSize(0, 0);
    }

Q_SIGNALS:
    void touched();

protected:
    void mouseReleaseEvent(QMouseEvent * /*event*/) override { Q_EMIT touched(); }
};

#endif
