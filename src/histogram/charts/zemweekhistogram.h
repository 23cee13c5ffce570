// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMWEEKHISTOGRAM_H
#define ZEMWEEKHISTOGRAM_H

#include "zemhistogram.h"

/**
 * A week of days: seven slots from Monday to Sunday, tall lines between the days, and the headline
 * "weekoverzicht - 7 t/m 13 maart". The date of x = 0 must be a Monday.
 *
 * The plain chart has no room for a child; ZEMSmartWeekHistogram has.
 */
class ZEM_EXPORT ZEMWeekHistogram : public ZEMHistogram
{
    Q_OBJECT

public:
    explicit ZEMWeekHistogram(QWidget *parent = nullptr);
    ~ZEMWeekHistogram() override;

    /**
     * "weekoverzicht - 28 feb t/m 6 maart", both ends included; the first month is left out when it
     * is that of the second date. Dates are those of the default QLocale, without a year.
     */
    void updateTitle(QwtInterval interval) override;
    void initAxisRefine() override;

private:
    Q_DISABLE_COPY(ZEMWeekHistogram)
};

#endif
