// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "backlight.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

// The values of FB_BLANK_UNBLANK and FB_BLANK_POWERDOWN of Linux.
constexpr char lightOn[] = "0\n";
constexpr char lightOff[] = "4\n";

} // namespace

Backlight::Backlight(const QString &directory)
{
    const QDir lights(directory);
    const QStringList names = lights.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QString file = lights.filePath(name + QStringLiteral("/bl_power"));
        if (QFile::exists(file)) {
            switchFile = file;
            return;
        }
    }
}

QString Backlight::setLit(bool lit)
{
    if (!isThere()) {
        return QString();
    }
    QFile file(switchFile);
    const QByteArray value(lit ? lightOn : lightOff);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        || file.write(value) != value.size()) {
        return QCoreApplication::translate("Backlight", "%1: the backlight cannot be switched: %2")
            .arg(switchFile, file.errorString());
    }
    return QString();
}
