// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zembutton.h"

#include "buttonpainting_p.h"
#include "objectname_p.h"
#include "sharpicon_p.h"
#include "sharppicture_p.h"

#include <QPainter>

namespace {

constexpr QSize designSize(50, 50);

ButtonPainting::State stateOf(const ZEMButton &button)
{
    return {button.isCheckable(), button.isChecked(), button.isEnabled(),
            button.getHideWhenDisabled(), button.getHideUncheckedIcon()};
}

} // namespace

class ZEMButton::Private
{
public:
    SharpPicture picture(ButtonPainting::Background which) const
    {
        switch (which) {
        case ButtonPainting::Background::None:
            break;
        case ButtonPainting::Background::On:
            return background;
        case ButtonPainting::Background::Off:
            return backgroundOff;
        case ButtonPainting::Background::Disabled:
            return backgroundDisabled;
        }
        return {};
    }

    void drawBackground(QPainter &painter, const QRect &rect,
                        const ButtonPainting::State &state) const
    {
        const bool hasOff = !backgroundOff.isNull();
        const bool hasDisabled = !backgroundDisabled.isNull();
        const auto which = ButtonPainting::background(state, hasOff, hasDisabled);
        picture(which).draw(painter, rect);
    }

    SharpPicture background;
    SharpPicture backgroundOff;
    SharpPicture backgroundDisabled;
    bool hideWhenDisabled = false;
    bool hideUncheckedIcon = false;
};

ZEMButton::ZEMButton(QWidget *parent) : QAbstractButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

ZEMButton::~ZEMButton() = default;

QPixmap ZEMButton::getBackground() const
{
    return d->background.plain();
}

void ZEMButton::setBackground(const QPixmap &background)
{
    d->background = background;
    const QSize least = d->background.size();
    setMinimumSize(least);
    // Even a resize to the same size lets Qt ask all siblings again what they cover.
    if (size() != least || !testAttribute(Qt::WA_Resized)) {
        resize(least);
    }
    repaint();
}

QPixmap ZEMButton::getBackgroundOff() const
{
    return d->backgroundOff.plain();
}

void ZEMButton::setBackgroundOff(const QPixmap &background)
{
    d->backgroundOff = background;
    repaint();
}

QPixmap ZEMButton::getBackgroundDisabled() const
{
    return d->backgroundDisabled.plain();
}

void ZEMButton::setBackgroundDisabled(const QPixmap &background)
{
    d->backgroundDisabled = background;
    repaint();
}

bool ZEMButton::getHideWhenDisabled() const
{
    return d->hideWhenDisabled;
}

void ZEMButton::setHideWhenDisabled(bool hide)
{
    d->hideWhenDisabled = hide;
    repaint();
}

bool ZEMButton::getHideUncheckedIcon() const
{
    return d->hideUncheckedIcon;
}

void ZEMButton::setHideUncheckedIcon(bool hide)
{
    d->hideUncheckedIcon = hide;
}

QSize ZEMButton::sizeHint() const
{
    return size();
}

void ZEMButton::paintEvent(QPaintEvent *event)
{
    const ButtonPainting::State state = stateOf(*this);
    QPainter painter(this);
    d->drawBackground(painter, rect(), state);

    const ButtonPainting::IconLook look = ButtonPainting::iconLook(state);
    if (look.drawn && !icon().isNull()) {
        sharpIcon(icon()).paint(&painter, rect(), Qt::AlignCenter, look.mode, look.state);
    }
    if (!text().isEmpty()) {
        // A painter has the direction of the application, whatever that of the widget is.
        painter.setLayoutDirection(layoutDirection());
        painter.setPen(palette().color(ButtonPainting::textGroup(state), QPalette::ButtonText));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
    QWidget::paintEvent(event); // NOLINT(bugprone-parent-virtual-call): QAbstractButton has none
}
