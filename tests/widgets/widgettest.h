// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WIDGETTEST_H
#define WIDGETTEST_H

#include "paintcounter.h"
#include "zemtest.h"

#include <QCoreApplication>
#include <QMetaProperty>
#include <QObject>
#include <QStringList>
#include <QTest>
#include <QTranslator>
#include <QWidget>

/** What the tests of the page and control widgets share. */
namespace WidgetTest {

enum class Painted { AtOnce, Later, Never };

/** When @p widget, which must be visible, is painted because of @p change. */
template <typename Change>
Painted paintedBy(QWidget *widget, Change change)
{
    constexpr int settleTime = 30; // ms, two frames
    QTest::qWait(settleTime);
    ZemTest::PaintCounter counter(widget);
    change();
    if (counter.count > 0) {
        return Painted::AtOnce;
    }
    QTest::qWait(settleTime);
    return counter.count > 0 ? Painted::Later : Painted::Never;
}

/**
 * Shows a widget in a window of its size, for as long as the stage lives. A plain window is used
 * because the offscreen platform warns of top level widgets that have size limits.
 */
class Stage
{
public:
    explicit Stage(QWidget *widget) : actor(widget)
    {
        window.resize(actor->size());
        actor->setParent(&window);
        window.show();
        actor->show();
        exposed = QTest::qWaitForWindowExposed(&window, ZemTest::hangs);
    }
    ~Stage() { actor->setParent(nullptr); }
    Q_DISABLE_COPY(Stage)

    bool isReady() const { return exposed && actor->isVisible(); }

private:
    QWidget window;
    QWidget *actor;
    bool exposed = false;
};

/** The type of a property, enumerations with their class: what Qt itself says depends on its
 * version. */
inline QString typeOf(const QMetaProperty &property)
{
    const QMetaEnum values = property.enumerator();
    return property.isEnumType()
        ? QLatin1String(values.scope()) + QLatin1String("::") + QLatin1String(values.name())
        : QLatin1String(property.typeName());
}

/** The properties that a class itself declares, each as "name:type". */
inline QStringList ownProperties(const QMetaObject &metaObject)
{
    QStringList properties;
    for (int i = metaObject.propertyOffset(); i < metaObject.propertyCount(); ++i) {
        const QMetaProperty property = metaObject.property(i);
        properties.append(QLatin1String(property.name()) + QLatin1Char(':') + typeOf(property));
    }
    return properties;
}

/** How many signals and slots a class itself declares. */
inline int ownMethodCount(const QMetaObject &metaObject)
{
    return metaObject.methodCount() - metaObject.methodOffset();
}

/** While it lives, every text is translated into "context/text". */
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY(ContextTranslator)

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(sourceText);
    }
    bool isEmpty() const override { return false; }
};

} // namespace WidgetTest

#endif
