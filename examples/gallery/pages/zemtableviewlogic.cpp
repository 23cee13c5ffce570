// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMTableViewLogic>

namespace {

constexpr int rowsOfPage = 7;

ZEMButton *makeButton(const QString &icon)
{
    const QString buttons = QStringLiteral(":/zem/graphics/main/buttons/btn_square_small%1.png");
    auto *button = new ZEMButton;
    button->setBackground(QPixmap(buttons.arg(QString())));
    button->setBackgroundOff(QPixmap(buttons.arg(QStringLiteral("_disabled"))));
    button->setIcon(QIcon(QStringLiteral(":/tango/graphics/tango/actions/%1-icon.png").arg(icon)));
    return button;
}

/** What was used on each of the last 31 days. */
QStandardItemModel *makeModel(QObject *parent)
{
    const QVector<double> used = SampleData::last(
        SampleData::sums(SampleData::consumptionByHour(), SampleData::hoursOfDay), 31);
    auto *model = new QStandardItemModel(int(used.size()), 2, parent);
    model->setHorizontalHeaderLabels({QStringLiteral("datum"), QStringLiteral("kWh")});
    for (int day = 0; day < used.size(); ++day) {
        const QDateTime date = SampleData::lastMidnight().addDays(day + 1 - used.size());
        model->setItem(day, 0, new QStandardItem(date.toString(QStringLiteral("dd-MM-yyyy"))));
        model->setItem(day, 1, new QStandardItem(QLocale().toString(used.at(day), 'f', 1)));
    }
    return model;
}

/** Any table that pages can be filled so. */
void fill(ZEMTableViewInterface &table, QAbstractItemModel *model)
{
    table.setModel(model);
    table.setNrPageItems(rowsOfPage);
    table.setIndex(0);
}

} // namespace

void Pages::zemtableviewlogic(Stage &stage)
{
    auto *page = new QWidget;
    auto *table = new QTableView;
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    QPalette palette = table->palette();
    palette.setColor(QPalette::Base, QColor(40, 56, 68));
    palette.setColor(QPalette::Button, QColor(22, 32, 40));
    table->setPalette(palette);
    ZEMButton *up = makeButton(QStringLiteral("go-up"));
    ZEMButton *down = makeButton(QStringLiteral("go-down"));
    auto *columns = new QHBoxLayout(page);
    columns->addWidget(table, 1);
    auto *buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    buttons->addWidget(up);
    buttons->addStretch();
    buttons->addWidget(down);

    auto *pages = new ZEMTableViewLogic(table); // which owns it
    QObject::connect(up, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_previous);
    QObject::connect(down, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_next);
    QObject::connect(pages, &ZEMTableViewLogic::has_page, page, [=](bool before, bool after) {
        up->setEnabled(before);
        down->setEnabled(after);
    });
    pages->setSelectionFlags(QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    fill(*pages, makeModel(page));
    table->setFixedHeight(table->horizontalHeader()->sizeHint().height()
                          + rowsOfPage * table->rowHeight(0) + 2 * table->frameWidth());

    stage.fill(page);
    stage.addButton(QStringLiteral("page_next()"), [=] { pages->page_next(); });
    stage.addButton(QStringLiteral("page_previous()"), [=] { pages->page_previous(); });
    stage.addButton(QStringLiteral("setIndex(20)"), [=] { pages->setIndex(20); });
}
