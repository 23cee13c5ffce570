// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMCOLUMNSYMBOL_H
#define ZEMCOLUMNSYMBOL_H

#include "zemkit_export.h"

#include <QString>

#include <memory>

#include <qwt_column_symbol.h>

class QPainter;

/**
 * Paints one column of a bar series, with an icon in its middle if it was made for icons.
 *
 * ZEMHistogramSeries makes its own; take this class for another QwtPlotHistogram, which owns the
 * symbol that it is given:
 * @code
 * #include <ZEMColumnSymbol>
 * #include <qwt_plot_histogram.h>
 *
 * QwtPlotHistogram histogram;
 * auto *symbol = new ZEMColumnSymbol(QwtColumnSymbol::UserStyle);
 * symbol->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
 * histogram.setSymbol(symbol);
 * @endcode
 *
 * QwtColumnSymbol::Box is Qwt's plain box, with frame and without icon.
 * QwtColumnSymbol::UserStyle fills the column with the brush of the palette's role Window and
 * centres the icon in the part of the column that the painter's clip region leaves; set a clip
 * region before painting, as a plot does. Any other style paints nothing.
 */
class ZEM_EXPORT ZEMColumnSymbol : public QwtColumnSymbol
{
public:
    explicit ZEMColumnSymbol(QwtColumnSymbol::Style style);
    ~ZEMColumnSymbol() override;

    /** Paints the column, and nothing if its horizontal interval is not valid. */
    void draw(QPainter *painter, const QwtColumnRect &rect) const override;

    /**
     * The picture in the middle of columns that are wider than it; none when new. It is shared
     * through QPixmapCache with @p path as its key, and one of the library is shown sharp where the
     * screen is. A path that cannot be read means no icon. The
     * symbol knows of no plot and repaints nothing.
     */
    void setIcon(QString path);

protected:
    /** The style UserStyle. Leaves the painter as it was. */
    void drawIconBox(QPainter *painter, const QwtColumnRect &rect) const;

private:
    Q_DISABLE_COPY(ZEMColumnSymbol)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
