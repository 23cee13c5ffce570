// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttcredentials.h"

#include <QFile>
#include <QList>

#include <sys/stat.h>

namespace {

constexpr mode_t ownersAlone = 0600;
constexpr mode_t permissions = 07777;
constexpr qint64 mostBytes = 4096;

/** Why an open file is not to be believed; empty if it is. */
QString objection(const QFile &file)
{
    // Of the file that is open, and not of one that takes its name meanwhile.
    struct stat status
    {
    };
    if (::fstat(file.handle(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return QStringLiteral("it is no file");
    }
    const mode_t mode = status.st_mode & permissions;
    if (mode != ownersAlone) {
        return QStringLiteral("its mode is 0%1 and must be 0600, so that nobody else can read the "
                              "password: chmod 600")
            .arg(mode, 3, 8, QLatin1Char('0'));
    }
    return QString();
}

} // namespace

MqttCredentials readMqttCredentials(const QString &path, QString *problem)
{
    const auto refuse = [&](const QString &why) {
        *problem = QStringLiteral("%1: %2").arg(path, why);
        return MqttCredentials();
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return refuse(QStringLiteral("cannot be opened: %1").arg(file.errorString()));
    }
    if (const QString why = objection(file); !why.isEmpty()) {
        return refuse(why);
    }
    QList<QByteArray> lines = file.read(mostBytes).replace("\r\n", "\n").split('\n');
    if (lines.size() > 2 && lines.constLast().isEmpty()) {
        lines.removeLast();
    }
    if (lines.size() != 2 || lines.at(0).isEmpty() || lines.at(1).isEmpty()) {
        return refuse(QStringLiteral("it must have two lines, the user and the password"));
    }
    return {lines.at(0), lines.at(1)};
}
