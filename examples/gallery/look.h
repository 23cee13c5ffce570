// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LOOK_H
#define LOOK_H

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <Qt>

class QWidget;
class ZEMButton;
class ZEMPageHeader;
class ZEMTextLabel;

/** What the furniture of the gallery has in common. */
namespace Look {

constexpr QSize screen(640, 480);
constexpr int target = 44; // pixels, the least side of what a finger touches

QColor ground();

/** The picture of the file @p path in @p size, for the sharpest screen there is. */
QPixmap picture(const QString &path, const QSize &size,
                Qt::TransformationMode mode = Qt::FastTransformation);

ZEMTextLabel *makeLabel(const QString &text, int pointSize);

/** A button of @p size with a text. Its object is named @p name. */
ZEMButton *makeButton(const QString &name, const QString &text, const QSize &size);

/** A button of @p size that is on or off. */
ZEMButton *makeToggle(const QString &name, const QString &text, const QSize &size);

/** A button for a header, with the picture of @p icon or, if that is empty, @p text. */
ZEMButton *makeHeaderButton(const QString &name, const QString &icon, const QString &text);

/** Puts @p button to the left of the title. */
void setBackButton(ZEMPageHeader *header, ZEMButton *button);

} // namespace Look

#endif
