// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PICTURES_H
#define PICTURES_H

#include <QString>

/**
 * Writes a picture of the sample of each class to @p directory, which is made if it is not there,
 * as a PNG of the name of the class in small letters. Returns what went wrong, or an empty text.
 */
QString writePictures(const QString &directory, const QString &keyboardDirectory);

#endif
