// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemanimatedarrows.h"

#include "arrowwave_p.h"
#include "objectname_p.h"
#include "ui_zemanimatedarrows.h"
#include "zempixmapcache.h"

#include <QTimeLine>

namespace {

constexpr int updateInterval = 50; // ms
constexpr int initialDuration = 1000; // ms

/** Lets @p icon be painted by the next repaint of any widget in its window. */
void setOpacityUnpainted(ZEMPixmap *icon, qreal opacity)
{
    if (!icon->updatesEnabled()) {
        icon->setOpacity(opacity);
        return;
    }
    icon->setUpdatesEnabled(false);
    icon->setOpacity(opacity);
    icon->setUpdatesEnabled(true);
}

} // namespace

class ZEMAnimatedArrows::Private
{
public:
    using Icons = std::array<ZEMPixmap *, 3>;

    void setPixmap(Size arrowSize, Direction arrowDirection)
    {
        const Icons leftToRight {ui.icon1, ui.icon2, ui.icon3};
        const Icons rightToLeft {ui.icon3, ui.icon2, ui.icon1};
        const bool left = arrowDirection == Left;
        forwardIcons = left ? rightToLeft : leftToRight;
        backwardIcons = left ? leftToRight : rightToLeft;

        const QString name =
            arrowSize == Small ? QStringLiteral("%1%2_small.png") : QStringLiteral("%1%2.png");
        QPixmap arrow;
        ZEMPixmapCache::load(arrow,
                             name.arg(QStringLiteral(":/zem/graphics/icons/arrow_"),
                                      left ? QStringLiteral("left") : QStringLiteral("right")));
        for (ZEMPixmap *icon : leftToRight) {
            icon->setPixmap(arrow);
        }
    }

    void setTiming(const ArrowWave::Timing &timing)
    {
        timeLine.setDuration(timing.pass);
        secondIconDelay = timing.secondDelay;
        thirdIconDelay = timing.thirdDelay;
    }

    Ui_ZEMAnimatedArrows ui;
    Direction direction = Left;
    Size size = Normal;
    Speed speed = Medium;
    QTimeLine timeLine {initialDuration};
    Icons forwardIcons {};
    Icons backwardIcons {};
    int secondIconDelay = ArrowWave::medium.secondDelay;
    int thirdIconDelay = ArrowWave::medium.thirdDelay;
};

ZEMAnimatedArrows::ZEMAnimatedArrows(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    // Left and right are meant as they are said.
    setLayoutDirection(Qt::LeftToRight);

    d->timeLine.setDirection(QTimeLine::Forward);
    d->timeLine.setUpdateInterval(updateInterval);
    connect(&d->timeLine, &QTimeLine::valueChanged, this, &ZEMAnimatedArrows::valueChanged);
    connect(&d->timeLine, &QTimeLine::finished, this, &ZEMAnimatedArrows::finished);

    d->setPixmap(d->size, d->direction);
    setTimelineSpeed(d->speed);
    valueChanged(0.0);
}

ZEMAnimatedArrows::~ZEMAnimatedArrows() = default;

ZEMAnimatedArrows::Direction ZEMAnimatedArrows::getDirection() const
{
    return d->direction;
}

void ZEMAnimatedArrows::setDirection(Direction direction)
{
    if (direction != d->direction) {
        d->direction = direction;
        d->setPixmap(d->size, d->direction);
    }
}

void ZEMAnimatedArrows::toggleDirection()
{
    setDirection(d->direction == Right ? Left : Right);
}

ZEMAnimatedArrows::Size ZEMAnimatedArrows::getSize() const
{
    return d->size;
}

void ZEMAnimatedArrows::setSize(Size size)
{
    if (size != d->size) {
        d->size = size;
        d->setPixmap(d->size, d->direction);
    }
}

ZEMAnimatedArrows::Speed ZEMAnimatedArrows::getSpeed() const
{
    return d->speed;
}

void ZEMAnimatedArrows::setSpeed(Speed speed)
{
    if (speed == d->speed) {
        return;
    }
    d->speed = speed;
    if (speed == Stopped) {
        stop();
    } else {
        setTimelineSpeed(speed);
    }
}

void ZEMAnimatedArrows::setTimelineSpeed(Speed speed)
{
    switch (speed) {
    case Stopped:
        break;
    case Slow:
        d->setTiming(ArrowWave::slow);
        break;
    case Medium:
        d->setTiming(ArrowWave::medium);
        break;
    case Fast:
        d->setTiming(ArrowWave::fast);
        break;
    }
}

bool ZEMAnimatedArrows::getRunning() const
{
    return d->timeLine.state() == QTimeLine::Running;
}

void ZEMAnimatedArrows::setRunning(bool running)
{
    if (running) {
        start();
    } else {
        stop();
    }
}

void ZEMAnimatedArrows::start()
{
    d->timeLine.setDirection(QTimeLine::Forward);
    // A time line that runs would refuse to start, with a warning.
    if (!getRunning()) {
        d->timeLine.start();
    }
}

void ZEMAnimatedArrows::stop()
{
    d->timeLine.stop();
    d->timeLine.setCurrentTime(0);
}

void ZEMAnimatedArrows::valueChanged(qreal value)
{
    const bool rising = d->timeLine.direction() == QTimeLine::Forward;
    const Private::Icons &icons = rising ? d->forwardIcons : d->backwardIcons;
    const auto opacities = ArrowWave::opacities(
        value, d->timeLine.currentTime(), d->secondIconDelay, d->thirdIconDelay,
        [this](int time) { return d->timeLine.valueForTime(time); });
    ZEMPixmap *last = nullptr;
    qreal opacityOfLast = 0.0;
    for (size_t i = 0; i < icons.size(); ++i) {
        // An arrow that has yet to rise, or has faded already, looks as it did a moment ago.
        if (icons[i]->getOpacity() != opacities[i]) {
            if (last) {
                setOpacityUnpainted(last, opacityOfLast);
            }
            last = icons[i];
            opacityOfLast = opacities[i];
        }
    }
    // Its repaint paints all that has changed, with one way through the window's other widgets.
    if (last) {
        last->setOpacity(opacityOfLast);
    }
}

void ZEMAnimatedArrows::finished()
{
    d->timeLine.toggleDirection();
    d->timeLine.start();
}
