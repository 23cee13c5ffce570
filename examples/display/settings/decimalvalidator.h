// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DECIMALVALIDATOR_H
#define DECIMALVALIDATOR_H

#include <QDoubleValidator>

/**
 * A QDoubleValidator for the keypad of the display: comma and full stop both stand for the decimal
 * sign of the language, and become it as they are typed. No group signs, no exponents.
 */
class DecimalValidator : public QDoubleValidator
{
public:
    DecimalValidator(double least, double most, int decimals, QObject *parent = nullptr);

    State validate(QString &input, int &position) const override;
};

#endif
