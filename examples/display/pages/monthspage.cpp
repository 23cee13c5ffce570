// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthspage.h"

#include "energysource.h"
#include "fittedtableview.h"
#include "pagelook.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <ZEMButton>
#include <ZEMStyle>
#include <ZEMTableViewLogic>
#include <algorithm>

namespace {

constexpr int rowHeight = 32; // pixels
constexpr int headingHeight = 48; // pixels, for two lines
constexpr int headingShade = 140; // percent darker, for white texts
constexpr int buttonGap = 12; // pixels
constexpr int topMargin = 6; // pixels

} // namespace

MonthsPage::MonthsPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Maanden"), source, parent)
{
    makeTable();
    columns = new QBoxLayout(QBoxLayout::LeftToRight);
    columns->setContentsMargins(0, topMargin, 0, 0);
    columns->setSpacing(buttonGap);
    columns->addWidget(view, 1, Qt::AlignTop);
    columns->addWidget(makeButtons());
    content()->addLayout(columns);
    connect(&source, &EnergySource::historyChanged, this, &MonthsPage::handleHistory);
}

void MonthsPage::setCostRules(const Costs::CostRules *costRules)
{
    rules = costRules;
    change->show();
    handleHistory();
}

void MonthsPage::arrange(Shape shape)
{
    const bool isWide = shape == Shape::Wide;
    columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    arrows->setDirection(isWide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    arrows->setContentsMargins(0, isWide ? headingHeight : 0, 0, 0);
}

void MonthsPage::resizeEvent(QResizeEvent *event)
{
    DisplayPage::resizeEvent(event);
    fitRows();
}

/** Whole rows alone, as many as there is room for. */
void MonthsPage::fitRows()
{
    content()->activate();
    const bool isWide = columns->direction() == QBoxLayout::LeftToRight;
    const int below = isWide ? 0 : arrows->sizeHint().height() + buttonGap;
    const int room = columns->geometry().height() - topMargin - below - headingHeight;
    const int count = std::max(1, room / rowHeight);
    view->setFixedHeight(headingHeight + count * rowHeight);
    pages->setNrPageItems(count);
    pages->setIndex(std::max(0, view->currentIndex().row()));
}

void MonthsPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    feed();
}

void MonthsPage::makeTable()
{
    view = new FittedTableView;
    view->setObjectName(QStringLiteral("table"));
    view->setFont(PageLook::textFont(13));
    view->setFrameShape(QFrame::NoFrame);
    view->setShowGrid(false);
    view->setSelectionMode(QAbstractItemView::NoSelection);
    view->setFocusPolicy(Qt::NoFocus);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(rowHeight);
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->horizontalHeader()->setSectionsClickable(false);
    view->horizontalHeader()->setFixedHeight(headingHeight);
    PageLook::makeTransparent(view);
    // The heading has the colours of a button.
    QPalette palette = view->palette();
    const ZEMStyle style(nullptr);
    palette.setColor(QPalette::Button, style.color(ZEMStyle::SlateBlue).darker(headingShade));
    view->horizontalHeader()->setPalette(palette);

    pages = new ZEMTableViewLogic(view);
    pages->setModel(&months);
}

QWidget *MonthsPage::makeButtons()
{
    ZEMButton *up = PageLook::makeIconButton(QStringLiteral("go-up"));
    ZEMButton *down = PageLook::makeIconButton(QStringLiteral("go-down"));
    up->setObjectName(QStringLiteral("up"));
    down->setObjectName(QStringLiteral("down"));
    connect(up, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_previous);
    connect(down, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_next);
    connect(pages, &ZEMTableViewLogic::has_page, this, [up, down](bool before, bool after) {
        up->setEnabled(before);
        down->setEnabled(after);
    });

    change = PageLook::makeSquareButton();
    change->setObjectName(QStringLiteral("change"));
    change->setFont(PageLook::textFont(18));
    change->hide();
    connect(change, &ZEMButton::clicked, this, &MonthsPage::changeTable);

    auto *buttons = new QWidget;
    arrows = new QBoxLayout(QBoxLayout::TopToBottom, buttons);
    arrows->addWidget(up);
    arrows->addStretch();
    arrows->addWidget(change);
    arrows->addStretch();
    arrows->addWidget(down);
    return buttons;
}

void MonthsPage::handleHistory()
{
    isFed = false;
    if (isVisible()) {
        feed();
    }
}

void MonthsPage::changeTable()
{
    showsCosts = !showsCosts;
    handleHistory();
}

void MonthsPage::feed()
{
    if (isFed) {
        return;
    }
    isFed = true;
    // The page in view stays, as the table chooses its row again.
    const int row = view->currentIndex().row();
    const Readings::Household &household = energySource().household();
    if (showsCosts) {
        months.showCosts(household, *rules);
        if (!view->fits()) {
            months.showCosts(household, *rules, 0);
        }
    } else {
        months.show(household);
    }
    change->setText(showsCosts ? QStringLiteral("kWh") : QStringLiteral("€"));
    pages->setIndex(row > 0 ? row : 0);
}
