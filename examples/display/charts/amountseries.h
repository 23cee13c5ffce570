// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef AMOUNTSERIES_H
#define AMOUNTSERIES_H

#include "chartvalues.h"

#include <ZEMHistogramSeries>

/**
 * A series of bars of which some are incomplete: they are paler. One may be picked, and is lighter.
 * Shows what a series of a host's own takes: a bar is drawn in drawColumn().
 */
class AmountSeries : public ZEMHistogramSeries
{
public:
    using ZEMHistogramSeries::ZEMHistogramSeries;

    /** Shows @p values at the plot's next replot. */
    void setValues(const ChartValues &values);

    /** The bar of this slot, told by its x, stands out from the plot's next replot on. */
    void setPicked(std::optional<int> slot) { picked = slot; }

protected:
    void drawColumn(QPainter *painter, const QwtColumnRect &rect,
                    const QwtIntervalSample &sample) const override;

private:
    std::set<int> incomplete;
    std::optional<int> picked;
};

#endif
