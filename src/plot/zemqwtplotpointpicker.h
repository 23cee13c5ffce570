// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPLOTPOINTPICKER_H
#define ZEMQWTPLOTPOINTPICKER_H

#include "zemkit_export.h"
#include "zemqwtplotcurvepointgetter.h"

#include <QString>

#include <qwt_plot_picker.h>

#include <memory>

class ZEMPlot;

/**
 * Picks the curve point that is tapped on a ZEMPlot, and steps from it to others for the buttons of
 * a page. Drags and keys pick nothing; a tap beside all curves keeps the point that was picked.
 *
 * @code
 * #include <QAbstractButton>
 * #include <QLabel>
 * #include <ZEMPlot>
 * #include <ZEMQwtPlotPointPicker>
 *
 * class PowerPlot : public ZEMPlot
 * {
 * public:
 *     PowerPlot(ZEMPlotStyler *styler, QAbstractButton *next, QLabel *text) : ZEMPlot(styler)
 *     {
 *         init();
 *         auto *picker = new ZEMQwtPlotPointPicker(QStringLiteral("power"), this,
 *                                                  QwtEventPattern::MouseSelect1);
 *         connect(picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, text,
 *                 [text](const auto &picked) { text->setNum(picked.point.y()); });
 *         connect(next, &QAbstractButton::clicked, picker,
 *                 &ZEMQwtPlotPointPicker::pickNextPlotPoint);
 *     }
 * };
 * @endcode
 *
 * QwtPlotPicker has signals named selected, and this class a slot of that name: name the signals
 * with their class, as in QOverload<const QPointF &>::of(&QwtPlotPicker::selected).
 *
 * The slots of selectedPlotPoint() and selected(QPointF) may delete the picker and its plot; those
 * of the other signals, as always with Qwt, only with deleteLater().
 */
class ZEM_EXPORT ZEMQwtPlotPointPicker : public QwtPlotPicker
{
    Q_OBJECT

public:
    /**
     * @param name kept, and read by nothing
     * @param plot not null; its canvas owns the picker
     * @param pattern the mouse button that taps
     */
    explicit ZEMQwtPlotPointPicker(QString name, ZEMPlot *plot,
                                   QwtEventPattern::MousePatternCode pattern);
    ~ZEMQwtPlotPointPicker() override;

    /** As in QwtPicker. An event in which the canvas was deleted goes no further. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /**
     * Picks the next or previous sample of the curve of the picked point, or the sample of the same
     * index on the next or previous curve. Where there is none, the picked point is signalled
     * again. Does nothing while no point is picked.
     */
    void pickNextPlotPoint();
    void pickPrevPlotPoint();
    void pickNextCurve();
    void pickPrevCurve();

    /**
     * The point that was picked last. It is not valid if none was, if it was cleared, or if its
     * curve has left the plot since: deleted, detached or attached to another plot.
     */
    ZEMQwtPlotCurvePointGetter::PlotCurvePoint getPickedPlotPoint() const;

    /** Forgets the picked point. Emits nothing. */
    void clearPickedPlotPoint();

public Q_SLOTS:
    /** Picks the curve point at @p pos, in plot coordinates; what a tap does. */
    void selected(const QPointF &pos);

Q_SIGNALS:
    /** A point was picked, or picked again. It is always valid. */
    void selectedPlotPoint(ZEMQwtPlotCurvePointGetter::PlotCurvePoint plotCurvePoint);

protected:
    /** Takes @p point, of a curve on the plot, as the picked one and signals it, if it is valid. */
    void updateCurrentPoint(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point);

    void widgetKeyPressEvent(QKeyEvent *event) override;
    void widgetKeyReleaseEvent(QKeyEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMQwtPlotPointPicker)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
