// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// A file of its own, which the build compiles again whenever another source of the library changes.

#include "buildstamp_p.h"

const char *zemBuildDate()
{
    return __DATE__;
}

const char *zemBuildTime()
{
    return __TIME__;
}
