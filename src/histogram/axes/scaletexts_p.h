// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SCALETEXTS_P_H
#define SCALETEXTS_P_H

#include <QDate>
#include <QLocale>
#include <QString>

class QwtScaleDraw;
class ZEMDayScaleDraw;
class ZEMKWhScaleDraw;
class ZEMMonthScaleDraw;
class ZEMWeekScaleDraw;

/**
 * The labels of the library's scales as mere strings. Each QwtText makes two fonts, which costs
 * more than all else about a label.
 */
class ScaleTexts
{
public:
    /** All that a label depends on beside its value. */
    struct Source
    {
        QLocale locale = QLocale::c();
        QDate firstDay;
        int digits = 0;

        bool operator==(const Source &other) const
        {
            return digits == other.digits && locale == other.locale && firstDay == other.firstDay;
        }
    };

    static Source source(const ZEMKWhScaleDraw &draw);
    static Source source(const ZEMDayScaleDraw &draw);
    static Source source(const ZEMWeekScaleDraw &draw);
    static Source source(const ZEMMonthScaleDraw &draw);

    /**
     * Drops the labels that @p draw keeps. The next replot lays its axis out and paints it, though
     * its scale is the same.
     */
    static void renew(QwtScaleDraw *draw);

    static QString text(const ZEMKWhScaleDraw &draw, double value);
    static QString text(const ZEMDayScaleDraw &draw, double value);
    static QString text(const ZEMWeekScaleDraw &draw, double value);
    static QString text(const ZEMMonthScaleDraw &draw, double value);
};

#endif
