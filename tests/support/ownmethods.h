// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OWNMETHODS_H
#define OWNMETHODS_H

#include <QMetaMethod>
#include <QMetaObject>
#include <QStringList>

namespace ZemTest {

/** The signals and slots that a class itself declares, in words and in their order. */
inline QStringList ownMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        const bool isPrivate = method.access() == QMetaMethod::Private;
        methods.append(QLatin1String(isSignal ? "signal " : (isPrivate ? "private " : "public "))
                       + QLatin1String(method.methodSignature()));
    }
    return methods;
}

} // namespace ZemTest

#endif
