// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramlegend.h"

#include "objectname_p.h"
#include "qwtlegenditem.h"
#include "zemhistogramseries.h"

#include <QScopedValueRollback>
#include <QVariant>

#include <qwt_graphic.h>
#include <qwt_plot.h>
#include <qwt_plot_item.h>

class ZEMHistogramLegend::Private
{
public:
    /** Whose entries are being updated, as far as it is a bar series. */
    const ZEMHistogramSeries *series = nullptr;
};

ZEMHistogramLegend::ZEMHistogramLegend(QWidget *parent)
    : QwtLegend(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
}

ZEMHistogramLegend::~ZEMHistogramLegend() = default;

void ZEMHistogramLegend::connectToPlot(QwtPlot *plot, QwtLegend *legend)
{
    if (!plot || !legend) {
        return;
    }
    connect(plot, &QwtPlot::legendDataChanged, legend, &QwtLegend::updateLegend,
            Qt::UniqueConnection);
    plot->updateLegend();
}

void ZEMHistogramLegend::updateLegend(const QVariant &itemInfo, const QList<QwtLegendData> &entries)
{
    // The factory below is told the entry's data but not its item. An item that goes away sends no
    // data and may be half destroyed.
    const QScopedValueRollback<const ZEMHistogramSeries *> rollback(d->series);
    d->series = entries.isEmpty()
        ? nullptr
        : dynamic_cast<const ZEMHistogramSeries *>(itemInfo.value<QwtPlotItem *>());
    QwtLegend::updateLegend(itemInfo, entries);
}

QWidget *ZEMHistogramLegend::createWidget(const QwtLegendData &entry) const
{
    QWidget *item = d->series ? d->series->legendItem() : nullptr;
    return item ? item : QwtLegend::createWidget(entry);
}

void ZEMHistogramLegend::updateWidget(QWidget *widget, const QwtLegendData &entry)
{
    auto *item = qobject_cast<QwtLegendItem *>(widget);
    if (!item || !d->series) {
        QwtLegend::updateWidget(widget, entry);
        return;
    }
    item->setText(entry.title());
    item->setIdentifier(d->series->legendIcon(0, item->identifierSize()).toPixmap());
}
