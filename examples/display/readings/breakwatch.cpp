// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "breakwatch.h"

#include <QCoreApplication>
#include <QLocale>
#include <limits>

namespace Readings {

namespace {

constexpr int decimals = 3; // as on the front of a meter

} // namespace

void BreakWatch::start(const Household &household)
{
    news(household, std::numeric_limits<qint64>::max());
}

QStringList BreakWatch::news(const Household &household, qint64 now)
{
    QStringList lines;
    for (const auto &[meterRegister, meter] : household.meters) {
        for (const Fault &fault : meter.faults()) {
            if (fault.kind != Fault::Kind::Break || fault.instant > now
                || !known.insert({meterRegister, fault.instant}).second) {
                continue;
            }
            lines << QCoreApplication::translate(
                         "Readings",
                         "%1: the meter goes on at %2 %3, which does not follow from before: it is "
                         "another one, or was reset")
                         .arg(registerName(meterRegister),
                              QLocale().toString(fault.value, 'f', decimals),
                              quantityInfo(meterRegister.quantity).unit);
        }
    }
    return lines;
}

} // namespace Readings
