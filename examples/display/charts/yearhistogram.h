// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef YEARHISTOGRAM_H
#define YEARHISTOGRAM_H

#include <ZEMSmartHistogram>

/**
 * A year of months, which the library has no chart for: twelve slots, and the year as headline.
 * Shows what a chart of a host's own takes: the x axis in initAxisRefine() and the headline in
 * updateTitle(). The timestamp is the first of January of the year at x = 0.
 */
class YearHistogram : public ZEMSmartHistogram
{
    Q_OBJECT

public:
    explicit YearHistogram(QWidget *parent = nullptr);

    /** "2016", or "2015 / 2016" while the view lies across the turn of the year. */
    void updateTitle(QwtInterval interval) override;
    void initAxisRefine() override;

protected:
    /** Watches the x axis: where it gets too short for all names, every other month has one. */
    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
