// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "saturatedint_p.h"

#include <QTest>

#include <climits>

/** Doubles of every size as ints: none is converted that does not fit. */
class tst_SaturatedInt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesThatDoNotFitAreCut_data();
    void valuesThatDoNotFitAreCut();
};

void tst_SaturatedInt::valuesThatDoNotFitAreCut_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("truncated");
    QTest::addColumn<int>("rounded");

    QTest::newRow("0.5") << 0.5 << 0 << 1;
    QTest::newRow("-0.5") << -0.5 << 0 << 0;
    QTest::newRow("-0.6") << -0.6 << 0 << -1;
    QTest::newRow("2.9") << 2.9 << 2 << 3;
    QTest::newRow("-2.9") << -2.9 << -2 << -3;
    QTest::newRow("largest") << double(INT_MAX) << INT_MAX << INT_MAX;
    QTest::newRow("between the largest and the next") << 2147483647.5 << INT_MAX << INT_MAX;
    QTest::newRow("smallest") << double(INT_MIN) << INT_MIN << -INT_MAX;
    QTest::newRow("between the smallest and the next") << -2147483648.9 << INT_MIN << -INT_MAX;
    QTest::newRow("above") << 1.0e300 << INT_MAX << INT_MAX;
    QTest::newRow("below") << -1.0e300 << INT_MIN << -INT_MAX;
    QTest::newRow("infinite") << qInf() << INT_MAX << INT_MAX;
    QTest::newRow("minus infinite") << -qInf() << INT_MIN << -INT_MAX;
    QTest::newRow("no number") << qQNaN() << 0 << 0;
}

void tst_SaturatedInt::valuesThatDoNotFitAreCut()
{
    QFETCH(double, value);
    QTEST(truncatedInt(value), "truncated");
    QTEST(roundedInt(value), "rounded");
}

QTEST_APPLESS_MAIN(tst_SaturatedInt)
#include "tst_saturatedint.moc"
