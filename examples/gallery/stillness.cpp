// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "stillness.h"

#include <QPixmap>
#include <QVariant>
#include <ZEMAnimatedArrows>
#include <ZEMPixmap>
#include <ZEMThrobber>

void holdStill(const QWidget *sample)
{
    const auto waves = sample->findChildren<ZEMAnimatedArrows *>();
    for (ZEMAnimatedArrows *arrows : waves) {
        if (arrows->getRunning()) {
            arrows->stop();
            qreal opacity = 1.0;
            const auto icons = arrows->findChildren<ZEMPixmap *>();
            for (ZEMPixmap *arrow : icons) {
                arrow->setOpacity(opacity);
                opacity -= 0.3;
            }
        }
    }
    const auto throbbers = sample->findChildren<ZEMThrobber *>();
    for (ZEMThrobber *throbber : throbbers) {
        if (!throbber->property("pixmap").value<QPixmap>().isNull()) {
            throbber->pause();
        }
    }
}
