// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMEnergyIcon>

#include <QHBoxLayout>
#include <QMetaEnum>
#include <QPainter>
#include <QPixmapCache>
#include <QTest>

using namespace DashboardTest;
using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::inkRect;
using ZemTest::render;

class tst_ZEMEnergyIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void newIcon();
    void typesAreNumbered();
    void declaresItsPropertiesOnly();
    void propertiesAreWritten();
    void badge_data();
    void badge();
    void bigSymbolStandsAtFiveAndTwo();
    void smallSymbolStandsAtTwoAndZero();
    void symbolLargerThanTheBadgeStartsAtItsCorner();
    void typeOutOfRangeHasNoSymbol();
    void sizeFollowsTheBadgeAtOnce();
    void layoutDoesNotStretch();
    void picturesAreShared();
    void settersPaintAtOnce();
};

static QString path(const char *name)
{
    return QStringLiteral(":/zem/graphics/gwe/icons/%1.png").arg(QLatin1String(name));
}

/** Puts a flat picture in the place of one of the library's, for icons made from here on. */
static void replacePicture(const char *name, const QSize &size, const QColor &color)
{
    QPixmapCache::insert(path(name), flatPixmap(size, color));
}

void tst_ZEMEnergyIcon::cleanup()
{
    QPixmapCache::clear();
}

void tst_ZEMEnergyIcon::newIcon()
{
    ZEMEnergyIcon icon;
    QCOMPARE(icon.objectName(), QStringLiteral("ZEMEnergyIcon"));
    QVERIFY(!icon.getUseBigIcon());
    QCOMPARE(icon.getEnergyType(), ZEMEnergyIcon::Electricity);
    QCOMPARE(icon.size(), QSize(16, 16));
    QCOMPARE(icon.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));

    QWidget host;
    QCOMPARE((new ZEMEnergyIcon(&host))->parentWidget(), &host);
}

void tst_ZEMEnergyIcon::typesAreNumbered()
{
    const auto types = QMetaEnum::fromType<ZEMEnergyIcon::Type>();
    QCOMPARE(types.keyCount(), 5);
    QCOMPARE(types.keyToValue("Electricity"), 0);
    QCOMPARE(types.keyToValue("Gas"), 1);
    QCOMPARE(types.keyToValue("Water"), 2);
    QCOMPARE(types.keyToValue("Heating"), 3);
    QCOMPARE(types.keyToValue("SolarProduction"), 4);
}

void tst_ZEMEnergyIcon::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMEnergyIcon::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList({QStringLiteral("useBigIcon:bool"),
                          QStringLiteral("energyType:ZEMEnergyIcon::Type")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMEnergyIcon::propertiesAreWritten()
{
    ZEMEnergyIcon icon;
    QVERIFY(icon.setProperty("energyType", QVariant::fromValue(ZEMEnergyIcon::Heating)));
    QCOMPARE(icon.getEnergyType(), ZEMEnergyIcon::Heating);
    QVERIFY(icon.setProperty("useBigIcon", true));
    QVERIFY(icon.getUseBigIcon());
}

void tst_ZEMEnergyIcon::badge_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("big");
    QTest::addColumn<QByteArray>("symbol");

    const QList<QByteArray> stems {"icon_el_", "icon_fi_", "icon_wa_", "icon_ci_", "icon_sp_"};
    for (int type = 0; type < stems.size(); ++type) {
        const QByteArray stem = stems[type];
        QTest::newRow(stem + "small") << type << false << QByteArray(stem + "12x16");
        QTest::newRow(stem + "big") << type << true << QByteArray(stem + "15x20");
    }
}

void tst_ZEMEnergyIcon::badge()
{
    QFETCH(int, type);
    QFETCH(bool, big);
    QFETCH(QByteArray, symbol);

    ZEMEnergyIcon icon;
    icon.setUseBigIcon(big);
    icon.setEnergyType(ZEMEnergyIcon::Type(type));
    QCOMPARE(int(icon.getEnergyType()), type);

    const QImage ground =
        big ? picture("gwe/icons/icon_bg_25x25.png") : picture("gwe/icons/icon_bg_16x16.png");
    QImage expected(ground.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.drawImage(0, 0, ground);
    painter.drawImage(big ? QPoint(5, 2) : QPoint(2, 0), picture("gwe/icons/" + symbol + ".png"));
    painter.end();
    QCOMPARE(render(&icon), expected);
}

void tst_ZEMEnergyIcon::bigSymbolStandsAtFiveAndTwo()
{
    replacePicture("icon_bg_25x25", {25, 25}, Qt::transparent);
    replacePicture("icon_wa_15x20", {15, 20}, Qt::red);
    ZEMEnergyIcon icon;
    icon.setUseBigIcon(true);
    icon.setEnergyType(ZEMEnergyIcon::Water);
    QCOMPARE(inkRect(render(&icon)), QRect(5, 2, 15, 20));
}

void tst_ZEMEnergyIcon::smallSymbolStandsAtTwoAndZero()
{
    replacePicture("icon_bg_16x16", {16, 16}, Qt::transparent);
    replacePicture("icon_el_12x16", {12, 16}, Qt::red);
    ZEMEnergyIcon icon;
    QCOMPARE(inkRect(render(&icon)), QRect(2, 0, 12, 16));
}

void tst_ZEMEnergyIcon::symbolLargerThanTheBadgeStartsAtItsCorner()
{
    replacePicture("icon_bg_16x16", {16, 16}, Qt::blue);
    QPixmap symbol = flatPixmap({40, 40}, Qt::red);
    QPainter(&symbol).fillRect(0, 0, 3, 3, Qt::green);
    QPixmapCache::insert(path("icon_el_12x16"), symbol);
    ZEMEnergyIcon icon;
    QCOMPARE(render(&icon).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(render(&icon).pixelColor(15, 15), QColor(Qt::red));
}

void tst_ZEMEnergyIcon::typeOutOfRangeHasNoSymbol()
{
    replacePicture("icon_bg_16x16", {16, 16}, Qt::blue);
    ZEMEnergyIcon icon;
    icon.setEnergyType(ZEMEnergyIcon::Type(5));
    QImage expected(16, 16, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::blue);
    QCOMPARE(render(&icon), expected);
    QCOMPARE(int(icon.getEnergyType()), 5);
}

void tst_ZEMEnergyIcon::sizeFollowsTheBadgeAtOnce()
{
    ZEMEnergyIcon icon;
    for (const bool big : {true, false, true}) {
        icon.setUseBigIcon(big);
        const QSize size = big ? QSize(25, 25) : QSize(16, 16);
        QCOMPARE(icon.size(), size);
        QCOMPARE(icon.minimumSize(), size);
        QCOMPARE(icon.maximumSize(), size);
        QCOMPARE(icon.sizeHint(), size);
    }
}

void tst_ZEMEnergyIcon::layoutDoesNotStretch()
{
    QWidget host;
    auto *row = new QHBoxLayout(&host);
    auto *icon = new ZEMEnergyIcon;
    row->addWidget(icon);
    host.resize(200, 100);
    row->activate();
    QCOMPARE(icon->size(), QSize(16, 16));
}

void tst_ZEMEnergyIcon::picturesAreShared()
{
    QPixmapCache::clear();
    ZEMEnergyIcon icon;
    for (const char *name : {"icon_bg_16x16", "icon_el_12x16", "icon_fi_12x16", "icon_wa_12x16",
                             "icon_ci_12x16", "icon_sp_12x16"}) {
        QPixmap cached;
        QVERIFY2(QPixmapCache::find(path(name), &cached), name);
        QVERIFY2(!cached.isNull(), name);
    }
    QPixmap big;
    QVERIFY(!QPixmapCache::find(path("icon_bg_25x25"), &big));
}

void tst_ZEMEnergyIcon::settersPaintAtOnce()
{
    ZEMEnergyIcon icon;
    const Stage stage(&icon);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&icon, [&] { icon.setEnergyType(ZEMEnergyIcon::Gas); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&icon, [&] { icon.setEnergyType(ZEMEnergyIcon::Gas); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&icon, [&] { icon.setUseBigIcon(false); }), Painted::AtOnce);
}

QTEST_MAIN(tst_ZEMEnergyIcon)
#include "tst_zemenergyicon.moc"
