// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/messagelog.h"
#include "keyboardfile_p.h"
#include "keyboardtest.h"

#include <QDomDocument>
#include <QRandomGenerator>

#include <cmath>

using namespace KeyboardTest;

class tst_KeyboardFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesOnce_data();
    void decodesOnce();
    void popups_data();
    void popups();
    void positions_data();
    void positions();
    void stretches_data();
    void stretches();
    void widths_data();
    void widths();
    void widthsOfPlainNumbers();
    void specialWords_data();
    void specialWords();
    void readsWhatIsNestedUpToTheLimit();
    void refusesDeeperNesting_data();
    void refusesDeeperNesting();
    void readsWhatEntitiesAddUpToTheLimit();
    void refusesWhatEntitiesMakeTooLarge_data();
    void refusesWhatEntitiesMakeTooLarge();
    void flawedFilesAreNoWayAroundTheLimits_data();
    void flawedFilesAreNoWayAroundTheLimits();
};

namespace {

/** A keyboard file with the entity "e", whose replacement is @p text. */
QByteArray withEntity(const QByteArray &text, const QByteArray &content)
{
    return "<!DOCTYPE keyboard [<!ENTITY e \"" + text + "\">]><keyboard>" + content + "</keyboard>";
}

/** What is said when the file of this content is refused; empty if it is read. */
QStringList refusal(const QByteArray &content)
{
    const Files files;
    const QString name = files.write(content);
    QDomDocument document;
    MessageLog log;
    const bool isRead = KeyboardFile::read(name, &document);
    return isRead ? QStringList() : log.take();
}

} // namespace

void tst_KeyboardFile::decodesOnce_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("decoded");
    const auto row = [](const char *value, const char *decoded) {
        QTest::newRow(value) << QString::fromUtf8(value) << QString::fromUtf8(decoded);
    };
    row("a", "a");
    row("", "");
    row("&", "&");
    row("&amp;", "&");
    row("&apos;", "'");
    row("&quot;", "\"");
    row("&lt;", "<");
    row("&gt;", ">");
    row("&lt;&lt;&gt;", "<<>");
    row("a&amp;b&amp;c", "a&b&c");
    row("&amp;lt;", "<");
    row("&amp;gt;", ">");
    row("&amp;apos;", "'");
    row("&amp;quot;", "\"");
    row("&amp;amp;", "&amp;");
    row("&amp;amp;lt;", "&amp;lt;");
    row("&LT;", "&LT;");
    row("&Amp;", "&Amp;");
    row("&lt", "&lt");
    row("&nbsp;", "&nbsp;");
    row("&#60;", "&#60;");
    row("<-", "<-");
    row("é€", "é€");
}

void tst_KeyboardFile::decodesOnce()
{
    QFETCH(QString, value);
    QTEST(KeyboardFile::decodeValue(value), "decoded");
}

void tst_KeyboardFile::popups_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<bool>("preview");
    QTest::addColumn<bool>("alternatives");
    const auto row = [](const char *attribute, bool preview, bool alternatives) {
        QTest::newRow(attribute) << QString::fromUtf8(attribute) << preview << alternatives;
    };
    row("", true, true);
    row("no", true, true);
    row("0x0", true, true);
    row("0.0", true, true);
    row("2.0", true, true);
    row("-1", true, true);
    row("-2", true, true);
    row("0", false, false);
    row("00", false, false);
    row("-0", false, false);
    row("1", true, true);
    row("2", false, true);
    row("+2", false, true);
    row("3", true, true);
    row("2147483647", true, true);
    row("4294967296", true, true); // 0 in 32 bits
    row("4294967298", true, true); // 2 in 32 bits
}

void tst_KeyboardFile::popups()
{
    QFETCH(QString, attribute);
    QTEST(KeyboardFile::popups(attribute).preview, "preview");
    QTEST(KeyboardFile::popups(attribute).alternatives, "alternatives");
}

void tst_KeyboardFile::positions_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("position");
    const auto row = [](const char *attribute, int position) {
        QTest::newRow(attribute) << QString::fromUtf8(attribute) << position;
    };
    row("", -1);
    row("0", 0);
    row("-0", 0);
    row("7", 7);
    row("007", 7);
    row("-1", -1);
    row("-2147483648", -1);
    row("2147483647", 2147483647);
    row("2147483648", -1);
    row("one", -1);
    row("1.0", -1);
    row("0x1", -1);
    row("1 2", -1);
}

void tst_KeyboardFile::positions()
{
    QFETCH(QString, attribute);
    QTEST(KeyboardFile::position(attribute), "position");
}

void tst_KeyboardFile::stretches_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("stretch");
    const auto row = [](const char *attribute, int stretch) {
        QTest::newRow(attribute) << QString::fromUtf8(attribute) << stretch;
    };
    row("", 0);
    row("0", 0);
    row("3", 3);
    row("-3", -3);
    row("three", 0);
    row("1.5", 0);
    row("9999999999", 0);
}

void tst_KeyboardFile::stretches()
{
    QFETCH(QString, attribute);
    QTEST(KeyboardFile::stretch(attribute), "stretch");
}

void tst_KeyboardFile::widths_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("width");
    QTest::addColumn<int>("pixels"); // of a key of 50 pixels
    const auto row = [](const char *size, const char *width, int pixels) {
        QTest::addRow("size \"%s\" width \"%s\"", size, width)
            << QString::fromUtf8(size) << QString::fromUtf8(width) << pixels;
    };
    row("", "", 50);
    row("1.5", "", 75);
    row("1.55", "", 77);
    row("1.5", "5", 80);
    row("0", "", 50);
    row("-2", "", 50);
    row("-0.0", "", 50);
    row("0.01", "", 0);
    row("0.5", "", 25);
    row("wide", "", 50);
    row("1,5", "", 50);
    row("2e1", "", 1000);
    row("nan", "", 50);
    row("inf", "", 50);
    row("-inf", "", 50);
    row("1e400", "", 50);
    row("1e300", "", 50);
    row("1e300", "7", 57);
    row("42949673", "", 50); // no int holds the product
    row("", "-5", 45);
    row("", "0.9", 50);
    row("", "-0.5", 49);
    row("", "-49.5", 0);
    row("", "-50", 0);
    row("", "-1000", 0);
    row("", "broad", 50);
    row("", "nan", 50);
    row("", "inf", 50);
    row("2", "-inf", 100);
    row("", "1e10", 50);
    row("", "-1e10", 50);
    row("1.1", "0.1", 55);
    row("", "2000000000", QWIDGETSIZE_MAX - 1);
    row("400000", "", QWIDGETSIZE_MAX - 1);
}

void tst_KeyboardFile::widths()
{
    QFETCH(QString, size);
    QFETCH(QString, width);
    QTEST(KeyboardFile::keyWidth(keySide, size, width), "pixels");
}

void tst_KeyboardFile::widthsOfPlainNumbers()
{
    QRandomGenerator random(20260);
    for (int i = 0; i < 5000; ++i) {
        const int minimum = random.bounded(200);
        const double size = random.bounded(8.0) - 2.0;
        const double width = random.bounded(400.0) - 200.0;
        const double expected = std::trunc(minimum * (size > 0.0 ? size : 1.0) + width);
        QCOMPARE(KeyboardFile::keyWidth(minimum, QString::number(size, 'g', 17),
                                        QString::number(width, 'g', 17)),
                 qMax(0, int(expected)));
    }
}

void tst_KeyboardFile::specialWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ZEMVirtualKey::Type>("type");
    const auto row = [](const char *name, ZEMVirtualKey::Type type) {
        QTest::newRow(name) << QString::fromUtf8(name) << type;
    };
    row("CAPS", ZEMVirtualKey::Caps);
    row("DELETE", ZEMVirtualKey::Delete);
    row("ENTER", ZEMVirtualKey::Enter);
    row("SPACE", ZEMVirtualKey::Space);
    for (const char *name : {"", "caps", "Enter", "SPACES", " SPACE", "DEL", "LAYOUT", "a"}) {
        row(name, ZEMVirtualKey::Character);
    }
}

void tst_KeyboardFile::specialWords()
{
    QFETCH(QString, name);
    QTEST(KeyboardFile::typeOf(name), "type");
}

void tst_KeyboardFile::readsWhatIsNestedUpToTheLimit()
{
    const int inside = KeyboardFile::depthLimit - 1;
    const Files files;
    QDomDocument document;
    QVERIFY(KeyboardFile::read(files.write("<keyboard>" + QByteArray("<a>").repeated(inside)
                                           + QByteArray("</a>").repeated(inside) + "</keyboard>"),
                               &document));
    QCOMPARE(document.elementsByTagName(QStringLiteral("a")).size(), inside);
    // Many elements side by side are no depth.
    QVERIFY(KeyboardFile::read(
        files.write("<keyboard>" + QByteArray("<a/><b></b>").repeated(5000) + "</keyboard>"),
        &document));
}

void tst_KeyboardFile::refusesDeeperNesting_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("closed");
    QTest::newRow("one too deep") << KeyboardFile::depthLimit << true;
    QTest::newRow("a million") << 1000000 << true;
    QTest::newRow("a million, cut off") << 1000000 << false;
}

void tst_KeyboardFile::refusesDeeperNesting()
{
    QFETCH(int, depth);
    QFETCH(bool, closed);
    const Files files;
    QByteArray content = "<keyboard>" + QByteArray("<a>").repeated(depth);
    if (closed) {
        content += QByteArray("</a>").repeated(depth) + "</keyboard>";
    }
    const QString name = files.write(content);

    QDomDocument document;
    MessageLog log;
    QVERIFY(!KeyboardFile::read(name, &document));
    const QStringList messages = log.take();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().startsWith(
                 QStringLiteral("Error: Parse error at line  1 ,  column  3010 :  ")),
             qPrintable(messages.first()));
    QVERIFY(document.isNull());
}

void tst_KeyboardFile::readsWhatEntitiesAddUpToTheLimit()
{
    const QByteArray half(KeyboardFile::growthLimit / 2, 'x');
    const Files files;
    QDomDocument document;
    QVERIFY(KeyboardFile::read(files.write(withEntity(half, "<a>&e;</a>")), &document));
    QCOMPARE(document.documentElement().text().size(), half.size());
    const QByteArray others = QByteArray("&amp;&lt;&#233;&#x26;").repeated(1000);
    QVERIFY(
        KeyboardFile::read(files.write(withEntity("xx", "<a>&e;" + others + "</a>")), &document));
    QCOMPARE(document.documentElement().text().size(), 2 + 4 * 1000);
    // A file may be large by itself.
    const QByteArray text(3 * KeyboardFile::growthLimit, 'x');
    const QByteArray large = withEntity("y", "<a b='" + text + "'>&e;" + text + "</a>");
    QVERIFY(KeyboardFile::read(files.write(large), &document));
    QCOMPARE(document.documentElement().text().size(), text.size() + 1);
}

void tst_KeyboardFile::refusesWhatEntitiesMakeTooLarge_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray longText(60000, 'x');
    QTest::newRow("text") << withEntity(longText, QByteArray("&e;").repeated(20000));
    QTest::newRow("elements with text")
        << withEntity(longText, QByteArray("<a>&e;</a>").repeated(20000));
    QTest::newRow("attributes") << withEntity(longText, QByteArray("<a b='&e;'/>").repeated(20000));
    QTest::newRow("elements") << withEntity(QByteArray("<a/>").repeated(15000),
                                            QByteArray("&e;").repeated(20000));
    QTest::newRow("comments") << withEntity(QByteArray("<!---->").repeated(9000),
                                            QByteArray("&e;").repeated(20000));
    QTest::newRow("instructions") << withEntity(QByteArray("<?a?>").repeated(9000),
                                                QByteArray("&e;").repeated(20000));
    QTest::newRow("in turn") << "<!DOCTYPE keyboard [<!ENTITY a \"" + QByteArray(1000, 'x')
            + "\"><!ENTITY b \"" + QByteArray("&a;").repeated(60) + "\">]><keyboard>"
            + QByteArray("&b;").repeated(20000) + "</keyboard>";
    QTest::newRow("of the second meaning") << "<!DOCTYPE keyboard [<!ENTITY e \"" + longText
            + "\"><!ENTITY e \"x\">]><keyboard>" + QByteArray("&e;").repeated(20000)
            + "</keyboard>";
    QTest::newRow("behind an escape") << "<!DOCTYPE keyboard [<!ENTITY a \"" + longText
            + "\"><!ENTITY e \"" + QByteArray("&#38;a;").repeated(9) + "\">]><keyboard>"
            + QByteArray("&e;").repeated(20000) + "</keyboard>";
    QTest::newRow("behind an escaped name") << "<!DOCTYPE keyboard [<!ENTITY a \"" + longText
            + "\"><!ENTITY e \"&#38;&#97;;\">]><keyboard>&e;&e;</keyboard>";
    QTest::newRow("behind an escaped quotation mark")
        << withEntity("&#34;" + longText, QByteArray("&e;&e;"));
    QTest::newRow("declared by another one") << "<!DOCTYPE keyboard [<!ENTITY % p \"<!ENTITY e '"
            + longText + "'>\"> %p;]><keyboard>&e;&e;</keyboard>";
    QTest::newRow("too long by itself")
        << withEntity(QByteArray(KeyboardFile::growthLimit + 1, 'x'), "<a>&e;&e;</a>");
}

void tst_KeyboardFile::refusesWhatEntitiesMakeTooLarge()
{
    QFETCH(QByteArray, content);
    const QStringList messages = refusal(content);
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().startsWith(QStringLiteral("Error: Parse error at line  1 ")),
             qPrintable(messages.first()));
}

/** What one parser calls an error another may forgive. */
void tst_KeyboardFile::flawedFilesAreNoWayAroundTheLimits_data()
{
    QTest::addColumn<QByteArray>("flaw");
    QTest::newRow("attribute given twice") << QByteArray("<a b='1' b='2'/>");
    QTest::newRow("unknown entity") << QByteArray("<a>&unknown;</a>");
    QTest::newRow("control character") << QByteArray("<a>\x01</a>");
    QTest::newRow("prefix without a name") << QByteArray("<:a/>");
}

void tst_KeyboardFile::flawedFilesAreNoWayAroundTheLimits()
{
    QFETCH(QByteArray, flaw);
    const int depth = 20000;
    QCOMPARE(refusal("<keyboard>" + flaw + QByteArray("<a>").repeated(depth)
                     + QByteArray("</a>").repeated(depth) + "</keyboard>")
                 .size(),
             1);
    QCOMPARE(refusal(withEntity(QByteArray(60000, 'x'), flaw + QByteArray("&e;").repeated(20000)))
                 .size(),
             1);
}

QTEST_MAIN(tst_KeyboardFile)
#include "tst_keyboardfile.moc"
