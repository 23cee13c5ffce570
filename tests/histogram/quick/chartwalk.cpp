// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartwalk.h"

#include "quickpathsfixture.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QScopeGuard>
#include <QScreen>
#include <QTimeZone>
#include <QVBoxLayout>
#include <QWindow>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>

namespace ChartWalk {

namespace {

using namespace QuickPathsTest;

void addPlaces(const ZEMHistogram *chart, std::vector<double> *numbers)
{
    const QwtPlot *plot = plotOf(chart);
    const auto add = [numbers](const QRect &rect) {
        numbers->insert(
            numbers->end(),
            {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())});
    };
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        const QwtScaleMap map = plot->canvasMap(axis);
        numbers->insert(numbers->end(), {map.p1(), map.p2(), map.s1(), map.s2()});
        if (plot->axisEnabled(axis)) {
            const QwtScaleWidget *scale = plot->axisWidget(axis);
            const QwtScaleDraw *draw = scale->scaleDraw();
            numbers->insert(numbers->end(), {draw->pos().x(), draw->pos().y(), draw->length()});
            add(scale->geometry());
            add(QRect(QPoint(scale->startBorderDist(), scale->endBorderDist()),
                      scale->minimumSizeHint()));
        }
    }
    add(plot->canvas()->geometry());
    add(plot->geometry());
    add(QRect(QPoint(), plot->sizeHint()));
    add(QRect(QPoint(), plot->minimumSizeHint()));
    add(QRect(QPoint(), chart->sizeHint()));
}

std::vector<double> placesOf(const Stage &stage)
{
    std::vector<double> numbers;
    addPlaces(stage.chart, &numbers);
    if (stage.child) {
        addPlaces(stage.child, &numbers);
    }
    return numbers;
}

QImage screenOf(const QWidget &window)
{
    return window.screen()->grabWindow(window.winId()).toImage();
}

/** The window on a device with another ratio of pixels or another density. */
QImage scaledPicture(QWidget *window, std::uint32_t number)
{
    constexpr double dotsPerMeter[] = {3780.0, 3780.0, 5900.0, 11811.0};
    constexpr double ratios[] = {1.0, 1.25, 1.5, 2.0};
    const double ratio = ratios[number % 4];
    QImage image(window->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.setDotsPerMeterX(int(dotsPerMeter[number / 4 % 4]));
    image.setDotsPerMeterY(int(dotsPerMeter[number / 4 % 4]));
    image.fill(Qt::gray);
    QPainter painter(&image);
    if (number / 16 % 4 == 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(3.5, 1.25);
    }
    window->render(&painter, QPoint());
    return image;
}

Sight sightOf(const Stage &stage, const Step &step)
{
    Sight sight;
    // Who looks at a chart that was never shown changes it: it is not looked at after each step.
    if (!stage.window->isVisible() && step.number % 4 != 0) {
        return sight;
    }
    sight.numbers = placesOf(stage);
    Stage::settle();
    const std::vector<double> settled = placesOf(stage);
    sight.numbers.insert(sight.numbers.end(), settled.begin(), settled.end());
    if (stage.window->isVisible()) {
        sight.screen = screenOf(*stage.window);
    }
    sight.fresh = stage.window->grab().toImage();
    if (step.number % 16 < 4) {
        sight.scaled = scaledPicture(stage.window.get(), step.number / 16);
    }
    return sight;
}

bool isPaintedOrFresh(const Sight &plain, const Sight &quick)
{
    if (plain.screen == quick.screen) {
        return true;
    }
    if (plain.screen.size() != quick.screen.size() || quick.screen.size() != quick.fresh.size()) {
        return false;
    }
    for (int y = 0; y < plain.screen.height(); ++y) {
        for (int x = 0; x < plain.screen.width(); ++x) {
            const QRgb shown = quick.screen.pixel(x, y);
            if (shown != plain.screen.pixel(x, y) && shown != quick.fresh.pixel(x, y)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

Stage::Stage(std::uint32_t number) : window(new Ground)
{
    Random random(number);
    const Kind &kind = kinds()[std::size_t(upTo(int(kinds().size()) - 1, random))].second;
    slotCount = kind.slotCount;
    const bool hasChild = upTo(3, random) == 0;
    window->resize(360 + upTo(120, random), hasChild ? 520 : 320);
    auto *layout = new QHBoxLayout(window.get());
    layout->setContentsMargins(7, 9, 3, 5);
    for (QWidget *&page : pages) {
        page = new QWidget;
        (new QVBoxLayout(page))->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(page);
    }
    pages[1]->hide();
    chart = kind.make();
    if (hasChild) {
        child = kind.make();
        child->init();
        chart->setChild(child);
    }
    chart->init();
    pages[0]->layout()->addWidget(chart);
    chart->setScalePeriod(slotCount);
    if (upTo(3, random) != 0) {
        chart->addSeries(newSeries(slotCount, false, 1));
        chart->prependSeries(newSeries(slotCount, true, 2));
        chart->setScaleInterval(QwtInterval(-double(slotCount * (windows - 1)), slotCount));
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 3, 2), QTime(0, 0), QTimeZone::utc()));
    }
    if (upTo(3, random) != 0) {
        window->show();
        chart->replot();
        settle();
    }
}

Stage::~Stage() = default;

QwtPlot *Stage::plot() const
{
    return plotOf(chart);
}

ZEMHistogram *Stage::anyChart(Random &random) const
{
    return child && coin(random) ? child : chart;
}

QwtPlot *Stage::anyPlot(Random &random) const
{
    return plotOf(anyChart(random));
}

void Stage::settle()
{
    constexpr int rounds = 3;
    for (int i = 0; i < rounds; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

Walk newWalk(std::uint32_t seed, std::size_t steps)
{
    Random random(seed);
    Walk walk {std::uint32_t(random()), {}};
    for (std::size_t i = 0; i < steps; ++i) {
        const std::size_t action = random() % actionCount();
        walk.steps.push_back({action, std::uint32_t(random())});
    }
    return walk;
}

QString toString(const Walk &walk)
{
    QString text = QStringLiteral("stage %1").arg(walk.number);
    for (const Step &step : walk.steps) {
        text +=
            QStringLiteral("\n  %1 %2").arg(QLatin1String(nameOf(step.action))).arg(step.number);
    }
    return text;
}

std::vector<Sight> take(const Walk &walk)
{
    const auto restore = qScopeGuard([palette = QApplication::palette(), locale = QLocale()] {
        QApplication::setPalette(palette);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(locale);
    });
    Stage stage(walk.number);
    std::vector<Sight> sights;
    for (const Step &step : walk.steps) {
        act(stage, step);
        sights.push_back(sightOf(stage, step));
    }
    return sights;
}

QString difference(const Sight &plain, const Sight &quick)
{
    QStringList numbers;
    for (std::size_t i = 0; i < std::min(plain.numbers.size(), quick.numbers.size()); ++i) {
        if (plain.numbers[i] != quick.numbers[i]) {
            numbers << QStringLiteral("%1: %2 instead of %3")
                           .arg(i)
                           .arg(quick.numbers[i])
                           .arg(plain.numbers[i]);
        }
    }
    if (!numbers.isEmpty() || plain.numbers.size() != quick.numbers.size()) {
        return QStringLiteral("%1 numbers (%2)")
            .arg(plain.numbers.size())
            .arg(numbers.join(QStringLiteral(", ")));
    }
    if (plain.fresh != quick.fresh) {
        return QStringLiteral("the picture");
    }
    if (plain.scaled != quick.scaled) {
        return QStringLiteral("the picture on another device");
    }
    return isPaintedOrFresh(plain, quick) ? QString() : QStringLiteral("the screen");
}

} // namespace ChartWalk
