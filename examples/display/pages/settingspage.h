// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSPAGE_H
#define SETTINGSPAGE_H

#include "displaypage.h"

#include <QList>

class DisplaySettings;
class InputDialogs;
class QGridLayout;
class QLayout;
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

protected:
    void arrange(Shape shape) override;

private:
    ZEMLineEditButton *addField(const QString &caption, const char *name,
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

    QGridLayout *grid = nullptr;
    QList<QLayout *> cells; ///< of the grid, a caption and a field each
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
