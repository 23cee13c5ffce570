// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/** What is found in a catalogue by those that look for faults in it. */
class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreNamed_data();
    void faultsAreNamed();
    void textThatCannotBeCollectedIsAFault();

private:
    QString write(const QString &name, const QString &text) const;

    QTemporaryDir directory;
};

QString tst_Catalogue::write(const QString &name, const QString &text) const
{
    const QString path = directory.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    file.write(text.toUtf8());
    return path;
}

static QString catalogue(const QString &messages)
{
    return QStringLiteral(R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL"><context><name>Main</name>)")
        + messages + QStringLiteral("</context></TS>");
}

void tst_Catalogue::faultsAreNamed_data()
{
    QTest::addColumn<QString>("messages");
    QTest::addColumn<QStringList>("problems");
    // The texts have places of their own, so there is none for arg().
    const auto power = [](const QString &translation) {
        return QStringLiteral("<message><source>%L1 W</source>") + translation
            + QStringLiteral("</message>");
    };
    const auto days = [](const QString &one, const QString &few, const QString &many) {
        const QStringList forms {one, few, many};
        return QStringLiteral("<message numerus=\"yes\"><source>%n days</source><translation>"
                              "<numerusform>")
            + forms.join(QStringLiteral("</numerusform><numerusform>"))
            + QStringLiteral("</numerusform></translation></message>");
    };
    const QString goodPower = power(QStringLiteral("<translation>%L1 W</translation>"));
    const QString goodDays =
        days(QStringLiteral("%n dzień"), QStringLiteral("%n dni"), QStringLiteral("%n dni"));
    QTest::newRow("complete") << goodPower + goodDays << QStringList();
    QTest::newRow("no entry") << goodDays << QStringList(QStringLiteral("Main: %L1 W is missing"));
    QTest::newRow("not finished") << power(QStringLiteral(
                                         "<translation type=\"unfinished\">%L1 W</translation>"))
            + goodDays << QStringList(QStringLiteral("Main: %L1 W is missing"));
    QTest::newRow("another number") << power(QStringLiteral("<translation>%1 W</translation>"))
            + goodDays << QStringList(QStringLiteral("Main: %L1 W fills in something else"));
    QTest::newRow("a plural form too few")
        << goodPower + days(QStringLiteral("%n dzień"), QStringLiteral("%n dni"), QString())
        << QStringList(QStringLiteral("Main: %n days is missing"));
    QTest::newRow("a plural form without the number")
        << goodPower
            + days(QStringLiteral("dzień"), QStringLiteral("%n dni"), QStringLiteral("%n dni"))
        << QStringList(QStringLiteral("Main: %n days fills in something else"));
    QTest::newRow("vanished") << goodPower + goodDays
            + QStringLiteral("<message><source>weeks</source>"
                             "<translation type=\"vanished\">tygodnie</translation></message>")
                              << QStringList(QStringLiteral("Main: weeks is said nowhere"));
}

void tst_Catalogue::faultsAreNamed()
{
    QFETCH(QString, messages);
    QFETCH(QStringList, problems);
    const QString source =
        write(QStringLiteral("said.cpp"),
              QStringLiteral("auto a = QCoreApplication::translate(\"Main\", \"%L1 W\");\n"
                             "auto b = QCoreApplication::translate(\"Main\", \"%n days\", nullptr, "
                             "days);\n"));
    const QString path = write(QStringLiteral("said_pl.ts"), catalogue(messages));
    QCOMPARE(Catalogue::problemsOf(path, {source}), problems);
}

void tst_Catalogue::textThatCannotBeCollectedIsAFault()
{
    const QString source =
        write(QStringLiteral("lost.cpp"), QStringLiteral("auto c = tr(\"lost\");\n"));
    const QString path = write(QStringLiteral("lost_pl.ts"), catalogue(QString()));
    const QStringList problems = Catalogue::problemsOf(path, {source});
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().contains(QStringLiteral("lost.cpp:1")), qPrintable(problems.first()));
}

QTEST_GUILESS_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"
