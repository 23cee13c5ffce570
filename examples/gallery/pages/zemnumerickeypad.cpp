// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <QDoubleValidator>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMNumericKeypad>

void Pages::zemnumerickeypad(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->move(200, 200);

    auto *dialog = new ZEMNumericKeypad(stage.keyboards().createNumericKeypad(), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->setTitle(QStringLiteral("Tarief in euro per kWh"));
    auto *price = new QDoubleValidator(0.0, 10.0, 4, dialog);
    dialog->setValidator(price);
    dialog->setMaxLength(6);
    dialog->setValue(QStringLiteral("0,25"));
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, [=] {
        field->setText(dialog->value());
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    dialog->setActiveInputHandler(handler);
    QObject::connect(field, &ZEMLineEditButton::clicked, dialog, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setPasswordEntry(true)"),
                    [=] { dialog->setPasswordEntry(true); });
    stage.addButton(QStringLiteral("setPasswordEntry(false)"),
                    [=] { dialog->setPasswordEntry(false); });
    stage.addButton(QStringLiteral("setAutoSelectInput(false), show()"), [=] {
        dialog->hide();
        dialog->setAutoSelectInput(false);
        dialog->show();
    });
    // For the next caller: it has no title, text, handler or validator then.
    stage.addButton(QStringLiteral("reset()"), [=] { dialog->reset(); });
    stage.addButton(QStringLiteral("setTitle(), setActiveInputHandler()"), [=] {
        dialog->setTitle(QStringLiteral("Tarief in euro per kWh"));
        dialog->setValidator(price);
        dialog->setActiveInputHandler(handler);
    });
    stage.addButton(QStringLiteral("hide()"), [=] { dialog->hide(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
