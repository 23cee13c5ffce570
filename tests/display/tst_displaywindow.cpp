// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartspage.h"
#include "dutchmonths.h"
#include "paintcounter.h"
#include "playedsource.h"

#include <QAbstractEventDispatcher>
#include <QLabel>
#include <QListView>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMCurrentStatusWidget>
#include <ZEMDialogPopup>
#include <ZEMHistogram>
#include <ZEMListView>
#include <ZEMMenuOverlay>
#include <ZEMNotificationButton>
#include <ZEMPageHeader>
#include <ZEMPageIndicator>
#include <ZEMSimpleListView>
#include <qwt_plot.h>
#include <qwt_plot_histogram.h>

using namespace ZemTest;
using Readings::Quantity;

/** Lets @p counter count the paint events of all arrows in @p root. */
static void watchArrows(PaintCounter *counter, QWidget *root)
{
    for (ZEMAnimatedArrows *arrows : root->findChildren<ZEMAnimatedArrows *>()) {
        counter->watch(arrows);
        for (QWidget *icon : arrows->findChildren<QWidget *>()) {
            counter->watch(icon);
        }
    }
}

/** Lets the display come to rest: all that was begun by showing it is painted. */
static void settle(const PaintCounter &paints)
{
    int before = -1;
    for (int round = 0; round < 100 && before != paints.count; ++round) {
        before = paints.count;
        QTest::qWait(100);
    }
}

class tst_DisplayWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void tapsLeadToThePagesAndBack_data();
    void tapsLeadToThePagesAndBack();
    void menuLeadsToEveryPage_data();
    void menuLeadsToEveryPage();
    void menuEndsWithTheWayOut();
    void standbyIsDarkUntilATouch();
    void soleButtonStandsInTheMiddle();
    void messagesAreCountedUntilSeen();
    void messagesOfOneKindAreOneLine();
    void bellWarnsWhileTheMeterIsSilent();
    void headerTellsTimeAndPlace();
    void simulatedHouseSaysSoOnEveryPage();
    void readingsThatDoNotGoOnSayOfWhenTheyAre();
    void nothingHidesBehindAScrollBar();
    void chartsAppearWithTheirMeters();
    void chartsAreFilledWhenTheirPageIsOpened();
    void energyKeepsThePeriodThatWasChosen();
    void hiddenArrowsPaintNothing();
    void stoppedFlowsPaintNothing();
    void idleDisplaySleeps();
    void hiddenFlowsSleep_data();
    void hiddenFlowsSleep();
    void lostMeterShowsAQuestionMark();
    void powerThatNoMeterTellsIsADash_data();
    void powerThatNoMeterTellsIsADash();

private:
    std::unique_ptr<PlayedSource> source;
};

void tst_DisplayWindow::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

void tst_DisplayWindow::init()
{
    source = std::make_unique<PlayedSource>();
    source->report = PowerReport {-1800.0, 1200.0, 3000.0, {{Device::Car, 800.0, 7400.0}}};
}

void tst_DisplayWindow::tapsLeadToThePagesAndBack_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("the flows") << "ZEMCurrentStatusWidget"
                               << "devices";
    QTest::newRow("the totals") << "btnTop"
                                << "charts";
    // The chart on the large button lets the touch through to it.
    QTest::newRow("the week") << "button"
                              << "charts";
    QTest::newRow("analysis") << "analysis"
                              << "analysis";
    QTest::newRow("goals") << "goals"
                           << "goals";
}

void tst_DisplayWindow::tapsLeadToThePagesAndBack()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    source->count(Quantity::GridImport, 3);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    QCOMPARE(display.page(), QStringLiteral("overview"));
    QVERIFY(!display.onPage("back"));

    PlayedDisplay::tap(display.onPage(qPrintable(from)));
    QCOMPARE(display.page(), to);
    PlayedDisplay::tap(display.onPage("back"));
    QCOMPARE(display.page(), QStringLiteral("overview"));
}

void tst_DisplayWindow::menuLeadsToEveryPage_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("page");

    const QStringList pages = DisplayWindow::pageNames().mid(1);
    for (const QString &page : pages) {
        QTest::newRow(qPrintable(page)) << int(pages.indexOf(page)) << page;
    }
}

void tst_DisplayWindow::menuLeadsToEveryPage()
{
    QFETCH(int, row);
    QFETCH(QString, page);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    // Of a page that is not the start page, too.
    display.window.openPage(QStringLiteral("settings"));

    PlayedDisplay::tap(display.onPage("menu"));
    auto *menu = display.overlay<ZEMMenuOverlay>();
    QVERIFY(menu);
    PlayedDisplay::tap(menu->findChild<ZEMButton *>(QStringLiteral("button1")));
    QVERIFY(!menu->isVisible());
    auto *grid = display.overlay<ZEMSimpleListView>();
    QVERIFY(grid);
    auto *list = grid->findChild<QListView *>();
    const QPoint item = list->visualRect(list->model()->index(row, 0)).center();
    QVERIFY2(list->viewport()->rect().contains(item), "an item beyond the panel");
    press(list->viewport(), item);
    release(list->viewport(), item);
    QCOMPARE(display.page(), page);
    QVERIFY(!display.overlay<ZEMSimpleListView>());
}

void tst_DisplayWindow::menuEndsWithTheWayOut()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    Q_EMIT source->problem(QStringLiteral("a damaged telegram"));
    PlayedDisplay::tap(display.onPage("menu"));
    auto *menu = display.overlay<ZEMMenuOverlay>();
    QCOMPARE(QStringList({menu->getText1(), menu->getText2(), menu->getText3(), menu->getText4()}),
             QStringList({"pagina's", "standby", "meldingen", "annuleren"}));
    PlayedDisplay::tap(menu->findChild<ZEMButton *>(QStringLiteral("button4")));
    QVERIFY(!menu->isVisible());
    QVERIFY(!display.overlay<ZEMListView>());

    PlayedDisplay::tap(display.onPage("menu"));
    PlayedDisplay::tap(menu->findChild<ZEMButton *>(QStringLiteral("button3")));
    QVERIFY(display.overlay<ZEMListView>());
}

void tst_DisplayWindow::standbyIsDarkUntilATouch()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    PlayedDisplay::tap(display.onPage("menu"));
    PlayedDisplay::tap(
        display.overlay<ZEMMenuOverlay>()->findChild<ZEMButton *>(QStringLiteral("button2")));
    const QImage dark = display.window.grab().toImage();
    QCOMPARE(dark.pixelColor(320, 240), QColor(Qt::black));
    QCOMPARE(dark.pixelColor(20, 20), QColor(Qt::black));
    PlayedDisplay::tap(display.window.currentWidget());
    QCOMPARE(display.page(), QStringLiteral("overview"));
}

void tst_DisplayWindow::soleButtonStandsInTheMiddle()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    int middle = -1;
    display.whenOpen<ZEMDialogPopup>([&](ZEMDialogPopup *popup) {
        QCoreApplication::processEvents();
        auto *button = popup->findChild<ZEMButton *>(QStringLiteral("btnAccepted"));
        middle = button->mapTo(popup, button->rect().center()).x();
        PlayedDisplay::tap(button);
    });
    display.window.openMessages();
    QVERIFY2(qAbs(middle - display.window.rect().center().x()) <= 1,
             qPrintable(QString::number(middle)));
}

void tst_DisplayWindow::messagesAreCountedUntilSeen()
{
    source->readings.problems << QStringLiteral("/somewhere/readings.csv:12: a broken row");
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    auto *bell = display.window.currentWidget()->findChild<ZEMNotificationButton *>();
    QCOMPARE(bell->getNotifyCount(), 1);
    Q_EMIT source->problem(QStringLiteral("a damaged telegram"));
    QCOMPARE(bell->getNotifyCount(), 2);

    PlayedDisplay::tap(bell);
    QCOMPARE(bell->getNotifyCount(), 0);
    auto *list = display.overlay<ZEMListView>();
    QVERIFY(list);
    QCOMPARE(list->data(0).toString(),
             withMonthsOfQt(QStringLiteral("9 mrt. 14:05  a damaged telegram")));
    QCOMPARE(list->data(1).toString(),
             withMonthsOfQt(QStringLiteral("9 mrt. 14:05  a broken row (readings.csv:12)")));
    PlayedDisplay::tap(list->findChild<ZEMButton *>(QStringLiteral("btnCancel")));
    ZEM_TRY_VERIFY(!display.overlay<ZEMListView>());
}

void tst_DisplayWindow::messagesOfOneKindAreOneLine()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    Q_EMIT source->problem(QStringLiteral("another meter"));
    for (int i = 1; i <= 300; ++i) {
        Q_EMIT source->problem(QStringLiteral("telegram %1 is dropped").arg(i),
                               QStringLiteral("telegram"));
    }
    auto *bell = display.window.currentWidget()->findChild<ZEMNotificationButton *>();
    QCOMPARE(bell->getNotifyCount(), 2);
    PlayedDisplay::tap(bell);
    auto *list = display.overlay<ZEMListView>();
    QVERIFY(list);
    QCOMPARE(list->data(0).toString(),
             withMonthsOfQt(QStringLiteral("9 mrt. 14:05  300×  telegram 300 is dropped")));
    QCOMPARE(list->data(1).toString(),
             withMonthsOfQt(QStringLiteral("9 mrt. 14:05  another meter")));
}

void tst_DisplayWindow::bellWarnsWhileTheMeterIsSilent()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    auto *bell = display.window.currentWidget()->findChild<ZEMNotificationButton *>();
    QVERIFY(!bell->getWarning());
    source->metering = false;
    Q_EMIT source->meteringChanged(false);
    QVERIFY(bell->getWarning());
    QCOMPARE(bell->getNotifyCount(), 1);
    source->metering = true;
    Q_EMIT source->meteringChanged(true);
    QVERIFY(!bell->getWarning());
}

void tst_DisplayWindow::headerTellsTimeAndPlace()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    auto *header = display.window.currentWidget()->findChild<ZEMPageHeader *>();
    QCOMPARE(header->getTitle(), QStringLiteral("Overzicht"));
    QCOMPARE(header->getSubTitle(), QStringLiteral("woensdag 9 maart 2016, 14:05"));
    QCOMPARE(header->getNrOfPages(), DisplayWindow::pageNames().size());
    display.settings.setHouseName(QStringLiteral("Huize Weltevree"));
    QCOMPARE(header->getTitle(), QStringLiteral("Huize Weltevree"));

    display.window.openPage(QStringLiteral("devices"));
    header = display.window.currentWidget()->findChild<ZEMPageHeader *>();
    auto *dots = header->findChild<ZEMPageIndicator *>();
    QCOMPARE(dots->getCurrentPage(), 2);
    source->time = source->time.addSecs(3600);
    display.window.openPage(QStringLiteral("overview"));
    header = display.window.currentWidget()->findChild<ZEMPageHeader *>();
    QCOMPARE(header->getSubTitle(), QStringLiteral("woensdag 9 maart 2016, 15:05"));
}

void tst_DisplayWindow::simulatedHouseSaysSoOnEveryPage()
{
    // The longest date of all.
    source->time = QDateTime(QDate(2016, 9, 28), QTime(20, 48), source->readings.timeZone);
    for (const bool simulated : {true, false}) {
        source->simulated = simulated;
        PlayedDisplay display(*source);
        QVERIFY(display.show());
        for (const QString &page : DisplayWindow::pageNames()) {
            display.window.openPage(page);
            const QLabel *subtitle =
                display.onPage<ZEMPageHeader>("ZEMPageHeader")->getSubtitleWidget();
            QCOMPARE(subtitle->text(),
                     simulated ? withMonthsOfQt(QStringLiteral("simulatie, wo 28 sep. 2016, 20:48"))
                               : QStringLiteral("woensdag 28 september 2016, 20:48"));
            ZEM_TRY_VERIFY(subtitle->width() >= subtitle->sizeHint().width());
        }
    }
}

void tst_DisplayWindow::readingsThatDoNotGoOnSayOfWhenTheyAre()
{
    source->live = false;
    source->count(Quantity::GridImport, 2);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    for (const QString &page : DisplayWindow::pageNames()) {
        display.window.openPage(page);
        QCOMPARE(display.onPage<ZEMPageHeader>("ZEMPageHeader")->getSubTitle(),
                 withMonthsOfQt(QStringLiteral("stand van wo 9 mrt. 2016, 00:00")));
    }
}

void tst_DisplayWindow::nothingHidesBehindAScrollBar()
{
    source->count(Quantity::GridImport, 3);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    for (const QString &name : DisplayWindow::pageNames()) {
        display.window.openPage(name);
        QCoreApplication::processEvents();
        for (const QScrollBar *bar : display.window.currentWidget()->findChildren<QScrollBar *>()) {
            QVERIFY2(!bar->isVisible(), qPrintable(name));
        }
        const QSize least = display.window.currentWidget()->minimumSizeHint();
        QVERIFY2(
            least.width() <= 640 && least.height() <= 480,
            qPrintable(
                QStringLiteral("%1: %2 by %3").arg(name).arg(least.width()).arg(least.height())));
    }
}

void tst_DisplayWindow::chartsAppearWithTheirMeters()
{
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    window.openPage(QStringLiteral("charts"));
    QVERIFY(display.show());
    QVERIFY(window.chartsPage()->allEnergies().empty());

    source->count(Quantity::GridImport, 3);
    Q_EMIT source->historyChanged();
    QCOMPARE(window.chartsPage()->allEnergies().size(), std::size_t(1));
    source->count(Quantity::Gas, 3);
    Q_EMIT source->historyChanged();
    QCOMPARE(window.chartsPage()->allEnergies().size(), std::size_t(2));
    QCOMPARE(window.findChildren<ZEMHistogramWidget *>().size(), 1);
}

void tst_DisplayWindow::chartsAreFilledWhenTheirPageIsOpened()
{
    source->count(Quantity::GridImport, 10);
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    QVERIFY(display.show());
    const auto slotsOfCharts = [&] {
        std::size_t all = 0;
        for (const QwtPlot *plot : window.chartsPage()->findChildren<QwtPlot *>()) {
            for (const QwtPlotItem *item : plot->itemList(QwtPlotItem::Rtti_PlotHistogram)) {
                all += static_cast<const QwtPlotHistogram *>(item)->dataSize();
            }
        }
        return all;
    };
    QCOMPARE(slotsOfCharts(), std::size_t(0));
    Q_EMIT source->historyChanged();
    QCOMPARE(slotsOfCharts(), std::size_t(0));
    window.openPage(QStringLiteral("charts"));
    QVERIFY(slotsOfCharts() > 0);
}

void tst_DisplayWindow::energyKeepsThePeriodThatWasChosen()
{
    source->count(Quantity::GridImport, 10);
    source->count(Quantity::Gas, 10);
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    window.openPage(QStringLiteral("charts"));
    QVERIFY(display.show());
    window.chartsPage()->showChart(ZEM::TabElectricity, Period::Week);
    auto *stack = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QVERIFY(stack);
    QCOMPARE(stack->currentIndex(), 1); // week and electricity
    PlayedDisplay::tap(window.findChild<QWidget *>(QStringLiteral("tabGas")));
    QCOMPARE(stack->currentIndex(), 5); // week and gas
    auto *title = window.chartsPage()->findChild<QLabel *>(QStringLiteral("lblTitle"));
    QVERIFY2(!title->text().isEmpty(), qPrintable(title->text()));
}

void tst_DisplayWindow::hiddenArrowsPaintNothing()
{
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    QVERIFY(display.show());
    PaintCounter paints;
    watchArrows(&paints, &window);
    ZEM_TRY_VERIFY(paints.count > 5);

    window.openPage(QStringLiteral("charts"));
    settle(paints);
    paints.count = 0;
    QTest::qWait(400);
    Q_EMIT source->powerChanged();
    QTest::qWait(100);
    QCOMPARE(paints.count, 0);

    window.openPage(QStringLiteral("overview"));
    ZEM_TRY_VERIFY(paints.count > 5);
}

void tst_DisplayWindow::stoppedFlowsPaintNothing()
{
    source->report = PowerReport {0.0, 0.0, 0.0};
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    QVERIFY(display.show());
    PaintCounter paints;
    watchArrows(&paints, &window);
    settle(paints);
    paints.count = 0;
    QTest::qWait(400);
    QCOMPARE(paints.count, 0);
}

void tst_DisplayWindow::idleDisplaySleeps()
{
    source->report = PowerReport {0.0, 0.0, 0.0};
    source->count(Quantity::GridImport, 3);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    PaintCounter paints;
    watchArrows(&paints, &display.window);
    settle(paints);

    // QTest's own waiting wakes up a hundred times a second; an event loop sleeps.
    constexpr int idleTime = 5000; // milliseconds
    QEventLoop loop;
    QTimer::singleShot(idleTime, &loop, &QEventLoop::quit);
    int awakenings = 0;
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop,
            [&] { ++awakenings; });
    loop.exec();
    // Once for the end of the loop; a moving arrow would wake it many times a second.
    QVERIFY2(awakenings < 10, qPrintable(QString::number(awakenings)));
}

void tst_DisplayWindow::hiddenFlowsSleep_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("behind the charts") << "overview"
                                       << "charts";
    QTest::newRow("behind the dark page") << "overview"
                                          << "standby";
    QTest::newRow("of the devices") << "devices"
                                    << "charts";
}

void tst_DisplayWindow::hiddenFlowsSleep()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    source->count(Quantity::GridImport, 3);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    const auto running = [&] {
        const auto arrows = display.window.findChildren<ZEMAnimatedArrows *>();
        return std::count_if(arrows.begin(), arrows.end(),
                             [](const ZEMAnimatedArrows *each) { return each->getRunning(); });
    };
    display.window.openPage(from);
    ZEM_TRY_VERIFY(running() > 0);
    const auto before = running();
    if (to == "standby") {
        display.window.openStandby();
    } else {
        display.window.openPage(to);
    }
    QCOMPARE(running(), 0);
    Q_EMIT source->powerChanged();
    Q_EMIT source->meteringChanged(true);
    QCOMPARE(running(), 0);
    display.window.openPage(from);
    ZEM_TRY_COMPARE(running(), before);
}

void tst_DisplayWindow::lostMeterShowsAQuestionMark()
{
    PlayedDisplay display(*source);
    DisplayWindow &window = display.window;
    QVERIFY(display.show());
    const auto questionMarks = [&] {
        int count = 0;
        for (const QLabel *label : window.currentWidget()->findChildren<QLabel *>()) {
            count += label->isVisible() && label->text() == QLatin1String("?") ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(questionMarks(), 0);
    source->metering = false;
    Q_EMIT source->meteringChanged(false);
    QCOMPARE(questionMarks(), 3); // the header, consumption and grid of the tile
    source->metering = true;
    Q_EMIT source->meteringChanged(true);
    QCOMPARE(questionMarks(), 0);
}

void tst_DisplayWindow::powerThatNoMeterTellsIsADash_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("production");
    QTest::addColumn<QString>("consumption");
    QTest::addColumn<QString>("grid");

    QTest::newRow("the tile") << "overview"
                              << "lblProduction"
                              << "lblConsumption"
                              << "lblPowerGrid";
    QTest::newRow("the panel") << "devices"
                               << "lblProductionValue"
                               << "lblConsumptionValue"
                               << "lblPowerGridValue";
}

void tst_DisplayWindow::powerThatNoMeterTellsIsADash()
{
    QFETCH(QString, page);
    QFETCH(QString, production);
    QFETCH(QString, consumption);
    QFETCH(QString, grid);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    display.window.openPage(page);
    const auto texts = [&] {
        QStringList read;
        for (const QString &label : {production, consumption, grid}) {
            read << display.onPage(qPrintable(label))->property("text").toString();
        }
        return read.join(QLatin1Char('|'));
    };
    QCOMPARE(texts(), QStringLiteral("3,0 kW|1,2 kW|1,8 kW"));

    source->report = PowerReport {-1800.0};
    Q_EMIT source->powerChanged();
    QCOMPARE(texts(), QStringLiteral("–|–|1,8 kW"));
    source->report = PowerReport {340.0, 340.0};
    Q_EMIT source->powerChanged();
    QCOMPARE(texts(), QStringLiteral("–|340 W|340 W"));
    source->report.reset();
    Q_EMIT source->powerChanged();
    QCOMPARE(texts(), QStringLiteral("–|?|?"));

    // A battery gives as well: the grid is what the meter told.
    source->report = PowerReport {100.0, 900.0, 500.0, {}, 300.0};
    Q_EMIT source->powerChanged();
    QCOMPARE(texts(), QStringLiteral("500 W|900 W|100 W"));
}

QTEST_MAIN(tst_DisplayWindow)
#include "tst_displaywindow.moc"
