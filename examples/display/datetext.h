// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DATETEXT_H
#define DATETEXT_H

#include <QDate>
#include <QDateTime>
#include <QString>

/**
 * @p date in a @p format of QLocale::toString(), by the default QLocale; in French the first of a
 * month is "1er".
 */
QString dateText(const QDate &date, const QString &format);
QString dateText(const QDateTime &time, const QString &format);

#endif
