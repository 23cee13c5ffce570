// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMPixmap>

#include <QTest>

#include <limits>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMPixmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newPixmap();
    void titleIsTranslated();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void sizeHintIsThePresentSize();
    void pictureLocksTheSize();
    void nullPictureLocksTheSizeToNothing();
    void opacityRange_data();
    void opacityRange();
    void paintsWithItsOpacity_data();
    void paintsWithItsOpacity();
    void pictureIsStretchedIfTheHostForcesASize();
    void withoutPictureNothingIsPainted();
    void colorMakesAPictureOfTheWidgetsSize();
    void colorReplacesThePictureAndKeepsItsSize();
    void translucentColorLeavesNothingOfThePicture();
    void colorLeavesTheCallersPictureAlone();
    void colorChangesNoSize();
    void whenSettersPaint();
};

void tst_ZEMPixmap::newPixmap()
{
    ZEMPixmap pixmap;
    QCOMPARE(pixmap.objectName(), QStringLiteral("ZEMPixmap"));
    QCOMPARE(pixmap.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(pixmap.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(pixmap.getOpacity(), 1.0);
    QVERIFY(pixmap.getPixmap().isNull());
    QVERIFY(!pixmap.getColor().isValid());

    QWidget host;
    QCOMPARE((new ZEMPixmap(&host))->parentWidget(), &host);
}

void tst_ZEMPixmap::titleIsTranslated()
{
    ContextTranslator translator;
    QCOMPARE(ZEMPixmap().windowTitle(), QStringLiteral("ZEMPixmap/Form"));
}

void tst_ZEMPixmap::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMPixmap::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList({QStringLiteral("pixmap:QPixmap"), QStringLiteral("opacity:double"),
                          QStringLiteral("color:QColor")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMPixmap::propertiesReachTheAccessors()
{
    ZEMPixmap pixmap;
    const QPixmap picture = flatPixmap({30, 20}, Qt::red);
    QVERIFY(pixmap.setProperty("pixmap", picture));
    QCOMPARE(pixmap.getPixmap().cacheKey(), picture.cacheKey());
    QCOMPARE(pixmap.property("pixmap").value<QPixmap>().cacheKey(), picture.cacheKey());

    QVERIFY(pixmap.setProperty("opacity", 0.25));
    QCOMPARE(pixmap.getOpacity(), 0.25);
    QCOMPARE(pixmap.property("opacity").toDouble(), 0.25);

    QVERIFY(pixmap.setProperty("color", QColor(1, 2, 3, 4)));
    QCOMPARE(pixmap.getColor(), QColor(1, 2, 3, 4));
    QCOMPARE(pixmap.property("color").value<QColor>(), QColor(1, 2, 3, 4));
}

void tst_ZEMPixmap::sizeHintIsThePresentSize()
{
    ZEMPixmap pixmap;
    QCOMPARE(pixmap.sizeHint(), pixmap.size());
    pixmap.resize(17, 33);
    QCOMPARE(pixmap.sizeHint(), QSize(17, 33));
    pixmap.setPixmap(flatPixmap({5, 6}, Qt::red));
    QCOMPARE(pixmap.sizeHint(), QSize(5, 6));
}

void tst_ZEMPixmap::pictureLocksTheSize()
{
    for (const QSize &size : {QSize(40, 10), QSize(8, 90)}) {
        ZEMPixmap pixmap;
        pixmap.setPixmap(flatPixmap({20, 20}, Qt::red));
        pixmap.setPixmap(flatPixmap(size, Qt::red));
        QCOMPARE(pixmap.size(), size);
        QCOMPARE(pixmap.minimumSize(), size);
        QCOMPARE(pixmap.maximumSize(), size);
        pixmap.resize(300, 300);
        QCOMPARE(pixmap.size(), size);
    }
}

void tst_ZEMPixmap::nullPictureLocksTheSizeToNothing()
{
    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({20, 20}, Qt::red));
    pixmap.setPixmap(QPixmap());
    QCOMPARE(pixmap.size(), QSize(0, 0));
    QCOMPARE(pixmap.minimumSize(), QSize(0, 0));
    QCOMPARE(pixmap.maximumSize(), QSize(0, 0));
}

void tst_ZEMPixmap::opacityRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("0.0") << 0.0 << true;
    QTest::newRow("1.0") << 1.0 << true;
    QTest::newRow("middle") << 0.75 << true;
    QTest::newRow("the default's neighbour") << 0.5 << true;
    QTest::newRow("1.5") << 1.5 << false;
    QTest::newRow("-0.1") << -0.1 << false;
    QTest::newRow("just above 1") << 1.0 + std::numeric_limits<double>::epsilon() << false;
    QTest::newRow("just below 0") << -std::numeric_limits<double>::denorm_min() << false;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << false;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << false;
}

void tst_ZEMPixmap::opacityRange()
{
    QFETCH(double, value);
    QFETCH(bool, accepted);

    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({20, 20}, Qt::red));
    pixmap.setOpacity(0.5);
    const Stage stage(&pixmap);
    QVERIFY(stage.isReady());
    const Painted painted = paintedBy(&pixmap, [&] { pixmap.setOpacity(value); });

    QCOMPARE(pixmap.getOpacity(), accepted ? value : 0.5);
    QCOMPARE(painted, accepted ? Painted::AtOnce : Painted::Never);
}

void tst_ZEMPixmap::paintsWithItsOpacity_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("expected");

    QTest::newRow("not seen") << 0.0 << 0;
    QTest::newRow("quarter") << 0.25 << 64;
    QTest::newRow("half") << 0.5 << 128;
    QTest::newRow("full") << 1.0 << 255;
}

void tst_ZEMPixmap::paintsWithItsOpacity()
{
    QFETCH(double, opacity);
    QFETCH(int, expected);

    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({20, 20}, Qt::white));
    pixmap.setOpacity(opacity);
    const QImage image = render(&pixmap);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(19, 19)}) {
        const int value = image.pixelColor(corner).red();
        QVERIFY2(qAbs(value - expected) <= 1, qPrintable(QString::number(value)));
    }
}

void tst_ZEMPixmap::pictureIsStretchedIfTheHostForcesASize()
{
    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({4, 4}, Qt::red));
    pixmap.setFixedSize(50, 30);
    QImage expected(50, 30, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::red);
    QCOMPARE(render(&pixmap), expected);
}

void tst_ZEMPixmap::withoutPictureNothingIsPainted()
{
    ZEMPixmap pixmap;
    pixmap.resize(20, 20);
    QVERIFY(ZemTest::inkRect(render(&pixmap)).isNull());
}

void tst_ZEMPixmap::colorMakesAPictureOfTheWidgetsSize()
{
    ZEMPixmap pixmap;
    pixmap.resize(30, 12);
    pixmap.setColor(QColor(10, 20, 30));
    QCOMPARE(pixmap.getColor(), QColor(10, 20, 30));
    QCOMPARE(pixmap.getPixmap().size(), QSize(30, 12));
    QCOMPARE(render(&pixmap).pixelColor(29, 11), QColor(10, 20, 30));
}

void tst_ZEMPixmap::colorReplacesThePictureAndKeepsItsSize()
{
    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({8, 6}, Qt::red));
    pixmap.setFixedSize(50, 50);
    pixmap.setColor(Qt::blue);
    QImage expected(8, 6, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::blue);
    QCOMPARE(pixmap.getPixmap().toImage().convertToFormat(expected.format()), expected);
}

void tst_ZEMPixmap::translucentColorLeavesNothingOfThePicture()
{
    ZEMPixmap pixmap;
    pixmap.setPixmap(flatPixmap({8, 6}, Qt::red));
    pixmap.setColor(QColor(0, 0, 255, 0));
    QCOMPARE(render(&pixmap, Qt::white).pixelColor(4, 3), QColor(Qt::white));
}

void tst_ZEMPixmap::colorLeavesTheCallersPictureAlone()
{
    const QPixmap picture = flatPixmap({8, 6}, Qt::red);
    ZEMPixmap pixmap;
    pixmap.setPixmap(picture);
    pixmap.setColor(Qt::blue);
    QCOMPARE(picture.toImage().pixelColor(0, 0), QColor(Qt::red));
}

void tst_ZEMPixmap::colorChangesNoSize()
{
    ZEMPixmap pixmap;
    pixmap.resize(30, 12);
    pixmap.setColor(Qt::blue);
    QCOMPARE(pixmap.size(), QSize(30, 12));
    QCOMPARE(pixmap.minimumSize(), QSize(0, 0));
    QCOMPARE(pixmap.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_ZEMPixmap::whenSettersPaint()
{
    ZEMPixmap pixmap;
    const QPixmap picture = flatPixmap({20, 20}, Qt::red);
    pixmap.setPixmap(picture);
    const Stage stage(&pixmap);
    QVERIFY(stage.isReady());

    QCOMPARE(paintedBy(&pixmap, [&] { pixmap.setPixmap(picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&pixmap, [&] { pixmap.setOpacity(1.0); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&pixmap, [&] { pixmap.setColor(Qt::blue); }), Painted::Never);
}

QTEST_MAIN(tst_ZEMPixmap)
#include "tst_zempixmap.moc"
