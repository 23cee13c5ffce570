// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMBrush>

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QTest>

class tst_ZEMBrush : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void paintsOnePixelLinesWithAClearFirstRow();
    void colorsShareOnePattern();
    void patternIsMadeAgainAfterEviction();
};

static QString patternKey()
{
    return QStringLiteral("zem-brush");
}

void tst_ZEMBrush::init()
{
    QPixmapCache::clear();
}

static QImage filled(const QBrush &brush)
{
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter(&image).fillRect(image.rect(), brush);
    return image;
}

void tst_ZEMBrush::paintsOnePixelLinesWithAClearFirstRow()
{
    const QImage image = filled(ZEMBrush::getBrush(Qt::green));
    for (int y = 0; y < image.height(); ++y) {
        const QColor expected = y % 2 == 0 ? QColor(Qt::black) : QColor(Qt::green);
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixelColor(x, y), expected);
        }
    }
}

void tst_ZEMBrush::colorsShareOnePattern()
{
    const QBrush red = ZEMBrush::getBrush(Qt::red);
    QPixmap cached;
    QVERIFY(QPixmapCache::find(patternKey(), &cached));
    const QBrush blue = ZEMBrush::getBrush(Qt::blue);

    QCOMPARE(red.color(), QColor(Qt::red));
    QCOMPARE(blue.color(), QColor(Qt::blue));
    QCOMPARE(red.texture().cacheKey(), cached.cacheKey());
    QCOMPARE(blue.texture().cacheKey(), cached.cacheKey());
    QCOMPARE(cached.size(), QSize(8, 8));
    QCOMPARE(filled(blue).pixelColor(4, 1), QColor(Qt::blue));
}

void tst_ZEMBrush::patternIsMadeAgainAfterEviction()
{
    ZEMBrush::getBrush(Qt::red);
    QPixmapCache::remove(patternKey());
    const QImage image = filled(ZEMBrush::getBrush(Qt::red));
    QCOMPARE(image.pixelColor(4, 1), QColor(Qt::red));
    QPixmap cached;
    QVERIFY(QPixmapCache::find(patternKey(), &cached));
}

QTEST_MAIN(tst_ZEMBrush)
#include "tst_zembrush.moc"
