// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartshortcuts_p.h"

namespace ChartShortcuts {

namespace {

bool shortcutsAreEnabled = true;

} // namespace

bool areEnabled()
{
    return shortcutsAreEnabled;
}

void setEnabled(bool enabled)
{
    shortcutsAreEnabled = enabled;
}

} // namespace ChartShortcuts
