// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMPageBackground>

#include <QPainter>
#include <QTest>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMPageBackground : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newPage();
    void titleIsTranslated();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void backgroundSetsTheMinimumOnly();
    void backgroundLargerThanThePageEnlargesIt();
    void nullBackgroundReleasesTheMinimum();
    void colorFillsTheWholePage();
    void translucentColorBlendsWithTheGround();
    void pictureIsStretchedOverThePage();
    void translucentPictureHasNoColorBehindIt();
    void pictureCoversTheColor();
    void pageWithoutPictureAndColorIsBlack();
    void whenSettersPaint();
};

void tst_ZEMPageBackground::newPage()
{
    ZEMPageBackground page;
    QCOMPARE(page.objectName(), QStringLiteral("ZEMPageBackground"));
    QCOMPARE(page.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(page.size(), QSize(640, 480));
    QCOMPARE(page.minimumSize(), QSize(640, 480));
    QCOMPARE(page.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QVERIFY(page.getBackground().isNull());
    QVERIFY(!page.getBackgroundColor().isValid());

    QWidget host;
    QCOMPARE((new ZEMPageBackground(&host))->parentWidget(), &host);
}

void tst_ZEMPageBackground::titleIsTranslated()
{
    ContextTranslator translator;
    QCOMPARE(ZEMPageBackground().windowTitle(), QStringLiteral("ZEMPageBackground/Form"));
}

void tst_ZEMPageBackground::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMPageBackground::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList(
                 {QStringLiteral("background:QPixmap"), QStringLiteral("backgroundColor:QColor")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMPageBackground::propertiesReachTheAccessors()
{
    ZEMPageBackground page;
    const QPixmap picture = flatPixmap({30, 20}, Qt::red);
    QVERIFY(page.setProperty("background", picture));
    QVERIFY(page.setProperty("backgroundColor", QColor(1, 2, 3, 4)));

    QCOMPARE(page.getBackground().cacheKey(), picture.cacheKey());
    QCOMPARE(page.minimumSize(), QSize(30, 20));
    QCOMPARE(page.getBackgroundColor(), QColor(1, 2, 3, 4));
    QCOMPARE(page.property("background").value<QPixmap>().cacheKey(), picture.cacheKey());
    QCOMPARE(page.property("backgroundColor").value<QColor>(), QColor(1, 2, 3, 4));
}

void tst_ZEMPageBackground::backgroundSetsTheMinimumOnly()
{
    ZEMPageBackground page;
    page.setBackground(flatPixmap({100, 50}, Qt::red));
    QCOMPARE(page.size(), QSize(640, 480));
    QCOMPARE(page.minimumSize(), QSize(100, 50));
    QCOMPARE(page.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));

    page.setBackground(flatPixmap({110, 60}, Qt::red), false);
    QCOMPARE(page.minimumSize(), QSize(110, 60));
}

void tst_ZEMPageBackground::backgroundLargerThanThePageEnlargesIt()
{
    ZEMPageBackground page;
    page.setBackground(flatPixmap({700, 500}, Qt::red));
    QCOMPARE(page.size(), QSize(700, 500));
}

void tst_ZEMPageBackground::nullBackgroundReleasesTheMinimum()
{
    ZEMPageBackground page;
    page.setBackgroundColor(Qt::green);
    page.setBackground(flatPixmap({100, 50}, Qt::red));
    page.setBackground(QPixmap());
    QCOMPARE(page.minimumSize(), QSize(0, 0));
    page.resize(10, 10);
    QCOMPARE(render(&page).pixelColor(5, 5), QColor(Qt::green));
}

void tst_ZEMPageBackground::colorFillsTheWholePage()
{
    ZEMPageBackground page;
    page.setBackgroundColor(QColor(10, 200, 30));
    const QImage image = render(&page);
    QImage expected(page.size(), image.format());
    expected.fill(QColor(10, 200, 30));
    QCOMPARE(image, expected);
}

void tst_ZEMPageBackground::translucentColorBlendsWithTheGround()
{
    ZEMPageBackground page;
    page.setBackgroundColor(QColor(0, 0, 0, 51)); // a fifth
    const int value = render(&page, Qt::white).pixelColor(0, 0).red();
    QVERIFY2(qAbs(value - 204) <= 1, qPrintable(QString::number(value)));
}

void tst_ZEMPageBackground::pictureIsStretchedOverThePage()
{
    QPixmap picture = flatPixmap({4, 2}, Qt::red);
    QPainter painter(&picture);
    painter.fillRect(2, 0, 2, 2, Qt::blue);
    painter.end();

    ZEMPageBackground page;
    page.setBackground(picture);
    page.resize(200, 60);
    const QImage image = render(&page);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(98, 59), QColor(Qt::red));
    QCOMPARE(image.pixelColor(101, 0), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(199, 59), QColor(Qt::blue));
}

void tst_ZEMPageBackground::translucentPictureHasNoColorBehindIt()
{
    ZEMPageBackground page;
    page.setBackgroundColor(Qt::green);
    page.setBackground(flatPixmap({20, 20}, Qt::transparent));
    QCOMPARE(render(&page, Qt::white).pixelColor(5, 5), QColor(Qt::white));
}

void tst_ZEMPageBackground::pictureCoversTheColor()
{
    ZEMPageBackground page;
    page.setBackground(flatPixmap({20, 20}, Qt::red));
    page.setBackgroundColor(Qt::green);
    const QImage image = render(&page);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(639, 479), QColor(Qt::red));
}

void tst_ZEMPageBackground::pageWithoutPictureAndColorIsBlack()
{
    ZEMPageBackground page;
    const QImage image = render(&page, Qt::white);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(image.pixelColor(639, 479), QColor(Qt::black));
}

void tst_ZEMPageBackground::whenSettersPaint()
{
    ZEMPageBackground page;
    page.setBackground(flatPixmap({20, 20}, Qt::red));
    const Stage stage(&page);
    QVERIFY(stage.isReady());
    const QPixmap picture = flatPixmap({20, 20}, Qt::blue);

    QCOMPARE(paintedBy(&page, [&] { page.setBackground(picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&page, [&] { page.setBackground(picture, true); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&page, [&] { page.setBackground(picture, false); }), Painted::Never);
    QCOMPARE(paintedBy(&page, [&] { page.setProperty("background", picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&page, [&] { page.setBackgroundColor(Qt::green); }), Painted::AtOnce);
}

QTEST_MAIN(tst_ZEMPageBackground)
#include "tst_zempagebackground.moc"
