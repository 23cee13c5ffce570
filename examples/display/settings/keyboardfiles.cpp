// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardfiles.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace {

const QString filePrefix = QStringLiteral("keyboard_");
const QString fileSuffix = QStringLiteral(".xml");

QString problemOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    }
    QXmlStreamReader reader(&file);
    if (reader.readNextStartElement() && reader.name() != QLatin1String("keyboard")) {
        return QStringLiteral("%1:%2: not a keyboard, but <%3>")
            .arg(path)
            .arg(reader.lineNumber())
            .arg(reader.name().toString());
    }
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError()
        ? QStringLiteral("%1:%2: %3").arg(path).arg(reader.lineNumber()).arg(reader.errorString())
        : QString();
}

} // namespace

namespace KeyboardFiles {

QStringList languagesIn(const QString &directory)
{
    const QStringList files =
        QDir(directory).entryList({filePrefix + QStringLiteral("??") + fileSuffix});
    QStringList languages;
    for (const QString &file : files) {
        languages << file.mid(filePrefix.size(), 2);
    }
    return languages;
}

QStringList problemsIn(const QString &directory)
{
    // Without the English one a language that is not there has nothing to fall back on.
    QStringList names = languagesIn(directory);
    names << QStringLiteral("en") << QStringLiteral("numpad");
    names.removeDuplicates();
    QStringList problems;
    for (const QString &name : names) {
        const QString problem = problemOf(QDir(directory).filePath(filePrefix + name + fileSuffix));
        if (!problem.isEmpty()) {
            problems << problem;
        }
    }
    return problems;
}

} // namespace KeyboardFiles
