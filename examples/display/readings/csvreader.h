// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_CSVREADER_H
#define READINGS_CSVREADER_H

#include <QFile>
#include <QString>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace Readings {

/**
 * Reads a text file line by line, without ever holding more than one line.
 *
 * Lines end with LF or CRLF, the last one may lack its end; a byte order mark is left out.
 */
class CsvReader
{
public:
    explicit CsvReader(const QString &path);

    /** Opens the file; returns what hinders, in English, or an empty text. */
    QString open();

    /** Goes to the next line; false at the end of the file, and where reading fails. */
    bool nextLine();

    /** The line without its end; valid until the next call. */
    std::string_view line() const { return text; }
    /** The number of the line, from 1 on. */
    int lineNumber() const { return number; }
    /** The line is longer than any row of readings, and line() is only its beginning. */
    bool isTooLong() const { return tooLong; }
    /** Why reading ended before the end of the file, or an empty text. */
    QString readError() const;

    /**
     * Takes a line apart. A field may stand in double quotes, which are taken off. Returns false
     * if a quote is not closed, or something stands between it and the next separator.
     */
    static bool split(std::string_view line, char separator, std::vector<std::string_view> &fields);

private:
    static constexpr int longestLine = 16384;

    void skipRestOfLine();

    QString path;
    QFile file;
    std::array<char, longestLine + 1> buffer {};
    std::string_view text;
    int number = 0;
    bool tooLong = false;
};

/** The text without the blanks before and behind it. */
std::string_view trimmed(std::string_view text);

/**
 * Reads a decimal number, with @p decimalSign between whole and fraction. Empty unless the whole
 * text is a number that a double can hold: digits with an optional sign, fraction and exponent.
 */
std::optional<double> parseNumber(std::string_view text, char decimalSign);

} // namespace Readings

#endif
