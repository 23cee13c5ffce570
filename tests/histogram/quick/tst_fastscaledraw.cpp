// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "fastscaledraw_p.h"

#include <QImage>
#include <QTest>

#include <cmath>

/** Which labels the scales of the charts draw by themselves. */
class tst_FastScaleDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelBesideTheMiddleOfPixelsIsLeftToQwt_data();
    void labelBesideTheMiddleOfPixelsIsLeftToQwt();
};

void tst_FastScaleDraw::labelBesideTheMiddleOfPixelsIsLeftToQwt_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("shift");
    QTest::addColumn<bool>("isQuick");
    QTest::newRow("whole pixel") << 55.0 << 9.0 << true;
    QTest::newRow("middle") << 55.5 << 9.0 << true;
    QTest::newRow("quarter") << 55.25 << 9.0 << true;
    QTest::newRow("near the middle") << 55.49 << 9.0 << false;
    // Added up, these are in the middle.
    QTest::newRow("just before the middle") << std::nextafter(55.5, 0.0) << 9.0 << false;
    QTest::newRow("just behind the middle") << std::nextafter(3.5, 4.0) << 300.0 << false;
}

void tst_FastScaleDraw::labelBesideTheMiddleOfPixelsIsLeftToQwt()
{
    QFETCH(double, position);
    QFETCH(double, shift);
    QFETCH(bool, isQuick);
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.translate(shift, 0.0);
    QCOMPARE(FastScale::roundsAlike(&painter, QPointF(position, 0.0)), isQuick);
    painter.resetTransform();
    painter.translate(0.0, shift);
    QCOMPARE(FastScale::roundsAlike(&painter, QPointF(0.0, position)), isQuick);
}

QTEST_MAIN(tst_FastScaleDraw)
#include "tst_fastscaledraw.moc"
