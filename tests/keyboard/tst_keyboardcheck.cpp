// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardcheck.h"
#include "keyboardoutline.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr QSize screen(640, 480);

/** All characters that a keyboard with letters has to have, on one key's alternatives each. */
QByteArray rowsOfAscii()
{
    QByteArray rows;
    QString pending;
    const auto flush = [&] {
        if (!pending.isEmpty()) {
            const QString rest = pending.mid(1).toHtmlEscaped();
            const QString alternate =
                rest.isEmpty() ? QString() : QStringLiteral(" alternate=\"%1\"").arg(rest);
            rows += QStringLiteral("<key value=\"%1\"%2/>")
                        .arg(pending.left(1).toHtmlEscaped(), alternate)
                        .toUtf8();
            pending.clear();
        }
    };
    for (char16_t code = 0x21; code <= 0x7E; ++code) {
        const QChar character(code);
        if (character.isUpper()) {
            continue;
        }
        pending += character;
        if (pending.size() == 9) {
            flush();
        }
    }
    flush();
    return "<row>" + rows + "</row><row><key value=\"CAPS\"/><key value=\"SPACE\"/></row>";
}

/** A keyboard that nothing is to be said of, but for @p rows, which begin in line 2. */
QByteArray withRows(const QByteArray &rows)
{
    return "<keyboard><layout id=\"0\">\n" + rows + "</layout></keyboard>\n";
}

QByteArray inRow(const QByteArray &keys)
{
    return withRows("<row>" + keys + "</row>");
}

} // namespace

class tst_KeyboardCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void finds_data();
    void finds();
    void hasNothingToSay_data();
    void hasNothingToSay();
    void hasNothingToSayOfTheExamples_data();
    void hasNothingToSayOfTheExamples();
    void exampleOfTheManualIsComplete();
    void findingsComeByLine();
    void missingCharactersAreListed_data();
    void missingCharactersAreListed();
    void smallKeysAreFound();
    void fingerNeedsBothSides();
    void keyboardHasToFitIntoThePage();
    void cannotRead_data();
    void cannotRead();
    void cannotReadWhatIsNoFile();
    void pageOrderIsThatOfTheKeyboard_data();
    void pageOrderIsThatOfTheKeyboard();

private:
    QString write(const QByteArray &content) const
    {
        QFile file(dir.filePath(QStringLiteral("keyboard_xx.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write a keyboard file");
        }
        return file.fileName();
    }
    QStringList check(const QByteArray &content, const QSize &size = screen) const
    {
        const KeyboardReport report = checkKeyboard(write(content), size);
        QStringList lines {report.problem};
        lines.removeAll(QString());
        for (const Finding &finding : report.findings) {
            lines.append(QStringLiteral("%1: %2").arg(finding.line).arg(finding.text));
        }
        return lines;
    }

    QTemporaryDir dir;
};

void tst_KeyboardCheck::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_KeyboardCheck::finds_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char *name, const QByteArray &content, const char *finding) {
        QTest::newRow(name) << content << QString::fromUtf8(finding);
    };
    const QByteArray one = "<layout id=\"0\"><row><key value=\"1\"/></row></layout>";
    const QByteArray toSecond =
        "<layout id=\"0\"><row><key value=\"more\" layout=\"1\"/></row></layout>";
    const QByteArray toFirst = "<row><key value=\"back\" layout=\"0\"/></row>";

    row("element of the root",
        "<keyboard>\n" + one + "\n<Layout id=\"1\"><row/></Layout></keyboard>",
        "3: the element <Layout> is ignored in <keyboard>");
    row("element of a page", withRows("<key value=\"1\"/>"),
        "2: the element <key> is ignored in <layout>");
    row("element of a row", inRow("<button/>"), "2: the element <button> is ignored in <row>");
    row("element of a key", inRow("<key value=\"1\"><key value=\"2\"/></key>"),
        "2: the element <key> is ignored in <key>");
    row("element of a stretch", inRow("<stretch><b/></stretch>"),
        "2: the element <b> is ignored in <stretch>");
    row("element of a space", inRow("<key value=\"1\"/><space key=\"1\"><b/></space>"),
        "2: the element <b> is ignored in <space>");
    row("text", inRow("<key value=\"1\"/>\n\n  qwerty\n"), "4: text is ignored: qwerty");
    row("attribute of the root",
        "<?xml version=\"1.0\"?>\n\n<keyboard Popup=\"0\">" + one + "</keyboard>",
        "3: the attribute Popup=\"0\" of <keyboard> is ignored");
    row("attribute of a page", "<keyboard>\n<layout id=\"0\" name=\"x\"/></keyboard>",
        "2: the attribute name=\"x\" of <layout> is ignored");
    row("attribute of a row", withRows("<row height=\"3\"/>"),
        "2: the attribute height=\"3\" of <row> is ignored");
    row("attribute of a key", inRow("\n<key value=\"1\"\n alternates=\"2\"/>"),
        "3: the attribute alternates=\"2\" of <key> is ignored");
    row("attribute of a stretch", inRow("<stretch size=\"2\"/>"),
        "2: the attribute size=\"2\" of <stretch> is ignored");
    row("attribute of a space", inRow("<key value=\"1\"/><space key=\"1\" width=\"5\"/>"),
        "2: the attribute width=\"5\" of <space> is ignored");

    row("page without id", "<keyboard>" + one + "\n<layout><row/></layout></keyboard>",
        "2: this page is ignored, as it has no attribute id with a number of 0 or more");
    row("page with a bad id", "<keyboard>" + one + "\n<layout id=\"-1\"/></keyboard>",
        "2: this page is ignored, as it has no attribute id with a number of 0 or more");
    row("key without value", inRow("<key size=\"2\"/>"),
        "2: this key is ignored, as it has no attribute value");
    row("popup", "<keyboard popup=\"3\">" + one + "</keyboard>",
        "1: popup=\"3\" counts as 1; there is 0, 1 and 2");
    row("size", inRow("<key value=\"1\" size=\"0\"/>"),
        "2: size=\"0\" is ignored, as it is not a number above 0");
    row("width", inRow("<key value=\"1\" width=\"3px\"/>"),
        "2: width=\"3px\" is ignored, as it is not a number");
    row("layout", inRow("<key value=\"1\" layout=\"-1\"/>"),
        "2: layout=\"-1\" is ignored, as it is not a number of 0 or more");
    row("stretch", inRow("<stretch value=\"1.5\"/>"),
        "2: value=\"1.5\" is ignored, as it is not an integer");

    row("space before its key", inRow("<space key=\"1\"/>\n<key value=\"1\"/>"),
        "2: this space is ignored, as the key \"1\" comes later in the file");
    row("space of a key on a later page",
        "<keyboard><layout id=\"0\"><row>\n<space key=\"2\"/><key value=\"m\" "
        "layout=\"1\"/></row></layout>"
        "<layout id=\"1\">"
            + toFirst + "<row><key value=\"2\"/></row></layout></keyboard>",
        "2: this space is ignored, as the key \"2\" comes later in the file");
    row("space without its key", inRow("<key value=\"1\"/><space key=\"2\"/>"),
        "2: this space is ignored, as there is no key \"2\"");

    row("no pages", "\n<keyboard/>", "2: the keyboard has no pages");
    row("id that is no place", "<keyboard>\n<layout id=\"7\"/></keyboard>",
        "2: the page with id 7 is the one that layout=\"0\" opens");
    row("page that cannot be reached",
        "<keyboard>" + one + "\n<layout id=\"1\">" + toFirst + "</layout></keyboard>",
        "2: this page cannot be reached, as no key leads to it");
    row("page without a way back", "<keyboard>" + toSecond + "\n<layout id=\"1\"/></keyboard>",
        "2: no key leads from this page back to the first one");
    row("key to no page", inRow("<key value=\"more\" layout=\"1\"/>"),
        "2: the key \"more\" does nothing, as there is no page 1");

    row("more than one character", inRow("<key value=\"12\"/>"),
        "2: the key \"12\" types only its first character, \"1\"");
    row("special key in small letters",
        withRows(rowsOfAscii() + "\n<row><key value=\"enter\"/></row>"),
        "3: the key \"enter\" types only its first character, \"e\"; the special key is \"ENTER\"");
    row("no character", inRow("<key value=\"\"/>"), "2: this key has no character to type");
    row("beyond the first plane", inRow("<key value=\"\xF0\x9F\x98\x80\"/>"),
        "2: \"\xF0\x9F\x98\x80\" cannot be typed, as it is beyond U+FFFF");
    row("alternative beyond the first plane",
        inRow("<key value=\"1\" alternate=\"\xF0\x9F\x98\x80\"/>"),
        "2: among the alternatives \"\xF0\x9F\x98\x80\" is one beyond U+FFFF, which cannot be "
        "typed");
    row("alternatives of a special key", inRow("<key value=\"SPACE\" alternate=\"_\"/>"),
        "2: the alternatives \"_\" cannot be reached, as \"SPACE\" is not the key of a character");
    row("alternatives without popups",
        "<keyboard popup=\"0\"><layout id=\"0\"><row>\n<key value=\"1\" "
        "alternate=\"2\"/></row></layout>"
        "</keyboard>",
        "2: the alternatives \"2\" cannot be reached, as the keyboard has popup=\"0\"");
    row("empty alternatives", inRow("<key value=\"1\" alternate=\"\"/>"),
        "2: this key opens an empty panel of alternatives");
    row("eleven alternatives", inRow("<key value=\"0\" alternate=\"123456789+-\"/>"),
        "2: only the first 10 of 11 alternatives are offered, without -");
    row("label that capitals change",
        withRows(rowsOfAscii() + "\n<row><key value=\"\xC3\x9F\"/></row>"),
        "3: \"\xC3\x9F\" becomes \"ss\" once capitals have been switched on and off");
    row("character that capitals change",
        withRows(rowsOfAscii() + "\n<row><key value=\"\xC2\xB5\"/></row>"),
        "3: \"\xC2\xB5\" becomes \"\xCE\xBC\" once capitals have been switched on and off");
    row("alternatives that capitals change",
        withRows(rowsOfAscii() + "\n<row><key value=\"1\" alternate=\"\xC4\xB1\"/></row>"),
        "3: \"\xC4\xB1\" becomes \"i\" once capitals have been switched on and off");
}

void tst_KeyboardCheck::finds()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, finding);
    QCOMPARE(check(content), QStringList {finding});
}

void tst_KeyboardCheck::hasNothingToSay_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("keypad") << inRow("<key value=\"1\"/><stretch/><key value=\"2\" width=\"5\"/>");
    QTest::newRow("all of ASCII") << withRows(rowsOfAscii());
    QTest::newRow("comments and blanks")
        << withRows("<!-- a -->\n <row> <!-- b -->\n <key value=\"1\"/> </row>");
    QTest::newRow("root of its own line")
        << QByteArray("<?xml version=\"1.0\"?>\n<!-- a -->\n<keyboard\n popup=\"2\">"
                      "<layout id=\"0\"><stretch value=\"1\"/><row/></layout></keyboard>");
    QTest::newRow("space after its key") << inRow("<key value=\"1\"/><space key=\"1\"/>");
    QTest::newRow("space of an escaped key")
        << inRow("<key value=\"&amp;amp;lt;\"/><space key=\"&lt;\"/>");
    QTest::newRow("ten alternatives") << inRow("<key value=\"0\" alternate=\"123456789+\"/>");
    QTest::newRow("two pages") << QByteArray(
        "<keyboard><layout id=\"0\"><row><key value=\"more\" layout=\"1\"/></row></layout>"
        "<layout id=\"1\"><row><key value=\"back\" layout=\"0\"/></row></layout></keyboard>");
}

void tst_KeyboardCheck::hasNothingToSay()
{
    QFETCH(QByteArray, content);
    QCOMPARE(check(content), QStringList());
}

void tst_KeyboardCheck::hasNothingToSayOfTheExamples_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files =
        QDir(QStringLiteral(KEYBOARDS_DIR)).entryInfoList({QStringLiteral("*.xml")});
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &file : files) {
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

void tst_KeyboardCheck::hasNothingToSayOfTheExamples()
{
    QFETCH(QString, path);
    const KeyboardReport report = checkKeyboard(path, screen);
    QCOMPARE(report.problem, QString());
    QCOMPARE(report.findings.isEmpty() ? QString() : report.findings.first().text, QString());
}

void tst_KeyboardCheck::exampleOfTheManualIsComplete()
{
    QFile manual(QStringLiteral(MANUAL));
    QVERIFY(manual.open(QIODevice::ReadOnly));
    const QByteArray text = manual.readAll();
    const QByteArray opening = "```xml\n";
    const int start = text.indexOf(opening) + opening.size();
    const QStringList lines = check(text.mid(start, text.indexOf("```", start) - start));
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith(QStringLiteral("2: cannot be typed: ! ")));
}

void tst_KeyboardCheck::findingsComeByLine()
{
    const QStringList lines =
        check("<keyboard>\n<layout id=\"0\">\n<row><key value=\"12\"/></row>\n"
              "<row><key value=\"1\" colour=\"red\"/></row>\n"
              "<row><space key=\"x\"/></row></layout></keyboard>");
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).startsWith(QStringLiteral("3: ")));
    QVERIFY(lines.at(1).startsWith(QStringLiteral("4: ")));
    QVERIFY(lines.at(2).startsWith(QStringLiteral("5: ")));
}

void tst_KeyboardCheck::missingCharactersAreListed_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("missing");
    QTest::newRow("a space bar") << QByteArray("<key value=\"SPACE\"/>") << QByteArray()
                                 << QStringLiteral("space");
    QTest::newRow("an alternative") << QByteArray("$") << QByteArray() << QStringLiteral("$");
    QTest::newRow("capitals") << QByteArray("<key value=\"CAPS\"/>") << QByteArray()
                              << QStringLiteral(
                                     "A B C D E F G H I J K L M N O P Q R S T U V W X Y Z");
    QTest::newRow("popups") << QByteArray("<keyboard>") << QByteArray("<keyboard popup=\"0\">")
                            << QString();
}

void tst_KeyboardCheck::missingCharactersAreListed()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, missing);
    QByteArray content = withRows(rowsOfAscii());
    QCOMPARE(content.count(from), 1);
    const QStringList lines = check(content.replace(from, to));
    const QStringList found = lines.filter(QStringLiteral("1: cannot be typed: "));
    QCOMPARE(found.size(), 1);
    if (missing.isEmpty()) {
        // Nothing but the keys themselves is left.
        QVERIFY(found.first().contains(QStringLiteral(" \" # $ ")));
        QVERIFY(!found.first().contains(QLatin1Char('!')));
    } else {
        QCOMPARE(lines, QStringList {QStringLiteral("1: cannot be typed: ") + missing});
    }
}

void tst_KeyboardCheck::smallKeysAreFound()
{
    QByteArray keys;
    for (int i = 0; i < 14; ++i) {
        keys += "\n<key value=\"1\" width=\"-20\"/>";
    }
    const QStringList lines = check(inRow(keys));
    const QStringList small = lines.filter(QStringLiteral("; a finger needs 40x40"));
    QVERIFY(small.size() >= 14);
    QVERIFY(small.first().startsWith(QStringLiteral("3: the key \"1\" has 3")));
    QVERIFY(small.last().startsWith(QStringLiteral("16: the key \"1\" has 3")));
}

void tst_KeyboardCheck::fingerNeedsBothSides()
{
    QVERIFY(!isTooSmall({40, 40}));
    QVERIFY(isTooSmall({39, 40}));
    QVERIFY(isTooSmall({40, 39}));
}

void tst_KeyboardCheck::keyboardHasToFitIntoThePage()
{
    const QByteArray wide = inRow("<key value=\"1\" size=\"13\"/>");
    const QStringList lines = check(wide);
    QCOMPARE(lines.size(), 1);
    const QRegularExpression pattern(
        QStringLiteral("^1: the keyboard with its dialog needs (\\d+)x(\\d+) pixels and does not "
                       "fit into 640x480$"));
    const QRegularExpressionMatch match = pattern.match(lines.first());
    QVERIFY2(match.hasMatch(), qPrintable(lines.first()));
    const QSize needed(match.captured(1).toInt(), match.captured(2).toInt());
    QVERIFY(needed.width() > 650); // the key alone

    QCOMPARE(check(wide, needed), QStringList());
    QCOMPARE(check(wide, needed - QSize(1, 0)).size(), 1);
    QCOMPARE(check(wide, needed - QSize(0, 1)).size(), 1);
}

void tst_KeyboardCheck::cannotRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("problem");
    QTest::newRow("empty") << QByteArray() << QStringLiteral(":1: not well-formed XML: ");
    QTest::newRow("not closed") << QByteArray("<keyboard>\n<layout>\n</keyboard>")
                                << QStringLiteral(":3: not well-formed XML: ");
    QTest::newRow("text behind") << QByteArray("<keyboard/>\nx")
                                 << QStringLiteral(":2: not well-formed XML: ");
    QTest::newRow("another root")
        << QByteArray("\n<keyboards/>")
        << QStringLiteral(":2: not a keyboard file: its root is <keyboards>, not <keyboard>");
    QTest::newRow("too deep") << "<keyboard>" + QByteArray("<a>").repeated(2000)
            + QByteArray("</a>").repeated(2000)
            + "</keyboard>" << QStringLiteral(": the keyboard cannot load it");
}

void tst_KeyboardCheck::cannotRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    const QString path = write(content);
    const KeyboardReport report = checkKeyboard(path, screen);
    QVERIFY2(report.problem.startsWith(path + problem), qPrintable(report.problem));
    QVERIFY(report.findings.isEmpty());
}

void tst_KeyboardCheck::cannotReadWhatIsNoFile()
{
    QCOMPARE(checkKeyboard(dir.path(), screen).problem,
             dir.path() + QStringLiteral(": not a file"));
    const QString none = dir.filePath(QStringLiteral("none.xml"));
    QVERIFY(checkKeyboard(none, screen).problem.startsWith(none + QStringLiteral(": ")));
}

void tst_KeyboardCheck::pageOrderIsThatOfTheKeyboard_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<QVector<int>>("order");
    QTest::newRow("as they come") << QVector<int> {0, 1, 2} << QVector<int> {0, 1, 2};
    QTest::newRow("the later goes before") << QVector<int> {0, 0} << QVector<int> {1, 0};
    QTest::newRow("beyond the end") << QVector<int> {7, 3, 0} << QVector<int> {2, 0, 1};
    QTest::newRow("between") << QVector<int> {0, 1, 1} << QVector<int> {0, 2, 1};
}

void tst_KeyboardCheck::pageOrderIsThatOfTheKeyboard()
{
    QFETCH(QVector<int>, ids);
    KeyboardOutline outline;
    for (const int id : ids) {
        outline.pages.append({1, id, {}});
    }
    QTEST(outline.pageOrder(), "order");
}

QTEST_MAIN(tst_KeyboardCheck)
#include "tst_keyboardcheck.moc"
