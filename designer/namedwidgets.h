// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef NAMEDWIDGETS_H
#define NAMEDWIDGETS_H

#include <ZEMMiniDayHistogram>
#include <ZEMPageHeader>
#include <ZEMPageHeaderButton>

// Qt Designer and QUiLoader go by the names in meta-objects, and three classes of the library have
// not all that they look for. What they are given instead has the same name: moc reads other
// classes here than the compiler, to which namedwidgets.cpp gives the meta-objects that it makes.
#ifdef Q_MOC_RUN

class ZEMMiniDayHistogram : public ZEMHistogram
{
    Q_OBJECT
};

class ZEMPageHeader : public PlainPageHeader
{
    Q_OBJECT

public:
    Q_INVOKABLE void addButton(QWidget *widget);
};

class ZEMPageHeaderButton : public PlainPageHeaderButton
{
    Q_OBJECT

public:
    Q_INVOKABLE void setWidget(QWidget *widget);
};

#else

using PlainPageHeader = ZEMPageHeader;
using PlainPageHeaderButton = ZEMPageHeaderButton;

/** Its class has the meta-object of its base, and Designer refuses what has another name. */
class NamedMiniDayHistogram : public ZEMMiniDayHistogram
{
    Q_OBJECT

public:
    using ZEMMiniDayHistogram::ZEMMiniDayHistogram;
};

/** A loaded form gives it its pages by the name of addButton(). */
class NamedPageHeader : public ZEMPageHeader
{
    Q_OBJECT

public:
    using ZEMPageHeader::ZEMPageHeader;
};

/** A loaded form gives it its page by the name of setWidget(). */
class NamedPageHeaderButton : public ZEMPageHeaderButton
{
    Q_OBJECT

public:
    using ZEMPageHeaderButton::ZEMPageHeaderButton;
};

#endif

#endif
