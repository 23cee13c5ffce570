// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "indexpage.h"

#include "look.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMListViewLogic>
#include <ZEMPageHeader>
#include <ZEMStyle>

namespace {

constexpr int rowHeight = 48; // pixels
constexpr int rowsOfPage = 7;
constexpr int margin = 8; // pixels
constexpr int tabWidth = 150; // pixels
constexpr int tabHeight = 46; // pixels
constexpr int turnWidth = 120; // pixels
constexpr int summaryRole = Qt::UserRole;
constexpr int nameSize = 14; // points
constexpr int summarySize = 9; // points

/** A row: the name of a class and, beneath, what it is. */
class ClassRows : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QSize(QStyledItemDelegate::sizeHint(option, index).width(), rowHeight);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const ZEMStyle style(nullptr);
        const QRect rect = option.rect.adjusted(margin, 2, -margin, -2);
        painter->fillRect(option.rect.adjusted(0, 1, 0, -1), style.color(ZEMStyle::WhiteAlpha5));
        painter->setFont(QFont(QStringLiteral("Cabin"), nameSize));
        painter->setPen(style.color(ZEMStyle::White));
        painter->drawText(rect, Qt::AlignLeft | Qt::AlignTop, index.data().toString());
        painter->setFont(QFont(QStringLiteral("Cabin"), summarySize));
        painter->setPen(style.color(ZEMStyle::SkyBlue));
        painter->drawText(rect, Qt::AlignLeft | Qt::AlignBottom,
                          index.data(summaryRole).toString());
    }
};

} // namespace

IndexPage::IndexPage(QWidget *parent)
    : ZEMPageBackground(parent), header(new ZEMPageHeader), list(new QListView),
      pages(new ZEMListViewLogic(list))
{
    setBackgroundColor(Look::ground());
    header->setTitle(tr("zemkit gallery"));
    header->setNrOfPages(0);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, margin);
    rows->setSpacing(0);
    rows->addWidget(header);
    auto *columns = new QHBoxLayout;
    columns->setContentsMargins(margin, 0, margin, 0);
    columns->setSpacing(margin);
    columns->addWidget(makeTabs());
    columns->addWidget(makeList(), 1);
    rows->addLayout(columns, 1);
    showSubsystem(Subsystem::Widgets);
}

IndexPage::~IndexPage() = default;

QWidget *IndexPage::makeTabs()
{
    auto *tabs = new QWidget;
    auto *column = new QVBoxLayout(tabs);
    column->setContentsMargins(0, 0, 0, 0);
    auto *group = new QButtonGroup(tabs); // of which one is checked
    for (const Subsystem subsystem : allSubsystems()) {
        ZEMButton *tab =
            Look::makeToggle(nameOf(subsystem), nameOf(subsystem), QSize(tabWidth, tabHeight));
        tab->setChecked(subsystem == Subsystem::Widgets);
        group->addButton(tab);
        column->addWidget(tab);
        connect(tab, &ZEMButton::clicked, this, [this, subsystem] { showSubsystem(subsystem); });
    }
    column->addStretch();
    return tabs;
}

QWidget *IndexPage::makeList()
{
    QPalette palette = list->palette();
    palette.setBrush(QPalette::Base, Qt::NoBrush);
    list->setPalette(palette);
    list->viewport()->setAutoFillBackground(false);
    list->setFrameShape(QFrame::NoFrame);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setFixedHeight(rowHeight * rowsOfPage);
    pages->setItemDelegate(new ClassRows(list));
    pages->setNrPageItems(rowsOfPage);

    const QSize size(turnWidth, Look::target);
    ZEMButton *previous = Look::makeButton(QStringLiteral("btnPrevious"), tr("up"), size);
    ZEMButton *next = Look::makeButton(QStringLiteral("btnNext"), tr("down"), size);
    connect(previous, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_previous);
    connect(next, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_next);
    connect(pages, &ZEMListViewLogic::has_page, this, [=](bool before, bool after) {
        previous->setEnabled(before);
        next->setEnabled(after);
    });
    connect(list, &QListView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT classClicked(index.data().toString()); });

    auto *place = new QWidget;
    auto *rows = new QVBoxLayout(place);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(margin);
    rows->addWidget(list);
    auto *bar = new QHBoxLayout;
    bar->addWidget(previous);
    bar->addStretch();
    bar->addWidget(next);
    rows->addLayout(bar);
    rows->addStretch();
    return place;
}

void IndexPage::showSubsystem(Subsystem subsystem)
{
    model.clear();
    const QStringList classes = classesOf(subsystem);
    for (const QString &name : classes) {
        auto *item = new QStandardItem(name);
        item->setData(pageOf(name)->summary, summaryRole);
        model.appendRow(item);
    }
    header->setSubtitle(tr("%1: %n classes", nullptr, int(classes.size())).arg(nameOf(subsystem)));
    pages->setModel(&model);
    // The last page must be able to come to the top, however short it is.
    pages->setIndex(0);
}
