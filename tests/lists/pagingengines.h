// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGINGENGINES_H
#define PAGINGENGINES_H

#include "pagingfixture.h"

#include <ZEMListViewLogic>
#include <ZEMTableViewLogic>

/** The paging engines of lists and of tables as if they had a class in common. */
namespace ListTest {

struct List
{
    using View = QListView;
    using Logic = ZEMListViewLogic;
    static int pageSize(const Logic &logic) { return logic.nrPageItems(); }
    static QVariant text(Logic &logic) { return logic.data(0); }
};

struct Table
{
    using View = QTableView;
    using Logic = ZEMTableViewLogic;
    static int pageSize(const Logic &logic) { return logic.getNrPageItems(); }
    static QVariant text(Logic &logic) { return logic.data(0, 0); }
};

template <typename Engine>
using EngineFixture = PagingFixture<typename Engine::View, typename Engine::Logic>;

inline void addEngines()
{
    QTest::addColumn<bool>("isTable");
    QTest::newRow("list") << false;
    QTest::newRow("table") << true;
}

/** Calls @p check with the List or the Table that the present row asks for. */
template <typename Check>
void withEngine(Check check)
{
    QFETCH(bool, isTable);
    if (isTable) {
        check(Table());
    } else {
        check(List());
    }
}

} // namespace ListTest

#endif
