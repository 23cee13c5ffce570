// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "arrowrows.h"

#include "benchmark.h"

#include <ZEMAnimatedArrows>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QTimeLine>
#include <QWidget>

#include <array>
#include <ctime>
#include <memory>

using BenchTable::Round;
using BenchTable::Row;

namespace {

constexpr int updateInterval = 50; // ms
constexpr int passDuration = 1000; // ms, of fast arrows
constexpr int ticksInWave = 2 * passDuration / updateInterval; // it rises and falls
constexpr QSize stageSize(200, 60);

/** A plain ground with one widget in its middle. */
std::shared_ptr<QWidget> stageWith(QWidget *shown)
{
    auto stage = std::make_shared<QWidget>();
    stage->setPalette(QPalette(QColor(30, 60, 90)));
    stage->resize(stageSize);
    shown->setParent(stage.get());
    shown->resize(shown->sizeHint());
    shown->move(stage->rect().center() - shown->rect().center());
    stage->show();
    Benchmark::settle();
    return stage;
}

/** A picture that is drawn with an opacity. */
class Picture : public QWidget
{
public:
    explicit Picture(const QPixmap &shown) : pixmap(shown) { setFixedSize(shown.size()); }

    void show(qreal newOpacity)
    {
        opacity = newOpacity;
        repaint();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setOpacity(opacity);
        painter.drawPixmap(0, 0, pixmap);
    }

private:
    QPixmap pixmap;
    qreal opacity = 0.0;
};

/** The wave of the arrows as somebody would write it for one place: three repaints for a tick. */
class PlainArrows : public QWidget
{
public:
    PlainArrows()
    {
        constexpr int margin = 3; // pixels, also between the pictures
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(margin, margin, margin, margin);
        layout->setSpacing(margin);
        for (Picture *&picture : pictures) {
            picture = new Picture(QPixmap(QStringLiteral(":/zem/graphics/icons/arrow_left.png")));
            layout->addWidget(picture);
        }
        timeLine.setUpdateInterval(updateInterval);
        connect(&timeLine, &QTimeLine::valueChanged, this, [this](qreal value) { show(value); });
        connect(&timeLine, &QTimeLine::finished, this, [this] {
            timeLine.toggleDirection();
            timeLine.start();
        });
    }

    void start()
    {
        timeLine.setDirection(QTimeLine::Forward);
        timeLine.start();
    }

    void stop()
    {
        timeLine.stop();
        timeLine.setCurrentTime(0);
    }

private:
    void show(qreal value)
    {
        constexpr int secondDelay = 125; // ms
        constexpr int thirdDelay = 250; // ms
        const bool rising = timeLine.direction() == QTimeLine::Forward;
        const int time = timeLine.currentTime();
        pictures[rising ? 2 : 0]->show(value);
        pictures[1]->show(timeLine.valueForTime(time - secondDelay));
        pictures[rising ? 0 : 2]->show(timeLine.valueForTime(time - thirdDelay));
    }

    std::array<Picture *, 3> pictures {};
    QTimeLine timeLine {passDuration};
};

/** Counts the ticks of all time lines. */
class TickCounter : public QObject
{
public:
    TickCounter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Timer && watched->inherits("QTimeLine") ? 1 : 0;
        return false;
    }

    int count = 0;
};

/** Lets a wave rise and fall and answers what a tick of it took of the processor. */
template <typename Arrows>
double waveRound(Arrows *arrows)
{
    const TickCounter ticks;
    const std::clock_t begin = std::clock();
    arrows->start();
    while (ticks.count < ticksInWave) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    // No contender paints in the time of another one.
    arrows->stop();
    constexpr double nanoseconds = 1e9 / CLOCKS_PER_SEC;
    return double(std::clock() - begin) * nanoseconds / ticksInWave;
}

template <typename Arrows>
Round wavesOf(Arrows *arrows)
{
    const auto stage = stageWith(arrows);
    return [stage, arrows] { return waveRound(arrows); };
}

} // namespace

std::vector<Row> arrowRows()
{
    const QString floor = QStringLiteral("three repaints");
    return {{QStringLiteral("arrows"),
             QStringLiteral("Animated arrows, processor time of one of the 20 ticks of a second"),
             ticksInWave,
             5,
             {{QStringLiteral("zemkit"),
               [] {
                   auto *arrows = new ZEMAnimatedArrows;
                   arrows->setSpeed(ZEMAnimatedArrows::Fast);
                   return wavesOf(arrows);
               }},
              {floor, [] { return wavesOf(new PlainArrows); }}},
             {{floor, 0.0, 0.9}}}};
}
