// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "contractreader.h"

#include <QJsonArray>
#include <algorithm>

using Readings::Quantity;

namespace Costs {

namespace {

const QString contractsKey = QStringLiteral("contracts");
const QString fromKey = QStringLiteral("from");
const QString standingKey = QStringLiteral("standing_charge");
const QString lowKey = QStringLiteral("low");
const QString normalKey = QStringLiteral("normal");
const QString surchargeKey = QStringLiteral("hourly_plus");

constexpr double mostStanding = 10000.0; // euro a month

struct PricedQuantity
{
    QString key;
    Quantity quantity;
    bool isElectricity;
};

/** Named as the columns of the program's own CSV format, without their units. */
const std::vector<PricedQuantity> &pricedQuantities()
{
    static const std::vector<PricedQuantity> all = {
        {QStringLiteral("electricity_import"), Quantity::GridImport, true},
        {QStringLiteral("electricity_export"), Quantity::GridExport, true},
        {QStringLiteral("gas"), Quantity::Gas, false},
        {QStringLiteral("water"), Quantity::Water, false},
        {QStringLiteral("heating"), Quantity::Heating, false},
    };
    return all;
}

QStringList keysOfContract()
{
    QStringList keys {fromKey};
    for (const PricedQuantity &priced : pricedQuantities()) {
        keys.append(priced.key);
    }
    return keys << standingKey;
}

} // namespace

std::vector<Contract> loadContracts(const QString &path, QString *problem)
{
    const QJsonDocument document = Readings::loadJson(path, problem);
    if (document.isNull()) {
        return {};
    }
    ContractReader reader;
    std::vector<Contract> contracts = reader.read(document);
    if (!reader.problem().isEmpty()) {
        *problem = QStringLiteral("%1: %2").arg(path, reader.problem());
        return {};
    }
    return contracts;
}

std::vector<Contract> ContractReader::read(const QJsonDocument &document)
{
    const QJsonObject object = document.object();
    const QJsonArray list = object.value(contractsKey).toArray();
    checkKeys(object, QString(), {contractsKey});
    if (list.isEmpty()) {
        note(contractsKey, QStringLiteral("must be a list of contracts"));
    }
    std::vector<Contract> contracts;
    for (int i = 0; i < list.size(); ++i) {
        const QString where = QStringLiteral("%1[%2]").arg(contractsKey).arg(i);
        if (!list.at(i).isObject()) {
            note(where, QStringLiteral("must be an object"));
            return {};
        }
        const Contract contract = readContract(list.at(i).toObject(), where);
        const auto place = std::lower_bound(
            contracts.begin(), contracts.end(), contract,
            [](const Contract &left, const Contract &right) { return left.from < right.from; });
        if (place != contracts.end() && place->from == contract.from) {
            note(below(where, fromKey), QStringLiteral("another contract begins on that day"));
        }
        contracts.insert(place, contract);
    }
    return contracts;
}

Contract ContractReader::readContract(const QJsonObject &object, const QString &where)
{
    checkKeys(object, where, keysOfContract());
    Contract contract;
    contract.from = readDate(object, where);
    for (const PricedQuantity &priced : pricedQuantities()) {
        if (!object.contains(priced.key)) {
            continue;
        }
        const QJsonValue value = object.value(priced.key);
        const QString place = below(where, priced.key);
        const double most = mostOf(priced.quantity);
        if (priced.isElectricity && value.isObject()) {
            contract.rates[priced.quantity] = readElectricity(value, place, most);
        } else {
            const Price price = readPrice(value, place, most);
            contract.rates[priced.quantity] = {price, price};
        }
    }
    if (object.contains(standingKey)) {
        contract.standing =
            readPrice(object.value(standingKey), below(where, standingKey), mostStanding);
    }
    return contract;
}

QDate ContractReader::readDate(const QJsonObject &object, const QString &where)
{
    const QString text = object.value(fromKey).toString();
    const QDate date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid()) {
        note(below(where, fromKey),
             QStringLiteral("must be a date of the calendar, as \"2024-12-31\""));
    }
    return date;
}

Rate ContractReader::readElectricity(const QJsonValue &value, const QString &where, double most)
{
    const QJsonObject object = value.toObject();
    Rate rate;
    if (object.contains(surchargeKey)) {
        checkKeys(object, where, {surchargeKey});
        rate.isHourly = true;
        rate.low = readPrice(object.value(surchargeKey), below(where, surchargeKey), most);
        rate.normal = rate.low;
        return rate;
    }
    checkKeys(object, where, {lowKey, normalKey});
    rate.low = readPrice(object.value(lowKey), below(where, lowKey), most);
    rate.normal = readPrice(object.value(normalKey), below(where, normalKey), most);
    return rate;
}

Price ContractReader::readPrice(const QJsonValue &value, const QString &where, double most)
{
    const std::optional<Price> price =
        value.isDouble() ? exactPrice(value.toDouble(), most) : std::nullopt;
    if (!price) {
        note(where,
             QStringLiteral("must be a number of euro from -%1 to %1, with %2 decimals at most")
                 .arg(most)
                 .arg(priceDecimals));
    }
    return price.value_or(0);
}

} // namespace Costs
