// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYRUN_H
#define DISPLAYRUN_H

#include "zemtest.h"

#include <QProcess>
#include <QString>
#include <QStringList>

/** Runs zemkit-display, which DISPLAY_PROGRAM names, to its end. */
namespace DisplayRun {

struct Result
{
    int status = -1;
    QString output;
    QString errors;
};

inline Result run(const QStringList &arguments, const QStringList &environment = {})
{
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + environment);
    process.start(QStringLiteral(DISPLAY_PROGRAM), arguments);
    Result result;
    if (process.waitForFinished(ZemTest::hangs) && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    for (const QByteArray &line : process.readAllStandardError().split('\n')) {
        // What the offscreen platform says of each window with a fixed size.
        if (!line.isEmpty() && !line.contains("propagateSizeHints")) {
            result.errors += QString::fromUtf8(line) + QLatin1Char('\n');
        }
    }
    return result;
}

} // namespace DisplayRun

#endif
