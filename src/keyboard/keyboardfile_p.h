// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDFILE_P_H
#define KEYBOARDFILE_P_H

#include "zemvirtualkey.h"

#include <QString>

class QDomDocument;

/** How a keyboard file is read, but for the widgets that are made from it. */
namespace KeyboardFile {

/** Elements may be nested this deep; the XML parser calls itself for each level. */
constexpr int depthLimit = 1000;

/** Entities may make a file this much longer, in characters; the document holds all of them. */
constexpr int growthLimit = 100000;

/**
 * Reads the file @p fileName into @p document. False, with the reason on qDebug(), if it cannot be
 * opened, is not XML, is beyond one of the limits or has another root than @c keyboard.
 */
bool read(const QString &fileName, QDomDocument *document);

/** Which popups the keyboard shows. */
struct Popups
{
    bool preview;
    bool alternatives;
};

/** The meaning of the attribute @c popup. */
Popups popups(const QString &attribute);

/** The number in @p attribute, or -1 if there is none that is 0 or more. */
int position(const QString &attribute);

/** The number in @p attribute, or 0 if there is none. */
int stretch(const QString &attribute);

/** The width of a key, @p minimum pixels without the attributes @p size and @p width. */
int keyWidth(int minimum, const QString &size, const QString &width);

/** @p value without its second level of escapes. */
QString decodeValue(QString value);

/** What a key of the name @p name does. */
ZEMVirtualKey::Type typeOf(const QString &name);

} // namespace KeyboardFile

#endif
