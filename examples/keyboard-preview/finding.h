// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FINDING_H
#define FINDING_H

#include <QString>

/** Something that the author of a keyboard file should know. */
struct Finding
{
    int line; ///< counted from 1
    QString text;
};

#endif
