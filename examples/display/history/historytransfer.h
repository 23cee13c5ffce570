// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYTRANSFER_H
#define HISTORYTRANSFER_H

#include "household.h"

#include <QString>
#include <QStringList>
#include <QTimeZone>
#include <functional>
#include <optional>

class QIODevice;

/** What readings that go into or out of a history come to. */
struct Transfer
{
    bool succeeded = false;
    /** One line in English: how much was kept or written, or why nothing was. */
    QString text;
    /** What is wrong with the files, one line each. */
    QStringList problems;
};

/**
 * Keeps the readings of @p files, see Readings::loadReadings(), in the history of a directory,
 * which is made if need be; @p zone is the clock of the house. Doing it again changes nothing. A
 * display may have the history open; it shows the readings after its next start.
 *
 * Amounts that readings tell already are not kept. What is older than Readings::fineHistory is kept
 * by the hour.
 */
Transfer importReadings(const QStringList &files, const QString &directory, const QTimeZone &zone);

/**
 * Writes the history of a directory to @p path in the program's own CSV format: a row for each hour
 * (or quarter of one, where the clock of @p zone does not run by whole hours), and one for each
 * reading and amount of which less would make the charts others. A file is complete or not there.
 */
Transfer exportReadings(const QString &path, const QString &directory, const QTimeZone &zone);

/** The history of a directory in the clock of @p zone; empty for the reason in @p failed. */
std::optional<Readings::Household> readHistory(const QString &directory, const QTimeZone &zone,
                                               Transfer *failed);

/**
 * Writes a file with @p write, which returns how many rows it wrote. A file is complete or not
 * there.
 */
Transfer writeRows(const QString &path, const std::function<int(QIODevice *)> &write);

#endif
