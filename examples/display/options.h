// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OPTIONS_H
#define OPTIONS_H

#include "contract.h"
#include "mqttmeter.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

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

    QStringList readings; ///< CSV files
    QStringList imports; ///< CSV files to be kept in the history
    QString exportTo; ///< CSV file that the history is to be written to
    QString exportMonthsTo; ///< CSV file that the table of months is to be written to
    std::optional<Costs::CostRules> costs; ///< what things cost
    QString meter; ///< where a smart meter is to be followed; empty: no meter
    std::optional<MqttSettings> mqtt; ///< a publisher that is to be followed
    QString history; ///< directory of the history of a meter; empty: it is not kept
    double speed = 1.0; ///< how much faster than the clock on the wall
    QString screenshots; ///< directory for the pictures of all pages; empty: show the display
    std::optional<QSize> size; ///< of the display in pixels; empty: of its own choice
    QString page; ///< the page to open; empty: the first
    QString language; ///< of the pages and messages: "nl"
};

/**
 * Reads the command line; needs a QCoreApplication. @p pages are the names that --page knows, the
 * first of which is the default.
 */
Options readOptions(const QStringList &arguments, const QStringList &pages);

#endif
