// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BUILDSTAMP_P_H
#define BUILDSTAMP_P_H

/** Date of the build as "Jul 12 2018". */
const char *zemBuildDate();
/** Time of the build as "15:00:30". */
const char *zemBuildTime();

#endif
