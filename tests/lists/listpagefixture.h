// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTPAGEFIXTURE_H
#define LISTPAGEFIXTURE_H

#include "listtest.h"
#include "zemtest.h"

#include <ZEMListView>
#include <ZEMListViewLogic>
#include <ZEMSimpleListView>

#include <QListView>
#include <QTest>

/** What the tests of the two pages with a list share. */
namespace ListTest {

/** The part of a page with this name, or null. */
template <typename T>
T *part(const QObject &page, const char *name)
{
    return page.findChild<T *>(QLatin1String(name));
}

/** A page with a list of so many items, each asking for some pixels. */
template <typename View>
struct PageFixture
{
    PageFixture(int rows, const QSize &itemSize) : model(rows)
    {
        model.itemSize = itemSize;
        page.setModel(&model);
    }

    QListView *list() const { return part<QListView>(page, "listView"); }
    ZEMListViewLogic *logic() const { return page.template findChild<ZEMListViewLogic *>(); }
    int currentRow() const { return list()->currentIndex().row(); }

    RowModel model;
    View page;
};

} // namespace ListTest

#endif
