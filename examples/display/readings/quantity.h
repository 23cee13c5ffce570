// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_QUANTITY_H
#define READINGS_QUANTITY_H

#include <QString>

namespace Readings {

/** What a household meter measures. The order is that of the table in quantity.cpp. */
enum class Quantity {
    GridImport,
    GridExport,
    SolarProduction,
    Gas,
    Water,
    Heating,
    HeatPump,
    ElectricCar,
};

/**
 * The registers of a meter with two tariffs count one after the other, never at the same time;
 * their sum is what was used. Single is the register of a meter that knows no tariffs.
 */
enum class Tariff { Single, Low, Normal };

/** One register: a number on the front of a meter. */
struct Register
{
    Quantity quantity = Quantity::GridImport;
    Tariff tariff = Tariff::Single;
};

inline bool operator==(const Register &left, const Register &right)
{
    return left.quantity == right.quantity && left.tariff == right.tariff;
}

inline bool operator<(const Register &left, const Register &right)
{
    return left.quantity != right.quantity ? left.quantity < right.quantity
                                           : left.tariff < right.tariff;
}

/** What is known of a quantity beforehand. */
struct QuantityInfo
{
    Quantity quantity;
    /** A name for messages, in English and lower case; see quantityName(). */
    const char *name;
    /** The unit of every amount of this quantity: "kWh", "m³" or "GJ". */
    QString unit;
    /**
     * The most that a household takes or gives in an hour, in @p unit. More than that is not
     * consumption but a wrong reading or another meter.
     */
    double mostPerHour;
};

const QuantityInfo &quantityInfo(Quantity quantity);

/** A name for messages, in their language and lower case: "electricity import". */
QString quantityName(Quantity quantity);

/** The name of a register for messages: "gas", "electricity import (low tariff)". */
QString registerName(const Register &meterRegister);

} // namespace Readings

#endif
