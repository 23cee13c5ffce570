// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LIFETIME_H
#define LIFETIME_H

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QWidget>

#include <functional>

/**
 * Objects that end while one of their signals is delivered.
 *
 * Freed memory often stays whole for a while, so such a test says little by itself: it is run with
 * memory that is overwritten when it is freed, and under memcheck.
 */
namespace Lifetime {

/** How a slot ends the object whose signal it hears, or another one. */
enum class End { Delete, DeleteLater, DeletePage };

/** The name of @p end in the name of a row. */
const char *nameOf(End end);

/**
 * What is on the screen: the object whose signal is heard, on or with a page that is shown, and
 * what makes it emit. What else must live meanwhile belongs to the page or to the capture of the
 * function.
 */
struct Stage
{
    QPointer<QWidget> page; ///< goes with the stage, if it is still there
    QPointer<QObject> object;
    std::function<void()> act;
    QPointer<QObject> other {}; ///< what ends, if it is not the object itself
};

/** A page of 640 by 480 pixels, shown and exposed. The caller owns it. */
QWidget *shownPage();

/**
 * Lets @p stage act, and ends its object, or the other one, in the first delivery of @p signal of
 * the object, which is written like "sigSelect(QString)". Afterwards all that is still due is
 * delivered. Returns what went wrong: the signal is unknown or was not emitted, or what should end
 * lives on. Empty if all is well.
 */
QString endIn(Stage stage, const char *signal, End end);

/**
 * The signals that @p metaObject and its bases up to and without @p base declare, those that are
 * private to Qt and those of @p heard left out. A test that hears all signals of a class finds
 * none.
 */
QStringList unheardSignals(const QMetaObject &metaObject, const QMetaObject &base,
                           const QSet<QByteArray> &heard);

} // namespace Lifetime

#endif
