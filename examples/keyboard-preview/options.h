// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OPTIONS_H
#define OPTIONS_H

#include <QSize>
#include <QString>
#include <QStringList>

/** What the command line asks for. */
struct Options
{
    enum class Action {
        Run,
        PrintAndEnd, ///< --help or --version: print text to standard output
        Refuse ///< print text to standard error
    };

    Action action = Action::Run;
    QString text;

    QStringList files; ///< keyboard files; at least one
    QSize size; ///< of the page that the keyboard is on, in pixels
    QString pngDirectory; ///< where the pictures go; empty: to a window
};

/** Reads the command line; needs a QCoreApplication. */
Options readOptions(const QStringList &arguments);

#endif
