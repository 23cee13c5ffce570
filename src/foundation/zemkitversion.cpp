// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemkit_version.h"

const char *zemkitVersion()
{
    return ZEMKIT_VERSION_STR;
}
