// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>
#include <ZEMTextLabel>

#include <QFrame>
#include <QLocale>
#include <QPointer>
#include <QTest>

#include <utility>

using namespace DashboardTest;
using namespace WidgetTest;

using Item = ZEMCurrentStatusDetailsItem;

class tst_ZEMCurrentStatusDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void newPanel();
    void form();
    void titles();
    void values();
    void line();
    void rows();
    void textsAreTranslated();
    void declaresItsOwn();

    void newPanelShowsNoPower();
    void totals_data();
    void totals();
    void unknownMeterHidesConsumptionAndGrid();
    void meteringStatusReachesItemsOfConsumptionOnly();

    void plusSignsStandBetweenItems();
    void plusSignHasAShadow();
    void otherRowsHaveNoPlusSigns();
    void itemsBelongToThePanel();
    void deletingTheNewestOfTwo();
    void deletingTheOnlyOne();
    void deletingTheNewestOfThree();
    void deletingAnEarlierOneDeletesTheLast();
    void deletedItemIsNoLongerTold();
    void itemsAppearWithTheirPower();
    void partsDoNotOverlap();
};

static QString text(const ZEMCurrentStatusDetails &panel, const char *label)
{
    return part<ZEMTextLabel>(panel, label)->text();
}

static QStringList totalTexts(const ZEMCurrentStatusDetails &panel)
{
    return {text(panel, "lblConsumptionValue"), text(panel, "lblProductionValue"),
            text(panel, "lblPowerGridValue")};
}

static QLayout *row(const ZEMCurrentStatusDetails &panel, const char *widget)
{
    return part<QWidget>(panel, widget)->layout();
}

/** What stands in the row of consumption: the names of items, and plus signs. */
static QString rowText(const ZEMCurrentStatusDetails &panel)
{
    const QLayout *layout = row(panel, "widgetConsumption");
    QStringList entries;
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *widget = layout->itemAt(i)->widget();
        const auto *plus = qobject_cast<const ZEMTextLabel *>(widget);
        entries << (plus ? plus->text() : widget->objectName());
    }
    return entries.join(QLatin1Char(' '));
}

static Item *addItem(ZEMCurrentStatusDetails *panel, const char *name)
{
    auto *item = new Item;
    item->setObjectName(QLatin1String(name));
    panel->addConsumptionItem(item);
    return item;
}

void tst_ZEMCurrentStatusDetails::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_ZEMCurrentStatusDetails::newPanel()
{
    ZEMCurrentStatusDetails panel;
    QCOMPARE(panel.objectName(), QStringLiteral("ZEMCurrentStatusDetails"));
    QCOMPARE(panel.size(), QSize(493, 262));
    QCOMPARE(panel.minimumSize(), QSize(493, 262));
    QCOMPARE(policyText(panel.sizePolicy()), QStringLiteral("Fixed/Fixed"));
    QCOMPARE(fontText(panel.font()), QStringLiteral("Cabin 11"));
    QCOMPARE(imageOf(panel.getBackground()), picture("main/active_overview_bg.png"));
    QCOMPARE(panel.getTitle(), QStringLiteral("totaal nu"));
    QVERIFY(panel.getMeteringStatus());

    QWidget host;
    QCOMPARE((new ZEMCurrentStatusDetails(&host))->parentWidget(), &host);
}

void tst_ZEMCurrentStatusDetails::form()
{
    ZEMCurrentStatusDetails panel;
    auto *widget = panel.findChild<QWidget *>(QStringLiteral("widget"), Qt::FindDirectChildrenOnly);
    QVERIFY(widget);
    QCOMPARE(widget->geometry(), QRect(0, 20, 493, 242));
    QCOMPARE(widget->minimumSize(), QSize(493, 242));
    QCOMPARE(widget->font().family(), QStringLiteral("Cabin"));
    QVERIFY(!widget->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(panel.layout()->indexOf(widget), -1);

    const int spacing = part<QLayout>(panel, "horizontalLayout_2")->spacing();
    const auto heading = [&](const char *layout, const char *title, const char *value) {
        return QStringList {
            QStringLiteral(" QHBoxLayout %1 %2").arg(QLatin1String(layout)).arg(spacing),
            QStringLiteral("  ZEMTextLabel ") + QLatin1String(title),
            QStringLiteral("  spacer 40x20 Expanding/Minimum"),
            QStringLiteral("  ZEMTextLabel ") + QLatin1String(value)};
    };
    QStringList expected {"QVBoxLayout verticalLayout 0"};
    expected << heading("horizontalLayout", "lblConsumptionTitle", "lblConsumptionValue")
             << QStringLiteral(" QWidget widgetConsumption")
             << heading("horizontalLayout_2", "lblProductionTitle", "lblProductionValue")
             << QStringLiteral(" QWidget widgetProduction") << QStringLiteral(" QFrame line")
             << heading("horizontalLayout_3", "lblPowerSupplyTitle", "lblPowerGridValue")
             << QStringLiteral(" QWidget widgetTotals");
    QCOMPARE(layoutLines(widget->layout()), expected);
    QCOMPARE(widget->layout()->contentsMargins(), QMargins(18, 12, 18, 9));
}

void tst_ZEMCurrentStatusDetails::titles()
{
    ZEMCurrentStatusDetails panel;
    QCOMPARE(text(panel, "lblConsumptionTitle"), QStringLiteral("verbruik"));
    QCOMPARE(text(panel, "lblProductionTitle"), QStringLiteral("productie"));
    QCOMPARE(text(panel, "lblPowerSupplyTitle"), QStringLiteral("totaal"));
    for (const char *name : {"lblConsumptionTitle", "lblProductionTitle", "lblPowerSupplyTitle"}) {
        auto *label = part<ZEMTextLabel>(panel, name);
        QVERIFY(label->getShadow());
        QCOMPARE(label->font().pointSize(), 11);
        QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    }
}

void tst_ZEMCurrentStatusDetails::values()
{
    ZEMCurrentStatusDetails panel;
    for (const char *name : {"lblConsumptionValue", "lblProductionValue", "lblPowerGridValue"}) {
        auto *label = part<ZEMTextLabel>(panel, name);
        QVERIFY(label->getShadow());
        QCOMPARE(fontText(label->font()), QStringLiteral("Cabin 12"));
    }
    QCOMPARE(part<ZEMTextLabel>(panel, "lblConsumptionValue")->alignment(),
             Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(part<ZEMTextLabel>(panel, "lblProductionValue")->alignment(),
             Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(part<ZEMTextLabel>(panel, "lblPowerGridValue")->alignment(),
             Qt::AlignRight | Qt::AlignVCenter);
}

void tst_ZEMCurrentStatusDetails::line()
{
    ZEMCurrentStatusDetails panel;
    auto *line = part<QFrame>(panel, "line");
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        QCOMPARE(line->palette().brush(QPalette::ColorGroup(group), QPalette::WindowText),
                 QBrush(QColor(255, 255, 255, 26)));
    }
}

void tst_ZEMCurrentStatusDetails::rows()
{
    ZEMCurrentStatusDetails panel;
    for (const char *name : {"widgetConsumption", "widgetProduction", "widgetTotals"}) {
        auto *layout = qobject_cast<QHBoxLayout *>(row(panel, name));
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->spacing(), 12);
        QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(layout->count(), 0);
    }
}

void tst_ZEMCurrentStatusDetails::textsAreTranslated()
{
    const ContextTranslator translator;
    ZEMCurrentStatusDetails panel;
    QCOMPARE(panel.windowTitle(), QStringLiteral("ZEMCurrentStatusDetails/Form"));
    QCOMPARE(panel.getTitle(), QStringLiteral("ZEMCurrentStatusDetails/totaal nu"));
    QCOMPARE(text(panel, "lblConsumptionTitle"),
             QStringLiteral("ZEMCurrentStatusDetails/verbruik"));
    QCOMPARE(text(panel, "lblProductionTitle"),
             QStringLiteral("ZEMCurrentStatusDetails/productie"));
    QCOMPARE(text(panel, "lblPowerSupplyTitle"), QStringLiteral("ZEMCurrentStatusDetails/totaal"));
}

void tst_ZEMCurrentStatusDetails::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMCurrentStatusDetails::staticMetaObject;
    QCOMPARE(metaObject.superClass()->className(), "ZEMLabeledButton");
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 2);
    for (const char *slot :
         {"setTotalConsumptionValue(double)", "setTotalProductionValue(double)"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Public);
    }
}

void tst_ZEMCurrentStatusDetails::newPanelShowsNoPower()
{
    ZEMCurrentStatusDetails panel;
    QCOMPARE(totalTexts(panel), (QStringList {"0 W", "0 W", "0 W"}));
}

void tst_ZEMCurrentStatusDetails::totals_data()
{
    QTest::addColumn<double>("consumption");
    QTest::addColumn<double>("production");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("taking") << 3040.0 << 250.0 << QStringList {"3,0 kW", "250 W", "2,8 kW"};
    QTest::newRow("delivering") << 300.0 << 500.0 << QStringList {"300 W", "500 W", "200 W"};
    QTest::newRow("delivering kilowatts")
        << 300.0 << 2300.0 << QStringList {"300 W", "2,3 kW", "2.000 W"};
}

void tst_ZEMCurrentStatusDetails::totals()
{
    QFETCH(double, consumption);
    QFETCH(double, production);
    QFETCH(QStringList, texts);

    ZEMCurrentStatusDetails panel;
    panel.setTotalConsumptionValue(consumption);
    QCOMPARE(totalTexts(panel), (QStringList {texts[0], "0 W", texts[0]}));
    panel.setTotalProductionValue(production);
    QCOMPARE(totalTexts(panel), texts);
}

void tst_ZEMCurrentStatusDetails::unknownMeterHidesConsumptionAndGrid()
{
    ZEMCurrentStatusDetails panel;
    panel.setTotalConsumptionValue(400.0);
    panel.setTotalProductionValue(100.0);
    panel.setMeteringStatus(false);
    QVERIFY(!panel.getMeteringStatus());
    QCOMPARE(totalTexts(panel), (QStringList {"?", "100 W", "?"}));
    panel.setTotalConsumptionValue(500.0);
    panel.setTotalProductionValue(200.0);
    QCOMPARE(totalTexts(panel), (QStringList {"?", "200 W", "?"}));
    part<ZEMTextLabel>(panel, "lblProductionValue")->clear();
    panel.updateUI();
    QCOMPARE(totalTexts(panel), (QStringList {"?", "200 W", "?"}));
    panel.setMeteringStatus(true);
    QCOMPARE(totalTexts(panel), (QStringList {"500 W", "200 W", "300 W"}));
}

void tst_ZEMCurrentStatusDetails::meteringStatusReachesItemsOfConsumptionOnly()
{
    ZEMCurrentStatusDetails panel;
    Item *first = addItem(&panel, "first");
    Item *second = addItem(&panel, "second");
    auto *production = new Item;
    panel.addProductionItem(production);
    auto *total = new Item;
    panel.addTotalsItem(total);

    panel.setMeteringStatus(false);
    QVERIFY(!first->getValid());
    QVERIFY(!second->getValid());
    QVERIFY(production->getValid());
    QVERIFY(total->getValid());
    total->setValid(false);
    panel.setMeteringStatus(true);
    QVERIFY(first->getValid());
    QVERIFY(second->getValid());
    QVERIFY(!total->getValid());
}

void tst_ZEMCurrentStatusDetails::plusSignsStandBetweenItems()
{
    ZEMCurrentStatusDetails panel;
    addItem(&panel, "a");
    QCOMPARE(rowText(panel), QStringLiteral("a"));
    addItem(&panel, "b");
    QCOMPARE(rowText(panel), QStringLiteral("a + b"));
    addItem(&panel, "c");
    QCOMPARE(rowText(panel), QStringLiteral("a + b + c"));
    const QLayout *layout = row(panel, "widgetConsumption");
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void tst_ZEMCurrentStatusDetails::plusSignHasAShadow()
{
    ZEMCurrentStatusDetails panel;
    addItem(&panel, "a");
    addItem(&panel, "b");
    auto *plus = qobject_cast<ZEMTextLabel *>(row(panel, "widgetConsumption")->itemAt(1)->widget());
    QVERIFY(plus);
    QVERIFY(plus->getShadow());
    QCOMPARE(plus->parentWidget(), part<QWidget>(panel, "widgetConsumption"));
}

void tst_ZEMCurrentStatusDetails::otherRowsHaveNoPlusSigns()
{
    ZEMCurrentStatusDetails panel;
    QList<QWidget *> production {new Item, new Item};
    QList<QWidget *> totals {new Item, new Item};
    for (int i = 0; i < 2; ++i) {
        panel.addProductionItem(static_cast<Item *>(production[i]));
        panel.addTotalsItem(static_cast<Item *>(totals[i]));
    }
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(row(panel, "widgetProduction")->itemAt(i)->widget(), production[i]);
        QCOMPARE(row(panel, "widgetTotals")->itemAt(i)->widget(), totals[i]);
    }
    QCOMPARE(row(panel, "widgetProduction")->count(), 2);
    QCOMPARE(row(panel, "widgetTotals")->count(), 2);
    QCOMPARE(row(panel, "widgetConsumption")->count(), 0);
}

void tst_ZEMCurrentStatusDetails::itemsBelongToThePanel()
{
    QPointer<Item> item;
    {
        ZEMCurrentStatusDetails panel;
        item = addItem(&panel, "a");
        QCOMPARE(item->parentWidget(), part<QWidget>(panel, "widgetConsumption"));
    }
    QVERIFY(!item);
}

void tst_ZEMCurrentStatusDetails::deletingTheNewestOfTwo()
{
    ZEMCurrentStatusDetails panel;
    addItem(&panel, "a");
    Item *newest = addItem(&panel, "b");
    const QPointer<QWidget> plus = row(panel, "widgetConsumption")->itemAt(1)->widget();
    panel.deleteConsumptionItem(newest);
    QCOMPARE(rowText(panel), QStringLiteral("a"));
    QVERIFY(!plus);
    QCOMPARE(newest->objectName(), QStringLiteral("b"));
    QCOMPARE(newest->parentWidget(), part<QWidget>(panel, "widgetConsumption"));
    QVERIFY(!newest->isHidden());
    addItem(&panel, "c");
    QCOMPARE(rowText(panel), QStringLiteral("a + c"));
}

void tst_ZEMCurrentStatusDetails::deletingTheOnlyOne()
{
    ZEMCurrentStatusDetails panel;
    Item *only = addItem(&panel, "a");
    panel.deleteConsumptionItem(only);
    QCOMPARE(rowText(panel), QString());
    panel.setMeteringStatus(false);
    QVERIFY(only->getValid());
}

void tst_ZEMCurrentStatusDetails::deletingTheNewestOfThree()
{
    ZEMCurrentStatusDetails panel;
    addItem(&panel, "a");
    addItem(&panel, "b");
    panel.deleteConsumptionItem(addItem(&panel, "c"));
    QCOMPARE(rowText(panel), QStringLiteral("a + b"));
}

void tst_ZEMCurrentStatusDetails::deletingAnEarlierOneDeletesTheLast()
{
    ZEMCurrentStatusDetails panel;
    Item *first = addItem(&panel, "a");
    addItem(&panel, "b");
    const QPointer<Item> last = addItem(&panel, "c");
    panel.deleteConsumptionItem(first);
    QCOMPARE(rowText(panel), QStringLiteral("+ b +"));
    QVERIFY(!last);
    panel.setMeteringStatus(false); // must not reach the item that is gone
    QVERIFY(first->getValid());
}

void tst_ZEMCurrentStatusDetails::deletedItemIsNoLongerTold()
{
    ZEMCurrentStatusDetails panel;
    Item *twice = addItem(&panel, "a");
    panel.addConsumptionItem(twice);
    panel.deleteConsumptionItem(twice);
    panel.setMeteringStatus(false);
    QVERIFY(twice->getValid());
}

void tst_ZEMCurrentStatusDetails::itemsAppearWithTheirPower()
{
    ZEMCurrentStatusDetails panel;
    const Stage stage(&panel);
    QVERIFY(stage.isReady());
    auto *item = new Item;
    item->setShowArrows(true);
    item->setMaxValue(100.0);
    item->setValue(90.0);
    panel.addConsumptionItem(item);
    QTRY_VERIFY(item->isVisible());
    QTRY_VERIFY(item->getArrowsInterface()->getRunning());
    QCOMPARE(item->getArrowsInterface()->getSpeed(), ZEMAnimatedArrows::Fast);
}

void tst_ZEMCurrentStatusDetails::partsDoNotOverlap()
{
    ZEMCurrentStatusDetails panel;
    const Stage stage(&panel);
    QVERIFY(stage.isReady());
    for (const char *name : {"a", "b", "c"}) {
        Item *item = addItem(&panel, name);
        item->setIcon(ZemTest::flatPixmap({30, 30}, Qt::red));
        item->setValue(999.0);
    }
    panel.addProductionItem(new Item);
    panel.addTotalsItem(new Item);
    QTest::qWait(50);

    QVector<QRect> rects;
    for (const char *name : {"lblConsumptionTitle", "lblConsumptionValue", "widgetConsumption",
                             "lblProductionTitle", "lblProductionValue", "widgetProduction", "line",
                             "lblPowerSupplyTitle", "lblPowerGridValue", "widgetTotals"}) {
        const QRect rect = part<QWidget>(panel, name)->geometry();
        QVERIFY2(QRect(0, 0, 493, 242).contains(rect), name);
        for (const QRect &other : std::as_const(rects)) {
            QVERIFY2(!rect.intersects(other), name);
        }
        rects << rect;
    }
    const QRect rowRect = part<QWidget>(panel, "widgetConsumption")->rect();
    for (const Item *item : panel.findChildren<Item *>()) {
        if (item->parentWidget() == part<QWidget>(panel, "widgetConsumption")) {
            QVERIFY(rowRect.contains(item->geometry()));
        }
    }
}

QTEST_MAIN(tst_ZEMCurrentStatusDetails)
#include "tst_zemcurrentstatusdetails.moc"
