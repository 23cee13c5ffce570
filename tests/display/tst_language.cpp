// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "language.h"
#include "readingsfolder.h"

#include <QDomDocument>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include "zemtest.h"

namespace {

struct Entry
{
    QString source; ///< with its context
    QString translation;
    bool isFinished;
};

QVector<Entry> entriesOf(const QString &path)
{
    QFile file(path);
    QDomDocument catalogue;
    if (!file.open(QIODevice::ReadOnly) || !catalogue.setContent(file.readAll())) {
        qFatal("%s cannot be read", qPrintable(path));
    }
    QVector<Entry> entries;
    const QDomNodeList messages = catalogue.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QDomElement context = message.parentNode().firstChildElement(QStringLiteral("name"));
        const QDomElement text = message.firstChildElement(QStringLiteral("translation"));
        entries.append({context.text() + QStringLiteral(": ")
                            + message.firstChildElement(QStringLiteral("source")).text(),
                        text.text(), !text.hasAttribute(QStringLiteral("type"))});
    }
    return entries;
}

/** The places of what is filled in, sorted: "%1", "%2". */
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%[1-9n]"));
    QStringList places;
    auto found = place.globalMatch(text);
    while (found.hasNext()) {
        places << found.next().captured();
    }
    places.sort();
    return places;
}

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceTextHasAnEntry();
    void entriesFillInTheSame();
    void messagesAreDutch();
};

void tst_Language::everySourceTextHasAnEntry()
{
    QTemporaryDir directory;
    QVERIFY(directory.isValid());
    const QString copy = directory.filePath(QStringLiteral("zemkit-display_nl.ts"));
    QVERIFY(QFile::copy(QStringLiteral(CATALOGUE), copy));
    QVERIFY(QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QStringList arguments {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                           QStringLiteral("-locations"), QStringLiteral("none")};
    for (const char *room : {"history", "mqtt", "p1", "readings", "sources", "standby"}) {
        arguments << QStringLiteral(DISPLAY_DIR "/") + QLatin1String(room);
    }
    QProcess update;
    update.start(QStringLiteral(LUPDATE), arguments + QStringList {QStringLiteral("-ts"), copy});
    QVERIFY(update.waitForFinished(ZemTest::hangs));
    QCOMPARE(update.exitCode(), 0);

    QStringList known;
    for (const Entry &entry : entriesOf(QStringLiteral(CATALOGUE))) {
        known << entry.source;
    }
    QStringList wanted;
    for (const Entry &entry : entriesOf(copy)) {
        wanted << entry.source;
        QVERIFY2(entry.isFinished && !entry.translation.isEmpty(), qPrintable(entry.source));
    }
    known.sort();
    wanted.sort();
    QCOMPARE(wanted, known);
}

void tst_Language::entriesFillInTheSame()
{
    for (const Entry &entry : entriesOf(QStringLiteral(CATALOGUE))) {
        QVERIFY2(placesIn(entry.translation) == placesIn(entry.source), qPrintable(entry.source));
    }
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
