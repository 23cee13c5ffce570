// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>
#include <ZEMPageBackground>
#include <ZEMVirtualKeyboard>

namespace {

/** The keyboard of @p file on @p page, which types into @p field. */
ZEMVirtualKeyboard *makeKeyboard(KeyboardFactoryDefault *keyboards, const QString &file,
                                 QWidget *page, QLineEdit *field)
{
    auto *keyboard = new ZEMVirtualKeyboard;
    keyboard->setFactory(keyboards); // keys and their looks; before load()
    keyboard->setMargins(QMargins(0, 46, 0, 2)); // room for the popups of the top row
    if (!keyboard->load(file)) {
        delete keyboard;
        return nullptr;
    }
    page->layout()->addWidget(keyboard);
    keyboard->setFocusWidget(field);
    keyboard->setPopupParent(page);
    return keyboard;
}

} // namespace

void Pages::zemvirtualkeyboard(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *rows = new QVBoxLayout(page);
    auto *field = new QLineEdit;
    field->setFont(QFont(QStringLiteral("Cabin"), 18));
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, QColor(40, 56, 68)); // beneath the white text of ZEMStyle
    field->setPalette(palette);
    field->setPlaceholderText(QStringLiteral("hier komt wat er getypt wordt"));
    rows->addSpacing(44);
    rows->addWidget(field);

    const QDir directory(stage.keyboardDirectory());
    auto *shown = new QPointer<ZEMVirtualKeyboard>;
    QObject::connect(page, &QObject::destroyed, [shown] { delete shown; });
    KeyboardFactoryDefault *keyboards = &stage.keyboards();
    const auto show = [=](const QString &file) {
        delete *shown;
        *shown = makeKeyboard(keyboards, directory.filePath(file), page, field);
    };
    show(QStringLiteral("keyboard_nl.xml"));
    stage.cover(page);

    for (const QString &file : directory.entryList({QStringLiteral("keyboard_*.xml")})) {
        stage.addButton(QStringLiteral("load(\"%1\")").arg(file), [=] { show(file); });
    }
    stage.addButton(QStringLiteral("switchButtonCaps(CapsLock)"), [=] {
        if (*shown) {
            (*shown)->switchButtonCaps(ZEMVirtualKeyboard::CapsLock);
        }
    });
}
