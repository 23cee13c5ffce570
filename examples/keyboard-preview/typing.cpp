// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "typing.h"

#include "shownkeyboard.h"

#include <ZEMVirtualKey>

#include <QPair>

namespace {

using Caps = ZEMVirtualKeyboard::t_caps;
using State = QPair<int, int>; // page and caps state

constexpr int offeredAlternatives = 10;
constexpr int capsStates = 3;
constexpr Caps allCaps[] = {ZEMVirtualKeyboard::CapsOff, ZEMVirtualKeyboard::CapsSingle,
                            ZEMVirtualKeyboard::CapsLock};

/** What a key is in one caps state. */
struct Face
{
    ZEMVirtualKey::Type type;
    int layoutId;
    QString text;
    QChar character;
    QString alternates;

    bool operator==(const Face &other) const
    {
        return text == other.text && character == other.character && alternates == other.alternates;
    }
    /** In words, that which tells it from @p other. */
    QString difference(const Face &other) const
    {
        if (character != other.character) {
            return character;
        }
        return text != other.text ? text : alternates;
    }
};

using Faces = QVector<QVector<Face>>; // of each page, those of its keys

Faces facesOf(ShownKeyboard *keyboard, Caps caps)
{
    Faces faces;
    for (int page = 0; page < keyboard->pageCount(); ++page) {
        keyboard->open(page, caps);
        QVector<Face> keys;
        for (const ZEMVirtualKey *key : keyboard->keys(page)) {
            keys.append(
                {key->type(), key->layoutId(), key->text(), key->key(), key->alternateKeys()});
        }
        faces.append(keys);
    }
    return faces;
}

/** The state after @p key is touched in @p state. */
State touch(const Face &key, const State &state, int pageCount)
{
    switch (key.type) {
    case ZEMVirtualKey::Layout:
        return {key.layoutId >= 0 && key.layoutId < pageCount ? key.layoutId : state.first,
                state.second};
    case ZEMVirtualKey::Caps:
        return {state.first, (state.second + 1) % capsStates};
    default:
        return {state.first,
                state.second == ZEMVirtualKeyboard::CapsSingle ? ZEMVirtualKeyboard::CapsOff
                                                               : state.second};
    }
}

void addCharacters(const Face &key, bool alternatives, QSet<QChar> *characters)
{
    if (key.type == ZEMVirtualKey::Space) {
        characters->insert(QLatin1Char(' '));
    }
    if (key.type != ZEMVirtualKey::Character) {
        return;
    }
    characters->insert(key.character);
    for (const QChar each : key.alternates.left(alternatives ? offeredAlternatives : 0)) {
        characters->insert(each);
    }
}

QVector<State> statesFrom(const State &start, const QVector<Faces> &faces)
{
    QVector<State> states {start};
    for (int i = 0; i < states.size(); ++i) {
        const State state = states.at(i);
        const Faces &pages = faces.at(state.second);
        for (const Face &key : pages.at(state.first)) {
            const State next = touch(key, state, pages.size());
            if (!states.contains(next)) {
                states.append(next);
            }
        }
    }
    return states;
}

bool leadsHome(const State &start, const QVector<Faces> &faces)
{
    for (const State &state : statesFrom(start, faces)) {
        if (state.first == 0) {
            return true;
        }
    }
    return false;
}

QVector<Typing::Change> changesBetween(const Faces &before, const Faces &after)
{
    QVector<Typing::Change> changes;
    for (int page = 0; page < before.size(); ++page) {
        for (int key = 0; key < before.at(page).size(); ++key) {
            const Face &first = before.at(page).at(key);
            const Face &second = after.at(page).at(key);
            if (!(first == second)) {
                changes.append({page, key, first.difference(second), second.difference(first)});
            }
        }
    }
    return changes;
}

} // namespace

Typing tryTyping(ShownKeyboard *keyboard, bool alternatives)
{
    Typing typing;
    if (keyboard->pageCount() == 0) {
        return typing;
    }
    QVector<Faces> faces;
    for (const Caps caps : allCaps) {
        faces.append(facesOf(keyboard, caps));
    }
    typing.changes = changesBetween(faces.first(), facesOf(keyboard, ZEMVirtualKeyboard::CapsOff));
    for (const State &state : statesFrom({0, ZEMVirtualKeyboard::CapsOff}, faces)) {
        typing.pages.insert(state.first);
        for (const Face &key : faces.at(state.second).at(state.first)) {
            addCharacters(key, alternatives, &typing.characters);
        }
        if (!leadsHome(state, faces)) {
            typing.traps.insert(state.first);
        }
    }
    keyboard->open(0, ZEMVirtualKeyboard::CapsOff);
    return typing;
}
