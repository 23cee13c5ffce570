// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "fastscaledraw_p.h"
#include "qwtcompat_p.h"

#include <QImage>
#include <QPalette>
#include <QTest>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>

#include <cmath>

namespace {

/** Ticks alone, filled or drawn by Qwt. */
class Ticks : public QwtScaleDraw
{
public:
    QImage picture(bool areFilled)
    {
        isQuick = areFilled;
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        draw(&painter, QPalette());
        return image;
    }

protected:
    void drawBackbone(QPainter * /*painter*/) const override { }

    void drawTick(QPainter *painter, double value, double length) const override
    {
        const auto pixels = QwtCompat::thinTick(*this, value, length);
        if (isQuick && pixels) {
            painter->fillRect(*pixels, painter->pen().color());
        } else {
            QwtScaleDraw::drawTick(painter, value, length);
        }
    }

private:
    bool isQuick = false;
};

} // namespace

/** What the scales of the charts draw by themselves. */
class tst_FastScaleDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelBesideTheMiddleOfPixelsIsLeftToQwt_data();
    void labelBesideTheMiddleOfPixelsIsLeftToQwt();
    void thinTicksAreThoseOfQwt_data();
    void thinTicksAreThoseOfQwt();
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

void tst_FastScaleDraw::thinTicksAreThoseOfQwt_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("hasBackbone");
    for (const bool hasBackbone : {false, true}) {
        const char *name = hasBackbone ? "with a backbone" : "without a backbone";
        QTest::addRow("left, %s", name) << int(QwtScaleDraw::LeftScale) << hasBackbone;
        QTest::addRow("bottom, %s", name) << int(QwtScaleDraw::BottomScale) << hasBackbone;
    }
}

void tst_FastScaleDraw::thinTicksAreThoseOfQwt()
{
    QFETCH(int, alignment);
    QFETCH(bool, hasBackbone);
    Ticks scale;
    scale.setAlignment(QwtScaleDraw::Alignment(alignment));
    scale.enableComponent(QwtAbstractScaleDraw::Labels, false);
    scale.enableComponent(QwtAbstractScaleDraw::Backbone, hasBackbone);
    scale.setScaleDiv(QwtScaleDiv(0.0, 10.0, {1.0}, {2.0, 3.1, 4.3}, {5.0, 9.9}));
    scale.setLength(40.0);
    for (const double length : {0.3, 0.5, 1.0, 4.5, 5.0, 11.7}) {
        scale.setTickLength(QwtScaleDiv::MajorTick, length);
        for (const double place : {30.0, 30.3, 30.5, 30.8}) {
            scale.move(place, place);
            QVERIFY2(scale.picture(true) == scale.picture(false),
                     qPrintable(QStringLiteral("%1 pixels at %2").arg(length).arg(place)));
        }
    }
}

QTEST_MAIN(tst_FastScaleDraw)
#include "tst_fastscaledraw.moc"
