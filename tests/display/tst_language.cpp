// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"
#include "language.h"
#include "readingsfolder.h"

#include <QLocale>
#include <QTest>

class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueIsComplete();
    void messagesAreDutch();
};

void tst_Language::catalogueIsComplete()
{
    QCOMPARE(Catalogue::problemsOf(QStringLiteral(CATALOGUE), {QStringLiteral(DISPLAY_DIR)}),
             QStringList());
}

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
    Language::speakDutch();
    QCOMPARE(QLocale().language(), QLocale::Dutch);
    QCOMPARE(folder.load(readings).problems,
             (QStringList {QStringLiteral("FILE:3: geen getal: \"many\" in kolom "
                                          "\"electricity_import_low_kwh\"; rij weggelaten"),
                           QStringLiteral("FILE:5: stroom (laag tarief) 99 is minder dan "
                                          "daarvoor, en de volgende niet; weggelaten")}));
}

QTEST_GUILESS_MAIN(tst_Language)
#include "tst_language.moc"
