// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "arrowwave_p.h"
#include "dashboardtest.h"
#include "messagelog.h"
#include "turnedtime.h"
#include "zemtest.h"

#include <ZEMAnimatedArrows>
#include <ZEMPixmap>

#include <QElapsedTimer>
#include <QMetaEnum>
#include <QPixmapCache>
#include <QTest>
#include <QTimeLine>

#include <array>

using namespace DashboardTest;
using namespace WidgetTest;
using ZemTest::PaintCounter;

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

constexpr int patience = 120000; // ms, for a machine that hangs

static const Opacities transparent {0.0, 0.0, 0.0};

enum class Pass { Rising, Falling };

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

/** Whether the arrows look as the wave does at @p time of its time line. */
static bool show(const Arrows &arrows, Pass pass, int time, const ArrowWave::Timing &timing)
{
    const Opacities shown = opacitiesOf(arrows);
    const bool leadsFromTheRight =
        (arrows.getDirection() == Arrows::Left) == (pass == Pass::Rising);
    const Opacities inOrder = leadsFromTheRight ? Opacities {shown[2], shown[1], shown[0]} : shown;
    return alike(inOrder, waveAt(time, timing));
}

/** Lets fast arrows fall, to the time of 700 ms. */
static void turnToTheFall(TurnedTime *time, const Arrows &arrows)
{
    time->turnTo(ArrowWave::fast.pass);
    time->turnTo(700);
    QVERIFY(show(arrows, Pass::Falling, 700, ArrowWave::fast));
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
        (QStringList {"direction:ZEMAnimatedArrows::Direction", "arrowSize:ZEMAnimatedArrows::Size",
                      "speed:ZEMAnimatedArrows::Speed", "running:bool"}));
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

    TurnedTime time;
    Arrows arrows;
    arrows.setDirection(direction);
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    for (int pass = 0; pass < 2; ++pass) {
        for (int ms = 50; ms < 1000; ms += 50) {
            time.turnTo(ms);
            QVERIFY(show(arrows, Pass::Rising, ms, ArrowWave::fast));
        }
        time.turnTo(1000);
        QVERIFY(arrows.getRunning());
        for (int ms = 950; ms > 0; ms -= 50) {
            time.turnTo(ms);
            QVERIFY(show(arrows, Pass::Falling, ms, ArrowWave::fast));
        }
        time.turnTo(0);
        QVERIFY(arrows.getRunning());
    }
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

    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(speed);
    arrows.start();
    QVERIFY(time.line());
    QCOMPARE(time.line()->duration(), pass);
    QCOMPARE(time.line()->updateInterval(), 50); // ms
    for (int ms = 0; ms < pass; ms += 100) {
        time.turnTo(ms);
        QVERIFY(show(arrows, Pass::Rising, ms, {pass, secondDelay, thirdDelay}));
    }
}

void tst_ZEMAnimatedArrows::directionChangesInMidPass()
{
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    time.turnTo(400);
    const Opacities before = opacitiesOf(arrows);

    arrows.setDirection(Arrows::Right);
    QCOMPARE(imageOf(icon(arrows, 1)->getPixmap()),
             DashboardTest::picture("icons/arrow_right.png"));
    QCOMPARE(opacitiesOf(arrows), before);
    QVERIFY(arrows.getRunning());
    QCOMPARE(time.line()->currentTime(), 400);

    time.turnTo(450);
    QVERIFY(show(arrows, Pass::Rising, 450, ArrowWave::fast));
    QVERIFY(opacitiesOf(arrows)[0] > opacitiesOf(arrows)[2]);
}

void tst_ZEMAnimatedArrows::speedChangesInMidPass()
{
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Slow);
    arrows.start();
    time.turnTo(300);
    arrows.setSpeed(Arrows::Fast);
    QVERIFY(arrows.getRunning());
    QCOMPARE(time.line()->currentTime(), 300);
    time.turnTo(350);
    QVERIFY(show(arrows, Pass::Rising, 350, ArrowWave::fast));
}

void tst_ZEMAnimatedArrows::timelineSpeedLeavesTheSpeedAlone()
{
    TurnedTime time;
    Arrows arrows;
    arrows.setTimelineSpeed(Arrows::Fast);
    arrows.setTimelineSpeed(Arrows::Stopped);
    QCOMPARE(arrows.getSpeed(), Arrows::Medium);
    arrows.start();
    turnToTheFall(&time, arrows); // in the shape of the fast wave
    arrows.setTimelineSpeed(Arrows::Stopped);
    QVERIFY(arrows.getRunning());
}

void tst_ZEMAnimatedArrows::stopHidesTheArrows()
{
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    QVERIFY(arrows.getRunning());
    time.turnTo(500);
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
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    turnToTheFall(&time, arrows);
    arrows.stop();
    QCOMPARE(opacitiesOf(arrows), transparent);
    arrows.start();
    QCOMPARE(time.line()->currentTime(), 0);
    time.turnTo(100);
    QVERIFY(show(arrows, Pass::Rising, 100, ArrowWave::fast));
}

void tst_ZEMAnimatedArrows::startOfARunningWaveTurnsItUpwards()
{
    MessageLog log;
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    turnToTheFall(&time, arrows);
    arrows.start();
    QVERIFY(arrows.getRunning());
    time.turnTo(750);
    QVERIFY(show(arrows, Pass::Rising, 750, ArrowWave::fast));
    QCOMPARE(log.warnings, 0);
}

void tst_ZEMAnimatedArrows::stoppedSpeedStopsAndNoOtherStarts()
{
    TurnedTime time;
    Arrows arrows;
    arrows.start();
    time.turnTo(800);
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

    stopped.stop();
    TurnedTime time;
    Arrows arrows;
    arrows.setSpeed(Arrows::Fast);
    arrows.start();
    turnToTheFall(&time, arrows);
    const Opacities before = opacitiesOf(arrows);
    arrows.setSpeed(Arrows::Fast);
    QCOMPARE(opacitiesOf(arrows), before);
    time.turnTo(650);
    QVERIFY(show(arrows, Pass::Falling, 650, ArrowWave::fast));
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
    QTRY_VERIFY_WITH_TIMEOUT(first.count > 0 && third.count > 0, patience);

    arrows.hide();
    const int before = first.count + third.count;
    const Opacities look = opacitiesOf(arrows);
    QTRY_VERIFY_WITH_TIMEOUT(opacitiesOf(arrows) != look, patience);
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
    QTRY_VERIFY_WITH_TIMEOUT(counter.count > 4, patience);
    constexpr int updateInterval = 50; // ms
    QVERIFY2(counter.count <= timer.elapsed() / updateInterval + 2,
             qPrintable(QString::number(counter.count)));
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
    QTRY_VERIFY_WITH_TIMEOUT(ticks.count > 1, patience);
    arrows.setSpeed(Arrows::Stopped);
    const int before = ticks.count;
    QTest::qWait(150);
    QCOMPARE(ticks.count, before);
}

QTEST_MAIN(tst_ZEMAnimatedArrows)
#include "tst_zemanimatedarrows.moc"
