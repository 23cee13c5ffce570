// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTOPTIONS_H
#define COSTOPTIONS_H

#include "contract.h"

#include <QCommandLineOption>
#include <QList>
#include <optional>

class QCommandLineParser;

/** The options that have to do with costs. */
class CostOptions
{
public:
    CostOptions();

    /** For the parser, in the order of its help. */
    QList<QCommandLineOption> all() const;

    /**
     * What things cost; empty if that is not told, or if it cannot be read, for the reason in
     * @p problem. Reads the files that the options name.
     */
    std::optional<Costs::CostRules> read(const QCommandLineParser &parser, QString *problem) const;

private:
    const QCommandLineOption contract;
    const QCommandLineOption prices;
};

#endif
