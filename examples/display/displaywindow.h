// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYWINDOW_H
#define DISPLAYWINDOW_H

#include <QStackedWidget>
#include <QStringList>

class ChartsPage;
class DisplayPage;
class EnergySource;

/** The whole display: its pages, and the ways between them. */
class DisplayWindow : public QStackedWidget
{
    Q_OBJECT

public:
    /** @p source must outlive the window. */
    explicit DisplayWindow(const EnergySource &source, QWidget *parent = nullptr);

    /** The names of the pages, as on the command line; the first is the start page. */
    static QStringList pageNames();
    /** Opens a page of pageNames(). */
    void openPage(const QString &name);

    ChartsPage *chartsPage() const { return charts; }

private:
    void addPage(DisplayPage *page, const QString &name);

    ChartsPage *charts = nullptr;
};

#endif
