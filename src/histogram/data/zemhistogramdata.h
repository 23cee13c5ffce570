// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMDATA_H
#define ZEMHISTOGRAMDATA_H

#include "zemkit_export.h"

#include <QObject>
#include <QRectF>

#include <memory>

#include <qwt_interval.h>
#include <qwt_samples.h>
#include <qwt_series_data.h>

/**
 * The data of one bar series of a chart: one array of slots, divided into equal windows, of which
 * the plot sees one window's worth at a time. Panning the plot only moves the place from which
 * sample() reads; no data is copied.
 *
 * A slot is whatever the chart that shows it says: an hour, a day, a week. The x axis counts slots;
 * 0 is the first slot of the newest window, which ends at windowSize(), and older windows have
 * negative x. Windows are numbered from 0, the oldest, to nrWindows() - 1, the newest.
 *
 * @code
 * #include <ZEMHistogramData>
 * #include <ZEMHistogramSeries>
 * #include <ZEMSmartDayHistogram>
 *
 * ZEMSmartDayHistogram chart;
 * chart.init();
 * auto *series = new ZEMHistogramSeries(QStringLiteral("used"), QBrush(Qt::cyan), false);
 * chart.addSeries(series);
 *
 * const double today[] = {0.3, 0.2, 0.2, 0.4};
 * auto *data = new ZEMHistogramData;
 * data->setWindowSize(24); // first the size, then the number
 * data->setCenterValue(0.1);
 * data->setNrWindows(31);
 * series->setData(data); // the series owns it from now on
 * data->setWindowValues(30, 0, 4, today, false);
 * chart.setScaleInterval(data->interval());
 * chart.setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
 * chart.replot();
 * @endcode
 *
 * The object tells nobody of a change: replot the chart after feeding. The series that it is given
 * to deletes it, so leave out the parent then. For the GUI thread only.
 */
class ZEM_EXPORT ZEMHistogramData : public QObject, public QwtSeriesData<QwtIntervalSample>
{
    Q_OBJECT

public:
    explicit ZEMHistogramData(QObject *parent = nullptr);
    ~ZEMHistogramData() override;

    /** Slots per window, whatever the array holds: the plot asks for one window. 0 when new. */
    size_t size() const override;
    /**
     * The slot at @p i slots behind the left edge of rectOfInterest(), the fraction of which is cut
     * off (-0.9 reads as 0). A place outside of the array, and a left edge that no int holds, give
     * the empty sample: value 0.0 and an invalid interval from 0.0 to -1.0.
     *
     * If the first slot of the view, @p i = 0, holds no bar, the nearest bar before it is given
     * instead, if there is one: a merged bar may begin there and reach into the view.
     * Takes constant time, however much lies before the view.
     */
    QwtIntervalSample sample(size_t i) const override;
    /**
     * The rectangle around the samples of the view at the first call that finds a bar. It is kept
     * from then on; neither feeding nor panning changes it any more.
     */
    QRectF boundingRect() const override;
    /** Stores @p rect, in axis units. Called by the plot item when the scales change. */
    void setRectOfInterest(const QRectF &rect) override;

    /**
     * Slots per window; 0 when new. Stored only: the array and interval() follow at the next
     * setNrWindows().
     */
    void setWindowSize(unsigned int size);
    unsigned int windowSize() const;

    /**
     * Number of windows; 0 when new. Resizes the array to @p number times windowSize() slots,
     * keeping the oldest; new slots are empty. A product that no int holds leaves no slots.
     * Afterwards interval() runs from -(@p number - 1) * windowSize() to windowSize(), so that 24
     * slots and 3 windows give -48 to 24. Use at least 1.
     */
    void setNrWindows(unsigned int number);
    unsigned int nrWindows() const;

    /**
     * Gap between a bar and each end of its slots, in slots; 0.0 when new. Useful from 0.0 to below
     * 0.5, not checked. For bars written later.
     */
    void setCenterValue(double value);
    double centerValue() const;

    /** Added to the start and end of a bar, in slots; 0.0 when new. For bars written later. */
    void setShiftValue(double value);
    double shiftValue() const;

    /** Flags of the x range of bars written later; QwtInterval::ExcludeMaximum when new. */
    void setBorderFlags(QFlags<QwtInterval::BorderFlag> flags);

    /**
     * Feeds @p count values to @p window, the first one to the slot @p offset of it. A chart is fed
     * with this. With @p merge each run of equal values becomes one wide bar, as mergeValues()
     * tells; without, each value is a bar of its own. Slots outside of the array are skipped.
     */
    void setWindowValues(unsigned int window, unsigned int offset, unsigned int count,
                         const double *values, bool merge);
    /**
     * Writes @p count bars, the first one to the array position @p index, whose slot begins at
     * @p x. A bar is 1 - 2 * centerValue() slots wide. Positions outside of the array are skipped.
     */
    void setValues(double x, unsigned int index, unsigned int count, const double *values);
    /**
     * As setValues(), but with one bar for each run of equal values: it stands in the first slot of
     * the run and is as wide as the run less 2 * centerValue(); the other slots are empty. A NaN is
     * a run of its own. With a @p count of 0 the first value is read and written all the same.
     */
    void mergeValues(double x, unsigned int index, unsigned int count, const double *values);
    /**
     * Makes gaps of those of @p count slots from @p offset in @p window whose value equals
     * @p value: value 0.0 and no bar. Their border flags stay.
     */
    void invalidateValues(unsigned int window, unsigned int offset, unsigned int count,
                          double value);

    /**
     * The run of equal values that begins at @p start: from @p start to the first index behind it
     * that differs, or to @p count.
     */
    QwtInterval findInterval(unsigned int start, unsigned int count, const double *values);

    /** x range of all windows as of the last setNrWindows(); 0.0 to 0.0 when new. */
    QwtInterval interval() const;
    /** x range of one window; @p window is not checked. */
    QwtInterval interval(unsigned int window) const;
    /**
     * Smallest and largest value of all slots. An empty slot counts as 0.0, a NaN does not count
     * beside a number. 0.0 to 0.0 when there is no slot. For a value axis extend it to 0.0, on
     * which the bars stand.
     */
    QwtInterval valueLimits() const;
    /** What setRectOfInterest() was given last; (0, 0, 0, 0) when new. */
    QRectF rectOfInterest() const;

private:
    Q_DISABLE_COPY(ZEMHistogramData)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
