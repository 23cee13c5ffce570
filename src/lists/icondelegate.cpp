// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "icondelegate_p.h"

#include "sharpicon_p.h"

#include <QIcon>

void IconDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    const QSize room = option->decorationSize;
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant decoration = index.data(Qt::DecorationRole);
    if (decoration.userType() != QMetaType::QIcon || option->icon.isNull()) {
        return;
    }
    const bool isEnabled = option->state.testFlag(QStyle::State_Enabled);
    const bool isSelected = option->state.testFlag(QStyle::State_Selected);
    const QIcon::Mode mode =
        !isEnabled ? QIcon::Disabled : (isSelected ? QIcon::Selected : QIcon::Normal);
    const QIcon::State state = option->state.testFlag(QStyle::State_Open) ? QIcon::On : QIcon::Off;
    option->icon = sharpIcon(option->icon);
    option->decorationSize = room.boundedTo(option->icon.actualSize(room, mode, state));
}
