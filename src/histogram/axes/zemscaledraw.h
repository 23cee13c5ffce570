// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSCALEDRAW_H
#define ZEMSCALEDRAW_H

#include "zemkit_export.h"

#include <QDateTime>

#include <qwt_scale_draw.h>

#include <memory>

class ScaleTexts;

/*
 * The scales of the charts. A scale draw given to a plot belongs to it.
 *
 * Texts follow the default QLocale of the moment when they are made. Qwt keeps them; a setter that
 * says that it drops the kept texts repaints nothing, the next replot of the plot makes room for
 * the new ones and paints them. After a new default QLocale the replot of a ZEMHistogram does so
 * too; a plot of your own keeps its texts until it has another scale.
 */

/** A scale that shows nothing: no backbone, no ticks, no labels. For an axis that must take part.
 */
class ZEM_EXPORT ZEMNoScaleDraw : public QwtScaleDraw
{
public:
    ZEMNoScaleDraw();
    ~ZEMNoScaleDraw() override;

private:
    Q_DISABLE_COPY(ZEMNoScaleDraw)
};

/**
 * A scale that knows a number of decimals. Its own labels do not use it, those of subclasses do.
 * @code
 * #include <ZEMScaleDraw>
 * #include <qwt_plot.h>
 *
 * QwtPlot plot;
 * auto *draw = new ZEMKWhScaleDraw(999.0);
 * plot.setAxisScaleDraw(QwtPlot::yLeft, draw);
 * draw->setDigits(2);
 * plot.replot();
 * @endcode
 */
class ZEM_EXPORT ZEMScaleDraw : public QwtScaleDraw
{
public:
    ZEMScaleDraw();
    ~ZEMScaleDraw() override;

    /** The decimals of a label. Default: 1. Another value drops the kept texts. */
    void setDigits(int digits);
    int getDigits() const;

private:
    Q_DISABLE_COPY(ZEMScaleDraw)

    class Private;
    std::unique_ptr<Private> d;
};

/** An energy axis without a backbone: ticks of 4 pixels, labels to the left, 8 pixels away. */
class ZEM_EXPORT ZEMKWhScaleDraw : public ZEMScaleDraw
{
public:
    /** The number is not used. */
    explicit ZEMKWhScaleDraw(double);
    ~ZEMKWhScaleDraw() override;

    /** @p value with getDigits() decimals, never with an exponent. */
    QwtText label(double value) const override;

private:
    Q_DISABLE_COPY(ZEMKWhScaleDraw)
};

/** The energy axis of the month chart: as ZEMKWhScaleDraw, without minor ticks. */
class ZEM_EXPORT ZEMMonthKWhScaleDraw : public ZEMKWhScaleDraw
{
public:
    /** The number is not used. */
    explicit ZEMMonthKWhScaleDraw(double);
    ~ZEMMonthKWhScaleDraw() override;

private:
    Q_DISABLE_COPY(ZEMMonthKWhScaleDraw)
};

/**
 * A scale of hours: 0 is midnight, as are 24 and -24. No backbone; ticks of 40 pixels, the medium
 * and minor ones 18.
 */
class ZEM_EXPORT ZEMDayScaleDraw : public QwtScaleDraw
{
public:
    ZEMDayScaleDraw();
    ~ZEMDayScaleDraw() override;

    /** The hour nearest to @p value, from 00:00 to 23:00. */
    QwtText label(double value) const override;

private:
    Q_DISABLE_COPY(ZEMDayScaleDraw)
};

/**
 * A scale of days of the week: day 0 is a Monday, day -1 the Sunday before. No backbone; the tall
 * separators of 40 pixels are the medium ticks, the others have no line.
 */
class ZEM_EXPORT ZEMWeekScaleDraw : public QwtScaleDraw
{
public:
    /**
     * @p shift is where the label of a day stands after the start of its slot: 0.5 for the middle,
     * together with a ZEMScaleEngine of the same offset.
     */
    explicit ZEMWeekScaleDraw(double shift);
    ~ZEMWeekScaleDraw() override;

    /** The short name of the day nearest to @p value less the shift. */
    QwtText label(double value) const override;

private:
    Q_DISABLE_COPY(ZEMWeekScaleDraw)

    friend class ScaleTexts;
    class Private;
    std::unique_ptr<Private> d;
};

/**
 * A scale of weeks, each labelled with the date of its first day. Ticks as in ZEMWeekScaleDraw.
 */
class ZEM_EXPORT ZEMMonthScaleDraw : public QwtScaleDraw
{
public:
    /** @p shift as in ZEMWeekScaleDraw. */
    explicit ZEMMonthScaleDraw(double shift);
    ~ZEMMonthScaleDraw() override;

    /**
     * The first day of week 0; its time of day does not matter. Default: null, and empty labels.
     * Drops the kept texts, always; with the date of before the next replot paints no axis.
     */
    void setStartTimestamp(QDateTime timestamp);

    /** Day and short month of the week nearest to @p value less the shift, as "9 Mar". */
    QwtText label(double value) const override;

private:
    Q_DISABLE_COPY(ZEMMonthScaleDraw)

    friend class ScaleTexts;
    class Private;
    std::unique_ptr<Private> d;
};

#endif
