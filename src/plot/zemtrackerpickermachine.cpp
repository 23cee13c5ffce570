// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtrackerpickermachine.h"

#include <QMouseEvent>

#include <qwt_event_pattern.h>

namespace {

enum State { Idle = 0, Armed = 1 };

} // namespace

class ZEMTrackerPickerMachine::Private
{
public:
    bool isTapButton(const QwtEventPattern &pattern, const QEvent *event) const
    {
        return mousePattern < QwtEventPattern::MousePatternCount
            && pattern.mouseMatch(static_cast<QwtEventPattern::MousePatternCode>(mousePattern),
                                  static_cast<const QMouseEvent *>(event));
    }

    // A release that follows no press is not a tap.
    bool moved = true;
    unsigned int mousePattern = 0;
};

ZEMTrackerPickerMachine::ZEMTrackerPickerMachine(unsigned int mousePattern)
    : QwtPickerMachine(QwtPickerMachine::PointSelection), d(std::make_unique<Private>())
{
    d->mousePattern = mousePattern;
}

ZEMTrackerPickerMachine::~ZEMTrackerPickerMachine() = default;

QList<QwtPickerMachine::Command> ZEMTrackerPickerMachine::transition(const QwtEventPattern &pattern,
                                                                     const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (d->isTapButton(pattern, event)) {
            d->moved = false;
        }
        return {};
    case QEvent::MouseButtonRelease:
        if (d->isTapButton(pattern, event) && !d->moved) {
            return {Begin, Append, End};
        }
        return {};
    case QEvent::MouseMove:
    case QEvent::Enter:
        if (state() == Idle) {
            setState(Armed);
            return {};
        }
        d->moved = true;
        return {Move};
    case QEvent::Leave:
        setState(Idle);
        return {};
    default:
        return {};
    }
}
