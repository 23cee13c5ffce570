// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DAYHISTOGRAM_H
#define DAYHISTOGRAM_H

#include <ZEMSmartDayHistogram>

/**
 * A day of hours that ends at 24:00, as on the analysis page: the library calls every midnight
 * 00:00. A midnight amid two days, while the chart is dragged, is the start of the second.
 */
class DayHistogram : public ZEMSmartDayHistogram
{
    Q_OBJECT

public:
    using ZEMSmartDayHistogram::ZEMSmartDayHistogram;

    void initAxisRefine() override;
};

#endif
