// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMCURRENTSTATUSWIDGET_H
#define ZEMCURRENTSTATUSWIDGET_H

#include "zemlabeledbutton.h"

/**
 * The tile "huidige status" of a dashboard: solar panel, house and pylon in a row, arrows for the
 * power that flows between them, and under each picture its power.
 *
 * @code
 * #include <QApplication>
 * #include <ZEMCurrentStatusWidget>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(22, 32, 40));
 * auto *status = new ZEMCurrentStatusWidget(&page);
 * status->setMaxProduction(3000.0); // watts
 * status->setProduction(2100.0);
 * status->setConsumption(340.0);
 * QObject::connect(status, &ZEMCurrentStatusWidget::clicked, &page, &QWidget::close);
 * page.show();
 * @endcode
 * The power of the grid is consumption minus production. Its arrows run from the pylon to the house
 * while power is taken and the other way while it is delivered, the faster the larger its share of
 * the consumption is. The arrows of the production are as fast as its share of maxProduction.
 *
 * All powers are in watts and shown as ZEMUtils::wattToStringAutoScale() words them, without their
 * sign. Every setter brings the whole tile up to date. The whole tile is one button of 322 by 174
 * pixels, which a layout does not stretch; there its height follows that of the title, and is 175
 * pixels in "Cabin". The fonts are the host's, see ZEMStyle::setApplicationFonts(); the title has
 * the colour of QPalette::WindowText, the powers are white.
 *
 * Panels, house and pylon stay in this order where the application is laid out from right to left.
 */
class ZEM_EXPORT ZEMCurrentStatusWidget : public ZEMLabeledButton
{
    Q_OBJECT
    Q_PROPERTY(double production READ getProduction WRITE setProduction)
    Q_PROPERTY(double maxProduction READ getMaxProduction WRITE setMaxProduction)
    Q_PROPERTY(double consumption READ getConsumption WRITE setConsumption)
    Q_PROPERTY(bool meteringStatus READ getMeteringStatus WRITE setMeteringStatus)

public:
    explicit ZEMCurrentStatusWidget(QWidget *parent = nullptr);
    ~ZEMCurrentStatusWidget() override;

public Q_SLOTS:
    /** The solar production; 0 by default. */
    double getProduction() const;
    void setProduction(double watt);

    /** The production at which its arrows count as full; 0, the default, makes any flow Medium. */
    double getMaxProduction() const;
    void setMaxProduction(double watt);

    /** The consumption of the household; 0 by default. */
    double getConsumption() const;
    void setConsumption(double watt);

    /** Whether the grid meter gives valid data; true by default. */
    bool getMeteringStatus() const;
    /** With false, consumption and grid show "?" and the arrows of the grid stop. */
    void setMeteringStatus(bool ok);

private:
    Q_DISABLE_COPY(ZEMCurrentStatusWidget)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
