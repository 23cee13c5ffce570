// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtotalstodaywidget.h"

#include "layoutmargins_p.h"
#include "objectname_p.h"
#include "ui_zemtotalstodaywidget.h"
#include "zemminidayhistogram.h"
#include "zemstyle.h"

#include <QPalette>

namespace {

void setCaptionColor(QLabel *caption)
{
    QPalette palette = caption->palette();
    ZEMStyle(nullptr).setButtonColor(palette, ZEMStyle::White);
    caption->setPalette(palette);
    // A label on a button would be painted in the colour of the button's text.
    caption->setForegroundRole(QPalette::WindowText);
}

} // namespace

class ZEMTotalsTodayWidget::Private
{
public:
    Ui_ZEMTotalsTodayWidget ui;
    ZEMMiniDayHistogram *topHistogram = nullptr;
    ZEMMiniDayHistogram *bottomHistogram = nullptr;
};

ZEMTotalsTodayWidget::ZEMTotalsTodayWidget(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    setCaptionColor(d->ui.lblHistogramTop);
    setCaptionColor(d->ui.lblHistogramBottom);

    d->bottomHistogram = new ZEMMiniDayHistogram(this);
    d->topHistogram = new ZEMMiniDayHistogram(this);
    fillWithoutMargins(d->ui.graphContainerProduction, d->bottomHistogram);
    fillWithoutMargins(d->ui.graphContainerConsumption, d->topHistogram);
    d->topHistogram->init();
    d->bottomHistogram->init();

    connect(d->ui.btnTop, &ZEMButton::clicked, this,
            &ZEMTotalsTodayWidget::btn_top_histogram_clicked);
    connect(d->ui.btnBottom, &ZEMButton::clicked, this,
            &ZEMTotalsTodayWidget::btn_bottom_histogram_clicked);
}

ZEMTotalsTodayWidget::~ZEMTotalsTodayWidget() = default;

QString ZEMTotalsTodayWidget::getTitle() const
{
    return d->ui.lblTitle->getTitle();
}

void ZEMTotalsTodayWidget::setTitle(QString title)
{
    d->ui.lblTitle->setTitle(title);
}

QString ZEMTotalsTodayWidget::getTopTitle() const
{
    return d->ui.lblHistogramTop->text();
}

void ZEMTotalsTodayWidget::setTopTitle(QString title)
{
    d->ui.lblHistogramTop->setText(title);
}

ZEMEnergyIcon::Type ZEMTotalsTodayWidget::getTopEnergyType() const
{
    return d->ui.iconHistogramTop->getEnergyType();
}

void ZEMTotalsTodayWidget::setTopEnergyType(ZEMEnergyIcon::Type type)
{
    d->ui.iconHistogramTop->setEnergyType(type);
}

QString ZEMTotalsTodayWidget::getBottomTitle() const
{
    return d->ui.lblHistogramBottom->text();
}

void ZEMTotalsTodayWidget::setBottomTitle(QString title)
{
    d->ui.lblHistogramBottom->setText(title);
}

ZEMEnergyIcon::Type ZEMTotalsTodayWidget::getBottomEnergyType() const
{
    return d->ui.iconHistogramBottom->getEnergyType();
}

void ZEMTotalsTodayWidget::setBottomEnergyType(ZEMEnergyIcon::Type type)
{
    d->ui.iconHistogramBottom->setEnergyType(type);
}

ZEMMiniDayHistogram *ZEMTotalsTodayWidget::getTopHistogram() const
{
    return d->topHistogram;
}

ZEMMiniDayHistogram *ZEMTotalsTodayWidget::getBottomHistogram() const
{
    return d->bottomHistogram;
}
