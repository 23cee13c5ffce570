// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QString>
#include <QStringList>
#include <QVector>

/** What a catalogue of translations, a .ts file, holds, and what it should. */
namespace Catalogue {

struct Entry
{
    QString source; ///< with its context in front
    QStringList translations; ///< one, or one for each plural form of the language
    bool isPlural;
    bool isFinished;
};

QVector<Entry> entriesOf(const QString &path);

/**
 * What is wrong with the catalogue at @p path of the texts in @p sources, directories or files: an
 * entry that is missing, not finished or of no text any more, a plural form too few, a place to be
 * filled in that only one side has, or a text that lupdate cannot make an entry of. Empty if
 * nothing is.
 */
QStringList problemsOf(const QString &path, const QStringList &sources);

} // namespace Catalogue

#endif
