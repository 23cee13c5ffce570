// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dutchmonths.h"
#include "viewtexts.h"

#include <QLocale>
#include <QTest>

Q_DECLARE_METATYPE(Costs::Cost)
Q_DECLARE_METATYPE(Period)

class tst_ViewTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void slotNames_data();
    void slotNames();
    void amounts();
    void euros_data();
    void euros();
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
    QCOMPARE(ViewTexts::slotName(period, newest, slot), withMonthsOfQt(name));
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
    QCOMPARE(text(2.1248, true, "GJ"), QStringLiteral("2,12 GJ"));
    QCOMPARE(text(23.0304, true, "GJ"), QStringLiteral("23,0 GJ"));
    QCOMPARE(ViewTexts::amount(std::nullopt, QStringLiteral("kWh")), QStringLiteral("–"));
}

void tst_ViewTexts::euros_data()
{
    QTest::addColumn<Costs::Cost>("cost");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *row, const Costs::Cost &cost, const char *text) {
        QTest::newRow(row) << cost << QString::fromUtf8(text);
    };
    add("euros", {123456000000, true}, "1.234,56");
    add("half a cent", {500000, true}, "0,01");
    add("less than that", {-499999, true}, "0,00");
    add("income", {-1234000000, true}, "-12,34");
    add("least", {1234000000, true, true}, "≥ 12,34");
    add("most", {-1234000000, true, false, true}, "≤ -12,34");
    add("either", {1234000000, true, true, true}, "–");
    add("nothing known", {0, false, true}, "–");
    add("nothing", {}, "–");
}

void tst_ViewTexts::euros()
{
    QFETCH(Costs::Cost, cost);
    QFETCH(QString, text);
    QCOMPARE(ViewTexts::euro(cost), text);
    const QString whole = text.section(QLatin1Char(','), 0, 0);
    QCOMPARE(ViewTexts::euro({cost.known / 100000000 * 100000000, cost.isPartKnown, cost.mayBeMore,
                              cost.mayBeLess},
                             0),
             whole);
}

QTEST_GUILESS_MAIN(tst_ViewTexts)
#include "tst_viewtexts.moc"
