// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DESIGNERTEST_H
#define DESIGNERTEST_H

#include "formxml.h"
#include "widgettable.h"
#include "zemtest.h"

#include <QIcon>
#include <QImage>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTest>
#include <QWidget>

/** What the tests of the plugin for Qt Designer share. */
namespace DesignerTest {

/** One row for each class in the widget box, with its place in the table. */
inline void addEntries()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < allEntries().size(); ++row) {
        QTest::newRow(allEntries().at(row).className) << row;
    }
}

/** Charts and keyboards trace what they do. */
inline void silenceTraces()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

/** Whether @p widget paints something on any ground. */
inline bool isPainted(QWidget *widget)
{
    const QColor ground(1, 2, 3);
    return !ZemTest::inkRect(ZemTest::render(widget, ground), ground).isEmpty();
}

/** What of the properties of @p entry @p widget does not have; nothing if all is well. */
inline QString missingProperty(const WidgetEntry &entry, const QWidget *widget)
{
    for (const SampleProperty &property : entry.properties) {
        const QVariant value = widget->property(property.name);
        const QVariant expected = valueOf(entry, property);
        bool isSame = value == expected;
        if (property.kind == SampleProperty::Picture) {
            isSame = value.value<QPixmap>().toImage() == expected.value<QPixmap>().toImage();
        } else if (property.kind == SampleProperty::Icon) {
            const QSize size = expected.value<QIcon>().availableSizes().constFirst();
            isSame = value.value<QIcon>().pixmap(size).toImage()
                == expected.value<QIcon>().pixmap(size).toImage();
        } else if (property.kind == SampleProperty::Choice) {
            isSame = value.toInt() == expected.toInt();
        }
        if (!isSame) {
            return QLatin1String(entry.className) + QLatin1Char('.') + QLatin1String(property.name);
        }
    }
    return QString();
}

} // namespace DesignerTest

#endif
