// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1CRC_H
#define P1CRC_H

#include <QtGlobal>
#include <optional>
#include <string_view>

/**
 * The checksum of a smart meter's telegrams: CRC-16 of the polynomial x^16 + x^15 + x^2 + 1, least
 * significant bit first, with the start value 0.
 */
quint16 p1Crc(std::string_view bytes);

/**
 * The checksum of a telegram; @p bytes are all from the '/' up to and with the '!'. A meter ends
 * its lines with CR and LF. Where there is no CR at all, a program has taken them out on the way,
 * and they are counted as if they were there.
 */
quint16 p1TelegramCrc(std::string_view bytes);

/**
 * Reads the checksum that a meter wrote behind the '!': one to four hexadecimal digits, since some
 * meters leave out leading zeros. Empty for anything else.
 */
std::optional<quint16> parseP1Crc(std::string_view text);

#endif
