// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "writerlock.h"

#include <cerrno>
#include <sys/file.h>

WriterLock::Answer WriterLock::acquire(const QString &path)
{
    file.setFileName(path);
    if (!file.isOpen() && !file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return Answer::Failed;
    }
    mine = ::flock(file.handle(), LOCK_EX | LOCK_NB) == 0;
    if (mine) {
        return Answer::Mine;
    }
    return errno == EWOULDBLOCK ? Answer::Taken : Answer::Failed;
}
