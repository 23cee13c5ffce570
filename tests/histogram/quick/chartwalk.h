// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTWALK_H
#define CHARTWALK_H

#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

class QWidget;
class QwtPlot;
class QwtPlotMover;
class ZEMHistogram;

/** A host that does anything whatever with a chart, at random and in the same way again. */
namespace ChartWalk {

using Random = std::mt19937;

inline int upTo(int most, Random &random)
{
    return int(random() % std::uint32_t(most + 1));
}

inline bool coin(Random &random)
{
    return random() % 2 == 0;
}

/** The chart that a walk is about, in a window with two pages beside each other. */
class Stage
{
public:
    /** @p number decides on the kind of chart, its child, and whether it is shown. */
    explicit Stage(std::uint32_t number);
    ~Stage();

    QwtPlot *plot() const;
    /** The plot of the chart or, at times, of its child. */
    QwtPlot *anyPlot(Random &random) const;
    ZEMHistogram *anyChart(Random &random) const;

    /** Lets all happen that was put off. */
    static void settle();

    std::unique_ptr<QWidget> window;
    QWidget *pages[2] = {nullptr, nullptr};
    ZEMHistogram *chart = nullptr;
    ZEMHistogram *child = nullptr;
    unsigned int slotCount = 1;
};

/** One thing that the host does. Its number decides how. */
struct Step
{
    std::size_t action;
    std::uint32_t number;
};

std::size_t actionCount();
const char *nameOf(std::size_t action);
void act(Stage &stage, const Step &step);

/** What can be seen after a step. */
struct Sight
{
    std::vector<double> numbers; ///< places and sizes, before and after what was put off
    QImage screen; ///< what was painted so far
    QImage fresh; ///< what is painted now
    QImage scaled; ///< the same on a device of another kind
};

/** A stage, and what is done on it. */
struct Walk
{
    std::uint32_t number;
    std::vector<Step> steps;
};

Walk newWalk(std::uint32_t seed, std::size_t steps);
QString toString(const Walk &walk);

/** Takes a walk from a new stage on; the world is as before then. */
std::vector<Sight> take(const Walk &walk);

/**
 * What differs between two sights, or nothing. A screen may show what is fresh where Qwt itself
 * does not paint anew.
 */
QString difference(const Sight &plain, const Sight &quick);

} // namespace ChartWalk

#endif
