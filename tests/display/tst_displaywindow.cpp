// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartspage.h"
#include "displaywindow.h"
#include "energysource.h"

#include "zemtest.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMCurrentStatusWidget>
#include <ZEMHistogram>
#include <ctime>

using namespace ZemTest;
using Readings::Meter;
using Readings::Quantity;

/** A source that a test plays. */
class PlayedSource : public EnergySource
{
    Q_OBJECT

public:
    PlayedSource() { readings.timeZone = QTimeZone("Europe/Amsterdam"); }

    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override { return report; }
    double mostProduction() const override { return 4000.0; }
    bool isMetering() const override { return metering; }

    /** Counters that are read each hour of so many days from 7 March 2016 on. */
    void count(Quantity quantity, int days)
    {
        Meter &meter = readings.meter({quantity, Readings::Tariff::Single}, Meter::Kind::Counter);
        const qint64 midnight =
            QDateTime(QDate(2016, 3, 7), QTime(0, 0), readings.timeZone).toSecsSinceEpoch();
        for (int hour = 0; hour <= 24 * days; ++hour) {
            meter.addReading(midnight + hour * 3600, 100.0 + 0.5 * hour);
        }
    }

    Readings::Household readings;
    std::optional<PowerReport> report;
    bool metering = true;
};

/** Counts the paint events of all arrows in a widget. */
class PaintCounter : public QObject
{
    Q_OBJECT

public:
    explicit PaintCounter(QWidget *root)
    {
        for (ZEMAnimatedArrows *arrows : root->findChildren<ZEMAnimatedArrows *>()) {
            arrows->installEventFilter(this);
            for (QWidget *icon : arrows->findChildren<QWidget *>()) {
                icon->installEventFilter(this);
            }
        }
    }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class tst_DisplayWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void tapsLeadToThePagesAndBack();
    void chartsAppearWithTheirMeters();
    void energyKeepsThePeriodThatWasChosen();
    void hiddenArrowsPaintNothing();
    void stoppedFlowsPaintNothing();
    void idleDisplayTakesNoProcessorTime();
    void lostMeterShowsAQuestionMark();

private:
    void tap(QWidget *widget) const;

    std::unique_ptr<PlayedSource> source;
};

void tst_DisplayWindow::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

void tst_DisplayWindow::init()
{
    source = std::make_unique<PlayedSource>();
    source->report = PowerReport {1200.0, 3000.0, {{Device::Car, 800.0, 7400.0}}};
}

void tst_DisplayWindow::tap(QWidget *widget) const
{
    press(widget, widget->rect().center());
    release(widget, widget->rect().center());
}

static ZEMButton *buttonWithText(const QWidget *root, const QString &text)
{
    for (ZEMButton *button : root->findChildren<ZEMButton *>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

static ZEMButton *backButton(const QWidget *page)
{
    for (ZEMButton *button : page->findChildren<ZEMButton *>()) {
        if (button->size() == QSize(44, 44)) {
            return button;
        }
    }
    return nullptr;
}

void tst_DisplayWindow::tapsLeadToThePagesAndBack()
{
    source->count(Quantity::GridImport, 3);
    DisplayWindow window(*source);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto page = [&] { return window.currentWidget()->objectName(); };
    QCOMPARE(page(), QStringLiteral("overview"));
    QVERIFY(!backButton(window.currentWidget())->isVisible());

    tap(window.findChild<ZEMCurrentStatusWidget *>());
    QCOMPARE(page(), QStringLiteral("devices"));
    tap(backButton(window.currentWidget()));
    QCOMPARE(page(), QStringLiteral("overview"));

    tap(buttonWithText(window.currentWidget(), QStringLiteral("Grafieken")));
    QCOMPARE(page(), QStringLiteral("charts"));
    tap(backButton(window.currentWidget()));
    QCOMPARE(page(), QStringLiteral("overview"));

    // The chart on the large button lets the touch through to it.
    tap(window.currentWidget()->findChild<QWidget *>(QStringLiteral("button")));
    QCOMPARE(page(), QStringLiteral("charts"));
}

void tst_DisplayWindow::chartsAppearWithTheirMeters()
{
    DisplayWindow window(*source);
    window.openPage(QStringLiteral("charts"));
    window.show();
    QVERIFY(window.chartsPage()->allEnergies().empty());

    source->count(Quantity::GridImport, 3);
    Q_EMIT source->historyChanged();
    QCOMPARE(window.chartsPage()->allEnergies().size(), std::size_t(1));
    source->count(Quantity::Gas, 3);
    Q_EMIT source->historyChanged();
    QCOMPARE(window.chartsPage()->allEnergies().size(), std::size_t(2));
    QCOMPARE(window.findChildren<ZEMHistogramWidget *>().size(), 1);
}

void tst_DisplayWindow::energyKeepsThePeriodThatWasChosen()
{
    source->count(Quantity::GridImport, 10);
    source->count(Quantity::Gas, 10);
    DisplayWindow window(*source);
    window.openPage(QStringLiteral("charts"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.chartsPage()->showChart(ZEM::TabElectricity, Period::Week);
    auto *stack = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QVERIFY(stack);
    QCOMPARE(stack->currentIndex(), 1); // week and electricity
    tap(window.findChild<QWidget *>(QStringLiteral("tabGas")));
    QCOMPARE(stack->currentIndex(), 5); // week and gas
    auto *title = window.chartsPage()->findChild<QLabel *>(QStringLiteral("lblTitle"));
    QVERIFY2(!title->text().isEmpty(), qPrintable(title->text()));
}

void tst_DisplayWindow::hiddenArrowsPaintNothing()
{
    DisplayWindow window(*source);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PaintCounter paints(&window);
    QTRY_VERIFY(paints.count > 5);

    window.openPage(QStringLiteral("charts"));
    QCoreApplication::processEvents();
    paints.count = 0;
    QTest::qWait(400);
    Q_EMIT source->powerChanged();
    QTest::qWait(100);
    QCOMPARE(paints.count, 0);

    window.openPage(QStringLiteral("overview"));
    QTRY_VERIFY(paints.count > 5);
}

void tst_DisplayWindow::stoppedFlowsPaintNothing()
{
    source->report = PowerReport {0.0, 0.0, {}};
    DisplayWindow window(*source);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(100);
    PaintCounter paints(&window);
    QTest::qWait(400);
    QCOMPARE(paints.count, 0);
}

void tst_DisplayWindow::idleDisplayTakesNoProcessorTime()
{
    source->report = PowerReport {0.0, 0.0, {}};
    source->count(Quantity::GridImport, 3);
    DisplayWindow window(*source);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(200);

    // QTest's own waiting wakes up a hundred times a second; an event loop sleeps.
    constexpr int idleTime = 3000; // milliseconds
    QEventLoop loop;
    QTimer::singleShot(idleTime, &loop, &QEventLoop::quit);
    const std::clock_t before = std::clock();
    loop.exec();
    const double busy = double(std::clock() - before) / CLOCKS_PER_SEC;
    QVERIFY2(busy < 0.005, qPrintable(QString::number(busy)));
}

void tst_DisplayWindow::lostMeterShowsAQuestionMark()
{
    DisplayWindow window(*source);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
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

QTEST_MAIN(tst_DisplayWindow)
#include "tst_displaywindow.moc"
