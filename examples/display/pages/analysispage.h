// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ANALYSISPAGE_H
#define ANALYSISPAGE_H

#include "daterange.h"
#include "displaypage.h"
#include "nightstyler.h"
#include "powerday.h"

class PowerPlot;
class QBoxLayout;
class QHBoxLayout;
class ZEMButton;
class ZEMTextLabel;

/**
 * The page of power: a day minute by minute, to zoom into and to read off. A source that is a
 * MinutePower is asked for the day; of any other its meters tell.
 */
class AnalysisPage : public DisplayPage
{
    Q_OBJECT

public:
    explicit AnalysisPage(const EnergySource &source, QWidget *parent = nullptr);

    /** Shows a day, or the first or last one that the meters know if it lies outside of them. */
    void showDate(const QDate &date);

    PowerPlot *plot() const { return powerPlot; }

protected:
    void arrange(Shape shape) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeDayRow();
    QWidget *makePointRow();
    void handleHistory();
    void readDay();
    void showLegend(const PowerDay &day);
    void showPicked();
    QString hint() const;

    NightStyler styler;
    PowerPlot *powerPlot = nullptr;
    ZEMButton *previousDay = nullptr;
    ZEMButton *nextDay = nullptr;
    ZEMTextLabel *dateLabel = nullptr;
    QBoxLayout *dayRow = nullptr;
    QHBoxLayout *legend = nullptr;
    ZEMButton *previousPoint = nullptr;
    ZEMButton *nextPoint = nullptr;
    ZEMButton *otherCurve = nullptr;
    ZEMTextLabel *pointLabel = nullptr;
    DateRange range;
    QDate shownDate;
    bool isRead = false;
    bool isKnown = false;
};

#endif
