// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMColumnSymbol>

#include "histogramgeometry_p.h"
#include "zemtest.h"

#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QTest>

#include <qwt_painter.h>

Q_DECLARE_METATYPE(QwtColumnRect)

namespace {

constexpr QSize iconSize(12, 16);
const QColor columnColor(0, 90, 200);
const QColor iconColor(250, 220, 0);
const QColor ground(Qt::black);
const QString iconPath = QStringLiteral("test/icon");

QwtColumnRect columnRect(double left, double right, double top, double bottom)
{
    QwtColumnRect rect;
    rect.hInterval = QwtInterval(left, right);
    rect.vInterval = QwtInterval(top, bottom);
    return rect;
}

QPalette windowPalette(const QColor &color)
{
    QPalette palette;
    palette.setBrush(QPalette::All, QPalette::Window, color);
    return palette;
}

QImage draw(const QwtColumnSymbol &symbol, const QwtColumnRect &rect,
            const QRect &clip = QRect(0, 0, 100, 80))
{
    QImage image(100, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setClipRect(clip);
    symbol.draw(&painter, rect);
    return image;
}

QRect inkOf(const QImage &image, const QColor &color)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

class tst_ZEMColumnSymbol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void visibleColumn_data();
    void visibleColumn();
    void columnWithoutExtentIsNotVisible_data();
    void columnWithoutExtentIsNotVisible();
    void iconPosition_data();
    void iconPosition();
    void edgesAreRoundedOneByOne();
    void styleIsTaken();
    void iconColumnIsFilledWithTheWindowBrush();
    void brushIsThatOfThePalettesCurrentGroup();
    void excludedSideLosesAPixel();
    void aligningPainterGetsWholePixels();
    void iconStandsInTheMiddle();
    void iconOfASharpScreenCountsBySizeAndRatio();
    void iconNeedsAWiderColumn_data();
    void iconNeedsAWiderColumn();
    void iconSticksOutOfALowColumn();
    void iconStaysInTheVisiblePart();
    void columnIsCutToTheClip();
    void columnWithoutHeightPaintsNothing();
    void boxIsLeftToQwt_data();
    void boxIsLeftToQwt();
    void boxShowsNoIcon();
    void otherStylesPaintNothing();
    void invalidHorizontalIntervalPaintsNothing();
    void withoutClipRegionTheColumnHasNegativeWidth();
    void painterIsRestored();
    void iconComesFromThePixmapCache();
    void unreadableIconIsNullAndGoesToTheCache();
    void unreadableIconReplacesAnEarlierOne();
};

void tst_ZEMColumnSymbol::init()
{
    QPixmapCache::clear();
    QPixmapCache::insert(iconPath, ZemTest::flatPixmap(iconSize, iconColor));
}

void tst_ZEMColumnSymbol::visibleColumn_data()
{
    QTest::addColumn<QRectF>("column");
    QTest::addColumn<QRect>("clip");
    QTest::addColumn<QRectF>("expected");

    const QRect clip(10, 5, 100, 50);
    QTest::newRow("inside") << QRectF(20, 10, 30, 5) << clip << QRectF(20, 10, 30, 5);
    QTest::newRow("at the left edge") << QRectF(10, 10, 30, 5) << clip << QRectF(10, 10, 30, 5);
    QTest::newRow("from the left") << QRectF(-5, 10, 30, 5) << clip << QRectF(10, 10, 15, 5);
    QTest::newRow("to the last pixel") << QRectF(90, 10, 19, 5) << clip << QRectF(90, 10, 19, 5);
    QTest::newRow("to the right edge") << QRectF(90, 10, 20, 5) << clip << QRectF(90, 10, 19, 5);
    QTest::newRow("out to the right") << QRectF(90, 10, 50, 5) << clip << QRectF(90, 10, 19, 5);
    QTest::newRow("over all") << QRectF(-90, 10, 500, 5) << clip << QRectF(10, 10, 99, 5);
    QTest::newRow("left of the clip") << QRectF(2, 10, 5, 5) << clip << QRectF(10, 10, -3, 5);
    QTest::newRow("vertical uncut") << QRectF(20, -10, 30, 500) << clip << QRectF(20, -10, 30, 500);
    QTest::newRow("no clip") << QRectF(20, 10, 30, 5) << QRect() << QRectF(20, 10, -21, 5);
    QTest::newRow("fractions") << QRectF(9.5, 1, 100.25, 5) << clip << QRectF(10, 1, 99, 5);
}

void tst_ZEMColumnSymbol::visibleColumn()
{
    QFETCH(QRectF, column);
    QFETCH(QRect, clip);
    QFETCH(QRectF, expected);

    const auto visible = HistogramGeometry::visibleColumn(column, clip);
    QVERIFY(visible.has_value());
    QCOMPARE(*visible, expected);
}

void tst_ZEMColumnSymbol::columnWithoutExtentIsNotVisible_data()
{
    QTest::addColumn<QRectF>("column");

    QTest::newRow("left of 0") << QRectF(-20, 10, 15, 5);
    QTest::newRow("up to 0") << QRectF(-20, 10, 20, 5);
    QTest::newRow("no height") << QRectF(20, 10, 30, 0);
    QTest::newRow("negative height") << QRectF(20, 10, 30, -1);
}

void tst_ZEMColumnSymbol::columnWithoutExtentIsNotVisible()
{
    QFETCH(QRectF, column);
    QVERIFY(!HistogramGeometry::visibleColumn(column, QRect(-50, 0, 200, 100)));
}

void tst_ZEMColumnSymbol::iconPosition_data()
{
    QTest::addColumn<QRectF>("column");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QPointF>("position");

    QTest::newRow("narrower") << QRectF(10, 20, 11, 40) << false << QPointF();
    QTest::newRow("as wide") << QRectF(10, 20, 12, 40) << false << QPointF();
    QTest::newRow("one wider") << QRectF(10, 20, 13, 40) << true << QPointF(10.5, 32);
    QTest::newRow("wide") << QRectF(10, 20, 42, 40) << true << QPointF(25, 32);
    QTest::newRow("low") << QRectF(10, 20, 42, 2) << true << QPointF(25, 13);
    QTest::newRow("negative width") << QRectF(10, 20, -42, 2) << false << QPointF();
}

void tst_ZEMColumnSymbol::iconPosition()
{
    QFETCH(QRectF, column);
    QFETCH(bool, shown);
    QFETCH(QPointF, position);

    const auto found = HistogramGeometry::iconPosition(column, iconSize);
    QCOMPARE(found.has_value(), shown);
    QCOMPARE(found.value_or(QPointF()), position);
}

void tst_ZEMColumnSymbol::edgesAreRoundedOneByOne()
{
    // The width, 10.2, would round to 10.
    QCOMPARE(HistogramGeometry::rounded(QRectF(0.4, 0.5, 10.2, 10.0)), QRectF(0, 1, 11, 10));
    QCOMPARE(HistogramGeometry::rounded(QRectF(-0.6, 3.4, 10.0, 1.0)), QRectF(-1, 3, 10, 1));
}

void tst_ZEMColumnSymbol::styleIsTaken()
{
    QCOMPARE(ZEMColumnSymbol(QwtColumnSymbol::Box).style(), QwtColumnSymbol::Box);
    QCOMPARE(ZEMColumnSymbol(QwtColumnSymbol::UserStyle).style(), QwtColumnSymbol::UserStyle);
}

void tst_ZEMColumnSymbol::iconColumnIsFilledWithTheWindowBrush()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    const QImage image = draw(symbol, columnRect(20, 60, 10, 70));
    QCOMPARE(ZemTest::inkRect(image, ground), QRect(20, 10, 40, 60));
    QCOMPARE(inkOf(image, columnColor), QRect(20, 10, 40, 60));
}

void tst_ZEMColumnSymbol::brushIsThatOfThePalettesCurrentGroup()
{
    QPalette palette;
    palette.setBrush(QPalette::Active, QPalette::Window, QColor(Qt::red));
    palette.setBrush(QPalette::Disabled, QPalette::Window, QColor(Qt::green));
    palette.setCurrentColorGroup(QPalette::Disabled);
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(palette);
    QCOMPARE(draw(symbol, columnRect(20, 60, 10, 70)).pixelColor(40, 40), QColor(Qt::green));
}

void tst_ZEMColumnSymbol::excludedSideLosesAPixel()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    QwtColumnRect rect = columnRect(20, 60, 10, 70);
    rect.hInterval.setBorderFlags(QwtInterval::ExcludeMaximum);
    rect.vInterval.setBorderFlags(QwtInterval::ExcludeMinimum);
    QCOMPARE(ZemTest::inkRect(draw(symbol, rect), ground), QRect(20, 11, 39, 59));
}

void tst_ZEMColumnSymbol::aligningPainterGetsWholePixels()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    const bool before = QwtPainter::roundingAlignment();
    for (const bool aligning : {true, false}) {
        QwtPainter::setRoundingAlignment(aligning);
        QImage image(100, 80, QImage::Format_ARGB32_Premultiplied);
        image.fill(ground);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipRect(image.rect());
        symbol.draw(&painter, columnRect(20.4, 60.4, 10.6, 70.6));
        QCOMPARE(image.pixelColor(20, 40) == columnColor, aligning);
        QCOMPARE(image.pixelColor(60, 40) == ground, aligning);
        QCOMPARE(image.pixelColor(40, 10), aligning ? ground : image.pixelColor(40, 10));
        QCOMPARE(image.pixelColor(40, 70) == columnColor, aligning);
    }
    QwtPainter::setRoundingAlignment(before);
}

void tst_ZEMColumnSymbol::iconStandsInTheMiddle()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    const QImage image = draw(symbol, columnRect(20, 60, 10, 70));
    QCOMPARE(inkOf(image, iconColor), QRect(QPoint(34, 32), iconSize));
    QCOMPARE(inkOf(image, columnColor), QRect(20, 10, 40, 60));
}

void tst_ZEMColumnSymbol::iconOfASharpScreenCountsBySizeAndRatio()
{
    QPixmap icon = ZemTest::flatPixmap(2 * iconSize, iconColor);
    icon.setDevicePixelRatio(2.0);
    const QString path = QStringLiteral("test/sharp.png");
    QVERIFY(QPixmapCache::insert(path, icon));
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(path);
    QCOMPARE(inkOf(draw(symbol, columnRect(20, 60, 10, 70)), iconColor),
             QRect(QPoint(34, 32), iconSize));
    QVERIFY(!inkOf(draw(symbol, columnRect(20, 34, 10, 70)), iconColor).isEmpty());
}

void tst_ZEMColumnSymbol::iconNeedsAWiderColumn_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("shown");

    QTest::newRow("narrower") << 11 << false;
    QTest::newRow("as wide") << 12 << false;
    QTest::newRow("one wider") << 13 << true;
    QTest::newRow("two wider") << 14 << true;
}

void tst_ZEMColumnSymbol::iconNeedsAWiderColumn()
{
    QFETCH(int, width);
    QFETCH(bool, shown);

    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    const QImage image = draw(symbol, columnRect(20, 20 + width, 10, 70));
    QCOMPARE(!inkOf(image, iconColor).isNull(), shown);
}

void tst_ZEMColumnSymbol::iconSticksOutOfALowColumn()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    const QImage image = draw(symbol, columnRect(20, 60, 40, 44));
    QCOMPARE(inkOf(image, iconColor), QRect(QPoint(34, 34), iconSize));
}

void tst_ZEMColumnSymbol::iconStaysInTheVisiblePart()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    const QImage image = draw(symbol, columnRect(-200, 40, 10, 70), QRect(0, 0, 100, 80));
    QCOMPARE(inkOf(image, iconColor), QRect(QPoint(14, 32), iconSize));
}

void tst_ZEMColumnSymbol::columnIsCutToTheClip()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    // The clip ends at pixel 80; the fill leaves that last pixel column out.
    const QImage image = draw(symbol, columnRect(-200, 200, 10, 70), QRect(31, 0, 50, 80));
    QCOMPARE(ZemTest::inkRect(image, ground), QRect(31, 10, 49, 60));
    QCOMPARE(inkOf(image, iconColor).center().y(), 39);
    QVERIFY(qAbs(inkOf(image, iconColor).center().x() - 55) <= 1);
}

void tst_ZEMColumnSymbol::columnWithoutHeightPaintsNothing()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    QVERIFY(ZemTest::inkRect(draw(symbol, columnRect(20, 60, 40, 40)), ground).isNull());
}

void tst_ZEMColumnSymbol::boxIsLeftToQwt_data()
{
    QTest::addColumn<QwtColumnRect>("rect");
    QTest::addColumn<int>("frame");

    for (const auto frame :
         {QwtColumnSymbol::NoFrame, QwtColumnSymbol::Plain, QwtColumnSymbol::Raised}) {
        QTest::addRow("usual %d", int(frame)) << columnRect(20, 60, 10, 70) << int(frame);
        QTest::addRow("cut %d", int(frame)) << columnRect(-20, 160, 10, 70) << int(frame);
        QTest::addRow("no height %d", int(frame)) << columnRect(20, 60, 40, 40) << int(frame);
    }
}

void tst_ZEMColumnSymbol::boxIsLeftToQwt()
{
    QFETCH(QwtColumnRect, rect);
    QFETCH(int, frame);

    QwtColumnSymbol plain(QwtColumnSymbol::Box);
    ZEMColumnSymbol symbol(QwtColumnSymbol::Box);
    for (QwtColumnSymbol *each : {&plain, static_cast<QwtColumnSymbol *>(&symbol)}) {
        each->setPalette(windowPalette(columnColor));
        each->setFrameStyle(QwtColumnSymbol::FrameStyle(frame));
        each->setLineWidth(2);
    }
    symbol.setIcon(iconPath);
    QCOMPARE(draw(symbol, rect), draw(plain, rect));
}

void tst_ZEMColumnSymbol::boxShowsNoIcon()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::Box);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setFrameStyle(QwtColumnSymbol::NoFrame);
    symbol.setIcon(iconPath);
    const QImage image = draw(symbol, columnRect(20, 60, 10, 70));
    QVERIFY(inkOf(image, iconColor).isNull());
    QCOMPARE(image.pixelColor(40, 40), columnColor);
}

void tst_ZEMColumnSymbol::otherStylesPaintNothing()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::NoStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    QVERIFY(ZemTest::inkRect(draw(symbol, columnRect(20, 60, 10, 70)), ground).isNull());
    symbol.setStyle(QwtColumnSymbol::Style(QwtColumnSymbol::UserStyle + 1));
    QVERIFY(ZemTest::inkRect(draw(symbol, columnRect(20, 60, 10, 70)), ground).isNull());
}

void tst_ZEMColumnSymbol::invalidHorizontalIntervalPaintsNothing()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    // Normalised, this would be a column of 40 pixels.
    const QwtColumnRect reversed = columnRect(60, 20, 10, 70);
    QVERIFY(ZemTest::inkRect(draw(symbol, reversed), ground).isNull());
    symbol.setStyle(QwtColumnSymbol::Box);
    QVERIFY(ZemTest::inkRect(draw(symbol, reversed), ground).isNull());
    QVERIFY(ZemTest::inkRect(draw(symbol, QwtColumnRect()), ground).isNull());
    // The vertical one is not asked: it is reversed for every bar above the baseline.
    QVERIFY(!ZemTest::inkRect(draw(symbol, columnRect(20, 60, 70, 10)), ground).isNull());
}

void tst_ZEMColumnSymbol::withoutClipRegionTheColumnHasNegativeWidth()
{
    QImage image(100, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    QCOMPARE(painter.clipRegion().boundingRect().right(), -1);
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    symbol.draw(&painter, columnRect(20, 60, 10, 70));
    painter.end();
    QVERIFY(inkOf(image, iconColor).isNull());
    QCOMPARE(image.pixelColor(40, 40), ground);
}

void tst_ZEMColumnSymbol::painterIsRestored()
{
    QImage image(100, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    painter.setPen(QPen(Qt::red, 3));
    painter.setBrush(Qt::green);
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    symbol.draw(&painter, columnRect(20, 60, 10, 70));
    symbol.setStyle(QwtColumnSymbol::Box);
    symbol.setFrameStyle(QwtColumnSymbol::Raised);
    symbol.draw(&painter, columnRect(20, 60, 10, 70));
    QCOMPARE(painter.pen(), QPen(Qt::red, 3));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QCOMPARE(painter.transform(), QTransform());
}

void tst_ZEMColumnSymbol::iconComesFromThePixmapCache()
{
    const QString path = QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png");
    ZEMColumnSymbol first(QwtColumnSymbol::UserStyle);
    first.setIcon(path);
    QPixmap cached;
    QVERIFY(QPixmapCache::find(path, &cached));
    QCOMPARE(cached.size(), iconSize);

    QPixmapCache::insert(path, ZemTest::flatPixmap(iconSize, iconColor));
    ZEMColumnSymbol second(QwtColumnSymbol::UserStyle);
    second.setPalette(windowPalette(columnColor));
    second.setIcon(path);
    QCOMPARE(draw(second, columnRect(20, 60, 10, 70)).pixelColor(40, 40), iconColor);
}

void tst_ZEMColumnSymbol::unreadableIconIsNullAndGoesToTheCache()
{
    const QString path = QStringLiteral(":/no/such/icon.png");
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(path);
    for (const int width : {1, 5, 40}) {
        const QImage image = draw(symbol, columnRect(20, 20 + width, 10, 70));
        QCOMPARE(inkOf(image, columnColor), QRect(20, 10, width, 60));
    }
    QPixmap cached;
    const bool found = QPixmapCache::find(path, &cached);
    QPixmapCache::remove(path);
    QCOMPARE(found, QPixmapCache::insert(path, QPixmap()));
}

void tst_ZEMColumnSymbol::unreadableIconReplacesAnEarlierOne()
{
    ZEMColumnSymbol symbol(QwtColumnSymbol::UserStyle);
    symbol.setPalette(windowPalette(columnColor));
    symbol.setIcon(iconPath);
    symbol.setIcon(QStringLiteral(":/no/such/icon.png"));
    QVERIFY(inkOf(draw(symbol, columnRect(20, 60, 10, 70)), iconColor).isNull());
}

QTEST_MAIN(tst_ZEMColumnSymbol)
#include "tst_zemcolumnsymbol.moc"
