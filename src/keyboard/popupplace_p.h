// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POPUPPLACE_P_H
#define POPUPPLACE_P_H

#include "zemkeyboardinterfaces.h"

#include <QPoint>
#include <QRect>
#include <QSize>

/**
 * Where the popups of a key appear, in the coordinates of the keyboard's parent. The rectangle of
 * the keyboard is in these too, that of the key in those of the keyboard.
 */
namespace PopupPlace {

using Style = ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle;

constexpr int gap = 5; ///< pixels between a key and its popup

/** The top of a popup of @p height pixels. */
constexpr int top(const QRect &keyboard, const QRect &key, int height, Style style)
{
    const int above = keyboard.y() + key.y() - height - gap;
    if (style == ZEMVirtualKeyboardFactoryIntf::PopupFlip && above < keyboard.y()) {
        return keyboard.y() + key.y() + key.height() + gap;
    }
    return above;
}

/** The preview, in the middle over its key. */
constexpr QPoint preview(const QRect &keyboard, const QRect &key, const QSize &popup, Style style)
{
    return {keyboard.x() + key.x() + (key.width() - popup.width()) / 2,
            top(keyboard, key, popup.height(), style)};
}

/**
 * The alternatives, with the left edge of the key but for the right edge of the keyboard, which
 * @p panel, whose height is that of its background, does not cross.
 */
constexpr QPoint alternatives(const QRect &keyboard, const QRect &key, const QSize &panel,
                              Style style)
{
    const int rightmost = keyboard.x() + keyboard.width() - panel.width();
    const int aligned = keyboard.x() + key.x();
    return {aligned < rightmost ? aligned : rightmost, top(keyboard, key, panel.height(), style)};
}

} // namespace PopupPlace

#endif
