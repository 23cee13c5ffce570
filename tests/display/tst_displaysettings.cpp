// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaysettings.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_DisplaySettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void valuesAreKept();
    void usualKeyboardHoldsUntilOneIsChosen();
    void clear();
    void whatCannotBeWrittenIsSaid();
    void strangeValuesAreDefaults_data();
    void strangeValuesAreDefaults();
};

void tst_DisplaySettings::defaults()
{
    const QTemporaryDir directory;
    const DisplaySettings settings(directory.filePath(QStringLiteral("new.ini")));
    QVERIFY(settings.houseName().isEmpty());
    QCOMPARE(settings.price(), 0.30);
    QCOMPARE(settings.contract(), ContractType::DayAndNight);
    QCOMPARE(settings.keyboardLanguage(), QStringLiteral("nl"));
    QCOMPARE(settings.yearGoal(), 3500);
    QCOMPARE(settings.profile(), Profile::Home);
    QCOMPARE(settings.standby().after, 0);
    QVERIFY(!settings.standby().isNight(QTime(0, 0)));
}

void tst_DisplaySettings::valuesAreKept()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("display.ini"));
    {
        DisplaySettings settings(path);
        QSignalSpy changes(&settings, &DisplaySettings::changed);
        settings.setHouseName(QStringLiteral("Café \"De Zon\", 2e"));
        settings.setPrice(0.4212);
        settings.setContract(ContractType::Single);
        settings.setKeyboardLanguage(QStringLiteral("de"));
        settings.setYearGoal(1800);
        settings.setProfile(Profile::Holiday);
        settings.setStandby({10, QTime(23, 30), QTime(6, 0)});
        QCOMPARE(changes.count(), 7);
    }
    const DisplaySettings settings(path);
    QCOMPARE(settings.houseName(), QStringLiteral("Café \"De Zon\", 2e"));
    QCOMPARE(settings.price(), 0.4212);
    QCOMPARE(settings.contract(), ContractType::Single);
    QCOMPARE(settings.keyboardLanguage(), QStringLiteral("de"));
    QCOMPARE(settings.yearGoal(), 1800);
    QCOMPARE(settings.profile(), Profile::Holiday);
    QCOMPARE(settings.standby().after, 10);
    QCOMPARE(settings.standby().nightFrom, QTime(23, 30));
    QCOMPARE(settings.standby().nightTo, QTime(6, 0));
}

void tst_DisplaySettings::usualKeyboardHoldsUntilOneIsChosen()
{
    const QTemporaryDir directory;
    DisplaySettings settings(directory.filePath(QStringLiteral("display.ini")));
    settings.setUsualKeyboard(QStringLiteral("pl"));
    QCOMPARE(settings.keyboardLanguage(), QStringLiteral("pl"));
    settings.setKeyboardLanguage(QStringLiteral("fr"));
    settings.setUsualKeyboard(QStringLiteral("de"));
    QCOMPARE(settings.keyboardLanguage(), QStringLiteral("fr"));
    settings.clear();
    QCOMPARE(settings.keyboardLanguage(), QStringLiteral("de"));
}

void tst_DisplaySettings::clear()
{
    const QTemporaryDir directory;
    DisplaySettings settings(directory.filePath(QStringLiteral("display.ini")));
    settings.setHouseName(QStringLiteral("huis"));
    settings.setYearGoal(1);
    const QSignalSpy changes(&settings, &DisplaySettings::changed);
    settings.clear();
    QCOMPARE(changes.count(), 1);
    QVERIFY(settings.houseName().isEmpty());
    QCOMPARE(settings.yearGoal(), 3500);
}

void tst_DisplaySettings::whatCannotBeWrittenIsSaid()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("display.ini"));
    // Not even root writes below a file.
    QVERIFY(QFile(directory.filePath(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    DisplaySettings settings(directory.filePath(QStringLiteral("file/display.ini")));
    const QSignalSpy problems(&settings, &DisplaySettings::problem);
    settings.setYearGoal(2000);
    QCOMPARE(problems.count(), 1);
    QVERIFY(problems.constFirst().constFirst().toString().contains(
        QStringLiteral("file/display.ini: ")));
    QCOMPARE(settings.yearGoal(), 2000);

    DisplaySettings good(path);
    const QSignalSpy none(&good, &DisplaySettings::problem);
    good.setYearGoal(2000);
    QCOMPARE(none.count(), 0);
    QVERIFY(QFile::exists(path)); // at once
}

void tst_DisplaySettings::strangeValuesAreDefaults_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("price, a word") << QByteArray("[energy]\nprice=cheap\n");
    QTest::newRow("price, below") << QByteArray("[energy]\nprice=-1\n");
    QTest::newRow("price, above") << QByteArray("[energy]\nprice=10\n");
    QTest::newRow("price, no number") << QByteArray("[energy]\nprice=nan\n");
    QTest::newRow("goal, 0") << QByteArray("[energy]\nyearGoal=0\n");
    QTest::newRow("goal, above") << QByteArray("[energy]\nyearGoal=100000\n");
    QTest::newRow("profile, above") << QByteArray("[house]\nprofile=3\n");
    QTest::newRow("profile, below") << QByteArray("[house]\nprofile=-1\n");
    QTest::newRow("standby, below") << QByteArray("[standby]\nafter=-1\n");
    QTest::newRow("standby, above") << QByteArray("[standby]\nafter=1441\n");
    QTest::newRow("night, no time") << QByteArray("[standby]\nnightFrom=25:00\nnightTo=x\n");
}

void tst_DisplaySettings::strangeValuesAreDefaults()
{
    QFETCH(QByteArray, line);
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("display.ini"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(line);
    file.close();
    const DisplaySettings settings(path);
    QCOMPARE(settings.price(), 0.30);
    QCOMPARE(settings.yearGoal(), 3500);
    QCOMPARE(settings.profile(), Profile::Home);
    QCOMPARE(settings.standby().after, 0);
    QVERIFY(!settings.standby().isNight(QTime(0, 0)));
}

QTEST_GUILESS_MAIN(tst_DisplaySettings)
#include "tst_displaysettings.moc"
