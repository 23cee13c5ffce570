// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardloader.h"
#include "qtcompat.h"
#include "zemtest.h"

#include <KeyboardFactoryDefault>

#include <QDir>
#include <QRandomGenerator>

#include <unistd.h>

using namespace KeyboardTest;

class tst_StrangeKeyboards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data();
    void refusals();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void refusesUnreadableFile();
    void refusalChangesNothing();
    void largeFile();
    void mutilatedFiles();
    void extremeFilesCanBeShown_data();
    void extremeFilesCanBeShown();
};

void tst_StrangeKeyboards::refusals_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message"); // how it begins
    const auto parse = [](const char *name, const QByteArray &content, const char *message) {
        QTest::newRow(name) << content
                            << QStringLiteral("Error: Parse error at line  ")
                + QString::fromUtf8(message);
    };
    const auto root = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << QStringLiteral("Error: Not a keyboard file");
    };
    // The parser of Qt 6 says otherwise where it was, and what it found.
    parse("empty", "",
          QtCompat::words("1 ,  column  1 :  \"unexpected end of file\"",
                          "1 ,  column  0 :  \"Premature end of document.\""));
    parse("blank", " \n ", QtCompat::words("2 ,  column  2 :  ", "1 ,  column  0 :  "));
    parse("no XML", "keyboard", "1 ,  column  ");
    parse("cut off", "<keyboard>\n<layout id='0'>",
          QtCompat::words("2 ,  column  16 :  \"unexpected end of file\"",
                          "2 ,  column  15 :  \"Premature end of document.\""));
    parse("tags that do not match", "<keyboard>\n\n<a></b></keyboard>",
          QtCompat::words("3 ,  column  7 :  \"tag mismatch\"",
                          "3 ,  column  7 :  \"Opening and ending tag mismatch.\""));
    parse("two roots", "<keyboard/><keyboard/>", "1 ,  column  ");
    parse("no quotes", "<keyboard popup=0/>", "1 ,  column  ");
    parse("zero bytes", QByteArray(4096, '\0'), "1 ,  column  ");
    parse("binary", QByteArray("\x89PNG\r\n\x1A\n\x00\x01\xFF\xFE", 12), "1 ,  column  ");
    parse("recursive entity",
          "<!DOCTYPE k [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><keyboard>&a;</keyboard>",
          "1 ,  column  ");

    QByteArray bomb = "<!DOCTYPE k [<!ENTITY l0 'aaaaaaaaaa'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray inner = "&l" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY l" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    parse("entity bomb", bomb + "]><keyboard>&l11;</keyboard>", "1 ,  column  ");
    parse("entity bomb in an attribute", bomb + "]><keyboard popup='&l11;'/>", "1 ,  column  ");
    parse("too deep", nested("<keyboard>", "", "</keyboard>", 200000), "1 ,  column  10010 :  ");

    root("another root", "<keypad/>");
    root("Keyboard in capitals", "<Keyboard/>");
    root("prefix", "<k:keyboard xmlns:k='urn:k'/>");
    root("keyboard further down", "<keyboards><keyboard/></keyboards>");
    root("HTML", "<html><body>Not found</body></html>");
}

void tst_StrangeKeyboards::refusals()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const Loader loader(content);
    QVERIFY(!loader.loaded);
    QCOMPARE(loader.messages.size(), 1);
    QVERIFY2(loader.messages.first().startsWith(message), qPrintable(loader.messages.first()));
    QCOMPARE(inWords(loader.keyboard), QStringLiteral("no pages"));
}

void tst_StrangeKeyboards::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("/nonexistent/keyboard_en.xml");
    QTest::newRow("empty name") << QString();
    QTest::newRow("directory") << QDir::tempPath();
}

void tst_StrangeKeyboards::refusesWhatIsNoFile()
{
    QFETCH(QString, name);
    FlatFactory factory;
    ZEMVirtualKeyboard keyboard;
    keyboard.setFactory(&factory);
    if (name.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    }
    QFile file(name);
    QVERIFY(!file.open(QIODevice::ReadOnly));

    if (name.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    }
    MessageLog log;
    QVERIFY(!keyboard.load(name));
    QString expected;
    QDebug(&expected) << "Error: Cannot read file " << name << ": " << file.errorString();
    QCOMPARE(log.take(), QStringList(expected.trimmed()));
}

void tst_StrangeKeyboards::refusesUnreadableFile()
{
    const Files files;
    const QString name = files.write("<keyboard/>");
    QVERIFY(QFile::setPermissions(name, QFileDevice::Permissions()));
    FlatFactory factory;
    ZEMVirtualKeyboard keyboard;
    keyboard.setFactory(&factory);

    const uid_t user = geteuid();
    constexpr uid_t nobody = 65534;
    QVERIFY(user != 0 || seteuid(nobody) == 0); // root reads every file
    MessageLog log;
    const bool loaded = keyboard.load(name);
    QCOMPARE(seteuid(user), 0);
    QVERIFY(!loaded);
    const QStringList messages = log.take();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().endsWith(QStringLiteral(":  \"Permission denied\"")),
             qPrintable(messages.first()));
}

void tst_StrangeKeyboards::refusalChangesNothing()
{
    const Board board("<row><key value='a' alternate='b'/></row>", "popup='0'");
    const Files files;
    MessageLog log;
    board.keyboard->load(files.write("<keys popup='1'/>"));
    board.keyboard->load(files.write("<keyboard popup='1'><layout"));
    QCOMPARE(log.take().size(), 2);
    // Neither pages nor the meaning of popup, nor second connections.
    QCOMPARE(inWords(*board.keyboard), QStringLiteral("[a=50(b)]"));
    Q_EMIT board.keys.first()->pressed();
    QVERIFY(board.factory.preview->isHidden());
    QVERIFY(!board.timer->isActive());
    Q_EMIT board.keys.first()->released();
    QCOMPARE(board.target->take(), QStringList(stroke(QLatin1Char('a'))));
}

void tst_StrangeKeyboards::largeFile()
{
    // A few megabytes of comments and strange elements around a few keys.
    const QByteArray ballast =
        QByteArray("<!-- nothing -->\n<pad a='b'>text</pad>\n").repeated(60000);
    const Loader loader(keyboardFile("<row>" + ballast + "<key value='a'/></row>"));
    QVERIFY(loader.loaded);
    QCOMPARE(inWords(loader.keyboard), QStringLiteral("[a=50]"));

    const QString name(200000, QLatin1Char('x'));
    const Loader longName(keyboardFile("<row><key value='" + name.toUtf8() + "'/></row>"));
    QVERIFY(longName.loaded);
    const auto *pages = longName.keyboard.findChild<QStackedWidget *>();
    QCOMPARE(pages->findChild<ZEMVirtualKey *>()->name(), name);
}

void tst_StrangeKeyboards::mutilatedFiles()
{
    const QByteArray whole = keyboardFile(
        "<row><key value='CAPS' size='1.5'/><key value='a' alternate='áà'/><stretch value='1'/>"
        "<space key='a'/><key value='&amp;lt;' layout='1' width='-3'/></row><stretch value='2'/>",
        "popup='2'");
    QRandomGenerator random(99);
    const QByteArray letters = "<>/='\"& -.0123456789azCAPS\x80\xFF";
    int read = 0;
    for (int round = 0; round < 600; ++round) {
        QByteArray content = whole;
        for (int i = random.bounded(1, 4); i > 0; --i) {
            const int place = random.bounded(content.size());
            switch (random.bounded(4)) {
            case 0:
                content.remove(place, random.bounded(1, 9));
                break;
            case 1:
                content.insert(place, letters.at(random.bounded(letters.size())));
                break;
            case 2:
                content[place] = letters.at(random.bounded(letters.size()));
                break;
            default:
                content.insert(place, content.mid(random.bounded(content.size()), 20));
                break;
            }
        }
        Loader loader(content);
        QCOMPARE(loader.messages.size(), loader.loaded ? 0 : 1);
        loader.keyboard.resize(loader.keyboard.sizeHint().boundedTo(QSize(2000, 600)));
        read += loader.loaded ? 1 : 0;
    }
    // Both ways are taken often enough to mean something.
    QVERIFY2(read > 60 && read < 540, qPrintable(QString::number(read)));
}

void tst_StrangeKeyboards::extremeFilesCanBeShown_data()
{
    QTest::addColumn<QByteArray>("rows");
    const auto row = [](const char *name, const char *keys) {
        QTest::newRow(name) << "<row>" + QByteArray(keys) + "</row>";
    };
    row("negative stretches", "<stretch value='-1'/><key value='a'/><stretch value='1'/>");
    row("large stretches",
        "<stretch value='2147483647'/><key value='a'/><stretch value='2147483647'/>");
    row("smallest stretch", "<stretch value='-2147483648'/><key value='a'/><stretch value='-1'/>");
    row("widest key", "<key value='a'/><key value='b' width='2147483000'/><space key='b'/>");
    row("several wide keys", "<key value='b' size='600000'/><key value='b' size='600000'/>");
    row("no width", "<key value='a' width='-50'/><space key='a'/>");
    QTest::newRow("no keys") << QByteArray("<row/><stretch value='-7'/><row/>");
}

void tst_StrangeKeyboards::extremeFilesCanBeShown()
{
    QFETCH(QByteArray, rows);
    const Files files;
    files.write(QStringLiteral("keyboard_ascii.xml"), keyboardFile(rows));
    KeyboardFactoryDefault factory(files.path(), QString());
    QWidget host;
    host.resize(640, 480);
    ZEMVirtualKeyboard *keyboard =
        factory.createAsciiKeyboard(ZEMVirtualKeyboardFactoryIntf::PopupFlip);
    QVERIFY(keyboard);
    keyboard->setParent(&host);
    keyboard->setPopupParent(&host);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    keyboard->resize(640, 200);
    for (const char *slot : {"buttonPressed", "buttonReleased"}) {
        call(keyboard, slot, 0);
    }
    QCOMPARE(keyboard->grab().size(), QSize(keyboard->size()));
    QVERIFY(keyboard->isVisible());
}

QTEST_MAIN(tst_StrangeKeyboards)
#include "tst_strangekeyboards.moc"
