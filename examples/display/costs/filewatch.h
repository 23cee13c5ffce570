// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_FILEWATCH_H
#define COSTS_FILEWATCH_H

#include <QDateTime>
#include <QStringList>
#include <utility>
#include <vector>

namespace Costs {

/** Tells when files are others than they were. */
class FileWatch
{
public:
    explicit FileWatch(const QStringList &watchedFiles);

    /** Whether one of them was written, came or went since the last call, or since the beginning.
     */
    bool hasChanged();

private:
    using States = std::vector<std::pair<QDateTime, qint64>>;
    States present() const;

    QStringList files;
    States states;
};

} // namespace Costs

#endif
