// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listsize_p.h"

#include <QTest>

#include <limits>

using namespace ListSize;

class tst_ListSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spanOfRows_data();
    void spanOfRows();
    void gridRowsHoldTwoItems_data();
    void gridRowsHoldTwoItems();
    void gridIsOnePixelWiderThanItsColumns_data();
    void gridIsOnePixelWiderThanItsColumns();
};

static constexpr int most = std::numeric_limits<int>::max();

void tst_ListSize::spanOfRows_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("extent");
    QTest::addColumn<int>("pixels");
    QTest::newRow("a page") << 8 << 27 << 216;
    QTest::newRow("one") << 1 << 175 << 175;
    QTest::newRow("nothing to measure") << 1 << -1 << 0;
    QTest::newRow("as large as a widget can be") << 1 << largest << largest;
    QTest::newRow("larger than a widget can be") << 2 << largest << largest;
    QTest::newRow("larger than a number can be") << most << most << largest;
}

void tst_ListSize::spanOfRows()
{
    QFETCH(int, count);
    QFETCH(int, extent);
    QTEST(span(count, extent), "pixels");
}

void tst_ListSize::gridRowsHoldTwoItems_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rows");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 1;
    QTest::newRow("five") << 5 << 3;
    QTest::newRow("six") << 6 << 3;
    QTest::newRow("eight") << 8 << 4;
    QTest::newRow("most") << most << most / 2 + 1;
}

void tst_ListSize::gridRowsHoldTwoItems()
{
    QFETCH(int, count);
    QTEST(gridRows(count), "rows");
}

void tst_ListSize::gridIsOnePixelWiderThanItsColumns_data()
{
    QTest::addColumn<int>("columnWidth");
    QTest::addColumn<int>("pixels");
    QTest::newRow("grid") << 175 << 351;
    QTest::newRow("empty list") << 0 << 1;
    QTest::newRow("nothing to measure") << -1 << 0;
    QTest::newRow("most") << most << largest;
}

void tst_ListSize::gridIsOnePixelWiderThanItsColumns()
{
    QFETCH(int, columnWidth);
    QTEST(gridWidth(columnWidth), "pixels");
}

QTEST_APPLESS_MAIN(tst_ListSize)
#include "tst_listsize.moc"
