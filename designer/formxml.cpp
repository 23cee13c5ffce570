// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formxml.h"

#include "widgettable.h"

#include <QColor>
#include <QMetaObject>
#include <QMetaProperty>
#include <QPoint>
#include <QRect>
#include <QXmlStreamWriter>

namespace {

constexpr int gap = 10; // pixels between the widgets of a form
constexpr int formWidth = 1400;
constexpr int pageSide = 45;

void writeRect(QXmlStreamWriter &xml, const QRect &rect)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QString::number(rect.x()));
    xml.writeTextElement(QStringLiteral("y"), QString::number(rect.y()));
    xml.writeTextElement(QStringLiteral("width"), QString::number(rect.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(rect.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

/** The key of an enum with the class that it belongs to, as code names it. */
QString scopedKey(const QMetaProperty &property, const QString &key)
{
    return QStringLiteral("%1::%2").arg(QLatin1String(property.enumerator().scope()), key);
}

void writeValue(QXmlStreamWriter &xml, const SampleProperty &property, const QMetaProperty &meta)
{
    const QString text = property.value.toString();
    switch (property.kind) {
    case SampleProperty::Text:
        xml.writeTextElement(QStringLiteral("string"), text);
        break;
    case SampleProperty::Number:
        xml.writeTextElement(QStringLiteral("number"), text);
        break;
    case SampleProperty::Flag:
        xml.writeTextElement(QStringLiteral("bool"), text);
        break;
    case SampleProperty::Colour: {
        const auto color = property.value.value<QColor>();
        xml.writeStartElement(QStringLiteral("color"));
        xml.writeTextElement(QStringLiteral("red"), QString::number(color.red()));
        xml.writeTextElement(QStringLiteral("green"), QString::number(color.green()));
        xml.writeTextElement(QStringLiteral("blue"), QString::number(color.blue()));
        xml.writeEndElement();
        break;
    }
    case SampleProperty::Picture:
        xml.writeTextElement(QStringLiteral("pixmap"), text);
        break;
    case SampleProperty::Icon:
        xml.writeStartElement(QStringLiteral("iconset"));
        xml.writeTextElement(QStringLiteral("normaloff"), text);
        xml.writeCharacters(text);
        xml.writeEndElement();
        break;
    case SampleProperty::Choice:
        xml.writeTextElement(QStringLiteral("enum"), scopedKey(meta, text));
        break;
    }
}

/** An empty page, large enough to drop something there. */
void writePage(QXmlStreamWriter &xml, const QString &name)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    xml.writeAttribute(QStringLiteral("name"), name);
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("minimumSize"));
    xml.writeStartElement(QStringLiteral("size"));
    xml.writeTextElement(QStringLiteral("width"), QString::number(pageSide));
    xml.writeTextElement(QStringLiteral("height"), QString::number(pageSide));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeWidget(QXmlStreamWriter &xml, const WidgetEntry &entry, const QPoint &place)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QLatin1String(entry.className));
    xml.writeAttribute(QStringLiteral("name"), objectNameOf(entry));
    writeRect(xml, QRect(place, entry.size));
    for (const SampleProperty &property : entry.properties) {
        const QMetaProperty meta =
            entry.metaObject->property(entry.metaObject->indexOfProperty(property.name));
        xml.writeStartElement(QStringLiteral("property"));
        xml.writeAttribute(QStringLiteral("name"), QLatin1String(property.name));
        // The code of a form calls the setter by the name of the property, or else setProperty().
        if (!meta.hasStdCppSet()) {
            xml.writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
        }
        writeValue(xml, property, meta);
        xml.writeEndElement();
    }
    if (entry.children.pages) {
        writePage(xml, objectNameOf(entry) + QStringLiteral("Page"));
    }
    xml.writeEndElement();
}

void writeCustomWidget(QXmlStreamWriter &xml, const WidgetEntry &entry)
{
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), QLatin1String(entry.className));
    xml.writeTextElement(QStringLiteral("extends"), qtBaseOf(entry));
    xml.writeStartElement(QStringLiteral("header"));
    xml.writeAttribute(QStringLiteral("location"), QStringLiteral("global"));
    xml.writeCharacters(QLatin1String(entry.className));
    xml.writeEndElement();
    if (entry.children.pages) {
        xml.writeTextElement(QStringLiteral("addpagemethod"),
                             QLatin1String(entry.children.pages->name));
    }
    if (entry.children.any) {
        xml.writeTextElement(QStringLiteral("container"), QStringLiteral("1"));
    }
    xml.writeEndElement();
}

/** All entries in rows from the top left, in the order of the table. */
void writeAllWidgets(QXmlStreamWriter &xml)
{
    QPoint place(gap, gap);
    int rowHeight = 0;
    for (const WidgetEntry &entry : allEntries()) {
        if (place.x() + entry.size.width() > formWidth) {
            place = QPoint(gap, place.y() + rowHeight + gap);
            rowHeight = 0;
        }
        writeWidget(xml, entry, place);
        place.rx() += entry.size.width() + gap;
        rowHeight = qMax(rowHeight, entry.size.height());
    }
}

} // namespace

QString objectNameOf(const WidgetEntry &entry)
{
    const QString name = QString::fromLatin1(entry.className).mid(3); // without "ZEM" or "Qwt"
    return name.left(1).toLower() + name.mid(1);
}

QString includeOf(const WidgetEntry &entry)
{
    return QStringLiteral("<%1>").arg(QLatin1String(entry.className));
}

QString qtBaseOf(const WidgetEntry &entry)
{
    const auto isQts = [](const QString &name) {
        return name.startsWith(QLatin1Char('Q')) && !name.startsWith(QLatin1String("Qwt"));
    };
    const QMetaObject *base = entry.metaObject;
    while (!isQts(QLatin1String(base->className()))) {
        base = base->superClass();
    }
    return QLatin1String(base->className());
}

QString dropXml(const WidgetEntry &entry)
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    writeWidget(xml, entry, QPoint(0, 0));
    xml.writeStartElement(QStringLiteral("customwidgets"));
    writeCustomWidget(xml, entry);
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}

QString formOfAll()
{
    const QString name = QStringLiteral("AllWidgets");
    QString text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    xml.writeTextElement(QStringLiteral("class"), name);
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    xml.writeAttribute(QStringLiteral("name"), name);
    writeAllWidgets(xml);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("customwidgets"));
    for (const WidgetEntry &entry : allEntries()) {
        writeCustomWidget(xml, entry);
    }
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}
