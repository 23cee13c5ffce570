// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CAPSWALK_P_H
#define CAPSWALK_P_H

#include "zemvirtualkeyboard.h"

/** The way of a keyboard through its caps states. */
namespace CapsWalk {

/** The state behind @p state when the caps key is touched. */
constexpr ZEMVirtualKeyboard::t_caps afterCapsKey(ZEMVirtualKeyboard::t_caps state)
{
    switch (state) {
    case ZEMVirtualKeyboard::CapsOff:
        return ZEMVirtualKeyboard::CapsSingle;
    case ZEMVirtualKeyboard::CapsSingle:
        return ZEMVirtualKeyboard::CapsLock;
    case ZEMVirtualKeyboard::CapsLock:
        break;
    }
    return ZEMVirtualKeyboard::CapsOff;
}

/** The state behind @p state when a key was sent. */
constexpr ZEMVirtualKeyboard::t_caps afterSentKey(ZEMVirtualKeyboard::t_caps state)
{
    return state == ZEMVirtualKeyboard::CapsSingle ? ZEMVirtualKeyboard::CapsOff : state;
}

} // namespace CapsWalk

#endif
