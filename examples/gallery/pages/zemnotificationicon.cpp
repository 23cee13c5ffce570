// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMNotificationIcon>

static ZEMNotificationIcon *makeMail(int count)
{
    auto *mail = new ZEMNotificationIcon;
    mail->setFixedSize(45, 45); // in a layout it is nothing wide otherwise
    mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
    mail->setNotifyCount(count);
    return mail;
}

void Pages::zemnotificationicon(Stage &stage)
{
    auto *mail = makeMail(3);
    stage.add(QStringLiteral("3 to see"), mail);
    stage.add(QStringLiteral("nothing"), makeMail(0));
    stage.add(QStringLiteral("9 to see"), makeMail(9));
    stage.add(QStringLiteral("12 to see"), makeMail(12));

    auto *warning = makeMail(3);
    warning->setWarning(true);
    stage.add(QStringLiteral("warning"), warning);

    auto *disabled = makeMail(3);
    disabled->setDisabledIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/check_disabled.png")));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.playWith(mail);
}
