// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MONTHSPAGE_H
#define MONTHSPAGE_H

#include "displaypage.h"
#include "monthstable.h"

namespace Costs {
struct CostRules;
}

class FittedTableView;
class QBoxLayout;
class ZEMButton;
class ZEMTableViewLogic;

/**
 * The totals of all months in a table that is paged with two buttons; where it is known what they
 * cost, a third button changes between the two.
 */
class MonthsPage : public DisplayPage
{
    Q_OBJECT

public:
    explicit MonthsPage(const EnergySource &source, QWidget *parent = nullptr);

    /**
     * Shows what the months cost by @p rules, as soon as the button is touched. They must live as
     * long as the page does; to be called again when they have changed.
     */
    void setCostRules(const Costs::CostRules *rules);

protected:
    void arrange(Shape shape) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeTable();
    QWidget *makeButtons();
    void fitRows();
    void handleHistory();
    void changeTable();
    void feed();

    const Costs::CostRules *rules = nullptr;
    bool showsCosts = false;
    MonthsTable months;
    QBoxLayout *columns = nullptr;
    QBoxLayout *arrows = nullptr;
    FittedTableView *view = nullptr;
    ZEMTableViewLogic *pages = nullptr;
    ZEMButton *change = nullptr;
    bool isFed = false;
};

#endif
