// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COUNTINGPLOT_H
#define COUNTINGPLOT_H

namespace ZemTest {

/** A plot, QwtPlot or a subclass, that counts how often it is replotted. */
template <typename Plot>
class CountingPlot : public Plot
{
public:
    using Plot::Plot;

    void replot() override
    {
        ++replots;
        Plot::replot();
    }

    int replots = 0;
};

} // namespace ZemTest

#endif
