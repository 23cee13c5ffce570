// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MONTHSPAGE_H
#define MONTHSPAGE_H

#include "displaypage.h"
#include "monthstable.h"

class QTableView;
class ZEMButton;
class ZEMTableViewLogic;

/** The totals of all months in a table that is paged with two buttons. */
class MonthsPage : public DisplayPage
{
    Q_OBJECT

public:
    explicit MonthsPage(const EnergySource &source, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeTable();
    QWidget *makeButtons();
    void handleHistory();
    void feed();

    MonthsTable months;
    QTableView *view = nullptr;
    ZEMTableViewLogic *pages = nullptr;
    bool isFed = false;
};

#endif
