// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LAYOUTMARGINS_P_H
#define LAYOUTMARGINS_P_H

#include <QLayout>
#include <QMargins>
#include <QVBoxLayout>

/** Sets one of the contents margins of @p layout, by its setter, and leaves the others alone. */
inline void setLayoutMargin(QLayout *layout, void (QMargins::*setMargin)(int), int margin)
{
    QMargins margins = layout->contentsMargins();
    (margins.*setMargin)(margin);
    layout->setContentsMargins(margins);
}

/** Keeps @p widget as large as @p space, which becomes its parent, by a layout without margins. */
inline void fillWithoutMargins(QWidget *space, QWidget *widget)
{
    auto *layout = new QVBoxLayout(space);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
}

#endif
