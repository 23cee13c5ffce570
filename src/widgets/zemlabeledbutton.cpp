// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlabeledbutton.h"

#include "objectname_p.h"
#include "zembutton.h"
#include "zemwidgetlabel.h"

#include <QFont>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr QSize designSize(50, 74);
constexpr int spacing = 2; // pixels between title and button
constexpr int fontSize = 11; // points
constexpr int titleFontSize = 12; // points

QString fontFamily()
{
    return QStringLiteral("Cabin");
}

QFont familyOnly()
{
    QFont font;
    font.setFamily(fontFamily());
    return font;
}

} // namespace

class ZEMLabeledButton::Private
{
public:
    explicit Private(ZEMLabeledButton *owner)
        : verticalLayout(new QVBoxLayout(owner)), horizontalLayout(new QHBoxLayout),
          title(new ZEMWidgetLabel(owner)), btn(new ZEMButton(owner))
    {
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setSpacing(spacing);
        verticalLayout->setContentsMargins(0, 0, 0, 0);

        horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
        horizontalLayout->setSpacing(0);
        verticalLayout->addLayout(horizontalLayout);

        title->setObjectName(QStringLiteral("title"));
        title->setFont(QFont(fontFamily(), titleFontSize));
        horizontalLayout->addWidget(title);

        btn->setObjectName(QStringLiteral("btn"));
        btn->setFont(familyOnly());
        verticalLayout->addWidget(btn);
    }

    QVBoxLayout *verticalLayout;
    QHBoxLayout *horizontalLayout;
    ZEMWidgetLabel *title;
    ZEMButton *btn;
};

ZEMLabeledButton::ZEMLabeledButton(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFont(QFont(fontFamily(), fontSize));
    setWindowTitle(tr("Form"));
    d->title->setTitle(tr("Title"));
    connect(d->btn, &ZEMButton::clicked, this, &ZEMLabeledButton::clicked);
    QMetaObject::connectSlotsByName(this);
}

ZEMLabeledButton::~ZEMLabeledButton() = default;

QPixmap ZEMLabeledButton::getBackground() const
{
    return d->btn->getBackground();
}

void ZEMLabeledButton::setBackground(const QPixmap &background)
{
    d->btn->setBackground(background);
}

QPixmap ZEMLabeledButton::getBackgroundOff() const
{
    return d->btn->getBackgroundOff();
}

void ZEMLabeledButton::setBackgroundOff(const QPixmap &background)
{
    d->btn->setBackgroundOff(background);
}

QString ZEMLabeledButton::getTitle() const
{
    return d->title->getTitle();
}

void ZEMLabeledButton::setTitle(const QString &title)
{
    d->title->setTitle(title);
}

bool ZEMLabeledButton::getTitleIsHidden() const
{
    return d->title->isHidden();
}

void ZEMLabeledButton::setTitleHidden(bool hidden)
{
    d->title->setVisible(!hidden);
}

QIcon ZEMLabeledButton::getIcon() const
{
    return d->btn->icon();
}

void ZEMLabeledButton::setIcon(const QIcon &icon)
{
    d->btn->setIcon(icon);
}

ZEMButton *ZEMLabeledButton::getBackgroundWidget() const
{
    return d->btn;
}
