// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDFILES_H
#define KEYBOARDFILES_H

#include <QString>
#include <QStringList>

/** The files of the on-screen keyboards, "keyboard_nl.xml" and so on. */
namespace KeyboardFiles {

/** The languages of which there is a keyboard in @p directory, as "nl". */
QStringList languagesIn(const QString &directory);

/**
 * What is wrong with the keyboards that the display needs, in English, as "FILE:LINE: what". A
 * keyboard is read when it is first wanted, which may be weeks later, and then it is too late.
 */
QStringList problemsIn(const QString &directory);

} // namespace KeyboardFiles

#endif
