// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramseries.h"

#include "zemcolumnsymbol.h"
#include "zemhistogramlegenditem.h"
#include "zemstyle.h"

#include <QBrush>
#include <QPalette>
#include <QPen>
#include <QPixmap>

#include <qwt_scale_map.h>

namespace {

QwtColumnSymbol::Style symbolStyle(bool iconColumns)
{
    return iconColumns ? QwtColumnSymbol::UserStyle : QwtColumnSymbol::Box;
}

} // namespace

class ZEMHistogramSeries::Private
{
public:
    /** The series' symbol, null when the host has put another one in its place. */
    ZEMColumnSymbol *symbolIn(const ZEMHistogramSeries &series) const
    {
        return dynamic_cast<const ZEMColumnSymbol *>(series.symbol()) == columnSymbol ? columnSymbol
                                                                                      : nullptr;
    }

    ZEMColumnSymbol *columnSymbol = nullptr;
    const std::shared_ptr<const void> life = std::make_shared<char>();
};

ZEMHistogramSeries::ZEMHistogramSeries(const QString &title, bool iconColumns)
    : QwtPlotHistogram(title), d(std::make_unique<Private>())
{
    setStyle(QwtPlotHistogram::Columns);
    init(symbolStyle(iconColumns));
}

ZEMHistogramSeries::ZEMHistogramSeries(const QString &title, const QBrush &brush, bool iconColumns)
    : ZEMHistogramSeries(title, iconColumns)
{
    setColor(brush);
}

ZEMHistogramSeries::~ZEMHistogramSeries() = default;

void ZEMHistogramSeries::init(QwtColumnSymbol::Style style)
{
    d->columnSymbol = new ZEMColumnSymbol(style);
    d->columnSymbol->setFrameStyle(QwtColumnSymbol::NoFrame);
    d->columnSymbol->setLineWidth(1);
    setSymbol(d->columnSymbol);
}

void ZEMHistogramSeries::setColor(const QBrush &brush)
{
    setBrush(brush);
    setPen(QPen(QColor(Qt::black)));

    QPalette palette;
    for (const auto role :
         {QPalette::Window, QPalette::Button, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setBrush(QPalette::All, role, brush);
    }
    if (ZEMColumnSymbol *symbol = d->symbolIn(*this)) {
        symbol->setPalette(palette);
        itemChanged();
    }
}

void ZEMHistogramSeries::setIcon(QString path)
{
    if (ZEMColumnSymbol *symbol = d->symbolIn(*this)) {
        symbol->setIcon(path);
        itemChanged();
    }
}

std::weak_ptr<const void> ZEMHistogramSeries::life() const
{
    return d->life;
}

QWidget *ZEMHistogramSeries::legendItem() const
{
    constexpr QSize identifierSize(9, 9);
    constexpr int identifierIndent = 10;

    const ZEMStyle style(nullptr);
    auto *item = new ZEMHistogramLegendItem(nullptr);
    item->setTextColor(style.color(ZEMStyle::White));
    item->setIdentifierSize(identifierSize);
    item->setIdentifierIndent(identifierIndent);
    item->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    return item;
}

QwtColumnRect ZEMHistogramSeries::columnRect(const QwtIntervalSample &sample,
                                             const QwtScaleMap &xMap, const QwtScaleMap &yMap) const
{
    if (!sample.interval.isValid()) {
        return QwtColumnRect();
    }
    QwtColumnRect rect = QwtPlotHistogram::columnRect(sample, xMap, yMap);
    if (rect.hInterval.minValue() < xMap.p1()) {
        rect.hInterval.setMinValue(xMap.p1());
    }
    return rect;
}
