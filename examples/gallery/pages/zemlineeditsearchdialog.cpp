// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditButton>
#include <ZEMLineEditSearchDialog>

void Pages::zemlineeditsearchdialog(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *field = new ZEMLineEditButton(page);
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->move(200, 200);

    auto *dialog = new ZEMLineEditSearchDialog(
        stage.keyboards().createKeyboard(KeyboardFactoryDefault::PopupFlip), page);
    dialog->setGeometry(0, 0, 640, 480);
    dialog->setTitle(QStringLiteral("Zoek een plaats"));
    const QStringList towns {QStringLiteral("Almelo"),    QStringLiteral("Amersfoort"),
                             QStringLiteral("Amsterdam"), QStringLiteral("Arnhem"),
                             QStringLiteral("Assen"),     QStringLiteral("Delft")};
    const auto count = [=] {
        const QStringList hits = towns.filter(dialog->text(), Qt::CaseInsensitive);
        dialog->setSearchCount(int(hits.size()));
    };
    dialog->setText(QStringLiteral("Am"));
    count();
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigTextEdited, dialog, count);
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSearch, dialog, [=] {
        field->setText(towns.filter(dialog->text(), Qt::CaseInsensitive).value(0));
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, [=] {
        field->setText(dialog->text());
        dialog->hide();
    });
    QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    dialog->setActiveInputHandler(handler);
    QObject::connect(field, &ZEMLineEditButton::clicked, dialog, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setSearchCount(0)"), [=] { dialog->setSearchCount(0); });
    stage.addButton(QStringLiteral("setSearchCount(120)"), [=] { dialog->setSearchCount(120); });
    stage.addButton(QStringLiteral("setSearchCount(-1)"), [=] { dialog->setSearchCount(-1); });
    stage.addButton(QStringLiteral("hide()"), [=] { dialog->hide(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
