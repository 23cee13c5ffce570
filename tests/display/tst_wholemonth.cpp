// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartspage.h"
#include "p1recorder.h"
#include "playedsource.h"

#include <QLabel>
#include <QLocale>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTableView>
#include <ZEMHistogram>
#include <ZEMTextLabel>
#include <cmath>
#include <qwt_plot.h>
#include <utility>

using Readings::Quantity;
using Readings::Tariff;

namespace {

constexpr qint64 hour = 3600;
constexpr qint64 step = 300; // seconds from telegram to telegram

/** A household that the test counts by itself, in Wh and dm³. */
class CountedHouse
{
public:
    /** Plays the telegrams of all days from @p first to @p last into @p source. */
    void play(PlayedSource *source, const QDate &first, const QDate &last, bool hasTariffs)
    {
        P1Recorder recorder(&source->readings);
        zone = source->readings.timeZone;
        qint64 normal = 1234567;
        qint64 low = 2345678;
        qint64 given = 345678;
        qint64 gas = 4567890;
        qint64 gasOfHour = 0;
        const qint64 end = startOf(last.addDays(1)) - step;
        for (qint64 at = startOf(first); at <= end; at += step) {
            if (at % hour == 0) {
                gas += gasOfHour;
                add(Quantity::Gas, at - hour, gasOfHour);
                gasOfHour = random.bounded(900);
            }
            recorder.add(telegram(at, hasTariffs, normal, low, given, gas), at);
            const bool isNight = (at / hour) % 24 < 7;
            const qint64 taken = random.bounded(150);
            (isNight && hasTariffs ? low : normal) += taken;
            add(Quantity::GridImport, at, at < end ? taken : 0);
            const qint64 back = isNight ? 0 : random.bounded(100);
            given += back;
            add(Quantity::GridExport, at, at < end ? back : 0);
            source->time = QDateTime::fromSecsSinceEpoch(at, zone);
        }
    }

    /** What was counted from the first day until, not including, the second, in kWh or m³. */
    double sum(Quantity quantity, const QDate &from, const QDate &to) const
    {
        return sum(quantity, startOf(from), startOf(to));
    }

    double sum(Quantity quantity, qint64 from, qint64 to) const
    {
        qint64 all = 0;
        const auto &known = amounts.at(quantity);
        for (auto each = known.lower_bound(from); each != known.lower_bound(to); ++each) {
            all += each->second;
        }
        return double(all) / 1000.0;
    }

    qint64 startOf(const QDate &date, int hourOfDay = 0) const
    {
        return QDateTime(date, QTime(hourOfDay, 0), zone).toSecsSinceEpoch();
    }

private:
    static P1Telegram telegram(qint64 at, bool hasTariffs, qint64 normal, qint64 low, qint64 given,
                               qint64 gas)
    {
        P1Telegram told;
        told.instant = at;
        const Tariff day = hasTariffs ? Tariff::Normal : Tariff::Single;
        told.readings = {{{Quantity::GridImport, day}, double(normal) / 1000.0, {}},
                         {{Quantity::GridExport, day}, double(given) / 1000.0, {}},
                         {{Quantity::Gas, Tariff::Single}, double(gas) / 1000.0, at - at % hour}};
        if (hasTariffs) {
            told.readings.push_back(
                {{Quantity::GridImport, Tariff::Low}, double(low) / 1000.0, {}});
        }
        return told;
    }

    void add(Quantity quantity, qint64 at, qint64 amount) { amounts[quantity][at] = amount; }

    QTimeZone zone;
    QRandomGenerator random {11};
    std::map<Quantity, std::map<qint64, qint64>> amounts;
};

/** A number on the screen, and by how much it may differ from what it stands for. */
struct ShownNumber
{
    double value;
    double rounding;
};

/** The amounts of lines such as "van het net ≥ 1.012,3 kWh" and "teruglevering 4,56 kWh". */
QVector<ShownNumber> amountsIn(const QString &line)
{
    static const QRegularExpression amount(QStringLiteral("([0-9][0-9.]*)(?:,([0-9]+))? (kWh|m³)"));
    QVector<ShownNumber> numbers;
    auto found = amount.globalMatch(line);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const QString text = match.captured(1).remove(QLatin1Char('.')) + QLatin1Char('.')
            + match.captured(2) + QLatin1Char('0');
        numbers.append({text.toDouble(), 0.5 * std::pow(10.0, -match.captured(2).size())});
    }
    return numbers;
}

bool isSame(const ShownNumber &shown, double sum)
{
    return std::fabs(shown.value - sum) <= shown.rounding + 1e-6;
}

/** The instants that the name of a bar stands for; two of the same if the clock skips its hour. */
std::pair<qint64, qint64> intervalOf(const CountedHouse &house, const QString &name)
{
    const QLocale dutch(QLocale::Dutch, QLocale::Netherlands);
    static const QRegularExpression hours(QStringLiteral("^(.*), (\\d+) – (\\d+) uur$"));
    const QRegularExpressionMatch match = hours.match(name);
    if (match.hasMatch()) {
        const QDate day = dutch.toDate(match.captured(1), QStringLiteral("ddd d MMM yyyy"));
        const qint64 midnight = house.startOf(day);
        const qint64 end = house.startOf(day.addDays(1));
        // Hours are counted by the clock on the wall.
        qint64 from = end;
        qint64 to = midnight;
        for (qint64 at = midnight; at < end; at += hour) {
            const int onTheWall =
                QDateTime::fromSecsSinceEpoch(at, QTimeZone("Europe/Amsterdam")).time().hour();
            if (onTheWall == match.captured(2).toInt()) {
                from = std::min(from, at);
                to = at + hour;
            }
        }
        return from < to ? std::make_pair(from, to) : std::make_pair(midnight, midnight);
    }
    QString text = name;
    if (text.startsWith(QStringLiteral("week van "))) {
        const QDate monday = dutch.toDate(text.remove(0, 9), QStringLiteral("d MMM yyyy"));
        return {house.startOf(monday), house.startOf(monday.addDays(7))};
    }
    const QDate day = dutch.toDate(name, QStringLiteral("ddd d MMM yyyy"));
    if (day.isValid()) {
        return {house.startOf(day), house.startOf(day.addDays(1))};
    }
    const QDate month = dutch.toDate(QStringLiteral("1 ") + name, QStringLiteral("d MMMM yyyy"));
    return {house.startOf(month), house.startOf(month.addMonths(1))};
}

} // namespace

/** A month of a house: every number on the screen against what the test counted itself. */
class tst_WholeMonth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void charts_data();
    void charts();
    void monthsAndGoals_data();
    void monthsAndGoals();

private:
    static void checkView(const CountedHouse &house, const QVector<Quantity> &shown,
                          ZEMHistogram *chart, const QString &total);
};

void tst_WholeMonth::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_WholeMonth::charts_data()
{
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    QTest::addColumn<bool>("hasTariffs");
    QTest::newRow("spring, two tariffs") << QDate(2016, 3, 1) << QDate(2016, 4, 3) << true;
    QTest::newRow("autumn, one tariff") << QDate(2016, 10, 1) << QDate(2016, 11, 6) << false;
}

void tst_WholeMonth::checkView(const CountedHouse &house, const QVector<Quantity> &shown,
                               ZEMHistogram *chart, const QString &total)
{
    auto *plot = chart->findChild<QwtPlot *>();
    const QVector<ShownNumber> totals = amountsIn(total.section(QLatin1Char('\n'), 1));
    QVERIFY2(totals.size() == shown.size(), qPrintable(total));

    QVector<double> sums(shown.size(), 0.0);
    const QwtInterval view = plot->axisInterval(QwtPlot::xBottom);
    for (int slot = qRound(view.minValue()); slot < qRound(view.maxValue()); ++slot) {
        const QPoint place(int(plot->transform(QwtPlot::xBottom, slot + 0.5)),
                           plot->canvas()->height() - 4);
        ZemTest::press(plot->canvas(), place);
        ZemTest::release(plot->canvas(), place);
        const QString bar = chart->title();
        const auto [from, to] = intervalOf(house, bar.section(QLatin1Char('\n'), 0, 0));
        const QVector<ShownNumber> amounts = amountsIn(bar.section(QLatin1Char('\n'), 1));
        for (int i = 0; i < shown.size(); ++i) {
            const double sum = house.sum(shown[i], from, to);
            sums[i] += sum;
            // A bar without a number says that nothing is known.
            QVERIFY2(amounts.size() == shown.size() ? isSame(amounts[i], sum) : sum == 0.0,
                     qPrintable(QStringLiteral("%1: %2").arg(bar).arg(sum)));
        }
    }
    for (int i = 0; i < shown.size(); ++i) {
        QVERIFY2(isSame(totals[i], sums[i]),
                 qPrintable(QStringLiteral("%1: %2").arg(total).arg(sums[i])));
    }
}

void tst_WholeMonth::charts()
{
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    QFETCH(bool, hasTariffs);
    PlayedSource source;
    CountedHouse house;
    house.play(&source, first, last, hasTariffs);
    PlayedDisplay display(source);
    QVERIFY(display.show());
    display.window.openPage(QStringLiteral("charts"));

    const QHash<ZEM::ZEMTab, QVector<Quantity>> shown {
        {ZEM::TabElectricity, {Quantity::GridImport, Quantity::GridExport}},
        {ZEM::TabGas, {Quantity::Gas}}};
    for (const ZEM::ZEMTab energy : shown.keys()) {
        for (const Period period : allPeriods) {
            display.window.chartsPage()->showChart(energy, period);
            ZEMHistogram *chart = nullptr;
            for (auto *each : display.window.findChildren<ZEMHistogram *>()) {
                // The chart of the yield comes after the one that has it as its child.
                chart = !chart && each->isVisible() ? each : chart;
            }
            QVERIFY(chart);
            // A touch on a bar takes the place of the total: first come the totals of all views.
            QStringList totals;
            while (totals.isEmpty() || chart->title() != totals.constLast()) {
                totals << chart->title();
                display.window.chartsPage()->showPreviousPeriod();
            }
            QVERIFY(totals.size() >= (period == Period::Day ? first.daysTo(last) + 1 : 1));
            display.window.chartsPage()->showChart(energy, period);
            for (const QString &total : std::as_const(totals)) {
                checkView(house, shown[energy], chart, total);
                if (QTest::currentTestFailed()) {
                    return;
                }
                display.window.chartsPage()->showPreviousPeriod();
            }
        }
    }
}

void tst_WholeMonth::monthsAndGoals_data()
{
    charts_data();
}

void tst_WholeMonth::monthsAndGoals()
{
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    QFETCH(bool, hasTariffs);
    PlayedSource source;
    CountedHouse house;
    house.play(&source, first, last, hasTariffs);
    PlayedDisplay display(source);
    QVERIFY(display.show());

    display.window.openPage(QStringLiteral("months"));
    const QAbstractItemModel *months =
        display.window.currentWidget()->findChild<QTableView *>()->model();
    QCOMPARE(months->rowCount(), 2);
    const QVector<Quantity> columns {Quantity::GridImport, Quantity::GridExport, Quantity::Gas};
    for (int row = 0; row < months->rowCount(); ++row) {
        const QDate month = QDate(last.year(), last.month(), 1).addMonths(-row);
        for (int i = 0; i < columns.size(); ++i) {
            const QString unit = QStringLiteral(" kWh");
            const QString text = months->index(row, i + 1).data().toString();
            const QVector<ShownNumber> shown = amountsIn(text + unit);
            QVERIFY2(shown.size() == 1, qPrintable(text));
            QVERIFY2(isSame(shown[0], house.sum(columns[i], month, month.addMonths(1))),
                     qPrintable(text));
        }
    }

    display.window.openPage(QStringLiteral("goals"));
    QStringList texts;
    for (const auto *label : display.window.currentWidget()->findChildren<ZEMTextLabel *>()) {
        texts << label->text();
    }
    const QLocale dutch(QLocale::Dutch, QLocale::Netherlands);
    for (const QDate &day : {last, last.addDays(-1)}) {
        const double sum = house.sum(Quantity::GridImport, day, day.addDays(1));
        const QString start = dutch.toString(sum, 'f', 1);
        QVERIFY2(
            !texts.filter(QRegularExpression(QStringLiteral("^(≥ )?%1 van ").arg(start))).isEmpty(),
            qPrintable(start + QStringLiteral(": ") + texts.join(QLatin1Char('|'))));
    }
    const double costs =
        house.sum(Quantity::GridImport, last, last.addDays(1)) * display.settings.price();
    QVERIFY(!texts.filter(QStringLiteral("€ ") + dutch.toString(costs, 'f', 2)).isEmpty());
}

QTEST_MAIN(tst_WholeMonth)
#include "tst_wholemonth.moc"
