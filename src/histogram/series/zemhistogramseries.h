// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMSERIES_H
#define ZEMHISTOGRAMSERIES_H

#include "zemkit_export.h"

#include <QString>

#include <memory>

#include <qwt_column_symbol.h>
#include <qwt_plot_histogram.h>

class QBrush;
class QWidget;

/**
 * One series of bars in a chart: frameless columns of one colour, with an icon in each wide one if
 * wanted, and an entry in the legend under the chart.
 *
 * @code
 * #include <ZEMHistogramData>
 * #include <ZEMHistogramSeries>
 * #include <ZEMSmartDayHistogram>
 * #include <ZEMStyle>
 *
 * ZEMSmartDayHistogram chart;
 * chart.init();
 * const QColor blue = ZEMStyle(nullptr).color(ZEMStyle::SkyBlue);
 * auto *series = new ZEMHistogramSeries(QStringLiteral("Verbruik"), blue, false);
 * series->setData(new ZEMHistogramData); // the series owns it from now on
 * chart.addSeries(series);               // the chart owns the series
 * @endcode
 * A series may also be deleted; it leaves its chart then.
 */
class ZEM_EXPORT ZEMHistogramSeries : public QwtPlotHistogram
{
public:
    /** @p title stands in the legend; with @p iconColumns the columns can show an icon. */
    ZEMHistogramSeries(const QString &title, bool iconColumns);
    /** As above, in the colour of @p brush. */
    ZEMHistogramSeries(const QString &title, const QBrush &brush, bool iconColumns);
    /** Not for a colour, a number or a pointer, which would pass for an @p iconColumns of true. */
    template <typename NoBool>
    ZEMHistogramSeries(const QString &title, NoBool iconColumns) = delete;
    ~ZEMHistogramSeries() override;

    /**
     * Gives the series a new column symbol of @p style, without a frame. Colour and icon start
     * anew. The constructors call it.
     */
    void init(QwtColumnSymbol::Style style);

    /**
     * Colour of the columns and of the square in the legend. The legend shows it at once, the
     * columns at the plot's next replot, which only a plot with autoReplot() makes by itself; that
     * of a chart is off.
     */
    void setColor(const QBrush &brush);
    /**
     * Path of the picture that columns wider than it show in their middle; only with icon columns.
     * A path that cannot be read means no icon. Shows at the next replot, as setColor().
     */
    void setIcon(QString path);

    /**
     * A new entry for a legend, without text and colour, which the legend fills in; a
     * ZEMHistogramLegend asks for it. The caller owns it. A subclass may return any widget.
     */
    virtual QWidget *legendItem() const;

protected:
    /**
     * The column of @p sample in pixels of the canvas. One that begins left of the canvas is cut
     * off at its left edge. A sample without a valid interval has none: both intervals are invalid.
     */
    QwtColumnRect columnRect(const QwtIntervalSample &sample, const QwtScaleMap &xMap,
                             const QwtScaleMap &yMap) const override;

private:
    Q_DISABLE_COPY(ZEMHistogramSeries)

    friend class ZEMHistogram;
    /** Ends with the series. */
    std::weak_ptr<const void> life() const;

    class Private;
    std::unique_ptr<Private> d;
};

#endif
