// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTOTALSTODAYWIDGET_H
#define ZEMTOTALSTODAYWIDGET_H

#include "zemenergyicon.h"
#include "zemkit_export.h"

#include <QString>
#include <QWidget>

#include <memory>

class ZEMMiniDayHistogram;

/**
 * The tile "totaal vandaag" of a dashboard: under a title two buttons, each with a caption, an
 * energy badge and a small chart of the day. The upper one is meant for consumption, the lower one
 * for production.
 *
 * The tile holds no values. The host feeds the charts, which are ready when the tile is made:
 * @code
 * #include <QApplication>
 * #include <ZEMHistogramData>
 * #include <ZEMHistogramSeries>
 * #include <ZEMMiniDayHistogram>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 * #include <ZEMTotalsTodayWidget>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * auto *data = new ZEMHistogramData; // the series takes ownership
 * data->setWindowSize(24);
 * data->setNrWindows(1);
 * const double hours[] = {0.2, 0.2, 0.2, 0.3, 0.3, 0.6, 1.4, 1.1}; // kWh since midnight
 * data->setWindowValues(0, 0, 8, hours, false);
 * auto *series = new ZEMHistogramSeries(QStringLiteral("Verbruik"), QBrush(Qt::yellow), false);
 * series->setData(data);
 *
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(22, 32, 40));
 * auto *totals = new ZEMTotalsTodayWidget(&page);
 * ZEMMiniDayHistogram *chart = totals->getTopHistogram();
 * chart->addSeries(series); // the chart takes ownership
 * chart->setValueLimits(data->valueLimits().extend(0.0));
 * chart->replot();
 * QObject::connect(totals, &ZEMTotalsTodayWidget::btn_top_histogram_clicked, &page,
 *                  &QWidget::close);
 * page.show();
 * @endcode
 * The two charts do not share a scale. The tile keeps its size of 152 by 175 pixels. The captions
 * have the colour of QPalette::WindowText. The font, "Cabin", is the host's; see
 * ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMTotalsTodayWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)
    Q_PROPERTY(QString titleTopHistogram READ getTopTitle WRITE setTopTitle)
    Q_PROPERTY(
        ZEMEnergyIcon::Type energyTypeTopHistogram READ getTopEnergyType WRITE setTopEnergyType)
    Q_PROPERTY(QString titleBottomHistogram READ getBottomTitle WRITE setBottomTitle)
    Q_PROPERTY(ZEMEnergyIcon::Type energyTypeBottomHistogram READ getBottomEnergyType WRITE
                   setBottomEnergyType)

public:
    explicit ZEMTotalsTodayWidget(QWidget *parent = nullptr);
    ~ZEMTotalsTodayWidget() override;

    /** The title above the buttons; the translated "totaal vandaag" by default. */
    QString getTitle() const;
    void setTitle(QString title);

    /** The caption of the upper button; the translated "verbruik" by default. */
    QString getTopTitle() const;
    void setTopTitle(QString title);

    /** The badge of the upper button; ZEMEnergyIcon::Electricity by default. */
    ZEMEnergyIcon::Type getTopEnergyType() const;
    /** Sets the badge of the upper button and paints it at once. */
    void setTopEnergyType(ZEMEnergyIcon::Type type);

    /** The caption of the lower button; the translated "productie" by default. */
    QString getBottomTitle() const;
    void setBottomTitle(QString title);

    /** The badge of the lower button; ZEMEnergyIcon::Electricity by default. */
    ZEMEnergyIcon::Type getBottomEnergyType() const;
    /** Sets the badge of the lower button and paints it at once. */
    void setBottomEnergyType(ZEMEnergyIcon::Type type);

    /** The charts, which belong to the tile. Their init() has been called. */
    ZEMMiniDayHistogram *getTopHistogram() const;
    ZEMMiniDayHistogram *getBottomHistogram() const;

Q_SIGNALS:
    /** The upper button was clicked, on its chart or beside it. */
    void btn_top_histogram_clicked();
    /** The lower button was clicked, on its chart or beside it. */
    void btn_bottom_histogram_clicked();

private:
    Q_DISABLE_COPY(ZEMTotalsTodayWidget)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
