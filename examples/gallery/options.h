// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OPTIONS_H
#define OPTIONS_H

#include <QString>
#include <QStringList>

/** What the command line asks for. */
struct Options
{
    enum class Action {
        Run,
        PrintAndEnd, ///< --help, --version or --list: print text to standard output
        Refuse ///< print text to standard error, and end with status
    };

    Action action = Action::Run;
    QString text;
    int status = 0;

    QString page; ///< the class whose page is to be opened; empty: the index
    QString language; ///< "de"; those of the library are there, and "nl"
    QString screenshots; ///< directory for the pictures of all samples; empty: show the gallery
};

/** Reads the command line; needs a QCoreApplication. */
Options readOptions(const QStringList &arguments);

#endif
