// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemkeyboardinputhandler.h"

ZEMKeyboardInputHandler::ZEMKeyboardInputHandler(QObject *parent) : QObject(parent) { }

ZEMKeyboardInputHandler::~ZEMKeyboardInputHandler() = default;

void ZEMKeyboardInputHandler::emitSelect()
{
    Q_EMIT sigSelect();
}

void ZEMKeyboardInputHandler::emitCancel()
{
    Q_EMIT sigCancel();
}

void ZEMKeyboardInputHandler::emitSearch()
{
    Q_EMIT sigSearch();
}

void ZEMKeyboardInputHandler::emitTextEdited(const QString &text)
{
    Q_EMIT sigTextEdited(text);
}
