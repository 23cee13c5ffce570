// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QTCOMPAT_P_H
#define QTCOMPAT_P_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <QXmlStreamReader>

/** Where the versions of Qt from 5.15 on differ. */
namespace QtCompat {

/** What made a file no XML, in the parser's words and count; nothing did when there is no message.
 */
struct XmlFault
{
    QString message;
    qint64 line = 0;
    qint64 column = 0;
};

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/**
 * Makes @p document of @p content, whose entities have up to @p entityLimit characters each. Qt 5
 * has a parser of its own for documents and no such limit; Qt 6 reads them with a QXmlStreamReader,
 * which allows 4096 unless it is told otherwise.
 */
inline XmlFault parse(QDomDocument *document, const QByteArray &content, int /*entityLimit*/)
{
    XmlFault fault;
    int line = 0;
    int column = 0;
    document->setContent(content, false, &fault.message, &line, &column);
    fault.line = line;
    fault.column = column;
    return fault;
}

#elif QT_VERSION < QT_VERSION_CHECK(6, 5, 0)

/** Qt 6.5 has brought the result of its own, and Qt 6.8 made this way deprecated. */
inline XmlFault parse(QDomDocument *document, const QByteArray &content, int entityLimit)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(entityLimit);
    XmlFault fault;
    int line = 0;
    int column = 0;
    document->setContent(&reader, false, &fault.message, &line, &column);
    fault.line = line;
    fault.column = column;
    return fault;
}

#else

inline XmlFault parse(QDomDocument *document, const QByteArray &content, int entityLimit)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(entityLimit);
    const QDomDocument::ParseResult result = document->setContent(&reader);
    return {result.errorMessage, result.errorLine, result.errorColumn};
}

#endif

} // namespace QtCompat

#endif
