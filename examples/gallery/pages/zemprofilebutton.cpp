// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QButtonGroup>
#include <ZEMProfileButton>

static ZEMProfileButton *makeProfile(const QString &title, const QString &icon)
{
    auto *profile = new ZEMProfileButton;
    profile->setTitle(title);
    profile->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/%1.png").arg(icon)));
    return profile;
}

void Pages::zemprofilebutton(Stage &stage)
{
    const QString icon = QStringLiteral("green-ok-icon_small");
    auto *home = makeProfile(QStringLiteral("Thuis"), icon);
    home->setActivated(true);
    auto *away = makeProfile(QStringLiteral("Afwezig"), QStringLiteral("star_icon_small"));
    away->setChecked(true);
    auto *night = makeProfile(QStringLiteral("Nacht"), QStringLiteral("star_empty_icon_small"));
    auto *holiday = makeProfile(QStringLiteral("Vakantie"), icon);
    holiday->setEnabled(false);

    auto *profiles = new QButtonGroup(home); // of which one is checked
    for (ZEMProfileButton *profile : {home, away, night}) {
        profiles->addButton(profile);
    }
    stage.add(QStringLiteral("in use"), home);
    stage.add(QStringLiteral("checked, not in use"), away);
    stage.add(QStringLiteral("neither"), night);
    stage.add(QStringLiteral("disabled"), holiday);
    stage.playWith(away);
}
