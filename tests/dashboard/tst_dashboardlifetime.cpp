// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/lifetimerows.h"

#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>
#include <ZEMCurrentStatusWidget>
#include <ZEMEnergyIcon>
#include <ZEMEnergyTab>
#include <ZEMEnergyTabWidget>
#include <ZEMTotalsTodayWidget>

#include <QTest>

#include <memory>

using namespace LifetimeRows;

/** Widgets that end in the middle of one of their signals, and parts that end before them. */
class tst_DashboardLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsInItsSignal_data();
    void endsInItsSignal() { check(); }
    void allSignalsAreHeard();
    void panelOutlivesItsItems();
    void itemOutlivesItsArrows();
    void arrowsEndWhileTheyRun();
};

namespace {

Lifetime::Stage rowOfTabs(const char *touched)
{
    auto *tabs = new ZEMEnergyTabWidget;
    tabs->resize(400, 50);
    return touchedStage(tabs, touched);
}

Lifetime::Stage selectedTab(ZEM::ZEMTab tab)
{
    auto *tabs = new ZEMEnergyTabWidget;
    Lifetime::Stage stage = stageOf(tabs);
    stage.act = [tabs, tab] { tabs->selectTab(tab); };
    return stage;
}

void addTabRows()
{
    const char *const signal = "btn_clicked(ZEMEnergyIcon::Type)";
    add(
        "ZEMEnergyTabWidget", signal, [] { return rowOfTabs("tabGas"); }, " by a touch");
    add(
        "ZEMEnergyTabWidget", signal, [] { return rowOfTabs("tabElectricity"); },
        " by a touch on the checked tab");
    for (ZEM::ZEMTab tab :
         {ZEM::TabElectricity, ZEM::TabGas, ZEM::TabWater, ZEM::TabHeating, ZEM::TabSolar}) {
        const QByteArray how = " by selectTab(" + QByteArray::number(tab) + ')';
        add(
            "ZEMEnergyTabWidget", signal, [tab] { return selectedTab(tab); }, how.constData());
    }
}

} // namespace

void tst_DashboardLifetime::endsInItsSignal_data()
{
    addColumns();
    addButtonRows<ZEMEnergyTab>();
    add("ZEMEnergyTab", "clicked(ZEMEnergyIcon::Type)",
        [] { return touchedStage(new ZEMEnergyTab); });
    addTabRows();
    add("ZEMTotalsTodayWidget", "btn_top_histogram_clicked()",
        [] { return touchedStage(new ZEMTotalsTodayWidget, "btnTop"); });
    add("ZEMTotalsTodayWidget", "btn_bottom_histogram_clicked()",
        [] { return touchedStage(new ZEMTotalsTodayWidget, "btnBottom"); });
    add("ZEMCurrentStatusWidget", "clicked()", [] {
        auto *status = new ZEMCurrentStatusWidget;
        status->setConsumption(500.0); // watts
        return touchedStage(status, "btn");
    });
    add("ZEMCurrentStatusDetails", "clicked()", [] {
        auto *details = new ZEMCurrentStatusDetails;
        Lifetime::Stage stage = stageOf(details);
        // No finger reaches the button beneath the rows.
        stage.act = [details] { details->getBackgroundWidget()->click(); };
        return stage;
    });
    addMenuRows<ZEMAnimatedArrows>();
    addMenuRows<ZEMCurrentStatusDetails>();
    addMenuRows<ZEMCurrentStatusDetailsItem>();
    addMenuRows<ZEMCurrentStatusWidget>();
    addMenuRows<ZEMEnergyIcon>();
    addMenuRows<ZEMEnergyTab>();
    addMenuRows<ZEMEnergyTabWidget>();
    addMenuRows<ZEMTotalsTodayWidget>();
}

void tst_DashboardLifetime::allSignalsAreHeard()
{
    for (const QMetaObject *metaObject :
         {&ZEMAnimatedArrows::staticMetaObject, &ZEMCurrentStatusDetails::staticMetaObject,
          &ZEMCurrentStatusDetailsItem::staticMetaObject, &ZEMCurrentStatusWidget::staticMetaObject,
          &ZEMEnergyIcon::staticMetaObject, &ZEMEnergyTab::staticMetaObject,
          &ZEMEnergyTabWidget::staticMetaObject, &ZEMTotalsTodayWidget::staticMetaObject}) {
        QCOMPARE(unheard(*metaObject), QStringList());
    }
}

void tst_DashboardLifetime::panelOutlivesItsItems()
{
    ZEMCurrentStatusDetails details;
    auto *house = new ZEMCurrentStatusDetailsItem;
    auto *car = new ZEMCurrentStatusDetailsItem;
    auto *solar = new ZEMCurrentStatusDetailsItem;
    details.addConsumptionItem(house);
    details.addConsumptionItem(car);
    details.addProductionItem(solar);
    delete house;
    delete solar;
    details.setMeteringStatus(false);
    QVERIFY(!car->getValid());
    details.setMeteringStatus(true);
    QVERIFY(car->getValid());
    details.deleteConsumptionItem(car);
    delete car;
    details.setMeteringStatus(false);
}

void tst_DashboardLifetime::itemOutlivesItsArrows()
{
    auto item = std::make_unique<ZEMCurrentStatusDetailsItem>();
    item->setMaxValue(100.0); // watts
    item->show();
    item->setShowArrows(true);
    item->setValue(50.0);
    const QPointer<ZEMAnimatedArrows> arrows = item->getArrowsInterface();
    QVERIFY(arrows->getRunning());
    item.reset(); // while they run
    QVERIFY(!arrows);
}

void tst_DashboardLifetime::arrowsEndWhileTheyRun()
{
    struct Watcher : QObject
    {
        bool eventFilter(QObject * /*object*/, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } watcher;
    const std::unique_ptr<QWidget> page(Lifetime::shownPage());
    auto *arrows = new ZEMAnimatedArrows(page.get());
    for (QWidget *icon : arrows->findChildren<QWidget *>()) {
        icon->installEventFilter(&watcher);
    }
    arrows->show();
    arrows->setSpeed(ZEMAnimatedArrows::Fast);
    arrows->start();
    QTRY_VERIFY_WITH_TIMEOUT(watcher.paints > 6, 60000);
    delete arrows;
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_DashboardLifetime)
#include "tst_dashboardlifetime.moc"
