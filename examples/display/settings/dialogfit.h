// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGFIT_H
#define DIALOGFIT_H

class QSize;
class QWidget;

/**
 * Lets @p dialog, one of the library's with its forms for pages of 640 by 480, cover @p size from
 * the upper left on. On a narrower page it gives up the space at its sides, and its keys get
 * narrower, for good.
 */
void fitDialog(QWidget *dialog, const QSize &size);

/** Lets nothing of the page shine through @p dialog, neither through its panels nor around them. */
void makeSolid(QWidget *dialog);

#endif
