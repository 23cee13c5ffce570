// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sharpground_p.h"

#include <QBrush>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QWidget>

void SharpGround::watch(QWidget *widget)
{
    if (widget && widget->parentWidget()
        && !widget->findChild<SharpGround *>(QString(), Qt::FindDirectChildrenOnly)) {
        new SharpGround(widget);
    }
}

SharpGround::SharpGround(QWidget *widget) : QObject(widget), filled(widget)
{
    widget->parentWidget()->installEventFilter(this);
}

bool SharpGround::eventFilter(QObject *watched, QEvent *event)
{
    auto *const parent = qobject_cast<QWidget *>(watched);
    QPalette palette = filled->palette();
    QBrush brush = palette.brush(QPalette::Window);
    if (event->type() != QEvent::Paint || brush.style() != Qt::TexturePattern || !parent) {
        return QObject::eventFilter(watched, event);
    }
    if (brush.texture().cacheKey() != shownKey) {
        picture = brush.texture();
    }
    const QPixmap shown = picture.forRatio(ratioOf(QPainter(parent)));
    shownKey = shown.cacheKey();
    if (brush.texture().cacheKey() != shownKey) {
        brush.setTexture(shown);
        palette.setBrush(QPalette::Window, brush);
        filled->setPalette(palette);
    }
    return QObject::eventFilter(watched, event);
}
