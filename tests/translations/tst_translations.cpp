// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include <KeyboardFactoryDefault>
#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QLocale>
#include <QTest>
#include <QTimeZone>
#include <QTranslator>
#include <ZEMButton>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusWidget>
#include <ZEMDialogPopup>
#include <ZEMHistogramWidget>
#include <ZEMMenuOverlay>
#include <ZEMPageHeader>
#include <ZEMPasswordDialog>
#include <ZEMTotalsTodayWidget>
#include <ZEMWeekHistogram>
#include <memory>

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
    void textsFitTheirWidgets_data() { addLanguages(); }
    void textsFitTheirWidgets();
    void headlineIsInOneLanguage();

private:
    static void addLanguages();
    bool speak(const QString &locale);

    std::unique_ptr<QTranslator> translator;
};

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

void tst_Translations::textsFitTheirWidgets()
{
    QFETCH(QString, locale);
    QVERIFY(speak(locale));
    KeyboardFactoryDefault keyboards(QStringLiteral(KEYBOARD_DIR), QStringLiteral("nl"));
    std::vector<std::unique_ptr<QWidget>> widgets;
    widgets.push_back(std::make_unique<ZEMCurrentStatusDetails>());
    widgets.push_back(std::make_unique<ZEMCurrentStatusWidget>());
    widgets.push_back(std::make_unique<ZEMDialogPopup>());
    widgets.push_back(std::make_unique<ZEMHistogramWidget>());
    widgets.push_back(std::make_unique<ZEMMenuOverlay>());
    widgets.push_back(std::make_unique<ZEMPageHeader>());
    widgets.push_back(std::make_unique<ZEMPasswordDialog>(
        keyboards.createKeyboard(KeyboardFactoryDefault::PopupAbove)));
    widgets.push_back(std::make_unique<ZEMTotalsTodayWidget>());
    for (const auto &widget : widgets) {
        widget->show();
        QCoreApplication::processEvents();
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
