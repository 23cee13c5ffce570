// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEM>

#include <QMetaEnum>
#include <QTest>

#include <type_traits>

namespace Host {

/** Hides every operator of the global namespace from the code of this one. */
struct Shape
{
};
[[maybe_unused]] Shape operator|(Shape, Shape)
{
    return {};
}

static ZEM::ZEMTabs gasByDay()
{
    ZEM::ZEMTabs tabs = ZEM::TabDay | ZEM::TabGas;
    tabs |= ZEM::TabWeek | ZEM::ZEMTabs(ZEM::TabMonth);
    return tabs;
}

} // namespace Host

class tst_ZEM : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabs_data();
    void tabs();
    void tabsAreFlags();
    void tabsCombineInANamespaceWithAnOperatorOfItsOwn();
    void tabsAreKnownToTheMetaObject();
};

void tst_ZEM::tabs_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("value");

    QTest::newRow("TabDay") << int(ZEM::TabDay) << 1;
    QTest::newRow("TabWeek") << int(ZEM::TabWeek) << 2;
    QTest::newRow("TabMonth") << int(ZEM::TabMonth) << 4;
    QTest::newRow("TabYear") << int(ZEM::TabYear) << 8;
    QTest::newRow("TabElectricity") << int(ZEM::TabElectricity) << 16;
    QTest::newRow("TabGas") << int(ZEM::TabGas) << 32;
    QTest::newRow("TabWater") << int(ZEM::TabWater) << 64;
    QTest::newRow("TabHeating") << int(ZEM::TabHeating) << 128;
    QTest::newRow("TabSolar") << int(ZEM::TabSolar) << 256;
}

void tst_ZEM::tabs()
{
    QFETCH(int, tab);
    QFETCH(int, value);
    QCOMPARE(tab, value);

    const auto metaEnum = QMetaEnum::fromType<ZEM::ZEMTabs>();
    QCOMPARE(metaEnum.keyCount(), 9);
    QCOMPARE(metaEnum.keyToValue(QTest::currentDataTag()), value);
}

void tst_ZEM::tabsAreFlags()
{
    static_assert(std::is_same_v<ZEM::ZEMTabs, QFlags<ZEM::ZEMTab>>);
    static_assert(std::is_same_v<decltype(ZEM::TabDay | ZEM::TabSolar), QFlags<ZEM::ZEMTab>>);
    const QFlags<ZEM::ZEMTab> tabs = ZEM::TabDay | ZEM::TabSolar;
    QCOMPARE(int(tabs), 257);
    QVERIFY(tabs.testFlag(ZEM::TabSolar));
    QVERIFY(!tabs.testFlag(ZEM::TabGas));
}

void tst_ZEM::tabsCombineInANamespaceWithAnOperatorOfItsOwn()
{
    QCOMPARE(int(Host::gasByDay()), 1 | 2 | 4 | 32);
}

void tst_ZEM::tabsAreKnownToTheMetaObject()
{
    QVERIFY(QMetaEnum::fromType<ZEM::ZEMTabs>().isFlag());
    QCOMPARE(ZEM::staticMetaObject.className(), "ZEM");
    QCOMPARE(QMetaEnum::fromType<ZEM::ZEMTabs>().valueToKeys(0x110),
             QByteArray("TabElectricity|TabSolar"));
}

QTEST_APPLESS_MAIN(tst_ZEM)
#include "tst_zem.moc"
