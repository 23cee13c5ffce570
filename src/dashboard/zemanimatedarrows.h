// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMANIMATEDARROWS_H
#define ZEMANIMATEDARROWS_H

#include "zemkit_export.h"

#include <QWidget>

#include <memory>

/**
 * A flow of energy between two pictures: three small arrows that light up one after the other in
 * the direction of the flow and fade again, for as long as it runs. The speed of the wave stands
 * for the size of the flow; ZEMUtils::calculateSpeed() makes one of a power.
 *
 * @code
 * #include <ZEMAnimatedArrows>
 * #include <ZEMPageBackground>
 * #include <ZEMUtils>
 *
 * ZEMPageBackground page;
 * auto *arrows = new ZEMAnimatedArrows(&page);
 * arrows->setDirection(ZEMAnimatedArrows::Right);
 * const int speed = ZEMUtils::calculateSpeed(3000.0, 1480.0); // the most, and now
 * arrows->setSpeed(ZEMAnimatedArrows::Speed(speed));
 * if (speed != ZEMAnimatedArrows::Stopped && !arrows->getRunning()) {
 *     arrows->start();
 * }
 * page.show();
 * @endcode
 * New arrows do not run and are not seen. While they run the three are painted at most 20 times in
 * a second; while they are hidden or stopped nothing is painted, and stopped arrows have no timer.
 *
 * Left and right stay what they are where the application is laid out from right to left.
 */
class ZEM_EXPORT ZEMAnimatedArrows : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Direction direction READ getDirection WRITE setDirection)
    Q_PROPERTY(Size arrowSize READ getSize WRITE setSize)
    Q_PROPERTY(Speed speed READ getSpeed WRITE setSpeed)
    Q_PROPERTY(bool running READ getRunning WRITE setRunning)

public:
    enum Direction { Right, Left };
    Q_ENUM(Direction)

    enum Size {
        Normal, ///< arrows of 8 by 15 pixels
        Small ///< arrows of 5 by 10 pixels
    };
    Q_ENUM(Size)

    /** How long the wave takes to rise; it takes the same to fade. */
    enum Speed {
        Stopped,
        Slow, ///< 3 s
        Medium, ///< 2 s
        Fast ///< 1 s
    };
    Q_ENUM(Speed)

    explicit ZEMAnimatedArrows(QWidget *parent = nullptr);
    ~ZEMAnimatedArrows() override;

    /** Where the arrows point and the wave runs; Left by default. */
    Direction getDirection() const;
    /** Turns the arrows. A wave that runs goes on from where it is. */
    void setDirection(Direction direction);
    void toggleDirection();

    /** The size of the arrows; Normal by default. */
    Size getSize() const;
    void setSize(Size size);

    /** The speed last set; Medium by default. It does not tell whether the arrows run. */
    Speed getSpeed() const;
    /**
     * Sets another speed; the present one does nothing. Stopped calls stop(). Any other speed takes
     * effect at once but starts nothing: call start() if getRunning() is false.
     */
    void setSpeed(Speed speed);
    /**
     * Gives the wave the pace of @p speed and leaves getSpeed() alone. Stopped has no pace and
     * changes nothing.
     */
    void setTimelineSpeed(Speed speed);

    /** Whether the wave runs; false by default. */
    bool getRunning() const;
    /** Calls start() or stop(). */
    void setRunning(bool running);

    /** Lets the wave rise from its beginning; one that runs rises from where it is. */
    void start();
    /** Ends the wave; the arrows are not seen until it is started again. */
    void stop();

private Q_SLOTS:
    void valueChanged(qreal value);
    void finished();

private:
    Q_DISABLE_COPY(ZEMAnimatedArrows)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
