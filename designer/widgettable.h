// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WIDGETTABLE_H
#define WIDGETTABLE_H

#include <QSize>
#include <QVariant>
#include <QVector>
#include <functional>

struct QMetaObject;
class QWidget;

/** A property that a widget has from the first on a form, and that is saved with it. */
struct SampleProperty
{
    enum Kind {
        Text,
        Number,
        Flag,
        Colour,
        Picture, ///< the path of a QPixmap
        Icon, ///< the path of a QIcon
        Choice ///< the key of an enum
    };

    const char *name;
    Kind kind;
    QVariant value;
};

/** How a class takes widgets, where it has a method for that. */
struct PageMethod
{
    const char *name;
    int most; ///< how many widgets it takes
    QVector<QWidget *> (*pages)(const QWidget *container);
    void (*add)(QWidget *container, QWidget *page);
    /** Undoes all add(), after the pages themselves were taken away. */
    void (*clear)(QWidget *container);
};

/** What a widget on a form takes. */
struct Children
{
    bool any = false;
    const PageMethod *pages = nullptr; ///< null for children that stand freely or in a layout
};

/** A class of the library in the widget box of Qt Designer. */
struct WidgetEntry
{
    const char *className; ///< and the name of its header
    const char *group; ///< in the widget box
    QSize size; ///< on a form
    Children children;
    const char *summary; ///< what it is, in one sentence
    QVector<SampleProperty> properties;

    const QMetaObject *metaObject; ///< of what is made, which has the name of the class
    /** What a form makes: a new widget, and nothing else. */
    std::function<QWidget *(QWidget *parent)> make;
    /** What Designer shows: the same with sample data, where there is no property for them. */
    std::function<QWidget *(QWidget *parent)> makeAlive;
};

/** All classes that a form can hold, by group and name. A new widget finds its place here. */
const QVector<WidgetEntry> &allEntries();

/** The value that a form gives the property of an entry. */
QVariant valueOf(const WidgetEntry &entry, const SampleProperty &property);

#endif
