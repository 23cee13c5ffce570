// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEPTPICTURES_H
#define KEPTPICTURES_H

#include <QString>

class QImage;

/**
 * The pictures of the documentation beside those that programs take now. They are taken on Debian
 * 12 with Qt 5, by scripts/pictures. There, each pixel of a picture that is no older than the code
 * is as it is in the file. Another Debian, Qt or processor draws letters a pixel wider or narrower,
 * and what stands beside them elsewhere; there, the same things are to be seen in the same colours.
 */
namespace KeptPictures {

/** How @p now differs from the picture that is kept in @p file; empty if it does not. */
QString difference(const QImage &now, const QString &file);

/** How much two pictures have in common, wherever it stands: 1 is all, 0 is nothing. */
double commonColors(const QImage &one, const QImage &other);

} // namespace KeptPictures

#endif
