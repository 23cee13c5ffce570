// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagelook.h"

#include <QLinearGradient>
#include <QPainter>

namespace PageLook {

QPixmap background()
{
    QPixmap picture(640, 480);
    QLinearGradient gradient(0.0, 0.0, 0.0, picture.height());
    gradient.setColorAt(0.0, QColor(36, 50, 60));
    gradient.setColorAt(1.0, QColor(14, 20, 26));
    QPainter(&picture).fillRect(picture.rect(), gradient);
    return picture;
}

QFont titleFont()
{
    return QFont(QStringLiteral("Quicksand Book"), 20);
}

QFont textFont(int pointSize)
{
    return QFont(QStringLiteral("Cabin"), pointSize);
}

} // namespace PageLook
