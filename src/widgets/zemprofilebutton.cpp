// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemprofilebutton.h"

#include "objectname_p.h"
#include "ui_zemprofilebutton.h"
#include "zemstyle.h"

#include <QEvent>
#include <QPalette>

class ZEMProfileButton::Private
{
public:
    void alignCheckMark(bool selected)
    {
        if (activated || selected) {
            ui.iconChecker->setChecked(activated);
        }
        ui.iconChecker->setVisible(activated || selected);
    }

    Ui_ZEMProfileButton ui;
    bool activated = false;
};

ZEMProfileButton::ZEMProfileButton(QWidget *parent)
    : ZEMButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    // A touch on the mark means the row.
    d->ui.iconChecker->setAttribute(Qt::WA_TransparentForMouseEvents);

    QPalette palette = d->ui.lblTitle->palette();
    ZEMStyle(nullptr).setButtonColor(palette, ZEMStyle::WhiteAlpha80);
    d->ui.lblTitle->setPalette(palette);
}

ZEMProfileButton::~ZEMProfileButton() = default;

QPixmap ZEMProfileButton::getIcon() const
{
    return d->ui.zemPixmap->getPixmap();
}

void ZEMProfileButton::setIcon(const QPixmap &icon)
{
    d->ui.zemPixmap->setPixmap(icon);
}

QString ZEMProfileButton::getTitle() const
{
    return d->ui.lblTitle->getText();
}

void ZEMProfileButton::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

bool ZEMProfileButton::isActivated() const
{
    return d->activated;
}

void ZEMProfileButton::setActivated(bool activated)
{
    d->activated = activated;
    update();
}

void ZEMProfileButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        QPalette palette = d->ui.lblTitle->palette();
        palette.setCurrentColorGroup(isEnabled() ? QPalette::Active : QPalette::Disabled);
        d->ui.lblTitle->setPalette(palette);
    }
}

void ZEMProfileButton::paintEvent(QPaintEvent *event)
{
    d->alignCheckMark(isChecked());
    ZEMButton::paintEvent(event);
}
