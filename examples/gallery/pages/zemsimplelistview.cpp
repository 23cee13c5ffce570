// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QAction>
#include <ZEMActionListModel>
#include <ZEMButton>
#include <ZEMSimpleListView>
#include <ZEMTextLabel>

void Pages::zemsimplelistview(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *open = new ZEMButton(page);
    open->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/popup_btn.png")));
    open->setText(QStringLiteral("kies een bron"));
    open->move(184, 200);

    auto *actions = new ZEMActionListModel(page);
    actions->setTitle(QStringLiteral("Bron"));
    const struct
    {
        QString icon, text;
    } sources[] = {{QStringLiteral("icons_03"), QStringLiteral("Net")},
                   {QStringLiteral("icons_11"), QStringLiteral("Zon")},
                   {QStringLiteral("icons_14"), QStringLiteral("Huis")},
                   {QStringLiteral("star_icon"), QStringLiteral("Doelen")}};
    for (const auto &source : sources) {
        const QIcon icon(QStringLiteral(":/zem/graphics/icons/%1.png").arg(source.icon));
        actions->appendAction(new QAction(icon, source.text, page));
    }

    auto *list = new ZEMSimpleListView(page);
    list->setModel(actions);
    list->fitContents(actions->rowCount());
    QObject::connect(list, &ZEMSimpleListView::sigSelect, open, [=](int row) {
        open->setText(list->data(row).toString());
        list->hide();
    });
    QObject::connect(list, &ZEMSimpleListView::sigCancel, list, &QWidget::hide);
    QObject::connect(open, &ZEMButton::clicked, list, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setIndex(2)"), [=] { list->setIndex(2); });
    stage.addButton(QStringLiteral("fitContents(2)"), [=] { list->fitContents(2); });
    stage.addButton(QStringLiteral("fitContents(4)"), [=] { list->fitContents(4); });
    stage.addButton(QStringLiteral("setTitle(\"Kies\")"),
                    [=] { list->setTitle(QStringLiteral("Kies")); });
    stage.addButton(QStringLiteral("show()"), [=] { list->show(); });
}
