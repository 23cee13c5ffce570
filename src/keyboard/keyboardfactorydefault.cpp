// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardfactorydefault.h"

#include "sharppicture_p.h"
#include "sizehash_p.h"
#include "zemstyle.h"
#include "zemvirtualkey.h"
#include "zemvirtualkeyboard.h"

#include <QDebug>
#include <QFont>
#include <QHash>
#include <QLabel>
#include <QMargins>
#include <QPalette>
#include <QPushButton>

namespace {

constexpr int keySpacing = 10; // pixels, in both directions
constexpr int keySide = 50; // pixels
constexpr int popupKeySide = 40; // pixels
constexpr int fontSize = 16; // points
constexpr int longestSide = 32767; // pixels, what QPainter can address

QString keyStyleSheet(bool pressed)
{
    const QString shade =
        pressed ? QStringLiteral("120, 120, 120") : QStringLiteral("200, 200, 200");
    return QStringLiteral("background-color:rgb(%1);border: 2px solid #8f8f91;border-radius: 10px;")
        .arg(shade);
}

QPushButton *newKeyShape(const QSize &size, bool pressed)
{
    auto *button = new QPushButton(QStringLiteral(" "));
    button->setMinimumSize(size);
    button->setMaximumSize(size);
    button->setStyleSheet(keyStyleSheet(pressed));
    return button;
}

QPixmap pictureOf(QPushButton *shape, qreal ratio)
{
    QPixmap pixmap(shape->minimumSize() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    // Without the window's background, which would fill the corners.
    shape->render(&pixmap, QPoint(0, 0), QRegion(), QWidget::DrawChildren);
    return pixmap;
}

QPixmap renderKey(const QSize &size, bool pressed)
{
    // Never deleted, as hosts are told: there are only a few, one for each size and state.
    const QPixmap pixmap = pictureOf(newKeyShape(size, pressed), 1.0);
    SharpPicture::teach(pixmap, [size, pressed](qreal ratio) {
        const QSize pixels = size * ratio;
        if (pixels.width() > longestSide || pixels.height() > longestSide) {
            return QPixmap();
        }
        const std::unique_ptr<QPushButton> shape(newKeyShape(size, pressed));
        return pictureOf(shape.get(), ratio);
    });
    return pixmap;
}

} // namespace

class KeyboardFactoryDefault::Private
{
public:
    Private(const QString &path, const QString &languageName)
        : keyboardPath(path), language(languageName), keyFont(QStringLiteral("Cabin"), fontSize)
    {
    }

    ZEMVirtualKeyboard *newKeyboard(KeyboardFactoryDefault *factory)
    {
        auto *keyboard = new ZEMVirtualKeyboard;
        keyboard->setFactory(factory);
        return keyboard;
    }

    ZEMVirtualKeyboard *newKeyboard(KeyboardFactoryDefault *factory, KeyboardPopupStyle popupStyle)
    {
        ZEMVirtualKeyboard *keyboard = newKeyboard(factory);
        keyboard->setPopupStyle(popupStyle);
        QMargins margins = keyboardMargins;
        if (popupStyle == PopupFlip) {
            margins.setTop(margins.bottom());
        }
        keyboard->setMargins(margins);
        return keyboard;
    }

    /** The file of the keyboard @p name in the directory of the host. */
    QString file(const QString &name) const
    {
        return QStringLiteral("%1/keyboard_%2.xml").arg(keyboardPath, name);
    }

    const QString keyboardPath;
    const QString language;
    ZEMStyle style {nullptr};
    const QFont keyFont;
    const QMargins keyboardMargins {0, 46, 0, 2};
    QHash<SizeKey, QPixmap> releasedBackgrounds;
    QHash<SizeKey, QPixmap> pressedBackgrounds;
};

KeyboardFactoryDefault::KeyboardFactoryDefault(const QString &keyboardPath, const QString &language)
    : d(std::make_unique<Private>(keyboardPath, language))
{
}

KeyboardFactoryDefault::~KeyboardFactoryDefault() = default;

ZEMVirtualKeyboard *KeyboardFactoryDefault::createKeyboard(KeyboardPopupStyle style)
{
    ZEMVirtualKeyboard *keyboard = d->newKeyboard(this, style);
    if (!keyboard->load(d->file(d->language))) {
        const QString fallback = d->file(QStringLiteral("en"));
        qDebug() << "Loading fallback:" << fallback;
        if (!keyboard->load(fallback)) {
            qFatal("Error loading default keyboard!");
        }
    }
    return keyboard;
}

ZEMVirtualKeyboard *KeyboardFactoryDefault::createNumericKeypad()
{
    ZEMVirtualKeyboard *keyboard = d->newKeyboard(this);
    if (!keyboard->load(d->file(QStringLiteral("numpad")))) {
        qFatal("Error loading default numpad keyboard!");
    }
    return keyboard;
}

ZEMVirtualKeyboard *KeyboardFactoryDefault::createAsciiKeyboard(KeyboardPopupStyle style)
{
    ZEMVirtualKeyboard *keyboard = d->newKeyboard(this, style);
    if (!keyboard->load(d->file(QStringLiteral("ascii")))) {
        keyboard->deleteLater();
        return nullptr;
    }
    return keyboard;
}

ZEMVirtualKey *KeyboardFactoryDefault::createKey(const QString &name)
{
    auto *key = new ZEMVirtualKey(name, nullptr);
    key->setFocusPolicy(Qt::NoFocus);
    if (name == QLatin1String("DELETE")) {
        key->setText(QStringLiteral("<-"));
    }
    changeKeyStylesheet(key, false);
    styleButton(key);
    key->setMinimumSize(keySide, keySide);
    key->setMaximumSize(keySide, keySide);
    return key;
}

ZEMVirtualKey *KeyboardFactoryDefault::createAlternateKey()
{
    auto *key = new ZEMVirtualKey(nullptr);
    key->setFocusPolicy(Qt::NoFocus);
    key->setBackground(getBackground(key->size(), false));
    styleButton(key);
    key->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    key->setMinimumSize(popupKeySide, popupKeySide);
    key->setMaximumSize(popupKeySide, popupKeySide);
    return key;
}

ZEMVirtualKey *KeyboardFactoryDefault::createPopupKey()
{
    // Not by way of createAlternateKey(), which a subclass may change by itself.
    return KeyboardFactoryDefault::createAlternateKey();
}

QWidget *KeyboardFactoryDefault::createPopupKeysBackground()
{
    auto *background = new QLabel;
    background->setStyleSheet(keyStyleSheet(false));
    return background;
}

void KeyboardFactoryDefault::changeKeyStylesheet(ZEMVirtualKey *key, bool pressed)
{
    key->setBackground(getBackground(key->size(), pressed));
}

int KeyboardFactoryDefault::hSpacing() const
{
    return keySpacing;
}

int KeyboardFactoryDefault::vSpacing() const
{
    return keySpacing;
}

void KeyboardFactoryDefault::styleButton(ZEMVirtualKey *key)
{
    QPalette palette = key->palette();
    d->style.setButtonColor(palette, ZEMStyle::Black);
    key->setPalette(palette);
    key->setFont(d->keyFont);
}

QPixmap KeyboardFactoryDefault::getBackground(QSize size, bool pressed)
{
    if (size.isEmpty() || size.width() > longestSide || size.height() > longestSide) {
        return {};
    }
    QHash<SizeKey, QPixmap> &cache = pressed ? d->pressedBackgrounds : d->releasedBackgrounds;
    auto found = cache.constFind(size);
    if (found == cache.constEnd()) {
        found = cache.insert(size, renderKey(size, pressed));
    }
    return *found;
}
