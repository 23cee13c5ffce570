// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_JSONREADER_H
#define READINGS_JSONREADER_H

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Readings {

/**
 * Reads a JSON file that a person wrote. Empty if that cannot be done, for the reason in
 * @p problem: "FILE: what", or "FILE:LINE:COLUMN: what" where it is no JSON.
 */
QJsonDocument loadJson(const QString &path, QString *problem);
/** The same of a @p text that was read from a file of that @p name. */
QJsonDocument parseJson(const QString &name, const QByteArray &text, QString *problem);

/** What all readers of such a file share: the first problem is told, with its place in the file. */
class JsonReader
{
public:
    /** "values[3].unit: what is wrong", in English; empty if all is well. */
    QString problem() const { return firstProblem; }

protected:
    void note(const QString &place, const QString &what);
    /** Notes every key of an object but @p known and "comment". */
    void checkKeys(const QJsonObject &object, const QString &place, const QStringList &known);
    /** The place of a key in the object at @p place. */
    static QString below(const QString &place, const QString &key);

private:
    QString firstProblem;
};

} // namespace Readings

#endif
