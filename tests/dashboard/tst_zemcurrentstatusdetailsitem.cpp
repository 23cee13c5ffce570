// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMCurrentStatusDetailsItem>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QLocale>
#include <QTest>

using namespace DashboardTest;
using namespace WidgetTest;
using ZemTest::flatPixmap;

using Arrows = ZEMAnimatedArrows;

class tst_ZEMCurrentStatusDetailsItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void newItem();
    void form();
    void declaresItsOwn();
    void windowTitleIsTranslated();
    void iconsAreShownInTheirSize();
    void iconsShowAtOnceOrWithTheLayout();
    void absentIconsTakeNoRoom();
    void text_data();
    void text();
    void hiddenArrowsDoNotFollow();
    void hiddenArrowsKeepRunning();
    void arrowsFollow_data();
    void arrowsFollow();
    void arrowsCatchUpWhenTheItemAppears();
    void positiveDirectionTurnsTheOtherOneToo();
    void maxValueSetsTheSpeedOnly();
    void maxValueIgnoresValidity();
    void invalidStopsTheArrows();
    void invalidStopsHiddenArrows();
    void validBringsTheValueBack();
    void showArrowsAsksTheScreen();
};

static Arrows *arrowsOf(const ZEMCurrentStatusDetailsItem &item)
{
    return item.getArrowsInterface();
}

static QString labelText(const ZEMCurrentStatusDetailsItem &item)
{
    return part<ZEMTextLabel>(item, "label")->text();
}

void tst_ZEMCurrentStatusDetailsItem::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_ZEMCurrentStatusDetailsItem::newItem()
{
    ZEMCurrentStatusDetailsItem item;
    QCOMPARE(item.objectName(), QStringLiteral("ZEMCurrentStatusDetailsItem"));
    QCOMPARE(item.size(), QSize(166, 30));
    QCOMPARE(policyText(item.sizePolicy()), QStringLiteral("Fixed/Fixed"));
    QVERIFY(item.getIcon().isNull());
    QVERIFY(item.getIconPowerSource().isNull());
    QCOMPARE(item.getValue(), 0.0);
    QCOMPARE(item.getMaxValue(), 0.0);
    QVERIFY(item.getValid());
    QVERIFY(!item.getShowArrows());
    QCOMPARE(labelText(item), QStringLiteral("0 W"));
    QCOMPARE(arrowsOf(item), part<Arrows>(item, "arrows"));
    QVERIFY(arrowsOf(item)->isHidden());
    QCOMPARE(arrowsOf(item)->getSize(), Arrows::Small);
    QVERIFY(!arrowsOf(item)->getRunning());

    QWidget host;
    QCOMPARE((new ZEMCurrentStatusDetailsItem(&host))->parentWidget(), &host);
}

void tst_ZEMCurrentStatusDetailsItem::form()
{
    ZEMCurrentStatusDetailsItem item;
    QCOMPARE(layoutLines(item.layout()),
             (QStringList {"QHBoxLayout horizontalLayout 12", " ZEMPixmap zemPixmapFront",
                           " ZEMAnimatedArrows arrows", " ZEMTextLabel label",
                           " ZEMPixmap zemPixmapBack"}));
    QCOMPARE(item.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    auto *label = part<ZEMTextLabel>(item, "label");
    QCOMPARE(fontText(label->font()), QStringLiteral("Cabin 11"));
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QVERIFY(label->getShadow());
}

void tst_ZEMCurrentStatusDetailsItem::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMCurrentStatusDetailsItem::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             (QStringList {"icon:QPixmap", "value:double", "maxValue:double", "showArrows:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMCurrentStatusDetailsItem::windowTitleIsTranslated()
{
    const ContextTranslator translator;
    ZEMCurrentStatusDetailsItem item;
    QCOMPARE(item.windowTitle(), QStringLiteral("ZEMCurrentStatusDetailsItem/Form"));
}

void tst_ZEMCurrentStatusDetailsItem::iconsAreShownInTheirSize()
{
    ZEMCurrentStatusDetailsItem item;
    const QPixmap front = flatPixmap({30, 28}, Qt::red);
    const QPixmap back = flatPixmap({20, 18}, Qt::blue);
    QVERIFY(item.setProperty("icon", front));
    item.setIconPowerSource(back);
    QCOMPARE(item.getIcon().cacheKey(), front.cacheKey());
    QCOMPARE(item.getIconPowerSource().cacheKey(), back.cacheKey());
    QCOMPARE(part<ZEMPixmap>(item, "zemPixmapFront")->getPixmap().cacheKey(), front.cacheKey());
    QCOMPARE(part<ZEMPixmap>(item, "zemPixmapBack")->getPixmap().cacheKey(), back.cacheKey());

    item.setValue(1.0);
    item.resize(166, 30);
    const QImage image = ZemTest::render(&item);
    QCOMPARE(image.pixelColor(0, 15), QColor(Qt::red));
    QCOMPARE(image.pixelColor(29, 15), QColor(Qt::red));
    QCOMPARE(image.pixelColor(165, 15), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(146, 15), QColor(Qt::blue));
    QVERIFY(image.pixelColor(145, 15) != QColor(Qt::blue));
}

void tst_ZEMCurrentStatusDetailsItem::iconsShowAtOnceOrWithTheLayout()
{
    ZEMCurrentStatusDetailsItem item;
    item.resize(166, 30);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    auto *front = part<ZEMPixmap>(item, "zemPixmapFront");
    auto *back = part<ZEMPixmap>(item, "zemPixmapBack");
    const QPixmap icon = flatPixmap({20, 18}, Qt::blue);
    // The layout has no room for them yet.
    QVERIFY(paintedBy(front, [&] { item.setIcon(icon); }) != Painted::Never);
    QVERIFY(paintedBy(back, [&] { item.setIconPowerSource(icon); }) != Painted::Never);

    const QPixmap next = flatPixmap({20, 18}, Qt::red);
    QCOMPARE(paintedBy(front, [&] { item.setIcon(next); }), Painted::AtOnce);
    QCOMPARE(paintedBy(back, [&] { item.setIconPowerSource(next); }), Painted::AtOnce);
}

void tst_ZEMCurrentStatusDetailsItem::absentIconsTakeNoRoom()
{
    ZEMCurrentStatusDetailsItem item;
    const int labelWidth = part<ZEMTextLabel>(item, "label")->sizeHint().width();
    QCOMPARE(item.sizeHint().width(), labelWidth + 2 * 12);
}

void tst_ZEMCurrentStatusDetailsItem::text_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("watts") << 250.0 << "250 W";
    QTest::newRow("kilowatts") << 1500.0 << "1,5 kW";
    QTest::newRow("negative") << -250.0 << "250 W";
    QTest::newRow("negative kilowatts") << -1500.0 << "1.500 W";
}

void tst_ZEMCurrentStatusDetailsItem::text()
{
    QFETCH(double, value);
    QFETCH(QString, text);

    ZEMCurrentStatusDetailsItem item;
    QVERIFY(item.setProperty("value", value));
    QCOMPARE(item.getValue(), value);
    QCOMPARE(labelText(item), text);
    item.setValid(false);
    QCOMPARE(labelText(item), QStringLiteral("?"));
    item.setValue(1.0);
    item.setValue(value);
    QCOMPARE(labelText(item), QStringLiteral("?"));
    item.setValid(true);
    QCOMPARE(labelText(item), text);
}

void tst_ZEMCurrentStatusDetailsItem::hiddenArrowsDoNotFollow()
{
    ZEMCurrentStatusDetailsItem item;
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    const auto direction = arrowsOf(item)->getDirection();
    const auto speed = arrowsOf(item)->getSpeed();
    QCOMPARE(direction, Arrows::Left);
    item.setValue(700.0);
    QCOMPARE(labelText(item), QStringLiteral("700 W"));
    QCOMPARE(arrowsOf(item)->getDirection(), direction);
    QCOMPARE(arrowsOf(item)->getSpeed(), speed);
    QVERIFY(!arrowsOf(item)->getRunning());
}

void tst_ZEMCurrentStatusDetailsItem::hiddenArrowsKeepRunning()
{
    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setMaxValue(100.0);
    item.setValue(100.0);
    QVERIFY(arrowsOf(item)->getRunning());
    item.setShowArrows(false);
    item.setValue(0.0);
    QVERIFY(arrowsOf(item)->getRunning());
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Fast);
}

void tst_ZEMCurrentStatusDetailsItem::arrowsFollow_data()
{
    QTest::addColumn<double>("maxValue");
    QTest::addColumn<double>("value");
    QTest::addColumn<Arrows::Direction>("direction");
    QTest::addColumn<Arrows::Speed>("speed");
    QTest::newRow("nothing") << 100.0 << 0.0 << Arrows::Left << Arrows::Stopped;
    QTest::newRow("little") << 100.0 << 10.0 << Arrows::Right << Arrows::Slow;
    QTest::newRow("half") << 100.0 << 50.0 << Arrows::Right << Arrows::Medium;
    QTest::newRow("much") << 100.0 << 90.0 << Arrows::Right << Arrows::Fast;
    QTest::newRow("back") << 100.0 << -90.0 << Arrows::Left << Arrows::Fast;
    QTest::newRow("no maximum") << 0.0 << 1.0 << Arrows::Right << Arrows::Medium;
}

void tst_ZEMCurrentStatusDetailsItem::arrowsFollow()
{
    QFETCH(double, maxValue);
    QFETCH(double, value);
    QFETCH(Arrows::Direction, direction);
    QFETCH(Arrows::Speed, speed);

    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setMaxValue(maxValue);
    item.setValue(value);
    QCOMPARE(arrowsOf(item)->getDirection(), direction);
    QCOMPARE(arrowsOf(item)->getSpeed(), speed);
    QCOMPARE(arrowsOf(item)->getRunning(), speed != Arrows::Stopped);
}

void tst_ZEMCurrentStatusDetailsItem::arrowsCatchUpWhenTheItemAppears()
{
    QWidget window;
    window.resize(200, 60);
    auto *item = new ZEMCurrentStatusDetailsItem(&window);
    item->setShowArrows(true);
    item->setMaxValue(100.0);
    item->setValue(50.0);
    QVERIFY(!arrowsOf(*item)->getRunning());
    window.show();
    QVERIFY(arrowsOf(*item)->getRunning());
    QCOMPARE(arrowsOf(*item)->getDirection(), Arrows::Right);
    QCOMPARE(arrowsOf(*item)->getSpeed(), Arrows::Medium);

    window.hide();
    item->setValue(-10.0);
    QCOMPARE(arrowsOf(*item)->getDirection(), Arrows::Right);
    window.show();
    QCOMPARE(arrowsOf(*item)->getDirection(), Arrows::Left);
    QCOMPARE(arrowsOf(*item)->getSpeed(), Arrows::Slow);
}

void tst_ZEMCurrentStatusDetailsItem::positiveDirectionTurnsTheOtherOneToo()
{
    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setValue(5.0);
    item.setPositiveValueDirection(Arrows::Left);
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Right);
    item.setValue(5.0);
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Left);
    item.setValue(-5.0);
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Right);
    item.setPositiveValueDirection(Arrows::Right);
    item.setValue(5.0);
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Right);
    item.setValue(0.0);
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Left);
}

void tst_ZEMCurrentStatusDetailsItem::maxValueSetsTheSpeedOnly()
{
    ZEMCurrentStatusDetailsItem item;
    item.setValue(50.0);
    QVERIFY(item.setProperty("maxValue", 50.0));
    QCOMPARE(item.getMaxValue(), 50.0);
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Fast);
    QVERIFY(!arrowsOf(item)->getRunning());
    item.setMaxValue(500.0);
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Slow);
    item.setMaxValue(50000.0);
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Stopped);
}

void tst_ZEMCurrentStatusDetailsItem::maxValueIgnoresValidity()
{
    ZEMCurrentStatusDetailsItem item;
    item.setValue(50.0);
    item.setValid(false);
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Stopped);
    item.setMaxValue(50.0);
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Fast);
    QCOMPARE(labelText(item), QStringLiteral("?"));
}

void tst_ZEMCurrentStatusDetailsItem::invalidStopsTheArrows()
{
    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setValue(50.0);
    QVERIFY(arrowsOf(item)->getRunning());
    item.setValid(false);
    QVERIFY(!item.getValid());
    QVERIFY(!arrowsOf(item)->getRunning());
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Right);
    item.setValue(-50.0);
    QVERIFY(!arrowsOf(item)->getRunning());
    QCOMPARE(arrowsOf(item)->getDirection(), Arrows::Right);
}

void tst_ZEMCurrentStatusDetailsItem::invalidStopsHiddenArrows()
{
    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setValue(50.0);
    item.setShowArrows(false);
    QVERIFY(arrowsOf(item)->getRunning());
    item.setValid(false);
    QVERIFY(!arrowsOf(item)->getRunning());
}

void tst_ZEMCurrentStatusDetailsItem::validBringsTheValueBack()
{
    ZEMCurrentStatusDetailsItem item;
    item.setShowArrows(true);
    const Stage stage(&item);
    QVERIFY(stage.isReady());
    item.setMaxValue(100.0);
    item.setValid(false);
    item.setValue(20.0);
    QCOMPARE(item.getValue(), 20.0);
    item.setValid(true);
    QCOMPARE(labelText(item), QStringLiteral("20 W"));
    QVERIFY(arrowsOf(item)->getRunning());
    QCOMPARE(arrowsOf(item)->getSpeed(), Arrows::Slow);
}

void tst_ZEMCurrentStatusDetailsItem::showArrowsAsksTheScreen()
{
    ZEMCurrentStatusDetailsItem item;
    QVERIFY(item.setProperty("showArrows", true));
    QVERIFY(!item.getShowArrows());
    {
        const Stage stage(&item);
        QVERIFY(stage.isReady());
        QVERIFY(item.getShowArrows());
        item.setShowArrows(false);
        QVERIFY(!item.getShowArrows());
    }
}

QTEST_MAIN(tst_ZEMCurrentStatusDetailsItem)
#include "tst_zemcurrentstatusdetailsitem.moc"
