// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMBRUSH_H
#define ZEMBRUSH_H

#include "zemkit_export.h"

#include <QBrush>

class QColor;

/**
 * Makes the striped brush of the library. A service for hosts.
 * @code
 * #include <ZEMBrush>
 * #include <ZEMHistogramSeries>
 *
 * const QBrush stripes = ZEMBrush::getBrush(Qt::gray);
 * ZEMHistogramSeries lastYear(QStringLiteral("Vorig jaar"), stripes, false);
 * @endcode
 */
class ZEM_EXPORT ZEMBrush
{
public:
    /**
     * A brush of horizontal lines in @p color, each one pixel high, with one clear pixel row above
     * each. The pattern is kept in QPixmapCache and is shared by all colours.
     */
    static QBrush getBrush(const QColor &color);
};

#endif
