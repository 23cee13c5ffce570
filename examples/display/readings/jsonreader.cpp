// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "jsonreader.h"

#include <QFile>
#include <algorithm>

namespace Readings {

namespace {

constexpr qint64 largestFile = 1 << 20; // bytes

/** "line:column" of the byte before the @p offset, at which a parser gave up; both from 1 on. */
QString placeOf(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(std::max(offset - 1, 0));
    return QStringLiteral("%1:%2")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1);
}

} // namespace

QJsonDocument loadJson(const QString &path, QString *problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = QStringLiteral("%1: cannot be opened: %2").arg(path, file.errorString());
        return {};
    }
    if (file.size() > largestFile) {
        *problem = QStringLiteral("%1: it is too large").arg(path);
        return {};
    }
    return parseJson(path, file.readAll(), problem);
}

QJsonDocument parseJson(const QString &name, const QByteArray &text, QString *problem)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        *problem =
            QStringLiteral("%1:%2: %3").arg(name, placeOf(text, error.offset), error.errorString());
    }
    return document;
}

void JsonReader::note(const QString &place, const QString &what)
{
    if (firstProblem.isEmpty()) {
        firstProblem = place.isEmpty() ? what : QStringLiteral("%1: %2").arg(place, what);
    }
}

void JsonReader::checkKeys(const QJsonObject &object, const QString &place,
                           const QStringList &known)
{
    for (const QString &key : object.keys()) {
        if (key != QLatin1String("comment") && !known.contains(key)) {
            note(below(place, key),
                 QStringLiteral("is not known; there is %1").arg(known.join(QStringLiteral(", "))));
        }
    }
}

QString JsonReader::below(const QString &place, const QString &key)
{
    return place.isEmpty() ? key : place + QLatin1Char('.') + key;
}

} // namespace Readings
