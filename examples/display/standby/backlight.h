// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BACKLIGHT_H
#define BACKLIGHT_H

#include <QString>

/**
 * The light behind a panel, as Linux has it in /sys/class/backlight. A machine without one is left
 * alone: there the dark page is all that standby is.
 */
class Backlight
{
public:
    /** The first light of @p directory. */
    explicit Backlight(const QString &directory = QStringLiteral("/sys/class/backlight"));

    bool isThere() const { return !switchFile.isEmpty(); }
    /** Turns it on or off. Returns in English what is wrong, or an empty text. */
    QString setLit(bool lit);

private:
    QString switchFile;
};

#endif
