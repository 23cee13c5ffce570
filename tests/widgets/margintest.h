// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MARGINTEST_H
#define MARGINTEST_H

#include <QLayout>
#include <QMargins>
#include <QMetaType>
#include <QTest>

Q_DECLARE_METATYPE(QMargins)

/** What the tests of forms with margins as properties share. */
namespace MarginTest {

/** Rows for compare(): the property of a margin, and all margins when that one is 10. */
inline void addRows()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QMargins>("expected");
    QTest::newRow("left") << QByteArray("layoutLeft") << QMargins(10, 2, 3, 4);
    QTest::newRow("top") << QByteArray("layoutTop") << QMargins(1, 10, 3, 4);
    QTest::newRow("right") << QByteArray("layoutRight") << QMargins(1, 2, 10, 4);
    QTest::newRow("bottom") << QByteArray("layoutBottom") << QMargins(1, 2, 3, 10);
}

/** Compares the margins of a form, which are properties, with those of its layout. */
template <typename Form>
void compare()
{
    QFETCH(QByteArray, property);
    Form form;
    form.setLayoutLeft(1);
    form.setLayoutTop(2);
    form.setLayoutRight(3);
    form.setLayoutBottom(4);
    QCOMPARE(form.layout()->contentsMargins(), QMargins(1, 2, 3, 4));
    QVERIFY(form.setProperty(property.constData(), 10));
    QTEST(form.layout()->contentsMargins(), "expected");
    QCOMPARE(form.property(property.constData()).toInt(), 10);

    form.layout()->setContentsMargins(5, 6, 7, 8);
    QCOMPARE(form.layoutLeft(), 5);
    QCOMPARE(form.layoutTop(), 6);
    QCOMPARE(form.layoutRight(), 7);
    QCOMPARE(form.layoutBottom(), 8);
}

} // namespace MarginTest

#endif
