// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef AXISBORDERS_P_H
#define AXISBORDERS_P_H

#include "scalelabels_p.h"

#include <qwt_scale_widget.h>

/** The borders of a scale widget: what its labels need at its ends. */
namespace AxisBorders {

ScaleBorders of(const QwtScaleWidget *widget);

/** Gives a scale widget the borders that it asks for where it is drawn now. */
void take(QwtScaleWidget *widget);

/**
 * Does so, and lays the scale out between them, whatever both were before; without a label measured
 * by Qwt where that can be.
 */
void settle(QwtScaleWidget *widget);

/** Lets a scale widget lay out its scale anew. */
void layOut(QwtScaleWidget *widget);

/**
 * Makes a scale widget ask for given borders without measuring its labels, for as long as this
 * lives.
 */
class Fixed
{
public:
    Fixed(QwtScaleWidget *quietWidget, const ScaleBorders &borders);
    /** The labels of @p silentScale keep their extent. */
    Fixed(QwtScaleWidget *quietWidget, const ScaleBorders &borders, LabelledScale *silentScale);
    ~Fixed();

private:
    Q_DISABLE_COPY(Fixed)

    QwtScaleWidget *widget;
    bool hadLabels;
    LabelledScale *silent;
    ScaleBorders least;
};

} // namespace AxisBorders

#endif
