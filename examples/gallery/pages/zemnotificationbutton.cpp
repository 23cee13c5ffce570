// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMNotificationButton>

static ZEMNotificationButton *makeMail(int count)
{
    auto *mail = new ZEMNotificationButton;
    mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
    mail->setNotifyCount(count);
    return mail;
}

void Pages::zemnotificationbutton(Stage &stage)
{
    auto *mail = makeMail(3);
    // A touch reads what there is to see.
    QObject::connect(mail, &ZEMNotificationButton::clicked, mail,
                     [mail] { mail->setNotifyCount(0); });
    stage.add(QStringLiteral("3 to see"), mail);
    stage.add(QStringLiteral("nothing"), makeMail(0));
    stage.add(QStringLiteral("12 to see"), makeMail(12));

    auto *warning = makeMail(3);
    warning->setWarning(true);
    stage.add(QStringLiteral("warning"), warning);

    auto *tile = makeMail(1);
    tile->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
    stage.add(QStringLiteral("on a background"), tile);

    auto *disabled = makeMail(3);
    disabled->setDisabledIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/check_disabled.png")));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.playWith(mail);
}
