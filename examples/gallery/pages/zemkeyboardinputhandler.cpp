// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMLineEditDialog>
#include <ZEMPageBackground>
#include <ZEMWidgetLabel>

static ZEMLineEditButton *makeField(const QString &title, int place, QWidget *page)
{
    auto *strip = new ZEMWidgetLabel(page);
    strip->setTitle(title);
    strip->setGeometry(40, 60 + 90 * place, 233, 24);
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->setText(title);
    field->move(40, 84 + 90 * place);
    return field;
}

void Pages::zemkeyboardinputhandler(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    // One dialog serves all fields; each field has a handler of its own.
    auto *dialog = new ZEMLineEditDialog(
        stage.keyboards().createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->hide();

    int place = 0;
    for (const QString &title :
         {QStringLiteral("Woonkamer"), QStringLiteral("Keuken"), QStringLiteral("Zolder")}) {
        ZEMLineEditButton *field = makeField(title, place++, page);
        auto *handler = new ZEMKeyboardInputHandler(field);
        QObject::connect(field, &ZEMLineEditButton::clicked, dialog, [=] {
            dialog->setTitle(title);
            dialog->setText(field->text());
            dialog->setActiveInputHandler(handler);
            dialog->show();
            dialog->raise();
        });
        QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, field, [=] {
            field->setText(dialog->text());
            dialog->hide();
        });
        QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
        // A program may tell a handler by itself.
        stage.addButton(QStringLiteral("%1: emitSelect()").arg(title),
                        [=] { handler->emitSelect(); });
        stage.addButton(QStringLiteral("%1: emitCancel()").arg(title),
                        [=] { handler->emitCancel(); });
    }
    stage.cover(page);
}
