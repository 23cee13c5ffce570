// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sourcelines.h"

namespace {

constexpr int step = 8; // characters, by which the rest of a broken line is moved in

bool isLicence(const QString &line)
{
    return line.startsWith(QLatin1String("// SPDX"));
}

int indentOf(const QString &line)
{
    int indent = 0;
    while (indent < line.size() && line.at(indent) == QLatin1Char(' ')) {
        ++indent;
    }
    return indent;
}

QStringList broken(QString line, int columns)
{
    QStringList lines;
    const int indent = qMin(indentOf(line) + step, columns / 2);
    while (line.size() > columns) {
        const int blank = line.lastIndexOf(QLatin1Char(' '), columns);
        const int end = blank > indent ? blank : columns;
        lines.append(line.left(end));
        line = QString(indent, QLatin1Char(' ')) + line.mid(end).trimmed();
    }
    lines.append(line);
    return lines;
}

} // namespace

QStringList pagesOfSource(const QString &text, int columns, int rows)
{
    QStringList lines;
    for (const QString &line : text.trimmed().split(QLatin1Char('\n'))) {
        const bool isAtStart = lines.isEmpty();
        if (!isAtStart || !(isLicence(line) || line.isEmpty())) {
            lines += broken(line, columns);
        }
    }
    QStringList pages;
    for (int i = 0; i < lines.size(); i += rows) {
        pages.append(lines.mid(i, rows).join(QLatin1Char('\n')));
    }
    return pages;
}
