// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSMARTMONTHHISTOGRAM_H
#define ZEMSMARTMONTHHISTOGRAM_H

#include "zemscaledraw.h"
#include "zemsmarthistogram.h"

/**
 * About a month of weeks: five slots, each labelled with the date of its first day. The timestamp
 * is the first day of the week at x = 0.
 */
class ZEM_EXPORT ZEMSmartMonthHistogram : public ZEMSmartHistogram
{
    Q_OBJECT

public:
    /** The dates below the weeks. */
    class ZEM_EXPORT xMonthScaleDraw : public ZEMMonthScaleDraw
    {
    public:
        explicit xMonthScaleDraw(double shift);
        ~xMonthScaleDraw() override;

    private:
        Q_DISABLE_COPY(xMonthScaleDraw)
    };

    explicit ZEMSmartMonthHistogram(QWidget *parent = nullptr);
    ~ZEMSmartMonthHistogram() override;

    /**
     * The months in view: "maart", "maart / april" for two, "februari t/m april" for more. Words
     * the child's headline too, and dates the labels of a ZEMMonthScaleDraw anew.
     */
    void updateTitle(QwtInterval interval) override;
    void initAxisRefine() override;

private:
    Q_DISABLE_COPY(ZEMSmartMonthHistogram)
};

#endif
