// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMUTILS_H
#define ZEMUTILS_H

#include "zemkit_export.h"

#include <QObject>
#include <QString>

/**
 * Texts and speeds of power values, and the library's own description. Everything is static.
 *
 * Power is in watts and signed. The sign never reaches a text: the direction of a flow is shown by
 * arrows. Numbers follow the default QLocale.
 * @code
 * #include <QLabel>
 * #include <QLocale>
 * #include <ZEMUtils>
 *
 * QLocale::setDefault(QLocale(QLocale::Dutch));
 * QLabel power(ZEMUtils::wattToStringAutoScale(1480.0)); // "1,5 kW"
 * power.show();
 * @endcode
 */
class ZEM_EXPORT ZEMUtils : public QObject
{
    Q_OBJECT

public:
    /** Watts in a kilowatt. */
    static constexpr double c_kW = 1000.0;

    /** Name of the library with the date and time of its build, as "Jul 12 2018" and "15:00:30". */
    static QString getDescription();
    /** Major and minor version and the revision label: "2.3.development build". */
    static QString getVersion();

    /** @p watt without its sign, in whole "W", or in "kW" with one decimal if @p kW is set. */
    static QString wattToString(double watt, bool kW);
    /**
     * As wattToString(), in "kW" from 1000 W on. The unit is chosen by the signed and unrounded
     * value: a negative power is always in "W", and 999.5 W is as well.
     */
    static QString wattToStringAutoScale(double watt);

    /**
     * The ZEMAnimatedArrows::Speed for a flow of @p value where @p reference counts as 100 percent;
     * signs do not matter. 0 (stopped) up to 0.5 percent, 1 up to 33.3, 2 up to 66.6, 3 above,
     * without an upper end. With a reference of 0 it is 2, or 0 when there is no flow either.
     */
    static int calculateSpeed(double reference, double value);

private:
    ZEMUtils() = delete;
};

#endif
