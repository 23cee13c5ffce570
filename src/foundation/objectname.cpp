// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "objectname_p.h"

#include <QMetaObject>
#include <QObject>

namespace {

bool isNameOfBase(const QString &name, const QMetaObject &metaObject)
{
    for (const QMetaObject *base = metaObject.superClass(); base; base = base->superClass()) {
        if (name == QLatin1String(base->className())) {
            return true;
        }
    }
    return false;
}

} // namespace

void setObjectNameFromClass(QObject *object, const QMetaObject &metaObject)
{
    const QString name = object->objectName();
    if (name.isEmpty() || isNameOfBase(name, metaObject)) {
        object->setObjectName(QLatin1String(metaObject.className()));
    }
}
