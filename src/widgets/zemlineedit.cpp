// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlineedit.h"

#include "layoutmargins_p.h"
#include "objectname_p.h"

#include <QBrush>
#include <QGridLayout>
#include <QLineEdit>
#include <QPalette>

namespace {

constexpr QSize designSize(640, 480);

QPalette fieldPalette()
{
    const QBrush clear(QColor(255, 255, 255, 0), Qt::SolidPattern);
    const QBrush lightGrey(QColor(240, 240, 240, 255), Qt::SolidPattern);
    QPalette palette;
    palette.setBrush(QPalette::Active, QPalette::Base, clear);
    palette.setBrush(QPalette::Inactive, QPalette::Base, clear);
    palette.setBrush(QPalette::Disabled, QPalette::Base, lightGrey);
    return palette;
}

} // namespace

class ZEMLineEdit::Private
{
public:
    explicit Private(ZEMLineEdit *owner)
        : layout(new QGridLayout(owner)), lineEdit(new QLineEdit(owner))
    {
        layout->setObjectName(QStringLiteral("layout"));
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);

        lineEdit->setObjectName(QStringLiteral("lineEdit"));
        lineEdit->setPalette(fieldPalette());
        lineEdit->setFrame(false);
        layout->addWidget(lineEdit, 0, 0);
    }

    QGridLayout *layout;
    QLineEdit *lineEdit;
};

ZEMLineEdit::ZEMLineEdit(QWidget *parent) : ZEMPixmap(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMLineEdit::~ZEMLineEdit() = default;

QString ZEMLineEdit::text() const
{
    return d->lineEdit->text();
}

void ZEMLineEdit::setText(const QString &text)
{
    d->lineEdit->setText(text);
}

QString ZEMLineEdit::placeholderText() const
{
    return d->lineEdit->placeholderText();
}

void ZEMLineEdit::setPlaceholderText(const QString &text)
{
    d->lineEdit->setPlaceholderText(text);
}

bool ZEMLineEdit::isReadOnly() const
{
    return d->lineEdit->isReadOnly();
}

void ZEMLineEdit::setReadOnly(bool readOnly)
{
    d->lineEdit->setReadOnly(readOnly);
}

bool ZEMLineEdit::isModified() const
{
    return d->lineEdit->isModified();
}

void ZEMLineEdit::setModified(bool modified)
{
    d->lineEdit->setModified(modified);
}

int ZEMLineEdit::maxLength() const
{
    return d->lineEdit->maxLength();
}

void ZEMLineEdit::setMaxLength(int length)
{
    d->lineEdit->setMaxLength(length);
}

const QValidator *ZEMLineEdit::validator() const
{
    return d->lineEdit->validator();
}

void ZEMLineEdit::setValidator(const QValidator *validator)
{
    d->lineEdit->setValidator(validator);
}

int ZEMLineEdit::layoutLeft() const
{
    return d->layout->contentsMargins().left();
}

void ZEMLineEdit::setLayoutLeft(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setLeft, margin);
}

int ZEMLineEdit::layoutTop() const
{
    return d->layout->contentsMargins().top();
}

void ZEMLineEdit::setLayoutTop(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setTop, margin);
}

int ZEMLineEdit::layoutRight() const
{
    return d->layout->contentsMargins().right();
}

void ZEMLineEdit::setLayoutRight(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setRight, margin);
}

int ZEMLineEdit::layoutBottom() const
{
    return d->layout->contentsMargins().bottom();
}

void ZEMLineEdit::setLayoutBottom(int margin)
{
    setLayoutMargin(d->layout, &QMargins::setBottom, margin);
}
