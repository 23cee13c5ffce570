// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "costhouse.h"
#include "dutchmonths.h"
#include "paintcounter.h"
#include "playedsource.h"
#include "pricefile.h"

#include <QHeaderView>
#include <QLocale>
#include <QTableView>
#include <QTest>
#include <ZEMButton>
#include <ZEMNotificationButton>
#include <ZEMStyle>

using namespace CostHouse;

/** The page of months, whose table a button changes from amounts to costs. */
class tst_MonthsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void withoutAContractThereIsNoButton();
    void buttonChangesTheTable();
    void changePaintsTheTable();
    void pageInViewStays();
    void longNumbersAreWhole();
    void costsFollowTheMeter();
    void newPricesAreRead();
    void uselessPricesLeaveThoseThatWereKnown();

private:
    static void expectWholeColumns(const QTableView *table);
    static QStringList row(const PlayedDisplay &display, int index)
    {
        const auto *table = display.onPage<QTableView>("table");
        QStringList texts;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            texts.append(table->model()->index(index, column).data().toString());
        }
        return texts;
    }
    static ZEMButton *button(const PlayedDisplay &display)
    {
        return display.onPage<ZEMButton>("change");
    }
    Costs::CostRules hourlyRules(const QByteArray &price);

    std::unique_ptr<PlayedSource> source;
    QTemporaryDir directory;
};

void tst_MonthsPage::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    ZEMStyle::setApplicationFonts();
}

void tst_MonthsPage::init()
{
    source = std::make_unique<PlayedSource>();
    countDays(&source->readings, {Quantity::GridImport}, QDate(2015, 1, 1), QDate(2016, 3, 9),
              10.0);
    countDays(&source->readings, {Quantity::Gas}, QDate(2016, 1, 15), QDate(2016, 3, 9), 2.0);
}

/** € 0.30 for a kWh, € 1.20 for a m³, and € 12.50 a month. */
static Costs::CostRules rules()
{
    return {{{QDate(2015, 1, 1),
              {{Quantity::GridImport, {30000, 30000}}, {Quantity::Gas, {120000, 120000}}},
              1250000}}};
}

void tst_MonthsPage::withoutAContractThereIsNoButton()
{
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    QVERIFY(!button(display)->isVisible());
    QCOMPARE(row(display, 1),
             (QStringList {withMonthsOfQt(QStringLiteral("feb. 2016")), QStringLiteral("290,0"),
                           QStringLiteral("58,0")}));
}

void tst_MonthsPage::buttonChangesTheTable()
{
    PlayedDisplay display(*source);
    display.window.setCostRules(rules());
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    QVERIFY(button(display)->isVisible());
    QCOMPARE(button(display)->text(), QStringLiteral("€"));
    const QStringList amounts = row(display, 2);
    QCOMPARE(amounts,
             (QStringList {withMonthsOfQt(QStringLiteral("jan. 2016")), QStringLiteral("310,0"),
                           QStringLiteral("≥ 34,0")}));

    PlayedDisplay::tap(button(display));
    QCOMPARE(button(display)->text(), QStringLiteral("kWh"));
    QCOMPARE(
        row(display, 1),
        (QStringList {withMonthsOfQt(QStringLiteral("feb. 2016")), QStringLiteral("87,00"),
                      QStringLiteral("69,60"), QStringLiteral("12,50"), QStringLiteral("169,10")}));
    QCOMPARE(row(display, 2),
             (QStringList {withMonthsOfQt(QStringLiteral("jan. 2016")), QStringLiteral("93,00"),
                           QStringLiteral("≥ 40,80"), QStringLiteral("12,50"),
                           QStringLiteral("≥ 146,30")}));
    PlayedDisplay::tap(button(display));
    QCOMPARE(row(display, 2), amounts);
}

void tst_MonthsPage::changePaintsTheTable()
{
    PlayedDisplay display(*source);
    display.window.setCostRules(rules());
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    auto *table = display.onPage<QTableView>("table");
    ZemTest::PaintCounter cells(table->viewport());
    ZemTest::PaintCounter heading(table->horizontalHeader()->viewport());
    QTRY_VERIFY(!table->visibleRegion().isEmpty());
    QCoreApplication::processEvents();
    cells.count = 0;
    heading.count = 0;
    button(display)->click();
    QTRY_VERIFY(cells.count > 0 && heading.count > 0);
}

void tst_MonthsPage::pageInViewStays()
{
    PlayedDisplay display(*source);
    display.window.setCostRules(rules());
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    auto *table = display.onPage<QTableView>("table");
    const auto firstRow = [table] { return table->rowAt(0); };
    // 15 months are two pages, of which the second is opened.
    PlayedDisplay::tap(display.onPage<ZEMButton>("down"));
    QTRY_VERIFY(firstRow() > 0);
    const int before = firstRow();
    PlayedDisplay::tap(button(display));
    QTRY_COMPARE(firstRow(), before);
    PlayedDisplay::tap(display.onPage<ZEMButton>("up"));
    QTRY_COMPARE(firstRow(), 0);
}

/** Each column has the room that its heading and its longest number want, and all fill the table.
 */
void tst_MonthsPage::expectWholeColumns(const QTableView *table)
{
    int width = 0;
    for (int column = 0; column < table->model()->columnCount(); ++column) {
        width += table->columnWidth(column);
        QVERIFY(table->horizontalHeader()->sectionSizeHint(column) <= table->columnWidth(column));
        for (int line = 0; line < table->model()->rowCount(); ++line) {
            const int wanted = table->sizeHintForIndex(table->model()->index(line, column)).width();
            QVERIFY2(wanted <= table->columnWidth(column),
                     qPrintable(QStringLiteral("%1, column %2: %3 of %4")
                                    .arg(line)
                                    .arg(column)
                                    .arg(wanted)
                                    .arg(table->columnWidth(column))));
        }
    }
    QCOMPARE(width, table->viewport()->width());
}

void tst_MonthsPage::longNumbersAreWhole()
{
    // A large house, with panels and gas for heating.
    source = std::make_unique<PlayedSource>();
    const QDate first(2015, 1, 2);
    const QDate last(2016, 3, 9);
    countDays(&source->readings, {Quantity::GridImport}, first, last, 60.0);
    countDays(&source->readings, {Quantity::GridExport}, first, last, 20.0);
    countDays(&source->readings, {Quantity::Gas}, first, last, 60.0);
    countDays(&source->readings, {Quantity::Water}, first, last, 1.0);
    PlayedDisplay display(*source);
    QVERIFY(display.show());
    // How long a number must be, until there is no room for its cents, is a matter of the font.
    int dearness = 1;
    const auto raisePrices = [&] {
        Costs::CostRules dear = rules();
        dear.contracts.front().standing = 1000000 * dearness;
        const int price = 25000 * dearness;
        dear.contracts.front().rates = {{Quantity::GridImport, {3 * price, 3 * price}},
                                        {Quantity::GridExport, {price, price}},
                                        {Quantity::Gas, {6 * price, 6 * price}},
                                        {Quantity::Water, {6 * price, 6 * price}}};
        display.window.setCostRules(dear);
    };
    raisePrices();
    display.window.openPage(QStringLiteral("months"));
    PlayedDisplay::tap(button(display));
    const auto *table = display.onPage<QTableView>("table");
    while (row(display, 13).last().contains(QLatin1Char(',')) && dearness < 1000) {
        expectWholeColumns(table); // with their cents
        dearness *= 10;
        raisePrices();
    }
    // The last row, which is not in view, is the longest.
    const QLocale dutch(QLocale::Dutch);
    QCOMPARE(row(display, 14).at(3), QStringLiteral("≥ %1").arg(dutch.toString(2700 * dearness)));
    QCOMPARE(row(display, 13).last(), dutch.toString(3692 * dearness));
    expectWholeColumns(table);
}

void tst_MonthsPage::costsFollowTheMeter()
{
    PlayedDisplay display(*source);
    display.window.setCostRules(rules());
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    PlayedDisplay::tap(button(display));
    QCOMPARE(row(display, 0).at(1), QStringLiteral("24,00"));
    source->readings.meter({Quantity::GridImport}, Meter::Kind::Counter)
        .addReading(at(QDate(2016, 3, 9), 12), 1000.0 + 433 * 10 + 5);
    Q_EMIT source->historyChanged();
    QCOMPARE(row(display, 0).at(1), QStringLiteral("25,50"));
}

Costs::CostRules tst_MonthsPage::hourlyRules(const QByteArray &price)
{
    const QString path = directory.filePath(QStringLiteral("prices.csv"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("the test cannot write its file");
    }
    file.write("time,eur_per_kwh\n2016-03-09T00:00+01:00," + price + "\n");
    file.close();
    Costs::CostRules hourly {{{QDate(2016, 3, 9), {{Quantity::GridImport, {0, 0, true}}}}}};
    hourly.priceFiles = QStringList(path);
    hourly.prices = Costs::loadPrices(hourly.priceFiles).prices;
    return hourly;
}

void tst_MonthsPage::newPricesAreRead()
{
    source = std::make_unique<PlayedSource>();
    countHours(&source->readings, {Quantity::GridImport}, at(QDate(2016, 3, 9)), 1, 2.0);
    PlayedDisplay display(*source);
    display.window.setCostRules(hourlyRules("0.10"));
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    PlayedDisplay::tap(button(display));
    QCOMPARE(row(display, 0).last(), QStringLiteral("0,20"));
    hourlyRules("0.250");
    Q_EMIT source->historyChanged();
    QCOMPARE(row(display, 0).last(), QStringLiteral("0,50"));
}

void tst_MonthsPage::uselessPricesLeaveThoseThatWereKnown()
{
    source = std::make_unique<PlayedSource>();
    countHours(&source->readings, {Quantity::GridImport}, at(QDate(2016, 3, 9)), 1, 2.0);
    PlayedDisplay display(*source);
    display.window.setCostRules(hourlyRules("0.10"));
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("months"));
    PlayedDisplay::tap(button(display));
    const auto *bell = display.window.currentWidget()->findChild<ZEMNotificationButton *>();
    QCOMPARE(bell->getNotifyCount(), 0);
    hourlyRules("nothing");
    Q_EMIT source->historyChanged();
    QCOMPARE(row(display, 0).last(), QStringLiteral("0,20"));
    QCOMPARE(bell->getNotifyCount(), 1);
}

QTEST_MAIN(tst_MonthsPage)
#include "tst_monthspage.moc"
