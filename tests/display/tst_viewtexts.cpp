// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "viewtexts.h"

#include <QLocale>
#include <QTest>

Q_DECLARE_METATYPE(Period)

class tst_ViewTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void slotNames_data();
    void slotNames();
    void amounts();
};

void tst_ViewTexts::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_ViewTexts::slotNames_data()
{
    QTest::addColumn<Period>("period");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("name");

    // The newest window begins on Monday 7 March 2016, that of a year on 1 January.
    QTest::newRow("first hour") << Period::Day << 0 << "ma 7 mrt. 2016, 0 – 1 uur";
    QTest::newRow("last hour") << Period::Day << 23 << "ma 7 mrt. 2016, 23 – 24 uur";
    QTest::newRow("hour before") << Period::Day << -1 << "zo 6 mrt. 2016, 23 – 24 uur";
    QTest::newRow("a day before") << Period::Day << -24 << "zo 6 mrt. 2016, 0 – 1 uur";
    QTest::newRow("a day and an hour before")
        << Period::Day << -25 << "za 5 mrt. 2016, 23 – 24 uur";
    QTest::newRow("day") << Period::Week << 6 << "zo 13 mrt. 2016";
    QTest::newRow("day before") << Period::Week << -7 << "ma 29 feb. 2016";
    QTest::newRow("week") << Period::Month << -1 << "week van 29 feb. 2016";
    QTest::newRow("month") << Period::Year << 11 << "december 2016";
    QTest::newRow("month before") << Period::Year << -1 << "december 2015";
}

void tst_ViewTexts::slotNames()
{
    QFETCH(Period, period);
    QFETCH(int, slot);
    QFETCH(QString, name);
    const QDate newest = period == Period::Year ? QDate(2016, 1, 1) : QDate(2016, 3, 7);
    QCOMPARE(ViewTexts::slotName(period, newest, slot), name);
}

void tst_ViewTexts::amounts()
{
    const auto text = [](double amount, bool isComplete, const char *unit) {
        return ViewTexts::amount(Readings::Measured {amount, isComplete}, QString::fromUtf8(unit));
    };
    QCOMPARE(text(0.0, true, "kWh"), QStringLiteral("0,00 kWh"));
    QCOMPARE(text(0.254, true, "m³"), QStringLiteral("0,25 m³"));
    QCOMPARE(text(12.34, true, "kWh"), QStringLiteral("12,3 kWh"));
    QCOMPARE(text(9.996, true, "kWh"), QStringLiteral("10,0 kWh"));
    QCOMPARE(text(1234.56, false, "kWh"), QStringLiteral("≥ 1.234,6 kWh"));
    QCOMPARE(text(0.0124, true, "GJ"), QStringLiteral("0,012 GJ"));
    QCOMPARE(ViewTexts::amount(std::nullopt, QStringLiteral("kWh")), QStringLiteral("–"));
}

QTEST_GUILESS_MAIN(tst_ViewTexts)
#include "tst_viewtexts.moc"
