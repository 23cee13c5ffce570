// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WRITERLOCK_H
#define WRITERLOCK_H

#include <QFile>
#include <QString>

/**
 * Lets one program of many be the writer.
 *
 * The lock goes with the process that has it, however that ends. QLockFile would not do: it leaves
 * a file that says who wrote, and after a power cut and under another host name that lock is never
 * given back.
 */
class WriterLock
{
public:
    enum class Answer { Mine, Taken, Failed };

    /** Asks for the lock at @p path, a file that is made if need be and stays. */
    Answer acquire(const QString &path);
    bool isMine() const { return mine; }

private:
    QFile file;
    bool mine = false;
};

#endif
