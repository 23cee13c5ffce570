// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "messagelist.h"

#include <algorithm>

void MessageList::add(const QString &message)
{
    insertRow(0);
    setData(index(0), message);
    if (rowCount() > most) {
        removeRows(most, rowCount() - most);
    }
    notSeen = std::min(notSeen + 1, most);
    Q_EMIT unseenChanged(notSeen);
}

void MessageList::markSeen()
{
    notSeen = 0;
    Q_EMIT unseenChanged(notSeen);
}
