// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "fittedtableview.h"
#include "fullhouse.h"
#include "language.h"
#include "monthstable.h"
#include "pagelook.h"
#include "playedsource.h"
#include "powerday.h"
#include "quantitylook.h"
#include "screenfaults.h"
#include "screenshots.h"
#include "yearhistogram.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <ZEMButton>
#include <cstdio>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

using Readings::Quantity;

namespace {

const QChar mark(u'§');

/** Marks each text that it is asked for, dates included: their formats are texts as well. */
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return mark + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

/** Units are the same everywhere, a language tells its own name, and a keyboard file its words. */
bool isInWords(QString text)
{
    static const QRegularExpression same(
        QStringLiteral("\\b(kWh|kW|GJ)\\b|^(Nederlands|caps|enter|space)$"));
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    return text.remove(same).contains(word);
}

/** Whether @p name stands in @p text by itself, in whatever case. */
bool hasWord(const QString &text, const QString &name)
{
    const QRegularExpression word(
        QStringLiteral("(?<!\\p{L})%1(?!\\p{L})").arg(QRegularExpression::escape(name)),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return word.match(text).hasMatch();
}

/** What everything costs that has a price, for the pages to tell. */
Costs::CostRules pricesOfEverything()
{
    return {{{QDate(2016, 1, 1),
              {{Quantity::GridImport, {25000, 30000}},
               {Quantity::GridExport, {10000, 10000}},
               {Quantity::Gas, {120000, 120000}},
               {Quantity::Heating, {4000000, 4000000}},
               {Quantity::Water, {100000, 100000}}},
              1250000}}};
}

void expectNone(const QStringList &faults)
{
    for (const QString &fault : faults) {
        std::puts(qPrintable(fault));
    }
    QCOMPARE(faults.size(), 0);
}

} // namespace

/** Everything that the display shows at its design size, in other languages than Dutch. */
class tst_DisplayLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextCanBeTranslated();
    void monthsAreToldApart_data() { addLanguages(); }
    void monthsAreToldApart();
    void importAndConsumptionHaveTheirOwnNames_data() { addLanguages(); }
    void importAndConsumptionHaveTheirOwnNames();
    void textsFit_data() { addLanguages(); }
    void textsFit();
    void monthsFitAnUprightScreen_data() { addLanguages(); }
    void monthsFitAnUprightScreen();

private:
    static void addLanguages();
};

void tst_DisplayLanguages::everyTextCanBeTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const FullHouse source;
    PlayedDisplay display(source);
    QVERIFY(display.show());
    QStringList faults;
    visitScreens(&display.window, [&](const QString &name) {
        // The library begins the headline of a chart with a date that has no words.
        const bool isChart = name.startsWith(QLatin1String("charts-"));
        for (QString text : ScreenFaults::textsOn(&display.window)) {
            text = isChart ? text.section(QLatin1Char('\n'), -1) : text;
            if (isInWords(text) && !text.contains(mark)
                && name != QLatin1String("settings-keyboard")) {
                faults << QStringLiteral("%1: %2").arg(name, text);
            }
        }
    });
    faults.removeDuplicates();
    expectNone(faults);
}

void tst_DisplayLanguages::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Language::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_DisplayLanguages::monthsAreToldApart()
{
    QFETCH(QString, language);
    Language::speak(language);
    YearHistogram chart;
    chart.init();
    chart.resize(640, 300);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart, ZemTest::hangs));
    const QwtScaleDraw *scale = chart.findChild<QwtPlot *>()->axisScaleDraw(QwtPlot::xBottom);
    QStringList months;
    for (int month = 0; month < 12; ++month) {
        months << scale->label(month + 0.5).text();
    }
    QCOMPARE(QStringList(months).removeDuplicates(), 0);
    QVERIFY2(!months.join(QString()).contains(QLatin1Char('.')), qPrintable(months.join(u' ')));
}

/** What was taken from the grid is not what a house with panels used, on whatever page. */
void tst_DisplayLanguages::importAndConsumptionHaveTheirOwnNames()
{
    QFETCH(QString, language);
    Language::speak(language);
    const QString grid = lookOf(Quantity::GridImport).caption;
    QCOMPARE(grid, QCoreApplication::translate("DisplayPage", "van het net"));
    // A heading of a table is short.
    const QString heading = MonthsTable::tr("van het net");
    const QStringList used {nameOf(PowerKind::Consumption),
                            QCoreApplication::translate("ZEMCurrentStatusDetails", "verbruik")};

    const FullHouse source;
    PlayedDisplay display(source);
    display.window.setCostRules(pricesOfEverything());
    QVERIFY(display.show());
    QMap<QString, int> importTold;
    QMap<QString, int> consumptionTold;
    const auto look = [&](const QString &page) {
        QCoreApplication::processEvents(); // new labels are seen from then on
        for (const QString &text : ScreenFaults::textsOn(&display.window)) {
            importTold[page] += int(hasWord(text, grid) || text.startsWith(heading + u'\n'));
            consumptionTold[page] += int(hasWord(text, used.at(0)) || hasWord(text, used.at(1)));
        }
    };
    for (const QString &page : DisplayWindow::pageNames()) {
        display.window.openPage(page);
        look(page);
        if (auto *change = display.onPage<ZEMButton>("change")) {
            change->click();
            look(QStringLiteral("costs"));
        }
    }
    const QMap<QString, int> importExpected {
        {QStringLiteral("overview"), 2}, {QStringLiteral("charts"), 1},
        {QStringLiteral("devices"), 0},  {QStringLiteral("analysis"), 0},
        {QStringLiteral("months"), 1},   {QStringLiteral("costs"), 1},
        {QStringLiteral("goals"), 3},    {QStringLiteral("settings"), 0}};
    for (const QString &page : importExpected.keys()) {
        const bool isOfTheHouse =
            page == QLatin1String("devices") || page == QLatin1String("analysis");
        QVERIFY2(importTold.value(page) == importExpected[page], qPrintable(page));
        QVERIFY2(consumptionTold.value(page) == int(isOfTheHouse), qPrintable(page));
    }
}

void tst_DisplayLanguages::textsFit()
{
    QFETCH(QString, language);
    Language::speak(language);
    const FullHouse source;
    PlayedDisplay display(source);
    display.window.setCostRules(pricesOfEverything());
    QVERIFY(display.show());
    QStringList faults;
    visitScreens(&display.window, [&](const QString &name) {
        const QWidget *window = &display.window;
        for (const QString &fault : ScreenFaults::outside(window) + ScreenFaults::overlaps(window)
                 + ScreenFaults::cutTexts(window) + ScreenFaults::elidedTexts(window)) {
            faults << QStringLiteral("%1, %2: %3").arg(language, name, fault);
        }
    });
    expectNone(faults);
}

void tst_DisplayLanguages::monthsFitAnUprightScreen()
{
    QFETCH(QString, language);
    Language::speak(language);
    constexpr int untilSeptember = 200; // days; its name is the longest
    const FullHouse source(untilSeptember);
    PlayedDisplay display(source);
    display.window.setFixedSize(480, 800);
    display.window.setCostRules(pricesOfEverything());
    display.window.openPage(QStringLiteral("months"));
    QVERIFY(display.show());
    const auto *table = display.onPage<FittedTableView>("table");
    QVERIFY(table->fits());
    display.onPage<ZEMButton>("change")->click();
    QVERIFY(table->fits());
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    PageLook::setApplicationLook();
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    tst_DisplayLanguages test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_displaylanguages.moc"
