// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGETABLE_H
#define PAGETABLE_H

#include <QString>
#include <QStringList>
#include <QVector>

class Stage;

/** The subsystems of the library, in the order of the index. */
enum class Subsystem { Foundation, Widgets, Keyboard, Lists, Charts, Dashboard, PlotTools };

QString nameOf(Subsystem subsystem);
const QVector<Subsystem> &allSubsystems();

/** A page of the gallery: one class of the library, or several that are at work together. */
struct GalleryPage
{
    QString file; ///< that of its source, without folder and ending
    Subsystem subsystem;
    QStringList classes;
    QString summary; ///< a few words
    void (*show)(Stage &stage);
};

/** All pages, ordered by subsystem and name. A new class finds its place here. */
const QVector<GalleryPage> &allPages();

/** All classes, in alphabetical order. */
QStringList allClasses();
/** The classes of one subsystem, in alphabetical order. */
QStringList classesOf(Subsystem subsystem);

/** The page of a class, whatever the case of @p name. Null if there is no such class. */
const GalleryPage *pageOf(const QString &name);

/** The class whose name is most like @p name. */
QString nearestClass(const QString &name);

/** The path of the page's source in the resources of the program. */
QString sourceOf(const GalleryPage &page);

#endif
