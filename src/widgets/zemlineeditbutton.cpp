// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlineeditbutton.h"

#include "layoutmargins_p.h"
#include "objectname_p.h"
#include "zemtextlabel.h"

#include <QGridLayout>

namespace {

constexpr QSize designSize(64, 32);

} // namespace

class ZEMLineEditButton::Private
{
public:
    explicit Private(ZEMLineEditButton *owner)
        : layout(new QGridLayout(owner)), textLabel(new ZEMTextLabel(owner))
    {
        layout->setObjectName(QStringLiteral("layout"));
        layout->setContentsMargins(0, 0, 0, 0);

        textLabel->setObjectName(QStringLiteral("textLabel"));
        textLabel->setShadow(false);
        layout->addWidget(textLabel, 0, 0);
    }

    QGridLayout *layout;
    ZEMTextLabel *textLabel;
    bool readOnly = false;
    bool modified = false;
};

ZEMLineEditButton::ZEMLineEditButton(QWidget *parent)
    : ZEMButton(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMLineEditButton::~ZEMLineEditButton() = default;

void ZEMLineEditButton::setBackground(const QPixmap &background)
{
    ZEMButton::setBackground(background);
    setMaximumSize(size());
}

QString ZEMLineEditButton::text() const
{
    return d->textLabel->text();
}

void ZEMLineEditButton::setText(const QString &text)
{
    d->textLabel->setText(text);
}

bool ZEMLineEditButton::isReadOnly() const
{
    return d->readOnly;
}

void ZEMLineEditButton::setReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
}

bool ZEMLineEditButton::isModified() const
{
    return d->modified;
}

void ZEMLineEditButton::setModified(bool modified)
{
    d->modified = modified;
}

Qt::Alignment ZEMLineEditButton::alignment() const
{
    return d->textLabel->alignment();
}

void ZEMLineEditButton::setAlignment(Qt::Alignment alignment)
{
    d->textLabel->setAlignment(alignment);
}

int ZEMLineEditButton::layoutLeft() const
{
    return d->layout->contentsMargins().left();
}

void ZEMLineEditButton::setLayoutLeft(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setLeft, margin);
}

int ZEMLineEditButton::layoutTop() const
{
    return d->layout->contentsMargins().top();
}

void ZEMLineEditButton::setLayoutTop(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setTop, margin);
}

int ZEMLineEditButton::layoutRight() const
{
    return d->layout->contentsMargins().right();
}

void ZEMLineEditButton::setLayoutRight(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setRight, margin);
}

int ZEMLineEditButton::layoutBottom() const
{
    return d->layout->contentsMargins().bottom();
}

void ZEMLineEditButton::setLayoutBottom(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setBottom, margin);
}
