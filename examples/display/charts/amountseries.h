// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef AMOUNTSERIES_H
#define AMOUNTSERIES_H

#include "chartvalues.h"

#include <ZEMHistogramSeries>

/**
 * A series of bars of which some are incomplete: they are paler. Shows what a series of a host's
 * own takes: a bar is drawn in drawColumn().
 */
class AmountSeries : public ZEMHistogramSeries
{
public:
    using ZEMHistogramSeries::ZEMHistogramSeries;

    /** Shows @p values at the plot's next replot. */
    void setValues(const ChartValues &values);

protected:
    void drawColumn(QPainter *painter, const QwtColumnRect &rect,
                    const QwtIntervalSample &sample) const override;

private:
    std::set<int> incomplete;
};

#endif
