// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "csvreader.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace Readings {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t longestNumber = 64;

} // namespace

CsvReader::CsvReader(const QString &filePath) : path(filePath), file(filePath) { }

QString CsvReader::open()
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return QCoreApplication::translate("Readings", "no such file");
    }
    if (info.isDir()) {
        return QCoreApplication::translate("Readings", "is a directory");
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return QCoreApplication::translate("Readings", "cannot be opened: %1")
            .arg(file.errorString());
    }
    return {};
}

bool CsvReader::nextLine()
{
    if (tooLong) {
        skipRestOfLine();
    }
    const qint64 length = file.readLine(buffer.data(), buffer.size());
    if (length <= 0) {
        return false;
    }
    ++number;
    text = std::string_view(buffer.data(), static_cast<std::size_t>(length));
    tooLong = length == longestLine && text.back() != '\n';
    if (tooLong) {
        return true;
    }
    if (text.back() == '\n') {
        text.remove_suffix(1);
    }
    if (!text.empty() && text.back() == '\r') {
        text.remove_suffix(1);
    }
    if (number == 1 && text.substr(0, byteOrderMark.size()) == byteOrderMark) {
        text.remove_prefix(byteOrderMark.size());
    }
    return true;
}

QString CsvReader::readError() const
{
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

bool CsvReader::split(std::string_view line, char separator, std::vector<std::string_view> &fields)
{
    fields.clear();
    for (;;) {
        std::size_t next = 0;
        if (!line.empty() && line.front() == '"') {
            const std::size_t end = line.find('"', 1);
            if (end == std::string_view::npos) {
                return false;
            }
            fields.push_back(line.substr(1, end - 1));
            next = end + 1;
            if (next < line.size() && line[next] != separator) {
                return false;
            }
        } else {
            next = std::min(line.find(separator), line.size());
            fields.push_back(line.substr(0, next));
        }
        if (next >= line.size()) {
            return true;
        }
        line.remove_prefix(next + 1);
    }
}

// Not before the next line is asked for: a device may have lines without end.
void CsvReader::skipRestOfLine()
{
    std::array<char, longestLine + 1> rest {};
    for (;;) {
        const qint64 length = file.readLine(rest.data(), rest.size());
        if (length <= 0 || rest[static_cast<std::size_t>(length) - 1] == '\n') {
            return;
        }
    }
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

std::optional<double> parseNumber(std::string_view text, char decimalSign)
{
    static constexpr std::string_view letters = "0123456789+-eE";
    std::array<char, longestNumber> plain {};
    if (text.size() > plain.size()) {
        return std::nullopt;
    }
    // Only what numbers are made of, so that "inf", "nan" and the other decimal sign do not pass.
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == decimalSign) {
            plain[i] = '.';
        } else if (letters.find(text[i]) != std::string_view::npos) {
            plain[i] = text[i];
        } else {
            return std::nullopt;
        }
    }
    double value = 0.0;
    const char *const end = plain.data() + text.size();
    const std::from_chars_result result = std::from_chars(plain.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

} // namespace Readings
