// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "fullhouse.h"
#include "language.h"
#include "pagelook.h"
#include "playedsource.h"
#include "screenfaults.h"
#include "screenshots.h"
#include "yearhistogram.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <cstdio>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

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
    void textsFit_data() { addLanguages(); }
    void textsFit();

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
    const QwtScaleDraw *scale = chart.findChild<QwtPlot *>()->axisScaleDraw(QwtPlot::xBottom);
    QStringList months;
    for (int month = 0; month < 12; ++month) {
        months << scale->label(month + 0.5).text();
    }
    QCOMPARE(QStringList(months).removeDuplicates(), 0);
    QVERIFY2(!months.join(QString()).contains(QLatin1Char('.')), qPrintable(months.join(u' ')));
}

void tst_DisplayLanguages::textsFit()
{
    QFETCH(QString, language);
    Language::speak(language);
    const FullHouse source;
    PlayedDisplay display(source);
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
