// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SCREENFAULTS_H
#define SCREENFAULTS_H

#include <QStringList>

class QWidget;

/** What the widgets say that are seen in @p window, and what is wrong with them, a fault a line. */
namespace ScreenFaults {

/** What can be read: each text of a widget or an item once. */
QStringList textsOn(const QWidget *window);
/** Widgets that stand out of their parents. */
QStringList outside(const QWidget *window);
/** Items of one layout that lie over each other. */
QStringList overlaps(const QWidget *window);
/** Texts without the room they need; of a scale those that touch as well. */
QStringList cutTexts(const QWidget *window);
/** Labels of scales with ink beyond the scale, where it is cut. */
QStringList cutLabels(const QWidget *window);
/** Texts that end in "…", and items of lists and tables that will when they are painted. */
QStringList elidedTexts(const QWidget *window);
/** What can be touched, but is smaller than 40 pixels in either direction. */
QStringList smallTargets(const QWidget *window);
/** Buttons that cannot be touched now, but whose icons are as bright as if they could. */
QStringList touchableLooks(QWidget *window);
/** What lies over a page and lets something of it through. */
QStringList seeThrough(QWidget *window);
/** Texts with a contrast below 4.5 to 1 to what is painted behind them. */
QStringList faintTexts(QWidget *window);

} // namespace ScreenFaults

#endif
