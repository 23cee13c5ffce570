// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTPAGE_P_H
#define LISTPAGE_P_H

class QListView;
class ZEMListViewLogic;

/** What the pages with a list on them share. */
namespace ListPage {

/** Lets the page shine through the items of @p list. */
void makeSeeThrough(QListView *list);

/** Lets @p list draw its icons sharp, until it is given a delegate. */
void makeSharp(QListView *list);

/** Makes @p list high enough for @p count rows; does nothing without a row to measure. */
void reserveRows(QListView *list, int count);

/**
 * The row that the user means: the current one, which becomes the chosen one, or else the one
 * chosen before, whether or not it exists.
 */
int pickRow(const QListView *list, ZEMListViewLogic *logic);

} // namespace ListPage

#endif
