// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LIFETIMEROWS_H
#define LIFETIMEROWS_H

#include "lifetime.h"
#include "zemtest.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHash>
#include <QPointer>
#include <QTest>
#include <QVector>

/** Rows of objects that end in one of their signals, in each way. */
namespace LifetimeRows {

using Make = std::function<Lifetime::Stage()>;

} // namespace LifetimeRows

// Before the first function that makes a column of them.
Q_DECLARE_METATYPE(LifetimeRows::Make)
Q_DECLARE_METATYPE(Lifetime::End)

namespace LifetimeRows {

/** The signals of each class that rows were added for. */
inline QHash<QByteArray, QSet<QByteArray>> &heardSignals()
{
    static QHash<QByteArray, QSet<QByteArray>> heard;
    return heard;
}

inline void addColumns()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<LifetimeRows::Make>("make");
    QTest::addColumn<Lifetime::End>("end");
}

using Ends = QVector<Lifetime::End>;

inline Ends allEnds()
{
    return {Lifetime::End::Delete, Lifetime::End::DeleteLater, Lifetime::End::DeletePage};
}

/** Rows for @p signal of @p className; @p how tells ways to be emitted apart. */
inline void add(const char *className, const char *signal, const Make &make, const char *how = "",
                const Ends &ends = allEnds())
{
    heardSignals()[className].insert(signal);
    for (Lifetime::End end : ends) {
        QTest::addRow("%s %s%s, %s", className, signal, how, Lifetime::nameOf(end))
            << QByteArray(signal) << make << end;
    }
}

/** Ends the object of the present row. */
inline void check()
{
    QFETCH(QByteArray, signal);
    QFETCH(LifetimeRows::Make, make);
    QFETCH(Lifetime::End, end);
    const QString problem = Lifetime::endIn(make(), signal.constData(), end);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/** A finger on @p widget, for as long as it is there. */
inline void touch(const QPointer<QWidget> &widget)
{
    const QPoint middle = widget->rect().center();
    ZemTest::press(widget, middle);
    if (widget) {
        ZemTest::release(widget, middle);
    }
}

inline void askForMenu(QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget->mapToGlobal(middle));
    QApplication::sendEvent(widget, &event);
}

/** A page with @p widget on it; the caller gives the stage its action. */
inline Lifetime::Stage stageOf(QWidget *widget)
{
    Lifetime::Stage stage;
    stage.page = Lifetime::shownPage();
    stage.object = widget;
    widget->setParent(stage.page);
    widget->show();
    QCoreApplication::processEvents();
    return stage;
}

/** A stage on which a finger touches the part @p name of @p widget, or all of it. */
inline Lifetime::Stage touchedStage(QWidget *widget, const char *name = nullptr)
{
    Lifetime::Stage stage = stageOf(widget);
    const QPointer<QWidget> part =
        name ? widget->findChild<QWidget *>(QLatin1String(name)) : widget;
    stage.act = [part] { touch(part); };
    return stage;
}

/** Rows for the menu that any widget can be asked for. */
template <typename Widget>
void addMenuRows()
{
    add(Widget::staticMetaObject.className(), "customContextMenuRequested(QPoint)", [] {
        auto *widget = new Widget;
        widget->resize(100, 100);
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
        Lifetime::Stage stage = stageOf(widget);
        stage.act = [widget] { askForMenu(widget); };
        return stage;
    });
}

/**
 * Rows for the signals of a button that can be checked. No button of Qt can be deleted in a slot of
 * toggled(), a QPushButton neither.
 */
template <typename Button>
void addButtonRows()
{
    const Make make = [] {
        auto *button = new Button;
        button->resize(100, 60);
        button->setCheckable(true);
        return touchedStage(button);
    };
    const char *const className = Button::staticMetaObject.className();
    for (const char *signal : {"pressed()", "released()", "clicked(bool)"}) {
        add(className, signal, make);
    }
    add(className, "toggled(bool)", make, "", {Lifetime::End::DeleteLater});
}

/** What @p metaObject declares and no row hears. */
inline QStringList unheard(const QMetaObject &metaObject)
{
    return Lifetime::unheardSignals(metaObject, *metaObject.superClass(),
                                    heardSignals().value(metaObject.className()));
}

} // namespace LifetimeRows

#endif
