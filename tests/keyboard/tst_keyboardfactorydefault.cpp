// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/messagelog.h"
#include "../widgets/widgettest.h"
#include "keyboardtest.h"
#include "sizehash_p.h"
#include "zemtest.h"

#include <KeyboardFactoryDefault>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

using namespace KeyboardTest;
using Intf = ZEMVirtualKeyboardFactoryIntf;

Q_DECLARE_METATYPE(Intf::KeyboardPopupStyle)
Q_DECLARE_METATYPE(QMargins)

class tst_KeyboardFactoryDefault : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void popupStylesHaveTheirNumbers();
    void asciiKeyboardIsOptional();
    void operationsStandInOrder();
    void spacings();
    void keys_data();
    void keys();
    void popupKeys();
    void panelBackground();
    void textIsBlack();
    void hashOfASize();
    void hashOfASizeIsNotForAll();
    void pictureIsBuiltOnce();
    void picturesOfBothStates();
    void sizesWithoutAPicture();
    void pressedLook();
    void lookIsPaintedAtOnce();
    void subclassChangesTheLook();
    void keyboardOfTheLanguage_data();
    void keyboardOfTheLanguage();
    void fallback();
    void percentSignsInThePath();
    void asciiKeyboard();
    void asciiKeyboardThatIsMissing();
    void numericKeypad();
    void keyboardOutlivesTheFactory();
};

namespace {

QByteArray oneKey(const char *name)
{
    return keyboardFile(QByteArray("<row><key value='") + name + "'/></row>");
}

QString firstKey(const ZEMVirtualKeyboard *keyboard)
{
    return keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>()->name();
}

QMargins pageMargins(const ZEMVirtualKeyboard *keyboard)
{
    return keyboard->findChild<QStackedWidget *>()->widget(0)->layout()->contentsMargins();
}

/** The buttons that pictures were taken from. */
int renderButtons()
{
    int count = 0;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        count += qobject_cast<const QPushButton *>(widget) ? 1 : 0;
    }
    return count;
}

ZEM_BEGIN_INTERFACES // the class has no virtual destructor

class GreenFactory : public KeyboardFactoryDefault
{
public:
    GreenFactory() : KeyboardFactoryDefault(QString(), QString()) { }

    void styleButton(ZEMVirtualKey *key) override { key->setToolTip(QStringLiteral("styled")); }
    QPixmap getBackground(QSize size, bool pressed) override
    {
        return ZemTest::flatPixmap(size, pressed ? Qt::darkGreen : Qt::green);
    }
};

class NoAsciiFactory : public ZEMVirtualKeyboardFactoryIntf
{
public:
    ZEMVirtualKeyboard *createKeyboard(KeyboardPopupStyle) override { return nullptr; }
    ZEMVirtualKeyboard *createNumericKeypad() override { return nullptr; }
};

ZEM_END_INTERFACES

} // namespace

void tst_KeyboardFactoryDefault::popupStylesHaveTheirNumbers()
{
    QCOMPARE(int(Intf::PopupAbove), 0);
    QCOMPARE(int(Intf::PopupFlip), 1);
}

void tst_KeyboardFactoryDefault::asciiKeyboardIsOptional()
{
    NoAsciiFactory factory;
    ZEMVirtualKeyboardFactoryIntf *intf = &factory;
    QVERIFY(!intf->createAsciiKeyboard(Intf::PopupAbove));
}

void tst_KeyboardFactoryDefault::operationsStandInOrder()
{
#ifdef Q_PROCESSOR_X86_64
    // Here a pointer to a virtual member begins with its place in the virtual table, plus one.
    const auto place = [](auto operation) {
        std::ptrdiff_t offset = 0;
        std::memcpy(&offset, &operation, sizeof(offset));
        return (offset - 1) / std::ptrdiff_t(sizeof(void *));
    };
    using Default = KeyboardFactoryDefault;
    using KeyIntf = ZEMVirtualKeyFactoryIntf;
    const QVector<std::ptrdiff_t> places {place(&Default::createKeyboard),
                                          place(&Default::createNumericKeypad),
                                          place(&Default::createAsciiKeyboard),
                                          place(&Default::createKey),
                                          place(&Default::createAlternateKey),
                                          place(&Default::createPopupKey),
                                          place(&Default::createPopupKeysBackground),
                                          place(&Default::changeKeyStylesheet),
                                          place(&Default::hSpacing),
                                          place(&Default::vSpacing),
                                          place(&Default::styleButton),
                                          place(&Default::getBackground)};
    for (int i = 0; i < places.size(); ++i) {
        QCOMPARE(places.at(i), std::ptrdiff_t(i));
    }
    QCOMPARE(place(&Intf::createKeyboard), std::ptrdiff_t(0));
    QCOMPARE(place(&Intf::createNumericKeypad), std::ptrdiff_t(1));
    QCOMPARE(place(&Intf::createAsciiKeyboard), std::ptrdiff_t(2));
    QCOMPARE(place(&KeyIntf::createKey), std::ptrdiff_t(0));
    QCOMPARE(place(&KeyIntf::createAlternateKey), std::ptrdiff_t(1));
    QCOMPARE(place(&KeyIntf::createPopupKey), std::ptrdiff_t(2));
    QCOMPARE(place(&KeyIntf::createPopupKeysBackground), std::ptrdiff_t(3));
    QCOMPARE(place(&KeyIntf::changeKeyStylesheet), std::ptrdiff_t(4));
    QCOMPARE(place(&KeyIntf::hSpacing), std::ptrdiff_t(5));
    QCOMPARE(place(&KeyIntf::vSpacing), std::ptrdiff_t(6));
    QVERIFY(!std::has_virtual_destructor<Default>::value);
    QVERIFY(!std::has_virtual_destructor<KeyIntf>::value);
#else
    QSKIP("knows the layout of member pointers on x86-64 only");
#endif
}

void tst_KeyboardFactoryDefault::spacings()
{
    const KeyboardFactoryDefault factory({}, {});
    QCOMPARE(factory.hSpacing(), 10);
    QCOMPARE(factory.vSpacing(), 10);
}

void tst_KeyboardFactoryDefault::keys_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter") << QStringLiteral("a") << QStringLiteral("a");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("DELETE") << QStringLiteral("DELETE") << QStringLiteral("<-");
    QTest::newRow("delete") << QStringLiteral("delete") << QStringLiteral("delete");
    QTest::newRow("CAPS") << QStringLiteral("CAPS") << QStringLiteral("CAPS");
    QTest::newRow("ENTER") << QStringLiteral("ENTER") << QStringLiteral("ENTER");
    QTest::newRow("SPACE") << QStringLiteral("SPACE") << QStringLiteral("SPACE");
}

void tst_KeyboardFactoryDefault::keys()
{
    QFETCH(QString, name);
    KeyboardFactoryDefault factory({}, {});
    const std::unique_ptr<ZEMVirtualKey> key(factory.createKey(name));
    QCOMPARE(key->name(), name);
    QTEST(key->text(), "text");
    QVERIFY(!key->parentWidget());
    QCOMPARE(key->focusPolicy(), Qt::NoFocus);
    QCOMPARE(key->minimumSize(), QSize(50, 50));
    QCOMPARE(key->maximumSize(), QSize(50, 50));
    QCOMPARE(key->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(key->font().pointSize(), 16);
    QCOMPARE(key->getBackground().toImage(), factory.getBackground(QSize(50, 50), false).toImage());
    QVERIFY(key->styleSheet().isEmpty());
}

void tst_KeyboardFactoryDefault::popupKeys()
{
    KeyboardFactoryDefault factory({}, {});
    const std::unique_ptr<ZEMVirtualKey> alternate(factory.createAlternateKey());
    const std::unique_ptr<ZEMVirtualKey> popup(factory.createPopupKey());
    for (const ZEMVirtualKey *key : {alternate.get(), popup.get()}) {
        QVERIFY(key->name().isNull());
        QVERIFY(!key->parentWidget());
        QCOMPARE(key->focusPolicy(), Qt::NoFocus);
        QCOMPARE(key->size(), QSize(40, 40));
        QCOMPARE(key->minimumSize(), QSize(40, 40));
        QCOMPARE(key->maximumSize(), QSize(40, 40));
        QCOMPARE(key->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(key->font().pointSize(), 16);
        // Of the size that a new key has, and stretched.
        QCOMPARE(key->getBackground().size(), QSize(50, 50));
    }
}

void tst_KeyboardFactoryDefault::panelBackground()
{
    KeyboardFactoryDefault factory({}, {});
    const std::unique_ptr<QWidget> background(factory.createPopupKeysBackground());
    QVERIFY(qobject_cast<QLabel *>(background.get()));
    QVERIFY(!background->parentWidget());
    QCOMPARE(background->styleSheet(),
             QStringLiteral("background-color:rgb(200, 200, 200);border: 2px solid "
                            "#8f8f91;border-radius: 10px;"));
    background->resize(100, 60);
    const QImage image = ZemTest::render(background.get(), Qt::black);
    QCOMPARE(image.pixelColor(50, 30), QColor(200, 200, 200));
    QCOMPARE(image.pixelColor(50, 0), QColor(0x8f, 0x8f, 0x91));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black));
}

void tst_KeyboardFactoryDefault::textIsBlack()
{
    KeyboardFactoryDefault factory({}, {});
    ZEMVirtualKey key(QStringLiteral("a"));
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::green);
    palette.setColor(QPalette::WindowText, Qt::green);
    key.setPalette(palette);
    factory.styleButton(&key);
    QCOMPARE(key.palette().color(QPalette::Active, QPalette::ButtonText), QColor(Qt::black));
    QCOMPARE(key.palette().color(QPalette::Disabled, QPalette::ButtonText), QColor(Qt::black));
    QCOMPARE(key.palette().color(QPalette::WindowText), QColor(Qt::green));
    QCOMPARE(key.font().family(), QStringLiteral("Cabin"));
}

void tst_KeyboardFactoryDefault::hashOfASize()
{
    QCOMPARE(qHash(SizeKey(QSize(50, 50))), 0U);
    QCOMPARE(qHash(SizeKey(QSize(75, 50))), uint(75 ^ 50));
    QCOMPARE(qHash(SizeKey(QSize(50, 75))), qHash(SizeKey(QSize(75, 50))));
    QCOMPARE(SizeKey(QSize(50, 75)), SizeKey(QSize(50, 75)));
    QVERIFY(!(SizeKey(QSize(50, 75)) == SizeKey(QSize(75, 50))));
}

template <typename T, typename = void>
struct HasHash : std::false_type
{
};
template <typename T>
struct HasHash<T, std::void_t<decltype(qHash(std::declval<T>()))>> : std::true_type
{
};

/** Whether there is one for all, such as the library's own would be; that of Qt 6 takes a seed,
 * too. */
template <typename T, typename = void>
struct HasHashForAll : std::false_type
{
};
template <typename T>
struct HasHashForAll<T, std::void_t<decltype(static_cast<uint (*)(const T &)>(qHash))>>
    : std::true_type
{
};

void tst_KeyboardFactoryDefault::hashOfASizeIsNotForAll()
{
    QVERIFY(HasHash<SizeKey>::value);
    QVERIFY(!HasHashForAll<QSize>::value);
}

void tst_KeyboardFactoryDefault::pictureIsBuiltOnce()
{
    KeyboardFactoryDefault factory({}, {});
    const int before = renderButtons();
    const QPixmap released = factory.getBackground(QSize(61, 50), false);
    QCOMPARE(renderButtons(), before + 1);
    QCOMPARE(factory.getBackground(QSize(61, 50), false).cacheKey(), released.cacheKey());
    QCOMPARE(renderButtons(), before + 1);
    const QPixmap pressed = factory.getBackground(QSize(61, 50), true);
    QCOMPARE(renderButtons(), before + 2);
    QVERIFY(pressed.cacheKey() != released.cacheKey());
    // The same hash is not the same size.
    QCOMPARE(factory.getBackground(QSize(50, 61), false).size(), QSize(50, 61));
    QCOMPARE(renderButtons(), before + 3);
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        QVERIFY(!widget->isVisible());
    }
}

void tst_KeyboardFactoryDefault::picturesOfBothStates()
{
    KeyboardFactoryDefault factory({}, {});
    for (const bool pressed : {false, true}) {
        const QPixmap pixmap = factory.getBackground(QSize(80, 50), pressed);
        QCOMPARE(pixmap.size(), QSize(80, 50));
        const QImage image = pixmap.toImage();
        QCOMPARE(image.pixelColor(40, 25), pressed ? QColor(120, 120, 120) : QColor(200, 200, 200));
        for (const QPoint edge : {QPoint(40, 0), QPoint(40, 49), QPoint(0, 25), QPoint(79, 25)}) {
            QCOMPARE(image.pixelColor(edge), QColor(0x8f, 0x8f, 0x91));
        }
        for (const QPoint corner : {QPoint(0, 0), QPoint(79, 0), QPoint(0, 49), QPoint(79, 49)}) {
            QCOMPARE(image.pixelColor(corner).alpha(), 0);
        }
    }
}

void tst_KeyboardFactoryDefault::sizesWithoutAPicture()
{
    KeyboardFactoryDefault factory({}, {});
    for (const QSize size : {QSize(), QSize(0, 0), QSize(0, 50), QSize(50, -1), QSize(40000, 50),
                             QSize(50, QWIDGETSIZE_MAX)}) {
        QVERIFY(factory.getBackground(size, false).isNull());
        QVERIFY(factory.getBackground(size, true).isNull());
    }
    QCOMPARE(factory.getBackground(QSize(32767, 1), false).size(), QSize(32767, 1));
}

void tst_KeyboardFactoryDefault::pressedLook()
{
    KeyboardFactoryDefault factory({}, {});
    ZEMVirtualKey key(QStringLiteral("a"));
    key.resize(90, 40);
    factory.changeKeyStylesheet(&key, true);
    QCOMPARE(key.getBackground().cacheKey(), factory.getBackground(QSize(90, 40), true).cacheKey());
    QCOMPARE(key.minimumSize(), QSize(90, 40));
    factory.changeKeyStylesheet(&key, false);
    QCOMPARE(key.getBackground().cacheKey(),
             factory.getBackground(QSize(90, 40), false).cacheKey());
    QCOMPARE(key.size(), QSize(90, 40));
    QVERIFY(key.styleSheet().isEmpty());
}

void tst_KeyboardFactoryDefault::lookIsPaintedAtOnce()
{
    using namespace WidgetTest;
    KeyboardFactoryDefault factory({}, {});
    ZEMVirtualKey key(QStringLiteral("a"));
    key.resize(90, 40);
    const Stage stage(&key);
    QVERIFY(stage.isReady());
    for (const bool pressed : {true, false}) {
        QCOMPARE(paintedBy(&key, [&] { factory.changeKeyStylesheet(&key, pressed); }),
                 Painted::AtOnce);
    }
}

void tst_KeyboardFactoryDefault::subclassChangesTheLook()
{
    GreenFactory factory;
    const std::unique_ptr<ZEMVirtualKey> key(factory.createKey(QStringLiteral("a")));
    const std::unique_ptr<ZEMVirtualKey> alternate(factory.createAlternateKey());
    const std::unique_ptr<ZEMVirtualKey> popup(factory.createPopupKey());
    for (const ZEMVirtualKey *each : {key.get(), alternate.get(), popup.get()}) {
        QCOMPARE(each->toolTip(), QStringLiteral("styled"));
        QCOMPARE(each->getBackground().toImage().pixelColor(0, 0), QColor(Qt::green));
    }
    factory.changeKeyStylesheet(key.get(), true);
    QCOMPARE(key->getBackground().toImage().pixelColor(0, 0), QColor(Qt::darkGreen));
}

void tst_KeyboardFactoryDefault::keyboardOfTheLanguage_data()
{
    QTest::addColumn<Intf::KeyboardPopupStyle>("style");
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("above") << Intf::PopupAbove << QMargins(0, 46, 0, 2);
    QTest::newRow("flip") << Intf::PopupFlip << QMargins(0, 2, 0, 2);
}

void tst_KeyboardFactoryDefault::keyboardOfTheLanguage()
{
    QFETCH(Intf::KeyboardPopupStyle, style);
    const Files files;
    files.write(QStringLiteral("keyboard_nl.xml"), oneKey("n"));
    files.write(QStringLiteral("keyboard_en.xml"), oneKey("e"));
    KeyboardFactoryDefault factory(files.path(), QStringLiteral("nl"));
    QWidget host;
    host.resize(300, 300);
    ZEMVirtualKeyboard *keyboard = factory.createKeyboard(style);
    QVERIFY(keyboard);
    QVERIFY(!keyboard->parentWidget());
    QCOMPARE(firstKey(keyboard), QStringLiteral("n"));
    QTEST(pageMargins(keyboard), "margins");

    keyboard->setParent(&host);
    keyboard->setPopupParent(&host);
    keyboard->setGeometry(0, 100, 200, keyboard->sizeHint().height());
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    call(keyboard, "buttonPressed", 0);
    const auto *preview = host.findChild<ZEMVirtualKey *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(preview->isVisible());
    const auto *key = keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>();
    const int keyTop = key->mapTo(&host, QPoint()).y();
    QCOMPARE(preview->y() > keyTop, style == Intf::PopupFlip);
}

void tst_KeyboardFactoryDefault::fallback()
{
    const Files files;
    files.write(QStringLiteral("keyboard_en.xml"), oneKey("e"));
    KeyboardFactoryDefault factory(files.path(), QStringLiteral("xx"));
    MessageLog log;
    const std::unique_ptr<ZEMVirtualKeyboard> keyboard(factory.createKeyboard(Intf::PopupAbove));
    const QStringList messages = log.take();
    QCOMPARE(messages.size(), 2);
    QVERIFY(messages.at(0).startsWith(QStringLiteral("Error: Cannot read file ")));
    QCOMPARE(messages.at(1),
             QStringLiteral("Loading fallback: \"%1/keyboard_en.xml\"").arg(files.path()));
    QCOMPARE(firstKey(keyboard.get()), QStringLiteral("e"));
    QCOMPARE(pageMargins(keyboard.get()), QMargins(0, 46, 0, 2));
}

void tst_KeyboardFactoryDefault::percentSignsInThePath()
{
    const Files files;
    QVERIFY(QDir(files.path()).mkdir(QStringLiteral("a%2b")));
    files.write(QStringLiteral("a%2b/keyboard_nl.xml"), oneKey("n"));
    KeyboardFactoryDefault factory(files.path() + QStringLiteral("/a%2b"), QStringLiteral("nl"));
    const std::unique_ptr<ZEMVirtualKeyboard> keyboard(factory.createKeyboard(Intf::PopupFlip));
    QCOMPARE(firstKey(keyboard.get()), QStringLiteral("n"));
}

void tst_KeyboardFactoryDefault::asciiKeyboard()
{
    const Files files;
    files.write(QStringLiteral("keyboard_ascii.xml"), oneKey("a"));
    files.write(QStringLiteral("keyboard_nl.xml"), oneKey("n"));
    KeyboardFactoryDefault factory(files.path(), QStringLiteral("nl"));
    const std::unique_ptr<ZEMVirtualKeyboard> above(factory.createAsciiKeyboard(Intf::PopupAbove));
    QCOMPARE(firstKey(above.get()), QStringLiteral("a"));
    QCOMPARE(pageMargins(above.get()), QMargins(0, 46, 0, 2));
    const std::unique_ptr<ZEMVirtualKeyboard> flip(factory.createAsciiKeyboard(Intf::PopupFlip));
    QCOMPARE(pageMargins(flip.get()), QMargins(0, 2, 0, 2));
}

void tst_KeyboardFactoryDefault::asciiKeyboardThatIsMissing()
{
    const Files files;
    files.write(QStringLiteral("keyboard_en.xml"), oneKey("e"));
    KeyboardFactoryDefault factory(files.path(), QStringLiteral("en"));
    const auto keyboards = [] {
        int count = 0;
        for (const QWidget *widget : QApplication::topLevelWidgets()) {
            count += qobject_cast<const ZEMVirtualKeyboard *>(widget) ? 1 : 0;
        }
        return count;
    };
    const int before = keyboards();
    MessageLog log;
    QVERIFY(!factory.createAsciiKeyboard(Intf::PopupAbove));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(keyboards(), before + 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(keyboards(), before);
}

void tst_KeyboardFactoryDefault::numericKeypad()
{
    const Files files;
    files.write(QStringLiteral("keyboard_numpad.xml"), oneKey("7"));
    KeyboardFactoryDefault factory(files.path(), QStringLiteral("nl"));
    const std::unique_ptr<ZEMVirtualKeyboard> keypad(factory.createNumericKeypad());
    QCOMPARE(firstKey(keypad.get()), QStringLiteral("7"));
    QCOMPARE(pageMargins(keypad.get()), QMargins());
}

void tst_KeyboardFactoryDefault::keyboardOutlivesTheFactory()
{
    const Files files;
    files.write(QStringLiteral("keyboard_nl.xml"),
                keyboardFile("<row><key value='a' alternate='x'/><key value='CAPS'/></row>"));
    QWidget host;
    host.resize(300, 300);
    Target target;
    ZEMVirtualKeyboard *keyboard = nullptr;
    {
        KeyboardFactoryDefault factory(files.path(), QStringLiteral("nl"));
        delete factory.createKeyboard(Intf::PopupAbove);
        keyboard = factory.createKeyboard(Intf::PopupFlip);
        keyboard->setParent(&host);
        keyboard->setPopupParent(&host);
        keyboard->setFocusWidget(&target);
    }
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    keyboard->resize(250, 100);
    for (const int key : {1, 0, 0}) {
        call(keyboard, "buttonPressed", key);
        call(keyboard, "buttonReleased", key);
    }
    call(keyboard, "slotUpdateLastPressedButton");
    QCOMPARE(target.takeText(), QStringLiteral("Aa"));
    MessageLog log;
    QVERIFY(!keyboard->load(files.path() + QStringLiteral("/keyboard_nl.xml")));
    QCOMPARE(log.take().size(), 1);
}

QTEST_MAIN(tst_KeyboardFactoryDefault)
#include "tst_keyboardfactorydefault.moc"
