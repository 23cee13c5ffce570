// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QAction>
#include <ZEMActionListModel>
#include <ZEMSimpleListView>
#include <ZEMTextLabel>

void Pages::zemactionlistmodel(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *chosen = new ZEMTextLabel(page);
    chosen->setGeometry(20, 440, 300, 30);

    const QString icons = QStringLiteral(":/zem/graphics/icons/%1.png");
    auto *solar = new QAction(QIcon(icons.arg(QStringLiteral("icons_11"))),
                              QStringLiteral("Zonnepanelen"), page);
    auto *grid =
        new QAction(QIcon(icons.arg(QStringLiteral("icons_03"))), QStringLiteral("Net"), page);
    auto *house =
        new QAction(QIcon(icons.arg(QStringLiteral("icons_14"))), QStringLiteral("Huis"), page);
    auto *actions = new ZEMActionListModel(page);
    actions->setTitle(QStringLiteral("Bron"));
    actions->setActionList({solar, grid});

    auto *menu = new ZEMSimpleListView(page);
    menu->setModel(actions);
    menu->fitContents(4);
    QObject::connect(menu, &ZEMSimpleListView::sigSelect, chosen,
                     [=](int row) { chosen->setText(menu->data(row).toString()); });

    stage.cover(page);
    stage.addButton(QStringLiteral("appendAction(house)"), [=] { actions->appendAction(house); });
    stage.addButton(QStringLiteral("insertAction(0, house)"),
                    [=] { actions->insertAction(0, house); });
    stage.addButton(QStringLiteral("removeAction(house)"), [=] { actions->removeAction(house); });
    stage.addButton(QStringLiteral("setActionList({solar, grid})"), [=] {
        actions->setActionList({solar, grid});
    });
}
