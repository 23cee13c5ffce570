// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LAYOUTMARGINS_P_H
#define LAYOUTMARGINS_P_H

#include <QLayout>
#include <QMargins>

/** Sets one of the contents margins of @p layout, by its setter, and leaves the others alone. */
inline void setLayoutMargin(QLayout *layout, void (QMargins::*setMargin)(int), int margin)
{
    QMargins margins = layout->contentsMargins();
    (margins.*setMargin)(margin);
    layout->setContentsMargins(margins);
}

#endif
