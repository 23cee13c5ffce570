// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "decimalvalidator.h"

#include <QLocale>

DecimalValidator::DecimalValidator(double least, double most, int decimals, QObject *parent)
    : QDoubleValidator(least, most, decimals, parent)
{
    setNotation(StandardNotation);
    QLocale own = locale();
    own.setNumberOptions(QLocale::RejectGroupSeparator);
    setLocale(own);
}

QValidator::State DecimalValidator::validate(QString &input, int &position) const
{
    const QString sign(locale().decimalPoint());
    input.replace(QLatin1Char(','), sign).replace(QLatin1Char('.'), sign);
    return QDoubleValidator::validate(input, position);
}
