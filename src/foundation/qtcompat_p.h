// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QTCOMPAT_P_H
#define QTCOMPAT_P_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/** Where the versions of Qt from 5.15 on differ. */
namespace QtCompat {

/** What made a file no XML; nothing did when there is no message. Lines and columns count from 1.
 */
struct XmlFault
{
    QString message;
    qint64 line = 0;
    qint64 column = 0;
};

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)

/** Qt 6.5 has brought the result of its own, and Qt 6.8 made the other way deprecated. */
inline XmlFault parse(QDomDocument *document, const QByteArray &content)
{
    XmlFault fault;
    int line = 0;
    int column = 0;
    document->setContent(content, false, &fault.message, &line, &column);
    fault.line = line;
    fault.column = column;
    return fault;
}

#else

inline XmlFault parse(QDomDocument *document, const QByteArray &content)
{
    const QDomDocument::ParseResult result = document->setContent(content);
    return {result.errorMessage, result.errorLine, result.errorColumn};
}

#endif

} // namespace QtCompat

#endif
