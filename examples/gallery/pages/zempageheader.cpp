// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QStackedWidget>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMNotificationButton>
#include <ZEMPageBackground>
#include <ZEMPageHeader>

static ZEMButton *makeButton(const QString &icon)
{
    auto *button = new ZEMButton;
    button->setIcon(QIcon(icon));
    return button;
}

static void describe(ZEMPageHeaderInterface &header)
{
    header.setTitle(QStringLiteral("instellingen"));
    header.setSubtitle(QStringLiteral("zondag 21 juni 2026"));
    header.setNrOfPages(4);
    header.setCurrentPage(1);
}

void Pages::zempageheader(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 60, 0, 0);
    rows->setSpacing(20);

    auto *header = new ZEMPageHeader;
    describe(*header);
    auto *action = new QStackedWidget;
    const QString tango = QStringLiteral(":/tango/graphics/tango/actions/%1-icon.png");
    action->addWidget(makeButton(tango.arg(QStringLiteral("process-stop"))));
    action->addWidget(makeButton(tango.arg(QStringLiteral("go-up"))));
    header->setActionButton(action);
    header->setActionButton2(makeButton(tango.arg(QStringLiteral("go-down"))));
    auto *mail = new ZEMNotificationButton;
    mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
    mail->setNotifyCount(3);
    header->addButton(mail);
    header->addButton(makeButton(QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png")));
    rows->addWidget(header);

    auto *disabled = new ZEMPageHeader;
    describe(*disabled);
    disabled->setTitle(QStringLiteral("uitgeschakeld"));
    disabled->setNrOfButtons(2);
    disabled->enableButton(1, false);
    disabled->enableActionButton(false);
    rows->addWidget(disabled);

    auto *bare = new ZEMPageHeader;
    bare->setTitle(QStringLiteral("verbruik"));
    bare->setSubtitle(QString());
    bare->showPageIndicator(false);
    rows->addWidget(bare);
    rows->addStretch();

    stage.cover(page);
    stage.playWith(header);
    stage.setRange(QStringLiteral("buttons"), 0, 5);
    stage.addButton(QStringLiteral("the other action"),
                    [=] { action->setCurrentIndex(1 - action->currentIndex()); });
    stage.addButton(QStringLiteral("setCurrentPage(3)"), [=] { header->setCurrentPage(3); });
    stage.addButton(QStringLiteral("enableActionButton2(false)"),
                    [=] { header->enableActionButton2(false); });
    stage.addButton(QStringLiteral("enableActionButton2(true)"),
                    [=] { header->enableActionButton2(true); });
    stage.addButton(QStringLiteral("showPageIndicator(false)"),
                    [=] { header->showPageIndicator(false); });
    stage.addButton(QStringLiteral("showPageIndicator(true)"),
                    [=] { header->showPageIndicator(true); });
}
