// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1splitter.h"

namespace {

/** Enough of stray bytes to tell what they are. */
constexpr int longestStray = 64;

bool isLineEnd(char byte)
{
    return byte == '\r' || byte == '\n';
}

/** What a line that is switched on and off may give between telegrams without any harm. */
bool isBlank(char byte)
{
    return isLineEnd(byte) || byte == ' ' || byte == '\0';
}

} // namespace

std::vector<P1Splitter::Piece> P1Splitter::add(const QByteArray &bytes)
{
    std::vector<Piece> pieces;
    for (const char byte : bytes) {
        take(byte, pieces);
    }
    return pieces;
}

std::vector<P1Splitter::Piece> P1Splitter::finish()
{
    std::vector<Piece> pieces;
    if (state == State::Checksum) {
        hand(Piece::Kind::Telegram, pieces);
    } else if (state == State::Body) {
        hand(Piece::Kind::Cut, pieces);
    } else if (!held.isEmpty()) {
        hand(Piece::Kind::Stray, pieces);
    }
    state = State::Searching;
    return pieces;
}

void P1Splitter::take(char byte, std::vector<Piece> &pieces)
{
    const bool inside = state == State::Body || state == State::Checksum;
    if (byte == '/') {
        if (!held.isEmpty()) {
            hand(inside ? Piece::Kind::Cut : Piece::Kind::Stray, pieces);
        }
        held = QByteArray(1, byte);
        state = State::Body;
        return;
    }
    if (!inside) {
        takeBetween(byte);
        return;
    }
    if (state == State::Checksum && isLineEnd(byte)) {
        hand(Piece::Kind::Telegram, pieces);
        state = State::Between;
        return;
    }
    if (held.size() == longestTelegram) {
        hand(Piece::Kind::TooLong, pieces);
        state = State::Searching;
        return;
    }
    held.append(byte);
    if (byte == '!') {
        state = State::Checksum;
    }
}

void P1Splitter::takeBetween(char byte)
{
    if (state == State::Between && !isBlank(byte) && held.size() < longestStray) {
        held.append(byte);
    }
}

void P1Splitter::hand(Piece::Kind kind, std::vector<Piece> &pieces)
{
    pieces.push_back({kind, held});
    held.clear();
}
