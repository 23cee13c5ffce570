// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardoutline.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <cmath>

namespace {

constexpr int offeredAlternatives = 10;

QString attributeText(const QString &name, const QString &value)
{
    return QStringLiteral("%1=\"%2\"").arg(name, value);
}

class OutlineReader
{
public:
    explicit OutlineReader(QIODevice *device) : xml(device) { xml.setNamespaceProcessing(false); }

    KeyboardOutline read()
    {
        if (nextChild()) {
            // Blanks before the root are no token, so the line of the last one tells nothing.
            tokenLine = static_cast<int>(xml.lineNumber());
            readRoot();
        }
        while (!xml.atEnd()) {
            advance();
        }
        if (xml.hasError()) {
            outline.problem = QStringLiteral("not well-formed XML: %1").arg(xml.errorString());
            outline.problemLine = static_cast<int>(xml.lineNumber());
        }
        return outline;
    }

private:
    void advance()
    {
        // The reader itself tells only the line in which a tag ends.
        tokenLine = static_cast<int>(xml.lineNumber());
        xml.readNext();
    }

    /** Goes on to the next child of the present element. False at the end of that. */
    bool nextChild()
    {
        while (!xml.atEnd()) {
            advance();
            if (xml.isStartElement()) {
                return true;
            }
            if (xml.isEndElement()) {
                return false;
            }
            if (xml.isCharacters() && !xml.isWhitespace()) {
                reportText(xml.text().toString());
            }
        }
        return false;
    }

    void skip()
    {
        for (int depth = 1; depth > 0 && !xml.atEnd();) {
            advance();
            depth += xml.isStartElement() ? 1 : 0;
            depth -= xml.isEndElement() ? 1 : 0;
        }
    }

    void report(const QString &text) { outline.findings.append({tokenLine, text}); }

    void reportText(const QString &text)
    {
        const QString trimmed = text.trimmed();
        const int start = text.indexOf(trimmed);
        const int line = tokenLine + text.left(start).count(QLatin1Char('\n'));
        outline.findings.append({line, QStringLiteral("text is ignored: %1").arg(trimmed)});
    }

    bool is(const char *tag) const { return xml.qualifiedName() == QLatin1String(tag); }
    QString attribute(const QString &name) const { return xml.attributes().value(name).toString(); }
    bool has(const QString &name) const { return xml.attributes().hasAttribute(name); }

    void reportUnknownAttributes(const QStringList &known)
    {
        for (const QXmlStreamAttribute &each : xml.attributes()) {
            const QString name = each.qualifiedName().toString();
            if (!known.contains(name)) {
                report(QStringLiteral("the attribute %1 of <%2> is ignored")
                           .arg(attributeText(name, each.value().toString()),
                                xml.qualifiedName().toString()));
            }
        }
    }

    void reportUnusable(const QString &name, const QString &wanted)
    {
        report(QStringLiteral("%1 is ignored, as it is not %2")
                   .arg(attributeText(name, attribute(name)), wanted));
    }

    void ignoreElement(const QString &parent)
    {
        report(QStringLiteral("the element <%1> is ignored in <%2>")
                   .arg(xml.qualifiedName().toString(), parent));
        skip();
    }

    /** For elements that have only attributes. */
    void ignoreChildren()
    {
        const QString parent = xml.qualifiedName().toString();
        while (nextChild()) {
            ignoreElement(parent);
        }
    }

    /** The number of 0 or more in the attribute @p name, or -1. */
    int position(const QString &name) const
    {
        bool ok = false;
        const int value = attribute(name).toInt(&ok);
        return ok && value >= 0 ? value : -1;
    }

    void readRoot()
    {
        outline.rootLine = tokenLine;
        if (!is("keyboard")) {
            outline.problem =
                QStringLiteral("not a keyboard file: its root is <%1>, not <keyboard>")
                    .arg(xml.qualifiedName().toString());
            outline.problemLine = tokenLine;
            return;
        }
        const QString popup = QStringLiteral("popup");
        reportUnknownAttributes({popup});
        bool ok = false;
        const int popups = attribute(popup).toInt(&ok);
        outline.alternatives = !ok || popups != 0;
        if (has(popup) && (!ok || popups < 0 || popups > 2)) {
            report(QStringLiteral("%1 counts as 1; there is 0, 1 and 2")
                       .arg(attributeText(popup, attribute(popup))));
        }
        while (nextChild()) {
            if (is("layout")) {
                readPage();
            } else {
                ignoreElement(QStringLiteral("keyboard"));
            }
        }
    }

    void readPage()
    {
        const QString id = QStringLiteral("id");
        if (position(id) < 0) {
            report(QStringLiteral(
                "this page is ignored, as it has no attribute id with a number of 0 or more"));
            skip();
            return;
        }
        reportUnknownAttributes({id});
        outline.pages.append({tokenLine, position(id), {}});
        while (nextChild()) {
            if (is("row")) {
                readRow();
            } else if (is("stretch")) {
                readStretch();
            } else {
                ignoreElement(QStringLiteral("layout"));
            }
        }
    }

    void readRow()
    {
        reportUnknownAttributes({});
        while (nextChild()) {
            if (is("key")) {
                readKey();
            } else if (is("stretch")) {
                readStretch();
            } else if (is("space")) {
                readSpace();
            } else {
                ignoreElement(QStringLiteral("row"));
            }
        }
    }

    void readStretch()
    {
        const QString value = QStringLiteral("value");
        reportUnknownAttributes({value});
        bool ok = false;
        attribute(value).toInt(&ok);
        if (has(value) && !ok) {
            reportUnusable(value, QStringLiteral("an integer"));
        }
        ignoreChildren();
    }

    void readSpace()
    {
        const QString key = QStringLiteral("key");
        reportUnknownAttributes({key});
        outline.spaces.append({tokenLine, attribute(key), keyCount});
        ignoreChildren();
    }

    void readKey()
    {
        const QString value = QStringLiteral("value");
        if (!has(value)) {
            report(QStringLiteral("this key is ignored, as it has no attribute value"));
            skip();
            return;
        }
        outline.pages.last().keyLines.append(tokenLine);
        ++keyCount;
        reportUnknownAttributes({value, QStringLiteral("size"), QStringLiteral("width"),
                                 QStringLiteral("alternate"), QStringLiteral("layout")});
        checkNumbersOfKey();
        const QString alternates = attribute(QStringLiteral("alternate"));
        if (alternates.size() > offeredAlternatives) {
            report(QStringLiteral("only the first %1 of %2 alternatives are offered, without %3")
                       .arg(offeredAlternatives)
                       .arg(alternates.size())
                       .arg(alternates.mid(offeredAlternatives)));
        }
        ignoreChildren();
    }

    void checkNumbersOfKey()
    {
        const QString size = QStringLiteral("size");
        const QString width = QStringLiteral("width");
        const QString layout = QStringLiteral("layout");
        bool ok = false;
        const double factor = attribute(size).toDouble(&ok);
        if (has(size) && !(ok && std::isfinite(factor) && factor > 0.0)) {
            reportUnusable(size, QStringLiteral("a number above 0"));
        }
        const double pixels = attribute(width).toDouble(&ok);
        if (has(width) && !(ok && std::isfinite(pixels))) {
            reportUnusable(width, QStringLiteral("a number"));
        }
        if (has(layout) && position(layout) < 0) {
            reportUnusable(layout, QStringLiteral("a number of 0 or more"));
        }
    }

    QXmlStreamReader xml;
    int tokenLine = 1;
    int keyCount = 0;
    KeyboardOutline outline;
};

KeyboardOutline unreadable(const QString &reason)
{
    KeyboardOutline outline;
    outline.problem = reason;
    return outline;
}

} // namespace

QVector<int> KeyboardOutline::pageOrder() const
{
    QVector<int> order;
    for (int i = 0; i < pages.size(); ++i) {
        order.insert(qMin(pages.at(i).id, int(order.size())), i);
    }
    return order;
}

KeyboardOutline readOutline(const QString &fileName)
{
    // A pipe could be read only once, but the keyboard wants to read it, too.
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile()) {
        return unreadable(QStringLiteral("not a file"));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return unreadable(file.errorString());
    }
    return OutlineReader(&file).read();
}
