// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlabel.h"

#include "objectname_p.h"
#include "zemtextlabel.h"

#include <QBrush>
#include <QPalette>
#include <QVBoxLayout>

namespace {

constexpr QSize designSize(64, 31);
constexpr int edge = 1; // pixels between the widget's edge and the label

QPalette labelPalette()
{
    const QBrush white(QColor(255, 255, 255, 255), Qt::SolidPattern);
    const QBrush grey(QColor(120, 120, 120, 255), Qt::SolidPattern);
    QPalette palette;
    palette.setBrush(QPalette::Active, QPalette::WindowText, white);
    palette.setBrush(QPalette::Inactive, QPalette::WindowText, white);
    palette.setBrush(QPalette::Disabled, QPalette::WindowText, grey);
    return palette;
}

} // namespace

class ZEMLabel::Private
{
public:
    explicit Private(ZEMLabel *owner)
        : verticalLayout(new QVBoxLayout(owner)), label(new ZEMTextLabel(owner))
    {
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setSpacing(edge);
        verticalLayout->setContentsMargins(edge, edge, edge, edge);

        label->setObjectName(QStringLiteral("label"));
        label->setAlignment(Qt::AlignCenter);
        verticalLayout->addWidget(label);
    }

    QVBoxLayout *verticalLayout;
    ZEMTextLabel *label;
};

ZEMLabel::ZEMLabel(QWidget *parent) : ZEMPixmap(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);
    setPalette(labelPalette());
    setWindowTitle(tr("Form"));
    d->label->setShadow(true);
    QMetaObject::connectSlotsByName(this);
}

ZEMLabel::~ZEMLabel() = default;

QString ZEMLabel::getText() const
{
    return d->label->text();
}

void ZEMLabel::setText(const QString &text)
{
    d->label->setText(text);
}

Qt::Alignment ZEMLabel::getAlignment() const
{
    return d->label->alignment();
}

void ZEMLabel::setAlignment(Qt::Alignment alignment)
{
    d->label->setAlignment(alignment);
}

int ZEMLabel::getIndent() const
{
    return d->label->indent();
}

void ZEMLabel::setIndent(int indent)
{
    d->label->setIndent(indent);
}

int ZEMLabel::getMargin() const
{
    return d->label->margin();
}

void ZEMLabel::setMargin(int margin)
{
    d->label->setMargin(margin);
}

Qt::TextFormat ZEMLabel::getTextFormat() const
{
    return d->label->textFormat();
}

void ZEMLabel::setTextFormat(Qt::TextFormat format)
{
    d->label->setTextFormat(format);
}

bool ZEMLabel::getShadow() const
{
    return d->label->getShadow();
}

void ZEMLabel::setShadow(bool shadow)
{
    d->label->setShadow(shadow);
}

QSize ZEMLabel::sizeHint() const
{
    return d->label->sizeHint();
}
