// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "filewatch.h"

#include <QFileInfo>

namespace Costs {

FileWatch::FileWatch(const QStringList &watchedFiles) : files(watchedFiles), states(present()) { }

bool FileWatch::hasChanged()
{
    const States before = std::exchange(states, present());
    return states != before;
}

FileWatch::States FileWatch::present() const
{
    States found;
    for (const QString &path : files) {
        const QFileInfo info(path);
        found.emplace_back(info.lastModified(), info.size());
    }
    return found;
}

} // namespace Costs
