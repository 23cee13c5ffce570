// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1PIPELINK_H
#define P1PIPELINK_H

#include "p1link.h"

#include <memory>

class QSocketNotifier;

/** Telegrams from standard input, or from a named pipe into which another program writes. */
class P1PipeLink : public P1Link
{
    Q_OBJECT

public:
    /** Standard input if @p path is empty. */
    explicit P1PipeLink(const QString &path, QObject *parent = nullptr);
    ~P1PipeLink() override;

    void start() override;

private:
    void open();
    void read();
    void close();

    const QString path;
    int descriptor = -1;
    std::unique_ptr<QSocketNotifier> notifier;
};

#endif
