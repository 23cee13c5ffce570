// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSMARTWEEKHISTOGRAM_H
#define ZEMSMARTWEEKHISTOGRAM_H

#include "zemscaledraw.h"
#include "zemsmarthistogram.h"

/** A week of days: seven slots from Monday to Sunday. The timestamp must be a Monday. */
class ZEM_EXPORT ZEMSmartWeekHistogram : public ZEMSmartHistogram
{
    Q_OBJECT

public:
    /** The days below the week. */
    class ZEM_EXPORT xWeekScaleDraw : public ZEMWeekScaleDraw
    {
    public:
        explicit xWeekScaleDraw(double shift);
        ~xWeekScaleDraw() override;

    private:
        Q_DISABLE_COPY(xWeekScaleDraw)
    };

    explicit ZEMSmartWeekHistogram(QWidget *parent = nullptr);
    ~ZEMSmartWeekHistogram() override;

    /** As that of ZEMWeekHistogram without the leading word: "28 feb t/m 6 maart". */
    void updateTitle(QwtInterval interval) override;
    void initAxisRefine() override;

private:
    Q_DISABLE_COPY(ZEMSmartWeekHistogram)
};

#endif
