// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSMARTHISTOGRAM_H
#define ZEMSMARTHISTOGRAM_H

#include "zemhistogram.h"

/**
 * The base of the charts that a chart page shows: the plot, the child chart directly under it, and
 * the legend at the bottom.
 *
 * Still abstract: a subclass adds updateTitle() and, in initAxisRefine(), the x axis.
 */
class ZEM_EXPORT ZEMSmartHistogram : public ZEMHistogram
{
    Q_OBJECT

public:
    explicit ZEMSmartHistogram(QWidget *parent = nullptr);
    ~ZEMSmartHistogram() override;

    /** Sets up the value axis, from 0 to 10 until setValueLimits(), and nothing else. */
    void initAxisRefine() override;
    void setLookAndFeel() override;

private:
    Q_DISABLE_COPY(ZEMSmartHistogram)
};

#endif
