// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qcustomplot.h is written with Qt's keywords.
#undef QT_NO_KEYWORDS

#include "peerpage.h"

#include <qcustomplot.h>

#include <functional>

namespace Charts {

namespace {

class SlotTicker : public QCPAxisTickerFixed
{
public:
    explicit SlotTicker(std::function<QString(double)> textOfSlot) : text(std::move(textOfSlot)) { }

protected:
    QString getTickLabel(double tick, const QLocale & /*locale*/, QChar /*formatChar*/,
                         int /*precision*/) override
    {
        return text(tick);
    }

private:
    std::function<QString(double)> text;
};

class CustomPlotPage : public PeerPage
{
public:
    explicit CustomPlotPage(const Readings &shown) : PeerPage(shown), plot(new QCustomPlot(this))
    {
        plot->setGeometry(chartRect.x(), chartRect.y(), chartRect.width(), 240);
        plot->setBackground(ground.copy(plot->geometry()));
        plot->axisRect()->setBackground(
            QPixmap(QStringLiteral(":/zem/graphics/main/tab_overview_bg.png")));
        plot->axisRect()->setBackgroundScaled(false);
        QSharedPointer<QCPAxisTicker> ticker(
            new SlotTicker([this](double slot) { return labelOf(slot); }));
        static_cast<SlotTicker *>(ticker.data())
            ->setTickStep(readings.period == Period::Day ? 6.0 : 1.0);
        plot->xAxis->setTicker(ticker);
        setUpAxis(plot->xAxis, 11);
        setUpAxis(plot->yAxis, 9);
        plot->yAxis->setRange(0.0, valueLimit);
        plot->yAxis->setLabel(QStringLiteral("kWh"));
        addSeries(readings.consumption, QColor(245, 180, 0));
        addSeries(readings.production, QColor(90, 190, 60));
        follow(plot, chartRect.width() - 40);
    }

protected:
    void showView(double from) override
    {
        plot->xAxis->setRange(from, from + slotCount);
        plot->replot(QCustomPlot::rpQueuedReplot);
    }

private:
    static void setUpAxis(QCPAxis *axis, int pointSize)
    {
        axis->grid()->setVisible(false);
        axis->setTickLabelFont(QFont(QStringLiteral("Cabin"), pointSize));
        axis->setTickLabelColor(Qt::white);
        axis->setTickPen(QPen(QColor(255, 255, 255, 128)));
        axis->setSubTickPen(QPen(QColor(255, 255, 255, 128)));
    }

    void addSeries(const std::vector<double> &values, const QColor &color)
    {
        auto *bars = new QCPBars(plot->xAxis, plot->yAxis);
        bars->setWidth(0.8);
        bars->setPen(Qt::NoPen);
        bars->setBrush(color);
        QVector<double> keys;
        QVector<double> heights;
        for (std::size_t i = 0; i < values.size(); ++i) {
            keys.append(slotOf(i) + 0.5);
            heights.append(values[i]);
        }
        bars->setData(keys, heights, true);
    }

    QCustomPlot *plot;
};

} // namespace

std::unique_ptr<Page> customPlotPage(const Readings &readings)
{
    return std::make_unique<CustomPlotPage>(readings);
}

} // namespace Charts
