// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include "zemtest.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <algorithm>

namespace {

/** The places of what is filled in, sorted: "%1", "%2". */
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%[1-9n]"));
    QStringList places;
    auto found = place.globalMatch(text);
    while (found.hasNext()) {
        places << found.next().captured();
    }
    places.sort();
    return places;
}

/** A copy of the catalogue at @p path, as lupdate brings it up to date with @p sources. */
QVector<Catalogue::Entry> updated(const QString &path, const QStringList &sources)
{
    const QTemporaryDir directory;
    const QString copy = directory.filePath(QStringLiteral("copy.ts"));
    if (!QFile::copy(path, copy)
        || !QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        qFatal("%s cannot be copied", qPrintable(path));
    }
    const QStringList options {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                               QStringLiteral("-locations"), QStringLiteral("none")};
    QProcess update;
    update.start(QStringLiteral(LUPDATE),
                 options + sources + QStringList {QStringLiteral("-ts"), copy});
    if (!update.waitForFinished(ZemTest::hangs) || update.exitCode() != 0) {
        qFatal("lupdate failed: %s", update.readAllStandardError().constData());
    }
    return Catalogue::entriesOf(copy);
}

} // namespace

namespace Catalogue {

QVector<Entry> entriesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(path));
    }
    QXmlStreamReader reader(&file);
    QVector<Entry> entries;
    QString context;
    QString source;
    while (reader.readNext() != QXmlStreamReader::Invalid && !reader.atEnd()) {
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            entries.append({context + QStringLiteral(": ") + source,
                            reader.readElementText(QXmlStreamReader::IncludeChildElements),
                            isFinished});
        }
    }
    if (reader.hasError()) {
        qFatal("%s is broken: %s", qPrintable(path), qPrintable(reader.errorString()));
    }
    return entries;
}

QStringList problemsOf(const QString &path, const QStringList &sources)
{
    QStringList problems;
    QStringList wanted;
    for (const Entry &entry : updated(path, sources)) {
        wanted << entry.source;
        if (!entry.isFinished || entry.translation.isEmpty()) {
            problems << QStringLiteral("%1 is missing").arg(entry.source);
        } else if (placesIn(entry.translation) != placesIn(entry.source)) {
            problems << QStringLiteral("%1 fills in something else").arg(entry.source);
        }
    }
    for (const Entry &entry : entriesOf(path)) {
        if (!wanted.contains(entry.source)) {
            problems << QStringLiteral("%1 is said nowhere").arg(entry.source);
        }
    }
    return problems;
}

} // namespace Catalogue
