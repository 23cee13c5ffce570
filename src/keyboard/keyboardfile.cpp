// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardfile_p.h"

#include "qtcompat_p.h"

#include <QDebug>
#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QWidget>
#include <QXmlStreamReader>

#include <cmath>
#include <limits>

namespace KeyboardFile {

namespace {

void reportParseError(qint64 line, qint64 column, const QString &message)
{
    qDebug() << "Error: Parse error at line " << line << ", "
             << "column " << column << ": " << message;
}

/** Takes an entity that nobody declared for empty, as QDomDocument does. */
class UnknownEntities : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return QStringLiteral(""); }
};

/** The entities that a file declares, and what they make of it. */
class Entities
{
public:
    explicit Entities(const QString &content) : text(withoutEscapes(content))
    {
        static const QRegularExpression declaration(
            QStringLiteral("<!ENTITY\\s+(%\\s+)?([^\\s\"']+)\\s+(?:\"([^\"]*)\"|'([^']*)')"));
        auto matches = declaration.globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QChar sign = QLatin1Char(match.capturedLength(1) > 0 ? '%' : '&');
            const QString meaning = match.captured(3) + match.captured(4);
            // Of several meanings all count.
            meanings[sign + match.captured(2)] += meaning;
            allLength += meaning.size();
        }
    }

    /** By how many characters the file grows at most; no more than just beyond the limit. */
    qint64 growth() { return growthOf(text, 0); }

private:
    /** An escaped reference is one when the entity around it is used. */
    static QString withoutEscapes(const QString &content)
    {
        static const QRegularExpression escape(QStringLiteral("&#(?:x([0-9a-fA-F]+)|([0-9]+));"));
        QString plain;
        int from = 0;
        auto matches = escape.globalMatch(content);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const bool isHex = match.capturedLength(1) > 0;
            const ushort code =
                isHex ? match.captured(1).toUShort(nullptr, 16) : match.captured(2).toUShort();
            // No quotation mark of its own ends a meaning.
            if (code != 0 && code != '"' && code != '\'') {
                plain += content.mid(from, match.capturedStart() - from) + QChar(code);
                from = match.capturedEnd();
            }
        }
        return plain + content.mid(from);
    }

    static bool isCharacter(const QString &name)
    {
        static const QStringList predefined {QStringLiteral("&amp"), QStringLiteral("&lt"),
                                             QStringLiteral("&gt"), QStringLiteral("&quot"),
                                             QStringLiteral("&apos")};
        return name.startsWith(QLatin1String("&#")) || predefined.contains(name);
    }

    qint64 growthOf(const QString &content, int level)
    {
        constexpr int levelLimit = 16;
        static const QRegularExpression reference(QStringLiteral("([&%][^\\s;&%<]+);"));
        qint64 growth = 0;
        auto matches = reference.globalMatch(content);
        while (matches.hasNext() && growth <= growthLimit) {
            const QString name = matches.next().captured(1);
            if (!meanings.contains(name)) {
                // It may have been declared by what another one stands for.
                growth += isCharacter(name) ? 0 : allLength;
                continue;
            }
            if (!lengths.contains(name)) {
                const QString meaning = meanings.value(name);
                lengths[name] = level < levelLimit ? meaning.size() + growthOf(meaning, level + 1)
                                                   : growthLimit + 1;
            }
            growth += lengths.value(name);
        }
        return growth;
    }

    QString text;
    QHash<QString, QString> meanings; // by the sign and the name of a reference
    qint64 allLength = 0; // of the meanings
    QHash<QString, qint64> lengths;
};

/** Whether what the entities of @p content make of it is small enough to be read at all. */
bool growsLittle(const QByteArray &content)
{
    const int place = content.indexOf("<!ENTITY");
    if (place < 0 || Entities(QString::fromLatin1(content)).growth() <= growthLimit) {
        return true;
    }
    const QByteArray before = content.left(place);
    reportParseError(before.count('\n') + 1, place - before.lastIndexOf('\n'),
                     QStringLiteral("entities make the file too large"));
    return false;
}

/** Whether QDomDocument can be trusted with the nesting of @p content; it calls itself for each. */
bool isFlatEnough(const QByteArray &content)
{
    UnknownEntities unknownEntities;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    reader.setEntityResolver(&unknownEntities);
    reader.setEntityExpansionLimit(growthLimit);
    int depth = 0;
    while (!reader.atEnd() && depth <= depthLimit) {
        reader.readNext();
        depth += reader.isStartElement() ? 1 : 0;
        depth -= reader.isEndElement() ? 1 : 0;
    }
    // Errors are left to QDomDocument, which tells them in its own words or forgives them.
    if (depth <= depthLimit && !(reader.hasError() && content.count('<') > depthLimit)) {
        return true;
    }
    reportParseError(reader.lineNumber(), reader.columnNumber(),
                     reader.hasError() ? reader.errorString()
                                       : QStringLiteral("elements are nested too deeply"));
    return false;
}

bool fitsInt(double value)
{
    return value > std::numeric_limits<int>::min() && value < std::numeric_limits<int>::max();
}

/** NaN if @p attribute is not a number. */
double number(const QString &attribute)
{
    bool ok = false;
    const double value = attribute.toDouble(&ok);
    return ok ? value : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

bool read(const QString &fileName, QDomDocument *document)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "Error: Cannot read file " << fileName << ": " << file.errorString();
        return false;
    }
    const QByteArray content = file.readAll();
    // Without the zeros of UTF-16, what declares and uses entities is there to be found.
    if (!growsLittle(QByteArray(content).replace('\0', QByteArray())) || !isFlatEnough(content)) {
        return false;
    }
    const QtCompat::XmlFault fault = QtCompat::parse(document, content, growthLimit);
    if (!fault.message.isEmpty()) {
        reportParseError(fault.line, fault.column, fault.message);
        return false;
    }
    if (document->documentElement().tagName() != QLatin1String("keyboard")) {
        qDebug() << "Error: Not a keyboard file";
        return false;
    }
    return true;
}

Popups popups(const QString &attribute)
{
    bool ok = false;
    const int value = attribute.toInt(&ok);
    if (ok && value == 0) {
        return {false, false};
    }
    if (ok && value == 2) {
        return {false, true};
    }
    return {true, true};
}

int position(const QString &attribute)
{
    bool ok = false;
    const int value = attribute.toInt(&ok);
    return ok && value >= 0 ? value : -1;
}

int stretch(const QString &attribute)
{
    return attribute.toInt(); // 0 if it is no number
}

int keyWidth(int minimum, const QString &size, const QString &width)
{
    double scaled = minimum * number(size);
    if (!(number(size) > 0.0) || !fitsInt(scaled)) {
        scaled = minimum;
    }
    double widened = scaled + number(width);
    if (std::isnan(widened) || !fitsInt(widened)) {
        widened = scaled;
    }
    // QWidget would cut a wider or a negative one likewise, but complain, and takes QWIDGETSIZE_MAX
    // itself for no minimum at all.
    return qBound(0, static_cast<int>(std::trunc(widened)), QWIDGETSIZE_MAX - 1);
}

QString decodeValue(QString value)
{
    return value.replace(QLatin1String("&amp;"), QLatin1String("&"))
        .replace(QLatin1String("&apos;"), QLatin1String("'"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"));
}

ZEMVirtualKey::Type typeOf(const QString &name)
{
    if (name == QLatin1String("CAPS")) {
        return ZEMVirtualKey::Caps;
    }
    if (name == QLatin1String("DELETE")) {
        return ZEMVirtualKey::Delete;
    }
    if (name == QLatin1String("ENTER")) {
        return ZEMVirtualKey::Enter;
    }
    if (name == QLatin1String("SPACE")) {
        return ZEMVirtualKey::Space;
    }
    return ZEMVirtualKey::Character;
}

} // namespace KeyboardFile
