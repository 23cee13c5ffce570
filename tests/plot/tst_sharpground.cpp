// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QPainter>
#include <ZEMPlot>
#include <ZEMQwtPlotCurvePointGetter>

#include "plotfixture.h"
#include "sharpness.h"

using namespace PlotTest;

/** The picture on the canvas of a plot, on screens of several ratios. */
class tst_SharpGround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backgroundGraphicIsThatOfTheScreen();
    void backgroundGraphicCountsBySizeAndRatio();
    void otherBackgroundOfTheHostStays();
};

void tst_SharpGround::backgroundGraphicIsThatOfTheScreen()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/icons_14.png");
    const QString sharpPath = QStringLiteral(":/zem/graphics/icons/icons_14@2x.png");
    Styler styler;
    ZEMPlot plot(&styler);
    const std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter(plot.getCurvePointGetter());
    arrange(&plot);
    plot.setBackgroundGraphic(path);
    for (const qreal ratio : {1.0, 2.0, 1.0}) {
        const QPixmap picture(ratio > 1.0 ? sharpPath : path);
        const QImage image = Sharpness::rendered(&plot, ratio);
        QCOMPARE(plot.canvasBackground().texture().toImage(), picture.toImage());
        QImage expected(picture.size(), QImage::Format_RGB32);
        expected.fill(Qt::black);
        QPainter(&expected).drawPixmap(expected.rect(), picture);
        const QRect place(plot.canvas()->pos() * ratio, picture.size());
        QCOMPARE(image.copy(place & image.rect()),
                 expected.copy((place & image.rect()).translated(-place.topLeft())));
    }
}

void tst_SharpGround::backgroundGraphicCountsBySizeAndRatio()
{
    QPixmap picture = ZemTest::flatPixmap(QSize(80, 60), Qt::transparent);
    {
        QPainter painter(&picture);
        painter.fillRect(0, 0, 40, 60, Qt::cyan);
    }
    picture.setDevicePixelRatio(2.0);
    Styler styler;
    ZEMPlot plot(&styler);
    const std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter(plot.getCurvePointGetter());
    arrange(&plot);
    plot.setBackgroundGraphic(picture);
    for (const int ratio : {1, 2}) {
        const QImage image = Sharpness::rendered(&plot, ratio);
        QCOMPARE(image.pixelColor(5 * ratio, 5 * ratio), QColor(Qt::cyan));
        QCOMPARE(image.pixelColor(30 * ratio, 5 * ratio), QColor(Qt::black));
        QCOMPARE(image.pixelColor(45 * ratio, 35 * ratio), QColor(Qt::cyan));
    }
}

void tst_SharpGround::otherBackgroundOfTheHostStays()
{
    Styler styler;
    ZEMPlot plot(&styler);
    const std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter(plot.getCurvePointGetter());
    arrange(&plot);
    plot.setBackgroundGraphic(QStringLiteral(":/zem/graphics/icons/icons_14.png"));
    Sharpness::rendered(&plot, 2.0);
    plot.setCanvasBackground(Qt::darkGreen);
    Sharpness::rendered(&plot, 2.0);
    QCOMPARE(plot.canvasBackground(), QBrush(Qt::darkGreen, Qt::SolidPattern));
}

QTEST_MAIN(tst_SharpGround)
#include "tst_sharpground.moc"
