// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "contractreader.h"
#include "readingsfolder.h"

#include <QTest>

using namespace Costs;
using Readings::Quantity;

/** What a household pays from when on, and the file that tells it. */
class tst_Contract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pricesAreExact_data();
    void pricesAreExact();
    void roundedPricesGoToTheNearest();
    void everythingIsRead();
    void electricityByTheHour();
    void contractsAreInTheOrderOfTime();
    void daysAreThoseOfTheirContract();
    void daysBeforeTheFirstContractHaveNone();
    void faultsAreNamed_data();
    void faultsAreNamed();
    void fileThatIsNotThereIsNamed();

private:
    std::vector<Contract> load(const QByteArray &text, QString *problem)
    {
        const QString path = folder.write(QStringLiteral("contract.json"), text);
        std::vector<Contract> contracts = loadContracts(path, problem);
        problem->replace(path, QStringLiteral("FILE"));
        return contracts;
    }

    ReadingsFolder folder;
};

void tst_Contract::pricesAreExact_data()
{
    QTest::addColumn<double>("euro");
    QTest::addColumn<bool>("isPrice");
    QTest::addColumn<qlonglong>("price");
    QTest::newRow("five decimals") << 0.28134 << true << 28134LL;
    QTest::newRow("no decimals") << 3.0 << true << 300000LL;
    QTest::newRow("below zero") << -0.00001 << true << -1LL;
    QTest::newRow("most") << 10.0 << true << 1000000LL;
    QTest::newRow("six decimals") << 0.281345 << false << 0LL;
    QTest::newRow("beyond") << 10.00001 << false << 0LL;
    QTest::newRow("far below") << -10.00001 << false << 0LL;
    QTest::newRow("endless") << qInf() << false << 0LL;
    QTest::newRow("no number") << qQNaN() << false << 0LL;
}

void tst_Contract::pricesAreExact()
{
    QFETCH(double, euro);
    QFETCH(bool, isPrice);
    QFETCH(qlonglong, price);
    QCOMPARE(exactPrice(euro, 10.0), isPrice ? std::optional<Price>(price) : std::nullopt);
}

void tst_Contract::roundedPricesGoToTheNearest()
{
    QCOMPARE(roundedPrice(0.1234549, 10.0), std::optional<Price>(12345));
    QCOMPARE(roundedPrice(0.1234551, 10.0), std::optional<Price>(12346));
    QCOMPARE(roundedPrice(-0.1234551, 10.0), std::optional<Price>(-12346));
    QCOMPARE(roundedPrice(87.34, 10.0), std::optional<Price>());
    QCOMPARE(roundedPrice(qQNaN(), 10.0), std::optional<Price>());
}

void tst_Contract::everythingIsRead()
{
    QString problem;
    const std::vector<Contract> contracts =
        load(R"({ "comment": "Our house.", "contracts": [ { "comment": "The first.",
                  "from": "2024-02-29",
                  "electricity_import": { "low": 0.25, "normal": 0.3 },
                  "electricity_export": 0.09,
                  "gas": 1.23456, "water": 0.98, "heating": 41.12, "standing_charge": -12.5 } ] })",
             &problem);
    QCOMPARE(problem, QString());
    QCOMPARE(contracts.size(), std::size_t(1));
    const Contract &contract = contracts.front();
    QCOMPARE(contract.from, QDate(2024, 2, 29));
    const Rate *import = contract.rateOf(Quantity::GridImport);
    QVERIFY(import && import->hasTariffs() && !import->isHourly);
    QCOMPARE(import->low, Price(25000));
    QCOMPARE(import->normal, Price(30000));
    const Rate *given = contract.rateOf(Quantity::GridExport);
    QVERIFY(given && !given->hasTariffs() && !given->isHourly);
    QCOMPARE(given->normal, Price(9000));
    QCOMPARE(contract.rateOf(Quantity::Gas)->normal, Price(123456));
    QCOMPARE(contract.rateOf(Quantity::Water)->normal, Price(98000));
    QCOMPARE(contract.rateOf(Quantity::Heating)->normal, Price(4112000));
    QVERIFY(!contract.rateOf(Quantity::SolarProduction));
    QCOMPARE(contract.standing, std::optional<Price>(-1250000));
    const CostRules rules {contracts};
    QVERIFY(rules.hasStanding());
    QVERIFY(!rules.wantsPrices());
}

void tst_Contract::electricityByTheHour()
{
    QString problem;
    const std::vector<Contract> contracts = load(R"({ "contracts": [ { "from": "2024-01-01",
                  "electricity_import": { "hourly_plus": 0.13 },
                  "electricity_export": { "hourly_plus": -0.02 } } ] })",
                                                 &problem);
    QCOMPARE(problem, QString());
    const Rate *import = contracts.at(0).rateOf(Quantity::GridImport);
    QVERIFY(import->isHourly && !import->hasTariffs());
    QCOMPARE(import->normal, Price(13000));
    QCOMPARE(contracts.at(0).rateOf(Quantity::GridExport)->normal, Price(-2000));
    QCOMPARE(contracts.at(0).standing, std::optional<Price>());
    const CostRules rules {contracts};
    QVERIFY(!rules.hasStanding());
    QVERIFY(rules.wantsPrices());
}

void tst_Contract::contractsAreInTheOrderOfTime()
{
    QString problem;
    const std::vector<Contract> contracts = load(
        R"({ "contracts": [ { "from": "2024-05-01", "gas": 1 }, { "from": "2023-01-01", "gas": 2 },
                  { "from": "2024-01-01", "water": 3 } ] })",
        &problem);
    QCOMPARE(problem, QString());
    QCOMPARE(contracts.size(), std::size_t(3));
    QCOMPARE(contracts[0].from, QDate(2023, 1, 1));
    QCOMPARE(contracts[1].from, QDate(2024, 1, 1));
    QCOMPARE(contracts[2].from, QDate(2024, 5, 1));
    QCOMPARE(CostRules {contracts}.quantities(),
             (std::vector<Quantity> {Quantity::Gas, Quantity::Water}));
}

void tst_Contract::daysAreThoseOfTheirContract()
{
    const CostRules rules {{{QDate(2024, 1, 10)}, {QDate(2024, 1, 20)}, {QDate(2024, 3, 1)}}};
    const auto stretches = rules.stretchesOf({QDate(2024, 1, 12), QDate(2024, 2, 1)});
    QCOMPARE(stretches.size(), std::size_t(2));
    QCOMPARE(stretches[0].days.first, QDate(2024, 1, 12));
    QCOMPARE(stretches[0].days.end, QDate(2024, 1, 20));
    QCOMPARE(stretches[0].contract, &rules.contracts[0]);
    QCOMPARE(stretches[1].days.first, QDate(2024, 1, 20));
    QCOMPARE(stretches[1].days.end, QDate(2024, 2, 1));
    QCOMPARE(stretches[1].contract, &rules.contracts[1]);
    // From the day on that a contract begins.
    const auto march = rules.stretchesOf({QDate(2024, 3, 1), QDate(2024, 4, 1)});
    QCOMPARE(march.size(), std::size_t(1));
    QCOMPARE(march[0].contract, &rules.contracts[2]);
    QCOMPARE(rules.stretchesOf({QDate(2024, 3, 1), QDate(2024, 3, 1)}).size(), std::size_t(0));
}

void tst_Contract::daysBeforeTheFirstContractHaveNone()
{
    const CostRules rules {{{QDate(2024, 1, 10)}}};
    const auto stretches = rules.stretchesOf({QDate(2024, 1, 1), QDate(2024, 2, 1)});
    QCOMPARE(stretches.size(), std::size_t(2));
    QVERIFY(!stretches[0].contract);
    QCOMPARE(stretches[0].days.end, QDate(2024, 1, 10));
    QCOMPARE(stretches[1].contract, &rules.contracts[0]);
    QCOMPARE(rules.stretchesOf({QDate(2023, 1, 1), QDate(2023, 2, 1)}).size(), std::size_t(1));
}

void tst_Contract::faultsAreNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *row, const QByteArray &text, const char *problem) {
        QTest::newRow(row) << text << QStringLiteral("FILE") + QString::fromUtf8(problem);
    };
    // A contract with this in it.
    const auto with = [](const QByteArray &more) {
        return R"({ "contracts": [ { "from": "2024-01-01", )" + more + " } ] }";
    };
    add("no JSON", "{\n  \"contracts\": [\n    { \"from\" }\n", ":3:14: missing name separator");
    add("empty", "", ":1:1: illegal value");
    add("a list", "[]", ": contracts: must be a list of contracts");
    add("no contract", R"({ "contracts": [] })", ": contracts: must be a list of contracts");
    add("unknown key", R"({ "contracts": [ { "from": "2024-01-01" } ], "prices": 1 })",
        ": prices: is not known; there is contracts");
    add("no object", R"({ "contracts": [ 1 ] })", ": contracts[0]: must be an object");
    add("no date", R"({ "contracts": [ { "gas": 1 } ] })",
        ": contracts[0].from: must be a date of the calendar, as \"2024-12-31\"");
    add("no day of the calendar", R"({ "contracts": [ { "from": "2023-02-29" } ] })",
        ": contracts[0].from: must be a date of the calendar, as \"2024-12-31\"");
    add("a day twice",
        R"({ "contracts": [ { "from": "2024-01-01" }, { "from": "2023-01-01" },
             { "from": "2024-01-01" } ] })",
        ": contracts[2].from: another contract begins on that day");
    add("unknown quantity", with(R"("oil": 1)"),
        ": contracts[0].oil: is not known; there is from, electricity_import, "
        "electricity_export, gas, water, heating, standing_charge");
    add("a text", with(R"("gas": "1.20")"),
        ": contracts[0].gas: must be a number of euro from -100 to 100, with 5 decimals at most");
    add("too fine", with(R"("electricity_import": 0.123456)"),
        ": contracts[0].electricity_import: must be a number of euro from -10 to 10, with 5 "
        "decimals at most");
    add("cents", with(R"("electricity_import": 28)"),
        ": contracts[0].electricity_import: must be a number of euro from -10 to 10, with 5 "
        "decimals at most");
    add("one of two tariffs", with(R"("electricity_import": { "low": 0.2 })"),
        ": contracts[0].electricity_import.normal: must be a number of euro from -10 to 10, with "
        "5 decimals at most");
    add("third tariff", with(R"("electricity_export": { "low": 0, "normal": 0, "peak": 0 })"),
        ": contracts[0].electricity_export.peak: is not known; there is low, normal");
    add("hourly by tariff", with(R"("electricity_import": { "hourly_plus": 0, "low": 0 })"),
        ": contracts[0].electricity_import.low: is not known; there is hourly_plus");
    add("hourly with what", with(R"("electricity_import": { "hourly_plus": true })"),
        ": contracts[0].electricity_import.hourly_plus: must be a number of euro from -10 to 10, "
        "with 5 decimals at most");
    add("tariffs of gas", with(R"("gas": { "low": 1, "normal": 1 })"),
        ": contracts[0].gas: must be a number of euro from -100 to 100, with 5 decimals at most");
    add("heating", with(R"("heating": 1000.1)"),
        ": contracts[0].heating: must be a number of euro from -1000 to 1000, with 5 decimals at "
        "most");
    add("standing charge", with(R"("standing_charge": 10000.01)"),
        ": contracts[0].standing_charge: must be a number of euro from -10000 to 10000, with 5 "
        "decimals at most");
}

void tst_Contract::faultsAreNamed()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    QString told;
    QVERIFY(load(text, &told).empty());
    QCOMPARE(told, problem);
}

void tst_Contract::fileThatIsNotThereIsNamed()
{
    QString problem;
    QVERIFY(loadContracts(folder.filePath(QStringLiteral("none.json")), &problem).empty());
    QVERIFY2(problem.startsWith(folder.filePath(QStringLiteral("none.json: cannot be opened: "))),
             qPrintable(problem));
}

QTEST_APPLESS_MAIN(tst_Contract)
#include "tst_contract.moc"
