// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMMultiLineDialog>

void Pages::zemmultilinedialog(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->move(200, 200);

    auto *dialog = new ZEMMultiLineDialog(
        stage.keyboards().createKeyboard(KeyboardFactoryDefault::PopupFlip), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->setTitle(QStringLiteral("Opmerking"));
    dialog->setText(QStringLiteral("Filter schoonmaken\nMonteur bellen\nMeterstand opschrijven\n"
                                   "Kraan dichtdraaien"));
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, [=] {
        field->setText(dialog->text().section(QLatin1Char('\n'), 0, 0));
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    dialog->setActiveInputHandler(handler);
    QObject::connect(field, &ZEMLineEditButton::clicked, dialog, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setText(one line)"),
                    [=] { dialog->setText(QStringLiteral("Filter schoonmaken")); });
    stage.addButton(QStringLiteral("setText(twenty lines)"),
                    [=] { dialog->setText(QStringLiteral("Filter schoonmaken\n").repeated(20)); });
    stage.addButton(QStringLiteral("hide()"), [=] { dialog->hide(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
