// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempageheaderbutton.h"

#include "objectname_p.h"

#include <QVBoxLayout>

QString ZEMPageHeaderButton::s_defaultBackGroundName;

class ZEMPageHeaderButton::Private
{
public:
    explicit Private(ZEMPageHeaderButton *owner) : layout(new QVBoxLayout(owner))
    {
        layout->setContentsMargins(0, 0, 0, 0);
    }

    QVBoxLayout *layout;
};

ZEMPageHeaderButton::ZEMPageHeaderButton(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    setBackground(QPixmap(QStringLiteral(":/zem/graphics/header/header_btn_bg.png")), true);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
    if (!s_defaultBackGroundName.isNull()) {
        setBackground(QPixmap(s_defaultBackGroundName), true);
    }
}

ZEMPageHeaderButton::~ZEMPageHeaderButton() = default;

void ZEMPageHeaderButton::setDefaultBackgroundImage(const QString &path)
{
    s_defaultBackGroundName = path;
}

void ZEMPageHeaderButton::setWidget(QWidget *widget)
{
    if (widget) {
        d->layout->addWidget(widget, 0, Qt::AlignHCenter);
    }
}
