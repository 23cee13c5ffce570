// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "standbykeeper.h"

#include "displaysettings.h"
#include "energysource.h"
#include "standbyrule.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

bool isTouch(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
        || type == QEvent::MouseMove || type == QEvent::TouchBegin || type == QEvent::TouchUpdate
        || type == QEvent::KeyPress;
}

} // namespace

StandbyKeeper::StandbyKeeper(const EnergySource &theSource, const DisplaySettings &theSettings,
                             QObject *parent, int theMinute)
    : QObject(parent), source(theSource), settings(theSettings), minute(theMinute)
{
    QCoreApplication::instance()->installEventFilter(this);
    timer.setInterval(minute);
    connect(&timer, &QTimer::timeout, this, &StandbyKeeper::look);
    start();
}

void StandbyKeeper::start()
{
    sinceTouch.start();
    timer.start();
}

void StandbyKeeper::stop()
{
    timer.stop();
}

bool StandbyKeeper::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (isTouch(event->type())) {
        sinceTouch.restart();
    }
    return false;
}

void StandbyKeeper::look()
{
    switch (
        restAfter(int(sinceTouch.elapsed() / minute), settings.standby(), source.now().time())) {
    case Rest::Standby:
        Q_EMIT standbyWanted();
        break;
    case Rest::StartPage:
        Q_EMIT startPageWanted();
        break;
    case Rest::Nothing:
        break;
    }
}
