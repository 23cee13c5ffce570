// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "goalspage.h"

#include "budget.h"
#include "energysource.h"
#include "inputdialogs.h"
#include "pagelook.h"
#include "periodcosts.h"
#include "viewtexts.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QIntValidator>
#include <QLocale>
#include <QVBoxLayout>
#include <ZEMBarIndicator>
#include <ZEMLineEditButton>
#include <ZEMProfileButton>
#include <ZEMStyle>
#include <ZEMTextLabel>
#include <ZEMThreeStars>

namespace {

constexpr int cardGap = 14; // pixels
constexpr QMargins profileMargins(12, 0, 6, 0); // pixels
constexpr int barHeight = 18;
constexpr int barLine = 3;
constexpr QSize starsSize(100, 84);
constexpr double millisecondsPerDay = 24.0 * 60.0 * 60.0 * 1000.0;

/** A dark card with a @p caption; its rows are added to @p rows. */
QWidget *makeCard(ZEMTextLabel **caption, QVBoxLayout **rows)
{
    auto *card = new QWidget;
    QPalette palette = card->palette();
    palette.setColor(QPalette::Window, QColor(0, 0, 0, 90));
    card->setPalette(palette);
    card->setAutoFillBackground(true);
    *rows = new QVBoxLayout(card);
    (*rows)->setContentsMargins(14, 10, 14, 12);
    (*rows)->setAlignment(Qt::AlignTop);
    (*rows)->setSpacing(8);
    *caption = PageLook::makeLabel(QString(), 12);
    (*rows)->addWidget(*caption);
    return card;
}

QString ofBudget(const std::optional<Readings::Measured> &used, double budget)
{
    return GoalsPage::tr("%1 van %2 kWh")
        .arg(ViewTexts::number(used, 1), QLocale().toString(budget, 'f', 1));
}

QString nameOf(Profile profile)
{
    switch (profile) {
    case Profile::Away:
        return GoalsPage::tr("Overdag weg");
    case Profile::Holiday:
        return GoalsPage::tr("Vakantie");
    case Profile::Home:
        break;
    }
    return GoalsPage::tr("Thuis");
}

} // namespace

GoalsPage::GoalsPage(const EnergySource &source, DisplaySettings *theSettings,
                     InputDialogs *theDialogs, QWidget *parent)
    : DisplayPage(tr("Doelen"), source, parent), settings(theSettings), dialogs(theDialogs)
{
    grid = new QGridLayout;
    grid->setContentsMargins(0, cardGap, 0, cardGap);
    grid->setSpacing(cardGap);
    cards = {makeToday(), makeProfiles(), makeYesterday(), makeYearGoal()};
    GoalsPage::arrange(Shape::Wide);
    content()->addLayout(grid, 1);

    connect(&source, &EnergySource::historyChanged, this, &GoalsPage::refresh);
    connect(settings, &DisplaySettings::changed, this, &GoalsPage::refresh);
}

void GoalsPage::setCostRules(const Costs::CostRules *costRules)
{
    rules = costRules;
    refresh();
}

void GoalsPage::arrange(Shape shape)
{
    const int columns = shape == Shape::Wide ? 2 : 1;
    for (int i = 0; i < cards.size(); ++i) {
        grid->removeWidget(cards.at(i));
        grid->addWidget(cards.at(i), i / columns, i % columns);
    }
    // The profiles have the width of their picture, and a row of cards one height.
    grid->setColumnStretch(0, 1);
}

void GoalsPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    refresh();
}

QWidget *GoalsPage::makeToday()
{
    const ZEMStyle style(nullptr);
    QVBoxLayout *rows = nullptr;
    QWidget *card = makeCard(&todayCaption, &rows);
    todayText = PageLook::makeLabel(QString(), 20);
    rows->addWidget(todayText);

    budgetBar = new ZEMBarIndicator;
    budgetBar->setMinimumSize(0, 0);
    budgetBar->setFixedHeight(barHeight);
    budgetBar->setMaxValuePen(QPen(style.color(ZEMStyle::WhiteAlpha50), barLine));
    // How much of the day is over.
    budgetBar->setEnableMidValue(true);
    budgetBar->setMidValuePen(QPen(Qt::white, barLine));
    rows->addWidget(budgetBar);

    todayCosts = PageLook::makeLabel(QString(), 13);
    rows->addWidget(todayCosts);
    return card;
}

QWidget *GoalsPage::makeYesterday()
{
    QVBoxLayout *rows = nullptr;
    QWidget *card = makeCard(&yesterdayCaption, &rows);
    yesterdayText = PageLook::makeLabel(QString(), 13);
    stars = new ZEMThreeStars;
    stars->setFixedSize(starsSize);

    auto *row = new QHBoxLayout;
    row->addWidget(yesterdayText, 1);
    row->addWidget(stars);
    rows->addLayout(row);
    return card;
}

QWidget *GoalsPage::makeProfiles()
{
    ZEMTextLabel *caption = nullptr;
    QVBoxLayout *rows = nullptr;
    QWidget *card = makeCard(&caption, &rows);
    caption->setText(tr("profiel"));
    auto *group = new QButtonGroup(this);
    for (const Profile profile : {Profile::Home, Profile::Away, Profile::Holiday}) {
        auto *button = new ZEMProfileButton;
        button->setTitle(nameOf(profile));
        // A profile has no icon, and its name begins where the text of a field does.
        button->findChild<QWidget *>(QStringLiteral("widget"))->hide();
        button->layout()->setContentsMargins(profileMargins);
        group->addButton(button);
        rows->addWidget(button);
        profiles[profile] = button;
        connect(button, &ZEMProfileButton::clicked, this,
                [this, profile] { settings->setProfile(profile); });
    }
    return card;
}

QWidget *GoalsPage::makeYearGoal()
{
    yearGoal = PageLook::makeField();
    yearGoal->setObjectName(QStringLiteral("yearGoal"));
    connect(yearGoal, &ZEMLineEditButton::clicked, this, &GoalsPage::askForYearGoal);

    ZEMTextLabel *caption = nullptr;
    QVBoxLayout *rows = nullptr;
    QWidget *card = makeCard(&caption, &rows);
    caption->setText(tr("doel van een jaar, van het net"));
    rows->addWidget(yearGoal);
    return card;
}

void GoalsPage::askForYearGoal()
{
    auto *validator = new QIntValidator(1, DisplaySettings::mostYearGoal);
    dialogs->askNumber(tr("Van het net in een jaar, in kWh"), QString::number(settings->yearGoal()),
                       validator,
                       tr("Een getal van 1 tot %L1 kWh").arg(DisplaySettings::mostYearGoal),
                       [this](const QString &text) { settings->setYearGoal(text.toInt()); });
}

void GoalsPage::refresh()
{
    if (!isVisible()) {
        return;
    }
    showToday();
    showYesterday();
    yearGoal->setText(tr("%L1 kWh").arg(settings->yearGoal()));
    for (const auto &[profile, button] : profiles) {
        const bool isInUse = profile == settings->profile();
        button->setChecked(isInUse);
        button->setActivated(isInUse);
    }
}

void GoalsPage::showToday()
{
    const Readings::Household &household = energySource().household();
    const QDate today = dates().last;
    todayCaption->setText(tr("budget van het net, %1").arg(dayName(today)));
    const double budget = Budget::ofDay(settings->yearGoal(), settings->profile());
    const std::optional<Readings::Measured> used = Budget::takenOn(household, today);
    const double amount = used ? used->amount : 0.0;
    todayText->setText(ofBudget(used, budget));
    todayCosts->setText(used ? costsText(today, amount) : QString());

    budgetBar->setMaxValue(budget);
    budgetBar->setValue(amount);
    const bool isOver = amount > budget;
    const ZEMStyle style(nullptr);
    budgetBar->setValuePen(
        QPen(style.color(isOver ? ZEMStyle::SoftRed : ZEMStyle::Green), barLine));
    const std::optional<qint64> last = household.lastInstant();
    const QTime known = last ? QDateTime::fromSecsSinceEpoch(*last, household.timeZone).time()
                             : energySource().now().time();
    budgetBar->setMidValue(budget * known.msecsSinceStartOfDay() / millisecondsPerDay);
}

/** What was taken on a day costs by the contract, or else at the price that was entered. */
QString GoalsPage::costsText(const QDate &day, double amount) const
{
    if (!rules) {
        return tr("tot nu toe € %1").arg(QLocale().toString(amount * settings->price(), 'f', 2));
    }
    const Costs::Cost cost = Costs::costOf(energySource().household(), *rules,
                                           Readings::Quantity::GridImport, {day, day.addDays(1)});
    return tr("tot nu toe %1 euro").arg(ViewTexts::euro(cost));
}

void GoalsPage::showYesterday()
{
    const QDate yesterday = dates().last.addDays(-1);
    const bool isNow = yesterday.addDays(1) == energySource().now().date();
    yesterdayCaption->setText(
        tr("van het net, %1").arg(isNow ? tr("gisteren") : dayName(yesterday)));
    const double budget = Budget::ofDay(settings->yearGoal(), settings->profile());
    const std::optional<Readings::Measured> used =
        Budget::takenOn(energySource().household(), yesterday);
    yesterdayText->setText(ofBudget(used, budget));
    // What was not measured may have cost a star.
    stars->setStars(used && used->isComplete ? Budget::starsFor(used->amount, budget) : 0);
}
