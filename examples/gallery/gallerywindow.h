// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include "propertyrow.h"

#include <KeyboardFactoryDefault>
#include <QPointer>
#include <QWidget>

struct GalleryPage;
class ClassPage;
class IndexPage;
class SourcePage;
class ZEMButton;

/** The gallery: an index, the page of a class, and the source of that page. 640 by 480 pixels. */
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /** Shows the index. The keyboards of the samples are made from the files of the directory. */
    explicit GalleryWindow(const QString &keyboardDirectory, QWidget *parent = nullptr);
    ~GalleryWindow() override;

    void openIndex();
    /** Opens the page of a class, whatever the case of its name. An unknown one is ignored. */
    void openClass(const QString &name);

private:
    void openPage(const GalleryPage &page);
    void openNeighbour(const GalleryPage &page, int step);
    void openSource(const GalleryPage &page);
    void showFullSize();
    void closePage();
    void askText(PropertyRow *row);

    const QString directory;
    KeyboardFactoryDefault keyboards;
    QWidget *screen; ///< holds a sample that is a whole screen
    ZEMButton *wayBack; ///< from such a sample to its page
    IndexPage *index;
    QPointer<ClassPage> classPage;
    QPointer<SourcePage> sourcePage;
};

#endif
