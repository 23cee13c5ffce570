// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include <KeyboardFactoryDefault>
#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QTest>
#include <QTimeZone>
#include <QTranslator>
#include <ZEMButton>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusWidget>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>
#include <ZEMHistogramWidget>
#include <ZEMLabeledButton>
#include <ZEMListView>
#include <ZEMMenuOverlay>
#include <ZEMMultiLineDialog>
#include <ZEMPageHeader>
#include <ZEMPasswordDialog>
#include <ZEMProfileButton>
#include <ZEMSimpleListView>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMTotalsTodayWidget>
#include <ZEMWeekHistogram>
#include <ZEMWidgetLabel>
#include <map>
#include <memory>
#include <utility>
#include <vector>

/** The library's texts in each language that it speaks. */
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void catalogueIsComplete_data() { addLanguages(); }
    void catalogueIsComplete();
    void languageIsFoundByTheLocale_data() { addLanguages(); }
    void languageIsFoundByTheLocale();
    void otherLanguagesStayDutch();
    void everyTextHasItsWidget();
    void textsFitTheirWidgets_data() { addLanguages(); }
    void textsFitTheirWidgets();
    void headlinesFitTheirPage_data() { addLanguages(); }
    void headlinesFitTheirPage();
    void headlineIsInOneLanguage();

private:
    static void addLanguages();
    bool speak(const QString &locale);

    std::unique_ptr<QTranslator> translator;
};

constexpr QSize screen(640, 480); // pixels, of the display that all is designed for

static int widthOf(const QWidget *widget, const QString &text)
{
    return QFontMetrics(widget->font()).horizontalAdvance(text);
}

/** Whether a text has room on its widget, if that is seen. */
static bool fits(const QWidget *widget, const QString &text, int room)
{
    return !widget->isVisible() || widthOf(widget, text) <= room;
}

static QString inWords(const QWidget *widget, const QString &text, int room)
{
    return QStringLiteral("%1 of %2: \"%3\" needs %4 of %5")
        .arg(widget->objectName(), widget->window()->objectName(), text)
        .arg(widthOf(widget, text))
        .arg(room);
}

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("today");
    QTest::newRow("de") << "de_AT"
                        << "heute gesamt";
    QTest::newRow("en") << "en_GB"
                        << "total today";
    QTest::newRow("es") << "es_MX"
                        << "total hoy";
    QTest::newRow("fr") << "fr_BE"
                        << "total du jour";
    QTest::newRow("it") << "it_IT"
                        << "totale oggi";
    QTest::newRow("pl") << "pl_PL" << QString::fromUtf8("łącznie dziś");
    QTest::newRow("sv") << "sv_SE"
                        << "totalt i dag";
}

bool tst_Translations::speak(const QString &locale)
{
    QLocale::setDefault(QLocale(locale));
    translator = std::make_unique<QTranslator>();
    return translator->load(QLocale(), QStringLiteral("zemkit"), QStringLiteral("_"),
                            QStringLiteral(":/zemkit/translations"))
        && QCoreApplication::installTranslator(translator.get());
}

void tst_Translations::cleanup()
{
    translator.reset();
}

void tst_Translations::catalogueIsComplete()
{
    const QString path = QStringLiteral(PROJECT_DIR "/translations/zemkit_%1.ts")
                             .arg(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(Catalogue::problemsOf(
                 path, {QStringLiteral(PROJECT_DIR "/src"), QStringLiteral(PROJECT_DIR "/forms")}),
             QStringList());
}

void tst_Translations::languageIsFoundByTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, today);
    QVERIFY(speak(locale));
    ZEMTotalsTodayWidget totals;
    QCOMPARE(totals.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(), today);
}

void tst_Translations::otherLanguagesStayDutch()
{
    QVERIFY(!speak(QStringLiteral("nl_NL")));
    QVERIFY(!speak(QStringLiteral("el_GR")));
    ZEMTotalsTodayWidget totals;
    QCOMPARE(totals.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(),
             QStringLiteral("totaal vandaag"));
}

/** A widget of each class whose texts stand on the widget itself. */
static std::map<QString, std::unique_ptr<QWidget>> makeWidgets(KeyboardFactoryDefault *keyboards)
{
    std::map<QString, std::unique_ptr<QWidget>> widgets;
    const auto add = [&widgets](QWidget *widget) {
        widgets[QString::fromLatin1(widget->metaObject()->className())].reset(widget);
    };
    const auto keyboard = [keyboards] {
        return keyboards->createKeyboard(KeyboardFactoryDefault::PopupAbove);
    };
    add(new ZEMCurrentStatusDetails);
    add(new ZEMCurrentStatusWidget);
    add(new ZEMDialogPopup);
    add(new ZEMDialogShowText);
    add(new ZEMHistogramWidget);
    add(new ZEMLabeledButton);
    add(new ZEMListView);
    add(new ZEMMenuOverlay);
    add(new ZEMMultiLineDialog(keyboard()));
    add(new ZEMPageHeader);
    add(new ZEMPasswordDialog(keyboard()));
    add(new ZEMProfileButton);
    add(new ZEMSimpleListView);
    add(new ZEMTotalsTodayWidget);
    add(new ZEMWidgetLabel);
    return widgets;
}

void tst_Translations::everyTextHasItsWidget()
{
    // The texts of these are headlines, of which another test is.
    QStringList seen {QStringLiteral("ZEMSmartDayHistogram"), QStringLiteral("ZEMWeekHistogram"),
                      QStringLiteral("ZEMSmartMonthHistogram"),
                      QStringLiteral("ZEMSmartWeekHistogram")};
    KeyboardFactoryDefault keyboards(QStringLiteral(KEYBOARD_DIR), QStringLiteral("nl"));
    for (const auto &entry : makeWidgets(&keyboards)) {
        seen << entry.first;
    }
    const auto entries =
        Catalogue::entriesOf(QStringLiteral(PROJECT_DIR "/translations/zemkit_de.ts"));
    for (const Catalogue::Entry &entry : entries) {
        const QString context = entry.source.section(QStringLiteral(": "), 0, 0);
        // "Form" is the title of a window, which is seen nowhere.
        QVERIFY2(entry.source.endsWith(QStringLiteral(": Form")) || seen.contains(context),
                 qPrintable(entry.source));
    }
}

void tst_Translations::textsFitTheirWidgets()
{
    QFETCH(QString, locale);
    QVERIFY(speak(locale));
    KeyboardFactoryDefault keyboards(QStringLiteral(KEYBOARD_DIR), QStringLiteral("nl"));
    for (const auto &entry : makeWidgets(&keyboards)) {
        QWidget *widget = entry.second.get();
        widget->resize(widget->size().boundedTo(screen));
        widget->show();
        QCoreApplication::processEvents();
        QVERIFY2(widget->width() <= screen.width(), qPrintable(entry.first));
        for (const QLabel *label : widget->findChildren<QLabel *>()) {
            const int room = label->contentsRect().width();
            QVERIFY2(label->wordWrap() || fits(label, label->text(), room),
                     qPrintable(inWords(label, label->text(), room)));
        }
        for (const auto *button : widget->findChildren<QAbstractButton *>()) {
            QVERIFY2(fits(button, button->text(), button->width()),
                     qPrintable(inWords(button, button->text(), button->width())));
        }
    }
}

/** Views of a chart: a whole one, and one between two. */
static std::vector<QwtInterval> viewsOf(double length)
{
    return {QwtInterval(0.0, length), QwtInterval(0.5 * length, 1.5 * length)};
}

void tst_Translations::headlinesFitTheirPage()
{
    QFETCH(QString, locale);
    QVERIFY(speak(locale));
    ZEMHistogramWidget page;
    page.setFixedSize(screen);
    const std::pair<ZEM::ZEMTab, ZEMHistogram *> charts[] = {
        {ZEM::TabDay, new ZEMSmartDayHistogram},
        {ZEM::TabWeek, new ZEMWeekHistogram},
        {ZEM::TabMonth, new ZEMSmartMonthHistogram}};
    const double lengths[] = {24.0, 7.0, 5.0};
    page.show();
    const auto *headline = page.findChild<QLabel *>(QStringLiteral("lblTitle"));
    int index = 0;
    for (const auto &[tab, chart] : charts) {
        chart->init();
        page.setHistogram(tab, ZEM::TabElectricity, chart);
        page.selectTab(tab, ZEM::TabElectricity);
        const double length = lengths[index++];
        for (int day = 0; day < 366; day += 5) {
            chart->setDataChangedTimestamp(
                QDateTime(QDate(2016, 1, 1).addDays(day), QTime(0, 0), QTimeZone::utc()));
            for (const QwtInterval &view : viewsOf(length)) {
                chart->updateTitle(view);
                QCoreApplication::processEvents();
                QCOMPARE(headline->text(), chart->title());
                const int room = headline->contentsRect().width();
                QVERIFY2(fits(headline, headline->text(), room),
                         qPrintable(inWords(headline, headline->text(), room)));
                QVERIFY2(page.layout()->minimumSize().width() <= screen.width(),
                         qPrintable(headline->text()));
            }
        }
    }
}

void tst_Translations::headlineIsInOneLanguage()
{
    QVERIFY(speak(QStringLiteral("de_DE")));
    ZEMWeekHistogram chart;
    chart.init();
    chart.setDataChangedTimestamp(QDateTime(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc()));
    chart.setScalePeriod(7.0);
    QCOMPARE(chart.title(), QStringLiteral("Woche - 7 bis 13 März"));
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
