// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGELOOK_H
#define PAGELOOK_H

#include <QFont>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <optional>

class QAbstractItemView;
class QWidget;
class ZEMButton;
class ZEMLineEditButton;
class ZEMTextLabel;

/** What all pages of the display have in common. */
namespace PageLook {

/** Of a page when it is new. */
constexpr QSize pageSize(640, 480);

/** Gives the application the style, fonts and colours of the display. */
void setApplicationLook();

/** The dark ground of a page, which is stretched to its size. */
QPixmap background();

/** The font of everything but page titles. */
QFont textFont(int pointSize);

/** Makes the text of a label white. */
void makeWhite(QWidget *label);
/** A white text. */
ZEMTextLabel *makeLabel(const QString &text, int pointSize);

/** A wide button with a text, 152 by 75 pixels. */
ZEMButton *makeTextButton(const QString &text);
/** A square button of 75 by 75 pixels. */
ZEMButton *makeSquareButton();
/** One with the icon of that name, as "go-up"; seen while it is enabled. */
ZEMButton *makeIconButton(const QString &icon);

/** A field to touch, which shows what was entered, 233 by 50 pixels. */
ZEMLineEditButton *makeField();

/** @p text, cut with "…" if @p width, in pixels, is too narrow for it in the font of @p widget. */
QString elided(const QString &text, const QWidget *widget, int width);

/** A power as the tiles of the library word it, and "–" if it is not known. */
QString powerText(const std::optional<double> &watts);

/** Lets the ground of the page shine through a list or a table, and makes its texts white. */
void makeTransparent(QAbstractItemView *view);

} // namespace PageLook

#endif
