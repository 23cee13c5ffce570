// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "messagelog.h"
#include "zemtest.h"

#include <ZEMEnergyTab>
#include <ZEMEnergyTabWidget>

#include <QSignalSpy>
#include <QTest>

using namespace DashboardTest;
using namespace WidgetTest;

Q_DECLARE_METATYPE(ZEM::ZEMTab)

class tst_ZEMEnergyTabWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newRow();
    void heatingStandsBeforeWater();
    void tabsAreExclusive();
    void declaresItsSignalOnly();
    void showTabsHidesTheOthers_data();
    void showTabsHidesTheOthers();
    void showTabsKeepsOrderAndCheck();
    void hiddenTabsLeaveNoGap();
    void selectTab_data();
    void selectTab();
    void selectTabEmitsForTheCheckedTabToo();
    void selectTabOfAnythingElseDoesNothing_data();
    void selectTabOfAnythingElseDoesNothing();
    void hiddenTabIsSelected();
    void signalFollowsTheCheckAndTheTrace();
    void clickIsPassedOn_data();
    void clickIsPassedOn();
};

static const QStringList namesInOrder {QStringLiteral("tabElectricity"), QStringLiteral("tabGas"),
                                       QStringLiteral("tabHeating"), QStringLiteral("tabWater"),
                                       QStringLiteral("tabSolar")};

static ZEMEnergyTab *tab(const ZEMEnergyTabWidget &row, const QString &name)
{
    return row.findChild<ZEMEnergyTab *>(name);
}

static QStringList checkedTabs(const ZEMEnergyTabWidget &row)
{
    QStringList names;
    for (const QString &name : namesInOrder) {
        if (tab(row, name)->isChecked()) {
            names << name;
        }
    }
    return names;
}

static QStringList shownTabs(const ZEMEnergyTabWidget &row)
{
    QStringList names;
    for (const QString &name : namesInOrder) {
        if (!tab(row, name)->isHidden()) {
            names << name;
        }
    }
    return names;
}

void tst_ZEMEnergyTabWidget::newRow()
{
    const ContextTranslator translator;
    ZEMEnergyTabWidget row;
    QCOMPARE(row.objectName(), QStringLiteral("ZEMEnergyTabWidget"));
    QCOMPARE(row.windowTitle(), QStringLiteral("ZEMEnergyTabWidget/Form"));
    QCOMPARE(row.size(), QSize(289, 50));
    QCOMPARE(policyText(row.sizePolicy()), QStringLiteral("Preferred/Fixed"));
    QCOMPARE(checkedTabs(row), QStringList {QStringLiteral("tabElectricity")});
    QCOMPARE(shownTabs(row), namesInOrder);

    QWidget host;
    QCOMPARE((new ZEMEnergyTabWidget(&host))->parentWidget(), &host);
}

void tst_ZEMEnergyTabWidget::heatingStandsBeforeWater()
{
    ZEMEnergyTabWidget row;
    QCOMPARE(layoutLines(row.layout()),
             (QStringList {"QHBoxLayout horizontalLayout 15", " ZEMEnergyTab tabElectricity",
                           " ZEMEnergyTab tabGas", " ZEMEnergyTab tabHeating",
                           " ZEMEnergyTab tabWater", " ZEMEnergyTab tabSolar"}));
    QCOMPARE(row.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QList<ZEMEnergyIcon::Type> types;
    for (const QString &name : namesInOrder) {
        types << tab(row, name)->getEnergyType();
    }
    QCOMPARE(types,
             (QList<ZEMEnergyIcon::Type> {ZEMEnergyIcon::Electricity, ZEMEnergyIcon::Gas,
                                          ZEMEnergyIcon::Heating, ZEMEnergyIcon::Water,
                                          ZEMEnergyIcon::SolarProduction}));
}

void tst_ZEMEnergyTabWidget::tabsAreExclusive()
{
    ZEMEnergyTabWidget row;
    for (const QString &name : namesInOrder) {
        QVERIFY(tab(row, name)->isCheckable());
        QVERIFY(tab(row, name)->autoExclusive());
        tab(row, name)->click();
        QCOMPARE(checkedTabs(row), QStringList {name});
        tab(row, name)->click();
        QCOMPARE(checkedTabs(row), QStringList {name});
    }
}

void tst_ZEMEnergyTabWidget::declaresItsSignalOnly()
{
    const QMetaObject &metaObject = ZEMEnergyTabWidget::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 1);
    QVERIFY(metaObject.indexOfSignal("btn_clicked(ZEMEnergyIcon::Type)") >= 0);
}

void tst_ZEMEnergyTabWidget::showTabsHidesTheOthers_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("periods") << 0xf << QStringList();
    QTest::newRow("electricity") << 0x10 << QStringList {"tabElectricity"};
    QTest::newRow("gas") << 0x20 << QStringList {"tabGas"};
    QTest::newRow("water") << 0x40 << QStringList {"tabWater"};
    QTest::newRow("heating") << 0x80 << QStringList {"tabHeating"};
    QTest::newRow("solar") << 0x100 << QStringList {"tabSolar"};
    QTest::newRow("two") << 0x120 << QStringList {"tabGas", "tabSolar"};
    QTest::newRow("all") << 0x1ff << namesInOrder;
}

void tst_ZEMEnergyTabWidget::showTabsHidesTheOthers()
{
    QFETCH(int, tabs);
    QFETCH(QStringList, shown);

    ZEMEnergyTabWidget row;
    row.showTabs(QFlags<ZEM::ZEMTab>(QFlag(tabs)));
    QCOMPARE(shownTabs(row), shown);
    row.showTabs(QFlags<ZEM::ZEMTab>(QFlag(0x1f0)));
    QCOMPARE(shownTabs(row), namesInOrder);
}

void tst_ZEMEnergyTabWidget::showTabsKeepsOrderAndCheck()
{
    ZEMEnergyTabWidget row;
    const QStringList before = layoutLines(row.layout());
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    row.showTabs(ZEM::TabGas);
    QCOMPARE(layoutLines(row.layout()), before);
    QCOMPARE(checkedTabs(row), QStringList {QStringLiteral("tabElectricity")});
    QCOMPARE(spy.count(), 0);
}

void tst_ZEMEnergyTabWidget::hiddenTabsLeaveNoGap()
{
    ZEMEnergyTabWidget row;
    row.showTabs(ZEM::TabGas | ZEM::TabSolar);
    QCOMPARE(row.sizeHint().width(), 47 + 15 + 47);
}

void tst_ZEMEnergyTabWidget::selectTab_data()
{
    QTest::addColumn<ZEM::ZEMTab>("selected");
    QTest::addColumn<QString>("name");
    QTest::addColumn<ZEMEnergyIcon::Type>("type");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("electricity") << ZEM::TabElectricity << "tabElectricity"
                                 << ZEMEnergyIcon::Electricity
                                 << QStringList {"ElectricityTab selected"};
    QTest::newRow("gas") << ZEM::TabGas << "tabGas" << ZEMEnergyIcon::Gas
                         << QStringList {"Gas Tab selected"};
    QTest::newRow("water") << ZEM::TabWater << "tabWater" << ZEMEnergyIcon::Water << QStringList();
    QTest::newRow("heating") << ZEM::TabHeating << "tabHeating" << ZEMEnergyIcon::Heating
                             << QStringList();
    QTest::newRow("solar") << ZEM::TabSolar << "tabSolar" << ZEMEnergyIcon::SolarProduction
                           << QStringList();
}

void tst_ZEMEnergyTabWidget::selectTab()
{
    QFETCH(ZEM::ZEMTab, selected);
    QFETCH(QString, name);
    QFETCH(ZEMEnergyIcon::Type, type);
    QFETCH(QStringList, messages);

    ZEMEnergyTabWidget row;
    tab(row,
        selected == ZEM::TabElectricity ? QStringLiteral("tabGas")
                                        : QStringLiteral("tabElectricity"))
        ->setChecked(true);
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    MessageLog log;
    row.selectTab(selected);
    QCOMPARE(log.take(), messages);
    QCOMPARE(checkedTabs(row), QStringList {name});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<ZEMEnergyIcon::Type>(), type);
}

void tst_ZEMEnergyTabWidget::selectTabEmitsForTheCheckedTabToo()
{
    ZEMEnergyTabWidget row;
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    row.selectTab(ZEM::TabHeating);
    row.selectTab(ZEM::TabHeating);
    QCOMPARE(spy.count(), 2);
}

void tst_ZEMEnergyTabWidget::selectTabOfAnythingElseDoesNothing_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("two energies") << int(ZEM::TabGas | ZEM::TabWater);
    QTest::newRow("energy and period") << int(ZEM::TabGas | ZEM::TabDay);
    QTest::newRow("period") << int(ZEM::TabDay);
    QTest::newRow("none") << 0;
}

void tst_ZEMEnergyTabWidget::selectTabOfAnythingElseDoesNothing()
{
    QFETCH(int, value);

    ZEMEnergyTabWidget row;
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    MessageLog log;
    row.selectTab(ZEM::ZEMTab(value));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(checkedTabs(row), QStringList {QStringLiteral("tabElectricity")});
}

void tst_ZEMEnergyTabWidget::hiddenTabIsSelected()
{
    ZEMEnergyTabWidget row;
    row.showTabs(ZEM::TabElectricity);
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    row.selectTab(ZEM::TabSolar);
    QCOMPARE(checkedTabs(row), QStringList {QStringLiteral("tabSolar")});
    QCOMPARE(shownTabs(row), QStringList {QStringLiteral("tabElectricity")});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<ZEMEnergyIcon::Type>(), ZEMEnergyIcon::SolarProduction);
}

void tst_ZEMEnergyTabWidget::signalFollowsTheCheckAndTheTrace()
{
    ZEMEnergyTabWidget row;
    MessageLog log;
    QStringList seen;
    connect(&row, &ZEMEnergyTabWidget::btn_clicked, this,
            [&] { seen = log.take() + checkedTabs(row); });
    row.selectTab(ZEM::TabGas);
    QCOMPARE(seen, (QStringList {"Gas Tab selected", "tabGas"}));
}

void tst_ZEMEnergyTabWidget::clickIsPassedOn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ZEMEnergyIcon::Type>("type");
    QTest::newRow("electricity") << "tabElectricity" << ZEMEnergyIcon::Electricity;
    QTest::newRow("gas") << "tabGas" << ZEMEnergyIcon::Gas;
    QTest::newRow("heating") << "tabHeating" << ZEMEnergyIcon::Heating;
    QTest::newRow("water") << "tabWater" << ZEMEnergyIcon::Water;
    QTest::newRow("solar") << "tabSolar" << ZEMEnergyIcon::SolarProduction;
}

void tst_ZEMEnergyTabWidget::clickIsPassedOn()
{
    QFETCH(QString, name);
    QFETCH(ZEMEnergyIcon::Type, type);

    ZEMEnergyTabWidget row;
    const Stage stage(&row);
    QVERIFY(stage.isReady());
    QSignalSpy spy(&row, &ZEMEnergyTabWidget::btn_clicked);
    MessageLog log;
    for (int click = 1; click <= 2; ++click) { // the second one on a tab that is checked
        ZemTest::press(tab(row, name), QPoint(5, 5));
        ZemTest::release(tab(row, name), QPoint(5, 5));
        QCOMPARE(spy.count(), click);
        QCOMPARE(spy.last()[0].value<ZEMEnergyIcon::Type>(), type);
    }
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_ZEMEnergyTabWidget)
#include "tst_zemenergytabwidget.moc"
