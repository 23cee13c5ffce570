// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "buttonpainting_p.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMButton>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <cstddef>
#include <cstring>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

const QSize buttonSize(60, 60);
const QPoint corner(2, 2); // shows the background beside icon and text
const QPoint middle(30, 30); // shows the icon

const QColor onColor(10, 20, 30);
const QColor offColor(40, 50, 60);
const QColor disabledColor(70, 80, 90);
const QColor groundColor(200, 200, 200);
const QColor iconOnColor(Qt::green);
const QColor iconOffColor(Qt::magenta);

/** An icon with a colour of its own in each mode and state. */
QIcon coloredIcon()
{
    const QSize size(20, 20);
    QIcon icon;
    icon.addPixmap(flatPixmap(size, iconOnColor), QIcon::Normal, QIcon::On);
    icon.addPixmap(flatPixmap(size, iconOffColor), QIcon::Disabled, QIcon::Off);
    icon.addPixmap(flatPixmap(size, Qt::red), QIcon::Normal, QIcon::Off);
    icon.addPixmap(flatPixmap(size, Qt::yellow), QIcon::Disabled, QIcon::On);
    return icon;
}

/** Puts the button into @p state and gives it an icon that is seen. */
void setState(ZEMButton *button, const ButtonPainting::State &state)
{
    button->resize(buttonSize);
    button->setCheckable(state.checkable);
    button->setChecked(state.checked);
    button->setEnabled(state.enabled);
    button->setHideWhenDisabled(state.hideWhenDisabled);
    button->setHideUncheckedIcon(state.hideUncheckedIcon);
    button->setIcon(coloredIcon());
}

enum class Icon { None, On, Off };

class RecordingButton : public ZEMButton
{
public:
    void setBackground(const QPixmap &) override { calls.append(QStringLiteral("on")); }
    void setBackgroundOff(const QPixmap &) override { calls.append(QStringLiteral("off")); }
    void setBackgroundDisabled(const QPixmap &) override
    {
        calls.append(QStringLiteral("disabled"));
    }

    QStringList calls;
};

} // namespace

Q_DECLARE_METATYPE(ButtonPainting::State)
Q_DECLARE_METATYPE(Icon)

class tst_ZEMButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void titleIsTranslated();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void sizeHintIsThePresentSize();
    void backgroundSetsMinimumAndSize();
    void otherPicturesChangeNoSize();
    void offPictureOfOtherSizeIsStretched();
    void whenSettersPaint();
    void backgroundSettersAreVirtual();
    void backgroundSettersStandInOrder();
    void look_data();
    void look();
    void nullIconIsNotDrawn();
    void iconIsCentredInItsOwnSize();
    void enabledPlainButtonShowsItsBackground();
    void disabledPlainButtonIgnoresTheDisabledPicture();
    void hiddenToggleStillShowsItsText();
    void textIsCentredInTheFontOfTheWidget();
    void textIsDrawnOverTheIcon();
    void ampersandIsText();
    void pressedButtonLooksTheSame();
    void clickEmitsTheSignals();
};

void tst_ZEMButton::newButton()
{
    ZEMButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMButton"));
    QCOMPARE(button.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(button.size(), QSize(50, 50));
    QCOMPARE(button.minimumSize(), QSize(0, 0));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(!button.isCheckable());
    QVERIFY(button.getBackground().isNull());
    QVERIFY(button.getBackgroundOff().isNull());
    QVERIFY(button.getBackgroundDisabled().isNull());
    QVERIFY(!button.getHideWhenDisabled());
    QVERIFY(!button.getHideUncheckedIcon());

    QWidget host;
    QCOMPARE((new ZEMButton(&host))->parentWidget(), &host);
}

void tst_ZEMButton::titleIsTranslated()
{
    ContextTranslator translator;
    QCOMPARE(ZEMButton().windowTitle(), QStringLiteral("ZEMButton/Form"));
}

void tst_ZEMButton::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QAbstractButton::staticMetaObject);
    QCOMPARE(
        ownProperties(metaObject),
        QStringList({QStringLiteral("background:QPixmap"), QStringLiteral("backgroundOff:QPixmap"),
                     QStringLiteral("backgroundDisabled:QPixmap"),
                     QStringLiteral("hideWhenDisabled:bool"),
                     QStringLiteral("hideUncheckedIcon:bool")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMButton::propertiesReachTheAccessors()
{
    ZEMButton button;
    const QPixmap on = flatPixmap({30, 20}, onColor);
    const QPixmap off = flatPixmap({30, 20}, offColor);
    const QPixmap disabled = flatPixmap({30, 20}, disabledColor);
    QVERIFY(button.setProperty("background", on));
    QVERIFY(button.setProperty("backgroundOff", off));
    QVERIFY(button.setProperty("backgroundDisabled", disabled));

    QCOMPARE(button.getBackground().cacheKey(), on.cacheKey());
    QCOMPARE(button.getBackgroundOff().cacheKey(), off.cacheKey());
    QCOMPARE(button.getBackgroundDisabled().cacheKey(), disabled.cacheKey());
    const auto keyOf = [&](const char *name) {
        return button.property(name).value<QPixmap>().cacheKey();
    };
    QCOMPARE(keyOf("background"), on.cacheKey());
    QCOMPARE(keyOf("backgroundOff"), off.cacheKey());
    QCOMPARE(keyOf("backgroundDisabled"), disabled.cacheKey());

    QVERIFY(button.setProperty("hideWhenDisabled", true));
    QVERIFY(button.getHideWhenDisabled());
    QVERIFY(!button.getHideUncheckedIcon());
    QVERIFY(button.property("hideWhenDisabled").toBool());
    button.setHideWhenDisabled(false);
    QVERIFY(button.setProperty("hideUncheckedIcon", true));
    QVERIFY(button.getHideUncheckedIcon());
    QVERIFY(!button.getHideWhenDisabled());
    QVERIFY(button.property("hideUncheckedIcon").toBool());
}

void tst_ZEMButton::sizeHintIsThePresentSize()
{
    ZEMButton button;
    QCOMPARE(button.sizeHint(), QSize(50, 50));
    button.resize(71, 23);
    QCOMPARE(button.sizeHint(), QSize(71, 23));
}

void tst_ZEMButton::backgroundSetsMinimumAndSize()
{
    ZEMButton button;
    for (const QSize &size : {QSize(100, 30), QSize(20, 90), QSize(0, 0)}) {
        button.setBackground(size.isNull() ? QPixmap() : flatPixmap(size, onColor));
        QCOMPARE(button.size(), size);
        QCOMPARE(button.minimumSize(), size);
        QCOMPARE(button.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }
}

void tst_ZEMButton::otherPicturesChangeNoSize()
{
    ZEMButton button;
    button.setBackground(flatPixmap({40, 30}, onColor));
    button.setBackgroundOff(flatPixmap({100, 10}, offColor));
    button.setBackgroundDisabled(flatPixmap({10, 100}, disabledColor));
    QCOMPARE(button.size(), QSize(40, 30));
    QCOMPARE(button.minimumSize(), QSize(40, 30));
}

void tst_ZEMButton::offPictureOfOtherSizeIsStretched()
{
    QPixmap halves = flatPixmap({4, 2}, Qt::red);
    QPainter painter(&halves);
    painter.fillRect(2, 0, 2, 2, Qt::blue);
    painter.end();

    ZEMButton button;
    button.setBackground(flatPixmap({60, 40}, onColor));
    button.setBackgroundOff(halves);
    button.setEnabled(false);
    const QImage image = render(&button);
    QCOMPARE(image.size(), QSize(60, 40));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(28, 39), QColor(Qt::red));
    QCOMPARE(image.pixelColor(31, 0), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(59, 39), QColor(Qt::blue));
}

void tst_ZEMButton::whenSettersPaint()
{
    ZEMButton button;
    const QPixmap picture = flatPixmap(buttonSize, onColor);
    button.setBackground(picture);
    const Stage stage(&button);
    QVERIFY(stage.isReady());

    QCOMPARE(paintedBy(&button, [&] { button.setBackground(picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&button, [&] { button.setBackgroundOff(picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&button, [&] { button.setBackgroundDisabled(picture); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&button, [&] { button.setHideWhenDisabled(true); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&button, [&] { button.setHideUncheckedIcon(true); }), Painted::Never);
}

void tst_ZEMButton::backgroundSettersAreVirtual()
{
    RecordingButton button;
    ZEMButton *base = &button;
    base->setBackground(QPixmap());
    base->setProperty("backgroundDisabled", QPixmap());
    base->setProperty("backgroundOff", QPixmap());
    QCOMPARE(
        button.calls,
        QStringList({QStringLiteral("on"), QStringLiteral("disabled"), QStringLiteral("off")}));
}

void tst_ZEMButton::backgroundSettersStandInOrder()
{
#ifdef Q_PROCESSOR_X86_64
    // Here a pointer to a virtual member begins with its place in the virtual table, plus one.
    const auto place = [](void (ZEMButton::*operation)(const QPixmap &)) {
        std::ptrdiff_t offset = 0;
        std::memcpy(&offset, &operation, sizeof(offset));
        return (offset - 1) / std::ptrdiff_t(sizeof(void *));
    };
    const std::ptrdiff_t first = place(&ZEMButton::setBackground);
    QCOMPARE(place(&ZEMButton::setBackgroundOff), first + 1);
    QCOMPARE(place(&ZEMButton::setBackgroundDisabled), first + 2);
#else
    QSKIP("knows the layout of member pointers on x86-64 only");
#endif
}

void tst_ZEMButton::look_data()
{
    QTest::addColumn<ButtonPainting::State>("state");
    QTest::addColumn<QByteArray>("pictures"); // the first of them that is set is drawn
    QTest::addColumn<Icon>("icon");
    QTest::addColumn<QPalette::ColorGroup>("text");

    // Letters of a row: t a toggle, c checked, e enabled, h hides when disabled, i hides the
    // unchecked icon. Letters of the pictures: D disabled, F off, N on.
    const auto row = [](const char *letters, const char *pictures, Icon icon,
                        QPalette::ColorGroup text) {
        const QByteArray set(letters);
        const ButtonPainting::State state {set.contains('t'), set.contains('c'), set.contains('e'),
                                           set.contains('h'), set.contains('i')};
        QTest::newRow(letters) << state << QByteArray(pictures) << icon << text;
    };
    const auto active = QPalette::Active;
    const auto disabled = QPalette::Disabled;

    row("e", "N", Icon::On, active);
    row("e i", "N", Icon::On, active);
    row("e h", "N", Icon::On, active);
    row("e h i", "N", Icon::On, active);
    row("-", "FN", Icon::Off, disabled);
    row("i", "FN", Icon::Off, disabled);
    row("h", "", Icon::None, disabled);
    row("h i", "", Icon::None, disabled);

    row("t c e", "N", Icon::On, active);
    row("t c e i", "N", Icon::On, active);
    row("t c e h", "N", Icon::On, active);
    row("t c e h i", "N", Icon::On, active);
    row("t c", "DFN", Icon::Off, disabled);
    row("t c i", "DFN", Icon::Off, disabled);
    row("t c h", "", Icon::None, disabled);
    row("t c h i", "", Icon::None, disabled);

    row("t e", "FN", Icon::Off, disabled);
    row("t e i", "FN", Icon::None, disabled);
    row("t e h", "", Icon::None, disabled);
    row("t e h i", "", Icon::None, disabled);
    row("t", "DFN", Icon::Off, disabled);
    row("t i", "DFN", Icon::None, disabled);
    row("t h", "", Icon::None, disabled);
    row("t h i", "", Icon::None, disabled);
}

static QColor backgroundColor(const QByteArray &candidates, const QByteArray &available)
{
    for (const char picture : candidates) {
        if (available.contains(picture)) {
            return picture == 'D' ? disabledColor : picture == 'F' ? offColor : onColor;
        }
    }
    return groundColor;
}

static QColor colorOf(ButtonPainting::Background background)
{
    switch (background) {
    case ButtonPainting::Background::None:
        break;
    case ButtonPainting::Background::On:
        return onColor;
    case ButtonPainting::Background::Off:
        return offColor;
    case ButtonPainting::Background::Disabled:
        return disabledColor;
    }
    return groundColor;
}

void tst_ZEMButton::look()
{
    QFETCH(ButtonPainting::State, state);
    QFETCH(QByteArray, pictures);
    QFETCH(Icon, icon);
    QFETCH(QPalette::ColorGroup, text);

    const ButtonPainting::IconLook look = ButtonPainting::iconLook(state);
    QCOMPARE(look.drawn, icon != Icon::None);
    if (look.drawn) {
        QCOMPARE(look.mode, icon == Icon::On ? QIcon::Normal : QIcon::Disabled);
        QCOMPARE(look.state, icon == Icon::On ? QIcon::On : QIcon::Off);
    }
    QCOMPARE(ButtonPainting::textGroup(state), text);
    QCOMPARE(ButtonPainting::isOn(state), text == QPalette::Active);

    for (const char *set : {"", "N", "F", "D", "NF", "ND", "FD", "NFD"}) {
        const QByteArray available(set);
        ZEMButton button;
        setState(&button, state);
        if (available.contains('N')) {
            button.setBackground(flatPixmap(buttonSize, onColor));
        }
        if (available.contains('F')) {
            button.setBackgroundOff(flatPixmap({3, 3}, offColor));
        }
        if (available.contains('D')) {
            button.setBackgroundDisabled(flatPixmap({5, 5}, disabledColor));
        }
        const QImage image = render(&button, groundColor);
        const QColor expected = backgroundColor(pictures, available);
        QCOMPARE(image.pixelColor(corner), expected);
        QCOMPARE(image.pixelColor(59, 59), expected);
        QCOMPARE(image.pixelColor(middle),
                 icon == Icon::On        ? iconOnColor
                     : icon == Icon::Off ? iconOffColor
                                         : expected);
        if (available.contains('N')) {
            QCOMPARE(colorOf(ButtonPainting::background(state, available.contains('F'),
                                                        available.contains('D'))),
                     expected);
        }
    }
}

void tst_ZEMButton::nullIconIsNotDrawn()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    QImage expected(buttonSize, QImage::Format_ARGB32_Premultiplied);
    expected.fill(onColor);
    QCOMPARE(render(&button), expected);
}

void tst_ZEMButton::iconIsCentredInItsOwnSize()
{
    ZEMButton button;
    button.resize(60, 40);
    button.setIconSize(QSize(5, 5));
    button.setIcon(coloredIcon());
    QCOMPARE(ZemTest::inkRect(render(&button)), QRect(20, 10, 20, 20));

    button.resize(12, 12);
    QCOMPARE(ZemTest::inkRect(render(&button)), QRect(0, 0, 12, 12));
}

void tst_ZEMButton::enabledPlainButtonShowsItsBackground()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    button.setBackgroundDisabled(flatPixmap(buttonSize, disabledColor));
    for (const QPixmap &off : {QPixmap(), flatPixmap(buttonSize, offColor)}) {
        button.setBackgroundOff(off);
        QCOMPARE(render(&button).pixelColor(corner), onColor);
    }
}

void tst_ZEMButton::disabledPlainButtonIgnoresTheDisabledPicture()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    button.setBackgroundOff(flatPixmap(buttonSize, offColor));
    button.setBackgroundDisabled(flatPixmap(buttonSize, disabledColor));
    button.setEnabled(false);
    QCOMPARE(render(&button).pixelColor(corner), offColor);
    button.setBackgroundOff(QPixmap());
    QCOMPARE(render(&button).pixelColor(corner), onColor);
}

/** What a button of @p size must look like that shows nothing but @p text. */
static QImage textImage(const ZEMButton &button, const QString &text, const QColor &color)
{
    QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(button.font());
    painter.setPen(color);
    painter.drawText(QRect(QPoint(0, 0), button.size()), Qt::AlignCenter, text);
    return image;
}

static void giveText(ZEMButton *button, const QString &text)
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::green);
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::blue);
    palette.setColor(QPalette::Shadow, Qt::yellow);
    button->setPalette(palette);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(30);
    font.setItalic(true);
    button->setFont(font);
    button->setText(text);
    button->resize(110, 61);
}

void tst_ZEMButton::hiddenToggleStillShowsItsText()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    button.setBackgroundOff(flatPixmap(buttonSize, offColor));
    button.setIcon(coloredIcon());
    button.setCheckable(true);
    button.setHideWhenDisabled(true);
    giveText(&button, QStringLiteral("HI"));
    QCOMPARE(render(&button), textImage(button, QStringLiteral("HI"), Qt::blue));
}

void tst_ZEMButton::textIsCentredInTheFontOfTheWidget()
{
    ZEMButton button;
    giveText(&button, QStringLiteral("dag"));
    QVERIFY(!ZemTest::inkRect(render(&button)).isNull());
    QCOMPARE(render(&button), textImage(button, QStringLiteral("dag"), Qt::green));

    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QWidget other; // takes the activation, which makes no difference
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other, ZemTest::hangs));
    QCOMPARE(render(&button), textImage(button, QStringLiteral("dag"), Qt::green));

    button.setEnabled(false);
    QCOMPARE(render(&button), textImage(button, QStringLiteral("dag"), Qt::blue));
}

void tst_ZEMButton::textIsDrawnOverTheIcon()
{
    ZEMButton button;
    giveText(&button, QStringLiteral("I"));
    QIcon icon;
    icon.addPixmap(flatPixmap({100, 60}, Qt::red), QIcon::Normal, QIcon::On);
    button.setIcon(icon);
    const QRect ink = ZemTest::inkRect(textImage(button, QStringLiteral("I"), Qt::green));
    const QImage image = render(&button);
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::red));
    int green = 0;
    for (int x = ink.left(); x <= ink.right(); ++x) {
        green = qMax(green, image.pixelColor(x, ink.center().y()).green());
    }
    QVERIFY2(green > 200, qPrintable(QString::number(green)));
}

void tst_ZEMButton::ampersandIsText()
{
    ZEMButton button;
    giveText(&button, QStringLiteral("a&b"));
    QCOMPARE(render(&button), textImage(button, QStringLiteral("a&b"), Qt::green));
}

void tst_ZEMButton::pressedButtonLooksTheSame()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    button.setBackgroundOff(flatPixmap(buttonSize, offColor));
    button.setIcon(coloredIcon());
    const QImage released = render(&button);
    button.setDown(true);
    QCOMPARE(render(&button), released);
}

void tst_ZEMButton::clickEmitsTheSignals()
{
    ZEMButton button;
    button.setBackground(flatPixmap(buttonSize, onColor));
    button.setCheckable(true);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy pressed(&button, &ZEMButton::pressed);
    QSignalSpy clicked(&button, &ZEMButton::clicked);
    QSignalSpy toggled(&button, &ZEMButton::toggled);

    ZemTest::press(&button, middle);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(clicked.count(), 0);
    ZemTest::release(&button, middle);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(button.isChecked());
}

QTEST_MAIN(tst_ZEMButton)
#include "tst_zembutton.moc"
