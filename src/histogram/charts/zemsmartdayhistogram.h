// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSMARTDAYHISTOGRAM_H
#define ZEMSMARTDAYHISTOGRAM_H

#include "zemscaledraw.h"
#include "zemsmarthistogram.h"

/**
 * A day of hours: 24 slots, labelled every six hours. The timestamp must be a midnight; see
 * setDataChangedTimestamp() for days of 23 and 25 hours.
 */
class ZEM_EXPORT ZEMSmartDayHistogram : public ZEMSmartHistogram
{
    Q_OBJECT

public:
    /** The hours below the day. */
    class ZEM_EXPORT xDayScaleDraw : public ZEMDayScaleDraw
    {
    public:
        xDayScaleDraw();
        ~xDayScaleDraw() override;

    private:
        Q_DISABLE_COPY(xDayScaleDraw)
    };

    explicit ZEMSmartDayHistogram(QWidget *parent = nullptr);
    ~ZEMSmartDayHistogram() override;

    /**
     * "ma 7 maart" while one day is in view, otherwise "ma 7 t/m di 8 maart", with a short month
     * in the first date when the months differ. Dates are those of the default QLocale.
     */
    void updateTitle(QwtInterval interval) override;
    void initAxisRefine() override;

private:
    Q_DISABLE_COPY(ZEMSmartDayHistogram)
};

#endif
