// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1LINES_H
#define P1LINES_H

#include <optional>
#include <string_view>
#include <vector>

/** A line of a telegram; all parts are views into it. */
struct P1Line
{
    std::string_view text;
    /** What it tells of: "1-0:1.8.1". */
    std::string_view code;
    /** What stands in its parentheses, in those of the lines that continue it too. */
    std::vector<std::string_view> values;
};

/**
 * Goes through the lines of a telegram, which end with CR and LF or with LF alone. Empty lines are
 * left out, and a line that begins with a parenthesis continues the one before it. A line that is
 * not made of a code and values has neither.
 */
class P1LineReader
{
public:
    /** @p body are the lines between the identification and the '!'; it must outlive the reader. */
    explicit P1LineReader(std::string_view body) : rest(body) { }

    /** Goes to the next line; false at the end. */
    bool next(P1Line &line);

private:
    std::string_view nextFilled();

    std::string_view rest;
};

/** What stands between parentheses: "003432.827*kWh". */
struct P1Value
{
    /** Empty unless it is made of digits with at most one point between them. */
    std::optional<double> number;
    std::string_view unit;
};

P1Value parseP1Value(std::string_view text);

/** @p text without blanks and line ends around it. */
std::string_view trimmed(std::string_view text);

#endif
