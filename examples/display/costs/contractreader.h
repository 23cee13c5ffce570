// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_CONTRACTREADER_H
#define COSTS_CONTRACTREADER_H

#include "contract.h"
#include "jsonreader.h"

#include <QJsonValue>

namespace Costs {

/**
 * Reads the JSON file of a household's contracts, which docs/costs.md describes. In the order of
 * time, whatever the order in the file; none if anything is wrong, the first of which is told in
 * @p problem: "FILE: contracts[1].gas: what".
 */
std::vector<Contract> loadContracts(const QString &path, QString *problem);

/** Reads the JSON of contracts. Whatever is not as it should be is a problem. */
class ContractReader : public Readings::JsonReader
{
public:
    std::vector<Contract> read(const QJsonDocument &document);

private:
    Contract readContract(const QJsonObject &object, const QString &where);
    QDate readDate(const QJsonObject &object, const QString &where);
    Rate readElectricity(const QJsonValue &value, const QString &where, double most);
    Price readPrice(const QJsonValue &value, const QString &where, double most);
};

} // namespace Costs

#endif
