// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QUIETAXES_P_H
#define QUIETAXES_P_H

#include <QObject>
#include <QVarLengthArray>

#include <qwt_plot.h>

#include <array>
#include <optional>

class QwtScaleDraw;

/*
 * Qwt measures all labels of a scale with each setter of its widget, though nobody sees the scale
 * before it has all that is set. A plot that has not been shown yet loses nothing when its scales
 * have no labels meanwhile: they are measured when all is set.
 */

/**
 * Takes the labels off a scale draw for as long as this lives, if its plot was never shown. The
 * draw must live longer.
 */
class QuietScale
{
public:
    QuietScale(const QwtPlot *plot, QwtScaleDraw *quietDraw);
    ~QuietScale();

private:
    Q_DISABLE_COPY(QuietScale)

    QwtScaleDraw *draw;
};

/**
 * The same for all scales that a plot has. At its end the axes have the borders that they ask for:
 * what was set meanwhile, in which order, and whether it was quiet does not show.
 */
class QuietAxes
{
public:
    explicit QuietAxes(QwtPlot *quietPlot);
    ~QuietAxes();

private:
    Q_DISABLE_COPY(QuietAxes)

    QwtPlot *plot;
    std::array<std::optional<QuietScale>, QwtPlot::axisCnt> scales;
};

/**
 * Takes the labels off the scales of a plot that is made as a child of @p plotParent while this
 * lives, from the first moment that they are there.
 */
class QuietBirth : public QObject
{
public:
    explicit QuietBirth(QObject *plotParent);
    ~QuietBirth() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void quieten(QObject *child);

    QObject *parentOfPlot;
    QVarLengthArray<QwtScaleDraw *, QwtPlot::axisCnt> draws;
};

#endif
