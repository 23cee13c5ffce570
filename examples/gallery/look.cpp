// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "look.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QStackedWidget>
#include <ZEMButton>
#include <ZEMPageHeader>
#include <ZEMPixmapCache>
#include <ZEMTextLabel>

namespace {

constexpr int buttonText = 11; // points
constexpr QSize headerButton(50, 50);

QPixmap panel(const QString &name, const QSize &size)
{
    return Look::picture(QStringLiteral(":/zem/graphics/main/buttons/%1.png").arg(name), size,
                         Qt::SmoothTransformation);
}

} // namespace

namespace Look {

QColor ground()
{
    return QColor(22, 32, 40);
}

QPixmap picture(const QString &path, const QSize &size, Qt::TransformationMode mode)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap whole;
    ZEMPixmapCache::load(whole, path, ratio);
    QPixmap scaled = whole.scaled(size * ratio, Qt::IgnoreAspectRatio, mode);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

ZEMTextLabel *makeLabel(const QString &text, int pointSize)
{
    auto *label = new ZEMTextLabel;
    label->setTextFormat(Qt::PlainText);
    label->setFont(QFont(QStringLiteral("Cabin"), pointSize));
    label->setText(text);
    return label;
}

ZEMButton *makeButton(const QString &name, const QString &text, const QSize &size)
{
    auto *button = new ZEMButton;
    button->setObjectName(name);
    button->setBackground(panel(QStringLiteral("btn_rect_xs_small"), size));
    button->setBackgroundOff(panel(QStringLiteral("btn_rect_xs_small_disabled"), size));
    button->setFixedSize(size);
    button->setFont(QFont(QStringLiteral("Cabin"), buttonText));
    button->setText(text);
    return button;
}

ZEMButton *makeToggle(const QString &name, const QString &text, const QSize &size)
{
    ZEMButton *button = makeButton(name, text, size);
    button->setCheckable(true);
    return button;
}

ZEMButton *makeHeaderButton(const QString &name, const QString &icon, const QString &text)
{
    auto *button = new ZEMButton;
    button->setObjectName(name);
    button->setFixedSize(headerButton);
    button->setFont(QFont(QStringLiteral("Cabin"), buttonText));
    if (icon.isEmpty()) {
        button->setText(text);
    } else {
        button->setIcon(QIcon(icon));
    }
    return button;
}

void setBackButton(ZEMPageHeader *header, ZEMButton *button)
{
    auto *stack = new QStackedWidget;
    stack->addWidget(button);
    stack->setFixedSize(headerButton);
    header->setActionButton(stack);
}

} // namespace Look
