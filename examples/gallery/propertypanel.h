// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PROPERTYPANEL_H
#define PROPERTYPANEL_H

#include "propertyrow.h"

#include <QList>
#include <QWidget>

class Stage;
class QStackedWidget;
class QVBoxLayout;
class ZEMButton;
class ZEMPageIndicator;

/** The controls of all that a page lets be played with, on as many pages as that takes. */
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(const Stage &stage, QWidget *parent = nullptr);
    ~PropertyPanel() override;

    /** Shows what the sample has changed by itself. */
    void refresh();

    int pageCount() const;
    int currentPage() const;

public Q_SLOTS:
    void showNextPage();
    void showPreviousPage();

Q_SIGNALS:
    /** A control has changed the sample. */
    void changed();
    void textWanted(PropertyRow *row);

private:
    void addControl(QWidget *control, int needed);
    void addPager();
    void showPage(int page);

    QStackedWidget *pages;
    QVBoxLayout *page = nullptr;
    int roomLeft = 0;
    QList<PropertyRow *> rows;
    ZEMButton *btnPrevious = nullptr;
    ZEMButton *btnNext = nullptr;
    ZEMPageIndicator *dots = nullptr;
};

#endif
