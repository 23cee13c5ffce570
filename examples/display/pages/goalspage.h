// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef GOALSPAGE_H
#define GOALSPAGE_H

#include "displaypage.h"
#include "displaysettings.h"

#include <QList>
#include <map>

namespace Costs {
struct CostRules;
}

class InputDialogs;
class QGridLayout;
class ZEMBarIndicator;
class ZEMLineEditButton;
class ZEMProfileButton;
class ZEMTextLabel;
class ZEMThreeStars;

/** What the house means to use: today's budget, yesterday's stars, the profile and the goal. */
class GoalsPage : public DisplayPage
{
    Q_OBJECT

public:
    /** All of them must outlive the page. */
    GoalsPage(const EnergySource &source, DisplaySettings *settings, InputDialogs *dialogs,
              QWidget *parent = nullptr);

    /** Tells what today costs by @p rules, which must live as long as the page does. */
    void setCostRules(const Costs::CostRules *rules);

protected:
    void arrange(Shape shape) override;
    void showEvent(QShowEvent *event) override;
    void handleNewDay() override { refresh(); }

private:
    QWidget *makeToday();
    QWidget *makeYesterday();
    QWidget *makeProfiles();
    QWidget *makeYearGoal();
    void askForYearGoal();
    void refresh();
    void showToday();
    void showYesterday();
    QString costsText(const QDate &day, double amount) const;

    QGridLayout *grid = nullptr;
    QList<QWidget *> cards;
    DisplaySettings *settings;
    InputDialogs *dialogs;
    const Costs::CostRules *rules = nullptr;
    ZEMTextLabel *todayCaption = nullptr;
    ZEMTextLabel *todayText = nullptr;
    ZEMTextLabel *todayCosts = nullptr;
    ZEMBarIndicator *budgetBar = nullptr;
    ZEMTextLabel *yesterdayCaption = nullptr;
    ZEMTextLabel *yesterdayText = nullptr;
    ZEMThreeStars *stars = nullptr;
    ZEMLineEditButton *yearGoal = nullptr;
    std::map<Profile, ZEMProfileButton *> profiles;
};

#endif
