// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYWINDOW_H
#define DISPLAYWINDOW_H

#include "contract.h"
#include "filewatch.h"
#include "inputdialogs.h"
#include "messagelist.h"

#include <QList>
#include <QStackedWidget>
#include <QStringList>
#include <ZEMActionListModel>

class ChartsPage;
class DisplayPage;
class DisplaySettings;
class EnergySource;
class GoalsPage;
class MonthsPage;
class OverviewPage;
class SettingsPage;
class StandbyKeeper;
class ZEMMenuOverlay;

/**
 * The whole display: its pages, the ways between them, and the messages. By itself it goes back to
 * the start page after a while, and dark as the settings have it, until a touch. It is 640 by 480
 * pixels when new; its pages fill any size from that one, or upright from 480 by 800.
 */
class DisplayWindow : public QStackedWidget
{
    Q_OBJECT

public:
    /**
     * @p source and @p settings must outlive the window. On-screen keyboards are read from
     * @p keyboardDirectory when they are wanted.
     */
    DisplayWindow(const EnergySource &source, DisplaySettings *settings,
                  const QString &keyboardDirectory, QWidget *parent = nullptr);

    /**
     * Shows what things cost by @p rules, on the pages of months and goals; what is wrong is a
     * message. From now on files of prices are read again when they were written, as the meters
     * count on.
     */
    void setCostRules(Costs::CostRules rules);

    /** The names of the pages, as on the command line; the first is the start page. */
    static QStringList pageNames();
    /** Opens a page of pageNames(). */
    void openPage(const QString &name);

    /** What a touch on the header opens. */
    void openMenu();
    void openPageGrid();
    void openMessages();
    void openStandby();

    /** Opens the start page; what lies over a page goes away. */
    void returnToStart();

    ChartsPage *chartsPage() const { return charts; }
    /** Tells when the display is to rest. */
    StandbyKeeper *standbyKeeper() const { return keeper; }

Q_SIGNALS:
    /** The screen went dark, or is lit again. */
    void standbyChanged(bool isDark);

public Q_SLOTS:
    /** Adds to the messages what happened now; @p kind as told at MessageList::add(). */
    void addMessage(const QString &message, const QString &kind = QString());

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makePages(const EnergySource &source);
    void makeOverview(OverviewPage *overview);
    void addPage(DisplayPage *page, const QString &name);
    void addGridAction(const QString &text, const QPixmap &icon, const QString &page);
    void makePageGrid();
    void makeMenu();
    void makeStandby(const EnergySource &source);
    void withdrawOverlays();
    void handlePageChange();
    void showCosts();
    void readPricesAgain();

    const EnergySource &shownSource;
    DisplaySettings *settings;
    InputDialogs dialogs;
    MessageList messages;
    ZEMActionListModel pageGrid;
    QList<QAction *> gridActions;
    ChartsPage *charts = nullptr;
    MonthsPage *months = nullptr;
    GoalsPage *goals = nullptr;
    SettingsPage *settingsPage = nullptr;
    Costs::CostRules costs;
    Costs::FileWatch priceWatch {{}};
    ZEMMenuOverlay *menu = nullptr;
    QWidget *standby = nullptr;
    StandbyKeeper *keeper = nullptr;
    bool isDark = false;
};

#endif
