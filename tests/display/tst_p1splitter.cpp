// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1crc.h"
#include "p1samples.h"
#include "p1splitter.h"
#include "p1telegram.h"

#include <QRandomGenerator>
#include <QTest>
#include <QVector>

using Kind = P1Splitter::Piece::Kind;
using Pieces = std::vector<P1Splitter::Piece>;

namespace {

const QByteArray first = "/TST5\\ONE\r\n\r\n1-3:0.2.8(50)\r\n!12AB";
const QByteArray second = "/TST5\\TWO\r\n\r\n1-3:0.2.8(50)\r\n!34CD";
const QByteArray lineEnd = "\r\n";

void append(Pieces &pieces, const Pieces &more)
{
    pieces.insert(pieces.end(), more.begin(), more.end());
}

Pieces split(const QByteArray &bytes)
{
    P1Splitter splitter;
    Pieces pieces = splitter.add(bytes);
    append(pieces, splitter.finish());
    return pieces;
}

QByteArray toText(const Pieces &pieces)
{
    static const QByteArray names = "TCLS"; // telegram, cut, too long, stray
    QByteArray text;
    for (const P1Splitter::Piece &piece : pieces) {
        text += names.at(int(piece.kind));
        text += '<' + piece.bytes + '>';
    }
    return text;
}

} // namespace

class tst_P1Splitter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksums_data();
    void checksums();
    void writtenChecksums_data();
    void writtenChecksums();
    void missingCarriageReturnsAreCounted();
    void pieces_data();
    void pieces();
    void sizeOfThePiecesDoesNotMatter();
    void telegramEndsWithItsLine();
    void overlongIsDroppedAndTheNextIsFound();
    void longestIsKept();
    void strayBytesAreHeldShort();
    void finishBeginsAnew();
    void realStream_data();
    void realStream();
};

void tst_P1Splitter::checksums_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("crc");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("check value of the polynomial") << QByteArray("123456789") << 0xBB3D;
    QTest::newRow("one bit") << QByteArray("\x80") << 0xA001;
    QTest::newRow("high byte") << QByteArray("\xFF") << 0x4040;
}

void tst_P1Splitter::checksums()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, crc);
    QCOMPARE(int(p1Crc(std::string_view(bytes.constData(), std::size_t(bytes.size())))), crc);
}

void tst_P1Splitter::writtenChecksums_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("crc"); // -1: none
    QTest::newRow("four digits") << QByteArray("34B6") << 0x34B6;
    QTest::newRow("lower case") << QByteArray("34b6") << 0x34B6;
    QTest::newRow("zeros left out") << QByteArray("B9F") << 0x0B9F;
    QTest::newRow("zeros written") << QByteArray("0B9F") << 0x0B9F;
    QTest::newRow("one digit") << QByteArray("0") << 0;
    QTest::newRow("empty") << QByteArray() << -1;
    QTest::newRow("five digits") << QByteArray("034B6") << -1;
    QTest::newRow("other letter") << QByteArray("34G6") << -1;
    QTest::newRow("sign") << QByteArray("-4B6") << -1;
    QTest::newRow("prefix") << QByteArray("0x4B") << -1;
    QTest::newRow("blank") << QByteArray(" 4B6") << -1;
}

void tst_P1Splitter::writtenChecksums()
{
    QFETCH(QByteArray, text);
    QFETCH(int, crc);
    const std::optional<quint16> read =
        parseP1Crc(std::string_view(text.constData(), std::size_t(text.size())));
    QCOMPARE(read ? int(*read) : -1, crc);
}

void tst_P1Splitter::missingCarriageReturnsAreCounted()
{
    const std::string_view whole = "/A\r\n\r\nb\r\n!";
    const std::string_view bare = "/A\n\nb\n!";
    const std::string_view mixed = "/A\r\n\nb\r\n!";
    QCOMPARE(p1TelegramCrc(whole), p1Crc(whole));
    QCOMPARE(p1TelegramCrc(bare), p1Crc(whole));
    // One that lost a byte on the line is damaged.
    QCOMPARE(p1TelegramCrc(mixed), p1Crc(mixed));
    QVERIFY(p1Crc(mixed) != p1Crc(whole));
}

void tst_P1Splitter::pieces_data()
{
    const QByteArray oldEnd = "/OLD\r\n1-0:1.8.1(1*kWh)\r\n!";
    const QByteArray cutInLine = "/TST5\\ONE\r\n\r\n1-0:32.32.0(0";

    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("one") << first + lineEnd << "T<" + first + ">";
    QTest::newRow("two") << first + lineEnd + second + lineEnd
                         << "T<" + first + ">T<" + second + ">";
    QTest::newRow("line feeds only")
        << QByteArray("/A\n\nb\n!12AB\n/B\n!\n") << QByteArray("T</A\n\nb\n!12AB>T</B\n!>");
    QTest::newRow("without checksum")
        << oldEnd + lineEnd + oldEnd + lineEnd << "T<" + oldEnd + ">T<" + oldEnd + ">";
    QTest::newRow("end of an earlier one")
        << "5.7.0(1*A)\r\n!F21E\r\n" + first + lineEnd << "T<" + first + ">";
    QTest::newRow("last line without its end") << first << "T<" + first + ">";
    QTest::newRow("no mark yet") << cutInLine << "C<" + cutInLine + ">";
    QTest::newRow("cut in a line")
        << cutInLine + second + lineEnd << "C<" + cutInLine + ">T<" + second + ">";
    QTest::newRow("cut at the end of a line") << cutInLine + lineEnd + second + lineEnd
                                              << "C<" + cutInLine + lineEnd + ">T<" + second + ">";
    QTest::newRow("cut in the checksum")
        << "/A\r\n!12" + second + lineEnd << "C</A\r\n!12>T<" + second + ">";
    QTest::newRow("beginning lost between two") << first + lineEnd + "8.1(2*kWh)\r\n!7777\r\n"
            + second + lineEnd << "T<" + first + ">S<8.1(2*kWh)!7777>T<" + second + ">";
    QTest::newRow("beginning lost at the end") << first + lineEnd + "8.1(2*kWh)"
                                               << "T<" + first + ">S<8.1(2*kWh)>";
    QTest::newRow("blanks between") << first + lineEnd + QByteArray("\0\r\n \n", 5) + second
            + lineEnd << "T<" + first + ">T<" + second + ">";
    QTest::newRow("no telegram at all") << QByteArray("time;kWh\n1;2\n") << QByteArray();
}

void tst_P1Splitter::pieces()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, expected);
    QCOMPARE(toText(split(bytes)), expected);
}

// Whatever the line cuts the bytes into, the result is that of all bytes at once.
void tst_P1Splitter::sizeOfThePiecesDoesNotMatter()
{
    QRandomGenerator random(20260801);
    const QVector<QByteArray> parts = {first + lineEnd, second + lineEnd, "/A\n!\n", "/C\r\n1-0",
                                       "noise!\r\nxyz", "\r\n",           "!",       "/"};
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes;
        for (int count = random.bounded(8); count > 0; --count) {
            bytes += parts.at(random.bounded(parts.size()));
        }
        P1Splitter splitter;
        Pieces found;
        for (int at = 0; at < bytes.size();) {
            const int size = 1 + random.bounded(12);
            append(found, splitter.add(bytes.mid(at, size)));
            at += size;
        }
        append(found, splitter.finish());
        QCOMPARE(toText(found), toText(split(bytes)));
    }
}

void tst_P1Splitter::telegramEndsWithItsLine()
{
    P1Splitter splitter;
    QVERIFY(splitter.add(first).empty());
    QCOMPARE(toText(splitter.add("\r")), "T<" + first + ">");
    QVERIFY(splitter.add("\n").empty());
}

void tst_P1Splitter::overlongIsDroppedAndTheNextIsFound()
{
    const QByteArray endless = '/' + QByteArray(5 * P1Splitter::longestTelegram, 'x');
    const Pieces found = split(endless + "!1234\r\n" + first + lineEnd);
    QCOMPARE(int(found.size()), 2);
    QCOMPARE(found[0].kind, Kind::TooLong);
    QCOMPARE(found[0].bytes.size(), P1Splitter::longestTelegram);
    QCOMPARE(found[1].kind, Kind::Telegram);
    QCOMPARE(found[1].bytes, first);
}

void tst_P1Splitter::longestIsKept()
{
    const QByteArray filling(P1Splitter::longestTelegram - 2, 'x');
    QCOMPARE(toText(split('/' + filling + "!\n")), "T</" + filling + "!>");
    QCOMPARE(split('/' + filling + "x!\n").front().kind, Kind::TooLong);
}

void tst_P1Splitter::strayBytesAreHeldShort()
{
    const Pieces found = split(first + lineEnd + QByteArray(100000, 'x') + second + lineEnd);
    QCOMPARE(int(found.size()), 3);
    QCOMPARE(found[1].kind, Kind::Stray);
    QCOMPARE(found[1].bytes, QByteArray(64, 'x'));
}

void tst_P1Splitter::finishBeginsAnew()
{
    P1Splitter splitter;
    splitter.add(first + lineEnd);
    QVERIFY(splitter.finish().empty());
    // In the midst of a telegram again, as after a connection was made anew.
    QVERIFY(splitter.add("1-0:1.8.1(1*kWh)\r\n!1234\r\n").empty());
    QCOMPARE(toText(splitter.add(second + lineEnd)), "T<" + second + ">");
}

void tst_P1Splitter::realStream_data()
{
    QTest::addColumn<int>("longestPiece");
    QTest::newRow("at once") << 1000000;
    QTest::newRow("byte by byte") << 1;
    QTest::newRow("up to 7 bytes") << 7;
    QTest::newRow("up to 64 bytes") << 64;
    QTest::newRow("up to 2000 bytes") << 2000;
}

void tst_P1Splitter::realStream()
{
    const QByteArray stream =
        realTelegram(QStringLiteral("stream_dsmr50_iskra_1s_566_telegrams.txt"));
    if (stream.isEmpty()) {
        QSKIP("the telegrams of real meters are not at hand", );
    }
    QFETCH(int, longestPiece);
    QRandomGenerator random(566);
    P1Splitter splitter;
    Pieces found;
    for (int at = 0; at < stream.size();) {
        const int size = 1 + random.bounded(longestPiece);
        append(found, splitter.add(stream.mid(at, size)));
        at += size;
    }
    append(found, splitter.finish());

    QCOMPARE(int(found.size()), 566);
    int lowest = 1000000;
    int highest = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        QCOMPARE(found[i].kind, Kind::Telegram);
        const P1Telegram telegram = parseP1Telegram(found[i].bytes);
        QVERIFY2(telegram.isGood(), qPrintable(telegram.problem));
        QCOMPARE(telegram.checksum, P1Telegram::Checksum::Right);
        QVERIFY(telegram.instant && telegram.power);
        lowest = qMin(lowest, *telegram.power);
        highest = qMax(highest, *telegram.power);
    }
    QCOMPARE(*parseP1Telegram(found.front().bytes).instant, utc("2019-03-24T14:05:19"));
    QCOMPARE(*parseP1Telegram(found.back().bytes).instant, utc("2019-03-24T14:14:45"));
    QCOMPARE(lowest, 374);
    QCOMPARE(highest, 1230);
}

QTEST_GUILESS_MAIN(tst_P1Splitter)
#include "tst_p1splitter.moc"
