// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../../dashboard/messagelog.h"
#include "chartpagefixture.h"

#include <ZEMEnergyIcon>

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ChartPageTest;

class tst_ZEMHistogramWidgetCharts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void traceOfSetHistogramAndSelectTab();
    void traceOfPaging();
    void setHistogramPutsItOnItsPage();
    void secondHistogramOfAPageTakesOver();
    void deletedHistogramIsForgotten();
    void samePeriodAgain();
    void selectTabOfThePageInViewShowsTheNewestPeriod();
    void pageInViewShowsItsNewestPeriod();
    void pageWithoutChartKeepsTheTitle();
    void titleFollowsTheChartInView();
    void titleIgnoresOtherCharts();
    void titleFollowsASlotThatGoesToAnotherPage();
    void setTitle();
    void pagingSlots();

private:
    std::unique_ptr<MessageLog> log; // the page traces much
};

void tst_ZEMHistogramWidgetCharts::init()
{
    log = std::make_unique<MessageLog>();
}

void tst_ZEMHistogramWidgetCharts::cleanup()
{
    log.reset();
}

void tst_ZEMHistogramWidgetCharts::traceOfSetHistogramAndSelectTab()
{
    Page page;
    Chart *chart = new Chart(QStringLiteral("gas"));
    const ZEMHistogram *histogram = chart;
    const ZEMHistogram *none = nullptr;
    log->take();
    page.setHistogram(ZEM::TabWeek, ZEM::TabGas, chart);
    QCOMPARE(log->take(),
             (QStringList {"getHistogramIndex: p: 1 e: 1 i: 5",
                           "setHistogram() 5 " + debugText(histogram)}));
    page.selectTab(ZEM::TabWeek, ZEM::TabGas);
    QCOMPARE(
        log->take(),
        (QStringList {
            "Gas Tab selected", "btnEnergyTypeclicked  1", "getHistogramIndex: p: 0 e: 1 i: 4",
            "pageChanged() 4 " + debugText(none), "getHistogramIndex: p: 1 e: 1 i: 5",
            "pageChanged() 5 " + debugText(histogram), "pageChanged() 5 " + debugText(histogram)}));
}

void tst_ZEMHistogramWidgetCharts::traceOfPaging()
{
    Page page;
    const ZEMHistogram *none = nullptr;
    log->take();
    QMetaObject::invokeMethod(&page, "btnPrevPeriod_clicked");
    QMetaObject::invokeMethod(&page, "btnNextPeriod_clicked");
    QCOMPARE(log->take(),
             (QStringList {"btnPrevPeriod_clicked() 0 " + debugText(none),
                           "btnNextPeriod_clicked() 0 " + debugText(none)}));
}

void tst_ZEMHistogramWidgetCharts::setHistogramPutsItOnItsPage()
{
    Page page;
    auto *chart = new Chart(QStringLiteral("solar"));
    page.setHistogram(ZEM::TabYear, ZEM::TabSolar, chart);
    QCOMPARE(chart->parentWidget(), stack(page)->widget(19));
    QCOMPARE(stack(page)->widget(19)->layout()->count(), 1);
    QCOMPARE(stack(page)->currentIndex(), 0);
    QCOMPARE(title(page), QStringLiteral("TextLabel"));
}

void tst_ZEMHistogramWidgetCharts::secondHistogramOfAPageTakesOver()
{
    Page page;
    auto *first = new Chart(QStringLiteral("first"));
    auto *second = new Chart(QStringLiteral("second"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, first);
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, second);
    QCOMPARE(stack(page)->widget(0)->layout()->count(), 2);
    QMetaObject::invokeMethod(&page, "btnPrevPeriod_clicked");
    QCOMPARE(title(page), QStringLiteral("second -1"));
    QCOMPARE(first->day(), 0.0);
    first->showPrevPeriod(); // asks for the headline of the one that took over
    QCOMPARE(title(page), QStringLiteral("second -1"));
}

void tst_ZEMHistogramWidgetCharts::deletedHistogramIsForgotten()
{
    Page page;
    auto *chart = new Chart(QStringLiteral("day"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, chart);
    delete chart;
    QMetaObject::invokeMethod(&page, "btnPrevPeriod_clicked");
    page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
    QCOMPARE(title(page), QStringLiteral("TextLabel"));
}

void tst_ZEMHistogramWidgetCharts::samePeriodAgain()
{
    Page page;
    auto *chart = new Chart(QStringLiteral("day"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, chart);
    chart->showPrevPeriod();
    QSignalSpy changed(stack(page), &QStackedWidget::currentChanged);
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    button(page, "btnDay")->click();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(chart->day(), -1.0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(checkedButtons(page), (QStringList {"btnDay", "tabElectricity"}));
}

void tst_ZEMHistogramWidgetCharts::selectTabOfThePageInViewShowsTheNewestPeriod()
{
    Page page;
    auto *chart = new Chart(QStringLiteral("day"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, chart);
    chart->showPrevPeriod();
    QSignalSpy changed(stack(page), &QStackedWidget::currentChanged);
    page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(chart->day(), 0.0);
    QCOMPARE(title(page), QStringLiteral("day 0"));
}

void tst_ZEMHistogramWidgetCharts::pageInViewShowsItsNewestPeriod()
{
    Page page;
    auto *day = new Chart(QStringLiteral("day"));
    auto *week = new Chart(QStringLiteral("week"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, day);
    page.setHistogram(ZEM::TabWeek, ZEM::TabElectricity, week);
    week->showPrevPeriod();
    day->showPrevPeriod();
    button(page, "btnWeek")->click();
    QCOMPARE(week->day(), 0.0);
    QCOMPARE(day->day(), -1.0);
    QCOMPARE(title(page), QStringLiteral("week 0"));
    button(page, "btnDay")->click();
    QCOMPARE(day->day(), 0.0);
    QCOMPARE(title(page), QStringLiteral("day 0"));
}

void tst_ZEMHistogramWidgetCharts::pageWithoutChartKeepsTheTitle()
{
    Page page;
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, new Chart(QStringLiteral("day")));
    page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
    button(page, "btnWeek")->click();
    QCOMPARE(title(page), QStringLiteral("day 0"));
}

void tst_ZEMHistogramWidgetCharts::titleFollowsTheChartInView()
{
    Page page;
    auto *chart = new Chart(QStringLiteral("day"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, chart);
    chart->showPrevPeriod();
    QCOMPARE(title(page), QStringLiteral("day -1"));
    chart->showNextPeriod();
    QCOMPARE(title(page), QStringLiteral("day 0"));
}

void tst_ZEMHistogramWidgetCharts::titleFollowsASlotThatGoesToAnotherPage()
{
    Page page;
    auto *day = new Chart(QStringLiteral("day"));
    auto *week = new Chart(QStringLiteral("week"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, day);
    page.setHistogram(ZEM::TabWeek, ZEM::TabElectricity, week);
    connect(day, QOverload<bool, bool>::of(&ZEMHistogram::has_page), &page,
            [&page] { page.selectTab(ZEM::TabWeek, ZEM::TabElectricity); });

    page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
    QCOMPARE(stack(page)->currentIndex(), 1);
    QCOMPARE(title(page), QStringLiteral("week 0"));

    week->showPrevPeriod();
    button(page, "btnDay")->click();
    QCOMPARE(stack(page)->currentIndex(), 1);
    QCOMPARE(title(page), QStringLiteral("week 0"));
}

void tst_ZEMHistogramWidgetCharts::titleIgnoresOtherCharts()
{
    Page page;
    auto *day = new Chart(QStringLiteral("day"));
    auto *week = new Chart(QStringLiteral("week"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, day);
    page.setHistogram(ZEM::TabWeek, ZEM::TabElectricity, week);
    page.setTitle(QStringLiteral("stale"));
    week->showPrevPeriod();
    QCOMPARE(title(page), QStringLiteral("day 0"));

    button(page, "btnMonth")->click(); // a page without a chart
    page.setTitle(QStringLiteral("own"));
    week->showPrevPeriod();
    QCOMPARE(title(page), QStringLiteral("own"));
}

void tst_ZEMHistogramWidgetCharts::setTitle()
{
    Page page;
    page.setTitle(QStringLiteral("a"));
    QCOMPARE(title(page), QStringLiteral("a"));
    QVERIFY(QMetaObject::invokeMethod(&page, "setTitle", Q_ARG(QString, QStringLiteral("b"))));
    QCOMPARE(title(page), QStringLiteral("b"));
}

void tst_ZEMHistogramWidgetCharts::pagingSlots()
{
    Page page;
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    QMetaObject::invokeMethod(&page, "btnPrevPeriod_clicked");
    QMetaObject::invokeMethod(&page, "btnNextPeriod_clicked");
    QCOMPARE(spy.count(), 0); // nothing to page

    auto *chart = new Chart(QStringLiteral("day"));
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, chart);
    double dayAtSignal = 1.0;
    connect(&page, &Page::sigBtnClicked, this, [&] { dayAtSignal = chart->day(); });
    QMetaObject::invokeMethod(&page, "btnPrevPeriod_clicked");
    QCOMPARE(dayAtSignal, -1.0);
    QCOMPARE(title(page), QStringLiteral("day -1"));
    QCOMPARE(spy.last()[0].value<Page::ButtonType>(), Page::BtnPrevPeriod);
    QMetaObject::invokeMethod(&page, "btnNextPeriod_clicked");
    QCOMPARE(dayAtSignal, 0.0);
    QCOMPARE(spy.last()[0].value<Page::ButtonType>(), Page::BtnNextPeriod);
    QCOMPARE(spy.count(), 2);
}

QTEST_MAIN(tst_ZEMHistogramWidgetCharts)
#include "tst_zemhistogramwidgetcharts.moc"
