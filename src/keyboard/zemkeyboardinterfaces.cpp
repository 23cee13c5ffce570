// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemkeyboardinterfaces.h"

ZEMVirtualKeyboard *ZEMVirtualKeyboardFactoryIntf::createAsciiKeyboard(KeyboardPopupStyle)
{
    return nullptr;
}
