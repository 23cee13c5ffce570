// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "namedwidgets.h"

#define ZEMMiniDayHistogram NamedMiniDayHistogram
#define ZEMPageHeader NamedPageHeader
#define ZEMPageHeaderButton NamedPageHeaderButton
#include "moc_namedwidgets.cpp"
