// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYEVENTS_P_H
#define KEYEVENTS_P_H

#include "zemvirtualkey.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

/** What a target hears of a key. */
namespace KeyEvents {

struct Stroke
{
    int key;
    QString text;
};

/** The code and the text of a key that is sent, @p character being that of a character key. */
inline Stroke strokeOf(ZEMVirtualKey::Type type, QChar character)
{
    constexpr ushort backspace = 8;
    constexpr ushort carriageReturn = 13;
    switch (type) {
    case ZEMVirtualKey::Delete:
        return {Qt::Key_Backspace, QString(QChar(backspace))};
    case ZEMVirtualKey::Enter:
        return {Qt::Key_Enter, QString(2, QChar(carriageReturn))};
    case ZEMVirtualKey::Space:
        return {Qt::Key_Space, QStringLiteral(" ")};
    default:
        return {character.unicode(), QString(character)};
    }
}

/** Posts a press of the key to @p target, unless that is null. */
inline void post(QWidget *target, const Stroke &stroke)
{
    if (target) {
        QCoreApplication::postEvent(
            target, new QKeyEvent(QEvent::KeyPress, stroke.key, Qt::NoModifier, stroke.text));
    }
}

} // namespace KeyEvents

#endif
