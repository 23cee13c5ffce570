// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef EXAMPLES_H
#define EXAMPLES_H

#include <vector>

/** A block of code in a document, as a function. */
struct Example
{
    const char *name; ///< document and number, as "zembutton_1"
    void (*run)();
};

/** The blocks of all documents. */
const std::vector<Example> &examples();

#endif
