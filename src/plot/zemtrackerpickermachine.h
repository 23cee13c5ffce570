// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTRACKERPICKERMACHINE_H
#define ZEMTRACKERPICKERMACHINE_H

#include "zemkit_export.h"

#include <qwt_picker_machine.h>

#include <memory>

/**
 * Tells a tap from a drag: a point is selected when a button is released that was pressed without
 * any move since. So a picker can share its canvas with a zoomer and a panner.
 *
 * The first move after the pointer has left the canvas only arms the machine and is none that makes
 * a drag, since a touch begins with it. Without a press before it a release selects nothing.
 */
class ZEM_EXPORT ZEMTrackerPickerMachine : public QwtPickerMachine
{
public:
    /**
     * @param mousePattern which QwtEventPattern::MousePatternCode is the tapping button; a number
     *                     that is none never matches
     */
    explicit ZEMTrackerPickerMachine(unsigned int mousePattern);
    ~ZEMTrackerPickerMachine() override;

    /** All three commands of a selection come at once, at the release. */
    QList<Command> transition(const QwtEventPattern &pattern, const QEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMTrackerPickerMachine)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
