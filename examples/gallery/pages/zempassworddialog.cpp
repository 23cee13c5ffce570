// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMPasswordDialog>

void Pages::zempassworddialog(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->move(200, 200);

    auto *dialog = new ZEMPasswordDialog(
        stage.keyboards().createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->setTitle(QStringLiteral("Wachtwoord van het netwerk"));
    dialog->setText(QStringLiteral("zonnepaneel"));
    dialog->slotHidePassword(true);
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, [=] {
        field->setText(QString(dialog->text().size(), QChar(0x2022)));
        dialog->setText(QString()); // the dialog keeps no secret
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    dialog->setActiveInputHandler(handler);
    QObject::connect(field, &ZEMLineEditButton::clicked, dialog, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("slotHidePassword(false)"),
                    [=] { dialog->slotHidePassword(false); });
    stage.addButton(QStringLiteral("slotHidePassword(true)"),
                    [=] { dialog->slotHidePassword(true); });
    stage.addButton(QStringLiteral("setAutoSelect(false), show()"), [=] {
        dialog->hide();
        dialog->setAutoSelect(false);
        dialog->show();
    });
    stage.addButton(QStringLiteral("hide()"), [=] { dialog->hide(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
