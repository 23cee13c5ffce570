// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zoomgesture_p.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstdlib>

using namespace ZoomGesture;

namespace {

const QSize canvas(400, 300);
constexpr int margin = 50;

} // namespace

class tst_ZoomGesture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyUpperLeftIsNoZoom_data();
    void onlyUpperLeftIsNoZoom();
    void extent_data();
    void extent();
    void snap_data();
    void snap();
    void snapNeedsLessThanTheMargin();
    void withoutMarginNothingSnaps();
    void randomDragsFollowModel();
    void widenedKeepsTheCentre_data();
    void widenedKeepsTheCentre();
    void viewIsKeptInsideTheBase_data();
    void viewIsKeptInsideTheBase();
    void randomViewsAreKeptInsideTheBase();
    void bandHoldsItsBorderPixels();
    void crossJoinsOppositeCorners();
    void ticks_data();
    void ticks();
};

void tst_ZoomGesture::onlyUpperLeftIsNoZoom_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<bool>("expected");

    // All rows start at (100, 100).
    QTest::newRow("upper left") << QPoint(90, 90) << false;
    QTest::newRow("upper left by one") << QPoint(99, 99) << false;
    QTest::newRow("left") << QPoint(90, 100) << true;
    QTest::newRow("up") << QPoint(100, 90) << true;
    QTest::newRow("upper right") << QPoint(101, 90) << true;
    QTest::newRow("lower left") << QPoint(90, 101) << true;
    QTest::newRow("lower right") << QPoint(110, 110) << true;
    QTest::newRow("down") << QPoint(100, 110) << true;
    QTest::newRow("right") << QPoint(110, 100) << true;
    QTest::newRow("nowhere") << QPoint(100, 100) << true;
}

void tst_ZoomGesture::onlyUpperLeftIsNoZoom()
{
    QFETCH(QPoint, end);
    QTEST(isZoom(QPoint(100, 100), end), "expected");
}

void tst_ZoomGesture::extent_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<bool>("expected");

    QTest::newRow("none") << QPoint(100, 100) << false;
    QTest::newRow("right by one") << QPoint(101, 100) << true;
    QTest::newRow("down by one") << QPoint(100, 101) << true;
    QTest::newRow("left by one is no extent yet") << QPoint(99, 100) << false;
    QTest::newRow("left by two") << QPoint(98, 100) << true;
    QTest::newRow("up by one is no extent yet") << QPoint(100, 99) << false;
    QTest::newRow("up by two") << QPoint(100, 98) << true;
    QTest::newRow("upper left by one") << QPoint(99, 99) << false;
    QTest::newRow("narrow and long") << QPoint(100, 200) << true;
}

void tst_ZoomGesture::extent()
{
    QFETCH(QPoint, end);
    QTEST(hasExtent(QPoint(100, 100), end), "expected");
}

void tst_ZoomGesture::snap_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("last");

    QTest::newRow("right") << QPoint(300, 120) << 1 << QPoint(100, 0) << QPoint(299, 299);
    QTest::newRow("right, rising") << QPoint(300, 80) << 1 << QPoint(100, 0) << QPoint(299, 299);
    QTest::newRow("down") << QPoint(120, 250) << 0 << QPoint(0, 100) << QPoint(399, 249);
    QTest::newRow("free") << QPoint(300, 250) << 2 << QPoint(100, 100) << QPoint(300, 250);
    QTest::newRow("nowhere") << QPoint(100, 100) << 2 << QPoint(100, 100) << QPoint(100, 100);
    QTest::newRow("diagonal") << QPoint(120, 120) << 2 << QPoint(100, 100) << QPoint(120, 120);
    QTest::newRow("left and down") << QPoint(40, 120) << 1 << QPoint(100, 0) << QPoint(39, 299);
    QTest::newRow("up and right") << QPoint(120, 30) << 0 << QPoint(0, 100) << QPoint(399, 29);
    QTest::newRow("right by one") << QPoint(101, 100) << 1 << QPoint(100, 0) << QPoint(100, 299);
    QTest::newRow("down by one") << QPoint(100, 101) << 0 << QPoint(0, 100) << QPoint(399, 100);
}

void tst_ZoomGesture::snap()
{
    QFETCH(QPoint, end);
    const Snap found = snapped(QPoint(100, 100), end, margin, canvas);
    QTEST(int(found.direction), "direction");
    QTEST(found.first, "first");
    QTEST(found.last, "last");
}

void tst_ZoomGesture::snapNeedsLessThanTheMargin()
{
    const QPoint start(100, 100);
    QCOMPARE(snapped(start, QPoint(300, 149), margin, canvas).direction, AlongX);
    QCOMPARE(snapped(start, QPoint(300, 150), margin, canvas).direction, Free);
    QCOMPARE(snapped(start, QPoint(149, 300), margin, canvas).direction, AlongY);
    QCOMPARE(snapped(start, QPoint(150, 300), margin, canvas).direction, Free);
}

void tst_ZoomGesture::withoutMarginNothingSnaps()
{
    for (const int none : {0, -1}) {
        QCOMPARE(snapped(QPoint(100, 100), QPoint(300, 100), none, canvas).direction, Free);
        QCOMPARE(snapped(QPoint(100, 100), QPoint(100, 300), none, canvas).direction, Free);
    }
}

void tst_ZoomGesture::randomDragsFollowModel()
{
    QRandomGenerator random(72);
    for (int round = 0; round < 20000; ++round) {
        const QSize size(random.bounded(1, 700), random.bounded(1, 500));
        const QPoint start(random.bounded(size.width()), random.bounded(size.height()));
        const QPoint end(random.bounded(-20, size.width() + 20),
                         random.bounded(-20, size.height() + 20));
        const int corridor = random.bounded(120);
        const int way = std::abs(start.x() - end.x());
        const int climb = std::abs(start.y() - end.y());

        QVector<int> expected = {Free, start.x(), start.y(), end.x(), end.y()};
        if (way > climb && corridor > climb) {
            expected = {AlongX, start.x(), 0, end.x() - 1, size.height() - 1};
        } else if (climb > way && corridor > way) {
            expected = {AlongY, 0, start.y(), size.width() - 1, end.y() - 1};
        }
        const Snap found = snapped(start, end, corridor, size);
        QCOMPARE((QVector<int> {found.direction, found.first.x(), found.first.y(), found.last.x(),
                                found.last.y()}),
                 expected);
    }
}

void tst_ZoomGesture::widenedKeepsTheCentre_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected");

    // The least size is 8 by 4.
    QTest::newRow("large enough") << QRectF(10, 20, 8, 4) << QRectF(10, 20, 8, 4);
    QTest::newRow("larger") << QRectF(10, 20, 80, 40) << QRectF(10, 20, 80, 40);
    QTest::newRow("too narrow") << QRectF(10, 20, 2, 40) << QRectF(7, 20, 8, 40);
    QTest::newRow("too low") << QRectF(10, 20, 80, 1) << QRectF(10, 18.5, 80, 4);
    QTest::newRow("a point") << QRectF(10, 20, 0, 0) << QRectF(6, 18, 8, 4);
}

void tst_ZoomGesture::widenedKeepsTheCentre()
{
    QFETCH(QRectF, rect);
    QTEST(widened(rect, QSizeF(8, 4)), "expected");
}

void tst_ZoomGesture::viewIsKeptInsideTheBase_data()
{
    QTest::addColumn<QRectF>("view");
    QTest::addColumn<QSizeF>("least");
    QTest::addColumn<QRectF>("expected");

    // The base reaches from (0, -10) to (100, 50).
    const QSizeF least(8, 4);
    QTest::newRow("inside") << QRectF(10, 20, 8, 4) << least << QRectF(10, 20, 8, 4);
    QTest::newRow("small") << QRectF(10, 20, 2, 2) << least << QRectF(7, 19, 8, 4);
    QTest::newRow("no least size") << QRectF(10, 20, 2, 2) << QSizeF() << QRectF(10, 20, 2, 2);
    QTest::newRow("no width") << QRectF(10, 20, 0, 4) << least << QRectF(6, 20, 8, 4);
    QTest::newRow("beyond the right") << QRectF(90, 20, 20, 4) << least << QRectF(90, 20, 10, 4);
    QTest::newRow("small at the left") << QRectF(-1, 20, 2, 4) << least << QRectF(0, 20, 8, 4);
    QTest::newRow("small at the top") << QRectF(10, 49, 8, 1) << least << QRectF(10, 46, 8, 4);
    QTest::newRow("outside") << QRectF(200, -90, 20, 20) << least << QRectF(92, -10, 8, 4);
    QTest::newRow("around the base")
        << QRectF(-5, -15, 200, 100) << least << QRectF(0, -10, 100, 60);
    QTest::newRow("more than there is")
        << QRectF(10, 20, 8, 4) << QSizeF(500, 4) << QRectF(0, 20, 100, 4);
}

void tst_ZoomGesture::viewIsKeptInsideTheBase()
{
    QFETCH(QRectF, view);
    QFETCH(QSizeF, least);
    QTEST(keptInside(view, QRectF(0, -10, 100, 60), least), "expected");
}

void tst_ZoomGesture::randomViewsAreKeptInsideTheBase()
{
    QRandomGenerator random(20260101);
    const auto number = [&](double bound) { return random.generateDouble() * bound; };
    for (int i = 0; i < 10000; ++i) {
        const Span base {number(10.0) - 5.0, 5.0 + number(1e6)};
        const double from = number(2e6) - 1e6;
        const double least = number(20.0);
        const Span kept = keptInside({from, from + number(1e6)}, base, least);
        const double rounding = 1e-9 * base.to;
        QVERIFY(kept.from >= base.from);
        QVERIFY(kept.to <= base.to + rounding);
        QVERIFY(kept.to - kept.from >= std::min(least, base.to - base.from) - rounding);
    }
}

void tst_ZoomGesture::bandHoldsItsBorderPixels()
{
    QCOMPARE(band(QRect(QPoint(10, 20), QPoint(30, 60))), QRectF(10, 20, 21, 41));
    QCOMPARE(band(QRect(QPoint(10, 20), QPoint(10, 20))), QRectF(10, 20, 1, 1));
}

void tst_ZoomGesture::crossJoinsOppositeCorners()
{
    const LinePair lines = cross(QRect(QPoint(10, 20), QPoint(30, 60)));
    QCOMPARE(lines[0], QLineF(10, 20, 30, 60));
    QCOMPARE(lines[1], QLineF(30, 20, 10, 60));
}

void tst_ZoomGesture::ticks_data()
{
    QTest::addColumn<bool>("alongX");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QLineF>("first");
    QTest::addColumn<QLineF>("second");

    // All rows start at (100, 100); the corridor is 50 wide to each side.
    QTest::newRow("right: at the right edge")
        << true << QRect(QPoint(100, 0), QPoint(299, 299)) << QLineF(289, 50, 309, 50)
        << QLineF(289, 150, 309, 150);
    QTest::newRow("left: at the left edge") << true << QRect(QPoint(39, 0), QPoint(100, 299))
                                            << QLineF(29, 50, 49, 50) << QLineF(29, 150, 49, 150);
    QTest::newRow("right by one: still at the left edge")
        << true << QRect(QPoint(100, 0), QPoint(100, 299)) << QLineF(90, 50, 110, 50)
        << QLineF(90, 150, 110, 150);
    QTest::newRow("down: at the bottom edge")
        << false << QRect(QPoint(0, 100), QPoint(399, 249)) << QLineF(50, 239, 50, 259)
        << QLineF(150, 239, 150, 259);
    QTest::newRow("up: at the top edge") << false << QRect(QPoint(0, 29), QPoint(399, 100))
                                         << QLineF(50, 19, 50, 39) << QLineF(150, 19, 150, 39);
}

void tst_ZoomGesture::ticks()
{
    QFETCH(bool, alongX);
    QFETCH(QRect, rect);
    const QPoint origin(100, 100);
    const LinePair lines =
        alongX ? ticksAlongX(rect, origin, margin) : ticksAlongY(rect, origin, margin);
    QTEST(lines[0], "first");
    QTEST(lines[1], "second");
}

QTEST_APPLESS_MAIN(tst_ZoomGesture)
#include "tst_zoomgesture.moc"
