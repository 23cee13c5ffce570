// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/messagelog.h"
#include "../widgets/widgettest.h"
#include "keyboardtest.h"
#include "ownmethods.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace KeyboardTest;

class tst_ZEMVirtualKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newKeyboard();
    void declaresItsOwn();
    void keysSendTheirEvents_data();
    void keysSendTheirEvents();
    void eventIsPosted();
    void alternativeIsSentAsACharacter();
    void enterTellsAfterItsEvent();
    void withoutATarget();
    void targetMayGo();
    void keyboardMayGoOnEnter();
    void factoryAndPopupParentMayGo();
    void capsWalk();
    void capsKeyEndsNothing();
    void anyKeyThatSendsEndsSingleCaps_data();
    void anyKeyThatSendsEndsSingleCaps();
    void alternativeLeavesSingleCaps();
    void randomWalkOfCaps();
    void sharpSKey();
    void capitalsOfTheFileAreShownSmall();
    void pageKeys();
    void showStartsAfresh();
    void switchLeavesTheState();
    void looksFollowTheTouches();
    void showRedrawsTheKeyPressedLast();
    void resizeRedrawsAllKeys();
    void secondLoadSendsSeveralTimes();
    void secondFactoryRenewsThePopups();
    void badIndicesDoNothing();
    void keyboardWithoutFactory();
    void typesIntoALineEdit();
};

namespace {

const char specialRow[] = "<row><key value='CAPS'/><key value='a'/><key value='DELETE'/>"
                          "<key value='ENTER'/><key value='SPACE'/>"
                          "<key value='123' layout='0'/></row>";

class OpenKeyboard : public ZEMVirtualKeyboard
{
public:
    using ZEMVirtualKeyboard::switchButtonCaps;
};

} // namespace

void tst_ZEMVirtualKeyboard::newKeyboard()
{
    QWidget parent;
    const auto *keyboard = new ZEMVirtualKeyboard(&parent);
    QCOMPARE(keyboard->parentWidget(), &parent);
    QCOMPARE(keyboard->objectName(), QStringLiteral("ZEMVirtualKeyboard"));
    const auto *layout = qobject_cast<QHBoxLayout *>(keyboard->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    QVERIFY(qobject_cast<QStackedWidget *>(layout->itemAt(0)->widget()));
    QCOMPARE(layout->stretch(0), 0);
    const auto *timer = keyboard->findChild<QTimer *>();
    QVERIFY(timer);
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 750);
    QVERIFY(!timer->isActive());
}

void tst_ZEMVirtualKeyboard::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMVirtualKeyboard::staticMetaObject;
    QCOMPARE(metaObject.className(), "ZEMVirtualKeyboard");
    QCOMPARE(metaObject.superClass()->className(), "QWidget");
    QVERIFY(WidgetTest::ownProperties(metaObject).isEmpty());
    QCOMPARE(ZemTest::ownMethods(metaObject),
             QStringList({QStringLiteral("signal sigKey_enter()"),
                          QStringLiteral("private sendKey(int)"),
                          QStringLiteral("private buttonPressed(int)"),
                          QStringLiteral("private buttonReleased(int)"),
                          QStringLiteral("private slotDisplayAlternatives()"),
                          QStringLiteral("private slotSendAlternativeChar(int)"),
                          QStringLiteral("private slotUpdateLastPressedButton()")}));
}

void tst_ZEMVirtualKeyboard::keysSendTheirEvents_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QStringList>("strokes");
    const auto row = [](const char *key, const QStringList &strokes) {
        QTest::newRow(key) << QByteArray(key) << strokes;
    };
    row("value='a'", {stroke(97, QStringLiteral("a"))});
    row("value='7'", {stroke('7', QStringLiteral("7"))});
    row("value='&amp;'", {stroke('&', QStringLiteral("&"))});
    row("value='&#8364;'", {stroke(0x20AC, QString(QChar(0x20AC)))});
    row("value='www.'", {stroke('w', QStringLiteral("w"))});
    row("value=''", {stroke(0, QString(QChar(0)))});
    row("value='caps'", {stroke('c', QStringLiteral("c"))});
    row("value='DELETE'", {stroke(16777219, QStringLiteral("\b"))});
    row("value='ENTER'", {stroke(16777221, QStringLiteral("\r\r"))});
    row("value='SPACE'", {stroke(32, QStringLiteral(" "))});
    row("value='CAPS'", {});
    row("value='ENTER' layout='0'", {});
}

void tst_ZEMVirtualKeyboard::keysSendTheirEvents()
{
    QFETCH(QByteArray, key);
    Board board("<row><key " + key + "/></row>");
    QVERIFY(board.show());
    ZemTest::press(board.keys.first(), QPoint(20, 20));
    QVERIFY(board.target->take().isEmpty());
    ZemTest::release(board.keys.first(), QPoint(20, 20));
    QTEST(board.target->take(), "strokes");
}

void tst_ZEMVirtualKeyboard::eventIsPosted()
{
    const Board board("<row><key value='a'/></row>");
    QLineEdit edit;
    board.keyboard->setFocusWidget(&edit);
    call(board.keyboard, "sendKey", 0);
    QVERIFY(edit.text().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(edit.text(), QStringLiteral("a"));
    QVERIFY(board.target->take().isEmpty());
}

void tst_ZEMVirtualKeyboard::alternativeIsSentAsACharacter()
{
    Board board("<row><key value='a' alternate='&#225;b'/><key value='c'/><key value='d'/></row>");
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    QVERIFY(board.target->take().isEmpty());
    ZemTest::press(board.alternative(0), QPoint(5, 5));
    ZemTest::release(board.alternative(0), QPoint(5, 5));
    QCOMPARE(board.target->take(), QStringList(stroke(0xE1, QString(QChar(0xE1)))));
}

void tst_ZEMVirtualKeyboard::enterTellsAfterItsEvent()
{
    Board board("<row><key value='ENTER'/><key value='a'/><key value='ENTER' layout='0'/></row>");
    QSignalSpy spy(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter);
    QStringList posted;
    connect(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter, this,
            [&] { posted = board.target->take(); });
    call(board.keyboard, "sendKey", 0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(posted, QStringList(stroke(Qt::Key_Enter, QStringLiteral("\r\r"))));
    call(board.keyboard, "sendKey", 1);
    call(board.keyboard, "sendKey", 2);
    QCOMPARE(spy.count(), 1);
}

void tst_ZEMVirtualKeyboard::withoutATarget()
{
    Board board(specialRow);
    board.keyboard->setFocusWidget(nullptr);
    QSignalSpy spy(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter);
    QVERIFY(board.show());
    board.tap("CAPS");
    QCOMPARE(board.key("a")->text(), QStringLiteral("A"));
    board.tap("ENTER");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(board.key("a")->text(), QStringLiteral("a"));
    board.tap("a");
    call(board.keyboard, "slotSendAlternativeChar", 0);
    QVERIFY(board.target->take().isEmpty());
}

void tst_ZEMVirtualKeyboard::targetMayGo()
{
    Board board(specialRow);
    QVERIFY(board.show());
    board.tap("a"); // on its way to a target that is gone when it would arrive
    delete board.target;
    QCoreApplication::processEvents();
    board.tap("a");
    board.tap("ENTER");
    QCoreApplication::processEvents();

    auto *next = new Target(&board.host);
    board.keyboard->setFocusWidget(next);
    board.tap("a");
    QCOMPARE(next->take(), QStringList(stroke(QLatin1Char('a'))));
}

void tst_ZEMVirtualKeyboard::keyboardMayGoOnEnter()
{
    Board board(specialRow);
    QVERIFY(board.show());
    const QPointer<QWidget> panel(board.panel());
    connect(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter, board.keyboard,
            [&] { delete board.keyboard; });
    board.tap("ENTER");
    // The popups stood beside the keyboard and go with it.
    QVERIFY(!panel);
    QVERIFY(board.host.findChildren<ZEMVirtualKey *>().isEmpty());
    QCOMPARE(board.host.children(), QObjectList({board.target}));
}

void tst_ZEMVirtualKeyboard::factoryAndPopupParentMayGo()
{
    Board board("<row><key value='a' alternate='xy'/></row>");
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn()); // the alternative keys are in the panel now
    board.release("a");
    auto *other = new QWidget;
    board.keyboard->setPopupParent(other);
    delete other;
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    QCOMPARE(board.target->takeText(), QStringLiteral("a"));
    board.keyboard->resize(300, 100);
    call(board.keyboard, "slotSendAlternativeChar", 0);
    board.keyboard->hide();
    board.keyboard->setPopupParent(&board.host);
}

void tst_ZEMVirtualKeyboard::capsWalk()
{
    Board board(specialRow);
    QVERIFY(board.show());
    QCOMPARE(board.texts(), QStringLiteral("caps a delete enter space 123"));
    board.tap("CAPS");
    QCOMPARE(board.texts(), QStringLiteral("Caps A DELETE ENTER SPACE 123"));
    board.tap("CAPS");
    QCOMPARE(board.texts(), QStringLiteral("CAPS A DELETE ENTER SPACE 123"));
    board.tap("a");
    board.tap("a");
    QCOMPARE(board.texts(), QStringLiteral("CAPS A DELETE ENTER SPACE 123"));
    board.tap("CAPS");
    QCOMPARE(board.texts(), QStringLiteral("caps a delete enter space 123"));
    QCOMPARE(board.target->take(),
             QStringList({stroke(QLatin1Char('A')), stroke(QLatin1Char('A'))}));
}

void tst_ZEMVirtualKeyboard::capsKeyEndsNothing()
{
    Board board(specialRow);
    QVERIFY(board.show());
    board.tap("CAPS");
    board.tap("123"); // turns pages, sends nothing
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("Caps"));
    board.tap("a");
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("caps"));
    board.tap("a");
    QCOMPARE(board.target->takeText(), QStringLiteral("Aa"));
}

void tst_ZEMVirtualKeyboard::anyKeyThatSendsEndsSingleCaps_data()
{
    QTest::addColumn<QByteArray>("key");
    for (const char *key : {"a", "DELETE", "ENTER", "SPACE"}) {
        QTest::newRow(key) << QByteArray(key);
    }
}

void tst_ZEMVirtualKeyboard::anyKeyThatSendsEndsSingleCaps()
{
    QFETCH(QByteArray, key);
    Board board(specialRow);
    QVERIFY(board.show());
    board.tap("CAPS");
    board.tap(key.constData());
    QCOMPARE(board.texts(), QStringLiteral("caps a delete enter space 123"));
    board.tap("CAPS");
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("Caps")); // the walk began anew
    board.tap("CAPS");
    board.tap(key.constData());
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("CAPS"));
}

void tst_ZEMVirtualKeyboard::alternativeLeavesSingleCaps()
{
    Board board("<row><key value='CAPS'/><key value='a' alternate='&#225;'/></row>");
    QVERIFY(board.show());
    board.tap("CAPS");
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    QCOMPARE(board.offered(), QString(QChar(0xC1)));
    board.alternative(0)->click();
    board.tap("a");
    board.tap("a");
    QCOMPARE(board.target->takeText(), QString(QChar(0xC1)) + QLatin1String("Aa"));
}

void tst_ZEMVirtualKeyboard::randomWalkOfCaps()
{
    Board board(specialRow);
    QVERIFY(board.show());
    QRandomGenerator random(3);
    int state = 0;
    QString expected;
    for (int i = 0; i < 600; ++i) {
        switch (random.bounded(6)) {
        case 0:
        case 1:
            board.tap("CAPS");
            state = (state + 1) % 3;
            break;
        case 2:
            board.tap("SPACE");
            expected += QLatin1Char(' ');
            state = state == 1 ? 0 : state;
            break;
        case 3:
            board.tap("123");
            break;
        default:
            board.tap("a");
            expected += state == 0 ? QLatin1Char('a') : QLatin1Char('A');
            state = state == 1 ? 0 : state;
            break;
        }
        const char *captions[] = {"caps", "Caps", "CAPS"};
        QCOMPARE(board.key("CAPS")->text(), QString::fromLatin1(captions[state]));
    }
    QCOMPARE(board.target->takeText(), expected);
}

void tst_ZEMVirtualKeyboard::sharpSKey()
{
    Board board("<row><key value='CAPS'/><key value='&#223;'/></row>");
    QVERIFY(board.show());
    const QString sharpS(QChar(0xDF));
    board.tap("CAPS");
    board.tap("CAPS");
    QCOMPARE(board.key("ß")->text(), QStringLiteral("SS"));
    board.tap("ß");
    board.tap("CAPS");
    QCOMPARE(board.key("ß")->text(), QStringLiteral("ss"));
    board.tap("ß");
    QCOMPARE(board.target->takeText(), sharpS + sharpS);
}

void tst_ZEMVirtualKeyboard::capitalsOfTheFileAreShownSmall()
{
    Board board("<row><key value='A' alternate='XY'/><key value='ABC' layout='0'/></row>");
    QCOMPARE(board.texts(), QStringLiteral("A ABC"));
    QVERIFY(board.show());
    QCOMPARE(board.texts(), QStringLiteral("a abc"));
    QCOMPARE(board.key("A")->alternateKeys(), QStringLiteral("xy"));
    board.tap("A");
    QCOMPARE(board.target->takeText(), QStringLiteral("a"));
}

void tst_ZEMVirtualKeyboard::pageKeys()
{
    Board board("<row><key value='up' layout='1'/><key value='CAPS'/></row></layout>"
                "<layout id='1'><row><key value='down' layout='0'/></row>");
    QVERIFY(board.show());
    board.tap("CAPS");
    board.press("up");
    QCOMPARE(board.pages->currentIndex(), 0);
    board.release("up");
    QCOMPARE(board.pages->currentIndex(), 1);
    board.tap("down");
    QCOMPARE(board.pages->currentIndex(), 0);
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("Caps"));
    QVERIFY(board.target->take().isEmpty());

    board.key("CAPS")->setType(ZEMVirtualKey::Layout); // a page key without a page
    board.tap("CAPS");
    QCOMPARE(board.pages->currentIndex(), 0);
}

void tst_ZEMVirtualKeyboard::showStartsAfresh()
{
    Board board("<row><key value='up' layout='1'/><key value='CAPS'/></row></layout>"
                "<layout id='1'><row><key value='a'/></row>");
    QVERIFY(board.show());
    board.tap("CAPS");
    board.tap("CAPS");
    board.tap("up");
    board.keyboard->hide();
    QCOMPARE(board.pages->currentIndex(), 1);
    QCOMPARE(board.key("a")->text(), QStringLiteral("A"));
    board.keyboard->show();
    QCOMPARE(board.pages->currentIndex(), 0);
    QCOMPARE(board.key("a")->text(), QStringLiteral("a"));
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("caps"));
    board.tap("CAPS");
    QCOMPARE(board.key("CAPS")->text(), QStringLiteral("Caps"));
}

void tst_ZEMVirtualKeyboard::switchLeavesTheState()
{
    const Files files;
    FlatFactory factory;
    OpenKeyboard keyboard;
    keyboard.setFactory(&factory);
    QVERIFY(keyboard.load(files.write(keyboardFile(specialRow))));
    const auto *pages = keyboard.findChild<QStackedWidget *>();
    const auto keys = pages->findChildren<ZEMVirtualKey *>();

    keyboard.switchButtonCaps(ZEMVirtualKeyboard::CapsLock);
    QCOMPARE(keys.at(1)->text(), QStringLiteral("A"));
    QCOMPARE(keys.at(0)->text(), QStringLiteral("CAPS"));
    keyboard.switchButtonCaps(static_cast<ZEMVirtualKeyboard::t_caps>(3));
    QCOMPARE(keys.at(1)->text(), QStringLiteral("A"));
    keyboard.switchButtonCaps(ZEMVirtualKeyboard::CapsOff);
    QCOMPARE(keys.at(0)->text(), QStringLiteral("caps"));
    keyboard.switchButtonCaps(ZEMVirtualKeyboard::CapsLock);
    call(&keyboard, "sendKey", 0); // the keyboard itself was in CapsOff all along
    QCOMPARE(keys.at(1)->text(), QStringLiteral("A"));
    call(&keyboard, "sendKey", 1);
    QCOMPARE(keys.at(1)->text(), QStringLiteral("a"));
}

void tst_ZEMVirtualKeyboard::looksFollowTheTouches()
{
    Board board(specialRow);
    QVERIFY(board.show());
    for (const char *name : {"CAPS", "a", "DELETE", "ENTER", "SPACE", "123"}) {
        board.factory.looks.clear();
        board.press(name);
        const QString text = QString::fromLatin1(name);
        QCOMPARE(board.factory.looks, QStringList(QLatin1Char('+') + text));
        QCOMPARE(ZemTest::render(board.key(name)).pixelColor(2, 2), QColor(Qt::red));
        board.release(name);
        QCOMPARE(board.factory.looks,
                 QStringList({QLatin1Char('+') + text, QLatin1Char('-') + text}));
    }
}

void tst_ZEMVirtualKeyboard::showRedrawsTheKeyPressedLast()
{
    Board board(specialRow);
    QVERIFY(board.show());
    board.press("a");
    board.keyboard->hide(); // the release will not come
    board.factory.looks.clear();
    board.keyboard->show();
    QVERIFY(!board.factory.looks.contains(QStringLiteral("-a")));
    QTRY_VERIFY(board.factory.looks.contains(QStringLiteral("-a")));
    QCOMPARE(board.factory.looks.size(), 1);

    Board empty("");
    QVERIFY(empty.show());
    QTest::qWait(100);
    QVERIFY(empty.factory.looks.isEmpty());
}

void tst_ZEMVirtualKeyboard::resizeRedrawsAllKeys()
{
    Board board(specialRow);
    QVERIFY(board.show());
    board.press("a");
    board.factory.looks.clear();
    board.keyboard->resize(board.keyboard->width() + 10, board.keyboard->height());
    QStringList expected;
    for (const char *name : {"CAPS", "a", "DELETE", "ENTER", "SPACE", "123"}) {
        expected.append(QLatin1Char('-') + QString::fromLatin1(name));
    }
    for (int i = 0; i < 10; ++i) {
        expected.append(QStringLiteral("-")); // the alternative keys, but not the preview
    }
    QCOMPARE(board.factory.looks, expected);
}

void tst_ZEMVirtualKeyboard::secondLoadSendsSeveralTimes()
{
    Board board("<row><key value='a'/></row>");
    QVERIFY(board.keyboard->load(board.files.write(keyboardFile("<row><key value='b'/></row>"))));
    QCOMPARE(board.pages->count(), 2);
    ZEMVirtualKey *a = board.keys.first();
    ZEMVirtualKey *b = board.pages->widget(0)->findChild<ZEMVirtualKey *>();
    QCOMPARE(b->name(), QStringLiteral("b"));
    Q_EMIT a->released(); // mapped twice, and each time heard twice
    QCOMPARE(board.target->takeText(), QStringLiteral("aaaa"));
    Q_EMIT b->released();
    QCOMPARE(board.target->takeText(), QStringLiteral("bb"));
    board.factory.looks.clear();
    Q_EMIT b->pressed();
    QCOMPARE(board.factory.looks.size(), 2);
}

void tst_ZEMVirtualKeyboard::secondFactoryRenewsThePopups()
{
    Board board("<row><key value='a' alternate='xy'/></row>");
    const QPointer<ZEMVirtualKey> preview(board.factory.preview);
    const QPointer<QWidget> background(board.factory.background);
    FlatFactory second;
    board.keyboard->setFactory(nullptr);
    QVERIFY(preview);
    board.keyboard->setFactory(&second);
    board.keyboard->setPopupParent(&board.host);
    QVERIFY(!preview);
    QVERIFY(!background);
    board.factory.background = second.background;
    QCOMPARE(second.background->parentWidget(), &board.host);
    QVERIFY(board.show());
    second.looks.clear();
    board.press("a");
    QCOMPARE(second.looks, QStringList(QStringLiteral("+a")));
    QVERIFY(second.preview->isVisible());
    QVERIFY(board.holdOn());
    board.release("a");
    board.alternative(1)->click();
    QCOMPARE(board.target->takeText(), QStringLiteral("y"));
}

void tst_ZEMVirtualKeyboard::badIndicesDoNothing()
{
    Board board(specialRow);
    QVERIFY(board.show());
    for (const int index : {-1, 10, 1000000}) {
        for (const char *slot :
             {"buttonPressed", "buttonReleased", "sendKey", "slotSendAlternativeChar"}) {
            call(board.keyboard, slot, index);
        }
    }
    call(board.keyboard, "slotDisplayAlternatives");
    QVERIFY(board.target->take().isEmpty());
    QVERIFY(board.factory.looks.isEmpty());
    QVERIFY(board.isPanelClosed());
}

void tst_ZEMVirtualKeyboard::keyboardWithoutFactory()
{
    QWidget host;
    auto *keyboard = new ZEMVirtualKeyboard(&host);
    keyboard->setFactory(nullptr);
    keyboard->setPopupParent(&host);
    host.resize(200, 100);
    host.show();
    keyboard->resize(150, 50);
    QTest::qWait(80);
    for (const char *slot : {"slotDisplayAlternatives", "slotUpdateLastPressedButton"}) {
        call(keyboard, slot);
    }
    for (const char *slot :
         {"buttonPressed", "buttonReleased", "sendKey", "slotSendAlternativeChar"}) {
        call(keyboard, slot, 0);
    }
    keyboard->hide();
    QCOMPARE(keyboard->findChildren<ZEMVirtualKey *>().size(), 0);
}

void tst_ZEMVirtualKeyboard::typesIntoALineEdit()
{
    Board board("<row><key value='CAPS'/><key value='h'/><key value='i'/><key value='DELETE'/>"
                "<key value='SPACE'/><key value='ENTER'/></row>");
    QLineEdit edit(&board.host);
    QSignalSpy returned(&edit, &QLineEdit::returnPressed);
    QSignalSpy edited(&edit, &QLineEdit::textEdited);
    board.keyboard->setFocusWidget(&edit);
    QVERIFY(board.show());
    for (const char *name : {"CAPS", "h", "i", "SPACE", "i", "i", "DELETE", "ENTER"}) {
        board.tap(name);
        QCoreApplication::processEvents();
    }
    QCOMPARE(edit.text(), QStringLiteral("Hi i"));
    QCOMPARE(edited.count(), 6);
    QCOMPARE(returned.count(), 1);
}

QTEST_MAIN(tst_ZEMVirtualKeyboard)
#include "tst_zemvirtualkeyboard.moc"
