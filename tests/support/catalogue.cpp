// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include "zemtest.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <algorithm>

namespace {

/** The places of what is filled in, sorted: "%1", "%2". */
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%L?[1-9n]"));
    QStringList places;
    auto found = place.globalMatch(text);
    while (found.hasNext()) {
        places << found.next().captured();
    }
    places.sort();
    return places;
}

/** How many plural forms @p language, "pl", has. */
int formsIn(const QString &language)
{
    return language == QLatin1String("pl") ? 3 : 2;
}

/** Whether there are words for every number. */
bool saysEverything(const Catalogue::Entry &entry, int forms)
{
    return entry.isFinished && entry.translations.size() == (entry.isPlural ? forms : 1)
        && !entry.translations.contains(QString());
}

/** Whether every form has the places of the text. */
bool fillsInTheSame(const Catalogue::Entry &entry)
{
    return std::all_of(
        entry.translations.begin(), entry.translations.end(),
        [&](const QString &text) { return placesIn(text) == placesIn(entry.source); });
}

/** A translation at which @p reader stands: its text, or that of each plural form. */
QStringList translationsAt(QXmlStreamReader *reader, bool isPlural)
{
    if (!isPlural) {
        return {reader->readElementText()};
    }
    QStringList forms;
    while (reader->readNextStartElement()) {
        forms << reader->readElementText();
    }
    return forms;
}

/**
 * A copy of the catalogue at @p path, as lupdate brings it up to date with @p sources. What it has
 * to say about them is added to @p problems.
 */
QVector<Catalogue::Entry> updated(const QString &path, const QStringList &sources,
                                  QStringList *problems)
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
    *problems += QString::fromUtf8(update.readAllStandardError())
                     .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
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
    bool isPlural = false;
    while (reader.readNext() != QXmlStreamReader::Invalid && !reader.atEnd()) {
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            isPlural = reader.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            entries.append({context + QStringLiteral(": ") + source,
                            translationsAt(&reader, isPlural), isPlural, isFinished});
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
    const int forms = formsIn(QFileInfo(path).baseName().section(QLatin1Char('_'), 1));
    for (const Entry &entry : updated(path, sources, &problems)) {
        wanted << entry.source;
        if (!saysEverything(entry, forms)) {
            problems << QStringLiteral("%1 is missing").arg(entry.source);
        } else if (!fillsInTheSame(entry)) {
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
