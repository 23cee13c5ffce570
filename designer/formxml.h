// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FORMXML_H
#define FORMXML_H

#include <QString>

struct WidgetEntry;

/** The name of the object of an entry on a form, such as "pageHeader" for a ZEMPageHeader. */
QString objectNameOf(const WidgetEntry &entry);

/** The header of an entry, as a form includes it: "<ZEMPageHeader>". */
QString includeOf(const WidgetEntry &entry);

/** The nearest class of Qt that an entry extends, which every form knows. */
QString qtBaseOf(const WidgetEntry &entry);

/** What Designer puts on a form when an entry is dragged there. */
QString dropXml(const WidgetEntry &entry);

/** A form named AllWidgets with every entry on it, as Designer would save it. */
QString formOfAll();

#endif
