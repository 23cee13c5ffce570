// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGE_H
#define LANGUAGE_H

#include <QString>
#include <QStringList>

/** The language of the display. */
namespace Language {

/** Those that there are, as "nl", in the order of their letters. */
QStringList all();

/**
 * Makes texts, dates and numbers those of @p language, one of all(): the pages, the library, and
 * the messages of all that has no page, which are English without, as a terminal wants them. It
 * holds for what is made or told from now on, in place of the language before. Needs an
 * application.
 */
void speak(const QString &language);

} // namespace Language

#endif
