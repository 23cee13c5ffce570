// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGES_H
#define PAGES_H

class Stage;

/** The pages of the gallery: each shows its class on the stage. Named after their files. */
namespace Pages {

void zem(Stage &stage);
void zembrush(Stage &stage);
void zempixmapcache(Stage &stage);
void zemstyle(Stage &stage);
void zemutils(Stage &stage);

} // namespace Pages

#endif
