// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMLineEditDialog>

void Pages::zemlineeditdialog(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->move(200, 200);

    auto *dialog = new ZEMLineEditDialog(
        stage.keyboards().createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->setAsciiKeyboard(
        stage.keyboards().createAsciiKeyboard(KeyboardFactoryDefault::PopupAbove));
    dialog->setTitle(QStringLiteral("Naam van het apparaat"));
    dialog->setText(QStringLiteral("Wasmachine"));
    dialog->setStringLengthLimit(20);
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, [=] {
        field->setText(dialog->text());
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    dialog->setActiveInputHandler(handler);
    QObject::connect(field, &ZEMLineEditButton::clicked, dialog, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setAsciiInputMode(true)"),
                    [=] { dialog->setAsciiInputMode(true); });
    stage.addButton(QStringLiteral("setAsciiInputMode(false)"),
                    [=] { dialog->setAsciiInputMode(false); });
    stage.addButton(QStringLiteral("setAutoSelect(false), show()"), [=] {
        dialog->hide();
        dialog->setAutoSelect(false);
        dialog->show();
    });
    stage.addButton(QStringLiteral("setStringLengthLimit(4)"),
                    [=] { dialog->setStringLengthLimit(4); });
    stage.addButton(QStringLiteral("hide()"), [=] { dialog->hide(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
