// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displayrun.h"

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using DisplayRun::Result;
using DisplayRun::run;

/** Runs zemkit-display with contracts, as docs/costs.md tells. */
class tst_CostsProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exampleOfTheManual();
    void monthsWithoutAContract();
    void monthsOfTheHistory();
    void brokenPricesAreToldAndTheRestIsWritten();
    void refusals_data();
    void refusals();
    void uselessFiles_data();
    void uselessFiles();
    void pictureOfTheCosts();

private:
    QString path(const char *name) const { return dir.filePath(QLatin1String(name)); }
    QString write(const char *name, const QByteArray &text) const;
    static QByteArray contentOf(const QString &file);

    QTemporaryDir dir;
    QByteArray months; ///< what the manual says is written
};

QString tst_CostsProgram::write(const char *name, const QByteArray &text) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("the test cannot write its file");
    }
    return file.fileName();
}

QByteArray tst_CostsProgram::contentOf(const QString &file)
{
    QFile written(file);
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
}

void tst_CostsProgram::initTestCase()
{
    // The manual has four files: contracts, prices, readings and what comes of them.
    const QString manual = QString::fromUtf8(contentOf(QStringLiteral(MANUAL)));
    static const QRegularExpression block(QStringLiteral("```(?:json|csv)\n(.*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QList<QByteArray> blocks;
    for (auto found = block.globalMatch(manual); found.hasNext();) {
        blocks.append(found.next().captured(1).toUtf8());
    }
    QCOMPARE(blocks.size(), 4);
    write("house.json", blocks.at(0));
    write("prices.csv", blocks.at(1));
    write("readings.csv", blocks.at(2));
    months = blocks.at(3);
}

void tst_CostsProgram::exampleOfTheManual()
{
    const Result result =
        run({"--readings", path("readings.csv"), "--contract", path("house.json"), "--prices",
             path("prices.csv"), "--export-months", path("months.csv")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output,
             QStringLiteral("zemkit-display: 2 rows are written to %1\n").arg(path("months.csv")));
    QCOMPARE(contentOf(path("months.csv")), months);
}

void tst_CostsProgram::monthsWithoutAContract()
{
    const Result result =
        run({"--readings", path("readings.csv"), "--export-months", path("amounts.csv")});
    QCOMPARE(result.status, 0);
    QCOMPARE(contentOf(path("amounts.csv")),
             QByteArray("month,electricity_import_kwh,electricity_export_kwh,gas_m3,at_least,"
                        "at_most\n2024-01,400.000,40.000,255.000,,\n"
                        "2024-02,0.650,0.000,0.300,,\n"));
}

void tst_CostsProgram::monthsOfTheHistory()
{
    const QString history = path("history");
    QCOMPARE(run({"--import", path("readings.csv"), "--data", history}).status, 0);
    const Result result = run({"--data", history, "--contract", path("house.json"), "--prices",
                               path("prices.csv"), "--export-months", path("kept.csv")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(contentOf(path("kept.csv")), months);
}

void tst_CostsProgram::brokenPricesAreToldAndTheRestIsWritten()
{
    const QString prices =
        write("broken.csv", contentOf(path("prices.csv")) + "2024-02-01T05:00:00+01:00,dear\n");
    const QStringList arguments {"--readings",       path("readings.csv"), "--contract",
                                 path("house.json"), "--prices",           prices};
    const Result result =
        run(arguments + QStringList {"--export-months", path("broken-months.csv")});
    QCOMPARE(result.errors,
             prices + QStringLiteral(":5: \"dear\" is no price of a kWh in euro; row left out\n"));
    QCOMPARE(result.status, 0);
    QCOMPARE(contentOf(path("broken-months.csv")), months);
    // What shows itself speaks Dutch.
    const Result shown = run(arguments + QStringList {"--screenshots", path("broken")});
    QCOMPARE(
        shown.errors,
        prices
            + QStringLiteral(":5: \"dear\" is geen prijs van een kWh in euro; rij weggelaten\n"));
}

void tst_CostsProgram::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QStringList contract {"--contract", path("house.json")};
    const QStringList toFile {"--export-months", path("none.csv")};
    QTest::newRow("prices alone") << QStringList {"--prices", path("prices.csv")}
                                  << QStringLiteral("--prices goes with --contract");
    QTest::newRow("no prices") << contract
                               << path("house.json: has an hourly price, which wants --prices");
    QTest::newRow("no contract") << QStringList {"--contract", path("none.json")}
                                 << path("none.json: cannot be opened");
    QTest::newRow("contract that is none")
        << QStringList {"--contract", path("prices.csv")}
        << path("prices.csv:1:%1: illegal value")
               .arg(QT_VERSION_MAJOR == 5 ? 1 : 2); // Qt 6 has read it
    QTest::newRow("prices that are none") << contract + QStringList {"--prices", path("house.json")}
                                          << path("house.json:1: the header");
    QTest::newRow("months nowhere")
        << QStringList {"--export-months", ""} << QStringLiteral("--export-months wants a file");
    QTest::newRow("two exports") << toFile + QStringList {"--export", "a.csv"}
                                 << QStringLiteral(
                                        "--export-months and --export do not go together");
    QTest::newRow("of a meter") << toFile + QStringList {"--p1", "a.txt"}
                                << QStringLiteral("--export-months and --p1 do not go together");
    QTest::newRow("of nothing") << toFile + QStringList {"--no-history"}
                                << QStringLiteral(
                                       "--export-months and --no-history do not go together");
}

void tst_CostsProgram::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Result result = run(arguments);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith(QStringLiteral("zemkit-display: ") + reason),
             qPrintable(result.errors));
    QVERIFY(!QFile::exists(path("none.csv")));
}

void tst_CostsProgram::uselessFiles_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no readings") << QStringList {"--readings", path("none.csv")}
                                 << QStringLiteral("zemkit-display: nothing is written, as no "
                                                   "reading of the files could be used");
    QTest::newRow("no history") << QStringList {"--data", path("nowhere")}
                                << path("nowhere/history.sqlite: there is no history");
}

void tst_CostsProgram::uselessFiles()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Result result =
        run(arguments + QStringList {"--export-months", path("useless-months.csv")});
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QVERIFY(!QFile::exists(path("useless-months.csv")));
}

void tst_CostsProgram::pictureOfTheCosts()
{
    const QStringList arguments {"--readings", path("readings.csv"), "--screenshots"};
    QCOMPARE(run(arguments + QStringList {path("amounts")}).status, 0);
    QVERIFY(!QFile::exists(path("amounts/months-costs.png")));
    QCOMPARE(run(arguments
                 + QStringList {path("costs"), "--contract", path("house.json"), "--prices",
                                path("prices.csv")})
                 .status,
             0);
    const QImage costs(path("costs/months-costs.png"));
    QCOMPARE(costs.size(), QSize(640, 480));
    QVERIFY(costs != QImage(path("costs/months.png")));
}

QTEST_GUILESS_MAIN(tst_CostsProgram)
#include "tst_costsprogram.moc"
