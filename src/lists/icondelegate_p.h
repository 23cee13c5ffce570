// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ICONDELEGATE_P_H
#define ICONDELEGATE_P_H

#include <QStyledItemDelegate>

/** Draws items as Qt does, with their icons sharp. */
class IconDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

#endif
