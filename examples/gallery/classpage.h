// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CLASSPAGE_H
#define CLASSPAGE_H

#include "propertyrow.h"

#include <QTimer>
#include <ZEMPageBackground>
#include <memory>

struct GalleryPage;
class PropertyPanel;
class Stage;
class ZEMButton;

/**
 * The page of a class: its sample at the left, what can be played with at the right. A sample that
 * is a whole screen lives on a widget of that size beneath this page, and is seen here smaller.
 */
class ClassPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** Shows @p page on @p newStage. @p screen holds a sample that is a whole screen. */
    ClassPage(const GalleryPage &page, std::unique_ptr<Stage> newStage, QWidget *screen,
              QWidget *parent = nullptr);
    /** Deletes the sample. */
    ~ClassPage() override;

    const Stage &stage() const;

Q_SIGNALS:
    void backClicked();
    void sourceClicked();
    void previousClicked();
    void nextClicked();
    /** The small picture of a sample that is a whole screen was touched. */
    void fullSizeClicked();
    /** The user wants to type another text for the property of @p row. */
    void textWanted(PropertyRow *row);

private:
    QWidget *makeHeader(const GalleryPage &page);
    QWidget *makePlace(QWidget *screen);
    void refresh();

    std::unique_ptr<Stage> ownStage;
    ZEMButton *thumbnail = nullptr;
    PropertyPanel *panel;
    QTimer refreshTimer;
};

#endif
