// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_PROBLEMLIST_H
#define READINGS_PROBLEMLIST_H

#include <QString>
#include <QStringList>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace Readings {

/**
 * Gathers what is wrong in files, one line each, and keeps the list short: of the many problems of
 * one kind in a file only the first few are told, and then how many more there are.
 */
class ProblemList
{
public:
    enum class Kind {
        /** The file as a whole; never cut short. */
        File,
        /** A row that cannot be read. */
        BrokenRow,
        /** A time that the clock skips. */
        SkippedTime,
        /** A second, other value for the same time. */
        Contradiction,
        /** A reading that does not fit in with those around it. */
        WrongReading,
    };

    /** So many problems of one kind are told for each file. */
    static constexpr int toldPerKind = 5;

    /** Begins the problems of a file that is called @p path; returns its number. */
    int addFile(const QString &path);

    /** Adds a problem of a line, or of the file as a whole where @p line is 0. */
    void add(int file, int line, Kind kind, const QString &what);

    /** The lines: in the order of the files, and in a file in the order of its lines. */
    QStringList lines() const;

private:
    struct Problem
    {
        int file;
        int line;
        QString what;
    };

    QStringList files;
    std::vector<Problem> problems;
    std::map<std::pair<int, Kind>, int> counts;
};

/**
 * A text of a file for use in a message: in double quotes, cut to a line's length, and with a
 * question mark for each character that is not to be printed.
 */
QString quoted(std::string_view text);

} // namespace Readings

#endif
