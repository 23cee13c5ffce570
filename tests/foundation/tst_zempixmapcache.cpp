// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPixmapCache>

#include <QFile>
#include <QPixmap>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTest>

class tst_ZEMPixmapCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void loadsFromDiskOnce();
    void cachedPictureIsTakenInsteadOfTheFile();
    void unreadablePathLeavesANullPixmap();
    void pictureIsKeptForEachRatio();
    void setCacheLimitReachesTheGlobalCache();
};

void tst_ZEMPixmapCache::init()
{
    QPixmapCache::clear();
}

void tst_ZEMPixmapCache::loadsFromDiskOnce()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("picture.png"));
    QPixmap red(3, 2);
    red.fill(Qt::red);
    QVERIFY(red.save(path));

    QPixmap first;
    QVERIFY(ZEMPixmapCache::load(first, path));
    QCOMPARE(first.size(), QSize(3, 2));

    QVERIFY(QFile::remove(path));
    QPixmap second;
    QVERIFY(ZEMPixmapCache::load(second, path));
    QCOMPARE(second.size(), QSize(3, 2));
    QCOMPARE(second.cacheKey(), first.cacheKey());
}

void tst_ZEMPixmapCache::cachedPictureIsTakenInsteadOfTheFile()
{
    QPixmap blue(5, 5);
    blue.fill(Qt::blue);
    const QString path = QStringLiteral(":/zem/graphics/icons/arrow_left.png");
    QVERIFY(QPixmapCache::insert(path, blue));

    QPixmap loaded;
    QVERIFY(ZEMPixmapCache::load(loaded, path));
    QCOMPARE(loaded.size(), QSize(5, 5));
}

void tst_ZEMPixmapCache::unreadablePathLeavesANullPixmap()
{
    const QString path = QStringLiteral(":/no/such/picture.png");
    QPixmap pixmap(7, 7);
    const bool loaded = ZEMPixmapCache::load(pixmap, path);
    QVERIFY(pixmap.isNull());

    QPixmapCache::remove(path);
    QCOMPARE(loaded, QPixmapCache::insert(path, QPixmap()));
}

void tst_ZEMPixmapCache::pictureIsKeptForEachRatio()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.b.png"));
    const auto save = [&](const char *name, int side) {
        QPixmap picture(side, side);
        picture.fill(Qt::red);
        return picture.save(dir.filePath(QLatin1String(name)));
    };
    QVERIFY(save("a.b.png", 10) && save("a.b@2x.png", 20) && save("a.b@3x.png", 30));

    const struct
    {
        qreal ratio;
        int side; // pixels
        qreal ratioOfPicture;
    } expectations[] = {{0.5, 10, 1.0}, {1.0, 10, 1.0}, {1.25, 20, 2.0}, {2.0, 20, 2.0},
                        {2.5, 30, 3.0}, {8.0, 30, 3.0}, {1.0, 10, 1.0}};
    for (const auto &expected : expectations) {
        QPixmap picture;
        QVERIFY(ZEMPixmapCache::load(picture, path, expected.ratio));
        QCOMPARE(picture.size(), QSize(expected.side, expected.side));
        QCOMPARE(picture.devicePixelRatio(), expected.ratioOfPicture);
    }
    QPixmap picture;
    QVERIFY(ZEMPixmapCache::load(picture, path));
    QCOMPARE(picture.size(), QSize(10, 10));
}

void tst_ZEMPixmapCache::setCacheLimitReachesTheGlobalCache()
{
    const int before = QPixmapCache::cacheLimit();
    ZEMPixmapCache::setCacheLimit(before + 1234);
    QCOMPARE(QPixmapCache::cacheLimit(), before + 1234);
    ZEMPixmapCache::setCacheLimit(before);
}

QTEST_MAIN(tst_ZEMPixmapCache)
#include "tst_zempixmapcache.moc"
