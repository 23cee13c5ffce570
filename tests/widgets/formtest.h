// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FORMTEST_H
#define FORMTEST_H

#include <QGridLayout>
#include <QLayout>
#include <QMetaEnum>
#include <QSizePolicy>
#include <QSpacerItem>
#include <QString>
#include <QStringList>
#include <QVBoxLayout>
#include <QWidget>

#include <initializer_list>

/** What the tests of forms share: a layout in words, to be compared with a list. */
namespace FormTest {

inline QStringList strings(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

/** The one part of a form with this class and object name, or null. */
template <typename T>
T *part(const QObject &form, const char *name)
{
    const auto found = form.findChildren<T *>(QLatin1String(name));
    return found.size() == 1 ? found.first() : nullptr;
}

/** "Expanding/Minimum": across and down. */
inline QString policyText(const QSizePolicy &policy)
{
    const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    return QLatin1String(policies.valueToKey(policy.horizontalPolicy())) + QLatin1Char('/')
        + QLatin1String(policies.valueToKey(policy.verticalPolicy()));
}

/** "Class name" of a widget or layout, "spacer 40x20 Expanding/Minimum" of a spacer. */
inline QString inWords(QLayoutItem *item)
{
    const auto named = [](const QObject *object) {
        return QLatin1String(object->metaObject()->className()) + QLatin1Char(' ')
            + object->objectName();
    };
    if (item->widget()) {
        return named(item->widget());
    }
    if (item->layout()) {
        return named(item->layout());
    }
    const QSpacerItem *spacer = item->spacerItem();
    return QStringLiteral("spacer %1x%2 %3")
        .arg(spacer->sizeHint().width())
        .arg(spacer->sizeHint().height())
        .arg(policyText(spacer->sizePolicy()));
}

/** The items of @p layout in their order. In a grid, "row,column: " stands before each. */
inline QStringList items(const QLayout *layout)
{
    QStringList words;
    const auto *grid = qobject_cast<const QGridLayout *>(layout);
    for (int i = 0; i < layout->count(); ++i) {
        QString item = inWords(layout->itemAt(i));
        if (grid) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            const QString spans =
                rows * columns > 1 ? QStringLiteral(" %1x%2").arg(rows).arg(columns) : QString();
            item.prepend(QStringLiteral("%1,%2%3: ").arg(row).arg(column).arg(spans));
        }
        words.append(item);
    }
    return words;
}

/** The margins that the style gives to a layout on a widget, and on the child of one. */
inline QMargins styleMargins()
{
    QWidget widget;
    return QVBoxLayout(&widget).contentsMargins();
}

inline QMargins styleMarginsOfAChild()
{
    QWidget widget;
    QWidget child(&widget);
    return QVBoxLayout(&child).contentsMargins();
}

inline QSizePolicy policy(QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical)
{
    return {horizontal, vertical};
}

} // namespace FormTest

#endif
