// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MARKERTEXTS_P_H
#define MARKERTEXTS_P_H

#include "saturatedint_p.h"

#include <QString>

/** How a marker writes its coordinates. */
namespace MarkerTexts {

/** Without decimal places the x is cut: a marker in the fourth slot stands in slot 3. */
inline QString xText(double x, int decimalPlaces)
{
    return decimalPlaces == 0 ? QString::number(truncatedInt(x))
                              : QString::number(x, 'f', decimalPlaces);
}

/** The y is a measured value and always rounded. */
inline QString yText(double y, int decimalPlaces)
{
    return QString::number(y, 'f', decimalPlaces);
}

} // namespace MarkerTexts

#endif
