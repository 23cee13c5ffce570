// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "arrowwave_p.h"
#include "dashboardtest.h"
#include "messagelog.h"
#include "zemtest.h"

#include <ZEMAnimatedArrows>
#include <ZEMPixmap>

#include <QElapsedTimer>
#include <QMetaEnum>
#include <QPixmapCache>
#include <QTest>
#include <QTimeLine>

#include <array>
#include <optional>

using namespace DashboardTest;
using namespace WidgetTest;

using Arrows = ZEMAnimatedArrows;
using Opacities = std::array<qreal, 3>; // from left to right

class tst_ZEMAnimatedArrows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newArrows();
    void form();
    void enumsAreNumbered();
    void declaresItsOwn();
    void propertiesAreWritten();
    void picture_data();
    void picture();
    void toggleTurnsBack();
    void picturesAreShared();
    void sizeFollowsTheArrows();

    void waveRisesAndFalls_data();
    void waveRisesAndFalls();
    void paceOfTheSpeed_data();
    void paceOfTheSpeed();
    void directionChangesInMidPass();
    void speedChangesInMidPass();
    void timelineSpeedLeavesTheSpeedAlone();

    void stopHidesTheArrows();
    void startAlwaysRises();
    void startOfARunningWaveTurnsItUpwards();
    void stoppedSpeedStopsAndNoOtherStarts();
    void presentSpeedDoesNothing();
    void runningProperty();

    void hiddenArrowsAreNotPainted();
    void paintsPerSecondAreFew();
    void stoppedArrowsHaveNoTimer();
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

static const Opacities transparent {0.0, 0.0, 0.0};

enum class Pass { Rising, Falling };

/** A moment of the wave: what it would have to be for the arrows to look as they do. */
struct Moment
{
    Pass pass;
    int time; // ms on the time line
};

/** The opacities at a time, from the arrow that leads to the last. */
static Opacities waveAt(int time, const ArrowWave::Timing &timing)
{
    const QTimeLine line(timing.pass);
    return {line.valueForTime(time), line.valueForTime(time - timing.secondDelay),
            line.valueForTime(time - timing.thirdDelay)};
}

static bool alike(const Opacities &a, const Opacities &b)
{
    constexpr qreal tolerance = 1e-6;
    for (size_t i = 0; i < a.size(); ++i) {
        if (qAbs(a[i] - b[i]) > tolerance) {
            return false;
        }
    }
    return true;
}

/** The moment in which the arrows are; none if no moment of the wave looks as they do. */
static std::optional<Moment> momentOf(const Opacities &leftToRight, Arrows::Direction direction,
                                      const ArrowWave::Timing &timing)
{
    const Opacities rightToLeft {leftToRight[2], leftToRight[1], leftToRight[0]};
    const bool left = direction == Arrows::Left;
    for (int time = 0; time <= timing.pass; ++time) {
        const Opacities wave = waveAt(time, timing);
        if (alike(wave, left ? rightToLeft : leftToRight)) {
            return Moment {Pass::Rising, time};
        }
        if (alike(wave, left ? leftToRight : rightToLeft)) {
            return Moment {Pass::Falling, time};
        }
    }
    return {};
}

/**
 * The moments that are seen until the wave has begun its third pass, for at most ten seconds. Those
 * at an end are left out, since there a rising wave looks like a falling one. Ends with an empty
 * list when the arrows look like no moment of the wave.
 */
static QVector<Moment> watchThreePasses(const Arrows &arrows, const ArrowWave::Timing &timing)
{
    QVector<Moment> seen;
    int passes = 0;
    QElapsedTimer timer;
    timer.start();
    while (passes < 3 && timer.elapsed() < 10000) {
        QTest::qWait(5);
        const auto moment = momentOf(opacitiesOf(arrows), arrows.getDirection(), timing);
        if (!moment) {
            return {};
        }
        const bool atAnEnd = moment->time == 0 || moment->time == timing.pass;
        if (!atAnEnd && (seen.isEmpty() || seen.last().time != moment->time)) {
            passes += seen.isEmpty() || seen.last().pass != moment->pass ? 1 : 0;
            seen << *moment;
        }
    }
    return seen;
}

/** Waits until the wave falls. Fast arrows that have just been started do so after a second. */
static bool waitForFall(const Arrows &arrows)
{
    return QTest::qWaitFor(
        [&] {
            const auto moment =
                momentOf(opacitiesOf(arrows), arrows.getDirection(), ArrowWave::fast);
            return moment && moment->pass == Pass::Falling && moment->time < 900;
        },
        5000);
}

void tst_ZEMAnimatedArrows::newArrows()
{
    const ContextTranslator translator;
    Arrows arrows;
    QCOMPARE(arrows.objectName(), QStringLiteral("ZEMAnimatedArrows"));
    QCOMPARE(arrows.windowTitle(), QStringLiteral("ZEMAnimatedArrows/Form"));
    QCOMPARE(arrows.size(), QSize(36, 21));
    QVERIFY(!arrows.getRunning());
    QCOMPARE(arrows.getSpeed(), Arrows::Medium);
    QCOMPARE(arrows.getDirection(), Arrows::Left);
    QCOMPARE(arrows.getSize(), Arrows::Normal);
    QCOMPARE(opacitiesOf(arrows), transparent);

    QWidget host;
    QCOMPARE((new Arrows(&host))->parentWidget(), &host);
}

void tst_ZEMAnimatedArrows::form()
{
    Arrows arrows;
    QCOMPARE(layoutLines(arrows.layout()),
             (QStringList {"QHBoxLayout horizontalLayout 3", " ZEMPixmap icon1", " ZEMPixmap icon2",
                           " ZEMPixmap icon3"}));
    QCOMPARE(arrows.layout()->contentsMargins(), QMargins(3, 3, 3, 3));
}

void tst_ZEMAnimatedArrows::enumsAreNumbered()
{
    const auto directions = QMetaEnum::fromType<Arrows::Direction>();
    QCOMPARE(directions.keyCount(), 2);
    QCOMPARE(directions.keyToValue("Right"), 0);
    QCOMPARE(directions.keyToValue("Left"), 1);
    const auto sizes = QMetaEnum::fromType<Arrows::Size>();
    QCOMPARE(sizes.keyCount(), 2);
    QCOMPARE(sizes.keyToValue("Normal"), 0);
    QCOMPARE(sizes.keyToValue("Small"), 1);
    const auto speeds = QMetaEnum::fromType<Arrows::Speed>();
    QCOMPARE(speeds.keyCount(), 4);
    QCOMPARE(speeds.keyToValue("Stopped"), 0);
    QCOMPARE(speeds.keyToValue("Slow"), 1);
    QCOMPARE(speeds.keyToValue("Medium"), 2);
    QCOMPARE(speeds.keyToValue("Fast"), 3);
}

void tst_ZEMAnimatedArrows::declaresItsOwn()
{
    const QMetaObject &metaObject = Arrows::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(
        ownProperties(metaObject),
        (QStringList {"direction:Direction", "arrowSize:Size", "speed:Speed", "running:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 2);
    for (const char *slot : {"valueChanged(qreal)", "finished()"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Private);
    }
}

void tst_ZEMAnimatedArrows::propertiesAreWritten()
{
    Arrows arrows;
    QVERIFY(arrows.setProperty("direction", QVariant::fromValue(Arrows::Right)));
    QVERIFY(arrows.setProperty("arrowSize", QVariant::fromValue(Arrows::Small)));
    QVERIFY(arrows.setProperty("speed", QVariant::fromValue(Arrows::Fast)));
    QCOMPARE(arrows.getDirection(), Arrows::Right);
    QCOMPARE(arrows.getSize(), Arrows::Small);
    QCOMPARE(arrows.getSpeed(), Arrows::Fast);
}

void tst_ZEMAnimatedArrows::picture_data()
{
    QTest::addColumn<Arrows::Direction>("direction");
    QTest::addColumn<Arrows::Size>("size");
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("left") << Arrows::Left << Arrows::Normal << QByteArray("icons/arrow_left.png");
    QTest::newRow("right") << Arrows::Right << Arrows::Normal
                           << QByteArray("icons/arrow_right.png");
    QTest::newRow("small left") << Arrows::Left << Arrows::Small
                                << QByteArray("icons/arrow_left_small.png");
    QTest::newRow("small right") << Arrows::Right << Arrows::Small
                                 << QByteArray("icons/arrow_right_small.png");
}

void tst_ZEMAnimatedArrows::picture()
{
    QFETCH(Arrows::Direction, direction);
    QFETCH(Arrows::Size, size);
    QFETCH(QByteArray, path);

    Arrows arrows;
    arrows.setSize(size);
    arrows.setDirection(direction);
    for (const int number : {1, 2, 3}) {
        QCOMPARE(imageOf(icon(arrows, number)->getPixmap()), DashboardTest::picture(path));
    }
    arrows.setSize(size == Arrows::Small ? Arrows::Normal : Arrows::Small);
    arrows.setSize(size);
    QCOMPARE(imageOf(icon(arrows, 2)->getPixmap()), DashboardTest::picture(path));
    QCOMPARE(icon(arrows, 2)->size(), size == Arrows::Small ? QSize(5, 10) : QSize(8, 15));
}

void tst_ZEMAnimatedArrows::toggleTurnsBack()
{
    Arrows arrows;
    arrows.setDirection(Arrows::Right);
    arrows.toggleDirection();
    QCOMPARE(arrows.getDirection(), Arrows::Left);
    for (const int number : {1, 2, 3}) {
        QCOMPARE(imageOf(icon(arrows, number)->getPixmap()),
                 DashboardTest::picture("icons/arrow_left.png"));
    }
    arrows.toggleDirection();
    QCOMPARE(arrows.getDirection(), Arrows::Right);
    QCOMPARE(imageOf(icon(arrows, 1)->getPixmap()),
             DashboardTest::picture("icons/arrow_right.png"));
}

void tst_ZEMAnimatedArrows::picturesAreShared()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/arrow_right_small.png");
    QPixmapCache::insert(path, ZemTest::flatPixmap({5, 10}, Qt::red));
    Arrows arrows;
    arrows.setDirection(Arrows::Right);
    arrows.setSize(Arrows::Small);
    QCOMPARE(icon(arrows, 1)->getPixmap().toImage().pixelColor(2, 5), QColor(Qt::red));

    QPixmapCache::clear();
    Arrows others;
    QPixmap cached;
    QVERIFY(QPixmapCache::find(QStringLiteral(":/zem/graphics/icons/arrow_left.png"), &cached));
    QCOMPARE(icon(others, 3)->getPixmap().cacheKey(), cached.cacheKey());
}

void tst_ZEMAnimatedArrows::sizeFollowsTheArrows()
{
    Arrows arrows;
    QCOMPARE(arrows.sizeHint(), QSize(36, 21));
    arrows.setSize(Arrows::Small);
    QCOMPARE(arrows.sizeHint(), QSize(27, 16));
}

void tst_ZEMAnimatedArrows::waveRisesAndFalls_data()
{
    QTest::addColumn<Arrows::Direction>("direction");
    QTest::newRow("left") << Arrows::Left;
    QTest::newRow("right") << Arrows::Right;
}

void tst_ZEMAnimatedArrows::waveRisesAndFalls()
{
    QFETCH(Arrows::Direction, direction);

    Arrows arrows;
    arrows.setDirection(direction);
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    const QVector<Moment> seen = watchThreePasses(arrows, ArrowWave::fast);
    QVERIFY(seen.size() > 10);

    QVector<Pass> passes {seen.first().pass};
    for (int i = 1; i < seen.size(); ++i) {
        if (seen[i].pass != seen[i - 1].pass) {
            passes << seen[i].pass;
        } else if (seen[i].pass == Pass::Rising) {
            QVERIFY(seen[i].time > seen[i - 1].time);
        } else {
            QVERIFY(seen[i].time < seen[i - 1].time);
        }
    }
    QCOMPARE(passes, (QVector<Pass> {Pass::Rising, Pass::Falling, Pass::Rising}));
    QVERIFY(arrows.getRunning());
}

void tst_ZEMAnimatedArrows::paceOfTheSpeed_data()
{
    QTest::addColumn<Arrows::Speed>("speed");
    QTest::addColumn<int>("pass");
    QTest::addColumn<int>("secondDelay");
    QTest::addColumn<int>("thirdDelay");
    QTest::newRow("slow") << Arrows::Slow << 3000 << 500 << 750;
    QTest::newRow("medium") << Arrows::Medium << 2000 << 250 << 500;
    QTest::newRow("fast") << Arrows::Fast << 1000 << 125 << 250;
}

void tst_ZEMAnimatedArrows::paceOfTheSpeed()
{
    QFETCH(Arrows::Speed, speed);
    QFETCH(int, pass);
    QFETCH(int, secondDelay);
    QFETCH(int, thirdDelay);

    Arrows arrows;
    arrows.setSpeed(speed);
    QElapsedTimer timer;
    timer.start();
    arrows.start();
    qint64 smallestLag = pass;
    while (timer.elapsed() < 900) {
        QTest::qWait(5);
        const qint64 elapsed = timer.elapsed();
        const auto moment =
            momentOf(opacitiesOf(arrows), Arrows::Left, {pass, secondDelay, thirdDelay});
        QVERIFY(moment);
        QVERIFY(moment->time <= elapsed);
        if (elapsed > 600) {
            smallestLag = qMin(smallestLag, elapsed - moment->time);
        }
    }
    // A pace of another speed would be behind or ahead by hundreds of milliseconds.
    QVERIFY2(smallestLag < 150, qPrintable(QString::number(smallestLag)));
}

void tst_ZEMAnimatedArrows::directionChangesInMidPass()
{
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QTest::qWait(400);
    const Opacities before = opacitiesOf(arrows);
    const auto momentBefore = momentOf(before, Arrows::Left, ArrowWave::fast);
    QVERIFY(momentBefore && momentBefore->time > 200);

    arrows.setDirection(Arrows::Right);
    QCOMPARE(imageOf(icon(arrows, 1)->getPixmap()),
             DashboardTest::picture("icons/arrow_right.png"));
    QCOMPARE(opacitiesOf(arrows), before);
    QVERIFY(arrows.getRunning());

    QTRY_VERIFY(opacitiesOf(arrows) != before);
    const auto momentAfter = momentOf(opacitiesOf(arrows), Arrows::Right, ArrowWave::fast);
    QVERIFY(momentAfter);
    QVERIFY(momentAfter->pass == Pass::Rising);
    QVERIFY(momentAfter->time > momentBefore->time);
    QVERIFY(opacitiesOf(arrows)[0] > opacitiesOf(arrows)[2]);
}

void tst_ZEMAnimatedArrows::speedChangesInMidPass()
{
    Arrows arrows;
    arrows.setSpeed(Arrows::Slow);
    arrows.start();
    QTest::qWait(300);
    arrows.setSpeed(Arrows::Fast);
    QVERIFY(arrows.getRunning());
    const Opacities before = opacitiesOf(arrows);
    QTRY_VERIFY(opacitiesOf(arrows) != before);
    const auto moment = momentOf(opacitiesOf(arrows), Arrows::Left, ArrowWave::fast);
    QVERIFY(moment);
    QVERIFY(moment->time > 250);
}

void tst_ZEMAnimatedArrows::timelineSpeedLeavesTheSpeedAlone()
{
    Arrows arrows;
    arrows.setTimelineSpeed(Arrows::Fast);
    arrows.setTimelineSpeed(Arrows::Stopped);
    QCOMPARE(arrows.getSpeed(), Arrows::Medium);
    arrows.start();
    QVERIFY(waitForFall(arrows)); // in the shape of the fast wave
    arrows.setTimelineSpeed(Arrows::Stopped);
    QVERIFY(arrows.getRunning());
}

void tst_ZEMAnimatedArrows::stopHidesTheArrows()
{
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVERIFY(arrows.getRunning());
    QTest::qWait(500);
    for (const qreal opacity : opacitiesOf(arrows)) {
        QVERIFY(opacity > 0.0);
    }
    arrows.stop();
    QVERIFY(!arrows.getRunning());
    QCOMPARE(opacitiesOf(arrows), transparent);
    QTest::qWait(150);
    QCOMPARE(opacitiesOf(arrows), transparent);
    QVERIFY(!arrows.getRunning());
}

void tst_ZEMAnimatedArrows::startAlwaysRises()
{
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVERIFY(waitForFall(arrows));
    arrows.stop();
    QCOMPARE(opacitiesOf(arrows), transparent);
    arrows.start();
    QTRY_VERIFY(opacitiesOf(arrows) != transparent);
    const auto moment = momentOf(opacitiesOf(arrows), Arrows::Left, ArrowWave::fast);
    QVERIFY(moment);
    QVERIFY(moment->pass == Pass::Rising);
    QVERIFY(moment->time < 500);
}

void tst_ZEMAnimatedArrows::startOfARunningWaveTurnsItUpwards()
{
    MessageLog log;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVERIFY(waitForFall(arrows));
    arrows.start();
    QVERIFY(arrows.getRunning());
    const Opacities before = opacitiesOf(arrows);
    QTRY_VERIFY(opacitiesOf(arrows) != before);
    const auto moment = momentOf(opacitiesOf(arrows), Arrows::Left, ArrowWave::fast);
    QVERIFY(moment);
    QVERIFY(moment->pass == Pass::Rising);
    QCOMPARE(log.warnings, 0);
}

void tst_ZEMAnimatedArrows::stoppedSpeedStopsAndNoOtherStarts()
{
    Arrows arrows;
    arrows.start();
    QTest::qWait(200);
    arrows.setSpeed(Arrows::Stopped);
    QVERIFY(!arrows.getRunning());
    QCOMPARE(arrows.getSpeed(), Arrows::Stopped);
    QCOMPARE(opacitiesOf(arrows), transparent);
    arrows.setSpeed(Arrows::Slow);
    QVERIFY(!arrows.getRunning());
    QCOMPARE(arrows.getSpeed(), Arrows::Slow);
}

void tst_ZEMAnimatedArrows::presentSpeedDoesNothing()
{
    Arrows stopped;
    stopped.setSpeed(Arrows::Stopped);
    stopped.start();
    stopped.setSpeed(Arrows::Stopped);
    QVERIFY(stopped.getRunning());

    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVERIFY(waitForFall(arrows));
    const Opacities before = opacitiesOf(arrows);
    arrows.setSpeed(Arrows::Fast);
    QCOMPARE(opacitiesOf(arrows), before);
    QTRY_VERIFY(opacitiesOf(arrows) != before);
    const auto moment = momentOf(opacitiesOf(arrows), Arrows::Left, ArrowWave::fast);
    QVERIFY(moment);
    QVERIFY(moment->pass == Pass::Falling);
}

void tst_ZEMAnimatedArrows::runningProperty()
{
    Arrows arrows;
    QVERIFY(arrows.setProperty("running", true));
    QVERIFY(arrows.getRunning());
    QVERIFY(arrows.property("running").toBool());
    arrows.setRunning(false);
    QVERIFY(!arrows.getRunning());
}

void tst_ZEMAnimatedArrows::hiddenArrowsAreNotPainted()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    const PaintCounter first(icon(arrows, 1));
    const PaintCounter third(icon(arrows, 3));
    QTRY_VERIFY(first.count > 0 && third.count > 0);

    arrows.hide();
    const int before = first.count + third.count;
    const Opacities look = opacitiesOf(arrows);
    QTest::qWait(300);
    QVERIFY(opacitiesOf(arrows) != look);
    QCOMPARE(first.count + third.count, before);
}

void tst_ZEMAnimatedArrows::paintsPerSecondAreFew()
{
    Arrows arrows;
    const Stage stage(&arrows);
    QVERIFY(stage.isReady());
    QTest::qWait(50);
    const PaintCounter counter(icon(arrows, 2));
    QElapsedTimer timer;
    timer.start();
    arrows.start();
    QTest::qWait(1000);
    constexpr int updateInterval = 50; // ms
    QVERIFY2(counter.count <= timer.elapsed() / updateInterval + 2,
             qPrintable(QString::number(counter.count)));
    QVERIFY(counter.count > 4);
}

/** Counts the timer events of time lines. */
class TickCounter : public QObject
{
public:
    TickCounter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isTick = event->type() == QEvent::Timer && watched->inherits("QTimeLine");
        count += isTick ? 1 : 0;
        return false;
    }

    int count = 0;
};

void tst_ZEMAnimatedArrows::stoppedArrowsHaveNoTimer()
{
    Arrows arrows;
    TickCounter ticks;
    QTest::qWait(150);
    QCOMPARE(ticks.count, 0);
    arrows.start();
    QTRY_VERIFY(ticks.count > 1);
    arrows.setSpeed(Arrows::Stopped);
    const int before = ticks.count;
    QTest::qWait(150);
    QCOMPARE(ticks.count, before);
}

QTEST_MAIN(tst_ZEMAnimatedArrows)
#include "tst_zemanimatedarrows.moc"
