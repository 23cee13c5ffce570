// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemradiobutton.h"

#include "centredmark_p.h"
#include "objectname_p.h"
#include "sharppicture_p.h"

#include <QPainter>

class ZEMRadioButton::Private
{
public:
    SharpPicture background;
    SharpPicture checkedIcon;
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
    return d->background.plain();
}

void ZEMRadioButton::setBackground(const QPixmap &background)
{
    d->background = background;
    const QSize size = d->background.size();
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    repaint();
}

QPixmap ZEMRadioButton::getCheckedIcon() const
{
    return d->checkedIcon.plain();
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
    d->background.draw(painter, rect());
    if (isChecked()) {
        d->checkedIcon.draw(painter, centredMark(size(), d->checkedIcon.size()));
    }
    QWidget::paintEvent(event); // NOLINT(bugprone-parent-virtual-call): QAbstractButton has none
}
