// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FITTEDHISTOGRAM_H
#define FITTEDHISTOGRAM_H

#include <ZEMHistogramLegend>

#include <QVBoxLayout>
#include <QwtPlotMover>
#include <functional>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <utility>

/** One row of legend items, in pixels. */
constexpr int legendHeight = 30;

/** Room for the labels of a value axis, so that the canvases of two charts stand in one line. */
constexpr double valueAxisExtent = 46.0;

/**
 * A chart of the library, @p Base, fitted to a page of 640 by 480: the plot has the height that the
 * page gives it, the legend has one row, and as a lower chart it has neither legend nor labels of
 * its own below the ticks; its series stand in the legend of the upper chart.
 */
template <class Base>
class FittedHistogram : public Base
{
public:
    enum class Place { Upper, Lower };

    FittedHistogram(Place itsPlace, int plotHeight) : place(itsPlace), height(plotHeight) { }

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
    }

    void setLookAndFeel() override
    {
        if (place == Place::Upper) {
            Base::setLookAndFeel();
            this->template findChild<QwtLegend *>()->setMinimumHeight(legendHeight);
        } else {
            this->setPlotLookAndFeel();
            auto *layout = new QVBoxLayout(this);
            layout->setContentsMargins(0, 0, 0, 0);
            layout->addWidget(this->plot);
        }
        this->plot->setFixedHeight(height);
    }

private:
    const Place place;
    const int height;
    Headline headline;
    QwtInterval shown;
};

#endif
