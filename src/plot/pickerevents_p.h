// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PICKEREVENTS_P_H
#define PICKEREVENTS_P_H

#include <QPointer>

/** How the pickers of the library hear of events. */
namespace PickerEvents {

/**
 * Has @p picker filter @p event as its class @p Picker does, and takes it for itself if a slot has
 * deleted @p watched meanwhile: Qt would go on with the filters of what is gone. The picker may be
 * gone as well.
 */
template <class Picker>
bool filtered(Picker *picker, QObject *watched, QEvent *event)
{
    const QPointer<QObject> target(watched);
    return picker->Picker::eventFilter(watched, event) || !target;
}

} // namespace PickerEvents

#endif
