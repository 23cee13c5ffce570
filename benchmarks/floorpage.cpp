// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// The floor: what a page costs that somebody painted by hand, without a library, for this one page.
// It shows what the library's page shows at the same place, and knows all of its geometry.

#include "chartpage.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace Charts {

namespace {

constexpr QPoint plotPosition = chartRect.topLeft();
constexpr int dragThreshold = 5; // pixels
constexpr int tickLength = 5; // pixels, of the x axis
constexpr int valueTickLength = 4; // pixels
const QColor tickColor(255, 255, 255, 128);

/** What differs between the three charts. */
struct Look
{
    double slotCount;
    double firstTick; // in slots from the start of the view
    double tickStep;
    double labelStep;
    int canvasHeight;
    double scaleLength; // pixels from the first to the last slot in view
    double labelTop; // pixels below the canvas
};

Look lookOf(Period period)
{
    switch (period) {
    case Period::Day:
        return {24.0, 0.0, 1.5, 6.0, 212, 430.0, 9.0};
    case Period::Week:
        return {7.0, 0.5, 1.0, 1.0, 212, 438.0, 9.0};
    case Period::Month:
        return {5.0, 0.5, 1.0, 1.0, 185, 442.0, 9.0};
    }
    return {};
}

class FloorPage : public QWidget, public Page
{
public:
    explicit FloorPage(const Readings &shown)
        : readings(shown), look(lookOf(shown.period)), ground(groundPicture()),
          canvasPicture(QStringLiteral(":/zem/graphics/main/tab_overview_bg.png")),
          legendPicture(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")),
          headlineFont(QStringLiteral("Cabin"), 12), labelFont(QStringLiteral("Cabin"), 11),
          valueFont(QStringLiteral("Cabin"), 9)
    {
        resize(pageSize);
        canvasRect = QRect(plotPosition + QPoint(41, 0), QSize(452, look.canvasHeight));
        axisRect = QRect(plotPosition.x(), canvasRect.bottom() + 1, chartRect.width(), 28);
        valueAxisRect = QRect(plotPosition, QSize(41, look.canvasHeight + 5));
        legendTop = axisRect.bottom() + (readings.period == Period::Day ? 6 : 11);
        headline = headlineText();
    }

    QWidget *window() override { return this; }
    QWidget *canvas() override { return this; }

protected:
    void mousePressEvent(QMouseEvent *event) override { dragStart = event->pos().x(); }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        const int distance = event->pos().x() - dragStart;
        if (std::abs(distance) <= dragThreshold) {
            return;
        }
        dragStart = event->pos().x();
        moveView(distance);
    }

    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        const QRegion region = event->region();
        for (const QRect &rect : region) {
            painter.drawPixmap(rect, ground, rect);
        }
        if (region.intersects(headlineRect)) {
            paintHeadline(&painter);
        }
        if (region.intersects(canvasRect)) {
            paintCanvas(&painter);
        }
        if (region.intersects(axisRect)) {
            paintAxis(&painter);
        }
        if (region.intersects(valueAxisRect)) {
            paintValueAxis(&painter);
        }
        if (region.intersects(QRect(plotPosition.x(), legendTop, chartRect.width(), 27))) {
            paintLegend(&painter);
        }
    }

private:
    void moveView(int distance)
    {
        const double oldest = look.slotCount - double(readings.consumption.size());
        start = qBound(oldest, start - distance * look.slotCount / look.scaleLength, 0.0);
        const QString text = headlineText();
        if (text != headline) {
            headline = text;
            update(headlineRect);
        }
        update(canvasRect);
        update(axisRect);
    }

    QString headlineText() const
    {
        const QLocale locale;
        const double end = start + look.slotCount;
        switch (readings.period) {
        case Period::Day: {
            const QDate first = readings.newest.addSecs(int(start * 3600.0)).date();
            const QDate last = readings.newest.addSecs(int((end - 1.0) * 3600.0)).date();
            const QString to = locale.toString(last, QStringLiteral("ddd d MMMM"));
            if (first == last) {
                return to;
            }
            const bool oneMonth = first.month() == last.month();
            return locale.toString(first,
                                   oneMonth ? QStringLiteral("ddd d") : QStringLiteral("ddd d MMM"))
                + QStringLiteral(" t/m ") + to;
        }
        case Period::Week: {
            const QDate first = readings.newest.addDays(int(start)).date();
            const QDate last = readings.newest.addDays(int(end - 1.0)).date();
            const bool oneMonth = first.month() == last.month();
            return locale.toString(first, oneMonth ? QStringLiteral("d") : QStringLiteral("d MMM"))
                + QStringLiteral(" t/m ") + locale.toString(last, QStringLiteral("d MMMM"));
        }
        case Period::Month: {
            const QDate first = readings.newest.addDays(int(7.0 * start)).date();
            const QDate last = readings.newest.addDays(int(7.0 * end - 1.0)).date();
            const QString from = locale.toString(first, QStringLiteral("MMMM"));
            if (first.month() == last.month()) {
                return from;
            }
            const bool neighbours = first.addMonths(1).month() == last.month();
            return from + (neighbours ? QStringLiteral(" / ") : QStringLiteral(" t/m "))
                + locale.toString(last, QStringLiteral("MMMM"));
        }
        }
        return {};
    }

    QString labelText(double slot) const
    {
        switch (readings.period) {
        case Period::Day: {
            const int hour = ((int(std::lround(slot)) % 24) + 24) % 24;
            return QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
        }
        case Period::Week: {
            const int day = ((int(std::lround(slot - 0.5)) % 7) + 7) % 7;
            return QLocale().dayName(day + 1, QLocale::ShortFormat);
        }
        case Period::Month: {
            const QDate date = readings.newest.date().addDays(7 * std::lround(slot - 0.5));
            return QLocale().toString(date, QStringLiteral("d MMM"));
        }
        }
        return {};
    }

    /** The x of @p slot, from the left of the canvas; the scale begins left of it. */
    double position(double slot) const
    {
        return (slot - start) * look.scaleLength / look.slotCount - 1.0;
    }

    void paintHeadline(QPainter *painter) const
    {
        painter->setFont(headlineFont);
        painter->setPen(palette().color(QPalette::WindowText));
        painter->drawText(headlineRect, Qt::AlignLeft | Qt::AlignVCenter, headline);
    }

    void paintCanvas(QPainter *painter) const
    {
        painter->save();
        painter->setClipRect(canvasRect);
        painter->translate(canvasRect.topLeft());
        painter->drawPixmap(0, 0, canvasPicture);
        paintBars(painter, readings.consumption, QColor(245, 180, 0));
        paintBars(painter, readings.production, QColor(90, 190, 60));
        painter->restore();
    }

    void paintBars(QPainter *painter, const std::vector<double> &values, const QColor &color) const
    {
        constexpr double inset = 0.1;
        const double height = look.canvasHeight - 5.0;
        const int first = int(start);
        const int offset = int(values.size()) - int(look.slotCount);
        for (int slot = first; slot < first + int(look.slotCount); ++slot) {
            const double value = values[std::size_t(slot + offset)];
            const int left = std::max(qRound(position(slot + inset)), -1);
            const int right = qRound(position(slot + 1.0 - inset) - 1.0);
            const int top = qRound(look.canvasHeight - value * height / valueLimit);
            painter->fillRect(left, top, right - left + 1, look.canvasHeight - top + 1, color);
        }
    }

    void paintAxis(QPainter *painter) const
    {
        painter->save();
        painter->translate(canvasRect.left(), axisRect.top());
        painter->setFont(labelFont);
        const QFontMetricsF metrics(labelFont);
        painter->setPen(Qt::white);
        const double end = start + look.slotCount;
        const double labelled = readings.period == Period::Day ? 0.0 : 0.5;
        for (double slot =
                 std::ceil((start - labelled) / look.labelStep) * look.labelStep + labelled;
             slot <= end; slot += look.labelStep) {
            const QString text = labelText(slot);
            const double width = metrics.horizontalAdvance(text);
            painter->drawText(QPointF(position(slot) - width / 2.0, look.labelTop + 12.0), text);
        }
        painter->setPen(QPen(tickColor, 0.0, Qt::SolidLine, Qt::FlatCap));
        for (int tick = int(std::ceil(start)); tick <= end; ++tick) {
            const int x = qRound(position(tick));
            painter->drawLine(x, 0, x, tickLength);
        }
        painter->restore();
    }

    void paintValueAxis(QPainter *painter) const
    {
        painter->save();
        painter->translate(plotPosition);
        painter->setFont(valueFont);
        const QFontMetricsF metrics(valueFont);
        const double height = look.canvasHeight - 5.0;
        painter->setPen(Qt::white);
        const QLocale locale;
        for (int value = 0; value <= valueLimit; ++value) {
            const QString text = locale.toString(value);
            painter->drawText(QPointF(40.0 - 12.0 - metrics.horizontalAdvance(text),
                                      look.canvasHeight - value * height / valueLimit + 5.0),
                              text);
        }
        painter->setPen(QPen(tickColor, 0.0, Qt::SolidLine, Qt::FlatCap));
        constexpr int ticksPerUnit = 5;
        for (int tick = 0; tick <= valueLimit * ticksPerUnit; ++tick) {
            const int y = qRound(look.canvasHeight - tick * height / (valueLimit * ticksPerUnit));
            painter->drawLine(40, y, 40 - valueTickLength, y);
        }
        painter->setPen(Qt::white);
        painter->setFont(QFont(font().family(), 10));
        painter->rotate(-90.0);
        painter->drawText(QRectF(-look.canvasHeight, 0.0, height, 20.0),
                          Qt::AlignRight | Qt::AlignTop, QStringLiteral("kWh"));
        painter->restore();
    }

    void paintLegend(QPainter *painter) const
    {
        constexpr int itemWidth = 127;
        constexpr int itemHeight = 27;
        constexpr int itemSpacing = 12;
        const std::pair<QString, QColor> items[] = {
            {QStringLiteral("Verbruik"), QColor(245, 180, 0)},
            {QStringLiteral("Opwek"), QColor(90, 190, 60)},
        };
        painter->setFont(font());
        painter->setPen(Qt::white);
        QRect rect(plotPosition.x(), legendTop, itemWidth, itemHeight);
        for (const auto &item : items) {
            painter->drawPixmap(rect.topLeft(), legendPicture);
            painter->fillRect(rect.left() + 10, rect.top() + 9, 9, 9, item.second);
            painter->drawText(rect.adjusted(27, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                              item.first);
            rect.translate(itemWidth + itemSpacing, 0);
        }
    }

    Readings readings;
    Look look;
    QPixmap ground;
    QPixmap canvasPicture;
    QPixmap legendPicture;
    QFont headlineFont;
    QFont labelFont;
    QFont valueFont;
    QRect canvasRect;
    QRect axisRect;
    QRect valueAxisRect;
    int legendTop = 0;
    QString headline;
    double start = 0.0; // slot at the left end of the view
    int dragStart = 0;
};

} // namespace

std::unique_ptr<Page> floorPage(const Readings &readings)
{
    return std::make_unique<FloorPage>(readings);
}

} // namespace Charts
