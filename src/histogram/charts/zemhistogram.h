// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAM_H
#define ZEMHISTOGRAM_H

#include "zemkit_export.h"

#include <QDateTime>
#include <QString>
#include <QWidget>
#include <qwt_interval.h>

#include <memory>

class QwtLegend;
class QwtPlot;
class QwtPlotMover;
class ZEMHistogramSeries;

/**
 * The base of all bar charts that the user pages by dragging: one QwtPlot with its series, the
 * mover that shifts it, a headline, and optionally a second chart underneath that moves along.
 *
 * A subclass says what a slot of the x axis is (an hour, a day, a week) by initAxisRefine() and
 * words the headline in updateTitle(). ZEMSmartDayHistogram, ZEMSmartWeekHistogram and
 * ZEMSmartMonthHistogram are ready to use.
 *
 * A chart is set up in two phases, in this order:
 * @code
 * #include <QTimeZone>
 * #include <ZEMHistogramData>
 * #include <ZEMHistogramSeries>
 * #include <ZEMSmartDayHistogram>
 *
 * ZEMSmartDayHistogram chart;
 * auto *returned = new ZEMSmartDayHistogram;
 * returned->init();
 * chart.setChild(returned); // before init()
 * chart.init();             // no constructor calls it
 *
 * auto *data = new ZEMHistogramData;
 * data->setWindowSize(24);
 * data->setNrWindows(31);
 * auto *series = new ZEMHistogramSeries(QStringLiteral("used"), QBrush(Qt::cyan), false);
 * series->setData(data);
 * chart.addSeries(series);
 *
 * chart.setScalePeriod(24.0); // width of the view in slots
 * chart.setScaleInterval(data->interval());
 * chart.setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
 * chart.setDataChangedTimestamp(QDateTime(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc()));
 * chart.replot(); // and again after feeding data
 * @endcode
 *
 * Coordinates: x is QwtPlot::xBottom and counts slots, 0 is the first slot of the newest window and
 * older data has negative x; the value axis is QwtPlot::yLeft.
 *
 * Before init() there is no mover: setScalePeriod(), setScaleInterval() and the three paging slots
 * do nothing, and has_page() answers false.
 *
 * After init() the plot may be given another canvas, by QwtPlot::setCanvas(). Paging and dragging
 * go on with it from where they were; its looks are up to the caller. A view on a canvas that is no
 * QwtPlotCanvas stays where it is until there is one again. The plot itself goes with the chart,
 * never before.
 *
 * A chart, its child and its parent may be deleted in a slot of any signal of theirs.
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 *
 * The parts of a chart keep their places where the application is laid out from right to left.
 */
class ZEM_EXPORT ZEMHistogram : public QWidget
{
    Q_OBJECT

public:
    /** Without a parent the chart is a window, 200 by 200 pixels and named "ZEMHistogram". */
    explicit ZEMHistogram(QWidget *parent = nullptr);
    /** Detaches and deletes the series. Plot, mover and child chart go as child widgets. */
    ~ZEMHistogram() override;

    /**
     * Chooses the number of decimals that labels with a distance of @p step need, and hands it to
     * setScaleDigits(): 1 for 0.25, 2 for 0.01, 0 for 1 and above, and for what is no distance.
     * Despite its name it does not touch the scale; @p min and @p max are not read.
     */
    virtual void setAxisScale(int axisId, double min, double max, double step);
    /**
     * Sets the decimals of an axis that has a ZEMScaleDraw; other axes are left alone. The labels
     * follow at the next replot().
     */
    virtual void setScaleDigits(int axisId, int digits);
    /**
     * Draws this chart and its child anew. To be called after feeding data, and after a new default
     * QLocale, in which the labels are worded then.
     */
    virtual void replot();
    /** Second phase of the construction: initAxis(), then setLookAndFeel(). Call it once. */
    virtual void init();
    /**
     * Words the headline for the x range @p interval, stores it in titleText and emits
     * changed(ZEMHistogram *). Called on each move and by setDataChangedTimestamp().
     */
    virtual void updateTitle(QwtInterval interval) = 0;
    /** Title of the value axis, "kWh" by default. Takes effect in init() only. */
    virtual void setYAxisText(QString text);
    /** Sets up both axes by initAxisRefine() and gives them their fonts and margins. */
    virtual void initAxis();
    /** Gives the axes their scales, scale draws and titles. */
    virtual void initAxisRefine() = 0;
    /** Gives plot, canvas and legend their looks, makes the mover and lays all out. */
    virtual void setLookAndFeel();
    /**
     * A hook of a child chart: its parent was shown or drawn anew, and @p plot is the parent's
     * plot. Does nothing.
     */
    virtual void changed(QwtPlot *plot);

    /** The plot's hint; with a child, its width and height are added. */
    QSize sizeHint() const override;

    /**
     * Adds a series on top of the others. The chart owns it from now on; a series that is deleted
     * elsewhere leaves the chart.
     */
    void addSeries(ZEMHistogramSeries *s);
    /** Adds a series beneath those that addSeries() added. The chart owns it from now on. */
    void prependSeries(ZEMHistogramSeries *s);
    /** Detaches and deletes a series of this chart; leaves any other alone. */
    void delSeries(ZEMHistogramSeries *s);

    /**
     * Width of a period in slots, for this chart and the charts beneath it. Paging moves by it, and
     * a drag past an end stops with just one period in view. Must not be 0 when paging.
     */
    void setScalePeriod(double period);
    /**
     * The x range that a user may reach, for this chart and the charts beneath it;
     * ZEMHistogramData::interval() has the right form. Without one, or with an invalid one,
     * dragging has no limit and no page is reported.
     */
    void setScaleInterval(QwtInterval interval);
    /**
     * Fits the value axis of this chart, and not of its child, to @p limits rounded to whole steps.
     * Bars stand on 0, so give limits that hold it: ZEMHistogramData::valueLimits().extend(0.0).
     * With the values' own limits the axis may begin at the smallest, and its bar is not seen.
     * The axis follows at the next replot().
     */
    void setValueLimits(QwtInterval limits);
    /**
     * The date of x = 0, for this chart and the charts beneath it; the headlines follow at once.
     *
     * Hours and days are counted from it by QDateTime::addSecs() and addDays(). Give a time in
     * UTC (the local date and 0:00 are fine), so that a change to summer time in between moves no
     * hour. While it is null the headlines have no dates.
     */
    void setDataChangedTimestamp(QDateTime t);

    /** The headline of the present view; empty before the first updateTitle(). */
    QString title();
    /** Whether a page lies before and after the one in view. Either pointer may be null. */
    void has_page(bool *prev, bool *next);

    /**
     * Puts @p child under this chart and makes it a child widget. It shares the x axis from then
     * on: a move of either moves both. Only the first call counts, and it must come before init().
     */
    void setChild(ZEMHistogram *child);
    ZEMHistogram *getChild() const;
    ZEMHistogram *getParent() const;
    /** Names the chart that moves with this one; setChild() does it by itself. */
    void setParentHistogram(ZEMHistogram *parent);

    /**
     * Shows the series of @p source in @p legend, which stays where it is in its layout. A legend
     * may show the series of several plots.
     */
    void insertLegendExternal(QwtPlot *source, QwtLegend *legend);

    /**
     * Takes over the scale of @p axis from @p source, the plot of the partner chart. Neither the
     * headline nor the mover's position follows, and nothing is emitted.
     */
    void syncAxis(int axis, QwtPlot *source);

public Q_SLOTS:
    /** Moves to the period before the one in view; at the oldest it stays. */
    void showPrevPeriod();
    /** Moves to the period after the one in view; at the newest it stays. */
    void showNextPeriod();
    /** Moves to the newest period. */
    void showFirstPeriod();

Q_SIGNALS:
    /** The headline was worded anew: after a move and after setDataChangedTimestamp(). */
    void changed(ZEMHistogram *histogram);
    /**
     * The view was moved; whether a page lies before and after it now. Comes after changed(); both
     * signals share their names with functions:
     * @code
     * #include <QLabel>
     * #include <QPushButton>
     * #include <ZEMSmartDayHistogram>
     *
     * ZEMSmartDayHistogram chart;
     * QLabel headline;
     * QPushButton older;
     * QObject::connect(&chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), &headline,
     *                  [&headline](ZEMHistogram *changed) { headline.setText(changed->title()); });
     * QObject::connect(&chart, QOverload<bool, bool>::of(&ZEMHistogram::has_page), &older,
     *                  &QPushButton::setEnabled);
     * @endcode
     */
    void has_page(bool prev_hasPage, bool next_hasPage);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /**
     * The part of setLookAndFeel() that all charts share: colours, canvas, mover and the height of
     * the plot, without layout and legend.
     */
    void setPlotLookAndFeel();

    QwtPlot *plot; ///< the chart itself, a child widget
    QString titleText; ///< what title() returns
    QDateTime dataChangedTimestamp; ///< the date of x = 0
    QwtPlotMover *mover = nullptr; ///< moves the canvas; null until setLookAndFeel(), or if deleted
    QString yAxisText; ///< title of the value axis

private Q_SLOTS:
    void axisChanged(int axis);

private:
    Q_DISABLE_COPY(ZEMHistogram)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
