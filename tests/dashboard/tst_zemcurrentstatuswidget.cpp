// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMCurrentStatusWidget>
#include <ZEMLabel>
#include <ZEMUtils>

#include <QLocale>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <utility>

using namespace DashboardTest;
using namespace WidgetTest;

using Arrows = ZEMAnimatedArrows;

class tst_ZEMCurrentStatusWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void newTile();
    void form();
    void pictures();
    void labels();
    void textsAreTranslated();
    void declaresItsOwn();
    void gettersAndSettersAreSlots();
    void newTileShowsNoPower();
    void powers_data();
    void powers();
    void unknownMeterStopsTheGridOnly();
    void directionStaysWhileTheMeterIsUnknown();
    void steadyFlowIsNotRestarted();
    void randomValues();
    void touchOnAPictureIsAClick_data();
    void touchOnAPictureIsAClick();
    void partsDoNotOverlap();
};

static QString text(const ZEMCurrentStatusWidget &tile, const char *label)
{
    return part<ZEMLabel>(tile, label)->getText();
}

static Arrows *gridArrows(const ZEMCurrentStatusWidget &tile)
{
    return part<Arrows>(tile, "arrowsPowerGrid");
}

static Arrows *solarArrows(const ZEMCurrentStatusWidget &tile)
{
    return part<Arrows>(tile, "arrowsPV");
}

void tst_ZEMCurrentStatusWidget::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_ZEMCurrentStatusWidget::newTile()
{
    ZEMCurrentStatusWidget tile;
    QCOMPARE(tile.objectName(), QStringLiteral("ZEMCurrentStatusWidget"));
    QCOMPARE(tile.size(), QSize(322, 174));
    QCOMPARE(policyText(tile.sizePolicy()), QStringLiteral("Fixed/Fixed"));
    QCOMPARE(fontText(tile.font()), QStringLiteral("Cabin 12"));
    QCOMPARE(imageOf(tile.getBackground()), picture("main/buttons/btn_rect_med.png"));
    QCOMPARE(tile.getTitle(), QStringLiteral("huidige status"));

    QWidget host;
    QCOMPARE((new ZEMCurrentStatusWidget(&host))->parentWidget(), &host);
}

static const char formLines[] = "QGridLayout gridLayout 0\n"
                                " 0,0,1:QHBoxLayout horizontalLayout_2 0\n"
                                " 0,0,1: spacer 13x20 Expanding/Minimum\n"
                                " 0,0,1: ZEMPixmap zemPixmap\n"
                                " 0,0,1: spacer 13x20 Expanding/Minimum\n"
                                " 0,1,1:QVBoxLayout verticalLayout 0\n"
                                " 0,1,1: spacer 20x15 Minimum/Expanding\n"
                                " 0,1,1: ZEMAnimatedArrows arrowsPV\n"
                                " 0,1,1: spacer 20x15 Minimum/Expanding\n"
                                " 0,2,1:QHBoxLayout horizontalLayout_5 0\n"
                                " 0,2,1: spacer 13x20 Expanding/Minimum\n"
                                " 0,2,1: ZEMPixmap zemPixmap_2\n"
                                " 0,2,1: spacer 13x20 Expanding/Minimum\n"
                                " 0,3,2:QVBoxLayout verticalLayout_2 0\n"
                                " 0,3,2: spacer 20x15 Minimum/Expanding\n"
                                " 0,3,2: ZEMAnimatedArrows arrowsPowerGrid\n"
                                " 0,3,2: spacer 20x15 Minimum/Expanding\n"
                                " 0,5,1:QHBoxLayout horizontalLayout_6 0\n"
                                " 0,5,1: spacer 13x20 Expanding/Minimum\n"
                                " 0,5,1: ZEMPixmap zemPixmap_3\n"
                                " 0,5,1: spacer 13x20 Expanding/Minimum\n"
                                " 1,0,1:QHBoxLayout horizontalLayout 0\n"
                                " 1,0,1: spacer 17x20 Expanding/Minimum\n"
                                " 1,0,1: ZEMLabel lblProduction\n"
                                " 1,0,1: spacer 17x20 Expanding/Minimum\n"
                                " 1,1,1:spacer 35x20 Minimum/Minimum\n"
                                " 1,2,1:QHBoxLayout horizontalLayout_3 0\n"
                                " 1,2,1: spacer 17x20 Expanding/Minimum\n"
                                " 1,2,1: ZEMLabel lblConsumption\n"
                                " 1,2,1: spacer 17x20 Expanding/Minimum\n"
                                " 1,3,1:spacer 29x20 Minimum/Minimum\n"
                                " 1,4,2:QHBoxLayout horizontalLayout_4 0\n"
                                " 1,4,2: spacer 17x20 Expanding/Minimum\n"
                                " 1,4,2: ZEMLabel lblPowerGrid\n"
                                " 1,4,2: spacer 17x20 Expanding/Minimum";

void tst_ZEMCurrentStatusWidget::form()
{
    ZEMCurrentStatusWidget tile;
    auto *widget = tile.findChild<QWidget *>(QStringLiteral("widget"), Qt::FindDirectChildrenOnly);
    QVERIFY(widget);
    QCOMPARE(widget->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(widget->geometry(), QRect(0, 22, 322, 150));
    QCOMPARE(widget->minimumSize(), QSize(322, 150));
    QCOMPARE(widget->maximumSize(), QSize(322, 150));
    QCOMPARE(widget->font().pointSize(), 11);
    QVERIFY(widget->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(tile.layout()->indexOf(widget), -1);

    QCOMPARE(layoutLines(widget->layout()),
             QString::fromLatin1(formLines).split(QLatin1Char('\n')));
    QCOMPARE(widget->layout()->contentsMargins(),
             QMargins(14, FormTest::styleMarginsOfAChild().top(), 14, 12));
}

void tst_ZEMCurrentStatusWidget::pictures()
{
    ZEMCurrentStatusWidget tile;
    QCOMPARE(imageOf(part<ZEMPixmap>(tile, "zemPixmap")->getPixmap()),
             picture("icons/icons_11.png"));
    QCOMPARE(imageOf(part<ZEMPixmap>(tile, "zemPixmap_2")->getPixmap()),
             picture("icons/icons_14.png"));
    QCOMPARE(imageOf(part<ZEMPixmap>(tile, "zemPixmap_3")->getPixmap()),
             picture("icons/icons_03.png"));
    QCOMPARE(part<QWidget>(tile, "zemPixmap_2")->minimumSize(), QSize(64, 64));
    QCOMPARE(part<QWidget>(tile, "zemPixmap_2")->maximumSize(), QSize(64, 64));
}

void tst_ZEMCurrentStatusWidget::labels()
{
    ZEMCurrentStatusWidget tile;
    for (const char *name : {"lblProduction", "lblConsumption", "lblPowerGrid"}) {
        auto *label = part<ZEMLabel>(tile, name);
        QCOMPARE(imageOf(label->getPixmap()), picture("main/text_bg_small_medium.png"));
        QCOMPARE(label->minimumSize(), QSize(77, 27));
        QCOMPARE(label->maximumSize(), QSize(77, 27));
        QCOMPARE(fontText(label->font()), QStringLiteral("Cabin 11"));
    }
}

void tst_ZEMCurrentStatusWidget::textsAreTranslated()
{
    const ContextTranslator translator;
    ZEMCurrentStatusWidget tile;
    QCOMPARE(tile.getTitle(), QStringLiteral("ZEMCurrentStatusWidget/huidige status"));
    QCOMPARE(tile.windowTitle(), QStringLiteral("ZEMCurrentStatusWidget/Form"));
}

void tst_ZEMCurrentStatusWidget::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMCurrentStatusWidget::staticMetaObject;
    QCOMPARE(metaObject.superClass()->className(), "ZEMLabeledButton");
    QCOMPARE(ownProperties(metaObject),
             (QStringList {"production:double", "maxProduction:double", "consumption:double",
                           "meteringStatus:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 8);
}

void tst_ZEMCurrentStatusWidget::gettersAndSettersAreSlots()
{
    ZEMCurrentStatusWidget tile;
    for (const char *name : {"Production", "MaxProduction", "Consumption"}) {
        const QByteArray setter = QByteArray("set") + name;
        const QByteArray getter = QByteArray("get") + name;
        QVERIFY(QMetaObject::invokeMethod(&tile, setter.constData(), Q_ARG(double, 12.5)));
        double watt = 0.0;
        QVERIFY(QMetaObject::invokeMethod(&tile, getter.constData(), Q_RETURN_ARG(double, watt)));
        QCOMPARE(watt, 12.5);
    }
    QVERIFY(QMetaObject::invokeMethod(&tile, "setMeteringStatus", Q_ARG(bool, false)));
    bool ok = true;
    QVERIFY(QMetaObject::invokeMethod(&tile, "getMeteringStatus", Q_RETURN_ARG(bool, ok)));
    QVERIFY(!ok);
    QVERIFY(tile.setProperty("consumption", 7.0));
    QCOMPARE(tile.getConsumption(), 7.0);
}

void tst_ZEMCurrentStatusWidget::newTileShowsNoPower()
{
    ZEMCurrentStatusWidget tile;
    QCOMPARE(tile.getProduction(), 0.0);
    QCOMPARE(tile.getMaxProduction(), 0.0);
    QCOMPARE(tile.getConsumption(), 0.0);
    QVERIFY(tile.getMeteringStatus());
    for (const char *label : {"lblProduction", "lblConsumption", "lblPowerGrid"}) {
        QCOMPARE(text(tile, label), QStringLiteral("0 W"));
    }
    QVERIFY(!gridArrows(tile)->getRunning());
    QVERIFY(!solarArrows(tile)->getRunning());
    QCOMPARE(solarArrows(tile)->getDirection(), Arrows::Right);
    QCOMPARE(solarArrows(tile)->getSize(), Arrows::Normal);
    QCOMPARE(gridArrows(tile)->getSize(), Arrows::Normal);
}

void tst_ZEMCurrentStatusWidget::powers_data()
{
    QTest::addColumn<double>("production");
    QTest::addColumn<double>("maxProduction");
    QTest::addColumn<double>("consumption");
    QTest::addColumn<QStringList>("texts"); // solar, house, grid
    QTest::addColumn<Arrows::Direction>("gridDirection");
    QTest::addColumn<Arrows::Speed>("gridSpeed");
    QTest::addColumn<Arrows::Speed>("solarSpeed");

    QTest::newRow("delivering") << 500.0 << 3000.0 << 300.0
                                << QStringList {"500 W", "300 W", "200 W"} << Arrows::Right
                                << Arrows::Fast << Arrows::Slow;
    QTest::newRow("taking kilowatts")
        << 300.0 << 3000.0 << 2300.0 << QStringList {"300 W", "2,3 kW", "2,0 kW"} << Arrows::Left
        << Arrows::Fast << Arrows::Slow;
    QTest::newRow("delivering kilowatts")
        << 2300.0 << 3000.0 << 300.0 << QStringList {"2,3 kW", "300 W", "2.000 W"} << Arrows::Right
        << Arrows::Fast << Arrows::Fast;
    QTest::newRow("balance") << 800.0 << 1600.0 << 800.0 << QStringList {"800 W", "800 W", "0 W"}
                             << Arrows::Right << Arrows::Stopped << Arrows::Medium;
    QTest::newRow("no maximum") << 10.0 << 0.0 << 20.0 << QStringList {"10 W", "20 W", "10 W"}
                                << Arrows::Left << Arrows::Medium << Arrows::Medium;
    QTest::newRow("no consumption") << 10.0 << 10.0 << 0.0 << QStringList {"10 W", "0 W", "10 W"}
                                    << Arrows::Right << Arrows::Medium << Arrows::Fast;
    QTest::newRow("night") << 0.0 << 3000.0 << 400.0 << QStringList {"0 W", "400 W", "400 W"}
                           << Arrows::Left << Arrows::Fast << Arrows::Stopped;
    QTest::newRow("a little from the grid")
        << 700.0 << 1000.0 << 1000.0 << QStringList {"700 W", "1,0 kW", "300 W"} << Arrows::Left
        << Arrows::Slow << Arrows::Fast;
}

void tst_ZEMCurrentStatusWidget::powers()
{
    QFETCH(double, production);
    QFETCH(double, maxProduction);
    QFETCH(double, consumption);
    QFETCH(QStringList, texts);
    QFETCH(Arrows::Speed, gridSpeed);
    QFETCH(Arrows::Speed, solarSpeed);

    ZEMCurrentStatusWidget tile;
    tile.setProduction(production);
    tile.setMaxProduction(maxProduction);
    tile.setConsumption(consumption);
    QCOMPARE((QStringList {text(tile, "lblProduction"), text(tile, "lblConsumption"),
                           text(tile, "lblPowerGrid")}),
             texts);
    QTEST(gridArrows(tile)->getDirection(), "gridDirection");
    QCOMPARE(gridArrows(tile)->getSpeed(), gridSpeed);
    QCOMPARE(gridArrows(tile)->getRunning(), gridSpeed != Arrows::Stopped);
    QCOMPARE(solarArrows(tile)->getDirection(), Arrows::Right);
    QCOMPARE(solarArrows(tile)->getSpeed(), solarSpeed);
    QCOMPARE(solarArrows(tile)->getRunning(), solarSpeed != Arrows::Stopped);
}

void tst_ZEMCurrentStatusWidget::unknownMeterStopsTheGridOnly()
{
    ZEMCurrentStatusWidget tile;
    tile.setMaxProduction(1000.0);
    tile.setProduction(500.0);
    tile.setConsumption(300.0);
    QVERIFY(gridArrows(tile)->getRunning());

    tile.setMeteringStatus(false);
    QCOMPARE(text(tile, "lblConsumption"), QStringLiteral("?"));
    QCOMPARE(text(tile, "lblPowerGrid"), QStringLiteral("?"));
    QVERIFY(!gridArrows(tile)->getRunning());
    QCOMPARE(gridArrows(tile)->getSpeed(), Arrows::Stopped);
    QCOMPARE(text(tile, "lblProduction"), QStringLiteral("500 W"));
    QVERIFY(solarArrows(tile)->getRunning());
    tile.setProduction(800.0);
    QCOMPARE(text(tile, "lblProduction"), QStringLiteral("800 W"));
    QCOMPARE(solarArrows(tile)->getSpeed(), Arrows::Fast);
    tile.setProduction(0.0);
    QVERIFY(!solarArrows(tile)->getRunning());

    tile.setMeteringStatus(true);
    QCOMPARE(text(tile, "lblConsumption"), QStringLiteral("300 W"));
    QVERIFY(gridArrows(tile)->getRunning());
}

void tst_ZEMCurrentStatusWidget::directionStaysWhileTheMeterIsUnknown()
{
    ZEMCurrentStatusWidget tile;
    tile.setConsumption(300.0);
    QCOMPARE(gridArrows(tile)->getDirection(), Arrows::Left);
    tile.setMeteringStatus(false);
    tile.setProduction(5000.0);
    QCOMPARE(gridArrows(tile)->getDirection(), Arrows::Left);
    tile.setMeteringStatus(true);
    QCOMPARE(gridArrows(tile)->getDirection(), Arrows::Right);
}

void tst_ZEMCurrentStatusWidget::steadyFlowIsNotRestarted()
{
    ZEMCurrentStatusWidget tile;
    tile.setConsumption(300.0);
    auto *leading = gridArrows(tile)->findChild<ZEMPixmap *>(QStringLiteral("icon3"));
    QTRY_VERIFY(leading->getOpacity() > 0.05);
    const qreal before = leading->getOpacity();
    tile.setConsumption(301.0);
    QCOMPARE(leading->getOpacity(), before);
    QVERIFY(gridArrows(tile)->getRunning());
}

void tst_ZEMCurrentStatusWidget::randomValues()
{
    ZEMCurrentStatusWidget tile;
    double production = 0.0;
    double maximum = 0.0;
    double consumption = 0.0;
    bool ok = true;
    Arrows::Direction direction = Arrows::Right;
    QRandomGenerator random(5400);
    for (int i = 0; i < 4000; ++i) {
        const double watt = random.bounded(-300, 4000) / 3.0;
        switch (random.bounded(4)) {
        case 0:
            tile.setProduction(production = watt);
            break;
        case 1:
            tile.setMaxProduction(maximum = watt);
            break;
        case 2:
            tile.setConsumption(consumption = watt);
            break;
        default:
            tile.setMeteringStatus(ok = random.bounded(3) > 0);
        }
        const double grid = consumption - production;
        const int speed = ok ? ZEMUtils::calculateSpeed(consumption, grid) : 0;
        if (ok) {
            direction = grid > 0.0 ? Arrows::Left : Arrows::Right;
        }
        const auto shown = [&](double power) {
            return ok ? ZEMUtils::wattToStringAutoScale(power) : QStringLiteral("?");
        };
        QCOMPARE(text(tile, "lblConsumption"), shown(consumption));
        QCOMPARE(text(tile, "lblPowerGrid"), shown(grid));
        QCOMPARE(text(tile, "lblProduction"), ZEMUtils::wattToStringAutoScale(production));
        QCOMPARE(gridArrows(tile)->getDirection(), direction);
        QCOMPARE(int(gridArrows(tile)->getSpeed()), speed);
        QCOMPARE(gridArrows(tile)->getRunning(), speed != 0);
        QCOMPARE(int(solarArrows(tile)->getSpeed()), ZEMUtils::calculateSpeed(maximum, production));
    }
}

void tst_ZEMCurrentStatusWidget::touchOnAPictureIsAClick_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"widget", "zemPixmap", "zemPixmap_2", "zemPixmap_3", "arrowsPV", "arrowsPowerGrid",
          "lblProduction", "lblConsumption", "lblPowerGrid"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void tst_ZEMCurrentStatusWidget::touchOnAPictureIsAClick()
{
    QFETCH(QByteArray, name);

    ZEMCurrentStatusWidget tile;
    const Stage stage(&tile);
    QVERIFY(stage.isReady());
    QSignalSpy spy(&tile, &ZEMCurrentStatusWidget::clicked);
    auto *touched = name == "widget"
        ? tile.findChild<QWidget *>(QStringLiteral("widget"), Qt::FindDirectChildrenOnly)
        : part<QWidget>(tile, name);
    ZemTest::press(touched, touched->rect().center());
    QVERIFY(tile.getBackgroundWidget()->isDown());
    ZemTest::release(touched, touched->rect().center());
    QCOMPARE(spy.count(), 1);
}

void tst_ZEMCurrentStatusWidget::partsDoNotOverlap()
{
    ZEMCurrentStatusWidget tile;
    const Stage stage(&tile);
    QVERIFY(stage.isReady());
    QVector<QRect> rects;
    for (const char *name :
         {"zemPixmap", "zemPixmap_2", "zemPixmap_3", "arrowsPV", "arrowsPowerGrid", "lblProduction",
          "lblConsumption", "lblPowerGrid"}) {
        const QRect rect = part<QWidget>(tile, name)->geometry();
        QVERIFY2(QRect(0, 0, 322, 150).contains(rect), name);
        for (const QRect &other : std::as_const(rects)) {
            QVERIFY2(!rect.intersects(other), name);
        }
        rects << rect;
    }
}

QTEST_MAIN(tst_ZEMCurrentStatusWidget)
#include "tst_zemcurrentstatuswidget.moc"
