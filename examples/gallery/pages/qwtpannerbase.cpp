// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QwtPannerBase>
#include <ZEMLabel>
#include <ZEMPixmap>

void Pages::qwtpannerbase(Stage &stage)
{
    auto *map = new QWidget;
    auto *house = new ZEMPixmap(map);
    house->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
    house->move(160, 110);
    auto *text = new ZEMLabel(map);
    text->setText(QStringLiteral("drag me, or tap"));
    text->setGeometry(10, 10, 300, 30);
    text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    auto *panner = new QwtPannerBase(map);
    panner->setDxSignalThreshold(5);
    panner->setDySignalThreshold(5);
    QObject::connect(panner, &QwtPannerBase::moved, map, [=](int dx, int dy) {
        house->move(house->pos() + QPoint(dx, dy));
        text->setText(QStringLiteral("moved(%1, %2)").arg(dx).arg(dy));
    });
    QObject::connect(panner, &QwtPannerBase::clicked, map, [=](QPoint &pos) {
        text->setText(QStringLiteral("clicked(%1, %2)").arg(pos.x()).arg(pos.y()));
    });

    stage.fill(map);
    stage.addButton(QStringLiteral("setOrientations(Horizontal)"),
                    [=] { panner->setOrientations(Qt::Horizontal); });
    stage.addButton(QStringLiteral("setOrientations(both)"),
                    [=] { panner->setOrientations(Qt::Horizontal | Qt::Vertical); });
    stage.addButton(QStringLiteral("setDxSignalThreshold(40)"),
                    [=] { panner->setDxSignalThreshold(40); });
    stage.addButton(QStringLiteral("setDxSignalThreshold(5)"),
                    [=] { panner->setDxSignalThreshold(5); });
    stage.addButton(QStringLiteral("setEnabled(false)"), [=] { panner->setEnabled(false); });
    stage.addButton(QStringLiteral("setEnabled(true)"), [=] { panner->setEnabled(true); });
}
