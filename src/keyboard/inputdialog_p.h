// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef INPUTDIALOG_P_H
#define INPUTDIALOG_P_H

class QGridLayout;
class QLineEdit;
class QWidget;
class ZEMVirtualKeyboard;

/** What the dialogs with a keyboard have in common. */
namespace InputDialog {

/**
 * Lets @p keyboard type into @p target and puts it, with its popups, into @p place, which gets the
 * layout that is returned. The keyboard is at row 1, column 1.
 */
QGridLayout *placeKeyboard(ZEMVirtualKeyboard *keyboard, QWidget *place, QWidget *target);

/**
 * Gives @p field the focus, and posts a press of the left button on its last pixel, which puts the
 * cursor at the end of its text as if the user had tapped there.
 */
void focusAsIfTapped(QWidget *field);

/**
 * Selects the text of @p field on the next turn of the event loop, behind the posted press, and
 * once more after 500 ms, when the user's own release has been handled.
 */
void selectAllSoon(QLineEdit *field);

} // namespace InputDialog

#endif
