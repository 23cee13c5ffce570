// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1samples.h"
#include "p1splitter.h"
#include "p1telegram.h"
#include "p1time.h"

#include <QLocale>
#include <QStringList>
#include <QTest>

#include <clocale>

using namespace Readings;

namespace {

QString quantityText(const Register &meterRegister)
{
    static const QStringList quantities = {
        QStringLiteral("import"), QStringLiteral("export"), QStringLiteral("solar"),
        QStringLiteral("gas"),    QStringLiteral("water"),  QStringLiteral("heat"),
    };
    static const QStringList tariffs = {QString(), QStringLiteral("-low"),
                                        QStringLiteral("-normal")};
    return quantities.at(int(meterRegister.quantity)) + tariffs.at(int(meterRegister.tariff));
}

QString timeText(const std::optional<qint64> &instant)
{
    return instant ? QDateTime::fromSecsSinceEpoch(*instant).toUTC().toString(Qt::ISODate)
                   : QStringLiteral("none");
}

/** Everything in a telegram, one line each. */
QStringList toLines(const P1Telegram &telegram)
{
    QStringList lines = {
        p1VersionName(telegram),
        timeText(telegram.instant),
        telegram.power ? QStringLiteral("%1 W").arg(*telegram.power) : QStringLiteral("none"),
    };
    for (const P1Reading &reading : telegram.readings) {
        QString line = quantityText(reading.meterRegister) + QLatin1Char(' ')
            + QString::number(reading.value, 'f', 3);
        if (reading.instant) {
            line += QStringLiteral(" at ") + timeText(reading.instant);
        }
        lines.append(line);
    }
    return lines;
}

const QByteArray oldLines = "0-0:96.1.1(5A42)\r\n"
                            "1-0:1.8.1(00010.500*kWh)\r\n"
                            "1-0:1.8.2(00020.250*kWh)\r\n"
                            "1-0:1.7.0(0001.25*kW)\r\n";

QByteArray oldTelegram(const QByteArray &lines)
{
    return "/TST5\\OLD\r\n\r\n" + lines + "!\r\n";
}

QByteArray channelLines(char name, int kind, const QByteArray &reading)
{
    const QByteArray prefix = QByteArray("0-") + name;
    return prefix + ":24.1.0(" + QByteArray::number(kind).rightJustified(3, '0') + ")\r\n" + prefix
        + ":24.2.1" + reading + "\r\n";
}

} // namespace

class tst_P1Telegram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void timeStamps_data();
    void timeStamps();
    void content_data();
    void content();
    void versions_data();
    void versions();
    void problems_data();
    void problems();
    void damagedTelegramTellsNothing();
    void everyChangedByteIsFound();
    void lineFeedsAloneAreRead();
    void numbersDoNotFollowTheLocale();
    void readingsAreFoundByRegister();
    void realTelegrams_data();
    void realTelegrams();
    void realDamage_data();
    void realDamage();
};

void tst_P1Telegram::init()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_P1Telegram::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_P1Telegram::timeStamps_data()
{
    QTest::addColumn<QByteArray>("stamp");
    QTest::addColumn<QString>("instant");
    const auto none = QStringLiteral("none");
    QTest::newRow("summer") << QByteArray("220528150245S")
                            << QStringLiteral("2022-05-28T13:02:45Z");
    QTest::newRow("winter") << QByteArray("171105201324W")
                            << QStringLiteral("2017-11-05T19:13:24Z");
    QTest::newRow("first of the hour that comes twice")
        << QByteArray("231029023000S") << QStringLiteral("2023-10-29T00:30:00Z");
    QTest::newRow("second of the hour that comes twice")
        << QByteArray("231029023000W") << QStringLiteral("2023-10-29T01:30:00Z");
    QTest::newRow("new year") << QByteArray("240101000000W")
                              << QStringLiteral("2023-12-31T23:00:00Z");
    QTest::newRow("no letter, summer")
        << QByteArray("160715210000") << QStringLiteral("2016-07-15T19:00:00Z");
    QTest::newRow("no letter, winter")
        << QByteArray("160115210000") << QStringLiteral("2016-01-15T20:00:00Z");
    QTest::newRow("no letter, hour that comes twice")
        << QByteArray("231029020000") << QStringLiteral("2023-10-29T00:00:00Z");
    QTest::newRow("no letter, hour that is skipped") << QByteArray("230326023000") << none;
    QTest::newRow("clock at 2000") << QByteArray("000101010000W") << none;
    QTest::newRow("clock running since 2000") << QByteArray("000214131415W") << none;
    QTest::newRow("clock at 1970") << QByteArray("700101010000W") << none;
    QTest::newRow("first believed")
        << QByteArray("070101000000W") << QStringLiteral("2006-12-31T23:00:00Z");
    QTest::newRow("last too old") << QByteArray("061231235959W") << none;
    QTest::newRow("month 13") << QByteArray("221301000000W") << none;
    QTest::newRow("no leap year") << QByteArray("230229000000W") << none;
    QTest::newRow("hour 24") << QByteArray("220101240000W") << none;
    QTest::newRow("other letter") << QByteArray("220528150245s") << none;
    QTest::newRow("too long") << QByteArray("220528150245SS") << none;
    QTest::newRow("too short") << QByteArray("22052815024") << none;
    QTest::newRow("no digit") << QByteArray("2205281 0245S") << none;
    QTest::newRow("empty") << QByteArray() << none;
}

void tst_P1Telegram::timeStamps()
{
    QFETCH(QByteArray, stamp);
    QFETCH(QString, instant);
    QCOMPARE(timeText(parseP1Time(std::string_view(stamp.constData(), std::size_t(stamp.size())))),
             instant);
}

void tst_P1Telegram::content_data()
{
    const QByteArray head = linesOfVersion5("240601120000S");
    const QByteArray counter = "1-0:1.8.1(000001.000*kWh)\r\n";
    const QString time = QStringLiteral("2024-06-01T10:00:00Z");
    const QStringList five = {QStringLiteral("5.0"), time};
    const QStringList noPower = five + QStringList(QStringLiteral("none"));
    const QStringList counterOnly = noPower + QStringList(QStringLiteral("import-low 1.000"));

    QTest::addColumn<QByteArray>("telegram");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all registers, exporting")
        << withChecksum(head
                        + "1-0:1.8.1(000001.001*kWh)\r\n1-0:1.8.2(000002.002*kWh)\r\n"
                          "1-0:2.8.1(000003.003*kWh)\r\n1-0:2.8.2(000004.004*kWh)\r\n"
                          "1-0:1.7.0(00.000*kW)\r\n1-0:2.7.0(02.857*kW)\r\n")
        << five
            + QStringList({QStringLiteral("-2857 W"), QStringLiteral("import-low 1.001"),
                           QStringLiteral("import-normal 2.002"),
                           QStringLiteral("export-low 3.003"),
                           QStringLiteral("export-normal 4.004")});
    QTest::newRow("Belgian tariffs")
        << withChecksum("0-0:96.1.4(50217)\r\n0-0:1.0.0(240601120000S)\r\n"
                        "1-0:1.8.1(000001.001*kWh)\r\n1-0:1.8.2(000002.002*kWh)\r\n"
                        "1-0:2.8.1(000003.003*kWh)\r\n1-0:2.8.2(000004.004*kWh)\r\n")
        << QStringList({QStringLiteral("Belgian 50217"), time, QStringLiteral("none"),
                        QStringLiteral("import-normal 1.001"), QStringLiteral("import-low 2.002"),
                        QStringLiteral("export-normal 3.003"), QStringLiteral("export-low 4.004")});
    QTest::newRow("totals alone") << withChecksum(
        head
        + "1-0:1.8.0(000001.001*kWh)\r\n1-0:2.8.0(000003.003*kWh)\r\n"
          "1-0:1.7.0(00.100*kW)\r\n")
                                  << five
            + QStringList({QStringLiteral("100 W"), QStringLiteral("import 1.001"),
                           QStringLiteral("export 3.003")});
    QTest::newRow("totals beside tariffs, which are their parts")
        << withChecksum(head
                        + "1-0:1.8.0(000003.003*kWh)\r\n1-0:1.8.1(000001.001*kWh)\r\n"
                          "1-0:1.8.2(000002.002*kWh)\r\n1-0:2.8.0(000000.500*kWh)\r\n")
        << noPower
            + QStringList({QStringLiteral("import-low 1.001"),
                           QStringLiteral("import-normal 2.002"), QStringLiteral("export 0.500")});
    QTest::newRow("total beside tariffs that cannot be read")
        << withChecksum(head + "1-0:1.8.0(000003.003*kWh)\r\n1-0:1.8.1()\r\n" + "1-0:1.8.2(x)\r\n"
                        + "1-0:2.8.1(000001.000*kWh)\r\n")
        << noPower + QStringList(QStringLiteral("export-low 1.000"));
    QTest::newRow("Wh and W") << withChecksum(head
                                              + "1-0:1.8.0(0001234567*Wh)\r\n1-0:2.8.0(89*Wh)\r\n"
                                                "1-0:1.7.0(00000*W)\r\n1-0:2.7.0(01750*W)\r\n")
                              << five
            + QStringList({QStringLiteral("-1750 W"), QStringLiteral("import 1234.567"),
                           QStringLiteral("export 0.089")});
    QTest::newRow("import power alone") << withChecksum(head + "1-0:1.7.0(01.234*kW)\r\n")
                                        << five + QStringList(QStringLiteral("1234 W"));
    QTest::newRow("export power alone is no power")
        << withChecksum(head + counter + "1-0:2.7.0(01.234*kW)\r\n") << counterOnly;
    QTest::newRow("gas on channel 4")
        << withChecksum(head + channelLines('4', 3, "(240601115500S)(00012.345*m3)"))
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("water and heat")
        << withChecksum(head + channelLines('1', 7, "(240601115500S)(00012.345*m3)")
                        + channelLines('2', 4, "(240601114500S)(012.345*GJ)"))
        << noPower
            + QStringList({QStringLiteral("water 12.345 at 2024-06-01T09:55:00Z"),
                           QStringLiteral("heat 12.345 at 2024-06-01T09:45:00Z")});
    QTest::newRow("kind behind the reading")
        << withChecksum(head + "0-1:24.2.1(240601115500S)(00012.345*m3)\r\n0-1:24.1.0(003)\r\n")
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("Belgian gas") << withChecksum(
        head + "0-1:24.1.0(003)\r\n0-1:24.2.3(240601115500S)(00012.345*m3)\r\n")
                                 << noPower
            + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("other kind of device")
        << withChecksum(head + counter + channelLines('1', 2, "(240601115500S)(00012.345*m3)"))
        << counterOnly;
    QTest::newRow("channel 5 does not exist")
        << withChecksum(head + counter + channelLines('5', 3, "(240601115500S)(00012.345*m3)"))
        << counterOnly;
    QTest::newRow("unit of another kind")
        << withChecksum(head + counter + channelLines('1', 4, "(240601115500S)(00012.345*m3)"))
        << counterOnly;
    QTest::newRow("channel without a unit")
        << withChecksum(head + counter + channelLines('1', 3, "(240601115500S)(0000000000)"))
        << counterOnly;
    QTest::newRow("channel without a value")
        << withChecksum(head + counter + channelLines('1', 3, "(240601115500S)()")) << counterOnly;
    QTest::newRow("channel with an unset clock")
        << withChecksum(head + counter + channelLines('1', 3, "(700101010000W)(00012.345*m3)"))
        << counterOnly;
    QTest::newRow("empty channel before the gas")
        << withChecksum(head + channelLines('1', 3, "(700101010000W)(00000000)")
                        + channelLines('2', 3, "(240601115500S)(00012.345*m3)"))
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("replaced gas meter below")
        << withChecksum(head + channelLines('1', 3, "(240101115500W)(09999.000*m3)")
                        + channelLines('2', 3, "(240601115500S)(00012.345*m3)"))
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("replaced gas meter above")
        << withChecksum(head + channelLines('1', 3, "(240601115500S)(00012.345*m3)")
                        + channelLines('2', 3, "(240101115500W)(09999.000*m3)"))
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:55:00Z"));
    QTest::newRow("two live gas meters: always the lower")
        << withChecksum(head + channelLines('1', 3, "(240601110000S)(00012.345*m3)")
                        + channelLines('2', 3, "(240601115500S)(00700.000*m3)"))
        << noPower + QStringList(QStringLiteral("gas 12.345 at 2024-06-01T09:00:00Z"));
    QTest::newRow("unset clock of the meter")
        << withChecksum("1-3:0.2.8(42)\r\n0-0:1.0.0(000101010000W)\r\n" + counter)
        << QStringList({QStringLiteral("4.2"), QStringLiteral("none"), QStringLiteral("none"),
                        QStringLiteral("import-low 1.000")});
    QTest::newRow("unreadable value and unknown lines of a whole telegram")
        << withChecksum(head + counter
                        + "1-0:1.8.2(00a001.000*kWh)\r\n1-0:2.8.1(1.0*MWh)\r\n"
                          "1-0:2.8.2()\r\nA-0:96.1.1(12)\r\nhello\r\n1-0:1.7.0(1.2\r\n"
                          "1-0:9.9.9(1)(2)(3)\r\n")
        << counterOnly;
    QTest::newRow("old, with gas")
        << oldTelegram(oldLines
                       + "0-2:24.1.0(3)\r\n0-2:24.3.0(211122210000)(00)(60)(1)(0-2:24.2.1)(m3)\r\n"
                         "(13368.864)\r\n0-2:24.4.0(1)\r\n")
        << QStringList({QStringLiteral("2.2"), QStringLiteral("none"), QStringLiteral("1250 W"),
                        QStringLiteral("import-low 10.500"), QStringLiteral("import-normal 20.250"),
                        QStringLiteral("gas 13368.864 at 2021-11-22T20:00:00Z")});
    QTest::newRow("old, gas never read")
        << oldTelegram(oldLines
                       + "0-1:24.1.0(3)\r\n0-1:24.3.0(000101000000)(00)(60)(1)(0-1:24.2.1)(m3)\r\n"
                         "()\r\n")
        << QStringList({QStringLiteral("2.2"), QStringLiteral("none"), QStringLiteral("1250 W"),
                        QStringLiteral("import-low 10.500"),
                        QStringLiteral("import-normal 20.250")});
    QTest::newRow("identification without an empty line")
        << QByteArray("/A\r\n1-0:1.8.1(00010.500*kWh)\r\n1-0:1.7.0(001.25*kW)\r\n!\r\n")
        << QStringList({QStringLiteral("3.0"), QStringLiteral("none"), QStringLiteral("1250 W"),
                        QStringLiteral("import-low 10.500")});
}

void tst_P1Telegram::content()
{
    QFETCH(QByteArray, telegram);
    QFETCH(QStringList, expected);
    const P1Telegram read = parseP1Telegram(telegram);
    QCOMPARE(read.problem, QString());
    QCOMPARE(toLines(read), expected);
}

void tst_P1Telegram::versions_data()
{
    const QByteArray counter = "1-0:1.8.1(000001.000*kWh)\r\n";
    QTest::addColumn<QByteArray>("telegram");
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("name");
    QTest::newRow("2.2") << oldTelegram(counter + "1-0:1.7.0(0000.54*kW)\r\n")
                         << int(P1Telegram::Version::Dsmr22) << QStringLiteral("2.2");
    QTest::newRow("3.0") << oldTelegram(counter + "1-0:1.7.0(001.19*kW)\r\n")
                         << int(P1Telegram::Version::Dsmr30) << QStringLiteral("3.0");
    QTest::newRow("4.0") << withChecksum("1-3:0.2.8(40)\r\n" + counter)
                         << int(P1Telegram::Version::Dsmr4) << QStringLiteral("4.0");
    QTest::newRow("4.2") << withChecksum("1-3:0.2.8(42)\r\n" + counter)
                         << int(P1Telegram::Version::Dsmr4) << QStringLiteral("4.2");
    QTest::newRow("5.0") << withChecksum("1-3:0.2.8(50)\r\n" + counter)
                         << int(P1Telegram::Version::Dsmr5) << QStringLiteral("5.0");
    QTest::newRow("Belgian") << withChecksum("0-0:96.1.4(50213)\r\n" + counter)
                             << int(P1Telegram::Version::Belgian)
                             << QStringLiteral("Belgian 50213");
    QTest::newRow("newer") << withChecksum("1-3:0.2.8(60)\r\n" + counter)
                           << int(P1Telegram::Version::Other) << QStringLiteral("unknown");
    QTest::newRow("not told") << withChecksum("0-0:1.0.0(240601120000S)\r\n" + counter)
                              << int(P1Telegram::Version::Other) << QStringLiteral("unknown");
}

void tst_P1Telegram::versions()
{
    QFETCH(QByteArray, telegram);
    QFETCH(int, version);
    QFETCH(QString, name);
    const P1Telegram read = parseP1Telegram(telegram);
    QCOMPARE(read.problem, QString());
    QCOMPARE(int(read.version), version);
    QCOMPARE(p1VersionName(read), name);
}

void tst_P1Telegram::problems_data()
{
    const QByteArray version5 = linesOfVersion5("240601120000S");
    const QByteArray lines = version5 + "1-0:1.8.1(000001.000*kWh)\r\n";
    const QByteArray good = withChecksum(lines);
    const QByteArray throughMark = good.left(good.indexOf('!') + 1);
    const auto noChecksum = QStringLiteral("it has no checksum");
    const auto foreign = QStringLiteral("it holds no reading that is known here");

    QTest::addColumn<QByteArray>("telegram");
    QTest::addColumn<QString>("problem");
    QTest::newRow("wrong checksum") << throughMark + "0001\r\n"
                                    << QStringLiteral("its checksum is \"0001\" and should be %1")
                                           .arg(QString::fromLatin1(checksumOf(throughMark)));
    QTest::newRow("checksum that is none")
        << throughMark + "hello\r\n"
        << QStringLiteral("its checksum is \"hello\" and should be %1")
               .arg(QString::fromLatin1(checksumOf(throughMark)));
    QTest::newRow("no checksum, version 5") << oldTelegram(lines) << noChecksum;
    QTest::newRow("no checksum, version 4")
        << oldTelegram("1-3:0.2.8(40)\r\n1-0:1.8.1(000001.000*kWh)\r\n") << noChecksum;
    QTest::newRow("no checksum, Belgian")
        << oldTelegram("0-0:96.1.4(50217)\r\n1-0:1.8.1(000001.000*kWh)\r\n") << noChecksum;
    QTest::newRow("no checksum, version lost but not the time")
        << oldTelegram("0-0:1.0.0(240601120000S)\r\n1-0:1.8.1(000001.000*kWh)\r\n") << noChecksum;
    QTest::newRow("wrong checksum of an old one")
        << QByteArray("/A\r\n1-0:1.8.1(1*kWh)\r\n!0001\r\n")
        << QStringLiteral("its checksum is \"0001\" and should be %1")
               .arg(QString::fromLatin1(checksumOf("/A\r\n1-0:1.8.1(1*kWh)\r\n!")));
    QTest::newRow("old, broken code") << oldTelegram(oldLines + "A-0:96.1.1(12)\r\n")
                                      << QStringLiteral("\"A-0:96.1.1(12)\" cannot be read");
    QTest::newRow("old, broken value")
        << oldTelegram(oldLines + "1-0:2.8.1(000x1.000*kWh)\r\n")
        << QStringLiteral("\"1-0:2.8.1(000x1.000*kWh)\" cannot be read");
    QTest::newRow("old, broken parenthesis")
        << oldTelegram(oldLines + "1-0:2.8.1(00001.000*kWh\r\n")
        << QStringLiteral("\"1-0:2.8.1(00001.000*kWh\" cannot be read");
    QTest::newRow("old, text behind the value")
        << oldTelegram(oldLines + "1-0:2.8.1(00001.000*kWh)x\r\n")
        << QStringLiteral("\"1-0:2.8.1(00001.000*kWh)x\" cannot be read");
    QTest::newRow("old, other unit")
        << oldTelegram(oldLines + "1-0:2.8.1(00001.000*kW)\r\n")
        << QStringLiteral("\"1-0:2.8.1(00001.000*kW)\" cannot be read");
    QTest::newRow("old, gas without its value")
        << oldTelegram(oldLines
                       + "0-1:24.1.0(3)\r\n0-1:24.3.0(160315210000)(00)(60)(1)(0-1:24.2.1)(m3)\r\n")
        << QStringLiteral("\"0-1:24.3.0(160315210000)(00)(60)(1)(0-1:24.2.1)(m3)\" cannot be read");
    QTest::newRow("nothing known") << withChecksum(version5 + "0-0:96.1.1(45)\r\n") << foreign;
    QTest::newRow("nothing at all") << QByteArray("/A\r\n\r\n!\r\n") << foreign;
    QTest::newRow("no telegram") << QByteArray("hello") << QStringLiteral("it is no telegram");
    QTest::newRow("no mark") << QByteArray("/hello") << QStringLiteral("it is no telegram");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("it is no telegram");
}

void tst_P1Telegram::problems()
{
    QFETCH(QByteArray, telegram);
    QFETCH(QString, problem);
    const P1Telegram read = parseP1Telegram(telegram);
    QCOMPARE(read.problem, problem);
    QVERIFY(!read.isGood());
    QVERIFY(read.readings.empty());
}

void tst_P1Telegram::damagedTelegramTellsNothing()
{
    QByteArray bytes = telegramAt(utc("2024-06-01T10:00:00"), 1.0, 500);
    bytes.replace("000001.000", "000002.000");
    const P1Telegram read = parseP1Telegram(bytes);
    QCOMPARE(read.checksum, P1Telegram::Checksum::Wrong);
    QCOMPARE(read.identification, QByteArray("TST5\\METER"));
    QVERIFY(read.readings.empty());
    QVERIFY(!read.power && !read.instant);
}

// A checksum of 16 bits finds every change of one byte.
void tst_P1Telegram::everyChangedByteIsFound()
{
    const QByteArray good = telegramAt(utc("2024-06-01T10:00:00"), 1.0, 500).trimmed();
    const int mark = good.indexOf('!');
    QVERIFY(parseP1Telegram(good).isGood());
    for (int at = 0; at < good.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = good;
            changed[at] = char(changed.at(at) ^ (1 << bit));
            const P1Telegram read = parseP1Telegram(changed);
            // The digits of the checksum may be written in lower case.
            const bool isLowerCase = at > mark && changed.mid(mark).toUpper() == good.mid(mark);
            QVERIFY2(!read.isGood() || isLowerCase, changed.constData());
        }
    }
}

void tst_P1Telegram::lineFeedsAloneAreRead()
{
    QByteArray bytes = telegramAt(utc("2024-06-01T10:00:00"), 1.0, 500);
    const QStringList expected = toLines(parseP1Telegram(bytes));
    bytes.replace("\r\n", "\n");
    const P1Telegram read = parseP1Telegram(bytes);
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.checksum, P1Telegram::Checksum::Right);
    QCOMPARE(toLines(read), expected);
}

void tst_P1Telegram::numbersDoNotFollowTheLocale()
{
    // Where the system has such a locale, the C library reads "1.5" as 1 in it.
    const QByteArray before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "nl_NL.UTF-8");
    QLocale::setDefault(QLocale(QLocale::German));
    const P1Telegram read = parseP1Telegram(oldTelegram(oldLines));
    std::setlocale(LC_NUMERIC, before.constData());
    QCOMPARE(read.readings.front().value, 10.5);
    QCOMPARE(*read.power, 1250);
}

void tst_P1Telegram::readingsAreFoundByRegister()
{
    const P1Telegram read = parseP1Telegram(oldTelegram(oldLines));
    const P1Reading *low = read.reading({Quantity::GridImport, Tariff::Low});
    QVERIFY(low);
    QCOMPARE(low->value, 10.5);
    QCOMPARE(read.reading({Quantity::GridImport, Tariff::Normal})->value, 20.25);
    QVERIFY(!read.reading({Quantity::Gas, Tariff::Single}));
}

void tst_P1Telegram::realTelegrams_data()
{
    const auto none = QStringLiteral("none");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("expected");
    const auto add = [](const char *name, const QStringList &expected) {
        QTest::newRow(name) << QString::fromLatin1(name) + QStringLiteral(".txt") << expected;
    };
    add("dsmr22_iskra_gas_ch2",
        {QStringLiteral("2.2"), none, QStringLiteral("890 W"),
         QStringLiteral("import-low 16719.940"), QStringLiteral("import-normal 19403.220"),
         QStringLiteral("export-low 859.681"), QStringLiteral("export-normal 1817.057"),
         QStringLiteral("gas 13368.864 at 2021-11-22T20:00:00Z")});
    add("dsmr22_kamstrup_gas_ch1",
        {QStringLiteral("2.2"), none, QStringLiteral("540 W"),
         QStringLiteral("import-low 7041.882"), QStringLiteral("import-normal 2351.565"),
         QStringLiteral("export-low 3125.397"), QStringLiteral("export-normal 7729.108"),
         QStringLiteral("gas 4083.631 at 2016-03-15T20:00:00Z")});
    add("dsmr30_iskra_gas_messages",
        {QStringLiteral("3.0"), none, QStringLiteral("1190 W"),
         QStringLiteral("import-low 12345.678"), QStringLiteral("import-normal 12345.678"),
         QStringLiteral("export-low 12345.678"), QStringLiteral("export-normal 12345.678"),
         QStringLiteral("gas 1.001 at 2009-02-12T15:00:00Z")});
    add("dsmr40_kaifa_gas_valve",
        {QStringLiteral("4.0"), QStringLiteral("2015-01-17T17:59:16Z"), QStringLiteral("333 W"),
         QStringLiteral("import-low 671.578"), QStringLiteral("import-normal 842.472"),
         QStringLiteral("export-low 0.000"), QStringLiteral("export-normal 0.000"),
         QStringLiteral("gas 473.789 at 2015-01-17T17:00:00Z")});
    add("dsmr42_landisgyr_1phase_gas",
        {QStringLiteral("4.2"), QStringLiteral("2019-09-05T19:40:03Z"), QStringLiteral("374 W"),
         QStringLiteral("import-low 3235.689"), QStringLiteral("import-normal 6777.240"),
         QStringLiteral("export-low 0.313"), QStringLiteral("export-normal 0.000"),
         QStringLiteral("gas 1091.352 at 2019-09-05T19:00:00Z")});
    add("dsmr42_landisgyr_clock_unset_gas_empty",
        {QStringLiteral("4.2"), none, QStringLiteral("0 W"), QStringLiteral("import-low 24.487"),
         QStringLiteral("import-normal 30.536"), QStringLiteral("export-low 0.528"),
         QStringLiteral("export-normal 0.000")});
    add("dsmr50_iskra_3phase_exporting",
        {QStringLiteral("5.0"), QStringLiteral("2022-05-28T13:02:45Z"), QStringLiteral("-2857 W"),
         QStringLiteral("import-low 16366.258"), QStringLiteral("import-normal 13315.593"),
         QStringLiteral("export-low 2434.785"), QStringLiteral("export-normal 6153.962")});
    add("dsmr50_xs210_1phase_gas",
        {QStringLiteral("5.0"), QStringLiteral("2017-11-05T19:13:24Z"), QStringLiteral("335 W"),
         QStringLiteral("import-low 51.775"), QStringLiteral("import-normal 0.000"),
         QStringLiteral("export-low 24.413"), QStringLiteral("export-normal 0.000"),
         QStringLiteral("gas 16.713 at 2017-11-05T19:10:00Z")});
    add("dsmr50_iskra_two_mbus_gas_ch2",
        {QStringLiteral("5.0"), QStringLiteral("2020-04-26T20:33:25Z"), QStringLiteral("111 W"),
         QStringLiteral("import-low 2130.115"), QStringLiteral("import-normal 245.467"),
         QStringLiteral("export-low 0.000"), QStringLiteral("export-normal 0.000"),
         QStringLiteral("gas 246.138 at 2020-04-26T20:30:01Z")});
    add("be_fluvius_gas_water_peak",
        {QStringLiteral("Belgian 50217"), QStringLiteral("2020-05-12T11:54:09Z"),
         QStringLiteral("0 W"), QStringLiteral("import-normal 0.034"),
         QStringLiteral("import-low 15.758"), QStringLiteral("export-normal 0.000"),
         QStringLiteral("export-low 0.011"), QStringLiteral("gas 112.384 at 2020-05-12T11:45:58Z"),
         QStringLiteral("water 872.234 at 2020-05-12T11:45:58Z")});
    add("warmtelink_heat_gj_crc_unpadded",
        {QStringLiteral("5.0"), QStringLiteral("2026-02-15T19:05:23Z"), none,
         QStringLiteral("heat 240.860 at 2026-02-15T19:05:23Z")});
}

void tst_P1Telegram::realTelegrams()
{
    QFETCH(QString, file);
    QFETCH(QStringList, expected);
    const QByteArray bytes = realTelegram(file);
    if (bytes.isEmpty()) {
        QSKIP("the telegrams of real meters are not at hand", );
    }
    P1Splitter splitter;
    const std::vector<P1Splitter::Piece> pieces = splitter.add(bytes);
    QCOMPARE(int(pieces.size()), 1);
    const P1Telegram read = parseP1Telegram(pieces.front().bytes);
    QCOMPARE(read.problem, QString());
    QCOMPARE(toLines(read), expected);
    const bool isOld =
        read.version == P1Telegram::Version::Dsmr22 || read.version == P1Telegram::Version::Dsmr30;
    QCOMPARE(read.checksum, isOld ? P1Telegram::Checksum::None : P1Telegram::Checksum::Right);
}

void tst_P1Telegram::realDamage_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("outcomes");
    QTest::newRow("wrong checksum")
        << QStringLiteral("bad_crc_mismatch.txt")
        << QStringList(QStringLiteral("its checksum is \"1234\" and should be FC67"));
    QTest::newRow("wrong identifier and checksum")
        << QStringLiteral("bad_identifier_and_crc.txt")
        << QStringList(QStringLiteral("its checksum is \"BAD0\" and should be %1"));
    QTest::newRow("cut, then whole")
        << QStringLiteral("bad_truncated_then_complete.txt")
        << QStringList({QStringLiteral("cut"), QStringLiteral("2022-05-28T13:02:45Z")});
}

void tst_P1Telegram::realDamage()
{
    QFETCH(QString, file);
    QFETCH(QStringList, outcomes);
    const QByteArray bytes = realTelegram(file);
    if (bytes.isEmpty()) {
        QSKIP("the telegrams of real meters are not at hand", );
    }
    P1Splitter splitter;
    QStringList found;
    for (const P1Splitter::Piece &piece : splitter.add(bytes)) {
        if (piece.kind == P1Splitter::Piece::Kind::Cut) {
            found.append(QStringLiteral("cut"));
            continue;
        }
        const P1Telegram read = parseP1Telegram(piece.bytes);
        found.append(read.isGood() ? timeText(read.instant) : read.problem);
    }
    const QByteArray throughMark = bytes.left(bytes.indexOf('!') + 1);
    for (QString &outcome : outcomes) {
        if (outcome.contains(QLatin1String("%1"))) {
            outcome = outcome.arg(QString::fromLatin1(checksumOf(throughMark)));
        }
    }
    QCOMPARE(found, outcomes);
}

QTEST_GUILESS_MAIN(tst_P1Telegram)
#include "tst_p1telegram.moc"
