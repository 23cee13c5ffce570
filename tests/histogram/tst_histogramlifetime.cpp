// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/dashboardtest.h"
#include "chartlifetime.h"

#include <QwtPannerBase>
#include <ZEMButton>
#include <ZEMEnergyTab>
#include <ZEMEnergyTabWidget>
#include <ZEMHistogramButton>
#include <ZEMHistogramLegend>
#include <ZEMHistogramLegendItem>
#include <ZEMHistogramWidget>
#include <ZEMMiniDayHistogram>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMWeekHistogram>

#include <QLoggingCategory>
#include <QSet>
#include <QStackedWidget>
#include <QTest>

#include <climits>

using namespace ChartLifetime;
using namespace Lifetime;
using DashboardTest::part;

namespace {

constexpr const char *changed = "changed(ZEMHistogram*)";
constexpr const char *hasPage = "has_page(bool,bool)";
constexpr const char *axisChanged = "axisChanged(int)";
constexpr const char *tabPressed = "sigBtnClicked(ZEMHistogramWidget::ButtonType)";

/** Something that makes an object emit a signal. */
struct Trigger
{
    QByteArray name;
    const char *signal;
    std::function<Stage()> stage;
};

using Triggers = QVector<Trigger>;
using StageMaker = std::function<Stage(const Act<ZEMHistogram> &)>;

Triggers triggersBy(const QByteArray &name, const char *signal,
                    const QVector<Act<ZEMHistogram>> &acts, const StageMaker &stage)
{
    Triggers triggers;
    for (const Act<ZEMHistogram> &act : acts) {
        triggers.append(
            {name + ' ' + signal + " by " + act.name, signal, [stage, act] { return stage(act); }});
    }
    return triggers;
}

template <typename Chart>
StageMaker alone()
{
    return [](const Act<ZEMHistogram> &act) { return chartStage(new Chart, act); };
}

enum class Ends { Upper, Lower };

/** The upper or the lower of two charts acts and is heard, and one of them ends. */
template <typename Chart>
StageMaker pairOf(Ends heard, Ends victim)
{
    return [=](const Act<ZEMHistogram> &act) {
        const Pair pair(new Chart, new Chart);
        ZEMHistogram *object = heard == Ends::Upper ? pair.upper : pair.lower;
        ZEMHistogram *other = victim == Ends::Upper ? pair.upper : pair.lower;
        return Stage {pair.page, object, [object, act] { act.run(object); }, other};
    };
}

/** The lower chart is heard while the host works with the upper one. */
template <typename Chart>
StageMaker lowerHears(Ends victim)
{
    return [=](const Act<ZEMHistogram> &act) {
        const Pair pair(new Chart, new Chart);
        ZEMHistogram *upper = pair.upper;
        ZEMHistogram *other = victim == Ends::Upper ? pair.upper : pair.lower;
        return Stage {pair.page, pair.lower, [upper, act] { act.run(upper); }, other};
    };
}

Triggers chartTriggers()
{
    Triggers triggers;
    triggers += triggersBy("ZEMWeekHistogram", changed, headlines(), alone<ZEMWeekHistogram>());
    triggers +=
        triggersBy("ZEMSmartDayHistogram", changed, headlines(), alone<ZEMSmartDayHistogram>());
    triggers +=
        triggersBy("ZEMSmartWeekHistogram", changed, headlines(), alone<ZEMSmartWeekHistogram>());
    triggers +=
        triggersBy("ZEMSmartMonthHistogram", changed, headlines(), alone<ZEMSmartMonthHistogram>());
    for (const char *signal : {changed, hasPage}) {
        triggers +=
            triggersBy("ZEMSmartDayHistogram", signal, moves(), alone<ZEMSmartDayHistogram>());
    }
    triggers +=
        triggersBy("ZEMMiniDayHistogram", hasPage, moves().mid(0, 3), alone<ZEMMiniDayHistogram>());
    return triggers;
}

Triggers pairTriggers()
{
    using Day = ZEMSmartDayHistogram;
    using Month = ZEMSmartMonthHistogram;
    const QVector<Act<ZEMHistogram>> dragging = moves().mid(3);
    const QVector<Act<ZEMHistogram>> all = headlines().mid(0, 1) + dragging;
    Triggers triggers;
    for (const char *signal : {changed, hasPage}) {
        const auto acts = signal == changed ? all : dragging;
        triggers += triggersBy("Upper", signal, acts, pairOf<Day>(Ends::Upper, Ends::Upper));
        triggers += triggersBy("Lower", signal, acts, pairOf<Day>(Ends::Lower, Ends::Lower));
        triggers +=
            triggersBy("Upper without lower", signal, acts, pairOf<Day>(Ends::Upper, Ends::Lower));
        triggers +=
            triggersBy("Lower without upper", signal, acts, pairOf<Day>(Ends::Lower, Ends::Upper));
    }
    triggers += triggersBy("Upper month", changed, all, pairOf<Month>(Ends::Upper, Ends::Upper));
    triggers += triggersBy("Upper month without lower", changed, all,
                           pairOf<Month>(Ends::Upper, Ends::Lower));
    for (const Ends victim : {Ends::Upper, Ends::Lower}) {
        const QByteArray name = victim == Ends::Upper ? "Lower ends upper, that" : "Lower of upper";
        triggers += triggersBy(name, changed, headlines().mid(0, 1), lowerHears<Day>(victim));
        triggers += triggersBy(name + " month", changed, all, lowerHears<Month>(victim));
    }
    return triggers;
}

/** A part of a chart, found after the chart is set up. */
using PartOf = std::function<QObject *(ZEMHistogram *)>;

/** The mover of a chart is heard; @p victim ends. */
StageMaker moverOfChart(const PartOf &victim)
{
    return [victim](const Act<ZEMHistogram> &act) {
        auto *chart = new ZEMSmartDayHistogram;
        Stage stage = chartStage(chart, act);
        stage.object = moverOf(chart);
        stage.other = victim(chart);
        return stage;
    };
}

/** The chart is heard; @p victim, a part of it, ends. */
StageMaker chartWithout(const PartOf &victim)
{
    return [victim](const Act<ZEMHistogram> &act) {
        auto *chart = new ZEMSmartDayHistogram;
        Stage stage = chartStage(chart, act);
        stage.other = victim(chart);
        return stage;
    };
}

Triggers moverTriggers()
{
    const PartOf mover = moverOf;
    const PartOf chartItself = [](ZEMHistogram *chart) { return chart; };
    const QVector<Act<ZEMHistogram>> dragging = moves().mid(3);
    Triggers triggers;
    for (const auto &[name, victim] : {std::pair("QwtPlotMover ", mover),
                                       std::pair("QwtPlotMover without chart ", chartItself)}) {
        triggers += triggersBy(name, axisChanged, moves(), moverOfChart(victim));
        triggers += triggersBy(name, "moved(int,int)", dragging, moverOfChart(victim));
        triggers += triggersBy(name, "panned(int,int)", dragging, moverOfChart(victim));
    }
    for (const char *signal : {changed, hasPage}) {
        triggers += triggersBy("Chart without mover", signal, moves().mid(2), chartWithout(mover));
    }
    return triggers;
}

/** A mover of all four axes of a plot of the host. */
Stage moverStage(bool plotEnds)
{
    QWidget *page = newPage();
    auto *plot = new QwtPlot;
    layoutOf(page)->addWidget(plot);
    showAll(page);
    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    auto *mover = new QwtPlotMover(canvas);
    Stage stage {page, mover, [canvas] { drag(canvas); }};
    if (plotEnds) {
        stage.other = plot;
    }
    return stage;
}

Stage pannerStage(bool parentEnds, const std::function<void(QWidget *)> &act)
{
    QWidget *page = newPage();
    auto *ground = new QWidget;
    layoutOf(page)->addWidget(ground);
    showAll(page);
    auto *panner = new QwtPannerBase(ground);
    panner->setClickDetectInterval(0, UINT_MAX);
    panner->setDxSignalThreshold(5);
    panner->setCursor(Qt::ClosedHandCursor);
    Stage stage {page, panner, [ground, act] { act(ground); }};
    if (parentEnds) {
        stage.other = ground;
    }
    return stage;
}

Triggers pannerTriggers()
{
    Triggers triggers;
    for (const bool parentEnds : {false, true}) {
        const QByteArray name = parentEnds ? "QwtPannerBase without parent " : "QwtPannerBase ";
        for (const char *signal : {"moved(int,int)", "panned(int,int)"}) {
            triggers.append({name + signal + " by drag", signal,
                             [=] { return pannerStage(parentEnds, drag); }});
        }
        triggers.append({name + "clicked(QPoint&) by tap", "clicked(QPoint&)",
                         [=] { return pannerStage(parentEnds, tap); }});
        triggers.append({name + "of a plot, axisChanged(int) by drag", axisChanged,
                         [=] { return moverStage(parentEnds); }});
    }
    return triggers;
}

/** A chart page with a chart on each of four pages, on another one. */
struct ChartPage
{
    ChartPage() : page(newPage()), charts(new ZEMHistogramWidget)
    {
        layoutOf(page)->addWidget(charts);
        for (const ZEM::ZEMTab tab : {ZEM::TabDay, ZEM::TabWeek}) {
            for (const ZEM::ZEMTab energy : {ZEM::TabElectricity, ZEM::TabGas}) {
                auto *chart = new ZEMSmartDayHistogram;
                setUp(chart, page);
                charts->setHistogram(tab, energy, chart);
                inView = inView ? inView : chart;
            }
        }
        next = charts->findChildren<ZEMHistogram *>().value(1);
        showAll(page);
    }

    QWidget *page;
    ZEMHistogramWidget *charts;
    ZEMHistogram *inView = nullptr;
    ZEMHistogram *next = nullptr;
};

using PageAct = Act<ZEMHistogramWidget>;

template <typename Button>
std::function<void(ZEMHistogramWidget *)> tapOn(const char *name)
{
    return [name](ZEMHistogramWidget *charts) { tap(part<Button>(*charts, name)); };
}

std::function<void(ZEMHistogramWidget *)> slotOf(const char *name)
{
    return [name](ZEMHistogramWidget *charts) { QMetaObject::invokeMethod(charts, name); };
}

/** What makes a chart page emit sigBtnClicked(). */
QVector<PageAct> tabActs()
{
    return {{"btnYear", tapOn<ZEMButton>("btnYear")},
            {"btnMonth", tapOn<ZEMButton>("btnMonth")},
            {"btnWeek", tapOn<ZEMButton>("btnWeek")},
            {"btnDay", tapOn<ZEMButton>("btnDay")},
            {"gas", tapOn<ZEMEnergyTab>("tabGas")},
            {"electricity", tapOn<ZEMEnergyTab>("tabElectricity")},
            {"selectTab",
             [](ZEMHistogramWidget *charts) { charts->selectTab(ZEM::TabWeek, ZEM::TabGas); }},
            {"btnPrevPeriod_clicked", slotOf("btnPrevPeriod_clicked")},
            {"btnNextPeriod_clicked", slotOf("btnNextPeriod_clicked")}};
}

enum class Heard { Page, Chart, NextChart, Stack, Tabs };

/** @p heard of a chart page emits because of @p act, and @p victim ends. */
Stage pageStage(Heard heard, Heard victim, const PageAct &act)
{
    const ChartPage scene;
    const auto object = [&scene](Heard which) -> QObject * {
        switch (which) {
        case Heard::Page:
            return scene.charts;
        case Heard::Chart:
            return scene.inView;
        case Heard::NextChart:
            return scene.next;
        case Heard::Stack:
            return part<QStackedWidget>(*scene.charts, "stackedWidget");
        case Heard::Tabs:
            return part<ZEMEnergyTabWidget>(*scene.charts, "btnEnergyTab");
        }
        return nullptr;
    };
    ZEMHistogramWidget *charts = scene.charts;
    return {scene.page, object(heard), [charts, act] { act.run(charts); }, object(victim)};
}

Triggers pageTriggers()
{
    Triggers triggers;
    const auto add = [&](const char *name, const char *signal, Heard heard, Heard victim,
                         const QVector<PageAct> &acts) {
        for (const PageAct &act : acts) {
            triggers.append({QByteArray(name) + ' ' + signal + " by " + act.name, signal,
                             [=] { return pageStage(heard, victim, act); }});
        }
    };
    const QVector<PageAct> paging = tabActs().mid(7);
    const QVector<PageAct> toGas {tabActs()[4], tabActs()[6]};
    add("ZEMHistogramWidget", tabPressed, Heard::Page, Heard::Page, tabActs());
    add("ZEMHistogramWidget without chart", tabPressed, Heard::Page, Heard::Chart,
        tabActs().mid(4, 4));
    add("ZEMHistogramWidget without next chart", tabPressed, Heard::Page, Heard::NextChart,
        tabActs().mid(4, 4));
    for (const char *signal : {changed, hasPage}) {
        add("chart in view", signal, Heard::Chart, Heard::Chart, paging);
        add("chart in view without page", signal, Heard::Chart, Heard::Page, paging);
        add("chart that comes", signal, Heard::NextChart, Heard::NextChart, toGas);
        add("chart that comes without page", signal, Heard::NextChart, Heard::Page, toGas);
    }
    add("stack without page", "currentChanged(int)", Heard::Stack, Heard::Page,
        tabActs().mid(4, 1));
    add("tabs without page", "btn_clicked(ZEMEnergyIcon::Type)", Heard::Tabs, Heard::Page, toGas);
    return triggers;
}

Triggers buttonTriggers()
{
    const auto stage = [](const std::function<void(ZEMButton *)> &act, bool chartEnds) {
        QWidget *page = newPage();
        auto *tile = new ZEMHistogramButton;
        layoutOf(page)->addWidget(tile);
        auto *chart = new ZEMMiniDayHistogram;
        chart->init();
        tile->setHistogram(chart);
        showAll(page);
        auto *button = part<ZEMButton>(*tile, "button");
        Stage result {page, tile, [button, act] { act(button); }};
        if (chartEnds) {
            result.other = chart;
        }
        return result;
    };
    return {
        {"ZEMHistogramButton clicked() by tap", "clicked()", [stage] { return stage(tap, false); }},
        {"ZEMHistogramButton clicked() by click", "clicked()",
         [stage] { return stage(&ZEMButton::click, false); }},
        {"ZEMHistogramButton clicked() without chart", "clicked()",
         [stage] { return stage(tap, true); }}};
}

/** The signals that the rows hear. */
QSet<QByteArray> heardIn(const Triggers &triggers)
{
    QSet<QByteArray> heard;
    for (const Trigger &trigger : triggers) {
        heard.insert(trigger.signal);
    }
    return heard;
}

} // namespace

Q_DECLARE_METATYPE(std::function<Lifetime::Stage()>)
Q_DECLARE_METATYPE(Lifetime::End)

class tst_HistogramLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void endsInASlot_data();
    void endsInASlot();
    void everySignalHasRows();

private:
    QString endsWell(const std::function<Stage()> &stage, const char *signal, End end);
};

void tst_HistogramLifetime::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_HistogramLifetime::endsInASlot_data()
{
    QTest::addColumn<std::function<Stage()>>("stage");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<End>("end");
    const Triggers all = chartTriggers() + pairTriggers() + moverTriggers() + pannerTriggers()
        + pageTriggers() + buttonTriggers();
    for (const Trigger &trigger : all) {
        for (const End end : {End::Delete, End::DeleteLater, End::DeletePage}) {
            QTest::addRow("%s, %s", trigger.name.constData(), nameOf(end))
                << trigger.stage << QByteArray(trigger.signal) << end;
        }
    }
}

void tst_HistogramLifetime::endsInASlot()
{
    QFETCH(std::function<Stage()>, stage);
    QFETCH(QByteArray, signal);
    QFETCH(End, end);
    QCOMPARE(endIn(stage(), signal, end), QString());
}

void tst_HistogramLifetime::everySignalHasRows()
{
    const QStringList none;
    const QMetaObject &widget = QWidget::staticMetaObject;
    QCOMPARE(unheardSignals(QwtPannerBase::staticMetaObject, widget, heardIn(pannerTriggers())),
             none);
    QCOMPARE(unheardSignals(QwtPlotMover::staticMetaObject, QwtPannerBase::staticMetaObject,
                            heardIn(moverTriggers())),
             none);
    for (const QMetaObject *chart :
         {&ZEMHistogram::staticMetaObject, &ZEMWeekHistogram::staticMetaObject,
          &ZEMSmartHistogram::staticMetaObject, &ZEMSmartDayHistogram::staticMetaObject,
          &ZEMSmartWeekHistogram::staticMetaObject, &ZEMSmartMonthHistogram::staticMetaObject}) {
        QCOMPARE(unheardSignals(*chart, widget, heardIn(chartTriggers())), none);
    }
    QCOMPARE(unheardSignals(ZEMHistogramWidget::staticMetaObject, widget, heardIn(pageTriggers())),
             none);
    QCOMPARE(
        unheardSignals(ZEMHistogramButton::staticMetaObject, widget, heardIn(buttonTriggers())),
        none);
    QCOMPARE(unheardSignals(ZEMHistogramLegend::staticMetaObject, QwtLegend::staticMetaObject, {}),
             none);
    QCOMPARE(unheardSignals(ZEMHistogramLegendItem::staticMetaObject,
                            QwtTextLabel::staticMetaObject, {}),
             none);
    QCOMPARE(unheardSignals(ZEMHistogramData::staticMetaObject, QObject::staticMetaObject, {}),
             none);
}

QTEST_MAIN(tst_HistogramLifetime)
#include "tst_histogramlifetime.moc"
