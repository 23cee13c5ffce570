// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaywindow.h"

#include "chartspage.h"
#include "devicespage.h"
#include "overviewpage.h"

namespace {

QString overviewName()
{
    return QStringLiteral("overview");
}

QString chartsName()
{
    return QStringLiteral("charts");
}

QString devicesName()
{
    return QStringLiteral("devices");
}

} // namespace

DisplayWindow::DisplayWindow(const EnergySource &source, QWidget *parent) : QStackedWidget(parent)
{
    setWindowTitle(QStringLiteral("zemkit-display"));
    setFixedSize(640, 480);

    auto *overview = new OverviewPage(source);
    charts = new ChartsPage(source);
    addPage(overview, overviewName());
    addPage(charts, chartsName());
    addPage(new DevicesPage(source), devicesName());
    connect(overview, &OverviewPage::chartsClicked, this, [this] { openPage(chartsName()); });
    connect(overview, &OverviewPage::devicesClicked, this, [this] { openPage(devicesName()); });
}

QStringList DisplayWindow::pageNames()
{
    return {overviewName(), chartsName(), devicesName()};
}

void DisplayWindow::openPage(const QString &name)
{
    setCurrentIndex(pageNames().indexOf(name));
}

void DisplayWindow::addPage(DisplayPage *page, const QString &name)
{
    page->setObjectName(name);
    addWidget(page);
    connect(page, &DisplayPage::backClicked, this, [this] { openPage(overviewName()); });
}
