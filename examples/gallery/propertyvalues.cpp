// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"

#include <QColor>
#include <QIcon>
#include <QMetaEnum>
#include <QObject>
#include <QPen>
#include <QPixmap>
#include <QStringList>
#include <ZEMStyle>
#include <cmath>

namespace {

using namespace PropertyValues;

/** What is worth playing with of Qt's own widgets. */
const QStringList &namesOfQt()
{
    static const QStringList names {QStringLiteral("alignment"), QStringLiteral("checkable"),
                                    QStringLiteral("checked"),   QStringLiteral("enabled"),
                                    QStringLiteral("indent"),    QStringLiteral("margin"),
                                    QStringLiteral("spacing"),   QStringLiteral("text")};
    return names;
}

bool isOfLibrary(const QMetaObject *meta, int index)
{
    while (index < meta->propertyOffset()) {
        meta = meta->superClass();
    }
    return QByteArray(meta->className()).startsWith("ZEM");
}

/** The place of the first of @p all that @p isIt accepts; -1 if there is none. */
template <typename List, typename IsIt>
int placeOf(const List &all, const IsIt &isIt)
{
    for (int i = 0; i < int(all.size()); ++i) {
        if (isIt(all.at(i))) {
            return i;
        }
    }
    return -1;
}

const QVector<QColor> &colors()
{
    const ZEMStyle style(nullptr);
    static const QVector<QColor> all {style.color(ZEMStyle::SkyBlue), style.color(ZEMStyle::Amber),
                                      style.color(ZEMStyle::Lime), style.color(ZEMStyle::SoftRed),
                                      style.color(ZEMStyle::SlateBlue)};
    return all;
}

QColor nextColor(const QColor &color)
{
    const int place = placeOf(colors(), [&](const QColor &each) { return each == color; });
    return colors().at((place + 1) % colors().size());
}

QVector<QPixmap> pictures(const QPixmap &first)
{
    const QString graphics = QStringLiteral(":/zem/graphics/");
    QVector<QPixmap> all {QPixmap(graphics + QStringLiteral("icons/icons_14.png")),
                          QPixmap(graphics + QStringLiteral("icons/icon_pencil.png")),
                          QPixmap(graphics + QStringLiteral("main/buttons/btn_square_small.png"))};
    if (!first.isNull()) {
        all.prepend(first);
    }
    return all;
}

QPixmap nextPicture(const QPixmap &picture, const QPixmap &first)
{
    const QVector<QPixmap> all = pictures(first);
    const QImage image = picture.toImage();
    const int place = placeOf(all, [&](const QPixmap &each) { return each.toImage() == image; });
    return all.at((place + 1) % all.size());
}

/** An icon is the same only as long as nobody asked for it: its pictures tell which it is. */
QIcon nextIcon(const QIcon &icon, const QIcon &first)
{
    const auto largest = [](const QIcon &each) {
        const QList<QSize> sizes = each.availableSizes();
        return sizes.isEmpty() ? QPixmap() : each.pixmap(sizes.constLast());
    };
    return QIcon(nextPicture(largest(icon), largest(first)));
}

const QVector<int> &alignments()
{
    static const QVector<int> all {
        Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter, Qt::AlignRight | Qt::AlignVCenter,
        Qt::AlignHCenter | Qt::AlignTop, Qt::AlignHCenter | Qt::AlignBottom};
    return all;
}

bool isAlignment(const QMetaProperty &property)
{
    return property.isFlagType() && qstrcmp(property.enumerator().name(), "Alignment") == 0;
}

QVector<int> valuesOf(const QMetaProperty &property)
{
    if (isAlignment(property)) {
        return alignments();
    }
    QVector<int> values;
    const QMetaEnum names = property.enumerator();
    for (int i = 0; i < names.keyCount(); ++i) {
        if (!values.contains(names.value(i))) {
            values.append(names.value(i));
        }
    }
    return values;
}

} // namespace

namespace PropertyValues {

Kind kindOf(const QMetaProperty &property)
{
    if (property.isEnumType()) {
        return Kind::Choice;
    }
    switch (property.userType()) {
    case QMetaType::Bool:
        return Kind::Toggle;
    case QMetaType::Int:
    case QMetaType::Double:
        return Kind::Number;
    case QMetaType::QColor:
    case QMetaType::QPen:
    case QMetaType::QPixmap:
    case QMetaType::QIcon:
        return Kind::Choice;
    case QMetaType::QString:
        return Kind::Text;
    default:
        return Kind::None;
    }
}

QVector<QMetaProperty> playable(const QObject *object)
{
    QVector<QMetaProperty> found;
    QStringList names;
    const QMetaObject *meta = object->metaObject();
    for (int i = meta->propertyCount() - 1; i >= 0; --i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QString::fromLatin1(property.name());
        if (names.contains(name)) {
            continue;
        }
        names.append(name);
        const bool isWanted = isOfLibrary(meta, i) || namesOfQt().contains(name);
        if (isWanted && property.isWritable() && kindOf(property) != Kind::None) {
            found.prepend(property);
        }
    }
    return found;
}

double stepOf(const QVariant &value)
{
    if (value.userType() == QMetaType::Int) {
        return 1.0;
    }
    const double size = std::fabs(value.toDouble());
    constexpr double tenth = 0.1;
    return size <= 1.0 ? tenth : std::pow(10.0, std::floor(std::log10(size))) * tenth;
}

QVariant moved(const QVariant &value, double step, const QPair<double, double> &range)
{
    const double number = qBound(range.first, value.toDouble() + step, range.second);
    return value.userType() == QMetaType::Int ? QVariant(qRound(number)) : QVariant(number);
}

QVariant next(const QMetaProperty &property, const QVariant &value, const QVariant &first)
{
    if (property.isEnumType()) {
        const QVector<int> all = valuesOf(property);
        return all.at((all.indexOf(value.toInt()) + 1) % all.size());
    }
    switch (property.userType()) {
    case QMetaType::QColor:
        return nextColor(value.value<QColor>());
    case QMetaType::QPen: {
        QPen pen = value.value<QPen>();
        pen.setColor(nextColor(pen.color()));
        return pen;
    }
    case QMetaType::QPixmap:
        return nextPicture(value.value<QPixmap>(), first.value<QPixmap>());
    case QMetaType::QIcon:
        return nextIcon(value.value<QIcon>(), first.value<QIcon>());
    default:
        return value;
    }
}

QString textOf(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType()) {
        const QMetaEnum names = property.enumerator();
        const QByteArray text = property.isFlagType() ? names.valueToKeys(value.toInt())
                                                      : QByteArray(names.valueToKey(value.toInt()));
        return QString::fromLatin1(text);
    }
    switch (property.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 4);
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QPen:
        return value.value<QPen>().color().name();
    case QMetaType::QPixmap: {
        const QPixmap picture = value.value<QPixmap>();
        return picture.isNull()
            ? QStringLiteral("none")
            : QStringLiteral("%1 x %2").arg(picture.width()).arg(picture.height());
    }
    case QMetaType::QIcon:
        return value.value<QIcon>().isNull() ? QStringLiteral("none") : QStringLiteral("an icon");
    default:
        return value.toString();
    }
}

} // namespace PropertyValues
