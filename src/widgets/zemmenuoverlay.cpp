// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemmenuoverlay.h"

#include "objectname_p.h"
#include "ui_zemmenuoverlay.h"
#include "zemstyle.h"

#include <QFont>
#include <QPalette>

class ZEMMenuOverlay::Private
{
public:
    Ui_ZEMMenuOverlay ui;
};

ZEMMenuOverlay::ZEMMenuOverlay(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    // A label on a button takes the button's text colour.
    QPalette colors = palette();
    ZEMStyle(nullptr).setButtonColor(colors, ZEMStyle::Black);
    setPalette(colors);

    d->ui.setupUi(this);
    connect(d->ui.button1, &ZEMButton::clicked, this, &ZEMMenuOverlay::button1_clicked_hide);
    connect(d->ui.button2, &ZEMButton::clicked, this, &ZEMMenuOverlay::button2_clicked_hide);
    connect(d->ui.button3, &ZEMButton::clicked, this, &ZEMMenuOverlay::button3_clicked_hide);
    connect(d->ui.button4, &ZEMButton::clicked, this, &ZEMMenuOverlay::button4_clicked_hide);
    d->ui.button4->setVisible(false);
}

ZEMMenuOverlay::~ZEMMenuOverlay() = default;

QColor ZEMMenuOverlay::getPopupColor() const
{
    return d->ui.pageCutout->getBackgroundColor();
}

void ZEMMenuOverlay::setPopupColor(const QColor &color)
{
    d->ui.pageCutout->setBackgroundColor(color);
    repaint();
}

QString ZEMMenuOverlay::getText1() const
{
    return d->ui.lblButton1->text();
}

void ZEMMenuOverlay::setText1(QString text)
{
    d->ui.lblButton1->setText(text);
}

QString ZEMMenuOverlay::getText2() const
{
    return d->ui.lblButton2->text();
}

void ZEMMenuOverlay::setText2(QString text)
{
    d->ui.lblButton2->setText(text);
}

QString ZEMMenuOverlay::getText3() const
{
    return d->ui.lblButton3->text();
}

void ZEMMenuOverlay::setText3(QString text)
{
    d->ui.lblButton3->setText(text);
}

QString ZEMMenuOverlay::getText4() const
{
    return d->ui.lblButton4->text();
}

void ZEMMenuOverlay::setText4(QString text)
{
    d->ui.lblButton4->setText(text);
}

void ZEMMenuOverlay::setFont1(QFont &font)
{
    d->ui.lblButton1->setFont(font);
}

void ZEMMenuOverlay::setFont2(QFont &font)
{
    d->ui.lblButton2->setFont(font);
}

void ZEMMenuOverlay::setFont3(QFont &font)
{
    d->ui.lblButton3->setFont(font);
}

void ZEMMenuOverlay::setFont4(QFont &font)
{
    d->ui.lblButton4->setFont(font);
}

void ZEMMenuOverlay::showButton4(bool show)
{
    d->ui.button4->setVisible(show);
}

void ZEMMenuOverlay::button1_clicked_hide()
{
    setVisible(false);
    Q_EMIT button1_clicked();
}

void ZEMMenuOverlay::button2_clicked_hide()
{
    setVisible(false);
    Q_EMIT button2_clicked();
}

void ZEMMenuOverlay::button3_clicked_hide()
{
    setVisible(false);
    Q_EMIT button3_clicked();
}

void ZEMMenuOverlay::button4_clicked_hide()
{
    setVisible(false);
    Q_EMIT button4_clicked();
}
