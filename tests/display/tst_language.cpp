// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"
#include "language.h"
#include "readingsfolder.h"
#include "viewtexts.h"

#include <QDir>
#include <QLocale>
#include <QTest>

class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAreDutch();
    void catalogueIsComplete_data();
    void catalogueIsComplete();
    void libraryIsSpokenToo();
    void datesAndNumbersFollow_data();
    void datesAndNumbersFollow();
    void datesAreWrittenAsTheLanguageDoes_data();
    void datesAreWrittenAsTheLanguageDoes();
    void numbersHaveTheirPlural_data();
    void numbersHaveTheirPlural();
};

void tst_Language::messagesAreDutch()
{
    ReadingsFolder folder;
    const QByteArray readings = "time,electricity_import_low_kwh\n"
                                "2024-05-01T12:00:00Z,100\n"
                                "2024-05-01T13:00:00Z,many\n"
                                "2024-05-01T14:00:00Z,100.5\n"
                                "2024-05-01T15:00:00Z,99\n"
                                "2024-05-01T16:00:00Z,101\n";
    QCOMPARE(folder.load(readings).problems,
             (QStringList {QStringLiteral("FILE:3: bad number \"many\" in column "
                                          "\"electricity_import_low_kwh\"; row left out"),
                           QStringLiteral("FILE:5: electricity import (low tariff) 99 is less "
                                          "than before, and the next is not; left out")}));
    Language::speak(QStringLiteral("nl"));
    QCOMPARE(QLocale().language(), QLocale::Dutch);
    QCOMPARE(folder.load(readings).problems,
             (QStringList {QStringLiteral("FILE:3: geen getal: \"many\" in kolom "
                                          "\"electricity_import_low_kwh\"; rij weggelaten"),
                           QStringLiteral("FILE:5: stroom (laag tarief) 99 is minder dan "
                                          "daarvoor, en de volgende niet; weggelaten")}));
}

void tst_Language::catalogueIsComplete_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Language::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
    QVERIFY(Language::all().size() > 1);
}

void tst_Language::catalogueIsComplete()
{
    QFETCH(QString, language);
    QCOMPARE(
        Catalogue::problemsOf(QStringLiteral(CATALOGUE_DIR "/zemkit-display_%1.ts").arg(language),
                              {QStringLiteral(DISPLAY_DIR)}),
        QStringList());
}

void tst_Language::libraryIsSpokenToo()
{
    QStringList languages {QStringLiteral("nl")};
    for (const QString &file : QDir(QStringLiteral(CATALOGUE_DIR)).entryList({"zemkit_*.ts"})) {
        languages << file.section(QLatin1Char('_'), 1).chopped(3);
    }
    languages.sort();
    QCOMPARE(Language::all(), languages);
    Language::speak(QStringLiteral("de"));
    QCOMPARE(QCoreApplication::translate("ZEMHistogramWidget", "jaar"), QStringLiteral("Jahr"));
    Language::speak(QStringLiteral("nl"));
    QCOMPARE(QCoreApplication::translate("ZEMHistogramWidget", "jaar"), QStringLiteral("jaar"));
}

void tst_Language::datesAndNumbersFollow_data()
{
    QTest::addColumn<QString>("week");
    QTest::addColumn<QString>("amount");
    QTest::newRow("nl") << "week van 7 mei 2018"
                        << "12,3 kWh";
    QTest::newRow("en") << "week of 7 May 2018"
                        << "12.3 kWh";
    QTest::newRow("de") << "Woche vom 7. Mai 2018"
                        << "12,3 kWh";
    QTest::newRow("fr") << "semaine du 7 mai 2018"
                        << "12,3 kWh";
    QTest::newRow("es") << "semana del 7 may 2018"
                        << "12,3 kWh";
    QTest::newRow("it") << "settimana del 7 mag 2018"
                        << "12,3 kWh";
    QTest::newRow("pl") << "tydzień od 7 maj 2018"
                        << "12,3 kWh";
    QTest::newRow("sv") << "veckan från 7 maj 2018"
                        << "12,3 kWh";
}

void tst_Language::datesAndNumbersFollow()
{
    QFETCH(QString, week);
    QFETCH(QString, amount);
    Language::speak(QLatin1String(QTest::currentDataTag()));
    // Whether there is a full stop behind a short month differs between versions of Qt.
    const QString told = ViewTexts::slotName(Period::Month, QDate(2018, 5, 7), 0);
    QCOMPARE(QString(told).replace(QStringLiteral("may."), QStringLiteral("may")), week);
    QCOMPARE(ViewTexts::amount(Readings::Measured {12.345, true}, QStringLiteral("kWh")), amount);
}

void tst_Language::datesAreWrittenAsTheLanguageDoes_data()
{
    QTest::addColumn<QString>("day");
    QTest::addColumn<QString>("days");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("months");
    const auto add = [](const char *language, const char *day, const char *days, const char *first,
                        const char *months) {
        QTest::newRow(language) << QString::fromUtf8(day) << QString::fromUtf8(days)
                                << QString::fromUtf8(first) << QString::fromUtf8(months);
    };
    add("nl", "ma 23 november", "23 t/m 29 november", "1 november", "november / december");
    add("en", "Mon 23 November", "23 to 29 November", "1 November", "November / December");
    add("de", "Mo., 23. November", "23. bis 29. November", "1. November", "November / Dezember");
    add("fr", "lun. 23 novembre", "23 au 29 novembre", "1er novembre", "novembre / décembre");
    add("es", "lun, 23 de noviembre", "23 al 29 de noviembre", "1 de noviembre",
        "noviembre / diciembre");
    add("it", "lun 23 novembre", "23 al 29 novembre", "1 novembre", "novembre / dicembre");
    add("pl", "pon., 23 listopada", "23 do 29 listopada", "1 listopada", "listopad / grudzień");
    add("sv", "mån 23 november", "23 till 29 november", "1 november", "november / december");
}

void tst_Language::datesAreWrittenAsTheLanguageDoes()
{
    QFETCH(QString, day);
    QFETCH(QString, days);
    QFETCH(QString, first);
    QFETCH(QString, months);
    Language::speak(QLatin1String(QTest::currentDataTag()));
    const QDate monday(2026, 11, 23);
    const QDate sunday(2026, 11, 29);
    // Whether there is one behind a short weekday of Spanish differs between versions of Qt.
    QCOMPARE(ViewTexts::viewName(Period::Day, monday, monday)
                 .replace(QStringLiteral("lun.,"), QStringLiteral("lun,")),
             day);
    QCOMPARE(ViewTexts::viewName(Period::Week, monday, sunday), days);
    QVERIFY2(
        ViewTexts::viewName(Period::Week, QDate(2026, 10, 26), QDate(2026, 11, 1)).endsWith(first),
        qPrintable(ViewTexts::viewName(Period::Week, QDate(2026, 10, 26), QDate(2026, 11, 1))));
    QCOMPARE(ViewTexts::viewName(Period::Month, monday, QDate(2026, 12, 27)), months);
}

void tst_Language::numbersHaveTheirPlural_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *language, int count, const char *text) {
        QTest::addRow("%s %d", language, count) << language << count << QString::fromUtf8(text);
    };
    add("nl", 1, "nog 1 probleem");
    add("nl", 2, "nog 2 problemen");
    add("en", 1, "1 more problem");
    add("fr", 1, "encore 1 problème");
    add("fr", 2, "encore 2 problèmes");
    add("pl", 1, "jeszcze 1 problem");
    add("pl", 2, "jeszcze 2 problemy");
    add("pl", 5, "jeszcze 5 problemów");
    add("pl", 12, "jeszcze 12 problemów");
    add("pl", 22, "jeszcze 22 problemy");
}

void tst_Language::numbersHaveTheirPlural()
{
    QFETCH(QString, language);
    QFETCH(int, count);
    QFETCH(QString, text);
    Language::speak(language);
    QCOMPARE(QCoreApplication::translate("Readings", "%n more problems", nullptr, count), text);
}

QTEST_GUILESS_MAIN(tst_Language)
#include "tst_language.moc"
