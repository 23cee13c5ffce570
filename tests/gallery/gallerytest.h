// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef GALLERYTEST_H
#define GALLERYTEST_H

#include "gallerywindow.h"
#include "pagetable.h"
#include "zemtest.h"

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QStyleFactory>
#include <QTest>
#include <ZEMButton>
#include <ZEMPageBackground>
#include <ZEMStyle>

/** What the tests of the gallery share. */
namespace GalleryTest {

inline void setLook()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

/** One row for each page. */
inline void addPages()
{
    QTest::addColumn<QString>("name");
    for (const GalleryPage &page : allPages()) {
        QTest::newRow(qPrintable(page.file)) << page.classes.constFirst();
    }
}

/** The widget of the class @p Page that is seen in @p window; null if there is none. */
template <class Page>
Page *shown(const QWidget &window)
{
    for (Page *page : window.findChildren<Page *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (page->isVisible()) {
            return page;
        }
    }
    return nullptr;
}

/** A touch on the middle of @p widget, as a screen gives it: what lies there gets it. */
inline void tap(QWidget *widget)
{
    QWidget *window = widget->window();
    const QPoint middle = widget->mapTo(window, widget->rect().center());
    QWidget *target = window->childAt(middle);
    QTest::mouseClick(target, Qt::LeftButton, {}, target->mapFrom(window, middle));
    QCoreApplication::processEvents();
}

/** Whether a finger meets @p button in its middle. */
inline bool isInReach(const ZEMButton *button)
{
    QWidget *window = button->window();
    const QPoint middle = button->mapTo(window, button->rect().center());
    const QWidget *target = window->childAt(middle);
    return button->isVisible() && button->isEnabled() && target
        && (target == button || button->isAncestorOf(target));
}

/** The button @p name under @p parent that a finger meets; null if there is none. */
inline ZEMButton *button(const QWidget *parent, const char *name)
{
    for (ZEMButton *each : parent->findChildren<ZEMButton *>(QLatin1String(name))) {
        if (isInReach(each)) {
            return each;
        }
    }
    return nullptr;
}

} // namespace GalleryTest

#endif
