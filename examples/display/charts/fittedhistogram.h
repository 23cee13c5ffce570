// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FITTEDHISTOGRAM_H
#define FITTEDHISTOGRAM_H

#include <ZEMHistogramLegend>

#include <QPixmap>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <QwtPlotMover>
#include <algorithm>
#include <functional>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <utility>

/** One row of legend items, in pixels; it has no fewer. */
constexpr int legendHeight = 30;

/** Between the legend and what is below it, in pixels. */
constexpr int legendGap = 4;

/** The library gives a plot the height of its picture, of which a page has no two; in pixels. */
constexpr int leastPlotSide = 60;

/** Room for the labels of a value axis, so that the canvases of two charts stand in one line. */
constexpr double valueAxisExtent = 46.0;

/** What a value axis needs below its canvas: half a label, and the tail of a comma; in pixels. */
constexpr int footOfValueAxis = 8;

/**
 * A chart of the library, @p Base, fitted to a page: the plot fills it, the legend has the rows
 * that it needs, and as a lower chart it has no legend of its own; its series stand in that of the
 * upper chart.
 */
template <class Base>
class FittedHistogram : public Base
{
public:
    enum class Place { Upper, Lower };

    explicit FittedHistogram(Place itsPlace) : place(itsPlace) { }

    /** How much of the height each of two charts has, in parts. After init(). */
    void shareHeight(int ownPart, QWidget *lower, int partOfLower)
    {
        auto *rows = static_cast<QBoxLayout *>(this->layout());
        rows->setStretchFactor(this->plot, ownPart);
        rows->setStretchFactor(lower, partOfLower);
    }

    QwtPlot *thePlot() const { return this->plot; }

    /** Makes the headline of a view from the one of the library. */
    using Headline = std::function<QString(const QString &plain, const QwtInterval &view)>;
    void setHeadline(Headline theHeadline) { headline = std::move(theHeadline); }

    /** Words the headline of the view anew. */
    void refreshTitle()
    {
        if (shown.isValid()) {
            updateTitle(shown);
        }
    }

    void updateTitle(QwtInterval interval) override
    {
        shown = interval;
        Base::updateTitle(interval);
        if (headline) {
            this->titleText = headline(this->titleText, interval);
            Q_EMIT this->changed(static_cast<ZEMHistogram *>(this));
        }
    }

    /** Lets a touch through to what is beneath the chart, instead of dragging it. After init(). */
    void setTouchable(bool touchable)
    {
        this->mover->setEnabled(touchable);
        this->setAttribute(Qt::WA_TransparentForMouseEvents, !touchable);
    }

protected:
    void initAxisRefine() override
    {
        Base::initAxisRefine();
        this->plot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(valueAxisExtent);
        makeRoomForCommas();
    }

    void setLookAndFeel() override
    {
        if (place == Place::Upper) {
            Base::setLookAndFeel();
            legend = this->template findChild<QwtLegend *>();
        } else {
            this->setPlotLookAndFeel();
            auto *layout = new QVBoxLayout(this);
            layout->setContentsMargins(0, 0, 0, 0);
            layout->addWidget(this->plot);
        }
        ground = this->plot->canvasBackground().texture();
        this->plot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        this->plot->setMinimumSize(leastPlotSide, leastPlotSide);
        this->plot->setMaximumHeight(QWIDGETSIZE_MAX);
        static_cast<QBoxLayout *>(this->layout())->setStretchFactor(this->plot, 1);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        if (legend) {
            const int rows = legend->heightForWidth(event->size().width());
            legend->setFixedHeight(std::max(legendHeight, rows + legendGap));
        }
        // The library gives all of the room to the plot.
        Base::resizeEvent(event);
        this->layout()->invalidate();
        this->layout()->activate();
        spreadGround();
    }

private:
    void makeRoomForCommas()
    {
        this->plot->axisWidget(QwtPlot::yLeft)->setMinBorderDist(0, footOfValueAxis);
        // Below the canvas Qwt lets a value axis reach as far as the ticks there are long. Longer
        // ones mark the labelled hours; without a line of their own, none shows.
        QwtScaleDraw *below = this->plot->axisScaleDraw(QwtPlot::xBottom);
        const double before = below->maxTickLength();
        const bool hasLines = below->tickLength(QwtScaleDiv::MajorTick) > 0.0;
        below->setTickLength(hasLines ? QwtScaleDiv::MajorTick : QwtScaleDiv::MinorTick,
                             footOfValueAxis);
        below->setSpacing(below->spacing() + before - below->maxTickLength());
    }

    /** A picture that is lower than the canvas would begin anew in the middle of it. */
    void spreadGround()
    {
        // The canvas itself gets its size later, and is not much smaller.
        const QSize size = this->plot->size();
        this->plot->setCanvasBackground(size.height() > ground.height() ? ground.scaled(size)
                                                                        : ground);
    }

    const Place place;
    QPixmap ground;
    QwtLegend *legend = nullptr;
    Headline headline;
    QwtInterval shown;
};

#endif
