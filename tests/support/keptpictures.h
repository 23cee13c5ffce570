// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEPTPICTURES_H
#define KEPTPICTURES_H

#include <QString>

class QImage;

/**
 * The pictures of the documentation beside those that programs take now. They are taken on Debian
 * 12 with Qt 5 and its fonts, by scripts/pictures; there, each pixel of a picture that is no older
 * than the code is as it is in the file.
 */
namespace KeptPictures {

/**
 * Why pictures that are taken here differ from the kept ones: another Debian, Qt or processor draws
 * letters a pixel wider or narrower. Empty where they are alike.
 */
QString reasonToDiffer();

/** How @p now differs from the picture that is kept in @p file; empty if it does not. */
QString difference(const QImage &now, const QString &file);

} // namespace KeptPictures

#endif
