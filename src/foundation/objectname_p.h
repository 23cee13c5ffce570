// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OBJECTNAME_P_H
#define OBJECTNAME_P_H

class QObject;
struct QMetaObject;

/**
 * Names @p object after the class of @p metaObject if it has no name yet or still bears the name of
 * one of that class's bases, which their constructors gave it. Any other name is left alone.
 *
 * For constructors, which know their own class while the object does not yet:
 * @code
 * setObjectNameFromClass(this, staticMetaObject);
 * @endcode
 */
void setObjectNameFromClass(QObject *object, const QMetaObject &metaObject);

#endif
