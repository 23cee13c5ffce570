// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SIZEHASH_P_H
#define SIZEHASH_P_H

#include <QSize>

/**
 * A QSize as the key of a QHash. A class of its own, since a qHash(QSize) would be one for the
 * whole program, where a host or Qt itself may have another.
 */
class SizeKey
{
public:
    SizeKey(const QSize &keySize) : size(keySize) { }

    friend bool operator==(const SizeKey &left, const SizeKey &right)
    {
        return left.size == right.size;
    }

    friend uint qHash(const SizeKey &key)
    {
        return static_cast<uint>(key.size.width() ^ key.size.height());
    }

private:
    QSize size;
};

#endif
