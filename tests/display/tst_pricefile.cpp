// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pricefile.h"
#include "readingsfolder.h"

#include <QTest>

using namespace Costs;
using Readings::Interval;
using Answer = PriceList::Answer;

/** The prices of hours, and the files that tell them. */
class tst_PriceFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pricesHoldForAnHour();
    void firstPriceHolds();
    void hoursDoNotOverlap();
    void timeWithoutPricesIsOneStretch();
    void rowsAreRead();
    void otherColumnsAreNotLookedAt();
    void brokenRowsAreNamedAndLeftOut();
    void severalFilesAreOneList();
    void uselessFilesAreNamed_data();
    void uselessFilesAreNamed();
    void missingFileIsNamed();

private:
    LoadedPrices load(const QByteArray &text)
    {
        const QString path = folder.write(QStringLiteral("prices.csv"), text);
        LoadedPrices loaded = loadPrices({path});
        for (QString &line : loaded.problems) {
            line.replace(path, QStringLiteral("FILE"));
        }
        loaded.failure.replace(path, QStringLiteral("FILE"));
        return loaded;
    }

    static std::optional<Price> priceAt(const PriceList &prices, const char *time)
    {
        return prices.firstOf({utc(time), utc(time) + 1}).price;
    }

    ReadingsFolder folder;
};

void tst_PriceFile::pricesHoldForAnHour()
{
    PriceList prices;
    QVERIFY(prices.isEmpty());
    QCOMPARE(prices.add(2 * oneHour, 30), Answer::Taken);
    QCOMPARE(prices.add(oneHour, -20), Answer::Taken);
    QVERIFY(!prices.isEmpty());
    const PriceList::Stretch first = prices.firstOf({oneHour, 24 * oneHour});
    QCOMPARE(first.interval, (Interval {oneHour, 2 * oneHour}));
    QCOMPARE(first.price, std::optional<Price>(-20));
    const PriceList::Stretch part = prices.firstOf({2 * oneHour + 60, 24 * oneHour});
    QCOMPARE(part.interval, (Interval {2 * oneHour + 60, 3 * oneHour}));
    QCOMPARE(part.price, std::optional<Price>(30));
    QCOMPARE(prices.firstOf({oneHour, oneHour + 60}).interval, (Interval {oneHour, oneHour + 60}));
}

void tst_PriceFile::firstPriceHolds()
{
    PriceList prices;
    QCOMPARE(prices.add(0, 30), Answer::Taken);
    QCOMPARE(prices.add(0, 30), Answer::Known);
    QCOMPARE(prices.add(0, 31), Answer::Contradiction);
    QCOMPARE(prices.firstOf({0, oneHour}).price, std::optional<Price>(30));
}

void tst_PriceFile::hoursDoNotOverlap()
{
    PriceList prices;
    QCOMPARE(prices.add(2 * oneHour, 30), Answer::Taken);
    QCOMPARE(prices.add(2 * oneHour + 900, 31), Answer::Overlap);
    QCOMPARE(prices.add(2 * oneHour - 900, 31), Answer::Overlap);
    QCOMPARE(prices.add(3 * oneHour, 31), Answer::Taken);
    QCOMPARE(prices.firstOf({oneHour, 24 * oneHour}).interval, (Interval {oneHour, 2 * oneHour}));
}

void tst_PriceFile::timeWithoutPricesIsOneStretch()
{
    PriceList prices;
    const PriceList::Stretch none = prices.firstOf({0, 24 * oneHour});
    QCOMPARE(none.interval, (Interval {0, 24 * oneHour}));
    QCOMPARE(none.price, std::optional<Price>());
    prices.add(0, 30);
    prices.add(5 * oneHour, 30);
    const PriceList::Stretch gap = prices.firstOf({oneHour, 24 * oneHour});
    QCOMPARE(gap.interval, (Interval {oneHour, 5 * oneHour}));
    QCOMPARE(gap.price, std::optional<Price>());
    QCOMPARE(prices.firstOf({6 * oneHour, 24 * oneHour}).interval,
             (Interval {6 * oneHour, 24 * oneHour}));
}

void tst_PriceFile::rowsAreRead()
{
    // The hour that comes twice has two offsets.
    const LoadedPrices loaded = load("\xEF\xBB\xBFtime,eur_per_kwh\r\n"
                                     "2024-10-27T02:00:00+02:00,0.10321\r\n"
                                     "2024-10-27T02:00+01:00, -0.00499 \r\n"
                                     "\r\n"
                                     "2024-10-27T02:00Z,\"0.1234551\"");
    QCOMPARE(loaded.failure, QString());
    QCOMPARE(loaded.problems, QStringList());
    QCOMPARE(priceAt(loaded.prices, "2024-10-27T00:00:00"), std::optional<Price>(10321));
    QCOMPARE(priceAt(loaded.prices, "2024-10-27T01:59:59"), std::optional<Price>(-499));
    QCOMPARE(priceAt(loaded.prices, "2024-10-27T02:00:00"), std::optional<Price>(12346));
    QCOMPARE(priceAt(loaded.prices, "2024-10-27T03:00:00"), std::optional<Price>());
}

void tst_PriceFile::otherColumnsAreNotLookedAt()
{
    const LoadedPrices loaded = load("eur_per_mwh,eur_per_kwh,zone,time\n"
                                     "87.34,0.08734,NL,2024-01-01T00:00Z\n");
    QCOMPARE(loaded.failure, QString());
    QCOMPARE(priceAt(loaded.prices, "2024-01-01T00:30:00"), std::optional<Price>(8734));
}

void tst_PriceFile::brokenRowsAreNamedAndLeftOut()
{
    const LoadedPrices loaded = load("time,eur_per_kwh\n"
                                     "2024-01-01T00:00Z,0.1\n"
                                     "2024-01-01T01:00Z\n"
                                     "2024-01-01T02:00,0.1\n"
                                     "2024-01-01T03:00Z,\n"
                                     "2024-01-01T04:00Z,87.34\n"
                                     "2024-01-01T00:00Z,0.2\n"
                                     "2024-01-01T00:15Z,0.1\n"
                                     "2024-01-01T05:00Z,\"0.1\n"
                                     + QByteArray(20000, 'x')
                                     + "\n"
                                       "2024-01-01T06:00Z,0.3\n");
    QCOMPARE(loaded.failure, QString());
    QCOMPARE(
        loaded.problems,
        (QStringList {
            QStringLiteral("FILE:3: it has not the 2 fields of the header; row left out"),
            QStringLiteral("FILE:4: bad time stamp \"2024-01-01T02:00\"; row left out"),
            QStringLiteral("FILE:5: \"\" is no price of a kWh in euro; row left out"),
            QStringLiteral("FILE:6: \"87.34\" is no price of a kWh in euro; row left out"),
            QStringLiteral("FILE:7: \"0.2\" contradicts an earlier price of this hour; left out"),
            QStringLiteral("FILE:8: the hour from \"2024-01-01T00:15Z\" has a part in another that "
                           "has a price; left out"),
            QStringLiteral("FILE:9: it has not the 2 fields of the header; row left out"),
            QStringLiteral("FILE: 1 more broken rows, left out")}));
    QCOMPARE(priceAt(loaded.prices, "2024-01-01T00:00:00"), std::optional<Price>(10000));
    QCOMPARE(priceAt(loaded.prices, "2024-01-01T05:00:00"), std::optional<Price>());
    QCOMPARE(priceAt(loaded.prices, "2024-01-01T06:00:00"), std::optional<Price>(30000));
}

void tst_PriceFile::severalFilesAreOneList()
{
    const QString first =
        folder.write(QStringLiteral("2023.csv"), "time,eur_per_kwh\n2023-12-31T23:00Z,0.1\n");
    const QString second = folder.write(QStringLiteral("2024.csv"),
                                        "time,eur_per_kwh\n2023-12-31T23:00Z,0.5\n"
                                        "2024-01-01T00:00Z,0.2\n");
    const LoadedPrices loaded = loadPrices({first, second});
    QCOMPARE(loaded.problems,
             QStringList(second
                         + QStringLiteral(":2: \"0.5\" contradicts an earlier price of this hour; "
                                          "left out")));
    QCOMPARE(priceAt(loaded.prices, "2023-12-31T23:00:00"), std::optional<Price>(10000));
    QCOMPARE(priceAt(loaded.prices, "2024-01-01T00:00:00"), std::optional<Price>(20000));
}

void tst_PriceFile::uselessFilesAreNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("failure");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("FILE: the file is empty");
    QTest::newRow("readings") << QByteArray("time,gas_m3\n2024-01-01T00:00Z,1\n")
                              << QStringLiteral("FILE:1: the header \"time,gas_m3\" is without the "
                                                "columns \"time\" and \"eur_per_kwh\"");
    QTest::newRow("no time") << QByteArray("hour,eur_per_kwh\n1,1\n")
                             << QStringLiteral("FILE:1: the header \"hour,eur_per_kwh\" is without "
                                               "the columns \"time\" and \"eur_per_kwh\"");
    QTest::newRow("header alone") << QByteArray("time,eur_per_kwh\n")
                                  << QStringLiteral("FILE: there are no prices in it");
    QTest::newRow("broken rows") << QByteArray("time,eur_per_kwh\n2024-01-01,0.1\n")
                                 << QStringLiteral("FILE: there are no prices in it");
}

void tst_PriceFile::uselessFilesAreNamed()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, failure);
    QCOMPARE(load(text).failure, failure);
}

void tst_PriceFile::missingFileIsNamed()
{
    const QString good =
        folder.write(QStringLiteral("good.csv"), "time,eur_per_kwh\n2023-12-31T23:00Z,0.1\n");
    const QString none = folder.filePath(QStringLiteral("none.csv"));
    QCOMPARE(loadPrices({good, none}).failure, none + QStringLiteral(": no such file"));
}

QTEST_APPLESS_MAIN(tst_PriceFile)
#include "tst_pricefile.moc"
