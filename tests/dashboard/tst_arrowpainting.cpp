// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "turnedtime.h"
#include "zemtest.h"

#include <ZEMAnimatedArrows>
#include <ZEMPixmap>

#include <QDeadlineTimer>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <array>

using namespace DashboardTest;
using namespace WidgetTest;
using ZemTest::PaintCounter;

using Arrows = ZEMAnimatedArrows;
using Opacities = std::array<qreal, 3>; // from left to right

/** What is painted while arrows run, and that no more is. */
class tst_ArrowPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sleepingArrowsAreNotPainted();
    void aTickPaintsTheGroundOnce();
    void screenShowsEveryArrow();
    void disabledUpdatesStayDisabled();
};

static ZEMPixmap *icon(const Arrows &arrows, int number)
{
    return part<ZEMPixmap>(arrows, qPrintable(QStringLiteral("icon%1").arg(number)));
}

static Opacities opacitiesOf(const Arrows &arrows)
{
    return {icon(arrows, 1)->getOpacity(), icon(arrows, 2)->getOpacity(),
            icon(arrows, 3)->getOpacity()};
}

void tst_ArrowPainting::sleepingArrowsAreNotPainted()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    QTest::qWait(50);
    const PaintCounter leading(icon(arrows, 3));
    const PaintCounter trailing(icon(arrows, 1));
    TurnedTime time;
    arrows.setSpeed(Arrows::Slow);
    arrows.start();
    for (int ms = 100; ms < 750; ms += 100) {
        time.turnTo(ms);
        QCoreApplication::processEvents();
    }
    QVERIFY(leading.count > 3);
    QCOMPARE(icon(arrows, 1)->getOpacity(), 0.0);
    QCOMPARE(trailing.count, 0);
    time.turnTo(1000);
    QCoreApplication::processEvents();
    QVERIFY(icon(arrows, 1)->getOpacity() > 0.0);
    QVERIFY(trailing.count > 0);
}

void tst_ArrowPainting::aTickPaintsTheGroundOnce()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    TurnedTime time;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    time.turnTo(500);
    QVERIFY(icon(arrows, 1)->getOpacity() > 0.0);

    const PaintCounter ground(&arrows);
    const PaintCounter first(icon(arrows, 1));
    const PaintCounter second(icon(arrows, 2));
    const PaintCounter third(icon(arrows, 3));
    // In the other direction the same moment of the wave gives other opacities to two arrows.
    arrows.toggleDirection();
    const int groundBefore = ground.count;
    const int firstBefore = first.count;
    const int thirdBefore = third.count;
    const int secondBefore = second.count;
    const Opacities before = opacitiesOf(arrows);
    QVERIFY(QMetaObject::invokeMethod(&arrows, "valueChanged", Qt::DirectConnection,
                                      Q_ARG(qreal, before[2])));
    QCOMPARE(opacitiesOf(arrows), (Opacities {before[2], before[1], before[0]}));
    QCOMPARE(ground.count, groundBefore + 1);
    QCOMPARE(first.count, firstBefore + 1);
    QCOMPARE(second.count, secondBefore);
    QCOMPARE(third.count, thirdBefore + 1);
}

void tst_ArrowPainting::screenShowsEveryArrow()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    QWidget *window = arrows.window();
    const auto opaque = [](const QPixmap &pixmap) {
        return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    };
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVector<QImage> seen;
    const QDeadlineTimer patience(120000); // ms, for a machine that hangs
    while (seen.size() <= 10 && !patience.hasExpired()) {
        QTest::qWait(17);
        const QPixmap screen = window->windowHandle()->screen()->grabWindow(window->winId());
        const QImage shown = opaque(screen);
        QCOMPARE(shown, opaque(window->grab()));
        if (!seen.contains(shown)) {
            seen << shown;
        }
    }
    QVERIFY(seen.size() > 10);
}

void tst_ArrowPainting::disabledUpdatesStayDisabled()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    icon(arrows, 3)->setUpdatesEnabled(false);
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QTRY_VERIFY_WITH_TIMEOUT(icon(arrows, 1)->getOpacity() > 0.2, 120000);
    QVERIFY(!icon(arrows, 3)->updatesEnabled());
    QVERIFY(icon(arrows, 1)->updatesEnabled());
    QVERIFY(icon(arrows, 2)->updatesEnabled());
}

QTEST_MAIN(tst_ArrowPainting)
#include "tst_arrowpainting.moc"
