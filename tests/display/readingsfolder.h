// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGSFOLDER_H
#define READINGSFOLDER_H

#include "readingsfile.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QtGlobal>
#include <optional>

constexpr qint64 oneHour = 3600;
constexpr qint64 oneMinute = 60;

using Amount = std::optional<double>;

/** The instant of a UTC time such as "2024-05-01T10:00:00". */
inline qint64 utc(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso) + QLatin1Char('Z'), Qt::ISODate)
        .toSecsSinceEpoch();
}

/** A folder of files with readings, which is gone after the test. */
class ReadingsFolder
{
public:
    /** Writes a file and returns its path. */
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the test cannot write its file");
        }
        return file.fileName();
    }

    /** Loads a file of this content; its problems are told of "FILE". */
    Readings::Household load(const QByteArray &content)
    {
        const QString file = write(QStringLiteral("readings.csv"), content);
        Readings::Household household = Readings::loadReadings({file});
        for (QString &line : household.problems) {
            line.replace(file, QStringLiteral("FILE"));
        }
        return household;
    }

    QString path() const { return folder.path(); }
    QString filePath(const QString &name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

#endif
