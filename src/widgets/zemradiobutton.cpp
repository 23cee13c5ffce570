// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemradiobutton.h"

#include "centredmark_p.h"
#include "objectname_p.h"
#include "picturesize_p.h"

#include <QPainter>

class ZEMRadioButton::Private
{
public:
    QPixmap background;
    QPixmap checkedIcon;
};

ZEMRadioButton::ZEMRadioButton(QWidget *parent)
    : QAbstractButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    setCheckable(true);
    setChecked(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/radio_btn_bg.png")));
    setCheckedIcon(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/radio_btn_selected.png")));
}

ZEMRadioButton::~ZEMRadioButton() = default;

QPixmap ZEMRadioButton::getBackground() const
{
    return d->background;
}

void ZEMRadioButton::setBackground(const QPixmap &background)
{
    d->background = background;
    const QSize size = pictureSize(background);
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    repaint();
}

QPixmap ZEMRadioButton::getCheckedIcon() const
{
    return d->checkedIcon;
}

void ZEMRadioButton::setCheckedIcon(const QPixmap &icon)
{
    d->checkedIcon = icon;
    repaint();
}

QSize ZEMRadioButton::sizeHint() const
{
    return size();
}

void ZEMRadioButton::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.drawPixmap(QRectF(rect()), d->background, QRectF());
    if (isChecked()) {
        const QRect mark = centredMark(size(), pictureSize(d->checkedIcon));
        painter.drawPixmap(QRectF(mark), d->checkedIcon, QRectF());
    }
    QWidget::paintEvent(event); // NOLINT(bugprone-parent-virtual-call): QAbstractButton has none
}
