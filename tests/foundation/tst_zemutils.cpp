// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMUtils>

#include <QLocale>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

class tst_ZEMUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void description();
    void version();
    void kilowattConstant();
    void wattToString_data();
    void wattToString();
    void autoScale_data();
    void autoScale();
    void speed_data();
    void speed();
    void speedIgnoresSigns();
};

void tst_ZEMUtils::init()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_ZEMUtils::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_ZEMUtils::description()
{
    const QRegularExpression form(
        QStringLiteral("^ZEM Graphical Components, [A-Z][a-z]{2} [ 1-3][0-9] [0-9]{4} "
                       "[0-2][0-9]:[0-5][0-9]:[0-5][0-9]$"));
    const QString description = ZEMUtils::getDescription();
    QVERIFY2(form.match(description).hasMatch(), qPrintable(description));
}

void tst_ZEMUtils::version()
{
    QCOMPARE(ZEMUtils::getVersion(), QStringLiteral(ZEM_TEST_VERSION ".development build"));
}

void tst_ZEMUtils::kilowattConstant()
{
    QCOMPARE(ZEMUtils::c_kW, 1000.0);
}

void tst_ZEMUtils::wattToString_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("watt");
    QTest::addColumn<bool>("kW");
    QTest::addColumn<QString>("expected");

    const QLocale dutch(QLocale::Dutch, QLocale::Netherlands);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("no sign") << dutch << -250.0 << false << "250 W";
    QTest::newRow("no sign in kW") << dutch << -2500.0 << true << "2,5 kW";
    QTest::newRow("one decimal, Dutch") << dutch << 1234.0 << true << "1,2 kW";
    QTest::newRow("one decimal, English") << english << 1234.0 << true << "1.2 kW";
    QTest::newRow("groups, Dutch") << dutch << 12345.0 << false << "12.345 W";
    QTest::newRow("groups, English") << english << 12345.0 << false << "12,345 W";
    QTest::newRow("zero") << dutch << 0.0 << false << "0 W";
    QTest::newRow("zero in kW") << dutch << 0.0 << true << "0,0 kW";
    QTest::newRow("small in kW") << dutch << 40.0 << true << "0,0 kW";
    QTest::newRow("rounded up") << dutch << 99.6 << false << "100 W";
}

void tst_ZEMUtils::wattToString()
{
    QFETCH(QLocale, locale);
    QFETCH(double, watt);
    QFETCH(bool, kW);
    QFETCH(QString, expected);

    QLocale::setDefault(locale);
    QCOMPARE(ZEMUtils::wattToString(watt, kW), expected);
}

void tst_ZEMUtils::autoScale_data()
{
    QTest::addColumn<double>("watt");
    QTest::addColumn<QString>("expected");

    const QLocale dutch(QLocale::Dutch, QLocale::Netherlands);
    const auto whole = [&](double value) {
        return dutch.toString(value, 'f', 0) + QStringLiteral(" W");
    };
    QTest::newRow("below the step") << 999.4 << whole(999.4);
    QTest::newRow("four digits in W") << 999.5 << whole(999.5);
    QTest::newRow("just below the step") << 999.999 << whole(999.999);
    QTest::newRow("at the step") << 1000.0 << "1,0 kW";
    QTest::newRow("above the step") << 1500.0 << "1,5 kW";
    QTest::newRow("negative stays in W") << -2000.0 << whole(2000.0);
    QTest::newRow("negative 1500") << -1500.0 << whole(1500.0);
}

void tst_ZEMUtils::autoScale()
{
    QFETCH(double, watt);
    QFETCH(QString, expected);
    QCOMPARE(ZEMUtils::wattToStringAutoScale(watt), expected);
}

void tst_ZEMUtils::speed_data()
{
    QTest::addColumn<double>("reference");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("nothing of nothing") << 0.0 << 0.0 << 0;
    QTest::newRow("something of nothing") << 0.0 << 5.0 << 2;
    QTest::newRow("0.5 percent") << 1000.0 << 5.0 << 0;
    QTest::newRow("just above 0.5 percent") << 1000.0 << 5.1 << 1;
    QTest::newRow("33.3 percent") << 100.0 << 33.3 << 1;
    QTest::newRow("just above 33.3 percent") << 100.0 << 33.4 << 2;
    QTest::newRow("66.6 percent") << 100.0 << 66.6 << 2;
    QTest::newRow("just above 66.6 percent") << 100.0 << 66.7 << 3;
    QTest::newRow("all") << 100.0 << 100.0 << 3;
    QTest::newRow("more than all") << 100.0 << 500.0 << 3;
}

void tst_ZEMUtils::speed()
{
    QFETCH(double, reference);
    QFETCH(double, value);
    QFETCH(int, expected);
    QCOMPARE(ZEMUtils::calculateSpeed(reference, value), expected);
}

void tst_ZEMUtils::speedIgnoresSigns()
{
    QCOMPARE(ZEMUtils::calculateSpeed(100.0, 50.0), 2);
    QCOMPARE(ZEMUtils::calculateSpeed(-100.0, -50.0), 2);
    QCOMPARE(ZEMUtils::calculateSpeed(-100.0, 50.0), 2);
    QCOMPARE(ZEMUtils::calculateSpeed(100.0, -50.0), 2);
}

QTEST_MAIN(tst_ZEMUtils)
#include "tst_zemutils.moc"
