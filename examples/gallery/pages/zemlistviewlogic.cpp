// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QHBoxLayout>
#include <QListView>
#include <QStringListModel>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMListViewLogic>

static ZEMButton *makeButton(const QString &icon)
{
    const QString buttons = QStringLiteral(":/zem/graphics/main/buttons/btn_square_small%1.png");
    auto *button = new ZEMButton;
    button->setBackground(QPixmap(buttons.arg(QString())));
    button->setBackgroundOff(QPixmap(buttons.arg(QStringLiteral("_disabled"))));
    button->setIcon(QIcon(QStringLiteral(":/tango/graphics/tango/actions/%1-icon.png").arg(icon)));
    return button;
}

void Pages::zemlistviewlogic(Stage &stage)
{
    constexpr int rowsOfPage = 6;
    auto *page = new QWidget;
    auto *list = new QListView;
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setFont(QFont(QStringLiteral("Cabin"), 18));
    QPalette palette = list->palette();
    palette.setColor(QPalette::Base, QColor(40, 56, 68));
    list->setPalette(palette);
    ZEMButton *up = makeButton(QStringLiteral("go-up"));
    ZEMButton *down = makeButton(QStringLiteral("go-down"));
    auto *columns = new QHBoxLayout(page);
    columns->addWidget(list);
    auto *buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    buttons->addWidget(up);
    buttons->addStretch();
    buttons->addWidget(down);

    QStringList months;
    for (int month = 1; month <= 20; ++month) {
        months.append(QLocale(QLocale::Dutch).monthName(1 + (month - 1) % 12)
                      + QStringLiteral(" %1").arg(2025 + (month - 1) / 12));
    }
    auto *pages = new ZEMListViewLogic(list); // which owns it
    QObject::connect(up, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_previous);
    QObject::connect(down, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_next);
    QObject::connect(pages, &ZEMListViewLogic::has_page, page, [=](bool before, bool after) {
        up->setEnabled(before);
        down->setEnabled(after);
    });
    pages->setModel(new QStringListModel(months, page));
    pages->setNrPageItems(rowsOfPage);
    list->setFixedHeight(rowsOfPage * list->sizeHintForRow(0) + 2 * list->frameWidth());
    pages->setIndex(0);

    stage.fill(page);
    stage.addButton(QStringLiteral("page_next()"), [=] { pages->page_next(); });
    stage.addButton(QStringLiteral("page_previous()"), [=] { pages->page_previous(); });
    stage.addButton(QStringLiteral("setIndex(13)"), [=] { pages->setIndex(13); });
    stage.addButton(QStringLiteral("ClearAndSelect"),
                    [=] { pages->setSelectionFlags(QItemSelectionModel::ClearAndSelect); });
    stage.addButton(QStringLiteral("NoUpdate"),
                    [=] { pages->setSelectionFlags(QItemSelectionModel::NoUpdate); });
}
