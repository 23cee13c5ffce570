// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1SPLITTER_H
#define P1SPLITTER_H

#include <QByteArray>
#include <vector>

/**
 * Finds the telegrams in what comes over a line, in pieces of any size.
 *
 * A telegram reaches from a '/' to the end of the line that begins with '!'. Neither sign stands
 * anywhere else in a telegram, so a '/' always begins one, and cuts the one before it if that has
 * not ended. What comes before the first '/' is the end of a telegram whose start was missed, and
 * is nothing to complain of.
 *
 * It never holds more than longestTelegram bytes.
 */
class P1Splitter
{
public:
    /** The longest telegram that is believed, in bytes; meters send 0.4 to 3 kB. */
    static constexpr int longestTelegram = 16384;

    struct Piece
    {
        enum class Kind {
            Telegram, ///< whole, from the '/' on, without the end of its last line
            Cut, ///< the beginning of a telegram that did not come to its end
            TooLong, ///< the beginning of something that began with '/' and did not end
            Stray, ///< bytes between two telegrams: one whose beginning was damaged
        };

        Kind kind = Kind::Telegram;
        /** What was received; of stray bytes the first ones, without blanks and line ends. */
        QByteArray bytes;
    };

    /** Takes the next bytes; returns what they completed, in the order of its ends. */
    std::vector<Piece> add(const QByteArray &bytes);

    /**
     * Tells that nothing follows, or nothing that continues this. The last line needs no end: a
     * telegram whose '!' has come is returned as a whole one. Afterwards all is as in the
     * beginning.
     */
    std::vector<Piece> finish();

private:
    enum class State {
        Searching, ///< for the first '/', silently
        Between, ///< behind a telegram
        Body,
        Checksum, ///< behind the '!'
    };

    void take(char byte, std::vector<Piece> &pieces);
    void takeBetween(char byte);
    void hand(Piece::Kind kind, std::vector<Piece> &pieces);

    State state = State::Searching;
    QByteArray held;
};

#endif
