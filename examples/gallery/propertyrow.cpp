// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "propertyrow.h"

#include "look.h"
#include "propertyvalues.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMTextLabel>

using PropertyValues::Kind;

namespace {

constexpr int nameSize = 10; // points
constexpr int valueSize = 12; // points
constexpr int stepWidth = 60; // pixels
constexpr int longestText = 26; // characters on a button

QString shortened(const QString &text)
{
    return text.size() > longestText ? text.left(longestText - 1) + QChar(0x2026) : text;
}

} // namespace

PropertyRow::PropertyRow(QObject *object, const QMetaProperty &theProperty,
                         const QPair<double, double> &allowedRange, QWidget *parent)
    : QWidget(parent), target(object), property(theProperty), range(allowedRange),
      first(theProperty.read(object))
{
    setObjectName(name());
    setFixedSize(width, height);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(Look::makeLabel(name(), nameSize));
    rows->addLayout(new QHBoxLayout);
    makeControls();
    refresh();
}

PropertyRow::~PropertyRow() = default;

QString PropertyRow::name() const
{
    return QString::fromLatin1(property.name());
}

void PropertyRow::makeControls()
{
    auto *controls = static_cast<QHBoxLayout *>(layout()->itemAt(1)->layout());
    const Kind kind = PropertyValues::kindOf(property);
    if (kind == Kind::Number) {
        number = Look::makeLabel(QString(), valueSize);
        number->setAlignment(Qt::AlignCenter);
        controls->addWidget(addStep(QStringLiteral("-"), -1));
        controls->addWidget(number, 1);
        controls->addWidget(addStep(QStringLiteral("+"), 1));
        return;
    }
    const QSize size(width, Look::target);
    button = kind == Kind::Toggle ? Look::makeToggle(QStringLiteral("value"), QString(), size)
                                  : Look::makeButton(QStringLiteral("value"), QString(), size);
    controls->addWidget(button);
    connect(button, &ZEMButton::clicked, this, [this, kind] {
        if (kind == Kind::Text) {
            Q_EMIT textWanted(this);
        } else if (kind == Kind::Toggle) {
            write(!value().toBool());
        } else {
            write(PropertyValues::next(property, value(), first));
        }
    });
}

ZEMButton *PropertyRow::addStep(const QString &text, int direction)
{
    ZEMButton *step =
        Look::makeButton(direction < 0 ? QStringLiteral("less") : QStringLiteral("more"), text,
                         QSize(stepWidth, Look::target));
    connect(step, &ZEMButton::clicked, this, [this, direction] {
        write(PropertyValues::moved(value(), direction * PropertyValues::stepOf(first), range));
    });
    return step;
}

QVariant PropertyRow::value() const
{
    return target ? property.read(target) : QVariant();
}

void PropertyRow::write(const QVariant &value)
{
    if (target) {
        property.write(target, value);
        refresh();
        Q_EMIT changed();
    }
}

void PropertyRow::refresh()
{
    if (!target) {
        setEnabled(false);
        return;
    }
    const QVariant now = value();
    const QString text = shortened(PropertyValues::textOf(property, now));
    if (number) {
        number->setText(text);
        return;
    }
    if (button->isCheckable()) {
        button->setChecked(now.toBool());
    }
    if (button->text() != text) {
        button->setText(text);
    }
}
