// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PEERPAGE_H
#define PEERPAGE_H

#include "chartpage.h"

#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace Charts {

/** A ground with a headline on which a page stands a plot of another library. */
class PeerPage : public QWidget, public Page
{
public:
    explicit PeerPage(const Readings &shown)
        : readings(shown), slotCount(slotsInView(shown.period)), ground(groundPicture()),
          headline(new QLabel(this))
    {
        resize(pageSize);
        headline->setFont(QFont(QStringLiteral("Cabin"), 12));
        headline->setGeometry(headlineRect);
    }

    QWidget *window() override { return this; }
    QWidget *canvas() override { return this; }

protected:
    /** Shows the slots from @p from on; called for each step of a drag. */
    virtual void showView(double from) = 0;

    /** Drags on @p target, whose slots take @p width pixels, move the view. */
    void follow(QWidget *target, double width)
    {
        slotWidth = width / slotCount;
        target->installEventFilter(this);
        moveView(0);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        constexpr int dragThreshold = 5; // pixels
        if (event->type() == QEvent::MouseButtonPress) {
            dragStart = static_cast<QMouseEvent *>(event)->pos().x();
        } else if (event->type() == QEvent::MouseMove) {
            const int distance = static_cast<QMouseEvent *>(event)->pos().x() - dragStart;
            if (std::abs(distance) > dragThreshold) {
                dragStart += distance;
                moveView(distance);
            }
        }
        return QWidget::eventFilter(watched, event);
    }

    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, ground);
    }

    /** Where the x of @p index of the readings stands: the newest view begins at 0. */
    double slotOf(std::size_t index) const
    {
        return double(index) - double(readings.consumption.size()) + slotCount;
    }

    QString labelOf(double slot) const
    {
        switch (readings.period) {
        case Period::Day:
            return QStringLiteral("%1:00").arg((int(std::lround(slot)) % 24 + 24) % 24, 2, 10,
                                               QLatin1Char('0'));
        case Period::Week:
            return QLocale().dayName((int(std::floor(slot)) % 7 + 7) % 7 + 1, QLocale::ShortFormat);
        case Period::Month:
            return QLocale().toString(readings.newest.date().addDays(7 * int(std::floor(slot))),
                                      QStringLiteral("d MMM"));
        }
        return {};
    }

    Readings readings;
    double slotCount;
    QPixmap ground;

private:
    void moveView(int distance)
    {
        start = qBound(slotOf(0), start - distance / slotWidth, 0.0);
        const QDateTime &newest = readings.newest;
        const double secondsOfSlot = readings.period == Period::Day ? 3600.0
            : readings.period == Period::Week                       ? 86400.0
                                                                    : 7 * 86400.0;
        const auto dateOf = [&](double slot) {
            return QLocale().toString(newest.addSecs(qint64(slot * secondsOfSlot)).date(),
                                      QStringLiteral("ddd d MMMM"));
        };
        headline->setText(dateOf(start) + QStringLiteral(" t/m ") + dateOf(start + slotCount));
        showView(start);
    }

    QLabel *headline;
    double start = 0.0;
    double slotWidth = 1.0;
    int dragStart = 0;
};

} // namespace Charts

#endif
