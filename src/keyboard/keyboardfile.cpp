// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardfile_p.h"

#include <QDebug>
#include <QDomDocument>
#include <QFile>
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

/** Whether QDomDocument can be trusted with the nesting of @p device, which is read. */
bool isFlatEnough(QIODevice *device)
{
    QXmlStreamReader reader(device);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        depth += reader.isStartElement() ? 1 : 0;
        depth -= reader.isEndElement() ? 1 : 0;
        if (depth > depthLimit) {
            reportParseError(reader.lineNumber(), reader.columnNumber(),
                             QStringLiteral("elements are nested too deeply"));
            return false;
        }
    }
    // Errors are left to the real parser, which tells them in its own words.
    return true;
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
    // A pipe can be read only once.
    if (!file.isSequential()) {
        if (!isFlatEnough(&file)) {
            return false;
        }
        file.seek(0);
    }

    QString message;
    int line = 0;
    int column = 0;
    if (!document->setContent(&file, false, &message, &line, &column)) {
        reportParseError(line, column, message);
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
