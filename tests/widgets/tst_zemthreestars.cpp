// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "starplaces_p.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMThreeStars>

#include <QPainter>
#include <QPixmap>
#include <QTest>

#include <limits>

using namespace WidgetTest;
using ZemTest::render;

namespace {

struct Stars
{
    explicit Stars(bool small)
        : filled(QLatin1String(small ? ":/zem/graphics/icons/star_icon_small.png"
                                     : ":/zem/graphics/icons/star_icon.png")),
          empty(QLatin1String(small ? ":/zem/graphics/icons/star_empty_icon_small.png"
                                    : ":/zem/graphics/icons/star_empty_icon.png"))
    {
    }

    /** By letter: '*' a filled star, '-' an empty one. */
    const QPixmap &of(QChar letter) const { return letter == QLatin1Char('*') ? filled : empty; }

    QPixmap filled;
    QPixmap empty;
};

/** What a rating must look like; @p letters tell the stars at the top, left and right. */
QImage expectedImage(const QSize &size, bool small, const QString &letters)
{
    const Stars stars(small);
    const int starWidth = small ? 22 : 43;
    const int starHeight = small ? 20 : 39;
    const int bottom = size.height() - starHeight;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.drawPixmap(size.width() / 2 - starWidth / 2, 0, stars.of(letters.at(0)));
    painter.drawPixmap(0, bottom, stars.of(letters.at(1)));
    painter.drawPixmap(size.width() - starWidth, bottom, stars.of(letters.at(2)));
    return image;
}

} // namespace

class tst_ZEMThreeStars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newRating();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void refusedRatingsChangeNothing_data();
    void refusedRatingsChangeNothing();
    void whenSettersPaint();
    void places_data();
    void places();
    void look_data();
    void look();
    void picturesChangeNoSize();
    void starsOverlapInTheirOrder();
};

void tst_ZEMThreeStars::newRating()
{
    ZEMThreeStars rating;
    QCOMPARE(rating.objectName(), QStringLiteral("ZEMThreeStars"));
    QCOMPARE(rating.windowTitle(), QString());
    QCOMPARE(rating.getStars(), 0);
    QVERIFY(!rating.isSmallVersion());

    QWidget host;
    QCOMPARE((new ZEMThreeStars(&host))->parentWidget(), &host);
}

void tst_ZEMThreeStars::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMThreeStars::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), FormTest::strings({"stars:int", "smallVersion:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMThreeStars::propertiesReachTheAccessors()
{
    ZEMThreeStars rating;
    QVERIFY(rating.setProperty("stars", 2));
    QVERIFY(rating.setProperty("smallVersion", true));
    QCOMPARE(rating.getStars(), 2);
    QVERIFY(rating.isSmallVersion());
    QCOMPARE(rating.property("stars").toInt(), 2);
    QVERIFY(rating.property("smallVersion").toBool());
}

void tst_ZEMThreeStars::refusedRatingsChangeNothing_data()
{
    QTest::addColumn<int>("stars");
    QTest::addColumn<int>("expected");
    QTest::newRow("-1") << -1 << 2;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("3") << 3 << 3;
    QTest::newRow("4") << 4 << 2;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 2;
    QTest::newRow("most") << std::numeric_limits<int>::max() << 2;
}

void tst_ZEMThreeStars::refusedRatingsChangeNothing()
{
    QFETCH(int, stars);
    ZEMThreeStars rating;
    rating.setStars(2);
    rating.setStars(stars);
    QTEST(rating.getStars(), "expected");
}

void tst_ZEMThreeStars::whenSettersPaint()
{
    ZEMThreeStars rating;
    rating.resize(90, 80);
    const Stage stage(&rating);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&rating, [&] { rating.setStars(1); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&rating, [&] { rating.setStars(1); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&rating, [&] { rating.setStars(4); }), Painted::Never);
    QCOMPARE(paintedBy(&rating, [&] { rating.setStars(-1); }), Painted::Never);
    QCOMPARE(paintedBy(&rating, [&] { rating.setSmallVersion(true); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&rating, [&] { rating.setSmallVersion(true); }), Painted::Never);
    QCOMPARE(paintedBy(&rating, [&] { rating.setSmallVersion(false); }), Painted::AtOnce);
}

void tst_ZEMThreeStars::places_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QSize>("star");
    QTest::addColumn<QPoint>("top");
    QTest::addColumn<QPoint>("left");
    QTest::addColumn<QPoint>("right");
    QTest::newRow("even") << QSize(90, 80) << QSize(40, 38) << QPoint(25, 0) << QPoint(0, 42)
                          << QPoint(50, 42);
    // Each half is rounded down on its own: 45 - 21 and not (91 - 42) / 2.
    QTest::newRow("odd star") << QSize(90, 80) << QSize(43, 39) << QPoint(24, 0) << QPoint(0, 41)
                              << QPoint(47, 41);
    QTest::newRow("odd both") << QSize(91, 80) << QSize(43, 39) << QPoint(24, 0) << QPoint(0, 41)
                              << QPoint(48, 41);
    QTest::newRow("odd widget") << QSize(91, 80) << QSize(42, 39) << QPoint(24, 0) << QPoint(0, 41)
                                << QPoint(49, 41);
    QTest::newRow("too small") << QSize(10, 10) << QSize(22, 20) << QPoint(-6, 0) << QPoint(0, -10)
                               << QPoint(-12, -10);
}

void tst_ZEMThreeStars::places()
{
    QFETCH(QSize, widget);
    QFETCH(QSize, star);
    const auto stars = StarPlaces::triangle(0, widget, star);
    QTEST(stars[0].topLeft, "top");
    QTEST(stars[1].topLeft, "left");
    QTEST(stars[2].topLeft, "right");
}

void tst_ZEMThreeStars::look_data()
{
    QTest::addColumn<int>("stars");
    QTest::addColumn<QString>("letters"); // top, bottom left, bottom right
    QTest::newRow("0") << 0 << QStringLiteral("---");
    QTest::newRow("1") << 1 << QStringLiteral("-*-");
    QTest::newRow("2") << 2 << QStringLiteral("-**");
    QTest::newRow("3") << 3 << QStringLiteral("***");
}

void tst_ZEMThreeStars::look()
{
    QFETCH(int, stars);
    QFETCH(QString, letters);
    for (const bool small : {false, true}) {
        for (const QSize &size : {QSize(90, 80), QSize(101, 93), QSize(40, 30)}) {
            ZEMThreeStars rating;
            rating.setSmallVersion(small);
            rating.setStars(stars);
            rating.resize(size);
            QCOMPARE(render(&rating), expectedImage(size, small, letters));
        }
    }
    QVERIFY(Stars(false).filled.toImage() != Stars(false).empty.toImage());
}

void tst_ZEMThreeStars::picturesChangeNoSize()
{
    ZEMThreeStars rating;
    rating.resize(91, 81);
    rating.setStars(3);
    rating.setSmallVersion(true);
    QCOMPARE(rating.size(), QSize(91, 81));
    rating.setSmallVersion(false);
    QCOMPARE(rating.size(), QSize(91, 81));
    QCOMPARE(render(&rating), expectedImage({91, 81}, false, QStringLiteral("***")));
}

void tst_ZEMThreeStars::starsOverlapInTheirOrder()
{
    // In a widget of the size of a star all three lie upon each other and the last is on top.
    ZEMThreeStars rating;
    rating.resize(43, 39);
    rating.setStars(2);
    QCOMPARE(render(&rating), expectedImage({43, 39}, false, QStringLiteral("-**")));
    rating.setStars(1);
    const QImage one = render(&rating);
    QCOMPARE(one, expectedImage({43, 39}, false, QStringLiteral("-*-")));
    QVERIFY(one != expectedImage({43, 39}, false, QStringLiteral("--*")));
}

QTEST_MAIN(tst_ZEMThreeStars)
#include "tst_zemthreestars.moc"
