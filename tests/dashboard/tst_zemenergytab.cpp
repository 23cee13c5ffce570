// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMEnergyTab>

#include <QGridLayout>
#include <QSignalSpy>
#include <QTest>

using namespace DashboardTest;
using namespace WidgetTest;

class tst_ZEMEnergyTab : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newTab();
    void form();
    void windowTitleIsTranslated();
    void declaresItsOwn();
    void typeIsThatOfTheIcon();
    void setterPaintsTheIconAtOnce();
    void clickTellsTheType();
    void clickOnTheIconIsOneOnTheTab();
    void clickOnACheckedTabTellsAgain();
    void iconStandsInTheMiddleOfARow();
};

void tst_ZEMEnergyTab::newTab()
{
    ZEMEnergyTab tab;
    QCOMPARE(tab.objectName(), QStringLiteral("ZEMEnergyTab"));
    QCOMPARE(tab.size(), QSize(47, 40));
    QVERIFY(tab.isEnabled());
    QVERIFY(!tab.isCheckable());
    QVERIFY(!tab.isChecked());
    QCOMPARE(tab.getEnergyType(), ZEMEnergyIcon::Electricity);
    QCOMPARE(imageOf(tab.getBackground()), picture("gwe/icons/gwe_btn_act.png"));
    QCOMPARE(imageOf(tab.getBackgroundOff()), picture("gwe/icons/gwe_btn_ina.png"));
    QCOMPARE(tab.getBackground().size(), QSize(47, 40));

    QWidget host;
    QCOMPARE((new ZEMEnergyTab(&host))->parentWidget(), &host);
}

void tst_ZEMEnergyTab::form()
{
    ZEMEnergyTab tab;
    auto *grid = qobject_cast<QGridLayout *>(tab.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->count(), 1);
    auto *icon = qobject_cast<ZEMEnergyIcon *>(grid->itemAtPosition(0, 0)->widget());
    QVERIFY(icon);
    QCOMPARE(icon->objectName(), QStringLiteral("icon"));
    QVERIFY(icon->getUseBigIcon());
    QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::Alignment());

    QWidget host;
    ZEMEnergyTab child(&host);
    QCOMPARE(child.layout()->contentsMargins(), FormTest::styleMarginsOfAChild());
}

void tst_ZEMEnergyTab::windowTitleIsTranslated()
{
    const ContextTranslator translator;
    ZEMEnergyTab tab;
    QCOMPARE(tab.windowTitle(), QStringLiteral("ZEMEnergyTab/Form"));
}

void tst_ZEMEnergyTab::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMEnergyTab::staticMetaObject;
    QCOMPARE(metaObject.className(), "ZEMEnergyTab");
    QCOMPARE(metaObject.superClass()->className(), "ZEMButton");
    QCOMPARE(ownProperties(metaObject),
             QStringList {QStringLiteral("energyType:ZEMEnergyIcon::Type")});
    QCOMPARE(ownMethodCount(metaObject), 2);
    QVERIFY(metaObject.indexOfSignal("clicked(ZEMEnergyIcon::Type)") >= 0);
    QVERIFY(metaObject.indexOfSignal("clicked(bool)") >= 0);
    const int slot = metaObject.indexOfSlot("slot_btn_clicked()");
    QCOMPARE(metaObject.method(slot).access(), QMetaMethod::Private);
}

void tst_ZEMEnergyTab::typeIsThatOfTheIcon()
{
    ZEMEnergyTab tab;
    QVERIFY(tab.setProperty("energyType", QVariant::fromValue(ZEMEnergyIcon::Water)));
    auto *icon = part<ZEMEnergyIcon>(tab, "icon");
    QCOMPARE(icon->getEnergyType(), ZEMEnergyIcon::Water);
    icon->setEnergyType(ZEMEnergyIcon::Gas);
    QCOMPARE(tab.getEnergyType(), ZEMEnergyIcon::Gas);
}

void tst_ZEMEnergyTab::setterPaintsTheIconAtOnce()
{
    ZEMEnergyTab tab;
    const Stage stage(&tab);
    QVERIFY(stage.isReady());
    QCOMPARE(
        paintedBy(part<QWidget>(tab, "icon"), [&] { tab.setEnergyType(ZEMEnergyIcon::Water); }),
        Painted::AtOnce);
}

void tst_ZEMEnergyTab::clickTellsTheType()
{
    ZEMEnergyTab tab;
    QStringList order;
    connect(&tab, QOverload<bool>::of(&ZEMEnergyTab::clicked), this,
            [&] { order << QStringLiteral("clicked"); });
    connect(&tab, QOverload<ZEMEnergyIcon::Type>::of(&ZEMEnergyTab::clicked), this,
            [&](ZEMEnergyIcon::Type type) { order << QString::number(type); });
    tab.setEnergyType(ZEMEnergyIcon::SolarProduction);
    tab.click();
    QCOMPARE(order.count(QStringLiteral("4")), 1);
    QCOMPARE(order.size(), 2);
}

void tst_ZEMEnergyTab::clickOnTheIconIsOneOnTheTab()
{
    ZEMEnergyTab tab;
    const Stage stage(&tab);
    QVERIFY(stage.isReady());
    QSignalSpy spy(&tab, SIGNAL(clicked(ZEMEnergyIcon::Type)));
    auto *icon = part<QWidget>(tab, "icon");
    ZemTest::press(icon, icon->rect().center());
    ZemTest::release(icon, icon->rect().center());
    QCOMPARE(spy.count(), 1);
}

void tst_ZEMEnergyTab::clickOnACheckedTabTellsAgain()
{
    ZEMEnergyTab tab;
    tab.setCheckable(true);
    tab.setAutoExclusive(true);
    tab.setChecked(true);
    QSignalSpy spy(&tab, SIGNAL(clicked(ZEMEnergyIcon::Type)));
    tab.click();
    tab.click();
    QCOMPARE(spy.count(), 2);
}

void tst_ZEMEnergyTab::iconStandsInTheMiddleOfARow()
{
    QWidget row;
    auto *layout = new QHBoxLayout(&row);
    auto *tab = new ZEMEnergyTab;
    layout->addWidget(tab);
    row.resize(200, 100);
    const Stage stage(&row);
    QVERIFY(stage.isReady());
    QCOMPARE(part<QWidget>(*tab, "icon")->geometry().center(), tab->rect().center());
    QCOMPARE(tab->width(), 47);
}

QTEST_MAIN(tst_ZEMEnergyTab)
#include "tst_zemenergytab.moc"
