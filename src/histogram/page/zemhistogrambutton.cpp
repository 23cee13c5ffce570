// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogrambutton.h"

#include "objectname_p.h"
#include "ui_zemhistogrambutton.h"
#include "zemhistogram.h"

#include <QHBoxLayout>

namespace {

constexpr int chartMargin = 10; // pixels

} // namespace

class ZEMHistogramButton::Private
{
public:
    Ui_ZEMHistogramButton ui;
    QHBoxLayout *chartLayout = nullptr;
};

ZEMHistogramButton::ZEMHistogramButton(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.button, &ZEMButton::clicked, this, &ZEMHistogramButton::clicked);

    d->chartLayout = new QHBoxLayout(d->ui.button);
    d->chartLayout->setSpacing(0);
    d->chartLayout->setContentsMargins(chartMargin, chartMargin, chartMargin, chartMargin);
}

ZEMHistogramButton::~ZEMHistogramButton() = default;

QString ZEMHistogramButton::getTitle() const
{
    return d->ui.title->getTitle();
}

void ZEMHistogramButton::setTitle(const QString &title)
{
    d->ui.title->setTitle(title);
}

void ZEMHistogramButton::setHistogram(ZEMHistogram *histogram)
{
    d->chartLayout->addWidget(histogram);
}
