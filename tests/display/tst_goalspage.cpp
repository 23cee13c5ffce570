// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dutchmonths.h"
#include "playedsource.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QLoggingCategory>
#include <QTest>
#include <ZEMBarIndicator>
#include <ZEMLineEditButton>
#include <ZEMNumericKeypad>
#include <ZEMProfileButton>
#include <ZEMThreeStars>

using Readings::Quantity;

class tst_GoalsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void barAndStars();
    void oldReadingsAreNotOfToday();
    void contractTellsWhatTodayCosts();
    void profileIsChosenByATap();
    void profilesBeginWhereTheGoalDoes();
    void yearGoalIsTyped();
    void yearGoalOfNothingIsRefused();

private:
    QList<ZEMProfileButton *> profiles() const;
    bool hasText(const QString &text) const;

    PlayedSource source;
    std::unique_ptr<PlayedDisplay> display;
};

void tst_GoalsPage::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    source.count(Quantity::GridImport, 3); // 12 kWh a day until a midnight
}

void tst_GoalsPage::init()
{
    display.reset();
    display = std::make_unique<PlayedDisplay>(source);
    display->window.openPage(QStringLiteral("goals"));
    QVERIFY(display->show());
}

bool tst_GoalsPage::hasText(const QString &text) const
{
    const auto labels = display->window.currentWidget()->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel *label) { return label->text() == text; });
}

QList<ZEMProfileButton *> tst_GoalsPage::profiles() const
{
    return display->window.currentWidget()->findChildren<ZEMProfileButton *>();
}

void tst_GoalsPage::barAndStars()
{
    auto *bar = display->window.currentWidget()->findChild<ZEMBarIndicator *>();
    auto *stars = display->window.currentWidget()->findChild<ZEMThreeStars *>();
    QCOMPARE(bar->getMaxValue(), 3500 / 365.25);
    QCOMPARE(stars->getStars(), 0); // 12 of 9.58 kWh
    display->settings.setYearGoal(3600);
    QCOMPARE(stars->getStars(), 1);
    display->settings.setYearGoal(4383); // 12 kWh a day
    QCOMPARE(bar->getMaxValue(), 12.0);
    QCOMPARE(stars->getStars(), 2);
    display->settings.setYearGoal(6000);
    QCOMPARE(stars->getStars(), 3);
}

void tst_GoalsPage::oldReadingsAreNotOfToday()
{
    QVERIFY(hasText(QStringLiteral("budget van het net, vandaag")));
    QVERIFY(hasText(QStringLiteral("van het net, gisteren")));
    const QDateTime before = source.time;
    source.time = before.addDays(1);
    Q_EMIT source.historyChanged();
    QVERIFY(hasText(withMonthsOfQt(QStringLiteral("budget van het net, 9 mrt. 2016"))));
    QVERIFY(hasText(withMonthsOfQt(QStringLiteral("van het net, 8 mrt. 2016"))));
    source.time = before;
}

void tst_GoalsPage::contractTellsWhatTodayCosts()
{
    QVERIFY(hasText(QStringLiteral("tot nu toe € 3,60")));
    Costs::CostRules rules {{{QDate(2016, 1, 1), {{Quantity::GridImport, {25000, 25000}}}}}};
    display->window.setCostRules(rules);
    QVERIFY(hasText(QStringLiteral("tot nu toe 3,00 euro")));
    rules.contracts.front().rates.at(Quantity::GridImport).normal = 30000;
    display->window.setCostRules(rules);
    QVERIFY(hasText(QStringLiteral("tot nu toe – euro")));
}

void tst_GoalsPage::profileIsChosenByATap()
{
    QCOMPARE(profiles().size(), 3);
    QVERIFY(profiles().at(0)->isActivated());
    PlayedDisplay::tap(profiles().at(2));
    QCOMPARE(display->settings.profile(), Profile::Holiday);
    QVERIFY(!profiles().at(0)->isActivated());
    QVERIFY(!profiles().at(0)->isChecked());
    QVERIFY(profiles().at(2)->isActivated());
    QVERIFY(profiles().at(2)->isChecked());
    auto *bar = display->window.currentWidget()->findChild<ZEMBarIndicator *>();
    QCOMPARE(bar->getMaxValue(), 0.25 * 3500 / 365.25);
}

void tst_GoalsPage::profilesBeginWhereTheGoalDoes()
{
    constexpr int marginOfField = 12; // pixels
    const auto buttons = profiles();
    QCOMPARE(buttons.size(), 3);
    for (const ZEMProfileButton *profile : buttons) {
        const auto *name = profile->findChild<QWidget *>(QStringLiteral("lblTitle"));
        QCOMPARE(name->mapTo(profile, QPoint(0, 0)).x(), marginOfField);
    }
}

void tst_GoalsPage::yearGoalIsTyped()
{
    auto *field = display->onPage<ZEMLineEditButton>("yearGoal");
    QCOMPARE(field->text(), QStringLiteral("3.500 kWh"));
    PlayedDisplay::tap(field);
    auto *keypad = display->inputDialog<ZEMNumericKeypad>();
    QVERIFY(keypad);
    for (const char *key : {"2", "4", "0", "0"}) {
        PlayedDisplay::tapKey(keypad, QLatin1String(key));
    }
    QCOMPARE(keypad->value(), QStringLiteral("2400"));
    PlayedDisplay::tap(keypad->findChild<ZEMButton *>(QStringLiteral("btnOK")));
    QCOMPARE(display->settings.yearGoal(), 2400);
    QCOMPARE(field->text(), QStringLiteral("2.400 kWh"));
    QVERIFY(!display->overlay<ZEMNumericKeypad>());
}

void tst_GoalsPage::yearGoalOfNothingIsRefused()
{
    PlayedDisplay::tap(display->onPage<ZEMLineEditButton>("yearGoal"));
    auto *keypad = display->inputDialog<ZEMNumericKeypad>();
    QVERIFY(keypad);
    PlayedDisplay::tapKey(keypad, QStringLiteral("DELETE"));
    QCOMPARE(keypad->value(), QString());
    PlayedDisplay::tap(keypad->findChild<ZEMButton *>(QStringLiteral("btnOK")));
    QCOMPARE(display->settings.yearGoal(), 3500);
    // It stays, and says what it wants.
    QVERIFY(keypad->isVisible());
    const auto labels = keypad->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text() == QStringLiteral("Een getal van 1 tot 99.999 kWh");
    }));
    PlayedDisplay::tapKey(keypad, QStringLiteral("7"));
    PlayedDisplay::tap(keypad->findChild<ZEMButton *>(QStringLiteral("btnOK")));
    QCOMPARE(display->settings.yearGoal(), 7);
    QVERIFY(!display->overlay<ZEMNumericKeypad>());
}

QTEST_MAIN(tst_GoalsPage)
#include "tst_goalspage.moc"
