// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaywindow.h"

#include "analysispage.h"
#include "chartspage.h"
#include "devicespage.h"
#include "dialogfit.h"
#include "displaysettings.h"
#include "energysource.h"
#include "goalspage.h"
#include "monthspage.h"
#include "overviewpage.h"
#include "pageicons.h"
#include "pagelook.h"
#include "pricefile.h"
#include "settingspage.h"
#include "standbykeeper.h"
#include "standbypage.h"

#include <QAction>
#include <QLayout>
#include <QRegularExpression>
#include <ZEMMenuOverlay>
#include <utility>

namespace {

const QString overviewName = QStringLiteral("overview");
const QString chartsName = QStringLiteral("charts");
const QString devicesName = QStringLiteral("devices");
const QString analysisName = QStringLiteral("analysis");
const QString monthsName = QStringLiteral("months");
const QString goalsName = QStringLiteral("goals");
const QString settingsName = QStringLiteral("settings");

/** "DIRECTORY/FILE:LINE: what" as "what (FILE:LINE)": in a list the first words are what is seen.
 */
QString withPlaceBehind(QString problem)
{
    static const QRegularExpression place(QStringLiteral("^(?:[^:]*/)?([^:/]+(?::\\d+)?): (.*)$"));
    return problem.replace(place, QStringLiteral("\\2 (\\1)"));
}

} // namespace

DisplayWindow::DisplayWindow(const EnergySource &source, DisplaySettings *theSettings,
                             const QString &keyboardDirectory, QWidget *parent)
    : QStackedWidget(parent), shownSource(source), settings(theSettings),
      dialogs(keyboardDirectory, theSettings, this)
{
    setWindowTitle(QStringLiteral("zemkit-display"));
    // A page learns of its size first, and then arranges itself so that it fits.
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    resize(PageLook::pageSize);
    makePages(source);
    makePageGrid();
    makeStandby(source);
    makeMenu();

    for (const QString &problem : source.household().problems) {
        addMessage(withPlaceBehind(problem));
    }
    connect(&source, &EnergySource::problem, this, &DisplayWindow::addMessage);
    connect(settings, &DisplaySettings::problem, this,
            [this](const QString &line) { addMessage(line); });
    connect(&source, &EnergySource::meteringChanged, this, [this](bool metering) {
        addMessage(metering ? tr("De meter is er weer.") : tr("De meter zwijgt."));
    });
}

void DisplayWindow::setCostRules(Costs::CostRules rules)
{
    costs = std::move(rules);
    priceWatch = Costs::FileWatch(costs.priceFiles);
    showCosts();
    connect(&shownSource, &EnergySource::historyChanged, this, &DisplayWindow::readPricesAgain,
            Qt::UniqueConnection);
}

QStringList DisplayWindow::pageNames()
{
    return {overviewName, chartsName, devicesName, analysisName,
            monthsName,   goalsName,  settingsName};
}

void DisplayWindow::openPage(const QString &name)
{
    setCurrentIndex(pageNames().indexOf(name));
}

void DisplayWindow::openMenu()
{
    menu->show();
    menu->raise();
}

void DisplayWindow::openPageGrid()
{
    dialogs.chooseByPicture(&pageGrid, [this](int row) { gridActions.at(row)->trigger(); });
}

void DisplayWindow::openMessages()
{
    messages.markSeen();
    if (messages.rowCount() == 0) {
        dialogs.inform(tr("Geen meldingen"));
        return;
    }
    dialogs.choose(tr("Meldingen"), &messages, 0,
                   [this](int row) { dialogs.read(tr("Melding"), messages.wholeText(row)); });
}

void DisplayWindow::openStandby()
{
    setCurrentWidget(standby);
}

void DisplayWindow::returnToStart()
{
    withdrawOverlays();
    openPage(overviewName);
}

void DisplayWindow::withdrawOverlays()
{
    dialogs.withdraw();
    menu->hide();
}

void DisplayWindow::addMessage(const QString &message, const QString &kind)
{
    messages.add(message, shownSource.now(), kind);
}

void DisplayWindow::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    const auto children = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        // The menu, and what is asked over a page.
        if (indexOf(child) < 0) {
            fitDialog(child, size());
        }
    }
}

void DisplayWindow::makePages(const EnergySource &source)
{
    auto *overview = new OverviewPage(source);
    charts = new ChartsPage(source, settings);
    months = new MonthsPage(source);
    goals = new GoalsPage(source, settings, &dialogs);
    settingsPage = new SettingsPage(source, settings, &dialogs);
    addPage(overview, overviewName);
    addPage(charts, chartsName);
    addPage(new DevicesPage(source), devicesName);
    addPage(new AnalysisPage(source), analysisName);
    addPage(months, monthsName);
    addPage(goals, goalsName);
    addPage(settingsPage, settingsName);
    makeOverview(overview);
}

void DisplayWindow::makeOverview(OverviewPage *overview)
{
    connect(overview, &OverviewPage::chartsClicked, this, [this] { openPage(chartsName); });
    connect(overview, &OverviewPage::devicesClicked, this, [this] { openPage(devicesName); });
    connect(overview, &OverviewPage::analysisClicked, this, [this] { openPage(analysisName); });
    connect(overview, &OverviewPage::goalsClicked, this, [this] { openPage(goalsName); });

    const auto showName = [this, overview] {
        const QString name = settings->houseName();
        overview->setTitle(name.isEmpty() ? tr("Overzicht") : name);
    };
    connect(settings, &DisplaySettings::changed, overview, showName);
    showName();
}

void DisplayWindow::addPage(DisplayPage *page, const QString &name)
{
    page->setObjectName(name);
    page->setPlace(count(), int(pageNames().size()));
    if (count() > 0) {
        page->addBackButton();
    }
    addWidget(page);
    connect(page, &DisplayPage::backClicked, this, [this] { openPage(overviewName); });
    connect(page, &DisplayPage::menuClicked, this, &DisplayWindow::openMenu);
    connect(page, &DisplayPage::messagesClicked, this, &DisplayWindow::openMessages);
    connect(&messages, &MessageList::unseenChanged, page, &DisplayPage::setMessageCount);
}

void DisplayWindow::addGridAction(const QString &text, const QPixmap &icon, const QString &page)
{
    auto *action = new QAction(QIcon(icon), text, this);
    connect(action, &QAction::triggered, this, [this, page] { openPage(page); });
    gridActions.append(action);
}

void DisplayWindow::makePageGrid()
{
    addGridAction(tr("Grafieken"), PageIcons::charts(), chartsName);
    addGridAction(tr("Apparaten"), PageIcons::devices(), devicesName);
    addGridAction(tr("Analyse"), PageIcons::analysis(), analysisName);
    addGridAction(tr("Maanden"), PageIcons::months(), monthsName);
    addGridAction(tr("Doelen"), PageIcons::goals(), goalsName);
    addGridAction(tr("Instellingen"), PageIcons::settings(), settingsName);
    pageGrid.setTitle(tr("Pagina's"));
    pageGrid.setActionList(gridActions);
}

void DisplayWindow::makeMenu()
{
    menu = new ZEMMenuOverlay(this);
    menu->hide();
    fitDialog(menu, size());
    makeSolid(menu);
    menu->setText1(tr("pagina's"));
    menu->setText4(menu->getText3());
    menu->setText3(tr("meldingen"));
    menu->showButton4(true);
    connect(menu, &ZEMMenuOverlay::button1_clicked, this, &DisplayWindow::openPageGrid);
    connect(menu, &ZEMMenuOverlay::button2_clicked, this, &DisplayWindow::openStandby);
    connect(menu, &ZEMMenuOverlay::button3_clicked, this, &DisplayWindow::openMessages);
}

void DisplayWindow::makeStandby(const EnergySource &source)
{
    auto *page = new StandbyPage;
    connect(page, &StandbyPage::touched, this, [this] { openPage(overviewName); });
    addWidget(page);
    standby = page;

    keeper = new StandbyKeeper(source, *settings, this);
    connect(keeper, &StandbyKeeper::startPageWanted, this, &DisplayWindow::returnToStart);
    connect(keeper, &StandbyKeeper::standbyWanted, this, [this] {
        withdrawOverlays();
        openStandby();
    });
    connect(this, &QStackedWidget::currentChanged, this, &DisplayWindow::handlePageChange);
}

void DisplayWindow::handlePageChange()
{
    const bool isDarkNow = currentWidget() == standby;
    if (isDarkNow == isDark) {
        return;
    }
    isDark = isDarkNow;
    if (isDark) {
        keeper->stop();
    } else {
        keeper->start();
    }
    Q_EMIT standbyChanged(isDark);
}

void DisplayWindow::showCosts()
{
    for (const QString &problem : std::as_const(costs.problems)) {
        addMessage(withPlaceBehind(problem));
    }
    months->setCostRules(&costs);
    goals->setCostRules(&costs);
    settingsPage->setPricedByContract();
}

void DisplayWindow::readPricesAgain()
{
    if (!priceWatch.hasChanged()) {
        return;
    }
    Costs::LoadedPrices loaded = Costs::loadPrices(costs.priceFiles);
    if (loaded.failure.isEmpty()) {
        costs.prices = std::move(loaded.prices);
        costs.problems = loaded.problems;
    } else {
        // What was known before is better than nothing.
        costs.problems = QStringList(loaded.failure);
    }
    showCosts();
}
