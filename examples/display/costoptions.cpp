// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "costoptions.h"

#include "contractreader.h"
#include "pricefile.h"

#include <QCommandLineParser>

CostOptions::CostOptions()
    : contract(QStringLiteral("contract"),
               QStringLiteral("Show what the months cost by the contracts in this JSON file; "
                              "docs/costs.md tells how to write one."),
               QStringLiteral("FILE")),
      prices(
          QStringLiteral("prices"),
          QStringLiteral("The prices of hours, for contracts with an hourly price, from this CSV "
                         "file; may be there several times."),
          QStringLiteral("FILE"))
{
}

QList<QCommandLineOption> CostOptions::all() const
{
    return {contract, prices};
}

std::optional<Costs::CostRules> CostOptions::read(const QCommandLineParser &parser,
                                                  QString *problem) const
{
    if (!parser.isSet(contract)) {
        if (parser.isSet(prices)) {
            *problem = QStringLiteral("--prices goes with --contract");
        }
        return std::nullopt;
    }
    Costs::CostRules rules;
    rules.contracts = Costs::loadContracts(parser.value(contract), problem);
    if (!problem->isEmpty()) {
        return std::nullopt;
    }
    if (rules.wantsPrices() && !parser.isSet(prices)) {
        *problem = QStringLiteral("%1: has an hourly price, which wants --prices FILE")
                       .arg(parser.value(contract));
        return std::nullopt;
    }
    rules.priceFiles = parser.values(prices);
    Costs::LoadedPrices loaded = Costs::loadPrices(rules.priceFiles);
    if (!loaded.failure.isEmpty()) {
        *problem = loaded.failure;
        return std::nullopt;
    }
    rules.prices = std::move(loaded.prices);
    rules.problems = loaded.problems;
    return rules;
}
