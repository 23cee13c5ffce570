// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1crc.h"

#include <charconv>

namespace {

constexpr quint16 reflectedPolynomial = 0xA001;
constexpr int bitsPerByte = 8;
constexpr std::size_t mostDigits = 4;
constexpr int hexadecimal = 16;

quint16 withByte(quint16 crc, char byte)
{
    crc = quint16(crc ^ quint8(byte));
    for (int bit = 0; bit < bitsPerByte; ++bit) {
        const bool carry = (crc & 1) != 0;
        crc = quint16(crc >> 1);
        if (carry) {
            crc = quint16(crc ^ reflectedPolynomial);
        }
    }
    return crc;
}

} // namespace

quint16 p1Crc(std::string_view bytes)
{
    quint16 crc = 0;
    for (const char byte : bytes) {
        crc = withByte(crc, byte);
    }
    return crc;
}

quint16 p1TelegramCrc(std::string_view bytes)
{
    if (bytes.find('\r') != std::string_view::npos) {
        return p1Crc(bytes);
    }
    quint16 crc = 0;
    for (const char byte : bytes) {
        if (byte == '\n') {
            crc = withByte(crc, '\r');
        }
        crc = withByte(crc, byte);
    }
    return crc;
}

std::optional<quint16> parseP1Crc(std::string_view text)
{
    if (text.empty() || text.size() > mostDigits) {
        return std::nullopt;
    }
    quint16 crc = 0;
    const char *const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, crc, hexadecimal);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return crc;
}
