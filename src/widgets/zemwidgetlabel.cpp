// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemwidgetlabel.h"

#include "objectname_p.h"
#include "zemtextlabel.h"

#include <QFont>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr QSize designSize(217, 21);
constexpr int fontSize = 12; // points
constexpr int titleIndent = 5; // pixels

} // namespace

class ZEMWidgetLabel::Private
{
public:
    explicit Private(ZEMWidgetLabel *owner)
        : verticalLayout(new QVBoxLayout(owner)), widget(new QWidget(owner)),
          horizontalLayout(new QHBoxLayout(widget)), lblTitle(new ZEMTextLabel(widget))
    {
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setSpacing(0);
        verticalLayout->setContentsMargins(0, 0, 0, 0);

        widget->setObjectName(QStringLiteral("widget"));
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        verticalLayout->addWidget(widget);

        horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
        horizontalLayout->setSpacing(0);
        horizontalLayout->setContentsMargins(0, 0, 0, 0);

        lblTitle->setObjectName(QStringLiteral("lblTitle"));
        lblTitle->setIndent(titleIndent);
        lblTitle->setProperty("enableShadow", true);
        horizontalLayout->addWidget(lblTitle);
    }

    QVBoxLayout *verticalLayout;
    QWidget *widget;
    QHBoxLayout *horizontalLayout;
    ZEMTextLabel *lblTitle;
};

ZEMWidgetLabel::ZEMWidgetLabel(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFont(QFont(QStringLiteral("Cabin"), fontSize));
    setWindowTitle(tr("Form"));
    d->lblTitle->setText(tr("Title"));
    QMetaObject::connectSlotsByName(this);
}

ZEMWidgetLabel::~ZEMWidgetLabel() = default;

QString ZEMWidgetLabel::getTitle() const
{
    return d->lblTitle->text();
}

void ZEMWidgetLabel::setTitle(const QString &title)
{
    d->lblTitle->setText(title);
}
