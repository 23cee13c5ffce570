// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "propertypanel.h"

#include "look.h"
#include "propertyrow.h"
#include "propertyvalues.h"
#include "stage.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMPageBackground>
#include <ZEMPageIndicator>
#include <ZEMStyle>
#include <ZEMTextLabel>

#include <utility>

namespace {

constexpr int spacing = 4; // pixels
constexpr int roomOfPage = 338; // pixels, above the buttons that turn the pages
constexpr int turnWidth = 60; // pixels
constexpr int textSize = 11; // points

} // namespace

PropertyPanel::PropertyPanel(const Stage &stage, QWidget *parent)
    : QWidget(parent), pages(new QStackedWidget)
{
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(pages, 1);

    const QVector<Stage::Button> buttons = stage.buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        const QSize size(PropertyRow::width, Look::target);
        ZEMButton *button =
            Look::makeButton(QStringLiteral("button%1").arg(i), buttons.at(i).text, size);
        connect(button, &ZEMButton::clicked, this, [this, pressed = buttons.at(i).pressed] {
            pressed();
            Q_EMIT changed();
        });
        addControl(button, Look::target);
    }
    for (const QPointer<QObject> &object : stage.objects()) {
        for (const QMetaProperty &property : PropertyValues::playable(object)) {
            auto *row = new PropertyRow(object, property,
                                        stage.range(QString::fromLatin1(property.name())));
            connect(row, &PropertyRow::changed, this, &PropertyPanel::refresh);
            connect(row, &PropertyRow::changed, this, &PropertyPanel::changed);
            connect(row, &PropertyRow::textWanted, this, &PropertyPanel::textWanted);
            rows.append(row);
            addControl(row, PropertyRow::height);
        }
    }
    if (pageCount() == 0) {
        pages->addWidget(Look::makeLabel(tr("nothing to set"), textSize));
    }
    if (pageCount() > 1) {
        addPager();
    }
    showPage(0);
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::addControl(QWidget *control, int needed)
{
    if (roomLeft < needed) {
        auto *widget = new QWidget;
        page = new QVBoxLayout(widget);
        page->setContentsMargins(0, 0, 0, 0);
        page->setSpacing(spacing);
        page->addStretch();
        pages->addWidget(widget);
        roomLeft = roomOfPage;
    }
    page->insertWidget(page->count() - 1, control);
    roomLeft -= needed + spacing;
}

void PropertyPanel::addPager()
{
    const QSize size(turnWidth, Look::target);
    btnPrevious = Look::makeButton(QStringLiteral("btnPrevious"), QStringLiteral("<"), size);
    btnNext = Look::makeButton(QStringLiteral("btnNext"), QStringLiteral(">"), size);
    dots = new ZEMPageIndicator;
    dots->setNrPages(pageCount());
    connect(btnPrevious, &ZEMButton::clicked, this, &PropertyPanel::showPreviousPage);
    connect(btnNext, &ZEMButton::clicked, this, &PropertyPanel::showNextPage);
    auto *bar = new QHBoxLayout;
    bar->addWidget(btnPrevious);
    bar->addStretch();
    // The dots are made for the light ground of a header.
    auto *ground = new ZEMPageBackground;
    ground->setMinimumSize(0, 0);
    ground->setBackgroundColor(ZEMStyle(nullptr).color(ZEMStyle::WhiteAlpha80));
    (new QHBoxLayout(ground))->addWidget(dots);
    bar->addWidget(ground);
    bar->addStretch();
    bar->addWidget(btnNext);
    static_cast<QVBoxLayout *>(layout())->addLayout(bar);
}

void PropertyPanel::refresh()
{
    for (PropertyRow *row : std::as_const(rows)) {
        row->refresh();
    }
}

int PropertyPanel::pageCount() const
{
    return pages->count();
}

int PropertyPanel::currentPage() const
{
    return pages->currentIndex();
}

void PropertyPanel::showNextPage()
{
    showPage(currentPage() + 1);
}

void PropertyPanel::showPreviousPage()
{
    showPage(currentPage() - 1);
}

void PropertyPanel::showPage(int number)
{
    pages->setCurrentIndex(number);
    if (dots) {
        dots->setCurrentPage(currentPage());
        btnPrevious->setEnabled(currentPage() > 0);
        btnNext->setEnabled(currentPage() + 1 < pageCount());
    }
}
