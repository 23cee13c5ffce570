// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "peerpage.h"

#include <qwt_column_symbol.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_histogram.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

#include <functional>

namespace Charts {

namespace {

class SlotScaleDraw : public QwtScaleDraw
{
public:
    explicit SlotScaleDraw(std::function<QString(double)> textOfSlot) : text(std::move(textOfSlot))
    {
    }

    QwtText label(double value) const override { return text(value); }

private:
    std::function<QString(double)> text;
};

class QwtPage : public PeerPage
{
public:
    explicit QwtPage(const Readings &shown) : PeerPage(shown), plot(new QwtPlot(this))
    {
        plot->setGeometry(chartRect.x(), chartRect.y(), chartRect.width(), 240);
        auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
        canvas->setFrameStyle(0);
        canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
        plot->setCanvasBackground(
            QPixmap(QStringLiteral(":/zem/graphics/main/tab_overview_bg.png")));
        plot->setAxisFont(QwtPlot::xBottom, QFont(QStringLiteral("Cabin"), 11));
        plot->setAxisFont(QwtPlot::yLeft, QFont(QStringLiteral("Cabin"), 9));
        plot->setAxisScale(QwtPlot::yLeft, 0.0, valueLimit);
        plot->setAxisScaleDraw(QwtPlot::xBottom,
                               new SlotScaleDraw([this](double slot) { return labelOf(slot); }));
        addSeries(readings.consumption, QColor(245, 180, 0));
        addSeries(readings.production, QColor(90, 190, 60));
        follow(canvas, canvas->width());
    }

protected:
    void showView(double from) override
    {
        plot->setAxisScale(QwtPlot::xBottom, from, from + slotCount,
                           readings.period == Period::Day ? 6.0 : 1.0);
        plot->replot();
    }

private:
    void addSeries(const std::vector<double> &values, const QColor &color)
    {
        QVector<QwtIntervalSample> samples;
        for (std::size_t i = 0; i < values.size(); ++i) {
            samples.append({values[i], slotOf(i) + 0.1, slotOf(i) + 0.9});
        }
        auto *series = new QwtPlotHistogram;
        auto *symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
        symbol->setFrameStyle(QwtColumnSymbol::NoFrame);
        symbol->setPalette(QPalette(color));
        series->setSymbol(symbol);
        series->setSamples(samples);
        series->attach(plot);
    }

    QwtPlot *plot;
};

} // namespace

std::unique_ptr<Page> qwtPage(const Readings &readings)
{
    return std::make_unique<QwtPage>(readings);
}

} // namespace Charts
