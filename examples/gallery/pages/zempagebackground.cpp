// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QLinearGradient>
#include <QPainter>
#include <ZEMLabel>
#include <ZEMPageBackground>

static QPixmap nightSky()
{
    QPixmap picture(640, 480);
    QLinearGradient gradient(0.0, 0.0, 0.0, picture.height());
    gradient.setColorAt(0.0, QColor(14, 20, 46));
    gradient.setColorAt(1.0, QColor(196, 120, 72));
    QPainter(&picture).fillRect(picture.rect(), gradient);
    return picture;
}

void Pages::zempagebackground(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackground(nightSky());
    page->setBackgroundColor(QColor(16, 24, 32)); // seen while there is no picture
    auto *label = new ZEMLabel(page);
    label->setText(QStringLiteral("a picture"));
    label->adjustSize();
    label->move(40, 80);

    auto *flat = new ZEMPageBackground(page);
    flat->setMinimumSize(0, 0);
    flat->setGeometry(40, 160, 240, 240);
    flat->setBackgroundColor(QColor(96, 112, 128));
    auto *flatLabel = new ZEMLabel(flat);
    flatLabel->setText(QStringLiteral("a colour"));
    flatLabel->adjustSize();
    flatLabel->move(20, 20);

    auto *overlay = new ZEMPageBackground(page);
    overlay->setMinimumSize(0, 0);
    overlay->setGeometry(200, 240, 400, 200);
    overlay->setBackgroundColor(QColor(0, 0, 0, 150));
    auto *overlayLabel = new ZEMLabel(overlay);
    overlayLabel->setText(QStringLiteral("a colour with an alpha of 150"));
    overlayLabel->adjustSize();
    overlayLabel->move(120, 20);

    stage.cover(page);
    stage.playWith(page);
    stage.addButton(QStringLiteral("setBackground(QPixmap())"),
                    [=] { page->setBackground(QPixmap()); });
    stage.addButton(QStringLiteral("setBackground(nightSky())"),
                    [=] { page->setBackground(nightSky()); });
}
