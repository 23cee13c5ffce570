// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMButton>
#include <ZEMDialogShowText>

static QString letter()
{
    QString text;
    for (int paragraph = 1; paragraph <= 6; ++paragraph) {
        text += QStringLiteral("%1. De meterstand is doorgegeven. In de afgelopen maand is er "
                               "minder stroom verbruikt dan in die van vorig jaar.\n\n")
                    .arg(paragraph);
    }
    return text;
}

void Pages::zemdialogshowtext(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *read = new ZEMButton(page);
    read->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/popup_btn.png")));
    read->setText(QStringLiteral("exec()"));
    read->move(184, 200);

    auto *dialog = new ZEMDialogShowText(page);
    dialog->setTitle(QStringLiteral("Bericht"));
    dialog->setText(letter());
    dialog->setTextFontSize(16);
    dialog->setBtnEditVisible(true);
    QObject::connect(dialog, &ZEMDialogShowText::sigBtnEditClicked, dialog,
                     [dialog] { dialog->setTitle(QStringLiteral("Antwoord")); });
    QObject::connect(read, &ZEMButton::clicked, dialog, [dialog] {
        dialog->raise();
        dialog->exec(); // until it has been read
    });

    // As it looks while exec() waits.
    dialog->show();
    dialog->updateButtons();
    stage.cover(page);
    const auto size = [dialog](int points) {
        dialog->setTextFontSize(points);
        dialog->updateButtons();
    };
    stage.addButton(QStringLiteral("setTextFontSize(12)"), [=] { size(12); });
    stage.addButton(QStringLiteral("setTextFontSize(22)"), [=] { size(22); });
    stage.addButton(QStringLiteral("setBtnEditVisible(false)"),
                    [=] { dialog->setBtnEditVisible(false); });
    stage.addButton(QStringLiteral("setBtnEditVisible(true)"),
                    [=] { dialog->setBtnEditVisible(true); });
    stage.addButton(QStringLiteral("reset()"), [=] { dialog->reset(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}
