// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemvirtualkey.h"

#include "objectname_p.h"

namespace {

constexpr QChar sharpS(0x00DF);

} // namespace

class ZEMVirtualKey::Private
{
public:
    explicit Private(const QString &name)
        : keyName(name), keyChar(name.isEmpty() ? QChar() : name.at(0))
    {
    }

    const QString keyName;
    Type keyType = Character;
    QChar keyChar;
    bool alternatesSet = false;
    QString alternates;
    int keyLayoutId = -1;
};

ZEMVirtualKey::ZEMVirtualKey(QWidget *parent) : ZEMVirtualKey(QString(), parent) { }

ZEMVirtualKey::ZEMVirtualKey(const QString &name, QWidget *parent)
    : ZEMButton(parent), d(std::make_unique<Private>(name))
{
    setObjectNameFromClass(this, staticMetaObject);
    setText(name);
}

ZEMVirtualKey::~ZEMVirtualKey() = default;

const QString &ZEMVirtualKey::name() const
{
    return d->keyName;
}

ZEMVirtualKey::Type ZEMVirtualKey::type() const
{
    return d->keyType;
}

void ZEMVirtualKey::setType(Type type)
{
    d->keyType = type;
}

const QChar &ZEMVirtualKey::key() const
{
    return d->keyChar;
}

void ZEMVirtualKey::setKey(const QChar &key)
{
    d->keyChar = key;
}

void ZEMVirtualKey::setAlternateKeys(const QString &alternates)
{
    d->alternates = alternates;
    d->alternatesSet = true;
}

bool ZEMVirtualKey::hasAlternateKeys() const
{
    return d->alternatesSet;
}

const QString &ZEMVirtualKey::alternateKeys() const
{
    return d->alternates;
}

int ZEMVirtualKey::layoutId() const
{
    return d->keyLayoutId;
}

void ZEMVirtualKey::setLayoutId(int id)
{
    if (id >= 0) {
        d->keyLayoutId = id;
    }
}

void ZEMVirtualKey::toUpper()
{
    setText(text().toUpper());
    d->keyChar = d->keyChar.toUpper();
    // A sharp s becomes two letters in upper case, which would shift the alternatives behind it.
    d->alternates = d->alternates.toUpper().replace(QLatin1String("SS"), QString(sharpS));
}

void ZEMVirtualKey::toUpperSingle()
{
    if (d->keyType != Caps) {
        toUpper();
        return;
    }
    QString label = text();
    if (!label.isEmpty()) {
        label[0] = label.at(0).toUpper();
    }
    setText(label);
}

void ZEMVirtualKey::toLower()
{
    setText(text().toLower());
    d->keyChar = d->keyChar.toLower();
    d->alternates = d->alternates.toLower();
}
