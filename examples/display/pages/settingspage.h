// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSPAGE_H
#define SETTINGSPAGE_H

#include "displaypage.h"

class DisplaySettings;
class InputDialogs;
class QGridLayout;
class ZEMLineEditButton;

/** What people can enter; each field opens the dialog or list that suits it. */
class SettingsPage : public DisplayPage
{
    Q_OBJECT

public:
    /** All of them must outlive the page. */
    SettingsPage(const EnergySource &source, DisplaySettings *settings, InputDialogs *dialogs,
                 QWidget *parent = nullptr);

    /** From now on the price is not entered here, but told by a contract. */
    void setPricedByContract();

private:
    ZEMLineEditButton *addField(QGridLayout *grid, const QString &caption, const char *name,
                                void (SettingsPage::*ask)());
    void askHouseName();
    void askPrice();
    void chooseContract();
    void chooseKeyboard();
    void chooseStandby();
    void chooseNight();
    void readPrivacy();
    void clear();
    void refresh();

    DisplaySettings *settings;
    InputDialogs *dialogs;
    bool isPricedByContract = false;
    ZEMLineEditButton *houseName = nullptr;
    ZEMLineEditButton *price = nullptr;
    ZEMLineEditButton *contract = nullptr;
    ZEMLineEditButton *keyboard = nullptr;
    ZEMLineEditButton *standby = nullptr;
    ZEMLineEditButton *night = nullptr;
};

#endif
