// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardloader.h"

#include <QHBoxLayout>
#include <QRandomGenerator>
#include <QVBoxLayout>

using namespace KeyboardTest;

class tst_KeyboardLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyboards_data();
    void keyboards();
    void needsAFactory();
    void asksTheFactoryInOrder();
    void keysAreKeptInFileOrder();
    void pagesHaveSpacingsAndMargins();
    void pageIsNamedByItsPlaceOnly();
    void manyPagesAtRandomPlaces();
    void keyKeepsHeightAndMaximum();
    void spaceTakesThePresentWidth();
    void factoryThatMakesNoKeys();
    void subclassMayAddKeys();
};

namespace {

void file(const char *name, const QByteArray &content, const char *expected)
{
    QTest::newRow(name) << content << QString::fromUtf8(expected);
}

/** A page with @p content. */
void rows(const char *name, const char *content, const char *expected)
{
    file(name, keyboardFile(content), expected);
}

/** A page with one row with @p keys. */
void row(const char *name, const char *keys, const char *expected)
{
    const QByteArray bracketed = QByteArray("[") + expected + "]";
    file(name, keyboardFile(QByteArray("<row>") + keys + "</row>"), bracketed);
}

void rootRows()
{
    file("no children", "<keyboard/>", "no pages");
    file("declaration", "<?xml version='1.0' encoding='UTF-8'?><keyboard/>", "no pages");
    file("doctype", "<!DOCTYPE keyboard><keyboard></keyboard>", "no pages");
    file("comments and text", "<!-- a --><keyboard> b <!-- c --> d <?e f?></keyboard>", "no pages");
    file("empty page", keyboardFile(""), "");
    file("minimal", "<keyboard><layout id=\"0\"><row><key value=\"a\"/></row></layout></keyboard>",
         "[a=50]");
}

void pageRows()
{
    file("no id", "<keyboard><layout><row/></layout></keyboard>", "no pages");
    file("empty id", "<keyboard><layout id=''><row/></layout></keyboard>", "no pages");
    file("id in words", "<keyboard><layout id='one'/></keyboard>", "no pages");
    file("hexadecimal id", "<keyboard><layout id='0x1'/></keyboard>", "no pages");
    file("broken id", "<keyboard><layout id='1.0'/></keyboard>", "no pages");
    file("negative id", "<keyboard><layout id='-1'/></keyboard>", "no pages");
    file("id beyond int", "<keyboard><layout id='2147483648'/></keyboard>", "no pages");
    file("largest id", "<keyboard><layout id='2147483647'/></keyboard>", "");
    file("ID in capitals", "<keyboard><layout ID='0'/></keyboard>", "no pages");
    file("page of a bad id has no keys",
         "<keyboard><layout id='x'><row><key value='a'/></row></layout>"
         "<layout id='0'><row><space key='a'/></row></layout></keyboard>",
         "[]");
    file("only id 7", "<keyboard><layout id='7'><row><key value='a'/></row></layout></keyboard>",
         "[a=50]");
    file("same id twice",
         "<keyboard><layout id='0'><row><key value='a'/></row></layout>"
         "<layout id='0'><row><key value='b'/></row></layout></keyboard>",
         "[b=50]|[a=50]");
    file("ids are places",
         "<keyboard><layout id='5'><row><key value='a'/></row></layout>"
         "<layout id='1'><row><key value='b'/></row></layout>"
         "<layout id='1'><row><key value='c'/></row></layout></keyboard>",
         "[a=50]|[c=50]|[b=50]");
    file("unknown children of the root",
         "<keyboard><page id='0'/><row/><key value='a'/><stretch value='1'/></keyboard>",
         "no pages");
    file("Layout in capitals", "<keyboard><Layout id='0'/><LAYOUT id='0'/></keyboard>", "no pages");
    file("layout in a layout", keyboardFile("<layout id='0'><row><key value='a'/></row></layout>"),
         "");
    file("layout in something else", "<keyboard><group><layout id='0'/></group></keyboard>",
         "no pages");
    file("deep in something else",
         "<keyboard>" + nested("<a>", "<layout id='0'/>", "</a>", 900) + "</keyboard>", "no pages");
    file("unknown attributes", "<keyboard name='x'><layout id='0' title='y'/></keyboard>", "");
    file("name space",
         "<keyboard xmlns='urn:k' xmlns:a='urn:a'><a:layout id='0'/><layout id='0'/>"
         "</keyboard>",
         "");
}

void rowRows()
{
    rows("rows", "<row/><row/>", "[] []");
    rows("stretches between rows", "<stretch/><row/><stretch value='3'/><stretch value='x'/>",
         "~0 [] ~3 ~0");
    rows("negative stretch between rows", "<stretch value='-2'/>", "~-2");
    rows("key without a row", "<key value='a'/><space key='a'/>", "");
    rows("unknown between rows", "text<line/><!-- c --><row/><![CDATA[<row/>]]>", "[]");
    rows("row in a row", "<row><row><key value='a'/></row></row>", "[]");
    rows("row with attributes", "<row value='a' id='7'/>", "[]");
}

void keyRows()
{
    row("keys", "<key value='a'/><key value='b'/>", "a=50 b=50");
    row("key without a value", "<key/><key name='a'/><key Value='a'/>", "");
    row("key with an empty value", "<key value=''/>", "=50");
    row("same key twice", "<key value='a'/><key value='a'/>", "a=50 a=50");
    row("special words",
        "<key value='CAPS'/><key value='DELETE'/><key value='ENTER'/><key value='SPACE'/>",
        "CAPSC50 DELETED50 ENTERE50 SPACES50");
    row("special words in other cases",
        "<key value='caps'/><key value='Delete'/><key value=' ENTER'/><key value='SPACE BAR'/>",
        "caps=50 Delete=50  ENTER=50 SPACE BAR=50");
    row("word", "<key value='www.'/>", "www.=50");
    row("Key in capitals", "<Key value='a'/><KEY value='a'/>", "");
    row("unknown in a row", "<button value='a'/>text<!-- c --><key value='a'/>", "a=50");
    row("key in a key", "<key value='a'><key value='b'/></key>", "a=50");
    row("umlaut", "<key value='ä'/><key value='&#228;'/><key value='&#xe4;'/>", "ä=50 ä=50 ä=50");
}

void attributeRows()
{
    row("single escapes", "<key value='&lt;'/><key value='&amp;'/><key value='&quot;'/>",
        "<=50 &=50 \"=50");
    row("double escapes",
        "<key value='&amp;lt;'/><key value='&amp;amp;'/><key value='&amp;quot;'/>"
        "<key value='&amp;apos;'/><key value='&amp;gt;'/>",
        "<=50 &=50 \"=50 '=50 >=50");
    row("triple escapes", "<key value='&amp;amp;lt;'/><key value='&amp;amp;amp;'/>",
        "<=50 &amp;=50");
    row("escaped special word", "<key value='&#69;NTER'/>", "ENTERE50");
    row("alternatives are not decoded", "<key value='a' alternate='&amp;lt;'/>", "a=50(&lt;)");

    row("alternatives", "<key value='a' alternate='áà'/>", "a=50(áà)");
    row("no alternatives to offer", "<key value='a' alternate=''/>", "a=50()");
    row("many alternatives", "<key value='a' alternate='0123456789AB'/>", "a=50(0123456789AB)");
    row("alternatives of special keys", "<key value='CAPS' alternate='x'/>", "CAPSC50(x)");

    row("sizes", "<key value='a' size='1.5'/><key value='b' size='1.55'/><key value='c' size='2'/>",
        "a=75 b=77 c=100");
    row("sizes that are none",
        "<key value='a' size='0'/><key value='b' size='-2'/><key value='c' size='big'/>"
        "<key value='d' size=''/><key value='e' size='nan'/><key value='f' size='1,5'/>",
        "a=50 b=50 c=50 d=50 e=50 f=50");
    row("widths", "<key value='a' width='-5'/><key value='b' width='30.9'/>", "a=45 b=80");
    row("widths that are none",
        "<key value='a' width='x'/><key value='b' width='inf'/><key value='c' width='1e99'/>",
        "a=50 b=50 c=50");
    row("size and width", "<key value='a' size='1.5' width='0.5'/>", "a=75");
    row("negative result", "<key value='a' width='-70'/>", "a=0");

    row("page key", "<key value='123' layout='1'/>", "123L50@1");
    row("page key of the first page", "<key value='abc' layout='0'/>", "abcL50@0");
    row("page keys that are none",
        "<key value='a' layout=''/><key value='b' layout='-1'/><key value='c' layout='x'/>"
        "<key value='d' layout='4294967296'/>",
        "a=50 b=50 c=50 d=50");
    row("page key wins over its word", "<key value='ENTER' layout='1'/>", "ENTERL50@1");
    row("no page key, so the word", "<key value='ENTER' layout='-1'/>", "ENTERE50");
}

void gapAndEncodingRows()
{
    row("stretches", "<stretch value='2'/><key value='a'/><stretch/>", "~2 a=50 ~0");
    row("stretch beyond int", "<stretch value='99999999999'/>", "~0");
    row("space", "<key value='a' size='2'/><space key='a'/>", "a=100 _107");
    row("space of the first of a name", "<key value='a'/><key value='a' size='3'/><space key='a'/>",
        "a=50 a=150 _57");
    row("space before its key", "<space key='a'/><key value='a'/>", "a=50");
    row("space of a special key", "<key value='CAPS'/><space key='CAPS'/><space key='caps'/>",
        "CAPSC50 _57");
    row("space without a key", "<key value='a'/><space/>", "a=50");
    row("space of the nameless key", "<key value=''/><space/><space key=''/>", "=50 _57 _57");
    row("space is not decoded", "<key value='&lt;'/><space key='&lt;'/><space key='&amp;lt;'/>",
        "<=50 _57");
    file("space of a key of another page",
         "<keyboard><layout id='0'><row><key value='a'/></row></layout>"
         "<layout id='0'><row><space key='a'/></row></layout></keyboard>",
         "[_57]|[a=50]");

    file("entities",
         "<!DOCTYPE k [<!ENTITY x 'ab'>]><keyboard><layout id='0'><row><key value='&x;c'/></row>"
         "</layout></keyboard>",
         "[abc=50]");
    file("Windows line ends", "<keyboard>\r\n<layout id='0'>\r\n<row/>\r\n</layout></keyboard>",
         "[]");
    file("byte order mark", "\xEF\xBB\xBF" + keyboardFile("<row><key value='a'/></row>"), "[a=50]");
    file("Latin-1",
         "<?xml version='1.0' encoding='ISO-8859-1'?>"
             + keyboardFile("<row><key value='\xE4'/></row>"),
         "[ä=50]");
}

} // namespace

void tst_KeyboardLoading::keyboards_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    rootRows();
    pageRows();
    rowRows();
    keyRows();
    attributeRows();
    gapAndEncodingRows();
}

void tst_KeyboardLoading::keyboards()
{
    QFETCH(QByteArray, content);
    const Loader loader(content);
    QVERIFY2(loader.loaded, qPrintable(loader.messages.join(QLatin1Char(' '))));
    QVERIFY(loader.messages.isEmpty());
    QTEST(inWords(loader.keyboard), "expected");
}

void tst_KeyboardLoading::needsAFactory()
{
    const Files files;
    ZEMVirtualKeyboard keyboard;
    MessageLog log;
    QVERIFY(!keyboard.load(files.write(keyboardFile("<row><key value='a'/></row>"))));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(inWords(keyboard), QStringLiteral("no pages"));
}

void tst_KeyboardLoading::asksTheFactoryInOrder()
{
    Loader loader("<keyboard><layout id='0'><row><key value='a'/><space key='a'/></row>"
                  "<row><key value='&amp;lt;'/></row></layout>"
                  "<layout id='x'><row><key value='c'/></row></layout>"
                  "<layout id='0'/></keyboard>");
    QStringList expected;
    for (int i = 0; i < 10; ++i) {
        expected.append(QStringLiteral("alternate"));
    }
    expected << QStringLiteral("popup") << QStringLiteral("background") // by setFactory
             << QStringLiteral("vSpacing") << QStringLiteral("hSpacing") << QStringLiteral("key a")
             << QStringLiteral("hSpacing") // of the space
             << QStringLiteral("key <") << QStringLiteral("hSpacing");
    QCOMPARE(loader.factory.log, expected);
}

void tst_KeyboardLoading::keysAreKeptInFileOrder()
{
    // The index of a key counts the file, not the pages.
    Board board("<row><key value='a'/></row></layout><layout id='0'><row><key value='b'/></row>"
                "<row><key value='c'/></row>");
    for (const char *name : {"a", "b", "c"}) {
        call(board.keyboard, "sendKey", name[0] - 'a');
    }
    QCOMPARE(board.target->takeText(), QStringLiteral("abc"));
}

void tst_KeyboardLoading::pagesHaveSpacingsAndMargins()
{
    const Files files;
    const QString first = files.write(QStringLiteral("1.xml"), keyboardFile("<row/><row/>"));
    FlatFactory factory;
    ZEMVirtualKeyboard keyboard;
    keyboard.setFactory(&factory);
    QVERIFY(keyboard.load(first));
    keyboard.setMargins(QMargins(1, 2, 3, 4));
    QVERIFY(keyboard.load(files.write(QStringLiteral("2.xml"), keyboardFile("<row/>"))));
    keyboard.setMargins(QMargins(9, 9, 9, 9));

    const auto *pages = keyboard.findChild<QStackedWidget *>();
    QCOMPARE(pages->count(), 2);
    QCOMPARE(pages->widget(1)->layout()->contentsMargins(), QMargins());
    QCOMPARE(pages->widget(0)->layout()->contentsMargins(), QMargins(1, 2, 3, 4));
    const auto *page = qobject_cast<QVBoxLayout *>(pages->widget(1)->layout());
    QVERIFY(page);
    QCOMPARE(page->spacing(), vSpacing);
    for (int i = 0; i < 2; ++i) {
        const auto *row = qobject_cast<QHBoxLayout *>(page->itemAt(i)->layout());
        QVERIFY(row);
        QCOMPARE(row->spacing(), hSpacing);
        QCOMPARE(page->stretch(i), 0);
    }
    QCOMPARE(pages->widget(0)->metaObject()->className(), "QWidget");
}

void tst_KeyboardLoading::pageIsNamedByItsPlaceOnly()
{
    Board board("<row><key value='to1' layout='1'/><key value='to7' layout='7'/></row></layout>"
                "<layout id='7'><row><key value='a'/></row>");
    QVERIFY(board.show());
    board.tap("to7"); // there is no page 7
    QCOMPARE(board.pages->currentIndex(), 0);
    board.tap("to1");
    QCOMPARE(board.pages->currentIndex(), 1);
}

void tst_KeyboardLoading::manyPagesAtRandomPlaces()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 50; ++round) {
        QByteArray content = "<keyboard>";
        QStringList expected;
        for (int page = 0; page < 12; ++page) {
            const int id = random.bounded(15);
            const QByteArray name = QByteArray::number(page);
            content += "<layout id='" + QByteArray::number(id) + "'><row><key value='" + name
                + "'/></row></layout>";
            expected.insert(qMin(id, expected.size()),
                            QStringLiteral("[%1=50]").arg(QString::fromLatin1(name)));
        }
        const Loader loader(content + "</keyboard>");
        QCOMPARE(inWords(loader.keyboard), expected.join(QLatin1Char('|')));
    }
}

void tst_KeyboardLoading::keyKeepsHeightAndMaximum()
{
    Board board("<row><key value='a' size='2'/><key value='b' width='-9'/></row>");
    QCOMPARE(board.key("a")->minimumSize(), QSize(100, keySide));
    QCOMPARE(board.key("a")->maximumSize(), QSize(keySide, keySide)); // the minimum wins
    QCOMPARE(board.key("a")->width(), 100);
    QCOMPARE(board.key("b")->minimumSize(), QSize(41, keySide));
    QCOMPARE(board.key("b")->maximumSize(), QSize(keySide, keySide));
}

void tst_KeyboardLoading::spaceTakesThePresentWidth()
{
    // A narrower minimum does not make the key itself narrower before it is laid out.
    Loader loader(keyboardFile("<row><key value='a' width='-20'/><space key='a'/></row>"));
    QCOMPARE(inWords(loader.keyboard), QStringLiteral("[a=30 _57]"));
}

namespace {

ZEM_BEGIN_INTERFACES // the interface has no destructor

class EmptyFactory : public FlatFactory
{
public:
    ZEMVirtualKey *createKey(const QString &) override { return nullptr; }
    ZEMVirtualKey *createAlternateKey() override { return nullptr; }
    ZEMVirtualKey *createPopupKey() override { return nullptr; }
    QWidget *createPopupKeysBackground() override { return nullptr; }
};

ZEM_END_INTERFACES

class OwnKeyboard : public ZEMVirtualKeyboard
{
public:
    using ZEMVirtualKeyboard::createButton;
    using ZEMVirtualKeyboard::decodeValue;
};

} // namespace

void tst_KeyboardLoading::factoryThatMakesNoKeys()
{
    const Files files;
    EmptyFactory factory;
    QWidget host;
    auto *keyboard = new ZEMVirtualKeyboard(&host);
    keyboard->setFactory(&factory);
    QVERIFY(keyboard->load(files.write(keyboardFile("<row><key value='a'/></row>"))));
    QCOMPARE(inWords(*keyboard), QStringLiteral("[]"));
    keyboard->setPopupParent(&host);
    host.show();
    host.resize(300, 200);
    call(keyboard, "buttonPressed", 0);
    call(keyboard, "slotDisplayAlternatives");
    call(keyboard, "buttonReleased", 0);
    call(keyboard, "slotSendAlternativeChar", 0);
    host.hide();
}

void tst_KeyboardLoading::subclassMayAddKeys()
{
    FlatFactory factory;
    OwnKeyboard keyboard;
    QVERIFY(!keyboard.createButton(QStringLiteral("a"))); // no factory yet
    keyboard.setFactory(&factory);
    ZEMVirtualKey *enter = keyboard.createButton(QStringLiteral("ENTER"));
    QCOMPARE(enter->parentWidget(), &keyboard);
    QCOMPARE(enter->type(), ZEMVirtualKey::Enter);
    QCOMPARE(keyboard.createButton(QString())->type(), ZEMVirtualKey::Character);
    QCOMPARE(keyboard.decodeValue(QStringLiteral("&amp;lt;")), QStringLiteral("<"));
}

QTEST_MAIN(tst_KeyboardLoading)
#include "tst_keyboardloading.moc"
