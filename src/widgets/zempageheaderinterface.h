// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPAGEHEADERINTERFACE_H
#define ZEMPAGEHEADERINTERFACE_H

#include "zemkit_export.h"

#include <QString>

class QStackedWidget;
class QWidget;

/**
 * What the parts of a host need to know of a page header, without its widgets. ZEMPageHeader is one
 * implementation, and tells the limits that it has; a host may have others.
 *
 * @code
 * #include <ZEMPageHeader>
 *
 * const auto describe = [](ZEMPageHeaderInterface &header) {
 *     header.setTitle(QStringLiteral("verbruik"));
 *     header.setNrOfPages(3);
 * };
 * ZEMPageHeader header;
 * describe(header);
 * header.show();
 * @endcode
 * A header cannot be deleted through its interface: who made it owns it.
 */
class ZEM_EXPORT ZEMPageHeaderInterface
{
public:
    /** Sets the title. */
    virtual void setTitle(QString title) = 0;
    /** Sets the line under the title. */
    virtual void setSubtitle(QString subtitle) = 0;

    /** Adds @p widget, which the header then owns, to the place of the first action. */
    virtual void setActionButton(QStackedWidget *widget) = 0;
    /** Enables or disables the place of the first action and what it holds. */
    virtual void enableActionButton(bool enable) = 0;

    /** Adds @p widget, which the header then owns, to the place of the second action. */
    virtual void setActionButton2(QWidget *widget) = 0;
    /** Enables or disables the place of the second action and what it holds. */
    virtual void enableActionButton2(bool enable) = 0;

    /** Sets how many pages there are to show a dot for. One page needs none. */
    virtual void setNrOfPages(int count) = 0;
    /** Marks the dot of @p page, counted from 0. A page without a dot is ignored. */
    virtual void setCurrentPage(int page) = 0;

    /**
     * Appends an application button that holds @p widget, which the header then owns; null for an
     * empty one. A header that has no room for more leaves @p widget to the caller.
     */
    virtual void addButton(QWidget *widget) = 0;
    /** Meant to take the application buttons away. ZEMPageHeader does nothing here. */
    virtual void removeAllButtons() = 0;

protected:
    ~ZEMPageHeaderInterface() = default;
};

#endif
