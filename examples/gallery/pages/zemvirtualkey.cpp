// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMVirtualKey>

namespace {

/** A key as keyboards have it: their factory gives it its looks. */
ZEMVirtualKey *makeKey(KeyboardFactoryDefault *keyboards, const QString &name,
                       ZEMVirtualKey::Type type, bool pressed = false)
{
    ZEMVirtualKey *key = keyboards->createKey(name);
    key->setType(type);
    if (type != ZEMVirtualKey::Character) {
        key->setFixedSize(90, 50);
    }
    keyboards->changeKeyStylesheet(key, pressed);
    return key;
}

} // namespace

void Pages::zemvirtualkey(Stage &stage)
{
    KeyboardFactoryDefault *keyboards = &stage.keyboards();
    ZEMVirtualKey *letter = makeKey(keyboards, QStringLiteral("e"), ZEMVirtualKey::Character);
    letter->setAlternateKeys(QStringLiteral("éèêë"));
    stage.add(QStringLiteral("Character"), letter);
    stage.add(QStringLiteral("pressed"),
              makeKey(keyboards, QStringLiteral("e"), ZEMVirtualKey::Character, true));

    ZEMVirtualKey *capital = makeKey(keyboards, QStringLiteral("e"), ZEMVirtualKey::Character);
    capital->toUpper();
    stage.add(QStringLiteral("toUpper()"), capital);

    auto *bare = new ZEMVirtualKey(QStringLiteral("x"));
    stage.add(QStringLiteral("without a factory"), bare);

    ZEMVirtualKey *caps = makeKey(keyboards, QStringLiteral("CAPS"), ZEMVirtualKey::Caps);
    caps->toLower();
    stage.add(QStringLiteral("Caps"), caps);
    ZEMVirtualKey *single = makeKey(keyboards, QStringLiteral("CAPS"), ZEMVirtualKey::Caps);
    single->toLower();
    single->toUpperSingle();
    stage.add(QStringLiteral("Caps, toUpperSingle()"), single);
    stage.add(QStringLiteral("Delete"),
              makeKey(keyboards, QStringLiteral("DELETE"), ZEMVirtualKey::Delete));
    stage.add(QStringLiteral("Enter"),
              makeKey(keyboards, QStringLiteral("ENTER"), ZEMVirtualKey::Enter));
    stage.add(QStringLiteral("Space"),
              makeKey(keyboards, QStringLiteral("SPACE"), ZEMVirtualKey::Space));
    ZEMVirtualKey *page = makeKey(keyboards, QStringLiteral("123"), ZEMVirtualKey::Layout);
    page->setLayoutId(1);
    stage.add(QStringLiteral("Layout, of page 1"), page);

    stage.addButton(QStringLiteral("toUpper()"), [=] { letter->toUpper(); });
    stage.addButton(QStringLiteral("toLower()"), [=] { letter->toLower(); });
    stage.addButton(QStringLiteral("changeKeyStylesheet(key, true)"),
                    [=] { keyboards->changeKeyStylesheet(letter, true); });
    stage.addButton(QStringLiteral("changeKeyStylesheet(key, false)"),
                    [=] { keyboards->changeKeyStylesheet(letter, false); });
    stage.playWith(letter);
}
