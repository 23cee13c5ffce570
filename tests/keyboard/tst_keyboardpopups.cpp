// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogtest.h"
#include "keyboardtest.h"

#include <ZEMLineEditDialog>

#include <QTimer>

using namespace KeyboardTest;
using Intf = ZEMVirtualKeyboardFactoryIntf;

Q_DECLARE_METATYPE(Intf::KeyboardPopupStyle)

class tst_KeyboardPopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenFromTheStart();
    void popupParentTakesAllThree();
    void previewFollowsThePress();
    void specialKeysHaveNoPopups_data();
    void specialKeysHaveNoPopups();
    void popupAttribute_data();
    void popupAttribute();
    void factoryWithoutPreview();
    void panelOpensAfterTheHoldTime();
    void releaseBeforeTheTimeSends();
    void panelStaysUntilATouch();
    void pressClosesThePanelAndSends();
    void emptyPanel();
    void clippedAtTen();
    void panelIsRefilled();
    void lostAlternativeKeyIsLeftOut();
    void twoKeysAtOnce();
    void secondKeyWithoutAlternatives();
    void specialKeyIsNeverOffered();
    void hiddenDuringTheHold();
    void keyThatIsPutUp();
    void heldKeyOfAnotherPage();
    void holdOutlivesASwitchOfKeyboards();
    void releasedWhileHidden();
    void shownAgainDuringTheHold();
    void hideClosesThePanel();
    void places_data();
    void places();
    void placesOfAnUnparentedPopup();
};

namespace {

const char row[] = "<row><key value='a' alternate='xyz'/><key value='b'/>"
                   "<key value='c' alternate='12'/></row>";

} // namespace

void tst_KeyboardPopups::hiddenFromTheStart()
{
    const Files files;
    FlatFactory factory;
    ZEMVirtualKeyboard keyboard;
    keyboard.show();
    keyboard.setFactory(&factory);
    QCOMPARE(factory.preview->parentWidget(), &keyboard);
    QCOMPARE(factory.background->parentWidget(), &keyboard);
    const auto children = keyboard.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(children.size(), 14); // pages, ten keys, preview, background, panel
    for (const QWidget *child : children) {
        QCOMPARE(child->isHidden(), !qobject_cast<const QStackedWidget *>(child));
    }
    const QLayout *layout = children.last()->layout();
    QVERIFY(layout);
    QCOMPARE(layout->metaObject()->className(), "QHBoxLayout");
    QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(layout->spacing(), 1);
}

void tst_KeyboardPopups::popupParentTakesAllThree()
{
    Board board(row);
    QCOMPARE(board.factory.preview->parentWidget(), &board.host);
    QCOMPARE(board.factory.background->parentWidget(), &board.host);
    QCOMPARE(board.panel()->parentWidget(), &board.host);
    const QObjectList &children = board.host.children();
    const int preview = children.indexOf(board.factory.preview);
    QCOMPARE(children.indexOf(board.factory.background), preview + 1);
    QCOMPARE(children.indexOf(board.panel()), preview + 2);
    QVERIFY(board.factory.preview->isHidden());
    QVERIFY(board.factory.background->isHidden());
    QVERIFY(board.panel()->isHidden());
}

void tst_KeyboardPopups::previewFollowsThePress()
{
    Board board(row);
    QVERIFY(board.show());
    const ZEMVirtualKey *preview = board.factory.preview;
    board.press("a");
    QVERIFY(preview->isVisible());
    QCOMPARE(preview->text(), QStringLiteral("a"));
    board.release("a");
    QVERIFY(!preview->isVisible());

    board.press("b");
    QVERIFY(preview->isVisible());
    QCOMPARE(preview->text(), QStringLiteral("b"));
    QCOMPARE(preview->x(), 30 + board.key("b")->x() + 5);
    board.release("b");
    QVERIFY(!preview->isVisible());
}

void tst_KeyboardPopups::specialKeysHaveNoPopups_data()
{
    QTest::addColumn<QByteArray>("key");
    for (const char *key : {"value='CAPS'", "value='DELETE'", "value='ENTER'", "value='SPACE'",
                            "value='a' layout='0'"}) {
        QTest::newRow(key) << QByteArray(key);
    }
}

void tst_KeyboardPopups::specialKeysHaveNoPopups()
{
    QFETCH(QByteArray, key);
    Board board("<row><key alternate='xyz' " + key + "/></row>");
    QVERIFY(board.show());
    ZemTest::press(board.keys.first(), QPoint(9, 9));
    QCOMPARE(board.factory.looks.size(), 1);
    QVERIFY(!board.factory.preview->isVisible());
    QVERIFY(!board.timer->isActive());
    ZemTest::release(board.keys.first(), QPoint(9, 9));
}

void tst_KeyboardPopups::popupAttribute_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<bool>("preview");
    QTest::addColumn<bool>("panel");
    QTest::newRow("none") << QByteArray() << true << true;
    QTest::newRow("no number") << QByteArray("popup='x'") << true << true;
    QTest::newRow("-1") << QByteArray("popup='-1'") << true << true;
    QTest::newRow("0") << QByteArray("popup='0'") << false << false;
    QTest::newRow("1") << QByteArray("popup='1'") << true << true;
    QTest::newRow("2") << QByteArray("popup='2'") << false << true;
    QTest::newRow("3") << QByteArray("popup='3'") << true << true;
}

void tst_KeyboardPopups::popupAttribute()
{
    QFETCH(QByteArray, attribute);
    QFETCH(bool, panel);
    Board board(row, attribute);
    QVERIFY(board.show());
    board.press("a");
    QTEST(board.factory.preview->isVisible(), "preview");
    QCOMPARE(board.timer->isActive(), panel);
    QCOMPARE(board.holdOn(), panel);
    QCOMPARE(board.isPanelOpen(), panel);
    board.release("a");
    QCOMPARE(board.target->takeText(), panel ? QString() : QStringLiteral("a"));
}

void tst_KeyboardPopups::factoryWithoutPreview()
{
    Board board(row, QByteArray(), false);
    QVERIFY(board.show());
    board.tap("b");
    board.press("a");
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelOpen());
    board.release("a");
    board.keyboard->hide();
    QVERIFY(board.isPanelClosed());
    QCOMPARE(board.target->takeText(), QStringLiteral("b"));
}

void tst_KeyboardPopups::panelOpensAfterTheHoldTime()
{
    Board board(row);
    QVERIFY(board.show());
    QCOMPARE(ZEMVirtualKeyboard().findChild<QTimer *>()->interval(), 750);
    board.timer->setInterval(750);
    board.press("a");
    QVERIFY(board.timer->isActive());
    QVERIFY(board.isPanelClosed());
    QTRY_VERIFY_WITH_TIMEOUT(board.isPanelOpen(), 60000);
    QVERIFY(!board.factory.preview->isVisible());
    QCOMPARE(board.offered(), QStringLiteral("xyz"));
    board.release("a");
    QCOMPARE(board.factory.looks.last(), QStringLiteral("-a"));
    QVERIFY(board.target->take().isEmpty());
    QVERIFY(board.isPanelOpen());
}

void tst_KeyboardPopups::releaseBeforeTheTimeSends()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.timer->isActive());
    board.release("a");
    QVERIFY(!board.timer->isActive());
    QVERIFY(board.isPanelClosed());
    QCOMPARE(board.target->takeText(), QStringLiteral("a"));
}

void tst_KeyboardPopups::panelStaysUntilATouch()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    QTest::qWait(900);
    QVERIFY(board.isPanelOpen());
    board.alternative(2)->click();
    QVERIFY(board.isPanelClosed());
    QCOMPARE(board.target->takeText(), QStringLiteral("z"));
}

void tst_KeyboardPopups::pressClosesThePanelAndSends()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    board.press("b");
    QVERIFY(board.isPanelClosed());
    board.release("b");
    QCOMPARE(board.target->takeText(), QStringLiteral("b"));

    // While the panel is open, nothing else is sent, but the preview is hidden.
    board.press("a");
    QVERIFY(board.holdOn());
    board.factory.preview->setVisible(true);
    call(board.keyboard, "sendKey", board.index("b"));
    QVERIFY(!board.factory.preview->isVisible());
    QVERIFY(board.isPanelOpen());
    QVERIFY(board.target->take().isEmpty());
}

void tst_KeyboardPopups::emptyPanel()
{
    Board board("<row><key value='a' alternate=''/></row>");
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelOpen());
    QCOMPARE(board.offered(), QString());
    QCOMPARE(board.panel()->size(), QSize(10, 10)); // its margins
    QCOMPARE(board.factory.background->size(), QSize(10, 10));
    board.release("a");
    QVERIFY(board.target->take().isEmpty());
}

void tst_KeyboardPopups::clippedAtTen()
{
    Board board("<row><key value='a' alternate='0123456789ABCDEFG'/></row>");
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    QCOMPARE(board.offered(), QStringLiteral("0123456789"));
    QCOMPARE(board.panel()->size(), QSize(10 * popupSide + 9 + 10, popupSide + 10));
    board.release("a");
    board.alternative(9)->click();
    QCOMPARE(board.target->takeText(), QStringLiteral("9"));
}

void tst_KeyboardPopups::panelIsRefilled()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    QCOMPARE(board.panel()->width(), 3 * popupSide + 2 + 10);
    board.release("a");
    board.press("c");
    QVERIFY(board.holdOn());
    QCOMPARE(board.offered(), QStringLiteral("12"));
    QCOMPARE(board.panel()->size(), QSize(2 * popupSide + 1 + 10, popupSide + 10));
    QCOMPARE(board.factory.background->size(), board.panel()->size());
    const auto pool = board.panel()->findChildren<ZEMVirtualKey *>();
    QCOMPARE(pool.size(), 3);
    for (const ZEMVirtualKey *key : pool) {
        QCOMPARE(key->isVisible(), key->text() != QStringLiteral("z"));
    }
    board.release("c");
    board.alternative(0)->click();
    QCOMPARE(board.target->takeText(), QStringLiteral("1"));
}

void tst_KeyboardPopups::lostAlternativeKeyIsLeftOut()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    delete board.alternative(0);
    board.press("a");
    QVERIFY(board.holdOn());
    QCOMPARE(board.offered(), QStringLiteral("yz"));
}

void tst_KeyboardPopups::twoKeysAtOnce()
{
    Board board(row);
    QVERIFY(board.show());
    call(board.keyboard, "buttonPressed", 0);
    call(board.keyboard, "buttonPressed", 2);
    QCOMPARE(board.factory.looks, QStringList({QStringLiteral("+a"), QStringLiteral("+c")}));
    call(board.keyboard, "buttonReleased", 0); // acts on its own key and ends every hold
    QCOMPARE(board.target->takeText(), QStringLiteral("a"));
    QVERIFY(!board.timer->isActive());
    QVERIFY(!board.factory.preview->isVisible());
    call(board.keyboard, "slotUpdateLastPressedButton");
    QCOMPARE(board.factory.looks.last(), QStringLiteral("-c"));
    call(board.keyboard, "buttonReleased", 2);
    QCOMPARE(board.target->takeText(), QStringLiteral("c"));

    call(board.keyboard, "buttonPressed", 0);
    call(board.keyboard, "buttonPressed", 2);
    QVERIFY(board.holdOn());
    QCOMPARE(board.offered(), QStringLiteral("12")); // those of the later press
    call(board.keyboard, "buttonReleased", 2);
    call(board.keyboard, "buttonReleased", 0);
    QVERIFY(board.target->take().isEmpty());
    QVERIFY(board.isPanelOpen());
}

void tst_KeyboardPopups::secondKeyWithoutAlternatives()
{
    Board board(row);
    QVERIFY(board.show());
    call(board.keyboard, "buttonPressed", 0);
    call(board.keyboard, "buttonPressed", 1);
    QVERIFY(board.holdOn()); // that of the first key, for the second one
    QVERIFY(board.isPanelOpen());
    QCOMPARE(board.offered(), QString());
}

void tst_KeyboardPopups::specialKeyIsNeverOffered()
{
    Board board("<row><key value='a' alternate='xyz'/><key value='CAPS' alternate='uvw'/></row>");
    QVERIFY(board.show());
    call(board.keyboard, "buttonPressed", 0);
    call(board.keyboard, "buttonPressed", 1);
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelClosed());
}

void tst_KeyboardPopups::hiddenDuringTheHold()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    board.keyboard->hide();
    QVERIFY(!board.factory.preview->isVisible());
    QVERIFY(board.isPanelClosed());
    QVERIFY(board.holdOn()); // a hold outlives the keyboard's being seen
    QVERIFY(board.isPanelClosed());
    board.keyboard->show();
    QVERIFY(board.isPanelClosed());
    board.tap("b");
    QVERIFY(board.isPanelClosed());
    QCOMPARE(board.target->takeText(), QStringLiteral("b"));
}

/** A key that a host puts up does not tell of it. */
void tst_KeyboardPopups::keyThatIsPutUp()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    board.key("a")->setDown(false);
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelClosed());
    QVERIFY(!board.factory.preview->isVisible());
    QVERIFY(board.target->take().isEmpty());
}

void tst_KeyboardPopups::heldKeyOfAnotherPage()
{
    Board board("<row><key value='1' layout='1'/></row></layout><layout id='1'>"
                "<row><key value='a' alternate='xyz'/></row>");
    QVERIFY(board.show());
    board.tap("1");
    board.press("a");
    board.keyboard->hide();
    board.keyboard->show(); // with its first page
    QVERIFY(board.key("a")->isDown());
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelClosed());
}

/** The keyboards of a dialog take turns in one place. */
void tst_KeyboardPopups::holdOutlivesASwitchOfKeyboards()
{
    InputDialogTest::Stage<ZEMLineEditDialog> stage;
    QVERIFY(stage.isReady);
    auto *letters = stage.dialog->findChild<ZEMVirtualKeyboard *>();
    ZEMVirtualKey *held = InputDialogTest::keyOf(*letters, "a");
    held->setAlternateKeys(QStringLiteral(";:"));
    auto *ascii = stage.keyboards.make();
    stage.dialog->setAsciiKeyboard(ascii);
    stage.dialog->setAutoSelect(false);
    stage.dialog->show();
    QCoreApplication::processEvents();
    ZemTest::press(held, held->rect().center());
    stage.dialog->setAsciiInputMode(true);
    auto *timer = letters->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer->isActive());
    timer->setInterval(1);
    QTRY_VERIFY(!timer->isActive());
    for (const ZEMVirtualKey *key : stage.dialog->findChildren<ZEMVirtualKey *>()) {
        QVERIFY(!key->isVisible() || ascii->isAncestorOf(key)); // nothing covers the keyboard
    }
    InputDialogTest::type(ascii, "b");
    QTRY_COMPARE(stage.dialog->text(), QStringLiteral("b"));
}

void tst_KeyboardPopups::releasedWhileHidden()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    board.keyboard->hide();
    board.release("a");
    QVERIFY(!board.timer->isActive());
    QVERIFY(board.isPanelClosed());
}

void tst_KeyboardPopups::shownAgainDuringTheHold()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    board.keyboard->hide();
    board.keyboard->show();
    QVERIFY(board.isPanelClosed());
    QVERIFY(board.holdOn());
    QVERIFY(board.isPanelOpen());
    QCOMPARE(board.offered(), QStringLiteral("xyz"));
}

void tst_KeyboardPopups::hideClosesThePanel()
{
    Board board(row);
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.holdOn());
    board.release("a");
    board.keyboard->hide();
    QVERIFY(board.panel()->isHidden());
    QVERIFY(board.factory.background->isHidden());
    board.keyboard->show();
    QVERIFY(board.isPanelClosed());
}

void tst_KeyboardPopups::places_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<Intf::KeyboardPopupStyle>("style");
    QTest::addColumn<QPoint>("preview"); // from the key's corner
    QTest::addColumn<bool>("below");
    QTest::addColumn<bool>("atTheRight");

    // Three rows of 50 pixels with 9 between them: above the second there is room for a popup of 40
    // pixels and for a panel of 50.
    const auto cases = [](const char *name, Intf::KeyboardPopupStyle style, bool below) {
        for (const char *key : {"left", "wide", "right"}) {
            const QByteArray full = QByteArray(name) + '-' + key;
            const int width = qstrcmp(key, "wide") == 0 ? 100 : 50;
            QTest::addRow("%s, style %d", full.constData(), style)
                << full << style << QPoint((width - popupSide) / 2, below ? 55 : -45) << below
                << (qstrcmp(key, "right") == 0);
        }
    };
    cases("top", Intf::PopupAbove, false);
    cases("top", Intf::PopupFlip, true);
    cases("second", Intf::PopupAbove, false);
    cases("second", Intf::PopupFlip, false);
    cases("bottom", Intf::PopupAbove, false);
    cases("bottom", Intf::PopupFlip, false);
}

void tst_KeyboardPopups::places()
{
    QFETCH(QByteArray, key);
    QFETCH(Intf::KeyboardPopupStyle, style);
    QFETCH(QPoint, preview);
    QFETCH(bool, below);
    QFETCH(bool, atTheRight);

    QByteArray rows;
    for (const QByteArray name : {"top", "second", "bottom"}) {
        rows += "<row><key value='" + name + "-left' alternate='123'/><key value='" + name
            + "-wide' size='2' alternate='123'/><key value='" + name
            + "-right' alternate='123'/></row>";
    }
    Board board(rows);
    board.keyboard->setPopupStyle(style);
    QVERIFY(board.show());
    const QRect keyboard = board.keyboard->geometry();
    const ZEMVirtualKey *pressed = board.key(key.constData());
    const QPoint corner = pressed->mapTo(&board.host, QPoint());

    board.press(key.constData());
    QCOMPARE(board.factory.preview->pos(), corner + preview);
    QVERIFY(board.holdOn());
    const QSize panel = board.panel()->size();
    QCOMPARE(panel, QSize(3 * popupSide + 2 + 10, 50));
    const int rightmost = keyboard.x() + keyboard.width() - panel.width();
    QCOMPARE(corner.x() > rightmost, atTheRight);
    QCOMPARE(board.panel()->pos(),
             QPoint(atTheRight ? rightmost : corner.x(), corner.y() + (below ? 55 : -55)));
    QCOMPARE(board.factory.background->geometry(), board.panel()->geometry());
}

void tst_KeyboardPopups::placesOfAnUnparentedPopup()
{
    // The popups are placed in the coordinates of the parent even while they are the keyboard's.
    Board board(row);
    board.keyboard->setPopupParent(board.keyboard);
    QVERIFY(board.show());
    board.press("a");
    QCOMPARE(board.factory.preview->pos(), QPoint(30 + 5, 100 - 45));
}

QTEST_MAIN(tst_KeyboardPopups)
#include "tst_keyboardpopups.moc"
