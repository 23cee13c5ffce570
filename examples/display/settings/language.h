// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGE_H
#define LANGUAGE_H

/** The language of the display. */
namespace Language {

/**
 * Makes dates and numbers Dutch, as the texts of the pages are, and the messages of all that has no
 * page: readings, meters and history tell in English what is wrong, which a terminal wants. To be
 * called once, with an application, before anything is shown or read.
 */
void speakDutch();

} // namespace Language

#endif
