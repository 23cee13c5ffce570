// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "csvreader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Readings;

namespace {

std::string_view view(const QByteArray &text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

QByteArray bytes(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

} // namespace

class tst_CsvReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void overlongLineIsOneLine();
    void lineWithoutEndDoesNotHang();
    void obstaclesAreTold();
    void split_data();
    void split();
    void numbers_data();
    void numbers();

private:
    QString write(const QByteArray &content);

    QTemporaryDir folder;
};

QString tst_CsvReader::write(const QByteArray &content)
{
    QFile file(folder.filePath(QStringLiteral("lines.csv")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("the test cannot write its file");
    }
    return file.fileName();
}

void tst_CsvReader::lines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArrayList>("expected");
    QTest::newRow("empty") << QByteArray() << QByteArrayList {};
    QTest::newRow("LF") << QByteArray("a\nb\n") << QByteArrayList {"a", "b"};
    QTest::newRow("CRLF") << QByteArray("a\r\nb\r\n") << QByteArrayList {"a", "b"};
    QTest::newRow("no last end") << QByteArray("a\nb") << QByteArrayList {"a", "b"};
    QTest::newRow("CR last") << QByteArray("a\nb\r") << QByteArrayList {"a", "b"};
    QTest::newRow("empty lines") << QByteArray("\n\r\n\nb") << QByteArrayList {"", "", "", "b"};
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a\nb\n")
                                     << QByteArrayList {"a", "b"};
    QTest::newRow("mark alone") << QByteArray("\xEF\xBB\xBF") << QByteArrayList {""};
    QTest::newRow("mark later") << QByteArray("a\n\xEF\xBB\xBF")
                                << QByteArrayList {"a", "\xEF\xBB\xBF"};
    QTest::newRow("zero byte") << QByteArray("a\0b\nc", 5)
                               << QByteArrayList {QByteArray("a\0b", 3), "c"};
}

void tst_CsvReader::lines()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArrayList, expected);

    CsvReader reader(write(content));
    QCOMPARE(reader.open(), QString());
    QByteArrayList found;
    while (reader.nextLine()) {
        found.append(bytes(reader.line()));
        QCOMPARE(reader.lineNumber(), found.size());
        QVERIFY(!reader.isTooLong());
    }
    QCOMPARE(found, expected);
    QCOMPARE(reader.readError(), QString());
}

void tst_CsvReader::overlongLineIsOneLine()
{
    for (const int length : {16383, 16384, 16385, 32768, 100000}) {
        CsvReader reader(write("a\n" + QByteArray(length, 'x') + "\nb"));
        QCOMPARE(reader.open(), QString());
        QVERIFY(reader.nextLine());
        QVERIFY(reader.nextLine());
        QCOMPARE(reader.isTooLong(), length >= 16384);
        QVERIFY(reader.nextLine());
        QCOMPARE(bytes(reader.line()), QByteArray("b"));
        QCOMPARE(reader.lineNumber(), 3);
        QVERIFY(!reader.isTooLong());
        QVERIFY(!reader.nextLine());
    }
}

void tst_CsvReader::lineWithoutEndDoesNotHang()
{
    const QString path = QStringLiteral("/dev/zero");
    if (!QFile::exists(path)) {
        return; // this system has no such file
    }
    CsvReader reader(path);
    QCOMPARE(reader.open(), QString());
    QVERIFY(reader.nextLine());
    QVERIFY(reader.isTooLong());
}

void tst_CsvReader::obstaclesAreTold()
{
    QCOMPARE(CsvReader(folder.filePath(QStringLiteral("none.csv"))).open(),
             QStringLiteral("no such file"));
    QCOMPARE(CsvReader(folder.path()).open(), QStringLiteral("is a directory"));
}

void tst_CsvReader::split_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("good");
    QTest::addColumn<QByteArrayList>("expected");
    QTest::newRow("plain") << QByteArray("a,b,c") << true << QByteArrayList {"a", "b", "c"};
    QTest::newRow("one") << QByteArray("a") << true << QByteArrayList {"a"};
    QTest::newRow("nothing") << QByteArray("") << true << QByteArrayList {""};
    QTest::newRow("empty fields") << QByteArray(",,") << true << QByteArrayList {"", "", ""};
    QTest::newRow("quoted") << QByteArray("\"a\",\"b,c\",\"\"") << true
                            << QByteArrayList {"a", "b,c", ""};
    QTest::newRow("quoted, then an empty one")
        << QByteArray("\"a\",") << true << QByteArrayList {"a", ""};
    QTest::newRow("quote within") << QByteArray("a\"b,c") << true << QByteArrayList {"a\"b", "c"};
    QTest::newRow("not closed") << QByteArray("a,\"b") << false << QByteArrayList {"a"};
    QTest::newRow("lone quote") << QByteArray("\"") << false << QByteArrayList {};
    QTest::newRow("more after the quote")
        << QByteArray("\"a\"b,c") << false << QByteArrayList {"a"};
}

void tst_CsvReader::split()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, good);
    QFETCH(QByteArrayList, expected);

    std::vector<std::string_view> fields;
    QCOMPARE(CsvReader::split(view(line), ',', fields), good);
    QByteArrayList found;
    for (const std::string_view field : fields) {
        found.append(bytes(field));
    }
    QCOMPARE(found, expected);
}

void tst_CsvReader::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<char>("sign");
    QTest::addColumn<double>("number");
    const double bad = std::numeric_limits<double>::quiet_NaN();

    const auto row = [](const QByteArray &text, char sign, double number) {
        QTest::addRow("%s by %c", text.constData(), sign) << text << sign << number;
    };
    row("0", '.', 0.0);
    row("12.5", '.', 12.5);
    row("12,5", ',', 12.5);
    row("-12.5", '.', -12.5);
    row("0.664000000000669", '.', 0.664000000000669);
    row("1.5e3", '.', 1500.0);
    row("12.5", ',', bad);
    row("12,5", '.', bad);
    row("1.234,5", ',', bad);
    row("1,2,3", ',', bad);
    row("", '.', bad);
    row("-", '.', bad);
    row("abc", '.', bad);
    row("12 ", '.', bad);
    row("12kWh", '.', bad);
    row("nan", '.', bad);
    row("inf", '.', bad);
    row("1e999", '.', bad);
    row("-1e999", '.', bad);
    row("0x10", '.', bad);
    row("1e", '.', bad);
    row(QByteArray(65, '1'), '.', bad);
    QTest::newRow("zero byte") << QByteArray("1\0"
                                             "2",
                                             3)
                               << '.' << bad;
}

void tst_CsvReader::numbers()
{
    QFETCH(QByteArray, text);
    QFETCH(char, sign);
    QFETCH(double, number);
    const std::optional<double> found = parseNumber(view(text), sign);
    QCOMPARE(found.has_value(), !qIsNaN(number));
    if (found) {
        QCOMPARE(*found, number);
    }
}

QTEST_APPLESS_MAIN(tst_CsvReader)
#include "tst_csvreader.moc"
