// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PROPERTYVALUES_H
#define PROPERTYVALUES_H

#include <QMetaProperty>
#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

class QObject;

/** What a control of a property does to its value, without the control. */
namespace PropertyValues {

enum class Kind {
    Toggle, ///< bool
    Number, ///< int or double
    Choice, ///< an enumerator, a colour, a pen, a picture: the next of a few
    Text, ///< QString
    None ///< nothing to play with
};

Kind kindOf(const QMetaProperty &property);

/**
 * The properties of @p object that are played with: those that classes of the library declare and
 * a few of Qt's, such as "enabled" and "checked". One that a class declares anew comes once.
 */
QVector<QMetaProperty> playable(const QObject *object);

/** How far one touch moves a number that is @p value at first: a whole, or a tenth of its decade.
 */
double stepOf(const QVariant &value);

/** @p value moved by @p step and kept in @p range. Of the same type as it was. */
QVariant moved(const QVariant &value, double step, const QPair<double, double> &range);

/** The value that follows @p value; after the last comes the first. @p first is what it was once.
 */
QVariant next(const QMetaProperty &property, const QVariant &value, const QVariant &first);

/** The value in a few words. */
QString textOf(const QMetaProperty &property, const QVariant &value);

} // namespace PropertyValues

#endif
