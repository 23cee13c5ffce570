// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DASHBOARDTEST_H
#define DASHBOARDTEST_H

#include "../widgets/formtest.h"

#include <QBoxLayout>
#include <QFont>
#include <QGridLayout>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QWidget>

/** What the tests of tiles, tabs and chart pages share. */
namespace DashboardTest {

using FormTest::policyText;

/** The part of a form that has the name. */
template <typename T>
T *part(const QObject &widget, const char *name)
{
    return widget.findChild<T *>(QLatin1String(name));
}

inline QImage imageOf(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/** A picture of the library, by its path below graphics. */
inline QImage picture(const char *path)
{
    const QImage image(QLatin1String(":/zem/graphics/") + QLatin1String(path));
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

inline QStringList layoutLines(QLayout *layout, const QString &prefix = QString());

inline QStringList itemLines(QLayoutItem *item, const QString &prefix)
{
    if (QLayout *layout = item->layout()) {
        return layoutLines(layout, prefix);
    }
    return {prefix + FormTest::inWords(item)};
}

/**
 * A layout and all that is in it, one line each: class, name and spacing of layouts, class and name
 * of widgets, size and policy of spacers. Items of a layout are indented by a blank and, in a grid,
 * preceded by "row,column,columns:".
 */
inline QStringList layoutLines(QLayout *layout, const QString &prefix)
{
    const auto *grid = qobject_cast<QGridLayout *>(layout);
    QStringList lines {prefix + QLatin1String(layout->metaObject()->className()) + QLatin1Char(' ')
                       + layout->objectName()};
    if (grid) {
        lines.last() += QStringLiteral(" %1").arg(grid->horizontalSpacing());
    } else {
        lines.last() += QStringLiteral(" %1").arg(layout->spacing());
    }
    for (int i = 0; i < layout->count(); ++i) {
        QString place = QStringLiteral(" ");
        if (grid) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            place = QStringLiteral(" %1,%2,%3:").arg(row).arg(column).arg(columns);
        }
        lines += itemLines(layout->itemAt(i), prefix + place);
    }
    return lines;
}

/** The family and size of a font, as "Cabin 12". */
inline QString fontText(const QFont &font)
{
    return QStringLiteral("%1 %2").arg(font.family()).arg(font.pointSize());
}

} // namespace DashboardTest

#endif
