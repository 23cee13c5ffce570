// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagelook.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QLinearGradient>
#include <QPainter>
#include <QStyleFactory>
#include <ZEMButton>
#include <ZEMLineEditButton>
#include <ZEMStyle>
#include <ZEMTextLabel>
#include <ZEMUtils>

namespace PageLook {

void setApplicationLook()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
    // White on what Fusion selects is hard to read.
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, ZEMStyle(nullptr).color(ZEMStyle::SlateBlue));
    QApplication::setPalette(palette);
}

QPixmap background()
{
    QPixmap picture(pageSize);
    QLinearGradient gradient(0.0, 0.0, 0.0, picture.height());
    gradient.setColorAt(0.0, QColor(36, 50, 60));
    gradient.setColorAt(1.0, QColor(14, 20, 26));
    QPainter(&picture).fillRect(picture.rect(), gradient);
    return picture;
}

QFont textFont(int pointSize)
{
    return QFont(QStringLiteral("Cabin"), pointSize);
}

void makeWhite(QWidget *label)
{
    QPalette palette = label->palette();
    ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::White);
    label->setPalette(palette);
}

ZEMTextLabel *makeLabel(const QString &text, int pointSize)
{
    auto *label = new ZEMTextLabel;
    makeWhite(label);
    label->setFont(textFont(pointSize));
    label->setText(text);
    return label;
}

ZEMButton *makeTextButton(const QString &text)
{
    auto *button = new ZEMButton;
    button->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_small.png")));
    button->setFont(textFont(14));
    button->setText(text);
    return button;
}

ZEMButton *makeSquareButton()
{
    auto *button = new ZEMButton;
    button->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
    return button;
}

ZEMButton *makeIconButton(const QString &icon)
{
    ZEMButton *button = makeSquareButton();
    button->setHideWhenDisabled(true);
    button->setIcon(QIcon(QStringLiteral(":/tango/graphics/tango/actions/%1-icon.png").arg(icon)));
    return button;
}

ZEMLineEditButton *makeField()
{
    constexpr int fieldMargin = 12; // pixels
    auto *field = new ZEMLineEditButton;
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(fieldMargin);
    field->setLayoutRight(fieldMargin);
    field->setFont(textFont(14));
    return field;
}

QString elided(const QString &text, const QWidget *widget, int width)
{
    return QFontMetrics(widget->font()).elidedText(text, Qt::ElideRight, width);
}

QString powerText(const std::optional<double> &watts)
{
    return watts ? ZEMUtils::wattToStringAutoScale(*watts) : QStringLiteral("–");
}

void makeTransparent(QAbstractItemView *view)
{
    QPalette palette = view->palette();
    palette.setBrush(QPalette::Base, Qt::NoBrush);
    palette.setBrush(QPalette::Window, Qt::NoBrush);
    palette.setColor(QPalette::Text, Qt::white);
    view->setPalette(palette);
    view->viewport()->setAutoFillBackground(false);
}

} // namespace PageLook
