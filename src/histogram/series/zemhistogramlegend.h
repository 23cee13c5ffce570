// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMLEGEND_H
#define ZEMHISTOGRAMLEGEND_H

#include "zemkit_export.h"

#include <memory>

#include <qwt_legend.h>

class QwtPlot;

/**
 * The legend of a bar chart: a QwtLegend whose entries are made by the series themselves, with
 * ZEMHistogramSeries::legendItem(). Plot items of other classes get Qwt's own entries. Title and
 * colour of an entry follow those of its series.
 *
 * The charts of the library have one, but for the mini chart. For a plot of your own, place it
 * where you like:
 * @code
 * #include <ZEMHistogramLegend>
 * #include <qwt_plot.h>
 *
 * QwtPlot plot;
 * ZEMHistogramLegend legend;
 * ZEMHistogramLegend::connectToPlot(&plot, &legend);
 * @endcode
 * or let the plot place it, with QwtPlot::insertLegend(), which needs no connectToPlot().
 *
 * It needs QwtPlot::itemToInfo() as it is; for a plot with another one all entries are Qwt's own.
 */
class ZEM_EXPORT ZEMHistogramLegend : public QwtLegend
{
    Q_OBJECT

public:
    explicit ZEMHistogramLegend(QWidget *parent = nullptr);
    ~ZEMHistogramLegend() override;

    /**
     * Makes @p legend, of whatever class, show the items of @p plot without becoming a part of it:
     * parent and place stay as they are, and the plot does not own it. It is filled at once and
     * kept up to date until one of the two is deleted. A second call for the same two only fills it
     * again; a null pointer is ignored.
     */
    static void connectToPlot(QwtPlot *plot, QwtLegend *legend);

public Q_SLOTS:
    void updateLegend(const QVariant &itemInfo, const QList<QwtLegendData> &entries) override;

protected:
    /** The entry that the series makes, whose parent the legend becomes. */
    QWidget *createWidget(const QwtLegendData &entry) const override;
    /** Sets text and identifier of a QwtLegendItem; other entries are left to QwtLegend. */
    void updateWidget(QWidget *widget, const QwtLegendData &entry) override;

private:
    Q_DISABLE_COPY(ZEMHistogramLegend)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
