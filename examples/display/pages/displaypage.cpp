// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaypage.h"

#include "energysource.h"
#include "pagelook.h"

#include <QHBoxLayout>
#include <ZEMButton>
#include <ZEMLabel>
#include <ZEMTextLabel>
#include <ZEMUtils>
#include <cmath>

namespace {

constexpr int headerHeight = 52; // pixels
constexpr int margin = 16; // pixels at both sides
constexpr QSize backSize(44, 44);

} // namespace

DisplayPage::DisplayPage(const QString &title, const EnergySource &source, QWidget *parent)
    : ZEMPageBackground(parent), shownSource(source)
{
    setBackground(PageLook::background());

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(margin, 0, margin, 6);
    rows->setSpacing(0);
    rows->addWidget(makeHeader(title));
    contentLayout = new QVBoxLayout;
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(0);
    rows->addLayout(contentLayout, 1);

    connect(&source, &EnergySource::powerChanged, this, &DisplayPage::showGridPower);
    connect(&source, &EnergySource::meteringChanged, this, &DisplayPage::showGridPower);
    showGridPower();
}

void DisplayPage::setBackVisible(bool visible)
{
    back->setVisible(visible);
}

QWidget *DisplayPage::makeHeader(const QString &title)
{
    back = new ZEMButton;
    back->setIcon(QIcon(QStringLiteral(":/zem/graphics/icons/arrow_left.png")));
    back->setFixedSize(backSize);
    connect(back, &ZEMButton::clicked, this, &DisplayPage::backClicked);

    auto *heading = new ZEMTextLabel;
    heading->setFont(PageLook::titleFont());
    heading->setShadow(true);
    heading->setText(title);

    powerCaption = new ZEMTextLabel;
    powerCaption->setFont(PageLook::textFont(12));

    power = new ZEMLabel;
    power->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    power->setFont(PageLook::textFont(14));

    auto *header = new QWidget;
    header->setFixedHeight(headerHeight);
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(back);
    row->addWidget(heading, 1);
    row->addWidget(powerCaption);
    row->addWidget(power);
    return header;
}

void DisplayPage::showGridPower()
{
    const std::optional<PowerReport> report = shownSource.power();
    const bool known = report && shownSource.isMetering();
    power->setVisible(report.has_value() || !shownSource.isMetering());
    powerCaption->setVisible(known);
    if (!known) {
        power->setText(QStringLiteral("?"));
        return;
    }
    // The texts of power have no sign; the caption tells the direction.
    powerCaption->setText(report->grid() < 0.0 ? tr("naar het net") : tr("van het net"));
    power->setText(ZEMUtils::wattToStringAutoScale(std::fabs(report->grid())));
}
