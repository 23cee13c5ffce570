// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "keyboardtest.h"
#include "zemtest.h"

#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QWindow>

using namespace KeyboardTest;
using ZemTest::PaintCounter;

/** How keys are painted while they are touched, and what is beneath them. */
class tst_KeyTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTouchPaintsTheKeyTwice_data();
    void aTouchPaintsTheKeyTwice();
    void screenShowsTheTouch();
    void keysThatDrawTheirOwnLook();
    void otherButtonsHoldNothingBack();
    void touchThatAFilterTakes();
    void releaseBesideTheKey();
    void disabledUpdatesStayDisabled();
    void listenersFindAPaintedKey();
    void keyboardThatGoesInATouch();
    void frameOfThePages_data();
    void frameOfThePages();
};

namespace {

const char row[] = "<row><key value='a' alternate='xyz'/><key value='b'/><key value='CAPS'/>"
                   "<key value='ENTER'/></row>";

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/** What the screen shows of a window, as opposed to what its widgets would paint. */
QImage screenOf(const QWidget &window)
{
    const QPixmap shot = window.windowHandle()->screen()->grabWindow(window.winId());
    return shot.toImage().convertToFormat(QImage::Format_RGB32);
}

QColor onScreen(const Board &board, const char *key)
{
    constexpr QPoint inset(3, 3); // clear of the text
    return screenOf(board.host).pixelColor(board.key(key)->mapTo(&board.host, inset));
}

/** A key that follows the button itself. */
class OwnKey : public ZEMVirtualKey
{
public:
    explicit OwnKey(const QString &name) : ZEMVirtualKey(name) { }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).fillRect(rect(), isDown() ? Qt::green : Qt::blue);
    }
};

/** Takes presses before the key gets them. */
class PressTaker : public QObject
{
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        return event->type() == QEvent::MouseButtonPress;
    }
};

ZEM_BEGIN_INTERFACES // the interface has no destructor

class OwnKeyFactory : public FlatFactory
{
public:
    ZEMVirtualKey *createKey(const QString &name) override
    {
        auto *key = new OwnKey(name);
        key->setFixedSize(keySide, keySide);
        return key;
    }
    void changeKeyStylesheet(ZEMVirtualKey * /*key*/, bool /*pressed*/) override { }
};

class TakenFactory : public FlatFactory
{
public:
    ZEMVirtualKey *createKey(const QString &name) override
    {
        ZEMVirtualKey *key = FlatFactory::createKey(name);
        key->installEventFilter(&taker);
        return key;
    }

    PressTaker taker;
};

ZEM_END_INTERFACES

} // namespace

void tst_KeyTouch::aTouchPaintsTheKeyTwice_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("with alternatives") << QByteArray("a");
    QTest::newRow("plain") << QByteArray("b");
    QTest::newRow("caps") << QByteArray("CAPS");
    QTest::newRow("enter") << QByteArray("ENTER");
}

void tst_KeyTouch::aTouchPaintsTheKeyTwice()
{
    QFETCH(QByteArray, name);
    Board board(row, "popup='0'");
    QVERIFY(board.show());
    settle();

    const PaintCounter counter(board.key(name));
    board.press(name);
    QCOMPARE(counter.count, 1);
    settle();
    QCOMPARE(counter.count, 1);
    board.release(name);
    QCOMPARE(counter.count, 2);
    settle();
    QCOMPARE(counter.count, 2);
}

void tst_KeyTouch::screenShowsTheTouch()
{
    Board board(row);
    QVERIFY(board.show());
    settle();
    const QImage before = screenOf(board.host);
    QCOMPARE(onScreen(board, "a"), QColor(Qt::gray));
    for (int time = 0; time < 2; ++time) {
        board.press("a");
        QCOMPARE(onScreen(board, "a"), QColor(Qt::red));
        settle();
        QVERIFY(board.factory.preview->isVisible());
        QCOMPARE(screenOf(board.host),
                 board.host.grab().toImage().convertToFormat(QImage::Format_RGB32));
        board.release("a");
        QCOMPARE(onScreen(board, "a"), QColor(Qt::gray));
        settle();
        QCOMPARE(screenOf(board.host), before);
    }
}

void tst_KeyTouch::keysThatDrawTheirOwnLook()
{
    const Files files;
    OwnKeyFactory factory;
    QWidget host;
    auto *keyboard = new ZEMVirtualKeyboard(&host);
    keyboard->setFactory(&factory);
    QVERIFY(keyboard->load(files.write(keyboardFile(row, "popup='0'"))));
    keyboard->resize(keyboard->sizeHint());
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    settle();

    auto *key = keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>();
    const QPoint place = key->mapTo(&host, QPoint(1, 1));
    QCOMPARE(screenOf(host).pixelColor(place), QColor(Qt::blue));
    ZemTest::press(key, {5, 5});
    settle();
    QCOMPARE(screenOf(host).pixelColor(place), QColor(Qt::green));
    ZemTest::release(key, {5, 5});
    settle();
    QCOMPARE(screenOf(host).pixelColor(place), QColor(Qt::blue));
}

void tst_KeyTouch::otherButtonsHoldNothingBack()
{
    Board board(row);
    QVERIFY(board.show());
    ZemTest::press(board.key("a"), {5, 5}, Qt::RightButton);
    QVERIFY(board.key("a")->updatesEnabled());
    ZemTest::release(board.key("a"), {5, 5}, Qt::RightButton);
    QVERIFY(board.key("a")->updatesEnabled());
}

void tst_KeyTouch::touchThatAFilterTakes()
{
    const Files files;
    TakenFactory factory;
    QWidget host;
    auto *keyboard = new ZEMVirtualKeyboard(&host);
    keyboard->setFactory(&factory);
    QVERIFY(keyboard->load(files.write(keyboardFile(row))));
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));

    auto *key = keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>();
    ZemTest::press(key, {5, 5});
    settle();
    QVERIFY(!key->isDown());
    QVERIFY(key->updatesEnabled());
    const PaintCounter counter(key);
    key->setBackground(ZemTest::flatPixmap(key->size(), Qt::green));
    QCOMPARE(counter.count, 1);
}

void tst_KeyTouch::releaseBesideTheKey()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    ZemTest::release(board.key("a"), {-20, -20});
    settle();
    QVERIFY(board.key("a")->updatesEnabled());
    board.tap("b");
    settle();
    QVERIFY(board.key("b")->updatesEnabled());
}

void tst_KeyTouch::disabledUpdatesStayDisabled()
{
    Board board(row);
    QVERIFY(board.show());
    settle();
    ZEMVirtualKey *key = board.key("a");
    key->setUpdatesEnabled(false);
    const PaintCounter counter(key);
    board.tap("a");
    settle();
    QVERIFY(!key->updatesEnabled());
    QCOMPARE(counter.count, 0);
    key->setUpdatesEnabled(true);
    settle();
    QCOMPARE(counter.count, 1);
}

/** A listener may run an event loop of its own, in which the key has to be painted as ever. */
void tst_KeyTouch::listenersFindAPaintedKey()
{
    Board board(row);
    QVERIFY(board.show());
    settle();
    ZEMVirtualKey *key = board.key("ENTER");
    int heard = 0;
    connect(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter, board.keyboard, [&] {
        ++heard;
        QVERIFY(key->updatesEnabled());
        const PaintCounter counter(key);
        settle();
        QCOMPARE(counter.count, 1);
    });
    board.tap("ENTER");
    QCOMPARE(heard, 1);
}

void tst_KeyTouch::keyboardThatGoesInATouch()
{
    Board board(row);
    QVERIFY(board.show());
    const QPointer<ZEMVirtualKeyboard> keyboard(board.keyboard);
    connect(board.keyboard, &ZEMVirtualKeyboard::sigKey_enter, &board.host,
            [&] { delete board.keyboard; });
    board.tap("ENTER");
    settle();
    QVERIFY(!keyboard);
}

enum class Sheet { None, OfTheStack, OfTheHost, OfTheApplication };
Q_DECLARE_METATYPE(Sheet)

void tst_KeyTouch::frameOfThePages_data()
{
    QTest::addColumn<Sheet>("sheet");
    QTest::addColumn<QString>("look");
    const QString border = QStringLiteral("border: 3px solid #ff0000");
    const QString ground = QStringLiteral("background: #ff0000; padding: 3px");
    QTest::newRow("frame") << Sheet::None << QString();
    QTest::newRow("border") << Sheet::OfTheStack << border;
    QTest::newRow("border from the host") << Sheet::OfTheHost << border;
    QTest::newRow("border from the application") << Sheet::OfTheApplication << border;
    QTest::newRow("ground") << Sheet::OfTheStack << ground;
    QTest::newRow("ground from the host") << Sheet::OfTheHost << ground;
    QTest::newRow("ground from the application") << Sheet::OfTheApplication << ground;
}

void tst_KeyTouch::frameOfThePages()
{
    QFETCH(Sheet, sheet);
    QFETCH(QString, look);
    Board board(row);
    QVERIFY(board.show());
    settle();
    const QPoint corner = board.pages->mapTo(&board.host, QPoint(1, 1));
    QVERIFY(screenOf(board.host).pixelColor(corner) != QColor(Qt::red));

    const QString rule = QStringLiteral("QStackedWidget { %1 }").arg(look);
    switch (sheet) {
    case Sheet::None: {
        QPalette red = board.pages->palette();
        red.setColor(QPalette::WindowText, Qt::red);
        board.pages->setPalette(red);
        board.pages->setLineWidth(3);
        board.pages->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
        break;
    }
    case Sheet::OfTheStack:
        board.pages->setStyleSheet(rule);
        break;
    case Sheet::OfTheHost:
        board.host.setStyleSheet(rule);
        break;
    case Sheet::OfTheApplication:
        qApp->setStyleSheet(rule);
        break;
    }
    settle();
    QTest::qWait(30);
    const QColor seen = screenOf(board.host).pixelColor(corner);
    qApp->setStyleSheet(QString());
    QCOMPARE(seen, QColor(Qt::red));
}

QTEST_MAIN(tst_KeyTouch)
#include "tst_keytouch.moc"
