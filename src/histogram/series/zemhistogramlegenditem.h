// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMLEGENDITEM_H
#define ZEMHISTOGRAMLEGENDITEM_H

#include "zemkit_export.h"

#include <QPixmap>

#include <memory>

#include "qwtlegenditem.h"

/**
 * The entry of a bar series in the legend under a chart: a text with a coloured square before it,
 * on a picture. ZEMHistogramSeries makes it; a host needs it for a legend of its own.
 *
 * It shows no pressed or checked state.
 */
class ZEM_EXPORT ZEMHistogramLegendItem : public QwtLegendItem
{
    Q_OBJECT

public:
    explicit ZEMHistogramLegendItem(QWidget *parent = nullptr);
    ~ZEMHistogramLegendItem() override;

    /** Colour of the text in all states. */
    void setTextColor(const QColor &color);

    /** A copy of the picture behind the text, null when new. */
    QPixmap getBackground();
    /**
     * Shows @p pixmap, fixes the item's size to that of the picture, divided by its ratio, and
     * repaints at once.
     */
    void setBackground(const QPixmap &pixmap);

    /**
     * Pixels between the left edge and the identifier; margin() when new, a negative one counts as
     * 0. Sets indent() to it + margin() + identifierSize().width() + 2 * spacing(), so that the
     * text begins behind the identifier. Call it after setIdentifierSize() and setSpacing(), which
     * set the indent without it.
     */
    void setIdentifierIndent(int indent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMHistogramLegendItem)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
