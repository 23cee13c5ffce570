// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMWIDGET_H
#define ZEMHISTOGRAMWIDGET_H

#include "zem.h"
#include "zemkit_export.h"

#include <QString>
#include <QWidget>

#include <memory>

class ZEMHistogram;

/**
 * The chart page of a display: one of up to twenty charts, one for each period and energy, under
 * the icon of its energy, its headline and tabs for the period, and above tabs for the energy.
 *
 * @code
 * #include <ZEMHistogramWidget>
 * #include <ZEMSmartDayHistogram>
 * #include <ZEMSmartWeekHistogram>
 *
 * auto *dayChart = new ZEMSmartDayHistogram;
 * dayChart->init();
 * dayChart->setScalePeriod(24.0);
 * dayChart->setScaleInterval(QwtInterval(-240.0, 24.0));
 * auto *weekChart = new ZEMSmartWeekHistogram;
 * weekChart->init();
 * weekChart->setScalePeriod(7.0);
 * weekChart->setScaleInterval(QwtInterval(-70.0, 7.0));
 *
 * ZEMHistogramWidget page;
 * page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, dayChart);
 * page.setHistogram(ZEM::TabWeek, ZEM::TabElectricity, weekChart);
 * page.showTabs({ZEM::TabDay, ZEM::TabWeek, ZEM::TabElectricity});
 * page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
 * @endcode
 * A new page shows all tabs, with those of day and electricity checked. Each change of the page
 * brings the chart that comes into view back to its newest period; older ones are reached by
 * dragging the chart. A page without a chart is empty, and leaves the headline as it was.
 *
 * The page and its charts may be deleted in a slot of any signal of theirs.
 *
 * The page traces what it does with qDebug().
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMHistogramWidget : public QWidget
{
    Q_OBJECT

public:
    /** What was pressed. The two for periods are sent by slots that no button calls. */
    enum ButtonType {
        BtnPrevPeriod = 1,
        BtnNextPeriod = 2,
        BtnDay = 3,
        BtnWeek = 4,
        BtnMonth = 5,
        BtnYear = 6,
        BtnElectricity = 7,
        BtnGas = 8,
        BtnWater = 9,
        BtnHeating = 10,
        BtnSolar = 11
    };
    Q_ENUM(ButtonType)

    explicit ZEMHistogramWidget(QWidget *parent = nullptr);
    ~ZEMHistogramWidget() override;

    /**
     * Puts @p histogram on the page of @p period and @p energy, which owns it from then on. Its
     * init() must have been called. A second chart for the same page takes over headline and
     * paging, but the first one stays beside it: delete that before. Give a single period and a
     * single energy; see getHistogramIndex() for what others come to.
     */
    void setHistogram(ZEM::ZEMTab period, ZEM::ZEMTab energy, ZEMHistogram *histogram);

    /**
     * Checks both tabs, hidden or not, goes to their page and shows its newest period. The tab of
     * the energy counts as pressed: sigBtnClicked() is emitted for it, before the page changes.
     *
     * The tab of the period does not: the next press of an energy goes to the page of the period
     * that was pressed last, or of the day if none was.
     */
    void selectTab(ZEM::ZEMTab period, ZEM::ZEMTab energy);

    /** Shows the tabs whose flags are set and hides the others. The page in view stays. */
    void showTabs(QFlags<ZEM::ZEMTab> tabs);

    /**
     * The page of a period and an energy: day, week, month and year of electricity are 0 to 3,
     * those of gas 4 to 7, then water, heating and solar. Anything but a single period counts as
     * one before the day, anything but a single energy as one before electricity: the result is
     * then negative, or the page of another pair.
     */
    int getHistogramIndex(ZEM::ZEMTab period, ZEM::ZEMTab energy) const;

public Q_SLOTS:
    /** Sets the headline, until a chart does so. */
    void setTitle(const QString &title);
    /** Hears whether there are pages before and after the one in view; does nothing. */
    void has_page(bool prev_hasPage, bool next_hasPage);

Q_SIGNALS:
    /**
     * A tab was pressed, be it the checked one. For a period the page has changed already, for an
     * energy it changes afterwards.
     */
    void sigBtnClicked(ZEMHistogramWidget::ButtonType btn);

private Q_SLOTS:
    void btnYear_clicked();
    void btnMonth_clicked();
    void btnWeek_clicked();
    void btnDay_clicked();
    void btnPrevPeriod_clicked();
    void btnNextPeriod_clicked();
    void histogramChanged(ZEMHistogram *hist);
    void pageChanged(int index);

private:
    Q_DISABLE_COPY(ZEMHistogramWidget)
    // Of the private class, so that this header needs nothing of the dashboard.
    Q_PRIVATE_SLOT(d, void btnEnergyTypeclicked(ZEMEnergyIcon::Type type))

    void pageChanged(ZEMHistogram *histogram);

    class Private;
    std::unique_ptr<Private> d;
};

#endif
