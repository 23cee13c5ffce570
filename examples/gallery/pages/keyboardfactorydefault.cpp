// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <QVBoxLayout>
#include <ZEMPageBackground>
#include <ZEMPixmap>
#include <ZEMVirtualKey>
#include <ZEMVirtualKeyboard>

/** The host knows the interface alone, and not where files lie and what keys look like. */
static QWidget *makeKeypad(ZEMVirtualKeyboardFactoryIntf &keyboards)
{
    return keyboards.createNumericKeypad();
}

void Pages::keyboardfactorydefault(Stage &stage)
{
    // Make one factory and keep it until the last of its keyboards is gone:
    // static KeyboardFactoryDefault keyboards("/usr/share/zemkit/keyboards", "nl");
    KeyboardFactoryDefault &keyboards = stage.keyboards();

    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *rows = new QVBoxLayout(page);
    rows->addSpacing(48);
    rows->addWidget(makeKeypad(keyboards), 0, Qt::AlignHCenter);

    auto *row = new QHBoxLayout;
    rows->addLayout(row);
    for (const QString &name : {QStringLiteral("e"), QStringLiteral("DELETE")}) {
        row->addWidget(keyboards.createKey(name));
    }
    row->addWidget(keyboards.createAlternateKey());
    for (const bool pressed : {false, true}) {
        auto *picture = new ZEMPixmap;
        picture->setPixmap(keyboards.getBackground(QSize(100, 50), pressed));
        row->addWidget(picture);
    }
    row->addStretch();
    rows->addStretch();
    stage.cover(page);
}
