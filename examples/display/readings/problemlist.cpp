// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "problemlist.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

namespace Readings {

namespace {

constexpr int longestQuotation = 60;
constexpr int afterLastLine = std::numeric_limits<int>::max();

QString moreOf(ProblemList::Kind kind, int count)
{
    switch (kind) {
    case ProblemList::Kind::File:
        break;
    case ProblemList::Kind::BrokenRow:
        return QCoreApplication::translate("Readings", "%n more broken rows, left out", nullptr,
                                           count);
    case ProblemList::Kind::SkippedTime:
        return QCoreApplication::translate(
            "Readings", "%n more rows at times that the clock skips, left out", nullptr, count);
    case ProblemList::Kind::Contradiction:
        return QCoreApplication::translate(
            "Readings", "%n more values that contradict earlier ones, left out", nullptr, count);
    case ProblemList::Kind::WrongReading:
        return QCoreApplication::translate("Readings", "%n more readings that do not fit in",
                                           nullptr, count);
    }
    return QCoreApplication::translate("Readings", "%n more problems", nullptr, count);
}

} // namespace

int ProblemList::addFile(const QString &path)
{
    files.append(path);
    return files.size() - 1;
}

void ProblemList::add(int file, int line, Kind kind, const QString &what)
{
    const int count = ++counts[{file, kind}];
    if (kind == Kind::File || count <= toldPerKind) {
        problems.push_back({file, line, what});
    }
}

QStringList ProblemList::lines() const
{
    std::vector<Problem> all = problems;
    for (const auto &entry : counts) {
        const int untold = entry.second - toldPerKind;
        if (entry.first.second != Kind::File && untold > 0) {
            all.push_back({entry.first.first, afterLastLine, moreOf(entry.first.second, untold)});
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const Problem &left, const Problem &right) {
        return std::pair(left.file, left.line) < std::pair(right.file, right.line);
    });

    QStringList texts;
    for (const Problem &problem : all) {
        QString text = files.at(problem.file) + QLatin1Char(':');
        if (problem.line > 0 && problem.line != afterLastLine) {
            text += QString::number(problem.line) + QLatin1Char(':');
        }
        texts.append(text + QLatin1Char(' ') + problem.what);
    }
    return texts;
}

QString quoted(std::string_view text)
{
    // More bytes than these cannot be seen in the message.
    constexpr std::size_t mostBytes = std::size_t(4) * (longestQuotation + 1);
    const std::string_view start = text.substr(0, mostBytes);
    QString shown = QString::fromUtf8(start.data(), static_cast<int>(start.size()));
    for (QChar &letter : shown) {
        if (!letter.isPrint() && !letter.isSurrogate()) {
            letter = QLatin1Char('?');
        }
    }
    if (shown.size() > longestQuotation) {
        shown = shown.left(longestQuotation) + QStringLiteral("...");
    }
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

} // namespace Readings
