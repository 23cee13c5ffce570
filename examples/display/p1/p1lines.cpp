// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1lines.h"

#include "csvreader.h"

#include <algorithm>

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view digits = "0123456789";

/** "1-0:1.8.1": digits, and between them the signs '-', ':' and '.'. */
bool isCode(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789-:.") == std::string_view::npos
        && text.find(':') != std::string_view::npos;
}

/** Adds what stands in parentheses to @p values; false if there is anything else. */
bool addValues(std::string_view text, std::vector<std::string_view> &values)
{
    while (!text.empty()) {
        const std::size_t end = text.find(')');
        if (text.front() != '(' || end == std::string_view::npos) {
            return false;
        }
        values.push_back(text.substr(1, end - 1));
        text.remove_prefix(end + 1);
    }
    return true;
}

} // namespace

bool P1LineReader::next(P1Line &line)
{
    line = P1Line();
    line.text = nextFilled();
    if (line.text.empty()) {
        return false;
    }
    const std::size_t codeEnd = std::min(line.text.find('('), line.text.size());
    line.code = line.text.substr(0, codeEnd);
    bool readable = isCode(line.code) && addValues(line.text.substr(codeEnd), line.values);

    std::string_view before = rest;
    for (std::string_view more = nextFilled(); !more.empty() && more.front() == '(';
         more = nextFilled()) {
        readable = addValues(more, line.values) && readable;
        before = rest;
    }
    rest = before;
    if (!readable) {
        line.code = std::string_view();
        line.values.clear();
    }
    return true;
}

std::string_view P1LineReader::nextFilled()
{
    std::string_view line;
    while (line.empty() && !rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        line = trimmed(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return line;
}

P1Value parseP1Value(std::string_view text)
{
    P1Value value;
    const std::size_t star = std::min(text.find('*'), text.size());
    const std::string_view number = text.substr(0, star);
    value.unit = text.substr(std::min(star + 1, text.size()));

    const std::size_t point = number.find_first_not_of(digits);
    const bool isPlain = point == std::string_view::npos
        || (number[point] == '.' && point > 0 && point + 1 < number.size()
            && number.find_first_not_of(digits, point + 1) == std::string_view::npos);
    if (isPlain) {
        value.number = Readings::parseNumber(number, '.');
    }
    return value;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return std::string_view();
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}
