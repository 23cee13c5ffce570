// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QwtPannerBase>

#include "pangesture_p.h"
#include "pannerfixture.h"
#include "zemtest.h"

#include <QRandomGenerator>
#include <QTest>

#include <qwt_plot.h>

#include <climits>
#include <memory>

using namespace PannerTest;

namespace {

/** Positions are followed on each axis by itself, with plain numbers instead of points. */
class PanModel
{
public:
    void press(int atX, int atY)
    {
        originX = lastX = atX;
        originY = lastY = atY;
        dragged = false;
    }

    void move(int atX, int atY, Log &log)
    {
        if (isOutside(atX, atY)) {
            return;
        }
        const int x = horizontal ? atX : originX;
        const int y = vertical ? atY : originY;
        const bool isNew = x != lastX || y != lastY;
        lastX = x;
        lastY = y;
        const bool isFar = qAbs(x - originX) > limitX || qAbs(y - originY) > limitY;
        if (isNew && isFar) {
            log << QStringLiteral("moved %1 %2").arg(x - originX).arg(y - originY);
            originX = x;
            originY = y;
            dragged = true;
        }
    }

    void release(int atX, int atY, Log &log)
    {
        const bool wasDragged = dragged;
        dragged = false;
        if (isOutside(atX, atY)) {
            return;
        }
        if (!wasDragged) {
            log << QStringLiteral("clicked %1 %2").arg(atX).arg(atY);
            return;
        }
        lastX = horizontal ? atX : originX;
        lastY = vertical ? atY : originY;
        if (lastX != originX || lastY != originY) {
            log << QStringLiteral("panned %1 %2").arg(lastX - originX).arg(lastY - originY);
        }
    }

    int limitX = 0;
    int limitY = 0;
    bool horizontal = true;
    bool vertical = true;

private:
    static bool isOutside(int x, int y)
    {
        return x < 0 || y < 0 || x >= parentSize.width() || y >= parentSize.height();
    }

    int originX = 0;
    int originY = 0;
    int lastX = 0;
    int lastY = 0;
    bool dragged = false;
};

} // namespace

class tst_QwtPannerGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void realDragStartsAbovePixelThreshold_data();
    void realDragStartsAbovePixelThreshold();
    void realDragTellsWayInPieces();
    void realReleaseOutsideIsSilent();
    void smallMovesAddUp();
    void eitherThresholdIsEnough();
    void everyPixelCountsWithoutThreshold();
    void moveNeedsNoButton();
    void moveOutsideIsIgnored();
    void moveToSamePlaceIsIgnored();
    void releaseSendsTheRest();
    void releaseOnLastMoveSendsNothing();
    void releaseOutsideForgetsTheDrag();
    void pressStartsAnew();
    void orientations_data();
    void orientations();
    void restFollowsOrientations();
    void clickDuration_data();
    void clickDuration();
    void clickIntervalInReverseTakesNoClick();
    void touchOfNormalLengthIsClick();
    void quickTapIsNothing();
    void releaseWithoutPressLastedNoTime();
    void moveBelowThresholdIsStillClick();
    void randomGesturesFollowModel();

private:
    std::unique_ptr<Ground> ground;
    Panner *panner = nullptr;
};

void tst_QwtPannerGestures::init()
{
    ground = std::make_unique<Ground>();
    ground->resize(parentSize);
    panner = new Panner(ground.get());
}

void tst_QwtPannerGestures::cleanup()
{
    ground.reset();
    panner = nullptr;
}

void tst_QwtPannerGestures::realDragStartsAbovePixelThreshold_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("on the threshold") << 5 << Log();
    QTest::newRow("above it") << 6 << Log {QStringLiteral("moved 6 0")};
    QTest::newRow("on it to the left") << -5 << Log();
    QTest::newRow("above it to the left") << -6 << Log {QStringLiteral("moved -6 0")};
}

void tst_QwtPannerGestures::realDragStartsAbovePixelThreshold()
{
    QFETCH(int, pixels);
    QFETCH(QStringList, expected);
    QwtPlot plot;
    plot.resize(400, 300);
    plot.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plot, ZemTest::hangs));
    Panner onCanvas(plot.canvas());
    onCanvas.setDxSignalThreshold(5);

    const QPoint start = plot.canvas()->rect().center();
    ZemTest::press(plot.canvas(), start);
    ZemTest::moveTo(plot.canvas(), start + QPoint(pixels, 0));
    ZemTest::release(plot.canvas(), start + QPoint(pixels, 0));
    QCOMPARE(onCanvas.take(), expected);
}

void tst_QwtPannerGestures::realDragTellsWayInPieces()
{
    QwtPlot plot;
    plot.resize(400, 300);
    plot.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plot, ZemTest::hangs));
    Panner onCanvas(plot.canvas());
    onCanvas.setDxSignalThreshold(5);
    onCanvas.setOrientations(Qt::Horizontal);

    const QPoint start = plot.canvas()->rect().center();
    ZemTest::press(plot.canvas(), start);
    ZemTest::moveTo(plot.canvas(), start + QPoint(6, 40));
    ZemTest::moveTo(plot.canvas(), start + QPoint(10, 40));
    ZemTest::moveTo(plot.canvas(), start + QPoint(30, -40));
    ZemTest::release(plot.canvas(), start + QPoint(33, 0));
    QCOMPARE(onCanvas.take(),
             Log({QStringLiteral("moved 6 0"), QStringLiteral("moved 24 0"),
                  QStringLiteral("panned 3 0")}));
}

void tst_QwtPannerGestures::realReleaseOutsideIsSilent()
{
    QwtPlot plot;
    plot.resize(400, 300);
    plot.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plot, ZemTest::hangs));
    Panner onCanvas(plot.canvas());

    const QPoint start = plot.canvas()->rect().center();
    ZemTest::press(plot.canvas(), start);
    ZemTest::moveTo(plot.canvas(), start + QPoint(20, 0));
    QCOMPARE(onCanvas.take(), Log {QStringLiteral("moved 20 0")});
    ZemTest::release(plot.canvas(), QPoint(-3, 10));
    QCOMPARE(onCanvas.take(), Log());
}

void tst_QwtPannerGestures::smallMovesAddUp()
{
    panner->setDxSignalThreshold(5);
    panner->setDySignalThreshold(5);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(53, 50));
    move(ground.get(), QPoint(55, 50));
    QCOMPARE(panner->take(), Log());
    move(ground.get(), QPoint(56, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 6 0")});
    move(ground.get(), QPoint(61, 50));
    QCOMPARE(panner->take(), Log());
    move(ground.get(), QPoint(62, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 6 0")});
}

void tst_QwtPannerGestures::eitherThresholdIsEnough()
{
    panner->setDxSignalThreshold(5);
    panner->setDySignalThreshold(10);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(45, 60));
    QCOMPARE(panner->take(), Log());
    move(ground.get(), QPoint(45, 61));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved -5 11")});
    move(ground.get(), QPoint(51, 60));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 6 -1")});
}

void tst_QwtPannerGestures::everyPixelCountsWithoutThreshold()
{
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(50, 49));
    move(ground.get(), QPoint(51, 49));
    QCOMPARE(panner->take(), Log({QStringLiteral("moved 0 -1"), QStringLiteral("moved 1 0")}));
}

void tst_QwtPannerGestures::moveNeedsNoButton()
{
    QWidget top;
    top.resize(300, 200);
    QWidget tracked(&top);
    tracked.resize(parentSize);
    Panner hovered(&tracked);
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top, ZemTest::hangs));
    ZemTest::press(&tracked, QPoint(50, 50));
    ZemTest::release(&tracked, QPoint(50, 50));
    hovered.take();

    ZemTest::moveTo(&tracked, QPoint(60, 50));
    QCOMPARE(hovered.take(), Log());
    tracked.setMouseTracking(true);
    ZemTest::moveTo(&tracked, QPoint(70, 50));
    QCOMPARE(hovered.take(), Log {QStringLiteral("moved 20 0")});
}

void tst_QwtPannerGestures::moveOutsideIsIgnored()
{
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(parentSize.width(), 50));
    move(ground.get(), QPoint(50, parentSize.height()));
    move(ground.get(), QPoint(-1, 50));
    QCOMPARE(panner->take(), Log());
    move(ground.get(), QPoint(parentSize.width() - 1, 0));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 149 -50")});
}

void tst_QwtPannerGestures::moveToSamePlaceIsIgnored()
{
    panner->setDxSignalThreshold(5);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(54, 50));
    panner->setDxSignalThreshold(0);
    move(ground.get(), QPoint(54, 50));
    QCOMPARE(panner->take(), Log());
    move(ground.get(), QPoint(55, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 5 0")});
}

void tst_QwtPannerGestures::releaseSendsTheRest()
{
    panner->setDxSignalThreshold(5);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    move(ground.get(), QPoint(63, 50));
    release(ground.get(), QPoint(64, 52));
    QCOMPARE(panner->take(), Log({QStringLiteral("moved 10 0"), QStringLiteral("panned 4 2")}));
}

void tst_QwtPannerGestures::releaseOnLastMoveSendsNothing()
{
    acceptEveryClick(*panner);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});
}

void tst_QwtPannerGestures::releaseOutsideForgetsTheDrag()
{
    acceptEveryClick(*panner);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, -1));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});
    // Were the drag not over, this one would tell its rest.
    release(ground.get(), QPoint(70, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("clicked 70 50")});
}

void tst_QwtPannerGestures::pressStartsAnew()
{
    acceptEveryClick(*panner);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    press(ground.get(), QPoint(20, 20));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});
    release(ground.get(), QPoint(21, 21));
    QCOMPARE(panner->take(), Log {QStringLiteral("clicked 21 21")});
}

void tst_QwtPannerGestures::orientations_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Qt::Orientations>("orientations");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("both") << true << Qt::Orientations(Qt::Horizontal | Qt::Vertical)
                          << Log({QStringLiteral("moved 0 20"), QStringLiteral("moved 30 -10")});
    QTest::newRow("horizontal") << true << Qt::Orientations(Qt::Horizontal)
                                << Log {QStringLiteral("moved 30 0")};
    QTest::newRow("vertical") << true << Qt::Orientations(Qt::Vertical)
                              << Log({QStringLiteral("moved 0 20"), QStringLiteral("moved 0 -10")});
    QTest::newRow("none") << true << Qt::Orientations() << Log();
    QTest::newRow("disabled") << false << Qt::Orientations(Qt::Horizontal | Qt::Vertical) << Log();
}

void tst_QwtPannerGestures::orientations()
{
    QFETCH(bool, enabled);
    QFETCH(Qt::Orientations, orientations);
    QFETCH(QStringList, expected);
    panner->enableOrientations(enabled);
    panner->setOrientations(orientations);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(50, 70));
    move(ground.get(), QPoint(80, 60));
    QCOMPARE(panner->take(), expected);
}

void tst_QwtPannerGestures::restFollowsOrientations()
{
    panner->setOrientations(Qt::Horizontal);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, 80));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});

    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(62, 80));
    QCOMPARE(panner->take(), Log({QStringLiteral("moved 10 0"), QStringLiteral("panned 2 0")}));
}

void tst_QwtPannerGestures::clickDuration_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<bool>("isClick");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100") << 100 << true;
    QTest::newRow("1000") << 1000 << true;
    QTest::newRow("1001") << 1001 << false;
}

void tst_QwtPannerGestures::clickDuration()
{
    QFETCH(int, milliseconds);
    QTEST(PanGesture::isClick(milliseconds, panner->clickDetectInterval()), "isClick");
}

void tst_QwtPannerGestures::clickIntervalInReverseTakesNoClick()
{
    panner->setClickDetectInterval(1000, 0);
    QCOMPARE(panner->clickDetectInterval().minValue(), 1000.0);
    QCOMPARE(panner->clickDetectInterval().maxValue(), 0.0);
    for (int milliseconds = 0; milliseconds <= 1001; ++milliseconds) {
        QVERIFY(!PanGesture::isClick(milliseconds, panner->clickDetectInterval()));
    }
    press(ground.get(), QPoint(50, 50));
    release(ground.get(), QPoint(50, 50));
    QCOMPARE(panner->take(), Log());
}

void tst_QwtPannerGestures::touchOfNormalLengthIsClick()
{
    // The upper end leaves room for a machine that is busy with something else.
    panner->setClickDetectInterval(100, 60000);
    ground->show();
    QVERIFY(QTest::qWaitForWindowExposed(ground.get(), ZemTest::hangs));
    ZemTest::press(ground.get(), QPoint(50, 50));
    QTest::qSleep(150);
    ZemTest::release(ground.get(), QPoint(50, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("clicked 50 50")});
}

void tst_QwtPannerGestures::quickTapIsNothing()
{
    panner->setClickDetectInterval(30000, 60000);
    ground->show();
    QVERIFY(QTest::qWaitForWindowExposed(ground.get(), ZemTest::hangs));
    ZemTest::press(ground.get(), QPoint(50, 50));
    ZemTest::release(ground.get(), QPoint(50, 50));
    QCOMPARE(panner->take(), Log());
}

void tst_QwtPannerGestures::releaseWithoutPressLastedNoTime()
{
    panner->resize(parentSize);
    panner->setClickDetectInterval(1, UINT_MAX);
    release(ground.get(), QPoint(50, 50));
    QCOMPARE(panner->take(), Log());
    panner->setClickDetectInterval(0, 0);
    release(ground.get(), QPoint(50, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("clicked 50 50")});
}

void tst_QwtPannerGestures::moveBelowThresholdIsStillClick()
{
    acceptEveryClick(*panner);
    panner->setDxSignalThreshold(5);
    panner->setDySignalThreshold(5);
    // A click tells where the finger was lifted, whatever the orientations are.
    panner->setOrientations(Qt::Horizontal);
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(55, 52));
    release(ground.get(), QPoint(55, 52));
    QCOMPARE(panner->take(), Log {QStringLiteral("clicked 55 52")});
}

void tst_QwtPannerGestures::randomGesturesFollowModel()
{
    constexpr quint32 seed = 4404;
    constexpr int gestures = 3000;
    QRandomGenerator random(seed);
    acceptEveryClick(*panner);
    PanModel model;
    Log expected;
    for (int gesture = 0; gesture < gestures; ++gesture) {
        model.limitX = random.bounded(8);
        model.limitY = random.bounded(8);
        model.horizontal = random.bounded(4) != 0;
        model.vertical = random.bounded(4) != 0;
        panner->setDxSignalThreshold(uint(model.limitX));
        panner->setDySignalThreshold(uint(model.limitY));
        panner->setOrientations((model.horizontal ? Qt::Horizontal : Qt::Orientations())
                                | (model.vertical ? Qt::Vertical : Qt::Orientations()));

        QPoint at(random.bounded(parentSize.width()), random.bounded(parentSize.height()));
        press(ground.get(), at);
        model.press(at.x(), at.y());
        for (int step = random.bounded(12); step > 0; --step) {
            at += QPoint(random.bounded(-6, 7), random.bounded(-6, 7));
            move(ground.get(), at);
            model.move(at.x(), at.y(), expected);
        }
        release(ground.get(), at);
        model.release(at.x(), at.y(), expected);
        QCOMPARE(panner->take(), expected);
        expected.clear();
    }
}

QTEST_MAIN(tst_QwtPannerGestures)
#include "tst_qwtpannergestures.moc"
